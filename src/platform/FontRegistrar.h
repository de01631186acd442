// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace lorva {

/// Whom a registration makes a font available to.
enum class RegistrationScope { process, user };

/// Why the font manager refused something.
struct FontManagerError
{
    static constexpr int kCannotRegister = 101;
    static constexpr int kNotRegistered = 104;
    static constexpr int kAlreadyRegistered = 105;

    int code = kCannotRegister;
    /// One line for people, without a final full stop.
    QString detail;
    /// What it is about; empty when it is about the whole call.
    std::vector<FilePath> fontURLs;

    bool operator==(const FontManagerError &) const = default;
};

/// Makes font files available where they lie, and withdraws them again.
///
/// Thread: any; calls may take long on a slow volume, so never the main thread. Files need not be
/// fonts: what no program can read shows nowhere.
class FontRegistrar
{
public:
    virtual ~FontRegistrar() = default;

    /// Nothing when it worked. A file that is registered already: kAlreadyRegistered.
    virtual std::optional<FontManagerError> registerFont(const FilePath &file,
                                                         RegistrationScope scope) = 0;
    /// Nothing when it worked. A file that is not registered: kNotRegistered. The file itself may
    /// have gone.
    virtual std::optional<FontManagerError> unregisterFont(const FilePath &file,
                                                           RegistrationScope scope) = 0;

    /// Called after each file, in their order, and once more at the end, when `isDone`. Gets the
    /// errors since the last call, which may be about earlier files too; calls may come on other
    /// threads, one at a time. Returning false ends it early: the files that follow are left alone.
    using Progress = std::function<bool(const std::vector<FontManagerError> &errors, bool isDone)>;
    /// Registers all `files` in one go, in the user scope. Files that are registered already are no
    /// error. Returns after the last call of `progress`.
    virtual void registerFonts(const std::vector<FilePath> &files, const Progress &progress) = 0;

    /// Withdraws all registrations of the user scope in one go. Files that are not registered are
    /// no error. Otherwise as registerFonts().
    virtual void unregisterFonts(const std::vector<FilePath> &files, const Progress &progress) = 0;

    /// The files that are registered in the user scope, sorted; also those that have gone since.
    virtual std::vector<FilePath> registeredFonts() const = 0;
    /// Lets every program look anew at what is registered.
    virtual void announceChanges() = 0;
};

} // namespace lorva
