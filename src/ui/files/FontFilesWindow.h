// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/ActivationCommands.h"
#include "commands/GivenFonts.h"
#include "platform/AvailableFonts.h"
#include "platform/DesktopOpener.h"
#include "platform/OrthographyBook.h"
#include "ui/files/FontFilesReader.h"
#include "ui/inspector/FontInspectorViewController.h"
#include "ui/sheets/WindowPresenter.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

namespace lorva {

class BrowserEmptyStateView;
class FontFilesBar;
class FontFilesFooter;
class FontFilesList;
class FontFilesPage;
class LorvaAppModel;

/// What the window of opened files needs besides the model. Any of it may be null.
struct FontFilesServices
{
    std::shared_ptr<const AvailableFonts> availableFonts = nullptr;
    /// For what a face that cannot be read any more is shown in.
    std::shared_ptr<const SystemFontLocator> systemFont = nullptr;
    std::shared_ptr<const OrthographyBook> orthographies = nullptr;
    std::shared_ptr<DesktopOpener> desktop = nullptr;
};

/// A window of its own with just the fonts of files that were opened, whether the library has them
/// or not: specimen, names, styles and characters of one face at a time, and what switches its
/// family on and off.
///
/// Files are read off the main thread, and shown as they come. Closing only hides the window, and
/// lets go of the fonts; while fonts are being switched it waits for the end of that for a while.
/// Escape and Ctrl+W close it. Does not own the model, which must outlive it. Thread: main.
class FontFilesWindow final : public QWidget, private FontInspectorDelegate
{
    Q_OBJECT
public:
    static constexpr QSize kStandardSize{1160, 760};
    static constexpr QSize kSmallestSize{660, 420};
    /// Narrower windows have the inspector over the page, as have those whose footer would not find
    /// room beside it.
    static constexpr int kInspectorWidth = 1000;

    FontFilesWindow(LorvaAppModel &model, FontFilesServices services);
    ~FontFilesWindow() override;

    /// Shows these in place of what was shown. `foreign`: what was asked for besides and is no file
    /// of this computer, by name.
    void open(const std::vector<FilePath> &files, const QStringList &foreign = {});
    /// To the front, with the keyboard.
    void present();

    /// The user wants the library; the family that is shown, if there is one.
    std::function<void(const QString &familyName)> onLibraryWanted;
    /// The user wants to end the program.
    std::function<void()> onQuitWanted;
    /// Something else is to end before this window may, which is the program's last; empty:
    /// nothing.
    std::function<bool()> mustWait;
    /// Font files were dropped here.
    std::function<void(const std::vector<FilePath> &files)> onDropped;

    const FontFilesState &state() const { return m_state; }
    ActivationCommands &activation() { return m_activation; }
    /// What this window waits for before it closes may have ended.
    void closeWhenDone();
    /// Everything that is in sight is there.
    bool isSettled() const;

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectParts();
    void connectFooter();
    void take(FontFilesReader::Part part);
    void choose(size_t row);
    void showRow();
    void showFace(const FontFamilyRecord &family, const FontStyleRecord &style);
    void showMessage(const QString &title, const QString &sentence);
    void chooseStyle(const FontStyleRecord &style);
    const FontFamilyRecord *shownFamily() const;
    void lookAtActivations();
    void applyActivations();
    void applyInspector();
    int listWidth() const;
    bool isNarrow() const;
    bool showsInspector() const;
    void toggleInspector();
    void layOut();
    bool isSwitching() const;
    bool closesNow();
    void stopClosing();
    void clear();
    bool isChosen(const FontFilesRow &row, const FontFilesRow &chosen,
                  const FontFilesState &before) const;
    void inspectorFeaturesChanged(const std::optional<std::vector<FeaturePair>> &enabled) override;
    void inspectorAxesChanged(const std::vector<VariationSetting> &values) override;
    void inspectorFileWanted(const FilePath &file) override;
    void inspectorLinkWanted(const QUrl &link) override;

    LorvaAppModel &m_model;
    const FontFilesServices m_services;
    /// Of these fonts alone.
    FontLibraryService m_library;
    WindowPresenter m_presenter;
    ActivationCommands m_activation;
    FontFilesState m_state;
    std::vector<FontFilesRow> m_rows;
    std::optional<size_t> m_row;
    /// By the user; what else is shown gives way to the first font that comes.
    bool m_isRowChosen = false;
    std::shared_ptr<const GivenFonts> m_given;
    GivenActivations m_known;
    bool m_areActivationsKnown = false;
    /// Grows with every reading.
    int m_edition = 0;
    bool m_isInspectorWanted = true;
    bool m_isInspectorOverPage = false;
    bool m_isClosing = false;
    QTimer m_closePatience;
    QTimer m_messageDelay;

    FontFilesList *m_list;
    FontFilesBar *m_bar;
    FontFilesPage *m_page;
    BrowserEmptyStateView *m_message;
    FontFilesFooter *m_footer;
    FontInspectorViewController *m_inspector;
    RunHandle m_look;
    QThreadPool m_pool;
    /// Uses m_library.
    FontFilesReader m_reader;
};

} // namespace lorva
