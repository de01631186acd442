// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserTopBar.h"

#include "model/LorvaAppModel.h"
#include "ui/style/Hairline.h"
#include "ui/style/Palette.h"
#include "ui/style/PointSlider.h"
#include "ui/style/SegmentedControl.h"
#include "ui/style/Style.h"

#include <QPainter>
#include <QStyle>

namespace lorva {

namespace {

constexpr double kTitleAlpha = 0.5;
constexpr double kLetterAlpha = 0.6;
constexpr int kGroupGap = 22;
constexpr int kSliderWidth = 104;
constexpr int kLetterWidth = spacing::k16;

} // namespace

BrowserTopBar::BrowserTopBar(QWidget *parent)
    : QWidget(parent)
    , m_size(new PointSlider(this))
    , m_mode(new SegmentedControl(this))
{
    setObjectName(QStringLiteral("BrowserTopBar"));
    m_size->setObjectName(QStringLiteral("pointSizeSlider"));
    m_size->setAccessibleName(tr("Specimen size"));
    m_size->setRange(int(LorvaAppModel::kMinimumPointSize), int(LorvaAppModel::kMaximumPointSize));
    m_mode->setObjectName(QStringLiteral("viewModeControl"));
    m_mode->setAccessibleName(tr("View"));
    m_mode->addSegment(QStringLiteral("square.grid.2x2"), tr("Grid"));
    m_mode->addSegment(QStringLiteral("list.bullet"), tr("List"));
    connect(m_size, &QSlider::valueChanged, this, [this](int value) {
        if (!m_suppressCallbacks && onPointSizeChanged)
            onPointSizeChanged(value);
    });
    connect(m_mode, &SegmentedControl::activated, this, [this](int index) {
        if (onViewModeChanged)
            onViewModeChanged(kAllViewModes[index]);
    });
}

void BrowserTopBar::apply(const QString &title, double pointSize, ViewMode mode)
{
    m_suppressCallbacks = true;
    m_size->setValue(qRound(pointSize));
    m_mode->setCurrentIndex(int(mode));
    m_suppressCallbacks = false;
    if (title == m_title)
        return;
    m_title = title;
    update();
}

void BrowserTopBar::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    m_size->setColors(foreground, background);
    m_mode->setColors(foreground, background);
    update();
}

void BrowserTopBar::resizeEvent(QResizeEvent *)
{
    layOut();
}

void BrowserTopBar::layOut()
{
    int right = width() - spacing::k24;
    const auto place = [&](int itemWidth, int itemHeight) {
        right -= itemWidth;
        const QRect logical(right, (kHeight - itemHeight) / 2, itemWidth, itemHeight);
        return QStyle::visualRect(layoutDirection(), rect(), logical);
    };
    const QSize mode = m_mode->sizeHint();
    m_mode->setGeometry(place(mode.width(), mode.height()));
    right -= kGroupGap;
    m_largeLetter = place(kLetterWidth, kHeight);
    right -= spacing::k4;
    m_size->setGeometry(place(kSliderWidth, m_size->sizeHint().height()));
    right -= spacing::k4;
    m_smallLetter = place(kLetterWidth, kHeight);
    update();
}

void BrowserTopBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QFont titleFont = interfaceFont(InterfaceSize::title, InterfaceWeight::semibold);
    painter.setFont(titleFont);
    painter.setPen(withAlpha(m_foreground, kTitleAlpha));
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const int room =
        (mirrored ? width() - m_smallLetter.right() : m_smallLetter.left()) - spacing::k24;
    const QRect logical(spacing::k24, 0, std::max(room - kGroupGap, 0), kHeight);
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), logical),
                     int(Qt::AlignVCenter | Qt::AlignLeading),
                     QFontMetrics(titleFont).elidedText(m_title, Qt::ElideRight, logical.width()));

    painter.setPen(withAlpha(controlColor(m_foreground, m_background), kLetterAlpha));
    painter.setFont(interfaceFont(InterfaceSize::tag));
    painter.drawText(m_smallLetter, Qt::AlignCenter, QStringLiteral("A"));
    painter.setFont(interfaceFont(InterfaceSize::title));
    painter.drawText(m_largeLetter, Qt::AlignCenter, QStringLiteral("A"));
    drawHairline(painter, rect(), Qt::BottomEdge, hairlineColor(m_foreground, m_background));
}

} // namespace lorva
