// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QAbstractButton>

namespace lorva {

/// A switch of 30×18 points, on and off told by place and fill. A check box to assistive
/// technology. Thread: main.
class ToggleSwitch final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    /// `label`: its name for assistive technology.
    explicit ToggleSwitch(const QString &label, QWidget *parent = nullptr);
    /// With room for the focus ring around it.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
};

} // namespace lorva
