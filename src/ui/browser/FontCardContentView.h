// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/FontCardConfiguration.h"
#include "ui/preview/FontPreviewNSView.h"

#include <QWidget>

namespace lorva {

/// What the specimen of such a card asks for.
FontPreviewConfiguration previewConfiguration(const FontCardConfiguration &card);

/// What a card shows: name, number of styles, system tag, and the specimen.
///
/// Thread: main. A configuration equal to the last one costs nothing; one that only changes the
/// selection does not touch the specimen.
class FontCardContentView final : public QWidget
{
    Q_OBJECT
public:
    /// In list mode specimens are set at this share of the chosen size.
    static constexpr double kListSizeRatio = 0.72;

    FontCardContentView(std::shared_ptr<FontResolver> resolver, QWidget *parent);

    /// Where the specimen stands on a card of that size.
    static QRect previewRect(QSize cardSize);
    void configure(const FontCardConfiguration &configuration);
    const FontPreviewNSView &previewView() const { return *m_preview; }
    /// The texts as shown; for the title, before it is shortened to the room there is.
    QString titleText() const { return m_configuration.family.familyName; }
    QString subtitleText() const;
    static QString subtitleText(const FontFamilyRecord &family);
    static QString systemTagText() { return tr("System"); }
    /// The title does not fit.
    bool isTitleElided() const;
    /// Around the specimen's ink, in points of the card; null while there is none.
    QRect specimenRect() const;
    /// The specimen's ink alone; null while there is none.
    QPixmap grabSpecimen() const { return QPixmap::fromImage(m_preview->inkImage()); }
    bool showsSystemTag() const { return m_configuration.isSystem; }
    bool showsSelection() const { return m_configuration.isSelected; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool showsItsFile() const;
    void applyPreview();
    QRect textRoom() const;
    int titleLines() const;
    QRect systemTagRect() const;
    void paintHairlines(QPainter &painter) const;
    void paintTexts(QPainter &painter) const;
    void paintSystemTag(QPainter &painter) const;
    void paintSelection(QPainter &painter) const;

    FontPreviewNSView *m_preview;
    FontCardConfiguration m_configuration;
    std::optional<FontPreviewConfiguration> m_appliedPreview;
};

} // namespace lorva
