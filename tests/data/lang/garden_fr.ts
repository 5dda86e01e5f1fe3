<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>BedTree</name>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="14"/>
        <source>Beds</source>
        <translation>Planches</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="24"/>
        <source>&amp;Sort by</source>
        <translation>&amp;Trier par</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="35"/>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="40"/>
        <location filename="../tests/data/forms/bed_tree.ui" line="86"/>
        <source>Area</source>
        <translation>Surface</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="45"/>
        <source>Sun</source>
        <translation>Soleil</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="81"/>
        <source>Bed</source>
        <translation>Planche</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="94"/>
        <source>Kitchen garden</source>
        <translation>Potager</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="97"/>
        <source>24 m²</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="101"/>
        <source>Herbs</source>
        <translation>Aromates</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="104"/>
        <source>4 m²</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="109"/>
        <source>Roots</source>
        <translation>Racines</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="112"/>
        <source>12 m²</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="116"/>
        <source>Carrots</source>
        <translation>Carottes</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="119"/>
        <location filename="../tests/data/forms/bed_tree.ui" line="127"/>
        <source>6 m²</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="124"/>
        <source>Beets</source>
        <translation>Betteraves</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="133"/>
        <source>Beans</source>
        <translation>Haricots</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="136"/>
        <source>8 m²</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="142"/>
        <source>Front garden</source>
        <translation>Jardin de devant</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="145"/>
        <source>9 m²</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="149"/>
        <source>Roses</source>
        <translation>Rosiers</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="152"/>
        <source>5 m²</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="165"/>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="172"/>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="182"/>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="208"/>
        <source>&amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="215"/>
        <source>D&amp;own</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/bed_tree.ui" line="235"/>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>Legend</name>
    <message>
        <location filename="../tests/data/forms/legend.ui" line="14"/>
        <source>Legend</source>
        <translation>Légende</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/legend.ui" line="32"/>
        <location filename="../tests/data/forms/legend.ui" line="58"/>
        <location filename="../tests/data/forms/legend.ui" line="84"/>
        <location filename="../tests/data/forms/legend.ui" line="110"/>
        <location filename="../tests/data/forms/legend.ui" line="136"/>
        <source></source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../tests/data/forms/legend.ui" line="48"/>
        <source>Sown, and not yet to be seen</source>
        <translation>Semé, pas encore visible</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/legend.ui" line="74"/>
        <source>Growing</source>
        <translation>En croissance</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/legend.ui" line="100"/>
        <source>To be watered today; the number tells how many litres the bed takes</source>
        <translation>À arroser aujourd'hui ; le nombre dit combien de litres il faut</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/legend.ui" line="126"/>
        <source>Ready to be picked</source>
        <translation>Bon à cueillir</translation>
    </message>
    <message>
        <location filename="../tests/data/forms/legend.ui" line="152"/>
        <source>Rests until spring</source>
        <translation>Au repos jusqu'au printemps</translation>
    </message>
</context>
</TS>
