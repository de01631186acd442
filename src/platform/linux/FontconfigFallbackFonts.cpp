// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/FontconfigFallbackFonts.h"

#include "base/Folding.h"
#include "platform/linux/FontconfigHandles.h"

#include <QHash>

#include <unicode/uchar.h>

#include <algorithm>
#include <cstring>
#include <mutex>

namespace lorva {

namespace {

constexpr size_t kMaxLocations = 8;
/// A text has few languages and weights; one order is a few pointers for each font of the system.
constexpr qsizetype kMaxOrders = 32;

using Location = FallbackFontLocator::Location;

struct Candidate
{
    Location location;
    /// Owned by the configuration.
    const FcCharSet *characters = nullptr;
};
using Order = std::vector<Candidate>;

struct OrderKey
{
    QByteArray language;
    int weight = 400;
    bool isItalic = false;
    bool isEmoji = false;
    bool operator==(const OrderKey &) const = default;
};

size_t qHash(const OrderKey &key, size_t seed = 0)
{
    return qHashMulti(seed, key.language, key.weight, key.isItalic, key.isEmoji);
}

const FcChar8 *fontconfigText(const char *text)
{
    return reinterpret_cast<const FcChar8 *>(text);
}

QByteArray chineseTag(const QList<QByteArray> &subtags)
{
    for (const char *region : {"hk", "mo", "sg", "tw", "cn"}) {
        if (subtags.contains(region))
            return QByteArray("zh-") + region;
    }
    return subtags.contains("hant") ? "zh-tw" : "zh-cn";
}

bool isWord(const QByteArray &subtag)
{
    return std::all_of(subtag.begin(), subtag.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

QByteArray withRegion(const QList<QByteArray> &subtags)
{
    for (const QByteArray &subtag : subtags.mid(1)) {
        if (subtag.size() == 2 && isWord(subtag))
            return QByteArray(subtags.first() + '-' + subtag);
    }
    return subtags.first();
}

/// BCP 47 as fontconfig writes languages: no scripts, a region only where it tells one of its
/// languages from another, Chinese always by region.
QByteArray fontconfigLanguage(const QByteArray &tag)
{
    const QList<QByteArray> subtags = tag.toLower().replace('_', '-').split('-');
    if (subtags.first() == "zh")
        return chineseTag(subtags);
    // Fontconfig complains aloud of what is no language.
    if (subtags.first().size() < 2 || subtags.first().size() > 3 || !isWord(subtags.first()))
        return {};
    const std::unique_ptr<FcChar8, FontconfigDeleter<FcStrFree>> known(
        FcLangNormalize(fontconfigText(withRegion(subtags).constData())));
    return known ? QByteArray(reinterpret_cast<const char *>(known.get())) : QByteArray();
}

bool wantsEmoji(std::span<const char32_t> characters)
{
    constexpr char32_t kTextSelector = 0xFE0E;
    constexpr char32_t kEmojiSelector = 0xFE0F;
    for (const char32_t c : characters) {
        if (c == kTextSelector || c == kEmojiSelector)
            return c == kEmojiSelector;
    }
    return !characters.empty()
        && u_hasBinaryProperty(UChar32(characters.front()), UCHAR_EMOJI_PRESENTATION);
}

FcPatternHandle patternFor(FcConfig *config, const OrderKey &key)
{
    FcPatternHandle pattern(FcPatternCreate());
    FcPatternAddString(pattern.get(), FC_FAMILY,
                       fontconfigText(key.isEmoji ? "emoji" : "sans-serif"));
    if (key.isEmoji)
        FcPatternAddBool(pattern.get(), FC_COLOR, FcTrue);
    if (!key.language.isEmpty())
        FcPatternAddString(pattern.get(), FC_LANG, fontconfigText(key.language.constData()));
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, FcWeightFromOpenType(key.weight));
    FcPatternAddInteger(pattern.get(), FC_SLANT, key.isItalic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcConfigSubstitute(config, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    return pattern;
}

/// Formats that the type engine reads, with outlines or colour pictures.
bool isUsable(const FcPattern *font)
{
    FcChar8 *format = nullptr;
    if (FcPatternGetString(font, FC_FONTFORMAT, 0, &format) != FcResultMatch)
        return false;
    const char *const name = reinterpret_cast<const char *>(format);
    if (std::strcmp(name, "TrueType") != 0 && std::strcmp(name, "CFF") != 0)
        return false;
    FcBool hasOutlines = FcFalse;
    FcBool hasColor = FcFalse;
    FcPatternGetBool(font, FC_OUTLINE, 0, &hasOutlines);
    FcPatternGetBool(font, FC_COLOR, 0, &hasColor);
    return hasOutlines || hasColor;
}

/// The upper half of fontconfig's index counts the named instances from 1; 0x8000 stands for the
/// whole variable font.
int namedInstanceOf(unsigned index)
{
    const int number = int(index >> 16);
    return number == 0 || number >= 0x8000 ? -1 : number - 1;
}

std::optional<Candidate> candidateOf(const FcPattern *font)
{
    FcChar8 *file = nullptr;
    FcCharSet *characters = nullptr;
    int index = 0;
    if (FcPatternGetString(font, FC_FILE, 0, &file) != FcResultMatch
        || FcPatternGetCharSet(font, FC_CHARSET, 0, &characters) != FcResultMatch)
        return std::nullopt;
    FcPatternGetInteger(font, FC_INDEX, 0, &index);
    return Candidate{{FilePath(reinterpret_cast<const char *>(file)), index & 0xffff,
                      namedInstanceOf(unsigned(index))},
                     characters};
}

Order sortedFonts(FcConfig *config, const OrderKey &key)
{
    const FcPatternHandle pattern = patternFor(config, key);
    FcResult result = FcResultNoMatch;
    const FcFontSetHandle fonts(FcFontSort(config, pattern.get(), FcFalse, nullptr, &result));
    Order order;
    for (int i = 0; fonts && i < fonts->nfont; ++i) {
        if (!isUsable(fonts->fonts[i]))
            continue;
        if (auto candidate = candidateOf(fonts->fonts[i]))
            order.push_back(std::move(*candidate));
    }
    return order;
}

bool isSameFace(const Location &a, const Location &b)
{
    return a.faceIndex == b.faceIndex && a.path == b.path;
}

/// Collects candidates; of the instances of one face the first one.
class Choice
{
public:
    bool isFull() const { return m_locations.size() >= kMaxLocations; }

    void add(const Candidate &candidate)
    {
        const bool isKnown =
            std::any_of(m_locations.begin(), m_locations.end(), [&](const Location &known) {
                return isSameFace(known, candidate.location);
            });
        if (!isKnown && !isFull())
            m_locations.push_back(candidate.location);
    }

    std::vector<Location> take() { return std::move(m_locations); }

private:
    std::vector<Location> m_locations;
};

/// Joiners and selectors tell how other characters look; fonts need not list them.
bool isMissed(char32_t c)
{
    return !isDefaultIgnorable(c);
}

std::vector<Location> choose(const Order &order, std::span<const char32_t> characters)
{
    std::u32string wanted;
    std::copy_if(characters.begin(), characters.end(), std::back_inserter(wanted), isMissed);
    if (wanted.empty())
        return {};
    Choice choice;
    std::vector<const Candidate *> withFirst;
    for (const Candidate &candidate : order) {
        if (choice.isFull())
            break;
        const auto has = [&](char32_t c) { return FcCharSetHasChar(candidate.characters, c); };
        if (std::all_of(wanted.begin(), wanted.end(), has))
            choice.add(candidate);
        else if (has(wanted.front()) && withFirst.size() < kMaxLocations)
            withFirst.push_back(&candidate);
    }
    for (const Candidate *candidate : withFirst)
        choice.add(*candidate);
    return choice.take();
}

} // namespace

struct FontconfigFallbackFonts::Orders
{
    std::shared_ptr<const Order> order(const OrderKey &key)
    {
        const std::lock_guard lock(mutex);
        if (!config)
            config.reset(FcInitLoadConfigAndFonts());
        if (!config)
            return nullptr;
        if (const auto found = known.constFind(key); found != known.cend())
            return *found;
        if (known.size() >= kMaxOrders)
            known.clear();
        return *known.insert(key, std::make_shared<const Order>(sortedFonts(config.get(), key)));
    }

    std::mutex mutex;
    FcConfigHandle config;
    QHash<OrderKey, std::shared_ptr<const Order>> known;
};

FontconfigFallbackFonts::FontconfigFallbackFonts()
    : m_orders(std::make_unique<Orders>())
{
}

FontconfigFallbackFonts::~FontconfigFallbackFonts() = default;

std::shared_ptr<const FontconfigFallbackFonts> FontconfigFallbackFonts::shared()
{
    static const auto fonts = std::make_shared<const FontconfigFallbackFonts>();
    return fonts;
}

std::vector<Location> FontconfigFallbackFonts::fontsFor(const Wish &wish) const
{
    const OrderKey key{fontconfigLanguage(wish.language), std::clamp(wish.weight, 1, 1000),
                       wish.isItalic, wantsEmoji(wish.characters)};
    const std::shared_ptr<const Order> order = m_orders->order(key);
    return order ? choose(*order, wish.characters) : std::vector<Location>();
}

} // namespace lorva
