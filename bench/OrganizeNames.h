// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"

#include <QHash>

#include <vector>

namespace lorva::bench {

/// The names of a library, as its families and their makers bear them.
struct NamedLibrary
{
    std::vector<FontFamilyRecord> families;
    /// By family name.
    QHash<QString, QString> manufacturers;
};

/// A library of made-up names, the same ones each time: Latin ones, every tenth with accents, every
/// twentieth in Japanese, Korean or Chinese; of 1,500 makers who do not write their own names
/// alike.
NamedLibrary makeNamedLibrary(int families);

} // namespace lorva::bench
