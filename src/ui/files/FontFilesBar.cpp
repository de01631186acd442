// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/files/FontFilesBar.h"

#include "ui/browser/BarParts.h"
#include "ui/browser/SpecimenSlider.h"
#include "ui/browser/TopBarLayout.h"
#include "ui/style/IconButton.h"
#include "ui/style/Palette.h"
#include "ui/style/SegmentedControl.h"

#include <QEvent>
#include <QPainter>

#include <utility>

namespace lorva {

namespace {

/// With less room for the title the slider goes.
constexpr int kRoomForTitle = 120;

} // namespace

FontFilesBar::FontFilesBar(QWidget *parent)
    : QWidget(parent)
    , m_size(new SpecimenSlider(SpecimenSlider::Kind::detailSize, this))
    , m_stages(new SegmentedControl(this))
    , m_inspector(new IconButton(QStringLiteral("sidebar.right"), tr("Inspector"), this))
{
    setObjectName(QStringLiteral("FontFilesBar"));
    m_size->setObjectName(QStringLiteral("fontFilesSize"));
    m_stages->setObjectName(QStringLiteral("fontFilesStages"));
    m_stages->setAccessibleName(tr("Preview"));
    m_stages->addSegment(QStringLiteral("textformat"), tr("Text"));
    m_stages->addSegment(QStringLiteral("text.line.falling"), tr("Waterfall"));
    m_stages->setCurrentIndex(0);
    m_inspector->setObjectName(QStringLiteral("fontFilesInspector"));
    m_inspector->setCheckable(true);
    connect(m_size, &SpecimenSlider::valueChosen, this, &FontFilesBar::pointSizeChosen);
    connect(m_stages, &SegmentedControl::activated, this, [this](int index) {
        Q_EMIT stageChosen(index == 0 ? DetailStage::text : DetailStage::waterfall);
    });
    connect(m_inspector, &QAbstractButton::clicked, this, &FontFilesBar::inspectorToggled);
    takeColors();
}

void FontFilesBar::setTitle(const QString &title)
{
    if (std::exchange(m_title, title) != title)
        update();
}

void FontFilesBar::setPointSize(double pointSize)
{
    m_size->setValue(pointSize);
}

void FontFilesBar::setStage(DetailStage stage)
{
    m_stages->setCurrentIndex(stage == DetailStage::waterfall ? 1 : 0);
}

void FontFilesBar::setInspectorShown(bool isShown)
{
    m_inspector->setChecked(isShown);
}

void FontFilesBar::setControlsShown(bool areShown)
{
    if (std::exchange(m_areControlsShown, areShown) != areShown)
        layOut();
}

void FontFilesBar::layOut()
{
    BarRow row(width(), layoutDirection());
    const QRect inspector = row.place(m_inspector->sizeHint(), 0, barspace::kButtonRoom);
    const QRect stages = row.place(m_stages->sizeHint(), barspace::kGroupGap);
    placePart(m_inspector, m_areControlsShown ? std::optional(inspector) : std::nullopt);
    placePart(m_stages, m_areControlsShown ? std::optional(stages) : std::nullopt);
    BarRow withSlider = row;
    const QRect slider = withSlider.place(m_size->sizeHint(), barspace::kGroupGap);
    const bool hasSlider = m_areControlsShown
        && withSlider.restWidth(barspace::kPadding, barspace::kGroupGap) >= kRoomForTitle;
    placePart(m_size, hasSlider ? std::optional(slider) : std::nullopt);
    m_titleRect = (hasSlider ? withSlider : row).rest(barspace::kPadding, barspace::kGroupGap);
    update();
}

void FontFilesBar::takeColors()
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    m_size->setColors(colors.text, colors.ground);
    m_stages->setColors(colors.text, colors.ground);
    m_inspector->setColors(colors.text, colors.ground);
    update();
}

void FontFilesBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColors();
    if (event->type() == QEvent::LayoutDirectionChange) {
        m_inspector->setSymbol(isRightToLeft() ? QStringLiteral("sidebar.left")
                                               : QStringLiteral("sidebar.right"));
        layOut();
    }
}

void FontFilesBar::paintEvent(QPaintEvent *)
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    QPainter painter(this);
    painter.fillRect(rect(), colors.ground);
    paintTopBar(painter, *this, m_titleRect, m_title, {colors.text, colors.ground});
}

void FontFilesBar::resizeEvent(QResizeEvent *)
{
    layOut();
}

} // namespace lorva
