// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"
#include "cli/Arguments.h"

#include <map>

namespace lorva::cli {

class UserActivation;

/// What the words after "activate", "deactivate" or "status" ask for.
struct ActivationRequest
{
    QStringList families;
    std::vector<FilePath> files;
    std::vector<QString> collections;
    std::vector<FilePath> folders;
    bool isDryRun = false;
    bool isJson = false;

    bool isEmpty() const { return families.isEmpty() && files.empty() && collections.empty(); }
};

/// Fails with usage, and for folders that cannot be read.
Result<ActivationRequest> activationRequest(const Arguments &arguments);

/// A family, as far as the command is about it.
struct ActivationSubject
{
    FontFamilyRecord family;
    /// The one file, for somebody who gave that and not a family.
    std::optional<FilePath> givenFile;
};

/// Why files are left out, for people.
using FileReasons = std::map<FilePath, QString>;

struct ActivationSubjects
{
    std::vector<ActivationSubject> subjects;
    /// Given files that hold no font.
    FileReasons unusableFiles;
    /// The catalog that the families were looked up in; empty when only files were given.
    std::vector<FontFamilyRecord> catalog;

    /// The names of the subjects' families, each once.
    QStringList names() const;
};

QStringList namesOf(const std::vector<FontFamilyRecord> &families);

/// Finds what the request is about, every family for an empty one, and tells the service which
/// files lie in watched folders. Members of collections that this machine lacks are left out with a
/// line on standard error; an unknown family or collection fails.
///
/// A given file counts as watched, unless it lies where files are active.
Result<ActivationSubjects> findSubjects(const ActivationRequest &request,
                                        UserActivation &activation);

} // namespace lorva::cli
