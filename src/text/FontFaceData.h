// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFace.h"
#include "text/FontFileData.h"
#include "text/SfntDirectory.h"

#include <mutex>

namespace lorva {

/// What a face keeps: where its tables are, and what was cheap to read when it was made. Names and
/// metrics follow on first use; thousands of faces are never asked for them.
struct FontFace::Data
{
    struct Details
    {
        FaceNames names;
        std::vector<VariationAxis> axes;
        std::vector<NamedInstance> instances;
    };

    std::shared_ptr<const FontFile::Data> file;
    SfntDirectory directory;
    FaceKey key;
    FaceTraits traits;
    std::vector<VariationSetting> coordinates;
    int glyphCount = 0;

    mutable std::once_flag detailsOnce;
    mutable Details details;
    mutable std::once_flag metricsOnce;
    mutable FaceMetrics metrics;
};

/// Null when the face has no such named instance.
std::unique_ptr<FontFace::Data> readFaceData(const std::shared_ptr<const FontFile::Data> &file,
                                             const OpenedFile &opened, SfntDirectory directory,
                                             FaceKey key);

/// Whether the face's character map has any entry.
bool mapsAnyCharacter(const std::shared_ptr<const FontFile::Data> &file,
                      const SfntDirectory &directory);

} // namespace lorva
