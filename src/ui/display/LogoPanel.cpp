// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/BackgroundImages.h"
#include "ui/display/ImageIntake.h"
#include "ui/display/PanelParts.h"
#include "ui/style/ControlColors.h"
#include "ui/style/FocusRinged.h"
#include "ui/style/PointSlider.h"
#include "ui/style/Style.h"
#include "ui/style/TextButton.h"
#include "ui/style/ToggleSwitch.h"

#include <QAccessible>
#include <QDragEnterEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLocale>
#include <QMimeData>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QVBoxLayout>

#include <cmath>

namespace lorva {

namespace {

constexpr int kTileHeight = 96;
constexpr int kTilePadding = 16;
constexpr double kTileRadius = 8;
/// A logo is kept with the settings; a photograph is none.
constexpr qsizetype kMostFileBytes = 16'000'000;
// The sliders count in hundredths.
constexpr int kLeastSize = 25;
constexpr int kMostSize = 300;
constexpr int kMostSpacing = 150;

struct SpecimenColors
{
    QColor foreground;
    QColor background;
};

/// What specimens look like now, so that the tile shows what the logo will look like.
SpecimenColors specimenColors(const DisplayValues &values)
{
    switch (values.colorMode) {
    case ColorMode::white:
        return {Qt::black, Qt::white};
    case ColorMode::black:
        return {Qt::white, Qt::black};
    case ColorMode::custom:
        return {QColor(values.customForegroundColorHex), QColor(values.customBackgroundColorHex)};
    case ColorMode::image:
        break;
    }
    const QColor average = averageBackgroundColor(values.backgroundImageID.value_or(QString()));
    const QColor text(values.imageForegroundColorHex);
    return {text, average.isValid() ? average : contrastingNeutral(text)};
}

/// The logo as specimens show it; without one, the invitation to bring one.
class LogoTile final : public FocusRinged<QAbstractButton>
{
    Q_DECLARE_TR_FUNCTIONS(LogoTile)

public:
    explicit LogoTile(QWidget *parent)
        : FocusRinged(parent)
    {
        setObjectName(QStringLiteral("logoTile"));
        setFixedSize(kPanelContentWidth, kTileHeight);
        setFocusPolicy(Qt::TabFocus);
        setAttribute(Qt::WA_Hover);
        setAccessibleName(tr("Logo"));
        setAccessibleDescription(invitation());
    }

    void show(const DisplayControlsState &state)
    {
        m_logo = state.logoImage.value_or(QImage());
        m_colors = specimenColors(state.values);
        setToolTip(m_logo.isNull() ? QString() : tr("Choose another image"));
        update();
    }

    void setDropTarget(bool isTarget)
    {
        m_isDropTarget = isTarget;
        update();
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QAbstractButton::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        const NeutralColors neutral = neutralColors(isDarkDesktop());
        const bool isLit = underMouse() || m_isDropTarget;
        const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
        painter.setBrush(m_logo.isNull() ? withAlpha(neutral.text, isLit ? 0.075 : 0.045)
                                         : m_colors.background);
        painter.setPen(QPen(withAlpha(neutral.text, isLit ? 0.35 : 0.12), m_isDropTarget ? 2 : 1));
        painter.drawRoundedRect(box, kTileRadius, kTileRadius);
        if (m_logo.isNull())
            paintInvitation(painter, neutral);
        else
            paintLogo(painter);
        if (hasFocusRing())
            drawFocusRing(painter, box.adjusted(1.5, 1.5, -1.5, -1.5), kTileRadius - 2);
    }

private:
    static QString invitation() { return tr("Drop an image here, or click to choose one."); }

    void paintInvitation(QPainter &painter, const NeutralColors &neutral) const
    {
        painter.setFont(interfaceFont(InterfaceSize::label));
        painter.setPen(quietColor(neutral.text, neutral.ground, 0.6));
        painter.drawText(rect().adjusted(kTilePadding, 0, -kTilePadding, 0),
                         int(Qt::AlignCenter) | int(Qt::TextWordWrap), invitation());
    }

