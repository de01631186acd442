// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizCompletionPosterView.h"

#include "base/GroupedNumber.h"
#include "base/TextBeginning.h"
#include "ui/display/PanelParts.h"
#include "ui/quiz/FontQuizCategories.h"
#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"
#include "ui/style/Style.h"
#include "ui/style/TextButton.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kBloomMilliseconds = 1600;
/// Of the sheet that is kept, in points.
constexpr QSizeF kSheet{1080, 1440};
/// More is nobody's name; the sentence has to fit.
constexpr qsizetype kLongestName = 100;
constexpr int kProblemHeight = 36;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontQuizPoster)
};

/// 1st, 2nd, 3rd, 4th … 11th, 12th, 13th … 31st.
QString ordinal(int number)
{
    const int ten = number % 100 / 10;
    const char *const endings[] = {"th", "st", "nd", "rd"};
    const int last = ten == 1 || number % 10 > 3 ? 0 : number % 10;
    return QString::number(number) + QLatin1String(endings[last]);
}

/// "October 4th, 2026", which stays on one line.
QString longDate(const QDate &date)
{
    //: The language of the translation, such as "de" or "zh_CN": dates are written in it.
    const QLocale locale(Texts::tr("en"));
    //: How the poster of the quiz writes its date, as "d. MMMM yyyy" or "yyyy年M月d日"; English
    //: writes it with ordinals instead.
    if (locale.language() != QLocale::English && locale.language() != QLocale::C)
        return locale.toString(date, Texts::tr("MMMM d, yyyy")).replace(u' ', QChar(QChar::Nbsp));
    const QChar space(QChar::Nbsp);
    return QLocale::c().toString(date, u"MMMM") + space + ordinal(date.day()) + u',' + space
        + QLocale::c().toString(date, u"yyyy");
}

bool isDirectionControl(QChar character)
{
    return (character >= u'\u202A' && character <= u'\u202E')
        || (character >= u'\u2066' && character <= u'\u2069') || character == u'\u200E'
        || character == u'\u200F' || character == u'\u061C';
}

bool isRightToLeft(QChar character)
{
    const QChar::Direction direction = character.direction();
    return direction == QChar::DirR || direction == QChar::DirAL || direction == QChar::DirAN
        || character.isSurrogate();
}

QString shownName(const QString &fullName)
{
    QString name = fullName;
    name = name.removeIf(isDirectionControl).simplified();
    if (name.size() > kLongestName)
        name = textBeginning(name, kLongestName).trimmed() + u'…';
    if (!std::ranges::any_of(name, isRightToLeft))
        return name;
    // FIRST STRONG ISOLATE … POP DIRECTIONAL ISOLATE
    return u'\u2068' + name + u'\u2069';
}

QString spokenCounts(const FontQuizCounts &counts)
{
    const int sorted[]{counts.serif, counts.sans,   counts.display,
                       counts.mono,  counts.script, counts.decorative};
    //: A style of fonts, and how many fonts have it; spoken.
    const QString part = Texts::tr("%1: %2");
    QStringList spoken{part.arg(Texts::tr("Fonts organized"), groupedNumber(counts.total))};
    for (int tile = 1; tile <= kFontQuizTiles; ++tile)
        spoken << part.arg(fontQuizCategoryName(tile), groupedNumber(sorted[tile - 1]));
    return QLocale().createSeparatedList(spoken);
}

} // namespace

QString posterText(const QString &fullName, const QDate &date)
{
    const QString name = shownName(fullName);
    if (name.isEmpty()) {
        return Texts::tr("Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative "
                         "styles on %1.\n\nReady and waiting for use in whatever project may come. "
                         "Remember to make it nice.")
            .arg(longDate(date));
    }
    return Texts::tr(
               "Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative styles "
               "by %1 on %2.\n\nReady and waiting for use in whatever project may come. "
               "Remember to make it nice.")
        .arg(name, longDate(date));
}

