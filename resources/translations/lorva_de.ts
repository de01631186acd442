<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActivationTexts</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences, one after the other.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>De-activate %1?</source>
        <translation>%1 deaktivieren?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>Deaktivieren</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen&#xa0;…</translation>
    </message>
    <message>
        <source>The reason is not known.</source>
        <translation>Der Grund ist nicht bekannt.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A reason becomes a sentence of its own.</extracomment>
        <translation>%1.</translation>
    </message>
    <message numerus="yes">
        <source>%n Fonts</source>
        <translation>
            <numerusform>%n Schrift</numerusform>
            <numerusform>%n Schriften</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n fonts</source>
        <translation>
            <numerusform>%n Schrift</numerusform>
            <numerusform>%n Schriften</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>Two names.</extracomment>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the names of a list.</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1, and %2</source>
        <extracomment>The names of a list, and the last of them.</extracomment>
        <translation>%1 und %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more families</source>
        <extracomment>Families that a list of names does not name.</extracomment>
        <translation>
            <numerusform>%n weitere Familie</numerusform>
            <numerusform>%n weitere Familien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This font&apos;s file also contains %1. Activating makes them available too.</source>
        <extracomment>%1 is a list of so many names.</extracomment>
        <translation>
            <numerusform>Die Datei dieser Schrift enthält auch %1. Sie wird beim Aktivieren ebenfalls verfügbar.</numerusform>
            <numerusform>Die Datei dieser Schrift enthält auch %1. Sie werden beim Aktivieren ebenfalls verfügbar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>These fonts&apos; files also contain %1. Activating makes them available too.</source>
        <translation>
            <numerusform>Die Dateien dieser Schriften enthalten auch %1. Sie wird beim Aktivieren ebenfalls verfügbar.</numerusform>
            <numerusform>Die Dateien dieser Schriften enthalten auch %1. Sie werden beim Aktivieren ebenfalls verfügbar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This font&apos;s file also contains %1. De-activating removes all of them.</source>
        <extracomment>%1 is a list of so many names.</extracomment>
        <translation>
            <numerusform>Die Datei dieser Schrift enthält auch %1. Deaktivieren entfernt alles zusammen.</numerusform>
            <numerusform>Die Datei dieser Schrift enthält auch %1. Deaktivieren entfernt alles zusammen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>These fonts&apos; files also contain %1. De-activating removes all of them.</source>
        <translation>
            <numerusform>Die Dateien dieser Schriften enthalten auch %1. Deaktivieren entfernt alles zusammen.</numerusform>
            <numerusform>Die Dateien dieser Schriften enthalten auch %1. Deaktivieren entfernt alles zusammen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to activate</source>
        <translation>Nichts zu aktivieren</translation>
    </message>
    <message>
        <source>Every user-controllable font in %1 is already active.</source>
        <translation>Alle Schriften in %1, die sich schalten lassen, sind bereits aktiv.</translation>
    </message>
    <message>
        <source>Every selected font is already active.</source>
        <translation>Alle ausgewählten Schriften sind bereits aktiv.</translation>
    </message>
    <message>
        <source>Nothing to de-activate</source>
        <translation>Nichts zu deaktivieren</translation>
    </message>
    <message>
        <source>No user-controllable active fonts in %1.</source>
        <translation>In %1 ist keine Schrift aktiv, die sich ausschalten lässt.</translation>
    </message>
    <message>
        <source>No user-controllable active fonts in the selection.</source>
        <translation>In der Auswahl ist keine Schrift aktiv, die sich ausschalten lässt.</translation>
    </message>
    <message numerus="yes">
        <source>%n files failed to activate.</source>
        <translation>
            <numerusform>%n Datei konnte nicht aktiviert werden.</numerusform>
            <numerusform>%n Dateien konnten nicht aktiviert werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Activation of %1 stopped</source>
        <translation>Aktivierung von %1 abgebrochen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are available in every app on your Mac.</source>
        <translation>
            <numerusform>%1 von %2 Datei ist in allen Programmen auf diesem Computer verfügbar.</numerusform>
            <numerusform>%1 von %2 Dateien sind in allen Programmen auf diesem Computer verfügbar.</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully activate %1</source>
        <translation>%1 nicht vollständig aktiviert</translation>
    </message>
    <message>
        <source>%1 installed</source>
        <translation>%1 installiert</translation>
    </message>
    <message>
        <source>Now available in every app on your Mac.</source>
        <translation>Jetzt in allen Programmen auf diesem Computer verfügbar.</translation>
    </message>
    <message numerus="yes">
        <source>%n files failed to de-activate.</source>
        <translation>
            <numerusform>%n Datei konnte nicht deaktiviert werden.</numerusform>
            <numerusform>%n Dateien konnten nicht deaktiviert werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activation of %1 stopped</source>
        <translation>Deaktivierung von %1 abgebrochen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are no longer available system-wide.</source>
        <translation>
            <numerusform>%1 von %2 Datei ist nicht mehr systemweit verfügbar.</numerusform>
            <numerusform>%1 von %2 Dateien sind nicht mehr systemweit verfügbar.</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully de-activate %1</source>
        <translation>%1 nicht vollständig deaktiviert</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>No longer available system-wide.</source>
        <translation>Nicht mehr systemweit verfügbar.</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be brought back.</source>
        <translation>
            <numerusform>%n Datei konnte nicht wiederhergestellt werden.</numerusform>
            <numerusform>%n Dateien konnten nicht wiederhergestellt werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are back.</source>
        <translation>
            <numerusform>%1 von %2 Datei ist wiederhergestellt.</numerusform>
            <numerusform>%1 von %2 Dateien sind wiederhergestellt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t fully bring back %1</source>
        <translation>%1 nicht vollständig wiederhergestellt</translation>
    </message>
    <message>
        <source>The font will no longer be available system-wide. Your original font files are not touched.</source>
        <translation>Die Schrift ist dann nicht mehr systemweit verfügbar. Ihre Originaldateien bleiben unberührt.</translation>
    </message>
    <message>
        <source>The fonts will no longer be available system-wide. Your original font files are not touched.</source>
        <translation>Die Schriften sind dann nicht mehr systemweit verfügbar. Ihre Originaldateien bleiben unberührt.</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install %1, so we don&apos;t know where the original font files are. Choose a folder to move them to, otherwise you&apos;d lose your only copy.</source>
        <translation>Lorva hat %1 nicht installiert und weiß daher nicht, wo die Originaldateien liegen. Wählen Sie einen Ordner, in den sie verschoben werden; sonst ginge Ihre einzige Kopie verloren.</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install some of these fonts, so we don&apos;t know where the originals are. Choose a folder to move them to, otherwise you&apos;d lose your only copy.</source>
        <translation>Lorva hat einige dieser Schriften nicht installiert und weiß daher nicht, wo die Originale liegen. Wählen Sie einen Ordner, in den sie verschoben werden; sonst ginge Ihre einzige Kopie verloren.</translation>
    </message>
    <message>
        <source>The style will no longer be available system-wide.</source>
        <translation>Der Schnitt ist dann nicht mehr systemweit verfügbar.</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install %1, so we don&apos;t know where the original font file is. Choose a folder to move it to, otherwise you&apos;d lose your only copy.</source>
        <translation>Lorva hat %1 nicht installiert und weiß daher nicht, wo die Originaldatei liegt. Wählen Sie einen Ordner, in den sie verschoben wird; sonst ginge Ihre einzige Kopie verloren.</translation>
    </message>
    <message>
        <source>Choose a folder for the font files that are de-activated.</source>
        <translation>Ordner für die deaktivierten Schriftdateien wählen.</translation>
    </message>
    <message>
        <source>Move Here</source>
        <translation>Hierher verschieben</translation>
    </message>
    <message>
        <source>Activating %1…</source>
        <translation>Aktivierung von %1&#xa0;…</translation>
    </message>
    <message numerus="yes">
        <source>Activating %1… %2 of %3 files</source>
        <translation>
            <numerusform>Aktivierung von %1&#xa0;… %2 von %3 Datei</numerusform>
            <numerusform>Aktivierung von %1&#xa0;… %2 von %3 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activating %1…</source>
        <translation>Deaktivierung von %1&#xa0;…</translation>
    </message>
    <message numerus="yes">
        <source>De-activating %1… %2 of %3 files</source>
        <translation>
            <numerusform>Deaktivierung von %1&#xa0;… %2 von %3 Datei</numerusform>
            <numerusform>Deaktivierung von %1&#xa0;… %2 von %3 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Bringing back %1…</source>
        <translation>Wiederherstellung von %1&#xa0;…</translation>
    </message>
    <message numerus="yes">
        <source>Bringing back %1… %2 of %3 files</source>
        <translation>
            <numerusform>Wiederherstellung von %1&#xa0;… %2 von %3 Datei</numerusform>
            <numerusform>Wiederherstellung von %1&#xa0;… %2 von %3 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t read the activation history</source>
        <translation>Aktivierungsverlauf nicht lesbar</translation>
    </message>
    <message>
        <source>Couldn&apos;t save the list</source>
        <translation>Liste nicht gespeichert</translation>
    </message>
    <message>
        <source>Files That Failed</source>
        <translation>Fehlgeschlagene Dateien</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be switched on or off.</source>
        <translation>
            <numerusform>%n Datei konnte nicht ein- oder ausgeschaltet werden.</numerusform>
            <numerusform>%n Dateien konnten nicht ein- oder ausgeschaltet werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>No file has failed.</source>
        <translation>Keine Datei ist fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>AtomicFile</name>
    <message>
        <source>cannot write %1: not a regular file</source>
        <translation>%1 kann nicht geschrieben werden: keine reguläre Datei</translation>
    </message>
</context>
<context>
    <name>BackgroundImagePanel</name>
    <message>
        <source>White Text</source>
        <translation>Weißer Text</translation>
    </message>
    <message>
        <source>Black Text</source>
        <translation>Schwarzer Text</translation>
    </message>
    <message>
        <source>Custom Text Color</source>
        <translation>Eigene Textfarbe</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Your Image</source>
        <translation>Ihr Bild</translation>
    </message>
    <message>
        <source>Add Image…</source>
        <translation>Bild hinzufügen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>BackgroundImageStore</name>
    <message>
        <source>The image is not there</source>
        <translation>Das Bild ist nicht da</translation>
    </message>
    <message>
        <source>The file is too large for a background</source>
        <translation>Die Datei ist zu groß für einen Hintergrund</translation>
    </message>
</context>
<context>
    <name>BackgroundImages</name>
    <message>
        <source>Dusk</source>
        <extracomment>Background images, named by what they remind of.</extracomment>
        <translation>Dämmerung</translation>
    </message>
    <message>
        <source>Dawn</source>
        <translation>Morgenröte</translation>
    </message>
    <message>
        <source>Ember</source>
        <translation>Glut</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Lagoon</source>
        <translation>Lagune</translation>
    </message>
    <message>
        <source>Fern</source>
        <translation>Farn</translation>
    </message>
    <message>
        <source>Blueprint</source>
        <translation>Blaupause</translation>
    </message>
    <message>
        <source>Terrazzo</source>
        <translation>Terrazzo</translation>
    </message>
    <message>
        <source>Ink Wash</source>
        <translation>Tuschelavur</translation>
    </message>
    <message>
        <source>Plum</source>
        <translation>Pflaume</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Polarlicht</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>Graphit</translation>
    </message>
</context>
<context>
    <name>BrowserActions</name>
    <message>
        <source>There is no place to keep images</source>
        <translation>Es gibt keinen Ort, um Bilder abzulegen</translation>
    </message>
</context>
<context>
    <name>CardMenu</name>
    <message numerus="yes">
        <source>Activate %n Fonts…</source>
        <translation>
            <numerusform>%n Schrift aktivieren&#xa0;…</numerusform>
            <numerusform>%n Schriften aktivieren&#xa0;…</numerusform>
        </translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>Deaktivieren</translation>
    </message>
    <message numerus="yes">
        <source>De-activate %n Fonts</source>
        <translation>
            <numerusform>%n Schrift deaktivieren</numerusform>
            <numerusform>%n Schriften deaktivieren</numerusform>
        </translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>Aktivieren&#xa0;…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>Übrige Schnitte aktivieren&#xa0;…</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The style category of a family: Serif, Script and so on.</extracomment>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Sammlungen</translation>
    </message>
    <message>
        <source>Foundry</source>
        <translation>Gießerei</translation>
    </message>
    <message>
        <source>None</source>
        <comment>style</comment>
        <extracomment>The family has no style category.</extracomment>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>None</source>
        <comment>foundry</comment>
        <extracomment>The family has no foundry.</extracomment>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>CharacterBlocks</name>
    <message>
        <source>Latin</source>
        <translation>Lateinisch</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Ziffern</translation>
    </message>
    <message>
        <source>Punctuation &amp; Symbols</source>
        <translation>Satzzeichen &amp; Symbole</translation>
    </message>
    <message>
        <source>Kana</source>
        <translation>Kana</translation>
    </message>
    <message>
        <source>Hangul</source>
        <translation>Hangul</translation>
    </message>
    <message>
        <source>Han</source>
        <extracomment>The Chinese characters.</extracomment>
        <translation>Han</translation>
    </message>
    <message>
        <source>Other</source>
        <extracomment>Other characters.</extracomment>
        <translation>Andere</translation>
    </message>
</context>
<context>
    <name>CharacterCells</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A character, and its name.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>No character leads to this glyph.</source>
        <translation>Kein Zeichen führt zu dieser Glyphe.</translation>
    </message>
</context>
<context>
    <name>CharacterNames</name>
    <message>
        <source>Uppercase letter</source>
        <extracomment>The general category that Unicode gives a character.</extracomment>
        <translation>Großbuchstabe</translation>
    </message>
    <message>
        <source>Lowercase letter</source>
        <translation>Kleinbuchstabe</translation>
    </message>
    <message>
        <source>Titlecase letter</source>
        <translation>Titelbuchstabe</translation>
    </message>
    <message>
        <source>Modifier letter</source>
        <translation>Modifizierbuchstabe</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Buchstabe</translation>
    </message>
    <message>
        <source>Mathematical symbol</source>
        <translation>Mathematisches Symbol</translation>
    </message>
    <message>
        <source>Currency symbol</source>
        <translation>Währungssymbol</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Combining mark</source>
        <translation>Kombinierendes Zeichen</translation>
    </message>
    <message>
        <source>Digit</source>
        <translation>Ziffer</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>Satzzeichen</translation>
    </message>
    <message>
        <source>Space</source>
        <extracomment>A kind of character, not the key.</extracomment>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>Private use</source>
        <extracomment>A kind of character.</extracomment>
        <translation>Private Nutzung</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
</context>
<context>
    <name>CharacterPopoverViewController</name>
    <message>
        <source>Copy %1: %2</source>
        <translation>%1 kopieren: %2</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>ColorPanel</name>
    <message>
        <source>Ultramarine</source>
        <extracomment>Pairs of colors, named by the more striking one.</extracomment>
        <translation>Ultramarin</translation>
    </message>
    <message>
        <source>Vermilion</source>
        <translation>Zinnober</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Wald</translation>
    </message>
    <message>
        <source>Aubergine</source>
        <translation>Aubergine</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Lemon</source>
        <translation>Zitrone</translation>
    </message>
    <message>
        <source>Blush</source>
        <translation>Rosé</translation>
    </message>
    <message>
        <source>Sky</source>
        <translation>Himmel</translation>
    </message>
    <message>
        <source>Swap Text and Background</source>
        <translation>Text und Hintergrund tauschen</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>The color of the letters is edited.</extracomment>
        <translation>Text</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The color of the background is edited.</extracomment>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Low contrast %1:1</source>
        <extracomment>A ratio of brightness such as 4.5:1.</extracomment>
        <translation>Geringer Kontrast %1:1</translation>
    </message>
    <message>
        <source>Contrast %1:1</source>
        <translation>Kontrast %1:1</translation>
    </message>
</context>
<context>
    <name>ComparisonView</name>
    <message>
        <source>%1 — not available</source>
        <translation>%1 – nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>%1: took too long to read and was given up</source>
        <translation>%1: Lesen dauerte zu lange und wurde abgebrochen</translation>
    </message>
    <message>
        <source>%1: took too much time or memory to read and was given up</source>
        <translation>%1: Lesen brauchte zu viel Zeit oder Speicher und wurde abgebrochen</translation>
    </message>
    <message>
        <source>%1: was given up: reading it led to what reading never needs</source>
        <translation>%1: Lesen wurde abgebrochen: Es führte zu etwas, was dafür nie nötig ist</translation>
    </message>
    <message>
        <source>%1: takes more memory than it may have</source>
        <translation>%1: braucht mehr Speicher als erlaubt</translation>
    </message>
    <message>
        <source>%1: is damaged; reading it failed</source>
        <translation>%1: ist beschädigt; Lesen fehlgeschlagen</translation>
    </message>
    <message>
        <source>no new process can be started: %1</source>
        <translation>kein neuer Prozess kann gestartet werden: %1</translation>
    </message>
    <message>
        <source>%1: reading it needed something that fonts never need, so it was stopped</source>
        <translation>%1: das Lesen verlangte etwas, was Schriften nie brauchen, und wurde abgebrochen</translation>
    </message>
    <message>
        <source>%1: its picture is too large</source>
        <translation>%1: das Bild davon ist zu groß</translation>
    </message>
</context>
<context>
    <name>DesktopTrash</name>
    <message>
        <source>cannot move %1 to the Trash: its volume has none</source>
        <translation>%1 kann nicht in den Papierkorb verschoben werden: das Laufwerk hat keinen</translation>
    </message>
    <message>
        <source>cannot take %1 from the Trash: the name is taken</source>
        <translation>%1 kann nicht aus dem Papierkorb geholt werden: der Name ist vergeben</translation>
    </message>
</context>
<context>
    <name>DetailMenu</name>
    <message>
        <source>Export…</source>
        <translation>Exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>Copy as CSS</source>
        <translation>Als CSS kopieren</translation>
    </message>
</context>
<context>
    <name>DiscoverFoundry</name>
    <message>
        <source>Independent Swiss type foundry offering original retail and custom typefaces with a contemporary aesthetic in the Swiss tradition.</source>
        <translation>Unabhängige Schweizer Schriftgießerei mit eigenen Retail- und Auftragsschriften von zeitgenössischer Ästhetik in Schweizer Tradition.</translation>
    </message>
    <message>
        <source>Type foundry of Kris Sowersby in Wellington, New Zealand.</source>
        <translation>Schriftgießerei von Kris Sowersby in Wellington, Neuseeland.</translation>
    </message>
    <message>
        <source>Montréal-based type foundry offering free-to-try retail typefaces.</source>
        <translation>Schriftgießerei aus Montréal mit Retail-Schriften, die sich kostenlos testen lassen.</translation>
    </message>
    <message>
        <source>Berlin-based type design studio offering retail and bespoke typefaces, design software, research, and consultancy.</source>
        <translation>Berliner Studio für Schriftgestaltung mit Retail- und Auftragsschriften, Gestaltungssoftware, Forschung und Beratung.</translation>
    </message>
    <message>
        <source>Indonesian type foundry offering contemporary display and text families.</source>
        <translation>Indonesische Schriftgießerei mit zeitgenössischen Display- und Textfamilien.</translation>
    </message>
    <message>
        <source>Type foundry from Gijón, Spain, offering typefaces with pay-what-you-want options.</source>
        <translation>Schriftgießerei aus Gijón, Spanien, deren Schriften teils zum frei gewählten Preis zu haben sind.</translation>
    </message>
    <message>
        <source>Prague-based type foundry offering large variable families.</source>
        <translation>Prager Schriftgießerei mit großen variablen Familien.</translation>
    </message>
    <message>
        <source>Californian type foundry of James Edmondson, offering expressive display typefaces.</source>
        <translation>Kalifornische Schriftgießerei von James Edmondson mit ausdrucksstarken Displayschriften.</translation>
    </message>
    <message>
        <source>Stockholm-based type foundry of Göran Söderström.</source>
        <translation>Stockholmer Schriftgießerei von Göran Söderström.</translation>
    </message>
    <message>
        <source>Type foundry from Geneva, Switzerland.</source>
        <translation>Schriftgießerei aus Genf, Schweiz.</translation>
    </message>
    <message>
        <source>Type foundry offering typefaces for text and interfaces.</source>
        <translation>Schriftgießerei mit Schriften für Text und Oberflächen.</translation>
    </message>
    <message>
        <source>Swiss type foundry offering typefaces and design books.</source>
        <translation>Schweizer Schriftgießerei mit Schriften und Designbüchern.</translation>
    </message>
    <message>
        <source>Type foundry of Mattox Shuler, offering display families and workhorses.</source>
        <translation>Schriftgießerei von Mattox Shuler mit Displayfamilien und Arbeitspferden.</translation>
    </message>
    <message>
        <source>Californian type foundry of Amy and Jen Hood.</source>
        <translation>Kalifornische Schriftgießerei von Amy und Jen Hood.</translation>
    </message>
    <message>
        <source>Type foundry with a small catalogue of contemporary typefaces.</source>
        <translation>Schriftgießerei mit einem kleinen Katalog zeitgenössischer Schriften.</translation>
    </message>
    <message>
        <source>Type foundry of the lettering artist Erik Marinovich.</source>
        <translation>Schriftgießerei des Lettering-Künstlers Erik Marinovich.</translation>
    </message>
    <message>
        <source>Type foundry of Dino dos Santos in Porto, Portugal.</source>
        <translation>Schriftgießerei von Dino dos Santos in Porto, Portugal.</translation>
    </message>
    <message>
        <source>The first open-source type foundry, launched in 2009, providing a curated collection of professional-quality free fonts like League Gothic and League Spartan.</source>
        <translation>Die erste Open-Source-Schriftgießerei, gegründet 2009, mit einer kuratierten Sammlung freier Schriften in Profiqualität wie League Gothic und League Spartan.</translation>
    </message>
</context>
<context>
    <name>FaceInformation</name>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Unique identifier</source>
        <translation>Eindeutige Kennung</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Vollständiger Name</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>PostScript name</source>
        <translation>PostScript-Name</translation>
    </message>
    <message>
        <source>Trademark</source>
        <translation>Marke</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>Designer</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Manufacturer’s address</source>
        <translation>Adresse des Herstellers</translation>
    </message>
    <message>
        <source>Designer’s address</source>
        <translation>Adresse des Designers</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Licence address</source>
        <translation>Lizenzadresse</translation>
    </message>
    <message>
        <source>Typographic family</source>
        <translation>Typografische Familie</translation>
    </message>
    <message>
        <source>Typographic style</source>
        <translation>Typografischer Schnitt</translation>
    </message>
    <message>
        <source>Compatible full name</source>
        <translation>Kompatibler vollständiger Name</translation>
    </message>
    <message>
        <source>Sample text</source>
        <translation>Mustertext</translation>
    </message>
    <message>
        <source>PostScript CID name</source>
        <translation>PostScript-CID-Name</translation>
    </message>
    <message>
        <source>WWS family</source>
        <translation>WWS-Familie</translation>
    </message>
    <message>
        <source>WWS style</source>
        <translation>WWS-Schnitt</translation>
    </message>
    <message>
        <source>Palette for light backgrounds</source>
        <translation>Palette für helle Hintergründe</translation>
    </message>
    <message>
        <source>Palette for dark backgrounds</source>
        <translation>Palette für dunkle Hintergründe</translation>
    </message>
    <message>
        <source>Variations PostScript name prefix</source>
        <translation>Präfix der PostScript-Namen von Variationen</translation>
    </message>
    <message>
        <source>Installable</source>
        <translation>Installierbar</translation>
    </message>
    <message>
        <source>Restricted: not without the owner’s permission</source>
        <translation>Eingeschränkt: nur mit Erlaubnis des Rechteinhabers</translation>
    </message>
    <message>
        <source>Preview and print</source>
        <translation>Vorschau und Druck</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>Bearbeitbar</translation>
    </message>
    <message>
        <source>%1, bitmaps only</source>
        <extracomment>%1 is what a licence lets documents do with the font that they embed, such as &quot;Editable&quot;.</extracomment>
        <translation>%1, nur Bitmaps</translation>
    </message>
    <message>
        <source>%1, no subsetting, bitmaps only</source>
        <translation>%1, keine Untergruppen, nur Bitmaps</translation>
    </message>
    <message>
        <source>%1, no subsetting</source>
        <translation>%1, keine Untergruppen</translation>
    </message>
