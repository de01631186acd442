// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/FontBrowserState.h"
#include "ui/display/BackgroundImageStore.h"

#include <QObject>
#include <QThreadPool>

#include <memory>

namespace lorva {

/// Leads what the user does in the browser and its display controls to the model.
///
/// Does not own the model, which must outlive it. Thread: main.
class BrowserActions final : public FontBrowserDelegate
{
public:
    /// `images` may be null: the user cannot add any.
    BrowserActions(LorvaAppModel &model, std::shared_ptr<const BackgroundImageStore> images);
    ~BrowserActions() override;

    /// A change was refused; the text is fit to be shown.
    std::function<void(const QString &reason)> onRefused;
    std::function<void()> onWatchFolderWanted;
    std::function<void(const QStringList &familyNames)> onActivationWanted;
    std::function<void(const QStringList &familyNames)> onRemainingActivationWanted;
    std::function<void(const QStringList &familyNames)> onDeactivationWanted;

    /// The user's own background images, as last read.
    const QStringList &userImages() const { return m_userImages; }
    const std::shared_ptr<const BackgroundImageStore> &images() const { return m_images; }
    /// Reads them anew.
    void readUserImages();

    void browserSelectionChanged(const std::optional<QString> &familyName) override;
    void browserOpenDetail(const QString &familyName) override;
    void browserViewModeChanged(ViewMode mode) override;
    void browserSearchTextChanged(const QString &text) override;
    void browserStyleChosen(const QStringList &familyNames,
                            const std::optional<QString> &categoryID) override;
    void browserCollectionToggled(const QStringList &familyNames,
                                  const QString &collectionID) override;
    void browserFoundryChosen(const QStringList &familyNames, const QString &foundryID) override;
    void browserActivationWanted(const QStringList &familyNames) override;
    void browserRemainingActivationWanted(const QStringList &familyNames) override;
    void browserDeactivationWanted(const QStringList &familyNames) override;
    void browserWatchFolderWanted() override;

    void displayPointSizeChanged(double pointSize) override;
    void displayFontWeightChanged(int weight) override;
    void displayColorModeChanged(ColorMode mode) override;
    void displayCustomForegroundChanged(const QString &hex) override;
    void displayCustomBackgroundChanged(const QString &hex) override;
    void displayBackgroundImageChosen(const QString &id) override;
    void displayUserImageChosen(const QString &filename) override;
    void displayUserImageAdded(const QByteArray &bytes, Answer answer) override;
    void displayUserImageRemoved(const QString &filename) override;
    void displayImageForegroundChanged(const QString &hex) override;
    void displayLogoChosen(const QByteArray &bytes, Answer answer) override;
    void displayLogoSizeRatioChanged(double ratio) override;
    void displayLogoSpacingChanged(double spacing) override;
    void displayLogoVisibilityChanged(bool isVisible) override;
    void displaySampleTextChanged(const QString &text) override;
    void displayReset() override;
    void displayHoldChanged(bool isHeld) override;

private:
    void tell(const Result<void> &outcome) const;
    void showBackgroundImage(const std::optional<QString> &id,
                             const std::optional<QString> &userFilename);
    void makeTextReadable(const QColor &average);

    LorvaAppModel &m_model;
    const std::shared_ptr<const BackgroundImageStore> m_images;
    QStringList m_userImages;
    /// For images, which may be large.
    QThreadPool m_pool;
    /// Whatever m_pool still works at is dropped with it.
    QObject m_guard;
};

} // namespace lorva
