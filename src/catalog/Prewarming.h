// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"
#include "text/Font.h"

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace lorva {

class FaceResolver;

/// A family that may be shown next.
struct PrewarmFace
{
    QString familyName;
    /// Absent: the family's default face.
    std::optional<FontStyleRecord> style = {};
    /// Thread: worker. Does once what drawing will do, so that what the engine keeps of it is
    /// there. May be empty: the tables are then read, and no more. Must not touch widgets.
    std::function<void(const Font &)> prepare = {};
};

/// Bounds of one pre-warm. What is on the screen was used before the faces that may come next, and
/// would be let go first, so that these may fill neither the engine's warm tables nor the cache of
/// fonts. Two full screens of the smallest cards on a tall display are some fifty families.
inline constexpr size_t kPrewarmFamilies = 48;
/// Of the files' sizes, which bound the tables read from them: two thirds of what the engine keeps
/// warm. A face that does not fit in is left out.
inline constexpr qint64 kPrewarmFileBytes = qint64(32) << 20;

/// Resolves each distinct family once, in order, into the caches of `resolver`, and reads what
/// drawing needs. Ends early when `stop` is requested. Thread: any, at low priority.
void prewarmFaces(const FaceResolver &resolver, const std::vector<PrewarmFace> &faces,
                  double pointSize, const std::stop_token &stop);

} // namespace lorva
