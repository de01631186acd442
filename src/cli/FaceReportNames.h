// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFace.h"

namespace lorva::cli {

/// A text that every face has, what it is called for people, and its key in JSON.
struct NamedText
{
    const char *title;
    const char *key;
    QString FaceNames::*member;
};

inline constexpr NamedText kFaceTexts[]{
    {"Family", "familyName", &FaceNames::family},
    {"Style", "styleName", &FaceNames::style},
    {"PostScript name", "postScriptName", &FaceNames::postScriptName},
    {"Full name", "fullName", &FaceNames::fullName},
    {"Version", "version", &FaceNames::version},
    {"Manufacturer", "manufacturer", &FaceNames::manufacturer},
    {"Designer", "designer", &FaceNames::designer},
    {"Copyright", "copyright", &FaceNames::copyright},
};

} // namespace lorva::cli
