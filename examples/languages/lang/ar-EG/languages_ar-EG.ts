<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar-EG" sourcelanguage="en">
<context>
    <name>Languages</name>
    <message>
        <location filename="../../languages.ui" line="14"/>
        <source>Languages</source>
        <translation>اللغات</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="20"/>
        <source>Good morning. This window speaks five languages.</source>
        <translation>صباح الخير. هذه النافذة تتحدث خمس لغات.</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="30"/>
        <source>Language of this window</source>
        <translation>لغة هذه النافذة</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="74"/>
        <source>Start with this language the next time.</source>
        <translation>ابدأ بهذه اللغة في المرة القادمة.</translation>
    </message>
    <message>
        <location filename="../../languages.ui" line="77"/>
        <source>&amp;Remember my choice</source>
        <translation>&amp;تذكر اختياري</translation>
    </message>
</context>
</TS>
