// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Specimen.h"

namespace lorva::cli {

namespace {

constexpr char kHelp[] =
    "Usage: lorvactl specimen FILE -o PNG [OPTION]...\n"
    "\n"
    "Draws a line of text in a face of a font file.\n"
    "\n"
    "  -o PNG             the picture to write; never a font file\n"
    "  --text TEXT        what to draw; a pangram if not given\n"
    "  --face N           which face of a collection, from 0\n"
    "  --instance NAME    a named instance of a variable face\n"
    "  --size N           pixels per em, 1 to 4096; 48 if not given\n"
    "  --width N          pixels, 1 to 16384; the text wraps. As wide as the text if not given\n"
    "  --height N         pixels, 1 to 16384; as high as the text if not given\n"
    "  --color #RRGGBB    of the text; black if not given\n"
    "  --background #RRGGBB | transparent\n"
    "                     white if not given\n"
    "  --help             show this help\n";

Result<QColor> color(QByteArrayView option, const QByteArray &value)
{
    const QColor parsed = QColor::fromString(QString::fromUtf8(value));
    if (value.size() != 7 || !value.startsWith('#') || !parsed.isValid()) {
        return failure(
            ErrorKind::usage,
            QStringLiteral("%1 takes a colour as #RRGGBB").arg(QString::fromUtf8(option)));
    }
    return parsed;
}

/// Reads options into a request one after the other; the first failure sticks.
class RequestReader
{
public:
    explicit RequestReader(const Arguments &arguments)
        : m_arguments(arguments)
    {
    }

    template <class Target, class Parse>
    void read(QByteArrayView option, Target &target, Parse &&parse)
    {
        const std::optional<QByteArray> value = m_arguments.value(option);
        if (!value || m_error)
            return;
        if (auto parsed = parse(option, *value))
            target = *std::move(parsed);
        else
            m_error = parsed.error();
    }

    const std::optional<Error> &error() const { return m_error; }

private:
    const Arguments &m_arguments;
    std::optional<Error> m_error;
};

Result<SpecimenRequest> specimenRequest(const Arguments &arguments)
{
    if (arguments.positional().size() != 1)
        return failure(ErrorKind::usage, QStringLiteral("specimen takes one font file"));
    if (arguments.value("-o").value_or(QByteArray()).isEmpty())
        return failure(ErrorKind::usage,
                       QStringLiteral("specimen needs a picture to write: -o PNG"));
    const auto within = [](int most) {
        return [most](QByteArrayView option, const QByteArray &value) {
            return wholeNumber(option, value, 1, most);
        };
    };
    const auto faceIndex = [](QByteArrayView option, const QByteArray &value) {
        return wholeNumber(option, value, 0, 65535);
    };
    const auto size = [](QByteArrayView option, const QByteArray &value) {
        return number(option, value, 1, kMaxSpecimenSize);
    };
    const auto background = [](QByteArrayView option, const QByteArray &value) {
        return value == "transparent" ? Result<QColor>(QColor(Qt::transparent))
                                      : color(option, value);
    };

    SpecimenRequest request;
    request.font = FilePath::absolute(arguments.positional().front());
    request.picture = FilePath::absolute(*arguments.value("-o"));
    RequestReader reader(arguments);
    reader.read("--text", request.text, text);
    reader.read("--face", request.faceIndex, faceIndex);
    reader.read("--instance", request.instance, text);
    reader.read("--size", request.pixelsPerEm, size);
    reader.read("--width", request.width, within(kMaxSpecimenSide));
    reader.read("--height", request.height, within(kMaxSpecimenSide));
    reader.read("--color", request.color, color);
    reader.read("--background", request.background, background);
    if (reader.error())
        return tl::unexpected(*reader.error());
    return request;
}

} // namespace

int runSpecimenCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(words,
                                                         {{"--help", Value::none},
                                                          {"-h", Value::none},
                                                          {"-o"},
                                                          {"--text"},
                                                          {"--face"},
                                                          {"--instance"},
                                                          {"--size"},
                                                          {"--width"},
                                                          {"--height"},
                                                          {"--color"},
                                                          {"--background"}});
    if (!arguments)
        return failUsage("specimen", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h")) {
        print(kHelp);
        return finish();
    }
    const Result<SpecimenRequest> request = specimenRequest(*arguments);
    if (!request)
        return failUsage("specimen", request.error().detail);
    if (const Result<void> written = writeSpecimen(*request); !written)
        return fail(written.error().detail);
    return finish();
}

} // namespace lorva::cli
