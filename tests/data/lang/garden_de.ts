<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>UnlockDiary</name>
    <message>
        <location filename="../tests/data/forms/unlock_diary.ui" line="14"/>
        <source>Unlock the diary</source>
        <translation>Tagebuch aufschließen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/unlock_diary.ui" line="26"/>
        <source>Your garden diary is locked. Enter the passphrase you chose when you began it; it is at least eight characters long.</source>
        <translation>Ihr Gartentagebuch ist verschlossen. Geben Sie die Passphrase ein, die Sie am Anfang gewählt haben; sie ist mindestens acht Zeichen lang.</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/unlock_diary.ui" line="44"/>
        <source>&amp;Gardener</source>
        <translation>&amp;Gärtner</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/unlock_diary.ui" line="54"/>
        <source>as on the gate</source>
        <translation>wie an der Pforte</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/unlock_diary.ui" line="61"/>
        <source>&amp;Passphrase</source>
        <translation>&amp;Passphrase</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/unlock_diary.ui" line="81"/>
        <source>&amp;Show what I type</source>
        <translation>&amp;Eingabe zeigen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/unlock_diary.ui" line="90"/>
        <source></source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="14"/>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="27"/>
        <source>&amp;General</source>
        <translation>&amp;Allgemein</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="33"/>
        <source>&amp;Open the planner when I log in</source>
        <translation>Den Planer beim Anmelden ö&amp;ffnen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="36"/>
        <source>The planner waits in the notification area.</source>
        <translation>Der Planer wartet im Infobereich.</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="43"/>
        <source>&amp;Keep it open in the notification area</source>
        <translation>Im &amp;Infobereich offen halten</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="55"/>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="66"/>
        <source>(as the desktop)</source>
        <translation>(wie der Arbeitsplatz)</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="71"/>
        <source>Deutsch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="76"/>
        <source>English</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="81"/>
        <source>日本語</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="86"/>
        <source>العربية</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="109"/>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="115"/>
        <source>&amp;Metres and litres</source>
        <translation>&amp;Meter und Liter</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="125"/>
        <source>&amp;Feet and gallons</source>
        <translation>F&amp;uß und Gallonen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="150"/>
        <source>Keep &amp;pictures of the last</source>
        <translation>&amp;Bilder behalten der letzten</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="157"/>
        <source> days</source>
        <translation> Tage</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="202"/>
        <source>&amp;Watering</source>
        <translation>Be&amp;wässern</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="208"/>
        <source>Rain</source>
        <translation>Regen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="220"/>
        <source>&amp;Station</source>
        <translation>S&amp;tation</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="230"/>
        <source>Meadow Lane 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="243"/>
        <source>&amp;Skip watering above</source>
        <translation>Nicht &amp;gießen ab</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="253"/>
        <source> mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="272"/>
        <source>Never water while there is &amp;frost</source>
        <translation>Bei Fros&amp;t niemals gießen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="282"/>
        <source>Valves</source>
        <translation>Ventile</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="288"/>
        <source>North bed</source>
        <translation>Nordbeet</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="311"/>
        <location filename="../tests/data/forms/preferences.ui" line="344"/>
        <source> min</source>
        <translation> Min.</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="324"/>
        <source>South bed</source>
        <translation>Südbeet</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="374"/>
        <source>&amp;Account</source>
        <translation>&amp;Konto</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="380"/>
        <source>Plans are shared with everyone who works in the same garden. The &lt;b&gt;key&lt;/b&gt; is kept on this computer only.</source>
        <translation>Pläne werden mit allen geteilt, die im selben Garten arbeiten. Der &lt;b&gt;Schlüssel&lt;/b&gt; bleibt auf diesem Rechner.</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="392"/>
        <source>&amp;Invite a gardener…</source>
        <translation>Gärtner &amp;einladen…</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="399"/>
        <source>L&amp;eave this garden</source>
        <translation>Garten &amp;verlassen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="434"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="439"/>
        <source>Beds</source>
        <translation>Beete</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="444"/>
        <source>Since</source>
        <translation>Seit</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="471"/>
        <source>Changes of the language show after the next start.</source>
        <translation>Die Sprache wechselt mit dem nächsten Start.</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="499"/>
        <source>&amp;Reset all</source>
        <translation>Alles &amp;zurücksetzen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="522"/>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="532"/>
        <source>&amp;Cancel</source>
        <translation>Abb&amp;rechen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/preferences.ui" line="539"/>
        <source>Appl&amp;y</source>
        <translation>Über&amp;nehmen</translation>
    </message>
</context>
<context>
    <name>FindPlant</name>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="14"/>
        <source>Find a plant</source>
        <translation>Pflanze suchen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="27"/>
        <source>Fi&amp;nd:</source>
        <translation>Su&amp;che:</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="47"/>
        <source>Allium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="52"/>
        <source>Beta vulgaris</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="57"/>
        <source>Daucus carota</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="67"/>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="73"/>
        <source>&amp;Names</source>
        <translation>&amp;Namen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="83"/>
        <source>&amp;Latin names</source>
        <translation>&amp;lateinischen Namen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="90"/>
        <source>N&amp;otes</source>
        <translation>N&amp;otizen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="97"/>
        <source>&amp;Beds</source>
        <translation>&amp;Beeten</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="109"/>
        <source>&amp;Down</source>
        <translation>Ab&amp;wärts</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="119"/>
        <source>&amp;Up</source>
        <translation>Auf&amp;wärts</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="157"/>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/find_plant.ui" line="167"/>
        <source>&amp;Close</source>
        <translation>Schl&amp;ießen</translation>
    </message>
</context>
</TS>
