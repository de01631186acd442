// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/LaunchOptions.h"

#include "ui/display/BackgroundImages.h"

#include <QCoreApplication>
#include <QList>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(LaunchOptions)
};

tl::unexpected<Error> usage(const QString &detail)
{
    return failure(ErrorKind::usage, detail);
}

Result<QSize> parseSize(const QByteArray &value)
{
    constexpr int kLargest = 16384;
    const auto parts = value.split('x');
    bool hasWidth = false;
    bool hasHeight = false;
    const QSize size(parts.value(0).toInt(&hasWidth), parts.value(1).toInt(&hasHeight));
    if (parts.size() != 2 || !hasWidth || !hasHeight || size.isEmpty()
        || std::max(size.width(), size.height()) > kLargest)
        return usage(Texts::tr("--window-size takes WIDTHxHEIGHT in points, for example 1720x920"));
    return size;
}

Result<ViewMode> parseViewMode(const QByteArray &value)
{
    if (value == "grid")
        return ViewMode::grid;
    if (value == "list")
        return ViewMode::list;
    return usage(Texts::tr("--view takes grid or list"));
}

Result<ColorMode> parseColorMode(const QByteArray &value)
{
    if (value == "white")
        return ColorMode::white;
    if (value == "black")
        return ColorMode::black;
    if (value == "custom")
        return ColorMode::custom;
    if (value == "image")
        return ColorMode::image;
    return usage(Texts::tr("--color takes white, black, custom or image"));
}

Result<LaunchSheet> parseSheet(const QByteArray &value)
{
    if (value == "activate")
        return LaunchSheet::activate;
    if (value == "deactivate")
        return LaunchSheet::deactivate;
    if (value == "history")
        return LaunchSheet::history;
    if (value == "settings")
        return LaunchSheet::settings;
    return usage(Texts::tr("--sheet takes activate, deactivate, history or settings"));
}

Result<DetailStage> parseStage(const QByteArray &value)
{
    if (value == "text")
        return DetailStage::text;
    if (value == "waterfall")
        return DetailStage::waterfall;
    if (value == "comparison")
        return DetailStage::comparison;
    return usage(Texts::tr("--stage takes text, waterfall or comparison"));
}

Result<FontInspectorViewController::Tab> parseInspectorTab(const QByteArray &value)
{
    if (value == "features")
        return FontInspectorViewController::Tab::features;
    if (value == "info")
        return FontInspectorViewController::Tab::info;
    return usage(Texts::tr("--inspector takes features or info"));
}

Result<LaunchQuiz> parseQuiz(const QByteArray &value)
{
    if (value == "intro")
        return LaunchQuiz::intro;
    if (value == "playing")
        return LaunchQuiz::playing;
    if (value == "poster")
        return LaunchQuiz::poster;
    return usage(Texts::tr("--quiz takes intro, playing or poster"));
}

Result<LaunchWelcome> parseWelcome(const QByteArray &value)
{
    if (value == "scene")
        return LaunchWelcome::scene;
    if (value == "card")
        return LaunchWelcome::card;
    return usage(Texts::tr("--welcome takes scene or card"));
}

Result<bool> parseAppearance(const QByteArray &value)
{
    if (value == "light" || value == "dark")
        return value == "dark";
    return usage(Texts::tr("--appearance takes light or dark"));
}

Result<LaunchSource> parseSource(const QByteArray &value)
{
    using Kind = BrowserSource::Kind;
    const struct
    {
        const char *word;
        Kind kind;
    } words[]{{"all", Kind::allFonts},          {"active", Kind::active},
              {"inactive", Kind::inactive},     {"style", Kind::style},
              {"collection", Kind::collection}, {"foundry", Kind::foundry},
              {"discover", Kind::discover}};
    const qsizetype colon = value.indexOf(':');
    const QByteArray place = colon < 0 ? value : value.left(colon);
    const QString text = colon < 0 ? QString() : QString::fromUtf8(value.mid(colon + 1));
    for (const auto &[word, kind] : words)
        if (place == word && BrowserSource::namesGrouping(kind) == !text.isEmpty())
            return LaunchSource{kind, text};
    return usage(
        Texts::tr("--source takes all, active, inactive, style:ID, collection:NAME, foundry:ID "
                  "or discover"));
}

