// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/FeatureTip.h"

#include "ui/inspector/InspectorLook.h"
#include "ui/sheets/SheetText.h"
#include "ui/style/DeviceSpace.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kWidth = 248;
constexpr int kPadding = 14;
constexpr int kGap = spacing::k8;
constexpr int kSampleGap = spacing::k12;
/// Between the two samples, with the arrow.
constexpr int kArrowRoom = spacing::k32;
constexpr double kArrowLength = 11;
constexpr double kRadius = 10;
constexpr double kLineAlpha = 0.14;
constexpr double kBeforeAlpha = 0.45;
constexpr int kMostLines = 6;
constexpr int kMostTitleLines = 3;

QString explanationOf(const FeatureNotes &notes)
{
    QStringList paragraphs;
    if (!notes.toolTip.isEmpty())
        paragraphs << notes.toolTip;
    if (!notes.valueNames.isEmpty())
        paragraphs << notes.valueNames.join(QStringLiteral(" · "));
    return paragraphs.join(u'\n');
}

WrappedText wrapped(const QString &text)
{
    return {text, interfaceFont(InterfaceSize::caption), kMostLines};
}

/// In the row it may have been cut.
WrappedText wrappedTitle(const QString &title)
{
    return {title.left(kLongestShownName),
            interfaceFont(InterfaceSize::label, InterfaceWeight::medium), kMostTitleLines};
}

QString tagOf(const FeatureNotes &notes)
{
    return notes.tag == 0 ? QString() : tagText(notes.tag);
}

int tagRoom(const FeatureNotes &notes)
{
    const QFontMetrics metrics(interfaceFont(InterfaceSize::caption));
    return metrics.horizontalAdvance(tagOf(notes)) + spacing::k8;
}

QSizeF pointsOf(const QImage &image)
{
    return image.deviceIndependentSize();
}

} // namespace

FeatureTip *FeatureTip::open(QWidget *row, const FeatureNotes &notes, const Font &font,
                             QThreadPool &pool)
{
    auto *tip = new FeatureTip(row, notes);
    tip->paintSample(font, pool);
    tip->place();
    tip->show();
    tip->raise();
    return tip;
}

FeatureTip::FeatureTip(QWidget *row, const FeatureNotes &notes)
    : QWidget(row->window())
    , m_row(row)
    , m_notes(notes)
    , m_explanation(explanationOf(notes))
{
    setObjectName(QStringLiteral("FeatureTip"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    //: A feature of a font, and its tag; spoken.
    setAccessibleName(tr("%1, %2").arg(notes.title.left(kLongestShownName), tagText(notes.tag)));
    qApp->installEventFilter(this);
    connect(row, &QObject::destroyed, this, &FeatureTip::close);
}

void FeatureTip::close()
{
    if (std::exchange(m_isClosed, true))
        return;
    qApp->removeEventFilter(this);
    hide();
    deleteLater();
}

void FeatureTip::paintSample(const Font &font, QThreadPool &pool)
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    FeatureSampleLook look;
    look.before = withAlpha(neutral.text, kBeforeAlpha);
    look.after = neutral.text;
    look.widthPt = kWidth - 2.0 * kPadding - kArrowRoom;
    look.devicePixelRatio = devicePixelRatioF();
    runThen(
        pool, this,
        [font, tag = m_notes.tag, look](const std::stop_token &) {
            return paintFeatureSample(font, tag, look);
        },
        [this](FeatureSampleImages sample) {
            m_sample = std::move(sample);
            m_isSettled = true;
            if (m_row)
                place();
            update();
        });
}

int FeatureTip::titleHeight() const
{
    return wrappedTitle(m_notes.title).heightFor(kWidth - 2 * kPadding - tagRoom(m_notes));
}

int FeatureTip::sampleHeight() const
{
    return m_sample.after.isNull() ? 0 : int(pointsOf(m_sample.after).height()) + kSampleGap;
}

/// Beside the row on the side of the specimens; over or below it in a window that has no room
/// there.
void FeatureTip::place()
{
    int height = 2 * kPadding + titleHeight() + sampleHeight();
    if (!m_explanation.isEmpty())
        height += kGap + wrapped(m_explanation).heightFor(kWidth - 2 * kPadding);
    const QRect row(m_row->mapTo(parentWidget(), QPoint()), m_row->size());
    const QRect room = parentWidget()->rect().adjusted(kGap, kGap, -kGap, -kGap);
    int x = isRightToLeft() ? row.right() + kGap : row.left() - kGap - kWidth;
    int y = row.center().y() - height / 2;
    if (x < room.left() || x + kWidth > room.right() + 1) {
        x = std::clamp(x, room.left(), std::max(room.left(), room.right() + 1 - kWidth));
        const bool fitsBelow = row.bottom() + kGap + height <= room.bottom();
        y = fitsBelow ? row.bottom() + spacing::k4 : row.top() - spacing::k4 - height;
    }
    y = std::clamp(y, room.top(), std::max(room.top(), room.bottom() + 1 - height));
    const QRect card(x, y, kWidth, height);
    const QRect outer = SoftShadow::outerRect(card);
    m_card = card.translated(-outer.topLeft());
    setGeometry(outer);
}

bool FeatureTip::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Wheel:
        close();
        break;
    case QEvent::Hide:
    case QEvent::Move:
        if (watched == m_row)
            close();
        break;
    case QEvent::Resize:
    case QEvent::WindowDeactivate:
        if (watched == parentWidget())
            close();
        break;
    default:
        break;
    }
    return false;
}

