// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

namespace lorva::cli {

/// What lorvactl says to people, in their language: Texts::tr("…"). What programs read stays as it
/// is: names of commands and options, JSON, and the words between tabs ("copied", "not there"), but
/// for the doctor's findings and for reasons, which are sentences.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(lorvactl)
};

} // namespace lorva::cli
