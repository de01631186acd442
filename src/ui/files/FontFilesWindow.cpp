// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/files/FontFilesWindow.h"

#include "base/NotificationCentre.h"
#include "base/Trace.h"
#include "model/LorvaAppModel.h"
#include "ui/browser/BrowserEmptyStateView.h"
#include "ui/browser/TopBarLayout.h"
#include "ui/files/FontFileDrop.h"
#include "ui/files/FontFilesBar.h"
#include "ui/files/FontFilesFooter.h"
#include "ui/files/FontFilesList.h"
#include "ui/files/FontFilesPage.h"
#include "ui/sheets/SheetQueue.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QKeyEvent>
#include <QPainter>
#include <QShortcut>
#include <QStyle>

#include <algorithm>
#include <chrono>

namespace lorva {

namespace {

using namespace std::chrono_literals;
using Kind = FontFilesRow::Kind;

/// What is read sooner needs no word.
constexpr auto kMessageDelay = 300ms;
/// A display closes the connection on a title of megabytes.
constexpr qsizetype kLongestTitle = 300;
/// For the footer's words, which may be cut.
constexpr int kStatusRoom = 120;

FontLibraryService::Dependencies libraryOf(const FontFilesServices &services)
{
    return {std::make_shared<NoAvailableFonts>(), services.systemFont};
}

} // namespace

FontFilesWindow::FontFilesWindow(LorvaAppModel &model, FontFilesServices services)
    : m_model(model)
    , m_services(std::move(services))
    , m_library(libraryOf(m_services))
    , m_presenter(*this)
    , m_activation(model, m_presenter)
    , m_list(new FontFilesList(this))
    , m_bar(new FontFilesBar(this))
    , m_page(new FontFilesPage(makeFontResolver(m_library), this))
    , m_message(new BrowserEmptyStateView(this))
    , m_footer(new FontFilesFooter(this))
    , m_inspector(new FontInspectorViewController(m_services.orthographies, this))
    , m_reader(m_library)
{
    setObjectName(QStringLiteral("FontFilesWindow"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(kSmallestSize);
    resize(kStandardSize);
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.font-file-activations"));
    m_pool.setMaxThreadCount(1);
    m_messageDelay.setSingleShot(true);
    m_closePatience.setSingleShot(true);
    m_inspector->setSelectedTab(FontInspectorViewController::Tab::info);
    m_inspector->setDelegate(this);
    m_bar->setPointSize(m_page->pointSize());
    m_message->hide();
    connectParts();
    connectFooter();
    clear();
}

FontFilesWindow::~FontFilesWindow()
{
    m_look.cancel();
    m_pool.waitForDone();
    // They report to members that go before the children do.
    delete m_list;
    delete m_page;
    delete m_inspector;
}

void FontFilesWindow::connectParts()
{
    m_reader.onRead = [this](FontFilesReader::Part part) { take(std::move(part)); };
    connect(&m_messageDelay, &QTimer::timeout, this, [this] {
        showMessage(tr("Reading Files"), tr("The fonts will be here in a moment."));
    });
    connect(m_list, &FontFilesList::chosen, this, &FontFilesWindow::choose);
    connect(m_bar, &FontFilesBar::pointSizeChosen, m_page, &FontFilesPage::setPointSize);
    connect(m_bar, &FontFilesBar::stageChosen, m_page, &FontFilesPage::setStage);
    connect(m_bar, &FontFilesBar::inspectorToggled, this, &FontFilesWindow::toggleInspector);
    connect(m_page, &FontFilesPage::styleChosen, this, &FontFilesWindow::chooseStyle);
    connect(m_page, &FontFilesPage::activationWanted, this, [this](const FontStyleRecord &style) {
        m_activation.activateStyle(m_page->face().familyName, style);
    });
    connect(m_page, &FontFilesPage::deactivationWanted, this, [this](const FontStyleRecord &style) {
        m_activation.deactivateStyle(m_page->face().familyName, style);
    });
    connect(new FontFileDrop(*this), &FontFileDrop::dropped, this,
            [this](const std::vector<FilePath> &files) {
                if (onDropped)
                    onDropped(files);
            });
    // The toolkit knows the desktops' own closing key of some desktops only.
    auto *closing = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_W), this);
    connect(closing, &QShortcut::activated, this, &QWidget::close);
    auto *quitting = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), this);
    connect(quitting, &QShortcut::activated, this, [this] {
        if (onQuitWanted)
            onQuitWanted();
    });
    NotificationCentre::shared().observe(ActivationProvider::changeNotification(), this,
                                         [this](const void *) { lookAtActivations(); });
}

