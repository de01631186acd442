// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/RunThen.h"
#include "ui/display/BackgroundImages.h"
#include "ui/display/BackgroundImageStore.h"
#include "ui/display/ColorChooser.h"
#include "ui/display/ImageIntake.h"
#include "ui/display/ImageThumbnail.h"
#include "ui/display/PanelParts.h"
#include "ui/style/ColorChip.h"
#include "ui/style/Style.h"

#include <QDragEnterEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QThreadPool>
#include <QVBoxLayout>

namespace lorva {

namespace {

constexpr int kColumns = 3;
/// Five rows and a half, so that a longer list shows that it goes on.
constexpr int kMostListHeight = 330;
constexpr qsizetype kMostFileBytes = 100'000'000;
/// Read larger than shown, so that it is covered whatever its shape.
constexpr int kThumbnailSidePx = 384;

/// Stands for any colour.
QImage allHues()
{
    constexpr int sidePx = 54;
    QImage image(sidePx, sidePx, QImage::Format_RGB32);
    QConicalGradient hues(sidePx / 2.0, sidePx / 2.0, 90);
    for (int i = 0; i <= 6; ++i)
        hues.setColorAt(i / 6.0, QColor::fromHsvF(float(i % 6) / 6, 0.62F, 0.92F));
    QPainter(&image).fillRect(image.rect(), hues);
    return image;
}

class BackgroundImagePanel final : public NeutralPanel
{
    Q_DECLARE_TR_FUNCTIONS(BackgroundImagePanel)

public:
    BackgroundImagePanel(std::shared_ptr<const BackgroundImageStore> store, QWidget *parent);
    void apply(const DisplayControlsState &state) override;

protected:
    void takeColors() override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QHBoxLayout *makeTextRow();
    void connectIntake();
    void rebuildTiles();
    void addTile(ImageThumbnail *tile, std::vector<QAbstractButton *> &buttons);
    void readThumbnail(ImageThumbnail *tile);
    void choose(const ImageThumbnail &tile);
    void remove(const QString &fileName);
    void showChosen();
    void chooseText(const QColor &color);
    void showText();
    void openChooser();

    const std::shared_ptr<const BackgroundImageStore> m_store;
    DisplayControlsState m_state;
    ImageIntake *m_intake;
    QWidget *m_tiles;
    QGridLayout *m_grid;
    PanelScrollArea *m_scroll;
    ArrowFocus *m_tileFocus;
    std::vector<ImageThumbnail *> m_thumbnails;
    PanelLabel *m_problem;
    ColorChip *m_white;
    ColorChip *m_black;
    ColorChip *m_custom;
    QVBoxLayout *m_column;
    ColorChooser *m_chooser = nullptr;
};

BackgroundImagePanel::BackgroundImagePanel(std::shared_ptr<const BackgroundImageStore> store,
                                           QWidget *parent)
    : NeutralPanel(parent)
    , m_store(std::move(store))
    , m_intake(new ImageIntake(kMostFileBytes, this))
    , m_tiles(new QWidget)
    , m_grid(new QGridLayout(m_tiles))
    , m_scroll(new PanelScrollArea(m_tiles, this))
    , m_tileFocus(new ArrowFocus(kColumns, this))
    , m_problem(new PanelLabel({}, PanelLabel::Kind::problem, this))
    , m_white(new ColorChip(tr("White Text"), this))
    , m_black(new ColorChip(tr("Black Text"), this))
    , m_custom(new ColorChip(tr("Custom Text Color"), this))
    , m_column(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("BackgroundImagePanel"));
    m_problem->setObjectName(QStringLiteral("backgroundProblem"));
    setAcceptDrops(true);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(spacing::k4);
    m_grid->setAlignment(Qt::AlignTop);
    m_tileFocus->onMoved = [this](QWidget *tile) { m_scroll->ensureWidgetVisible(tile, 0, 8); };
    // The tiles have their own room for the ring.
    const int side = kPanelPadding - spacing::k4;
    m_column->setContentsMargins(side, side, side, kPanelPadding);
    m_column->setSpacing(spacing::k8);
    m_column->addWidget(m_scroll);
    m_column->addWidget(m_problem);
    m_column->addLayout(makeTextRow());
    connectIntake();
    rebuildTiles();
    takeColors();
}

QHBoxLayout *BackgroundImagePanel::makeTextRow()
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(spacing::k4, spacing::k4, 0, 0);
    row->setSpacing(0);
    row->addWidget(new PanelLabel(tr("Text Color"), PanelLabel::Kind::body, this));
    row->addStretch();
    m_white->setObjectName(QStringLiteral("imageTextWhite"));
    m_black->setObjectName(QStringLiteral("imageTextBlack"));
    m_custom->setObjectName(QStringLiteral("imageTextCustom"));
    m_white->setChipColors(Qt::white, Qt::white);
    m_black->setChipColors(Qt::black, Qt::black);
    connect(m_white, &ColorChip::clicked, this, [this] { chooseText(Qt::white); });
    connect(m_black, &ColorChip::clicked, this, [this] { chooseText(Qt::black); });
    connect(m_custom, &ColorChip::clicked, this, &BackgroundImagePanel::openChooser);
    for (ColorChip *chip : {m_white, m_black, m_custom})
        row->addWidget(chip);
    auto *focus = new ArrowFocus(3, this);
    focus->setButtons({m_white, m_black, m_custom}, nullptr);
    return row;
}

