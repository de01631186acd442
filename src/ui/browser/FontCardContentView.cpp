// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/FontCardContentView.h"

#include "ui/style/ControlColors.h"
#include "ui/style/Hairline.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QLocale>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

namespace lorva {

namespace {

constexpr double kTextAlpha = 0.5;
constexpr double kTagPillAlpha = 0.05;
constexpr double kTagLabelAlpha = 0.25;
constexpr double kSelectionFillAlpha = 0.04;
constexpr double kSelectionRingAlpha = 0.3;
constexpr int kSelectionRingWidth = 2;
constexpr int kTagHeight = 18;
constexpr int kTagPadding = 8;
/// The specimen is centred in what the title leaves: this much of the card's top is not counted.
constexpr int kTitleRoom = spacing::k28;
/// More of a name than any card has room for; a font may bring one of 64 kilobytes.
constexpr qsizetype kLongestLine = 300;

QFont titleFont()
{
    return interfaceFont(InterfaceSize::label, InterfaceWeight::medium);
}

QFont subtitleFont()
{
    return interfaceFont(InterfaceSize::tag, InterfaceWeight::regular, Figures::tabular);
}

/// `whole` in at most `maximumLines` lines, the last one shortened with an ellipsis.
QStringList linesOf(const QString &whole, const QFont &font, double width, int maximumLines)
{
    const QString text = whole.left(kLongestLine);
    const QFontMetricsF metrics(font);
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    while (lines.size() < maximumLines) {
        QTextLine set = layout.createLine();
        if (!set.isValid())
            break;
        set.setLineWidth(width);
        const bool isLast = lines.size() + 1 == maximumLines;
        const QString rest = text.mid(set.textStart(), isLast ? -1 : set.textLength()).trimmed();
        lines.append(metrics.elidedText(rest, Qt::ElideRight, width));
    }
    layout.endLayout();
    return lines;
}

/// Gives the height used.
double drawLines(QPainter &painter, const QStringList &lines, const QFont &font, const QRectF &room)
{
    const double height = QFontMetricsF(font).height();
    painter.setFont(font);
    double y = 0;
    for (const QString &line : lines) {
        painter.drawText(QRectF(room.left(), room.top() + y, room.width(), height),
                         int(Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine), line);
        y += height;
    }
    return y;
}

/// Their outlines are read whole, up to 25 MB: two frames of a scroll, on the main thread.
bool hasLargeTables(WritingScript script)
{
    return script != WritingScript::latin;
}

} // namespace

FontPreviewConfiguration previewConfiguration(const FontCardConfiguration &card)
{
    const bool isList = card.viewMode == ViewMode::list;
    FontPreviewConfiguration preview;
    preview.text = card.previewText;
    preview.familyName = card.family.familyName;
    preview.style = card.style;
    preview.weight = card.weight;
    preview.pointSize = card.pointSize * (isList ? FontCardContentView::kListSizeRatio : 1.0);
    preview.alignment = isList ? TextAlignment::left : TextAlignment::center;
    preview.textColor = card.foregroundColor;
    preview.logoImage = card.logoImage;
    preview.logoSizeRatio = card.logoSizeRatio;
    preview.logoSpacing = card.logoSpacing;
    preview.singleLine = true;
    preview.primaryScript = card.family.primaryScript.value_or(WritingScript::latin);
    preview.prefersAsyncResolution =
        !card.activation || !card.activation->isActive() || hasLargeTables(preview.primaryScript);
    return preview;
}

QRect FontCardContentView::previewRect(QSize cardSize)
{
    return QRect(QPoint(0, 0), cardSize).adjusted(0, kTitleRoom, 0, 0);
}

FontCardContentView::FontCardContentView(std::shared_ptr<FontResolver> resolver, QWidget *parent)
    : QWidget(parent)
    , m_preview(new FontPreviewNSView(std::move(resolver), this))
{
    setObjectName(QStringLiteral("FontCardContentView"));
}

void FontCardContentView::configure(const FontCardConfiguration &configuration)
{
    if (configuration == m_configuration)
        return;
    const FontCardConfiguration previous = std::exchange(m_configuration, configuration);
    const bool hasNewCatalog = previous.catalogGeneration != configuration.catalogGeneration;
    if (hasNewCatalog && (previous.family != configuration.family || !showsItsFile()))
        m_appliedPreview.reset();
    applyPreview();
    m_preview->setVisible(!configuration.isEdited);
    update();
}

/// False for a stand-in and for an older version of the file; a specimen still to come is right.
bool FontCardContentView::showsItsFile() const
{
    const Font shown = m_preview->currentFont().value_or(Font());
    return shown.isNull() || (!shown.isStandIn() && shown.face()->isUpToDate());
}

QString FontCardContentView::subtitleText(const FontFamilyRecord &family)
{
    //: The fonts of a family, such as Bold. English says "1 styles", too.
    return tr("%Ln styles", nullptr, int(family.styles.size()));
}

QString FontCardContentView::subtitleText() const
{
    return subtitleText(m_configuration.family);
}

QRect FontCardContentView::specimenRect() const
{
    const QRectF ink = m_preview->inkBounds();
    return ink.isNull() ? QRect() : ink.toAlignedRect().translated(m_preview->pos());
}

int FontCardContentView::titleLines() const
{
    return m_configuration.viewMode == ViewMode::list ? 1 : 2;
}

bool FontCardContentView::isTitleElided() const
{
    const QStringList lines = linesOf(titleText(), titleFont(), textRoom().width(), titleLines());
    // Lines break at blanks, which are on neither line.
    return lines.join(QString()).remove(u' ') != QString(titleText()).remove(u' ');
}

void FontCardContentView::applyPreview()
{
    const FontPreviewConfiguration preview = previewConfiguration(m_configuration);
    if (preview == m_appliedPreview)
        return;
    m_appliedPreview = preview;
    m_preview->apply(preview);
}

void FontCardContentView::resizeEvent(QResizeEvent *)
{
    m_preview->setGeometry(previewRect(size()));
}

void FontCardContentView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintSelection(painter);
    paintHairlines(painter);
    paintTexts(painter);
    if (m_configuration.isSystem)
        paintSystemTag(painter);
}

