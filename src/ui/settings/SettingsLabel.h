// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace lorva {

/// A text of the settings, in the neutral colours of the desktop, which it follows. Wraps.
/// Thread: main.
class SettingsLabel final : public QLabel
{
    Q_OBJECT
public:
    enum class Kind {
        /// Over a section.
        heading,
        /// Before a control.
        body,
        /// The first line of a message.
        strong,
        /// What explains, and what passes.
        secondary,
    };

    SettingsLabel(const QString &text, Kind kind, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void takeColors();

    const Kind m_kind;
};

} // namespace lorva
