// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ValuePreferenceStore.h"

#include <map>

namespace lorva::test {

/// Preferences that make the last change once more, over what is there by then, as those do that
/// could not write it at first.
class ReplayingPreferences final : public ValuePreferenceStore
{
public:
    void inTransaction(std::function<void()> change) override
    {
        change();
        m_last = std::move(change);
    }
    void makeLastChangeAgain() { m_last(); }

    bool writeWaitingChanges() override { return true; }
    bool takeChangesElsewhere() override { return false; }
    PreferenceStoreStatus status() const override { return {}; }
    int writes() const { return m_writes; }

private:
    std::optional<PreferenceRow> row(const QString &key) const override
    {
        const auto found = m_rows.find(key);
        return found == m_rows.end() ? std::nullopt : std::optional(found->second);
    }
    void setRow(const QString &key, const std::optional<PreferenceRow> &row) override
    {
        ++m_writes;
        m_rows.erase(key);
        if (row)
            m_rows.emplace(key, *row);
    }

    std::map<QString, PreferenceRow> m_rows;
    std::function<void()> m_last;
    int m_writes = 0;
};

} // namespace lorva::test
