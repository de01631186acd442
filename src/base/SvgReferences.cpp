// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/SvgReferences.h"

#include <algorithm>

namespace lorva {

namespace {

/// Elements lie at most 64 deep, and what repeats is seldom repeated in turn.
constexpr int kMostDepth = 256;

void add(SvgReferences::Weight &sum, const SvgReferences::Weight &part)
{
    sum.elements += part.elements;
    sum.bytes += part.bytes;
    sum.layers += part.layers;
    sum.length += part.length;
    sum.crossings += part.crossings;
}

void raise(SvgReferences::Weight &most, const SvgReferences::Weight &one)
{
    most = {std::max(most.elements, one.elements), std::max(most.bytes, one.bytes),
            std::max(most.layers, one.layers), std::max(most.length, one.length),
            std::max(most.crossings, one.crossings)};
}

} // namespace

void SvgReferences::begin(const QString &id, const QStringList &repeatedIds, const Weight &own)
{
    const size_t index = m_elements.size();
    if (!m_open.empty())
        m_elements[m_open.back()].children.push_back(index);
    Element element;
    element.repeatedIds = repeatedIds;
    element.own = own;
    m_elements.push_back(std::move(element));
    m_open.push_back(index);
    if (!id.isEmpty())
        m_byId.insert(id, index);
}

void SvgReferences::end()
{
    m_open.pop_back();
}

std::optional<SvgReferences::Weight> SvgReferences::expanded()
{
    return m_elements.empty() ? Weight{} : expanded(0);
}

std::optional<SvgReferences::Weight> SvgReferences::expanded(size_t index)
{
    if (!expand(index, 0))
        return std::nullopt;
    return m_elements[index].whole;
}

bool SvgReferences::expand(size_t index, int depth)
{
    Element &element = m_elements[index];
    if (element.state == State::known)
        return true;
    if (element.state == State::open || depth > kMostDepth)
        return false;
    element.state = State::open;
    element.whole = element.own;
    for (const size_t child : element.children) {
        if (!expand(child, depth + 1))
            return false;
        add(element.whole, m_elements[child].whole);
        element.height = std::max(element.height, m_elements[child].height + 1);
    }
    for (const QString &id : element.repeatedIds) {
        if (!id.isEmpty() && !expandRepeated(element, id, depth))
            return false;
    }
    // What was looked at before, from elsewhere, may lie deeper than this call has gone.
    if (element.height > kMostDepth)
        return false;
    element.state = State::known;
    return true;
}

/// Of several elements of one name, the heaviest: which of them is meant is the renderer's affair.
bool SvgReferences::expandRepeated(Element &element, const QString &id, int depth)
{
    const auto known = m_repeated.constFind(id);
    Repeated repeated = known == m_repeated.constEnd() ? Repeated() : *known;
    if (known == m_repeated.constEnd()) {
        const auto [first, last] = m_byId.equal_range(id);
        for (auto it = first; it != last; ++it) {
            if (!expand(*it, depth + 1))
                return false;
            raise(repeated.heaviest, m_elements[*it].whole);
            repeated.height = std::max(repeated.height, m_elements[*it].height + 1);
        }
        m_repeated.insert(id, repeated);
    }
    add(element.whole, repeated.heaviest);
    element.height = std::max(element.height, repeated.height);
    return true;
}

} // namespace lorva
