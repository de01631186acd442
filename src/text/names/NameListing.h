// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FaceInformation.h"

namespace lorva {

/// Every text of OpenType `name` with its language: Windows and Macintosh language ids, the
/// language-tag records of format 1, and for Unicode records Apple's `ltag`. Records that say the
/// same in the same language are told once; the first one's place counts.
///
/// Thread: any. Hostile tables: at most kMaxNameRecords records, each cut at kMaxLongNameBytes;
/// what points outside the table or holds no visible text is left out.
std::vector<LocalizedName> listNames(QByteArrayView nameTable, QByteArrayView languageTagTable);

} // namespace lorva
