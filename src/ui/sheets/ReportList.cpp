// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/ReportList.h"

#include "ui/style/ControlColors.h"
#include "ui/style/Hairline.h"
#include "ui/style/OverlayScrollBar.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QAbstractItemDelegate>
#include <QAbstractListModel>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kSidePadding = spacing::k28;
constexpr int kTrailingGap = spacing::k16;
constexpr int kTitleTop = 7;
constexpr int kTitleHeight = 19;
constexpr int kDetailHeight = 17;
constexpr int kOneLineRow = 33;
constexpr int kTwoLineRow = 52;
constexpr double kDetailAlpha = 0.6;
constexpr double kTrailingAlpha = 0.55;
constexpr double kSelectedFill = 0.08;
constexpr double kRadius = 8;
/// No row shows more of a text.
constexpr qsizetype kLongestText = 1000;
/// How far the selection's ground reaches over the texts.
constexpr int kOverhang = spacing::k12;

QFont titleFont()
{
    return interfaceFont(InterfaceSize::body, InterfaceWeight::medium);
}

QFont detailFont()
{
    return interfaceFont(InterfaceSize::label);
}

QFont trailingFont()
{
    return interfaceFont(InterfaceSize::caption, InterfaceWeight::regular, Figures::tabular);
}

/// What matters of a path are its ends.
QString elided(const QString &text, const QFont &font, int width)
{
    const bool isPath = text.contains(u'/');
    const QString shown = text.size() > 2 * kLongestText
        ? QString(text.left(kLongestText) % u'…' % text.right(kLongestText))
        : text;
    return QFontMetrics(font).elidedText(shown, isPath ? Qt::ElideMiddle : Qt::ElideRight, width);
}

QString joined(QStringList parts, QLatin1String separator)
{
    parts.removeAll(QString());
    return parts.join(separator);
}

/// As one reads it.
QString wholeText(const Report::Row &row, QLatin1String separator)
{
    return joined({row.title, row.detail, row.trailing}, separator);
}

struct RowTexts
{
    QString title;
    QString detail;
    QRect titleRect;
    QRect detailRect;
    QRect trailingRect;
};

RowTexts layOut(const Report::Row &row, const QRect &rect)
{
    RowTexts texts;
    const QRect room = rect.adjusted(kSidePadding, kTitleTop, -kSidePadding, -kTitleTop);
    const int trailing = row.trailing.isEmpty()
        ? 0
        : std::min(QFontMetrics(trailingFont()).horizontalAdvance(row.trailing) + 1,
                   room.width() / 2);
    const int titleWidth = room.width() - (trailing > 0 ? trailing + kTrailingGap : 0);
    texts.titleRect = QRect(room.left(), room.top(), titleWidth, kTitleHeight);
    texts.trailingRect = QRect(room.right() + 1 - trailing, room.top(), trailing, kTitleHeight);
    texts.detailRect =
        QRect(room.left(), room.top() + kTitleHeight + spacing::k2, room.width(), kDetailHeight);
    texts.title = elided(row.title, titleFont(), titleWidth);
    texts.detail = elided(row.detail, detailFont(), room.width());
    return texts;
}

} // namespace

class ReportList::Rows final : public QAbstractListModel
{
public:
    Rows(std::vector<Report::Row> rows, QObject *parent)
        : QAbstractListModel(parent)
        , m_rows(std::move(rows))
    {
    }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == Qt::DisplayRole)
            return at(index).title;
        if (role == Qt::AccessibleTextRole)
            return wholeText(at(index), QLatin1String(", "));
        return {};
    }
    const Report::Row &at(const QModelIndex &index) const { return m_rows[size_t(index.row())]; }
    bool haveDetails() const
    {
        return std::ranges::any_of(m_rows, [](const auto &row) { return !row.detail.isEmpty(); });
    }

private:
    const std::vector<Report::Row> m_rows;
};

class ReportList::Look final : public QAbstractItemDelegate
{
public:
    Look(const Rows &rows, ReportList &list)
        : QAbstractItemDelegate(&list)
        , m_rows(rows)
        , m_list(list)
        , m_height(rows.haveDetails() ? kTwoLineRow : kOneLineRow)
    {
    }

