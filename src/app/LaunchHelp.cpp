// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "app/LaunchHelp.h"

#include "base/HelpText.h"

#include <QCoreApplication>

namespace lorva {

namespace {

constexpr int kColumn = 24;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(LaunchOptions)
};

} // namespace

QString launchHelp()
{
    //: Options begin with "--", and words in capitals stand for what is typed after them; both, and
    //: the words that an option takes, stay as they are.
    return HelpText(Texts::tr("Usage: lorva [options] [FILE|FOLDER]..."), kColumn)
        .paragraph(
            Texts::tr("Shows every font of this computer as a live specimen; font files that are "
                      "given, by path or as a file: address, in a window of their own."))
        .entries(
            {{"--folder DIR", Texts::tr("add the fonts of a folder for this start (repeatable)")},
             {"--source SOURCE",
              Texts::tr("start in all, active, inactive, style:ID, collection:NAME, foundry:ID or "
                        "discover")},
             {"--search TEXT", Texts::tr("start with this text in the search field")},
             {"--select NAME", Texts::tr("start with this family selected")},
             {"--detail NAME", Texts::tr("open this family in the detail view")},
             {"--stage STAGE", Texts::tr("show it as text, waterfall or comparison there")},
             {"--inspector TAB", Texts::tr("show its features or info beside it")},
             {"--quiz PHASE",
              Texts::tr("start in the font quiz: its intro, playing or its poster")},
             {"--welcome scene|card",
              Texts::tr("show the welcome, whether it was seen before or not")},
             {"--no-welcome", Texts::tr("do not show it")},
             {"--view grid|list", Texts::tr("start in this view")},
             {"--point-size N", Texts::tr("start with specimens of this size, in points")},
             {"--weight N", Texts::tr("start with specimens of this weight, 100 to 900")},
             {"--color MODE", Texts::tr("start with white, black or custom colours, or an image")},
             {"--image ID", Texts::tr("start with this background image (--color image)")},
             {"--logo FILE", Texts::tr("start with this image as logo")},
             {"--text TEXT", Texts::tr("start with this sample text")},
             {"--appearance MODE", Texts::tr("light or dark, whatever the desktop is")},
             {"--screenshot FILE",
              Texts::tr("show the window off screen, write its picture as PNG, and quit")},
             {"--window-size WxH",
              Texts::tr(
                  "size of that picture, in points (default 1720x920, of font files 1160x760)")},
             {"--sheet SHEET",
              Texts::tr("open activate, deactivate (for --select), history or settings for it")},
             {"--version", Texts::tr("print the version")},
             {"--help", Texts::tr("print this help")}})
        .paragraph(Texts::tr(
            "If Lorva runs already, its window comes to the front and takes the options over."))
        .paragraph(Texts::tr("QT_SCALE_FACTOR=2 makes the picture twice as dense. "
                             "QT_LOGGING_RULES=\"lorva.*=true\" logs."))
        .paragraph(Texts::tr(
            "LORVA_TRACE=FILE writes down where the time of a start goes, as Chrome trace events."))
        .text();
}

} // namespace lorva
