// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/SvgLibrary.h"

#include <QLoggingCategory>

#include <dlfcn.h>

namespace lorva {

namespace {

Q_LOGGING_CATEGORY(svgLog, "lorva.text.svg", QtWarningMsg)

/// A library's functions are found with those of all that it depends on.
template <class Function>
bool find(void *library, const char *name, Function &function)
{
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

} // namespace

const SvgLibrary *SvgLibrary::shared()
{
    static const std::unique_ptr<SvgLibrary> library = load("librsvg-2.so.2");
    return library.get();
}

std::unique_ptr<SvgLibrary> SvgLibrary::load(const char *fileName)
{
    void *const library = dlopen(fileName, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        qCInfo(svgLog, "SVG glyphs are shown as outlines: %s", dlerror());
        return nullptr;
    }
    std::unique_ptr<SvgLibrary> found(new SvgLibrary);
    if (found->findFunctions(library))
        return found;
    qCInfo(svgLog, "SVG glyphs are shown as outlines: %s is not the library that is meant",
           fileName);
    dlclose(library);
    return nullptr;
}

bool SvgLibrary::findFunctions(void *library)
{
    return find(library, "rsvg_handle_new_from_data", newFromData)
        && find(library, "rsvg_handle_set_dpi", setDpi)
        && find(library, "rsvg_handle_get_geometry_for_layer", geometryForLayer)
        && find(library, "rsvg_handle_render_layer", renderLayer)
        && find(library, "g_object_unref", unref) && find(library, "g_error_free", freeError)
        && find(library, "cairo_image_surface_create_for_data", newSurface)
        && find(library, "cairo_surface_flush", flushSurface)
        && find(library, "cairo_surface_destroy", destroySurface)
        && find(library, "cairo_create", newContext) && find(library, "cairo_translate", translate)
        && find(library, "cairo_status", status) && find(library, "cairo_destroy", destroyContext);
}

} // namespace lorva
