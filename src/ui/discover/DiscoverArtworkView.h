// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

namespace lorva {

/// A piece of artwork from its vector source, filling `pixels`; null for a source that is missing
/// or cannot be read. Thread: any.
QImage renderDiscoverArtwork(const QString &imageName, QSize pixels);

/// Shows a foundry's artwork in a frame with round corners. Thread: main.
class DiscoverArtworkView final : public QWidget
{
    Q_OBJECT
public:
    static constexpr double kRadius = 12;

    explicit DiscoverArtworkView(QWidget *parent);

    /// Stretched until one of the view's own size comes.
    void setImage(const QImage &image);
    const QImage &image() const { return m_image; }
    /// Device pixels that an image for the view as it is now has.
    QSize wantedPixels() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_image;
};

} // namespace lorva
