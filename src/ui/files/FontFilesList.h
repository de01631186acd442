// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/files/FontFilesState.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace lorva {

class OverlayScrollBar;

/// The faces of the files that were opened, below the names of their families, and the files that
/// show none. One row is chosen; the arrow keys lead from row to row.
///
/// Looks like the sidebar and follows the desktop's colours. Thread: main. Units: points.
class FontFilesList final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kWidth = 232;

    explicit FontFilesList(QWidget *parent = nullptr);

    void setRows(const std::vector<FontFilesRow> &rows);
    /// Not told by chosen().
    void setCurrent(size_t row);
    std::optional<size_t> current() const;

Q_SIGNALS:
    /// By the user.
    void chosen(size_t row);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    class Model;
    class View;
    class Delegate;

    Model *m_model;
    View *m_view;
    OverlayScrollBar *m_bar;
};

} // namespace lorva
