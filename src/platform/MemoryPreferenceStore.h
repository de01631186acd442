// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ValuePreferenceStore.h"

#include <map>

namespace lorva {

/// Preferences that end with the process: for tests, and for runs that must leave no trace.
class MemoryPreferenceStore final : public ValuePreferenceStore
{
public:
    void inTransaction(std::function<void()> change) override { change(); }
    bool writeWaitingChanges() override { return true; }
    bool takeChangesElsewhere() override { return false; }
    PreferenceStoreStatus status() const override;

private:
    std::optional<PreferenceRow> row(const QString &key) const override;
    void setRow(const QString &key, const std::optional<PreferenceRow> &row) override;

    std::map<QString, PreferenceRow> m_rows;
};

} // namespace lorva
