// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/preview/FontResolver.h"
#include "ui/preview/SpecimenImage.h"

#include <QVariantAnimation>
#include <QWidget>

#include <memory>
#include <optional>

namespace lorva {

/// The specimen line of a font card: shows a text in a face, and nothing while the face is being
/// loaded.
///
/// Every apply() supersedes the ones before: only the newest configuration's font is ever shown,
/// and a card that is used again never shows its previous family. A font that had to be waited for
/// fades in, unless the desktop asks for reduced motion. A font that arrives from a worker comes
/// with its pixels; all others are painted here, when first needed, and again after a change of
/// size, colour or device-pixel ratio.
///
/// Thread: main. Workers only see copies of values, and what outlives the view.
/// Failure: a face that could not be loaded shows the system font, and tool tip and accessible
/// description say so.
class FontPreviewNSView final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kFadeInMilliseconds = 180;

    explicit FontPreviewNSView(std::shared_ptr<FontResolver> resolver, QWidget *parent = nullptr);
    ~FontPreviewNSView() override;

    void apply(const FontPreviewConfiguration &configuration);

    /// Counts the calls of apply().
    quint64 applyGeneration() const { return m_applyGeneration; }
    /// Absent while nothing is shown.
    const std::optional<Font> &currentFont() const { return m_currentFont; }
    /// A worker is at the font, or will be.
    bool isWaiting() const;
    /// Empty while nothing is shown.
    const QString &shownText() const { return m_shownText; }
    /// Around the ink as last painted, in points of the view; null while nothing is shown.
    QRectF inkBounds() const { return m_specimenIsCurrent ? m_specimen.inkBounds : QRectF(); }
    /// The pixels as last painted, of the ink only; null while there are none.
    QImage inkImage() const { return m_imageIsCurrent ? m_image.image : QImage(); }
    /// 0 … 1; below 1 only while a late font fades in.
    double textOpacity() const { return m_textOpacity; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Shared;
    struct Delivery;

    SpecimenCanvas canvas() const;
    void beginGeneration();
    void enqueue(quint64 generation, const std::shared_ptr<bool> &applied,
                 const std::shared_ptr<bool> &late);
    void showFont(const Font &font, bool animated);
    void accept(const Delivery &delivery);
    void showNothing();
    void startFade();
    void describe();
    void ensureSpecimen(const SpecimenCanvas &canvas);
    void ensureImage(const SpecimenCanvas &canvas);

    const std::shared_ptr<FontResolver> m_resolver;
    const std::shared_ptr<Shared> m_shared;
    QVariantAnimation m_fade;
    quint64 m_applyGeneration = 0;
    /// The newest one; m_shown lags behind it while its font is pending.
    FontPreviewConfiguration m_configuration;

    std::optional<Font> m_currentFont;
    FontPreviewConfiguration m_shown;
    QString m_shownText;
    double m_textOpacity = 1.0;
    Specimen m_specimen;
    SpecimenImage m_image;
    /// What m_specimen and m_image were made for.
    SpecimenCanvas m_specimenCanvas;
    bool m_specimenIsCurrent = false;
    bool m_imageIsCurrent = false;
};

} // namespace lorva
