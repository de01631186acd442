// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/FontBrowserState.h"

#include <QWidget>

namespace lorva {

class FontBrowserViewController;

/// The content of the main window: builds the panes' states from the model and hands the panes'
/// actions to it. Several changes of the model within one turn of the event loop are rendered once.
///
/// Does not own the model, which must outlive it. Thread: main.
class LorvaRootSplitViewController final : public QWidget, private FontBrowserDelegate
{
    Q_OBJECT
public:
    explicit LorvaRootSplitViewController(LorvaAppModel &model, QWidget *parent = nullptr);
    ~LorvaRootSplitViewController() override;

    /// The browser's whole state, computed from the model as it is now.
    FontBrowserState browserState() const;
    /// Renders the model's present state at once.
    void render();
    FontBrowserViewController &browser() { return *m_browser; }

Q_SIGNALS:
    /// The browser shows the model's newest state.
    void rendered();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void scheduleRender();

    void browserSelectionChanged(const std::optional<QString> &familyName) override;
    void browserOpenDetail(const QString &familyName) override;
    void browserPointSizeChanged(double pointSize) override;
    void browserViewModeChanged(ViewMode mode) override;

    LorvaAppModel &m_model;
    FontBrowserViewController *m_browser;
    bool m_renderIsScheduled = false;
};

} // namespace lorva
