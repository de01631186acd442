// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/SourceDisplay.h"

#include <QImage>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace lorva {

class BackgroundImageStore;

/// How specimens look, as the display controls show it.
struct DisplayControlsState
{
    DisplayValues values;
    /// The logo, decoded, whether it is visible or not; absent: none, or one that cannot be read.
    std::optional<QImage> logoImage;
    /// Background images that the user added: their file names in the support folder.
    QStringList userImages;
    /// Where those are; null: the user has none.
    std::shared_ptr<const BackgroundImageStore> imageStore;
    /// The user's image that is shown, small; null while none is.
    QImage userThumbnail;

    bool operator==(const DisplayControlsState &) const = default;
};

/// What the user does with the display controls, told to whoever decides.
class DisplayControlsDelegate
{
public:
    virtual ~DisplayControlsDelegate() = default;
    virtual void displayPointSizeChanged(double pointSize) = 0;
    virtual void displayFontWeightChanged(int weight) = 0;
    virtual void displayColorModeChanged(ColorMode mode) = 0;
    /// "#RRGGBB"; choosing one also shows it: the mode becomes custom.
    virtual void displayCustomForegroundChanged(const QString &hex) = 0;
    virtual void displayCustomBackgroundChanged(const QString &hex) = 0;
    /// A built-in image; the mode becomes image.
    virtual void displayBackgroundImageChosen(const QString &id) = 0;
    /// One of the user's; the mode becomes image.
    virtual void displayUserImageChosen(const QString &filename) = 0;
    /// What to say of an image that cannot be taken; empty when it was. Told later, on this thread.
    using Answer = std::function<void(const QString &problem)>;
    /// The bytes of an image file that the user wants as a background.
    virtual void displayUserImageAdded(const QByteArray &bytes, Answer answer) = 0;
    virtual void displayUserImageRemoved(const QString &filename) = 0;
    virtual void displayImageForegroundChanged(const QString &hex) = 0;
    /// The bytes of an image file; empty: no logo.
    virtual void displayLogoChosen(const QByteArray &bytes, Answer answer) = 0;
    virtual void displayLogoSizeRatioChanged(double ratio) = 0;
    virtual void displayLogoSpacingChanged(double spacing) = 0;
    virtual void displayLogoVisibilityChanged(bool isVisible) = 0;
    virtual void displaySampleTextChanged(const QString &text) = 0;
    /// Everything back to the defaults, for the present source.
    virtual void displayReset() = 0;
    /// A slider or chooser is held: values come many times a second, the last of them counts.
    virtual void displayHoldChanged(bool isHeld) = 0;
};

/// The content of one of the display controls' popovers. Thread: main. Neutral colours.
class DisplayPanel : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;
    virtual void apply(const DisplayControlsState &state) = 0;
    void setDelegate(DisplayControlsDelegate *delegate) { m_delegate = delegate; }

protected:
    /// May be null.
    DisplayControlsDelegate *delegate() const { return m_delegate; }

private:
    DisplayControlsDelegate *m_delegate = nullptr;
};

/// Text and background colour, each with a chooser and a field for its digits.
DisplayPanel *makeColorPanel(QWidget *parent);
/// The built-in images and the user's own, and the text's colour over them. `store`: where the
/// user's images are shown from; without it their tiles stay empty.
DisplayPanel *makeBackgroundImagePanel(QWidget *parent,
                                       std::shared_ptr<const BackgroundImageStore> store = nullptr);
/// Choose or drop a logo; size, spacing, visibility, remove.
DisplayPanel *makeLogoPanel(QWidget *parent);
/// The sample text, texts to choose from by script, and the way back to the defaults.
DisplayPanel *makeSampleTextPanel(QWidget *parent);

} // namespace lorva
