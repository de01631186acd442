// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QAbstractButton>

namespace lorva {

/// A check box of the neutral panes: a small square and a text that may wrap, no bevel. Follows
/// light and dark. Thread: main.
class SheetCheckBox final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    explicit SheetCheckBox(const QString &text, QWidget *parent = nullptr);

    /// In one line.
    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintBox(QPainter &painter, const QRectF &box) const;
};

} // namespace lorva