</context>
<context>
    <name>FeatureRegistry</name>
    <message>
        <source>All Typographic Features</source>
        <translation>Alle typografischen Funktionen</translation>
    </message>
    <message>
        <source>Ligatures</source>
        <translation>Ligaturen</translation>
    </message>
    <message>
        <source>Cursive Connection</source>
        <translation>Buchstabenverbindung</translation>
    </message>
    <message>
        <source>Letter Case</source>
        <translation>Groß- und Kleinschreibung</translation>
    </message>
    <message>
        <source>Vertical Substitution</source>
        <translation>Vertikale Ersetzung</translation>
    </message>
    <message>
        <source>Linguistic Rearrangement</source>
        <translation>Sprachliche Umordnung</translation>
    </message>
    <message>
        <source>Number Spacing</source>
        <translation>Ziffernbreite</translation>
    </message>
    <message>
        <source>Smart Swashes</source>
        <translation>Intelligente Schwungformen</translation>
    </message>
    <message>
        <source>Diacritics</source>
        <translation>Diakritische Zeichen</translation>
    </message>
    <message>
        <source>Vertical Position</source>
        <translation>Vertikale Position</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>Brüche</translation>
    </message>
    <message>
        <source>Overlapping Characters</source>
        <translation>Überlappende Zeichen</translation>
    </message>
    <message>
        <source>Typographic Extras</source>
        <translation>Typografische Extras</translation>
    </message>
    <message>
        <source>Mathematical Extras</source>
        <translation>Mathematische Extras</translation>
    </message>
    <message>
        <source>Ornament Sets</source>
        <translation>Ornamentsätze</translation>
    </message>
    <message>
        <source>Character Alternatives</source>
        <translation>Zeichenalternativen</translation>
    </message>
    <message>
        <source>Design Complexity</source>
        <translation>Gestaltungskomplexität</translation>
    </message>
    <message>
        <source>Style Options</source>
        <translation>Stiloptionen</translation>
    </message>
    <message>
        <source>Character Shape</source>
        <translation>Zeichenform</translation>
    </message>
    <message>
        <source>Number Case</source>
        <translation>Ziffernform</translation>
    </message>
    <message>
        <source>Text Spacing</source>
        <translation>Textbreite</translation>
    </message>
    <message>
        <source>Transliteration</source>
        <translation>Transliteration</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>Anmerkung</translation>
    </message>
    <message>
        <source>Kana Spacing</source>
        <translation>Kana-Breite</translation>
    </message>
    <message>
        <source>Ideographic Spacing</source>
        <translation>Ideogrammbreite</translation>
    </message>
    <message>
        <source>Unicode Decomposition</source>
        <translation>Unicode-Zerlegung</translation>
    </message>
    <message>
        <source>Ruby Kana</source>
        <translation>Ruby-Kana</translation>
    </message>
    <message>
        <source>CJK Symbol Alternatives</source>
        <translation>CJK-Symbolalternativen</translation>
    </message>
    <message>
        <source>Ideographic Alternatives</source>
        <translation>Ideogrammalternativen</translation>
    </message>
    <message>
        <source>CJK Vertical Roman Placement</source>
        <translation>Lage von CJK-Latein im vertikalen Satz</translation>
    </message>
    <message>
        <source>Italic CJK Roman</source>
        <translation>Kursives CJK-Latein</translation>
    </message>
    <message>
        <source>Case-Sensitive Layout</source>
        <translation>An Versalien angepasster Satz</translation>
    </message>
    <message>
        <source>Alternate Kana</source>
        <translation>Kana-Varianten</translation>
    </message>
    <message>
        <source>Stylistic Alternatives</source>
        <translation>Stilistische Alternativen</translation>
    </message>
    <message>
        <source>Contextual Alternatives</source>
        <translation>Kontextbedingte Varianten</translation>
    </message>
    <message>
        <source>Lower Case</source>
        <translation>Kleinbuchstaben</translation>
    </message>
    <message>
        <source>Upper Case</source>
        <translation>Großbuchstaben</translation>
    </message>
    <message>
        <source>Language Tag</source>
        <translation>Sprachkennung</translation>
    </message>
    <message>
        <source>CJK Roman Spacing</source>
        <translation>Breite von CJK-Latein</translation>
    </message>
    <message>
        <source>Required Ligatures</source>
        <translation>Notwendige Ligaturen</translation>
    </message>
    <message>
        <source>Common Ligatures</source>
        <translation>Häufige Ligaturen</translation>
    </message>
    <message>
        <source>Rare Ligatures</source>
        <translation>Seltene Ligaturen</translation>
    </message>
    <message>
        <source>Logos</source>
        <translation>Logos</translation>
    </message>
    <message>
        <source>Rebus Pictures</source>
        <translation>Rebusbilder</translation>
    </message>
    <message>
        <source>Diphthong Ligatures</source>
        <translation>Diphthong-Ligaturen</translation>
    </message>
    <message>
        <source>Squared Ligatures</source>
        <translation>Quadratligaturen</translation>
    </message>
    <message>
        <source>Abbreviated Squared Ligatures</source>
        <translation>Abgekürzte Quadratligaturen</translation>
    </message>
    <message>
        <source>Symbol Ligatures</source>
        <translation>Symbolligaturen</translation>
    </message>
    <message>
        <source>Contextual Ligatures</source>
        <translation>Kontextbedingte Ligaturen</translation>
    </message>
    <message>
        <source>Historical Ligatures</source>
        <translation>Historische Ligaturen</translation>
    </message>
    <message>
        <source>Unconnected</source>
        <translation>Unverbunden</translation>
    </message>
    <message>
        <source>Partially Connected</source>
        <translation>Teilweise verbunden</translation>
    </message>
    <message>
        <source>Cursive</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Upper and Lower Case</source>
        <translation>Groß- und Kleinbuchstaben</translation>
    </message>
    <message>
        <source>All Capitals</source>
        <translation>Nur Großbuchstaben</translation>
    </message>
    <message>
        <source>All Lower Case</source>
        <translation>Nur Kleinbuchstaben</translation>
    </message>
    <message>
        <source>Small Capitals</source>
        <translation>Kapitälchen</translation>
    </message>
    <message>
        <source>Initial Capitals</source>
        <translation>Große Anfangsbuchstaben</translation>
    </message>
    <message>
        <source>Initial Capitals and Small Capitals</source>
        <translation>Große Anfangsbuchstaben und Kapitälchen</translation>
    </message>
    <message>
        <source>Unicase</source>
        <translation>Unicase</translation>
    </message>
    <message>
        <source>Vertical Forms</source>
        <translation>Vertikale Formen</translation>
    </message>
    <message>
        <source>Monospaced Numbers</source>
        <translation>Tabellenziffern</translation>
    </message>
    <message>
        <source>Proportional Numbers</source>
        <translation>Proportionalziffern</translation>
    </message>
    <message>
        <source>Third-Width Numbers</source>
        <translation>Ziffern in Drittelbreite</translation>
    </message>
    <message>
        <source>Quarter-Width Numbers</source>
        <translation>Ziffern in Viertelbreite</translation>
    </message>
    <message>
        <source>Word Initial Swashes</source>
        <translation>Schwungformen am Wortanfang</translation>
    </message>
    <message>
        <source>Word Final Swashes</source>
        <translation>Schwungformen am Wortende</translation>
    </message>
    <message>
        <source>Line Initial Swashes</source>
        <translation>Schwungformen am Zeilenanfang</translation>
    </message>
    <message>
        <source>Line Final Swashes</source>
        <translation>Schwungformen am Zeilenende</translation>
    </message>
    <message>
        <source>Non-Final Swashes</source>
        <translation>Schwungformen im Wortinneren</translation>
    </message>
    <message>
        <source>Show Diacritics</source>
        <translation>Diakritische Zeichen zeigen</translation>
    </message>
    <message>
        <source>Hide Diacritics</source>
        <translation>Diakritische Zeichen ausblenden</translation>
    </message>
    <message>
        <source>Decompose Diacritics</source>
        <translation>Diakritische Zeichen zerlegen</translation>
    </message>
    <message>
        <source>Normal Position</source>
        <translation>Normale Position</translation>
    </message>
    <message>
        <source>Superiors</source>
        <translation>Hochgestellte Zeichen</translation>
    </message>
    <message>
        <source>Inferiors</source>
        <translation>Tiefgestellte Zeichen</translation>
    </message>
    <message>
        <source>Ordinals</source>
        <translation>Ordinalzeichen</translation>
    </message>
    <message>
        <source>Scientific Inferiors</source>
        <translation>Wissenschaftliche Indizes</translation>
    </message>
    <message>
        <source>No Fractions</source>
        <translation>Keine Brüche</translation>
    </message>
    <message>
        <source>Vertical Fractions</source>
        <translation>Vertikale Brüche</translation>
    </message>
    <message>
        <source>Diagonal Fractions</source>
        <translation>Diagonale Brüche</translation>
    </message>
    <message>
        <source>Prevent Overlap</source>
        <translation>Überlappung vermeiden</translation>
    </message>
    <message>
        <source>Hyphens to Em Dash</source>
        <translation>Bindestriche zu Geviertstrich</translation>
    </message>
    <message>
        <source>Hyphen to En Dash</source>
        <translation>Bindestrich zu Halbgeviertstrich</translation>
    </message>
    <message>
        <source>Slashed Zero</source>
        <translation>Durchgestrichene Null</translation>
    </message>
    <message>
        <source>Form Interrobang</source>
        <translation>Interrobang bilden</translation>
    </message>
    <message>
        <source>Smart Quotes</source>
        <translation>Typografische Anführungszeichen</translation>
    </message>
    <message>
        <source>Periods to Ellipsis</source>
        <translation>Punkte zu Auslassungspunkten</translation>
    </message>
    <message>
        <source>Hyphen to Minus</source>
        <translation>Bindestrich zu Minuszeichen</translation>
    </message>
    <message>
        <source>Asterisk to Multiply</source>
        <translation>Sternchen zu Malzeichen</translation>
    </message>
    <message>
        <source>Slash to Divide</source>
        <translation>Schrägstrich zu Geteiltzeichen</translation>
    </message>
    <message>
        <source>Inequality Ligatures</source>
        <translation>Ungleichheitsligaturen</translation>
    </message>
    <message>
        <source>Exponents</source>
        <translation>Exponenten</translation>
    </message>
    <message>
        <source>Mathematical Greek</source>
        <translation>Mathematisches Griechisch</translation>
    </message>
    <message>
        <source>No Ornaments</source>
        <translation>Keine Ornamente</translation>
    </message>
    <message>
        <source>Dingbats</source>
        <translation>Dingbats</translation>
    </message>
    <message>
        <source>Pi Characters</source>
        <translation>Pi-Zeichen</translation>
    </message>
    <message>
        <source>Fleurons</source>
        <translation>Fleurons</translation>
    </message>
    <message>
        <source>Decorative Borders</source>
        <translation>Schmuckränder</translation>
    </message>
    <message>
        <source>International Symbols</source>
        <translation>Internationale Symbole</translation>
    </message>
    <message>
        <source>Mathematical Symbols</source>
        <translation>Mathematische Symbole</translation>
    </message>
    <message>
        <source>No Alternates</source>
        <translation>Keine Varianten</translation>
    </message>
    <message>
        <source>Design Level 1</source>
        <translation>Gestaltungsstufe 1</translation>
    </message>
    <message>
        <source>Design Level 2</source>
        <translation>Gestaltungsstufe 2</translation>
    </message>
    <message>
        <source>Design Level 3</source>
        <translation>Gestaltungsstufe 3</translation>
    </message>
    <message>
        <source>Design Level 4</source>
        <translation>Gestaltungsstufe 4</translation>
    </message>
    <message>
        <source>Design Level 5</source>
        <translation>Gestaltungsstufe 5</translation>
    </message>
    <message>
        <source>No Style Options</source>
        <translation>Keine Stiloptionen</translation>
    </message>
    <message>
        <source>Display Text</source>
        <translation>Displaytext</translation>
    </message>
    <message>
        <source>Engraved Text</source>
        <translation>Gravierter Text</translation>
    </message>
    <message>
        <source>Illuminated Capitals</source>
        <translation>Illuminierte Versalien</translation>
    </message>
    <message>
        <source>Titling Capitals</source>
        <translation>Titelversalien</translation>
    </message>
    <message>
        <source>Tall Capitals</source>
        <translation>Hohe Versalien</translation>
    </message>
    <message>
        <source>Traditional Characters</source>
        <translation>Traditionelle Zeichen</translation>
    </message>
    <message>
        <source>Simplified Characters</source>
        <translation>Vereinfachte Zeichen</translation>
    </message>
    <message>
        <source>JIS 1978 Characters</source>
        <translation>Zeichen nach JIS 1978</translation>
    </message>
    <message>
        <source>JIS 1983 Characters</source>
        <translation>Zeichen nach JIS 1983</translation>
    </message>
    <message>
        <source>JIS 1990 Characters</source>
        <translation>Zeichen nach JIS 1990</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 1</source>
        <translation>Traditionelle Zeichen, Alternative 1</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 2</source>
        <translation>Traditionelle Zeichen, Alternative 2</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 3</source>
        <translation>Traditionelle Zeichen, Alternative 3</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 4</source>
        <translation>Traditionelle Zeichen, Alternative 4</translation>
    </message>
    <message>
        <source>Traditional Characters, Alternative 5</source>
        <translation>Traditionelle Zeichen, Alternative 5</translation>
    </message>
    <message>
        <source>Expert Characters</source>
        <translation>Expertenzeichen</translation>
    </message>
    <message>
        <source>JIS 2004 Characters</source>
        <translation>Zeichen nach JIS 2004</translation>
    </message>
    <message>
        <source>Hojo Characters</source>
        <translation>Hojo-Zeichen</translation>
    </message>
    <message>
        <source>NLC Characters</source>
        <translation>NLC-Zeichen</translation>
    </message>
    <message>
        <source>Traditional Names Characters</source>
        <translation>Traditionelle Namenszeichen</translation>
    </message>
    <message>
        <source>Lower Case Numbers</source>
        <translation>Mediävalziffern</translation>
    </message>
    <message>
        <source>Upper Case Numbers</source>
        <translation>Versalziffern</translation>
    </message>
    <message>
        <source>Proportional Text</source>
        <translation>Proportionaler Text</translation>
    </message>
    <message>
        <source>Monospaced Text</source>
        <translation>Dicktengleicher Text</translation>
    </message>
    <message>
        <source>Half-Width Text</source>
        <translation>Halbbreiter Text</translation>
    </message>
    <message>
        <source>Third-Width Text</source>
        <translation>Text in Drittelbreite</translation>
    </message>
    <message>
        <source>Quarter-Width Text</source>
        <translation>Text in Viertelbreite</translation>
    </message>
    <message>
        <source>Alternate Proportional Text</source>
        <translation>Proportionaler Text, Variante</translation>
    </message>
    <message>
        <source>Alternate Half-Width Text</source>
        <translation>Halbbreiter Text, Variante</translation>
    </message>
    <message>
        <source>No Transliteration</source>
        <translation>Keine Transliteration</translation>
    </message>
    <message>
        <source>Hanja to Hangul</source>
        <translation>Hanja zu Hangul</translation>
    </message>
    <message>
        <source>Hiragana to Katakana</source>
        <translation>Hiragana zu Katakana</translation>
    </message>
    <message>
        <source>Katakana to Hiragana</source>
        <translation>Katakana zu Hiragana</translation>
    </message>
    <message>
        <source>Kana to Romanization</source>
        <translation>Kana zu Umschrift</translation>
    </message>
    <message>
        <source>Romanization to Hiragana</source>
        <translation>Umschrift zu Hiragana</translation>
    </message>
    <message>
        <source>Romanization to Katakana</source>
        <translation>Umschrift zu Katakana</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 1</source>
        <translation>Hanja zu Hangul, Alternative 1</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 2</source>
        <translation>Hanja zu Hangul, Alternative 2</translation>
    </message>
    <message>
        <source>Hanja to Hangul, Alternative 3</source>
        <translation>Hanja zu Hangul, Alternative 3</translation>
    </message>
    <message>
        <source>No Annotation</source>
        <translation>Keine Anmerkung</translation>
    </message>
    <message>
        <source>Box Annotation</source>
        <translation>Anmerkung im Kasten</translation>
    </message>
    <message>
        <source>Rounded Box Annotation</source>
        <translation>Anmerkung im abgerundeten Kasten</translation>
    </message>
    <message>
        <source>Circle Annotation</source>
        <translation>Anmerkung im Kreis</translation>
    </message>
    <message>
        <source>Inverted Circle Annotation</source>
        <translation>Anmerkung im umgekehrten Kreis</translation>
    </message>
    <message>
        <source>Parenthesis Annotation</source>
        <translation>Anmerkung in Klammern</translation>
    </message>
    <message>
        <source>Period Annotation</source>
        <translation>Anmerkung mit Punkt</translation>
    </message>
    <message>
        <source>Roman Numeral Annotation</source>
        <translation>Anmerkung mit römischer Zahl</translation>
    </message>
    <message>
        <source>Diamond Annotation</source>
        <translation>Anmerkung in Raute</translation>
    </message>
    <message>
        <source>Inverted Box Annotation</source>
        <translation>Anmerkung im umgekehrten Kasten</translation>
    </message>
    <message>
        <source>Inverted Rounded Box Annotation</source>
        <translation>Anmerkung im umgekehrten abgerundeten Kasten</translation>
    </message>
    <message>
        <source>Full-Width Kana</source>
        <translation>Vollbreite Kana</translation>
    </message>
    <message>
        <source>Proportional Kana</source>
        <translation>Proportionale Kana</translation>
    </message>
    <message>
        <source>Full-Width Ideographs</source>
        <translation>Vollbreite Ideogramme</translation>
    </message>
    <message>
        <source>Proportional Ideographs</source>
        <translation>Proportionale Ideogramme</translation>
    </message>
    <message>
        <source>Half-Width Ideographs</source>
        <translation>Halbbreite Ideogramme</translation>
    </message>
    <message>
        <source>Canonical Composition</source>
        <translation>Kanonische Zusammensetzung</translation>
    </message>
    <message>
        <source>Compatibility Composition</source>
        <translation>Kompatible Zusammensetzung</translation>
    </message>
    <message>
        <source>Transcoding Composition</source>
        <translation>Umcodierende Zusammensetzung</translation>
    </message>
    <message>
        <source>No CJK Symbol Alternatives</source>
        <translation>Keine CJK-Symbolalternativen</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 1</source>
        <translation>CJK-Symbolalternative 1</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 2</source>
        <translation>CJK-Symbolalternative 2</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 3</source>
        <translation>CJK-Symbolalternative 3</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 4</source>
        <translation>CJK-Symbolalternative 4</translation>
    </message>
    <message>
        <source>CJK Symbol Alternative 5</source>
        <translation>CJK-Symbolalternative 5</translation>
    </message>
    <message>
        <source>No Ideographic Alternatives</source>
        <translation>Keine Ideogrammalternativen</translation>
    </message>
    <message>
        <source>Ideographic Alternative 1</source>
        <translation>Ideogrammalternative 1</translation>
    </message>
    <message>
        <source>Ideographic Alternative 2</source>
        <translation>Ideogrammalternative 2</translation>
    </message>
    <message>
        <source>Ideographic Alternative 3</source>
        <translation>Ideogrammalternative 3</translation>
    </message>
    <message>
        <source>Ideographic Alternative 4</source>
        <translation>Ideogrammalternative 4</translation>
    </message>
    <message>
        <source>Ideographic Alternative 5</source>
        <translation>Ideogrammalternative 5</translation>
    </message>
    <message>
        <source>Centered</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>Horizontal Baseline</source>
        <translation>Horizontale Grundlinie</translation>
    </message>
    <message>
        <source>Case-Sensitive Spacing</source>
        <translation>An Versalien angepasste Abstände</translation>
    </message>
    <message>
        <source>Alternate Horizontal Kana</source>
        <translation>Horizontale Kana-Varianten</translation>
    </message>
    <message>
        <source>Alternate Vertical Kana</source>
        <translation>Vertikale Kana-Varianten</translation>
    </message>
    <message>
        <source>Contextual Alternates</source>
        <translation>Kontextbedingte Varianten</translation>
    </message>
    <message>
        <source>Swash Alternates</source>
        <translation>Schwungvarianten</translation>
    </message>
    <message>
        <source>Contextual Swash Alternates</source>
        <translation>Kontextbedingte Schwungvarianten</translation>
    </message>
    <message>
        <source>Default Lower Case</source>
        <translation>Standardkleinbuchstaben</translation>
    </message>
    <message>
        <source>Petite Capitals</source>
        <translation>Kleine Kapitälchen</translation>
    </message>
    <message>
        <source>Default Upper Case</source>
        <translation>Standardgroßbuchstaben</translation>
    </message>
    <message>
        <source>Half-Width CJK Roman</source>
        <translation>Halbbreites CJK-Latein</translation>
    </message>
    <message>
        <source>Proportional CJK Roman</source>
        <translation>Proportionales CJK-Latein</translation>
    </message>
    <message>
        <source>Default CJK Roman</source>
        <translation>Standard-CJK-Latein</translation>
    </message>
    <message>
        <source>Full-Width CJK Roman</source>
        <translation>Vollbreites CJK-Latein</translation>
    </message>
    <message>
        <source>No Stylistic Alternatives</source>
        <translation>Keine stilistischen Alternativen</translation>
    </message>
    <message>
        <source>Stylistic Alternative %1</source>
        <translation>Stilistische Alternative %1</translation>
    </message>
