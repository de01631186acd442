// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Any bytes as a picture or a drawing: whatever comes of them keeps to the bounds that were asked
// for.
//
//     build/fuzz/fuzz/lorva_image_fuzzer FILE
#include "ui/display/SafeImage.h"
#include "ui/display/SafeSvg.h"

#include <QGuiApplication>

#include <cstdlib>

using namespace lorva;

/// What fontconfig keeps for good, it takes for a leak.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig";
}

/// Only style sheets can import: elsewhere the word is a word.
static bool importsStyles(const QByteArray &xml)
{
    for (qsizetype start = xml.indexOf("<style"); start >= 0;
         start = xml.indexOf("<style", start + 1)) {
        const qsizetype end = xml.indexOf("</style", start);
        if (xml.mid(start, end < 0 ? -1 : end - start).contains("@import"))
            return true;
    }
    return false;
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // Text in drawings asks for the application's fonts.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*=false");
    static QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr int side = 96;
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    if (const Result<QImage> image = readSafeImage(bytes, side)) {
        if (image->isNull() || image->width() > side || image->height() > side)
            std::abort();
        if (safeImageExtension(bytes).isEmpty())
            std::abort();
    }
    // What was made harmless once has nothing left to lose.
    if (const Result<SafeSvg> svg = sanitizeSvg(bytes)) {
        for (const char *outside : {"<script", "<foreignObject", "<!ENTITY", "href=\"file"}) {
            if (svg->xml.contains(outside))
                std::abort();
        }
        if (importsStyles(svg->xml))
            std::abort();
    }
    return 0;
}
