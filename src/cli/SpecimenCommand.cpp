// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Help.h"
#include "cli/SpecimenOptions.h"
#include "cli/Texts.h"

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl specimen FILE -o PICTURE [OPTION]..."}, 21)
        .paragraph(Texts::tr("Draws text in a face of a font file. In an SVG or PDF the letters "
                             "are outlines; no font is embedded."))
        .entries(
            {{"-o PICTURE",
              Texts::tr("what to write, a .png, .svg or .pdf by its name; never a font file")},
             {"--text TEXT", Texts::tr("what to draw; a pangram if not given")},
             {"--face N", Texts::tr("which face of a collection, from 0")},
             {"--instance NAME", Texts::tr("a named instance of a variable face")},
             {"--variations LIST", Texts::tr("values of axes: wght=650,wdth=80")},
             {"--features LIST", Texts::tr("OpenType features: smcp,onum=0,ss01=1,-liga,+dlig")},
             {"--palette N", Texts::tr("which palette of a colour font, from 0")},
             {"--language TAG", Texts::tr("for forms of that language: ja, zh-Hant, sr (BCP 47)")},
             {"--direction ltr | rtl | auto",
              Texts::tr("of the text; auto, by its first letter, if not given")},
             {"--letter-spacing N", Texts::tr("pixels after each letter, -1000 to 1000")},
             {"--size N", Texts::tr("pixels per em, 1 to 4096; 48 if not given")},
             {"--width N",
              Texts::tr("pixels, 1 to 16384; the text wraps. As wide as the text if not given")},
             {"--height N", Texts::tr("pixels, 1 to 16384; as high as the text if not given")},
             {"--color #RRGGBB", Texts::tr("of the text; black if not given")},
             {"--background #RRGGBB | transparent", Texts::tr("white if not given")},
             helpEntry()});
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
        return failure(ErrorKind::usage, Texts::tr("specimen takes one font file"));
    if (arguments.value("-o").value_or(QByteArray()).isEmpty())
        return failure(ErrorKind::usage,
                       Texts::tr("specimen needs a picture to write: -o PICTURE"));
    const auto within = [](int most) {
        return [most](QByteArrayView option, const QByteArray &value) {
            return wholeNumber(option, value, 1, most);
        };
    };
    const auto index = [](QByteArrayView option, const QByteArray &value) {
        return wholeNumber(option, value, 0, 65535);
    };
    const auto size = [](QByteArrayView option, const QByteArray &value) {
        return number(option, value, 1, kMaxSpecimenSize);
    };
    const auto letterSpacing = [](QByteArrayView option, const QByteArray &value) {
        return number(option, value, -kMaxSpecimenLetterSpacing, kMaxSpecimenLetterSpacing);
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
    reader.read("--face", request.faceIndex, index);
    reader.read("--instance", request.instance, text);
    reader.read("--variations", request.variations, variationList);
    reader.read("--features", request.features, featureList);
    reader.read("--palette", request.palette, index);
    reader.read("--language", request.language, languageTag);
    reader.read("--direction", request.direction, textDirection);
    reader.read("--letter-spacing", request.letterSpacing, letterSpacing);
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
                                                          {"--variations"},
                                                          {"--features"},
                                                          {"--palette"},
                                                          {"--language"},
                                                          {"--direction"},
                                                          {"--letter-spacing"},
                                                          {"--size"},
                                                          {"--width"},
                                                          {"--height"},
                                                          {"--color"},
                                                          {"--background"}});
    if (!arguments)
        return failUsage("specimen", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    const Result<SpecimenRequest> request = specimenRequest(*arguments);
    if (!request)
        return failUsage("specimen", request.error().detail);
    const Result<std::vector<QString>> written = writeSpecimen(*request);
    if (!written)
        return fail(written.error().detail);
    for (const QString &note : *written)
        warn(note);
    return finish();
}

} // namespace lorva::cli
