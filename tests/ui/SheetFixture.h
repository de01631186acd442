// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/Waiting.h"
#include "ui/sheets/AlertSheet.h"
#include "ui/sheets/WindowPresenter.h"
#include "ui/style/ReducedMotion.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva::test {

/// A window with a field that has the focus, and a presenter that shows sheets in it.
class SheetFixture : public testing::Test
{
protected:
    SheetFixture()
        : m_field(new QLineEdit(m_window.get()))
    {
        setReducedMotionOverride(true);
        m_window->setCentralWidget(m_field);
        m_window->resize(960, 800);
        m_window->show();
        m_window->activateWindow();
        m_field->setFocus();
        EXPECT_TRUE(waitUntil([this] { return m_field->hasFocus(); }));
    }
    ~SheetFixture() override { setReducedMotionOverride({}); }

    /// What is seen under that name; a sheet that was dismissed is on its way out.
    QWidget *part(const char *name) const
    {
        for (QWidget *widget : m_window->findChildren<QWidget *>(QString::fromLatin1(name)))
            if (widget->isVisible())
                return widget;
        return nullptr;
    }
    QString textOf(const char *name) const
    {
        const QWidget *widget = part(name);
        return widget ? widget->property("text").toString() : QString();
    }
    void click(const char *name) const { QTest::mouseClick(part(name), Qt::LeftButton); }
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    static void press(const std::vector<int> &keys)
    {
        for (const int key : keys)
            press(key);
    }
    /// Where a part lies in the window.
    QRect rectOf(const QWidget &widget) const
    {
        return {widget.mapTo(m_window.get(), QPoint()), widget.size()};
    }

    std::unique_ptr<QMainWindow> m_window = std::make_unique<QMainWindow>();
    QLineEdit *m_field = nullptr;
    WindowPresenter m_presenter{*m_window, std::chrono::milliseconds(0)};
};

} // namespace lorva::test
