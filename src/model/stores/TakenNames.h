// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

namespace lorva {

/// The names that the groupings of one kind have, for whoever needs another. Case does not make a
/// name another one. Thread: any.
class TakenNames
{
public:
    void insert(const QString &name);
    bool contains(const QString &name) const;
    /// cleanedName(base) if it is free, else with the lowest number that is ("Untitled 2").
    QString freeName(const QString &base) const;

private:
    QSet<QString> m_comparableNames;
};

} // namespace lorva
