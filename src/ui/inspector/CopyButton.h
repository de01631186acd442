// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QAbstractButton>

namespace lorva {

/// Two sheets, one over the other: copies the value beside it. Thread: main.
class CopyButton final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    /// `label`: tool tip and name for assistive technology.
    explicit CopyButton(const QString &label, QWidget *parent);
    static constexpr int kSide = 18;
    QSize sizeHint() const override { return {kSide, kSide}; }

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace lorva
