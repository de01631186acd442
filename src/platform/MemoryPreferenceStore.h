// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ValuePreferenceStore.h"

namespace lorva {

/// Preferences that end with the process: for tests, and for runs that must leave no trace.
class MemoryPreferenceStore final : public ValuePreferenceStore
{
public:
    void inTransaction(const std::function<void()> &change) override { change(); }

private:
    std::optional<PreferenceValue> value(const QString &key) const override;
    void setValue(const QString &key, const std::optional<PreferenceValue> &value) override;

    QHash<QString, PreferenceValue> m_values;
};

} // namespace lorva
