// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterCellsView.h"

#include "base/Trace.h"
#include "ui/detail/CharacterAccessibility.h"
#include "ui/detail/CharacterHeaderLabel.h"
#include "ui/detail/CharacterKeys.h"
#include "ui/style/ControlColors.h"
#include "ui/style/PlainToolTip.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

#include <algorithm>

namespace lorva {

namespace {

constexpr double kGlyphPoints = 28;

} // namespace

CharacterCellsView::CharacterCellsView(QWidget *parent)
    : QWidget(parent)
{
    installCharacterAccessibility();
    setObjectName(QStringLiteral("CharacterCells"));
    setAccessibleName(tr("Characters"));
    setFocusPolicy(Qt::StrongFocus);
    connect(&m_ink, &GlyphInkStore::arrived, this, &CharacterCellsView::updateInk);
}

CharacterCellsView::~CharacterCellsView() = default;

void CharacterCellsView::setCells(const CharacterCells &cells)
{
    m_cells = cells;
    m_current.reset();
    m_opened.reset();
    m_mustRefill = true;
    layOut();
    announceCells(*this);
}

void CharacterCellsView::setPreviewFace(const Font &face)
{
    const Font glyphFont = face.withFeatures({}).withPointSize(kGlyphPoints);
    if (glyphFont == m_previewFace)
        return;
    m_previewFace = glyphFont;
    m_mustRefill = true;
    showBand();
}

void CharacterCellsView::setColors(const QColor &foreground, const QColor &lineColor)
{
    m_foreground = foreground;
    m_lineColor = lineColor;
    updateLook();
    for (CharacterGridSliceView *slice : m_charSliceViews)
        slice->setColor(foreground, lineColor);
    for (CharacterHeaderLabel *label : m_charHeaderLabels)
        label->setColors(foreground, lineColor);
    updateInk();
}

int CharacterCellsView::heightFor(int width) const
{
    const int columns = characterColumns(width).value_or(m_charGridColumns);
    return CharacterGridLayout(m_cells.layoutSections(), columns, width, false).height();
}

void CharacterCellsView::layOut()
{
    const std::optional<int> columns = characterColumns(width());
    if (m_cells.count() > 0 && columns && *columns != m_charGridColumns) {
        m_charGridColumns = *columns;
        m_mustRefill = true;
    }
    m_layout =
        CharacterGridLayout(m_cells.layoutSections(), m_charGridColumns, width(), isRightToLeft());
    showBand();
}

void CharacterCellsView::setVisibleBand(int top, int bottom)
{
    if (top == m_bandTop && bottom == m_bandBottom)
        return;
    m_isScrollingUp = top < m_bandTop;
    m_bandTop = top;
    m_bandBottom = bottom;
    showBand();
}

bool CharacterCellsView::isSettled() const
{
    return std::all_of(m_charSliceViews.begin(), m_charSliceViews.begin() + m_shownSlices,
                       [](const auto *slice) { return slice->missingGlyphs().empty(); });
}

void CharacterCellsView::showBand()
{
    const TraceStage stage("characters: band");
    updateLook();
    showHeaders();
    showSlices(m_layout.rowsIn(m_bandTop, m_bandBottom));
    m_mustRefill = false;
    updateMarks();
    m_ink.startRound();
    updateInk();
}

/// There are seven at most: they are kept.
void CharacterCellsView::showHeaders()
{
    const std::vector<int> sections = m_layout.headersIn(m_bandTop, m_bandBottom);
    while (m_charHeaderLabels.size() < sections.size()) {
        m_charHeaderLabels.push_back(new CharacterHeaderLabel(this));
        m_charHeaderLabels.back()->setColors(m_foreground, m_lineColor);
    }
    for (size_t i = 0; i < m_charHeaderLabels.size(); ++i) {
        CharacterHeaderLabel *label = m_charHeaderLabels[i];
        label->setVisible(i < sections.size());
        if (i >= sections.size())
            continue;
        label->setText(blockName(m_cells.sections.at(size_t(sections[i])).block));
        label->setGeometry(m_layout.headerRect(sections[i]));
    }
}

/// Rows that stay in sight keep their widget and what it has painted.
void CharacterCellsView::showSlices(const std::vector<CharacterGridLayout::Row> &rows)
{
    std::vector<CharacterGridSliceView *> spare = std::exchange(m_charSliceViews, {});
    m_charSliceViews.assign(rows.size(), nullptr);
    for (size_t i = 0; i < rows.size(); ++i) {
        const auto found = std::find_if(spare.begin(), spare.end(), [&](const auto *slice) {
            return slice->slice().sectionIndex == rows[i].section
                && slice->slice().startIndex == rows[i].startIndex;
        });
        if (found == spare.end())
            continue;
        m_charSliceViews[i] = *found;
        spare.erase(found);
    }
    for (size_t i = 0; i < rows.size(); ++i)
        fillSlice(m_charSliceViews[i], spare, rows[i]);
    for (CharacterGridSliceView *slice : spare) {
        slice->hide();
        // It must not be taken for the row of that place later on.
        if (m_mustRefill)
            slice->setSlice({});
    }
    m_shownSlices = std::ptrdiff_t(rows.size());
    m_charSliceViews.insert(m_charSliceViews.end(), spare.begin(), spare.end());
}

void CharacterCellsView::fillSlice(CharacterGridSliceView *&slice,
                                   std::vector<CharacterGridSliceView *> &spare,
                                   const CharacterGridLayout::Row &row)
{
    const bool isKept = slice != nullptr;
    if (!slice && !spare.empty()) {
        slice = spare.back();
        spare.pop_back();
    }
    if (!slice)
        slice = makeSlice();
    if (!isKept || m_mustRefill)
        slice->setSlice(sliceOf(row));
    slice->setGeometry(m_layout.rowRect(row));
    slice->show();
}

CharacterGridSliceView *CharacterCellsView::makeSlice()
{
    auto *slice = new CharacterGridSliceView(this);
    slice->setGlyphFont(m_previewFace);
    slice->setColor(m_foreground, m_lineColor);
    slice->onSelect = [this, slice](int index) {
        const CellIndex cell{slice->slice().sectionIndex, index};
        setCurrent(cell);
        Q_EMIT selected(cell, Qt::MouseFocusReason);
    };
    slice->onDoubleClick = [this, slice](int index) {
        Q_EMIT copyWanted({slice->slice().sectionIndex, index});
    };
    return slice;
}

CharacterSlice CharacterCellsView::sliceOf(const CharacterGridLayout::Row &row) const
{
    CharacterSlice slice;
    slice.sectionIndex = row.section;
    slice.startIndex = row.startIndex;
    slice.drawsTopEdge = row.startIndex > 0 || m_cells.areGlyphs;
    slice.drawsBottomEdge = row.isLast;
    slice.columns = m_charGridColumns;
    for (int i = 0; i < row.count; ++i) {
        const CellIndex cell{row.section, row.startIndex + i};
        slice.characters.append(m_cells.characterAt(cell));
        slice.glyphs.push_back(m_cells.glyphAt(cell, m_previewFace));
    }
    return slice;
}

void CharacterCellsView::updateLook()
{
    GlyphLook look;
    look.font = m_previewFace;
    look.box = QSize(kCharacterCell, kCharacterCell);
    look.devicePixelRatio = devicePixelRatioF();
    look.foreground = m_foreground;
    if (!m_ink.setLook(look))
        return;
    for (CharacterGridSliceView *slice : m_charSliceViews)
        slice->setGlyphFont(m_previewFace);
}

void CharacterCellsView::updateInk()
{
    std::vector<quint32> wanted;
    for (std::ptrdiff_t i = 0; i < m_shownSlices; ++i) {
        CharacterGridSliceView *slice = m_charSliceViews[size_t(i)];
        slice->takeInk(m_ink);
        const std::vector<quint32> missing = slice->missingGlyphs();
        wanted.insert(wanted.end(), missing.begin(), missing.end());
    }
    const bool isDone = wanted.empty();
    const std::vector<quint32> beyond = glyphsBeyond();
    wanted.insert(wanted.end(), beyond.begin(), beyond.end());
    m_ink.want(wanted);
    if (isDone)
        Q_EMIT settled();
}

/// Those that come into sight when the page is scrolled on the same way.
std::vector<quint32> CharacterCellsView::glyphsBeyond() const
{
    const int height = m_bandBottom - m_bandTop;
    const int top = m_isScrollingUp ? m_bandTop - height : m_bandBottom;
    std::vector<quint32> glyphs;
    for (const CharacterGridLayout::Row &row : m_layout.rowsIn(top, top + height)) {
        for (int i = 0; i < row.count; ++i)
            glyphs.push_back(m_cells.glyphAt({row.section, row.startIndex + i}, m_previewFace));
    }
    return glyphs;
}

void CharacterCellsView::updateMarks()
{
    const bool hasRing = hasFocus() && m_showsFocus;
    for (std::ptrdiff_t i = 0; i < m_shownSlices; ++i) {
        CharacterGridSliceView *slice = m_charSliceViews[size_t(i)];
        const auto columnOf = [&](const std::optional<CellIndex> &cell) -> std::optional<int> {
            if (!cell || cell->section != slice->slice().sectionIndex)
                return std::nullopt;
            return cell->index - slice->slice().startIndex;
        };
        slice->setMarks(columnOf(m_current), hasRing, columnOf(m_opened));
    }
}

void CharacterCellsView::setCurrent(CellIndex cell)
{
    if (!m_layout.contains(cell))
        return;
    m_current = cell;
    updateMarks();
    announceCurrent(*this);
}

void CharacterCellsView::setOpened(std::optional<CellIndex> cell)
{
    m_opened = cell;
    updateMarks();
}

/// The first cell that is wholly in sight, else the first of all.
void CharacterCellsView::ensureCurrent()
{
    if (m_current || m_cells.count() == 0)
        return;
    for (const CharacterGridLayout::Row &row : m_layout.rowsIn(m_bandTop, m_bandBottom)) {
        if (m_layout.rowRect(row).top() >= m_bandTop) {
            setCurrent({row.section, row.startIndex});
            return;
        }
    }
    setCurrent({0, 0});
}

void CharacterCellsView::moveCurrent(CellMove move)
{
    if (!m_current) {
        ensureCurrent();
    } else {
        setCurrent(m_layout.moved(*m_current, move, m_bandBottom - m_bandTop));
    }
    revealCurrent();
}

/// With the header of a first row: one wants to know where one is.
void CharacterCellsView::revealCurrent()
{
    if (!m_current)
        return;
    QRect rect = m_layout.cellRect(*m_current);
    if (m_current->index < m_charGridColumns)
        rect.setTop(m_layout.headerRect(m_current->section).top());
    Q_EMIT revealWanted(rect);
}

QString CharacterCellsView::nameOf(CellIndex cell) const
{
    return m_cells.nameAt(cell, m_previewFace);
}

bool CharacterCellsView::event(QEvent *event)
{
    // Another screen may have other pixels.
    if (event->type() == QEvent::ScreenChangeInternal)
        showBand();
    if (m_current && claimCopyKey(*event))
        return true;
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    if (const std::optional<CellIndex> cell = m_layout.cellAt(help->pos()))
        QToolTip::showText(
            help->globalPos(),
            //: A character, and what is known of it.
            plainToolTip(tr("%1 \u2013 %2").arg(nameOf(*cell), m_cells.descriptionAt(*cell))), this,
            m_layout.cellRect(*cell));
    return true;
}

void CharacterCellsView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
}

