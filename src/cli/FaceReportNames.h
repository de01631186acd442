// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFace.h"

namespace lorva::cli {

/// A text that every face has, what it is called for people, for Texts::tr(), and its
/// key in JSON.
struct NamedText
{
    const char *title;
    const char *key;
    QString FaceNames::*member;
};

inline constexpr NamedText kFaceTexts[]{
    {QT_TRANSLATE_NOOP("lorvactl", "Family"), "familyName", &FaceNames::family},
    {QT_TRANSLATE_NOOP("lorvactl", "Style"), "styleName", &FaceNames::style},
    {QT_TRANSLATE_NOOP("lorvactl", "PostScript name"), "postScriptName",
     &FaceNames::postScriptName},
    {QT_TRANSLATE_NOOP("lorvactl", "Full name"), "fullName", &FaceNames::fullName},
    {QT_TRANSLATE_NOOP("lorvactl", "Version"), "version", &FaceNames::version},
    {QT_TRANSLATE_NOOP("lorvactl", "Manufacturer"), "manufacturer", &FaceNames::manufacturer},
    {QT_TRANSLATE_NOOP("lorvactl", "Designer"), "designer", &FaceNames::designer},
    {QT_TRANSLATE_NOOP("lorvactl", "Copyright"), "copyright", &FaceNames::copyright},
};

} // namespace lorva::cli
