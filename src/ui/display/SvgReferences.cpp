// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/SvgReferences.h"

#include <algorithm>

namespace lorva {

namespace {

/// Elements lie at most 64 deep, and what repeats is seldom repeated in turn.
constexpr int kMostDepth = 256;

void add(SvgReferences::Weight &sum, const SvgReferences::Weight &part)
{
    sum.elements += part.elements;
    sum.bytes += part.bytes;
}

} // namespace

void SvgReferences::begin(const QString &id, const QString &repeatedId, qsizetype bytes)
{
    const size_t index = m_elements.size();
    if (!m_open.empty())
        m_elements[m_open.back()].children.push_back(index);
    Element element;
    element.repeatedId = repeatedId;
    element.own = {1, double(bytes)};
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
    if (m_elements.empty())
        return Weight{};
    if (!expand(0, 0))
        return std::nullopt;
    return m_elements.front().whole;
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
    }
    if (!expandRepeated(element, depth))
        return false;
    element.state = State::known;
    return true;
}

/// Of several elements of one name, the heaviest: which of them is meant is the renderer's affair.
bool SvgReferences::expandRepeated(Element &element, int depth)
{
    if (element.repeatedId.isEmpty())
        return true;
    Weight heaviest;
    const auto [first, last] = m_byId.equal_range(element.repeatedId);
    for (auto it = first; it != last; ++it) {
        if (!expand(*it, depth + 1))
            return false;
        const Weight &whole = m_elements[*it].whole;
        heaviest = {std::max(heaviest.elements, whole.elements),
                    std::max(heaviest.bytes, whole.bytes)};
    }
    add(element.whole, heaviest);
    return true;
}

} // namespace lorva
