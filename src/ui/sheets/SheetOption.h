// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QAbstractButton>

namespace lorva {

/// One of the ways that a sheet offers: a whole surface with a symbol, a title and a sentence,
/// which is chosen by a click, Space or Return. As high as its texts need. Thread: main.
class SheetOption final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    SheetOption(QString symbol, const QString &title, QString description,
                QWidget *parent = nullptr);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect visual(const QRect &rect) const;

    const QString m_symbol;
    const QString m_description;
};

} // namespace lorva
