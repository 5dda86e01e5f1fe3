<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>FindPlant</name>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="+14"/>
        <source>Find a plant</source>
        <translation>ابحث عن نبتة</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Fi&amp;nd:</source>
        <translation>ا&amp;بحث:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Allium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Beta vulgaris</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Daucus carota</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+10"/>
        <source>In</source>
        <translation>في</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Names</source>
        <translation>ال&amp;أسماء</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Latin names</source>
        <translation>الأسماء الل&amp;اتينية</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>N&amp;otes</source>
        <translation>ال&amp;ملاحظات</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>&amp;Beds</source>
        <translation>الأ&amp;حواض</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>&amp;Down</source>
        <translation>إلى الأس&amp;فل</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Up</source>
        <translation>إلى الأ&amp;على</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>&amp;Find</source>
        <translation>ا&amp;بحث</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
</context>
<context>
    <name>UnlockDiary</name>
    <message>
        <location filename="../tests/data/forms/unlock_diary.ui" line="+14"/>
        <source>Unlock the diary</source>
        <translation>افتح المفكرة</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Your garden diary is locked. Enter the passphrase you chose when you began it; it is at least eight characters long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+18"/>
        <source>&amp;Gardener</source>
        <translation>الب&amp;ستاني</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>as on the gate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+7"/>
        <source>&amp;Passphrase</source>
        <translation>عبارة ال&amp;مرور</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>&amp;Show what I type</source>
        <translation>أظ&amp;هر ما أكتب</translation>
    </message>
    <message>
        <location line="+9"/>
        <source></source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