void FontFilesWindow::connectFooter()
{
    const auto shown = [this] { return QStringList(m_page->face().familyName); };
    connect(m_footer, &FontFilesFooter::activationWanted, this,
            [this, shown] { m_activation.activate(shown()); });
    connect(m_footer, &FontFilesFooter::remainingActivationWanted, this,
            [this, shown] { m_activation.activateRemaining(shown()); });
    connect(m_footer, &FontFilesFooter::deactivationWanted, this,
            [this, shown] { m_activation.deactivate(shown()); });
    connect(m_footer, &FontFilesFooter::activationOfAllWanted, this, [this] {
        QStringList names;
        for (const FontFamilyRecord &family : m_state.families)
            names << family.familyName;
        m_activation.activate(names);
    });
    connect(m_footer, &FontFilesFooter::failuresWanted, &m_activation,
            &ActivationCommands::showFailures);
    connect(m_footer, &FontFilesFooter::libraryWanted, this, [this] {
        const FontFamilyRecord *family = shownFamily();
        if (onLibraryWanted)
            onLibraryWanted(family ? family->familyName : QString());
    });
    connect(&m_activation, &ActivationCommands::changed, this, &FontFilesWindow::applyActivations);
    connect(&m_activation, &ActivationCommands::changed, this, &FontFilesWindow::closeWhenDone,
            Qt::QueuedConnection);
    connect(&m_closePatience, &QTimer::timeout, this, &QWidget::close);
}

void FontFilesWindow::open(const std::vector<FilePath> &files, const QStringList &foreign)
{
    stopClosing();
    clear();
    m_messageDelay.start(kMessageDelay);
    m_reader.read(files, foreign);
}

/// Nothing is shown, nothing kept of what was, and nothing asked about it any more.
void FontFilesWindow::clear()
{
    ++m_edition;
    m_messageDelay.stop();
    m_reader.cancel();
    m_look.cancel();
    m_activation.forgetRequests();
    SheetQueue::of(*this).cancelAll();
    setWindowTitle(fontFilesTitle({}));
    m_state = {};
    m_rows.clear();
    m_row.reset();
    m_isRowChosen = false;
    m_known = {};
    m_areActivationsKnown = false;
    m_given.reset();
    m_activation.setGivenFonts(std::make_shared<const GivenFonts>());
    m_list->setRows({});
    m_bar->setTitle({});
    m_bar->setControlsShown(false);
    m_page->hide();
    m_page->clear();
    m_message->hide();
    m_footer->apply({});
    applyInspector();
    m_library.setFamilies(std::make_shared<const std::vector<FontFamilyRecord>>());
    layOut();
}

/// The row of what was shown of `before`.
bool FontFilesWindow::isChosen(const FontFilesRow &row, const FontFilesRow &chosen,
                               const FontFilesState &before) const
{
    if (row.kind != chosen.kind || row.kind == Kind::heading)
        return false;
    if (row.kind == Kind::problem)
        return m_isRowChosen && m_state.problems[row.index] == before.problems[chosen.index];
    const FontFamilyRecord &family = m_state.families[row.index];
    const FontFamilyRecord &other = before.families[chosen.index];
    return family.familyName == other.familyName
        && family.styles[row.style] == other.styles[chosen.style];
}

void FontFilesWindow::take(FontFilesReader::Part part)
{
    const TraceStage stage("font files: take");
    m_messageDelay.stop();
    // What is chosen stays so while more files come in.
    const FontFilesRow chosen = m_row ? m_rows[*m_row] : FontFilesRow{Kind::heading, {}};
    m_library.setFamilies(std::move(part.families));
    const FontFilesState before = std::exchange(m_state, std::move(part.state));
    m_rows = fontFilesRows(m_state);
    m_list->setRows(m_rows);
    m_row = firstRow(m_state, m_rows);
    for (size_t i = 0; i < m_rows.size(); ++i)
        if (isChosen(m_rows[i], chosen, before))
            m_row = i;
    setWindowTitle(fontFilesTitle(m_state).left(kLongestTitle));
    GivenFonts given{m_state.families, m_services.availableFonts};
    m_given = std::make_shared<const GivenFonts>(std::move(given));
    m_activation.setGivenFonts(m_given);
    lookAtActivations();
    showRow();
    traceMoment("font files shown");
}

void FontFilesWindow::choose(size_t row)
{
    if (row >= m_rows.size() || m_rows[row].kind == Kind::heading)
        return;
    m_row = row;
    m_isRowChosen = true;
    showRow();
}

void FontFilesWindow::chooseStyle(const FontStyleRecord &style)
{
    for (size_t i = 0; i < m_rows.size(); ++i) {
        const FontFilesRow &row = m_rows[i];
        if (row.kind == Kind::face && m_state.families[row.index].styles[row.style] == style
            && m_state.families[row.index].familyName == m_page->face().familyName)
            m_row = i;
    }
    showRow();
}

