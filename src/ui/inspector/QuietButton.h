// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QAbstractButton>

namespace lorva {

/// A word of the inspector that can be pressed: no ground, half-strength until it is pointed at.
/// Thread: main.
class QuietButton final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    explicit QuietButton(const QString &text, QWidget *parent = nullptr);
    /// With room for the focus ring around the word.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    /// From the widget's side to the word.
    static constexpr int kSideRoom = 4;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace lorva
