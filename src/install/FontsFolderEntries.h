// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/ActivationBooks.h"
#include "install/FontPlaces.h"

namespace lorva {

/// Finds the entry of a Fonts folder that makes a font active. Two unrelated files called
/// Regular.otf must not cost anyone a font: a namesake counts only when it is known to be a copy.
///
/// Holds what it is given for the time of a question. Thread: any; reads the disk.
class FontsFolderEntries
{
public:
    FontsFolderEntries(const ActivationBooks::Contents &contents, const FontPlaces &places)
        : m_contents(contents)
        , m_places(places)
    {
    }

    /// As ActivationBooks::fontsFolderEntry(), for a file that is no link of registration.
    Result<FilePath> entryOf(const FilePath &file) const;

private:
    std::optional<FilePath> linkTo(const FilePath &target) const;
    bool isCopy(const FilePath &entry, const FilePath &target) const;
    Result<FilePath> namesake(const FilePath &file, const FilePath &target) const;

    const ActivationBooks::Contents &m_contents;
    const FontPlaces &m_places;
};

} // namespace lorva