    void paintLogo(QPainter &painter) const
    {
        const QRectF room =
            QRectF(rect()).adjusted(kTilePadding, kTilePadding, -kTilePadding, -kTilePadding);
        const double ratio = devicePixelRatioF();
        const QSizeF fitting = QSizeF(m_logo.size()).scaled(room.size(), Qt::KeepAspectRatio);
        const QSize sizePx = (fitting * ratio).toSize().expandedTo({1, 1});
        QImage tinted = m_logo.scaled(sizePx, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter tint(&tinted);
        tint.setCompositionMode(QPainter::CompositionMode_SourceAtop);
        tint.fillRect(tinted.rect(), m_colors.foreground);
        tint.end();
        const QPointF corner = room.center() - QPointF(fitting.width() / 2, fitting.height() / 2);
        painter.drawImage(QRectF(corner, fitting), tinted);
    }

    QImage m_logo;
    SpecimenColors m_colors;
    bool m_isDropTarget = false;
};

class LogoPanel final : public NeutralPanel
{
    Q_DECLARE_TR_FUNCTIONS(LogoPanel)

public:
    explicit LogoPanel(QWidget *parent);
    void apply(const DisplayControlsState &state) override;

protected:
    void takeColors() override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    struct Measure
    {
        PointSlider *slider = nullptr;
        PanelLabel *figure = nullptr;
    };

    Measure addMeasure(QGridLayout &grid, const QString &name, int least, int most,
                       const char *objectName);
    void connectMeasures();
    QBoxLayout *makeLastRow();
    void connectIntake();
    void choose(const QByteArray &bytes);
    void showFigures() const;

