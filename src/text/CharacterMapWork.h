// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

struct hb_face_t;

namespace lorva {

/// False for a character map (OpenType `cmap`) that claims so many characters, over and over, that
/// listing them would take seconds: HarfBuzz goes through every range of a map, and some hundred
/// thousand ranges may each claim all of Unicode. Thread: any.
bool isCharacterMapWorkable(hb_face_t *face);

} // namespace lorva
