// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/PanelParts.h"
#include "ui/display/SampleTexts.h"
#include "ui/style/ControlColors.h"
#include "ui/style/FocusRinged.h"
#include "ui/style/LineField.h"
#include "ui/style/Style.h"
#include "ui/style/SymbolImage.h"
#include "ui/style/TextButton.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

namespace lorva {

namespace {

constexpr int kRowHeight = 28;
constexpr double kRowRadius = 6;
constexpr int kCheckSize = 14;
constexpr int kCheckRoom = kCheckSize + spacing::k8;
constexpr int kListHeight = 296;
/// Beyond it a text is no sample, and laying it out takes the window's time.
constexpr int kMostTyped = 2000;

/// A text to choose, in the interface's type, with a check mark when it is the present one.
class SampleRow final : public FocusRinged<QAbstractButton>
{
public:
    SampleRow(const QString &text, QWidget *parent)
        : FocusRinged(parent)
    {
        setText(text);
        setAccessibleName(text);
        setObjectName(QLatin1String("sample:") + text);
        setFixedHeight(kRowHeight);
        setCheckable(true);
        // This is also what makes it a radio button to assistive technology.
        setAutoExclusive(true);
        setAttribute(Qt::WA_Hover);
    }

    QSize sizeHint() const override { return {kPanelContentWidth, kRowHeight}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const NeutralColors neutral = neutralColors(isDarkDesktop());
        if (underMouse())
            drawHover(painter, rect(), kRowRadius, neutral.text, isDown());
        if (hasFocusRing())
            drawFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), kRowRadius - 2);
        const QRect inner = rect().adjusted(spacing::k8, 0, -spacing::k8, 0);
        painter.setFont(interfaceFont(InterfaceSize::body));
        painter.setPen(neutral.text);
        const QRect words = inner.adjusted(0, 0, isChecked() ? -kCheckRoom : 0, 0);
        painter.drawText(QStyle::visualRect(layoutDirection(), rect(), words),
                         int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading))
                             | int(Qt::AlignVCenter) | int(Qt::TextSingleLine),
                         painter.fontMetrics().elidedText(text(), Qt::ElideRight, words.width()));
        if (isChecked())
            paintCheck(painter, inner, neutral.text);
    }

private:
    void paintCheck(QPainter &painter, const QRect &inner, const QColor &ink) const
    {
        const QRect place(inner.right() + 1 - kCheckSize, (height() - kCheckSize) / 2, kCheckSize,
                          kCheckSize);
        painter.drawImage(
            QStyle::visualRect(layoutDirection(), rect(), place).topLeft(),
            symbolImage(QStringLiteral("checkmark"), kCheckSize, ink, devicePixelRatioF()));
    }
};

class SampleTextPanel final : public NeutralPanel
{
    Q_DECLARE_TR_FUNCTIONS(SampleTextPanel)

public:
    explicit SampleTextPanel(QWidget *parent);
    void apply(const DisplayControlsState &state) override;

protected:
    void takeColors() override { }

private:
    void fillList(QWidget &list);
    void addRow(const QString &text, QVBoxLayout &column);
    void choose(const QString &text);
    void showText(const QString &text);

    LineField *m_field;
    TextButton *m_reset;
    ArrowFocus *m_rowFocus;
    std::vector<QAbstractButton *> m_rows;
};

SampleTextPanel::SampleTextPanel(QWidget *parent)
    : NeutralPanel(parent)
    , m_field(new LineField(this))
    , m_reset(new TextButton(tr("Reset Look"), TextButton::Kind::plain, this))
    , m_rowFocus(new ArrowFocus(1, this))
{
    setObjectName(QStringLiteral("SampleTextPanel"));
    m_field->setObjectName(QStringLiteral("sampleTextField"));
    m_field->setAccessibleName(tr("Sample Text"));
    m_field->setPlaceholderText(tr("Blank: a sentence for each script"));
    m_field->setClearable(true);
    m_field->setMaxLength(kMostTyped);
    m_reset->setObjectName(QStringLiteral("resetLook"));
    m_reset->setToolTip(tr("Size, weight, colors, logo and text as they were at first"));
    connect(m_field, &LineField::textSettled, this, &SampleTextPanel::choose);
    connect(m_reset, &TextButton::clicked, this, [this] {
        if (delegate())
            delegate()->displayReset();
    });
    auto *list = new QWidget;
    fillList(*list);
    auto *scroll = new PanelScrollArea(list, this);
    scroll->setFixedHeight(kListHeight);
    m_rowFocus->onMoved = [scroll](QWidget *row) { scroll->ensureWidgetVisible(row, 0, 8); };
    auto *column = new QVBoxLayout(this);
    // Rows have their own padding.
    const int side = kPanelPadding - spacing::k8;
    column->setContentsMargins(side, kPanelPadding, side, kPanelPadding);
    column->setSpacing(spacing::k8);
    auto *fieldRow = new QHBoxLayout;
    fieldRow->setContentsMargins(spacing::k8, 0, spacing::k8, 0);
    fieldRow->addWidget(m_field);
    column->addLayout(fieldRow);
    column->addWidget(scroll);
    column->addSpacing(spacing::k4);
    auto *lastRow = new QHBoxLayout;
    lastRow->setContentsMargins(spacing::k8, 0, spacing::k8, 0);
    lastRow->addWidget(m_reset);
    lastRow->addStretch();
    column->addLayout(lastRow);
}

void SampleTextPanel::fillList(QWidget &list)
{
    auto *column = new QVBoxLayout(&list);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (const SampleTextGroup &group : sampleTextGroups()) {
        auto *title = new PanelLabel(QCoreApplication::translate("SampleTexts", group.title),
                                     PanelLabel::Kind::caption, &list);
        title->setContentsMargins(spacing::k8, m_rows.empty() ? 0 : spacing::k12, 0, spacing::k4);
        column->addWidget(title);
        for (const char16_t *text : group.texts)
            addRow(QString::fromUtf16(text), *column);
    }
    column->addStretch();
    m_rowFocus->setButtons(m_rows, nullptr);
}

void SampleTextPanel::addRow(const QString &text, QVBoxLayout &column)
{
    auto *row = new SampleRow(text, column.parentWidget());
    column.addWidget(row);
    m_rows.push_back(row);
    connect(row, &SampleRow::clicked, this, [this, text] { choose(text); });
}

void SampleTextPanel::apply(const DisplayControlsState &state)
{
    showText(state.values.sampleText);
}

void SampleTextPanel::choose(const QString &text)
{
    showText(text);
    if (delegate())
        delegate()->displaySampleTextChanged(text);
}

void SampleTextPanel::showText(const QString &text)
{
    // Setting the same text again would take the cursor to its end.
    if (m_field->text() != text.left(kMostTyped) && !m_field->isComposing())
        m_field->setText(text);
    QAbstractButton *home = nullptr;
    for (QAbstractButton *row : m_rows) {
        const bool isChosen = row->text() == text;
        setChosen(*row, isChosen);
        home = isChosen ? row : home;
    }
    m_rowFocus->setHome(home);
}

} // namespace

DisplayPanel *makeSampleTextPanel(QWidget *parent)
{
    return new SampleTextPanel(parent);
}

} // namespace lorva
