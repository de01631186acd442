// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/TextAudit.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QLineEdit>
#include <QPaintEngine>
#include <QPainter>
#include <QRegularExpression>
#include <QTextItem>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace lorva::test {

namespace {

struct PaintedText
{
    QString text;
    /// In the widget, in points.
    QRectF rect;
    /// What the painter was held to; invalid where it was not.
    QRectF clip;
};

/// Takes note of texts and draws nothing.
class TextEngine final : public QPaintEngine
{
public:
    TextEngine()
        : QPaintEngine(AllFeatures)
    {
    }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override { }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
    void drawPath(const QPainterPath &) override { }
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override { }
    void drawTextItem(const QPointF &at, const QTextItem &item) override
    {
        const QTransform toDevice = painter()->deviceTransform();
        const QRectF box(at - QPointF(0, item.ascent()),
                         QSizeF(item.width(), item.ascent() + item.descent()));
        const QRectF where = toDevice.mapRect(box);
        if (item.text() == u'…' && endsAt(where)) {
            texts.back().text += item.text();
            texts.back().rect |= where;
            return;
        }
        texts.push_back({item.text(), where,
                         painter()->hasClipping() ? toDevice.mapRect(painter()->clipBoundingRect())
                                                  : QRectF()});
    }
    Type type() const override { return User; }

    std::vector<PaintedText> texts;

private:
    /// What was painted last goes on here: an ellipsis may come from another font.
    bool endsAt(const QRectF &next) const
    {
        return !texts.empty() && std::abs(texts.back().rect.right() - next.left()) < 1
            && texts.back().rect.top() < next.bottom() && next.top() < texts.back().rect.bottom();
    }
};

class TextDevice final : public QPaintDevice
{
public:
    explicit TextDevice(QSize size)
        : m_size(size)
    {
    }
    QPaintEngine *paintEngine() const override { return &engine; }
    mutable TextEngine engine;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    const QSize m_size;
};

/// The widget and the next one around it with a name of its own.
QString nameOf(const QWidget &widget)
{
    QString name = QString::fromLatin1(widget.metaObject()->className()).remove("lorva::");
    if (!widget.objectName().isEmpty() && widget.objectName() != name)
        name += u'#' + widget.objectName();
    const QWidget *around = widget.isWindow() ? nullptr : widget.parentWidget();
    while (around && (around->objectName().isEmpty() || around->objectName().startsWith("qt_")))
        around = around->parentWidget();
    return around ? around->objectName() + " > " + name : name;
}

bool isPseudoText(const QString &text)
{
    return text.contains(u'[') || text.contains(u'~') || text.contains(u']');
}

/// Room is made in whole points, so that a text may lack less than one to the right. In height the
/// line of the interface's font counts, and what comes from another font (East Asian letters) has
/// its ascent and descent a little outside of it, where there is no ink.
bool exceeds(const QRectF &text, const QRectF &room)
{
    constexpr double kRounding = 1;
    constexpr double kOtherFont = 2;
    return text.left() < room.left() - kRounding || text.right() > room.right() + kRounding
        || text.top() < room.top() - kOtherFont || text.bottom() > room.bottom() + kOtherFont;
}

/// Content that scrolls is cut where it is looked at through.
bool isLookedAtThrough(const QWidget &widget)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget.parentWidget());
    return area && area->viewport() == &widget;
}

} // namespace

QStringList TextAudit::faults(QWidget &root) const
{
    QStringList found;
    lookAt(root, found);
    for (QWidget *widget : root.findChildren<QWidget *>())
        if (widget->isVisibleTo(&root) && !widget->isWindow())
            lookAt(*widget, found);
    found.removeDuplicates();
    return found;
}

void TextAudit::lookAt(QWidget &widget, QStringList &found) const
{
    lookAtProperties(widget, found);
    lookAtPainting(widget, found);
}

void TextAudit::lookAtPainting(QWidget &widget, QStringList &found) const
{
    TextDevice device(widget.size());
    widget.render(&device, {}, {}, {});
    const QRectF whole(widget.rect());
    const bool scrolls = isLookedAtThrough(widget);
    std::vector<PaintedText> ours;
    for (const PaintedText &each : device.engine.texts) {
        const QString where = nameOf(widget) + ": “" + each.text + u'”';
        if (isUntranslated(each.text))
            found << "not translated: " + where;
        const bool isElided = each.text.contains(u'…') && !isShortenedData(each.text);
        if (isPseudo && !isPseudoText(each.text) && !isElided)
            continue;
        QRectF room = each.clip.isValid() ? whole & each.clip : whole;
        if (scrolls)
            room.adjust(0, -1e6, 0, 1e6);
        // A field shows as much of its invitation as there is room for, and scrolls its text.
        if (qobject_cast<QLineEdit *>(&widget))
            continue;
        if (isElided && !mayShorten.contains(widget.objectName()))
            found << "elided: " + where;
        else if (exceeds(each.rect, room))
            found << QStringLiteral("cut: %1 by %2")
                         .arg(where)
                         .arg(std::ceil(std::max(each.rect.right() - room.right(),
                                                 room.left() - each.rect.left())));
        for (const PaintedText &other : ours)
            if (const QRectF both = other.rect & each.rect; both.width() > 2 && both.height() > 4)
                found << "over “" + other.text + "”: " + where;
        ours.push_back(each);
    }
}

void TextAudit::lookAtProperties(const QWidget &widget, QStringList &found) const
{
    const auto look = [&](const char *what, const QString &text) {
        if (isUntranslated(text))
            found << QStringLiteral("not translated: %1, %2: “%3”")
                         .arg(nameOf(widget), QLatin1String(what), text);
    };
    look("tool tip", widget.toolTip());
    look("accessible name", widget.accessibleName());
    look("accessible description", widget.accessibleDescription());
    if (widget.isWindow())
        look("title", widget.windowTitle());
    for (const QAction *action : widget.actions()) {
        look("action", action->text());
        look("action's tool tip", action->toolTip());
    }
}

bool TextAudit::isShortenedData(const QString &text) const
{
    // Less tells nobody what is meant. What is painted may begin anywhere in a word, where a font
    // ends.
    constexpr qsizetype kLeast = 4;
    if (text.size() <= kLeast)
        return false;
    const QStringView shown = QStringView(text).chopped(1);
    return std::ranges::any_of(data, [&](const QString &word) {
        return word.contains(text) || (text.endsWith(u'…') && word.contains(shown));
    });
}

bool TextAudit::isUntranslated(QString text) const
{
    if (!isPseudo)
        return false;
    if (isShortenedData(text))
        return false;
    for (const QString &word : data)
        text.remove(word);
    static const QRegularExpression words(QStringLiteral("[A-Za-z]{2,}"));
    static const QRegularExpression harmless(QStringLiteral(
        "<[^>]*>|&[a-z]+;|\\S*/\\S*|\\b(Ctrl|Shift|Alt|Del|Esc|Space|Return|Enter|PgUp|PgDown|"
        "Backspace|Home|End|F\\d+)\\b"));
    text.remove(harmless);
    return words.match(text).hasMatch();
}

} // namespace lorva::test
