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

#define FEATURE_TEXT(text) QT_TRANSLATE_NOOP("FeatureRegistry", text)

constexpr RegisteredType kTypes[] = {
    {0, FEATURE_TEXT("All Typographic Features"), false},
    {1, FEATURE_TEXT("Ligatures"), false},
    {2, FEATURE_TEXT("Cursive Connection"), true},
    {3, FEATURE_TEXT("Letter Case"), true},
    {4, FEATURE_TEXT("Vertical Substitution"), false},
    {5, FEATURE_TEXT("Linguistic Rearrangement"), false},
    {6, FEATURE_TEXT("Number Spacing"), true},
    {8, FEATURE_TEXT("Smart Swashes"), false},
    {9, FEATURE_TEXT("Diacritics"), true},
    {10, FEATURE_TEXT("Vertical Position"), true},
    {11, FEATURE_TEXT("Fractions"), true},
    {13, FEATURE_TEXT("Overlapping Characters"), false},
    {14, FEATURE_TEXT("Typographic Extras"), false},
    {15, FEATURE_TEXT("Mathematical Extras"), false},
    {16, FEATURE_TEXT("Ornament Sets"), true},
    {17, FEATURE_TEXT("Character Alternatives"), true},
    {18, FEATURE_TEXT("Design Complexity"), true},
    {19, FEATURE_TEXT("Style Options"), true},
    {20, FEATURE_TEXT("Character Shape"), true},
    {21, FEATURE_TEXT("Number Case"), true},
    {22, FEATURE_TEXT("Text Spacing"), true},
    {23, FEATURE_TEXT("Transliteration"), true},
    {24, FEATURE_TEXT("Annotation"), true},
    {25, FEATURE_TEXT("Kana Spacing"), true},
    {26, FEATURE_TEXT("Ideographic Spacing"), true},
    {27, FEATURE_TEXT("Unicode Decomposition"), false},
    {28, FEATURE_TEXT("Ruby Kana"), false},
    {29, FEATURE_TEXT("CJK Symbol Alternatives"), true},
    {30, FEATURE_TEXT("Ideographic Alternatives"), true},
    {31, FEATURE_TEXT("CJK Vertical Roman Placement"), true},
    {32, FEATURE_TEXT("Italic CJK Roman"), false},
    {33, FEATURE_TEXT("Case-Sensitive Layout"), false},
    {34, FEATURE_TEXT("Alternate Kana"), false},
    {35, FEATURE_TEXT("Stylistic Alternatives"), false},
    {36, FEATURE_TEXT("Contextual Alternatives"), false},
    {37, FEATURE_TEXT("Lower Case"), true},
    {38, FEATURE_TEXT("Upper Case"), true},
    {39, FEATURE_TEXT("Language Tag"), true},
    {103, FEATURE_TEXT("CJK Roman Spacing"), true},
};

struct RegisteredSelector
{
    FeaturePair pair;
    const char *name;
};

