// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What the cases of the languages would see of faults.

#include "support/TextAudit.h"
#include "support/PseudoTranslator.h"

#include <QAction>
#include <QLabel>
#include <QPainter>

#include <gmock/gmock.h>

#include <functional>

namespace lorva {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

MATCHER_P(HasSubstr, words, "")
{
    return arg.contains(QLatin1String(words));
}

TEST(TextAudit, SeesWhatIsWrongWithPaintedText)
{
    test::PseudoTranslator translator;
    const QString translated = translator.translate("", "Some words");
    test::TextAudit audit;
    audit.data = {QStringLiteral("Fixture")};
    QWidget window;
    window.resize(300, 100);
    QLabel label(&window);
    const auto faults = [&](const QString &text, const QRect &where) {
        label.setGeometry(where);
        label.setText(text);
        label.show();
        return audit.faults(window);
    };
    const QRect wide(0, 0, 300, 40);
    EXPECT_THAT(faults(translated, wide), IsEmpty());
    EXPECT_THAT(faults(QStringLiteral("Fixture"), wide), IsEmpty()) << "a name";
    EXPECT_THAT(faults(QStringLiteral("Words"), wide), ElementsAre(HasSubstr("not translated")));
    EXPECT_THAT(faults(translated, QRect(0, 0, 30, 40)), ElementsAre(HasSubstr("cut")));
    EXPECT_THAT(faults(translated, QRect(0, 0, 300, 4)), ElementsAre(HasSubstr("cut")));
    EXPECT_THAT(faults(translated.left(5) + u'…', wide), ElementsAre(HasSubstr("elided")));
    EXPECT_THAT(faults(QStringLiteral("Fixt…"), wide), IsEmpty()) << "a name may be shortened";
    for (const char *tooLittle : {"…", "F…", "Fix…"})
        EXPECT_THAT(faults(QString::fromUtf8(tooLittle), wide), Contains(HasSubstr("elided")));
}

TEST(TextAudit, SeesTextOverOtherText)
{
    class Heap final : public QWidget
    {
    public:
        int distance = 0;

    protected:
        void paintEvent(QPaintEvent *) override
        {
            QPainter painter(this);
            painter.drawText(10, 30, QStringLiteral("[Àß]"));
            painter.drawText(10, 30 + distance, QStringLiteral("[Çđ]"));
        }
    } heap;
    heap.resize(300, 100);
    test::TextAudit audit;
    EXPECT_THAT(audit.faults(heap), ElementsAre(HasSubstr("over")));
    heap.distance = 40;
    EXPECT_THAT(audit.faults(heap), IsEmpty());
}

TEST(TextAudit, SeesWhatIsSaidWithoutBeingPainted)
{
    test::TextAudit audit;
    const struct
    {
        const char *what;
        std::function<void(QWidget &)> say;
    } rows[]{
        {"tool tip", [](QWidget &window) { window.setToolTip(QStringLiteral("Words")); }},
        {"title", [](QWidget &window) { window.setWindowTitle(QStringLiteral("Words")); }},
        {"accessible name",
         [](QWidget &window) { window.setAccessibleName(QStringLiteral("Words")); }},
        {"accessible description",
         [](QWidget &window) { window.setAccessibleDescription(QStringLiteral("Words")); }},
        {"action:",
         [](QWidget &window) {
             window.addAction(QStringLiteral("Words"))->setToolTip(QStringLiteral("Á"));
         }},
        {"action's tool tip",
         [](QWidget &window) {
             window.addAction(QStringLiteral("Á"))->setToolTip(QStringLiteral("Words"));
         }},
    };
    for (const auto &[what, say] : rows) {
        QWidget window;
        say(window);
        EXPECT_THAT(audit.faults(window), ElementsAre(HasSubstr(what)));
    }
}

} // namespace
} // namespace lorva
