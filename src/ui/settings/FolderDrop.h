// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "model/FolderLooks.h"

#include <QObject>

#include <functional>
#include <optional>

class QDragMoveEvent;
class QDropEvent;

namespace lorva {

/// Folders of a file manager that are held over a widget or dropped on it.
///
/// Watches the widget's events. Which of what is held are folders is found out off the main thread;
/// until that is known the drop is taken, and whoever adds the folders says what is none.
/// Thread: main.
class FolderDrop final : public QObject
{
    Q_OBJECT
public:
    explicit FolderDrop(QWidget &target);

    /// Whether anything can be dropped now.
    void setEnabled(bool isEnabled);

Q_SIGNALS:
    /// Folders are over the target, or not any more.
    void hovered(bool isHovered);
    /// All that was dropped, at least one of them a folder as far as is known.
    void dropped(const std::vector<FilePath> &paths);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void enter(QDragMoveEvent &event);
    void move(QDragMoveEvent &event) const;
    void drop(QDropEvent &event);
    void leave();
    bool isWelcome() const;

    FolderLooks m_looks;
    std::vector<FilePath> m_held;
    /// Nothing while that is being looked at.
    std::optional<bool> m_hasFolder;
    int m_run = 0;
    bool m_isEnabled = true;
};

} // namespace lorva
