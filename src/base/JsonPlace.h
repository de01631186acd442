// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

namespace lorva {

// The words for a place in a JSON document: families[3].styles["odd key"].weight

/// How a key shows in a place: plain identifiers bare, anything else as ["…"], cut short.
QString placeOfKey(std::string_view key);
QString joinedPlace(const QString &outer, const QString &inner);

} // namespace lorva
