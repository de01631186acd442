// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/BrowserActions.h"

#include "ui/display/LogoImage.h"

namespace lorva {

BrowserActions::BrowserActions(LorvaAppModel &model,
                               std::shared_ptr<const BackgroundImageStore> images)
    : m_model(model)
    , m_images(std::move(images))
{
}

void BrowserActions::tell(const Result<void> &outcome) const
{
    if (!outcome && onRefused)
        onRefused(outcome.error().detail);
}

void BrowserActions::readUserImages()
{
    if (m_images)
        m_userImages = m_images->fileNames();
}

void BrowserActions::browserSelectionChanged(const std::optional<QString> &familyName)
{
    m_model.selectFamily(familyName);
}

void BrowserActions::browserOpenDetail(const QString &familyName)
{
    m_model.openDetail(familyName);
}

void BrowserActions::browserViewModeChanged(ViewMode mode)
{
    m_model.setViewMode(mode);
}

void BrowserActions::browserSearchTextChanged(const QString &text)
{
    m_model.setSearchQuery(text);
}

void BrowserActions::browserStyleChosen(const QStringList &familyNames,
                                        const std::optional<QString> &categoryID)
{
    tell(m_model.setStyle(familyNames, categoryID));
}

void BrowserActions::browserCollectionToggled(const QStringList &familyNames,
                                              const QString &collectionID)
{
    tell(m_model.toggleFamilies(collectionID, familyNames));
}

void BrowserActions::browserFoundryChosen(const QStringList &familyNames, const QString &foundryID)
{
    tell(m_model.setFoundry(familyNames, foundryID));
}

void BrowserActions::browserWatchFolderWanted()
{
    if (onWatchFolderWanted)
        onWatchFolderWanted();
}

void BrowserActions::displayPointSizeChanged(double pointSize)
{
    m_model.setPointSize(pointSize);
}

void BrowserActions::displayFontWeightChanged(int weight)
{
    m_model.setFontWeight(weight);
}

void BrowserActions::displayColorModeChanged(ColorMode mode)
{
    m_model.setColorMode(mode);
}

void BrowserActions::displayCustomForegroundChanged(const QString &hex)
{
    m_model.setCustomForegroundColorHex(hex);
    m_model.setColorMode(ColorMode::custom);
}

void BrowserActions::displayCustomBackgroundChanged(const QString &hex)
{
    m_model.setCustomBackgroundColorHex(hex);
    m_model.setColorMode(ColorMode::custom);
}

/// One image at a time: the other kind's choice would win or lose by chance.
void BrowserActions::displayBackgroundImageChosen(const QString &id)
{
    m_model.setBackgroundImageUserFilename(std::nullopt);
    m_model.setBackgroundImageID(id);
    m_model.setColorMode(ColorMode::image);
}

void BrowserActions::displayUserImageChosen(const QString &filename)
{
    m_model.setBackgroundImageID(std::nullopt);
    m_model.setBackgroundImageUserFilename(filename);
    m_model.setColorMode(ColorMode::image);
}

QString BrowserActions::displayUserImageAdded(const QByteArray &bytes)
{
    if (!m_images)
        return QCoreApplication::translate("BrowserActions", "There is no place to keep images.");
    const Result<QString> added = m_images->add(bytes);
    if (!added)
        return added.error().detail;
    readUserImages();
    displayUserImageChosen(*added);
    return {};
}

void BrowserActions::displayUserImageRemoved(const QString &filename)
{
    if (!m_images)
        return;
    tell(m_images->remove(filename));
    readUserImages();
    if (m_model.backgroundImageUserFilename() != filename || m_userImages.contains(filename))
        return;
    m_model.setBackgroundImageUserFilename(std::nullopt);
    if (m_model.colorMode() == ColorMode::image)
        m_model.setColorMode(ColorMode::white);
}

void BrowserActions::displayImageForegroundChanged(const QString &hex)
{
    m_model.setImageForegroundColorHex(hex);
}

QString BrowserActions::displayLogoChosen(const QByteArray &bytes)
{
    if (bytes.isEmpty()) {
        m_model.setLogoImageData({});
        return {};
    }
    const Result<QByteArray> storable = LogoImage::storable(bytes);
    if (!storable)
        return storable.error().detail;
    m_model.setLogoImageData(*storable);
    m_model.setLogoVisible(true);
    return {};
}

void BrowserActions::displayLogoSizeRatioChanged(double ratio)
{
    m_model.setLogoSizeRatio(ratio);
}

void BrowserActions::displayLogoSpacingChanged(double spacing)
{
    m_model.setLogoSpacing(spacing);
}

void BrowserActions::displayLogoVisibilityChanged(bool isVisible)
{
    m_model.setLogoVisible(isVisible);
}

void BrowserActions::displaySampleTextChanged(const QString &text)
{
    m_model.setSampleText(text);
}

void BrowserActions::displayReset()
{
    m_model.resetDisplay();
}

void BrowserActions::displayHoldChanged(bool isHeld)
{
    m_model.setDisplayHeld(isHeld);
}

} // namespace lorva
