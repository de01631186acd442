// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"
#include "text/Font.h"

#include <QPainterPath>
#include <QPolygonF>

#include <optional>
#include <string>
#include <vector>

namespace lorva {

/// A letter as it falls. Points, y down, its ink centred on the origin.
struct FallingLetter
{
    QPainterPath outline;
    /// What it is for the physics; never empty.
    std::vector<QPolygonF> parts;
};

/// The first of the characters that the font has and that has an outline; nothing where none has:
/// fonts of pictures, and damaged ones. Ink that is much larger than type of that size is made
/// smaller. Thread: any; see convexParts() for the time it takes.
std::optional<FallingLetter> makeFallingLetter(const Font &font, const std::u32string &characters);

/// Characters worth looking at, in the order in which they are to be tried for the letter with that
/// number. `primaryScript`: the family's, as far as it is known.
std::u32string lettersToTry(int number, std::optional<WritingScript> primaryScript);

} // namespace lorva
