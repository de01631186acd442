// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/LaunchOptions.h"
#include "model/LorvaAppModel.h"
#include "model/stores/WindowFrameStore.h"
#include "platform/PreferenceStore.h"

#include <QElapsedTimer>
#include <QMainWindow>

#include <memory>

namespace lorva {

class LorvaRootSplitViewController;

/// Builds the program's objects in their order, opens the one main window, and ends with it.
///
/// Owns: the preference store, the model, the window. Thread: main.
class LorvaApplicationDelegate final : public QObject
{
    Q_OBJECT
public:
    static constexpr QSize kWantedContentSize{1720, 920};
    static constexpr QSize kMinimumContentSize{960, 800};

    /// The catalog of the last start, being read already: to be called first of all, before the
    /// toolkit is started. Null for a picture, which shows nothing but what is there now.
    static std::unique_ptr<CatalogCache> beginReadingCatalog(const LaunchOptions &options);

    explicit LorvaApplicationDelegate(LaunchOptions options,
                                      std::unique_ptr<CatalogCache> catalogCache = nullptr);
    ~LorvaApplicationDelegate() override;

    /// Builds and shows the window and starts the catalog load.
    void applicationDidFinishLaunching();

    LorvaAppModel &model() { return *m_model; }
    QMainWindow *window() { return m_window.get(); }
    LorvaRootSplitViewController *rootController() { return m_root; }

Q_SIGNALS:
    /// Every card on screen shows its specimen, for the first time: those of the last start's
    /// catalog, or of the scan's.
    void firstScreenPainted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildWindow();
    void placeWindow();
    void watchFirstScreen();
    void reportFirstScreen();
    bool isReadyForScreenshot();
    void takeScreenshot();

    const LaunchOptions m_options;
    std::unique_ptr<PreferenceStore> m_preferences;
    std::unique_ptr<LorvaAppModel> m_model;
    WindowFrameStore m_windowFrameStore;
    std::unique_ptr<QMainWindow> m_window;
    LorvaRootSplitViewController *m_root = nullptr;
    QElapsedTimer m_sinceCatalog;
    /// They may still fade in.
    bool m_specimensAreDrawn = false;
    bool m_firstScreenIsPainted = false;
};

} // namespace lorva
