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

#define FEATURE_NAME(text) QT_TRANSLATE_NOOP("FeatureTagNames", text)

constexpr TagName kTagNames[] = {
    {"aalt", FEATURE_NAME("Access All Alternates")},
    {"abvf", FEATURE_NAME("Above-Base Forms")},
    {"abvm", FEATURE_NAME("Above-Base Mark Positioning")},
    {"abvs", FEATURE_NAME("Above-Base Substitutions")},
    {"afrc", FEATURE_NAME("Alternative Fractions")},
    {"akhn", FEATURE_NAME("Akhand")},
    {"blwf", FEATURE_NAME("Below-Base Forms")},
    {"blwm", FEATURE_NAME("Below-Base Mark Positioning")},
    {"blws", FEATURE_NAME("Below-Base Substitutions")},
    {"c2pc", FEATURE_NAME("Petite Capitals From Capitals")},
    {"c2sc", FEATURE_NAME("Small Capitals From Capitals")},
    {"calt", FEATURE_NAME("Contextual Alternates")},
    {"case", FEATURE_NAME("Case-Sensitive Forms")},
    {"ccmp", FEATURE_NAME("Glyph Composition / Decomposition")},
    {"cfar", FEATURE_NAME("Conjunct Form After Ro")},
    {"chws", FEATURE_NAME("Contextual Half-Width Spacing")},
    {"cjct", FEATURE_NAME("Conjunct Forms")},
    {"clig", FEATURE_NAME("Contextual Ligatures")},
    {"cpct", FEATURE_NAME("Centered CJK Punctuation")},
    {"cpsp", FEATURE_NAME("Capital Spacing")},
    {"cswh", FEATURE_NAME("Contextual Swash")},
    {"curs", FEATURE_NAME("Cursive Positioning")},
    {"dist", FEATURE_NAME("Distances")},
    {"dlig", FEATURE_NAME("Discretionary Ligatures")},
    {"dnom", FEATURE_NAME("Denominators")},
    {"dtls", FEATURE_NAME("Dotless Forms")},
    {"expt", FEATURE_NAME("Expert Forms")},
    {"falt", FEATURE_NAME("Final Glyph on Line Alternates")},
    {"fin2", FEATURE_NAME("Terminal Forms #2")},
    {"fin3", FEATURE_NAME("Terminal Forms #3")},
    {"fina", FEATURE_NAME("Terminal Forms")},
    {"flac", FEATURE_NAME("Flattened Accent Forms")},
    {"frac", FEATURE_NAME("Fractions")},
    {"fwid", FEATURE_NAME("Full Widths")},
    {"half", FEATURE_NAME("Half Forms")},
    {"haln", FEATURE_NAME("Halant Forms")},
    {"halt", FEATURE_NAME("Alternate Half Widths")},
    {"hist", FEATURE_NAME("Historical Forms")},
    {"hkna", FEATURE_NAME("Horizontal Kana Alternates")},
    {"hlig", FEATURE_NAME("Historical Ligatures")},
    {"hngl", FEATURE_NAME("Hangul")},
    {"hojo", FEATURE_NAME("Hojo Kanji Forms")},
    {"hwid", FEATURE_NAME("Half Widths")},
    {"init", FEATURE_NAME("Initial Forms")},
    {"isol", FEATURE_NAME("Isolated Forms")},
    {"ital", FEATURE_NAME("Italics")},
    {"jalt", FEATURE_NAME("Justification Alternates")},
    {"jp04", FEATURE_NAME("JIS2004 Forms")},
    {"jp78", FEATURE_NAME("JIS78 Forms")},
    {"jp83", FEATURE_NAME("JIS83 Forms")},
    {"jp90", FEATURE_NAME("JIS90 Forms")},
    {"kern", FEATURE_NAME("Kerning")},
    {"lfbd", FEATURE_NAME("Left Bounds")},
    {"liga", FEATURE_NAME("Standard Ligatures")},
    {"ljmo", FEATURE_NAME("Leading Jamo Forms")},
    {"lnum", FEATURE_NAME("Lining Figures")},
    {"locl", FEATURE_NAME("Localized Forms")},
    {"ltra", FEATURE_NAME("Left-to-Right Alternates")},
    {"ltrm", FEATURE_NAME("Left-to-Right Mirrored Forms")},
    {"mark", FEATURE_NAME("Mark Positioning")},
    {"med2", FEATURE_NAME("Medial Forms #2")},
    {"medi", FEATURE_NAME("Medial Forms")},
    {"mgrk", FEATURE_NAME("Mathematical Greek")},
    {"mkmk", FEATURE_NAME("Mark to Mark Positioning")},
    {"mset", FEATURE_NAME("Mark Positioning via Substitution")},
    {"nalt", FEATURE_NAME("Alternate Annotation Forms")},
    {"nlck", FEATURE_NAME("NLC Kanji Forms")},
    {"nukt", FEATURE_NAME("Nukta Forms")},
    {"numr", FEATURE_NAME("Numerators")},
    {"onum", FEATURE_NAME("Oldstyle Figures")},
    {"opbd", FEATURE_NAME("Optical Bounds")},
    {"ordn", FEATURE_NAME("Ordinals")},
    {"ornm", FEATURE_NAME("Ornaments")},
    {"palt", FEATURE_NAME("Proportional Alternate Widths")},
    {"pcap", FEATURE_NAME("Petite Capitals")},
    {"pkna", FEATURE_NAME("Proportional Kana")},
    {"pnum", FEATURE_NAME("Proportional Figures")},
    {"pref", FEATURE_NAME("Pre-Base Forms")},
    {"pres", FEATURE_NAME("Pre-Base Substitutions")},
    {"pstf", FEATURE_NAME("Post-Base Forms")},
    {"psts", FEATURE_NAME("Post-Base Substitutions")},
    {"pwid", FEATURE_NAME("Proportional Widths")},
    {"qwid", FEATURE_NAME("Quarter Widths")},
    {"rand", FEATURE_NAME("Randomize")},
    {"rclt", FEATURE_NAME("Required Contextual Alternates")},
    {"rkrf", FEATURE_NAME("Rakar Forms")},
    {"rlig", FEATURE_NAME("Required Ligatures")},
    {"rphf", FEATURE_NAME("Reph Form")},
    {"rtbd", FEATURE_NAME("Right Bounds")},
    {"rtla", FEATURE_NAME("Right-to-Left Alternates")},
    {"rtlm", FEATURE_NAME("Right-to-Left Mirrored Forms")},
    {"ruby", FEATURE_NAME("Ruby Notation Forms")},
    {"rvrn", FEATURE_NAME("Required Variation Alternates")},
    {"salt", FEATURE_NAME("Stylistic Alternates")},
    {"sinf", FEATURE_NAME("Scientific Inferiors")},
    {"size", FEATURE_NAME("Optical Size")},
    {"smcp", FEATURE_NAME("Small Capitals")},
    {"smpl", FEATURE_NAME("Simplified Forms")},
    {"ssty", FEATURE_NAME("Math Script-Style Alternates")},
    {"stch", FEATURE_NAME("Stretching Glyph Decomposition")},
    {"subs", FEATURE_NAME("Subscript")},
    {"sups", FEATURE_NAME("Superscript")},
    {"swsh", FEATURE_NAME("Swash")},
    {"titl", FEATURE_NAME("Titling")},
    {"tjmo", FEATURE_NAME("Trailing Jamo Forms")},
    {"tnam", FEATURE_NAME("Traditional Name Forms")},
    {"tnum", FEATURE_NAME("Tabular Figures")},
    {"trad", FEATURE_NAME("Traditional Forms")},
    {"twid", FEATURE_NAME("Third Widths")},
    {"unic", FEATURE_NAME("Unicase")},
    {"valt", FEATURE_NAME("Alternate Vertical Metrics")},
    {"vatu", FEATURE_NAME("Vattu Variants")},
    {"vchw", FEATURE_NAME("Vertical Contextual Half-Width Spacing")},
    {"vert", FEATURE_NAME("Vertical Alternates")},
    {"vhal", FEATURE_NAME("Alternate Vertical Half Metrics")},
    {"vjmo", FEATURE_NAME("Vowel Jamo Forms")},
    {"vkna", FEATURE_NAME("Vertical Kana Alternates")},
    {"vkrn", FEATURE_NAME("Vertical Kerning")},
    {"vpal", FEATURE_NAME("Proportional Alternate Vertical Metrics")},
    {"vrt2", FEATURE_NAME("Vertical Alternates and Rotation")},
    {"vrtr", FEATURE_NAME("Vertical Alternates for Rotation")},
    {"zero", FEATURE_NAME("Slashed Zero")},
};

#undef FEATURE_NAME

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