/// Of a type whose selectors do not exclude each other only those that switch something on: the
/// next number switches it off.
constexpr RegisteredSelector kSelectors[] = {
    {{0, 0}, FEATURE_TEXT("All Typographic Features")},
    {{1, 0}, FEATURE_TEXT("Required Ligatures")},
    {{1, 2}, FEATURE_TEXT("Common Ligatures")},
    {{1, 4}, FEATURE_TEXT("Rare Ligatures")},
    {{1, 6}, FEATURE_TEXT("Logos")},
    {{1, 8}, FEATURE_TEXT("Rebus Pictures")},
    {{1, 10}, FEATURE_TEXT("Diphthong Ligatures")},
    {{1, 12}, FEATURE_TEXT("Squared Ligatures")},
    {{1, 14}, FEATURE_TEXT("Abbreviated Squared Ligatures")},
    {{1, 16}, FEATURE_TEXT("Symbol Ligatures")},
    {{1, 18}, FEATURE_TEXT("Contextual Ligatures")},
    {{1, 20}, FEATURE_TEXT("Historical Ligatures")},
    {{2, 0}, FEATURE_TEXT("Unconnected")},
    {{2, 1}, FEATURE_TEXT("Partially Connected")},
    {{2, 2}, FEATURE_TEXT("Cursive")},
    {{3, 0}, FEATURE_TEXT("Upper and Lower Case")},
    {{3, 1}, FEATURE_TEXT("All Capitals")},
    {{3, 2}, FEATURE_TEXT("All Lower Case")},
    {{3, 3}, FEATURE_TEXT("Small Capitals")},
    {{3, 4}, FEATURE_TEXT("Initial Capitals")},
    {{3, 5}, FEATURE_TEXT("Initial Capitals and Small Capitals")},
    {{3, 14}, FEATURE_TEXT("Unicase")},
    {{4, 0}, FEATURE_TEXT("Vertical Forms")},
    {{5, 0}, FEATURE_TEXT("Linguistic Rearrangement")},
    {{6, 0}, FEATURE_TEXT("Monospaced Numbers")},
    {{6, 1}, FEATURE_TEXT("Proportional Numbers")},
    {{6, 2}, FEATURE_TEXT("Third-Width Numbers")},
    {{6, 3}, FEATURE_TEXT("Quarter-Width Numbers")},
    {{8, 0}, FEATURE_TEXT("Word Initial Swashes")},
    {{8, 2}, FEATURE_TEXT("Word Final Swashes")},
    {{8, 4}, FEATURE_TEXT("Line Initial Swashes")},
    {{8, 6}, FEATURE_TEXT("Line Final Swashes")},
    {{8, 8}, FEATURE_TEXT("Non-Final Swashes")},
    {{9, 0}, FEATURE_TEXT("Show Diacritics")},
    {{9, 1}, FEATURE_TEXT("Hide Diacritics")},
    {{9, 2}, FEATURE_TEXT("Decompose Diacritics")},
    {{10, 0}, FEATURE_TEXT("Normal Position")},
    {{10, 1}, FEATURE_TEXT("Superiors")},
    {{10, 2}, FEATURE_TEXT("Inferiors")},
    {{10, 3}, FEATURE_TEXT("Ordinals")},
    {{10, 4}, FEATURE_TEXT("Scientific Inferiors")},
    {{11, 0}, FEATURE_TEXT("No Fractions")},
    {{11, 1}, FEATURE_TEXT("Vertical Fractions")},
    {{11, 2}, FEATURE_TEXT("Diagonal Fractions")},
    {{13, 0}, FEATURE_TEXT("Prevent Overlap")},
    {{14, 0}, FEATURE_TEXT("Hyphens to Em Dash")},
    {{14, 2}, FEATURE_TEXT("Hyphen to En Dash")},
    {{14, 4}, FEATURE_TEXT("Slashed Zero")},
    {{14, 6}, FEATURE_TEXT("Form Interrobang")},
    {{14, 8}, FEATURE_TEXT("Smart Quotes")},
    {{14, 10}, FEATURE_TEXT("Periods to Ellipsis")},
    {{15, 0}, FEATURE_TEXT("Hyphen to Minus")},
    {{15, 2}, FEATURE_TEXT("Asterisk to Multiply")},
    {{15, 4}, FEATURE_TEXT("Slash to Divide")},
    {{15, 6}, FEATURE_TEXT("Inequality Ligatures")},
    {{15, 8}, FEATURE_TEXT("Exponents")},
    {{15, 10}, FEATURE_TEXT("Mathematical Greek")},
    {{16, 0}, FEATURE_TEXT("No Ornaments")},
    {{16, 1}, FEATURE_TEXT("Dingbats")},
    {{16, 2}, FEATURE_TEXT("Pi Characters")},
    {{16, 3}, FEATURE_TEXT("Fleurons")},
    {{16, 4}, FEATURE_TEXT("Decorative Borders")},
    {{16, 5}, FEATURE_TEXT("International Symbols")},
    {{16, 6}, FEATURE_TEXT("Mathematical Symbols")},
    {{17, 0}, FEATURE_TEXT("No Alternates")},
    {{18, 0}, FEATURE_TEXT("Design Level 1")},
    {{18, 1}, FEATURE_TEXT("Design Level 2")},
    {{18, 2}, FEATURE_TEXT("Design Level 3")},
    {{18, 3}, FEATURE_TEXT("Design Level 4")},
    {{18, 4}, FEATURE_TEXT("Design Level 5")},
    {{19, 0}, FEATURE_TEXT("No Style Options")},
    {{19, 1}, FEATURE_TEXT("Display Text")},
    {{19, 2}, FEATURE_TEXT("Engraved Text")},
    {{19, 3}, FEATURE_TEXT("Illuminated Capitals")},
    {{19, 4}, FEATURE_TEXT("Titling Capitals")},
    {{19, 5}, FEATURE_TEXT("Tall Capitals")},
    {{20, 0}, FEATURE_TEXT("Traditional Characters")},
    {{20, 1}, FEATURE_TEXT("Simplified Characters")},
    {{20, 2}, FEATURE_TEXT("JIS 1978 Characters")},
    {{20, 3}, FEATURE_TEXT("JIS 1983 Characters")},
    {{20, 4}, FEATURE_TEXT("JIS 1990 Characters")},
    {{20, 5}, FEATURE_TEXT("Traditional Characters, Alternative 1")},
    {{20, 6}, FEATURE_TEXT("Traditional Characters, Alternative 2")},
    {{20, 7}, FEATURE_TEXT("Traditional Characters, Alternative 3")},
    {{20, 8}, FEATURE_TEXT("Traditional Characters, Alternative 4")},
    {{20, 9}, FEATURE_TEXT("Traditional Characters, Alternative 5")},
    {{20, 10}, FEATURE_TEXT("Expert Characters")},
    {{20, 11}, FEATURE_TEXT("JIS 2004 Characters")},
    {{20, 12}, FEATURE_TEXT("Hojo Characters")},
    {{20, 13}, FEATURE_TEXT("NLC Characters")},
    {{20, 14}, FEATURE_TEXT("Traditional Names Characters")},
    {{21, 0}, FEATURE_TEXT("Lower Case Numbers")},
    {{21, 1}, FEATURE_TEXT("Upper Case Numbers")},
    {{22, 0}, FEATURE_TEXT("Proportional Text")},
    {{22, 1}, FEATURE_TEXT("Monospaced Text")},
    {{22, 2}, FEATURE_TEXT("Half-Width Text")},
    {{22, 3}, FEATURE_TEXT("Third-Width Text")},
    {{22, 4}, FEATURE_TEXT("Quarter-Width Text")},
    {{22, 5}, FEATURE_TEXT("Alternate Proportional Text")},
    {{22, 6}, FEATURE_TEXT("Alternate Half-Width Text")},
    {{23, 0}, FEATURE_TEXT("No Transliteration")},
    {{23, 1}, FEATURE_TEXT("Hanja to Hangul")},
    {{23, 2}, FEATURE_TEXT("Hiragana to Katakana")},
    {{23, 3}, FEATURE_TEXT("Katakana to Hiragana")},
    {{23, 4}, FEATURE_TEXT("Kana to Romanization")},
    {{23, 5}, FEATURE_TEXT("Romanization to Hiragana")},
    {{23, 6}, FEATURE_TEXT("Romanization to Katakana")},
    {{23, 7}, FEATURE_TEXT("Hanja to Hangul, Alternative 1")},
    {{23, 8}, FEATURE_TEXT("Hanja to Hangul, Alternative 2")},
    {{23, 9}, FEATURE_TEXT("Hanja to Hangul, Alternative 3")},
    {{24, 0}, FEATURE_TEXT("No Annotation")},
    {{24, 1}, FEATURE_TEXT("Box Annotation")},
    {{24, 2}, FEATURE_TEXT("Rounded Box Annotation")},
    {{24, 3}, FEATURE_TEXT("Circle Annotation")},
    {{24, 4}, FEATURE_TEXT("Inverted Circle Annotation")},
    {{24, 5}, FEATURE_TEXT("Parenthesis Annotation")},
    {{24, 6}, FEATURE_TEXT("Period Annotation")},
    {{24, 7}, FEATURE_TEXT("Roman Numeral Annotation")},
    {{24, 8}, FEATURE_TEXT("Diamond Annotation")},
    {{24, 9}, FEATURE_TEXT("Inverted Box Annotation")},
    {{24, 10}, FEATURE_TEXT("Inverted Rounded Box Annotation")},
    {{25, 0}, FEATURE_TEXT("Full-Width Kana")},
    {{25, 1}, FEATURE_TEXT("Proportional Kana")},
    {{26, 0}, FEATURE_TEXT("Full-Width Ideographs")},
    {{26, 1}, FEATURE_TEXT("Proportional Ideographs")},
    {{26, 2}, FEATURE_TEXT("Half-Width Ideographs")},
    {{27, 0}, FEATURE_TEXT("Canonical Composition")},
    {{27, 2}, FEATURE_TEXT("Compatibility Composition")},
    {{27, 4}, FEATURE_TEXT("Transcoding Composition")},
    {{28, 2}, FEATURE_TEXT("Ruby Kana")},
    {{29, 0}, FEATURE_TEXT("No CJK Symbol Alternatives")},
    {{29, 1}, FEATURE_TEXT("CJK Symbol Alternative 1")},
    {{29, 2}, FEATURE_TEXT("CJK Symbol Alternative 2")},
    {{29, 3}, FEATURE_TEXT("CJK Symbol Alternative 3")},
    {{29, 4}, FEATURE_TEXT("CJK Symbol Alternative 4")},
    {{29, 5}, FEATURE_TEXT("CJK Symbol Alternative 5")},
    {{30, 0}, FEATURE_TEXT("No Ideographic Alternatives")},
    {{30, 1}, FEATURE_TEXT("Ideographic Alternative 1")},
    {{30, 2}, FEATURE_TEXT("Ideographic Alternative 2")},
    {{30, 3}, FEATURE_TEXT("Ideographic Alternative 3")},
    {{30, 4}, FEATURE_TEXT("Ideographic Alternative 4")},
    {{30, 5}, FEATURE_TEXT("Ideographic Alternative 5")},
    {{31, 0}, FEATURE_TEXT("Centered")},
    {{31, 1}, FEATURE_TEXT("Horizontal Baseline")},
    {{32, 2}, FEATURE_TEXT("Italic CJK Roman")},
    {{33, 0}, FEATURE_TEXT("Case-Sensitive Layout")},
    {{33, 2}, FEATURE_TEXT("Case-Sensitive Spacing")},
    {{34, 0}, FEATURE_TEXT("Alternate Horizontal Kana")},
    {{34, 2}, FEATURE_TEXT("Alternate Vertical Kana")},
    {{36, 0}, FEATURE_TEXT("Contextual Alternates")},
    {{36, 2}, FEATURE_TEXT("Swash Alternates")},
    {{36, 4}, FEATURE_TEXT("Contextual Swash Alternates")},
    {{37, 0}, FEATURE_TEXT("Default Lower Case")},
    {{37, 1}, FEATURE_TEXT("Small Capitals")},
    {{37, 2}, FEATURE_TEXT("Petite Capitals")},
    {{38, 0}, FEATURE_TEXT("Default Upper Case")},
    {{38, 1}, FEATURE_TEXT("Small Capitals")},
    {{38, 2}, FEATURE_TEXT("Petite Capitals")},
    {{103, 0}, FEATURE_TEXT("Half-Width CJK Roman")},
    {{103, 1}, FEATURE_TEXT("Proportional CJK Roman")},
    {{103, 2}, FEATURE_TEXT("Default CJK Roman")},
    {{103, 3}, FEATURE_TEXT("Full-Width CJK Roman")},
};

#undef FEATURE_TEXT

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

QString translated(const char *text)
{
    return QCoreApplication::translate("FeatureRegistry", text);
}

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
    return known ? translated(known->name) : QString();
}

QString registeredSelectorName(FeaturePair pair)
{
    if (pair.type == kStylisticAlternatives) {
        if (pair.selector == 0)
            return QCoreApplication::translate("FeatureRegistry", "No Stylistic Alternatives");
        return tagSwitchedOnBy(pair)
            ? QCoreApplication::translate("FeatureRegistry", "Stylistic Alternative %1")
                  .arg(pair.selector / 2)
            : QString();
    }
    const auto found =
        std::find_if(std::begin(kSelectors), std::end(kSelectors),
                     [pair](const RegisteredSelector &each) { return each.pair == pair; });
    return found == std::end(kSelectors) ? QString() : translated(found->name);
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