void CharacterCellsView::resizeEvent(QResizeEvent *)
{
    layOut();
}

void CharacterCellsView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const std::optional<CellIndex> cell = isByKeyboard ? m_current : m_layout.cellAt(event->pos());
    if (!cell)
        return;
    setCurrent(*cell);
    const QPoint at =
        isByKeyboard ? mapToGlobal(m_layout.cellRect(*cell).center()) : event->globalPos();
    Q_EMIT menuWanted(*cell, at);
}

void CharacterCellsView::focusInEvent(QFocusEvent *event)
{
    m_showsFocus = showsFocusRing(event->reason(), m_showsFocus);
    ensureCurrent();
    if (m_showsFocus)
        revealCurrent();
    updateMarks();
    announceCurrent(*this);
}

void CharacterCellsView::focusOutEvent(QFocusEvent *)
{
    updateMarks();
}

void CharacterCellsView::keyPressEvent(QKeyEvent *event)
{
    if (const std::optional<CellMove> move = moveOf(*event, isRightToLeft())) {
        m_showsFocus = true;
        moveCurrent(*move);
    } else if (event->matches(QKeySequence::Copy) && m_current) {
        Q_EMIT copyWanted(*m_current);
    } else if (isPressKey(*event) && m_current) {
        m_showsFocus = true;
        revealCurrent();
        Q_EMIT selected(*m_current, Qt::TabFocusReason);
    } else {
        event->ignore();
    }
}

} // namespace lorva
