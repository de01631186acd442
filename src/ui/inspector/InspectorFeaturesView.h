// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"
#include "ui/inspector/InspectorFacts.h"

#include <QPointer>
#include <QWidget>

class QThreadPool;

namespace lorva {

class AxisRow;
class FeatureRow;
class FeatureTip;
class InstanceButton;
class QuietButton;

/// The features tab: axes and instances first, then the features by their groups.
///
/// Shows `state`, which it does not own, and changes it as the user asks; the state tells of that.
/// Thread: main.
class InspectorFeaturesView final : public QWidget
{
    Q_OBJECT
public:
    InspectorFeaturesView(InspectorFeaturesState &state, QThreadPool &pool, QWidget *parent);
    ~InspectorFeaturesView() override;

    /// Makes the rows anew for another face. `font`: what samples are set in, with the state's axis
    /// values. Null: there is no face, and nothing to say.
    void rebuild(const std::vector<FeatureNotes> &notes, const Font &font);
    /// Values only.
    void refresh();
    std::function<void()> onReset;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Band
    {
        QWidget *widget;
        int top;
        int height;
        /// Axes and features reach over the padding; captions do not.
        bool isInset;
    };

    void clear();
    void addBand(QWidget *widget, int height, bool isInset);
    void addCaption(const QString &text);
    void addAxes();
    void addFeatures(const std::vector<FeatureNotes> &notes);
    FeatureRow *addFeature(size_t index, const FeatureNotes &notes, const QString &group);
    void addEmptyNote();
    void placeBands();
    void placeReset();
    void openTip(FeatureRow *row);
    void closeTip();

    InspectorFeaturesState &m_state;
    QThreadPool &m_pool;
    Font m_font;
    std::vector<Band> m_bands;
    int m_bottom = 0;
    InstanceButton *m_instances = nullptr;
    std::vector<AxisRow *> m_axisRows;
    std::vector<FeatureRow *> m_featureRows;
    QuietButton *m_reset = nullptr;
    QPointer<FeatureTip> m_tip;
};

} // namespace lorva
