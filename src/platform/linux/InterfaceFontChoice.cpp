// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/InterfaceFontChoice.h"

#include "platform/linux/InterfaceFamilies.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <vector>

namespace lorva {

namespace {

/// Families that desktops use where no settings file names one (their default, or a settings store
/// that only they read).
constexpr const char *kDesktopFamilies[] = {"Adwaita Sans", "Cantarell", "Noto Sans", "Ubuntu",
                                            "Ubuntu Sans"};

/// One language per writing system, and those that need glyphs of their own within one; in
/// fontconfig's terms, which has names for mathematics and emoji too.
constexpr const char *kFallbackLanguages[] = {
    "en", "ru", "el", "hy",    "ka",    "ar",    "ur",       "he",      "yi",    "syr", "dv",
    "hi", "mr", "bn", "pa",    "gu",    "or",    "ta",       "te",      "kn",    "ml",  "si",
    "th", "lo", "my", "km",    "bo",    "am",    "chr",      "iu",      "mn-cn", "nqo", "ber-ma",
    "vi", "ja", "ko", "zh-cn", "zh-tw", "zh-hk", "und-zmth", "und-zsye"};

const FcChar8 *fontconfigText(const char *text)
{
    return reinterpret_cast<const FcChar8 *>(text);
}

const char *textOf(const FcPattern *font, const char *property, int index = 0)
{
    FcChar8 *text = nullptr;
    if (FcPatternGetString(font, property, index, &text) != FcResultMatch)
        return nullptr;
    return reinterpret_cast<const char *>(text);
}

/// A property with a single value; `standard` where the font has none or a range of values.
double valueOf(const FcPattern *font, const char *property, double standard)
{
    double value = standard;
    FcPatternGetDouble(font, property, 0, &value);
    return value;
}

double distanceFromRegular(const FcPattern *font)
{
    return std::abs(valueOf(font, FC_WEIGHT, FC_WEIGHT_REGULAR) - FC_WEIGHT_REGULAR)
        + valueOf(font, FC_SLANT, FC_SLANT_ROMAN);
}

/// Regular to bold, of normal width: what labels and headings are set in.
bool hasInterfaceStyle(const FcPattern *font)
{
    const double weight = valueOf(font, FC_WEIGHT, FC_WEIGHT_REGULAR);
    const double width = valueOf(font, FC_WIDTH, FC_WIDTH_NORMAL);
    return weight >= FC_WEIGHT_BOOK && weight <= FC_WEIGHT_BOLD && width == FC_WIDTH_NORMAL;
}

/// What the choice needs of a font, looked up once.
struct Candidate
{
    const char *file = nullptr;
    const FcLangSet *languages = nullptr;
    double distanceFromRegular = 0;
};

std::optional<Candidate> candidateOf(const FcPattern *font)
{
    const char *const file = textOf(font, FC_FILE);
    FcLangSet *languages = nullptr;
    if (!file || !hasInterfaceStyle(font)
        || FcPatternGetLangSet(font, FC_LANG, 0, &languages) != FcResultMatch)
        return std::nullopt;
    return Candidate{file, languages, distanceFromRegular(font)};
}

bool shows(const Candidate &font, const char *language)
{
    return FcLangSetHasLang(font.languages, fontconfigText(language)) == FcLangEqual;
}

/// What the configuration's rules make of a generic family, for texts of a language where one is
/// given: the families to try, in order.
std::vector<QByteArray> familiesBehind(FcConfig *config, const char *generic,
                                       const char *language = nullptr)
{
    const FcPatternHandle pattern(FcPatternCreate());
    FcPatternAddString(pattern.get(), FC_FAMILY, fontconfigText(generic));
    if (language)
        FcPatternAddString(pattern.get(), FC_LANG, fontconfigText(language));
    FcConfigSubstitute(config, pattern.get(), FcMatchPattern);
    std::vector<QByteArray> families;
    for (int i = 0; const char *const family = textOf(pattern.get(), FC_FAMILY, i); ++i)
        families.push_back(QByteArray(family).toLower());
    return families;
}

/// Asks fontconfig for names and rules only: its matching and sorting compare every font with every
/// name, which with thousands of fonts takes longer than everything that is to be saved.
class Choice
{
public:
    explicit Choice(FcConfig *config)
        : m_config(config)
    {
        const FcFontSet *const fonts = FcConfigGetFonts(config, FcSetSystem);
        for (int i = 0; fonts && i < fonts->nfont; ++i) {
            const FcPattern *const font = fonts->fonts[i];
            const std::optional<Candidate> candidate = candidateOf(font);
            if (!candidate)
                continue;
            m_fonts.push_back(*candidate);
            for (int name = 0; const char *const family = textOf(font, FC_FAMILY, name); ++name)
                m_fontsOfFamily[QByteArray(family).toLower()].push_back(*candidate);
        }
    }