void BackgroundImagePanel::connectIntake()
{
    m_intake->onProblem = [this](const QString &words) { m_problem->setProblem(words); };
    m_intake->onBytes = [this](const QByteArray &bytes) {
        m_problem->setProblem(QString());
        if (!delegate())
            return;
        delegate()->displayUserImageAdded(bytes, [panel = QPointer(this)](const QString &problem) {
            if (panel)
                panel->m_problem->setProblem(problem);
        });
    };
}

void BackgroundImagePanel::takeColors()
{
    const NeutralColors neutral = colors();
    for (ColorChip *chip : {m_white, m_black, m_custom})
        chip->setColors(neutral.text, neutral.ground);
}

void BackgroundImagePanel::apply(const DisplayControlsState &state)
{
    const bool hasSameTiles = state.userImages == m_state.userImages;
    m_state = state;
    if (!hasSameTiles)
        rebuildTiles();
    showChosen();
    showText();
}

void BackgroundImagePanel::rebuildTiles()
{
    for (ImageThumbnail *tile : m_thumbnails)
        tile->deleteLater();
    m_thumbnails.clear();
    std::vector<QAbstractButton *> buttons;
    using Kind = ImageThumbnail::Kind;
    for (const BackgroundImage &image : builtInBackgroundImages()) {
        const QString id = QLatin1String(image.id);
        addTile(new ImageThumbnail(Kind::builtIn, id, backgroundImageName(id), m_tiles), buttons);
    }
    for (const QString &fileName : m_state.userImages) {
        auto *tile = new ImageThumbnail(Kind::user, fileName, tr("Your Image"), m_tiles);
        addTile(tile, buttons);
        readThumbnail(tile);
    }
    addTile(new ImageThumbnail(Kind::adding, QStringLiteral("add"), tr("Add Image…"), m_tiles),
            buttons);
    m_tileFocus->setButtons(buttons, nullptr);
    m_grid->invalidate();
    m_scroll->setFixedHeight(std::min(m_grid->sizeHint().height(), kMostListHeight));
}

void BackgroundImagePanel::addTile(ImageThumbnail *tile, std::vector<QAbstractButton *> &buttons)
{
    const int index = int(m_thumbnails.size());
    m_grid->addWidget(tile, index / kColumns, index % kColumns);
    m_thumbnails.push_back(tile);
    buttons.push_back(tile);
    connect(tile, &ImageThumbnail::clicked, this, [this, tile] { choose(*tile); });
    connect(tile, &ImageThumbnail::removalRequested, this, [this, id = tile->id()] { remove(id); });
    tile->show();
}

void BackgroundImagePanel::readThumbnail(ImageThumbnail *tile)
{
    if (!m_store)
        return;
    const QSize sizePx = (QSizeF(ImageThumbnail::kImageSize) * devicePixelRatioF()).toSize();
    runThen(
        *QThreadPool::globalInstance(), tile,
        [store = m_store, fileName = tile->id(), sizePx](const std::stop_token &) {
            const Result<QImage> image = store->read(fileName, kThumbnailSidePx);
            return image ? coveringImage(*image, sizePx) : QImage();
        },
        [tile](const QImage &image) { tile->setImage(image); });
}

