// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Thumbnail.h"

#include "base/AtomicFile.h"
#include "catalog/FamilyIdentification.h"
#include "cli/OutputFile.h"
#include "cli/Texts.h"
#include "cli/ThumbnailLetters.h"
#include "cli/ThumbnailPicture.h"
#include "text/color/GlyphLibraries.h"
#include "text/OpenedFile.h"

#include <algorithm>
#include <memory>

namespace lorva::cli {

namespace {

/// Of a damaged collection that many faces are tried.
constexpr int kMostTriedFaces = 8;

/// The script of the face's family, as the catalog sees it.
std::optional<WritingScript> scriptOf(const FontFile &file,
                                      std::span<const FaceDescriptor> descriptors, int faceIndex)
{
    const auto descriptor =
        std::find_if(descriptors.begin(), descriptors.end(),
                     [&](const FaceDescriptor &each) { return each.key.faceIndex == faceIndex; });
    if (descriptor == descriptors.end())
        return std::nullopt;
    const std::vector<FamilyIdentification> families =
        identifyFamilies(file, std::span(&*descriptor, 1), [](const QString &) { return true; });
    return families.empty() ? std::nullopt : families.front().identity.primary;
}

class FontDrawing
{
public:
    explicit FontDrawing(const ThumbnailRequest &request)
        : m_request(request)
    {
    }

    Result<void> open()
    {
        auto opened = OpenedFile::open(m_request.font);
        if (!opened)
            return tl::unexpected(opened.error());
        m_opening = *std::move(opened);
        loadGlyphLibraries(*m_opening);
        return {};
    }

    /// The pixels of drawnThumbnail(): of whatever was done to this process, no more than a picture
    /// comes out.
    Result<QByteArray> draw() const
    {
        const auto read = FontFile::read(m_request.font, m_opening);
        if (!read)
            return tl::unexpected(read.error());
        const FontFile &file = *read->file;
        if (m_request.faceIndex)
            return drawFace(file, *m_request.faceIndex);
        Result<QByteArray> picture = drawFace(file, 0);
        const int faces = std::min(file.faceCount(), kMostTriedFaces);
        for (int i = 1; i < faces && !picture; ++i)
            picture = drawFace(file, i);
        return picture;
    }

private:
    Result<QByteArray> drawFace(const FontFile &file, int index) const
    {
        const auto face = file.face({index, -1});
        if (!face)
            return tl::unexpected(face.error());
        const auto descriptors = file.descriptors();
        const std::optional<WritingScript> script =
            descriptors ? scriptOf(file, *descriptors, index) : std::nullopt;
        for (const ThumbnailLetters &letters : thumbnailLetters(**face, script)) {
            if (const auto picture = drawnThumbnail(*face, letters, m_request.sidePx))
                return QByteArray(reinterpret_cast<const char *>(picture->constBits()),
                                  picture->sizeInBytes());
        }
        return failure(
            ErrorKind::unsupported,
            Texts::tr("%1: has no letters or symbols to show").arg(m_request.font.displayText()));
    }

    const ThumbnailRequest &m_request;
    std::shared_ptr<const OpenedFile> m_opening;
};

} // namespace

Result<void> writeThumbnail(const ThumbnailRequest &request)
{
    if (Result<void> checked = refuseFontFile(request.picture); !checked)
        return checked;
    FontDrawing drawing(request);
    const ConfinedWork work{request.font.displayText(), [&] { return drawing.open(); },
                            [&] { return drawing.draw(); }};
    return runConfined(work, kThumbnailLimits)
        .and_then(
            [&](const QByteArray &pixels) { return encodedThumbnail(pixels, request.sidePx); })
        .and_then([&](const QByteArray &png) { return writeFileAtomically(request.picture, png); });
}

} // namespace lorva::cli