    int height() const { return m_height; }
    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {1, m_height};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        paintGround(*painter, option, index);
        paintTexts(*painter, option, m_rows.at(index));
        painter->restore();
    }

    bool helpEvent(QHelpEvent *event, QAbstractItemView *, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override
    {
        if (event->type() != QEvent::ToolTip || !index.isValid())
            return false;
        const Report::Row &row = m_rows.at(index);
        const RowTexts texts = layOut(row, option.rect);
        const bool isWhole = texts.title == row.title && texts.detail == row.detail;
        // Names are no markup.
        const QString whole = isWhole
            ? QString()
            : wholeText(row, QLatin1String("\n")).left(4 * kLongestText).toHtmlEscaped();
        QToolTip::showText(event->globalPos(), QString(whole).replace(u'\n', QLatin1String("<br>")),
                           &m_list);
        return true;
    }

private:
    void paintGround(QPainter &painter, const QStyleOptionViewItem &option,
                     const QModelIndex &index) const
    {
        const NeutralColors colors = neutralColors(isDarkDesktop());
        const bool isLast = index.row() + 1 == m_rows.rowCount({});
        if (!isLast)
            drawHairline(painter, option.rect.adjusted(kSidePadding, 0, -kSidePadding, 0),
                         Qt::BottomEdge, hairlineColor(colors.text, colors.ground));
        const int side = kSidePadding - kOverhang;
        const QRectF box = QRectF(option.rect).adjusted(side, 2, -side, -3);
        painter.setPen(Qt::NoPen);
        if (option.state.testFlag(QStyle::State_Selected)) {
            painter.setBrush(withAlpha(colors.text, kSelectedFill));
            painter.drawRoundedRect(box, kRadius, kRadius);
            return;
        }
        if (m_list.hasFocusRing() && index == m_list.currentIndex())
            drawFocusRing(painter, box.adjusted(2, 2, -2, -2), kRadius - 2);
    }

    void paintTexts(QPainter &painter, const QStyleOptionViewItem &option,
                    const Report::Row &row) const
    {
        const NeutralColors colors = neutralColors(isDarkDesktop());
        const Qt::LayoutDirection direction = m_list.layoutDirection();
        const RowTexts texts = layOut(row, option.rect);
        const auto draw = [&](const QRect &rect, const QString &text, const QFont &font,
                              double alpha, Qt::AlignmentFlag side) {
            painter.setFont(font);
            painter.setPen(quietColor(colors.text, colors.ground, alpha));
            painter.drawText(QStyle::visualRect(direction, option.rect, rect),
                             int(Qt::AlignVCenter | QStyle::visualAlignment(direction, side))
                                 | Qt::TextSingleLine | Qt::TextDontClip,
                             text);
        };
        draw(texts.titleRect, texts.title, titleFont(), 1, Qt::AlignLeft);
        draw(texts.trailingRect, elided(row.trailing, trailingFont(), texts.trailingRect.width()),
             trailingFont(), kTrailingAlpha, Qt::AlignRight);
        draw(texts.detailRect, texts.detail, detailFont(), kDetailAlpha, Qt::AlignLeft);
    }

    const Rows &m_rows;
    ReportList &m_list;
    const int m_height;
};

ReportList::ReportList(std::vector<Report::Row> rows, QWidget *parent)
    : QListView(parent)
    , m_scrollBar(new OverlayScrollBar(this))
{
    auto *model = new Rows(std::move(rows), this);
    setModel(model);
    setItemDelegate(new Look(*model, *this));
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    m_scrollBar->follow(verticalScrollBar());
    m_scrollBar->setForeground(neutralColors(isDarkDesktop()).text);
    verticalScrollBar()->setSingleStep(rowHeight());
}

ReportList::~ReportList() = default;

int ReportList::rowHeight() const
{
    return static_cast<const Look *>(itemDelegate())->height();
}

int ReportList::wholeHeight() const
{
    return model()->rowCount() * rowHeight();
}

QString ReportList::selectedText() const
{
    const auto *rows = static_cast<const Rows *>(model());
    QModelIndexList selected = selectionModel()->selectedRows();
    std::ranges::sort(selected, {}, &QModelIndex::row);
    QString text;
    for (const QModelIndex &index : selected) {
        const Report::Row &row = rows->at(index);
        text += joined({row.trailing, row.title, row.detail}, QLatin1String("\t")) + u'\n';
    }
    return text;
}

void ReportList::keyPressEvent(QKeyEvent *event)
{
    m_showsFocus = true;
    // The view's own copy takes only one title.
    if (event->matches(QKeySequence::Copy))
        Q_EMIT copyRequested();
    else
        QListView::keyPressEvent(event);
}

void ReportList::focusInEvent(QFocusEvent *event)
{
    m_showsFocus = showsFocusRing(event->reason(), m_showsFocus);
    QListView::focusInEvent(event);
}

void ReportList::resizeEvent(QResizeEvent *event)
{
    QListView::resizeEvent(event);
    m_scrollBar->adapt();
    m_scrollBar->flash();
}

void ReportList::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (verticalScrollBar()->maximum() <= 0)
        return;
    // Rows are cut at both ends; the lines say that there are more.
    const NeutralColors colors = neutralColors(isDarkDesktop());
    QPainter painter(viewport());
    for (const Qt::Edge edge : {Qt::TopEdge, Qt::BottomEdge})
        drawHairline(painter, viewport()->rect(), edge, hairlineColor(colors.text, colors.ground));
}

void ReportList::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    // The lines at the ends stay.
    viewport()->update();
    m_scrollBar->flash();
}

void ReportList::changeEvent(QEvent *event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        m_scrollBar->setForeground(neutralColors(isDarkDesktop()).text);
}

} // namespace lorva
