// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/files/FontFilesFooter.h"

#include "ui/style/Hairline.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/TextButton.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace lorva {

namespace {

using Main = FontFilesOffer::Main;

constexpr double kStatusAlpha = 0.6;
constexpr int kPadding = spacing::k24;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontFiles)
};

QString statusOf(const FontFamilyActivation &activation)
{
    if (!activation.isActive())
        return Texts::tr("Not active");
    if (activation.isMixed())
        return Texts::tr("Some styles are active");
    if (!activation.method())
        return Texts::tr("Active through the system");
    return *activation.method() == InstallMethod::copy
        ? Texts::tr("Active, copied to the Fonts folder")
        : Texts::tr("Active, registered in place");
}

Main mainOf(const FontFamilyActivation &activation)
{
    if (!activation.isActive())
        return Main::activate;
    // Some styles are the system's, and the others nobody's yet.
    if (!activation.method())
        return activation.isMixed() ? Main::activate : Main::none;
    return activation.isMixed() ? Main::activateRemaining : Main::deactivate;
}

/// A font of another file has the place of every file that is not active.
bool hasNoPlace(const FontFamilyRecord &family, const GivenActivations &known)
{
    return std::ranges::all_of(family.styles, [&](const FontStyleRecord &style) {
        const auto found = known.styles.activationByStyleID.constFind(style.id);
        if (found != known.styles.activationByStyleID.cend() && found->isActive())
            return true;
        return style.fileURL && known.filesWithoutPlace.contains(*style.fileURL);
    });
}

bool canBeActivated(const FontFamilyRecord &family, const GivenActivations &known)
{
    const auto found = known.activationByFamily.constFind(family.familyName);
    return found != known.activationByFamily.cend() && mainOf(*found) == Main::activate
        && !hasNoPlace(family, known);
}

} // namespace

FontFilesOffer fontFilesOffer(const std::vector<FontFamilyRecord> &families,
                              const FontFamilyRecord *shown, const GivenActivations &known)
{
    FontFilesOffer offer;
    const auto isFree = [&](const FontFamilyRecord &each) { return canBeActivated(each, known); };
    offer.offersAll = std::ranges::count_if(families, isFree) > 1;
    if (!shown)
        return offer;
    offer.offersLibrary = true;
    const auto found = known.activationByFamily.constFind(shown->familyName);
    if (found == known.activationByFamily.cend())
        return offer;
    offer.status = statusOf(*found);
    offer.main = mainOf(*found);
    if (offer.main == Main::activate && hasNoPlace(*shown, known)) {
        offer.status = Texts::tr("Another font has this file’s name in the Fonts folder");
        offer.main = Main::none;
    }
    return offer;
}

FontFilesFooter::FontFilesFooter(QWidget *parent)
    : QWidget(parent)
    , m_failures(makeButton(tr("Files That Failed…"), "fontFilesFailures", false,
                            &FontFilesFooter::failuresWanted))
    , m_library(makeButton(tr("Show in Lorva"), "fontFilesLibrary", false,
                           &FontFilesFooter::libraryWanted))
    , m_all(makeButton(tr("Activate All…"), "fontFilesActivateAll", false,
                       &FontFilesFooter::activationOfAllWanted))
    , m_deactivate(makeButton(tr("De-activate…"), "fontFilesDeactivate", false,
                              &FontFilesFooter::deactivationWanted))
    , m_remaining(makeButton(tr("Activate Remaining Styles…"), "fontFilesActivateRemaining", true,
                             &FontFilesFooter::remainingActivationWanted))
    , m_activate(makeButton(tr("Activate…"), "fontFilesActivate", true,
                            &FontFilesFooter::activationWanted))
{
    setObjectName(QStringLiteral("FontFilesFooter"));
}

TextButton *FontFilesFooter::makeButton(const QString &text, const char *name, bool isProminent,
                                        void (FontFilesFooter::*wanted)())
{
    auto *button = new TextButton(
        text, isProminent ? TextButton::Kind::prominent : TextButton::Kind::plain, this);
    button->setObjectName(QLatin1String(name));
    button->hide();
    connect(button, &QAbstractButton::clicked, this, wanted);
    return button;
}

/// The most important one first.
std::vector<TextButton *> FontFilesFooter::shownButtons() const
{
    std::vector<TextButton *> shown;
    const std::pair<TextButton *, bool> buttons[]{
        {m_activate, m_offer.main == Main::activate},
        {m_remaining, m_offer.main == Main::activateRemaining},
        {m_deactivate, m_offer.main == Main::deactivate},
        {m_all, m_offer.offersAll},
        {m_library, m_offer.offersLibrary},
        {m_failures, m_offer.hasFailures},
    };
    for (const auto &[button, isShown] : buttons)
        if (isShown)
            shown.push_back(button);
    return shown;
}

void FontFilesFooter::apply(const FontFilesOffer &offer)
{
    if (std::exchange(m_offer, offer) == offer)
        return;
    setAccessibleName(offer.status);
    layOut();
}

/// From the trailing edge.
void FontFilesFooter::layOut()
{
    const std::vector<TextButton *> shown = shownButtons();
    for (TextButton *button : {m_failures, m_library, m_all, m_deactivate, m_remaining, m_activate})
        button->setVisible(std::ranges::find(shown, button) != shown.end());
    int edge = width() - kPadding;
    for (TextButton *button : shown) {
        const QSize size = button->sizeHint();
        edge -= size.width();
        const QRect place(QPoint(edge, (height() - size.height()) / 2), size);
        button->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
        edge -= spacing::k8;
    }
    const QRect status(kPadding, 0, std::max(edge - spacing::k12 - kPadding, 0), height());
    m_statusRect = QStyle::visualRect(layoutDirection(), rect(), status);
    update();
}

int FontFilesFooter::leastWidth() const
{
    int width = 2 * kPadding;
    for (const TextButton *button : shownButtons())
        width += button->sizeHint().width() + spacing::k8;
    return width;
}

void FontFilesFooter::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        update();
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
}

void FontFilesFooter::paintEvent(QPaintEvent *)
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    QPainter painter(this);
    painter.fillRect(rect(), colors.ground);
    drawHairline(painter, rect(), Qt::TopEdge, hairlineColor(colors.text, colors.ground));
    painter.setFont(interfaceFont(InterfaceSize::label));
    painter.setPen(quietColor(colors.text, colors.ground, kStatusAlpha));
    const Qt::Alignment leading =
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter)
        | Qt::AlignAbsolute;
    painter.drawText(
        m_statusRect, int(leading) | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(m_offer.status, Qt::ElideRight, m_statusRect.width()));
}

void FontFilesFooter::resizeEvent(QResizeEvent *)
{
    layOut();
}

} // namespace lorva
