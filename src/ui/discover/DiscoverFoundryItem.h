// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/RunThen.h"
#include "ui/discover/DiscoverFoundry.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace lorva {

class DiscoverArtworkView;
class DiscoverLinkButton;
class SheetText;

/// A card of the Discover page: artwork, name, sentence and link of one foundry. Thread: main.
class DiscoverFoundryItem final : public QWidget
{
    Q_OBJECT
public:
    explicit DiscoverFoundryItem(QWidget *parent);

    /// The link was pressed.
    std::function<void(const QUrl &url)> onOpen;

    void setFoundry(const DiscoverFoundry &foundry);
    const std::optional<DiscoverFoundry> &foundry() const { return m_foundry; }
    /// Has the artwork drawn on `pool` for the card's present size, unless it is there or on its
    /// way.
    void loadArtwork(QThreadPool &pool);
    /// It is far out of sight.
    void releaseArtwork();
    /// Nothing is on its way.
    bool isSettled() const { return !m_isLoading; }
    DiscoverLinkButton &linkButton() { return *m_linkButton; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void showArtwork(const QImage &image);
    bool isOnArtwork(const QMouseEvent &event) const;
    void open();

    std::optional<DiscoverFoundry> m_foundry;
    QWidget *m_imageContainer;
    DiscoverArtworkView *m_artworkView;
    /// Stands in where there is no artwork.
    SheetText *m_placeholderLabel;
    SheetText *m_titleLabel;
    SheetText *m_subtitleLabel;
    DiscoverLinkButton *m_linkButton;
    /// What was asked for last.
    QSize m_askedPixels;
    bool m_isLoading = false;
    /// The button went down on the artwork.
    bool m_isPressed = false;
    RunHandle m_run;
};

} // namespace lorva
