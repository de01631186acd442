// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/BarDisplayControls.h"
#include "ui/browser/FontBrowserState.h"

#include <QColor>
#include <QWidget>

#include <functional>
#include <memory>

namespace lorva {

class BarSearch;
class SegmentedControl;

/// The bar over the cards: the title at the leading edge, what sets the specimens' look and the
/// search field at the trailing one.
///
/// It takes the colours of the pane; its controls stay visible on any of them. What apply() brings
/// is never reported back. Thread: main. Units: points.
class BrowserTopBar final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kHeight = 52;

    using Panel = BarDisplayControls::Panel;

    explicit BrowserTopBar(QWidget *parent);
    ~BrowserTopBar() override;

    /// Does not own it; it must outlive this bar.
    void setDelegate(FontBrowserDelegate *delegate);
    void apply(const FontBrowserState &state);
    /// The pane's; the background is transparent over an image.
    void setColors(const QColor &foreground, const QColor &background);

    /// Gives the keyboard to the search field, with all its text selected.
    void focusSearch();
    /// Opens the panel at its control; does nothing while it is open.
    void openPanel(Panel panel) { m_controls->openPanel(panel); }

    /// The user is done with the search field: the cards take the keyboard.
    std::function<void()> onSearchLeft;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectParts();
    void layOut();

    FontBrowserDelegate *m_delegate = nullptr;
    std::unique_ptr<BarDisplayControls> m_controls;
    IconButton *m_sampleText;
    SegmentedControl *m_mode;
    BarSearch *m_search;
    QString m_title;
    QRect m_titleRect;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
};

} // namespace lorva
