// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

namespace lorva::test {

/// Looks for faults in the texts that widgets show while PseudoTranslator is installed, or a
/// language without "…": texts that went past the translation, and texts that are cut or lie over
/// others. Sees what is painted, whoever paints it, and tool tips, titles and what assistive
/// technology reads. Thread: main.
class TextAudit
{
public:
    /// Words that are not the program's: names of fonts, paths.
    QStringList data;
    /// Object names of widgets that may shorten their texts.
    QStringList mayShorten;
    /// Untranslated texts can be told from others.
    bool isPseudo = true;

    /// The faults of `root` and everything visible within it, each as a line that names the widget.
    QStringList faults(QWidget &root) const;

private:
    void lookAt(QWidget &widget, QStringList &found) const;
    void lookAtPainting(QWidget &widget, QStringList &found) const;
    void lookAtProperties(const QWidget &widget, QStringList &found) const;
    bool isShortenedData(const QString &text) const;
    /// The text holds words that are neither data nor translated.
    bool isUntranslated(QString text) const;
};

} // namespace lorva::test
