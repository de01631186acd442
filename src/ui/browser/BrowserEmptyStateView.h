// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/FontBrowserState.h"

#include <QColor>
#include <QWidget>

namespace lorva {

class PaneButton;

/// What stands in the pane when there are no cards: a symbol, a title, a sentence, and, where it
/// helps, a button that watches a folder. Thread: main.
class BrowserEmptyStateView final : public QWidget
{
    Q_OBJECT
public:
    explicit BrowserEmptyStateView(QWidget *parent);

    std::function<void()> onWatchFolder;

    void show(const BrowserEmptyState &state);
    void setColors(const QColor &foreground, const QColor &background);
    const QString &title() const { return m_title; }
    const QString &subtitle() const { return m_subtitle; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// Where symbol, title, subtitle and button stand, one below the other around the middle.
    struct Column
    {
        QRect symbol;
        QRect title;
        QRect subtitle;
        QRect button;
    };
    Column column() const;

    PaneButton *m_watchFolder;
    QString m_symbol;
    QString m_title;
    QString m_subtitle;
    QColor m_ink = Qt::black;
    QColor m_ground = Qt::white;
};

} // namespace lorva
