// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/DisplayRecords.h"

#include <QColor>
#include <QWidget>

#include <functional>

namespace lorva {

class PointSlider;
class SegmentedControl;

/// The bar over the cards: the title at the leading edge; specimen size and view mode at the
/// trailing one.
///
/// It takes the colours of the pane; its controls stay visible on any of them.
/// Thread: main. Units: points.
class BrowserTopBar final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kHeight = 52;

    explicit BrowserTopBar(QWidget *parent);

    std::function<void(double pointSize)> onPointSizeChanged;
    std::function<void(ViewMode mode)> onViewModeChanged;

    void apply(const QString &title, double pointSize, ViewMode mode);
    void setColors(const QColor &foreground, const QColor &background);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();

    PointSlider *m_size;
    SegmentedControl *m_mode;
    QString m_title;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
    /// The letters beside the slider, small and large.
    QRect m_smallLetter;
    QRect m_largeLetter;
    /// Set while the bar itself writes its controls.
    bool m_suppressCallbacks = false;
};

} // namespace lorva
