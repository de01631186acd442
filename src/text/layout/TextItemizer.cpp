// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/layout/TextItemizer.h"

#include <hb.h>
#include <unicode/ubidi.h>
#include <unicode/uchar.h>
#include <unicode/uscript.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <array>
#include <memory>
#include <numeric>

namespace lorva {

namespace {

using BidiPtr = std::unique_ptr<UBiDi, decltype(&ubidi_close)>;

const UChar *units(QStringView text)
{
    return reinterpret_cast<const UChar *>(text.utf16());
}

/// Opening and using ICU's object costs more than a short text is worth, so each thread keeps one.
UBiDi *threadBidi()
{
    thread_local const BidiPtr bidi(ubidi_open(), &ubidi_close);
    return bidi.get();
}

/// Whether UAX #9 could find anything but level 0: right-to-left scripts, Arabic numbers, bidi
/// controls and the high surrogates of right-to-left blocks.
bool needsBidi(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) {
        const char16_t u = c.unicode();
        if (u < 0x0590)
            return false;
        return u <= 0x08FF || u == 0x200F || (u >= 0x202A && u <= 0x202E)
            || (u >= 0x2066 && u <= 0x2069) || (u >= 0xD802 && u <= 0xD803)
            || (u >= 0xD83A && u <= 0xD83B) || (u >= 0xFB1D && u <= 0xFDFF)
            || (u >= 0xFE70 && u <= 0xFEFF);
    });
}

struct LevelRun
{
    int end = 0;
    quint8 level = 0;
};

struct ParagraphLevels
{
    quint8 baseLevel = 0;
    std::vector<LevelRun> runs;
};

ParagraphLevels oneLevel(QStringView text, quint8 level)
{
    return {level, {{int(text.size()), level}}};
}

UBiDiLevel requestedLevel(TextDirection direction)
{
    switch (direction) {
    case TextDirection::leftToRight:
        return 0;
    case TextDirection::rightToLeft:
        return 1;
    case TextDirection::automatic:
        break;
    }
    return UBIDI_DEFAULT_LTR;
}

ParagraphLevels resolveLevels(QStringView text, TextDirection direction)
{
    const quint8 plainLevel = direction == TextDirection::rightToLeft ? 1 : 0;
    if (text.isEmpty() || (plainLevel == 0 && !needsBidi(text)))
        return oneLevel(text, plainLevel);
    UBiDi *bidi = threadBidi();
    UErrorCode status = U_ZERO_ERROR;
    ubidi_setPara(bidi, units(text), int32_t(text.size()), requestedLevel(direction), nullptr,
                  &status);
    if (U_FAILURE(status))
        return oneLevel(text, plainLevel);
    ParagraphLevels levels{ubidi_getParaLevel(bidi), {}};
    for (int32_t at = 0; at < int32_t(text.size());) {
        int32_t end = at;
        UBiDiLevel level = 0;
        ubidi_getLogicalRun(bidi, at, &end, &level);
        if (end <= at)
            break;
        levels.runs.push_back({end, level});
        at = end;
    }
    if (levels.runs.empty() || levels.runs.back().end < text.size())
        levels.runs.push_back({int(text.size()), levels.baseLevel});
    return levels;
}

/// Follows the script of a text from character to character.
class ScriptScanner
{
public:
    /// The script at `c`: USCRIPT_COMMON only as long as no character has had one of its own.
    UScriptCode next(UChar32 c)
    {
        const UScriptCode own = ownScript(c);
        if (own != USCRIPT_COMMON) {
            m_current = own;
            return own;
        }
        return resolveCommon(c);
    }

private:
    UScriptCode ownScript(UChar32 c) const
    {
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'))
            return USCRIPT_LATIN;
        UErrorCode status = U_ZERO_ERROR;
        const UScriptCode script = uscript_getScript(c, &status);
        const bool joins = U_FAILURE(status) || script <= USCRIPT_INHERITED
            || script == USCRIPT_UNKNOWN || uscript_hasScript(c, m_current);
        return joins ? USCRIPT_COMMON : script;
    }

    UScriptCode resolveCommon(UChar32 c)
    {
        if (c < 0x80 && c != '(' && c != ')' && c != '[' && c != ']' && c != '{' && c != '}')
            return m_current;
        const int type = u_getIntPropertyValue(c, UCHAR_BIDI_PAIRED_BRACKET_TYPE);
        if (type == U_BPT_OPEN)
            open(u_getBidiPairedBracket(c));
        else if (type == U_BPT_CLOSE)
            close(c);
        return m_current;
    }

    void open(UChar32 closing)
    {
        if (m_depth < m_brackets.size())
            m_brackets[m_depth++] = {closing, m_current};
    }

    void close(UChar32 c)
    {
        for (size_t i = m_depth; i > 0; --i) {
            if (m_brackets[i - 1].closing != c)
                continue;
            if (m_brackets[i - 1].script != USCRIPT_COMMON)
                m_current = m_brackets[i - 1].script;
            m_depth = i - 1;
            return;
        }
    }

    struct Bracket
    {
        UChar32 closing = 0;
        UScriptCode script = USCRIPT_COMMON;
    };
    UScriptCode m_current = USCRIPT_COMMON;
    /// Deeper nesting than this is no text.
    std::array<Bracket, 32> m_brackets;
    size_t m_depth = 0;
};

/// Finds emoji, which are shaped apart from the writing around them: a script's own rules would
/// tear their sequences apart.
class EmojiScanner
{
public:
    explicit EmojiScanner(QStringView text)
        : m_text(text)
    {
    }

