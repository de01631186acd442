// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "catalog/FamilyIdentification.h"
#include "text/FontFace.h"

#include <memory>
#include <vector>

namespace lorva::cli {

/// What `lorvactl info` shows of one file.
struct FaceReport
{
    FilePath path;
    /// The sound faces, each in its default instance.
    std::vector<std::shared_ptr<const FontFace>> faces;
    /// Of each family in the file.
    std::vector<FamilyIdentification> families;
};

/// Fails when the file cannot be read, or when it holds no sound face.
Result<FaceReport> reportFaces(const FilePath &path);

QByteArray faceReportJson(const FaceReport &report);
/// Lines that nothing in the font's names can break.
QString faceReportText(const FaceReport &report);

} // namespace lorva::cli
