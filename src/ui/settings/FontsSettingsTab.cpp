// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/settings/FontsSettingsTab.h"

#include "commands/LorvaSettingsViewModel.h"
#include "ui/settings/FolderDrop.h"
#include "ui/settings/IndexingStatus.h"
#include "ui/settings/PopupButton.h"
#include "ui/settings/SettingsLabel.h"
#include "ui/settings/WatchedFolderList.h"
#include "ui/style/IconButton.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace lorva {

namespace {

constexpr int kPadding = spacing::k28;
/// Puts the plus under the symbols of the rows.
constexpr int kButtonsIndent = 6;

/// In the order of the picker.
constexpr std::array<std::optional<InstallMethod>, 3> kMethods{std::nullopt, InstallMethod::copy,
                                                               InstallMethod::registerInPlace};

int placeOf(std::optional<InstallMethod> method)
{
    return int(std::ranges::find(kMethods, method) - kMethods.begin());
}

WatchedFolderRow rowOf(const WatchedFolder &folder, const LorvaSettingsViewModel &viewModel)
{
    WatchedFolderRow row{folder.id, folderText(folderURL(folder)), std::nullopt, 0};
    if (const auto look = viewModel.look(folder.id)) {
        row.isThere = look->isThere;
        row.fonts = look->fonts;
    }
    return row;
}

} // namespace

FontsSettingsTab::FontsSettingsTab(LorvaSettingsViewModel &viewModel, QWidget *parent)
    : QWidget(parent)
    , m_viewModel(viewModel)
    , m_list(new WatchedFolderList(this))
    , m_add(new IconButton(QStringLiteral("plus"), tr("Watch Folder"), this))
    , m_remove(new IconButton(QStringLiteral("minus"), tr("Remove Folder"), this))
    , m_status(new IndexingStatus(this))
    , m_picker(new PopupButton(
          tr("When activating fonts:"),
          {tr("Ask every time"), tr("Always copy to Fonts folder"), tr("Always register in place")},
          this))
    , m_drop(new FolderDrop(*this))
{
    m_add->setObjectName(QStringLiteral("Settings.AddFolder"));
    m_remove->setObjectName(QStringLiteral("Settings.RemoveFolder"));
    m_picker->setObjectName(QStringLiteral("Settings.MethodPicker"));
    buildLayout();
    connectParts();
    takeColors();
    render();
}

void FontsSettingsTab::buildLayout()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    layout->setSpacing(0);
    const auto addText = [&](const QString &text, SettingsLabel::Kind kind) {
        layout->addWidget(new SettingsLabel(text, kind, this));
    };
    addText(tr("Watched Folders"), SettingsLabel::Kind::heading);
    layout->addSpacing(spacing::k4);
    addText(tr("Lorva scans these folders for font files and includes them in your library without "
               "installing them on your Mac."),
            SettingsLabel::Kind::secondary);
    layout->addSpacing(spacing::k12);
    layout->addWidget(m_list, 1);
    layout->addSpacing(spacing::k4);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    buttons->addSpacing(kButtonsIndent);
    buttons->addWidget(m_add);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    layout->addLayout(buttons);
    layout->addSpacing(spacing::k8);
    layout->addWidget(m_status);
    layout->addSpacing(spacing::k16);
    addText(tr("Activating Fonts"), SettingsLabel::Kind::heading);
    layout->addSpacing(spacing::k12);
    auto *picker = new QHBoxLayout;
    picker->setSpacing(spacing::k12);
    picker->addWidget(
        new SettingsLabel(tr("When activating fonts:"), SettingsLabel::Kind::body, this));
    picker->addWidget(m_picker);
    picker->addStretch();
    layout->addLayout(picker);
    layout->addSpacing(spacing::k12);
    addText(tr("Copying duplicates font files into your user Fonts folder. Registering activates "
               "fonts from their current location, but they deactivate if the source moves."),
            SettingsLabel::Kind::secondary);
}

void FontsSettingsTab::connectParts()
{
    connect(&m_viewModel, &LorvaSettingsViewModel::changed, this, &FontsSettingsTab::render);
    connect(&m_viewModel, &LorvaSettingsViewModel::refused, m_status, &IndexingStatus::setProblem);
    connect(m_add, &QAbstractButton::clicked, this, &FontsSettingsTab::askForFolders);
    connect(m_remove, &QAbstractButton::clicked, this, &FontsSettingsTab::removeSelected);
    connect(m_list, &WatchedFolderList::removalWanted, this, &FontsSettingsTab::removeSelected);
    connect(m_list, &WatchedFolderList::selectionChanged, this, &FontsSettingsTab::render);
    connect(m_status, &IndexingStatus::cancelWanted, &m_viewModel,
            &LorvaSettingsViewModel::cancelIndexing);
    connect(m_status, &IndexingStatus::dismissWanted, &m_viewModel,
            &LorvaSettingsViewModel::dismissCompletion);
    connect(m_picker, &PopupButton::chosen, this,
            [this](int index) { m_viewModel.setDefaultInstallMethod(kMethods[size_t(index)]); });
    connect(m_drop, &FolderDrop::hovered, m_list, &WatchedFolderList::setDropTarget);
    connect(m_drop, &FolderDrop::dropped, this, &FontsSettingsTab::add);
}

std::optional<QString> FontsSettingsTab::selectedID() const
{
    return m_list->selectedID();
}

void FontsSettingsTab::setSelectedID(const std::optional<QString> &id)
{
    m_list->setSelectedID(id);
}

void FontsSettingsTab::render()
{
    std::vector<WatchedFolderRow> rows;
    for (const WatchedFolder &folder : m_viewModel.folders())
        rows.push_back(rowOf(folder, m_viewModel));
    m_list->setRows(rows);
    m_add->setEnabled(m_viewModel.canAddFolders());
    m_remove->setEnabled(selectedID().has_value());
    m_drop->setEnabled(m_viewModel.canAddFolders());
    m_picker->setCurrentIndex(placeOf(m_viewModel.defaultInstallMethod()));
    renderStatus();
}

void FontsSettingsTab::renderStatus()
{
    if (m_viewModel.isIndexing())
        m_status->showIndexing(m_viewModel.indexingMessage());
    else if (m_viewModel.completionMessage())
        m_status->showCompletion(*m_viewModel.completionMessage());
    else
        m_status->showNothing();
}

void FontsSettingsTab::askForFolders()
{
    if (!onFoldersWanted || !m_viewModel.canAddFolders())
        return;
    onFoldersWanted(watchFoldersQuestion(),
                    [self = QPointer(this)](const std::vector<FilePath> &folders) {
                        if (self)
                            self->add(folders);
                    });
}

void FontsSettingsTab::add(const std::vector<FilePath> &folders)
{
    if (folders.empty())
        return;
    m_status->setProblem({});
    m_viewModel.addFolders(folders);
}

void FontsSettingsTab::removeSelected()
{
    const std::optional<QString> id = selectedID();
    if (!id)
        return;
    m_status->setProblem({});
    m_viewModel.removeFolder(*id);
}

void FontsSettingsTab::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColors();
}

void FontsSettingsTab::takeColors()
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    for (IconButton *button : {m_add, m_remove})
        button->setColors(neutral.text, neutral.ground);
}

} // namespace lorva
