// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lorva {

/// The number for people, with the region's digit grouping: "1,340". Thread: any.
QString groupedNumber(qint64 number);

} // namespace lorva
