// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ActivationReport.h"
#include "cli/Help.h"
#include "cli/UserActivation.h"

#include <span>

namespace lorva::cli {

/// A command that switches fonts on or off: finds what it is about, has it switched and tells what
/// became of it. What is switched, and how, is the derived class's. Thread: main; for one run.
class SwitchingCommand
{
public:
    /// `option`: the one, with a value, that no other command has.
    SwitchingCommand(std::string_view name, HelpText (*help)(), QByteArray option);
    virtual ~SwitchingCommand();
    SwitchingCommand(const SwitchingCommand &) = delete;
    SwitchingCommand &operator=(const SwitchingCommand &) = delete;

    /// The words after the command's name in, the exit code out.
    int run(std::span<const QByteArray> words);

protected:
    using Families = std::vector<FontFamilyRecord>;

    /// Reads the command's own option, before fonts are looked up.
    virtual Result<void> readOption(const Arguments &arguments, UserActivation &activation) = 0;
    /// The families that take part, each with its styles whose files are to be switched.
    virtual Families choose(const ActivationSubjects &found, const ActivationBooks &books,
                            FileReasons &failures) const = 0;
    /// Tells what act() would do with `files`.
    virtual void plan(const std::vector<FilePath> &files, const ActivationBooks &books,
                      ActivationReport &report) const = 0;
    /// Switches the files of these families, and tells what became of them.
    virtual void act(Families families, UserActivation &activation,
                     ActivationReport &report) const = 0;
    /// What there is to say when nothing was to be done for the families asked for.
    virtual QString nothingToDo(const QStringList &asked) const = 0;

private:
    Result<int> perform(const Arguments &arguments);
    ActivationReport switchAll(const ActivationSubjects &found, bool isDryRun,
                               UserActivation &activation) const;

    const std::string_view m_name;
    HelpText (*const m_help)();
    const QByteArray m_option;
};

/// The families of `found` that take part in their state, each with its styles whose files are
/// chosen; none without such a style.
std::vector<FontFamilyRecord> chosenFamilies(
    const ActivationSubjects &found, const ActivationBooks &books,
    const std::function<bool(const std::optional<FamilyActivationState> &)> &takesPart,
    const std::function<bool(const FilePath &)> &isChosen);

} // namespace lorva::cli
