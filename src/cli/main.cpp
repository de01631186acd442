// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Console.h"

#include <QByteArray>

#include <algorithm>
#include <clocale>
#include <vector>

namespace {

constexpr char kHelp[] = "Usage: lorvactl COMMAND [OPTION]...\n"
                         "\n"
                         "  list       list the font families of this machine\n"
                         "  scan       read the fonts that changed, and tell what that took\n"
                         "  info       show what a font file says about its faces\n"
                         "  specimen   draw text in a font as a PNG picture\n"
                         "\n"
                         "  --help     show this help; also after a command\n"
                         "  --version  show the version\n"
                         "\n"
                         "Exit status: 0 done, 1 failed, 2 the command was not understood.\n";

struct Command
{
    const char *name;
    int (*run)(std::span<const QByteArray> words);
};

constexpr Command kCommands[]{
    {"list", lorva::cli::runListCommand},
    {"scan", lorva::cli::runScanCommand},
    {"info", lorva::cli::runInfoCommand},
    {"specimen", lorva::cli::runSpecimenCommand},
};

} // namespace

int main(int argc, char **argv)
{
    using namespace lorva::cli;
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_NUMERIC, "C");
    const std::vector<QByteArray> words(argv + std::min(argc, 1), argv + argc);
    if (words.empty())
        return failUsage({}, QStringLiteral("a command is missing"));
    const QByteArray &first = words.front();
    if (first == "--help" || first == "-h" || first == "help") {
        print(kHelp);
        return finish();
    }
    if (first == "--version") {
        print("lorvactl " LORVA_VERSION "\n");
        return finish();
    }
    const auto command = std::find_if(std::begin(kCommands), std::end(kCommands),
                                      [&](const Command &each) { return first == each.name; });
    if (command == std::end(kCommands))
        return failUsage({}, QStringLiteral("unknown command ") + QString::fromUtf8(first));
    return command->run(std::span(words).subspan(1));
}
