// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "FontTrials.h"

#include "platform/FallbackFontLocator.h"
#include "text/CharacterSet.h"
#include "text/color/ColorGlyphs.h"
#include "text/FaceInformation.h"
#include "text/FontFallback.h"
#include "text/FontFeatures.h"
#include "text/GlyphNames.h"
#include "text/GlyphPainter.h"
#include "text/TextCarets.h"

#include <QPainter>
#include <QPicture>

namespace lorva {

namespace {

/// Glyphs, features, palettes beyond these take time and reach no new code.
constexpr quint32 kGlyphsTried = 24;
constexpr size_t kFeaturesTried = 6;
constexpr int kPalettesTried = 3;
/// No face of a fuzzer has more than 65,535, and their names are alike.
constexpr int kNamesTried = 300;

const std::vector<QString> &texts()
{
    static const std::vector<QString> all{
        QStringLiteral("Aa 123 office AVATAR"),
        QString::fromUtf8("abc \u05D0\u05D1\u05B8 (\u0627\u0644\u0633\u0644\u0627\u0645) 12"),
        QString::fromUtf8("\u0915\u094D\u0937\u093F \u0E01\u0E47 \uAC01 \u6C38 e\u0301\u0302"),
        QString::fromUtf8("\U0001F600\u2764\uFE0F \U0001F468\u200D\U0001F469\u200D\U0001F467\r\n"
                          "AB\u00ADCD\tEF")};
    return all;
}

TextLayoutOptions narrow(LineBreakMode mode)
{
    TextLayoutOptions options;
    options.width = 90;
    options.lineBreakMode = mode;
    options.maximumLines = 3;
    return options;
}

void paintOnImage(const TextLayout &layout, double ratio)
{
    QImage image(QSize(100, 60) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    GlyphPainter::paint(image, layout, QPointF(5, 5), QColor(200, 30, 30, 180));
}

void paintAsVectors(const TextLayout &layout)
{
    QPicture picture;
    QPainter painter(&picture);
    GlyphPainter::paint(painter, layout, QPointF(5, 5), Qt::black);
}

void setTexts(const Font &font)
{
    for (const QString &text : texts()) {
        for (const LineBreakMode mode : {LineBreakMode::wordWrap, LineBreakMode::truncateTail}) {
            const TextLayout layout(text, font, narrow(mode));
            layout.inkBounds();
            paintOnImage(layout, 1);
        }
    }
}

void tryTexts(const std::shared_ptr<const FontFace> &face)
{
    const Font font(face, 20);
    font.capHeight();
    setTexts(font);
}

void tryVariations(const std::shared_ptr<const FontFace> &face)
{
    std::vector<VariationSetting> highest;
    std::vector<VariationSetting> between;
    for (const VariationAxis &axis : face->axes()) {
        face->axis(axis.tag);
        highest.push_back({axis.tag, axis.maxValue});
        between.push_back({axis.tag, (axis.minValue * 2 + axis.defaultValue) / 3});
    }
    for (const NamedInstance &instance : face->namedInstances())
        between.insert(between.end(), instance.coordinates.begin(), instance.coordinates.end());
    for (const auto &settings : {highest, between}) {
        face->metricsAt(settings);
        const Font font(face, 20, settings, {{fontTag('s', 'm', 'c', 'p'), 1}});
        font.xHeight();
        setTexts(font);
    }
}

/// Of the first glyphs, whether or not a text leads to them.
void paintGlyphs(const Font &font)
{
    ColorGlyphs glyphs(font);
    QImage image(80, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPicture picture;
    QPainter onImage(&image);
    QPainter asVectors(&picture);
    onImage.translate(20, 50);
    asVectors.translate(20, 50);
    for (quint32 glyph = 0; glyph < kGlyphsTried; ++glyph) {
        if (!glyphs.has(glyph))
            continue;
        glyphs.bounds(glyph);
        glyphs.paint(onImage, glyph, Qt::darkGreen);
        glyphs.paint(asVectors, glyph, Qt::darkGreen);
    }
}

void tryColors(const std::shared_ptr<const FontFace> &face)
{
    const auto palettes = int(readColorPalettes(*face).palettes.size());
    for (int index = 0; index < std::clamp(palettes, 1, kPalettesTried); ++index)
        paintGlyphs(Font(face, 40).withPalette({index, {{0, qRgba(1, 2, 3, 128)}, {9, 7}}}));
    std::vector<VariationSetting> highest;
    for (const VariationAxis &axis : face->axes())
        highest.push_back({axis.tag, axis.maxValue});
    if (!highest.empty())
        paintGlyphs(Font(face, 40, highest));
    const TextLayout layout(texts().back(), Font(face, 24), narrow(LineBreakMode::wordWrap));
    paintOnImage(layout, 2);
    paintAsVectors(layout);
}

void tryInformation(const std::shared_ptr<const FontFace> &face)
{
    face->names();
    face->familyNamesInAllLanguages();
    face->formatNumber();
    const FaceInformation information = readFaceInformation(*face);
    for (quint16 id = 0; id < 26; ++id)
        information.nameOf(id);
    readCharacters(*face).contains(U'a');
    charactersByGlyph(*face);
    const GlyphNames names(*face);
    for (quint32 glyph = 0; glyph < quint32(std::min(kNamesTried, face->glyphCount() + 2)); ++glyph)
        names.glyph(names.name(glyph));
}

void tryFeatures(const std::shared_ptr<const FontFace> &face)
{
    const std::vector<FontFeature> features = fontFeatures(*face);
    std::vector<FeaturePair> enabled;
    for (size_t i = 0; i < std::min(features.size(), kFeaturesTried); ++i) {
        const FontFeature &feature =
            features[i * features.size() / kFeaturesTried % features.size()];
        enabled.push_back(feature.pair);
        featureTexts(*face, feature.tag);
        featureEffect(*face, feature.tag);
        featureSample(*face, feature.tag);
    }
    const Font font(face, 20, {}, featureSettings(features, enabled));
    TextLayout(texts().front(), font, narrow(LineBreakMode::wordWrap)).inkBounds();
}

void walkCarets(const QString &text, const TextLayout &layout)
{
    const TextCarets carets(text, layout);
    for (double y = -5; y < 80; y += 17) {
        for (double x = -5; x < 110; x += 9)
            carets.caretRect(carets.hitTest(QPointF(x, y)));
    }
    TextPosition at;
    for (int i = 0; i < 40; ++i) {
        at = i % 7 == 6 ? carets.below(at, 30) : carets.right(at);
        carets.selectionRects(at.index, carets.nextWord(at.index));
        carets.left(carets.lineEnd(at));
        carets.wordAt(carets.previous(at.index));
    }
}

/// Always the font itself, then one that is sound.
class ScriptedLocator : public FallbackFontLocator
{
public:
    explicit ScriptedLocator(FilePath own)
        : m_own(std::move(own))
    {
    }
    std::vector<Location> fontsFor(const Wish &wish) const override
    {
        return {{m_own, 0, wish.isItalic ? 0 : -1},
                {FilePath("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"), 0, -1}};
    }

private:
    const FilePath m_own;
};

void tryEditing(const std::shared_ptr<const FontFace> &face)
{
    const Font font(face, 20);
    TextLayoutOptions options = narrow(LineBreakMode::wordWrap);
    options.alignment = TextAlignment::justified;
    options.firstLineInset = 12;
    options.letterSpacing = 1.5;
    options.language = "ja";
    options.fallback =
        std::make_shared<FontFallback>(std::make_shared<ScriptedLocator>(face->path()));
    for (const QString &text : texts()) {
        const TextLayout layout(text, font, options);
        walkCarets(text, layout);
        paintOnImage(layout, 1);
        options.direction = TextDirection::rightToLeft;
        options.lineBreakMode = LineBreakMode::truncateTail;
    }
}

} // namespace

std::span<const FontTrial> fontTrials()
{
    static constexpr FontTrial kTrials[]{tryTexts,       tryVariations, tryColors,
                                         tryInformation, tryFeatures,   tryEditing};
    return kTrials;
}

} // namespace lorva
