// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/ColorChooser.h"
#include "ui/display/PanelParts.h"
#include "ui/style/ColorChip.h"
#include "ui/style/IconButton.h"
#include "ui/style/SegmentedControl.h"
#include "ui/style/Style.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLocale>
#include <QVBoxLayout>

#include <array>
#include <cmath>

namespace lorva {

namespace {

struct ColorPair
{
    const char *name;
    const char *foreground;
    const char *background;
};

/// Each reads well: 4.5:1 at the least.
constexpr std::array kPairs{
    //: Pairs of colors, named by the more striking one.
    ColorPair{QT_TRANSLATE_NOOP("ColorPanel", "Ultramarine"), "#FFFFFF", "#1328E9"},
    ColorPair{QT_TRANSLATE_NOOP("ColorPanel", "Vermilion"), "#FFF3E6", "#C22E0E"},
    ColorPair{QT_TRANSLATE_NOOP("ColorPanel", "Forest"), "#F1E9D2", "#1E3B2C"},
    ColorPair{QT_TRANSLATE_NOOP("ColorPanel", "Aubergine"), "#F3D9E6", "#3B1B3C"},
    ColorPair{QT_TRANSLATE_NOOP("ColorPanel", "Paper"), "#2A2420", "#F2E9D8"},
    ColorPair{QT_TRANSLATE_NOOP("ColorPanel", "Lemon"), "#1D1D1F", "#FFDF3D"},
    ColorPair{QT_TRANSLATE_NOOP("ColorPanel", "Blush"), "#6B1230", "#FFCDD6"},
    ColorPair{QT_TRANSLATE_NOOP("ColorPanel", "Sky"), "#0C2A57", "#B9DCFA"},
};

enum Part { textPart = 0, backgroundPart = 1 };

class ColorPanel final : public NeutralPanel
{
    Q_DECLARE_TR_FUNCTIONS(ColorPanel)

public:
    explicit ColorPanel(QWidget *parent);
    void apply(const DisplayControlsState &state) override;

protected:
    void takeColors() override;

private:
    QHBoxLayout *makePartRow();
    QHBoxLayout *makePairRow();
    QColor &chosenColor();
    void choose(const QColor &color);
    void choosePair(const QColor &foreground, const QColor &background);
    void tell(Part part) const;
    void showColors();

