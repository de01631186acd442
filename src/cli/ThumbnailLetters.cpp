// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/ThumbnailLetters.h"

#include "text/CharacterSet.h"
#include "text/FaceInformation.h"

#include <QChar>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <utility>

namespace lorva::cli {

namespace {

/// Words of a square.
constexpr size_t kSquare = 4;
/// Letters that a script's own fonts have at least; Thai has 57.
constexpr int kWholeAlphabet = 50;
/// Latin letters, accented ones included, that fonts for other scripts bring along; those that are
/// made for Latin and more besides have twice as many.
constexpr int kCompanyLatin = 350;
/// From here on letters are there for naming the symbols.
constexpr int kSymbolsPerLetter = 4;

struct ScriptLetters
{
    QChar::Script script;
    const char16_t *letters;
};

/// What stands for a script on signs and in primers. Of those that are not here the first letters
/// stand.
constexpr ScriptLetters kLetters[]{
    {QChar::Script_Greek, u"Αα"},      {QChar::Script_Cyrillic, u"Аа"},
    {QChar::Script_Armenian, u"Աա"},   {QChar::Script_Georgian, u"აბ"},
    {QChar::Script_Hebrew, u"אב"},     {QChar::Script_Arabic, u"أب"},
    {QChar::Script_Syriac, u"ܐܒ"},     {QChar::Script_Thaana, u"ހށ"},
    {QChar::Script_Devanagari, u"अक"}, {QChar::Script_Bengali, u"অক"},
    {QChar::Script_Gurmukhi, u"ਅਕ"},   {QChar::Script_Gujarati, u"અક"},
    {QChar::Script_Oriya, u"ଅକ"},      {QChar::Script_Tamil, u"அக"},
    {QChar::Script_Telugu, u"అక"},     {QChar::Script_Kannada, u"ಅಕ"},
    {QChar::Script_Malayalam, u"അക"},  {QChar::Script_Sinhala, u"අක"},
    {QChar::Script_Thai, u"กข"},       {QChar::Script_Lao, u"ກຂ"},
    {QChar::Script_Tibetan, u"ཀཁ"},    {QChar::Script_Myanmar, u"ကခ"},
    {QChar::Script_Khmer, u"កខ"},      {QChar::Script_Ethiopic, u"ሀለ"},
    {QChar::Script_Cherokee, u"ᏣᎳ"},   {QChar::Script_Hiragana, u"あい"},
    {QChar::Script_Katakana, u"アイ"}, {QChar::Script_Hangul, u"한글"},
    {QChar::Script_Bopomofo, u"ㄅㄆ"}, {QChar::Script_Han, u"永字"},
};

/// Faces, nature, a heart: what everybody knows an emoji font by. The first four that there are.
constexpr char32_t kEmoji[]{U'\U0001F600', U'\U0001F33B', U'\U0001F431', U'\U0001F34E',
                            U'\U0001F308', U'\U0001F388', U'\U0001F680', U'\U00002764',
                            U'\U0000263A', U'\U00002600'};

bool isLetter(char32_t c)
{
    return QChar::isLetter(c);
}

/// Something to look at by itself.
bool isSymbol(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Symbol_Other:
    case QChar::Symbol_Math:
    case QChar::Symbol_Modifier:
    case QChar::Symbol_Currency:
    case QChar::Other_PrivateUse:
        return true;
    default:
        return false;
    }
}

bool isDrawable(char32_t c)
{
    return QChar::isPrint(c) && !QChar::isSpace(c) && !QChar::isMark(c)
        && QChar::category(c) != QChar::Other_Format;
}

template <class Function>
void forEach(const CharacterSet &characters, Function function)
{
    for (const CharacterRange &range : characters.ranges())
        for (char32_t c = range.first; c <= range.last; ++c)
            function(c);
}

bool hasAll(const CharacterSet &characters, const QString &text)
{
    const QList<uint> scalars = text.toUcs4();
    return std::all_of(scalars.begin(), scalars.end(),
                       [&](uint c) { return characters.contains(c); });
}

/// What a face has.
struct Stock
{
    CharacterSet characters;
    std::map<QChar::Script, int> letters;
    int letterCount = 0;
    int symbolCount = 0;

