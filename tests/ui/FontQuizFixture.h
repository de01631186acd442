// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/LibraryFixture.h"
#include "ui/quiz/FontQuizCardView.h"
#include "ui/quiz/FontQuizCategoryView.h"
#include "ui/quiz/FontQuizCompletionPosterView.h"
#include "ui/quiz/FontQuizFlightView.h"
#include "ui/quiz/FontQuizIntroView.h"
#include "ui/quiz/FontQuizStageView.h"
#include "ui/quiz/FontQuizViewController.h"
#include "ui/style/ReducedMotion.h"

#include <QLabel>
#include <QLocale>
#include <QTest>

#include <gmock/gmock.h>

#include <memory>

namespace lorva::test {

/// A quiz over built families, its time driven by the case.
class FontQuizFixture : public testing::Test
{
protected:
    FontQuizFixture()
    {
        setReducedMotionOverride(false);
        sources.random = [](quint32 bound) { return bound - 1; };
        sources.today = [] { return QDate(2026, 3, 14); };
        window.resize(1240, 860);
    }
    ~FontQuizFixture() override
    {
        quiz.reset();
        QLocale::setDefault(QLocale::c());
    }

    /// Families "Face 000" …, dealt in their order.
    void open(int families)
    {
        library.addFamilies(QStringLiteral("Face"), families);
        ASSERT_TRUE(library.load());
        reopen();
    }
    void reopen()
    {
        quiz = std::make_unique<FontQuizViewController>(
            model(), makeFontResolver(model().fontLibraryService()), &window, sources);
        quiz->timeline().setManual();
        quiz->onClose = [this] { ++closed; };
        quiz->setGeometry(window.rect());
        window.show();
        quiz->show();
    }
    void play(int families)
    {
        open(families);
        press(Qt::Key_Return);
        land();
    }

    LorvaAppModel &model() { return *library.model; }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *target = quiz->focusWidget() ? quiz->focusWidget() : quiz.get();
        QTest::keyClick(target, key, modifiers);
    }
    void type(const QString &text, int key, Qt::KeyboardModifiers modifiers, bool repeats = false)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text, repeats);
        QCoreApplication::sendEvent(quiz.get(), &event);
    }
    /// Whatever moves arrives.
    void land() { quiz->timeline().advance(std::chrono::seconds(2)); }
    void choose(int tile)
    {
        press(Qt::Key(Qt::Key_0 + tile));
        land();
    }
    QString current() const
    {
        return quiz->deck().isExhausted() ? QString() : quiz->deck().currentFamily();
    }
    QString styleOf(const char *family)
    {
        return model().styleIDByFamily().value(QString::fromLatin1(family));
    }
    template <class Part>
    Part *part(const char *name)
    {
        return quiz->findChild<Part *>(QString::fromLatin1(name));
    }
    FontQuizCategoryView *tile(int number)
    {
        const QByteArray name = "FontQuizCategoryView." + QByteArray::number(number);
        return part<FontQuizCategoryView>(name.constData());
    }
    FontQuizIntroView &intro() { return *part<FontQuizIntroView>("FontQuizIntroView"); }
    FontQuizCardView &card() { return *part<FontQuizCardView>("FontQuizCardView"); }
    QLabel &notice() { return *part<QLabel>("FontQuizNotice"); }
    FontQuizCompletionPosterView *poster()
    {
        return part<FontQuizCompletionPosterView>("FontQuizCompletionPosterView");
    }
    size_t pile(int number) { return quiz->stage().landedPiles()[size_t(number - 1)].size(); }

    bool settle()
    {
        return waitUntil([this] {
            land();
            return quiz->isSettled();
        });
    }

    LibraryFixture library;
    FontQuizSources sources;
    QWidget window;
    std::unique_ptr<FontQuizViewController> quiz;
    int closed = 0;
};

} // namespace lorva::test