Result<QString> parseImage(const QByteArray &value)
{
    QStringList ids;
    for (const BackgroundImage &image : builtInBackgroundImages()) {
        if (value == image.id)
            return QString::fromUtf8(value);
        ids << QString::fromUtf8(image.id);
    }
    //: Between the words that an option takes.
    const QString comma = Texts::tr(", ");
    return usage(Texts::tr("--image takes one of: %1").arg(ids.join(comma)));
}

Result<int> parseWeight(const QByteArray &value)
{
    bool isNumber = false;
    const int weight = value.toInt(&isNumber);
    if (!isNumber || weight < 100 || weight > 900)
        return usage(Texts::tr("--weight takes a number from 100 to 900"));
    return weight;
}

Result<double> parsePointSize(const QByteArray &value)
{
    bool isNumber = false;
    const double size = value.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(size) || size <= 0)
        return usage(Texts::tr("--point-size takes a positive number of points"));
    return size;
}

/// Moves a parsed value into the options, or gives the error on.
template <class T, class Target>
Result<void> store(Result<T> parsed, Target &target)
{
    if (!parsed)
        return tl::unexpected(parsed.error());
    target = std::move(*parsed);
    return {};
}

/// An option without a value.
struct Flag
{
    const char *name;
    bool LaunchOptions::*member;
};

constexpr Flag kFlags[]{
    {"--help", &LaunchOptions::showsHelp},
    {"-h", &LaunchOptions::showsHelp},
    {"--version", &LaunchOptions::showsVersion},
    {"--no-welcome", &LaunchOptions::skipsWelcome},
};

const Flag *findFlag(const QByteArray &name)
{
    const auto *const found =
        std::ranges::find_if(kFlags, [&](const Flag &flag) { return name == flag.name; });
    return found == std::end(kFlags) ? nullptr : found;
}

/// An option with a value, and where the value goes.
struct Option
{
    const char *name;
    Result<void> (*apply)(LaunchOptions &, const QByteArray &value, const FilePath &workingFolder);
    /// About the library's window, and not about any picture.
    bool isAboutLibrary = true;
};

/// For values that need no working folder.
template <auto Parse, auto Member>
Result<void> parsed(LaunchOptions &options, const QByteArray &value, const FilePath &)
{
    return store(Parse(value), options.*Member);
}

Result<QString> parseText(const QByteArray &value)
{
    return QString::fromUtf8(value);
}

template <auto Member>
Result<void> path(LaunchOptions &options, const QByteArray &value, const FilePath &workingFolder)
{
    options.*Member = FilePath::absolute(value, workingFolder);
    return {};
}

Result<void> addFolder(LaunchOptions &options, const QByteArray &value,
                       const FilePath &workingFolder)
{
    options.folders.push_back(FilePath::absolute(value, workingFolder));
    return {};
}

constexpr Option kOptions[]{
    {"--screenshot", path<&LaunchOptions::screenshot>, false},
    {"--sheet", parsed<parseSheet, &LaunchOptions::sheet>},
    {"--window-size", parsed<parseSize, &LaunchOptions::windowSize>, false},
    {"--appearance", parsed<parseAppearance, &LaunchOptions::isDark>, false},
    {"--folder", addFolder},
    {"--source", parsed<parseSource, &LaunchOptions::source>},
    {"--search", parsed<parseText, &LaunchOptions::searchText>},
    {"--select", parsed<parseText, &LaunchOptions::selectedFamily>},
    {"--detail", parsed<parseText, &LaunchOptions::detailFamily>},
    {"--stage", parsed<parseStage, &LaunchOptions::detailStage>},
    {"--inspector", parsed<parseInspectorTab, &LaunchOptions::inspectorTab>},
    {"--quiz", parsed<parseQuiz, &LaunchOptions::quiz>},
    {"--welcome", parsed<parseWelcome, &LaunchOptions::welcome>},
    {"--view", parsed<parseViewMode, &LaunchOptions::viewMode>},
    {"--color", parsed<parseColorMode, &LaunchOptions::colorMode>},
    {"--image", parsed<parseImage, &LaunchOptions::backgroundImageID>},
    {"--logo", path<&LaunchOptions::logo>},
    {"--point-size", parsed<parsePointSize, &LaunchOptions::pointSize>},
    {"--weight", parsed<parseWeight, &LaunchOptions::weight>},
    {"--text", parsed<parseText, &LaunchOptions::sampleText>},
};

