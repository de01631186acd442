// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FaceResolver.h"

#include "catalog/FaceReading.h"
#include "catalog/RepresentativeStyle.h"

#include <algorithm>

namespace lorva {

namespace {

/// Axes do not depend on the size; one size for all questions about them makes one cached font.
constexpr double kAnyPointSize = 12;

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
    return m_face ? Font(m_face, pointSize).asStandIn() : Font();
}

FaceResolver::FaceResolver(FontFamilyList families, std::shared_ptr<const SystemFont> systemFont,
                           SteadyClock now)
    : m_index(std::move(families))
    , m_systemFont(std::move(systemFont))
    , m_now(std::move(now))
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
        Found found = wanted ? search(familyName, *wanted) : Found{};
        if (!found.face)
            found.resolution.path = FaceResolution::Unresolved{m_now()};
        face = found.face;
        m_faceResolutionCache.insert(name, std::move(found.resolution));
    }
    if (!face)
        return m_systemFont->at(pointSize);
    const Font font(face, pointSize);
    m_resolvedFontCache.insert({name, pointSize}, font);
    return font;
}

std::optional<VariableWeight> FaceResolver::variableWeight(const QString &familyName,
                                                           const FontStyleRecord &style) const
{
    const Font font = resolve(familyName, style, kAnyPointSize);
    return font.isNull() || font.isStandIn() ? std::nullopt : weightOf(*font.face(), style);
}

Font FaceResolver::fontAtWeight(const QString &familyName, const VariableWeight &variable,
                                double weight, double pointSize) const
{
    const double wanted = weightWithin(variable.axis, weight);
    const FontName name{nameOf(familyName, variable.style), pointSize, wanted};
    if (const std::optional<Font> cached = m_resolvedFontCache.find(name))
        return *cached;
    const Font own = resolve(familyName, variable.style, pointSize);
    if (own.isNull() || own.isStandIn())
        return own;
    const Font varied = withWeight(own, wanted);
    m_resolvedFontCache.insert(name, varied);
    return varied;
}

const FontStyleRecord *FaceResolver::wantedStyle(const QString &familyName,
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
    if (const auto *file = std::get_if<FaceResolution::File>(&resolution.path)) {
        const auto described = cachedFile(file->path, faceName(file->postScriptName, file->label));
        return described ? described->file->face(file->key).value_or(nullptr) : nullptr;
    }
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
    const FontStyleRecord *alike =
        m_index.style(familyName, style.isItalic, fontManagerWeight(style.weight));
    return alike && alike->id != style.id ? faceInFile(familyName, *alike) : Found();
}

FaceResolver::Found FaceResolver::searchNamed(const QString &postScriptName) const
{
    for (const FontStyleRecord *style : m_index.stylesNamed(postScriptName)) {
        if (Found found = faceInFile({}, *style); found.face) {
            found.resolution.path = FaceResolution::Name{postScriptName};
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
    const QString name = faceName(style.postScriptName, style.label);
    if (const auto known = cachedFile(*style.fileURL, name)) {
        // A file that has changed since refuses; it is then read anew.
        if (Found found = faceOf(*known, familyName, style); found.face)
            return found;
    }
    const auto described = readFile(*style.fileURL);
    return described ? faceOf(*described, familyName, style) : Found{};
}

FaceResolver::Found FaceResolver::faceOf(const DescribedFile &described, const QString &familyName,
                                         const FontStyleRecord &style)
{
    const FaceDescriptor *descriptor = findDescriptor(described.descriptors, familyName, style);
    if (!descriptor)
        return {};
    Face face = described.file->face(descriptor->key).value_or(nullptr);
    if (!face)
        return {};
    FaceResolution::File where{described.file->path(), style.postScriptName, style.label,
                               descriptor->key};
    return {face, {std::move(where), face}};
}

std::shared_ptr<const FaceResolver::DescribedFile> FaceResolver::cachedFile(
    const FilePath &path, const QString &face) const
{
    return m_fileDescriptorCache.find(cacheKey(path, face)).value_or(nullptr);
}

std::shared_ptr<const FaceResolver::DescribedFile> FaceResolver::readFile(
    const FilePath &path) const
{
    auto file = FontFile::open(path);
    if (!file)
        return nullptr;
    auto descriptors = (*file)->descriptors();
    if (!descriptors)
        return nullptr;
    const auto described = std::make_shared<const DescribedFile>(
        DescribedFile{*std::move(file), *std::move(descriptors)});
    for (const FaceDescriptor &each : described->descriptors) {
        const QString name = faceName(each.postScriptName, styleLabel(each.styleName));
        m_fileDescriptorCache.insert(cacheKey(path, name), described);
    }
    return described;
}

} // namespace lorva