void BackgroundImagePanel::choose(const ImageThumbnail &tile)
{
    m_problem->setProblem({});
    if (tile.kind() == ImageThumbnail::Kind::adding)
        m_intake->choose();
    else if (!delegate())
        return;
    else if (tile.kind() == ImageThumbnail::Kind::user)
        delegate()->displayUserImageChosen(tile.id());
    else
        delegate()->displayBackgroundImageChosen(tile.id());
}

void BackgroundImagePanel::remove(const QString &fileName)
{
    const QPointer<BackgroundImagePanel> self = this;
    const bool hadFocus = m_tiles->isAncestorOf(focusWidget());
    const QStringList former = m_state.userImages;
    if (delegate())
        delegate()->displayUserImageRemoved(fileName);
    if (!self || !hadFocus)
        return;
    // The keyboard goes on from what now stands in its place.
    const qsizetype place = former.indexOf(fileName) + qsizetype(builtInBackgroundImages().size());
    const size_t next = std::min(size_t(std::max<qsizetype>(place, 0)), m_thumbnails.size() - 1);
    m_tileFocus->setHome(m_thumbnails[next]);
    m_thumbnails[next]->setFocus(Qt::TabFocusReason);
}

void BackgroundImagePanel::showChosen()
{
    ImageThumbnail *home = nullptr;
    for (ImageThumbnail *tile : m_thumbnails) {
        const bool isUser = tile->kind() == ImageThumbnail::Kind::user;
        const bool isChosen = m_state.values.colorMode == ColorMode::image
            && (isUser ? m_state.values.backgroundImageUserFilename == tile->id()
                       : !m_state.values.backgroundImageUserFilename
                        && m_state.values.backgroundImageID == tile->id());
        if (tile->isCheckable())
            setChosen(*tile, isChosen);
        home = isChosen ? tile : home;
    }
    const QWidget *focused = focusWidget();
    if (!focused || !m_tiles->isAncestorOf(focused))
        m_tileFocus->setHome(home);
}

void BackgroundImagePanel::chooseText(const QColor &color)
{
    m_state.values.imageForegroundColorHex = color.name(QColor::HexRgb).toUpper();
    showText();
    if (delegate())
        delegate()->displayImageForegroundChanged(color.name(QColor::HexRgb).toUpper());
}

void BackgroundImagePanel::showText()
{
    const QColor color(m_state.values.imageForegroundColorHex);
    const bool isWhite = color == QColor(Qt::white);
    const bool isBlack = color == QColor(Qt::black);
    const bool isCustom = !isWhite && !isBlack;
    setChosen(*m_white, isWhite);
    setChosen(*m_black, isBlack);
    setChosen(*m_custom, isCustom);
    // All hues stand for any colour, until there is one.
    if (isCustom)
        m_custom->setChipColors(color, color);
    else
        m_custom->setChipImage(allHues());
    if (m_chooser)
        m_chooser->setColor(color);
}

void BackgroundImagePanel::openChooser()
{
    showText();
    if (m_chooser) {
        m_chooser->setVisible(!m_chooser->isVisible());
        return;
    }
    m_chooser = new ColorChooser(this);
    m_chooser->setColor(QColor(m_state.values.imageForegroundColorHex));
    m_column->addWidget(m_chooser, 0, Qt::AlignHCenter);
    connect(m_chooser, &ColorChooser::colorChosen, this, &BackgroundImagePanel::chooseText);
    connect(m_chooser, &ColorChooser::held, this, [this](bool isHeld) {
        if (delegate())
            delegate()->displayHoldChanged(isHeld);
    });
    m_chooser->show();
}

void BackgroundImagePanel::dragEnterEvent(QDragEnterEvent *event)
{
    if (ImageIntake::canTake(*event->mimeData()))
        event->acceptProposedAction();
}

void BackgroundImagePanel::dropEvent(QDropEvent *event)
{
    m_problem->setProblem({});
    m_intake->take(*event->mimeData());
    event->acceptProposedAction();
}

} // namespace

DisplayPanel *makeBackgroundImagePanel(QWidget *parent,
                                       std::shared_ptr<const BackgroundImageStore> store)
{
    return new BackgroundImagePanel(std::move(store), parent);
}

} // namespace lorva