FontQuizCompletionPosterView::FontQuizCompletionPosterView(QWidget *parent)
    : QWidget(parent)
    , m_saveButton(new TextButton(tr("Save as Picture…"), TextButton::Kind::plain, this))
    , m_doneButton(new TextButton(tr("Done"), TextButton::Kind::prominent, this))
    , m_problemLabel(new PanelLabel({}, PanelLabel::Kind::problem, this))
    , m_export(*this)
{
    setObjectName(QStringLiteral("FontQuizCompletionPosterView"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_saveButton->setObjectName(QStringLiteral("QuizPoster.Save"));
    m_doneButton->setObjectName(QStringLiteral("QuizPoster.Done"));
    m_problemLabel->setObjectName(QStringLiteral("QuizPoster.Problem"));
    m_problemLabel->hide();
    m_bloom.setObjectName(QStringLiteral("quizPosterBloom"));
    m_bloom.setParent(this);
    m_bloom.setStartValue(0.0);
    m_bloom.setEndValue(1.0);
    m_bloom.setDuration(kBloomMilliseconds);
    connect(&m_bloom, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setProgress(value.toDouble()); });
    connect(m_saveButton, &QPushButton::clicked, this, &FontQuizCompletionPosterView::savePicture);
    connect(m_doneButton, &QPushButton::clicked, this, &FontQuizCompletionPosterView::doneWanted);
    m_export.onFailed = [this](const QString &reason) { m_problemLabel->setProblem(reason); };
}

FontQuizCompletionPosterView::~FontQuizCompletionPosterView() = default;

void FontQuizCompletionPosterView::setContent(const Counts &counts, const QDate &completionDate,
                                              const QString &fullName)
{
    m_counts = counts;
    m_completionDate = completionDate;
    setFullName(fullName);
    setAccessibleName(spokenCounts(counts));
    m_hasBloomed = false;
    m_bloom.stop();
    setProgress(0);
    if (isVisible())
        startBloom();
}

void FontQuizCompletionPosterView::setFullName(const QString &fullName)
{
    m_sentence = posterText(fullName, m_completionDate);
    setAccessibleDescription(m_sentence);
    m_doneButton->setAccessibleDescription(m_sentence + u'\n' + spokenCounts(m_counts));
    update();
}

void FontQuizCompletionPosterView::focusPage()
{
    m_doneButton->setFocus(Qt::OtherFocusReason);
}

bool FontQuizCompletionPosterView::isSettled() const
{
    return m_bloom.state() != QAbstractAnimation::Running && !m_export.isWriting();
}

FontQuizPosterPage FontQuizCompletionPosterView::laidOut(const FontQuizPosterSetting &setting) const
{
    return fontQuizPosterPage(m_counts, m_sentence, setting);
}

FontQuizPosterPage FontQuizCompletionPosterView::page() const
{
    return laidOut({kSheet, isDarkDesktop(), layoutDirection(), {}, 1});
}

void FontQuizCompletionPosterView::startBloom()
{
    m_hasBloomed = true;
    if (prefersReducedMotion(this))
        setProgress(1);
    else
        m_bloom.start();
}

void FontQuizCompletionPosterView::setProgress(double progress)
{
    m_progress = progress;
    update();
}

void FontQuizCompletionPosterView::savePicture()
{
    m_problemLabel->hide();
    m_export.ask(pictureOf(page()), tr("Save as Picture"), tr("Organized Fonts"));
}

void FontQuizCompletionPosterView::placeParts()
{
    const QRect room = rect().marginsRemoved(fontQuizPosterMargins(size()).toMargins());
    const QSize done = m_doneButton->sizeHint();
    const QSize save = m_saveButton->sizeHint();
    const auto place = [this](QWidget *part, const QRect &leftToRight) {
        part->setGeometry(QStyle::visualRect(layoutDirection(), rect(), leftToRight));
    };
    const QPoint doneAt(room.right() + 1 - done.width(), room.bottom() + 1 - done.height());
    const QPoint saveAt(doneAt.x() - spacing::k8 - save.width(), doneAt.y());
    place(m_doneButton, QRect(doneAt, done));
    place(m_saveButton, QRect(saveAt, save));
    const int width = room.right() + 1 - saveAt.x();
    place(m_problemLabel,
          QRect(saveAt - QPoint(0, kProblemHeight + spacing::k8), QSize(width, kProblemHeight)));
    m_problemLabel->setAlignment(Qt::AlignTrailing | Qt::AlignBottom);
}

void FontQuizCompletionPosterView::paintEvent(QPaintEvent *)
{
    const QRect buttons = m_saveButton->geometry() | m_doneButton->geometry();
    const FontQuizPosterPage page =
        laidOut({size(), isDarkDesktop(), layoutDirection(), buttons.size(), m_progress});
    QPainter painter(this);
    painter.fillRect(rect(), page.ground);
    paintPosterPage(painter, page);
}

void FontQuizCompletionPosterView::resizeEvent(QResizeEvent *)
{
    placeParts();
}

void FontQuizCompletionPosterView::showEvent(QShowEvent *)
{
    if (!m_hasBloomed)
        startBloom();
}

/// What nobody sees needs no frames.
void FontQuizCompletionPosterView::hideEvent(QHideEvent *)
{
    if (m_bloom.state() != QAbstractAnimation::Running)
        return;
    m_bloom.stop();
    setProgress(1);
}

void FontQuizCompletionPosterView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeParts();
    update();
}

/// Buttons leave Return to whoever holds them.
void FontQuizCompletionPosterView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return event->ignore();
    // A key that is held down since the last card must not end it all.
    if (event->isAutoRepeat())
        return;
    auto *focused = qobject_cast<QAbstractButton *>(focusWidget());
    (focused ? focused : m_doneButton)->click();
}

} // namespace lorva
