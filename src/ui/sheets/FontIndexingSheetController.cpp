// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/FontIndexingSheetController.h"

#include "commands/ScanProgress.h"
#include "ui/sheets/ProgressIndicators.h"
#include "ui/sheets/SheetText.h"
#include "ui/style/TextButton.h"

#include <QStyle>

#include <algorithm>
#include <utility>

namespace lorva {

namespace {

constexpr int kMessageLines = 3;

QFont messageFont()
{
    return interfaceFont(InterfaceSize::title, InterfaceWeight::semibold, Figures::tabular);
}

} // namespace

/// Bar and spinner take turns in one place, so that nothing jumps.
class FontIndexingSheetController::Indicator final : public QWidget
{
public:
    Indicator(QuietSpinner &spinner, ThinProgressBar &bar)
        : m_spinner(spinner)
        , m_bar(bar)
    {
        m_spinner.setParent(this);
        m_bar.setParent(this);
    }
    QSize sizeHint() const override { return m_bar.sizeHint().expandedTo(m_spinner.sizeHint()); }

protected:
    void resizeEvent(QResizeEvent *) override
    {
        const QRect leading(QPoint(), m_spinner.sizeHint());
        m_spinner.setGeometry(QStyle::visualRect(layoutDirection(), rect(), leading));
        m_bar.setGeometry(rect());
    }

private:
    QuietSpinner &m_spinner;
    ThinProgressBar &m_bar;
};

FontIndexingSheetController::FontIndexingSheetController(QWidget &window)
    : Sheet(window, QStringLiteral("ProgressSheet"), QAccessible::Dialog)
    , m_messageLabel(panel().addText(QString(), messageFont(), 1, 0))
    , m_spinner(new QuietSpinner)
    , m_progressBar(new ThinProgressBar)
    , m_cancelButton(new TextButton(tr("Cancel")))
{
    m_messageLabel->setMaximumLineCount(kMessageLines);
    m_messageLabel->setObjectName(partName(QLatin1String("Message")));
    m_spinner->setObjectName(partName(QLatin1String("Spinner")));
    m_progressBar->setObjectName(partName(QLatin1String("Bar")));
    m_progressBar->setAccessibleName(tr("Progress"));
    panel().add(new Indicator(*m_spinner, *m_progressBar), spacing::k16);
    m_cancelButton->setObjectName(partName(QLatin1String("Cancel")));
    m_cancelButton->setAutoDefault(true);
    connect(m_cancelButton, &QPushButton::clicked, this, [this] { cancel(); });
    // Without the focus at first: this comes by itself, and a key that was meant for what was there
    // before must not cancel it.
    addButton(m_cancelButton);
    update(scanBegins());
}

void FontIndexingSheetController::update(int done, int total, FontScanPhase::Kind phase)
{
    update(scanProgress({phase, done, total}));
}

void FontIndexingSheetController::update(const ProgressState &state)
{
    setMessage(state.message);
    m_spinner->setVisible(!state.fraction);
    m_progressBar->setVisible(state.fraction.has_value());
    if (state.fraction)
        m_progressBar->setFraction(*state.fraction);
}

void FontIndexingSheetController::setMessage(const QString &message)
{
    if (m_messageLabel->text() == message)
        return;
    const int before = m_messageLabel->heightForWidth(m_messageLabel->width());
    m_messageLabel->setText(message);
    panel().setAccessibleName(message);
    if (m_messageLabel->heightForWidth(m_messageLabel->width()) != before)
        layOut();
}

void FontIndexingSheetController::cancel()
{
    if (!m_cancelButton->isEnabled() || isDismissed())
        return;
    m_cancelButton->setEnabled(false);
    if (const auto cancelled = std::exchange(onCancel, nullptr))
        cancelled();
}

bool showsProgressSheet(const QWidget &window)
{
    const auto sheets =
        window.findChildren<FontIndexingSheetController *>(QString(), Qt::FindDirectChildrenOnly);
    return std::ranges::any_of(sheets, [](const Sheet *sheet) { return !sheet->isDismissed(); });
}

} // namespace lorva
