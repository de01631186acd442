// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/LaunchOptions.h"

#include <QList>

#include <cmath>

namespace lorva {

namespace {

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
        return usage(
            QStringLiteral("--window-size takes WIDTHxHEIGHT in points, for example 1720x920"));
    return size;
}

Result<ViewMode> parseViewMode(const QByteArray &value)
{
    if (value == "grid")
        return ViewMode::grid;
    if (value == "list")
        return ViewMode::list;
    return usage(QStringLiteral("--view takes grid or list"));
}

Result<ColorMode> parseColorMode(const QByteArray &value)
{
    if (value == "white")
        return ColorMode::white;
    if (value == "black")
        return ColorMode::black;
    if (value == "custom")
        return ColorMode::custom;
    return usage(QStringLiteral("--color takes white, black or custom"));
}

Result<double> parsePointSize(const QByteArray &value)
{
    bool isNumber = false;
    const double size = value.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(size) || size <= 0)
        return usage(QStringLiteral("--point-size takes a positive number of points"));
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

Result<void> applyOption(LaunchOptions &options, const QByteArray &name, const QByteArray &value,
                         const FilePath &workingFolder)
{
    if (name == "--screenshot")
        return store(Result<FilePath>(FilePath::absolute(value, workingFolder)),
                     options.screenshot);
    if (name == "--window-size")
        return store(parseSize(value), options.windowSize);
    if (name == "--view")
        return store(parseViewMode(value), options.viewMode);
    if (name == "--color")
        return store(parseColorMode(value), options.colorMode);
    if (name == "--point-size")
        return store(parsePointSize(value), options.pointSize);
    if (name == "--text")
        return store(Result<QString>(QString::fromUtf8(value)), options.sampleText);
    options.folders.push_back(FilePath::absolute(value, workingFolder));
    return {};
}

bool takesValue(const QByteArray &name)
{
    return name == "--screenshot" || name == "--window-size" || name == "--view"
        || name == "--color" || name == "--point-size" || name == "--text" || name == "--folder";
}

} // namespace

Result<LaunchOptions> parseLaunchOptions(std::span<const char *const> arguments,
                                         const FilePath &workingFolder)
{
    LaunchOptions options;
    for (size_t i = 0; i < arguments.size(); ++i) {
        QByteArray name(arguments[i]);
        std::optional<QByteArray> value;
        if (const qsizetype equals = name.indexOf('='); name.startsWith("--") && equals > 0) {
            value = name.mid(equals + 1);
            name.truncate(equals);
        }
        if (name == "--help" || name == "-h") {
            options.showsHelp = true;
            continue;
        }
        if (name == "--version") {
            options.showsVersion = true;
            continue;
        }
        if (!takesValue(name))
            return usage(
                QStringLiteral("unknown argument \"%1\"").arg(FilePath(name).displayText()));
        if (!value && i + 1 < arguments.size())
            value = QByteArray(arguments[++i]);
        if (!value || value->isEmpty())
            return usage(QStringLiteral("%1 needs a value").arg(QString::fromUtf8(name)));
        if (const auto applied = applyOption(options, name, *value, workingFolder); !applied)
            return tl::unexpected(applied.error());
    }
    return options;
}

QString launchHelp()
{
    return QStringLiteral(R"(Usage: lorva [options]

Shows every font of this computer as a live specimen.

  --folder DIR          add the fonts of a folder for this start (repeatable)
  --view grid|list      start in this view
  --point-size N        start with specimens of this size, in points
  --color MODE          start with white, black or custom colours
  --text TEXT           start with this sample text
  --screenshot FILE     show the window off screen, write its picture as PNG, and quit
  --window-size WxH     size of that picture, in points (default 1720x920)
  --version             print the version
  --help                print this help

QT_SCALE_FACTOR=2 makes the picture twice as dense. QT_LOGGING_RULES="lorva.*=true" logs.
LORVA_TRACE=FILE writes down where the time of a start goes, as Chrome trace events.
)");
}

} // namespace lorva
