<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja-JP" sourcelanguage="en">
<context>
    <name>Languages</name>
    <message>
        <location filename="../../languages.ui" line="14"/>
        <source>Languages</source>
        <translation>言語</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="20"/>
        <source>Good morning. This window speaks five languages.</source>
        <translation>おはようございます。このウィンドウは五つの言語で表示できます。</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="30"/>
        <source>Language of this window</source>
        <translation>このウィンドウの言語</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="74"/>
        <source>Start with this language the next time.</source>
        <translation>次回はこの言語で起動します。</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="77"/>
        <source>&amp;Remember my choice</source>
        <translation>選択を記憶する(&amp;R)</translation>
    </message>
</context>
</TS>
