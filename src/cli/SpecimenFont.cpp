// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/SpecimenFont.h"

#include "cli/Texts.h"
#include "cli/Words.h"
#include "text/FontFeatures.h"

#include <QStringList>

#include <algorithm>

namespace lorva::cli {

namespace {

Result<FaceKey> faceKey(const FontFile &file, const SpecimenRequest &request)
{
    FaceKey key{request.faceIndex, -1};
    if (request.instance.isEmpty())
        return key;
    const auto face = file.face(key);
    if (!face)
        return tl::unexpected(face.error());
    const std::vector<NamedInstance> &instances = (*face)->namedInstances();
    const auto found =
        std::find_if(instances.begin(), instances.end(), [&](const NamedInstance &instance) {
            return instance.name.compare(request.instance, Qt::CaseInsensitive) == 0;
        });
    if (found == instances.end())
        return failure(ErrorKind::notFound,
                       Texts::tr("%1: the face has no instance %2")
                           .arg(request.font.displayText(), quoted(request.instance)));
    key.namedInstance = int(found - instances.begin());
    return key;
}

Result<std::shared_ptr<const FontFace>> openFace(const SpecimenRequest &request)
{
    const auto file = FontFile::open(request.font);
    if (!file)
        return tl::unexpected(file.error());
    const Result<FaceKey> key = faceKey(**file, request);
    if (!key)
        return tl::unexpected(key.error());
    return (*file)->face(*key);
}

tl::unexpected<Error> unknownAxis(const FontFace &face, FontTag tag)
{
    QStringList known;
    for (const VariationAxis &axis : face.axes())
        known << tagText(axis.tag);
    const QString name = face.path().displayText();
    return known.isEmpty()
        ? failure(ErrorKind::notFound, Texts::tr("%1: the face has no axes").arg(name))
        : failure(ErrorKind::notFound,
                  Texts::tr("%1: the face has no axis %2, only %3")
                      .arg(name, quoted(tagText(tag)), listed(known)));
}

/// The setting within the axis's reach.
Result<VariationSetting> reachable(const FontFace &face, VariationSetting setting,
                                   std::vector<QString> &notes)
{
    const std::optional<VariationAxis> axis = face.axis(setting.tag);
    if (!axis)
        return unknownAxis(face, setting.tag);
    const double value = std::clamp(setting.value, axis->minValue, axis->maxValue);
    if (value != setting.value) {
        notes.push_back(Texts::tr("%1 goes from %2 to %3: drawn with %4 instead of %5")
                            .arg(tagText(setting.tag), QString::number(axis->minValue),
                                 QString::number(axis->maxValue), QString::number(value),
                                 QString::number(setting.value)));
    }
    return VariationSetting{setting.tag, value};
}

void noteMissingFeatures(const FontFace &face, const SpecimenRequest &request,
                         std::vector<QString> &notes)
{
    if (request.features.empty())
        return;
    const std::vector<FontTag> known = featureTags(face);
    for (const FeatureSetting &setting : request.features) {
        if (std::find(known.begin(), known.end(), setting.tag) == known.end())
            notes.push_back(
                Texts::tr("the face has no feature %1").arg(quoted(tagText(setting.tag))));
    }
}

Result<void> checkPalette(const FontFace &face, int index)
{
    const size_t count = readColorPalettes(face).palettes.size();
    if (size_t(index) < count)
        return {};
    const QString name = face.path().displayText();
    return failure(ErrorKind::notFound,
                   count == 0 ? Texts::tr("%1: the face has no palettes").arg(name)
                              : Texts::tr("%1: the face has no palette %2, only 0 to %3")
                                    .arg(name, QString::number(index), QString::number(count - 1)));
}

} // namespace

Result<Font> specimenFont(const SpecimenRequest &request, std::vector<QString> &notes)
{
    const auto face = openFace(request);
    if (!face)
        return tl::unexpected(face.error());
    std::vector<VariationSetting> variations;
    for (const VariationSetting &wanted : request.variations) {
        const Result<VariationSetting> setting = reachable(**face, wanted, notes);
        if (!setting)
            return tl::unexpected(setting.error());
        variations.push_back(*setting);
    }
    noteMissingFeatures(**face, request, notes);
    const Font font(*face, request.pixelsPerEm, std::move(variations), request.features);
    if (!request.palette)
        return font;
    if (const Result<void> checked = checkPalette(**face, *request.palette); !checked)
        return tl::unexpected(checked.error());
    return font.withPalette({*request.palette, {}});
}

} // namespace lorva::cli
