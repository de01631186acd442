// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/JsonWriter.h"
#include "cli/ActivationSubjects.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Help.h"
#include "cli/Texts.h"
#include "cli/UserActivation.h"
#include "cli/Words.h"
#include "model/records/RecordsJson.h"

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl status [OPTION]... [FAMILY|FILE]..."}, 21)
        .paragraph(Texts::tr(
            "Tells what is available to every program, one line for each family: the name, a tab, "
            "\"active (copied)\", \"active (registered)\", \"active (system)\", \"partly active\" "
            "or \"inactive\". Of families that are named it tells of the files too, each on a line "
            "that begins with a tab: what it is (copied, registered, inactive, system), a tab, the "
            "file; of copies then a tab, and where they came from; of originals that were copied a "
            "tab, and what is active for them. A word with a slash is a file; its families are "
            "then judged by that file alone."))
        .entries(
            {{"--collection NAME",
              Texts::tr("the families of this collection; may be given more than once")},
             {"--folder DIR",
              Texts::tr("take in the fonts below DIR too; may be given more than once")},
             {"--json", Texts::tr("one JSON array of families instead, always with their files")},
             helpEntry()});
}

QString classWord(FileActivationClass meaning)
{
    switch (meaning) {
    case FileActivationClass::copied:
        return QStringLiteral("copied");
    case FileActivationClass::registered:
        return QStringLiteral("registered");
    case FileActivationClass::watchedInactive:
        return QStringLiteral("inactive");
    case FileActivationClass::system:
        break;
    }
    return QStringLiteral("system");
}

QString stateWords(const std::optional<FamilyActivationState> &state)
{
    if (!state)
        return QStringLiteral("inactive");
    if (state->isPartlyInactive)
        return QStringLiteral("partly active");
    if (!state->method)
        return QStringLiteral("active (system)");
    return *state->method == InstallMethod::copy ? QStringLiteral("active (copied)")
                                                 : QStringLiteral("active (registered)");
}

/// Where the copy came from that makes the file active.
std::optional<FilePath> originOf(const FilePath &file, const ActivationBooks &books)
{
    if (books.classify(file) != FileActivationClass::copied)
        return std::nullopt;
    const Result<FilePath> entry = books.fontsFolderEntry(file);
    const QHash<FilePath, FilePath> &origins = books.contents().origins;
    const auto origin = entry ? origins.constFind(*entry) : origins.cend();
    return origin == origins.cend() ? std::nullopt : std::optional(*origin);
}

/// Of a copy where it came from, of an original where its copy is.
QString originWords(const FilePath &file, const ActivationBooks &books)
{
    if (const Result<FilePath> entry = books.fontsFolderEntry(file); entry && *entry != file)
        return QStringLiteral("as ") % singleLine(*entry);
    const std::optional<FilePath> origin = originOf(file, books);
    return origin ? QString(QStringLiteral("from ") % singleLine(*origin))
                  : QStringLiteral("origin unknown");
}

void printFile(const FilePath &file, const ActivationBooks &books)
{
    const FileActivationClass meaning = books.classify(file);
    QString line = u'\t' % classWord(meaning) % u'\t' % singleLine(file);
    if (meaning == FileActivationClass::copied)
        line += u'\t' % originWords(file, books);
    printText(QString(line % u'\n'));
}

void printLines(const ActivationSubjects &found, const ActivationBooks &books, bool hasFiles)
{
    for (const ActivationSubject &each : found.subjects) {
        printText(QString(singleLine(each.family.familyName) % u'\t'
                          % stateWords(books.activationState(each.family)) % u'\n'));
        if (!hasFiles)
            continue;
        for (const FilePath &file : ActivationBooks::filesOf(each.family.styles))
            printFile(file, books);
    }
}

void writeFile(JsonWriter &out, const FilePath &file, const ActivationBooks &books)
{
    out.beginObject();
    out.key("fileURL");
    out.utf8(file.toUrl());
    out.key("class");
    out.string(classWord(books.classify(file)));
    if (const std::optional<FilePath> origin = originOf(file, books)) {
        out.key("originURL");
        out.utf8(origin->toUrl());
    }
    out.endObject();
}

void writeFamily(JsonWriter &out, const FontFamilyRecord &family, const ActivationBooks &books)
{
    const std::optional<FamilyActivationState> state = books.activationState(family);
    out.beginObject();
    out.key("familyName");
    out.string(family.familyName);
    out.key("isActive");
    out.boolean(state.has_value());
    out.key("isPartlyInactive");
    out.boolean(state && state->isPartlyInactive);
    out.key("method");
    if (!state)
        out.null();
    else
        out.string(state->method ? storedName(*state->method) : QStringLiteral("system"));
    out.key("files");
    out.beginArray();
    for (const FilePath &file : ActivationBooks::filesOf(family.styles))
        writeFile(out, file, books);
    out.endArray();
    out.endObject();
}

void printJson(const ActivationSubjects &found, const ActivationBooks &books)
{
    JsonWriter out;
    out.beginArray();
    for (const ActivationSubject &each : found.subjects)
        writeFamily(out, each.family, books);
    out.endArray();
    print(QByteArray(out.take() + '\n'));
}

Result<int> run(const Arguments &arguments)
{
    using Part = OrganizationPart;
    const Result<ActivationRequest> request = activationRequest(arguments);
    if (!request)
        return tl::unexpected(request.error());
    UserActivation activation(UserActivation::Purpose::looks);
    if (const auto checked = activation.checkShown({Part::activation, Part::watchedFolders});
        !checked)
        return tl::unexpected(checked.error());
    const Result<ActivationSubjects> found = findSubjects(*request, activation);
    if (!found)
        return tl::unexpected(found.error());
    const std::shared_ptr<const ActivationBooks> books = activation.service().books();
    if (request->isJson)
        printJson(*found, *books);
    else
        printLines(*found, *books, !request->isEmpty());
    for (const auto &[file, reason] : found->unusableFiles)
        warn(aboutFile(file, reason));
    const int code = finish();
    return found->unusableFiles.empty() ? code : exitFailed;
}

} // namespace

int runStatusCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(words,
                                                         {{"--help", Value::none},
                                                          {"-h", Value::none},
                                                          {"--json", Value::none},
                                                          {"--collection"},
                                                          {"--folder"}});
    if (!arguments)
        return failUsage("status", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    const Result<int> code = run(*arguments);
    return code ? *code : fail("status", code.error());
}

} // namespace lorva::cli
