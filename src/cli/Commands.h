// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <span>

namespace lorva::cli {

// One command each: the words after its name in, the exit code out.

int runListCommand(std::span<const QByteArray> words);
int runSearchCommand(std::span<const QByteArray> words);
int runInfoCommand(std::span<const QByteArray> words);
int runScanCommand(std::span<const QByteArray> words);
int runSpecimenCommand(std::span<const QByteArray> words);
int runThumbnailCommand(std::span<const QByteArray> words);
int runCollectionsCommand(std::span<const QByteArray> words);
int runStylesCommand(std::span<const QByteArray> words);
int runFoundriesCommand(std::span<const QByteArray> words);
int runExportCommand(std::span<const QByteArray> words);
int runImportCommand(std::span<const QByteArray> words);
int runActivateCommand(std::span<const QByteArray> words);
int runDeactivateCommand(std::span<const QByteArray> words);
int runStatusCommand(std::span<const QByteArray> words);
int runFoldersCommand(std::span<const QByteArray> words);
int runHistoryCommand(std::span<const QByteArray> words);
int runDoctorCommand(std::span<const QByteArray> words);
int runReportCommand(std::span<const QByteArray> words);
int runUpdatesCommand(std::span<const QByteArray> words);

} // namespace lorva::cli
