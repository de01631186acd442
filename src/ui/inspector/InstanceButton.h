// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QAbstractButton>
#include <QPointer>

#include <functional>
#include <optional>
#include <vector>

class QMenu;

namespace lorva {

/// Tells which named instance the axes are at, and opens a menu of them. A press, Space, Return and
/// the arrow keys open it. Thread: main.
class InstanceButton final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    InstanceButton(std::vector<QString> names, QWidget *parent);

    /// Nothing: none fits.
    void setCurrent(std::optional<size_t> index);
    /// By the user.
    std::function<void(size_t)> onChosen;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void openMenu();
    QString currentName() const;

    const std::vector<QString> m_names;
    std::optional<size_t> m_current;
    QPointer<QMenu> m_menu;
};

} // namespace lorva
