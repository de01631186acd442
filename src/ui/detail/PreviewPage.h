// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/DetailSpecimen.h"
#include "ui/detail/SpecimenPage.h"

namespace lorva {

/// The text as the large preview sets it, wrapped to `width`, with its logo. Thread: any.
SpecimenPage previewPage(const DetailSpecimen &specimen, double width);

/// What a file that shows a style may be called, without an ending: "EB Garamond Italic". What
/// file systems refuse in names is replaced, and it is short enough for an ending and a number.
QString specimenFileName(const QString &familyName, const QString &styleName);

} // namespace lorva
