// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <librsvg/rsvg.h>

#include <memory>

namespace lorva {

/// librsvg and cairo, found when the first SVG glyph is drawn: linked, they and what they bring
/// would cost every start of the program milliseconds and megabytes that hardly any font asks for.
///
/// Stays loaded once it is. Thread: any.
class SvgLibrary
{
public:
    /// Null, for good, where the library is not installed: then no font has SVG glyphs.
    static const SvgLibrary *shared();
    /// Null when there is no library of that name, or one that lacks a function.
    static std::unique_ptr<SvgLibrary> load(const char *fileName);

    decltype(&rsvg_handle_new_from_data) newFromData = nullptr;
    decltype(&rsvg_handle_set_dpi) setDpi = nullptr;
    decltype(&rsvg_handle_get_geometry_for_layer) geometryForLayer = nullptr;
    decltype(&rsvg_handle_render_layer) renderLayer = nullptr;
    decltype(&g_object_unref) unref = nullptr;
    decltype(&g_error_free) freeError = nullptr;
    decltype(&cairo_image_surface_create_for_data) newSurface = nullptr;
    decltype(&cairo_surface_flush) flushSurface = nullptr;
    decltype(&cairo_surface_destroy) destroySurface = nullptr;
    decltype(&cairo_create) newContext = nullptr;
    decltype(&cairo_translate) translate = nullptr;
    decltype(&cairo_status) status = nullptr;
    decltype(&cairo_destroy) destroyContext = nullptr;

private:
    SvgLibrary() = default;
    bool findFunctions(void *library);
};

} // namespace lorva
