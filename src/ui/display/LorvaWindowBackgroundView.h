// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/RunThen.h"
#include "model/records/DisplayRecords.h"

#include <QColor>
#include <QImage>
#include <QThreadPool>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace lorva {

class BackgroundImageStore;

/// What lies beneath the browser: a colour, or an image that covers it whole.
///
/// Images are drawn or read on a worker for the size and the device-pixel ratio at hand, one at a
/// time, the last wish first; until one is there, and when it cannot be read, its average colour or
/// a neutral one is shown, while the window is resized the former image, scaled. Holds one image at
/// most, and none in the other modes. Thread: main.
class LorvaWindowBackgroundView final : public QWidget
{
    Q_OBJECT
public:
    /// `store` may be null: the user has no images.
    LorvaWindowBackgroundView(std::shared_ptr<const BackgroundImageStore> store, QWidget *parent);
    ~LorvaWindowBackgroundView() override;

    struct Ground
    {
        ColorMode mode = ColorMode::white;
        /// Where no image is shown.
        QColor color = Qt::white;
        std::optional<QString> imageID;
        std::optional<QString> userFilename;
        bool operator==(const Ground &) const = default;
    };
    void apply(const Ground &ground);
    /// The middle of the user's image that is shown, small; null while there is none.
    const QImage &userThumbnail() const { return m_userThumbnail; }
    /// Another image is there, or none.
    std::function<void()> onImageChanged;
    /// The image is on its way.
    bool isWaiting() const { return m_isRunning; }

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QSize wantedSizePx() const;
    bool showsImage() const;
    void requestImage();
    void takeImage(unsigned generation, QSize sizePx, const QImage &image);
    QColor interimColor() const;

    std::shared_ptr<const BackgroundImageStore> m_store;
    Ground m_ground;
    QColor m_interim;
    QImage m_image;
    QImage m_userThumbnail;
    /// What was asked for last, whether it could be had or not.
    QSize m_askedSizePx;
    unsigned m_generation = 0;
    bool m_isRunning = false;
    RunHandle m_run;
    QThreadPool m_pool;
};

} // namespace lorva
