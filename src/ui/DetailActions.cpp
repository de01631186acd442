// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/DetailActions.h"

#include "model/LorvaAppModel.h"
#include "ui/BrowserActions.h"
#include "ui/DetailNeighbours.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lorva {

namespace {

/// Ems.
constexpr double kLeastLetterSpacing = -0.5;
constexpr double kMostLetterSpacing = 2;

} // namespace

DetailActions::DetailActions(LorvaAppModel &model, BrowserActions &browser)
    : m_model(model)
    , m_browser(browser)
{
}

QStringList DetailActions::family() const
{
    const std::optional<QString> name = m_model.detailFamilyName();
    return name ? QStringList(*name) : QStringList();
}

template <class T>
void DetailActions::change(T DetailSession::*member, const T &value)
{
    if (m_session.*member == value)
        return;
    m_session.*member = value;
    if (onChange)
        onChange();
}

void DetailActions::setPointSize(double pointSize)
{
    if (std::isfinite(pointSize))
        change(&DetailSession::pointSize,
               std::clamp(pointSize, DetailSession::kMinimumPointSize,
                          DetailSession::kMaximumPointSize));
}

DisplayControlsDelegate &DetailActions::display()
{
    return m_browser;
}

void DetailActions::detailClosed()
{
    m_model.openDetail(std::nullopt);
}

void DetailActions::detailNeighbourWanted(int step)
{
    const std::optional<QString> open = m_model.detailFamilyName();
    if (!open)
        return;
    const std::optional<QString> neighbour =
        detailNeighbour(m_model.visibleFamilies(), *open, step);
    if (!neighbour)
        return;
    m_model.selectFamily(*neighbour);
    m_model.openDetail(*neighbour);
}

void DetailActions::detailVariantSelected(const QString &label)
{
    const QString family = m_model.detailFamilyName().value_or(QString());
    if (std::exchange(m_session.selectedVariantFamily, family) != family)
        m_session.selectedVariantLabel.clear();
    change(&DetailSession::selectedVariantLabel, label);
}

void DetailActions::detailLetterSpacingChanged(double letterSpacing)
{
    if (std::isfinite(letterSpacing))
        change(&DetailSession::letterSpacing,
               std::clamp(letterSpacing, kLeastLetterSpacing, kMostLetterSpacing));
}

void DetailActions::detailStageChanged(DetailStage stage)
{
    change(&DetailSession::stage, stage);
}

void DetailActions::detailInspectorToggled()
{
    bool DetailSession::*shown = m_session.isNarrow ? &DetailSession::showsInspectorOverPage
                                                    : &DetailSession::showsInspector;
    change(shown, !(m_session.*shown));
}

void DetailActions::detailActivationWanted()
{
    m_browser.browserActivationWanted(family());
}

void DetailActions::detailRemainingActivationWanted()
{
    m_browser.browserRemainingActivationWanted(family());
}

void DetailActions::detailDeactivationWanted()
{
    m_browser.browserDeactivationWanted(family());
}

void DetailActions::detailStyleActivationWanted(const FontStyleRecord &style)
{
    if (const auto name = m_model.detailFamilyName(); name && onStyleActivationWanted)
        onStyleActivationWanted(*name, style);
}

void DetailActions::detailStyleDeactivationWanted(const FontStyleRecord &style)
{
    if (const auto name = m_model.detailFamilyName(); name && onStyleDeactivationWanted)
        onStyleDeactivationWanted(*name, style);
}

void DetailActions::detailCategoryChosen(const std::optional<QString> &categoryID)
{
    m_browser.browserStyleChosen(family(), categoryID);
}

void DetailActions::detailCollectionToggled(const QString &collectionID)
{
    m_browser.browserCollectionToggled(family(), collectionID);
}

void DetailActions::detailFoundryChosen(const QString &foundryID)
{
    m_browser.browserFoundryChosen(family(), foundryID);
}

void DetailActions::detailFaceShown(const DisplayedFace &face)
{
    if (onFaceShown)
        onFaceShown(face);
}

} // namespace lorva
