// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/ComparisonView.h"

#include "ui/browser/PaneButton.h"
#include "ui/detail/FamilyPicker.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/IconButton.h"
#include "ui/style/Palette.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/Popover.h"
#include "ui/style/SegmentedControl.h"
#include "ui/style/Style.h"

#include <QEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QResizeEvent>
#include <QStyle>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kControlGap = spacing::k16;
/// Between the controls and what is compared.
constexpr int kHeaderGap = spacing::k16;
constexpr int kRowGap = spacing::k8;
constexpr double kRemoverAlpha = 0.5;

} // namespace

ComparisonView::ComparisonView(std::shared_ptr<FontResolver> resolver, QWidget *parent)
    : DetailSection(parent)
    , m_faces(std::move(resolver), size_t(kMostOthers))
    , m_mode(new SegmentedControl(this))
    , m_match(new SegmentedControl(this))
    , m_add(new PaneButton(tr("Add Family…"), this))
{
    setObjectName(QStringLiteral("ComparisonView"));
    setAccessibleName(tr("Comparison"));
    m_faces.onDelivery = [this] { change(); };
    setUpControls();
    for (int i = 0; i < kMostOthers; ++i) {
        auto *remover = new IconButton(QStringLiteral("xmark.circle.fill"), {}, this);
        remover->setObjectName(QStringLiteral("removeFamily%1").arg(i));
        remover->setFixedSize(kCaptionButtonSide, kCaptionButtonSide);
        remover->hide();
        connect(remover, &QAbstractButton::clicked, this, [this, i] { takeOut(size_t(i)); });
        m_removers.push_back(remover);
    }
    applyColors();
}

/// What the popover's end tells comes while the members are still there.
ComparisonView::~ComparisonView()
{
    delete m_popover;
}

void ComparisonView::setUpControls()
{
    m_mode->setObjectName(QStringLiteral("comparisonMode"));
    m_mode->setAccessibleName(tr("Arrangement"));
    //: How the compared families are arranged: beside each other.
    m_mode->addTextSegment(tr("Beside"));
    //: How the compared families are arranged: one over the other.
    m_mode->addTextSegment(tr("Overlaid"));
    m_mode->setCurrentIndex(int(m_shownMode));
    m_match->setObjectName(QStringLiteral("comparisonMatch"));
    //: What the compared families have in common: their size or their x-height; spoken.
    m_match->setAccessibleName(tr("Match"));
    m_match->addTextSegment(tr("Same Size"));
    m_match->addTextSegment(tr("Same x-Height"));
    m_match->setCurrentIndex(0);
    m_add->setObjectName(QStringLiteral("addFamily"));
    m_add->setFocusPolicy(Qt::TabFocus);
    connect(m_mode, &SegmentedControl::activated, this, [this](int index) {
        m_shownMode = index == 0 ? ComparisonMode::beside : ComparisonMode::overlaid;
        change();
    });
    connect(m_match, &SegmentedControl::activated, this, [this](int index) {
        m_matchesXHeight = index == 1;
        change();
    });
    connect(m_add, &QAbstractButton::clicked, this, &ComparisonView::openPicker);
}

void ComparisonView::apply(const DetailSpecimen &specimen)
{
    if (specimen == m_specimen)
        return;
    m_specimen = specimen;
    if (!specimen.font.isNull())
        m_faces.setPointSize(specimen.font.pointSize());
    applyColors();
    change();
}

void ComparisonView::setStyle(const FontStyleRecord &style)
{
    m_faces.setStyle(style);
    change();
}

void ComparisonView::setFamilies(const FontFamilySubset &families)
{
    if (m_faces.setFamilies(families))
        change();
}

QStringList ComparisonView::otherFamilies() const
{
    return m_faces.names();
}

void ComparisonView::setOtherFamilies(const QStringList &names)
{
    m_faces.setNames(names);
    change();
}

bool ComparisonView::isSettled() const
{
    return m_faces.isSettled();
}

std::vector<const ComparisonFaces::Face *> ComparisonView::shownFaces() const
{
    std::vector<const ComparisonFaces::Face *> shown;
    for (const ComparisonFaces::Face &face : m_faces.faces()) {
        if (face.family.familyName != m_specimen.familyName)
            shown.push_back(&face);
    }
    return shown;
}

Comparison ComparisonView::comparison() const
{
    Comparison comparison{m_specimen, {}, m_shownMode, m_matchesXHeight};
    for (const ComparisonFaces::Face *face : shownFaces())
        comparison.others.push_back(
            {face->family.familyName, face->style ? face->style->label : QString(), face->font});
    return comparison;
}

const ComparisonPage &ComparisonView::pageFor(int width) const
{
    if (m_pageWidth != width) {
        m_page = layOutComparison(comparison(), width, isRightToLeft());
        m_pageWidth = width;
    }
    return m_page;
}

SpecimenPage ComparisonView::page() const
{
    return pageFor(width()).page;
}

int ComparisonView::headerHeight(int width) const
{
    const int controls = m_mode->sizeHint().width() + kControlGap + m_match->sizeHint().width();
    const bool isOneRow = controls + kControlGap + m_add->sizeHint().width() <= width;
    const int row = m_add->sizeHint().height();
    return isOneRow ? row : 2 * row + kRowGap;
}

int ComparisonView::heightFor(int width) const
{
    return headerHeight(width) + kHeaderGap + int(pageFor(width).page.size.height());
}

