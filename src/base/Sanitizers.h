// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

// GCC tells of its sanitizers by macros, clang by a question.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define LORVA_SHADOW_MEMORY
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)                            \
    || __has_feature(memory_sanitizer)
#define LORVA_SHADOW_MEMORY
#endif
#endif

namespace lorva {

/// Whether a sanitizer keeps books on all memory: they lie terabytes away, memory weighs several
/// times what it does for users, and faults are told on standard error.
#ifdef LORVA_SHADOW_MEMORY
inline constexpr bool kHasShadowMemory = true;
#else
inline constexpr bool kHasShadowMemory = false;
#endif

} // namespace lorva

#undef LORVA_SHADOW_MEMORY