    int lettersOf(QChar::Script script) const
    {
        const auto found = letters.find(script);
        return found == letters.end() ? 0 : found->second;
    }
};

Stock stockOf(const FontFace &face)
{
    Stock stock{readCharacters(face), {}};
    forEach(stock.characters, [&](char32_t c) {
        stock.symbolCount += isSymbol(c) && QChar::category(c) != QChar::Other_PrivateUse ? 1 : 0;
        // The letters of formulas belong to no alphabet.
        if (!isLetter(c) || QChar::decompositionTag(c) == QChar::Font)
            return;
        ++stock.letterCount;
        ++stock.letters[QChar::script(c)];
    });
    for (const QChar::Script nobodys :
         {QChar::Script_Common, QChar::Script_Inherited, QChar::Script_Unknown})
        stock.letters.erase(nobodys);
    return stock;
}

/// A capital with its small letter, else the first two letters.
QString firstLetters(const CharacterSet &characters, QChar::Script script)
{
    QString firstTwo;
    QString pair;
    forEach(characters, [&](char32_t c) {
        if (!isLetter(c) || QChar::script(c) != script || !pair.isEmpty())
            return;
        const char32_t lower = QChar::toLower(c);
        if (lower != c && characters.contains(lower))
            pair = QString::fromUcs4(std::array{c, lower}.data(), 2);
        else if (firstTwo.toUcs4().size() < 2)
            firstTwo += QString::fromUcs4(&c, 1);
    });
    return pair.isEmpty() ? firstTwo : pair;
}

QString lettersOf(const CharacterSet &characters, QChar::Script script)
{
    const auto known =
        std::find_if(std::begin(kLetters), std::end(kLetters),
                     [&](const ScriptLetters &each) { return each.script == script; });
    if (known != std::end(kLetters)) {
        const QString letters = QString::fromUtf16(known->letters);
        if (hasAll(characters, letters))
            return letters;
    }
    return firstLetters(characters, script);
}

/// Of OpenType `OS/2` ulCodePageRange1; Korean has two.
constexpr std::pair<quint32, WritingScript> kCodePages[]{
    {1U << 17, WritingScript::japanese},
    {1U << 19 | 1U << 21, WritingScript::korean},
    {1U << 18, WritingScript::simplifiedChinese},
    {1U << 20, WritingScript::traditionalChinese},
};
const std::set<WritingScript> kChinese{WritingScript::simplifiedChinese,
                                       WritingScript::traditionalChinese};

/// What a face with letters of several East Asian scripts is made for, if its code pages tell; few
/// names of families do.
WritingScript scriptByCodePages(const FontFace &face, WritingScript script)
{
    const quint32 pages = readFaceInformation(face).codePages.value_or(0);
    std::set<WritingScript> named;
    for (const auto &[bits, each] : kCodePages) {
        if ((pages & bits) != 0)
            named.insert(each);
    }
    if (named.size() == 1)
        return *named.begin();
    return named == kChinese && !kChinese.contains(script) ? WritingScript::simplifiedChinese
                                                           : script;
}

std::optional<ThumbnailLetters> eastAsianLetters(std::optional<WritingScript> script)
{
    switch (script.value_or(WritingScript::latin)) {
    case WritingScript::japanese:
        return ThumbnailLetters{{QStringLiteral("永あ")}, "ja"};
    case WritingScript::korean:
        return ThumbnailLetters{{QStringLiteral("한글")}, "ko"};
    case WritingScript::simplifiedChinese:
        return ThumbnailLetters{{QStringLiteral("永汉")}, "zh-Hans"};
    case WritingScript::traditionalChinese:
        return ThumbnailLetters{{QStringLiteral("永漢")}, "zh-Hant"};
    case WritingScript::latin:
        break;
    }
    return std::nullopt;
}

/// One in the middle of each quarter, so that not all come from the same corner of the font.
QStringList spread(const std::vector<char32_t> &characters)
{
    QStringList words;
    for (size_t i = 0; i < kSquare && characters.size() >= kSquare; ++i) {
        const char32_t c = characters[characters.size() * (2 * i + 1) / (2 * kSquare)];
        words << QString::fromUcs4(&c, 1);
    }
    return words;
}

QStringList emoji(const CharacterSet &characters)
{
    QStringList words;
    for (const char32_t c : kEmoji) {
        if (characters.contains(c) && words.size() < qsizetype(kSquare))
            words << QString::fromUcs4(&c, 1);
    }
    return words.size() == qsizetype(kSquare) ? words : QStringList();
}

/// Collects what the face can show; what it cannot is passed over.
class Choice
{
public:
    explicit Choice(const CharacterSet &characters)
        : m_characters(characters)
    {
    }

