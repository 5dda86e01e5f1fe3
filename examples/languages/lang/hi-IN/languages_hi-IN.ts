<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi-IN" sourcelanguage="en">
<context>
    <name>Languages</name>
    <message>
        <location filename="../../languages.ui" line="14"/>
        <source>Languages</source>
        <translation>भाषाएँ</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="20"/>
        <source>Good morning. This window speaks five languages.</source>
        <translation>सुप्रभात। यह विंडो पाँच भाषाएँ बोलती है।</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="30"/>
        <source>Language of this window</source>
        <translation>इस विंडो की भाषा</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="74"/>
        <source>Start with this language the next time.</source>
        <translation>अगली बार इसी भाषा से शुरू करें।</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="77"/>
        <source>&amp;Remember my choice</source>
        <translation>मेरा चुनाव &amp;याद रखें</translation>
    </message>
</context>
</TS>
