// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "cli/GroupingTexts.h"
#include "model/records/Organization.h"

#include <QHash>
#include <QSet>
#include <QStringList>

namespace lorva::cli {

/// The grouping that families belong to, for errors.
struct FamiliesOf
{
    const GroupingTexts *texts = nullptr;
    QString name;
};

/// Families, to be found by what somebody typed.
class FamilyNames
{
public:
    /// `whole`: what all of them belong to, if they belong to something.
    explicit FamilyNames(const QStringList &names = {}, FamiliesOf whole = {});

    void add(const QStringList &names);
    /// The members of all groupings, also those that this machine lacks.
    void addMembers(const Organization &organization);

    bool contains(const QString &name) const { return m_names.contains(name); }

    enum class Unknown { fails, isKept };
    /// The families meant: each by its name, by its name as lorvactl prints it, or by its name in
    /// another case if that fits one only. Fails at the first that is not to be found; with
    /// isKept, an unknown name stands for itself.
    Result<QStringList> find(const QStringList &typed, Unknown unknown) const;

private:
    Result<QString> find(const QString &typed, Unknown unknown) const;

    Error unknownFamily(const QString &typed) const;

    const FamiliesOf m_whole;
    QSet<QString> m_names;
    QHash<QString, QString> m_nameByPrintedForm;
    QHash<QString, QStringList> m_namesByFoldedForm;
};

} // namespace lorva::cli
