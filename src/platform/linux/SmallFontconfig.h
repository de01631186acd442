// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lorva {

/// Lets fonts for what the interface's own lack be chosen for texts in `language`, a name such as
/// "zh_TW": Chinese, Japanese and Korean write the same characters in different forms, and the
/// session's locale may ask for another of them than the texts are in. What the user says by
/// FC_LANG goes first. To be called before any other thread is started and before anything asks
/// fontconfig. Thread: main.
void useFontsForLanguage(const QString &language);

/// Lets this process's toolkit see only the fonts that an interface needs: the interface and
/// fixed-width families in their usual weights, and one fallback font per writing system that the
/// machine can show.
///
/// The toolkit reads every font that fontconfig's current configuration lists before it shows the
/// first label, which with thousands of fonts takes longer than all the rest of a start. The rules
/// of the system's configuration (aliases, rendering choices) stay in force. Configurations loaded
/// apart, as a scan does, are not touched. Call once, before the application object exists. Thread:
/// main. Where anything fails the configuration stays as it is.
void useSmallFontconfigForInterface();

} // namespace lorva
