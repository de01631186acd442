// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/DetailPreviewView.h"

#include "ui/browser/InlineEditHandler.h"
#include "ui/detail/PreviewAccessibility.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/Palette.h"

#include <QHideEvent>
#include <QPainter>
#include <QPaintEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lorva {

namespace {

constexpr int kCaretWidth = 2;
constexpr double kSelectionAlpha = 0.25;
constexpr double kQuietSelectionAlpha = 0.12;
/// Of what an input method composes; shares of the point size, and points at least.
constexpr double kUnderlineShare = 1.0 / 40;
constexpr double kLeastUnderline = 1;

/// Whether the two are set alike: colours are another matter.
bool areSetAlike(const DetailSpecimen &a, const DetailSpecimen &b)
{
    const auto logoOf = [](const DetailSpecimen &specimen) {
        return specimen.logoImage ? specimen.logoImage->size() : QSize();
    };
    return a.font == b.font && a.letterSpacing == b.letterSpacing && logoOf(a) == logoOf(b)
        && a.logoSizeRatio == b.logoSizeRatio && a.logoSpacing == b.logoSpacing;
}

void fillShapes(QPainter &painter, const std::vector<QRectF> &shapes, QPointF origin,
                const QColor &color)
{
    const DeviceSpace device(painter);
    for (const QRectF &shape : shapes)
        device.fillRect(device.deviceRect(shape.translated(origin)), color);
}

} // namespace

