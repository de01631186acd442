// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/ScanProgress.h"

#include "base/GroupedNumber.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>

namespace lorva {

namespace {

/// Longer lists help nobody, and must fit a sheet.
constexpr size_t kMostFoldersNamed = 6;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ScanProgress)
};

bool isCounted(const FontScanPhase &phase)
{
    return phase.kind == FontScanPhase::Kind::scanning
        || phase.kind == FontScanPhase::Kind::identifying;
}

/// "%1" is the folder.
QString refusalOf(const Error &error)
{
    switch (error.kind) {
    case ErrorKind::notFound:
        return Texts::tr("“%1” is not there.");
    case ErrorKind::notRegularFile:
        return Texts::tr("“%1” is not a folder.");
    case ErrorKind::permissionDenied:
        return Texts::tr("You do not have permission to look into “%1”.");
    case ErrorKind::invalidValue:
        return Texts::tr("“%1” has a name that is not valid text, so it cannot be remembered.");
    default:
        return Texts::tr("“%1” could not be looked at.");
    }
}

} // namespace

ProgressState scanBegins()
{
    return {Texts::tr("Scanning fonts…"), std::nullopt};
}

ProgressState scanProgress(const FontScanPhase &phase)
{
    std::optional<double> fraction;
    if (isCounted(phase) && phase.total >= 1)
        fraction = std::clamp(double(phase.done) / phase.total, 0.0, 1.0);
    return {phase.text(), fraction};
}

IndexingCompletion indexingCompletion(int newFamilies)
{
    if (newFamilies < 1)
        return {Texts::tr("No new fonts added"),
                Texts::tr("Lorva didn't find any new fonts in the selected location.")};
    return {Texts::tr("Added %1 fonts", nullptr, newFamilies).arg(groupedNumber(newFamilies)),
            Texts::tr("You can find them in your library.")};
}

FolderQuestion watchFoldersQuestion()
{
    return {Texts::tr("Choose one or more folders of font files to include in your library."),
            Texts::tr("Watch"), true};
}

QString folderText(const FilePath &folder)
{
    const QString path = folder.displayText();
    const QString home = QDir::homePath();
    if (path == home)
        return QStringLiteral("~");
    if (path.startsWith(home) && path.at(home.size()) == u'/')
        return QString(u'~' + path.mid(home.size()));
    return path;
}

QString refusedFoldersText(const std::map<FilePath, Error> &failures)
{
    QStringList lines;
    for (const auto &[folder, error] : failures) {
        if (size_t(lines.size()) == kMostFoldersNamed) {
            const int rest = int(failures.size() - kMostFoldersNamed);
            lines.append(Texts::tr("%1 more folders could not be added.", nullptr, rest)
                             .arg(groupedNumber(rest)));
            break;
        }
        lines.append(refusalOf(error).arg(folderText(folder)));
    }
    return lines.join(u'\n');
}

} // namespace lorva
