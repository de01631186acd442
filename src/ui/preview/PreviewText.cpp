// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/preview/PreviewText.h"

#include "base/BoundedCache.h"
#include "base/TextBeginning.h"

#include <unicode/uchar.h>

#include <algorithm>

namespace lorva {

namespace {

constexpr size_t kCoverageMemoLimit = 16384;
/// As a share of the point size; not even the bars of compressed hairline faces are narrower.
constexpr double kNarrowestLetter = 1.0 / 20;
constexpr qsizetype kRoomForMarks = 128;
constexpr double kMostLetters = 8192;
/// Below this share of its letters the probe itself is thinned out.
constexpr double kWholeProbeCoverage = 0.99;
/// Below this share of its letters the user's text gives way to the fallback.
constexpr double kSampleTextCoverage = 0.66;

bool isAlphabetic(char32_t scalar)
{
    return u_isUAlphabetic(UChar32(scalar));
}

/// The font's name alone would not do: different files share PostScript names, and a file may be
/// replaced by another version while the program runs.
QString memoKey(const Font &font, const QString &text)
{
    const FontFace &face = *font.face();
    const FaceKey key = face.key();
    return font.name() + u'|' + QString::fromLatin1(face.path().bytes()) + u'#'
        + QString::number(key.faceIndex) + u'.' + QString::number(key.namedInstance) + u'.'
        + QString::number(face.glyphCount()) + u'|' + text;
}

double measureCoverage(const Font &font, const QString &text)
{
    qsizetype letters = 0;
    qsizetype covered = 0;
    for (const char32_t scalar : text.toUcs4()) {
        if (!isAlphabetic(scalar))
            continue;
        ++letters;
        covered += font.hasGlyphFor(scalar) ? 1 : 0;
    }
    return letters == 0 ? 1.0 : double(covered) / double(letters);
}

BoundedCache<QString, double> &coverageMemo()
{
    static BoundedCache<QString, double> memo(kCoverageMemoLimit);
    return memo;
}

/// The probe without the letters that the font lacks; empty when no letter is left.
QString reducedProbe(const Font &font, const QString &probe)
{
    QString kept;
    bool hasLetter = false;
    for (const char32_t scalar : probe.toUcs4()) {
        const bool isLetter = isAlphabetic(scalar);
        if (isLetter && !font.hasGlyphFor(scalar))
            continue;
        hasLetter = hasLetter || isLetter;
        kept += QChar::fromUcs4(scalar);
    }
    while (kept.contains(QLatin1String("  ")))
        kept.replace(QLatin1String("  "), QLatin1String(" "));
    return hasLetter ? kept.trimmed() : QString();
}

/// Typed by nobody on purpose: the texts a fresh window starts with, which every script replaces by
/// its own.
bool isPlaceholder(QStringView trimmed)
{
    return trimmed == QLatin1String("Aa 123") || trimmed == QLatin1String("Aa");
}

} // namespace

QString defaultPangram(WritingScript script)
{
    switch (script) {
    case WritingScript::japanese:
        return QStringLiteral("いろはにほへと ちりぬるを わかよたれそ つねならむ");
    case WritingScript::korean:
        return QStringLiteral("다람쥐 헌 쳇바퀴에 타고파");
    case WritingScript::simplifiedChinese:
        return QStringLiteral("天地玄黄 宇宙洪荒 日月盈昃 辰宿列张");
    case WritingScript::traditionalChinese:
        return QStringLiteral("天地玄黃 宇宙洪荒 日月盈昃 辰宿列張");
    case WritingScript::latin:
        break;
    }
    return QStringLiteral("The quick brown fox jumps over the lazy dog.");
}

QString coverageProbe(WritingScript script)
{
    switch (script) {
    case WritingScript::japanese:
        return QStringLiteral("永あア 123");
    case WritingScript::korean:
        return QStringLiteral("한글 123");
    case WritingScript::simplifiedChinese:
        return QStringLiteral("永汉 123");
    case WritingScript::traditionalChinese:
        return QStringLiteral("永漢 123");
    case WritingScript::latin:
        break;
    }
    return QStringLiteral("Aa 123");
}

double coverage(const Font &font, const QString &wholeText)
{
    if (font.isNull())
        return 0.0;
    const QString text = textBeginning(wholeText, kCoverageCharacters);
    const QString key = memoKey(font, text);
    if (const std::optional<double> known = coverageMemo().find(key))
        return *known;
    const double ratio = measureCoverage(font, text);
    coverageMemo().insert(key, ratio);
    return ratio;
}

QString fallbackText(const Font &font, WritingScript script)
{
    const QString probe = coverageProbe(script);
    if (coverage(font, probe) >= kWholeProbeCoverage)
        return probe;
    const QString reduced = reducedProbe(font, probe);
    return reduced.isEmpty() ? probe : reduced;
}

QString lineExcerpt(const QString &text, double widthPt, double pointSize)
{
    const double letters = std::max(widthPt, 0.0) / (std::max(pointSize, 1.0) * kNarrowestLetter);
    return textBeginning(text, kRoomForMarks + qsizetype(std::min(letters, kMostLetters)));
}

QString specimenText(const QString &sampleText, const Font &font, WritingScript script)
{
    const QString trimmed = sampleText.trimmed();
    if (trimmed.isEmpty())
        return defaultPangram(script);
    if (isPlaceholder(trimmed) || coverage(font, sampleText) < kSampleTextCoverage)
        return fallbackText(font, script);
    return sampleText;
}

} // namespace lorva