    ImageIntake *m_intake;
    LogoTile *m_tile;
    PanelLabel *m_problem;
    Measure m_size;
    Measure m_spacing;
    PanelLabel *m_visibleLabel;
    ToggleSwitch *m_visible;
    TextButton *m_remove;
};

LogoPanel::LogoPanel(QWidget *parent)
    : NeutralPanel(parent)
    , m_intake(new ImageIntake(kMostFileBytes, this))
    , m_tile(new LogoTile(this))
    , m_problem(new PanelLabel({}, PanelLabel::Kind::problem, this))
    , m_visibleLabel(new PanelLabel(tr("Show Logo"), PanelLabel::Kind::body, this))
    , m_visible(new ToggleSwitch(tr("Show Logo"), this))
    , m_remove(new TextButton(tr("Remove"), TextButton::Kind::plain, this))
{
    setObjectName(QStringLiteral("LogoPanel"));
    m_problem->setObjectName(QStringLiteral("logoProblem"));
    setAcceptDrops(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kPanelPadding, kPanelPadding, kPanelPadding, kPanelPadding);
    column->setSpacing(spacing::k8);
    column->addWidget(m_tile);
    column->addWidget(m_problem);
    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(spacing::k8);
    grid->setHorizontalSpacing(spacing::k8);
    grid->setColumnStretch(0, 1);
    grid->setColumnMinimumWidth(2, spacing::k40);
    //: Of a logo, compared with the letters beside it.
    m_size = addMeasure(*grid, tr("Size"), kLeastSize, kMostSize, "logoSize");
    //: Between a logo and the letters beside it.
    m_spacing = addMeasure(*grid, tr("Spacing"), 0, kMostSpacing, "logoSpacing");
    column->addSpacing(spacing::k4);
    column->addLayout(grid);
    column->addLayout(makeLastRow());
    connectMeasures();
    connectIntake();
    apply({});
    takeColors();
}

LogoPanel::Measure LogoPanel::addMeasure(QGridLayout &grid, const QString &name, int least,
                                         int most, const char *objectName)
{
    const int row = grid.rowCount();
    Measure measure{new PointSlider(this), new PanelLabel({}, PanelLabel::Kind::figure, this)};
    measure.slider->setObjectName(QLatin1String(objectName));
    measure.slider->setAccessibleName(name);
    measure.slider->setRange(least, most);
    measure.slider->setSingleStep(5);
    measure.slider->setPageStep(25);
    measure.figure->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    grid.addWidget(new PanelLabel(name, PanelLabel::Kind::body, this), row, 0);
    grid.addWidget(measure.slider, row, 1);
    grid.addWidget(measure.figure, row, 2);
    connect(measure.slider, &PointSlider::sliderPressed, this, [this] {
        if (delegate())
            delegate()->displayHoldChanged(true);
    });
    connect(measure.slider, &PointSlider::sliderReleased, this, [this] {
        if (delegate())
            delegate()->displayHoldChanged(false);
    });
    return measure;
}

void LogoPanel::connectMeasures()
{
    connect(m_size.slider, &PointSlider::valueChanged, this, [this](int hundredths) {
        showFigures();
        if (delegate())
            delegate()->displayLogoSizeRatioChanged(hundredths / 100.0);
    });
    connect(m_spacing.slider, &PointSlider::valueChanged, this, [this](int hundredths) {
        showFigures();
        if (delegate())
            delegate()->displayLogoSpacingChanged(hundredths / 100.0);
    });
    connect(m_visible, &ToggleSwitch::clicked, this, [this](bool isVisible) {
        if (delegate())
            delegate()->displayLogoVisibilityChanged(isVisible);
    });
}

/// One row; two where the language needs them.
QBoxLayout *LogoPanel::makeLastRow()
{
    m_visible->setObjectName(QStringLiteral("showLogo"));
    m_remove->setObjectName(QStringLiteral("removeLogo"));
    m_visible->setCheckable(true);
    connect(m_remove, &TextButton::clicked, this, [this] { choose({}); });
    auto *row = new QHBoxLayout;
    row->setSpacing(spacing::k8);
    row->addWidget(m_visible);
    row->addWidget(m_visibleLabel);
    row->addStretch();
    if (row->sizeHint().width() + spacing::k8 + m_remove->sizeHint().width()
        <= kPanelContentWidth) {
        row->addWidget(m_remove);
        return row;
    }
    auto *rows = new QVBoxLayout;
    rows->setSpacing(spacing::k8);
    rows->addLayout(row);
    rows->addWidget(m_remove, 0, Qt::AlignTrailing);
    return rows;
}

void LogoPanel::connectIntake()
{
    connect(m_tile, &LogoTile::clicked, m_intake, &ImageIntake::choose);
    m_intake->onProblem = [this](const QString &words) { m_problem->setProblem(words); };
    m_intake->onBytes = [this](const QByteArray &bytes) { choose(bytes); };
}

void LogoPanel::choose(const QByteArray &bytes)
{
    m_problem->setProblem(QString());
    if (!delegate())
        return;
    delegate()->displayLogoChosen(bytes, [panel = QPointer(this)](const QString &problem) {
        if (panel)
            panel->m_problem->setProblem(problem);
    });
}

void LogoPanel::apply(const DisplayControlsState &state)
{
    m_tile->show(state);
    for (const auto &[measure, value] : {std::pair(m_size, state.values.logoSizeRatio),
                                         std::pair(m_spacing, state.values.logoSpacing)}) {
        const QSignalBlocker quiet(measure.slider);
        if (!measure.slider->isSliderDown())
            measure.slider->setValue(int(std::lround(std::clamp(value, 0.0, 20.0) * 100)));
    }
    m_visible->setChecked(state.values.logoVisible);
    const bool hasLogo = state.logoImage.has_value() || !state.values.logoImageData.isEmpty();
    for (QWidget *part :
         std::initializer_list<QWidget *>{m_size.slider, m_spacing.slider, m_visible, m_remove})
        part->setEnabled(hasLogo);
    if (!state.logoImage && hasLogo)
        m_problem->setProblem(tr("The logo cannot be read"));
    showFigures();
}

void LogoPanel::showFigures() const
{
    const auto figure = [](int hundredths) {
        return QString(QLocale().toString(hundredths / 100.0, 'f', 2) + QStringLiteral("×"));
    };
    m_size.figure->setText(figure(m_size.slider->value()));
    m_spacing.figure->setText(figure(m_spacing.slider->value()));
}

void LogoPanel::takeColors()
{
    const NeutralColors neutral = colors();
    m_size.slider->setColors(neutral.text, neutral.ground);
    m_spacing.slider->setColors(neutral.text, neutral.ground);
}

void LogoPanel::dragEnterEvent(QDragEnterEvent *event)
{
    if (!ImageIntake::canTake(*event->mimeData()))
        return;
    m_tile->setDropTarget(true);
    event->acceptProposedAction();
}

void LogoPanel::dragLeaveEvent(QDragLeaveEvent *)
{
    m_tile->setDropTarget(false);
}

void LogoPanel::dropEvent(QDropEvent *event)
{
    m_tile->setDropTarget(false);
    m_problem->setProblem({});
    m_intake->take(*event->mimeData());
    event->acceptProposedAction();
}

} // namespace

DisplayPanel *makeLogoPanel(QWidget *parent)
{
    return new LogoPanel(parent);
}

} // namespace lorva
