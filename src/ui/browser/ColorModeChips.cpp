// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/browser/ColorModeChips.h"

#include "ui/display/BackgroundImages.h"
#include "ui/style/ColorChip.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QStyle>

#include <utility>

namespace lorva {

namespace {

/// From the left edge of a chip to that of the next: 18 points of disc, 9 apart.
constexpr int kPitch = 27;
constexpr int kChipSide = 26;
/// Of the picture on a chip; enough for a threefold screen.
constexpr int kThumbnailPx = 54;

bool hasPanel(ColorMode mode)
{
    return mode == ColorMode::custom || mode == ColorMode::image;
}

} // namespace

ColorModeChips::ColorModeChips(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    const std::array labels{tr("White"), tr("Black"), tr("Custom Colors"), tr("Background Image")};
    const std::array names{"whiteChip", "blackChip", "customChip", "imageChip"};
    for (const ColorMode mode : kAllColorModes) {
        auto *chip = new ColorChip(labels[size_t(mode)], this);
        chip->setObjectName(QLatin1String(names[size_t(mode)]));
        connect(chip, &QAbstractButton::clicked, this, [this, mode] { choose(mode); });
        if (hasPanel(mode))
            chip->installEventFilter(this);
        m_chips[size_t(mode)] = chip;
    }
    m_chips[size_t(ColorMode::white)]->setChipColors(Qt::white, Qt::white);
    m_chips[size_t(ColorMode::black)]->setChipColors(Qt::black, Qt::black);
    setValues(m_values);
}

void ColorModeChips::setValues(const DisplayValues &values, const QImage &userImage)
{
    m_values = values;
    m_userImage = userImage;
    m_chips[size_t(ColorMode::custom)]->setChipColors(QColor(values.customForegroundColorHex),
                                                      QColor(values.customBackgroundColorHex));
    showChosen();
    if (!m_shownImageID.isNull())
        showImage();
}

void ColorModeChips::setColors(const QColor &foreground, const QColor &background)
{
    for (ColorChip *chip : m_chips)
        chip->setColors(foreground, background);
}

QWidget *ColorModeChips::chip(ColorMode mode) const
{
    return m_chips[size_t(mode)];
}

QSize ColorModeChips::sizeHint() const
{
    return QSize(kPitch * (int(m_chips.size()) - 1) + kChipSide, kChipSide);
}

void ColorModeChips::showChosen()
{
    m_chips[size_t(m_values.colorMode)]->setChecked(true);
}

/// Drawing a picture can wait until the chip is seen, and is done once: every key of a search
/// brings a state.
void ColorModeChips::showImage()
{
    if (m_values.backgroundImageUserFilename && !m_userImage.isNull()) {
        if (std::exchange(m_shownImageID, *m_values.backgroundImageUserFilename)
            != *m_values.backgroundImageUserFilename)
            m_chips[size_t(ColorMode::image)]->setChipImage(m_userImage);
        return;
    }
    QString id = m_values.backgroundImageID.value_or(QString());
    if (backgroundImageName(id).isEmpty())
        id = QLatin1String(builtInBackgroundImages().front().id);
    if (std::exchange(m_shownImageID, id) == id)
        return;
    const QImage image = drawBackgroundImage(id, {kThumbnailPx, kThumbnailPx});
    m_chips[size_t(ColorMode::image)]->setChipImage(image);
}

void ColorModeChips::choose(ColorMode mode)
{
    const bool isChosen = mode == m_values.colorMode;
    const bool hasImage = m_values.backgroundImageID || m_values.backgroundImageUserFilename;
    if (isChosen || (mode == ColorMode::image && !hasImage))
        wantPanel(mode);
    else
        Q_EMIT modeChosen(mode);
    showChosen();
}

void ColorModeChips::wantPanel(ColorMode mode)
{
    if (!hasPanel(mode))
        return;
    // Later: the arrow keys give the chip the focus only after they have pressed it.
    QMetaObject::invokeMethod(
        this, [this, mode] { Q_EMIT panelWanted(mode); }, Qt::QueuedConnection);
}

bool ColorModeChips::eventFilter(QObject *watched, QEvent *event)
{
    const ColorMode mode =
        watched == chip(ColorMode::custom) ? ColorMode::custom : ColorMode::image;
    if (event->type() == QEvent::ContextMenu) {
        wantPanel(mode);
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Down && key->modifiers().testFlag(Qt::AltModifier)) {
            wantPanel(mode);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ColorModeChips::paintEvent(QPaintEvent *)
{
    if (m_shownImageID.isNull())
        showImage();
}

void ColorModeChips::resizeEvent(QResizeEvent *)
{
    for (size_t i = 0; i < m_chips.size(); ++i) {
        const QRect logical(int(i) * kPitch, (height() - kChipSide) / 2, kChipSide, kChipSide);
        m_chips[i]->setGeometry(QStyle::visualRect(layoutDirection(), rect(), logical));
    }
}

} // namespace lorva
