// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ValuePreferenceStore.h"

#include <map>

namespace lorva::test {

/// Rows in memory; how changes are made is up to the derived one.
class MemoryPreferences : public ValuePreferenceStore
{
public:
    bool writeWaitingChanges() override { return true; }
    bool takeChangesElsewhere() override { return false; }
    PreferenceStoreStatus status() const override { return {}; }

protected:
    void clear() { m_rows.clear(); }

private:
    std::optional<PreferenceRow> row(const QString &key) const override
    {
        const auto found = m_rows.find(key);
        return found == m_rows.end() ? std::nullopt : std::optional(found->second);
    }
    void setRow(const QString &key, const std::optional<PreferenceRow> &row) override
    {
        m_rows.erase(key);
        if (row)
            m_rows.emplace(key, *row);
    }

    std::map<QString, PreferenceRow> m_rows;
};

/// Takes no change while it is told so.
class StubbornPreferences final : public MemoryPreferences
{
public:
    bool refuses = false;

    void inTransaction(std::function<void()> change) override
    {
        if (!refuses)
            change();
    }
};

} // namespace lorva::test