</context>
<context>
    <name>FeatureTagNames</name>
    <message>
        <source>Access All Alternates</source>
        <translation>Alle Varianten</translation>
    </message>
    <message>
        <source>Above-Base Forms</source>
        <translation>Formen über der Basis</translation>
    </message>
    <message>
        <source>Above-Base Mark Positioning</source>
        <translation>Markenposition über der Basis</translation>
    </message>
    <message>
        <source>Above-Base Substitutions</source>
        <translation>Ersetzungen über der Basis</translation>
    </message>
    <message>
        <source>Alternative Fractions</source>
        <translation>Alternative Brüche</translation>
    </message>
    <message>
        <source>Akhand</source>
        <translation>Akhand</translation>
    </message>
    <message>
        <source>Below-Base Forms</source>
        <translation>Formen unter der Basis</translation>
    </message>
    <message>
        <source>Below-Base Mark Positioning</source>
        <translation>Markenposition unter der Basis</translation>
    </message>
    <message>
        <source>Below-Base Substitutions</source>
        <translation>Ersetzungen unter der Basis</translation>
    </message>
    <message>
        <source>Petite Capitals From Capitals</source>
        <translation>Kleine Kapitälchen aus Versalien</translation>
    </message>
    <message>
        <source>Small Capitals From Capitals</source>
        <translation>Kapitälchen aus Versalien</translation>
    </message>
    <message>
        <source>Contextual Alternates</source>
        <translation>Kontextbedingte Varianten</translation>
    </message>
    <message>
        <source>Case-Sensitive Forms</source>
        <translation>An Versalien angepasste Formen</translation>
    </message>
    <message>
        <source>Glyph Composition / Decomposition</source>
        <translation>Zusammensetzung/Zerlegung von Glyphen</translation>
    </message>
    <message>
        <source>Conjunct Form After Ro</source>
        <translation>Konjunktform nach Ro</translation>
    </message>
    <message>
        <source>Contextual Half-Width Spacing</source>
        <translation>Kontextbedingte halbe Breiten</translation>
    </message>
    <message>
        <source>Conjunct Forms</source>
        <translation>Konjunktformen</translation>
    </message>
    <message>
        <source>Contextual Ligatures</source>
        <translation>Kontextbedingte Ligaturen</translation>
    </message>
    <message>
        <source>Centered CJK Punctuation</source>
        <translation>Zentrierte CJK-Satzzeichen</translation>
    </message>
    <message>
        <source>Capital Spacing</source>
        <translation>Versalabstand</translation>
    </message>
    <message>
        <source>Contextual Swash</source>
        <translation>Kontextbedingte Schwungformen</translation>
    </message>
    <message>
        <source>Cursive Positioning</source>
        <translation>Verbindungspositionierung</translation>
    </message>
    <message>
        <source>Distances</source>
        <translation>Abstände</translation>
    </message>
    <message>
        <source>Discretionary Ligatures</source>
        <translation>Bedingte Ligaturen</translation>
    </message>
    <message>
        <source>Denominators</source>
        <translation>Nenner</translation>
    </message>
    <message>
        <source>Dotless Forms</source>
        <translation>Punktlose Formen</translation>
    </message>
    <message>
        <source>Expert Forms</source>
        <translation>Expertenformen</translation>
    </message>
    <message>
        <source>Final Glyph on Line Alternates</source>
        <translation>Varianten am Zeilenende</translation>
    </message>
    <message>
        <source>Terminal Forms #2</source>
        <translation>Endformen 2</translation>
    </message>
    <message>
        <source>Terminal Forms #3</source>
        <translation>Endformen 3</translation>
    </message>
    <message>
        <source>Terminal Forms</source>
        <translation>Endformen</translation>
    </message>
    <message>
        <source>Flattened Accent Forms</source>
        <translation>Flache Akzentformen</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>Brüche</translation>
    </message>
    <message>
        <source>Full Widths</source>
        <translation>Volle Breiten</translation>
    </message>
    <message>
        <source>Half Forms</source>
        <translation>Halbformen</translation>
    </message>
    <message>
        <source>Halant Forms</source>
        <translation>Halant-Formen</translation>
    </message>
    <message>
        <source>Alternate Half Widths</source>
        <translation>Alternative halbe Breiten</translation>
    </message>
    <message>
        <source>Historical Forms</source>
        <translation>Historische Formen</translation>
    </message>
    <message>
        <source>Horizontal Kana Alternates</source>
        <translation>Horizontale Kana-Varianten</translation>
    </message>
    <message>
        <source>Historical Ligatures</source>
        <translation>Historische Ligaturen</translation>
    </message>
    <message>
        <source>Hangul</source>
        <translation>Hangul</translation>
    </message>
    <message>
        <source>Hojo Kanji Forms</source>
        <translation>Hojo-Kanji-Formen</translation>
    </message>
    <message>
        <source>Half Widths</source>
        <translation>Halbe Breiten</translation>
    </message>
    <message>
        <source>Initial Forms</source>
        <translation>Anfangsformen</translation>
    </message>
    <message>
        <source>Isolated Forms</source>
        <translation>Isolierte Formen</translation>
    </message>
    <message>
        <source>Italics</source>
        <translation>Kursivformen</translation>
    </message>
    <message>
        <source>Justification Alternates</source>
        <translation>Blocksatzvarianten</translation>
    </message>
    <message>
        <source>JIS2004 Forms</source>
        <translation>JIS2004-Formen</translation>
    </message>
    <message>
        <source>JIS78 Forms</source>
        <translation>JIS78-Formen</translation>
    </message>
    <message>
        <source>JIS83 Forms</source>
        <translation>JIS83-Formen</translation>
    </message>
    <message>
        <source>JIS90 Forms</source>
        <translation>JIS90-Formen</translation>
    </message>
    <message>
        <source>Kerning</source>
        <translation>Kerning</translation>
    </message>
    <message>
        <source>Left Bounds</source>
        <translation>Linke Grenzen</translation>
    </message>
    <message>
        <source>Standard Ligatures</source>
        <translation>Standardligaturen</translation>
    </message>
    <message>
        <source>Leading Jamo Forms</source>
        <translation>Anlautende Jamo-Formen</translation>
    </message>
    <message>
        <source>Lining Figures</source>
        <translation>Versalziffern</translation>
    </message>
    <message>
        <source>Localized Forms</source>
        <translation>Sprachspezifische Formen</translation>
    </message>
    <message>
        <source>Left-to-Right Alternates</source>
        <translation>Varianten von links nach rechts</translation>
    </message>
    <message>
        <source>Left-to-Right Mirrored Forms</source>
        <translation>Gespiegelte Formen von links nach rechts</translation>
    </message>
    <message>
        <source>Mark Positioning</source>
        <translation>Markenposition</translation>
    </message>
    <message>
        <source>Medial Forms #2</source>
        <translation>Mittelformen 2</translation>
    </message>
    <message>
        <source>Medial Forms</source>
        <translation>Mittelformen</translation>
    </message>
    <message>
        <source>Mathematical Greek</source>
        <translation>Mathematisches Griechisch</translation>
    </message>
    <message>
        <source>Mark to Mark Positioning</source>
        <translation>Position von Marke zu Marke</translation>
    </message>
    <message>
        <source>Mark Positioning via Substitution</source>
        <translation>Markenposition durch Ersetzung</translation>
    </message>
    <message>
        <source>Alternate Annotation Forms</source>
        <translation>Alternative Anmerkungsformen</translation>
    </message>
    <message>
        <source>NLC Kanji Forms</source>
        <translation>NLC-Kanji-Formen</translation>
    </message>
    <message>
        <source>Nukta Forms</source>
        <translation>Nukta-Formen</translation>
    </message>
    <message>
        <source>Numerators</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>Oldstyle Figures</source>
        <translation>Mediävalziffern</translation>
    </message>
    <message>
        <source>Optical Bounds</source>
        <translation>Optische Grenzen</translation>
    </message>
    <message>
        <source>Ordinals</source>
        <translation>Ordinalzeichen</translation>
    </message>
    <message>
        <source>Ornaments</source>
        <translation>Ornamente</translation>
    </message>
    <message>
        <source>Proportional Alternate Widths</source>
        <translation>Alternative proportionale Breiten</translation>
    </message>
    <message>
        <source>Petite Capitals</source>
        <translation>Kleine Kapitälchen</translation>
    </message>
    <message>
        <source>Proportional Kana</source>
        <translation>Proportionale Kana</translation>
    </message>
    <message>
        <source>Proportional Figures</source>
        <translation>Proportionalziffern</translation>
    </message>
    <message>
        <source>Pre-Base Forms</source>
        <translation>Formen vor der Basis</translation>
    </message>
    <message>
        <source>Pre-Base Substitutions</source>
        <translation>Ersetzungen vor der Basis</translation>
    </message>
    <message>
        <source>Post-Base Forms</source>
        <translation>Formen nach der Basis</translation>
    </message>
    <message>
        <source>Post-Base Substitutions</source>
        <translation>Ersetzungen nach der Basis</translation>
    </message>
    <message>
        <source>Proportional Widths</source>
        <translation>Proportionale Breiten</translation>
    </message>
    <message>
        <source>Quarter Widths</source>
        <translation>Viertelbreiten</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>Zufallsvarianten</translation>
    </message>
    <message>
        <source>Required Contextual Alternates</source>
        <translation>Notwendige kontextbedingte Varianten</translation>
    </message>
    <message>
        <source>Rakar Forms</source>
        <translation>Rakar-Formen</translation>
    </message>
    <message>
        <source>Required Ligatures</source>
        <translation>Notwendige Ligaturen</translation>
    </message>
    <message>
        <source>Reph Form</source>
        <translation>Reph-Form</translation>
    </message>
    <message>
        <source>Right Bounds</source>
        <translation>Rechte Grenzen</translation>
    </message>
    <message>
        <source>Right-to-Left Alternates</source>
        <translation>Varianten von rechts nach links</translation>
    </message>
    <message>
        <source>Right-to-Left Mirrored Forms</source>
        <translation>Gespiegelte Formen von rechts nach links</translation>
    </message>
    <message>
        <source>Ruby Notation Forms</source>
        <translation>Ruby-Formen</translation>
    </message>
    <message>
        <source>Required Variation Alternates</source>
        <translation>Notwendige Variationsvarianten</translation>
    </message>
    <message>
        <source>Stylistic Alternates</source>
        <translation>Stilistische Varianten</translation>
    </message>
    <message>
        <source>Scientific Inferiors</source>
        <translation>Wissenschaftliche Indizes</translation>
    </message>
    <message>
        <source>Optical Size</source>
        <translation>Optische Größe</translation>
    </message>
    <message>
        <source>Small Capitals</source>
        <translation>Kapitälchen</translation>
    </message>
    <message>
        <source>Simplified Forms</source>
        <translation>Vereinfachte Formen</translation>
    </message>
    <message>
        <source>Math Script-Style Alternates</source>
        <translation>Mathematische Skriptvarianten</translation>
    </message>
    <message>
        <source>Stretching Glyph Decomposition</source>
        <translation>Zerlegung dehnbarer Glyphen</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>Tiefgestellt</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>Hochgestellt</translation>
    </message>
    <message>
        <source>Swash</source>
        <translation>Schwungformen</translation>
    </message>
    <message>
        <source>Titling</source>
        <translation>Titelsatz</translation>
    </message>
    <message>
        <source>Trailing Jamo Forms</source>
        <translation>Auslautende Jamo-Formen</translation>
    </message>
    <message>
        <source>Traditional Name Forms</source>
        <translation>Traditionelle Namensformen</translation>
    </message>
    <message>
        <source>Tabular Figures</source>
        <translation>Tabellenziffern</translation>
    </message>
    <message>
        <source>Traditional Forms</source>
        <translation>Traditionelle Formen</translation>
    </message>
    <message>
        <source>Third Widths</source>
        <translation>Drittelbreiten</translation>
    </message>
    <message>
        <source>Unicase</source>
        <translation>Unicase</translation>
    </message>
    <message>
        <source>Alternate Vertical Metrics</source>
        <translation>Alternative vertikale Metriken</translation>
    </message>
    <message>
        <source>Vattu Variants</source>
        <translation>Vattu-Varianten</translation>
    </message>
    <message>
        <source>Vertical Contextual Half-Width Spacing</source>
        <translation>Vertikale kontextbedingte halbe Breiten</translation>
    </message>
    <message>
        <source>Vertical Alternates</source>
        <translation>Vertikale Varianten</translation>
    </message>
    <message>
        <source>Alternate Vertical Half Metrics</source>
        <translation>Alternative vertikale halbe Metriken</translation>
    </message>
    <message>
        <source>Vowel Jamo Forms</source>
        <translation>Vokal-Jamo-Formen</translation>
    </message>
    <message>
        <source>Vertical Kana Alternates</source>
        <translation>Vertikale Kana-Varianten</translation>
    </message>
    <message>
        <source>Vertical Kerning</source>
        <translation>Vertikales Kerning</translation>
    </message>
    <message>
        <source>Proportional Alternate Vertical Metrics</source>
        <translation>Alternative proportionale vertikale Metriken</translation>
    </message>
    <message>
        <source>Vertical Alternates and Rotation</source>
        <translation>Vertikale Varianten und Drehung</translation>
    </message>
    <message>
        <source>Vertical Alternates for Rotation</source>
        <translation>Vertikale Varianten für Drehung</translation>
    </message>
    <message>
        <source>Slashed Zero</source>
        <translation>Durchgestrichene Null</translation>
    </message>
    <message>
        <source>Stylistic Set %1</source>
        <translation>Stilset %1</translation>
    </message>
    <message>
        <source>Character Variant %1</source>
        <translation>Zeichenvariante %1</translation>
    </message>
</context>
<context>
    <name>FeedDownload</name>
    <message>
        <source>cannot read the release feed: %1</source>
        <translation>der Versions-Feed kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>the release server gives no feed: it answers with status %1</source>
        <translation>der Versions-Server liefert keinen Feed: er antwortet mit Status %1</translation>
    </message>
    <message>
        <source>the release feed&apos;s address is no https address</source>
        <translation>die Adresse des Versions-Feeds ist keine https-Adresse</translation>
    </message>
    <message>
        <source>the release feed&apos;s address has a name or password in it</source>
        <translation>die Adresse des Versions-Feeds enthält einen Namen oder ein Passwort</translation>
    </message>
    <message>
        <source>the release feed&apos;s address is not secure: it must begin with https</source>
        <translation>die Adresse des Versions-Feeds ist nicht sicher: sie muss mit https beginnen</translation>
    </message>
    <message>
        <source>the release server leads to an address that is not secure</source>
        <translation>der Versions-Server führt zu einer Adresse, die nicht sicher ist</translation>
    </message>
    <message>
        <source>the release server took too long to answer</source>
        <translation>der Versions-Server hat zu lange nicht geantwortet</translation>
    </message>
    <message>
        <source>the release feed is too large</source>
        <translation>der Versions-Feed ist zu groß</translation>
    </message>
    <message>
        <source>the release server leads from one address to the next</source>
        <translation>der Versions-Server führt von einer Adresse zur nächsten</translation>
    </message>
</context>
<context>
    <name>FeedUpdaterController</name>
    <message>
        <source>this build has no address of a release feed</source>
        <translation>dieses Programm kennt keine Adresse eines Versions-Feeds</translation>
    </message>
    <message>
        <source>the running version is no number</source>
        <translation>die laufende Version ist keine Zahl</translation>
    </message>
</context>
<context>
    <name>FilePath</name>
    <message>
        <source>&quot;%1&quot; is no file URL: %2</source>
        <translation>„%1“ ist keine Datei-URL: %2</translation>
    </message>
    <message>
        <source>it does not begin with file:</source>
        <translation>sie beginnt nicht mit file:</translation>
    </message>
    <message>
        <source>it names another host</source>
        <translation>sie nennt einen anderen Computer</translation>
    </message>
    <message>
        <source>its path is not absolute</source>
        <translation>ihr Pfad ist nicht absolut</translation>
    </message>
    <message>
        <source>it has a query or a fragment</source>
        <translation>sie enthält eine Abfrage oder ein Fragment</translation>
    </message>
    <message>
        <source>it has a broken percent escape</source>
        <translation>sie enthält ein beschädigtes Prozent-Escape</translation>
    </message>
    <message>
        <source>it contains a NUL</source>
        <translation>sie enthält ein NUL</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>%1 changed while it was read</source>
        <translation>%1 hat sich beim Lesen verändert</translation>
    </message>
    <message>
        <source>the copy %1 differs from its source</source>
        <translation>die Kopie %1 weicht von ihrer Quelle ab</translation>
    </message>
</context>
<context>
    <name>FolderCommands</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>FontFile</name>
    <message>
        <source>%1: %2</source>
        <extracomment>A file, and what is wrong with it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1: has changed while in use</source>
        <translation>%1: hat sich während der Benutzung verändert</translation>
    </message>
    <message>
        <source>has neither names nor a character map</source>
        <translation>hat weder Namen noch eine Zeichentabelle</translation>
    </message>
    <message>
        <source>%1: has no face number %2</source>
        <translation>%1: hat keinen Schnitt Nummer %2</translation>
    </message>
    <message>
        <source>%1: has no named instance number %2</source>
        <translation>%1: hat keine benannte Instanz Nummer %2</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: Datei nicht gefunden</translation>
    </message>
    <message>
        <source>%1: may not be read</source>
        <translation>%1: darf nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1: is a link that leads in a circle</source>
        <translation>%1: ist eine Verknüpfung, die im Kreis führt</translation>
    </message>
    <message>
        <source>%1: is not a regular file</source>
        <translation>%1: ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1: kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>%1: is larger than any font</source>
        <translation>%1: ist größer als jede Schrift</translation>
    </message>
    <message>
        <source>is a WOFF web font, which is not read</source>
        <translation>ist eine WOFF-Webschrift; solche werden nicht gelesen</translation>
    </message>
    <message>
        <source>is a WOFF2 web font, which is not read</source>
        <translation>ist eine WOFF2-Webschrift; solche werden nicht gelesen</translation>
    </message>
    <message>
        <source>is a Type 1 font, which is not read</source>
        <translation>ist eine Type-1-Schrift; solche werden nicht gelesen</translation>
    </message>
    <message>
        <source>is a BDF bitmap font, which is not read</source>
        <translation>ist eine BDF-Bitmapschrift; solche werden nicht gelesen</translation>
    </message>
    <message>
        <source>is a PCF bitmap font, which is not read</source>
        <translation>ist eine PCF-Bitmapschrift; solche werden nicht gelesen</translation>
    </message>
    <message>
        <source>is compressed, which is not read</source>
        <translation>ist komprimiert; solche Dateien werden nicht gelesen</translation>
    </message>
    <message>
        <source>is not a font</source>
        <translation>ist keine Schrift</translation>
    </message>
    <message>
        <source>is a collection without faces</source>
        <translation>ist eine Sammlung ohne Schnitte</translation>
    </message>
    <message>
        <source>is larger than any font suitcase</source>
        <translation>ist größer als jeder Schriftkoffer</translation>
    </message>
    <message>
        <source>is a suitcase without outline fonts</source>
        <translation>ist ein Schriftkoffer ohne Konturschriften</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>ends within its header</source>
        <translation>endet in ihrem Kopf</translation>
    </message>
    <message>
        <source>holds a face that is not a font</source>
        <translation>enthält einen Schnitt, der keine Schrift ist</translation>
    </message>
    <message>
        <source>has a damaged table directory</source>
        <translation>hat ein beschädigtes Tabellenverzeichnis</translation>
    </message>
    <message>
        <source>ends within its table directory</source>
        <translation>endet in ihrem Tabellenverzeichnis</translation>
    </message>
    <message>
        <source>is shorter than its header says: %1 lies beyond the end</source>
        <extracomment>%1 is a table of the font, such as &quot;glyf&quot;.</extracomment>
        <translation>ist kürzer, als ihr Kopf sagt: %1 liegt hinter dem Ende</translation>
    </message>
</context>
<context>
    <name>FontFiles</name>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>Sie dürfen diese Datei nicht lesen.</translation>
    </message>
    <message>
        <source>This file is too large to be a font.</source>
        <translation>Diese Datei ist zu groß für eine Schrift.</translation>
    </message>
    <message>
        <source>This file holds no font that Lorva can show.</source>
        <translation>Diese Datei enthält keine Schrift, die Lorva zeigen kann.</translation>
    </message>
    <message>
        <source>This font is damaged and cannot be shown.</source>
        <translation>Diese Schrift ist beschädigt und kann nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>This file cannot be read from its disk.</source>
        <translation>Diese Datei kann nicht von ihrem Datenträger gelesen werden.</translation>
    </message>
    <message>
        <source>This font has no name, so no program could offer it.</source>
        <translation>Diese Schrift hat keinen Namen, daher könnte kein Programm sie anbieten.</translation>
    </message>
    <message>
        <source>Only files of this computer can be shown.</source>
        <translation>Nur Dateien auf diesem Computer können gezeigt werden.</translation>
    </message>
    <message>
        <source>So many files cannot be shown at once.</source>
        <translation>So viele Dateien können nicht auf einmal gezeigt werden.</translation>
    </message>
    <message>
        <source>Not active</source>
        <translation>Nicht aktiv</translation>
    </message>
    <message>
        <source>Some styles are active</source>
        <translation>Einige Schnitte sind aktiv</translation>
    </message>
    <message>
        <source>Active through the system</source>
        <translation>Aktiv durch das System</translation>
    </message>
    <message>
        <source>Active, copied to the Fonts folder</source>
        <translation>Aktiv, in den Schriftenordner kopiert</translation>
    </message>
    <message>
        <source>Active, registered in place</source>
        <translation>Aktiv, am Speicherort registriert</translation>
    </message>
    <message>
        <source>Another font has this file’s name in the Fonts folder</source>
        <translation>Eine andere Schrift heißt im Schriftenordner wie diese Datei</translation>
    </message>
    <message>
        <source>Not Shown</source>
        <translation>Nicht gezeigt</translation>
    </message>
    <message>
        <source>Font Files</source>
        <translation>Schriftdateien</translation>
    </message>
    <message numerus="yes">
        <source>%n fonts</source>
        <translation>
            <numerusform>%n Schrift</numerusform>
            <numerusform>%n Schriften</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a folder or a device, not a font file.</source>
        <translation>Dies ist ein Ordner oder ein Gerät, keine Schriftdatei.</translation>
    </message>
</context>
<context>
    <name>FontInspector</name>
    <message>
        <source>License</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Embedding</source>
        <extracomment>Whether documents may embed the font.</extracomment>
        <translation>Einbettung</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Vendor</source>
        <extracomment>Whose web page it is.</extracomment>
        <translation>Anbieter</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>Designer</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A language, and the characters of it that the font lacks.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Sprachen</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>Unterstützt</translation>
    </message>
    <message>
        <source>Languages with Missing Characters</source>
        <translation>Sprachen mit fehlenden Zeichen</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Whether a family is switched on.</extracomment>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>Whether a family is switched on, and whether the system did it.</extracomment>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Active (System)</source>
        <translation>Aktiv (System)</translation>
    </message>
    <message>
        <source>Identifiers</source>
        <translation>Kennungen</translation>
    </message>
    <message>
        <source>Family Name</source>
        <translation>Familienname</translation>
    </message>
    <message>
        <source>Style Name</source>
        <translation>Schnittname</translation>
    </message>
    <message>
        <source>Full Name</source>
        <translation>Vollständiger Name</translation>
    </message>
    <message>
        <source>PostScript Name</source>
        <translation>PostScript-Name</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Whether the family is switched on.</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Location</source>
        <extracomment>The file of a font.</extracomment>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The file format of a font.</extracomment>
        <translation>Format</translation>
    </message>
    <message>
        <source>Glyph Count</source>
        <translation>Glyphenzahl</translation>
    </message>
    <message>
        <source>Other</source>
        <extracomment>Features of a font that belong to no group.</extracomment>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
</context>
<context>
    <name>FontInspectorService</name>
    <message>
        <source>Italic</source>
        <extracomment>Axes of variable fonts.</extracomment>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Optical Size</source>
        <translation>Optische Größe</translation>
    </message>
    <message>
        <source>Slant</source>
        <translation>Neigung</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>TrueType</source>
        <translation>TrueType</translation>
    </message>
    <message>
        <source>PostScript</source>
        <translation>PostScript</translation>
    </message>
    <message>
        <source>OpenType (CFF)</source>
        <translation>OpenType (CFF)</translation>
    </message>
    <message>
        <source>OpenType (TrueType)</source>
        <translation>OpenType (TrueType)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>FontInstallationService</name>
    <message>
        <source>another program is switching fonts on or off</source>
        <translation>ein anderes Programm schaltet gerade Schriften ein oder aus</translation>
    </message>
</context>
<context>
    <name>FontQuizPoster</name>
    <message>
        <source>en</source>
        <extracomment>The language of the translation, such as &quot;de&quot; or &quot;zh_CN&quot;: dates are written in it.</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>MMMM d, yyyy</source>
        <extracomment>How the poster of the quiz writes its date, as &quot;d. MMMM yyyy&quot; or &quot;yyyy年M月d日&quot;; English writes it with ordinals instead.</extracomment>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A style of fonts, and how many fonts have it; spoken.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Fonts organized</source>
        <extracomment>A big number stands below it: so many fonts were organized.</extracomment>
        <translation>Schriften geordnet</translation>
    </message>
    <message>
        <source>Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative styles on %1.

Ready and waiting for use in whatever project may come. Remember to make it nice.</source>
        <translation>Am %1 von Hand in die Stile Serif, Serifenlos, Display, Mono und Dekorativ geordnet.

Bereit für jedes Projekt, das da kommen mag. Und nicht vergessen: Schön soll es werden.</translation>
    </message>
    <message>
        <source>Organized by hand into Serif, Sans-Serif, Display, Mono, and Decorative styles by %1 on %2.

Ready and waiting for use in whatever project may come. Remember to make it nice.</source>
        <translation>Von %1 am %2 von Hand in die Stile Serif, Serifenlos, Display, Mono und Dekorativ geordnet.

Bereit für jedes Projekt, das da kommen mag. Und nicht vergessen: Schön soll es werden.</translation>
    </message>
</context>
<context>
    <name>FontScanPhase</name>
    <message>
        <source>Finding fonts…</source>
        <translation>Schriften suchen&#xa0;…</translation>
    </message>
    <message numerus="yes">
        <source>Finding fonts… %1</source>
        <translation>
            <numerusform>Schriften suchen&#xa0;… %1</numerusform>
            <numerusform>Schriften suchen&#xa0;… %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Scanning %1 of %2 fonts</source>
        <translation>
            <numerusform>%1 von %2 Schrift einlesen</numerusform>
            <numerusform>%1 von %2 Schriften einlesen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Identifying fonts… %1 of %2</source>
        <translation>
            <numerusform>Schriften bestimmen&#xa0;… %1 von %2</numerusform>
            <numerusform>Schriften bestimmen&#xa0;… %1 von %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Vorbereiten&#xa0;…</translation>
    </message>
</context>
<context>
    <name>FontsFolderEntries</name>
    <message>
        <source>the file named %1 in the Fonts folder is another font than %2</source>
        <translation>die Datei %1 im Schriftenordner ist eine andere Schrift als %2</translation>
    </message>
</context>
<context>
    <name>HelpText</name>
    <message>
        <source>Usage:</source>
        <extracomment>before the ways in which a command is called, in its help</extracomment>
        <translation>Aufruf:</translation>
    </message>
</context>
<context>
    <name>HistoryReport</name>
    <message>
        <source>Activated %1</source>
        <translation>%1 aktiviert</translation>
    </message>
    <message>
        <source>Tried to activate %1</source>
        <translation>Nicht aktiviert: %1</translation>
    </message>
    <message>
        <source>De-activated %1</source>
        <translation>%1 deaktiviert</translation>
    </message>
    <message>
        <source>Tried to de-activate %1</source>
        <translation>Nicht deaktiviert: %1</translation>
    </message>
    <message>
        <source>Brought back %1</source>
        <translation>%1 wiederhergestellt</translation>
    </message>
    <message>
        <source>Tried to bring back %1</source>
        <translation>Nicht wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>Copied to the Fonts folder</source>
        <translation>In den Schriftenordner kopiert</translation>
    </message>
    <message>
        <source>Registered in place</source>
        <translation>Am Speicherort registriert</translation>
    </message>
    <message>
        <source>Copies to the Trash, registrations withdrawn</source>
        <translation>Kopien in den Papierkorb, Registrierungen aufgehoben</translation>
    </message>
    <message>
        <source>Moved to %1</source>
        <translation>Nach %1 verschoben</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Verschoben</translation>
    </message>
    <message>
        <source>De-activation undone</source>
        <translation>Deaktivierung rückgängig gemacht</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln were there already</source>
        <translation>
            <numerusform>%Ln war schon da</numerusform>
            <numerusform>%Ln waren schon da</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <extracomment>Files.</extracomment>
        <translation>
            <numerusform>%Ln fehlgeschlagen</numerusform>
            <numerusform>%Ln fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln left when it was stopped</source>
        <translation>
            <numerusform>%Ln beim Abbruch übrig</numerusform>
            <numerusform>%Ln beim Abbruch übrig</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>How fonts were switched on or off, and the numbers of their files.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Activation History</source>
        <translation>Aktivierungsverlauf</translation>
    </message>
    <message>
        <source>No font was switched on or off yet.</source>
        <translation>Bisher wurde keine Schrift ein- oder ausgeschaltet.</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren&#xa0;…</translation>
    </message>
