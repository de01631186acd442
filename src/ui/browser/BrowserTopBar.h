// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/FontBrowserState.h"

#include <QColor>
#include <QPointer>
#include <QWidget>

#include <functional>

namespace lorva {

class ColorModeChips;
class DisplayPanel;
class IconButton;
class LineField;
class MoreSlidersPanel;
class Popover;
class SegmentedControl;
class SpecimenSlider;

/// The bar over the cards: the title at the leading edge, what sets the specimens' look and the
/// search field at the trailing one.
///
/// It takes the colours of the pane; its controls stay visible on any of them. What apply() brings
/// is never reported back. Panels are made when they are opened. Thread: main. Units: points.
class BrowserTopBar final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kHeight = 52;

    enum class Panel { colors, backgroundImage, logo, sampleText };

    explicit BrowserTopBar(QWidget *parent);
    ~BrowserTopBar() override;

    /// Does not own it; it must outlive this bar.
    void setDelegate(FontBrowserDelegate *delegate) { m_delegate = delegate; }
    void apply(const FontBrowserState &state);
    /// The pane's; the background is transparent over an image.
    void setColors(const QColor &foreground, const QColor &background);

    /// Gives the keyboard to the search field, with all its text selected.
    void focusSearch();
    /// Opens the panel at its control; does nothing while it is open.
    void openPanel(Panel panel);

    /// The user is done with the search field: the cards take the keyboard.
    std::function<void()> onSearchLeft;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setUpNames();
    void connectSlider(SpecimenSlider *slider);
    void connectParts();
    void layOut();
    void openMore();
    void openAt(QWidget *content, QWidget *anchor, const QString &name);
    void showSearchQuery(const QString &query);
    void leaveSearch() const;
    bool searchKeyPressed(int key);
    QWidget *anchorOf(Panel panel) const;
    DisplayPanel *makePanel(Panel panel);
    /// The pane's background, or, over an image, what the foreground is readable on.
    QColor ground() const;

    FontBrowserDelegate *m_delegate = nullptr;
    SpecimenSlider *m_size;
    SpecimenSlider *m_weight;
    IconButton *m_more;
    ColorModeChips *m_chips;
    IconButton *m_logo;
    IconButton *m_sampleText;
    SegmentedControl *m_mode;
    LineField *m_search;
    QPointer<Popover> m_popover;
    QPointer<DisplayPanel> m_panel;
    QPointer<MoreSlidersPanel> m_morePanel;
    Panel m_openPanel = Panel::colors;
    DisplayControlsState m_display;
    double m_pointSize = 0;
    double m_fontWeight = 0;
    QString m_title;
    QRect m_titleRect;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
    /// Set while the bar itself writes the search field.
    bool m_suppressSearchUpdates = false;
};

} // namespace lorva
