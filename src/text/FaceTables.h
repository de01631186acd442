// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFace.h"
#include "text/SfntDirectory.h"

#include <span>

namespace lorva {

/// One axis of OpenType `fvar`; min ≤ default ≤ max always holds.
struct FvarAxis
{
    FontTag tag = 0;
    double minValue = 0;
    double defaultValue = 0;
    double maxValue = 0;
    bool isHidden = false;
    quint16 nameId = 0;
};

struct FvarInstance
{
    quint16 nameId = 0;
    /// 0xFFFF when the table gives none.
    quint16 postScriptNameId = 0xFFFF;
    /// One value per axis, in axis order.
    std::vector<double> coordinates;
};

/// OpenType `fvar`, at most kMaxVariationAxes axes and kMaxNamedInstances instances. Empty when
/// there is no table or the table cannot be right.
struct FvarTable
{
    std::vector<FvarAxis> axes;
    std::vector<FvarInstance> instances;

    bool isDefault(const FvarInstance &instance) const;
    /// The instance's value of an axis; nothing without such an axis.
    std::optional<double> coordinate(std::span<const double> coordinates, FontTag tag) const;
    std::vector<VariationSetting> settings(std::span<const double> coordinates) const;
    std::vector<double> defaultCoordinates() const;
};

FvarTable readFvar(const OpenedFile &file, const SfntDirectory &directory);

/// Traits of the face without variations: OpenType `OS/2`, `head` and `post`.
FaceTraits readTraits(const OpenedFile &file, const SfntDirectory &directory);

/// The face's traits with those that the coordinates of an instance decide.
FaceTraits traitsOfInstance(FaceTraits traits, const FvarTable &fvar,
                            std::span<const double> coordinates);

/// `maxp` numGlyphs; 0 when it cannot be read.
int readGlyphCount(const OpenedFile &file, const SfntDirectory &directory);

} // namespace lorva
