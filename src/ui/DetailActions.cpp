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

void DetailActions::displayPointSizeChanged(double pointSize)
{
    setPointSize(pointSize);
}

void DetailActions::displayFontWeightChanged(int weight)
{
    m_browser.displayFontWeightChanged(weight);
}

void DetailActions::displayColorModeChanged(ColorMode mode)
{
    m_browser.displayColorModeChanged(mode);
}

void DetailActions::displayCustomForegroundChanged(const QString &hex)
{
    m_browser.displayCustomForegroundChanged(hex);
}

void DetailActions::displayCustomBackgroundChanged(const QString &hex)
{
    m_browser.displayCustomBackgroundChanged(hex);
}

void DetailActions::displayBackgroundImageChosen(const QString &id)
{
    m_browser.displayBackgroundImageChosen(id);
}

void DetailActions::displayUserImageChosen(const QString &filename)
{
    m_browser.displayUserImageChosen(filename);
}

void DetailActions::displayUserImageAdded(const QByteArray &bytes, Answer answer)
{
    m_browser.displayUserImageAdded(bytes, std::move(answer));
}

void DetailActions::displayUserImageRemoved(const QString &filename)
{
    m_browser.displayUserImageRemoved(filename);
}

void DetailActions::displayImageForegroundChanged(const QString &hex)
{
    m_browser.displayImageForegroundChanged(hex);
}

void DetailActions::displayLogoChosen(const QByteArray &bytes, Answer answer)
{
    m_browser.displayLogoChosen(bytes, std::move(answer));
}

void DetailActions::displayLogoSizeRatioChanged(double ratio)
{
    m_browser.displayLogoSizeRatioChanged(ratio);
}

void DetailActions::displayLogoSpacingChanged(double spacing)
{
    m_browser.displayLogoSpacingChanged(spacing);
}

void DetailActions::displayLogoVisibilityChanged(bool isVisible)
{
    m_browser.displayLogoVisibilityChanged(isVisible);
}

void DetailActions::displaySampleTextChanged(const QString &text)
{
    m_browser.displaySampleTextChanged(text);
}

void DetailActions::displayReset()
{
    m_browser.displayReset();
}

void DetailActions::displayHoldChanged(bool isHeld)
{
    m_browser.displayHoldChanged(isHeld);
}

} // namespace lorva
