// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontFile.h"

#include "text/FaceDescribing.h"
#include "text/FontFaceData.h"
#include "text/FontFileData.h"
#include "text/FontLimits.h"
#include "text/WarmFaces.h"

#include <QCoreApplication>

#include <algorithm>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontFile)
};

tl::unexpected<Error> named(const FilePath &path, const Error &error)
{
    //: A file, and what is wrong with it.
    return failure(error.kind, Texts::tr("%1: %2").arg(path.displayText(), error.detail));
}

tl::unexpected<Error> notRead(const FilePath &path)
{
    return failure(ErrorKind::ioFailure, Texts::tr("%1: cannot be read").arg(path.displayText()));
}

/// What seems damaged may only not have been read.
tl::unexpected<Error> judged(const OpenedFile &opened, const FilePath &path, const Error &error)
{
    return opened.hasFailed() ? notRead(path) : named(path, error);
}

const TableEntry *characterMap(const SfntDirectory &directory)
{
    const TableEntry *map = directory.find(fontTag('c', 'm', 'a', 'p'));
    return map && map->length <= kMaxCharacterMapBytes ? map : nullptr;
}

bool hasCharacterMap(const std::shared_ptr<const FontFile::Data> &file,
                     const SfntDirectory &directory)
{
    return characterMap(directory) && mapsAnyCharacter(file, directory);
}

/// HarfBuzz decides, as it does in drawing: which subtable counts, symbol fonts, damaged tables.
std::vector<bool> mappedCharacters(const std::shared_ptr<const FontFile::Data> &file,
                                   const SfntDirectory &directory,
                                   std::span<const char32_t> characters)
{
    std::vector<bool> isMapped(characters.size());
    if (!characterMap(directory))
        return isMapped;
    const WarmFace face(file, directory);
    std::transform(characters.begin(), characters.end(), isMapped.begin(),
                   [&](char32_t scalar) { return face.glyphFor(scalar).has_value(); });
    return isMapped;
}

} // namespace

Result<std::shared_ptr<const OpenedFile>> FontFile::Data::reopen() const
{
    {
        const std::lock_guard lock(m_mutex);
        if (auto kept = m_opening.lock())
            return kept;
    }
    auto opened = OpenedFile::open(path);
    if (opened && (*opened)->identity() != identity)
        return failure(ErrorKind::malformed,
                       Texts::tr("%1: has changed while in use").arg(path.displayText()));
    return opened;
}

void FontFile::Data::keepOpen(const std::shared_ptr<const OpenedFile> &opening) const
{
    const std::lock_guard lock(m_mutex);
    m_opening = opening;
}

FontFile::FontFile(std::shared_ptr<const Data> data)
    : m_data(std::move(data))
{
}

FontFile::~FontFile() = default;

Result<std::shared_ptr<const FontFile>> FontFile::open(const FilePath &path)
{
    return openForReading(path).map([](const KeptOpen &opened) { return opened.file; });
}

Result<FontFile::KeptOpen> FontFile::openForReading(const FilePath &path)
{
    return OpenedFile::open(path).and_then(
        [&](const std::shared_ptr<const OpenedFile> &opened) { return read(path, opened); });
}

Result<FontFile::KeptOpen> FontFile::read(const FilePath &path,
                                          std::shared_ptr<const OpenedFile> opening)
{
    auto locations = readFaceLocations(*opening);
    if (!locations)
        return judged(*opening, path, locations.error());
    // The one face of a plain font decides about the file; of several, the sound ones count.
    if (locations->size() == 1) {
        if (const auto directory = readDirectory(*opening, locations->front()); !directory)
            return judged(*opening, path, directory.error());
    }
    auto data = std::make_shared<Data>();
    data->path = path;
    data->identity = opening->identity();
    data->locations = std::move(*locations);
    data->keepOpen(opening);
    return KeptOpen{std::shared_ptr<const FontFile>(new FontFile(std::move(data))),
                    std::move(opening)};
}

const FilePath &FontFile::path() const
{
    return m_data->path;
}

int FontFile::faceCount() const
{
    return int(m_data->locations.size());
}

Result<std::vector<FaceDescriptor>> FontFile::descriptors() const
{
    const auto opened = m_data->reopen();
    if (!opened)
        return tl::unexpected(opened.error());
    std::vector<FaceDescriptor> all;
    Error lastError{ErrorKind::malformed, Texts::tr("has neither names nor a character map")};
    for (int i = 0; i < faceCount() && all.size() < kMaxDescriptorsPerFile; ++i) {
        const auto directory = readDirectory(**opened, m_data->locations[size_t(i)]);
        if (!directory) {
            lastError = directory.error();
            continue;
        }
        const FaceFacts facts = readFaceFacts(**opened, *directory);
        if (!facts.hasReadableName() && !hasCharacterMap(m_data, *directory))
            continue;
        auto faces = describeFace(facts, i, kMaxDescriptorsPerFile - all.size());
        all.insert(all.end(), std::move_iterator(faces.begin()), std::move_iterator(faces.end()));
    }
    if (all.empty())
        return judged(**opened, m_data->path, lastError);
    return all;
}

Result<SfntDirectory> FontFile::directoryOf(const OpenedFile &opened, FaceKey key) const
{
    if (key.faceIndex < 0 || key.faceIndex >= faceCount())
        return failure(ErrorKind::notFound,
                       Texts::tr("%1: has no face number %2")
                           .arg(m_data->path.displayText(), QString::number(key.faceIndex)));
    auto directory = readDirectory(opened, m_data->locations[size_t(key.faceIndex)]);
    if (!directory)
        return named(m_data->path, directory.error());
    return directory;
}

Result<std::shared_ptr<const FontFace>> FontFile::face(FaceKey key) const
{
    const auto opened = m_data->reopen();
    if (!opened)
        return tl::unexpected(opened.error());
    auto directory = directoryOf(**opened, key);
    if (!directory)
        return tl::unexpected(directory.error());
    auto data = readFaceData(m_data, **opened, std::move(*directory), key);
    if (!data)
        return failure(ErrorKind::notFound,
                       Texts::tr("%1: has no named instance number %2")
                           .arg(m_data->path.displayText(), QString::number(key.namedInstance)));
    return std::make_shared<const FontFace>(std::move(data));
}

Result<FaceReach> FontFile::reach(FaceKey key, std::span<const char32_t> characters) const
{
    const auto opened = m_data->reopen();
    if (!opened)
        return tl::unexpected(opened.error());
    // HarfBuzz reads its tables one by one; they all come from this one opening.
    m_data->keepOpen(*opened);
    const auto directory = directoryOf(**opened, key);
    if (!directory)
        return tl::unexpected(directory.error());
    FaceReach reach{mappedCharacters(m_data, *directory, characters),
                    readFamilyNames(**opened, *directory)};
    if ((*opened)->hasFailed())
        return notRead(m_data->path);
    return reach;
}

} // namespace lorva
