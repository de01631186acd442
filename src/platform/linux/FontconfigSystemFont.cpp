// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/FontconfigSystemFont.h"

#include "platform/linux/FontconfigHandles.h"
#include "platform/linux/InterfaceFamilies.h"

#include <cstring>

namespace lorva {

namespace {

const FcChar8 *fontconfigText(const char *text)
{
    return reinterpret_cast<const FcChar8 *>(text);
}

/// What an upright interface text asks for.
FcPatternHandle interfacePattern(FcConfig *config)
{
    FcPatternHandle pattern(FcPatternCreate());
    for (const QByteArray &family : configuredInterfaceFamilies())
        FcPatternAddString(pattern.get(), FC_FAMILY, fontconfigText(family.constData()));
    FcPatternAddString(pattern.get(), FC_FAMILY, fontconfigText("system-ui"));
    FcPatternAddString(pattern.get(), FC_FAMILY, fontconfigText("sans-serif"));
    FcPatternAddBool(pattern.get(), FC_OUTLINE, FcTrue);
    FcConfigSubstitute(config, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    return pattern;
}

bool isReadableFormat(const FcPattern *font)
{
    FcChar8 *format = nullptr;
    if (FcPatternGetString(font, FC_FONTFORMAT, 0, &format) != FcResultMatch)
        return false;
    const char *const name = reinterpret_cast<const char *>(format);
    return std::strcmp(name, "TrueType") == 0 || std::strcmp(name, "CFF") == 0;
}

SystemFontLocator::Location locationOf(const FcPattern *font)
{
    FcChar8 *file = nullptr;
    int index = 0;
    if (FcPatternGetString(font, FC_FILE, 0, &file) != FcResultMatch)
        return {};
    FcPatternGetInteger(font, FC_INDEX, 0, &index);
    // The upper half numbers the named instances.
    return {FilePath(reinterpret_cast<const char *>(file)), index & 0xffff};
}

SystemFontLocator::Location bestMatch(FcConfig *config, FcPattern *pattern)
{
    FcResult result = FcResultNoMatch;
    const FcPatternHandle font(FcFontMatch(config, pattern, &result));
    return font && isReadableFormat(font.get()) ? locationOf(font.get())
                                                : SystemFontLocator::Location();
}

/// The nearest font of a format that we read; slower, for the odd system whose best match is none.
SystemFontLocator::Location bestReadable(FcConfig *config, FcPattern *pattern)
{
    FcResult result = FcResultNoMatch;
    const FcFontSetHandle fonts(FcFontSort(config, pattern, FcFalse, nullptr, &result));
    for (int i = 0; fonts && i < fonts->nfont; ++i) {
        if (isReadableFormat(fonts->fonts[i]))
            return locationOf(fonts->fonts[i]);
    }
    return {};
}

SystemFontLocator::Location findSystemFont()
{
    const FcConfigHandle config(FcConfigReference(nullptr));
    if (!config)
        return {};
    const FcPatternHandle pattern = interfacePattern(config.get());
    const SystemFontLocator::Location location = bestMatch(config.get(), pattern.get());
    return location.path.isEmpty() ? bestReadable(config.get(), pattern.get()) : location;
}

} // namespace

SystemFontLocator::Location FontconfigSystemFont::systemFont() const
{
    std::call_once(m_once, [this] { m_location = findSystemFont(); });
    return m_location;
}

} // namespace lorva