</context>
<context>
    <name>JsonReader</name>
    <message>
        <source>unknown value</source>
        <translation>unbekannter Wert</translation>
    </message>
    <message>
        <source>the integer is out of range</source>
        <translation>die ganze Zahl liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>doppelter Schlüssel</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>das Dokument ist leer</translation>
    </message>
    <message>
        <source>invalid UTF-8</source>
        <translation>ungültiges UTF-8</translation>
    </message>
    <message>
        <source>control character in a string</source>
        <translation>Steuerzeichen in einer Zeichenkette</translation>
    </message>
    <message>
        <source>unclosed string</source>
        <translation>nicht geschlossene Zeichenkette</translation>
    </message>
    <message>
        <source>broken escape in a string</source>
        <translation>beschädigtes Escape in einer Zeichenkette</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>das Dokument ist zu groß</translation>
    </message>
    <message>
        <source>malformed JSON</source>
        <translation>fehlerhaftes JSON</translation>
    </message>
    <message>
        <source>the value was read already</source>
        <translation>der Wert wurde schon gelesen</translation>
    </message>
    <message>
        <source>nested too deeply</source>
        <translation>zu tief verschachtelt</translation>
    </message>
    <message>
        <source>expected a string</source>
        <translation>Zeichenkette erwartet</translation>
    </message>
    <message>
        <source>expected an integer</source>
        <translation>ganze Zahl erwartet</translation>
    </message>
    <message>
        <source>expected a number</source>
        <translation>Zahl erwartet</translation>
    </message>
    <message>
        <source>expected true or false</source>
        <translation>true oder false erwartet</translation>
    </message>
    <message>
        <source>broken base64</source>
        <translation>beschädigtes Base64</translation>
    </message>
    <message>
        <source>expected an array</source>
        <translation>Array erwartet</translation>
    </message>
    <message>
        <source>expected an object</source>
        <translation>Objekt erwartet</translation>
    </message>
    <message>
        <source>missing</source>
        <extracomment>A key that must be there, in a JSON document.</extracomment>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>nothing was read</source>
        <translation>nichts wurde gelesen</translation>
    </message>
    <message>
        <source>text after the end</source>
        <translation>Text nach dem Ende</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A place in a JSON document, and what is wrong there.</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>LaunchOptions</name>
    <message>
        <source>--window-size takes WIDTHxHEIGHT in points, for example 1720x920</source>
        <translation>--window-size nimmt WIDTHxHEIGHT in Punkt, zum Beispiel 1720x920</translation>
    </message>
    <message>
        <source>--view takes grid or list</source>
        <translation>--view nimmt grid oder list</translation>
    </message>
    <message>
        <source>--color takes white, black, custom or image</source>
        <translation>--color nimmt white, black, custom oder image</translation>
    </message>
    <message>
        <source>--sheet takes activate, deactivate, history or settings</source>
        <translation>--sheet nimmt activate, deactivate, history oder settings</translation>
    </message>
    <message>
        <source>--stage takes text, waterfall or comparison</source>
        <translation>--stage nimmt text, waterfall oder comparison</translation>
    </message>
    <message>
        <source>--inspector takes features or info</source>
        <translation>--inspector nimmt features oder info</translation>
    </message>
    <message>
        <source>--quiz takes intro, playing or poster</source>
        <translation>--quiz nimmt intro, playing oder poster</translation>
    </message>
    <message>
        <source>--welcome takes scene or card</source>
        <translation>--welcome nimmt scene oder card</translation>
    </message>
    <message>
        <source>--appearance takes light or dark</source>
        <translation>--appearance nimmt light oder dark</translation>
    </message>
    <message>
        <source>--source takes all, active, inactive, style:ID, collection:NAME, foundry:ID or discover</source>
        <translation>--source nimmt all, active, inactive, style:ID, collection:NAME, foundry:ID oder discover</translation>
    </message>
    <message>
        <source>--image takes one of: %1</source>
        <translation>--image nimmt eines von: %1</translation>
    </message>
    <message>
        <source>--weight takes a number from 100 to 900</source>
        <translation>--weight nimmt eine Zahl von 100 bis 900</translation>
    </message>
    <message>
        <source>--point-size takes a positive number of points</source>
        <translation>--point-size nimmt eine positive Zahl in Punkt</translation>
    </message>
    <message>
        <source>add the fonts of a folder for this start (repeatable)</source>
        <translation>bei diesem Start auch die Schriften eines Ordners zeigen (wiederholbar)</translation>
    </message>
    <message>
        <source>start in all, active, inactive, style:ID, collection:NAME, foundry:ID or discover</source>
        <translation>mit all, active, inactive, style:ID, collection:NAME, foundry:ID oder discover starten</translation>
    </message>
    <message>
        <source>start with this text in the search field</source>
        <translation>mit diesem Text im Suchfeld starten</translation>
    </message>
    <message>
        <source>start with this family selected</source>
        <translation>mit dieser Familie ausgewählt starten</translation>
    </message>
    <message>
        <source>open this family in the detail view</source>
        <translation>diese Familie in der Detailansicht öffnen</translation>
    </message>
    <message>
        <source>show it as text, waterfall or comparison there</source>
        <translation>sie dort als text, waterfall oder comparison zeigen</translation>
    </message>
    <message>
        <source>show its features or info beside it</source>
        <translation>daneben ihre features oder info zeigen</translation>
    </message>
    <message>
        <source>start in the font quiz: its intro, playing or its poster</source>
        <translation>im Schriftenquiz starten: intro, playing oder poster</translation>
    </message>
    <message>
        <source>show the welcome, whether it was seen before or not</source>
        <translation>die Begrüßung zeigen, ob schon gesehen oder nicht</translation>
    </message>
    <message>
        <source>do not show it</source>
        <translation>sie nicht zeigen</translation>
    </message>
    <message>
        <source>start in this view</source>
        <translation>in dieser Ansicht starten</translation>
    </message>
    <message>
        <source>start with specimens of this size, in points</source>
        <translation>mit Schriftmustern dieser Größe starten, in Punkt</translation>
    </message>
    <message>
        <source>start with specimens of this weight, 100 to 900</source>
        <translation>mit Schriftmustern dieses Gewichts starten, 100 bis 900</translation>
    </message>
    <message>
        <source>start with white, black or custom colours, or an image</source>
        <translation>mit white, black, custom (eigenen Farben) oder image (Bild) starten</translation>
    </message>
    <message>
        <source>start with this background image (--color image)</source>
        <translation>mit diesem Hintergrundbild starten (--color image)</translation>
    </message>
    <message>
        <source>start with this image as logo</source>
        <translation>mit diesem Bild als Logo starten</translation>
    </message>
    <message>
        <source>start with this sample text</source>
        <translation>mit diesem Mustertext starten</translation>
    </message>
    <message>
        <source>light or dark, whatever the desktop is</source>
        <translation>light oder dark, wie auch immer der Desktop ist</translation>
    </message>
    <message>
        <source>show the window off screen, write its picture as PNG, and quit</source>
        <translation>das Fenster unsichtbar zeigen, sein Bild als PNG schreiben und beenden</translation>
    </message>
    <message>
        <source>size of that picture, in points (default 1720x920, of font files 1160x760)</source>
        <translation>Größe dieses Bildes, in Punkt (Standard: 1720x920, bei Schriftdateien 1160x760)</translation>
    </message>
    <message>
        <source>open activate, deactivate (for --select), history or settings for it</source>
        <translation>activate, deactivate (für --select), history oder settings dafür öffnen</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>die Version zeigen</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>diese Hilfe zeigen</translation>
    </message>
    <message>
        <source>unknown argument &quot;%1&quot;</source>
        <translation>unbekanntes Argument „%1“</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>If Lorva runs already, its window comes to the front and takes the options over.</source>
        <translation>Läuft Lorva schon, kommt sein Fenster nach vorn und übernimmt die Optionen.</translation>
    </message>
    <message>
        <source>QT_SCALE_FACTOR=2 makes the picture twice as dense. QT_LOGGING_RULES=&quot;lorva.*=true&quot; logs.</source>
        <translation>QT_SCALE_FACTOR=2 macht das Bild doppelt so fein. QT_LOGGING_RULES=&quot;lorva.*=true&quot; protokolliert.</translation>
    </message>
    <message>
        <source>LORVA_TRACE=FILE writes down where the time of a start goes, as Chrome trace events.</source>
        <translation>LORVA_TRACE=FILE schreibt auf, wohin die Zeit eines Starts geht, als Chrome-Trace-Ereignisse.</translation>
    </message>
    <message>
        <source>Usage: lorva [options] [FILE|FOLDER]...</source>
        <extracomment>Options begin with &quot;--&quot;, and words in capitals stand for what is typed after them; both, and the words that an option takes, stay as they are.</extracomment>
        <translation>Aufruf: lorva [Optionen] [FILE|FOLDER]...</translation>
    </message>
    <message>
        <source>Shows every font of this computer as a live specimen; font files that are given, by path or as a file: address, in a window of their own.</source>
        <translation>Zeigt alle Schriften dieses Computers als lebendige Schriftmuster; Schriftdateien, die als Pfad oder file:-Adresse angegeben sind, in einem eigenen Fenster.</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the words that an option takes.</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>LinkFolderRegistrar</name>
    <message>
        <source>The font cannot be registered: %1</source>
        <translation>Die Schrift kann nicht registriert werden: %1</translation>
    </message>
    <message>
        <source>The registration cannot be withdrawn: %1</source>
        <translation>Die Registrierung kann nicht aufgehoben werden: %1</translation>
    </message>
    <message>
        <source>The font is registered already</source>
        <translation>Die Schrift ist schon registriert</translation>
    </message>
    <message>
        <source>The font is not registered</source>
        <translation>Die Schrift ist nicht registriert</translation>
    </message>
    <message>
        <source>not an absolute path</source>
        <translation>kein absoluter Pfad</translation>
    </message>
    <message>
        <source>something else has the name of its link</source>
        <translation>etwas anderes trägt den Namen ihrer Verknüpfung</translation>
    </message>
</context>
<context>
    <name>LogoImage</name>
    <message>
        <source>The image could not be kept.</source>
        <translation>Das Bild konnte nicht behalten werden.</translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>Show Logo</source>
        <translation>Logo zeigen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Of a logo, compared with the letters beside it.</extracomment>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Spacing</source>
        <extracomment>Between a logo and the letters beside it.</extracomment>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>The logo cannot be read</source>
        <translation>Das Logo kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>LogoTile</name>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Choose another image</source>
        <translation>Anderes Bild wählen</translation>
    </message>
    <message>
        <source>Drop an image here, or click to choose one.</source>
        <translation>Bild hierher ziehen oder zum Auswählen klicken.</translation>
    </message>
</context>
<context>
    <name>LorvaAppModelFolders</name>
    <message>
        <source>%1 is no UTF-8 text and cannot be kept in the preferences</source>
        <translation>%1 ist kein UTF-8-Text und kann nicht in den Einstellungen gespeichert werden</translation>
    </message>
    <message>
        <source>there is no watched folder with the id %1</source>
        <translation>es gibt keinen überwachten Ordner mit der ID %1</translation>
    </message>
</context>
<context>
    <name>OrganizationAlerts</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Delete Collection?</source>
        <translation>Sammlung löschen?</translation>
    </message>
    <message>
        <source>This removes the collection but keeps the fonts on your Mac.</source>
        <translation>Die Sammlung wird gelöscht; die Schriften bleiben auf diesem Computer.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Hide “%1”?</source>
        <translation>„%1“ ausblenden?</translation>
    </message>
    <message>
        <source>This hides the foundry from the sidebar.</source>
        <translation>Die Gießerei erscheint dann nicht mehr in der Seitenleiste.</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>This Change Is Not Possible</source>
        <translation>Diese Änderung ist nicht möglich</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>OrganizationChanges</name>
    <message>
        <source>there is no collection with the id “%1”</source>
        <translation>es gibt keine Sammlung mit der ID „%1“</translation>
    </message>
    <message>
        <source>there is a collection with the name “%1” already</source>
        <translation>es gibt schon eine Sammlung mit dem Namen „%1“</translation>
    </message>
    <message>
        <source>there is a collection with the id “%1” already</source>
        <translation>es gibt schon eine Sammlung mit der ID „%1“</translation>
    </message>
    <message>
        <source>there is no style category with the id “%1”</source>
        <translation>es gibt keinen Stil mit der ID „%1“</translation>
    </message>
    <message>
        <source>there is a style category with the name “%1” already</source>
        <translation>es gibt schon einen Stil mit dem Namen „%1“</translation>
    </message>
    <message>
        <source>there is a style category with the id “%1” already</source>
        <translation>es gibt schon einen Stil mit der ID „%1“</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>der Name ist leer</translation>
    </message>
    <message>
        <source>the style category “%1” cannot be renamed or deleted</source>
        <translation>der Stil „%1“ kann nicht umbenannt oder gelöscht werden</translation>
    </message>
</context>
<context>
    <name>OrganizationFile</name>
    <message>
        <source>the name is empty</source>
        <translation>der Name ist leer</translation>
    </message>
    <message>
        <source>format: expected &quot;%1&quot;</source>
        <translation>format: „%1“ erwartet</translation>
    </message>
    <message>
        <source>version: there is no such version</source>
        <translation>version: diese Version gibt es nicht</translation>
    </message>
    <message>
        <source>the file is of version %1, which needs a newer Lorva</source>
        <translation>die Datei hat Version %1 und braucht ein neueres Lorva</translation>
    </message>
    <message>
        <source>the organisation takes %1 bytes as a file, and no more than %2 can be imported; the logos in display settings may be too many</source>
        <translation>die Ordnung braucht als Datei %1 Bytes, und mehr als %2 können nicht importiert werden; vielleicht enthalten die Anzeigeeinstellungen zu viele Logos</translation>
    </message>
</context>
<context>
    <name>OrganizationStore</name>
    <message>
        <source>the preferences took no change</source>
        <translation>die Einstellungen nahmen keine Änderung an</translation>
    </message>
</context>
<context>
    <name>PageExport</name>
    <message>
        <source>PDF document</source>
        <translation>PDF-Dokument</translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation>SVG-Zeichnung</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG-Bild</translation>
    </message>
</context>
<context>
    <name>PaneTexts</name>
    <message>
        <source>Active</source>
        <extracomment>A heading: fonts that are switched on for every program.</extracomment>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>A heading: fonts that are not switched on.</extracomment>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Discover</source>
        <extracomment>A heading: a page that introduces type foundries.</extracomment>
        <translation>Entdecken</translation>
    </message>
    <message>
        <source>All Fonts</source>
        <translation>Alle Schriften</translation>
    </message>
    <message>
        <source>No Inactive Fonts</source>
        <translation>Keine inaktiven Schriften</translation>
    </message>
    <message>
        <source>Every font in your folders is switched on.</source>
        <translation>Jede Schrift in Ihren Ordnern ist eingeschaltet.</translation>
    </message>
    <message>
        <source>Watch a folder to see the fonts in it without switching them on.</source>
        <translation>Überwachen Sie einen Ordner, um seine Schriften zu sehen, ohne sie einzuschalten.</translation>
    </message>
    <message>
        <source>No Fonts Here</source>
        <translation>Keine Schriften hier</translation>
    </message>
    <message>
        <source>None of the families that belong here are on this computer.</source>
        <translation>Keine der Familien, die hierher gehören, ist auf diesem Computer.</translation>
    </message>
    <message>
        <source>An Empty Collection</source>
        <translation>Leere Sammlung</translation>
    </message>
    <message>
        <source>Drag fonts onto it in the sidebar, or choose it in a font’s menu.</source>
        <translation>Ziehen Sie Schriften in der Seitenleiste darauf oder wählen Sie die Sammlung im Menü einer Schrift.</translation>
    </message>
    <message>
        <source>No Active Fonts</source>
        <translation>Keine aktiven Schriften</translation>
    </message>
    <message>
        <source>Fonts that every program can use appear here.</source>
        <translation>Hier erscheinen Schriften, die alle Programme verwenden können.</translation>
    </message>
    <message>
        <source>No Fonts of This Style</source>
        <translation>Keine Schriften dieses Stils</translation>
    </message>
    <message>
        <source>Choose the style in a font’s menu, or drag fonts onto it in the sidebar.</source>
        <translation>Wählen Sie den Stil im Menü einer Schrift oder ziehen Sie Schriften in der Seitenleiste darauf.</translation>
    </message>
    <message>
        <source>None of this foundry’s families are on this computer.</source>
        <translation>Keine der Familien dieser Gießerei ist auf diesem Computer.</translation>
    </message>
    <message>
        <source>No Fonts</source>
        <translation>Keine Schriften</translation>
    </message>
    <message>
        <source>Neither this system nor your folders hold a font that can be read.</source>
        <translation>Weder dieses System noch Ihre Ordner enthalten eine lesbare Schrift.</translation>
    </message>
    <message>
        <source>Scan Cancelled</source>
        <translation>Einlesen abgebrochen</translation>
    </message>
    <message>
        <source>Press F5 to look for the fonts of this system and of your folders again.</source>
        <translation>F5 sucht die Schriften dieses Systems und Ihrer Ordner erneut.</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>There is nothing to export</source>
        <translation>Es gibt nichts zu exportieren</translation>
    </message>
    <message>
        <source>The page is too large for a file</source>
        <translation>Die Seite ist zu groß für eine Datei</translation>
    </message>
    <message>
        <source>The page is too large for a PNG; a PDF or SVG can hold it</source>
        <translation>Die Seite ist zu groß für ein PNG; in PDF oder SVG passt sie</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>das Bild kann nicht codiert werden</translation>
    </message>
    <message>
        <source>the picture does not fit into memory</source>
        <translation>das Bild passt nicht in den Speicher</translation>
    </message>
    <message>
        <source>%1: the name of a picture ends in .png, .svg or .pdf</source>
        <translation>%1: der Name eines Bildes endet auf .png, .svg oder .pdf</translation>
    </message>
    <message>
        <source>%1: refusing to write over a font file</source>
        <translation>%1: eine Schriftdatei wird nicht überschrieben</translation>
    </message>
</context>
<context>
    <name>PreferenceDatabase</name>
    <message>
        <source>the file cannot be written</source>
        <translation>die Datei kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>another process is moving a damaged file</source>
        <translation>ein anderer Prozess verschiebt gerade eine beschädigte Datei</translation>
    </message>
    <message>
        <source>the database is damaged</source>
        <translation>die Datenbank ist beschädigt</translation>
    </message>
</context>
<context>
    <name>PreferenceFile</name>
    <message>
        <source>%1: %2</source>
        <extracomment>A file, and what is wrong with it.</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>PreviewPage</name>
    <message>
        <source>Specimen</source>
        <translation>Schriftmuster</translation>
    </message>
</context>
<context>
    <name>RecordsJson</name>
    <message>
        <source>%1 is no colour mode</source>
        <translation>%1 ist kein Farbmodus</translation>
    </message>
</context>
<context>
    <name>ReleaseFeed</name>
    <message>
        <source>the release feed cannot be read: %1</source>
        <translation>der Versions-Feed kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>version: expected numbers with dots between them</source>
        <translation>version: Zahlen mit Punkten dazwischen erwartet</translation>
    </message>
    <message>
        <source>date: expected a day such as 2026-11-22</source>
        <translation>date: Tag wie 2026-11-22 erwartet</translation>
    </message>
    <message>
        <source>page: expected an https address</source>
        <translation>page: https-Adresse erwartet</translation>
    </message>
    <message>
        <source>the release feed is made for a newer Lorva: its format is %1, not %2</source>
        <translation>der Versions-Feed ist für ein neueres Lorva: sein Format ist %1, nicht %2</translation>
    </message>
    <message>
        <source>the release feed is about another product</source>
        <translation>der Versions-Feed handelt von einem anderen Produkt</translation>
    </message>
    <message>
        <source>the release feed&apos;s key is not 32 bytes in Base64</source>
        <translation>der Schlüssel des Versions-Feeds besteht nicht aus 32 Bytes in Base64</translation>
    </message>
    <message>
        <source>the release feed is too large</source>
        <translation>der Versions-Feed ist zu groß</translation>
    </message>
    <message>
        <source>the release feed is not signed by the makers of Lorva</source>
        <translation>der Versions-Feed ist nicht von den Machern von Lorva signiert</translation>
    </message>
</context>
<context>
    <name>Restoration</name>
    <message>
        <source>It is not in the Trash any more</source>
        <translation>Sie ist nicht mehr im Papierkorb</translation>
    </message>
    <message>
        <source>Another file has taken its place</source>
        <translation>Eine andere Datei hat ihren Platz eingenommen</translation>
    </message>
</context>
<context>
    <name>RunLock</name>
    <message>
        <source>cannot lock %1: another process holds it</source>
        <translation>%1 kann nicht gesperrt werden: ein anderer Prozess hält die Sperre</translation>
    </message>
</context>
<context>
    <name>RunSteps</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>the file&apos;s path is no UTF-8 text</source>
        <translation>der Pfad der Datei ist kein UTF-8-Text</translation>
    </message>
</context>
<context>
    <name>SafeImage</name>
    <message>
        <source>The picture has too many pixels to be read</source>
        <translation>Das Bild hat zu viele Pixel, um gelesen zu werden</translation>
    </message>
    <message>
        <source>The picture is damaged and cannot be read</source>
        <translation>Das Bild ist beschädigt und kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>This is no picture in a format that can be read (PNG, JPEG, GIF, WebP, BMP or SVG)</source>
        <translation>Dies ist kein Bild in einem lesbaren Format (PNG, JPEG, GIF, WebP, BMP oder SVG)</translation>
    </message>
    <message>
        <source>Pictures in this format need an addition to the desktop’s toolkit that is not installed</source>
        <translation>Bilder in diesem Format brauchen eine Erweiterung des Desktop-Toolkits, die nicht installiert ist</translation>
    </message>
    <message>
        <source>The file is too large to be read as a picture</source>
        <translation>Die Datei ist zu groß, um als Bild gelesen zu werden</translation>
    </message>
    <message>
        <source>no room for a picture</source>
        <translation>kein Platz für ein Bild</translation>
    </message>
    <message>
        <source>The drawing is damaged and cannot be read</source>
        <translation>Die Zeichnung ist beschädigt und kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The drawing is too complicated to be shown</source>
        <translation>Die Zeichnung ist zu kompliziert, um gezeigt zu werden</translation>
    </message>
    <message>
        <source>no memory for the drawing</source>
        <translation>kein Speicher für die Zeichnung</translation>
    </message>
</context>
<context>
    <name>SampleTextPanel</name>
    <message>
        <source>Reset Look</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>Mustertext</translation>
    </message>
    <message>
        <source>Blank: a sentence for each script</source>
        <translation>Leer: ein Satz für jedes Schriftsystem</translation>
    </message>
    <message>
        <source>Size, weight, colors, logo and text as they were at first</source>
        <translation>Größe, Gewicht, Farben, Logo und Text wie zu Anfang</translation>
    </message>
</context>
<context>
    <name>SampleTexts</name>
    <message>
        <source>Latin</source>
        <extracomment>Sample texts in this script.</extracomment>
        <translation>Lateinisch</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Ziffern</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Kyrillisch</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabisch</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebräisch</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation>Devanagari</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thai</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>Chinesisch (vereinfacht)</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>Chinesisch (traditionell)</translation>
    </message>
