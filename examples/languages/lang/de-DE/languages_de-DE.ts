<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de-DE" sourcelanguage="en">
<context>
    <name>Languages</name>
    <message>
        <location filename="../../languages.ui" line="14"/>
        <source>Languages</source>
        <translation>Sprachen</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="20"/>
        <source>Good morning. This window speaks five languages.</source>
        <translation>Guten Morgen. Dieses Fenster spricht fünf Sprachen.</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="30"/>
        <source>Language of this window</source>
        <translation>Sprache dieses Fensters</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="74"/>
        <source>Start with this language the next time.</source>
        <translation>Beim nächsten Mal mit dieser Sprache beginnen.</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="77"/>
        <source>&amp;Remember my choice</source>
        <translation>Auswahl &amp;merken</translation>
    </message>
</context>
</TS>