void FontFilesWindow::showRow()
{
    if (!m_row) {
        showMessage(tr("No Fonts"), tr("None of these files could be opened."));
        return;
    }
    m_list->setCurrent(*m_row);
    const FontFilesRow &row = m_rows[*m_row];
    if (row.kind == Kind::face) {
        const FontFamilyRecord &family = m_state.families[row.index];
        showFace(family, family.styles[row.style]);
    } else {
        showMessage(row.text, fontFileProblemText(m_state.problems[row.index].problem));
    }
    if (focusWidget())
        return;
    if (m_list->isVisibleTo(this))
        m_list->setFocus(Qt::OtherFocusReason);
    else
        m_page->focusPage();
}

void FontFilesWindow::showFace(const FontFamilyRecord &family, const FontStyleRecord &style)
{
    m_message->hide();
    m_page->show();
    m_page->showFace(family, style, m_edition);
    //: A family, and one of its styles.
    m_bar->setTitle(tr("%1 %2").arg(family.familyName, style.label));
    m_bar->setControlsShown(true);
    applyActivations();
}

void FontFilesWindow::showMessage(const QString &title, const QString &sentence)
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    m_page->hide();
    m_message->setColors(colors.text, colors.ground);
    m_message->show(BrowserEmptyState{BrowserEmptyState::SourceEmpty{title, sentence, false}});
    m_message->setVisible(true);
    m_bar->setTitle({});
    m_bar->setControlsShown(false);
    applyActivations();
}

const FontFamilyRecord *FontFilesWindow::shownFamily() const
{
    if (!m_row || m_rows[*m_row].kind != Kind::face)
        return nullptr;
    return &m_state.families[m_rows[*m_row].index];
}

// --- The window ---

void FontFilesWindow::present()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    const bool wasOpen = isVisible();
    show();
    if (wasOpen)
        raise();
    activateWindow();
}

bool FontFilesWindow::isSettled() const
{
    return !m_reader.isReading() && (m_areActivationsKnown || m_state.families.empty())
        && (m_page->isHidden() || m_page->isSettled()) && m_inspector->isSettled();
}

/// One face, or one problem, needs no list.
int FontFilesWindow::listWidth() const
{
    return m_rows.size() > 2 ? FontFilesList::kWidth : 0;
}

bool FontFilesWindow::isNarrow() const
{
    const int middle = width() - listWidth() - FontInspectorViewController::kWidth;
    return width() < kInspectorWidth || middle < m_footer->leastWidth() + kStatusRoom;
}

void FontFilesWindow::layOut()
{
    const int left = listWidth();
    const bool hasInspector = showsInspector();
    const int right = hasInspector && !isNarrow() ? FontInspectorViewController::kWidth : 0;
    const int middle = std::max(width() - left - right, 0);
    const int bar = kTopBarHeight;
    const int foot = m_footer->offer() == FontFilesOffer() ? 0 : FontFilesFooter::kHeight;
    const auto place = [this](QWidget *part, const QRect &where) {
        part->setGeometry(QStyle::visualRect(layoutDirection(), rect(), where));
    };
    place(m_list, {0, 0, FontFilesList::kWidth, height()});
    place(m_bar, {left, 0, middle, bar});
    const QRect page(left, bar, middle, std::max(height() - bar - foot, 0));
    place(m_page, page);
    place(m_message, page);
    place(m_footer, {left, height() - foot, middle, foot});
    const int inspectorTop = isNarrow() ? bar : 0;
    place(m_inspector,
          {width() - FontInspectorViewController::kWidth, inspectorTop,
           FontInspectorViewController::kWidth, height() - inspectorTop - (isNarrow() ? foot : 0)});
    m_list->setVisible(left > 0);
    m_footer->setVisible(foot > 0);
    // A picture's size is fixed.
    const int least = std::max(kSmallestSize.width(), left + m_footer->leastWidth());
    if (minimumWidth() != least && minimumWidth() != maximumWidth())
        setMinimumWidth(least);
    m_inspector->setVisible(hasInspector);
    m_inspector->raise();
    m_bar->setInspectorShown(hasInspector);
}

void FontFilesWindow::resizeEvent(QResizeEvent *)
{
    layOut();
}

void FontFilesWindow::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), neutralColors(isDarkDesktop()).ground);
}

void FontFilesWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void FontFilesWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    FontInstallationService *service = m_model.installationService();
    // Fonts may have been switched elsewhere meanwhile.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && service && m_given)
        service->takeChangesElsewhere();
    if (event->type() == QEvent::PaletteChange) {
        const NeutralColors colors = neutralColors(isDarkDesktop());
        m_message->setColors(colors.text, colors.ground);
        update();
    }
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
}

} // namespace lorva
