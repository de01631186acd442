// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

#include <vector>

class QAbstractButton;
class QButtonGroup;

namespace lorva {

/// A row of segments of which one is chosen: 24 points high, in any foreground and background
/// colour.
///
/// One stop of the tab key; the arrow keys choose. Each segment is a radio button to assistive
/// technology. Thread: main.
class SegmentedControl final : public QWidget
{
    Q_OBJECT
public:
    explicit SegmentedControl(QWidget *parent = nullptr);

    /// Adds a segment that shows a symbol (see symbolImage()); `label` is its tool tip and its name
    /// for assistive technology. Gives its index.
    int addSegment(const QString &symbol, const QString &label);
    /// Adds a segment that shows a word; all segments are as wide as the widest, unless natural
    /// widths are set. Gives its index.
    int addTextSegment(const QString &text);
    /// Each segment as wide as its own word, the last one narrower where the control is; off in the
    /// beginning.
    void setNaturalWidths(bool isNatural);
    /// What a word takes in a control of natural widths; long ones are cut.
    static int textSegmentWidth(const QString &text);
    /// Takes all segments out.
    void clear();
    /// −1 while nothing is chosen.
    int currentIndex() const;
    /// Chooses without activated(); an index that does not exist is ignored.
    void setCurrentIndex(int index);
    void setColors(const QColor &foreground, const QColor &background);
    /// Gives the keyboard to the chosen segment.
    void focusCurrent();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The user chose a segment, which may be the one already chosen.
    void activated(int index);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    class Segment;

    void chooseBeside(QAbstractButton *segment, int step);
    int append(Segment *segment);
    /// What each segment's own text needs; one width for all, unless they have their own; and
    /// what they get in the room that there is.
    std::vector<int> wantedWidths() const;
    std::vector<int> segmentWidths() const;
    std::vector<int> placedWidths() const;
    void placeSegments();

    QButtonGroup *m_group = nullptr;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
    bool m_hasNaturalWidths = false;
};

} // namespace lorva
