// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Verbs.h"

#include "cli/Console.h"
#include "cli/Input.h"
#include "cli/Library.h"
#include "cli/Texts.h"

#include <algorithm>

namespace lorva::cli {

namespace {

constexpr const char *kOptions[]{"--json", "--hidden", "--original", "--missing", "--folder"};

tl::unexpected<Error> usage(const QString &detail)
{
    return failure(ErrorKind::usage, detail);
}

Result<const Verb *> wantedVerb(std::span<const Verb> verbs, const Arguments &arguments)
{
    if (arguments.positional().empty())
        return &verbs.front();
    const QByteArray &word = arguments.positional().front();
    const auto verb = std::find_if(verbs.begin(), verbs.end(),
                                   [&](const Verb &each) { return word == each.name; });
    if (verb == verbs.end())
        return usage(Texts::tr("unknown verb %1").arg(QString::fromUtf8(word)));
    return &*verb;
}

Result<void> checkOptions(const Verb &verb, const Arguments &arguments)
{
    const QList<QByteArray> known = verb.options.split(' ');
    for (const char *option : kOptions) {
        if (arguments.has(option) && !known.contains(option))
            return usage(
                Texts::tr("%1 takes no %2").arg(QLatin1String(verb.name), QLatin1String(option)));
    }
    return {};
}

Result<void> readSubjects(const Verb &verb, std::span<const QByteArray> words, VerbRequest &request)
{
    for (const QByteArray &word : words) {
        Result<QString> subject = text(verb.name, word);
        if (!subject)
            return tl::unexpected(subject.error());
        if (subject->isEmpty())
            return usage(Texts::tr("%1 takes no empty name").arg(QLatin1String(verb.name)));
        request.subjects.push_back(*std::move(subject));
    }
    return {};
}

Result<void> readWords(const Verb &verb, std::span<const QByteArray> words, VerbRequest &request)
{
    const size_t subjects = std::min(words.size(), size_t(verb.mostSubjects));
    const bool isShort = words.size() < size_t(verb.leastSubjects)
        || (verb.families == Verb::Families::some && words.size() == subjects);
    if (isShort)
        return usage(Texts::tr("%1 needs more words").arg(QLatin1String(verb.name)));
    if (verb.families == Verb::Families::none && words.size() > subjects)
        return usage(Texts::tr("%1 takes fewer words").arg(QLatin1String(verb.name)));
    if (Result<void> read = readSubjects(verb, words.first(subjects), request); !read)
        return read;
    Result<QStringList> families = namedFamilies(words.subspan(subjects));
    if (!families)
        return tl::unexpected(families.error());
    if (verb.families == Verb::Families::some && families->isEmpty())
        return usage(Texts::tr("%1 needs a family, and standard input names none")
                         .arg(QLatin1String(verb.name)));
    request.families = *std::move(families);
    return {};
}

Result<VerbRequest> requestOf(const Verb &verb, const Arguments &arguments)
{
    VerbRequest request;
    if (const Result<void> checked = checkOptions(verb, arguments); !checked)
        return tl::unexpected(checked.error());
    Result<std::vector<FilePath>> folders = givenFolders(arguments);
    if (!folders)
        return tl::unexpected(folders.error());
    request.folders = *std::move(folders);
    request.isJson = arguments.has("--json");
    request.isHidden = arguments.has("--hidden");
    request.isOriginal = arguments.has("--original");
    if (arguments.has("--missing"))
        request.unknownFamilies = FamilyNames::Unknown::isKept;
    const std::span<const QByteArray> words(arguments.positional());
    if (const Result<void> read = readWords(verb, words.subspan(words.empty() ? 0 : 1), request);
        !read)
        return tl::unexpected(read.error());
    return request;
}

Result<void> run(std::span<const Verb> verbs, const Arguments &arguments)
{
    const Result<const Verb *> verb = wantedVerb(verbs, arguments);
    if (!verb)
        return tl::unexpected(verb.error());
    const Result<VerbRequest> request = requestOf(**verb, arguments);
    return request ? (*verb)->run(*request) : tl::unexpected(request.error());
}

} // namespace

int runVerb(std::string_view command, HelpText (*help)(), std::span<const Verb> verbs,
            std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(words,
                                                         {{"--help", Value::none},
                                                          {"-h", Value::none},
                                                          {"--json", Value::none},
                                                          {"--hidden", Value::none},
                                                          {"--original", Value::none},
                                                          {"--missing", Value::none},
                                                          {"--folder"}});
    if (!arguments)
        return failUsage(command, arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    if (const Result<void> done = run(verbs, *arguments); !done)
        return fail(command, done.error());
    return finish();
}

} // namespace lorva::cli