</context>
<context>
    <name>ScanProgress</name>
    <message>
        <source>“%1” is not there.</source>
        <translation>„%1“ ist nicht da.</translation>
    </message>
    <message>
        <source>“%1” is not a folder.</source>
        <translation>„%1“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>You do not have permission to look into “%1”.</source>
        <translation>Sie haben keine Berechtigung, in „%1“ hineinzusehen.</translation>
    </message>
    <message>
        <source>“%1” has a name that is not valid text, so it cannot be remembered.</source>
        <translation>„%1“ hat einen Namen, der kein gültiger Text ist, und lässt sich daher nicht merken.</translation>
    </message>
    <message>
        <source>“%1” could not be looked at.</source>
        <translation>„%1“ konnte nicht untersucht werden.</translation>
    </message>
    <message>
        <source>Scanning fonts…</source>
        <translation>Schriften einlesen&#xa0;…</translation>
    </message>
    <message>
        <source>No new fonts added</source>
        <translation>Keine neuen Schriften hinzugefügt</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t find any new fonts in the selected location.</source>
        <translation>Lorva hat am gewählten Ort keine neuen Schriften gefunden.</translation>
    </message>
    <message numerus="yes">
        <source>Added %1 fonts</source>
        <translation>
            <numerusform>%1 Schrift hinzugefügt</numerusform>
            <numerusform>%1 Schriften hinzugefügt</numerusform>
        </translation>
    </message>
    <message>
        <source>You can find them in your library.</source>
        <translation>Sie finden sie in Ihrer Bibliothek.</translation>
    </message>
    <message>
        <source>Choose one or more folders of font files to include in your library.</source>
        <translation>Einen oder mehrere Ordner mit Schriftdateien für Ihre Bibliothek wählen.</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Überwachen</translation>
    </message>
    <message numerus="yes">
        <source>%1 more folders could not be added.</source>
        <translation>
            <numerusform>%1 weiterer Ordner konnte nicht hinzugefügt werden.</numerusform>
            <numerusform>%1 weitere Ordner konnten nicht hinzugefügt werden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SidebarActions</name>
    <message>
        <source>New Collection</source>
        <translation>Neue Sammlung</translation>
    </message>
</context>
<context>
    <name>SidebarTree</name>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Styles</source>
        <extracomment>The style categories of fonts: Serif, Script and so on.</extracomment>
        <translation>Stile</translation>
    </message>
    <message>
        <source>Foundries</source>
        <translation>Gießereien</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Sammlungen</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Foundry</source>
        <translation>Gießerei</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Sammlung</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>Every font there is, in the sidebar.</extracomment>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>Fonts that are switched on for every program, in the sidebar.</extracomment>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Inactive</source>
        <extracomment>Fonts that are not switched on, in the sidebar.</extracomment>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Discover</source>
        <extracomment>A page that introduces type foundries, in the sidebar.</extracomment>
        <translation>Entdecken</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Organize</source>
        <extracomment>Opens the quiz in which fonts are put into styles, in the sidebar.</extracomment>
        <translation>Ordnen</translation>
    </message>
</context>
<context>
    <name>StoredGroupings</name>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
</context>
<context>
    <name>StyleActivations</name>
    <message numerus="yes">
        <source>%n more</source>
        <extracomment>So many styles, at the end of a list of their names.</extracomment>
        <translation>
            <numerusform>%n weiterer</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StyleCategories</name>
    <message>
        <source>Serif</source>
        <translation>Serif</translation>
    </message>
    <message>
        <source>Sans-Serif</source>
        <translation>Serifenlos</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>A style of fonts: those for large sizes.</extracomment>
        <translation>Display</translation>
    </message>
    <message>
        <source>Mono</source>
        <extracomment>A style of fonts: those whose letters are all of one width.</extracomment>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>A style of fonts: those that look like handwriting.</extracomment>
        <translation>Schreibschrift</translation>
    </message>
    <message>
        <source>Decorative</source>
        <extracomment>A style of fonts.</extracomment>
        <translation>Dekorativ</translation>
    </message>
</context>
<context>
    <name>SystemError</name>
    <message>
        <source>cannot empty %1: %2</source>
        <translation>%1 kann nicht geleert werden: %2</translation>
    </message>
    <message>
        <source>cannot empty the trace %1: %2</source>
        <extracomment>The trace says where the program spent its time.</extracomment>
        <translation>das Ablaufprotokoll %1 kann nicht geleert werden: %2</translation>
    </message>
    <message>
        <source>cannot find %1: %2</source>
        <translation>%1 kann nicht gefunden werden: %2</translation>
    </message>
    <message>
        <source>cannot lock %1: %2</source>
        <translation>%1 kann nicht gesperrt werden: %2</translation>
    </message>
    <message>
        <source>cannot look at %1: %2</source>
        <translation>%1 kann nicht untersucht werden: %2</translation>
    </message>
    <message>
        <source>cannot make %1: %2</source>
        <translation>%1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>cannot move %1: %2</source>
        <translation>%1 kann nicht verschoben werden: %2</translation>
    </message>
    <message>
        <source>cannot move to the Trash %1: %2</source>
        <translation>%1 kann nicht in den Papierkorb verschoben werden: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>cannot remove %1: %2</source>
        <translation>%1 kann nicht entfernt werden: %2</translation>
    </message>
    <message>
        <source>cannot take from the Trash %1: %2</source>
        <translation>%1 kann nicht aus dem Papierkorb geholt werden: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>cannot write into %1: %2</source>
        <translation>in %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>cannot write the trace %1: %2</source>
        <translation>das Ablaufprotokoll %1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>Trace</name>
    <message>
        <source>cannot write the trace %1: not a regular file</source>
        <translation>das Ablaufprotokoll %1 kann nicht geschrieben werden: keine reguläre Datei</translation>
    </message>
</context>
<context>
    <name>UndoableDeactivation</name>
    <message>
        <source>De-activate %1</source>
        <translation>%1 deaktivieren</translation>
    </message>
</context>
<context>
    <name>UpdateAlerts</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Details: %1.</source>
        <translation>Details: %1.</translation>
    </message>
    <message>
        <source>Lorva Couldn’t Check for Updates</source>
        <translation>Lorva konnte nicht nach neuen Versionen suchen</translation>
    </message>
    <message>
        <source>The server that announces new versions can’t be reached. Check your internet connection, then try again.</source>
        <translation>Der Server, der neue Versionen ankündigt, ist nicht erreichbar. Prüfen Sie Ihre Internetverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The server that announces new versions took too long to answer. Try again in a while.</source>
        <translation>Der Server, der neue Versionen ankündigt, hat zu lange nicht geantwortet. Versuchen Sie es in einer Weile erneut.</translation>
    </message>
    <message>
        <source>The server that announces new versions has none to announce right now. Try again in a while.</source>
        <translation>Der Server, der neue Versionen ankündigt, hat gerade keine anzukündigen. Versuchen Sie es in einer Weile erneut.</translation>
    </message>
    <message>
        <source>The connection to the server that announces new versions is not secure, so nothing was read from it. If you are on a public network, try again on another one.</source>
        <translation>Die Verbindung zum Server, der neue Versionen ankündigt, ist nicht sicher; daher wurde nichts von ihm gelesen. Versuchen Sie es in einem anderen Netz, wenn Sie in einem öffentlichen sind.</translation>
    </message>
    <message>
        <source>The answer does not come from the makers of Lorva, so it was not believed. Try again on another network.</source>
        <translation>Die Antwort stammt nicht von den Machern von Lorva; daher wurde ihr nicht geglaubt. Versuchen Sie es in einem anderen Netz erneut.</translation>
    </message>
    <message>
        <source>New versions are announced in a way that this version is too old to understand. Look for a newer one where you got Lorva.</source>
        <translation>Neue Versionen werden in einer Form angekündigt, für die diese Version zu alt ist. Suchen Sie dort nach einer neueren, wo Sie Lorva bezogen haben.</translation>
    </message>
    <message>
        <source>The server announces another program. Look for a newer version where you got Lorva.</source>
        <translation>Der Server kündigt ein anderes Programm an. Suchen Sie dort nach einer neueren Version, wo Sie Lorva bezogen haben.</translation>
    </message>
    <message>
        <source>The answer can’t be understood. Some networks answer in the server’s place until you sign in: open a web page, then try again.</source>
        <translation>Die Antwort ist nicht verständlich. Manche Netze antworten an Stelle des Servers, bis Sie sich anmelden: Öffnen Sie eine Webseite und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Version %1 was released on %2. You have version %3.</source>
        <translation>Version %1 ist am %2 erschienen. Sie haben Version %3.</translation>
    </message>
    <message>
        <source>Lorva %1 Is Available</source>
        <translation>Lorva %1 ist verfügbar</translation>
    </message>
    <message>
        <source>Open Release Page</source>
        <translation>Seite der Version öffnen</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>You’re Up to Date</source>
        <translation>Lorva ist aktuell</translation>
    </message>
    <message>
        <source>There is no newer version than yours, Lorva %1.</source>
        <translation>Es gibt keine neuere Version als Ihre, Lorva %1.</translation>
    </message>
    <message>
        <source>Updates Come with Your System</source>
        <translation>Neue Versionen kommen mit Ihrem System</translation>
    </message>
    <message>
        <source>This copy of Lorva does not look for new versions by itself: your system’s software updates bring new versions.</source>
        <translation>Dieses Lorva sucht nicht selbst nach neuen Versionen: Sie kommen mit den Aktualisierungen Ihres Systems.</translation>
    </message>
    <message>
        <source>This copy of Lorva was not told properly where new versions are announced. Your system’s software updates, or the place where you got Lorva, bring new versions.</source>
        <translation>Diesem Lorva wurde nicht richtig mitgeteilt, wo neue Versionen angekündigt werden. Sie kommen mit den Aktualisierungen Ihres Systems oder von dort, wo Sie Lorva bezogen haben.</translation>
    </message>
</context>
<context>
    <name>WatchedFolderStore</name>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>%1 cannot be made: a file has that name</source>
        <translation>%1 kann nicht angelegt werden: eine Datei trägt diesen Namen</translation>
    </message>
</context>
<context>
    <name>WindowPicture</name>
    <message>
        <source>the picture could not be encoded</source>
        <translation>das Bild konnte nicht codiert werden</translation>
    </message>
</context>
<context>
    <name>Withdrawal</name>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
    <message>
        <source>%1 lies in a Fonts folder, where fonts are active</source>
        <translation>%1 liegt in einem Schriftenordner, in dem Schriften aktiv sind</translation>
    </message>
</context>
<context>
    <name>lorva</name>
    <message>
        <source>no display to open a window on; start it in a desktop session, or make a picture with --screenshot FILE</source>
        <translation>kein Bildschirm, um ein Fenster zu öffnen; in einer Desktop-Sitzung starten oder mit --screenshot FILE ein Bild machen</translation>
    </message>
    <message>
        <source>%1; see lorva --help</source>
        <translation>%1; siehe lorva --help</translation>
    </message>
</context>
<context>
    <name>lorva::AxisRow</name>
    <message>
        <source>%1, value</source>
        <extracomment>The value of an axis of a variable font, such as Weight; spoken.</extracomment>
        <translation>%1, Wert</translation>
    </message>
</context>
<context>
    <name>lorva::BarDisplayControls</name>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>A logo is shown.</source>
        <translation>Ein Logo wird gezeigt.</translation>
    </message>
    <message>
        <source>Custom Colors</source>
        <translation>Eigene Farben</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserCollectionView</name>
    <message>
        <source>Fonts</source>
        <translation>Schriften</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserEmptyStateView</name>
    <message>
        <source>Watch Folder…</source>
        <translation>Ordner überwachen&#xa0;…</translation>
    </message>
    <message>
        <source>No Results</source>
        <translation>Keine Ergebnisse</translation>
    </message>
    <message>
        <source>No fonts match “%1”.</source>
        <translation>Keine Schriften passen zu „%1“.</translation>
    </message>
</context>
<context>
    <name>lorva::BrowserTopBar</name>
    <message>
        <source>Size and Weight</source>
        <translation>Größe und Gewicht</translation>
    </message>
    <message>
        <source>Sample Text</source>
        <translation>Mustertext</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>View</source>
        <extracomment>How the fonts are shown, as a noun; spoken.</extracomment>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Grid</source>
        <extracomment>Shows the fonts as cards side by side.</extracomment>
        <translation>Raster</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Shows the fonts as rows.</extracomment>
        <translation>Liste</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterCellsView</name>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>A character, and what is known of it.</extracomment>
        <translation>%1 – %2</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterGridView</name>
    <message>
        <source>Characters or glyphs</source>
        <translation>Zeichen oder Glyphen</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Glyphs</source>
        <translation>Glyphen</translation>
    </message>
    <message numerus="yes">
        <source>%1 found</source>
        <extracomment>Characters or glyphs.</extracomment>
        <translation>
            <numerusform>%1 gefunden</numerusform>
            <numerusform>%1 gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 glyphs</source>
        <translation>
            <numerusform>%1 Glyphe</numerusform>
            <numerusform>%1 Glyphen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 characters</source>
        <translation>
            <numerusform>%1 Zeichen</numerusform>
            <numerusform>%1 Zeichen</numerusform>
        </translation>
    </message>
    <message>
        <source>No Glyphs Found</source>
        <translation>Keine Glyphen gefunden</translation>
    </message>
    <message>
        <source>No Characters Found</source>
        <translation>Keine Zeichen gefunden</translation>
    </message>
    <message>
        <source>This face has no glyphs.</source>
        <translation>Dieser Schnitt hat keine Glyphen.</translation>
    </message>
    <message>
        <source>This face has no characters.</source>
        <translation>Dieser Schnitt hat keine Zeichen.</translation>
    </message>
    <message>
        <source>Copy Character</source>
        <translation>Zeichen kopieren</translation>
    </message>
    <message>
        <source>Copy Code Point</source>
        <translation>Codepunkt kopieren</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>Namen kopieren</translation>
    </message>
    <message>
        <source>Copy Glyph Name</source>
        <translation>Glyphennamen kopieren</translation>
    </message>
    <message>
        <source>Add to Tray</source>
        <translation>In die Ablage</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <translation>%1 kopiert</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterPopoverViewController</name>
    <message>
        <source>No character leads to this glyph.</source>
        <translation>Kein Zeichen führt zu dieser Glyphe.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The kind of a character, and the block that it belongs to.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Code Point</source>
        <translation>Codepunkt</translation>
    </message>
    <message>
        <source>Glyph</source>
        <translation>Glyphe</translation>
    </message>
    <message>
        <source>Glyph Name</source>
        <translation>Glyphenname</translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation>UTF-8</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Add to Tray</source>
        <translation>In die Ablage</translation>
    </message>
</context>
<context>
    <name>lorva::CharacterTrayView</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Tray: %1</source>
        <extracomment>Characters that were collected, to be copied together.</extracomment>
        <translation>Ablage: %1</translation>
    </message>
</context>
<context>
    <name>lorva::ColorChooser</name>
    <message>
        <source>Color Code</source>
        <translation>Farbcode</translation>
    </message>
</context>
<context>
    <name>lorva::ColorModeChips</name>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Custom Colors</source>
        <translation>Eigene Farben</translation>
    </message>
    <message>
        <source>Background Image</source>
        <translation>Hintergrundbild</translation>
    </message>
</context>
<context>
    <name>lorva::ComparisonView</name>
    <message>
        <source>Add Family…</source>
        <translation>Hinzufügen&#xa0;…</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Arrangement</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Beside</source>
        <extracomment>How the compared families are arranged: beside each other.</extracomment>
        <translation>Nebeneinander</translation>
    </message>
    <message>
        <source>Overlaid</source>
        <extracomment>How the compared families are arranged: one over the other.</extracomment>
        <translation>Überlagert</translation>
    </message>
    <message>
        <source>Match</source>
        <extracomment>What the compared families have in common: their size or their x-height; spoken.</extracomment>
        <translation>Angleichung</translation>
    </message>
    <message>
        <source>Same Size</source>
        <translation>Gleiche Größe</translation>
    </message>
    <message>
        <source>Same x-Height</source>
        <translation>Gleiche x-Höhe</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Add Family</source>
        <translation>Familie hinzufügen</translation>
    </message>
</context>
<context>
    <name>lorva::DetailPreviewView</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>lorva::DetailTopBar</name>
    <message>
        <source>Text</source>
        <extracomment>Shows the family as one text that can be edited.</extracomment>
        <translation>Text</translation>
    </message>
    <message>
        <source>Waterfall</source>
        <extracomment>Shows the same text in ever smaller sizes.</extracomment>
        <translation>Wasserfall</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Shows several families together.</extracomment>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Previous Family</source>
        <translation>Vorige Familie</translation>
    </message>
    <message>
        <source>Next Family</source>
        <translation>Nächste Familie</translation>
    </message>
    <message>
        <source>Size, Weight, Letter Spacing</source>
        <translation>Größe, Gewicht, Laufweite</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Search Characters</source>
        <translation>Zeichen suchen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverFoundryItem</name>
    <message>
        <source>Visit %1</source>
        <translation>%1 besuchen</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverLinkButton</name>
    <message>
        <source>Visit</source>
        <extracomment>Opens the web page of a foundry.</extracomment>
        <translation>Besuchen</translation>
    </message>
    <message>
        <source>Open Website</source>
        <translation>Website öffnen</translation>
    </message>
</context>
<context>
    <name>lorva::DiscoverViewController</name>
    <message>
        <source>Discover</source>
        <translation>Entdecken</translation>
    </message>
    <message>
        <source>Type Foundries</source>
        <translation>Schriftgießereien</translation>
    </message>
</context>
<context>
    <name>lorva::FamilyPicker</name>
    <message>
        <source>Families</source>
        <translation>Familien</translation>
    </message>
    <message>
        <source>No Families</source>
        <translation>Keine Familien</translation>
    </message>
    <message>
        <source>Search Families</source>
        <translation>Familien suchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>lorva::FeatureRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The group of a font&apos;s feature, and what the feature does; spoken.</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lorva::FeatureTip</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A feature of a font, and its tag; spoken.</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lorva::FontBrowserViewController</name>
    <message>
        <source>, </source>
        <extracomment>Between what is said of a family&apos;s card; spoken.</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>lorva::FontCardContentView</name>
    <message numerus="yes">
        <source>%Ln styles</source>
        <extracomment>The fonts of a family, such as Bold. English says &quot;1 styles&quot;, too.</extracomment>
        <translation>
            <numerusform>%Ln Schnitt</numerusform>
            <numerusform>%Ln Schnitte</numerusform>
        </translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesBar</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Waterfall</source>
        <translation>Wasserfall</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesFooter</name>
    <message>
        <source>Files That Failed…</source>
        <translation>Fehlgeschlagene Dateien&#xa0;…</translation>
    </message>
    <message>
        <source>Show in Lorva</source>
        <translation>In Lorva zeigen</translation>
    </message>
    <message>
        <source>Activate All…</source>
        <translation>Alle aktivieren&#xa0;…</translation>
    </message>
    <message>
        <source>De-activate…</source>
        <translation>Deaktivieren&#xa0;…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>Übrige Schnitte aktivieren&#xa0;…</translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>Aktivieren&#xa0;…</translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesList</name>
    <message>
        <source>Fonts in the Files</source>
        <translation>Schriften in den Dateien</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between what is said of a font in the list; spoken.</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>lorva::FontFilesWindow</name>
    <message>
        <source>Reading Files</source>
        <translation>Dateien werden gelesen</translation>
    </message>
    <message>
        <source>The fonts will be here in a moment.</source>
        <translation>Die Schriften sind gleich da.</translation>
    </message>
    <message>
        <source>No Fonts</source>
        <translation>Keine Schriften</translation>
    </message>
    <message>
        <source>None of these files could be opened.</source>
        <translation>Keine dieser Dateien konnte geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A family, and one of its styles.</extracomment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>lorva::FontIndexingSheetController</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>lorva::FontInspectorViewController</name>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
    <message>
        <source>Features</source>
        <extracomment>The OpenType features of a font.</extracomment>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>Info</source>
        <extracomment>Facts about a font.</extracomment>
        <translation>Info</translation>
    </message>
</context>
<context>
    <name>lorva::FontInstallSheetController</name>
    <message>
        <source>Choose how to activate this font family in macOS. Both methods make it available in every app on your Mac.</source>
        <translation>Wählen Sie, wie diese Schriftfamilie aktiviert wird. Beide Wege machen sie in allen Programmen auf diesem Computer verfügbar.</translation>
    </message>
    <message>
        <source>Copy to Fonts Folder</source>
        <extracomment>A way to activate fonts.</extracomment>
        <translation>In den Schriftenordner kopieren</translation>
    </message>
    <message>
        <source>Copies the font files into your user Fonts folder. Works even if the originals move or go offline.</source>
        <translation>Kopiert die Schriftdateien in Ihren Schriftenordner. Funktioniert auch, wenn die Originale verschoben werden oder offline sind.</translation>
    </message>
    <message>
        <source>Register in Place</source>
        <extracomment>A way to activate fonts: their files stay where they are.</extracomment>
        <translation>Am Speicherort registrieren</translation>
    </message>
    <message>
        <source>Activates the font from its current location, but deactivates if the source moves.</source>
        <translation>Aktiviert die Schrift an ihrem jetzigen Ort; wird die Quelle verschoben, ist sie nicht mehr aktiv.</translation>
    </message>
    <message>
        <source>Remember this choice (change later in Settings)</source>
        <translation>Diese Wahl merken (später in den Einstellungen änderbar)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>lorva::FontPreviewNSView</name>
    <message>
        <source>“%1” could not be loaded. The system font is shown instead.</source>
        <translation>„%1“ konnte nicht geladen werden. Stattdessen ist die Systemschrift zu sehen.</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCardView</name>
    <message>
        <source>“%1” could not be loaded. The system font is shown instead.</source>
        <translation>„%1“ konnte nicht geladen werden. Stattdessen ist die Systemschrift zu sehen.</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCategoryView</name>
    <message numerus="yes">
        <source>%1, key %2, %3 fonts</source>
        <extracomment>A style of fonts, the key that chooses it, and how many fonts have it; spoken.</extracomment>
        <translation>
            <numerusform>%1, Taste %2, %3 Schrift</numerusform>
            <numerusform>%1, Taste %2, %3 Schriften</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCompletionPosterView</name>
    <message>
        <source>Save as Picture…</source>
        <translation>Als Bild speichern&#xa0;…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Save as Picture</source>
        <translation>Als Bild speichern</translation>
    </message>
    <message>
        <source>Organized Fonts</source>
        <translation>Geordnete Schriften</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizIntroView</name>
    <message>
        <source>Every font is already categorized.</source>
        <translation>Alle Schriften sind bereits zugeordnet.</translation>
    </message>
    <message>
        <source>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. Don&apos;t worry, you can change the style for a font later.</source>
        <translation>Wählen Sie für jede Ihrer Schriften einen Stil. Sie erscheint dann im Ordner dieses Stils. Keine Sorge, den Stil einer Schrift können Sie später ändern.</translation>
    </message>
    <message numerus="yes">
        <source>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. We&apos;ve sorted %1 for you, but %2 need your eye. Don&apos;t worry, you can change the style for a font later.</source>
        <extracomment>The number of forms goes by %2.</extracomment>
        <translation>
            <numerusform>Wählen Sie für jede Ihrer Schriften einen Stil. Sie erscheint dann im Ordner dieses Stils. Lorva hat schon %1 zugeordnet, %2 braucht noch Ihren Blick. Keine Sorge, den Stil einer Schrift können Sie später ändern.</numerusform>
            <numerusform>Wählen Sie für jede Ihrer Schriften einen Stil. Sie erscheint dann im Ordner dieses Stils. Lorva hat schon %1 zugeordnet, %2 brauchen noch Ihren Blick. Keine Sorge, den Stil einer Schrift können Sie später ändern.</numerusform>
        </translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Begins the quiz.</extracomment>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Let&apos;s organize your fonts</source>
        <translation>Zeit, Ihre Schriften zu ordnen</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizStageView</name>
    <message>
        <source>Card %1 of %2. Press 1 to 6 to choose its style, Space to skip it, Backspace to take the last choice back.</source>
        <translation>Karte %1 von %2. Tasten 1 bis 6 wählen ihren Stil, die Leertaste überspringt sie, die Rücktaste nimmt die letzte Wahl zurück.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The card that is shown, and how many there are.</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Space skips a card. Backspace takes the last one back.</source>
        <translation>Leertaste überspringt eine Karte. Rücktaste nimmt die letzte Wahl zurück.</translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizViewController</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Font Quiz</source>
        <translation>Schriftenquiz</translation>
    </message>
    <message>
        <source>“%1” could not be put into %2: %3</source>
        <translation>„%1“ konnte nicht %2 zugeordnet werden: %3</translation>
    </message>
    <message>
        <source>The last choice could not be taken back: %1</source>
        <translation>Die letzte Wahl konnte nicht zurückgenommen werden: %1</translation>
    </message>
