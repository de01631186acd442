// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/files/FontFilesList.h"

#include "ui/style/ControlColors.h"
#include "ui/style/GroundlessList.h"
#include "ui/style/Hairline.h"
#include "ui/style/OverlayScrollBar.h"
#include "ui/style/Palette.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/Style.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <utility>

namespace lorva {

namespace {

constexpr int kPadding = 10;
constexpr int kRowHeight = 28;
constexpr int kTwoLineHeight = 44;
constexpr int kHeadingHeight = 38;
constexpr double kRadius = 6;
constexpr double kSelectedFill = 0.08;
constexpr double kHoverFill = 0.04;
constexpr double kHeadingAlpha = 0.55;
constexpr double kDetailAlpha = 0.6;
/// A font may bring a name of 64 kilobytes.
constexpr qsizetype kLongestText = 300;

QString lineOf(const QString &text)
{
    return text.left(kLongestText).simplified();
}

void drawLine(QPainter &painter, const QRect &room, const QString &text,
              Qt::LayoutDirection direction)
{
    const Qt::Alignment leading =
        QStyle::visualAlignment(direction, Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter;
    painter.drawText(
        room, int(leading) | Qt::TextSingleLine,
        QFontMetrics(painter.font()).elidedText(lineOf(text), Qt::ElideRight, room.width()));
}

} // namespace

class FontFilesList::Model final : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    void setRows(const std::vector<FontFilesRow> &rows)
    {
        beginResetModel();
        m_rows = rows;
        endResetModel();
    }
    const std::vector<FontFilesRow> &rows() const { return m_rows; }
    const FontFilesRow &row(const QModelIndex &index) const { return m_rows[size_t(index.row())]; }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        if (!index.isValid() || row(index).kind == FontFilesRow::Kind::heading)
            return Qt::ItemNeverHasChildren;
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!index.isValid())
            return {};
        const FontFilesRow &shown = row(index);
        switch (role) {
        case Qt::DisplayRole:
            return lineOf(shown.text);
        case Qt::ToolTipRole:
            return shown.kind == FontFilesRow::Kind::problem ? plainToolTip(lineOf(shown.text))
                                                             : QVariant();
        case Qt::AccessibleTextRole:
            return accessibleText(index.row());
        default:
            return {};
        }
    }

private:
    /// A style's own name says little.
    QString accessibleText(int row) const
    {
        const FontFilesRow &shown = m_rows[size_t(row)];
        int heading = row;
        while (heading > 0 && m_rows[size_t(heading)].kind != FontFilesRow::Kind::heading)
            --heading;
        QStringList parts{lineOf(shown.text)};
        if (heading != row)
            parts << lineOf(m_rows[size_t(heading)].text);
        if (!shown.detail.isEmpty())
            parts << lineOf(shown.detail);
        //: Between what is said of a font in the list; spoken.
        return parts.join(FontFilesList::tr(", "));
    }

    std::vector<FontFilesRow> m_rows;
};

class FontFilesList::View final : public QListView
{
public:
    explicit View(FontFilesList &list)
        : QListView(&list)
        , m_list(list)
    {
        setObjectName(QStringLiteral("FontFilesListView"));
        setAccessibleName(FontFilesList::tr("Fonts in the Files"));
        makeGroundless(*this);
        setEditTriggers(NoEditTriggers);
        viewport()->setBackgroundRole(QPalette::Window);
    }
    bool showsFocus() const { return hasFocus() && m_showsFocus; }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        // The base class would look for a row that begins with it.
        if (event->key() == Qt::Key_Escape)
            event->ignore();
        else
            QListView::keyPressEvent(event);
    }
    /// The base class stays where it is when the row at the end cannot be chosen.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override
    {
        QModelIndex index = QListView::moveCursor(action, modifiers);
        if (action == MoveHome)
            index = model()->index(0, 0);
        while (index.isValid() && !model()->flags(index).testFlag(Qt::ItemIsEnabled))
            index = index.siblingAtRow(index.row() + 1);
        return index;
    }
    void focusInEvent(QFocusEvent *event) override
    {
        m_showsFocus = showsFocusRing(event->reason(), m_showsFocus);
        QListView::focusInEvent(event);
        viewport()->update();
    }
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override
    {
        QListView::currentChanged(current, previous);
        if (!m_isQuiet && current.isValid())
            Q_EMIT m_list.chosen(size_t(current.row()));
    }

private:
    friend class FontFilesList;

    FontFilesList &m_list;
    bool m_showsFocus = false;
    bool m_isQuiet = false;
};

