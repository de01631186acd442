// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/PreviewPage.h"

#include "ui/detail/PreviewPlacement.h"
#include "ui/preview/SpecimenLogo.h"

#include <algorithm>

namespace lorva {

namespace {

/// File systems take 255 bytes.
constexpr qsizetype kMostNameBytes = 200;
constexpr int kMostLogoPixels = 2048;

/// With no more pixels than a print of it needs.
QImage printedLogo(const QImage &logo, const QColor &color)
{
    constexpr QSize kMost(kMostLogoPixels, kMostLogoPixels);
    const bool isLarge = logo.width() > kMostLogoPixels || logo.height() > kMostLogoPixels;
    return tintedLogo(
        isLarge ? logo.scaled(kMost, Qt::KeepAspectRatio, Qt::SmoothTransformation) : logo, color);
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
    if (specimen.font.isNull() || !(width > 0))
        return page;
    const PreviewPlacement placed = placePreview(specimen.text, specimen, width);
    if (specimen.logoImage && !placed.logoRect.isNull())
        page.pictures.push_back(
            {printedLogo(*specimen.logoImage, specimen.foreground), placed.logoRect});
    page.size = QSizeF(width, placed.height);
    page.texts.push_back({placed.carets.layout(), placed.origin, specimen.foreground});
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
    return name.isEmpty() ? QCoreApplication::translate("PreviewPage", "Specimen") : name;
}

} // namespace lorva
