// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QAbstractButton>

namespace lorva {

/// A word with an arrow that leads out of the program. Thread: main.
class DiscoverLinkButton final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    explicit DiscoverLinkButton(QWidget *parent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace lorva
