// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QPointer>
#include <QPushButton>
#include <QStringList>

class QMenu;

namespace lorva {

/// Shows which of a few choices holds, and opens a menu of them: 28 high, without a frame, in the
/// neutral colours. A click, Space, Return and the arrow keys open it. Thread: main.
class PopupButton final : public FocusRinged<QPushButton>
{
    Q_OBJECT
public:
    /// `label`: what is chosen, for assistive technology. `choices`: at least one.
    PopupButton(QString label, QStringList choices, QWidget *parent = nullptr);

    int currentIndex() const { return m_current; }
    /// Without chosen().
    void setCurrentIndex(int index);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// By the user, another one than before.
    void chosen(int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void openMenu();
    void choose(int index);

    const QString m_label;
    const QStringList m_choices;
    int m_current = 0;
    QPointer<QMenu> m_menu;
};

} // namespace lorva
