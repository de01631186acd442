// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterPopoverViewController.h"

#include "ui/browser/PaneButton.h"
#include "ui/detail/CharacterBlocks.h"
#include "ui/detail/CharacterKeys.h"
#include "ui/detail/CharacterNames.h"
#include "ui/detail/GlyphInk.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace lorva {

namespace {

constexpr int kWidth = 272;
constexpr int kGlyphHeight = 136;
constexpr double kGlyphPoints = 88;
constexpr double kQuiet = 0.55;
constexpr int kFactHeight = 24;

struct Ink
{
    QColor strong;
    QColor quiet;
};

Ink inkOf(const CharacterPopoverContent &content)
{
    const QColor ink = controlColor(content.foregroundColor, content.backgroundColor);
    return {ink, quietColor(ink, blended(content.backgroundColor, Qt::white), kQuiet)};
}

/// The glyph by itself.
class LargeGlyph final : public QWidget
{
public:
    LargeGlyph(const CharacterPopoverContent &content, const QColor &color, QWidget *parent)
        : QWidget(parent)
        , m_font(content.font.withFeatures({}).withPointSize(kGlyphPoints))
        , m_glyph(content.glyphIndex)
        , m_color(color)
    {
        setObjectName(QStringLiteral("PopoverGlyph"));
        setFixedHeight(kGlyphHeight);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const GlyphLook look{m_font, size(), spacing::k8, devicePixelRatioF(), m_color};
        if (m_ink.image.isNull() || look != m_look) {
            m_look = look;
            m_ink = GlyphInkPainter(look).paint(m_glyph);
        }
        DeviceSpace(painter).drawImage({}, m_ink.devicePosition, m_ink.colored(m_color));
    }

private:
    const Font m_font;
    const quint32 m_glyph;
    const QColor m_color;
    GlyphLook m_look;
    GlyphInk m_ink;
};

/// A fact in one line that copies itself when it is pressed.
class FactLine final : public FocusRinged<QAbstractButton>
{
public:
    FactLine(QString label, QString value, const Ink &ink, QWidget *parent)
        : FocusRinged(parent)
        , m_label(std::move(label))
        , m_value(std::move(value))
        , m_ink(ink)
    {
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::TabFocus);
        setFixedHeight(kFactHeight);
        setText(m_value);
        setAccessibleName(
            QCoreApplication::translate("CharacterPopoverViewController", "Copy %1: %2")
                .arg(m_label, m_value));
        setToolTip(QCoreApplication::translate("CharacterPopoverViewController", "Copy"));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (underMouse() || isDown())
            drawHover(painter, rect(), kRadius, m_ink.strong, isDown());
        if (hasFocusRing())
            drawFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), kRadius - 2);
        const QRect room = rect().adjusted(spacing::k8, 0, -spacing::k8, 0);
        painter.setFont(interfaceFont(InterfaceSize::caption));
        painter.setPen(m_ink.quiet);
        painter.drawText(room, int(Qt::AlignLeading | Qt::AlignVCenter), m_label);
        const int labelWidth = painter.fontMetrics().horizontalAdvance(m_label);
        painter.setFont(
            interfaceFont(InterfaceSize::caption, InterfaceWeight::regular, Figures::tabular));
        painter.setPen(m_ink.strong);
        const QString shown = painter.fontMetrics().elidedText(
            m_value, Qt::ElideMiddle, room.width() - labelWidth - spacing::k16);
        painter.drawText(room, int(Qt::AlignTrailing | Qt::AlignVCenter), shown);
    }

private:
    static constexpr double kRadius = 6;

    const QString m_label;
    const QString m_value;
    const Ink m_ink;
};

QLabel *makeLabel(const QString &text, const QFont &font, const QColor &color, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
    label->setContentsMargins(spacing::k8, 0, spacing::k8, 0);
    return label;
}

} // namespace

