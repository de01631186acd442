// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/BrowserActions.h"

#include "base/RunThen.h"
#include "ui/display/BackgroundImages.h"
#include "ui/display/LogoImage.h"
#include "ui/style/Palette.h"

namespace lorva {

namespace {

/// Below this type is hard to see; large type in black or white is lost on hardly any ground above
/// it.
constexpr double kReadableContrast = 2.5;
constexpr int kAverageSidePx = 256;

} // namespace

BrowserActions::BrowserActions(LorvaAppModel &model,
                               std::shared_ptr<const BackgroundImageStore> images)
    : m_model(model)
    , m_images(std::move(images))
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.images"));
    m_pool.setMaxThreadCount(1);
}

BrowserActions::~BrowserActions()
{
    m_pool.waitForDone();
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

void BrowserActions::browserActivationWanted(const QStringList &familyNames)
{
    if (onActivationWanted)
        onActivationWanted(familyNames);
}

void BrowserActions::browserRemainingActivationWanted(const QStringList &familyNames)
{
    if (onRemainingActivationWanted)
        onRemainingActivationWanted(familyNames);
}

void BrowserActions::browserDeactivationWanted(const QStringList &familyNames)
{
    if (onDeactivationWanted)
        onDeactivationWanted(familyNames);
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
void BrowserActions::showBackgroundImage(const std::optional<QString> &id,
                                         const std::optional<QString> &userFilename)
{
    m_model.setBackgroundImageID(id);
    m_model.setBackgroundImageUserFilename(userFilename);
    m_model.setColorMode(ColorMode::image);
}

/// White text that was readable over the last image may be lost on this one. A colour of the user's
/// own making stays.
void BrowserActions::makeTextReadable(const QColor &average)
{
    const QColor text(m_model.imageForegroundColorHex());
    const bool isNeutral = text == QColor(Qt::white) || text == QColor(Qt::black);
    if (!average.isValid() || !isNeutral || contrastRatio(text, average) >= kReadableContrast)
        return;
    m_model.setImageForegroundColorHex(contrastingNeutral(average).name().toUpper());
}

void BrowserActions::displayBackgroundImageChosen(const QString &id)
{
    makeTextReadable(averageBackgroundColor(id));
    showBackgroundImage(id, std::nullopt);
}

void BrowserActions::displayUserImageChosen(const QString &filename)
{
    showBackgroundImage(std::nullopt, filename);
    runThen(
        m_pool, &m_guard,
        [images = m_images, filename](const std::stop_token &) {
            const auto image = images ? images->read(filename, kAverageSidePx) : Result<QImage>();
            return image ? averageColor(*image) : QColor();
        },
        [this, filename](const QColor &average) {
            if (m_model.backgroundImageUserFilename() == filename)
                makeTextReadable(average);
        });
}

void BrowserActions::displayUserImageAdded(const QByteArray &bytes, Answer answer)
{
    if (!m_images) {
        answer(QCoreApplication::translate("BrowserActions", "There is no place to keep images"));
        return;
    }
    runThen(
        m_pool, &m_guard,
        [images = m_images, bytes](const std::stop_token &) { return images->add(bytes); },
        [this, answer = std::move(answer)](const Result<QString> &added) {
            if (added) {
                readUserImages();
                displayUserImageChosen(*added);
            }
            answer(added ? QString() : added.error().detail);
        });
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

void BrowserActions::displayLogoChosen(const QByteArray &bytes, Answer answer)
{
    if (bytes.isEmpty()) {
        m_model.setLogoImageData({});
        answer({});
        return;
    }
    runThen(
        m_pool, &m_guard, [bytes](const std::stop_token &) { return LogoImage::storable(bytes); },
        [this, answer = std::move(answer)](const Result<QByteArray> &storable) {
            if (storable) {
                m_model.setLogoImageData(*storable);
                m_model.setLogoVisible(true);
            }
            answer(storable ? QString() : storable.error().detail);
        });
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
