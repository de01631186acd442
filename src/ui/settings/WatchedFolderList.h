// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <optional>
#include <vector>

class QListWidget;

namespace lorva {

class OverlayScrollBar;

/// A watched folder as a row shows it.
struct WatchedFolderRow
{
    QString id;
    /// The home folder as "~".
    QString path;
    /// Nothing while that is not known.
    std::optional<bool> isThere;
    /// Its font files; nothing while they are not counted.
    std::optional<int> fonts;

    bool operator==(const WatchedFolderRow &) const = default;
};

/// The list of watched folders: a quiet plate with a row for each, of which one can be selected.
/// Follows the desktop's colours. Thread: main.
class WatchedFolderList final : public QWidget
{
    Q_OBJECT
public:
    explicit WatchedFolderList(QWidget *parent = nullptr);

    /// Keeps the selection where its folder is still there; the row that comes after one that has
    /// gone takes it over.
    void setRows(const std::vector<WatchedFolderRow> &rows);
    std::optional<QString> selectedID() const;
    /// An unknown id selects nothing.
    void setSelectedID(const std::optional<QString> &id);
    /// Shows that what is held over it would be added.
    void setDropTarget(bool isTarget);
    bool isDropTarget() const { return m_isDropTarget; }

Q_SIGNALS:
    void selectionChanged();
    /// The user wants the selected folder out of the list.
    void removalWanted();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    class View;

    std::vector<WatchedFolderRow> m_rows;
    View *m_view;
    OverlayScrollBar *m_bar;
    bool m_isDropTarget = false;
};

} // namespace lorva
