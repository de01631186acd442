// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/InspectorFeaturesView.h"

#include "ui/inspector/AxisRow.h"
#include "ui/inspector/FeatureRow.h"
#include "ui/inspector/FeatureTip.h"
#include "ui/inspector/InspectorLook.h"
#include "ui/inspector/InstanceButton.h"
#include "ui/inspector/QuietButton.h"

#include <QStyle>

namespace lorva {

namespace {

constexpr int kTop = spacing::k16;
constexpr int kBottom = spacing::k24;
constexpr int kEmptyTitle = spacing::k20;
/// Three lines.
constexpr int kEmptyText = spacing::k48;

} // namespace

InspectorFeaturesView::InspectorFeaturesView(InspectorFeaturesState &state, QThreadPool &pool,
                                             QWidget *parent)
    : QWidget(parent)
    , m_state(state)
    , m_pool(pool)
{
    setObjectName(QStringLiteral("InspectorFeaturesView"));
}

InspectorFeaturesView::~InspectorFeaturesView()
{
    delete m_tip;
}

void InspectorFeaturesView::clear()
{
    closeTip();
    for (const Band &band : m_bands)
        delete band.widget;
    delete m_reset;
    m_reset = nullptr;
    m_instances = nullptr;
    m_bands.clear();
    m_axisRows.clear();
    m_featureRows.clear();
    m_bottom = kTop;
}

void InspectorFeaturesView::rebuild(const std::vector<FeatureNotes> &notes, const Font &font)
{
    clear();
    m_font = font;
    if (!font.isNull()) {
        m_reset = new QuietButton(tr("Reset"), this);
        m_reset->setObjectName(QStringLiteral("ResetButton"));
        m_reset->setAccessibleName(tr("Reset Features and Axes"));
        connect(m_reset, &QAbstractButton::clicked, this, [this] {
            if (onReset)
                onReset();
        });
        addAxes();
        addFeatures(notes);
    }
    setMinimumHeight(m_bottom + kBottom);
    for (const Band &band : m_bands)
        band.widget->show();
    placeBands();
    refresh();
}

void InspectorFeaturesView::addBand(QWidget *widget, int height, bool isInset)
{
    m_bands.push_back({widget, m_bottom, height, isInset});
    m_bottom += height;
}

void InspectorFeaturesView::addCaption(const QString &text)
{
    if (!m_bands.empty())
        m_bottom += kInspectorGap;
    addBand(new InspectorLabel(text, InspectorLabel::Kind::caption, this), kInspectorCaption, true);
}

void InspectorFeaturesView::addAxes()
{
    if (m_state.axes.empty())
        return;
    //: The variation axes of a font, such as Weight.
    addCaption(tr("Axes"));
    if (!m_state.instances.empty()) {
        std::vector<QString> names;
        for (const NamedInstance &instance : m_state.instances)
            names.push_back(instance.name);
        m_instances = new InstanceButton(std::move(names), this);
        m_instances->onChosen = [this](size_t index) { m_state.applyInstance(index); };
        addBand(m_instances, kInspectorRow, false);
    }
    for (size_t i = 0; i < m_state.axes.size(); ++i) {
        auto *row = new AxisRow(m_state.axes[i], this);
        row->onValue = [this, i](double value) { m_state.setAxis(i, value); };
        m_axisRows.push_back(row);
        addBand(row, AxisRow::kHeight, false);
    }
}

void InspectorFeaturesView::addFeatures(const std::vector<FeatureNotes> &notes)
{
    m_featureRows.resize(m_state.features.size(), nullptr);
    for (const FeatureGroup &group : featureGroups(m_state.features)) {
        addCaption(group.name);
        for (const size_t index : group.indices) {
            const FeatureNotes known = index < notes.size()
                ? notes[index]
                : FeatureNotes{m_state.features[index].name, 0, {}, {}};
            m_featureRows[index] = addFeature(index, known, group.name);
        }
    }
    if (m_state.features.empty())
        addEmptyNote();
}

FeatureRow *InspectorFeaturesView::addFeature(size_t index, const FeatureNotes &notes,
                                              const QString &group)
{
    auto *row = new FeatureRow(m_state.features[index], notes, group.left(kLongestShownName), this);
    row->onToggled = [this, index](bool isOn) { m_state.setFeature(index, isOn); };
    row->onTipWanted = [this, row] { openTip(row); };
    row->onTipUnwanted = [this] { closeTip(); };
    addBand(row, kInspectorRow, false);
    return row;
}

void InspectorFeaturesView::addEmptyNote()
{
    m_bottom += m_bands.empty() ? 4 * spacing::k48 : spacing::k40;
    auto *title =
        new InspectorLabel(tr("No OpenType Features"), InspectorLabel::Kind::emptyTitle, this);
    title->setObjectName(QStringLiteral("NoFeaturesTitle"));
    addBand(title, kEmptyTitle, true);
    auto *text = new InspectorLabel(tr("This font doesn't expose any OpenType features."),
                                    InspectorLabel::Kind::emptyText, this);
    text->setObjectName(QStringLiteral("NoFeaturesText"));
    addBand(text, kEmptyText, true);
}

void InspectorFeaturesView::resizeEvent(QResizeEvent *)
{
    placeBands();
}

void InspectorFeaturesView::placeBands()
{
    for (const Band &band : m_bands) {
        const int inset = band.isInset ? kInspectorPadding : 0;
        band.widget->setGeometry(inset, band.top, width() - 2 * inset, band.height);
    }
    placeReset();
}

/// In the line of the first caption, over the ends of the rows.
void InspectorFeaturesView::placeReset()
{
    if (!m_reset || m_bands.empty())
        return;
    const QSize size = m_reset->sizeHint();
    const QRect place(QPoint(width() - kInspectorPadding + QuietButton::kSideRoom - size.width(),
                             m_bands.front().top + (kInspectorCaption - size.height()) / 2),
                      size);
    m_reset->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
    m_reset->raise();
}

void InspectorFeaturesView::refresh()
{
    for (size_t i = 0; i < std::min(m_axisRows.size(), m_state.axes.size()); ++i)
        m_axisRows[i]->setValue(m_state.axes[i].currentValue);
    for (size_t i = 0; i < std::min(m_featureRows.size(), m_state.features.size()); ++i) {
        if (m_featureRows[i])
            m_featureRows[i]->setOn(m_state.features[i].isEnabled);
    }
    if (m_instances)
        m_instances->setCurrent(m_state.fittingInstance());
    if (m_reset)
        m_reset->setVisible(m_state.areFeaturesChanged() || !m_state.changedAxes().empty());
}

void InspectorFeaturesView::openTip(FeatureRow *row)
{
    closeTip();
    if (row->window()->isVisible())
        m_tip = FeatureTip::open(row, row->notes(), m_font.withVariations(m_state.axisValues()),
                                 m_pool);
}

void InspectorFeaturesView::closeTip()
{
    if (m_tip)
        m_tip->close();
    m_tip = nullptr;
}

} // namespace lorva
