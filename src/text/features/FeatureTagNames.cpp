// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/features/FeatureRegistry.h"

#include <QCoreApplication>

#include <algorithm>

// Friendly names as OpenType registers them ("Registered features").

namespace lorva {

namespace {

struct TagName
{
    char tag[5];
    const char *name;
};

constexpr TagName kTagNames[] = {
    {"aalt", QT_TRANSLATE_NOOP("FeatureTagNames", "Access All Alternates")},
    {"abvf", QT_TRANSLATE_NOOP("FeatureTagNames", "Above-Base Forms")},
    {"abvm", QT_TRANSLATE_NOOP("FeatureTagNames", "Above-Base Mark Positioning")},
    {"abvs", QT_TRANSLATE_NOOP("FeatureTagNames", "Above-Base Substitutions")},
    {"afrc", QT_TRANSLATE_NOOP("FeatureTagNames", "Alternative Fractions")},
    {"akhn", QT_TRANSLATE_NOOP("FeatureTagNames", "Akhand")},
    {"blwf", QT_TRANSLATE_NOOP("FeatureTagNames", "Below-Base Forms")},
    {"blwm", QT_TRANSLATE_NOOP("FeatureTagNames", "Below-Base Mark Positioning")},
    {"blws", QT_TRANSLATE_NOOP("FeatureTagNames", "Below-Base Substitutions")},
    {"c2pc", QT_TRANSLATE_NOOP("FeatureTagNames", "Petite Capitals From Capitals")},
    {"c2sc", QT_TRANSLATE_NOOP("FeatureTagNames", "Small Capitals From Capitals")},
    {"calt", QT_TRANSLATE_NOOP("FeatureTagNames", "Contextual Alternates")},
    {"case", QT_TRANSLATE_NOOP("FeatureTagNames", "Case-Sensitive Forms")},
    {"ccmp", QT_TRANSLATE_NOOP("FeatureTagNames", "Glyph Composition / Decomposition")},
    {"cfar", QT_TRANSLATE_NOOP("FeatureTagNames", "Conjunct Form After Ro")},
    {"chws", QT_TRANSLATE_NOOP("FeatureTagNames", "Contextual Half-Width Spacing")},
    {"cjct", QT_TRANSLATE_NOOP("FeatureTagNames", "Conjunct Forms")},
    {"clig", QT_TRANSLATE_NOOP("FeatureTagNames", "Contextual Ligatures")},
    {"cpct", QT_TRANSLATE_NOOP("FeatureTagNames", "Centered CJK Punctuation")},
    {"cpsp", QT_TRANSLATE_NOOP("FeatureTagNames", "Capital Spacing")},
    {"cswh", QT_TRANSLATE_NOOP("FeatureTagNames", "Contextual Swash")},
    {"curs", QT_TRANSLATE_NOOP("FeatureTagNames", "Cursive Positioning")},
    {"dist", QT_TRANSLATE_NOOP("FeatureTagNames", "Distances")},
    {"dlig", QT_TRANSLATE_NOOP("FeatureTagNames", "Discretionary Ligatures")},
    {"dnom", QT_TRANSLATE_NOOP("FeatureTagNames", "Denominators")},
    {"dtls", QT_TRANSLATE_NOOP("FeatureTagNames", "Dotless Forms")},
    {"expt", QT_TRANSLATE_NOOP("FeatureTagNames", "Expert Forms")},
    {"falt", QT_TRANSLATE_NOOP("FeatureTagNames", "Final Glyph on Line Alternates")},
    {"fin2", QT_TRANSLATE_NOOP("FeatureTagNames", "Terminal Forms #2")},
    {"fin3", QT_TRANSLATE_NOOP("FeatureTagNames", "Terminal Forms #3")},
    {"fina", QT_TRANSLATE_NOOP("FeatureTagNames", "Terminal Forms")},
    {"flac", QT_TRANSLATE_NOOP("FeatureTagNames", "Flattened Accent Forms")},
    {"frac", QT_TRANSLATE_NOOP("FeatureTagNames", "Fractions")},
    {"fwid", QT_TRANSLATE_NOOP("FeatureTagNames", "Full Widths")},
    {"half", QT_TRANSLATE_NOOP("FeatureTagNames", "Half Forms")},
    {"haln", QT_TRANSLATE_NOOP("FeatureTagNames", "Halant Forms")},
    {"halt", QT_TRANSLATE_NOOP("FeatureTagNames", "Alternate Half Widths")},
    {"hist", QT_TRANSLATE_NOOP("FeatureTagNames", "Historical Forms")},
    {"hkna", QT_TRANSLATE_NOOP("FeatureTagNames", "Horizontal Kana Alternates")},
    {"hlig", QT_TRANSLATE_NOOP("FeatureTagNames", "Historical Ligatures")},
    {"hngl", QT_TRANSLATE_NOOP("FeatureTagNames", "Hangul")},
    {"hojo", QT_TRANSLATE_NOOP("FeatureTagNames", "Hojo Kanji Forms")},
    {"hwid", QT_TRANSLATE_NOOP("FeatureTagNames", "Half Widths")},
    {"init", QT_TRANSLATE_NOOP("FeatureTagNames", "Initial Forms")},
    {"isol", QT_TRANSLATE_NOOP("FeatureTagNames", "Isolated Forms")},
    {"ital", QT_TRANSLATE_NOOP("FeatureTagNames", "Italics")},
    {"jalt", QT_TRANSLATE_NOOP("FeatureTagNames", "Justification Alternates")},
    {"jp04", QT_TRANSLATE_NOOP("FeatureTagNames", "JIS2004 Forms")},
    {"jp78", QT_TRANSLATE_NOOP("FeatureTagNames", "JIS78 Forms")},
    {"jp83", QT_TRANSLATE_NOOP("FeatureTagNames", "JIS83 Forms")},
    {"jp90", QT_TRANSLATE_NOOP("FeatureTagNames", "JIS90 Forms")},
    {"kern", QT_TRANSLATE_NOOP("FeatureTagNames", "Kerning")},
    {"lfbd", QT_TRANSLATE_NOOP("FeatureTagNames", "Left Bounds")},
    {"liga", QT_TRANSLATE_NOOP("FeatureTagNames", "Standard Ligatures")},
    {"ljmo", QT_TRANSLATE_NOOP("FeatureTagNames", "Leading Jamo Forms")},
    {"lnum", QT_TRANSLATE_NOOP("FeatureTagNames", "Lining Figures")},
    {"locl", QT_TRANSLATE_NOOP("FeatureTagNames", "Localized Forms")},
    {"ltra", QT_TRANSLATE_NOOP("FeatureTagNames", "Left-to-Right Alternates")},
    {"ltrm", QT_TRANSLATE_NOOP("FeatureTagNames", "Left-to-Right Mirrored Forms")},
    {"mark", QT_TRANSLATE_NOOP("FeatureTagNames", "Mark Positioning")},
    {"med2", QT_TRANSLATE_NOOP("FeatureTagNames", "Medial Forms #2")},
    {"medi", QT_TRANSLATE_NOOP("FeatureTagNames", "Medial Forms")},
    {"mgrk", QT_TRANSLATE_NOOP("FeatureTagNames", "Mathematical Greek")},
    {"mkmk", QT_TRANSLATE_NOOP("FeatureTagNames", "Mark to Mark Positioning")},
    {"mset", QT_TRANSLATE_NOOP("FeatureTagNames", "Mark Positioning via Substitution")},
    {"nalt", QT_TRANSLATE_NOOP("FeatureTagNames", "Alternate Annotation Forms")},
    {"nlck", QT_TRANSLATE_NOOP("FeatureTagNames", "NLC Kanji Forms")},
    {"nukt", QT_TRANSLATE_NOOP("FeatureTagNames", "Nukta Forms")},
    {"numr", QT_TRANSLATE_NOOP("FeatureTagNames", "Numerators")},
    {"onum", QT_TRANSLATE_NOOP("FeatureTagNames", "Oldstyle Figures")},
    {"opbd", QT_TRANSLATE_NOOP("FeatureTagNames", "Optical Bounds")},
    {"ordn", QT_TRANSLATE_NOOP("FeatureTagNames", "Ordinals")},
    {"ornm", QT_TRANSLATE_NOOP("FeatureTagNames", "Ornaments")},
    {"palt", QT_TRANSLATE_NOOP("FeatureTagNames", "Proportional Alternate Widths")},
    {"pcap", QT_TRANSLATE_NOOP("FeatureTagNames", "Petite Capitals")},
    {"pkna", QT_TRANSLATE_NOOP("FeatureTagNames", "Proportional Kana")},
    {"pnum", QT_TRANSLATE_NOOP("FeatureTagNames", "Proportional Figures")},
    {"pref", QT_TRANSLATE_NOOP("FeatureTagNames", "Pre-Base Forms")},
    {"pres", QT_TRANSLATE_NOOP("FeatureTagNames", "Pre-Base Substitutions")},
    {"pstf", QT_TRANSLATE_NOOP("FeatureTagNames", "Post-Base Forms")},
    {"psts", QT_TRANSLATE_NOOP("FeatureTagNames", "Post-Base Substitutions")},
    {"pwid", QT_TRANSLATE_NOOP("FeatureTagNames", "Proportional Widths")},
    {"qwid", QT_TRANSLATE_NOOP("FeatureTagNames", "Quarter Widths")},
    {"rand", QT_TRANSLATE_NOOP("FeatureTagNames", "Randomize")},
    {"rclt", QT_TRANSLATE_NOOP("FeatureTagNames", "Required Contextual Alternates")},
    {"rkrf", QT_TRANSLATE_NOOP("FeatureTagNames", "Rakar Forms")},
    {"rlig", QT_TRANSLATE_NOOP("FeatureTagNames", "Required Ligatures")},
    {"rphf", QT_TRANSLATE_NOOP("FeatureTagNames", "Reph Form")},
    {"rtbd", QT_TRANSLATE_NOOP("FeatureTagNames", "Right Bounds")},
    {"rtla", QT_TRANSLATE_NOOP("FeatureTagNames", "Right-to-Left Alternates")},
    {"rtlm", QT_TRANSLATE_NOOP("FeatureTagNames", "Right-to-Left Mirrored Forms")},
    {"ruby", QT_TRANSLATE_NOOP("FeatureTagNames", "Ruby Notation Forms")},
    {"rvrn", QT_TRANSLATE_NOOP("FeatureTagNames", "Required Variation Alternates")},
    {"salt", QT_TRANSLATE_NOOP("FeatureTagNames", "Stylistic Alternates")},
    {"sinf", QT_TRANSLATE_NOOP("FeatureTagNames", "Scientific Inferiors")},
    {"size", QT_TRANSLATE_NOOP("FeatureTagNames", "Optical Size")},
    {"smcp", QT_TRANSLATE_NOOP("FeatureTagNames", "Small Capitals")},
    {"smpl", QT_TRANSLATE_NOOP("FeatureTagNames", "Simplified Forms")},
    {"ssty", QT_TRANSLATE_NOOP("FeatureTagNames", "Math Script-Style Alternates")},
    {"stch", QT_TRANSLATE_NOOP("FeatureTagNames", "Stretching Glyph Decomposition")},
    {"subs", QT_TRANSLATE_NOOP("FeatureTagNames", "Subscript")},
    {"sups", QT_TRANSLATE_NOOP("FeatureTagNames", "Superscript")},
    {"swsh", QT_TRANSLATE_NOOP("FeatureTagNames", "Swash")},
    {"titl", QT_TRANSLATE_NOOP("FeatureTagNames", "Titling")},
    {"tjmo", QT_TRANSLATE_NOOP("FeatureTagNames", "Trailing Jamo Forms")},
    {"tnam", QT_TRANSLATE_NOOP("FeatureTagNames", "Traditional Name Forms")},
    {"tnum", QT_TRANSLATE_NOOP("FeatureTagNames", "Tabular Figures")},
    {"trad", QT_TRANSLATE_NOOP("FeatureTagNames", "Traditional Forms")},
    {"twid", QT_TRANSLATE_NOOP("FeatureTagNames", "Third Widths")},
    {"unic", QT_TRANSLATE_NOOP("FeatureTagNames", "Unicase")},
    {"valt", QT_TRANSLATE_NOOP("FeatureTagNames", "Alternate Vertical Metrics")},
    {"vatu", QT_TRANSLATE_NOOP("FeatureTagNames", "Vattu Variants")},
    {"vchw", QT_TRANSLATE_NOOP("FeatureTagNames", "Vertical Contextual Half-Width Spacing")},
    {"vert", QT_TRANSLATE_NOOP("FeatureTagNames", "Vertical Alternates")},
    {"vhal", QT_TRANSLATE_NOOP("FeatureTagNames", "Alternate Vertical Half Metrics")},
    {"vjmo", QT_TRANSLATE_NOOP("FeatureTagNames", "Vowel Jamo Forms")},
    {"vkna", QT_TRANSLATE_NOOP("FeatureTagNames", "Vertical Kana Alternates")},
    {"vkrn", QT_TRANSLATE_NOOP("FeatureTagNames", "Vertical Kerning")},
    {"vpal", QT_TRANSLATE_NOOP("FeatureTagNames", "Proportional Alternate Vertical Metrics")},
    {"vrt2", QT_TRANSLATE_NOOP("FeatureTagNames", "Vertical Alternates and Rotation")},
    {"vrtr", QT_TRANSLATE_NOOP("FeatureTagNames", "Vertical Alternates for Rotation")},
    {"zero", QT_TRANSLATE_NOOP("FeatureTagNames", "Slashed Zero")},
};

FontTag packed(const TagName &entry)
{
    return fontTag(entry.tag[0], entry.tag[1], entry.tag[2], entry.tag[3]);
}

/// "Stylistic Set 3" and "Character Variant 12".
QString numberedName(FontTag tag)
{
    const QString number = QString::number(tagText(tag).mid(2).toInt());
    return (tag >> 24) == 's'
        ? QCoreApplication::translate("FeatureTagNames", "Stylistic Set %1").arg(number)
        : QCoreApplication::translate("FeatureTagNames", "Character Variant %1").arg(number);
}

} // namespace

QString featureTagName(FontTag tag)
{
    if (isNamedByFonts(tag))
        return numberedName(tag);
    const auto found = std::lower_bound(
        std::begin(kTagNames), std::end(kTagNames), tag,
        [](const TagName &entry, FontTag wanted) { return packed(entry) < wanted; });
    return found != std::end(kTagNames) && packed(*found) == tag
        ? QCoreApplication::translate("FeatureTagNames", found->name)
        : QString();
}

} // namespace lorva
