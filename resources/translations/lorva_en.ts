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
</TS>
