// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <fontconfig/fontconfig.h>

#include <memory>

namespace lorva {

/// Wraps fontconfig's objects, so that each is freed once, on every path.
template <auto destroy>
struct FontconfigDeleter
{
    template <class T>
    void operator()(T *object) const
    {
        destroy(object);
    }
};

using FcConfigHandle = std::unique_ptr<FcConfig, FontconfigDeleter<FcConfigDestroy>>;
using FcPatternHandle = std::unique_ptr<FcPattern, FontconfigDeleter<FcPatternDestroy>>;
using FcFontSetHandle = std::unique_ptr<FcFontSet, FontconfigDeleter<FcFontSetDestroy>>;
using FcStrSetHandle = std::unique_ptr<FcStrSet, FontconfigDeleter<FcStrSetDestroy>>;
using FcStrListHandle = std::unique_ptr<FcStrList, FontconfigDeleter<FcStrListDone>>;
using FcLangSetHandle = std::unique_ptr<FcLangSet, FontconfigDeleter<FcLangSetDestroy>>;

} // namespace lorva
