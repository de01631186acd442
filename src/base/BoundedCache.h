// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <list>
#include <mutex>
#include <optional>
#include <unordered_map>

namespace lorva {

/// Keeps the `limit` most recently used values.
///
/// Thread: any; every call takes one short lock, so values are handed out as copies (store shared
/// pointers or implicitly shared types).
template <class Key, class Value, class Hash = std::hash<Key>>
class BoundedCache
{
public:
    explicit BoundedCache(size_t limit)
        : m_limit(limit)
    {
    }

    std::optional<Value> find(const Key &key)
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_index.find(key);
        if (found == m_index.end())
            return std::nullopt;
        m_order.splice(m_order.begin(), m_order, found->second);
        return found->second->second;
    }

    void insert(const Key &key, Value value)
    {
        const std::lock_guard lock(m_mutex);
        if (const auto found = m_index.find(key); found != m_index.end()) {
            found->second->second = std::move(value);
            m_order.splice(m_order.begin(), m_order, found->second);
            return;
        }
        m_order.emplace_front(key, std::move(value));
        m_index.emplace(key, m_order.begin());
        if (m_order.size() > m_limit) {
            m_index.erase(m_order.back().first);
            m_order.pop_back();
        }
    }

    void clear()
    {
        const std::lock_guard lock(m_mutex);
        m_index.clear();
        m_order.clear();
    }

    size_t size() const
    {
        const std::lock_guard lock(m_mutex);
        return m_order.size();
    }

private:
    using Entry = std::pair<Key, Value>;
    mutable std::mutex m_mutex;
    const size_t m_limit;
    std::list<Entry> m_order;
    std::unordered_map<Key, typename std::list<Entry>::iterator, Hash> m_index;
};

} // namespace lorva
