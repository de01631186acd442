// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QColor>
#include <QPushButton>

namespace lorva {

/// A push button of the neutral panes: 28 high, radius 7, no bevel; the default one in the
/// desktop's accent, a destructive one in red. Follows light and dark. Thread: main.
class TextButton final : public FocusRinged<QPushButton>
{
    Q_OBJECT
public:
    enum class Kind { plain, prominent, destructive };

    explicit TextButton(const QString &text, Kind kind = Kind::plain, QWidget *parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor fillColor() const;

    const Kind m_kind;
};

} // namespace lorva
