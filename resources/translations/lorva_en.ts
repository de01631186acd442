<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>StyleActivations</name>
    <message numerus="yes">
        <source>%1 more</source>
        <translation>
            <numerusform>%1 more</numerusform>
            <numerusform>%1 more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lorva::MainMenu</name>
    <message numerus="yes">
        <source>Activate %1 Fonts…</source>
        <translation>
            <numerusform>Activate %1 Fonts…</numerusform>
            <numerusform>Activate %1 Fonts…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>De-activate %1 Fonts</source>
        <translation>
            <numerusform>De-activate %1 Fonts</numerusform>
            <numerusform>De-activate %1 Fonts</numerusform>
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
