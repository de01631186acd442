// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/features/FeatureRegistry.h"

#include <QCoreApplication>

#include <algorithm>

// Types and selectors are those of Apple's Font Feature Registry (TrueType Reference Manual,
// appendix F), which came to be when fonts had `feat` tables and no OpenType features. Which
// feature answers which pair was published with HarfBuzz (hb-aat-layout), "courtesy of Apple";
// `rlig` is added by the registry's own words.

namespace lorva {

namespace {

struct TagPair
{
    FontTag tag;
    FeaturePair pair;
};

/// Where several features answer a pair, the one for running horizontal text stands first.
constexpr TagPair kTagPairs[] = {
    {fontTag('r', 'l', 'i', 'g'), {1, 0}},   {fontTag('l', 'i', 'g', 'a'), {1, 2}},
    {fontTag('d', 'l', 'i', 'g'), {1, 4}},   {fontTag('c', 'l', 'i', 'g'), {1, 18}},
    {fontTag('h', 'l', 'i', 'g'), {1, 20}},  {fontTag('h', 'i', 's', 't'), {1, 20}},
    {fontTag('u', 'n', 'i', 'c'), {3, 14}},  {fontTag('v', 'e', 'r', 't'), {4, 0}},
    {fontTag('v', 'r', 't', '2'), {4, 0}},   {fontTag('t', 'n', 'u', 'm'), {6, 0}},
    {fontTag('p', 'n', 'u', 'm'), {6, 1}},   {fontTag('s', 'u', 'p', 's'), {10, 1}},
    {fontTag('s', 'u', 'b', 's'), {10, 2}},  {fontTag('o', 'r', 'd', 'n'), {10, 3}},
    {fontTag('s', 'i', 'n', 'f'), {10, 4}},  {fontTag('a', 'f', 'r', 'c'), {11, 1}},
    {fontTag('f', 'r', 'a', 'c'), {11, 2}},  {fontTag('z', 'e', 'r', 'o'), {14, 4}},
    {fontTag('m', 'g', 'r', 'k'), {15, 10}}, {fontTag('t', 'i', 't', 'l'), {19, 4}},
    {fontTag('t', 'r', 'a', 'd'), {20, 0}},  {fontTag('s', 'm', 'p', 'l'), {20, 1}},
    {fontTag('j', 'p', '7', '8'), {20, 2}},  {fontTag('j', 'p', '8', '3'), {20, 3}},
    {fontTag('j', 'p', '9', '0'), {20, 4}},  {fontTag('e', 'x', 'p', 't'), {20, 10}},
    {fontTag('j', 'p', '0', '4'), {20, 11}}, {fontTag('h', 'o', 'j', 'o'), {20, 12}},
    {fontTag('n', 'l', 'c', 'k'), {20, 13}}, {fontTag('t', 'n', 'a', 'm'), {20, 14}},
    {fontTag('o', 'n', 'u', 'm'), {21, 0}},  {fontTag('l', 'n', 'u', 'm'), {21, 1}},
    {fontTag('p', 'w', 'i', 'd'), {22, 0}},  {fontTag('p', 'k', 'n', 'a'), {22, 0}},
    {fontTag('f', 'w', 'i', 'd'), {22, 1}},  {fontTag('h', 'w', 'i', 'd'), {22, 2}},
    {fontTag('t', 'w', 'i', 'd'), {22, 3}},  {fontTag('q', 'w', 'i', 'd'), {22, 4}},
    {fontTag('p', 'a', 'l', 't'), {22, 5}},  {fontTag('v', 'a', 'l', 't'), {22, 5}},
    {fontTag('v', 'p', 'a', 'l'), {22, 5}},  {fontTag('h', 'a', 'l', 't'), {22, 6}},
    {fontTag('v', 'h', 'a', 'l'), {22, 6}},  {fontTag('h', 'n', 'g', 'l'), {23, 1}},
    {fontTag('r', 'u', 'b', 'y'), {28, 2}},  {fontTag('i', 't', 'a', 'l'), {32, 2}},
    {fontTag('c', 'a', 's', 'e'), {33, 0}},  {fontTag('c', 'p', 's', 'p'), {33, 2}},
    {fontTag('h', 'k', 'n', 'a'), {34, 0}},  {fontTag('v', 'k', 'n', 'a'), {34, 2}},
    {fontTag('c', 'a', 'l', 't'), {36, 0}},  {fontTag('s', 'w', 's', 'h'), {36, 2}},
    {fontTag('c', 's', 'w', 'h'), {36, 4}},  {fontTag('s', 'm', 'c', 'p'), {37, 1}},
    {fontTag('p', 'c', 'a', 'p'), {37, 2}},  {fontTag('c', '2', 's', 'c'), {38, 1}},
    {fontTag('c', '2', 'p', 'c'), {38, 2}},
};

constexpr int kCharacterAlternatives = 17;
constexpr int kStylisticAlternatives = 35;
constexpr int kStylisticSets = 20;
/// What shapers let stand for 37/1 in old fonts.
constexpr FeaturePair kOldSmallCapitals{3, 3};

struct RegisteredType
{
    int type;
    const char *name;
    bool isExclusive;
};

constexpr RegisteredType kTypes[] = {
    {0, QT_TRANSLATE_NOOP("FeatureRegistry", "All Typographic Features"), false},
    {1, QT_TRANSLATE_NOOP("FeatureRegistry", "Ligatures"), false},
    {2, QT_TRANSLATE_NOOP("FeatureRegistry", "Cursive Connection"), true},
    {3, QT_TRANSLATE_NOOP("FeatureRegistry", "Letter Case"), true},
    {4, QT_TRANSLATE_NOOP("FeatureRegistry", "Vertical Substitution"), false},
    {5, QT_TRANSLATE_NOOP("FeatureRegistry", "Linguistic Rearrangement"), false},
    {6, QT_TRANSLATE_NOOP("FeatureRegistry", "Number Spacing"), true},
    {8, QT_TRANSLATE_NOOP("FeatureRegistry", "Smart Swashes"), false},
    {9, QT_TRANSLATE_NOOP("FeatureRegistry", "Diacritics"), true},
    {10, QT_TRANSLATE_NOOP("FeatureRegistry", "Vertical Position"), true},
    {11, QT_TRANSLATE_NOOP("FeatureRegistry", "Fractions"), true},
    {13, QT_TRANSLATE_NOOP("FeatureRegistry", "Overlapping Characters"), false},
    {14, QT_TRANSLATE_NOOP("FeatureRegistry", "Typographic Extras"), false},
    {15, QT_TRANSLATE_NOOP("FeatureRegistry", "Mathematical Extras"), false},
    {16, QT_TRANSLATE_NOOP("FeatureRegistry", "Ornament Sets"), true},
    {17, QT_TRANSLATE_NOOP("FeatureRegistry", "Character Alternatives"), true},
    {18, QT_TRANSLATE_NOOP("FeatureRegistry", "Design Complexity"), true},
    {19, QT_TRANSLATE_NOOP("FeatureRegistry", "Style Options"), true},
    {20, QT_TRANSLATE_NOOP("FeatureRegistry", "Character Shape"), true},
    {21, QT_TRANSLATE_NOOP("FeatureRegistry", "Number Case"), true},
    {22, QT_TRANSLATE_NOOP("FeatureRegistry", "Text Spacing"), true},
    {23, QT_TRANSLATE_NOOP("FeatureRegistry", "Transliteration"), true},
    {24, QT_TRANSLATE_NOOP("FeatureRegistry", "Annotation"), true},
    {25, QT_TRANSLATE_NOOP("FeatureRegistry", "Kana Spacing"), true},
    {26, QT_TRANSLATE_NOOP("FeatureRegistry", "Ideographic Spacing"), true},
    {27, QT_TRANSLATE_NOOP("FeatureRegistry", "Unicode Decomposition"), false},
    {28, QT_TRANSLATE_NOOP("FeatureRegistry", "Ruby Kana"), false},
    {29, QT_TRANSLATE_NOOP("FeatureRegistry", "CJK Symbol Alternatives"), true},
    {30, QT_TRANSLATE_NOOP("FeatureRegistry", "Ideographic Alternatives"), true},
    {31, QT_TRANSLATE_NOOP("FeatureRegistry", "CJK Vertical Roman Placement"), true},
    {32, QT_TRANSLATE_NOOP("FeatureRegistry", "Italic CJK Roman"), false},
    {33, QT_TRANSLATE_NOOP("FeatureRegistry", "Case-Sensitive Layout"), false},
    {34, QT_TRANSLATE_NOOP("FeatureRegistry", "Alternate Kana"), false},
    {35, QT_TRANSLATE_NOOP("FeatureRegistry", "Stylistic Alternatives"), false},
    {36, QT_TRANSLATE_NOOP("FeatureRegistry", "Contextual Alternatives"), false},
    {37, QT_TRANSLATE_NOOP("FeatureRegistry", "Lower Case"), true},
    {38, QT_TRANSLATE_NOOP("FeatureRegistry", "Upper Case"), true},
    {39, QT_TRANSLATE_NOOP("FeatureRegistry", "Language Tag"), true},
    {103, QT_TRANSLATE_NOOP("FeatureRegistry", "CJK Roman Spacing"), true},
};

struct RegisteredSelector
{
    FeaturePair pair;
    const char *name;
};

/// Of a type whose selectors do not exclude each other only those that switch something on: the
/// next number switches it off.
constexpr RegisteredSelector kSelectors[] = {
    {{0, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "All Typographic Features")},
    {{1, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Required Ligatures")},
    {{1, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Common Ligatures")},
    {{1, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Rare Ligatures")},
    {{1, 6}, QT_TRANSLATE_NOOP("FeatureRegistry", "Logos")},
    {{1, 8}, QT_TRANSLATE_NOOP("FeatureRegistry", "Rebus Pictures")},
    {{1, 10}, QT_TRANSLATE_NOOP("FeatureRegistry", "Diphthong Ligatures")},
    {{1, 12}, QT_TRANSLATE_NOOP("FeatureRegistry", "Squared Ligatures")},
    {{1, 14}, QT_TRANSLATE_NOOP("FeatureRegistry", "Abbreviated Squared Ligatures")},
    {{1, 16}, QT_TRANSLATE_NOOP("FeatureRegistry", "Symbol Ligatures")},
    {{1, 18}, QT_TRANSLATE_NOOP("FeatureRegistry", "Contextual Ligatures")},
    {{1, 20}, QT_TRANSLATE_NOOP("FeatureRegistry", "Historical Ligatures")},
    {{2, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Unconnected")},
    {{2, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Partially Connected")},
    {{2, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Cursive")},
    {{3, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Upper and Lower Case")},
    {{3, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "All Capitals")},
    {{3, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "All Lower Case")},
    {{3, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "Small Capitals")},
    {{3, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Initial Capitals")},
    {{3, 5}, QT_TRANSLATE_NOOP("FeatureRegistry", "Initial Capitals and Small Capitals")},
    {{3, 14}, QT_TRANSLATE_NOOP("FeatureRegistry", "Unicase")},
    {{4, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Vertical Forms")},
    {{5, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Linguistic Rearrangement")},
    {{6, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Monospaced Numbers")},
    {{6, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Proportional Numbers")},
    {{6, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Third-Width Numbers")},
    {{6, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "Quarter-Width Numbers")},
    {{8, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Word Initial Swashes")},
    {{8, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Word Final Swashes")},
    {{8, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Line Initial Swashes")},
    {{8, 6}, QT_TRANSLATE_NOOP("FeatureRegistry", "Line Final Swashes")},
    {{8, 8}, QT_TRANSLATE_NOOP("FeatureRegistry", "Non-Final Swashes")},
    {{9, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Show Diacritics")},
    {{9, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Hide Diacritics")},
    {{9, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Decompose Diacritics")},
    {{10, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Normal Position")},
    {{10, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Superiors")},
    {{10, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Inferiors")},
    {{10, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "Ordinals")},
    {{10, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Scientific Inferiors")},
    {{11, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "No Fractions")},
    {{11, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Vertical Fractions")},
    {{11, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Diagonal Fractions")},
    {{13, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Prevent Overlap")},
    {{14, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Hyphens to Em Dash")},
    {{14, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Hyphen to En Dash")},
    {{14, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Slashed Zero")},
    {{14, 6}, QT_TRANSLATE_NOOP("FeatureRegistry", "Form Interrobang")},
    {{14, 8}, QT_TRANSLATE_NOOP("FeatureRegistry", "Smart Quotes")},
    {{14, 10}, QT_TRANSLATE_NOOP("FeatureRegistry", "Periods to Ellipsis")},
    {{15, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Hyphen to Minus")},
    {{15, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Asterisk to Multiply")},
    {{15, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Slash to Divide")},
    {{15, 6}, QT_TRANSLATE_NOOP("FeatureRegistry", "Inequality Ligatures")},
    {{15, 8}, QT_TRANSLATE_NOOP("FeatureRegistry", "Exponents")},
    {{15, 10}, QT_TRANSLATE_NOOP("FeatureRegistry", "Mathematical Greek")},
    {{16, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "No Ornaments")},
    {{16, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Dingbats")},
    {{16, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Pi Characters")},
    {{16, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "Fleurons")},
    {{16, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Decorative Borders")},
    {{16, 5}, QT_TRANSLATE_NOOP("FeatureRegistry", "International Symbols")},
    {{16, 6}, QT_TRANSLATE_NOOP("FeatureRegistry", "Mathematical Symbols")},
    {{17, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "No Alternates")},
    {{18, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Design Level 1")},
    {{18, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Design Level 2")},
    {{18, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Design Level 3")},
    {{18, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "Design Level 4")},
    {{18, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Design Level 5")},
    {{19, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "No Style Options")},
    {{19, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Display Text")},
    {{19, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Engraved Text")},
    {{19, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "Illuminated Capitals")},
    {{19, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Titling Capitals")},
    {{19, 5}, QT_TRANSLATE_NOOP("FeatureRegistry", "Tall Capitals")},
    {{20, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Traditional Characters")},
    {{20, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Simplified Characters")},
    {{20, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "JIS 1978 Characters")},
    {{20, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "JIS 1983 Characters")},
    {{20, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "JIS 1990 Characters")},
    {{20, 5}, QT_TRANSLATE_NOOP("FeatureRegistry", "Traditional Characters, Alternative 1")},
    {{20, 6}, QT_TRANSLATE_NOOP("FeatureRegistry", "Traditional Characters, Alternative 2")},
    {{20, 7}, QT_TRANSLATE_NOOP("FeatureRegistry", "Traditional Characters, Alternative 3")},
    {{20, 8}, QT_TRANSLATE_NOOP("FeatureRegistry", "Traditional Characters, Alternative 4")},
    {{20, 9}, QT_TRANSLATE_NOOP("FeatureRegistry", "Traditional Characters, Alternative 5")},
    {{20, 10}, QT_TRANSLATE_NOOP("FeatureRegistry", "Expert Characters")},
    {{20, 11}, QT_TRANSLATE_NOOP("FeatureRegistry", "JIS 2004 Characters")},
    {{20, 12}, QT_TRANSLATE_NOOP("FeatureRegistry", "Hojo Characters")},
    {{20, 13}, QT_TRANSLATE_NOOP("FeatureRegistry", "NLC Characters")},
    {{20, 14}, QT_TRANSLATE_NOOP("FeatureRegistry", "Traditional Names Characters")},
    {{21, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Lower Case Numbers")},
    {{21, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Upper Case Numbers")},
    {{22, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Proportional Text")},
    {{22, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Monospaced Text")},
    {{22, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Half-Width Text")},
    {{22, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "Third-Width Text")},
    {{22, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Quarter-Width Text")},
    {{22, 5}, QT_TRANSLATE_NOOP("FeatureRegistry", "Alternate Proportional Text")},
    {{22, 6}, QT_TRANSLATE_NOOP("FeatureRegistry", "Alternate Half-Width Text")},
    {{23, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "No Transliteration")},
    {{23, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Hanja to Hangul")},
    {{23, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Hiragana to Katakana")},
    {{23, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "Katakana to Hiragana")},
    {{23, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Kana to Romanization")},
    {{23, 5}, QT_TRANSLATE_NOOP("FeatureRegistry", "Romanization to Hiragana")},
    {{23, 6}, QT_TRANSLATE_NOOP("FeatureRegistry", "Romanization to Katakana")},
    {{23, 7}, QT_TRANSLATE_NOOP("FeatureRegistry", "Hanja to Hangul, Alternative 1")},
    {{23, 8}, QT_TRANSLATE_NOOP("FeatureRegistry", "Hanja to Hangul, Alternative 2")},
    {{23, 9}, QT_TRANSLATE_NOOP("FeatureRegistry", "Hanja to Hangul, Alternative 3")},
    {{24, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "No Annotation")},
    {{24, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Box Annotation")},
    {{24, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Rounded Box Annotation")},
    {{24, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "Circle Annotation")},
    {{24, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Inverted Circle Annotation")},
    {{24, 5}, QT_TRANSLATE_NOOP("FeatureRegistry", "Parenthesis Annotation")},
    {{24, 6}, QT_TRANSLATE_NOOP("FeatureRegistry", "Period Annotation")},
    {{24, 7}, QT_TRANSLATE_NOOP("FeatureRegistry", "Roman Numeral Annotation")},
    {{24, 8}, QT_TRANSLATE_NOOP("FeatureRegistry", "Diamond Annotation")},
    {{24, 9}, QT_TRANSLATE_NOOP("FeatureRegistry", "Inverted Box Annotation")},
    {{24, 10}, QT_TRANSLATE_NOOP("FeatureRegistry", "Inverted Rounded Box Annotation")},
    {{25, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Full-Width Kana")},
    {{25, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Proportional Kana")},
    {{26, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Full-Width Ideographs")},
    {{26, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Proportional Ideographs")},
    {{26, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Half-Width Ideographs")},
    {{27, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Canonical Composition")},
    {{27, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Compatibility Composition")},
    {{27, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Transcoding Composition")},
    {{28, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Ruby Kana")},
    {{29, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "No CJK Symbol Alternatives")},
    {{29, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "CJK Symbol Alternative 1")},
    {{29, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "CJK Symbol Alternative 2")},
    {{29, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "CJK Symbol Alternative 3")},
    {{29, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "CJK Symbol Alternative 4")},
    {{29, 5}, QT_TRANSLATE_NOOP("FeatureRegistry", "CJK Symbol Alternative 5")},
    {{30, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "No Ideographic Alternatives")},
    {{30, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Ideographic Alternative 1")},
    {{30, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Ideographic Alternative 2")},
    {{30, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "Ideographic Alternative 3")},
    {{30, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Ideographic Alternative 4")},
    {{30, 5}, QT_TRANSLATE_NOOP("FeatureRegistry", "Ideographic Alternative 5")},
    {{31, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Centered")},
    {{31, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Horizontal Baseline")},
    {{32, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Italic CJK Roman")},
    {{33, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Case-Sensitive Layout")},
    {{33, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Case-Sensitive Spacing")},
    {{34, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Alternate Horizontal Kana")},
    {{34, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Alternate Vertical Kana")},
    {{36, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Contextual Alternates")},
    {{36, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Swash Alternates")},
    {{36, 4}, QT_TRANSLATE_NOOP("FeatureRegistry", "Contextual Swash Alternates")},
    {{37, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Default Lower Case")},
    {{37, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Small Capitals")},
    {{37, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Petite Capitals")},
    {{38, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Default Upper Case")},
    {{38, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Small Capitals")},
    {{38, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Petite Capitals")},
    {{103, 0}, QT_TRANSLATE_NOOP("FeatureRegistry", "Half-Width CJK Roman")},
    {{103, 1}, QT_TRANSLATE_NOOP("FeatureRegistry", "Proportional CJK Roman")},
    {{103, 2}, QT_TRANSLATE_NOOP("FeatureRegistry", "Default CJK Roman")},
    {{103, 3}, QT_TRANSLATE_NOOP("FeatureRegistry", "Full-Width CJK Roman")},
};

/// Four letters each, in a row.
bool isOneOf(FontTag tag, const char *tags)
{
    for (const char *at = tags; *at; at += 4) {
        if (fontTag(at[0], at[1], at[2], at[3]) == tag)
            return true;
    }
    return false;
}

/// 1 for `ss01`; nothing when the tag is no two letters and a number from 01 to `last`.
std::optional<int> numbered(FontTag tag, char first, char second, int last)
{
    const int tens = int((tag >> 8) & 0xFF) - '0';
    const int ones = int(tag & 0xFF) - '0';
    const int number = tens * 10 + ones;
    if ((tag >> 16) != (fontTag(first, second, 0, 0) >> 16) || tens < 0 || tens > 9 || ones < 0
        || ones > 9 || number < 1 || number > last)
        return std::nullopt;
    return number;
}

FontTag stylisticSet(int number)
{
    return fontTag('s', 's', char('0' + number / 10), char('0' + number % 10));
}

const RegisteredType *registeredType(int type)
{
    const auto found =
        std::find_if(std::begin(kTypes), std::end(kTypes),
                     [type](const RegisteredType &each) { return each.type == type; });
    return found == std::end(kTypes) ? nullptr : found;
}

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FeatureRegistry)
};

std::optional<FontTag> tagSwitchedOnBy(FeaturePair pair)
{
    if (pair.type == kStylisticAlternatives && pair.selector >= 2 && pair.selector % 2 == 0
        && pair.selector <= 2 * kStylisticSets)
        return stylisticSet(pair.selector / 2);
    const auto found = std::find_if(std::begin(kTagPairs), std::end(kTagPairs),
                                    [pair](const TagPair &each) { return each.pair == pair; });
    return found == std::end(kTagPairs) ? std::nullopt : std::optional(found->tag);
}

} // namespace

std::optional<FeaturePair> registeredPair(FontTag tag)
{
    if (const auto set = numbered(tag, 's', 's', kStylisticSets))
        return FeaturePair{kStylisticAlternatives, 2 * *set};
    const auto found = std::find_if(std::begin(kTagPairs), std::end(kTagPairs),
                                    [tag](const TagPair &each) { return each.tag == tag; });
    return found == std::end(kTagPairs) ? std::nullopt : std::optional(found->pair);
}

std::optional<FeatureAnswer> answerTo(FeaturePair pair)
{
    if (pair == kOldSmallCapitals)
        return FeatureAnswer{fontTag('s', 'm', 'c', 'p'), 1};
    // The selector is the number of the alternate, as `aalt` counts them.
    if (pair.type == kCharacterAlternatives && pair.selector > 0)
        return FeatureAnswer{fontTag('a', 'a', 'l', 't'), quint32(pair.selector)};
    if (const auto tag = tagSwitchedOnBy(pair))
        return FeatureAnswer{*tag, 1};
    if (isExclusiveType(pair.type) || pair.selector % 2 == 0)
        return std::nullopt;
    const auto tag = tagSwitchedOnBy({pair.type, pair.selector - 1});
    return tag ? std::optional(FeatureAnswer{*tag, 0}) : std::nullopt;
}

QString registeredTypeName(int type)
{
    const RegisteredType *known = registeredType(type);
    return known ? Texts::tr(known->name) : QString();
}

QString registeredSelectorName(FeaturePair pair)
{
    if (pair.type == kStylisticAlternatives) {
        if (pair.selector == 0)
            return Texts::tr("No Stylistic Alternatives");
        return tagSwitchedOnBy(pair) ? Texts::tr("Stylistic Alternative %1").arg(pair.selector / 2)
                                     : QString();
    }
    const auto found =
        std::find_if(std::begin(kSelectors), std::end(kSelectors),
                     [pair](const RegisteredSelector &each) { return each.pair == pair; });
    return found == std::end(kSelectors) ? QString() : Texts::tr(found->name);
}

bool isExclusiveType(int type)
{
    const RegisteredType *known = registeredType(type);
    return known && known->isExclusive;
}

bool isOnByItself(FontTag tag)
{
    return isOneOf(tag, "caltcligkernligarand") || !isForPeople(tag);
}

bool isForPeople(FontTag tag)
{
    // Spelling: composition, joining, conjuncts, marks, mirroring, jamo, variations. Then what
    // layout programs ask for themselves, and what only moves the glyphs of vertical lines.
    return !isOneOf(tag,
                    "ccmplocl"
                    "rvrnrcltrligdistcurs"
                    "isolinitmedifinamed2fin2fin3msetstch"
                    "markmkmkabvmblwm"
                    "nuktakhnrphfrkrfprefblwfabvfhalfpstfvatucfarcjct"
                    "presabvsblwspstshaln"
                    "ljmovjmotjmo"
                    "ltraltrmrtlartlm"
                    "HarfHARFBuzzBUZZ"
                    "aaltsizeopbdlfbdrtbd"
                    "valtvchwvhalvkrnvpal");
}

bool isForVerticalText(FontTag tag)
{
    return isOneOf(tag, "vertvrt2vrtrvkna");
}

bool isNamedByFonts(FontTag tag)
{
    return numbered(tag, 's', 's', kStylisticSets) || numbered(tag, 'c', 'v', 99);
}

} // namespace lorva
