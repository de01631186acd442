// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "commands/StyleActivations.h"

#include "catalog/FontVariants.h"
#include "install/FontInstallationService.h"
#include "model/LorvaAppModel.h"

#include <QCoreApplication>

namespace lorva {

namespace {

/// A variable font may hold hundreds of styles in one file, and each of them would name all others.
constexpr qsizetype kMostLabels = 24;

QHash<FilePath, std::vector<const FontStyleRecord *>> stylesByFile(
    const std::vector<FontStyleRecord> &styles)
{
    QHash<FilePath, std::vector<const FontStyleRecord *>> byFile;
    for (const FontStyleRecord &style : styles) {
        if (style.fileURL)
            byFile[*style.fileURL].push_back(&style);
    }
    return byFile;
}

QStringList labelsBut(const FontStyleRecord &style,
                      const std::vector<const FontStyleRecord *> &together)
{
    QStringList labels;
    for (const FontStyleRecord *other : together) {
        if (other == &style)
            continue;
        labels.append(other->label);
        if (labels.size() == kMostLabels)
            break;
    }
    const qsizetype rest = qsizetype(together.size()) - 1 - labels.size();
    if (rest > 0)
        labels.append(QCoreApplication::translate("StyleActivations", "%1 more", nullptr, int(rest))
                          .arg(rest));
    return labels;
}

} // namespace

StyleActivations styleActivations(LorvaAppModel &model, const FontFamilyRecord &family)
{
    std::vector<FontStyleRecord> styles = family.styles;
    sortStyles(styles);
    StyleActivations found;
    for (const auto &together : stylesByFile(styles)) {
        for (const FontStyleRecord *style : together) {
            if (together.size() > 1)
                found.labelsInSameFile.insert(style->id, labelsBut(*style, together));
        }
    }
    const FontInstallationService *service = model.installationService();
    if (!service)
        return found;
    const std::shared_ptr<const ActivationState> state = service->state();
    FontFamilyRecord alone{family.familyName, {FontStyleRecord()}, {}, {}, {}};
    for (FontStyleRecord &style : styles) {
        alone.styles.front() = std::move(style);
        if (const auto activation = state->knownActivation(alone))
            found.activationByStyleID.insert(alone.styles.front().id, *activation);
    }
    return found;
}

} // namespace lorva
