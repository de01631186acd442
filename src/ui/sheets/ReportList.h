// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/Report.h"

#include <QListView>

namespace lorva {

class OverlayScrollBar;

/// The rows of a report: title and time in one line, more below it, and hairlines between. Many
/// thousands cost no more than those that are seen. Rows are selected by click and keyboard.
/// Thread: main.
class ReportList final : public QListView
{
    Q_OBJECT
public:
    explicit ReportList(std::vector<Report::Row> rows, QWidget *parent = nullptr);
    ~ReportList() override;

    /// Of all rows together.
    int wholeHeight() const;
    int rowHeight() const;
    /// The selected rows from the top down, a line each: time, title, and the rest, parted by tabs.
    /// Empty without a selection.
    QString selectedText() const;
    /// The row of the keyboard shows its ring.
    bool hasFocusRing() const { return hasFocus() && m_showsFocus; }

Q_SIGNALS:
    void copyRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    class Rows;
    class Look;

    OverlayScrollBar *m_scrollBar;
    bool m_showsFocus = false;
};

} // namespace lorva