</context>
<context>
    <name>lorva::FontsSettingsTab</name>
    <message>
        <source>Watch Folder</source>
        <translation>Ordner überwachen</translation>
    </message>
    <message>
        <source>Remove Folder</source>
        <translation>Ordner entfernen</translation>
    </message>
    <message>
        <source>When activating fonts:</source>
        <translation>Beim Aktivieren von Schriften:</translation>
    </message>
    <message>
        <source>Ask every time</source>
        <translation>Jedes Mal fragen</translation>
    </message>
    <message>
        <source>Always copy to Fonts folder</source>
        <translation>Immer in den Schriftenordner kopieren</translation>
    </message>
    <message>
        <source>Always register in place</source>
        <translation>Immer am Speicherort registrieren</translation>
    </message>
    <message>
        <source>Watched Folders</source>
        <translation>Überwachte Ordner</translation>
    </message>
    <message>
        <source>Lorva scans these folders for font files and includes them in your library without installing them on your Mac.</source>
        <translation>Lorva sucht in diesen Ordnern nach Schriftdateien und nimmt sie in Ihre Bibliothek auf, ohne sie auf diesem Computer zu installieren.</translation>
    </message>
    <message>
        <source>Activating Fonts</source>
        <translation>Schriften aktivieren</translation>
    </message>
    <message>
        <source>Copying duplicates font files into your user Fonts folder. Registering activates fonts from their current location, but they deactivate if the source moves.</source>
        <translation>Kopieren legt die Schriftdateien ein zweites Mal in Ihrem Schriftenordner ab. Registrieren aktiviert Schriften an ihrem jetzigen Ort; wird die Quelle verschoben, sind sie nicht mehr aktiv.</translation>
    </message>
</context>
<context>
    <name>lorva::HueBar</name>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <translation>%1 Grad</translation>
    </message>
</context>
<context>
    <name>lorva::ImageIntake</name>
    <message>
        <source>“%1” is not there any more</source>
        <translation>„%1“ ist nicht mehr da</translation>
    </message>
    <message>
        <source>“%1” may not be read</source>
        <translation>„%1“ darf nicht gelesen werden</translation>
    </message>
    <message>
        <source>“%1” is no file</source>
        <translation>„%1“ ist keine Datei</translation>
    </message>
    <message>
        <source>“%1” is too large</source>
        <translation>„%1“ ist zu groß</translation>
    </message>
    <message>
        <source>“%1” could not be read</source>
        <translation>„%1“ konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Choose an Image</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>What was dropped is no picture</source>
        <translation>Was hierher gezogen wurde, ist kein Bild</translation>
    </message>
</context>
<context>
    <name>lorva::ImageThumbnail</name>
    <message>
        <source>Delete removes it.</source>
        <translation>Die Entf-Taste entfernt es.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>lorva::IndexingStatus</name>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>A headline, and the sentence below it; spoken.</extracomment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>lorva::InfoRowView</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Im Browser öffnen</translation>
    </message>
</context>
<context>
    <name>lorva::InfoValueText</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>lorva::InlineEditHandler</name>
    <message>
        <source>Sample text</source>
        <translation>Mustertext</translation>
    </message>
</context>
<context>
    <name>lorva::InspectorFeaturesView</name>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset Features and Axes</source>
        <translation>Funktionen und Achsen zurücksetzen</translation>
    </message>
    <message>
        <source>Axes</source>
        <extracomment>The variation axes of a font, such as Weight.</extracomment>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>No OpenType Features</source>
        <translation>Keine OpenType-Funktionen</translation>
    </message>
    <message>
        <source>This font doesn&apos;t expose any OpenType features.</source>
        <translation>Diese Schrift bietet keine OpenType-Funktionen.</translation>
    </message>
</context>
<context>
    <name>lorva::InstanceButton</name>
    <message>
        <source>Custom</source>
        <extracomment>Settings of a variable font that are none of its named instances.</extracomment>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Instance: %1</source>
        <translation>Instanz: %1</translation>
    </message>
    <message>
        <source>Instance</source>
        <extracomment>A named setting of a variable font, such as Condensed Bold.</extracomment>
        <translation>Instanz</translation>
    </message>
</context>
<context>
    <name>lorva::LineField</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaAppModel</name>
    <message>
        <source>New Collection</source>
        <translation>Neue Sammlung</translation>
    </message>
    <message>
        <source>Rename Collection</source>
        <translation>Sammlung umbenennen</translation>
    </message>
    <message>
        <source>Delete Collection</source>
        <translation>Sammlung löschen</translation>
    </message>
    <message>
        <source>Add to Collection</source>
        <translation>Zur Sammlung hinzufügen</translation>
    </message>
    <message>
        <source>Remove from Collection</source>
        <translation>Aus der Sammlung entfernen</translation>
    </message>
    <message>
        <source>Change Style</source>
        <translation>Stil ändern</translation>
    </message>
    <message>
        <source>New Style</source>
        <translation>Neuer Stil</translation>
    </message>
    <message>
        <source>Rename Style</source>
        <translation>Stil umbenennen</translation>
    </message>
    <message>
        <source>Delete Style</source>
        <translation>Stil löschen</translation>
    </message>
    <message>
        <source>Change Foundry</source>
        <translation>Gießerei ändern</translation>
    </message>
    <message>
        <source>Rename Foundry</source>
        <translation>Gießerei umbenennen</translation>
    </message>
    <message>
        <source>Hide Foundry</source>
        <translation>Gießerei ausblenden</translation>
    </message>
    <message>
        <source>Show Foundry</source>
        <translation>Gießerei einblenden</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaApplicationDelegate</name>
    <message>
        <source>All Fonts</source>
        <translation>Alle Schriften</translation>
    </message>
    <message>
        <source>Lorva is a better way to browse, test, and manage your fonts. Organize them into collections, test logo images next to text, and turn fonts on or off as needed.</source>
        <translation>Mit Lorva lassen sich Schriften besser ansehen, ausprobieren und verwalten. Ordnen Sie sie in Sammlungen, testen Sie Logos neben Text, schalten Sie Schriften nach Bedarf ein oder aus.</translation>
    </message>
    <message>
        <source>Made for people who can never have enough fonts.</source>
        <translation>Für alle, die nie genug Schriften haben können.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaRootSplitViewController</name>
    <message>
        <source>Organize Fonts</source>
        <translation>Schriften ordnen</translation>
    </message>
    <message>
        <source>Export Specimen</source>
        <translation>Schriftmuster exportieren</translation>
    </message>
</context>
<context>
    <name>lorva::LorvaSettingsViewModel</name>
    <message>
        <source>This folder is not watched any more.</source>
        <translation>Dieser Ordner wird nicht mehr überwacht.</translation>
    </message>
</context>
<context>
    <name>lorva::MainMenu</name>
    <message>
        <source>&amp;Lorva</source>
        <translation>&amp;Lorva</translation>
    </message>
    <message>
        <source>About Lorva</source>
        <translation>Über Lorva</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach neuen Versionen suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Organize Fonts…</source>
        <translation>Schriften ordnen&#xa0;…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>New Collection</source>
        <translation>Neue Sammlung</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ordner hinzufügen&#xa0;…</translation>
    </message>
    <message>
        <source>Scan Folders Again</source>
        <translation>Ordner erneut einlesen</translation>
    </message>
    <message>
        <source>Export Specimen…</source>
        <translation>Schriftmuster exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>%1 is what was done last, such as &quot;New Collection&quot;.</extracomment>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy as CSS</source>
        <translation>Als CSS kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Files That Failed…</source>
        <translation>Fehlgeschlagene Dateien&#xa0;…</translation>
    </message>
    <message>
        <source>Activation History…</source>
        <translation>Aktivierungsverlauf&#xa0;…</translation>
    </message>
    <message>
        <source>F&amp;onts</source>
        <extracomment>The titles of the menus, each with the letter that opens it.</extracomment>
        <translation>&amp;Schriften</translation>
    </message>
    <message>
        <source>Activate…</source>
        <translation>Aktivieren&#xa0;…</translation>
    </message>
    <message>
        <source>Activate Remaining Styles…</source>
        <translation>Übrige Schnitte aktivieren&#xa0;…</translation>
    </message>
    <message>
        <source>De-activate</source>
        <translation>Deaktivieren</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Grid</source>
        <extracomment>Shows the fonts as cards side by side.</extracomment>
        <translation>Raster</translation>
    </message>
    <message>
        <source>List</source>
        <extracomment>Shows the fonts as rows.</extracomment>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Larger Specimens</source>
        <translation>Schriftmuster vergrößern</translation>
    </message>
    <message>
        <source>Smaller Specimens</source>
        <translation>Schriftmuster verkleinern</translation>
    </message>
    <message>
        <source>Standard Specimen Size</source>
        <translation>Standardgröße der Schriftmuster</translation>
    </message>
    <message>
        <source>Back to All Cards</source>
        <translation>Zurück zu allen Karten</translation>
    </message>
    <message>
        <source>Next Family</source>
        <translation>Nächste Familie</translation>
    </message>
    <message>
        <source>Previous Family</source>
        <translation>Vorige Familie</translation>
    </message>
    <message>
        <source>Show Text</source>
        <translation>Text zeigen</translation>
    </message>
    <message>
        <source>Show Waterfall</source>
        <translation>Wasserfall zeigen</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>Vollbild beenden</translation>
    </message>
    <message numerus="yes">
        <source>Activate %n Fonts…</source>
        <translation>
            <numerusform>%n Schrift aktivieren&#xa0;…</numerusform>
            <numerusform>%n Schriften aktivieren&#xa0;…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>De-activate %n Fonts</source>
        <translation>
            <numerusform>%n Schrift deaktivieren</numerusform>
            <numerusform>%n Schriften deaktivieren</numerusform>
        </translation>
    </message>
    <message>
        <source>Lorva</source>
        <translation>Lorva</translation>
    </message>
    <message>
        <source>Version %1

Browse, test and organise all the fonts of this computer.</source>
        <translation>Version %1

Alle Schriften dieses Computers ansehen, ausprobieren und ordnen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>lorva::OnboardingOverlay</name>
    <message>
        <source>Welcome to Lorva</source>
        <translation>Willkommen bei Lorva</translation>
    </message>
    <message>
        <source>Letters of your fonts fall. Press any key to go on.</source>
        <translation>Buchstaben Ihrer Schriften fallen. Weiter mit einer beliebigen Taste.</translation>
    </message>
</context>
<context>
    <name>lorva::PanelLabel</name>
    <message>
        <source>%1.</source>
        <extracomment>A reason becomes a sentence of its own.</extracomment>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>lorva::PopupButton</name>
    <message>
        <source>%1 %2</source>
        <extracomment>A setting, and what is chosen for it; spoken.</extracomment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>lorva::ProjectSidebarViewController</name>
    <message>
        <source>Rename Collection…</source>
        <translation>Sammlung umbenennen&#xa0;…</translation>
    </message>
    <message>
        <source>Delete Collection</source>
        <translation>Sammlung löschen</translation>
    </message>
    <message>
        <source>Hide from Sidebar</source>
        <translation>In der Seitenleiste ausblenden</translation>
    </message>
    <message>
        <source>New Collection</source>
        <translation>Neue Sammlung</translation>
    </message>
    <message>
        <source>Activate Fonts…</source>
        <translation>Schriften aktivieren&#xa0;…</translation>
    </message>
    <message>
        <source>De-activate Fonts</source>
        <translation>Schriften deaktivieren</translation>
    </message>
    <message>
        <source>Rename Foundry…</source>
        <translation>Gießerei umbenennen&#xa0;…</translation>
    </message>
    <message>
        <source>Hide Foundry</source>
        <translation>Gießerei ausblenden</translation>
    </message>
    <message>
        <source>This hides the foundry from the sidebar.</source>
        <translation>Die Gießerei erscheint dann nicht mehr in der Seitenleiste.</translation>
    </message>
    <message>
        <source>Hidden Foundries</source>
        <translation>Ausgeblendete Gießereien</translation>
    </message>
    <message>
        <source>Create an empty collection.</source>
        <translation>Leere Sammlung anlegen.</translation>
    </message>
</context>
<context>
    <name>lorva::ReportSheet</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>lorva::SaturationField</name>
    <message>
        <source>Saturation and Brightness</source>
        <translation>Sättigung und Helligkeit</translation>
    </message>
    <message>
        <source>Saturation %1 %, brightness %2 %</source>
        <translation>Sättigung %1 %, Helligkeit %2 %</translation>
    </message>
</context>
<context>
    <name>lorva::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarFooter</name>
    <message>
        <source>Add Folder…</source>
        <translation>Ordner hinzufügen&#xa0;…</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarModel</name>
    <message numerus="yes">
        <source>%1, %Ln fonts</source>
        <extracomment>A row of the sidebar, and how many fonts it leads to; spoken.</extracomment>
        <translation>
            <numerusform>%1, %Ln Schrift</numerusform>
            <numerusform>%1, %Ln Schriften</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::SidebarOutlineView</name>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
</context>
<context>
    <name>lorva::SidebarRowCellView</name>
    <message>
        <source>Name</source>
        <extracomment>Of a collection or foundry that is being renamed.</extracomment>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>lorva::SpecimenSlider</name>
    <message>
        <source>Size</source>
        <extracomment>Of the letters.</extracomment>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Weight</source>
        <extracomment>How heavy letters are, from Thin to Black.</extracomment>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Letter Spacing</source>
        <translation>Laufweite</translation>
    </message>
    <message>
        <source>Specimen size</source>
        <translation>Größe der Schriftmuster</translation>
    </message>
    <message>
        <source>Specimen weight</source>
        <translation>Gewicht der Schriftmuster</translation>
    </message>
    <message>
        <source>Preview size</source>
        <translation>Größe der Vorschau</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Laufweite</translation>
    </message>
    <message>
        <source>%1 points</source>
        <extracomment>The size of letters; spoken.</extracomment>
        <translation>%1 Punkt</translation>
    </message>
    <message>
        <source>%1 em</source>
        <translation>%1 em</translation>
    </message>
</context>
<context>
    <name>lorva::StyleRowPill</name>
    <message>
        <source>Activate…</source>
        <extracomment>A small button that switches one style of a family on.</extracomment>
        <translation>Aktivieren&#xa0;…</translation>
    </message>
    <message>
        <source>De-activate</source>
        <extracomment>A small button that switches one style of a family off; &quot;Active&quot; says that it is on.</extracomment>
        <translation>Deaktivieren</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>De-activate %1</source>
        <translation>%1 deaktivieren</translation>
    </message>
    <message>
        <source>Activate %1</source>
        <translation>%1 aktivieren</translation>
    </message>
</context>
<context>
    <name>lorva::StyleRowView</name>
    <message>
        <source>Regular</source>
        <extracomment>A style without a name of its own, as fonts call it.</extracomment>
        <translation>Regular</translation>
    </message>
    <message>
        <source>“%1” could not be loaded.</source>
        <translation>„%1“ konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>In one file with %1: they are activated and de-activated together.</source>
        <translation>In einer Datei mit %1: Sie werden zusammen aktiviert und deaktiviert.</translation>
    </message>
    <message>
        <source>Shown in the preview.</source>
        <translation>In der Vorschau zu sehen.</translation>
    </message>
    <message>
        <source>with %1</source>
        <extracomment>%1 are the styles that are in the same file as this one.</extracomment>
        <translation>mit %1</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>A style that the system has switched on, which the user cannot change.</extracomment>
        <translation>System</translation>
    </message>
</context>
<context>
    <name>lorva::StyleRowsView</name>
    <message>
        <source>Styles</source>
        <translation>Schnitte</translation>
    </message>
</context>
<context>
    <name>lorva::UpdateCommands</name>
    <message>
        <source>Looking for a newer release…</source>
        <translation>Nach einer neueren Version suchen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>lorva::VariantBar</name>
    <message>
        <source>Variant</source>
        <extracomment>One of the widths or optical sizes of a family.</extracomment>
        <translation>Variante</translation>
    </message>
    <message>
        <source>More Variants</source>
        <translation>Weitere Varianten</translation>
    </message>
    <message numerus="yes">
        <source>%n More</source>
        <extracomment>So many variants of a family that have no room beside the others.</extracomment>
        <translation>
            <numerusform>%n weitere</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::WatchedFolderDelegate</name>
    <message>
        <source>No fonts</source>
        <translation>Keine Schriften</translation>
    </message>
    <message numerus="yes">
        <source>%1 fonts</source>
        <translation>
            <numerusform>%1 Schrift</numerusform>
            <numerusform>%1 Schriften</numerusform>
        </translation>
    </message>
    <message>
        <source>Not there</source>
        <extracomment>A folder that is missing.</extracomment>
        <translation>Nicht da</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A folder, and how many fonts are in it; spoken.</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lorva::WatchedFolderList</name>
    <message>
        <source>Watched Folders</source>
        <translation>Überwachte Ordner</translation>
    </message>
    <message>
        <source>No folders yet. Drop folders of fonts here, or press +.</source>
        <translation>Noch keine Ordner. Ordner mit Schriften hierher ziehen oder + drücken.</translation>
    </message>
</context>
<context>
    <name>lorva::WaterfallView</name>
    <message>
        <source>Waterfall</source>
        <translation>Wasserfall</translation>
    </message>
