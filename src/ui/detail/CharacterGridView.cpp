// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterGridView.h"

#include "base/GroupedNumber.h"
#include "ui/detail/CharacterCellsView.h"
#include "ui/detail/CharacterNames.h"
#include "ui/detail/CharacterPopoverViewController.h"
#include "ui/detail/CharacterTrayView.h"
#include "ui/sheets/ProgressIndicators.h"
#include "ui/style/MenuLook.h"
#include "ui/style/Palette.h"
#include "ui/style/PaneColors.h"
#include "ui/style/Popover.h"
#include "ui/style/SegmentedControl.h"
#include "ui/style/Style.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QStyle>

namespace lorva {

namespace {

constexpr int kCaptionHeight = 24;
constexpr int kCaptionGap = spacing::k20;
constexpr int kMessageHeight = 120;
constexpr int kTrayGap = spacing::k12;
constexpr double kQuiet = 0.5;
constexpr int kNoteMs = 1600;
/// Listing takes a few milliseconds; only what takes longer is worth an indicator.
constexpr int kSpinnerDelayMs = 150;
constexpr QRgb kGroundOverImage = 0xFF1C1C1E;

} // namespace

CharacterGridView::CharacterGridView(QWidget *parent)
    : DetailSection(parent)
    , m_count(new QLabel(this))
    , m_spinner(new QuietSpinner(this))
    , m_kind(new SegmentedControl(this))
    , m_cells(new CharacterCellsView(this))
    , m_tray(new CharacterTrayView(this))
{
    setObjectName(QStringLiteral("CharacterGrid"));
    m_count->setObjectName(QStringLiteral("CharacterCount"));
    m_count->setTextFormat(Qt::PlainText);
    m_count->setFont(
        interfaceFont(InterfaceSize::caption, InterfaceWeight::regular, Figures::tabular));
    m_kind->setObjectName(QStringLiteral("CharacterKind"));
    m_kind->setAccessibleName(tr("Characters or glyphs"));
    m_kind->addTextSegment(tr("Characters"));
    m_kind->addTextSegment(tr("Glyphs"));
    m_kind->setCurrentIndex(0);
    m_spinner->hide();
    m_noteEnd.setSingleShot(true);
    m_noteEnd.setInterval(kNoteMs);
    m_spinnerStart.setSingleShot(true);
    m_spinnerStart.setInterval(kSpinnerDelayMs);
    connect(&m_spinnerStart, &QTimer::timeout, m_spinner, &QWidget::show);
    connect(&m_noteEnd, &QTimer::timeout, this, [this] {
        m_note.clear();
        showState();
    });
    connect(&m_model, &CharacterGridModel::changed, this, &CharacterGridView::takeListing);
    connect(&m_finder, &CharacterFinder::changed, this, &CharacterGridView::takeCells);
    connect(m_kind, &SegmentedControl::activated, this,
            [this](int index) { m_finder.setGlyphsShown(index == 1); });
    connect(m_cells, &CharacterCellsView::selected, this, &CharacterGridView::openPopover);
    connect(m_cells, &CharacterCellsView::copyWanted, this, &CharacterGridView::copyCell);
    connect(m_cells, &CharacterCellsView::menuWanted, this, &CharacterGridView::openMenu);
    connect(m_cells, &CharacterCellsView::revealWanted, this,
            [this](const QRect &rect) { Q_EMIT revealWanted(rect.translated(m_cells->pos())); });
    connect(m_tray, &CharacterTrayView::copyWanted, this, &CharacterGridView::copy);
    connect(m_tray, &CharacterTrayView::textChanged, this, [this] {
        const QWidget *focus = window()->focusWidget();
        if (m_tray->text().isEmpty() && (focus == m_tray || m_tray->isAncestorOf(focus)))
            m_cells->setFocus();
        placeTray();
        Q_EMIT heightChanged();
    });
    showState();
}

CharacterGridView::~CharacterGridView()
{
    closePopover();
}

void CharacterGridView::requestCharacterGrid(const QString &key, const Font &face)
{
    m_model.request(key, face);
}

void CharacterGridView::setPreviewFace(const Font &face)
{
    m_previewFace = face;
    m_cells->setPreviewFace(face);
    m_tray->setPreviewFace(face);
}

/// What is opaque over the page.
QColor CharacterGridView::groundColor() const
{
    return m_background.alpha() == 255 ? m_background : QColor(kGroundOverImage);
}

void CharacterGridView::setColors(const QColor &foreground, const QColor &background)
{
    if (foreground == m_foreground && background == m_background)
        return;
    m_foreground = foreground;
    m_background = background;
    const QColor under = groundUnder(foreground, background);
    m_cells->setColors(foreground, hairlineColor(foreground, under));
    m_kind->setColors(foreground, under);
    m_tray->setColors(controlColor(foreground, groundColor()), groundColor());
    QPalette palette = m_count->palette();
    palette.setColor(QPalette::WindowText, withAlpha(controlColor(foreground, under), kQuiet));
    m_count->setPalette(palette);
    closePopover();
    update();
}

void CharacterGridView::setSearch(const QString &query)
{
    m_finder.setQuery(query);
}

void CharacterGridView::focusCells()
{
    m_cells->setFocus(Qt::ShortcutFocusReason);
}

void CharacterGridView::takeListing()
{
    if (m_model.isEnumeratingCharacters() && m_finder.cells().count() > 0)
        m_bodyHeightBefore = bodyHeight(width());
    closePopover();
    m_finder.setListing(m_model.listing());
    showState();
    Q_EMIT heightChanged();
}

void CharacterGridView::takeCells()
{
    if (!m_finder.isSearching()) {
        closePopover();
        m_cells->setCells(m_finder.cells());
        Q_EMIT heightChanged();
    }
    showState();
}

void CharacterGridView::showState()
{
    const bool isShown = m_model.cachedCharacterGridKey() || m_model.pendingCharacterGridKey();
    m_count->setVisible(isShown);
    m_kind->setVisible(isShown);
    m_count->setText(m_note.isEmpty() ? countText() : m_note);
    // Not hidden: the keyboard would go elsewhere.
    m_cells->setFocusPolicy(m_finder.cells().count() > 0 ? Qt::StrongFocus : Qt::NoFocus);
    if (!m_model.isEnumeratingCharacters()) {
        m_spinnerStart.stop();
        m_spinner->hide();
    } else if (!m_spinnerStart.isActive() && m_spinner->isHidden()) {
        m_spinnerStart.start();
    }
    placeParts();
    update();
}

QString CharacterGridView::countText() const
{
    if (m_model.isEnumeratingCharacters())
        return {};
    const CharacterCells &cells = m_finder.cells();
    const int count = cells.count();
    const QString number = groupedNumber(count);
    //: Characters or glyphs.
    if (m_finder.hasQuery())
        return tr("%1 found", nullptr, count).arg(number);
    return (cells.areGlyphs ? tr("%1 glyphs", nullptr, count) : tr("%1 characters", nullptr, count))
        .arg(number);
}

QString CharacterGridView::message() const
{
    if (!m_model.cachedCharacterGridKey() || m_finder.cells().count() > 0)
        return {};
    if (m_finder.isSearching())
        return {};
    if (m_finder.hasQuery() && !m_model.listing()->characterOfGlyph.empty())
        return m_finder.areGlyphsWanted() ? tr("No Glyphs Found") : tr("No Characters Found");
    return m_finder.areGlyphsWanted() ? tr("This face has no glyphs.")
                                      : tr("This face has no characters.");
}

int CharacterGridView::bodyHeight(int width) const
{
    return m_finder.cells().count() > 0 ? m_cells->heightFor(width) : kMessageHeight;
}

int CharacterGridView::heightFor(int width) const
{
    if (!m_model.cachedCharacterGridKey() && !m_model.pendingCharacterGridKey())
        return 0;
    const int body = m_model.isEnumeratingCharacters()
        ? std::max(m_bodyHeightBefore, kMessageHeight)
        : bodyHeight(width);
    const int tray = m_tray->text().isEmpty() ? 0 : CharacterTrayView::kHeight + 2 * kTrayGap;
    return kCaptionHeight + kCaptionGap + body + tray;
}

void CharacterGridView::setVisibleBand(int top, int bottom)
{
    m_bandTop = top;
    m_bandBottom = bottom;
    m_cells->setVisibleBand(top - m_cells->y(), bottom - m_cells->y());
    placeTray();
}

bool CharacterGridView::isSettled() const
{
    return !m_model.isEnumeratingCharacters() && !m_finder.isSearching() && m_cells->isSettled();
}

Popover *CharacterGridView::characterPopover() const
{
    return m_characterPopover;
}

void CharacterGridView::placeParts()
{
    const auto place = [this](QWidget *part, const QRect &rect) {
        part->setGeometry(QStyle::visualRect(layoutDirection(), this->rect(), rect));
    };
    const int kindWidth = m_kind->sizeHint().width();
    place(m_kind, {width() - kindWidth, 0, kindWidth, kCaptionHeight});
    place(m_count, {0, 0, std::max(0, width() - kindWidth - spacing::k16), kCaptionHeight});
    const QSize spinner = m_spinner->sizeHint();
    place(m_spinner,
          {0, (kCaptionHeight - spinner.height()) / 2, spinner.width(), spinner.height()});
    const int top = kCaptionHeight + kCaptionGap;
    const int body = m_finder.cells().count() > 0 ? m_cells->heightFor(width()) : 0;
    m_cells->setGeometry(0, top, width(), body);
    m_cells->setVisibleBand(m_bandTop - top, m_bandBottom - top);
    placeTray();
}

/// At the lower end of what is in sight of the cells.
void CharacterGridView::placeTray()
{
    const int lowest = height() - CharacterTrayView::kHeight;
    const int inSight = m_bandBottom - CharacterTrayView::kHeight - kTrayGap;
    m_tray->setGeometry(0, std::max(kCaptionHeight, std::min(lowest, inSight)), width(),
                        CharacterTrayView::kHeight);
    m_tray->raise();
}

void CharacterGridView::paintEvent(QPaintEvent *)
{
    const QString text = message();
    if (text.isEmpty())
        return;
    QPainter painter(this);
    painter.setFont(interfaceFont(InterfaceSize::body));
    painter.setPen(
        withAlpha(controlColor(m_foreground, groundUnder(m_foreground, m_background)), kQuiet));
    painter.drawText(QRect(0, kCaptionHeight + kCaptionGap, width(), kMessageHeight),
                     Qt::AlignCenter, text);
}

void CharacterGridView::resizeEvent(QResizeEvent *)
{
    placeParts();
}

void CharacterGridView::changeEvent(QEvent *event)
{
    DetailSection::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeParts();
}

/// What the cells and the tray have no use for.
void CharacterGridView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Backspace && !m_tray->text().isEmpty())
        m_tray->removeLast();
    else
        DetailSection::keyPressEvent(event);
}

