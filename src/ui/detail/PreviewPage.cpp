// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/PreviewPage.h"

#include "ui/preview/SpecimenImage.h"

#include <algorithm>

namespace lorva {

namespace {

/// File systems take 255 bytes.
constexpr qsizetype kMostNameBytes = 200;
constexpr double kMostLogoPixels = 2048;

/// The logo's shape in the text's colour, with no more pixels than a print of it needs.
QImage inkedLogo(const QImage &logo, const QColor &color)
{
    QImage shape = logo;
    if (std::max(logo.width(), logo.height()) > kMostLogoPixels)
        shape = logo.scaled(QSize(int(kMostLogoPixels), int(kMostLogoPixels)), Qt::KeepAspectRatio,
                            Qt::SmoothTransformation);
    shape.convertTo(QImage::Format_ARGB32_Premultiplied);
    shape.setDevicePixelRatio(1);
    QPainter painter(&shape);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(shape.rect(), color);
    return shape;
}

/// At the leading edge of the first line, centred on the cap height.
QRectF logoRect(const LayoutLine &line, QSizeF size, double capHeight)
{
    const double left = line.origin.x() + (line.isRightToLeft ? line.width - size.width() : 0);
    return {QPointF(left, line.origin.y() - (capHeight + size.height()) / 2), size};
}

bool isRefused(QChar c)
{
    return c.unicode() < u' ' || c.category() == QChar::Other_Control
        || c.category() == QChar::Other_Format || QStringView(u"/\\:*?\"<>|").contains(c);
}

/// To at most so many bytes, never within a character.
QString shortened(const QString &name, qsizetype bytes)
{
    QString result = name;
    while (result.toUtf8().size() > bytes) {
        const bool isPair = result.size() > 1 && result.back().isLowSurrogate();
        result.chop(isPair ? 2 : 1);
    }
    return result;
}

} // namespace

SpecimenPage previewPage(const DetailSpecimen &specimen, double width)
{
    SpecimenPage page;
    page.title = specimen.familyName + QLatin1Char(' ') + specimen.styleName;
    const Font &font = specimen.font;
    if (font.isNull() || !(width > 0))
        return page;
    TextLayoutOptions options;
    options.width = width;
    options.letterSpacing = specimen.letterSpacing * font.pointSize();
    QSizeF logo;
    if (specimen.logoImage) {
        logo = logoSize(specimen.logoImage->size(), font.capHeight(), specimen.logoSizeRatio);
        options.firstLineInset =
            logo.width() + std::max(0.0, specimen.logoSpacing * font.pointSize());
    }
    TextLayout layout(specimen.text, font, options);
    if (specimen.logoImage && !layout.lines().empty()) {
        page.pictures.push_back({inkedLogo(*specimen.logoImage, specimen.foreground),
                                 logoRect(layout.lines().front(), logo, font.capHeight())});
    }
    page.size = QSizeF(width, layout.size().height());
    page.texts.push_back({std::move(layout), {}, specimen.foreground});
    return page;
}

QString specimenFileName(const QString &familyName, const QString &styleName)
{
    // A name of many pages is cut before it is looked at.
    QString name =
        familyName.left(kMostNameBytes) + QLatin1Char(' ') + styleName.left(kMostNameBytes);
    std::replace_if(name.begin(), name.end(), isRefused, QChar(u'-'));
    name = shortened(name.simplified(), kMostNameBytes);
    const auto isEdge = [](QChar c) { return c == u'.' || c == u' '; };
    while (!name.isEmpty() && isEdge(name.front()))
        name.remove(0, 1);
    while (!name.isEmpty() && isEdge(name.back()))
        name.chop(1);
    return name.isEmpty() ? QStringLiteral("Specimen") : name;
}

} // namespace lorva
