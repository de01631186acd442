// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontFamilyList.h"

#include <iterator>
#include <optional>

namespace lorva {

/// Some families of a list, in the list's order, without a copy of any: what a source or a search
/// shows of a large library.
///
/// Cheap to copy. Two are equal when they share their list and their places. Thread: any.
class FontFamilySubset
{
public:
    using Places = std::vector<quint32>;

    /// No families.
    FontFamilySubset()
        : m_list(makeFamilyList())
    {
    }
    /// All of them.
    FontFamilySubset(FontFamilyList list)
        : m_list(std::move(list))
    {
    }
    /// Those at `places` of the list, which are valid and ascend.
    FontFamilySubset(FontFamilyList list, Places places)
        : m_list(std::move(list))
        , m_places(std::make_shared<const Places>(std::move(places)))
    {
    }

    size_t size() const { return m_places ? m_places->size() : m_list->size(); }
    bool empty() const { return size() == 0; }
    const FontFamilyRecord &operator[](size_t index) const { return (*m_list)[place(index)]; }
    /// Where the family at `index` stands in the list.
    size_t place(size_t index) const { return m_places ? (*m_places)[index] : index; }
    const FontFamilyList &list() const { return m_list; }

    bool operator==(const FontFamilySubset &) const = default;

    class Iterator
    {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = FontFamilyRecord;
        using difference_type = std::ptrdiff_t;
        using pointer = const FontFamilyRecord *;
        using reference = const FontFamilyRecord &;

        Iterator() = default;
        Iterator(const FontFamilySubset *subset, size_t index)
            : m_subset(subset)
            , m_index(index)
        {
        }
        reference operator*() const { return (*m_subset)[m_index]; }
        pointer operator->() const { return &(*m_subset)[m_index]; }
        Iterator &operator++()
        {
            ++m_index;
            return *this;
        }
        Iterator operator++(int) { return {m_subset, m_index++}; }
        bool operator==(const Iterator &) const = default;

    private:
        const FontFamilySubset *m_subset = nullptr;
        size_t m_index = 0;
    };
    Iterator begin() const { return {this, 0}; }
    Iterator end() const { return {this, size()}; }

private:
    FontFamilyList m_list;
    /// Null: all.
    std::shared_ptr<const Places> m_places;
};

} // namespace lorva
