// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/JsonWriter.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Help.h"
#include "cli/Texts.h"
#include "cli/UserActivation.h"
#include "cli/Words.h"
#include "install/WatchedFontRegistrar.h"

#include <algorithm>

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl folders [list] [--json]", "lorvactl folders add DIR...",
                     "lorvactl folders remove DIR|ID..."})
        .paragraph(Texts::tr(
            "Lists the watched folders, whose fonts belong to your library: the folder, a tab, the "
            "number of font files in it, or \"not there\". Changes are seen at once by a window "
            "that is open; no file is touched. A command is done whole or not at all."))
        .entries({{"add", Texts::tr("watches folders; one that is watched already stays as it is")},
                  {"remove", Texts::tr("ends that; what was activated from there stays active")}})
        .paragraph(Texts::tr("ID is what --json shows."))
        .entries({{"--json",
                   Texts::tr("one JSON array of folders instead of lines; add and remove show what "
                             "they added or removed")},
                  helpEntry()});
}

using Folders = std::vector<WatchedFolder>;
using Part = OrganizationPart;

/// How many font files there are; nothing when the folder is not there.
std::optional<size_t> fontFileCount(const WatchedFolder &folder)
{
    const FilePath url = folderURL(folder);
    if (url.isEmpty() || !resolvedFolder(url))
        return std::nullopt;
    return WatchedFontRegistrar().fontFiles({url}).size();
}

void printJson(const Folders &folders)
{
    JsonWriter out;
    out.beginArray();
    for (const WatchedFolder &each : folders) {
        const std::optional<size_t> count = fontFileCount(each);
        out.beginObject();
        out.key("id");
        out.string(each.id);
        out.key("lastKnownPath");
        out.utf8(each.lastKnownPath.bytes());
        out.key("isThere");
        out.boolean(count.has_value());
        out.key("fontFiles");
        out.integer(qint64(count.value_or(0)));
        out.endObject();
    }
    out.endArray();
    print(QByteArray(out.take() + '\n'));
}

/// The same in every language, for scripts.
QString stateWords(std::optional<size_t> count)
{
    if (!count)
        return QStringLiteral("not there");
    return *count == 1 ? QStringLiteral("1 font file")
                       : QStringLiteral("%1 font files").arg(*count);
}

void printFolders(const Folders &folders, bool isJson)
{
    if (isJson)
        return printJson(folders);
    for (const WatchedFolder &each : folders) {
        const std::optional<size_t> count = fontFileCount(each);
        printText(QString(singleLine(each.lastKnownPath) % u'\t' % stateWords(count) % u'\n'));
    }
}

Result<void> list(std::span<const QByteArray> words, bool isJson)
{
    if (!words.empty())
        return failure(ErrorKind::usage, Texts::tr("list takes fewer words"));
    UserActivation activation(UserActivation::Purpose::looks);
    if (const auto checked = activation.checkShown({Part::watchedFolders}); !checked)
        return checked;
    printFolders(activation.watchedFolders().load(), isJson);
    return activation.user().checkRead();
}

Result<FilePath> folderToAdd(const QByteArray &word)
{
    if (word.isEmpty())
        return failure(ErrorKind::usage, Texts::tr("add takes no empty name"));
    Result<FilePath> folder = resolvedFolder(FilePath::absolute(word));
    if (folder && !folder->isUtf8())
        return failure(ErrorKind::invalidValue,
                       Texts::tr("the path %1 is no UTF-8 text").arg(singleLine(*folder)));
    return folder;
}

Result<void> add(std::span<const QByteArray> words, bool isJson)
{
    std::vector<FilePath> folders;
    for (const QByteArray &word : words) {
        Result<FilePath> folder = folderToAdd(word);
        if (!folder)
            return tl::unexpected(folder.error());
        folders.push_back(*std::move(folder));
    }
    UserActivation activation(UserActivation::Purpose::changes);
    if (const auto checked = activation.checkChanged({Part::watchedFolders}); !checked)
        return checked;
    const Folders added = activation.watchedFolders().add(folders);
    if (const auto written = activation.finishWriting(); !written)
        return written;
    printFolders(added, isJson);
    return {};
}

/// By its id, else by a path to it; that of a folder which has gone must be the one that is listed.
Result<WatchedFolder> wanted(const QByteArray &word, const Folders &folders)
{
    if (word.isEmpty())
        return failure(ErrorKind::usage, Texts::tr("remove takes no empty name"));
    FilePath typed = FilePath::absolute(word);
    while (typed.bytes().size() > 1 && typed.bytes().endsWith('/'))
        typed = FilePath(typed.bytes().chopped(1));
    const Result<FilePath> resolved = resolvedFolder(typed);
    const auto found = std::ranges::find_if(folders, [&](const WatchedFolder &each) {
        return each.id.toUtf8() == word || each.lastKnownPath == typed
            || (resolved && each.lastKnownPath == *resolved);
    });
    if (found != folders.end())
        return *found;
    return failure(ErrorKind::notFound,
                   Texts::tr("there is no watched folder %1").arg(quoted(QString::fromUtf8(word))));
}

Result<Folders> wantedFolders(std::span<const QByteArray> words, const Folders &folders)
{
    Folders found;
    for (const QByteArray &word : words) {
        const Result<WatchedFolder> folder = wanted(word, folders);
        if (!folder)
            return tl::unexpected(folder.error());
        if (!std::ranges::count(found, *folder))
            found.push_back(*folder);
    }
    return found;
}

Result<void> remove(std::span<const QByteArray> words, bool isJson)
{
    UserActivation activation(UserActivation::Purpose::changes);
    if (const auto checked = activation.checkShown({Part::watchedFolders}); !checked)
        return checked;
    // The change may wait, and then outlives this call.
    const auto outcome = std::make_shared<Result<Folders>>();
    PreferenceStore &preferences = activation.user().preferences();
    const std::vector<QByteArray> typed(words.begin(), words.end());
    preferences.inTransaction([&preferences, typed, outcome] {
        WatchedFolderStore store(preferences);
        *outcome = wantedFolders(typed, store.load());
        for (const WatchedFolder &each : outcome->value_or(Folders()))
            store.remove(each.id);
    });
    const Result<Folders> removed = *outcome;
    if (!removed)
        return tl::unexpected(removed.error());
    if (const auto written = activation.finishWriting(); !written)
        return written;
    printFolders(*removed, isJson);
    return {};
}

Result<void> run(const Arguments &arguments)
{
    const std::span<const QByteArray> words(arguments.positional());
    const bool isJson = arguments.has("--json");
    if (words.empty())
        return list({}, isJson);
    const QByteArray &verb = words.front();
    const std::span<const QByteArray> rest = words.subspan(1);
    if (verb == "list")
        return list(rest, isJson);
    const bool isAdd = verb == "add";
    if (!isAdd && verb != "remove")
        return failure(ErrorKind::usage, Texts::tr("unknown verb %1").arg(QString::fromUtf8(verb)));
    if (rest.empty())
        return failure(ErrorKind::usage,
                       Texts::tr("%1 needs a folder").arg(QString::fromUtf8(verb)));
    return isAdd ? add(rest, isJson) : remove(rest, isJson);
}

} // namespace

int runFoldersCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(
        words, {{"--help", Value::none}, {"-h", Value::none}, {"--json", Value::none}});
    if (!arguments)
        return failUsage("folders", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    if (const Result<void> done = run(*arguments); !done)
        return fail("folders", done.error());
    return finish();
}

} // namespace lorva::cli
