// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QDate>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace lorva {

/// A release of the program, as its makers announce it.
struct Release
{
    /// Numbers with dots between them: "1.2.0".
    QString version;
    QDate date;
    /// Where it is described and offered; https.
    QUrl page;
    /// What is new, in a sentence or two; may be empty.
    QString summary;

    bool operator==(const Release &) const = default;
};

/// What came of a look that the user asked for.
struct UpdateOutcome
{
    /// The newest release; for `newer` one that is newer than the running program.
    enum class Kind { newer, upToDate, failed };
    Kind kind = Kind::failed;
    /// Absent where it failed.
    std::optional<Release> release = std::nullopt;
    /// Where it failed.
    std::optional<Error> error = std::nullopt;

    bool operator==(const UpdateOutcome &) const = default;
};

/// Looks for newer releases of the program. Nothing is downloaded or installed. Thread: main.
class UpdaterController
{
public:
    virtual ~UpdaterController() = default;
    /// From here on the user can ask. Called once.
    virtual Result<void> start() = 0;
    /// Whether the user can ask for a look now; never before start(), nor while one runs.
    virtual bool canCheckForUpdates() const = 0;
    /// The user asks for a look; onOutcome is called once, later.
    virtual void checkForUpdates() = 0;
    /// Ends a look that runs; onOutcome is not called for it.
    virtual void cancelCheck() { }

    std::function<void(const UpdateOutcome &)> onOutcome;
};

/// For a build whose updates come from elsewhere, such as a distribution's packages.
class AbsentUpdaterController final : public UpdaterController
{
public:
    Result<void> start() override { return {}; }
    bool canCheckForUpdates() const override { return false; }
    void checkForUpdates() override { }
};

} // namespace lorva
