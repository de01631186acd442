// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QStringList>

#include <span>

namespace lorva::cli {

/// All of standard input; fails with tooLarge beyond `mostBytes`.
Result<QByteArray> readStandardInput(qint64 mostBytes);

/// The families that the words name: the words themselves or, for a lone "-", the lines of standard
/// input. Fails with usage for an empty word and for what is no UTF-8.
Result<QStringList> namedFamilies(std::span<const QByteArray> words);

} // namespace lorva::cli
