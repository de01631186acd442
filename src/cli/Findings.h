// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>
#include <vector>

namespace lorva::cli {

/// One thing that the doctor has found.
struct Finding
{
    enum class State {
        well,
        note, ///< worth knowing, but nothing is out of order
        wrong,
    };

    State state = State::well;
    /// A file or a preference key.
    QString about;
    /// For people, one line.
    QString text;
    /// For programs: DoctorCheck::name.
    std::string_view check = {};
};

using Findings = std::vector<Finding>;

} // namespace lorva::cli