    void addFamily(const QByteArray &family)
    {
        for (const Candidate &font : fontsOfFamily(family.toLower()))
            m_files.insert(font.file);
    }

    /// The family that stands for a generic name, for example "monospace".
    void addFamilyBehind(const char *generic)
    {
        for (const QByteArray &family : familiesBehind(m_config, generic)) {
            if (m_fontsOfFamily.contains(family)) {
                addFamily(family);
                return;
            }
        }
    }

    /// The font for a language that the rules prefer; else any that shows it.
    void addFallback(const char *language)
    {
        for (const QByteArray &family : familiesBehind(m_config, "sans-serif", language)) {
            if (addNearestToRegular(fontsOfFamily(family), language))
                return;
        }
        addNearestToRegular(m_fonts, language);
    }

    /// The user's own language, in every weight that labels have, as the interface's own family.
    void addFamilyFor(const char *language)
    {
        for (const QByteArray &family : familiesBehind(m_config, "sans-serif", language)) {
            const std::span<const Candidate> fonts = fontsOfFamily(family);
            if (std::ranges::any_of(fonts, [&](const auto &font) { return shows(font, language); }))
                return addFamily(family);
        }
    }

    std::set<QByteArray> takeFiles() { return std::move(m_files); }

private:
    std::span<const Candidate> fontsOfFamily(const QByteArray &family) const
    {
        const auto found = m_fontsOfFamily.constFind(family);
        return found == m_fontsOfFamily.cend() ? std::span<const Candidate>() : *found;
    }

    bool addNearestToRegular(std::span<const Candidate> fonts, const char *language)
    {
        const Candidate *nearest = nullptr;
        for (const Candidate &font : fonts) {
            const bool isNearer =
                !nearest || font.distanceFromRegular < nearest->distanceFromRegular;
            if (isNearer && shows(font, language))
                nearest = &font;
        }
        if (nearest)
            m_files.insert(nearest->file);
        return nearest;
    }

    FcConfig *const m_config;
    /// Those of interface style only.
    std::vector<Candidate> m_fonts;
    QHash<QByteArray, std::vector<Candidate>> m_fontsOfFamily;
    std::set<QByteArray> m_files;
};

} // namespace

std::set<QByteArray> chooseInterfaceFontFiles(FcConfig *config)
{
    Choice choice(config);
    for (const QByteArray &family : configuredInterfaceFamilies())
        choice.addFamily(family);
    for (const char *const family : kDesktopFamilies)
        choice.addFamily(family);
    for (const char *const generic : {"system-ui", "sans-serif", "monospace"})
        choice.addFamilyBehind(generic);
    for (const char *const language : kFallbackLanguages)
        choice.addFallback(language);
    const FcStrSetHandle languages(FcGetDefaultLangs());
    const FcStrListHandle each(languages ? FcStrListCreate(languages.get()) : nullptr);
    while (const FcChar8 *const language = each ? FcStrListNext(each.get()) : nullptr)
        choice.addFamilyFor(reinterpret_cast<const char *>(language));
    return choice.takeFiles();
}

} // namespace lorva