const Option *findOption(const QByteArray &name)
{
    const auto *const found =
        std::ranges::find_if(kOptions, [&](const Option &option) { return name == option.name; });
    return found == std::end(kOptions) ? nullptr : found;
}

/// RFC 3986 "Scheme", followed by an authority or an absolute path, or a file's.
bool isAddress(const QByteArray &argument)
{
    const qsizetype colon = argument.indexOf(':');
    const auto isSchemeByte = [](char byte) {
        return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z')
            || (byte >= '0' && byte <= '9') || byte == '+' || byte == '-' || byte == '.';
    };
    // A single letter is no scheme that anybody has.
    if (colon < 2 || !std::all_of(argument.begin(), argument.begin() + colon, isSchemeByte))
        return false;
    return argument.mid(colon).startsWith(":/") || argument.left(colon).toLower() == "file";
}

void addPlace(LaunchOptions &options, const QByteArray &argument, const FilePath &workingFolder)
{
    if (!isAddress(argument)) {
        options.places.push_back(FilePath::absolute(argument, workingFolder));
        return;
    }
    if (const Result<FilePath> path = FilePath::fromUrl(argument))
        options.places.push_back(*path);
    else
        options.foreignPlaces << FilePath(argument).displayText();
}

/// Reads arguments one after the other.
class Reader
{
public:
    Reader(std::span<const char *const> arguments, const FilePath &workingFolder)
        : m_arguments(arguments)
        , m_workingFolder(workingFolder)
    {
    }

    Result<LaunchOptions> read()
    {
        bool areOptionsOver = false;
        while (m_next < m_arguments.size()) {
            const QByteArray argument(m_arguments[m_next++]);
            if (!areOptionsOver && argument == "--") {
                areOptionsOver = true;
            } else if (areOptionsOver || !argument.startsWith('-')) {
                if (!argument.isEmpty())
                    addPlace(m_options, argument, m_workingFolder);
            } else if (const Result<void> read = readOption(argument); !read) {
                return tl::unexpected(read.error());
            }
        }
        return std::move(m_options);
    }

private:
    Result<void> readOption(QByteArray name)
    {
        std::optional<QByteArray> value;
        if (const qsizetype equals = name.indexOf('='); name.startsWith("--") && equals > 0) {
            value = name.mid(equals + 1);
            name.truncate(equals);
        }
        if (const Flag *const flag = findFlag(name); flag && !value) {
            m_options.*flag->member = true;
            return {};
        }
        const Option *const option = findOption(name);
        if (!option)
            return usage(Texts::tr("unknown argument \"%1\"").arg(FilePath(name).displayText()));
        if (!value && m_next < m_arguments.size())
            value = QByteArray(m_arguments[m_next++]);
        if (!value || value->isEmpty())
            return usage(Texts::tr("%1 needs a value").arg(QString::fromUtf8(name)));
        m_options.isAboutLibrary = m_options.isAboutLibrary || option->isAboutLibrary;
        return option->apply(m_options, *value, m_workingFolder);
    }

    const std::span<const char *const> m_arguments;
    const FilePath &m_workingFolder;
    size_t m_next = 0;
    LaunchOptions m_options;
};

} // namespace

Result<LaunchOptions> parseLaunchOptions(std::span<const char *const> arguments,
                                         const FilePath &workingFolder)
{
    return Reader(arguments, workingFolder).read();
}

} // namespace lorva
