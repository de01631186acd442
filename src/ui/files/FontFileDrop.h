// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QObject>

#include <vector>

class QMimeData;

namespace lorva {

/// The files that a drag carries, as far as one of them may hold a font by its name; none of a drag
/// of our own families. The disk is not looked at.
std::vector<FilePath> droppedFontFiles(const QMimeData &data);

/// Font files of a file manager that are dropped on a window, or on what in it takes no drops of
/// its own.
///
/// Watches the widget's events. Thread: main.
class FontFileDrop final : public QObject
{
    Q_OBJECT
public:
    explicit FontFileDrop(QWidget &target);

Q_SIGNALS:
    /// All that was dropped, whatever it is.
    void dropped(const std::vector<FilePath> &files);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// What is held over the widget.
    bool m_isWelcome = false;
};

} // namespace lorva
