// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/FontconfigOrthographies.h"

#include "platform/linux/FontconfigHandles.h"

#include <QList>

#include <algorithm>
#include <bit>
#include <cctype>

namespace lorva {

namespace {

using StringSetHandle = std::unique_ptr<FcStrSet, FontconfigDeleter<FcStrSetDestroy>>;
using StringListHandle = std::unique_ptr<FcStrList, FontconfigDeleter<FcStrListDone>>;

/// Emoji and mathematical signs are kept among the languages, but are none.
bool isLanguage(const QByteArray &name)
{
    return !name.isEmpty() && name != "und" && !name.startsWith("und-");
}

QByteArray inUpperCase(QByteArray text, qsizetype count)
{
    for (qsizetype i = 0; i < std::min(count, text.size()); ++i)
        text[i] = char(std::toupper(uchar(text[i])));
    return text;
}

std::vector<char32_t> charactersOf(const FcCharSet *characters)
{
    std::vector<char32_t> all;
    all.reserve(FcCharSetCount(characters));
    FcChar32 map[FC_CHARSET_MAP_SIZE];
    FcChar32 next = 0;
    for (FcChar32 page = FcCharSetFirstPage(characters, map, &next); page != FC_CHARSET_DONE;
         page = FcCharSetNextPage(characters, map, &next)) {
        for (FcChar32 word = 0; word < FC_CHARSET_MAP_SIZE; ++word) {
            for (FcChar32 bits = map[word]; bits != 0; bits &= bits - 1)
                all.push_back(page + word * 32 + char32_t(std::countr_zero(bits)));
        }
    }
    return all;
}

std::vector<Orthography> readAll()
{
    std::vector<Orthography> all;
    const StringSetHandle names(FcGetLangs());
    const StringListHandle list(names ? FcStrListCreate(names.get()) : nullptr);
    while (const FcChar8 *name = list ? FcStrListNext(list.get()) : nullptr) {
        const FcCharSet *characters = FcLangGetCharSet(name);
        const QByteArray language(reinterpret_cast<const char *>(name));
        if (characters && isLanguage(language))
            all.push_back({languageTagOf(language), charactersOf(characters)});
    }
    std::sort(all.begin(), all.end(), [](const Orthography &left, const Orthography &right) {
        return left.language < right.language;
    });
    return all;
}

} // namespace

std::shared_ptr<const std::vector<Orthography>> FontconfigOrthographies::orthographies() const
{
    std::call_once(m_once, [this] {
        m_orthographies = std::make_shared<const std::vector<Orthography>>(readAll());
    });
    return m_orthographies;
}

QByteArray languageTagOf(QByteArrayView fontconfigName)
{
    QList<QByteArray> subtags = fontconfigName.toByteArray().toLower().replace('_', '-').split('-');
    for (qsizetype i = 1; i < subtags.size(); ++i) {
        const bool isRegion = subtags[i].size() == 2;
        const bool isScript = subtags[i].size() == 4;
        subtags[i] = inUpperCase(subtags[i], isRegion ? 2 : isScript ? 1 : 0);
    }
    return subtags.join('-');
}

} // namespace lorva
