// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "commands/StyleActivations.h"

#include "base/RunThen.h"
#include "catalog/FontVariants.h"
#include "install/FontInstallationService.h"
#include "model/LorvaAppModel.h"

#include <QCoreApplication>

#include <algorithm>

namespace lorva {

namespace {

/// A variable font may hold hundreds of styles in one file, and each of them would name all others.
constexpr qsizetype kMostLabels = 24;
/// A font may bring a name of 64 kilobytes.
constexpr qsizetype kLongestLabel = 100;

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
        labels.append(other->label.left(kLongestLabel));
        if (labels.size() == kMostLabels)
            break;
    }
    const qsizetype rest = qsizetype(together.size()) - 1 - labels.size();
    if (rest > 0)
        //: So many styles, at the end of a list of their names.
        labels.append(
            QCoreApplication::translate("StyleActivations", "%n more", nullptr, int(rest)));
    return labels;
}

/// `styles` in the order for people.
void addLabelsInSameFile(const std::vector<FontStyleRecord> &styles, StyleActivations &found)
{
    for (const auto &together : stylesByFile(styles)) {
        for (const FontStyleRecord *style : together) {
            if (together.size() > 1)
                found.labelsInSameFile.insert(style->id, labelsBut(*style, together));
        }
    }
}

} // namespace

void addStyleActivations(const FontFamilyRecord &family, const ActivationState &state,
                         StyleActivations &found)
{
    std::vector<FontStyleRecord> styles = family.styles;
    sortStyles(styles);
    addLabelsInSameFile(styles, found);
    FontFamilyRecord alone{family.familyName, {FontStyleRecord()}, {}, {}, {}};
    for (FontStyleRecord &style : styles) {
        alone.styles.front() = std::move(style);
        if (const auto activation = state.activation(alone))
            found.activationByStyleID.insert(alone.styles.front().id, *activation);
    }
}

StyleActivations styleActivations(LorvaAppModel &model, const FontFamilyRecord &family)
{
    std::vector<FontStyleRecord> styles = family.styles;
    sortStyles(styles);
    StyleActivations found;
    addLabelsInSameFile(styles, found);
    const FontInstallationService *service = model.installationService();
    if (!service)
        return found;
    const std::shared_ptr<const ActivationState> state = service->state();
    std::optional<FontFamilyActivation> whole = model.activation(family);
    if (whole && whole->isMixed())
        whole.reset();
    FontFamilyRecord alone{family.familyName, {FontStyleRecord()}, {}, {}, {}};
    for (FontStyleRecord &style : styles) {
        alone.styles.front() = std::move(style);
        const bool hasFile = alone.styles.front().fileURL.has_value();
        const auto known = state->knownActivation(alone);
        if (const auto activation = known || !hasFile ? known : whole)
            found.activationByStyleID.insert(alone.styles.front().id, *activation);
    }
    return found;
}

StyleActivationLook::StyleActivationLook(LorvaAppModel &model)
    : m_model(model)
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.style-looks"));
    m_pool.setMaxThreadCount(1);
}

StyleActivationLook::~StyleActivationLook()
{
    m_pool.waitForDone();
}

StyleActivations StyleActivationLook::of(const FontFamilyRecord &family)
{
    StyleActivations known = styleActivations(m_model, family);
    const auto isUnknown = [&known](const FontStyleRecord &style) {
        return style.fileURL && !known.activationByStyleID.contains(style.id);
    };
    if (std::ranges::any_of(family.styles, isUnknown))
        look(family);
    return known;
}

void StyleActivationLook::look(const FontFamilyRecord &family)
{
    const FontInstallationService *service = m_model.installationService();
    if (!service)
        return;
    const std::shared_ptr<const ActivationState> state = service->state();
    if (m_familyName == family.familyName && m_state.lock() == state)
        return;
    m_familyName = family.familyName;
    m_state = state;
    runThen(
        m_pool, &m_guard,
        [state, family](const std::stop_token &) { return state->activation(family).has_value(); },
        [this](bool) {
            if (onChange)
                onChange();
        });
}

} // namespace lorva
