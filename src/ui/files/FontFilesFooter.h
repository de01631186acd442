// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/GivenFonts.h"

#include <QWidget>

namespace lorva {

class TextButton;

/// What can be done with the fonts of opened files, and whether they are active.
struct FontFilesOffer
{
    enum class Main { none, activate, activateRemaining, deactivate };

    /// A few words; empty while nothing is known.
    QString status;
    /// About the family that is shown.
    Main main = Main::none;
    /// Several families can be activated.
    bool offersAll = false;
    /// Some files failed, and why can be told.
    bool hasFailures = false;
    /// The library has the family that is shown, or may.
    bool offersLibrary = false;

    bool operator==(const FontFilesOffer &) const = default;
};

/// Empty offers while `known` tells nothing of the family.
FontFilesOffer fontFilesOffer(const std::vector<FontFamilyRecord> &families,
                              const FontFamilyRecord *shown, const GivenActivations &known);

/// The bar below the page of an opened font file. Follows the desktop's colours. Thread: main.
class FontFilesFooter final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kHeight = 52;

    explicit FontFilesFooter(QWidget *parent = nullptr);

    void apply(const FontFilesOffer &offer);
    const FontFilesOffer &offer() const { return m_offer; }
    int leastWidth() const;

Q_SIGNALS:
    // By the user.
    void activationWanted();
    void remainingActivationWanted();
    void deactivationWanted();
    void activationOfAllWanted();
    void failuresWanted();
    void libraryWanted();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    TextButton *makeButton(const QString &text, const char *name, bool isProminent,
                           void (FontFilesFooter::*wanted)());
    std::vector<TextButton *> shownButtons() const;
    void layOut();

    FontFilesOffer m_offer;
    TextButton *m_failures;
    TextButton *m_library;
    TextButton *m_all;
    TextButton *m_deactivate;
    TextButton *m_remaining;
    TextButton *m_activate;
    QRect m_statusRect;
};

} // namespace lorva
