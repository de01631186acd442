// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/ComparisonFaces.h"

#include "catalog/RepresentativeStyle.h"
#include "catalog/WeightChoice.h"

#include <algorithm>
#include <atomic>

namespace lorva {

/// What a resolver holds until it answers. Workers only look at `isWanted`.
struct ComparisonFaces::Request
{
    std::atomic<bool> isWanted = true;
    ComparisonFaces *owner = nullptr;
};

namespace {

/// The family as if it had no other styles than those of that slant, and none of them any.
FontFamilyRecord ofSlant(const FontFamilyRecord &family, bool isItalic)
{
    FontFamilyRecord slanted;
    slanted.familyName = family.familyName;
    for (const FontStyleRecord &style : family.styles) {
        if (style.isItalic == isItalic)
            slanted.styles.push_back(style);
    }
    return slanted;
}

void giveUp(const std::vector<ComparisonFaces::Face> &faces)
{
    for (const ComparisonFaces::Face &face : faces) {
        if (face.request)
            face.request->isWanted = false;
    }
}

} // namespace

std::optional<FontStyleRecord> nearestStyle(const FontFamilyRecord &family,
                                            const FontStyleRecord &like)
{
    FontFamilyRecord slanted = ofSlant(family, like.isItalic);
    if (slanted.styles.empty())
        slanted = family;
    if (like.weight != kUnweighted)
        return styleForWeight(slanted, int(std::clamp<qint64>(like.weight, 1, 1000)));
    const FontStyleRecord *plain = representativeStyle(slanted.styles);
    if (plain && plain->weight == kUnweighted)
        return *plain;
    // That weight itself means no choice of weight; a hair above it leads to the same styles.
    return styleForWeight(slanted, kUnweighted + 1);
}

ComparisonFaces::ComparisonFaces(std::shared_ptr<FontResolver> resolver, size_t most)
    : m_resolver(std::move(resolver))
    , m_most(most)
{
}

ComparisonFaces::~ComparisonFaces()
{
    giveUp(m_faces);
}

const FontFamilyRecord *ComparisonFaces::family(const QString &name) const
{
    const auto found = std::ranges::find(m_families, name, &FontFamilyRecord::familyName);
    return found == m_families.end() ? nullptr : &*found;
}

bool ComparisonFaces::setFamilies(const FontFamilySubset &families)
{
    if (families == m_families)
        return false;
    m_families = families;
    if (!families.empty())
        m_names.removeIf([this](const QString &name) { return !family(name); });
    update(true);
    return true;
}

void ComparisonFaces::setStyle(const FontStyleRecord &style)
{
    if (m_style == style)
        return;
    m_style = style;
    update(false);
}

void ComparisonFaces::setNames(const QStringList &names)
{
    QStringList wanted;
    for (const QString &name : names) {
        const bool isKnown = m_families.empty() || family(name);
        if (isKnown && !wanted.contains(name) && size_t(wanted.size()) < m_most)
            wanted << name;
    }
    if (wanted == m_names)
        return;
    m_names = wanted;
    update(false);
}

void ComparisonFaces::update(bool resolvesAnew)
{
    std::vector<Face> before = std::exchange(m_faces, {});
    std::vector<size_t> fresh;
    for (const QString &name : m_names) {
        const FontFamilyRecord *record = family(name);
        if (!record)
            continue;
        Face face{*record, nearestStyle(*record, m_style.value_or(FontStyleRecord())), {}, {}};
        const auto old = std::ranges::find(
            before, name, [](const Face &known) { return known.family.familyName; });
        const bool stays = old != before.end() && old->style == face.style && !resolvesAnew;
        if (stays)
            face.request = std::exchange(old->request, nullptr);
        else
            fresh.push_back(m_faces.size());
        // What was shown before stays until the new font is there: nothing flickers.
        if (old != before.end())
            face.font = old->font;
        m_faces.push_back(std::move(face));
    }
    giveUp(before);
    for (const size_t index : fresh)
        resolve(m_faces[index]);
}

void ComparisonFaces::resolve(Face &face)
{
    const QString name = face.family.familyName;
    if (const auto cached = m_resolver->cachedFont(name, face.style, m_pointSize)) {
        face.font = *cached;
        return;
    }
    const auto request = std::make_shared<Request>();
    request->owner = this;
    face.request = request;
    PendingResolve pending;
    pending.familyName = name;
    pending.style = face.style;
    pending.pointSize = m_pointSize;
    pending.isWanted = [request] { return request->isWanted.load(); };
    pending.completion = [request](const ResolvedFace &resolved) {
        if (request->isWanted)
            request->owner->deliver(*request, resolved.font);
    };
    m_resolver->resolveAsync(std::move(pending));
}

void ComparisonFaces::deliver(const Request &request, const Font &font)
{
    const auto face = std::ranges::find(m_faces, &request,
                                        [](const Face &waiting) { return waiting.request.get(); });
    if (face == m_faces.end())
        return;
    face->font = font;
    face->request.reset();
    if (onDelivery)
        onDelivery();
}

bool ComparisonFaces::isSettled() const
{
    return std::ranges::all_of(m_faces, [](const Face &face) { return !face.request; });
}

} // namespace lorva
