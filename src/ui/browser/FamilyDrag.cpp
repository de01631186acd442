// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/FamilyDrag.h"

#include "ui/browser/FontCardContentView.h"
#include "ui/browser/FontCollectionItem.h"
#include "ui/FontFamilyPasteboard.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QLocale>
#include <QPainter>
#include <QSet>

#include <algorithm>

namespace lorva {

namespace {

constexpr char kUrisMimeType[] = "text/uri-list";
constexpr int kSheetWidth = 200;
constexpr int kSheetHeight = 96;
constexpr double kSheetRadius = 10;
/// Room around the sheets, for the badge and those behind.
constexpr int kOutset = 12;
constexpr int kSheetStep = 4;
constexpr int kMostSheets = 3;
constexpr int kBadgeHeight = 22;
constexpr double kEdgeAlpha = 0.18;
constexpr double kSheetOpacity = 0.94;

bool hasFile(const FontFamilyRecord &family)
{
    return std::ranges::any_of(
        family.styles, [](const FontStyleRecord &style) { return style.fileURL.has_value(); });
}

class FamilyMimeData final : public QMimeData
{
public:
    FamilyMimeData(const FontFamilySubset &families, const std::vector<int> &indices)
        : m_families(families)
        , m_indices(indices)
        , m_hasFiles(std::ranges::any_of(
              indices, [&](int index) { return hasFile(families[size_t(index)]); }))
    {
    }

    QStringList formats() const override
    {
        QStringList formats = QMimeData::formats();
        if (m_hasFiles)
            formats.append(QString::fromLatin1(kUrisMimeType));
        return formats;
    }
    bool hasFormat(const QString &format) const override { return formats().contains(format); }

protected:
    QVariant retrieveData(const QString &format, QMetaType type) const override
    {
        if (format != QLatin1String(kUrisMimeType))
            return QMimeData::retrieveData(format, type);
        QVariantList urls;
        for (const QUrl &url : fontFileUrls(m_families, m_indices))
            urls.append(url);
        return urls;
    }

private:
    const FontFamilySubset m_families;
    const std::vector<int> m_indices;
    const bool m_hasFiles;
};

QRectF sheetRect(int behind)
{
    const double shift = behind * kSheetStep;
    return {kOutset + shift, kOutset + shift, kSheetWidth, kSheetHeight};
}

void paintSheet(QPainter &painter, const QRectF &rect, const DragColors &colors)
{
    painter.setPen(withAlpha(colors.foreground, kEdgeAlpha));
    painter.setBrush(colors.background);
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), kSheetRadius, kSheetRadius);
}

void paintSpecimen(QPainter &painter, const QRectF &room, const FontCardContentView &card)
{
    const QPixmap specimen = card.grabSpecimen();
    if (specimen.isNull())
        return;
    QSizeF size = specimen.deviceIndependentSize();
    if (size.width() > room.width() || size.height() > room.height())
        size.scale(room.size(), Qt::KeepAspectRatio);
    QRectF place(QPointF(), size);
    place.moveCenter(room.center());
    painter.drawPixmap(place, specimen, QRectF(specimen.rect()));
}

void paintName(QPainter &painter, const QRectF &room, const QString &name, const DragColors &colors)
{
    const QFont font = interfaceFont(InterfaceSize::caption, InterfaceWeight::medium);
    painter.setFont(font);
    painter.setPen(withAlpha(colors.foreground, 0.5));
    painter.drawText(room, Qt::AlignCenter,
                     QFontMetricsF(font).elidedText(name, Qt::ElideRight, room.width()));
}

void paintBadge(QPainter &painter, int count, const DragColors &colors)
{
    const QFont font =
        interfaceFont(InterfaceSize::label, InterfaceWeight::semibold, Figures::tabular);
    const QString text = QLocale().toString(count);
    const double width =
        std::max<double>(kBadgeHeight, QFontMetricsF(font).horizontalAdvance(text) + spacing::k12);
    const QRectF front = sheetRect(0);
    const QRectF badge(front.right() - width + spacing::k8, front.top() - spacing::k8, width,
                       kBadgeHeight);
    painter.setPen(QPen(colors.background, 2));
    painter.setBrush(colors.foreground);
    painter.drawRoundedRect(badge, kBadgeHeight / 2.0, kBadgeHeight / 2.0);
    painter.setFont(font);
    painter.setPen(colors.background);
    painter.drawText(badge, Qt::AlignCenter, text);
}

/// Over an image the ground is transparent, and equal colours would show nothing.
DragColors visibleColors(const DragColors &colors)
{
    const bool isOpaque = colors.background.alpha() == 255;
    const QColor ground = isOpaque ? colors.background : contrastingNeutral(colors.foreground);
    return {controlColor(colors.foreground, ground), ground};
}

} // namespace

QList<QUrl> fontFileUrls(const FontFamilySubset &families, const std::vector<int> &indices)
{
    QList<QUrl> urls;
    QSet<FilePath> known;
    for (const int index : indices) {
        for (const FontStyleRecord &style : families[size_t(index)].styles) {
            if (!style.fileURL || known.contains(*style.fileURL))
                continue;
            known.insert(*style.fileURL);
            urls.append(QUrl::fromEncoded(style.fileURL->toUrl()));
        }
    }
    return urls;
}

std::unique_ptr<QMimeData> familyMimeData(const FontFamilySubset &families,
                                          const std::vector<int> &indices)
{
    QStringList names;
    for (const int index : indices)
        names.append(families[size_t(index)].familyName);
    auto data = std::make_unique<FamilyMimeData>(families, indices);
    const auto named = makeFontFamilyMimeData(names, {});
    for (const QString &format : named->formats())
        data->setData(format, named->data(format));
    return data;
}

QPixmap familyDragPixmap(const FontCollectionItem &item, int count, const DragColors &colors)
{
    const DragColors visible = visibleColors(colors);
    const double ratio = item.devicePixelRatioF();
    const QSizeF size(kSheetWidth + 2 * kOutset, kSheetHeight + 2 * kOutset);
    QPixmap pixmap((size * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setOpacity(kSheetOpacity);
    for (int behind = std::min(count, kMostSheets) - 1; behind >= 0; --behind)
        paintSheet(painter, sheetRect(behind), visible);
    const QRectF room =
        sheetRect(0).adjusted(spacing::k12, spacing::k8, -spacing::k12, -spacing::k8);
    paintSpecimen(painter, room.adjusted(0, 0, 0, -spacing::k20), item.contentView());
    paintName(painter, QRectF(room).adjusted(0, room.height() - spacing::k16, 0, 0),
              item.familyName(), visible);
    if (count > 1)
        paintBadge(painter, count, visible);
    return pixmap;
}

} // namespace lorva
