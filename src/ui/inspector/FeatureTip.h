// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/RunThen.h"
#include "ui/inspector/FeatureSample.h"
#include "ui/inspector/InspectorFacts.h"
#include "ui/style/SoftShadow.h"

#include <QPointer>
#include <QWidget>

namespace lorva {

/// A small card beside a feature's row: its name and tag, what the font says of it, and a text
/// without and with it.
///
/// Lies in the row's window, lets presses through and takes no focus. Ends with the row, with
/// scrolling, or with close(); deletes itself. The sample is painted on `pool` and comes when it is
/// ready. Thread: main.
class FeatureTip final : public QWidget
{
    Q_OBJECT
public:
    static FeatureTip *open(QWidget *row, const FeatureNotes &notes, const Font &font,
                            QThreadPool &pool);
    void close();
    /// The sample has come, or there is none.
    bool isSettled() const { return m_isSettled; }
    const FeatureSampleImages &sample() const { return m_sample; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    FeatureTip(QWidget *row, const FeatureNotes &notes);
    void paintSample(const Font &font, QThreadPool &pool);
    void place();
    int titleHeight() const;
    int sampleHeight() const;
    void paintText(QPainter &painter, const QRect &inside) const;
    void drawSample(QPainter &painter, const QRectF &band) const;

    QPointer<QWidget> m_row;
    const FeatureNotes m_notes;
    /// What is said below the sample.
    const QString m_explanation;
    FeatureSampleImages m_sample;
    SoftShadow m_shadow;
    /// In points of this widget, whose margin is the shadow's.
    QRect m_card;
    bool m_isSettled = false;
    bool m_isClosed = false;
};

} // namespace lorva