/// What is hidden is set when it is shown.
void ComparisonView::change()
{
    m_pageWidth = -1;
    m_inks.clear();
    if (isVisible())
        refresh();
}

void ComparisonView::refresh()
{
    placeButtons();
    update();
    const int height = heightFor(width());
    if (std::exchange(m_toldHeight, height) != height)
        Q_EMIT heightChanged();
}

void ComparisonView::showEvent(QShowEvent *event)
{
    DetailSection::showEvent(event);
    refresh();
}

void ComparisonView::resizeEvent(QResizeEvent *event)
{
    if (event->size().width() != event->oldSize().width()) {
        m_pageWidth = -1;
        m_inks.clear();
    }
    if (isVisible())
        placeButtons();
}

void ComparisonView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::FontChange)
        change();
    DetailSection::changeEvent(event);
}

void ComparisonView::applyColors()
{
    const QColor &foreground = m_specimen.foreground;
    const QColor &background = m_specimen.background;
    m_mode->setColors(foreground, background);
    m_match->setColors(foreground, background);
    m_add->setColors(foreground, background);
    // As quiet as the captions that they follow.
    const QColor quiet =
        quietColor(controlColor(foreground, background), background, kRemoverAlpha);
    for (IconButton *remover : m_removers)
        remover->setColors(blended(quiet, background), background);
}

void ComparisonView::placeControls(int width) const
{
    const int row = m_add->sizeHint().height();
    const int height = headerHeight(width);
    int x = 0;
    for (SegmentedControl *control : {m_mode, m_match}) {
        const QSize size = control->sizeHint();
        const QRect place(QPoint(x, (row - size.height()) / 2), size);
        control->setGeometry(QStyle::visualRect(layoutDirection(), QRect(0, 0, width, row), place));
        x += size.width() + kControlGap;
    }
    const QSize add = m_add->sizeHint();
    const bool isOneRow = height == row;
    const QRect place(QPoint(isOneRow ? width - add.width() : 0, height - add.height()), add);
    m_add->setGeometry(QStyle::visualRect(layoutDirection(), QRect(0, 0, width, height), place));
}

void ComparisonView::placeButtons()
{
    placeControls(width());
    const std::vector<QRect> &places = pageFor(width()).buttons;
    const auto shown = shownFaces();
    const int top = headerHeight(width()) + kHeaderGap;
    for (size_t i = 0; i < m_removers.size(); ++i) {
        const bool isShown = i < places.size() && i < shown.size();
        m_removers[i]->setVisible(isShown);
        if (!isShown)
            continue;
        m_removers[i]->setGeometry(places[i].translated(0, top));
        const QString label = tr("Remove %1").arg(shown[i]->family.familyName.left(100));
        m_removers[i]->setToolTip(plainToolTip(label));
        m_removers[i]->setAccessibleName(label);
    }
    const bool hasOthers = !shown.empty();
    m_mode->setEnabled(hasOthers);
    m_match->setEnabled(hasOthers);
    m_add->setVisible(m_faces.names().size() < kMostOthers);
}

void ComparisonView::paintEvent(QPaintEvent *event)
{
    const ComparisonPage &shown = pageFor(width());
    if (m_inks.size() != shown.page.texts.size()) {
        m_inks.clear();
        for (size_t i = 0; i < shown.page.texts.size(); ++i)
            m_inks.emplace_back(shown.page.texts[i], shown.rooms[i]);
    }
    QPainter painter(this);
    painter.translate(0, headerHeight(width()) + kHeaderGap);
    paintPageFurniture(painter, shown.page);
    const QRectF band = painter.worldTransform().inverted().mapRect(QRectF(event->rect()));
    const SpecimenCanvas canvas{QSize(width(), int(shown.page.size.height())),
                                DeviceSpace(painter).ratio()};
    for (TextInk &ink : m_inks) {
        const double height = ink.text().layout.size().height();
        const QRectF reach(0, ink.text().origin.y() - height, width(), 3 * height);
        if (reach.intersects(band))
            ink.draw(painter, canvas);
    }
}

void ComparisonView::openPicker()
{
    QStringList names;
    for (const FontFamilyRecord &family : m_faces.families()) {
        const QString &name = family.familyName;
        if (name != m_specimen.familyName && !m_faces.names().contains(name))
            names << name;
    }
    auto *picker = new FamilyPicker(names);
    m_popover = Popover::open(picker, m_add, tr("Add Family"));
    connect(picker, &FamilyPicker::chosen, this, &ComparisonView::choose);
}

void ComparisonView::choose(const QString &name)
{
    if (m_popover)
        m_popover->close();
    userChose(m_faces.names() << name);
}

void ComparisonView::takeOut(size_t shownFace)
{
    const auto shown = shownFaces();
    if (shownFace >= shown.size())
        return;
    const bool hadFocus = m_removers[shownFace]->hasFocus();
    QStringList names = m_faces.names();
    names.removeAll(shown[shownFace]->family.familyName);
    userChose(names);
    // The keyboard stays among the families; the button may have gone with its family.
    if (hadFocus) {
        QWidget *next = m_removers[std::min(shownFace, m_removers.size() - 1)];
        (next->isVisible() ? next : m_add)->setFocus(Qt::TabFocusReason);
    }
}

void ComparisonView::userChose(const QStringList &names)
{
    setOtherFamilies(names);
    Q_EMIT otherFamiliesChanged(m_faces.names());
}

} // namespace lorva