CharacterPopoverViewController::CharacterPopoverViewController(CharacterPopoverContent content,
                                                               QWidget *parent)
    : QWidget(parent)
    , m_content(std::move(content))
{
    setObjectName(QStringLiteral("CharacterPopover"));
    setFixedWidth(kWidth);
    if (!m_content.character.isEmpty()) {
        m_codePoint = codePointText(firstScalar(m_content.character));
        m_unicodeName = lorva::unicodeName(firstScalar(m_content.character));
    }
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(spacing::k8, spacing::k8, spacing::k8, spacing::k16);
    column->setSpacing(0);
    column->addWidget(new LargeGlyph(m_content, inkOf(m_content).strong, this));
    addTexts(*column);
    // The keyboard finds the buttons first, though they stand last.
    QLayout *buttons = makeButtons();
    addFacts(*column);
    if (buttons)
        column->addLayout(buttons);
}

void CharacterPopoverViewController::addTexts(QVBoxLayout &column)
{
    const Ink ink = inkOf(m_content);
    const QString title = !m_unicodeName.isEmpty() ? m_unicodeName
        : m_codePoint.isEmpty()                    ? m_content.glyphName
                                                   : m_codePoint;
    auto *name = makeLabel(title, interfaceFont(InterfaceSize::label, InterfaceWeight::semibold),
                           ink.strong, this);
    name->setObjectName(QStringLiteral("PopoverName"));
    QString about = tr("No character leads to this glyph.");
    if (!m_codePoint.isEmpty()) {
        const char32_t scalar = firstScalar(m_content.character);
        //: The kind of a character, and the block that it belongs to.
        about = tr("%1, %2").arg(categoryText(scalar), blockName(blockOf(scalar)));
    }
    column.addWidget(name);
    column.addSpacing(spacing::k2);
    column.addWidget(makeLabel(about, interfaceFont(InterfaceSize::caption), ink.quiet, this));
    column.addSpacing(spacing::k8);
}

void CharacterPopoverViewController::addFacts(QVBoxLayout &column)
{
    std::vector<std::pair<QString, QString>> facts;
    if (!m_codePoint.isEmpty())
        facts.emplace_back(tr("Code Point"), m_codePoint);
    facts.emplace_back(tr("Glyph"), QString::number(m_content.glyphIndex));
    if (!m_content.glyphName.isEmpty())
        facts.emplace_back(tr("Glyph Name"), m_content.glyphName);
    if (!m_codePoint.isEmpty()) {
        facts.emplace_back(tr("UTF-8"), utf8Text(firstScalar(m_content.character)));
        facts.emplace_back(tr("HTML"), htmlText(firstScalar(m_content.character)));
    }
    const Ink ink = inkOf(m_content);
    for (const auto &[label, value] : facts) {
        auto *line = new FactLine(label, value, ink, this);
        line->setObjectName(QStringLiteral("PopoverFact"));
        connect(line, &QAbstractButton::clicked, this,
                [this, value = value] { Q_EMIT copyWanted(value); });
        column.addWidget(line);
    }
}

QLayout *CharacterPopoverViewController::makeButtons()
{
    if (m_content.character.isEmpty())
        return nullptr;
    auto *copy = new PaneButton(tr("Copy"), this);
    copy->setObjectName(QStringLiteral("PopoverCopy"));
    auto *collect = new PaneButton(tr("Add to Tray"), this);
    collect->setObjectName(QStringLiteral("PopoverAddToTray"));
    connect(copy, &QAbstractButton::clicked, this,
            [this] { Q_EMIT copyWanted(m_content.character); });
    connect(collect, &QAbstractButton::clicked, this,
            [this] { Q_EMIT trayWanted(m_content.character); });
    auto *row = new QHBoxLayout;
    row->setContentsMargins(spacing::k8, spacing::k12, spacing::k8, 0);
    row->setSpacing(spacing::k8);
    for (PaneButton *button : {copy, collect}) {
        button->setColors(inkOf(m_content).strong, m_content.backgroundColor);
        row->addWidget(button);
    }
    return row;
}

/// A button presses itself by Space only.
void CharacterPopoverViewController::keyPressEvent(QKeyEvent *event)
{
    auto *button = qobject_cast<QAbstractButton *>(focusWidget());
    if (button && isPressKey(*event))
        button->click();
    else
        QWidget::keyPressEvent(event);
}

} // namespace lorva
