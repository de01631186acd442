<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ActivationTexts</name>
    <message numerus="yes">
        <source>%n Fonts</source>
        <translation>
            <numerusform>%n Fonts</numerusform>
            <numerusform>%n Fonts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n fonts</source>
        <translation>
            <numerusform>%n fonts</numerusform>
            <numerusform>%n fonts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more families</source>
        <extracomment>Families that a list of names does not name.</extracomment>
        <translation>
            <numerusform>%n more family</numerusform>
            <numerusform>%n more families</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This font&apos;s file also contains %1. Activating makes them available too.</source>
        <extracomment>%1 is a list of so many names.</extracomment>
        <translation>
            <numerusform>This font&apos;s file also contains %1. Activating makes it available too.</numerusform>
            <numerusform>This font&apos;s file also contains %1. Activating makes them available too.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>These fonts&apos; files also contain %1. Activating makes them available too.</source>
        <translation>
            <numerusform>These fonts&apos; files also contain %1. Activating makes it available too.</numerusform>
            <numerusform>These fonts&apos; files also contain %1. Activating makes them available too.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This font&apos;s file also contains %1. De-activating removes all of them.</source>
        <extracomment>%1 is a list of so many names.</extracomment>
        <translation>
            <numerusform>This font&apos;s file also contains %1. De-activating removes it too.</numerusform>
            <numerusform>This font&apos;s file also contains %1. De-activating removes all of them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>These fonts&apos; files also contain %1. De-activating removes all of them.</source>
        <translation>
            <numerusform>These fonts&apos; files also contain %1. De-activating removes it too.</numerusform>
            <numerusform>These fonts&apos; files also contain %1. De-activating removes all of them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files failed to activate.</source>
        <translation>
            <numerusform>%n file failed to activate.</numerusform>
            <numerusform>%n files failed to activate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are available in every app on your Mac.</source>
        <translation>
            <numerusform>%1 of %2 files are available in every app on your Mac.</numerusform>
            <numerusform>%1 of %2 files are available in every app on your Mac.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files failed to de-activate.</source>
        <translation>
            <numerusform>%n file failed to de-activate.</numerusform>
            <numerusform>%n files failed to de-activate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are no longer available system-wide.</source>
        <translation>
            <numerusform>%1 of %2 files are no longer available system-wide.</numerusform>
            <numerusform>%1 of %2 files are no longer available system-wide.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be brought back.</source>
        <translation>
            <numerusform>%n file could not be brought back.</numerusform>
            <numerusform>%n files could not be brought back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 files are back.</source>
        <translation>
            <numerusform>%1 of %2 files are back.</numerusform>
            <numerusform>%1 of %2 files are back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Activating %1… %2 of %3 files</source>
        <translation>
            <numerusform>Activating %1… %2 of %3 files</numerusform>
            <numerusform>Activating %1… %2 of %3 files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>De-activating %1… %2 of %3 files</source>
        <translation>
            <numerusform>De-activating %1… %2 of %3 files</numerusform>
            <numerusform>De-activating %1… %2 of %3 files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Bringing back %1… %2 of %3 files</source>
        <translation>
            <numerusform>Bringing back %1… %2 of %3 files</numerusform>
            <numerusform>Bringing back %1… %2 of %3 files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be switched on or off.</source>
        <translation>
            <numerusform>%n file could not be switched on or off.</numerusform>
            <numerusform>%n files could not be switched on or off.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CardMenu</name>
    <message numerus="yes">
        <source>Activate %n Fonts…</source>
        <translation>
            <numerusform>Activate %n Fonts…</numerusform>
            <numerusform>Activate %n Fonts…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>De-activate %n Fonts</source>
        <translation>
            <numerusform>De-activate %n Fonts</numerusform>
            <numerusform>De-activate %n Fonts</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FontFiles</name>
    <message numerus="yes">
        <source>%n fonts</source>
        <translation>
            <numerusform>1 font</numerusform>
            <numerusform>%n fonts</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FontScanPhase</name>
    <message numerus="yes">
        <source>Finding fonts… %1</source>
        <translation>
            <numerusform>Finding fonts… %1</numerusform>
            <numerusform>Finding fonts… %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Scanning %1 of %2 fonts</source>
        <translation>
            <numerusform>Scanning %1 of %2 fonts</numerusform>
            <numerusform>Scanning %1 of %2 fonts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Identifying fonts… %1 of %2</source>
        <translation>
            <numerusform>Identifying fonts… %1 of %2</numerusform>
            <numerusform>Identifying fonts… %1 of %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistoryReport</name>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln were there already</source>
        <translation>
            <numerusform>%Ln was there already</numerusform>
            <numerusform>%Ln were there already</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <extracomment>Files.</extracomment>
        <translation>
            <numerusform>%Ln failed</numerusform>
            <numerusform>%Ln failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln left when it was stopped</source>
        <translation>
            <numerusform>%Ln left when it was stopped</numerusform>
            <numerusform>%Ln left when it was stopped</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScanProgress</name>
    <message numerus="yes">
        <source>Added %1 fonts</source>
        <translation>
            <numerusform>Added %1 font</numerusform>
            <numerusform>Added %1 fonts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 more folders could not be added.</source>
        <translation>
            <numerusform>%1 more folder could not be added.</numerusform>
            <numerusform>%1 more folders could not be added.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StyleActivations</name>
    <message numerus="yes">
        <source>%n more</source>
        <extracomment>So many styles, at the end of a list of their names.</extracomment>
        <translation>
            <numerusform>%n more</numerusform>
            <numerusform>%n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::CharacterGridView</name>
    <message numerus="yes">
        <source>%1 found</source>
        <extracomment>Characters or glyphs.</extracomment>
        <translation>
            <numerusform>%1 found</numerusform>
            <numerusform>%1 found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 glyphs</source>
        <translation>
            <numerusform>%1 glyph</numerusform>
            <numerusform>%1 glyphs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 characters</source>
        <translation>
            <numerusform>%1 character</numerusform>
            <numerusform>%1 characters</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::FontCardContentView</name>
    <message numerus="yes">
        <source>%Ln styles</source>
        <extracomment>The fonts of a family, such as Bold. English says &quot;1 styles&quot;, too.</extracomment>
        <translation>
            <numerusform>%Ln styles</numerusform>
            <numerusform>%Ln styles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizCategoryView</name>
    <message numerus="yes">
        <source>%1, key %2, %3 fonts</source>
        <extracomment>A style of fonts, the key that chooses it, and how many fonts have it; spoken.</extracomment>
        <translation>
            <numerusform>%1, key %2, %3 font</numerusform>
            <numerusform>%1, key %2, %3 fonts</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::FontQuizIntroView</name>
    <message numerus="yes">
        <source>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. We&apos;ve sorted %1 for you, but %2 need your eye. Don&apos;t worry, you can change the style for a font later.</source>
        <extracomment>The number of forms goes by %2.</extracomment>
        <translation>
            <numerusform>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. We&apos;ve sorted %1 for you, but %2 need your eye. Don&apos;t worry, you can change the style for a font later.</numerusform>
            <numerusform>Choose a style for each of your fonts. It&apos;ll then appear in that style folder. We&apos;ve sorted %1 for you, but %2 need your eye. Don&apos;t worry, you can change the style for a font later.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::MainMenu</name>
    <message numerus="yes">
        <source>Activate %n Fonts…</source>
        <translation>
            <numerusform>Activate %n Fonts…</numerusform>
            <numerusform>Activate %n Fonts…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>De-activate %n Fonts</source>
        <translation>
            <numerusform>De-activate %n Fonts</numerusform>
            <numerusform>De-activate %n Fonts</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::SidebarModel</name>
    <message numerus="yes">
        <source>%1, %Ln fonts</source>
        <extracomment>A row of the sidebar, and how many fonts it leads to; spoken.</extracomment>
        <translation>
            <numerusform>%1, %Ln font</numerusform>
            <numerusform>%1, %Ln fonts</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::VariantBar</name>
    <message numerus="yes">
        <source>%n More</source>
        <extracomment>So many variants of a family that have no room beside the others.</extracomment>
        <translation>
            <numerusform>%n More</numerusform>
            <numerusform>%n More</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::WatchedFolderDelegate</name>
    <message numerus="yes">
        <source>%1 fonts</source>
        <translation>
            <numerusform>%1 font</numerusform>
            <numerusform>%1 fonts</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorvactl</name>
    <message numerus="yes">
        <source>%n font files outside the Fonts folder registered in place: programs in sandboxes, such as those from Flatpak or Snap, cannot see what is not copied</source>
        <translation>
            <numerusform>%n font file outside the Fonts folder registered in place: programs in sandboxes, such as those from Flatpak or Snap, cannot see what is not copied</numerusform>
            <numerusform>%n font files outside the Fonts folder registered in place: programs in sandboxes, such as those from Flatpak or Snap, cannot see what is not copied</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 byte</numerusform>
            <numerusform>%1 bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of the %1 families that it names are not in the last catalog</source>
        <translation>
            <numerusform>%n of the %1 families that it names is not in the last catalog</numerusform>
            <numerusform>%n of the %1 families that it names are not in the last catalog</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>collection %1 created with %n families</source>
        <translation>
            <numerusform>collection %1 created with %n family</numerusform>
            <numerusform>collection %1 created with %n families</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>style %1 created with %n families</source>
        <translation>
            <numerusform>style %1 created with %n family</numerusform>
            <numerusform>style %1 created with %n families</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n families joined</source>
        <translation>
            <numerusform>%n family joined</numerusform>
            <numerusform>%n families joined</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n families left</source>
        <translation>
            <numerusform>%n family left</numerusform>
            <numerusform>%n families left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %1 more ranges</source>
        <translation>
            <numerusform>and %1 more range</numerusform>
            <numerusform>and %1 more ranges</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n entry</numerusform>
            <numerusform>%n entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 styles</source>
        <extracomment>the part &quot;%1 with %2&quot; of what a scan found</extracomment>
        <translation>
            <numerusform>%1 styles</numerusform>
            <numerusform>%1 styles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n families</source>
        <translation>
            <numerusform>%n family</numerusform>
            <numerusform>%n families</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n font files</source>
        <translation>
            <numerusform>%n font file</numerusform>
            <numerusform>%n font files</numerusform>
        </translation>
    </message>
</context>
</TS>
