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
    /// What a reader takes in; a library of 100,000 families needs a tenth of it.
    static constexpr qint64 kMostBytes = qint64(64) << 20;

    Organization organization;
    /// By displaySettingsKey().
    std::map<QString, SourceDisplaySettings> displaySettings;

    bool operator==(const OrganizationFile &) const = default;
};

/// Indented, with every family on a line of its own and everything in an order that does not depend
/// on the machine, so that versions compare well. Thread: any.
QByteArray encodeOrganizationFile(const OrganizationFile &file);

/// Fails with malformed for what is no JSON or no such document, naming the place, and with
/// unsupported for one of a later version. What it holds is cleaned as if a person had typed it:
/// names on one line, members and ids once. Thread: any.
Result<OrganizationFile> decodeOrganizationFile(QByteArray json);

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
