// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "model/records/DisplayRecords.h"
#include "model/records/Organization.h"

#include <map>

namespace lorva {

/// The whole organisation as one document, for moving a library or keeping it under version
/// control: docs/organization-file.md describes its form.
struct OrganizationFile
{
    static constexpr qint64 kVersion = 1;
    /// What a reader takes in; a library of 100,000 families needs a fortieth of it, and each logo
    /// in the display settings its own size.
    static constexpr qint64 kMostBytes = qint64(256) << 20;

    Organization organization;
    /// By displaySettingsKey().
    std::map<QString, SourceDisplaySettings> displaySettings;
    /// Ids in `organization` that the document does not give, and that were made for it.
    QSet<QString> newIDs;

    bool operator==(const OrganizationFile &) const = default;
};

/// Indented, with every family on a line of its own and everything in an order that does not depend
/// on the machine, so that versions compare well. Names that decodeOrganizationFile() would refuse
/// are repaired. Fails with tooLarge beyond `mostBytes`. Thread: any.
Result<QByteArray> encodeOrganizationFile(const OrganizationFile &file,
                                          qint64 mostBytes = OrganizationFile::kMostBytes);

/// Fails with malformed for what is no JSON or no such document, naming the place, and with
/// unsupported for one of a later version. What it holds is cleaned as if a person had typed it:
/// names on one line, members and ids once, colours and keys of display settings only if they are
/// some. Thread: any.
Result<OrganizationFile> decodeOrganizationFile(QByteArray json);

/// Gives groupings of `file` whose ids are new that of the one in `present` that has the same name:
/// who writes a file by hand means that one. Thread: any.
void adoptIDs(OrganizationFile &file, const Organization &present);

/// Adds what `imported` holds to `organization`. A collection or category of the same id, else of
/// the same name, takes the new members in, any other comes anew; families in one of the imported
/// style categories move there; the imported corrections of a foundry or family win. Thread: any.
void merge(const Organization &imported, Organization &organization);

/// Where the display settings of `imported` belong once it has been merged: those of a collection
/// whose members another one takes in go to that one. `organization` is as before or after merge().
/// Thread: any.
std::map<QString, SourceDisplaySettings> mergedDisplaySettings(const OrganizationFile &imported,
                                                               const Organization &organization);

} // namespace lorva
