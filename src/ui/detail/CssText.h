// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"
#include "ui/detail/DetailSpecimen.h"

namespace lorva {

/// CSS declarations, one a line, that give a web page the face that is shown, with its size,
/// spacing, features and axis values. The same specimen gives the same text; whatever the names
/// hold, it is valid CSS.
///
/// What CSS has a property for goes there, so that it is inherited and overridden one by one:
/// `wght` is font-weight, `wdth` font-stretch (where it is not at its default), `ital` and `slnt`
/// font-style (CSS slants the other way round). Browsers set `opsz` to the font's size by
/// themselves: where it stands elsewhere font-optical-sizing is switched off, or the value given.
/// All other axes that are not at their defaults, and values out of a property's reach, stand in
/// font-variation-settings; features that are not as the font has them by itself in
/// font-feature-settings. Both are sorted by tag. Sizes are pixels of CSS, which are our points.
/// Thread: any.
QString cssText(const DetailSpecimen &specimen, const QString &familyName,
                const FontStyleRecord &style);

} // namespace lorva
