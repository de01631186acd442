// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FaceResolver.h"

#include "catalog/FaceReading.h"
#include "catalog/RepresentativeStyle.h"

#include <algorithm>

namespace lorva {

namespace {

/// What tells the faces of one file apart: the PostScript name, or the label behind a NUL, which no
/// PostScript name holds.
QString faceName(const QString &postScriptName, const QString &label)
{
    return postScriptName.isEmpty() ? QString(QChar(u'\0') + label) : postScriptName;
}

QByteArray cacheKey(const FilePath &path, const QString &face)
{
    return path.bytes() + '\0' + face.toUtf8();
}

/// The descriptor of a style: of several that share its PostScript name, the one of its label.
const FaceDescriptor *findDescriptor(const std::vector<FaceDescriptor> &descriptors,
                                     const QString &familyName, const FontStyleRecord &style)
{
    const FaceDescriptor *sameName = nullptr;
    for (const FaceDescriptor &each : descriptors) {
        if (each.postScriptName != style.postScriptName)
            continue;
        if (each.familyName == familyName && styleLabel(each.styleName) == style.label)
            return &each;
        if (!sameName)
            sameName = &each;
    }
    return style.postScriptName.isEmpty() ? nullptr : sameName;
}

} // namespace

SystemFont::SystemFont(std::shared_ptr<const SystemFontLocator> locator)
    : m_locator(std::move(locator))
{
}

Font SystemFont::at(double pointSize) const
{
    std::call_once(m_opened, [this] {
        if (!m_locator)
            return;
        const SystemFontLocator::Location location = m_locator->systemFont();
        if (const auto file = FontFile::open(location.path))
            m_face = (*file)->face({location.faceIndex, -1}).value_or(nullptr);
    });
    return m_face ? Font(m_face, pointSize).asStandIn() : Font().asStandIn();
}

FaceResolver::FaceResolver(std::vector<FontFamilyRecord> families,
                           std::shared_ptr<const SystemFont> systemFont, SteadyClock now)
    : m_index(std::move(families)), m_systemFont(std::move(systemFont)), m_now(std::move(now))
{
}

FaceResolver::FaceName FaceResolver::nameOf(const QString &familyName,
                                            const std::optional<FontStyleRecord> &style)
{
    if (!style)
        return {familyName, {}, {}};
    return {familyName, style->id, style->fileURL.value_or(FilePath())};
}

std::optional<Font> FaceResolver::cachedFont(const QString &familyName,
                                             const std::optional<FontStyleRecord> &style,
                                             double pointSize) const
{
    return m_resolvedFontCache.find({nameOf(familyName, style), pointSize});
}

Font FaceResolver::resolve(const QString &familyName, const std::optional<FontStyleRecord> &style,
                           double pointSize) const
{
    const FaceName name = nameOf(familyName, style);
    if (const std::optional<Font> cached = m_resolvedFontCache.find({name, pointSize}))
        return *cached;
    const std::optional<FaceResolution> known = m_faceResolutionCache.find(name);
    if (known && isResting(*known))
        return m_systemFont->at(pointSize);
    Face face = known ? follow(*known) : nullptr;
    if (face) {
        m_faceResolutionCache.insert(name, {known->path, face});
    } else {
        const FontStyleRecord *wanted = wantedStyle(familyName, style);
        Found found = wanted ? search(familyName, *wanted) : Found {};
        if (!found.face)
            found.resolution.path = FaceResolution::Unresolved {m_now()};
        face = found.face;
        m_faceResolutionCache.insert(name, std::move(found.resolution));
    }
    if (!face)
        return m_systemFont->at(pointSize);
    const Font font(face, pointSize);
    m_resolvedFontCache.insert({name, pointSize}, font);
    return font;
}

const FontStyleRecord *
FaceResolver::wantedStyle(const QString &familyName,
                          const std::optional<FontStyleRecord> &style) const
{
    if (style)
        return &*style;
    const FontFamilyRecord *family = m_index.family(familyName);
    return family ? representativeStyle(family->styles) : nullptr;
}

bool FaceResolver::isResting(const FaceResolution &resolution) const
{
    const auto *unresolved = std::get_if<FaceResolution::Unresolved>(&resolution.path);
    return unresolved && m_now() - unresolved->since < kRetryAfter;
}

/// Null when the way that worked last time no longer does.
FaceResolver::Face FaceResolver::follow(const FaceResolution &resolution) const
{
    if (Face known = resolution.face.lock())
        return known;
    if (const auto *file = std::get_if<FaceResolution::File>(&resolution.path))
        return face(file->path, file->postScriptName, file->key);
    if (const auto *name = std::get_if<FaceResolution::Name>(&resolution.path))
        return searchNamed(name->postScriptName).face;
    return nullptr;
}

FaceResolver::Found FaceResolver::search(const QString &familyName,
                                         const FontStyleRecord &style) const
{
    if (Found own = faceInFile(familyName, style); own.face)
        return own;
    if (!style.postScriptName.isEmpty()) {
        if (Found named = searchNamed(style.postScriptName); named.face)
            return named;
    }
    const FontStyleRecord *alike
        = m_index.style(familyName, style.isItalic, fontManagerWeight(style.weight));
    return alike && alike->id != style.id ? faceInFile(familyName, *alike) : Found();
}

FaceResolver::Found FaceResolver::searchNamed(const QString &postScriptName) const
{
    for (const FontStyleRecord *style : m_index.stylesNamed(postScriptName)) {
        if (Found found = faceInFile({}, *style); found.face) {
            found.resolution.path = FaceResolution::Name {postScriptName};
            return found;
        }
    }
    return {};
}

FaceResolver::Found FaceResolver::faceInFile(const QString &familyName,
                                             const FontStyleRecord &style) const
{
    if (!style.fileURL)
        return {};
    const auto described
        = describedFile(*style.fileURL, faceName(style.postScriptName, style.label));
    if (!described)
        return {};
    const FaceDescriptor *descriptor = findDescriptor(described->descriptors, familyName, style);
    if (!descriptor)
        return {};
    Face found = face(*style.fileURL, faceName(style.postScriptName, style.label), descriptor->key);
    if (!found)
        return {};
    FaceResolution::File where {*style.fileURL, style.postScriptName, descriptor->key};
    return {found, {std::move(where), found}};
}

FaceResolver::Face FaceResolver::face(const FilePath &path, const QString &name, FaceKey key) const
{
    const auto described = describedFile(path, name);
    return described ? described->file->face(key).value_or(nullptr) : nullptr;
}

std::shared_ptr<const FaceResolver::DescribedFile>
FaceResolver::describedFile(const FilePath &path, const QString &face) const
{
    if (const auto cached = m_fileDescriptorCache.find(cacheKey(path, face)))
        return *cached;
    const auto described = describeFile(path);
    if (!described)
        return nullptr;
    for (const FaceDescriptor &each : described->descriptors) {
        const QString name = faceName(each.postScriptName, styleLabel(each.styleName));
        m_fileDescriptorCache.insert(cacheKey(path, name), described);
    }
    return described;
}

std::shared_ptr<const FaceResolver::DescribedFile>
FaceResolver::describeFile(const FilePath &path) const
{
    auto file = FontFile::open(path);
    if (!file)
        return nullptr;
    auto descriptors = (*file)->descriptors();
    if (!descriptors)
        return nullptr;
    return std::make_shared<DescribedFile>(DescribedFile {*std::move(file), *std::move(descriptors)});
}

} // namespace lorva
