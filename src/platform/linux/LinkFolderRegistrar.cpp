// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/LinkFolderRegistrar.h"

#include "base/WholeFile.h"
#include "platform/linux/LinkFolder.h"

#include <QCoreApplication>

#include <cerrno>
#include <functional>
#include <system_error>
#include <utility>

namespace lorva {

namespace {

QString cannotRegister(const QString &reason)
{
    return QCoreApplication::translate("LinkFolderRegistrar", "The font cannot be registered: %1")
        .arg(reason);
}

QString cannotUnregister(const QString &reason)
{
    return QCoreApplication::translate("LinkFolderRegistrar",
                                       "The registration cannot be withdrawn: %1")
        .arg(reason);
}

FontManagerError alreadyRegistered(const FilePath &file)
{
    return {FontManagerError::kAlreadyRegistered,
            QCoreApplication::translate("LinkFolderRegistrar", "The font is registered already"),
            {file}};
}

FontManagerError notRegistered(const FilePath &file)
{
    return {FontManagerError::kNotRegistered,
            QCoreApplication::translate("LinkFolderRegistrar", "The font is not registered"),
            {file}};
}

QString systemText(int code)
{
    return QString::fromLocal8Bit(std::generic_category().message(code).c_str());
}

/// Nothing for a file that a link can lead to.
std::optional<FontManagerError> refusalOf(const FilePath &file)
{
    if (file.bytes().startsWith('/') && !file.bytes().contains('\0'))
        return std::nullopt;
    return FontManagerError{
        FontManagerError::kCannotRegister,
        cannotRegister(QCoreApplication::translate("LinkFolderRegistrar", "not an absolute path")),
        {file}};
}

std::optional<FontManagerError> makeLink(const LinkFolder &folder, const FilePath &file)
{
    if (std::optional<FontManagerError> refusal = refusalOf(file))
        return refusal;
    const LinkFolder::Outcome made = folder.makeLink(file);
    switch (made.kind) {
    case LinkFolder::Outcome::done:
        return std::nullopt;
    case LinkFolder::Outcome::nothingToDo:
        return alreadyRegistered(file);
    case LinkFolder::Outcome::nameTaken:
        return FontManagerError{
            FontManagerError::kCannotRegister,
            cannotRegister(QCoreApplication::translate("LinkFolderRegistrar",
                                                       "something else has the name of its link")),
            {file}};
    case LinkFolder::Outcome::failed:
        break;
    }
    return FontManagerError{
        FontManagerError::kCannotRegister, cannotRegister(systemText(made.code)), {file}};
}

/// What has changed is on the disk afterwards; `files` are whose registration that is.
std::optional<FontManagerError> finish(const LinkFolder &folder, std::vector<FilePath> files,
                                       QString (*words)(const QString &))
{
    folder.stamp();
    const int code = folder.flush();
    if (code == 0)
        return std::nullopt;
    return FontManagerError{FontManagerError::kCannotRegister, words(systemText(code)),
                            std::move(files)};
}

std::optional<FontManagerError> removeLink(const LinkFolder &folder, const FilePath &file)
{
    const LinkFolder::Outcome removed = folder.removeLink(file);
    if (removed.kind == LinkFolder::Outcome::failed)
        return FontManagerError{
            FontManagerError::kCannotRegister, cannotUnregister(systemText(removed.code)), {file}};
    return removed.kind == LinkFolder::Outcome::done ? std::nullopt
                                                     : std::optional(notRegistered(file));
}

/// Gets what went wrong with the file just dealt with; false ends the pass.
using AfterLink = std::function<bool(const std::vector<FontManagerError> &)>;

/// Changes the link of each file by `change`, waits for the disk once, and gives what that came to.
std::vector<FontManagerError> changeLinks(
    const LinkFolder &folder, const std::vector<FilePath> &files,
    std::optional<FontManagerError> (*change)(const LinkFolder &, const FilePath &),
    QString (*words)(const QString &), const AfterLink &afterLink)
{
    std::vector<FilePath> changed;
    for (const FilePath &file : files) {
        std::vector<FontManagerError> errors;
        if (std::optional<FontManagerError> error = change(folder, file))
            errors.push_back(*std::move(error));
        else
            changed.push_back(file);
        if (!afterLink(errors))
            break;
    }
    if (changed.empty())
        return {};
    if (std::optional<FontManagerError> error = finish(folder, std::move(changed), words))
        return {*std::move(error)};
    return {};
}

std::vector<FontManagerError> removeLinks(const FilePath &path, const std::vector<FilePath> &files,
                                          const AfterLink &afterLink)
{
    const LinkFolder folder(path);
    const int code = folder.openCode();
    if (code == 0)
        return changeLinks(folder, files, removeLink, cannotUnregister, afterLink);
    if (code != ENOENT && code != ENOTDIR)
        return {{FontManagerError::kCannotRegister, cannotUnregister(systemText(code)), files}};
    for (const FilePath &file : files) {
        if (!afterLink({notRegistered(file)}))
            break;
    }
    return {};
}

/// One pass over an open folder, and one wait for the disk.
std::vector<FontManagerError> makeLinks(const FilePath &path, const std::vector<FilePath> &files,
                                        const AfterLink &afterLink)
{
    if (files.empty())
        return {};
    if (const Result<void> made = makeFolders(path); !made)
        return {{FontManagerError::kCannotRegister, cannotRegister(made.error().detail), files}};
    const LinkFolder folder(path);
    if (folder.openCode() != 0)
        return {{FontManagerError::kCannotRegister, cannotRegister(systemText(folder.openCode())),
                 files}};
    return changeLinks(folder, files, makeLink, cannotRegister, afterLink);
}

using ChangeLinks = std::vector<FontManagerError> (*)(const FilePath &path,
                                                      const std::vector<FilePath> &files,
                                                      const AfterLink &afterLink);

std::optional<FontManagerError> changeOne(ChangeLinks change, const FilePath &path,
                                          const FilePath &file)
{
    std::optional<FontManagerError> first;
    const std::vector<FontManagerError> atTheEnd =
        change(path, {file}, [&first](const std::vector<FontManagerError> &errors) {
            if (!errors.empty())
                first = errors.front();
            return true;
        });
    if (!first && !atTheEnd.empty())
        first = atTheEnd.front();
    return first;
}

/// Tells `progress` of each file, and of errors but those of the code `expected`.
void changeMany(ChangeLinks change, const FilePath &path, const std::vector<FilePath> &files,
                int expected, const FontRegistrar::Progress &progress)
{
    const auto afterLink = [&](std::vector<FontManagerError> errors) {
        std::erase_if(errors,
                      [&](const FontManagerError &error) { return error.code == expected; });
        return progress(errors, false);
    };
    progress(change(path, files, afterLink), true);
}

} // namespace

LinkFolderRegistrar::LinkFolderRegistrar(FilePath linkFolder)
    : m_linkFolder(std::move(linkFolder))
{
}

std::optional<FontManagerError> LinkFolderRegistrar::registerFont(const FilePath &file,
                                                                  RegistrationScope scope)
{
    if (scope == RegistrationScope::process) {
        const std::lock_guard lock(m_mutex);
        if (m_processFonts.contains(file))
            return alreadyRegistered(file);
        m_processFonts.insert(file);
        return std::nullopt;
    }
    return changeOne(makeLinks, m_linkFolder, file);
}

std::optional<FontManagerError> LinkFolderRegistrar::unregisterFont(const FilePath &file,
                                                                    RegistrationScope scope)
{
    if (scope == RegistrationScope::process) {
        const std::lock_guard lock(m_mutex);
        return m_processFonts.remove(file) ? std::nullopt : std::optional(notRegistered(file));
    }
    return changeOne(removeLinks, m_linkFolder, file);
}

void LinkFolderRegistrar::unregisterFonts(const std::vector<FilePath> &files,
                                          const Progress &progress)
{
    changeMany(removeLinks, m_linkFolder, files, FontManagerError::kNotRegistered, progress);
}

void LinkFolderRegistrar::registerFonts(const std::vector<FilePath> &files,
                                        const Progress &progress)
{
    changeMany(makeLinks, m_linkFolder, files, FontManagerError::kAlreadyRegistered, progress);
}

std::vector<FilePath> LinkFolderRegistrar::registeredFonts() const
{
    return LinkFolder(m_linkFolder).targets();
}

void LinkFolderRegistrar::announceChanges()
{
    const LinkFolder folder(m_linkFolder);
    if (folder.openCode() == 0)
        folder.stamp();
}

QByteArray LinkFolderRegistrar::linkName(const FilePath &file)
{
    return LinkFolder::linkName(file);
}

} // namespace lorva