    void add(ThumbnailLetters letters)
    {
        const bool isWhole =
            std::all_of(letters.words.begin(), letters.words.end(), [&](const QString &word) {
                return !word.isEmpty() && hasAll(m_characters, word);
            });
        if (isWhole && !letters.words.isEmpty())
            m_all.push_back(std::move(letters));
    }
    void add(const QString &word) { add(ThumbnailLetters{{word}, {}}); }

    void addSymbols(bool (*isWanted)(char32_t))
    {
        std::vector<char32_t> symbols;
        forEach(m_characters, [&](char32_t c) {
            if (isWanted(c))
                symbols.push_back(c);
        });
        add(ThumbnailLetters{spread(symbols), {}});
        if (!symbols.empty())
            add(QString::fromUcs4(&symbols.front(), 1));
    }

    std::vector<ThumbnailLetters> take() { return std::move(m_all); }

private:
    const CharacterSet &m_characters;
    std::vector<ThumbnailLetters> m_all;
};

/// Of the scripts besides Latin the one with the most letters.
std::optional<QChar::Script> otherScript(const Stock &stock)
{
    std::optional<QChar::Script> most;
    for (const auto &[script, count] : stock.letters) {
        if (script != QChar::Script_Latin && (!most || count > stock.lettersOf(*most)))
            most = script;
    }
    return most;
}

/// Whether Latin letters only keep it company. Greek and Cyrillic go with Latin, in whatever
/// numbers.
bool isMadeFor(QChar::Script script, const Stock &stock)
{
    if (script == QChar::Script_Greek || script == QChar::Script_Cyrillic)
        return false;
    const int letters = stock.lettersOf(script);
    const int latin = stock.lettersOf(QChar::Script_Latin);
    return letters > latin || (letters >= kWholeAlphabet && latin <= kCompanyLatin);
}

} // namespace

std::vector<ThumbnailLetters> thumbnailLetters(const FontFace &face,
                                               std::optional<WritingScript> script)
{
    const Stock stock = stockOf(face);
    const auto other = otherScript(stock);
    const QString otherLetters = other ? lettersOf(stock.characters, *other) : QString();
    Choice choice(stock.characters);
    if (eastAsianLetters(script)) {
        choice.add(*eastAsianLetters(scriptByCodePages(face, *script)));
        choice.add(*eastAsianLetters(script));
    }
    if (stock.symbolCount > kSymbolsPerLetter * stock.letterCount) {
        choice.add(ThumbnailLetters{emoji(stock.characters), {}});
        choice.addSymbols(isSymbol);
    }
    if (other && isMadeFor(*other, stock))
        choice.add(otherLetters);
    choice.add(QStringLiteral("Aa"));
    choice.add(otherLetters);
    choice.addSymbols(isSymbol);
    choice.addSymbols(isDrawable);
    return choice.take();
}

} // namespace lorva::cli
