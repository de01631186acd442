// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/LibraryIndex.h"
#include "model/records/BrowserSource.h"
#include "model/records/FontFamilySubset.h"

#include <optional>

namespace lorva {

class LibraryOrganization;

/// What the families of a source were computed from; equal stamps mean an equal answer.
struct SearchBaseStamp
{
    BrowserSource source;
    qint64 catalogGeneration = 0;
    qint64 activationGeneration = 0;
    qint64 membershipGeneration = 0;

    bool operator==(const SearchBaseStamp &) const = default;
};

/// What an answer of visibleFamilies() was computed from.
struct VisibleFamiliesStamp
{
    BrowserSource source;
    QString query;
    qint64 catalogGeneration = 0;
    qint64 activationGeneration = 0;
    qint64 membershipGeneration = 0;

    bool operator==(const VisibleFamiliesStamp &) const = default;
};

/// The library that is asked. The parts that are null are not known yet.
struct LibraryView
{
    FontFamilyList families;
    const LibraryIndex *index = nullptr;
    const FamilyActivations *activations = nullptr;
    const LibraryOrganization &organization;
};

/// Answers which families the browser shows, and keeps the last answers while they hold.
///
/// What is not known yet does not narrow the answer: without the index a search finds everything,
/// and without activations nothing is active or inactive. Thread: main; 10,000 families take a few
/// milliseconds.
class VisibleFamilies
{
public:
    FontFamilySubset answer(const VisibleFamiliesStamp &stamp, const LibraryView &library);

private:
    const FontFamilySubset &base(const SearchBaseStamp &stamp, const LibraryView &library);

    std::optional<SearchBaseStamp> m_baseStamp;
    FontFamilySubset m_base;
    std::optional<VisibleFamiliesStamp> m_visibleFamiliesStamp;
    FontFamilySubset m_cachedVisibleFamilies;
};

} // namespace lorva