void CharacterGridView::openPopover(CellIndex cell, Qt::FocusReason reason)
{
    closePopover();
    CharacterPopoverContent content;
    content.character = m_finder.cells().characterAt(cell);
    content.font = m_previewFace;
    content.glyphIndex = m_finder.cells().glyphAt(cell, m_previewFace);
    content.glyphName = m_finder.cells().glyphName(content.glyphIndex);
    content.foregroundColor = m_foreground;
    content.backgroundColor = groundColor();
    auto *controller = new CharacterPopoverViewController(content);
    connect(controller, &CharacterPopoverViewController::copyWanted, this,
            [this](const QString &text) {
                copy(text);
                closePopover();
            });
    connect(controller, &CharacterPopoverViewController::trayWanted, this,
            [this](const QString &character) {
                collect(character);
                closePopover();
            });
    m_characterPopover = Popover::openAt(controller, m_cells, m_cells->arrangement().cellRect(cell),
                                         m_cells->nameOf(cell), reason);
    m_characterPopover->setColors(controlColor(m_foreground, groundColor()), groundColor());
    m_cells->setOpened(cell);
    connect(m_characterPopover, &Popover::closed, this, [this] {
        m_characterPopover.clear();
        m_cells->setOpened(std::nullopt);
    });
}

void CharacterGridView::closePopover()
{
    if (m_characterPopover)
        m_characterPopover->close();
}