void FontCardContentView::paintSelection(QPainter &painter) const
{
    if (m_configuration.isSelected)
        painter.fillRect(rect(), withAlpha(m_configuration.foregroundColor, kSelectionFillAlpha));
    if (m_configuration.showsFocus) {
        constexpr int inset = kSelectionRingWidth;
        drawFocusRing(painter, QRectF(rect()).adjusted(inset, inset, -inset, -inset), 0);
        return;
    }
    if (!m_configuration.isSelected)
        return;
    const double inset = kSelectionRingWidth / 2.0;
    painter.setBrush(Qt::NoBrush);
    QPen ring(withAlpha(m_configuration.foregroundColor, kSelectionRingAlpha), kSelectionRingWidth);
    ring.setJoinStyle(Qt::MiterJoin);
    painter.setPen(ring);
    painter.drawRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
}

void FontCardContentView::paintHairlines(QPainter &painter) const
{
    const QColor color =
        hairlineColor(m_configuration.foregroundColor, m_configuration.backgroundColor);
    if (!m_configuration.isFirstRow)
        drawHairline(painter, rect(), Qt::TopEdge, color);
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    if (m_configuration.isFirstColumn)
        return;
    // Below the upper line, so that the crossing is not darker than the lines.
    const QRectF below =
        QRectF(rect()).adjusted(0, m_configuration.isFirstRow ? 0 : 1 / devicePixelRatioF(), 0, 0);
    drawHairline(painter, below, mirrored ? Qt::RightEdge : Qt::LeftEdge, color);
}

QRect FontCardContentView::systemTagRect() const
{
    const QFontMetrics metrics(interfaceFont(InterfaceSize::tag));
    const int pillWidth = metrics.horizontalAdvance(systemTagText()) + 2 * kTagPadding;
    const QRect place(width() - spacing::k20 - pillWidth, spacing::k16, pillWidth, kTagHeight);
    return QStyle::visualRect(layoutDirection(), rect(), place);
}

/// What the system tag leaves to title and subtitle.
QRect FontCardContentView::textRoom() const
{
    const QRect room = rect().adjusted(spacing::k20, spacing::k16, -spacing::k20, 0);
    if (!m_configuration.isSystem)
        return room;
    const int taken = systemTagRect().width() + spacing::k12;
    return layoutDirection() == Qt::RightToLeft ? room.adjusted(taken, 0, 0, 0)
                                                : room.adjusted(0, 0, -taken, 0);
}

void FontCardContentView::paintTexts(QPainter &painter) const
{
    const QRectF room = textRoom();
    painter.setPen(withAlpha(m_configuration.foregroundColor, kTextAlpha));
    const QStringList title = linesOf(titleText(), titleFont(), room.width(), titleLines());
    const double used = drawLines(painter, title, titleFont(), room) + spacing::k2;
    // Isolated, so that its number stays in front of its word in a window that reads from the
    // right.
    const QString subtitle = QChar(0x2068) + subtitleText() + QChar(0x2069);
    drawLines(painter, linesOf(subtitle, subtitleFont(), room.width(), 1), subtitleFont(),
              room.adjusted(0, used, 0, 0));
}

void FontCardContentView::paintSystemTag(QPainter &painter) const
{
    const QRect pill = systemTagRect();
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(m_configuration.foregroundColor, kTagPillAlpha));
    painter.drawRoundedRect(pill, kTagHeight / 2.0, kTagHeight / 2.0);
    painter.setFont(interfaceFont(InterfaceSize::tag));
    painter.setPen(withAlpha(m_configuration.foregroundColor, kTagLabelAlpha));
    painter.drawText(pill, Qt::AlignCenter, systemTagText());
}

} // namespace lorva