    /// Whether the character that ends at `end` is part of an emoji.
    bool next(UChar32 c, int end)
    {
        m_isInside = begins(c, end) || (m_isInside && continues(c));
        m_previous = c;
        return m_isInside;
    }

private:
    static constexpr UChar32 kJoiner = 0x200D;
    static constexpr UChar32 kTextSelector = 0xFE0E;
    static constexpr UChar32 kEmojiSelector = 0xFE0F;
    static constexpr UChar32 kKeycap = 0x20E3;

    UChar32 at(int index) const
    {
        UChar32 c = 0;
        if (index < m_text.size())
            U16_GET(units(m_text), 0, index, int(m_text.size()), c);
        return c;
    }

    bool begins(UChar32 c, int end) const
    {
        constexpr UChar32 kFirst = 0x203C;
        constexpr UChar32 kLastBelowPlanes = 0x3299;
        if (c < kFirst)
            return c < 0x40 && at(end) == kEmojiSelector && at(end + 1) == kKeycap;
        if ((c > kLastBelowPlanes && c < 0x1F000) || !u_hasBinaryProperty(c, UCHAR_EMOJI))
            return false;
        const UChar32 following = at(end);
        if (following == kTextSelector)
            return false;
        return c >= 0x1F000 || u_hasBinaryProperty(c, UCHAR_EMOJI_PRESENTATION)
            || following == kEmojiSelector || u_hasBinaryProperty(following, UCHAR_EMOJI_MODIFIER);
    }

    bool continues(UChar32 c) const
    {
        const bool isTag = c >= 0xE0020 && c <= 0xE007F;
        return isTag || c == kJoiner || c == kEmojiSelector || c == kKeycap
            || (m_previous == kJoiner && u_hasBinaryProperty(c, UCHAR_EMOJI));
    }

    QStringView m_text;
    UChar32 m_previous = 0;
    bool m_isInside = false;
};

hb_script_t shapingScript(UScriptCode script)
{
    if (script <= USCRIPT_INHERITED || script == USCRIPT_SYMBOLS_EMOJI)
        return HB_SCRIPT_COMMON;
    return hb_script_from_string(uscript_getShortName(script), -1);
}

struct ScriptRun
{
    int end = 0;
    UScriptCode script = USCRIPT_COMMON;
};

std::vector<ScriptRun> resolveScripts(QStringView text)
{
    std::vector<ScriptRun> runs;
    ScriptScanner scanner;
    EmojiScanner emoji(text);
    const int length = int(text.size());
    for (int at = 0; at < length;) {
        UChar32 c = 0;
        U16_NEXT(units(text), at, length, c);
        const UScriptCode script = emoji.next(c, at) ? USCRIPT_SYMBOLS_EMOJI : scanner.next(c);
        // What precedes the first letter joins it.
        if (!runs.empty() && runs.back().script == USCRIPT_COMMON)
            runs.back().script = script;
        if (!runs.empty() && runs.back().script == script)
            runs.back().end = at;
        else
            runs.push_back({at, script});
    }
    return runs;
}

bool tellsLanguage(quint32 script)
{
    return script == HB_SCRIPT_HIRAGANA || script == HB_SCRIPT_KATAKANA
        || script == HB_SCRIPT_HANGUL || script == HB_SCRIPT_BOPOMOFO;
}

/// Ideographs are written in the language of what stands before them, else of what follows.
void settleIdeographs(std::vector<TextItem> &items)
{
    quint32 writing = 0;
    const auto settle = [&](TextItem &item) {
        if (tellsLanguage(item.script))
            writing = item.script;
        else if (item.script == HB_SCRIPT_HAN && item.writing == HB_SCRIPT_HAN && writing != 0)
            item.writing = writing;
    };
    std::for_each(items.begin(), items.end(), settle);
    std::for_each(items.rbegin(), items.rend(), settle);
}

bool isParagraphSeparator(char16_t u)
{
    return (u >= 0x0A && u <= 0x0D) || u == 0x85 || u == 0x2028 || u == 0x2029;
}

} // namespace

std::vector<TextParagraph> splitParagraphs(QStringView text)
{
    std::vector<TextParagraph> paragraphs;
    int start = 0;
    for (int at = 0; at < text.size(); ++at) {
        const char16_t u = text[at].unicode();
        if (!isParagraphSeparator(u))
            continue;
        paragraphs.push_back({start, at});
        if (u == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n')
            ++at;
        start = at + 1;
    }
    paragraphs.push_back({start, int(text.size())});
    return paragraphs;
}

ItemizedParagraph itemize(QStringView paragraph, TextDirection direction)
{
    const ParagraphLevels levels = resolveLevels(paragraph, direction);
    const std::vector<ScriptRun> scripts = resolveScripts(paragraph);
    ItemizedParagraph result{levels.baseLevel, {}};
    auto level = levels.runs.begin();
    auto script = scripts.begin();
    for (int at = 0; at < paragraph.size();) {
        const int end = std::min(level->end, script->end);
        const quint32 tag = shapingScript(script->script);
        result.items.push_back({at, end, level->level, tag, tag});
        at = end;
        if (level->end == end)
            ++level;
        if (script->end == end)
            ++script;
    }
    if (result.items.size() > 1)
        settleIdeographs(result.items);
    return result;
}

std::vector<int> visualOrder(std::span<const quint8> levels)
{
    std::vector<int> order(levels.size());
    std::iota(order.begin(), order.end(), 0);
    if (std::any_of(levels.begin(), levels.end(), [](quint8 level) { return level > 0; }))
        ubidi_reorderVisual(levels.data(), int32_t(levels.size()), order.data());
    return order;
}

} // namespace lorva