void CharacterGridView::openMenu(CellIndex cell, const QPoint &globalPosition)
{
    closePopover();
    const QString character = m_finder.cells().characterAt(cell);
    QMenu *menu = makeMenu(this);
    menu->setObjectName(QStringLiteral("CharacterMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!character.isEmpty()) {
        const char32_t scalar = firstScalar(character);
        menu->addAction(tr("Copy Character"), this, [=, this] { copy(character); });
        menu->addAction(tr("Copy Code Point"), this, [=, this] { copy(codePointText(scalar)); });
        QAction *name =
            menu->addAction(tr("Copy Name"), this, [=, this] { copy(unicodeName(scalar)); });
        name->setEnabled(!unicodeName(scalar).isEmpty());
    }
    if (m_finder.cells().areGlyphs) {
        const QString name =
            m_finder.cells().glyphName(m_finder.cells().glyphAt(cell, m_previewFace));
        menu->addAction(tr("Copy Glyph Name"), this, [=, this] { copy(name); });
    }
    if (!character.isEmpty()) {
        menu->addSeparator();
        menu->addAction(tr("Add to Tray"), this, [=, this] { collect(character); });
    }
    menu->popup(globalPosition);
}

void CharacterGridView::copy(const QString &text)
{
    if (text.isEmpty())
        return;
    QGuiApplication::clipboard()->setText(text);
    m_note = tr("Copied %1").arg(m_count->fontMetrics().elidedText(text, Qt::ElideRight, 240));
    m_noteEnd.start();
    showState();
}

/// Of a glyph that no character leads to, its name.
void CharacterGridView::copyCell(CellIndex cell)
{
    const CharacterCells &cells = m_finder.cells();
    const QString character = cells.characterAt(cell);
    copy(character.isEmpty() ? cells.glyphName(cells.glyphAt(cell, m_previewFace)) : character);
}

void CharacterGridView::collect(const QString &character)
{
    m_tray->add(character);
}

} // namespace lorva
