// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Help.h"
#include "cli/Texts.h"
#include "cli/Thumbnail.h"

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl thumbnail [--size PX] [--face N] FONT PICTURE"}, 14)
        .paragraph(Texts::tr(
            "Draws the picture of a font that file managers show: \"Aa\", or letters or symbols of "
            "the font's own script, on a square sheet, written as PNG. FONT is a file or its file: "
            "address. It is read in a process that can do nothing but read and draw, within bounds "
            "of time and memory; for a font that cannot be shown nothing is written."))
        .entries({{"--size PX", Texts::tr("pixels each way, 16 to 2048; 256 if not given")},
                  {"--face N",
                   Texts::tr("which face of a collection, from 0; the first that can be drawn if "
                             "not given")},
                  helpEntry()});
}

Result<FilePath> fontFile(const QByteArray &word)
{
    if (word.toLower().startsWith("file:"))
        return FilePath::fromUrl(word);
    return FilePath::absolute(word);
}

Result<ThumbnailRequest> thumbnailRequest(const Arguments &arguments)
{
    const std::vector<QByteArray> &words = arguments.positional();
    if (words.size() != 2 || words[0].isEmpty() || words[1].isEmpty())
        return failure(ErrorKind::usage,
                       Texts::tr("thumbnail takes a font file and a picture to write"));
    const Result<FilePath> font = fontFile(words[0]);
    if (!font)
        return tl::unexpected(font.error());
    ThumbnailRequest request;
    request.font = *font;
    request.picture = FilePath::absolute(words[1]);
    const auto take = [&](QByteArrayView option, int least, int most, auto &target) {
        const std::optional<QByteArray> value = arguments.value(option);
        const Result<int> whole = value ? wholeNumber(option, *value, least, most) : Result<int>(0);
        if (value && whole)
            target = *whole;
        return whole;
    };
    return take("--size", kLeastThumbnailSide, kMostThumbnailSide, request.sidePx)
        .and_then([&](int) { return take("--face", 0, 65535, request.faceIndex); })
        .map([&](int) { return request; });
}

} // namespace

int runThumbnailCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(
        words, {{"--help", Value::none}, {"-h", Value::none}, {"--size"}, {"--face"}});
    if (!arguments)
        return failUsage("thumbnail", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    const Result<ThumbnailRequest> request = thumbnailRequest(*arguments);
    if (!request)
        return fail("thumbnail", request.error());
    if (const Result<void> written = writeThumbnail(*request); !written)
        return fail(written.error().detail);
    return finish();
}

} // namespace lorva::cli