    QColor m_foreground = Qt::white;
    QColor m_background = Qt::black;
    SegmentedControl *m_parts;
    IconButton *m_swap;
    ColorChooser *m_chooser;
    PanelLabel *m_contrast;
    std::vector<ColorChip *> m_pairs;
    ArrowFocus *m_pairFocus;
};

ColorPanel::ColorPanel(QWidget *parent)
    : NeutralPanel(parent)
    , m_parts(new SegmentedControl(this))
    , m_swap(new IconButton(QStringLiteral("arrow.left.arrow.right"),
                            tr("Swap Text and Background"), this))
    , m_chooser(new ColorChooser(this))
    , m_contrast(new PanelLabel({}, PanelLabel::Kind::figure, this))
    , m_pairFocus(new ArrowFocus(int(kPairs.size()), this))
{
    setObjectName(QStringLiteral("ColorPanel"));
    m_contrast->setObjectName(QStringLiteral("contrastLabel"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kPanelPadding, kPanelPadding, kPanelPadding, kPanelPadding);
    column->setSpacing(spacing::k8);
    column->addLayout(makePartRow());
    column->addWidget(m_chooser);
    column->addSpacing(spacing::k4);
    column->addLayout(makePairRow());
    m_chooser->digitsRow()->addWidget(m_contrast);
    connect(m_chooser, &ColorChooser::colorChosen, this, &ColorPanel::choose);
    connect(m_chooser, &ColorChooser::held, this, [this](bool isHeld) {
        if (delegate())
            delegate()->displayHoldChanged(isHeld);
    });
    takeColors();
    showColors();
}

QHBoxLayout *ColorPanel::makePartRow()
{
    m_parts->setObjectName(QStringLiteral("colorParts"));
    //: The color of the letters is edited.
    m_parts->addTextSegment(tr("Text"));
    //: The color of the background is edited.
    m_parts->addTextSegment(tr("Background"));
    m_parts->setCurrentIndex(backgroundPart);
    m_swap->setObjectName(QStringLiteral("swapColors"));
    connect(m_parts, &SegmentedControl::activated, this, &ColorPanel::showColors);
    connect(m_swap, &IconButton::clicked, this, [this] { choosePair(m_background, m_foreground); });
    auto *row = new QHBoxLayout;
    row->addWidget(m_parts);
    row->addStretch();
    row->addWidget(m_swap);
    return row;
}

QHBoxLayout *ColorPanel::makePairRow()
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    std::vector<QAbstractButton *> buttons;
    for (const ColorPair &pair : kPairs) {
        auto *chip = new ColorChip(tr(pair.name), this);
        const QColor foreground(QLatin1String(pair.foreground));
        const QColor background(QLatin1String(pair.background));
        chip->setObjectName(QLatin1String("pair") + QLatin1String(pair.name));
        chip->setChipColors(foreground, background);
        connect(chip, &ColorChip::clicked, this,
                [this, foreground, background] { choosePair(foreground, background); });
        if (!m_pairs.empty())
            row->addStretch();
        row->addWidget(chip);
        m_pairs.push_back(chip);
        buttons.push_back(chip);
    }
    m_pairFocus->setButtons(buttons, nullptr);
    return row;
}

void ColorPanel::takeColors()
{
    const NeutralColors neutral = colors();
    m_parts->setColors(neutral.text, neutral.ground);
    m_swap->setColors(neutral.text, neutral.ground);
    for (ColorChip *chip : m_pairs)
        chip->setColors(neutral.text, neutral.ground);
}

QColor &ColorPanel::chosenColor()
{
    return m_parts->currentIndex() == textPart ? m_foreground : m_background;
}

void ColorPanel::apply(const DisplayControlsState &state)
{
    m_foreground = QColor(state.values.customForegroundColorHex);
    m_background = QColor(state.values.customBackgroundColorHex);
    showColors();
}

void ColorPanel::choose(const QColor &color)
{
    const auto part = Part(m_parts->currentIndex());
    chosenColor() = color;
    showColors();
    tell(part);
}

void ColorPanel::choosePair(const QColor &foreground, const QColor &background)
{
    // Telling the one may apply the state before the other.
    const QColor text = foreground;
    const QColor ground = background;
    m_foreground = text;
    tell(textPart);
    m_background = ground;
    m_foreground = text;
    tell(backgroundPart);
    showColors();
}

void ColorPanel::tell(Part part) const
{
    const QColor color = part == textPart ? m_foreground : m_background;
    const QString hex = color.name(QColor::HexRgb).toUpper();
    if (!delegate())
        return;
    if (part == textPart)
        delegate()->displayCustomForegroundChanged(hex);
    else
        delegate()->displayCustomBackgroundChanged(hex);
}

void ColorPanel::showColors()
{
    m_chooser->setColor(chosenColor());
    const double ratio = contrastRatio(m_foreground, m_background);
    const QString figure = QLocale().toString(std::floor(ratio * 10) / 10, 'f', 1);
    // What cannot be told by the figure alone: below it letters begin to be hard to read.
    constexpr double kReadable = 3.0;
    //: A ratio of brightness such as 4.5:1.
    m_contrast->setText(ratio < kReadable ? tr("Low contrast %1:1").arg(figure)
                                          : tr("Contrast %1:1").arg(figure));
    for (size_t i = 0; i < m_pairs.size(); ++i)
        setChosen(*m_pairs[i],
                  m_foreground == QColor(QLatin1String(kPairs[i].foreground))
                      && m_background == QColor(QLatin1String(kPairs[i].background)));
}

} // namespace

DisplayPanel *makeColorPanel(QWidget *parent)
{
    return new ColorPanel(parent);
}

} // namespace lorva