class FontFilesList::Delegate final : public QStyledItemDelegate
{
public:
    Delegate(const Model &model, const View &view, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_model(model)
        , m_view(view)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        const FontFilesRow &row = m_model.row(index);
        if (row.kind == FontFilesRow::Kind::heading)
            return {0, kHeadingHeight};
        return {0, row.detail.isEmpty() ? kRowHeight : kTwoLineHeight};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const FontFilesRow &row = m_model.row(index);
        if (row.kind == FontFilesRow::Kind::heading)
            paintHeading(*painter, option, row);
        else
            paintRow(*painter, option, row);
        painter->restore();
    }

private:
    static QRect textRoom(const QRect &row)
    {
        return row.adjusted(kPadding + spacing::k8, 0, -kPadding - spacing::k8, 0);
    }

    static void paintHeading(QPainter &painter, const QStyleOptionViewItem &option,
                             const FontFilesRow &row)
    {
        const NeutralColors colors = neutralColors(isDarkDesktop());
        painter.setFont(interfaceFont(InterfaceSize::caption, InterfaceWeight::semibold));
        painter.setPen(quietColor(colors.text, colors.sidebar, kHeadingAlpha));
        QRect room = textRoom(option.rect);
        room.setTop(room.bottom() - kRowHeight);
        drawLine(painter, room, row.text, option.direction);
    }

    void paintRow(QPainter &painter, const QStyleOptionViewItem &option,
                  const FontFilesRow &row) const
    {
        const NeutralColors colors = neutralColors(isDarkDesktop());
        const QRect plate = option.rect.adjusted(kPadding, 0, -kPadding, 0);
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        const bool isHovered = option.state.testFlag(QStyle::State_MouseOver);
        painter.setPen(Qt::NoPen);
        painter.setBrush(withAlpha(colors.text,
                                   isSelected      ? kSelectedFill
                                       : isHovered ? kHoverFill
                                                   : 0.0));
        painter.drawRoundedRect(plate, kRadius, kRadius);
        if (isSelected && m_view.showsFocus())
            drawFocusRing(painter, QRectF(plate).adjusted(2, 2, -2, -2), kRadius - 2);
        const QColor ground =
            blended(withAlpha(colors.text, isSelected ? kSelectedFill : 0.0), colors.sidebar);
        painter.setFont(interfaceFont(
            InterfaceSize::body, isSelected ? InterfaceWeight::medium : InterfaceWeight::regular));
        painter.setPen(row.kind == FontFilesRow::Kind::problem
                           ? quietColor(colors.text, ground, kDetailAlpha)
                           : colors.text);
        QRect room = textRoom(option.rect);
        if (row.detail.isEmpty()) {
            drawLine(painter, room, row.text, option.direction);
            return;
        }
        room = room.adjusted(0, spacing::k4, 0, -spacing::k4);
        const int middle = room.top() + room.height() * 11 / 20;
        drawLine(painter, {room.topLeft(), QPoint(room.right(), middle)}, row.text,
                 option.direction);
        painter.setFont(interfaceFont(InterfaceSize::caption));
        painter.setPen(quietColor(colors.text, ground, kDetailAlpha));
        drawLine(painter, {QPoint(room.left(), middle), room.bottomRight()}, row.detail,
                 option.direction);
    }

    const Model &m_model;
    const View &m_view;
};

FontFilesList::FontFilesList(QWidget *parent)
    : QWidget(parent)
    , m_model(new Model(this))
    , m_view(new View(*this))
    , m_bar(new OverlayScrollBar(this))
{
    setObjectName(QStringLiteral("FontFilesList"));
    m_view->setModel(m_model);
    m_view->setItemDelegate(new Delegate(*m_model, *m_view, m_view));
    setFocusProxy(m_view);
    m_bar->follow(m_view->verticalScrollBar());
    m_bar->setForeground(neutralColors(isDarkDesktop()).text);
}

void FontFilesList::setRows(const std::vector<FontFilesRow> &rows)
{
    if (rows == m_model->rows())
        return;
    m_view->m_isQuiet = true;
    m_model->setRows(rows);
    m_view->m_isQuiet = false;
    m_bar->adapt();
}

void FontFilesList::setCurrent(size_t row)
{
    m_view->m_isQuiet = true;
    m_view->setCurrentIndex(m_model->index(int(row), 0));
    m_view->m_isQuiet = false;
}

std::optional<size_t> FontFilesList::current() const
{
    const QModelIndex index = m_view->currentIndex();
    return index.isValid() ? std::optional(size_t(index.row())) : std::nullopt;
}

void FontFilesList::paintEvent(QPaintEvent *)
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    QPainter painter(this);
    painter.fillRect(rect(), colors.sidebar);
    drawHairline(painter, rect(), isRightToLeft() ? Qt::LeftEdge : Qt::RightEdge,
                 hairlineColor(colors.text, colors.sidebar));
}

void FontFilesList::resizeEvent(QResizeEvent *)
{
    m_view->setGeometry(rect());
    m_bar->adapt();
}

void FontFilesList::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    m_bar->setForeground(neutralColors(isDarkDesktop()).text);
    update();
}

} // namespace lorva
