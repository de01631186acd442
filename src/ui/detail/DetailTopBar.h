// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/BarDisplayControls.h"
#include "ui/detail/FontDetailState.h"

#include <QColor>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

class QMenu;

namespace lorva {

class BarSearch;
class SegmentedControl;

/// The bar over the detail page: back, the family's name, what sets the preview's look, and the
/// search for characters.
///
/// As BrowserTopBar: it takes the colours of the pane, and what apply() brings is never reported
/// back. Thread: main. Units: points.
class DetailTopBar final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kHeight = 52;

    explicit DetailTopBar(QWidget *parent = nullptr);
    ~DetailTopBar() override;

    /// Does not own it; it must outlive this bar.
    void setDelegate(FontDetailDelegate *delegate);
    void apply(const FontDetailState &state);
    void setColors(const QColor &foreground, const QColor &background);
    /// Empties the search without reporting it.
    void clearSearch();
    /// Gives the keyboard to the search field, with all its text selected.
    void focusSearch();
    /// What hangs from the "more" button at the end of the bar; made anew when it is opened.
    std::function<QMenu *(QWidget *parent)> makeMenu;

Q_SIGNALS:
    /// By the user; the delegate is told next.
    void weightChosen(int weight);
    void searchChanged(const QString &query);
    /// The user is done with the search field: the characters take the keyboard.
    void searchLeft();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setUpNames();
    void connectParts();
    void connectWays();
    void valueChosen(BarDisplayControls::Kind kind, double value);
    void takeDirection();
    void layOut();
    void openMenu();

    FontDetailDelegate *m_delegate = nullptr;
    IconButton *m_back;
    IconButton *m_previous;
    IconButton *m_next;
    std::unique_ptr<BarDisplayControls> m_controls;
    SegmentedControl *m_stages;
    IconButton *m_inspector;
    IconButton *m_menuButton;
    BarSearch *m_search;
    QPointer<QMenu> m_menu;
    QString m_title;
    QRect m_titleRect;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
};

} // namespace lorva
