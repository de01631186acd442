// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/TextInk.h"

#include "ui/style/DeviceSpace.h"

#include <QLinearGradient>

namespace lorva {

namespace {

constexpr double kFadeWidth = 48;
/// Rounding moves ends by so much.
constexpr double kSlack = 0.5;

} // namespace

TextInk::TextInk(SpecimenPage::Text text, const QRectF &room)
    : m_text(std::move(text))
    , m_room(room)
{
}

void TextInk::letGo()
{
    m_canvas.reset();
    m_image = {};
}

/// From full at one abscissa to nothing at the other, and beyond.
void TextInk::fade(double from, double to)
{
    QImage &image = m_image.image;
    const double ratio = image.devicePixelRatio();
    const double left = m_image.devicePosition.x() / ratio;
    QLinearGradient gradient(from - left, 0, to - left, 0);
    gradient.setColorAt(0, Qt::black);
    gradient.setColorAt(1, Qt::transparent);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(QRectF(QPointF(0, 0), QSizeF(image.size()) / ratio), gradient);
}

void TextInk::draw(QPainter &painter, const SpecimenCanvas &canvas)
{
    if (m_canvas != canvas) {
        m_canvas = canvas;
        Specimen specimen;
        specimen.layout = m_text.layout;
        specimen.origin = m_text.origin;
        specimen.inkBounds = m_text.layout.inkBounds();
        if (!specimen.inkBounds.isNull())
            specimen.inkBounds.translate(m_text.origin);
        FontPreviewConfiguration configuration;
        configuration.textColor = m_text.color;
        m_image = paintSpecimen(specimen, configuration, canvas);
        const double right = m_text.origin.x() + m_text.layout.size().width();
        if (!m_image.image.isNull() && right > m_room.right() + kSlack)
            fade(m_room.right() - kFadeWidth, m_room.right());
        if (!m_image.image.isNull() && m_text.origin.x() < m_room.left() - kSlack)
            fade(m_room.left() + kFadeWidth, m_room.left());
    }
    DeviceSpace(painter).drawImage({}, m_image.devicePosition, m_image.image);
}

} // namespace lorva
