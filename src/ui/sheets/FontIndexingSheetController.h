// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"
#include "commands/CommandPresenter.h"
#include "ui/sheets/Sheet.h"

#include <functional>

namespace lorva {

class QuietSpinner;
class SheetText;
class TextButton;
class ThinProgressBar;

/// The sheet that shows how far something is that takes a while: a scan, or a run that switches
/// fonts. Stays until its owner dismisses it. Thread: main.
class FontIndexingSheetController final : public Sheet
{
    Q_OBJECT
public:
    /// Begins with "Scanning fonts…".
    explicit FontIndexingSheetController(QWidget &window);

    using Sheet::update;
    void update(int done, int total, FontScanPhase::Kind phase);
    void update(const ProgressState &state);

    SheetText *messageLabel() const { return m_messageLabel; }
    /// Shown while there is no knowing how long it lasts; else the bar is.
    QuietSpinner *spinner() const { return m_spinner; }
    ThinProgressBar *progressBar() const { return m_progressBar; }

    /// Called once, when the user has had enough. The sheet stays.
    std::function<void()> onCancel;

protected:
    void cancel() override;

private:
    class Indicator;

    void setMessage(const QString &message);

    SheetText *m_messageLabel;
    QuietSpinner *m_spinner;
    ThinProgressBar *m_progressBar;
    TextButton *m_cancelButton;
};

/// True while one stands in the window.
bool showsProgressSheet(const QWidget &window);

} // namespace lorva
