// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva {

class OpenedFile;

/// Loads the libraries that would else be loaded when a glyph of the file first needs them, for
/// processes that cannot open files any more by then. Reads nothing of the font but its first four
/// bytes and whether the name of a table occurs at its beginning; in collections and suitcases, any
/// of whose faces may need them, not even that.
void loadGlyphLibraries(const OpenedFile &file);

} // namespace lorva
