// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include "model/records/Activation.h"

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <vector>

namespace lorva {

/// Why a file could not be switched on or off.
struct InstallationError
{
    /// Whose `code` it is.
    QString domain;
    int code = 0;
    /// One line for people, without a final full stop.
    QString description;

    /// The domain of this program's own errors.
    static QString ownDomain() { return QStringLiteral("FontInstallation"); }
    /// The domain of the font manager's errors (FontManagerError::code).
    static QString fontManagerDomain() { return QStringLiteral("FontManager"); }

    /// Codes of ownDomain().
    enum Code { otherFailure = 1, fileNotFound = 2, isNotSafe = 3, isBusy = 4 };

    bool operator==(const InstallationError &) const = default;
};

using InstallationFailures = std::map<FilePath, InstallationError>;

/// What a de-activation has taken away, as far as it can be brought back.
struct WithdrawnFonts
{
    struct Copy
    {
        /// Where it lay, in a Fonts folder.
        FilePath entry;
        /// Where it lies in the Trash.
        FilePath place;
        /// Where it was copied from, by the books.
        std::optional<FilePath> origin;
        /// Tells the file from another that lies at `place` later; empty: any is taken for it.
        QByteArray identity = {};
        bool operator==(const Copy &) const = default;
    };
    std::vector<Copy> copies;
    /// Files that are not registered any more.
    std::vector<FilePath> registrations;
    /// How the families were activated, as far as the books knew.
    std::map<QString, InstallMethod> methods;

    bool isEmpty() const { return copies.empty() && registrations.empty(); }
    bool operator==(const WithdrawnFonts &) const = default;
};

/// What became of one run.
struct InstallationOutcome
{
    /// By the path of the file that was handed in.
    InstallationFailures failures;
    /// The families that took part: those that were not in flight already.
    QStringList families;
    /// The files that were copied, registered or withdrawn.
    std::vector<FilePath> filesDone;
    /// Files that already had a namesake in the Fonts folder: left alone, no failure.
    std::vector<FilePath> filesSkipped;
    /// Files that the run did not come to, or not to the end with, because it was cancelled.
    std::vector<FilePath> filesLeft;
    /// Of a de-activation without destination folder: what brings it back.
    WithdrawnFonts withdrawn;
    /// The books are on the disk. False while the preferences are locked or cannot be written: they
    /// then wait in memory, and the journal tells the next process.
    bool areBooksWritten = true;
};

/// What became of registering many files at once.
struct BatchRegistration
{
    InstallationFailures failures;
    /// An error that named no file.
    std::optional<InstallationError> unattributed;
    /// How many of the files, from the first on, were dealt with before it ended.
    size_t filesDealtWith = 0;
};

} // namespace lorva
