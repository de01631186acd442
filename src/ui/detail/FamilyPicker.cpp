// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/FamilyPicker.h"

#include "ui/style/LineField.h"
#include "ui/style/OverlayScrollBar.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QAbstractItemDelegate>
#include <QAbstractListModel>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kWidth = 280;
constexpr int kMostRows = 11;
constexpr int kFewestRows = 5;
constexpr int kRowHeight = 28;
constexpr int kPadding = spacing::k8;
constexpr double kRadius = 6;
constexpr double kCurrentFill = 0.08;
constexpr double kHoverFill = 0.04;
constexpr double kHintAlpha = 0.5;
/// No row shows more of a name.
constexpr qsizetype kLongestName = 300;

} // namespace

std::vector<int> matchingNames(const QStringList &names, const QString &filter)
{
    std::vector<int> places;
    const QString wanted = filter.trimmed();
    for (int i = 0; i < int(names.size()); ++i) {
        if (names[i].contains(wanted, Qt::CaseInsensitive))
            places.push_back(i);
    }
    return places;
}

class FamilyPicker::Rows final : public QAbstractListModel
{
public:
    Rows(QStringList names, QObject *parent)
        : QAbstractListModel(parent)
        , m_names(std::move(names))
        , m_shown(matchingNames(m_names, {}))
    {
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_shown.size());
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(name(index.row())) : QVariant();
    }
    int nameCount() const { return int(m_names.size()); }
    const QString &name(int row) const { return m_names[m_shown[size_t(row)]]; }
    void filter(const QString &text)
    {
        beginResetModel();
        m_shown = matchingNames(m_names, text);
        endResetModel();
    }

private:
    const QStringList m_names;
    std::vector<int> m_shown;
};

class FamilyPicker::Look final : public QAbstractItemDelegate
{
public:
    using QAbstractItemDelegate::QAbstractItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {1, kRowHeight};
    }
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        const QColor ink = neutralColors(isDarkDesktop()).text;
        const bool isCurrent = option.state.testFlag(QStyle::State_Selected);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (isCurrent || option.state.testFlag(QStyle::State_MouseOver)) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(withAlpha(ink, isCurrent ? kCurrentFill : kHoverFill));
            painter->drawRoundedRect(QRectF(option.rect).adjusted(kPadding, 0, -kPadding, 0),
                                     kRadius, kRadius);
        }
        const QFont font = interfaceFont(InterfaceSize::body);
        const QRect room = option.rect.adjusted(2 * kPadding, 0, -2 * kPadding, 0);
        const QString name = index.data().toString().left(kLongestName).simplified();
        painter->setFont(font);
        painter->setPen(ink);
        painter->drawText(
            room,
            int(Qt::AlignVCenter | QStyle::visualAlignment(option.direction, Qt::AlignLeft))
                | Qt::TextSingleLine,
            QFontMetrics(font).elidedText(name, Qt::ElideRight, room.width()));
        painter->restore();
    }
};

class FamilyPicker::View final : public QListView
{
public:
    explicit View(QWidget *parent)
        : QListView(parent)
    {
        setObjectName(QStringLiteral("familyList"));
        setAccessibleName(FamilyPicker::tr("Families"));
        setUniformItemSizes(true);
        setEditTriggers(NoEditTriggers);
        setSelectionMode(SingleSelection);
        setVerticalScrollMode(ScrollPerPixel);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setAutoFillBackground(false);
        viewport()->setAutoFillBackground(false);
        viewport()->setAttribute(Qt::WA_Hover);
        setMouseTracking(true);
        verticalScrollBar()->setSingleStep(kRowHeight);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QListView::paintEvent(event);
        if (model()->rowCount() > 0)
            return;
        QPainter painter(viewport());
        painter.setFont(interfaceFont(InterfaceSize::body));
        painter.setPen(withAlpha(neutralColors(isDarkDesktop()).text, kHintAlpha));
        painter.drawText(viewport()->rect(), Qt::AlignCenter, FamilyPicker::tr("No Families"));
    }
};

FamilyPicker::FamilyPicker(QStringList names, QWidget *parent)
    : QWidget(parent)
    , m_rows(new Rows(std::move(names), this))
    , m_field(new LineField(this))
    , m_view(new View(this))
    , m_scrollBar(new OverlayScrollBar(m_view))
{
    setObjectName(QStringLiteral("FamilyPicker"));
    setMinimumWidth(kWidth);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, spacing::k12, 0, spacing::k8);
    layout->setSpacing(spacing::k8);
    auto *fieldRow = new QVBoxLayout;
    fieldRow->setContentsMargins(spacing::k12, 0, spacing::k12, 0);
    fieldRow->addWidget(m_field);
    layout->addLayout(fieldRow);
    layout->addWidget(m_view);

    m_field->setObjectName(QStringLiteral("familySearchField"));
    m_field->setAccessibleName(tr("Search Families"));
    m_field->setPlaceholderText(tr("Search"));
    m_field->setSymbol(QStringLiteral("magnifyingglass"));
    m_field->setClearable(true);
    m_field->installEventFilter(this);
    m_view->setModel(m_rows);
    m_view->setItemDelegate(new Look(this));
    m_scrollBar->follow(m_view->verticalScrollBar());
    m_view->installEventFilter(this);
    connect(m_field, &LineField::textSettled, this, &FamilyPicker::filter);
    connect(m_view, &QListView::clicked, this,
            [this](const QModelIndex &index) { choose(index.row()); });
    setFocusProxy(m_field);
    takeColors();
    filter({});
}

FamilyPicker::~FamilyPicker() = default;

QSize FamilyPicker::sizeHint() const
{
    const int rows = std::clamp(m_rows->nameCount(), kFewestRows, kMostRows);
    const QMargins margins = layout()->contentsMargins();
    return {kWidth,
            margins.top() + m_field->sizeHint().height() + layout()->spacing() + rows * kRowHeight
                + margins.bottom()};
}

void FamilyPicker::filter(const QString &text)
{
    m_rows->filter(text);
    if (m_rows->rowCount() > 0)
        m_view->setCurrentIndex(m_rows->index(0));
    m_view->scrollToTop();
    m_scrollBar->adapt();
}

void FamilyPicker::takeColors()
{
    m_scrollBar->setForeground(neutralColors(isDarkDesktop()).text);
}

void FamilyPicker::choose(int row)
{
    if (row < 0 || row >= m_rows->rowCount())
        return;
    // A copy: whoever is told may close the popover and with it us.
    const QString name = m_rows->name(row);
    Q_EMIT chosen(name);
}

bool FamilyPicker::isForList(int key) const
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp
        || key == Qt::Key_PageDown;
}

bool FamilyPicker::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && event->type() == QEvent::Resize)
        QMetaObject::invokeMethod(m_scrollBar, &OverlayScrollBar::adapt, Qt::QueuedConnection);
    if (watched != m_field || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto *press = static_cast<const QKeyEvent *>(event);
    if (isForList(press->key())) {
        QCoreApplication::sendEvent(m_view, event);
        m_scrollBar->flash();
        return true;
    }
    if (press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter) {
        choose(m_view->currentIndex().row());
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void FamilyPicker::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        takeColors();
    QWidget::changeEvent(event);
}

} // namespace lorva
