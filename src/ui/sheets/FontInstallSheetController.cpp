// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/FontInstallSheetController.h"

#include "ui/sheets/SheetCheckBox.h"
#include "ui/sheets/SheetFooter.h"
#include "ui/sheets/SheetOption.h"
#include "ui/style/TextButton.h"

namespace lorva {

FontInstallSheetController::FontInstallSheetController(QWidget &window,
                                                       InstallMethodQuestion question)
    : Sheet(window, QStringLiteral("InstallSheet"), QAccessible::Dialog)
    , m_question(std::move(question))
{
    const QString explanation = tr("Choose how to activate this font family in macOS. Both methods "
                                   "make it available in every app on your Mac.");
    const QString note = coResidentNote().value_or(QString());
    addHeading(familyName());
    addBody(explanation);
    addNote(note);
    panel().setAccessibleDescription(note.isEmpty() ? explanation
                                                    : QString(explanation + u'\n' + note));
    addOptions();
    addFooter();
}

void FontInstallSheetController::addOptions()
{
    auto *copy =
        //: A way to activate fonts.
        new SheetOption(QStringLiteral("text.pad.header.badge.plus"), tr("Copy to Fonts Folder"),
                        tr("Copies the font files into your user Fonts folder. Works even "
                           "if the originals move or go offline."));
    //: A way to activate fonts: their files stay where they are.
    auto *registers = new SheetOption(QStringLiteral("link.circle.fill"), tr("Register in Place"),
                                      tr("Activates the font from its current location, but "
                                         "deactivates if the source moves."));
    panel().add(addOption(QStringLiteral("Copy"), copy, InstallMethod::copy), spacing::k16);
    panel().add(addOption(QStringLiteral("Register"), registers, InstallMethod::registerInPlace),
                spacing::k12);
    setFirstFocus(copy);
}

SheetOption *FontInstallSheetController::addOption(const QString &name, SheetOption *option,
                                                   InstallMethod method)
{
    option->setObjectName(partName(QLatin1String()) + name);
    connect(option, &QAbstractButton::clicked, this, [this, method] { choose(method); });
    addStop(option);
    return option;
}

void FontInstallSheetController::addFooter()
{
    m_rememberCheckbox = new SheetCheckBox(tr("Remember this choice (change later in Settings)"));
    m_rememberCheckbox->setObjectName(partName(QLatin1String("Remember")));
    panel().footer().setLead(m_rememberCheckbox);
    addStop(m_rememberCheckbox);
    auto *cancelButton = new TextButton(tr("Cancel"));
    cancelButton->setObjectName(partName(QLatin1String("Cancel")));
    cancelButton->setAutoDefault(true);
    connect(cancelButton, &QPushButton::clicked, this, [this] { cancel(); });
    addButton(cancelButton);
}

void FontInstallSheetController::choose(std::optional<InstallMethod> method)
{
    if (isDismissed())
        return;
    const auto chosen = onChoose;
    const bool remember = m_rememberCheckbox->isChecked();
    dismiss();
    if (chosen)
        chosen(method, remember);
}

} // namespace lorva
