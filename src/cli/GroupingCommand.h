// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "cli/GroupingTexts.h"
#include "cli/Help.h"
#include "cli/PreferenceKeys.h"
#include "model/records/Organization.h"

#include <QByteArray>

#include <span>
#include <string_view>

namespace lorva::cli {

/// What collections and style categories have in common.
struct GroupingKind
{
    std::string_view command;
    GroupingTexts texts;
    OrganizationPart part;
    /// All groupings, in their order; the record is the shape that both share.
    std::vector<FontCollectionRecord> (*groupings)(const Organization &);
    Result<void> (*create)(Organization &, const QString &id, const QString &name);
    Result<void> (*rename)(Organization &, const QString &id, const QString &name);
    Result<void> (*remove)(Organization &, const QString &id);
    Result<void> (*addFamilies)(Organization &, const QString &id, const QStringList &families);
    /// The families are members.
    Result<void> (*removeFamilies)(Organization &, const QString &id, const QStringList &families);
    Result<void> (*setFamilies)(Organization &, const QString &id, const QStringList &families);
};

/// The verbs list, create, rename, delete, add, remove and set; gives the exit code.
int runGroupingCommand(const GroupingKind &kind, HelpText (*help)(),
                       std::span<const QByteArray> words);

} // namespace lorva::cli
