// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/ScriptSamples.h"

#include <hb.h>

#include <unicode/uchar.h>
#include <unicode/uscript.h>

namespace lorva::test {

namespace {

struct ScriptLetters
{
    UScriptCode script = USCRIPT_COMMON;
    bool isRightToLeft = false;
    bool hasLetters = false;
    std::vector<char32_t> characters;
};

/// Letters and marks whose direction is their script's own; digits and neutral characters are for
/// the layout to order, which hb-view leaves to its caller.
bool isOrderedAlike(char32_t c)
{
    const int category = u_charType(UChar32(c));
    const int direction = u_charDirection(UChar32(c));
    return (u_isalpha(UChar32(c)) || category == U_NON_SPACING_MARK
            || category == U_COMBINING_SPACING_MARK || category == U_OTHER_SYMBOL)
        && (direction == U_LEFT_TO_RIGHT || direction == U_RIGHT_TO_LEFT
            || direction == U_RIGHT_TO_LEFT_ARABIC || direction == U_DIR_NON_SPACING_MARK)
        && !u_hasBinaryProperty(UChar32(c), UCHAR_DEFAULT_IGNORABLE_CODE_POINT);
}

/// The scripts of the face with most letters first.
std::vector<ScriptLetters> scriptsOf(const Font &font)
{
    std::map<UScriptCode, ScriptLetters> scripts;
    for (const char32_t c : mappedCharacters(font)) {
        UErrorCode status = U_ZERO_ERROR;
        const UScriptCode script = uscript_getScript(UChar32(c), &status);
        if (script <= USCRIPT_INHERITED || !isOrderedAlike(c))
            continue;
        ScriptLetters &letters = scripts[script];
        letters.script = script;
        if (u_charDirection(UChar32(c)) != U_DIR_NON_SPACING_MARK) {
            letters.isRightToLeft = u_charDirection(UChar32(c)) != U_LEFT_TO_RIGHT;
            letters.hasLetters = true;
        }
        letters.characters.push_back(c);
    }
    std::vector<ScriptLetters> sorted;
    for (auto &[script, letters] : scripts) {
        // Marks alone belong to whatever script a caller takes them for.
        if (letters.hasLetters)
            sorted.push_back(std::move(letters));
    }
    std::stable_sort(sorted.begin(), sorted.end(), [](const auto &a, const auto &b) {
        return a.characters.size() > b.characters.size();
    });
    return sorted;
}

/// Some of the letters, evenly spread: half of them in words of seven, half as neighbours are.
QString textOf(const ScriptLetters &letters)
{
    constexpr size_t kLetters = 42;
    constexpr size_t kWord = 7;
    const size_t count = letters.characters.size();
    QString text;
    for (size_t i = 0; i < std::min(count, kLetters); ++i) {
        const size_t word = i / kWord;
        const size_t at = word % 2 == 0 ? i * count / std::min(count, kLetters)
                                        : std::min(count - 1, word * count / kWord + i % kWord);
        if (i > 0 && i % kWord == 0)
            text += u' ';
        const char32_t c = letters.characters[at];
        text += QString::fromUcs4(&c, 1);
    }
    return text;
}

} // namespace

std::vector<char32_t> mappedCharacters(const Font &font)
{
    const std::unique_ptr<hb_set_t, decltype(&hb_set_destroy)> set(hb_set_create(),
                                                                   &hb_set_destroy);
    hb_face_collect_unicodes(hb_font_get_face(font.shapingFont().get()), set.get());
    std::vector<char32_t> characters;
    for (hb_codepoint_t c = HB_SET_VALUE_INVALID; hb_set_next(set.get(), &c);)
        characters.push_back(c);
    return characters;
}

std::map<bool, QStringList> scriptSamples(const Font &font, size_t scriptsPerDirection)
{
    std::map<bool, QStringList> lines;
    for (const ScriptLetters &letters : scriptsOf(font)) {
        QStringList &same = lines[letters.isRightToLeft];
        if (size_t(same.size()) < scriptsPerDirection)
            same << textOf(letters);
    }
    return lines;
}

} // namespace lorva::test
