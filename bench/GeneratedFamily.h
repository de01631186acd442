// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <vector>

namespace lorva::bench {

/// One font file of a generated library, by its path below the library's folder.
struct GeneratedFile
{
    QByteArray path;
    QByteArray bytes;
};

/// The files of the family with this number (from 0). Equal numbers give equal bytes, and different
/// ones different family names. Thread: any.
std::vector<GeneratedFile> generateFamily(int number);

} // namespace lorva::bench
