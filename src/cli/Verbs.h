// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"
#include "cli/Arguments.h"
#include "cli/FamilyNames.h"
#include "cli/Help.h"

#include <QStringList>

#include <functional>

namespace lorva::cli {

/// What the words after "collections", "styles" or "foundries" ask for.
struct VerbRequest
{
    /// The grouping, or its new name.
    QStringList subjects;
    QStringList families;
    std::vector<FilePath> folders;
    FamilyNames::Unknown unknownFamilies = FamilyNames::Unknown::fails;
    bool isJson = false;
    bool isHidden = false;
    bool isOriginal = false;
};

/// One of the things that such a command does.
struct Verb
{
    const char *name;
    int leastSubjects = 0;
    int mostSubjects = 0;
    enum class Families { none, maybe, some } families = Families::none;
    /// The options that it knows: "--json --folder".
    QByteArray options = {};
    std::function<Result<void>(const VerbRequest &)> run;
};

/// Runs the verb that the words begin with, the first one without any, and ends the output; gives
/// the exit code.
int runVerb(std::string_view command, HelpText (*help)(), std::span<const Verb> verbs,
            std::span<const QByteArray> words);

} // namespace lorva::cli
