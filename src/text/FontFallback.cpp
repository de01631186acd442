// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontFallback.h"

#include "base/Folding.h"
#include "platform/FallbackFontLocator.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// The different clusters of some pages of text; fuller, the memory starts anew.
constexpr qsizetype kMaxAnswers = 4096;
/// A system names some ten fonts for all scripts; each known face holds little but its names.
constexpr qsizetype kMaxFaces = 64;

constexpr FontTag kWeightAxis = fontTag('w', 'g', 'h', 't');

using FacePtr = std::shared_ptr<const FontFace>;

struct Question
{
    std::u32string characters;
    QByteArray language;
    int weight = 400;
    bool isItalic = false;
    bool operator==(const Question &) const = default;
};

size_t qHash(const Question &question, size_t seed = 0)
{
    const QByteArrayView characters(reinterpret_cast<const char *>(question.characters.data()),
                                    qsizetype(question.characters.size() * sizeof(char32_t)));
    return qHashMulti(seed, characters, question.language, question.weight, question.isItalic);
}

struct Place
{
    FallbackFontLocator::Location location;
    bool operator==(const Place &) const = default;
};

size_t qHash(const Place &place, size_t seed = 0)
{
    return qHashMulti(seed, place.location.path, place.location.faceIndex,
                      place.location.namedInstance);
}

int nearestHundred(double weight)
{
    return std::isfinite(weight) ? int(std::clamp(std::round(weight / 100), 1.0, 9.0)) * 100 : 400;
}

int weightOf(const Font &font)
{
    for (const VariationSetting &setting : font.variations()) {
        if (setting.tag == kWeightAxis)
            return nearestHundred(setting.value);
    }
    const double trait = font.face()->traits().weight;
    int nearest = 400;
    for (int weight = 100; weight <= 900; weight += 100) {
        if (std::abs(weightTraitFromClass(weight) - trait)
            < std::abs(weightTraitFromClass(nearest) - trait))
            nearest = weight;
    }
    return nearest;
}

bool needsGlyph(char32_t c)
{
    return !isDefaultIgnorable(c);
}

bool hasAll(const FontFace &face, std::span<const char32_t> characters)
{
    return std::all_of(characters.begin(), characters.end(),
                       [&](char32_t c) { return !needsGlyph(c) || face.glyphFor(c).has_value(); });
}

bool hasFirst(const FontFace &face, std::span<const char32_t> characters)
{
    const auto first = std::find_if(characters.begin(), characters.end(), needsGlyph);
    return first != characters.end() && face.glyphFor(*first).has_value();
}

FacePtr openedFace(const FallbackFontLocator::Location &location)
{
    const auto file = FontFile::open(location.path);
    if (!file)
        return nullptr;
    const auto face = (*file)->face({location.faceIndex, location.namedInstance});
    return face ? *face : nullptr;
}

/// The weight that a variable face should have; a static one has what it has.
std::vector<VariationSetting> variationsFor(const FontFace &face, int weight)
{
    const bool isOwnInstance = !face.coordinates().empty();
    const std::optional<VariationAxis> axis = face.axis(kWeightAxis);
    if (!axis || isOwnInstance)
        return {};
    return {{kWeightAxis,
             std::clamp<double>(weight, std::min(axis->minValue, axis->maxValue),
                                std::max(axis->minValue, axis->maxValue))}};
}

} // namespace

struct FontFallback::Memory
{
    FacePtr face(const FallbackFontLocator::Location &location)
    {
        {
            const std::lock_guard lock(mutex);
            if (const auto known = faces.constFind({location}); known != faces.cend())
                return *known;
        }
        const FacePtr opened = openedFace(location);
        const std::lock_guard lock(mutex);
        if (faces.size() >= kMaxFaces)
            faces.clear();
        // Another thread may have been quicker; one face is one object, so that runs join.
        const auto known = faces.constFind({location});
        return known != faces.cend() ? *known : *faces.insert({location}, opened);
    }

    std::optional<FacePtr> answer(const Question &question)
    {
        const std::lock_guard lock(mutex);
        const auto known = answers.constFind(question);
        return known != answers.cend() ? std::optional(*known) : std::nullopt;
    }

    void remember(const Question &question, const FacePtr &face)
    {
        const std::lock_guard lock(mutex);
        if (answers.size() >= kMaxAnswers)
            answers.clear();
        answers.insert(question, face);
    }

    std::mutex mutex;
    /// A null face: the system has none.
    QHash<Question, FacePtr> answers;
    /// A null face: the file cannot be read.
    QHash<Place, FacePtr> faces;
};

namespace {

/// The best of the located faces that has all characters, else the first one.
template <class Open>
FacePtr bestFace(const FallbackFontLocator &locator, const Question &question, Open open)
{
    FacePtr withFirst;
    for (const auto &location : locator.fontsFor(
             {question.characters, question.language, question.weight, question.isItalic})) {
        FacePtr face = open(location);
        // What a system says of a font's coverage may be out of date.
        if (face && hasAll(*face, question.characters))
            return face;
        if (face && !withFirst && hasFirst(*face, question.characters))
            withFirst = std::move(face);
    }
    return withFirst;
}

} // namespace

FontFallback::FontFallback(std::shared_ptr<const FallbackFontLocator> locator)
    : m_locator(std::move(locator))
    , m_memory(std::make_unique<Memory>())
{
}

FontFallback::~FontFallback() = default;

Font FontFallback::fontFor(std::span<const char32_t> characters, const QByteArray &language,
                           const Font &like) const
{
    if (!m_locator || like.isNull()
        || std::none_of(characters.begin(), characters.end(), needsGlyph))
        return {};
    const Question question{{characters.begin(), characters.end()},
                            language,
                            weightOf(like),
                            like.face()->traits().isItalic};
    std::optional<FacePtr> face = m_memory->answer(question);
    if (!face) {
        face =
            bestFace(*m_locator, question, [this](const FallbackFontLocator::Location &location) {
                return m_memory->face(location);
            });
        m_memory->remember(question, *face);
    }
    if (!*face)
        return {};
    return Font(*face, like.pointSize(), variationsFor(**face, question.weight));
}

} // namespace lorva