void FeatureTip::paintText(QPainter &painter, const QRect &inside) const
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    painter.setFont(interfaceFont(InterfaceSize::caption));
    painter.setPen(quietColor(neutral.text, neutral.ground, 0.55));
    const QRect firstLine(inside.left(), inside.top(), inside.width(), spacing::k16);
    drawInspectorLine(painter, *this, firstLine, tagOf(m_notes), Qt::AlignRight);
    painter.setPen(neutral.text);
    const QRect title = inside.adjusted(0, 0, -tagRoom(m_notes), 0);
    wrappedTitle(m_notes.title)
        .draw(painter, QStyle::visualRect(layoutDirection(), rect(), title), layoutDirection());
    if (m_explanation.isEmpty())
        return;
    painter.setPen(quietColor(neutral.text, neutral.ground, 0.62));
    wrapped(m_explanation)
        .draw(painter, QRectF(inside).adjusted(0, titleHeight() + sampleHeight() + kGap, 0, 0),
              layoutDirection());
}

/// Both stand together in the middle of the band; the way goes as one reads.
void FeatureTip::drawSample(QPainter &painter, const QRectF &band) const
{
    const QSizeF before = pointsOf(m_sample.before);
    const QSizeF after = pointsOf(m_sample.after);
    const double left = band.center().x() - (before.width() + kArrowRoom + after.width()) / 2;
    const QSizeF first = isRightToLeft() ? after : before;
    const QPointF second(left + first.width() + kArrowRoom, band.top());
    const DeviceSpace device(painter);
    device.drawImage({left, band.top()}, {}, isRightToLeft() ? m_sample.after : m_sample.before);
    device.drawImage(second, {}, isRightToLeft() ? m_sample.before : m_sample.after);

    const double way = isRightToLeft() ? -1 : 1;
    const QPointF middle(left + first.width() + kArrowRoom / 2.0, band.center().y());
    const QPointF tip = middle + QPointF(way * kArrowLength / 2, 0);
    painter.setPen(QPen(quietColor(neutralColors(isDarkDesktop()).text,
                                   neutralColors(isDarkDesktop()).ground, 0.45),
                        1.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawLine(middle - QPointF(way * kArrowLength / 2, 0), tip);
    painter.drawPolyline(
        QPolygonF{tip + QPointF(-way * 3.5, -3.5), tip, tip + QPointF(-way * 3.5, 3.5)});
}

void FeatureTip::paintEvent(QPaintEvent *)
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    QPainter painter(this);
    m_shadow.draw(painter, rect(), kRadius);
    painter.setRenderHint(QPainter::Antialiasing);
    const double hair = 1.0 / devicePixelRatioF();
    painter.setPen(QPen(blended(withAlpha(neutral.text, kLineAlpha), neutral.ground), hair));
    painter.setBrush(neutral.ground);
    painter.drawRoundedRect(QRectF(m_card).adjusted(hair / 2, hair / 2, -hair / 2, -hair / 2),
                            kRadius, kRadius);
    const QRect inside = m_card.adjusted(kPadding, kPadding, -kPadding, -kPadding);
    paintText(painter, inside);
    if (!m_sample.after.isNull()) {
        drawSample(painter,
                   QRectF(inside.left(), inside.top() + titleHeight() + kSampleGap, inside.width(),
                          pointsOf(m_sample.after).height()));
    }
}

} // namespace lorva