DetailPreviewView::DetailPreviewView(QWidget *parent)
    : DetailSection(parent)
    , m_edit(InlineEditHandler::kMostCharacters)
    , m_blink([this] { updateCaret(); })
{
    installPreviewAccessibility();
    setObjectName(QStringLiteral("DetailPreviewView"));
    setAccessibleName(tr("Preview"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    setCursor(Qt::IBeamCursor);
    setAcceptDrops(true);
}

DetailPreviewView::~DetailPreviewView() = default;

void DetailPreviewView::apply(const DetailSpecimen &specimen)
{
    const QString before = m_edit.text();
    const bool isSameSetting = areSetAlike(specimen, m_specimen);
    if (specimen.text != before && editableText(specimen.text) != before) {
        m_composition = {};
        m_edit.reset(specimen.text);
        m_motion.forget();
        m_drag.reset();
    }
    m_toldText = m_edit.text();
    const bool isSameText = m_toldText == before;
    m_specimen = specimen;
    m_picture.invalidate();
    update();
    if (isSameSetting && isSameText)
        return;
    invalidatePlacement();
    m_motion.forget();
    tellHeight();
    updateMicroFocus();
    if (!isSameText)
        announceText(*this, before);
}

QString DetailPreviewView::text() const
{
    return m_edit.text();
}

bool DetailPreviewView::isEditing() const
{
    return m_hasKeyboard;
}

QString DetailPreviewView::composedText() const
{
    if (!isComposing())
        return m_edit.text();
    QString text = m_edit.text();
    return text.insert(m_edit.caret().index, m_composition.text);
}

const PreviewPlacement &DetailPreviewView::placementFor(int width) const
{
    if (!m_placement || m_placedWidth != width) {
        m_placement.emplace(placePreview(composedText(), m_specimen, width));
        m_placedWidth = width;
    }
    return *m_placement;
}

const PreviewPlacement &DetailPreviewView::placement() const
{
    return placementFor(width());
}

int DetailPreviewView::heightFor(int width) const
{
    m_askedWidth = width;
    m_toldHeight = placementFor(width).height;
    return m_toldHeight;
}

void DetailPreviewView::setVisibleBand(int top, int bottom)
{
    m_bandTop = top;
    m_bandBottom = bottom;
}

void DetailPreviewView::invalidatePlacement()
{
    m_placement.reset();
    m_picture.invalidate();
    update();
}

void DetailPreviewView::tellHeight()
{
    if (m_askedWidth >= 0 && placementFor(m_askedWidth).height != m_toldHeight)
        Q_EMIT heightChanged();
}

TextPosition DetailPreviewView::shownCaret() const
{
    if (m_dropAt)
        return *m_dropAt;
    if (!isComposing())
        return m_edit.caret();
    return {m_edit.caret().index + std::max(m_composition.cursor, 0), m_composition.cursor > 0};
}

/// The caret never leaves the view, though white space may hang over its end.
QRectF DetailPreviewView::caretRectIn(TextPosition position) const
{
    const PreviewPlacement &placed = placement();
    const QRectF at = placed.carets.caretRect(position).translated(placed.origin);
    const double most = std::max(0.0, double(width() - kCaretWidth));
    const double left = std::clamp(at.left() - kCaretWidth / 2.0, 0.0, most);
    const double caretHeight = at.height() > 0 ? at.height() : placed.height;
    return {left, at.top(), kCaretWidth, caretHeight};
}

QRect DetailPreviewView::caretRectAt(TextPosition position) const
{
    // Beyond what is composed everything stands further on.
    if (isComposing() && position.index > m_edit.caret().index)
        position.index += int(m_composition.text.size());
    return caretRectIn(position).toAlignedRect();
}

TextPosition DetailPreviewView::positionAt(QPointF point) const
{
    const PreviewPlacement &placed = placement();
    return placed.carets.hitTest(point - placed.origin);
}

void DetailPreviewView::updateCaret()
{
    update(caretRectIn(shownCaret()).toAlignedRect().adjusted(-1, -1, 1, 1));
}

void DetailPreviewView::changeEvent(QEvent *event)
{
    // The accent is another one.
    if (event->type() == QEvent::PaletteChange)
        update();
    DetailSection::changeEvent(event);
}

void DetailPreviewView::hideEvent(QHideEvent *event)
{
    m_picture.letGo();
    DetailSection::hideEvent(event);
    // In a window that is not active the keyboard goes elsewhere without a word.
    if (event->spontaneous() || !std::exchange(m_hasKeyboard, false))
        return;
    finishComposing();
    m_edit.endRun();
    Q_EMIT editingChanged();
}

void DetailPreviewView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    paintSelection(painter);
    m_picture.draw(painter, placement(), m_specimen, event->rect(), width());
    paintComposition(painter);
    paintCaret(painter);
}

void DetailPreviewView::paintSelection(QPainter &painter) const
{
    const PreviewPlacement &placed = placement();
    const QColor color =
        withAlpha(accentColor(), hasFocus() ? kSelectionAlpha : kQuietSelectionAlpha);
    const int at = m_edit.caret().index;
    const auto [start, end] = isComposing()
        ? std::pair(at + m_composition.markStart, at + m_composition.markEnd)
        : std::pair(m_edit.selectionStart(), m_edit.selectionEnd());
    fillShapes(painter, selectionShapes(placed.carets, start, end), placed.origin, color);
}

void DetailPreviewView::paintComposition(QPainter &painter) const
{
    if (!isComposing())
        return;
    const PreviewPlacement &placed = placement();
    const int start = m_edit.caret().index;
    const double thickness =
        std::max(kLeastUnderline, std::round(m_specimen.font.pointSize() * kUnderlineShare));
    fillShapes(painter,
               underlines(placed.carets, start, start + int(m_composition.text.size()), thickness),
               placed.origin, m_specimen.foreground);
}

void DetailPreviewView::paintCaret(QPainter &painter) const
{
    const bool isHidden = isComposing() && m_composition.cursor < 0;
    const bool isShown = m_dropAt || (hasFocus() && m_blink.isLit() && !isHidden);
    if (!isShown)
        return;
    const QColor &ground = m_specimen.background;
    fillShapes(painter, {caretRectIn(shownCaret())}, {}, caretColor(m_specimen.foreground, ground));
}

} // namespace lorva
