// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextLayout.h"

#include "text/ReadingSupport.h"

namespace lorva::test {

inline const std::u32string kAscii = [] {
    std::u32string characters;
    for (char32_t c = 0x20; c < 0x7F; ++c)
        characters += c;
    return characters;
}();

/// Every character 6 points wide at 10 points: ASCII, Hebrew alef to he, the ellipsis and `more`.
inline Font boxFont(const std::u32string &more = {}, double pointSize = 10)
{
    static int files = 0;
    const QByteArray name = "boxes" + QByteArray::number(++files) + ".ttf";
    FontBuilder builder("Boxes");
    builder.codePoints(kAscii + U"\u05D0\u05D1\u05D2\u05D3\u05D4\u2026\u00A0" + more);
    return Font(openFace(writeFont(builder.build(), name)), pointSize);
}

inline Font realFontAt(const QByteArray &path, double pointSize)
{
    return Font(openFace(realFont(path)), pointSize);
}

/// "liga=0,wght=700" as tags and values.
template <class Setting>
std::vector<Setting> settings(const char *text)
{
    std::vector<Setting> result;
    for (const QString &part : QString::fromLatin1(text).split(u',', Qt::SkipEmptyParts)) {
        const auto tag = tagFromText(QStringView(part).left(4));
        result.push_back({tag.value_or(0), decltype(Setting::value)(part.mid(5).toDouble())});
    }
    return result;
}

/// The lines' own text, "|" between lines and "…" where an ellipsis stands.
inline QString linesText(const QString &text, const TextLayout &layout)
{
    QStringList lines;
    for (const LayoutLine &line : layout.lines()) {
        QString shown = text.mid(line.textStart, line.textEnd - line.textStart);
        for (const GlyphRun &run : line.runs) {
            if (!run.glyphs.empty() && run.glyphs.front().cluster == line.textEnd)
                shown += QStringLiteral("…");
        }
        lines << shown;
    }
    return lines.join(u'|');
}

/// The runs of a line from left to right with their clusters: "L:0,1,2 R:5,4,3".
inline std::string runsText(const LayoutLine &line)
{
    QStringList runs;
    for (const GlyphRun &run : line.runs) {
        QStringList clusters;
        for (const PositionedGlyph &glyph : run.glyphs)
            clusters << QString::number(glyph.cluster);
        const QString direction = run.isRightToLeft ? QStringLiteral("R:") : QStringLiteral("L:");
        runs << QString(direction + clusters.join(u','));
    }
    return runs.join(u' ').toStdString();
}

inline std::vector<PositionedGlyph> glyphsOf(const TextLayout &layout)
{
    std::vector<PositionedGlyph> glyphs;
    for (const LayoutLine &line : layout.lines()) {
        for (const GlyphRun &run : line.runs)
            glyphs.insert(glyphs.end(), run.glyphs.begin(), run.glyphs.end());
    }
    return glyphs;
}

} // namespace lorva::test
