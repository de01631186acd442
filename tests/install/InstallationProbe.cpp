// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// installation_probe ROOT OPERATION CALL: makes one run over the files of ROOT/watched, and dies at
// its CALLth call that changes anything, counted from the beginning of the run. Prints the number
// of calls of a run that came to its end. ROOT/home is the user's home, with XDG_DATA_HOME in it.
#include "FaultyCalls.h"
#include "install/FontFolderWalk.h"
#include "InstallationSupport.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

int main(int count, char **arguments)
{
    using namespace lorva;
    using namespace lorva::test;
    if (count != 4)
        return 2;
    // Nobody is left to end it when the test itself has ended early.
    ::alarm(120);
    const QCoreApplication application(count, arguments);
    const FilePath root{QByteArray(arguments[1])};
    const QByteArray operation(arguments[2]);
    const std::vector<FilePath> files = fontFilesInFolder(root.child("watched"));
    const std::vector<FontFamilyRecord> families{familyOf(QStringLiteral("Family"), files)};

    InstallingProcess process(foldersBelow(root));
    process.watch(QSet<FilePath>(files.begin(), files.end()));
    const WithdrawnFonts withdrawn =
        operation == "restore" ? process.deactivate(families).withdrawn : WithdrawnFonts();
    const FaultyCalls calls(root.child("home"), std::atoi(arguments[3]), FaultyCalls::kDeath);
    if (operation == "copy")
        process.copy(families);
    else if (operation == "register")
        process.registerInPlace(families);
    else if (operation == "deactivate")
        process.deactivate(families);
    else if (operation == "restore")
        process.restore(withdrawn, {QStringLiteral("Family")});
    else if (operation == "move")
        process.deactivate(families, root.child("home").child("moved"));
    else
        return 2;
    std::printf("%d\n", FaultyCalls::count());
    return 0;
}
