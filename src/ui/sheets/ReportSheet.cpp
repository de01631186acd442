// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/ReportSheet.h"

#include "ui/sheets/ReportList.h"
#include "ui/sheets/SheetText.h"
#include "ui/style/TextButton.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kWidth = 640;
/// Higher than that, the eye loses the heading.
constexpr int kListAtMost = 600;
constexpr int kRowsAtLeast = 2;

} // namespace

ReportSheet::ReportSheet(QWidget &window, Report report, bool canExport)
    : Sheet(window, QStringLiteral("ReportSheet"), QAccessible::Dialog)
    , m_report(std::move(report))
{
    panel().setPreferredWidth(kWidth);
    panel().setAccessibleDescription(m_report.body);
    addHeading(m_report.title);
    addBody(m_report.body);
    if (!m_report.rows.empty())
        addRows();
    else if (SheetText *empty = addBody(m_report.emptyText))
        empty->setObjectName(partName(QLatin1String("Empty")));
    addButtons(canExport);
}

void ReportSheet::addRows()
{
    m_list = new ReportList(std::move(m_report.rows));
    m_list->setObjectName(partName(QLatin1String("List")));
    m_list->setAccessibleName(m_report.title);
    connect(m_list, &ReportList::copyRequested, this, &ReportSheet::copy);
    panel().setFiller(m_list, kRowsAtLeast * m_list->rowHeight(),
                      std::min(m_list->wholeHeight(), kListAtMost));
    addStop(m_list);
    setFirstFocus(m_list);
}

void ReportSheet::addButtons(bool canExport)
{
    auto *done = new TextButton(tr("Done"), TextButton::Kind::prominent);
    done->setObjectName(partName(QLatin1String("Done")));
    done->setAutoDefault(true);
    connect(done, &QPushButton::clicked, this, [this] { cancel(); });
    addButton(done);
    setDefaultButton(done);
    if (!m_list)
        return;
    if (canExport && !m_report.exportLabel.isEmpty())
        addPlainButton(m_report.exportLabel, QStringLiteral("Export"), [this] {
            if (onExport)
                onExport();
        });
    if (!m_report.copyText.isEmpty())
        addPlainButton(tr("Copy"), QStringLiteral("Copy"), [this] { copy(); });
}

void ReportSheet::addPlainButton(const QString &text, const QString &name,
                                 std::function<void()> pressed)
{
    auto *button = new TextButton(text);
    button->setObjectName(partName(QLatin1String()) + name);
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, std::move(pressed));
    addButton(button);
}

void ReportSheet::copy() const
{
    const QString selected = m_list ? m_list->selectedText() : QString();
    const QString &text = selected.isEmpty() ? m_report.copyText : selected;
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

void ReportSheet::keyPressEvent(QKeyEvent *event)
{
    if (!event->matches(QKeySequence::Copy)) {
        Sheet::keyPressEvent(event);
        return;
    }
    copy();
    event->accept();
}

void ReportSheet::cancel()
{
    if (isDismissed())
        return;
    const auto done = onDone;
    dismiss();
    if (done)
        done();
}

} // namespace lorva