</context>
<context>
    <name>lorvactl</name>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>unbekannte Option %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nimmt keinen Wert</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>%1 takes a whole number from %2 to %3</source>
        <translation>%1 nimmt eine ganze Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>%1; see %2</source>
        <translation>%1; siehe %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 Byte</numerusform>
            <numerusform>%1 Bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>not there yet; the first change makes it</source>
        <translation>noch nicht da; die erste Änderung legt sie an</translation>
    </message>
    <message>
        <source>changes can be written</source>
        <translation>Änderungen können geschrieben werden</translation>
    </message>
    <message>
        <source>not there yet</source>
        <translation>noch nicht da</translation>
    </message>
    <message>
        <source>one JSON object instead</source>
        <translation>stattdessen ein JSON-Objekt</translation>
    </message>
    <message>
        <source>collection %1 deleted</source>
        <translation>Sammlung %1 gelöscht</translation>
    </message>
    <message numerus="yes">
        <source>collection %1 created with %n families</source>
        <translation>
            <numerusform>Sammlung %1 mit %n Familie angelegt</numerusform>
            <numerusform>Sammlung %1 mit %n Familien angelegt</numerusform>
        </translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Vollständiger Name</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>there is no family %1</source>
        <translation>es gibt keine Familie %1</translation>
    </message>
    <message>
        <source>unknown verb %1</source>
        <translation>unbekanntes Verb %1</translation>
    </message>
    <message>
        <source>there is no collection %1</source>
        <translation>es gibt keine Sammlung %1</translation>
    </message>
    <message>
        <source>there is a collection %1 already</source>
        <translation>es gibt schon eine Sammlung %1</translation>
    </message>
    <message>
        <source>%1 is not in collection %2</source>
        <translation>%1 ist nicht in der Sammlung %2</translation>
    </message>
    <message>
        <source>there is no style %1</source>
        <translation>es gibt keinen Stil %1</translation>
    </message>
    <message>
        <source>there is no foundry %1</source>
        <translation>es gibt keine Gießerei %1</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>diese Hilfe zeigen</translation>
    </message>
    <message>
        <source>nothing to change</source>
        <translation>nichts zu ändern</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>es fehlt ein Befehl</translation>
    </message>
    <message>
        <source>unknown command %1</source>
        <translation>unbekannter Befehl %1</translation>
    </message>
    <message>
        <source>Read the cache</source>
        <translation>Zwischenspeicher lesen</translation>
    </message>
    <message>
        <source>Find files</source>
        <translation>Dateien suchen</translation>
    </message>
    <message>
        <source>Read faces</source>
        <translation>Schnitte lesen</translation>
    </message>
    <message>
        <source>Identify families</source>
        <translation>Familien bestimmen</translation>
    </message>
    <message>
        <source>Group families</source>
        <translation>Familien gruppieren</translation>
    </message>
    <message>
        <source>Fonts: %1 found, %2 read, %3 unchanged</source>
        <translation>Schriften: %1 gefunden, %2 gelesen, %3 unverändert</translation>
    </message>
    <message numerus="yes">
        <source>%1 styles</source>
        <extracomment>the part &quot;%1 with %2&quot; of what a scan found</extracomment>
        <translation>
            <numerusform>%1 Schnitt</numerusform>
            <numerusform>%1 Schnitten</numerusform>
        </translation>
    </message>
    <message>
        <source>Families: %1 with %2, %3 newly identified</source>
        <translation>Familien: %1 mit %2, %3 neu bestimmt</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>Insgesamt</translation>
    </message>
    <message>
        <source>Asks the makers of Lorva over the network whether there is a newer release. Nothing is downloaded or installed. One line tells that this is the newest; of a newer one the first line tells version, day and page, and the second, if there is one, what is new. The exit status is 0 in both cases, and 1 when neither could be found out, as in a build whose updates come with the system&apos;s.</source>
        <translation>Fragt die Macher von Lorva über das Netz, ob es eine neuere Version gibt. Nichts wird heruntergeladen oder installiert. Eine Zeile sagt, dass diese die neueste ist; von einer neueren nennt die erste Zeile Version, Tag und Seite, und die zweite, wenn es eine gibt, was neu ist. Der Rückgabewert ist in beiden Fällen 0, und 1, wenn weder das eine noch das andere herauszufinden war, wie bei einem Programm, dessen Neuerungen mit denen des Systems kommen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <extracomment>a name within a message, in the quotation marks of the language</extracomment>
        <translation>„%1“</translation>
    </message>
    <message numerus="yes">
        <source>%n families</source>
        <translation>
            <numerusform>%n Familie</numerusform>
            <numerusform>%n Familien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n font files</source>
        <translation>
            <numerusform>%n Schriftdatei</numerusform>
            <numerusform>%n Schriftdateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Makes fonts of watched folders, and font files, available to every program. One line for each file: &quot;copied&quot;, &quot;registered&quot; or, when a file of its name is there already, &quot;skipped&quot;; a tab; the file. &quot;also&quot;, a tab, a family: it has faces in these files, too. Nothing is replaced.</source>
        <translation>Macht Schriften überwachter Ordner und Schriftdateien für alle Programme verfügbar. Eine Zeile für jede Datei: „copied“, „registered“ oder, wenn schon eine Datei ihres Namens da ist, „skipped“; ein Tabulator; die Datei. „also“, ein Tabulator, eine Familie: auch sie hat Schnitte in diesen Dateien. Nichts wird ersetzt.</translation>
    </message>
    <message>
        <source>A word with a slash is a file, every other one a family; a lone - reads families from standard input, one per line.</source>
        <translation>Ein Wort mit Schrägstrich ist eine Datei, jedes andere eine Familie; ein einzelnes - liest Familien von der Standardeingabe, eine pro Zeile.</translation>
    </message>
    <message>
        <source>copy the files into your Fonts folder: works even if the originals move or go offline</source>
        <translation>die Dateien in Ihren Schriftenordner kopieren: funktioniert auch, wenn die Originale verschoben werden oder offline sind</translation>
    </message>
    <message>
        <source>activate them where they are, for as long as they stay there</source>
        <translation>sie dort aktivieren, wo sie sind, solange sie dort bleiben</translation>
    </message>
    <message>
        <source>(without --method, the one chosen as the default)</source>
        <translation>(ohne --method das, was als Standard gewählt ist)</translation>
    </message>
    <message>
        <source>the families of this collection; may be given more than once</source>
        <translation>die Familien dieser Sammlung; mehrfach möglich</translation>
    </message>
    <message>
        <source>take in the fonts below DIR too; may be given more than once</source>
        <translation>auch die Schriften unter DIR aufnehmen; mehrfach möglich</translation>
    </message>
    <message>
        <source>only tell what would be done</source>
        <translation>nur sagen, was geschähe</translation>
    </message>
    <message>
        <source>one JSON object instead of lines</source>
        <translation>ein JSON-Objekt statt Zeilen</translation>
    </message>
    <message>
        <source>--method takes copy or register</source>
        <translation>--method nimmt copy oder register</translation>
    </message>
    <message>
        <source>activate needs --method copy or --method register, as no default is chosen</source>
        <translation>activate braucht --method copy oder --method register, da kein Standard gewählt ist</translation>
    </message>
    <message>
        <source>registered, but its link is missing, so that no program sees it; the next activation makes it again</source>
        <translation>registriert, aber die Verknüpfung fehlt, sodass kein Programm sie sieht; die nächste Aktivierung legt sie wieder an</translation>
    </message>
    <message>
        <source>registered, but gone; its registration will be withdrawn</source>
        <translation>registriert, aber nicht mehr da; die Registrierung wird aufgehoben</translation>
    </message>
    <message>
        <source>active by a link that the books do not know; they will take it in</source>
        <translation>aktiv durch eine Verknüpfung, die nicht verzeichnet ist; sie wird verzeichnet</translation>
    </message>
    <message>
        <source>gone, and the books do not know its link, which will be removed</source>
        <translation>nicht mehr da, und die Verknüpfung ist nicht verzeichnet; sie wird entfernt</translation>
    </message>
    <message>
        <source>a copy that has gone from the Fonts folder; the books will forget it</source>
        <translation>eine Kopie, die aus dem Schriftenordner verschwunden ist; sie wird nicht länger verzeichnet</translation>
    </message>
    <message>
        <source>another program is switching fonts on or off now</source>
        <translation>ein anderes Programm schaltet gerade Schriften ein oder aus</translation>
    </message>
    <message>
        <source>a program ended while it switched fonts on or off; the next activation finishes its books</source>
        <translation>ein Programm endete, während es Schriften ein- oder ausschaltete; die nächste Aktivierung vollendet die Aufzeichnungen</translation>
    </message>
    <message>
        <source>not there now; its place in the list is kept</source>
        <translation>zurzeit nicht da; der Platz in der Liste bleibt erhalten</translation>
    </message>
    <message>
        <source>on a volume where others&apos; changes are not noticed; the window looks when it becomes active</source>
        <translation>auf einem Laufwerk, auf dem fremde Änderungen nicht bemerkt werden; das Fenster sieht nach, wenn es aktiv wird</translation>
    </message>
    <message>
        <source>watched</source>
        <translation>überwacht</translation>
    </message>
    <message>
        <source>lies in %1, which is watched too; each font counts once</source>
        <translation>liegt in %1, das auch überwacht wird; jede Schrift zählt einmal</translation>
    </message>
    <message>
        <source>books and disk agree: %1 copied, %2 registered</source>
        <translation>Aufzeichnungen und Dateien stimmen überein: %1 kopiert, %2 registriert</translation>
    </message>
    <message numerus="yes">
        <source>%n font files outside the Fonts folder registered in place: programs in sandboxes, such as those from Flatpak or Snap, cannot see what is not copied</source>
        <translation>
            <numerusform>%n Schriftdatei außerhalb des Schriftenordners ist am Speicherort registriert: Programme in Sandboxen, wie die aus Flatpak oder Snap, sehen nicht, was nicht kopiert ist</numerusform>
            <numerusform>%n Schriftdateien außerhalb des Schriftenordners sind am Speicherort registriert: Programme in Sandboxen, wie die aus Flatpak oder Snap, sehen nicht, was nicht kopiert ist</numerusform>
        </translation>
    </message>
    <message>
        <source>--collection takes no empty name</source>
        <translation>--collection nimmt keinen leeren Namen</translation>
    </message>
    <message>
        <source>%1; the file of that name is ./%2</source>
        <translation>%1; die Datei dieses Namens ist ./%2</translation>
    </message>
    <message>
        <source>this machine has no family %1</source>
        <translation>dieser Computer hat keine Familie %1</translation>
    </message>
    <message>
        <source>this is a folder; name the font files in it</source>
        <translation>dies ist ein Ordner; nennen Sie die Schriftdateien darin</translation>
    </message>
    <message>
        <source>it holds no font that can be read</source>
        <translation>sie enthält keine lesbare Schrift</translation>
    </message>
    <message>
        <source>standard input names no family</source>
        <translation>die Standardeingabe nennt keine Familie</translation>
    </message>
    <message>
        <source>%1 takes a number from %2 to %3</source>
        <translation>%1 nimmt eine Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>%1 takes UTF-8 text</source>
        <translation>%1 nimmt UTF-8-Text</translation>
    </message>
    <message>
        <source>Lists the collections, one line each: the name, a tab, the number of families; or the families of one, in their order. Changes are seen at once by a window that is open.</source>
        <translation>Listet die Sammlungen auf, eine pro Zeile: der Name, ein Tabulator, die Zahl der Familien; oder die Familien einer Sammlung in ihrer Reihenfolge. Ein offenes Fenster zeigt Änderungen sofort.</translation>
    </message>
    <message>
        <source>puts families into a collection, at its end</source>
        <translation>hängt Familien an eine Sammlung an</translation>
    </message>
    <message>
        <source>takes families out of it</source>
        <translation>nimmt Familien heraus</translation>
    </message>
    <message>
        <source>makes these families its members, in this order, and no others</source>
        <translation>macht genau diese Familien in dieser Reihenfolge zu ihren Mitgliedern</translation>
    </message>
    <message>
        <source>COLLECTION is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of a collection; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>COLLECTION ist ihre ID, die --json zeigt, oder ihr Name, groß oder klein, sofern er nicht auf mehrere passt. FAMILY ist der Name einer Familie dieses Computers oder einer Sammlung; ein einzelnes - liest Namen von der Standardeingabe, einen pro Zeile. Ein Befehl wird ganz ausgeführt oder gar nicht.</translation>
    </message>
    <message>
        <source>JSON instead of lines</source>
        <translation>JSON statt Zeilen</translation>
    </message>
    <message>
        <source>cannot write the output: %1</source>
        <translation>die Ausgabe kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Withdraws fonts from all programs. Registrations end, and copies in the Fonts folder go to the Trash; your original files are not touched. Where Lorva does not know the original, the file stays unless --to says where it is to go. One line for each file: &quot;withdrawn&quot;, &quot;trashed&quot; or &quot;moved&quot;; a tab; the file. &quot;also&quot;, a tab, a family: it has faces in these files, too.</source>
        <translation>Zieht Schriften aus allen Programmen zurück. Registrierungen werden aufgehoben, Kopien im Schriftenordner kommen in den Papierkorb; Ihre Originaldateien bleiben unberührt. Kennt Lorva das Original nicht, bleibt die Datei, sofern --to nicht sagt, wohin sie soll. Eine Zeile für jede Datei: „withdrawn“, „trashed“ oder „moved“; ein Tabulator; die Datei. „also“, ein Tabulator, eine Familie: auch sie hat Schnitte in diesen Dateien.</translation>
    </message>
    <message>
        <source>move the copies there instead, under a free name; made if it is missing</source>
        <translation>die Kopien stattdessen dorthin verschieben, unter einem freien Namen; wird angelegt, wenn er fehlt</translation>
    </message>
    <message>
        <source>--to needs the name of a folder</source>
        <translation>--to braucht den Namen eines Ordners</translation>
    </message>
    <message>
        <source>Lorva didn&apos;t install it, so the original is not known; --to DIR moves it</source>
        <translation>Lorva hat sie nicht installiert und kennt daher das Original nicht; --to DIR verschiebt sie</translation>
    </message>
    <message>
        <source>%1, preferences: %2</source>
        <translation>%1, Einstellungen: %2</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>changes cannot be written: %1</source>
        <translation>Änderungen können nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>damaged preferences that were moved aside</source>
        <translation>beschädigte Einstellungen, die beiseitegelegt wurden</translation>
    </message>
    <message>
        <source>%1, kept because it could not be read when it was replaced</source>
        <translation>%1, behalten, weil sie beim Ersetzen nicht lesbar war</translation>
    </message>
    <message>
        <source>%1, unknown to this version, which leaves it alone</source>
        <translation>%1, dieser Version unbekannt und von ihr nicht angerührt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a file, and what is wrong with it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, cannot be read: %2; it counts as absent, and is kept when it is replaced</source>
        <translation>%1, kann nicht gelesen werden: %2; gilt als nicht vorhanden und wird beim Ersetzen behalten</translation>
    </message>
    <message>
        <source>of no use, and replaced by the next scan: %1</source>
        <translation>unbrauchbar; der nächste Scan ersetzt ihn: %1</translation>
    </message>
    <message>
        <source>of no use, and replaced when the window has next read the fonts: %1</source>
        <translation>unbrauchbar; wird ersetzt, wenn das Fenster die Schriften das nächste Mal gelesen hat: %1</translation>
    </message>
    <message>
        <source>all families that it names are in the last catalog: %1</source>
        <translation>alle genannten Familien stehen im letzten Katalog: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n of the %1 families that it names are not in the last catalog</source>
        <translation>
            <numerusform>%n der %1 genannten Familien steht nicht im letzten Katalog</numerusform>
            <numerusform>%n der %1 genannten Familien stehen nicht im letzten Katalog</numerusform>
        </translation>
    </message>
    <message>
        <source>Tells how preferences, caches, active fonts and watched folders fare, and changes nothing. One line for each finding: &quot;ok&quot;, &quot;note&quot; or &quot;wrong&quot;, a tab, the file or preference, a tab, what there is to say. A note is worth knowing, but nothing is out of order: preferences of another version, damaged ones that were kept beside new ones, a cache of no use that will be written anew, books that the next activation brings into line with the disk.</source>
        <translation>Sagt, wie es um Einstellungen, Zwischenspeicher, aktive Schriften und überwachte Ordner steht, und ändert nichts. Eine Zeile für jeden Befund: „ok“, „note“ oder „wrong“, ein Tabulator, die Datei oder Einstellung, ein Tabulator, was dazu zu sagen ist. Ein „note“ ist wissenswert, aber alles ist in Ordnung: Einstellungen einer anderen Version, beschädigte, die neben neuen behalten wurden, ein unbrauchbarer Zwischenspeicher, der neu geschrieben wird, Aufzeichnungen, die die nächste Aktivierung mit den Dateien in Einklang bringt.</translation>
    </message>
    <message>
        <source>Exit status: 0 all is well, 1 something is wrong.</source>
        <translation>Rückgabewert: 0 alles in Ordnung, 1 etwas stimmt nicht.</translation>
    </message>
    <message>
        <source>doctor takes no words</source>
        <translation>doctor nimmt keine Wörter</translation>
    </message>
    <message>
        <source>collection %1: %2</source>
        <translation>Sammlung %1: %2</translation>
    </message>
    <message>
        <source>style %1 deleted</source>
        <translation>Stil %1 gelöscht</translation>
    </message>
    <message numerus="yes">
        <source>style %1 created with %n families</source>
        <translation>
            <numerusform>Stil %1 mit %n Familie angelegt</numerusform>
            <numerusform>Stil %1 mit %n Familien angelegt</numerusform>
        </translation>
    </message>
    <message>
        <source>style %1: %2</source>
        <translation>Stil %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n families joined</source>
        <translation>
            <numerusform>%n Familie hinzugekommen</numerusform>
            <numerusform>%n Familien hinzugekommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n families left</source>
        <translation>
            <numerusform>%n Familie weggefallen</numerusform>
            <numerusform>%n Familien weggefallen</numerusform>
        </translation>
    </message>
    <message>
        <source>renamed from %1</source>
        <translation>umbenannt, vorher %1</translation>
    </message>
    <message>
        <source>family %1: of the foundry that its fonts name</source>
        <translation>Familie %1: bei der Gießerei, die ihre Schriften nennen</translation>
    </message>
    <message>
        <source>family %1: of no foundry</source>
        <translation>Familie %1: bei keiner Gießerei</translation>
    </message>
    <message>
        <source>family %1: of the foundry %2</source>
        <translation>Familie %1: bei der Gießerei %2</translation>
    </message>
    <message>
        <source>foundry %1: called %2</source>
        <translation>Gießerei %1: heißt %2</translation>
    </message>
    <message>
        <source>foundry %1: called by its own name</source>
        <translation>Gießerei %1: trägt wieder ihren eigenen Namen</translation>
    </message>
    <message>
        <source>foundry %1: hidden</source>
        <translation>Gießerei %1: ausgeblendet</translation>
    </message>
    <message>
        <source>foundry %1: shown again</source>
        <translation>Gießerei %1: wieder eingeblendet</translation>
    </message>
    <message>
        <source>display settings of all fonts: taken in</source>
        <translation>Anzeigeeinstellungen aller Schriften: übernommen</translation>
    </message>
    <message>
        <source>display settings of collection %1: taken in</source>
        <translation>Anzeigeeinstellungen der Sammlung %1: übernommen</translation>
    </message>
    <message>
        <source>Writes collections, styles, what you said about foundries, and display settings as one JSON document, for another machine or for version control. Equal organisations give equal bytes.</source>
        <translation>Schreibt Sammlungen, Stile, Ihre Angaben zu Gießereien und Anzeigeeinstellungen als ein JSON-Dokument, für einen anderen Computer oder eine Versionsverwaltung. Gleiche Ordnungen ergeben gleiche Bytes.</translation>
    </message>
    <message>
        <source>the file to write, whole or not at all; standard output if not given</source>
        <translation>die zu schreibende Datei, ganz oder gar nicht; ohne Angabe die Standardausgabe</translation>
    </message>
    <message>
        <source>export takes a file as -o FILE</source>
        <translation>export nimmt eine Datei als -o FILE</translation>
    </message>
    <message>
        <source>TrueType</source>
        <translation>TrueType</translation>
    </message>
    <message>
        <source>PostScript</source>
        <translation>PostScript</translation>
    </message>
    <message>
        <source>OpenType (CFF)</source>
        <translation>OpenType (CFF)</translation>
    </message>
    <message>
        <source>OpenType (TrueType)</source>
        <translation>OpenType (TrueType)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>%1: holds no face that can be read</source>
        <translation>%1: enthält keinen lesbaren Schnitt</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>PostScript name</source>
        <translation>PostScript-Name</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Designer</source>
        <translation>Designer</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>a title before a value, in a list of them</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 (trait %2)</source>
        <translation>%1 (Merkmal %2)</translation>
    </message>
    <message>
        <source>%1 (slant %2)</source>
        <translation>%1 (Neigung %2)</translation>
    </message>
    <message>
        <source>default %1</source>
        <extracomment>the value of an axis of a variable font</extracomment>
        <translation>Standard %1</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>verborgen</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Achse</translation>
    </message>
    <message>
        <source>linked with %1</source>
        <translation>verknüpft mit %1</translation>
    </message>
    <message>
        <source>left out of names</source>
        <translation>nicht im Namen</translation>
    </message>
    <message>
        <source>Axis value</source>
        <translation>Achsenwert</translation>
    </message>
    <message>
        <source>Instance</source>
        <translation>Instanz</translation>
    </message>
    <message>
        <source>Name %1</source>
        <translation>Name %1</translation>
    </message>
    <message>
        <source>Names:</source>
        <translation>Namen:</translation>
    </message>
    <message>
        <source>ascender %1, descender %2, line gap %3</source>
        <translation>Oberlänge %1, Unterlänge %2, Zeilenlücke %3</translation>
    </message>
    <message>
        <source>position %1, thickness %2</source>
        <translation>Position %1, Stärke %2</translation>
    </message>
    <message>
        <source>size %1 × %2, offset %3, %4</source>
        <translation>Größe %1 × %2, Versatz %3, %4</translation>
    </message>
    <message>
        <source>Units per em</source>
        <translation>Einheiten pro Geviert</translation>
    </message>
    <message>
        <source>Heights</source>
        <translation>Höhen</translation>
    </message>
    <message>
        <source>capitals %1, x %2</source>
        <translation>Versalien %1, x %2</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>OS/2 typo, used</source>
        <translation>OS/2 typo, benutzt</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstreichung</translation>
    </message>
    <message>
        <source>Strikeout</source>
        <translation>Durchstreichung</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>Tiefgestellt</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>Hochgestellt</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>Revision</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Anbieter</translation>
    </message>
    <message>
        <source>Embedding</source>
        <translation>Einbettung</translation>
    </message>
    <message>
        <source>Weight class</source>
        <translation>Gewichtsklasse</translation>
    </message>
    <message>
        <source>Width class</source>
        <translation>Breitenklasse</translation>
    </message>
    <message>
        <source>Average width</source>
        <translation>Mittlere Breite</translation>
    </message>
    <message>
        <source>Widest advance</source>
        <translation>Größte Dickte</translation>
    </message>
    <message>
        <source>Italic angle</source>
        <translation>Kursivwinkel</translation>
    </message>
    <message>
        <source>Monospaced</source>
        <translation>Dicktengleich</translation>
    </message>
    <message>
        <source>Smallest pixels</source>
        <translation>Kleinste Pixelgröße</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more ranges</source>
        <translation>
            <numerusform>und %1 weiterer Bereich</numerusform>
            <numerusform>und %1 weitere Bereiche</numerusform>
        </translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>on</source>
        <extracomment>a feature of a font that is switched on unless somebody switches it off</extracomment>
        <translation>an</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <extracomment>at the end of a list of colours</extracomment>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>for light backgrounds</source>
        <translation>für helle Hintergründe</translation>
    </message>
    <message>
        <source>for dark backgrounds</source>
        <translation>für dunkle Hintergründe</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Colour tables</source>
        <translation>Farbtabellen</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Tables, bytes</source>
        <translation>Tabellen, Bytes</translation>
    </message>
    <message>
        <source>Glyph</source>
        <translation>Glyphe</translation>
    </message>
    <message>
        <source>Face %1</source>
        <extracomment>one of the fonts in a file; %1: its number</extracomment>
        <translation>Schnitt %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Glyphs</source>
        <translation>Glyphen</translation>
    </message>
    <message>
        <source>Family %1</source>
        <translation>Familie %1</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>Schriftsysteme</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Primary script</source>
        <translation>Hauptschriftsystem</translation>
    </message>
    <message>
        <source>Other name</source>
        <translation>Anderer Name</translation>
    </message>
    <message>
        <source>several families are called %1: %2</source>
        <translation>mehrere Familien heißen %1: %2</translation>
    </message>
    <message>
        <source>Lists the watched folders, whose fonts belong to your library: the folder, a tab, the number of font files in it, or &quot;not there&quot;. Changes are seen at once by a window that is open; no file is touched. A command is done whole or not at all.</source>
        <translation>Listet die überwachten Ordner auf, deren Schriften zu Ihrer Bibliothek gehören: der Ordner, ein Tabulator, die Zahl der Schriftdateien darin oder „not there“. Ein offenes Fenster zeigt Änderungen sofort; keine Datei wird angerührt. Ein Befehl wird ganz ausgeführt oder gar nicht.</translation>
    </message>
    <message>
        <source>watches folders; one that is watched already stays as it is</source>
        <translation>überwacht Ordner; ein schon überwachter bleibt, wie er ist</translation>
    </message>
    <message>
        <source>ends that; what was activated from there stays active</source>
        <translation>beendet das; was von dort aktiviert wurde, bleibt aktiv</translation>
    </message>
    <message>
        <source>ID is what --json shows.</source>
        <translation>ID ist das, was --json zeigt.</translation>
    </message>
    <message>
        <source>one JSON array of folders instead of lines; add and remove show what they added or removed</source>
        <translation>ein JSON-Array von Ordnern statt Zeilen; add und remove zeigen, was sie hinzugefügt oder entfernt haben</translation>
    </message>
    <message>
        <source>list takes fewer words</source>
        <translation>list nimmt weniger Wörter</translation>
    </message>
    <message>
        <source>add takes no empty name</source>
        <translation>add nimmt keinen leeren Namen</translation>
    </message>
    <message>
        <source>the path %1 is no UTF-8 text</source>
        <translation>der Pfad %1 ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>remove takes no empty name</source>
        <translation>remove nimmt keinen leeren Namen</translation>
    </message>
    <message>
        <source>there is no watched folder %1</source>
        <translation>es gibt keinen überwachten Ordner %1</translation>
    </message>
    <message>
        <source>%1 needs a folder</source>
        <translation>%1 braucht einen Ordner</translation>
    </message>
    <message>
        <source>Lists the foundries of this machine&apos;s fonts with two families at least, corrected by what you said, one line each: the name, a tab, the number of families; or the families of one. Changes are seen at once by a window that is open.</source>
        <translation>Listet die Gießereien der Schriften dieses Computers mit mindestens zwei Familien auf, nach Ihren Angaben berichtigt, eine pro Zeile: der Name, ein Tabulator, die Zahl der Familien; oder die Familien einer Gießerei. Ein offenes Fenster zeigt Änderungen sofort.</translation>
    </message>
    <message>
        <source>shows the foundry under another name, or under its own with --original</source>
        <translation>zeigt die Gießerei unter einem anderen Namen oder mit --original unter ihrem eigenen</translation>
    </message>
    <message>
        <source>hides it, its families stay in the library; list --hidden shows such ones</source>
        <translation>blendet sie aus, ihre Familien bleiben in der Bibliothek; list --hidden zeigt solche</translation>
    </message>
    <message>
        <source>brings it back</source>
        <translation>blendet sie wieder ein</translation>
    </message>
    <message>
        <source>moves families to it, whatever their fonts say</source>
        <translation>ordnet ihr Familien zu, was auch immer deren Schriften sagen</translation>
    </message>
    <message>
        <source>takes families out of it; they are of no foundry then</source>
        <translation>nimmt Familien heraus; sie gehören dann zu keiner Gießerei</translation>
    </message>
    <message>
        <source>makes these families its own; others that their fonts count to it are of no foundry then</source>
        <translation>macht diese Familien zu den ihren; andere, die ihre Schriften zu ihr zählen, gehören dann zu keiner Gießerei</translation>
    </message>
    <message>
        <source>lets the fonts of families say it again</source>
        <translation>lässt wieder die Schriften von Familien darüber entscheiden</translation>
    </message>
    <message>
        <source>FOUNDRY is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of one that you sorted; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>FOUNDRY ist ihre ID, die --json zeigt, oder ihr Name, groß oder klein, sofern er nicht auf mehrere passt. FAMILY ist der Name einer Familie dieses Computers oder einer, die Sie zugeordnet haben; ein einzelnes - liest Namen von der Standardeingabe, einen pro Zeile. Ein Befehl wird ganz ausgeführt oder gar nicht.</translation>
    </message>
    <message>
        <source>a foundry comes from the fonts and cannot be created; rename one, or add families to one</source>
        <translation>eine Gießerei kommt aus den Schriften und kann nicht angelegt werden; benennen Sie eine um oder ordnen Sie einer Familien zu</translation>
    </message>
    <message>
        <source>rename needs either a new name or --original</source>
        <translation>rename braucht entweder einen neuen Namen oder --original</translation>
    </message>
    <message>
        <source>no fonts of this machine are of the foundry %1</source>
        <translation>keine Schriften dieses Computers sind von der Gießerei %1</translation>
    </message>
    <message>
        <source>there is more than one collection %1; their ids: %2</source>
        <translation>es gibt mehr als eine Sammlung %1; ihre IDs: %2</translation>
    </message>
    <message>
        <source>there is more than one style %1; their ids: %2</source>
        <translation>es gibt mehr als einen Stil %1; ihre IDs: %2</translation>
    </message>
    <message>
        <source>there is a style %1 already</source>
        <translation>es gibt schon einen Stil %1</translation>
    </message>
    <message>
        <source>%1 is not in style %2</source>
        <translation>%1 ist nicht im Stil %2</translation>
    </message>
    <message>
        <source>there is more than one foundry %1; their ids: %2</source>
        <translation>es gibt mehr als eine Gießerei %1; ihre IDs: %2</translation>
    </message>
    <message>
        <source>there is a foundry %1 already</source>
        <translation>es gibt schon eine Gießerei %1</translation>
    </message>
    <message>
        <source>%1 is not in foundry %2</source>
        <translation>%1 ist nicht bei der Gießerei %2</translation>
    </message>
    <message>
        <source>take in the fonts below DIR too, beside those of the watched folders</source>
        <translation>auch die Schriften unter DIR aufnehmen, neben denen der überwachten Ordner</translation>
    </message>
    <message>
        <source>take names of families that this machine lacks, for when their fonts come</source>
        <translation>Namen von Familien annehmen, die diesem Computer fehlen, für später</translation>
    </message>
    <message>
        <source>Tells what was switched on and off here, in the window and by lorvactl, the newest first. One line for each time: when, a tab, &quot;copied&quot;, &quot;registered&quot;, &quot;deactivated&quot;, &quot;moved&quot; or &quot;restored&quot;, a tab, the families; after &quot;moved&quot; a tab, and where to. Then a line for each file, which begins with a tab: &quot;done&quot;, &quot;skipped&quot; (its name was taken), &quot;failed&quot; or &quot;left&quot; (it was stopped before), a tab, the file; after &quot;failed&quot; a tab, and why.</source>
        <translation>Sagt, was hier ein- und ausgeschaltet wurde, im Fenster und mit lorvactl, das Neueste zuerst. Eine Zeile für jedes Mal: wann, ein Tabulator, „copied“, „registered“, „deactivated“, „moved“ oder „restored“, ein Tabulator, die Familien; nach „moved“ ein Tabulator und wohin. Dann eine Zeile für jede Datei, die mit einem Tabulator beginnt: „done“, „skipped“ (ihr Name war vergeben), „failed“ oder „left“ (vorher abgebrochen), ein Tabulator, die Datei; nach „failed“ ein Tabulator und warum.</translation>
    </message>
    <message>
        <source>only the newest N times</source>
        <translation>nur die neuesten N Male</translation>
    </message>
    <message>
        <source>one JSON array instead of lines</source>
        <translation>ein JSON-Array statt Zeilen</translation>
    </message>
    <message>
        <source>a table for spreadsheets instead, one row for each file</source>
        <translation>stattdessen eine Tabelle für Tabellenkalkulationen, eine Zeile für jede Datei</translation>
    </message>
    <message>
        <source>history takes --json or --csv, not both</source>
        <translation>history nimmt --json oder --csv, nicht beides</translation>
    </message>
    <message>
        <source>history takes no further words</source>
        <translation>history nimmt keine weiteren Wörter</translation>
    </message>
    <message>
        <source>Takes in what lorvactl export wrote; a lone - reads standard input. Collections and styles of the same id or name take the file&apos;s families in, others come anew, and what the file says about foundries and display settings wins; nothing is taken away. Families that this machine lacks stay members, for when their fonts come. Tells what changed, one line each. Done whole or not at all.</source>
        <translation>Übernimmt, was lorvactl export geschrieben hat; ein einzelnes - liest von der Standardeingabe. Sammlungen und Stile gleicher ID oder gleichen Namens nehmen die Familien der Datei auf, andere kommen neu hinzu, und was die Datei über Gießereien und Anzeigeeinstellungen sagt, gilt; nichts wird weggenommen. Familien, die diesem Computer fehlen, bleiben Mitglieder, für später. Sagt, was sich geändert hat, eine Zeile für jede Änderung. Wird ganz ausgeführt oder gar nicht.</translation>
    </message>
    <message>
        <source>make collections, styles and foundries what the file says and nothing else; what was there is first written to a file beside the preferences; the window no longer sorts families into styles by itself</source>
        <translation>Sammlungen, Stile und Gießereien genau so machen, wie die Datei sagt; was da war, wird vorher in eine Datei neben den Einstellungen geschrieben; das Fenster ordnet Familien nicht mehr selbst nach Stilen</translation>
    </message>
    <message>
        <source>only tell what would change</source>
        <translation>nur sagen, was sich ändern würde</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>preference %1: made anew</source>
        <translation>Einstellung %1: neu angelegt</translation>
    </message>
    <message>
        <source>%1 lacks what could not be read: %2</source>
        <translation>in %1 fehlt, was nicht gelesen werden konnte: %2</translation>
    </message>
    <message>
        <source>%1; what stands there would be kept</source>
        <translation>%1; was dort steht, würde behalten</translation>
    </message>
    <message>
        <source>what was there: %1</source>
        <translation>was da war: %1</translation>
    </message>
    <message>
        <source>import takes one file</source>
        <translation>import nimmt eine Datei</translation>
    </message>
    <message>
        <source>Shows what there is to know of every face of a font file: names in every language, format, metrics, embedding rights, characters, variation axes with their named values and instances, features, layout languages, colours and tables; and which writing scripts its families serve.</source>
        <translation>Zeigt alles Wissenswerte über jeden Schnitt einer Schriftdatei: Namen in allen Sprachen, Format, Metriken, Einbettungsrechte, Zeichen, Variationsachsen mit benannten Werten und Instanzen, Funktionen, Layoutsprachen, Farben und Tabellen; und welchen Schriftsystemen ihre Familien dienen.</translation>
    </message>
    <message>
        <source>list every glyph with its name and its character, too</source>
        <translation>auch jede Glyphe mit ihrem Namen und Zeichen auflisten</translation>
    </message>
    <message>
        <source>info takes one font file</source>
        <translation>info nimmt eine Schriftdatei</translation>
    </message>
    <message>
        <source>standard input is not UTF-8 text</source>
        <translation>die Standardeingabe ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>cannot read standard input: %1</source>
        <translation>die Standardeingabe kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>standard input has more than %1 bytes</source>
        <translation>die Standardeingabe hat mehr als %1 Bytes</translation>
    </message>
    <message>
        <source>the name of a family must be UTF-8 text</source>
        <translation>der Name einer Familie muss UTF-8-Text sein</translation>
    </message>
    <message>
        <source>the name of a family cannot be empty</source>
        <translation>der Name einer Familie kann nicht leer sein</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>es gibt keinen Ordner %1</translation>
    </message>
    <message>
        <source>--folder needs the name of a folder</source>
        <translation>--folder braucht den Namen eines Ordners</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
    <message>
        <source>the watched folders cannot be read (%1); they are left out</source>
        <translation>die überwachten Ordner können nicht gelesen werden (%1); sie bleiben außen vor</translation>
    </message>
    <message>
        <source>Lists the font families of this machine, one line each: the name, a tab, the styles. Characters that would break a line are written as escapes (\n, \u{202e}).</source>
        <translation>Listet die Schriftfamilien dieses Computers auf, eine pro Zeile: der Name, ein Tabulator, die Schnitte. Zeichen, die eine Zeile zerreißen würden, stehen als Escapes da (\n, \u{202e}).</translation>
    </message>
    <message>
        <source>one JSON array of families instead</source>
        <translation>stattdessen ein JSON-Array von Familien</translation>
    </message>
    <message>
        <source>only families that can set latin, japanese, korean, simplifiedChinese or traditionalChinese</source>
        <translation>nur Familien, die latin, japanese, korean, simplifiedChinese oder traditionalChinese setzen können</translation>
    </message>
    <message>
        <source>--script takes %1</source>
        <translation>--script nimmt %1</translation>
    </message>
    <message>
        <source>list takes folders as --folder DIR</source>
        <translation>list nimmt Ordner als --folder DIR</translation>
    </message>
    <message>
        <source>list the font families of this machine</source>
        <translation>die Schriftfamilien dieses Computers auflisten</translation>
    </message>
    <message>
        <source>list those that a search finds</source>
        <translation>auflisten, was eine Suche findet</translation>
    </message>
    <message>
        <source>read the fonts that changed, and tell what that took</source>
        <translation>geänderte Schriften lesen und sagen, was das gekostet hat</translation>
    </message>
    <message>
        <source>show what a font file says about its faces</source>
        <translation>zeigen, was eine Schriftdatei über ihre Schnitte sagt</translation>
    </message>
    <message>
        <source>draw text in a font: PNG, SVG or PDF</source>
        <translation>Text in einer Schrift zeichnen: PNG, SVG oder PDF</translation>
    </message>
    <message>
        <source>list, make and change collections</source>
        <translation>Sammlungen auflisten, anlegen und ändern</translation>
    </message>
    <message>
        <source>list, make and change styles</source>
        <translation>Stile auflisten, anlegen und ändern</translation>
    </message>
    <message>
        <source>list and correct the foundries</source>
        <translation>Gießereien auflisten und berichtigen</translation>
    </message>
    <message>
        <source>write all of that to a file</source>
        <translation>all das in eine Datei schreiben</translation>
    </message>
    <message>
        <source>take it in from such a file</source>
        <translation>es aus einer solchen Datei übernehmen</translation>
    </message>
    <message>
        <source>make fonts available to every program</source>
        <translation>Schriften für alle Programme verfügbar machen</translation>
    </message>
    <message>
        <source>withdraw them again</source>
        <translation>sie wieder zurückziehen</translation>
    </message>
    <message>
        <source>tell what is active, and how</source>
        <translation>sagen, was aktiv ist und wie</translation>
    </message>
    <message>
        <source>list, add and remove watched folders</source>
        <translation>überwachte Ordner auflisten, hinzufügen und entfernen</translation>
    </message>
    <message>
        <source>tell what was switched on and off, and when</source>
        <translation>sagen, was wann ein- und ausgeschaltet wurde</translation>
    </message>
    <message>
        <source>tell how preferences, caches and activation fare</source>
        <translation>sagen, wie es um Einstellungen, Zwischenspeicher und Aktivierung steht</translation>
    </message>
    <message>
        <source>ask whether there is a newer release of Lorva</source>
        <translation>fragen, ob es eine neuere Version von Lorva gibt</translation>
    </message>
    <message>
        <source>show this help; also after a command</source>
        <translation>diese Hilfe zeigen; auch nach einem Befehl</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>die Version zeigen</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 the command was not understood.</source>
        <translation>Rückgabewert: 0 erledigt, 1 fehlgeschlagen, 2 Befehl nicht verstanden.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>readable</source>
        <translation>lesbar</translation>
    </message>
    <message>
        <source>neither copy nor register</source>
        <translation>weder copy noch register</translation>
    </message>
    <message>
        <source>not a whole value of kind %1</source>
        <translation>kein vollständiger Wert der Art %1</translation>
    </message>
    <message>
        <source>the database is damaged</source>
        <translation>die Datenbank ist beschädigt</translation>
    </message>
    <message>
        <source>no folder for a copy: %1</source>
        <translation>kein Ordner für eine Kopie: %1</translation>
    </message>
    <message>
        <source>process %1 keeps it locked</source>
        <translation>Prozess %1 hält sie gesperrt</translation>
    </message>
    <message>
        <source>%1 is no regular file</source>
        <translation>%1 ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>no space is left in %1</source>
        <translation>kein Platz mehr in %1</translation>
    </message>
    <message>
        <source>Reads the fonts of this machine that have changed since the last scan, writes down what it learned for the next one, and tells what it did and how long each step took.</source>
        <translation>Liest die Schriften dieses Computers, die sich seit dem letzten Scan geändert haben, schreibt das Gelernte für den nächsten auf und sagt, was geschah und wie lange jeder Schritt dauerte.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <extracomment>a time in milliseconds</extracomment>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>scan takes folders as --folder DIR</source>
        <translation>scan nimmt Ordner als --folder DIR</translation>
    </message>
    <message>
        <source>Lists the font families that the window&apos;s search field finds: those with TEXT in their name, in a name in another language or in their manufacturer&apos;s name, whatever its case, accents and width, Hiragana for Katakana. One line each: the name, a tab, the styles.</source>
        <translation>Listet die Schriftfamilien auf, die das Suchfeld des Fensters findet: die mit TEXT im Namen, in einem Namen in einer anderen Sprache oder im Namen des Herstellers, gleich welcher Groß- und Kleinschreibung, Akzente und Breite, Hiragana für Katakana. Eine pro Zeile: der Name, ein Tabulator, die Schnitte.</translation>
    </message>
    <message>
        <source>search takes one text</source>
        <translation>search nimmt einen Text</translation>
    </message>
    <message>
        <source>the text needs %1 pixels of height; give a --height up to %2</source>
        <translation>der Text braucht %1 Pixel Höhe; geben Sie --height bis %2 an</translation>
    </message>
    <message>
        <source>the picture is too small for all of the text</source>
        <translation>das Bild ist zu klein für den ganzen Text</translation>
    </message>
    <message>
        <source>Draws text in a face of a font file. In an SVG or PDF the letters are outlines; no font is embedded.</source>
        <translation>Zeichnet Text in einem Schnitt einer Schriftdatei. In SVG oder PDF sind die Buchstaben Konturen; keine Schrift wird eingebettet.</translation>
    </message>
    <message>
        <source>what to write, a .png, .svg or .pdf by its name; never a font file</source>
        <translation>was geschrieben wird, nach dem Namen .png, .svg oder .pdf; nie eine Schriftdatei</translation>
    </message>
    <message>
        <source>what to draw; a pangram if not given</source>
        <translation>was gezeichnet wird; ohne Angabe ein Pangramm</translation>
    </message>
    <message>
        <source>which face of a collection, from 0</source>
        <translation>welcher Schnitt einer Sammlung, ab 0</translation>
    </message>
    <message>
        <source>a named instance of a variable face</source>
        <translation>eine benannte Instanz eines variablen Schnitts</translation>
    </message>
    <message>
        <source>values of axes: wght=650,wdth=80</source>
        <translation>Werte von Achsen: wght=650,wdth=80</translation>
    </message>
    <message>
        <source>OpenType features: smcp,onum=0,ss01=1,-liga,+dlig</source>
        <translation>OpenType-Funktionen: smcp,onum=0,ss01=1,-liga,+dlig</translation>
    </message>
    <message>
        <source>which palette of a colour font, from 0</source>
        <translation>welche Palette einer Farbschrift, ab 0</translation>
    </message>
    <message>
        <source>for forms of that language: ja, zh-Hant, sr (BCP 47)</source>
        <translation>für Formen dieser Sprache: ja, zh-Hant, sr (BCP 47)</translation>
    </message>
    <message>
        <source>of the text; auto, by its first letter, if not given</source>
        <translation>des Textes; ohne Angabe auto, nach seinem ersten Buchstaben</translation>
    </message>
    <message>
        <source>pixels after each letter, -1000 to 1000</source>
        <translation>Pixel nach jedem Buchstaben, -1000 bis 1000</translation>
    </message>
    <message>
        <source>pixels per em, 1 to 4096; 48 if not given</source>
        <translation>Pixel pro Geviert, 1 bis 4096; ohne Angabe 48</translation>
    </message>
    <message>
        <source>pixels, 1 to 16384; the text wraps. As wide as the text if not given</source>
        <translation>Pixel, 1 bis 16384; der Text bricht um. Ohne Angabe so breit wie der Text</translation>
    </message>
    <message>
        <source>pixels, 1 to 16384; as high as the text if not given</source>
        <translation>Pixel, 1 bis 16384; ohne Angabe so hoch wie der Text</translation>
    </message>
    <message>
        <source>of the text; black if not given</source>
        <translation>des Textes; ohne Angabe schwarz</translation>
    </message>
    <message>
        <source>white if not given</source>
        <translation>ohne Angabe weiß</translation>
    </message>
    <message>
        <source>specimen takes one font file</source>
        <translation>specimen nimmt eine Schriftdatei</translation>
    </message>
    <message>
        <source>specimen needs a picture to write: -o PICTURE</source>
        <translation>specimen braucht ein zu schreibendes Bild: -o PICTURE</translation>
    </message>
    <message>
        <source>%1: the face has no instance %2</source>
        <translation>%1: der Schnitt hat keine Instanz %2</translation>
    </message>
    <message>
        <source>%1: the face has no axes</source>
        <translation>%1: der Schnitt hat keine Achsen</translation>
    </message>
    <message>
        <source>%1: the face has no axis %2, only %3</source>
        <translation>%1: der Schnitt hat keine Achse %2, nur %3</translation>
    </message>
    <message>
        <source>%1 goes from %2 to %3: drawn with %4 instead of %5</source>
        <translation>%1 reicht von %2 bis %3: mit %4 statt %5 gezeichnet</translation>
    </message>
    <message>
        <source>the face has no feature %1</source>
        <translation>der Schnitt hat keine Funktion %1</translation>
    </message>
    <message>
        <source>%1: the face has no palettes</source>
        <translation>%1: der Schnitt hat keine Paletten</translation>
    </message>
    <message>
        <source>%1: the face has no palette %2, only 0 to %3</source>
        <translation>%1: der Schnitt hat keine Palette %2, nur 0 bis %3</translation>
    </message>
    <message>
        <source>%1 takes a list of features as smcp,onum=0,-liga</source>
        <translation>%1 nimmt eine Liste von Funktionen wie smcp,onum=0,-liga</translation>
    </message>
    <message>
        <source>%1 takes a list of axes as wght=650,wdth=80</source>
        <translation>%1 nimmt eine Liste von Achsen wie wght=650,wdth=80</translation>
    </message>
    <message>
        <source>%1 takes a language as ja, zh-Hant or sr-Latn-RS (BCP 47)</source>
        <translation>%1 nimmt eine Sprache wie ja, zh-Hant oder sr-Latn-RS (BCP 47)</translation>
    </message>
    <message>
        <source>%1 takes ltr, rtl or auto</source>
        <translation>%1 nimmt ltr, rtl oder auto</translation>
    </message>
    <message>
        <source>%1 takes a colour as #RRGGBB</source>
        <translation>%1 nimmt eine Farbe wie #RRGGBB</translation>
    </message>
    <message>
        <source>Tells what is available to every program, one line for each family: the name, a tab, &quot;active (copied)&quot;, &quot;active (registered)&quot;, &quot;active (system)&quot;, &quot;partly active&quot; or &quot;inactive&quot;. Of families that are named it tells of the files too, each on a line that begins with a tab: what it is (copied, registered, inactive, system), a tab, the file; of copies then a tab, and where they came from; of originals that were copied a tab, and what is active for them. A word with a slash is a file; its families are then judged by that file alone.</source>
        <translation>Sagt, was für alle Programme verfügbar ist, eine Zeile für jede Familie: der Name, ein Tabulator, „active (copied)“, „active (registered)“, „active (system)“, „partly active“ oder „inactive“. Zu genannten Familien nennt es auch die Dateien, jede auf einer Zeile, die mit einem Tabulator beginnt: was sie ist (copied, registered, inactive, system), ein Tabulator, die Datei; bei Kopien dann ein Tabulator und woher sie kamen; bei kopierten Originalen ein Tabulator und was für sie aktiv ist. Ein Wort mit Schrägstrich ist eine Datei; ihre Familien werden dann nach dieser Datei allein beurteilt.</translation>
    </message>
    <message>
        <source>one JSON array of families instead, always with their files</source>
        <translation>stattdessen ein JSON-Array von Familien, immer mit ihren Dateien</translation>
    </message>
    <message>
        <source>Lists the styles, one line each: the name, a tab, the number of families; or the families of one, by name. Changes are seen at once by a window that is open. The window sorts families into styles by their names once, at its first start.</source>
        <translation>Listet die Stile auf, einen pro Zeile: der Name, ein Tabulator, die Zahl der Familien; oder die Familien eines Stils, nach Namen. Ein offenes Fenster zeigt Änderungen sofort. Das Fenster ordnet Familien einmal, bei seinem ersten Start, nach ihren Namen in Stile.</translation>
    </message>
    <message>
        <source>a style of your own</source>
        <translation>ein eigener Stil</translation>
    </message>
    <message>
        <source>only a style of your own, not one of those that every library has</source>
        <translation>nur ein eigener Stil, keiner von denen, die jede Bibliothek hat</translation>
    </message>
    <message>
        <source>likewise; its families are in no style then</source>
        <translation>ebenso; seine Familien gehören dann zu keinem Stil</translation>
    </message>
    <message>
        <source>moves families there: a family is in one style at most</source>
        <translation>verschiebt Familien dorthin: eine Familie gehört zu höchstens einem Stil</translation>
    </message>
    <message>
        <source>takes families out of it; they are in no style then</source>
        <translation>nimmt Familien heraus; sie gehören dann zu keinem Stil</translation>
    </message>
    <message>
        <source>makes these families its members; those that leave are in no style then</source>
        <translation>macht diese Familien zu seinen Mitgliedern; die herausfallen, gehören dann zu keinem Stil</translation>
    </message>
    <message>
        <source>STYLE is its id, which --json shows, or its name, in any case unless that fits several. FAMILY is the name of a family of this machine or of a style; a lone - reads names from standard input, one per line. A command is done whole or not at all.</source>
        <translation>STYLE ist seine ID, die --json zeigt, oder sein Name, groß oder klein, sofern er nicht auf mehrere passt. FAMILY ist der Name einer Familie dieses Computers oder eines Stils; ein einzelnes - liest Namen von der Standardeingabe, einen pro Zeile. Ein Befehl wird ganz ausgeführt oder gar nicht.</translation>
    </message>
    <message>
        <source>every library has the style %1, which cannot be renamed or deleted</source>
        <translation>den Stil %1 hat jede Bibliothek; er kann nicht umbenannt oder gelöscht werden</translation>
    </message>
    <message>
        <source>%1 needs a family, a file or --collection</source>
        <translation>%1 braucht eine Familie, eine Datei oder --collection</translation>
    </message>
    <message>
        <source>the preference %1 cannot be read (%2)</source>
        <translation>die Einstellung %1 kann nicht gelesen werden (%2)</translation>
    </message>
    <message>
        <source>%1; what stood there is kept as %2</source>
        <translation>%1; was dort stand, ist als %2 behalten</translation>
    </message>
    <message>
        <source>one JSON object instead: isNewer, runningVersion, version, date, page, summary</source>
        <translation>stattdessen ein JSON-Objekt: isNewer, runningVersion, version, date, page, summary</translation>
    </message>
    <message>
        <source>ask there instead, https or on this computer; to try out a feed</source>
        <translation>stattdessen dort fragen, https oder auf diesem Computer; um einen Feed auszuprobieren</translation>
    </message>
    <message>
        <source>the feed&apos;s Ed25519 key, 32 bytes in Base64, instead of the makers&apos;</source>
        <translation>der Ed25519-Schlüssel des Feeds, 32 Bytes in Base64, statt dessen der Macher</translation>
    </message>
    <message>
        <source>--feed needs an address</source>
        <translation>--feed braucht eine Adresse</translation>
    </message>
    <message>
        <source>Lorva %1 is up to date</source>
        <translation>Lorva %1 ist aktuell</translation>
    </message>
    <message>
        <source>Lorva %1 was released on %2; this is %3: %4</source>
        <translation>Lorva %1 ist am %2 erschienen; dies ist %3: %4</translation>
    </message>
    <message>
        <source>updates takes no further words</source>
        <translation>updates nimmt keine weiteren Wörter</translation>
    </message>
    <message>
        <source>this build does not look for new versions: the system&apos;s software updates bring them</source>
        <translation>dieses Programm sucht nicht nach neuen Versionen: sie kommen mit den Aktualisierungen des Systems</translation>
    </message>
    <message>
        <source>%1; lorvactl doctor tells more</source>
        <translation>%1; mehr sagt lorvactl doctor</translation>
    </message>
    <message>
        <source>%1 and counts as absent</source>
        <translation>%1 und gilt als nicht vorhanden</translation>
    </message>
    <message>
        <source>%1 could not be read and was moved to %2</source>
        <translation>%1 konnte nicht gelesen werden und wurde nach %2 verschoben</translation>
    </message>
    <message>
        <source>the preferences could not be read</source>
        <translation>die Einstellungen konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>the preferences could not be written</source>
        <translation>die Einstellungen konnten nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1 takes no %2</source>
        <translation>%1 nimmt kein %2</translation>
    </message>
    <message>
        <source>%1 takes no empty name</source>
        <translation>%1 nimmt keinen leeren Namen</translation>
    </message>
    <message>
        <source>%1 needs more words</source>
        <translation>%1 braucht mehr Wörter</translation>
    </message>
    <message>
        <source>%1 takes fewer words</source>
        <translation>%1 nimmt weniger Wörter</translation>
    </message>
    <message>
        <source>%1 needs a family, and standard input names none</source>
        <translation>%1 braucht eine Familie, und die Standardeingabe nennt keine</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>between the parts of a list</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>draw the picture of a font that file managers show</source>
        <translation>das Bild einer Schrift zeichnen, das Dateiverwaltungen zeigen</translation>
    </message>
    <message>
        <source>tell what a report of a fault needs, and nobody&apos;s names</source>
        <translation>sagen, was ein Fehlerbericht braucht, ohne jeden Namen</translation>
    </message>
    <message>
        <source>Tells what a report of a fault needs: versions, the desktop, counts, sizes, times, what the doctor finds, and settings. Nothing in it names a font, a file, a folder, a collection or a person, and no text that was typed is in it. It is in English, whatever the language.</source>
        <translation>Sagt, was ein Fehlerbericht braucht: Versionen, den Desktop, Anzahlen, Größen, Zeiten, die Befunde von doctor und Einstellungen. Nichts darin nennt eine Schrift, eine Datei, einen Ordner, eine Sammlung oder eine Person, und kein eingegebener Text steht darin. Er ist in jeder Sprache auf Englisch.</translation>
    </message>
    <message>
        <source>report takes no words</source>
        <translation>report nimmt keine Wörter</translation>
    </message>
    <message>
        <source>%1: has no letters or symbols to show</source>
        <translation>%1: hat keine Buchstaben oder Symbole zum Zeigen</translation>
    </message>
    <message>
        <source>Draws the picture of a font that file managers show: &quot;Aa&quot;, or letters or symbols of the font&apos;s own script, on a square sheet, written as PNG. FONT is a file or its file: address. It is read in a process that can do nothing but read and draw, within bounds of time and memory; for a font that cannot be shown nothing is written.</source>
        <translation>Zeichnet das Bild einer Schrift, das Dateiverwaltungen zeigen: „Aa“ oder Buchstaben oder Symbole des eigenen Schriftsystems auf einem quadratischen Blatt, als PNG. FONT ist eine Datei oder ihre file:-Adresse. Sie wird in einem Prozess gelesen, der nur lesen und zeichnen kann, mit begrenzter Zeit und begrenztem Speicher; für eine Schrift, die nicht gezeigt werden kann, wird nichts geschrieben.</translation>
    </message>
    <message>
        <source>pixels each way, 16 to 2048; 256 if not given</source>
        <translation>Pixel je Seite, 16 bis 2048; ohne Angabe 256</translation>
    </message>
    <message>
        <source>which face of a collection, from 0; the first that can be drawn if not given</source>
        <translation>welcher Schnitt einer Sammlung, ab 0; ohne Angabe der erste, der sich zeichnen lässt</translation>
    </message>
    <message>
        <source>thumbnail takes a font file and a picture to write</source>
        <translation>thumbnail nimmt eine Schriftdatei und ein zu schreibendes Bild</translation>
    </message>
    <message>
        <source>the picture cannot be encoded</source>
        <translation>das Bild kann nicht codiert werden</translation>
    </message>
    <message>
        <source>Reasons stay in the language of whoever switched the fonts, with --json and --csv, too.</source>
        <translation>Gründe bleiben in der Sprache dessen, der die Schriften ein- oder ausgeschaltet hat, auch mit --json und --csv.</translation>
    </message>
    <message>
        <source>the stored value is of another type</source>
        <translation>der gespeicherte Wert ist von anderer Art</translation>
    </message>
</context>
</TS>
