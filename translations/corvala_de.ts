<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AxisNames</name>
    <message>
        <source>%1 over %2</source>
        <translation>%1 über %2</translation>
    </message>
</context>
<context>
    <name>Cell</name>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>%1 oder mehr</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Draw all</source>
        <translation>Alle zeichnen</translation>
    </message>
    <message>
        <source>unassigned</source>
        <translation>nicht zugewiesen</translation>
    </message>
    <message>
        <source>By: %1</source>
        <translation>Nach: %1</translation>
    </message>
    <message>
        <source>Strand ID %1 has no relevant zones at the current solution time</source>
        <translation>Strang %1 hat zur aktuellen Lösungszeit keine passenden Zonen</translation>
    </message>
    <message>
        <source>&lt;Undef&gt;</source>
        <translation>&lt;undef.&gt;</translation>
    </message>
    <message>
        <source>Does not apply</source>
        <translation>Trifft nicht zu</translation>
    </message>
</context>
<context>
    <name>Column</name>
    <message>
        <source>Use
Lighting</source>
        <translation>Licht
nutzen</translation>
    </message>
    <message>
        <source>Show
Contour</source>
        <translation>Kontur
zeigen</translation>
    </message>
    <message>
        <source>Contour
Type</source>
        <translation>Kontur-
art</translation>
    </message>
    <message>
        <source>Flood
By</source>
        <translation>Füllen
nach</translation>
    </message>
    <message>
        <source>Lines
By</source>
        <translation>Linien
nach</translation>
    </message>
    <message>
        <source>Line
Color</source>
        <translation>Linien-
farbe</translation>
    </message>
    <message>
        <source>Line
Pattern</source>
        <translation>Linien-
muster</translation>
    </message>
    <message>
        <source>Pattern
Length</source>
        <translation>Muster-
länge</translation>
    </message>
    <message>
        <source>Line
Thickness</source>
        <translation>Linien-
stärke</translation>
    </message>
    <message>
        <source>Show
Edges</source>
        <translation>Kanten
zeigen</translation>
    </message>
    <message>
        <source>Edge
Type</source>
        <translation>Kanten-
art</translation>
    </message>
    <message>
        <source>Edge
Color</source>
        <translation>Kanten-
farbe</translation>
    </message>
    <message>
        <source>I-Index
Border</source>
        <translation>Rand in
I-Richtung</translation>
    </message>
    <message>
        <source>J-Index
Border</source>
        <translation>Rand in
J-Richtung</translation>
    </message>
    <message>
        <source>K-Index
Border</source>
        <translation>Rand in
K-Richtung</translation>
    </message>
    <message>
        <source>Lighting
Effect</source>
        <translation>Licht-
effekt</translation>
    </message>
    <message>
        <source>Use Surface
Translucency</source>
        <translation>Flächen
transparent</translation>
    </message>
    <message>
        <source>Surface
Translucency</source>
        <translation>Flächen-
transparenz</translation>
    </message>
    <message>
        <source>Use Value
Blanking</source>
        <translation>Werte
ausblenden</translation>
    </message>
    <message>
        <source>Show
Mesh</source>
        <translation>Netz
zeigen</translation>
    </message>
    <message>
        <source>Mesh
Type</source>
        <translation>Netz-
art</translation>
    </message>
    <message>
        <source>Mesh
Color</source>
        <translation>Netz-
farbe</translation>
    </message>
    <message>
        <source>Points
to Plot</source>
        <translation>Gezeigte
Punkte</translation>
    </message>
    <message>
        <source>Index
Skip</source>
        <translation>Index-
schritt</translation>
    </message>
    <message>
        <source>Show
Scatter</source>
        <translation>Streuung
zeigen</translation>
    </message>
    <message>
        <source>Symbol
Shape</source>
        <translation>Symbol-
form</translation>
    </message>
    <message>
        <source>Scatter
Size</source>
        <translation>Symbol-
größe</translation>
    </message>
    <message>
        <source>Outline
Color</source>
        <translation>Umriss-
farbe</translation>
    </message>
    <message>
        <source>Fill
Mode</source>
        <translation>Füll-
art</translation>
    </message>
    <message>
        <source>Fill
Color</source>
        <translation>Füll-
farbe</translation>
    </message>
    <message>
        <source>Show
Shade</source>
        <translation>Schattierung
zeigen</translation>
    </message>
    <message>
        <source>Shade
Color</source>
        <translation>Farbe der
Schattierung</translation>
    </message>
    <message>
        <source>Zone
Number</source>
        <translation>Zonen-
nummer</translation>
    </message>
    <message>
        <source>Zone
Name</source>
        <translation>Zonen-
name</translation>
    </message>
    <message>
        <source>Group
Number</source>
        <translation>Gruppen-
nummer</translation>
    </message>
    <message>
        <source>Show
Zone</source>
        <translation>Zone
zeigen</translation>
    </message>
    <message>
        <source>Surfaces
to Plot</source>
        <translation>Gezeigte
Flächen</translation>
    </message>
    <message>
        <source>I-Plane
Range</source>
        <translation>Bereich der
I-Ebenen</translation>
    </message>
    <message>
        <source>J-Plane
Range</source>
        <translation>Bereich der
J-Ebenen</translation>
    </message>
    <message>
        <source>K-Plane
Range</source>
        <translation>Bereich der
K-Ebenen</translation>
    </message>
    <message>
        <source>Show
Vector</source>
        <translation>Vektoren
zeigen</translation>
    </message>
    <message>
        <source>Vector
Type</source>
        <translation>Vektor-
art</translation>
    </message>
    <message>
        <source>Vector
Tangents</source>
        <translation>Vektor-
Tangenten</translation>
    </message>
    <message>
        <source>Head
Style</source>
        <translation>Spitzen-
form</translation>
    </message>
    <message>
        <source>Show
Iso-Surfaces</source>
        <translation>Isoflächen
zeigen</translation>
    </message>
    <message>
        <source>Show
Slices</source>
        <translation>Schnitte
zeigen</translation>
    </message>
    <message>
        <source>Show
Streamtraces</source>
        <translation>Stromlinien
zeigen</translation>
    </message>
    <message>
        <source>Show
Bars</source>
        <translation>Balken
zeigen</translation>
    </message>
    <message>
        <source>Bar
Direction</source>
        <translation>Balken-
richtung</translation>
    </message>
    <message>
        <source>Bar
Size</source>
        <translation>Balken-
breite</translation>
    </message>
    <message>
        <source>Curve
Type</source>
        <translation>Kurven-
art</translation>
    </message>
    <message>
        <source>Dependent
Variable</source>
        <translation>Abhängige
Variable</translation>
    </message>
    <message>
        <source>Curve
Points</source>
        <translation>Kurven-
punkte</translation>
    </message>
    <message>
        <source>Curve
Setting</source>
        <translation>Kurven-
einstellung</translation>
    </message>
    <message>
        <source>Zone</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>Show in
Legend</source>
        <translation>In Legende
zeigen</translation>
    </message>
    <message>
        <source>Theta
Variable</source>
        <translation>Variable
für Theta</translation>
    </message>
    <message>
        <source>Radius
Variable</source>
        <translation>Variable
für Radius</translation>
    </message>
    <message>
        <source>X-Axis
Variable</source>
        <translation>Variable
der X-Achse</translation>
    </message>
    <message>
        <source>Y-Axis
Variable</source>
        <translation>Variable
der Y-Achse</translation>
    </message>
    <message>
        <source>Which
X-Axis</source>
        <translation>Welche
X-Achse</translation>
    </message>
    <message>
        <source>Which
Y-Axis</source>
        <translation>Welche
Y-Achse</translation>
    </message>
    <message>
        <source>Show
Error Bars</source>
        <translation>Fehlerbalken
zeigen</translation>
    </message>
    <message>
        <source>Error Bar
Variable</source>
        <translation>Variable der
Fehlerbalken</translation>
    </message>
    <message>
        <source>Error Bar
Type</source>
        <translation>Art der
Fehlerbalken</translation>
    </message>
    <message>
        <source>Error Bar
Spacing</source>
        <translation>Abstand der
Fehlerbalken</translation>
    </message>
    <message>
        <source>Error Bar
Color</source>
        <translation>Farbe der
Fehlerbalken</translation>
    </message>
    <message>
        <source>Error Bar
Size</source>
        <translation>Größe der
Fehlerbalken</translation>
    </message>
    <message>
        <source>Varying
Index</source>
        <translation>Laufender
Index</translation>
    </message>
    <message>
        <source>I-Index
Range</source>
        <translation>Bereich des
I-Index</translation>
    </message>
    <message>
        <source>J-Index
Range</source>
        <translation>Bereich des
J-Index</translation>
    </message>
    <message>
        <source>K-Index
Range</source>
        <translation>Bereich des
K-Index</translation>
    </message>
    <message>
        <source>Show
Lines</source>
        <translation>Linien
zeigen</translation>
    </message>
    <message>
        <source>Map
Number</source>
        <translation>Nummer der
Kurve</translation>
    </message>
    <message>
        <source>Map
Name</source>
        <translation>Name der
Kurve</translation>
    </message>
    <message>
        <source>Show
Map</source>
        <translation>Kurve
zeigen</translation>
    </message>
    <message>
        <source>Show
Symbols</source>
        <translation>Symbole
zeigen</translation>
    </message>
    <message>
        <source>Symbol
Size</source>
        <translation>Symbol-
größe</translation>
    </message>
    <message>
        <source>Symbol
Spacing</source>
        <translation>Symbol-
abstand</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Open embedded data: %1 (when no name is given), %2.</source>
        <translation>Eingebaute Daten öffnen: %1 (wenn kein Name angegeben ist), %2.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Play a script, then end.</source>
        <translation>Ein Skript abspielen und dann enden.</translation>
    </message>
    <message>
        <source>script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Write what the style dialog shows, then end.</source>
        <translation>Schreiben, was der Stildialog zeigt, und dann enden.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Size of the picture on paper, as 160x120mm (usual for .pdf and .svg), or in pixels, as 1200x900.</source>
        <translation>Größe des Bildes auf dem Papier, etwa 160x120mm (üblich für .pdf und .svg), oder in Pixeln, etwa 1200x900.</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Pixels of the picture to an inch (300).</source>
        <translation>Pixel des Bildes je Zoll (300).</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Layout of Plot3D files, such as format=binary,grids=many,endian=big.</source>
        <translation>Aufbau von Plot3D-Dateien, etwa format=binary,grids=many,endian=big.</translation>
    </message>
    <message>
        <source>layout</source>
        <translation>Aufbau</translation>
    </message>
    <message>
        <source>How tables of text are written, such as separator=tab,decimal=comma,header=1,columns=2:words 5-9:skip,bad=skip.</source>
        <translation>Wie Texttabellen geschrieben sind, etwa separator=tab,decimal=comma,header=1,columns=2:words 5-9:skip,bad=skip.</translation>
    </message>
    <message>
        <source>dialect</source>
        <translation>Schreibweise</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 ist zweimal angegeben</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>there is no embedded data &quot;%1&quot;; there are %2</source>
        <translation>es gibt keine eingebauten Daten „%1“; es gibt %2</translation>
    </message>
    <message>
        <source>give either files or --demo</source>
        <translation>geben Sie entweder Dateien oder --demo an</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of pixels to an inch: from %2 to %3</source>
        <translation>„%1“ ist keine Zahl von Pixeln je Zoll: von %2 bis %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size of a picture, such as 160x120mm or 1200x900</source>
        <translation>„%1“ ist keine Bildgröße wie 160x120mm oder 1200x900</translation>
    </message>
    <message>
        <source>Write a picture of the plot, then end: .png, .pdf, .svg, .tif, .jpg or .bmp.</source>
        <translation>Ein Bild der Darstellung schreiben und dann enden: .png, .pdf, .svg, .tif, .jpg oder .bmp.</translation>
    </message>
    <message>
        <source>Save the document, then end: .cvdoc.</source>
        <translation>Das Dokument speichern und dann enden: .cvdoc.</translation>
    </message>
    <message>
        <source>Leave the background of the picture out: .png, .pdf, .svg or .tif.</source>
        <translation>Den Hintergrund des Bildes auslassen: .png, .pdf, .svg oder .tif.</translation>
    </message>
    <message>
        <source>A document, or data files that are opened together, or the folder of a case.</source>
        <translation>Ein Dokument, oder Datendateien, die zusammen geöffnet werden, oder der Ordner eines Falls.</translation>
    </message>
    <message>
        <source>--transparent goes with --render of .png, .pdf, .svg or .tif</source>
        <translation>--transparent gehört zu --render von .png, .pdf, .svg oder .tif</translation>
    </message>
    <message>
        <source>a document is opened alone</source>
        <translation>ein Dokument wird allein geöffnet</translation>
    </message>
    <message>
        <source>Read the boundary patches of CGNS files as zones.</source>
        <translation>Randflächen von CGNS-Dateien als Zonen lesen.</translation>
    </message>
    <message>
        <source>Take files without times that differ by a number for one time series.</source>
        <translation>Dateien ohne Zeiten, die sich durch eine Nummer unterscheiden, als eine Zeitreihe lesen.</translation>
    </message>
    <message>
        <source>Print this help, then end.</source>
        <translation>Diese Hilfe ausgeben und dann enden.</translation>
    </message>
    <message>
        <source>Plots field data and lets you edit the style of its zones and lines.
Data are opened first; then a script is played, a report written, a picture drawn, the document saved.
Options of Qt, such as -style and -platform, are taken as well.
Exit codes: 0 success, 1 failure, 2 wrong usage.</source>
        <translation>Zeichnet Felddaten und lässt den Stil ihrer Zonen und Kurven bearbeiten.
Zuerst werden Daten geöffnet; dann wird ein Skript abgespielt, ein Bericht geschrieben, ein Bild gezeichnet, das Dokument gespeichert.
Optionen von Qt wie -style und -platform gelten auch.
Rückgabewerte: 0 Erfolg, 1 Fehler, 2 falscher Aufruf.</translation>
    </message>
</context>
<context>
    <name>CommandTips</name>
    <message>
        <source>%1 (%2)</source>
        <comment>a command and its keys</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>CurveFitDetails</name>
    <message>
        <source>Order=%1</source>
        <translation>Grad=%1</translation>
    </message>
    <message>
        <source>Points range=%1,%2</source>
        <translation>Punktbereich=%1,%2</translation>
    </message>
    <message>
        <source>Using all points</source>
        <translation>Mit allen Punkten</translation>
    </message>
    <message>
        <source>Weighting variable=%1</source>
        <translation>Gewichtungsvariable=%1</translation>
    </message>
    <message>
        <source>Not using weighting variable</source>
        <translation>Ohne Gewichtungsvariable</translation>
    </message>
    <message>
        <source>Clamped: D1=%1, D2=%2</source>
        <translation>Eingespannt: D1=%1, D2=%2</translation>
    </message>
    <message>
        <source>Not clamped</source>
        <translation>Nicht eingespannt</translation>
    </message>
    <message>
        <source>Closeness=%1</source>
        <translation>Nähe=%1</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>plots are drawn through an X server: install the package xwayland</source>
        <translation>Darstellungen werden über einen X-Server gezeichnet: installieren Sie das Paket xwayland</translation>
    </message>
    <message>
        <source>there is no screen to show a window on; --play, --report and --render need none</source>
        <translation>es gibt keinen Bildschirm für ein Fenster; --play, --report und --render brauchen keinen</translation>
    </message>
    <message>
        <source>drawing without a screen needs Xvfb: install the package xvfb</source>
        <translation>Zeichnen ohne Bildschirm braucht Xvfb: installieren Sie das Paket xvfb</translation>
    </message>
    <message>
        <source>Xvfb cannot be started: %1</source>
        <translation>Xvfb kann nicht gestartet werden: %1</translation>
    </message>
</context>
<context>
    <name>DocumentFileDialog</name>
    <message>
        <source>Save Document</source>
        <translation>Dokument speichern</translation>
    </message>
    <message>
        <source>Documents (*.cvdoc)</source>
        <translation>Dokumente (*.cvdoc)</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 ist schon da. Ersetzen?</translation>
    </message>
</context>
<context>
    <name>DocumentText</name>
    <message>
        <source>there are no data that could take the styles</source>
        <translation>es gibt keine Daten, die den Stil annehmen könnten</translation>
    </message>
    <message>
        <source>no such style value</source>
        <translation>kein solcher Stilwert</translation>
    </message>
    <message>
        <source>the value does not belong here</source>
        <translation>der Wert gehört nicht hierher</translation>
    </message>
    <message>
        <source>there is no such index</source>
        <translation>diesen Index gibt es nicht</translation>
    </message>
    <message>
        <source>map %1 has two values</source>
        <translation>%1 hat zwei Werte</translation>
    </message>
    <message>
        <source>maps or value are missing</source>
        <translation>Nummern oder Wert fehlen</translation>
    </message>
    <message>
        <source>the last name does not count on from the first</source>
        <translation>der letzte Name zählt nicht vom ersten weiter</translation>
    </message>
    <message>
        <source>must open data</source>
        <translation>muss Daten öffnen</translation>
    </message>
    <message>
        <source>strand or zones are missing</source>
        <translation>Strang oder Zonen fehlen</translation>
    </message>
    <message>
        <source>a zone has two strands</source>
        <translation>eine Zone hat zwei Stränge</translation>
    </message>
    <message>
        <source>must be three numbers</source>
        <translation>müssen drei Zahlen sein</translation>
    </message>
    <message>
        <source>this is no document</source>
        <translation>das ist kein Dokument</translation>
    </message>
    <message>
        <source>the document has version %1 of the format; this program reads up to version %2</source>
        <translation>das Dokument hat die Version %1 des Formats; dieses Programm liest bis Version %2</translation>
    </message>
    <message>
        <source>objects and lists are nested too deeply</source>
        <translation>Objekte und Listen sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>%1 stands twice in one object</source>
        <translation>%1 steht zweimal in einem Objekt</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>the document is damaged or cut off: %1</source>
        <translation>das Dokument ist beschädigt oder abgeschnitten: %1</translation>
    </message>
    <message>
        <source>Zones that are not in the data any more (%1): %2.</source>
        <translation>Zonen, die nicht mehr in den Daten sind (%1): %2.</translation>
    </message>
    <message>
        <source>Variables that are not in the data any more (%1): %2.</source>
        <translation>Variablen, die nicht mehr in den Daten sind (%1): %2.</translation>
    </message>
    <message>
        <source>Line maps that the frame or its variables lack: %1.</source>
        <translation>Kurven, die dem Rahmen oder seinen Variablen fehlen: %1.</translation>
    </message>
    <message>
        <source>Zones that the data lack (%1): %2.</source>
        <translation>Zonen, die den Daten fehlen (%1): %2.</translation>
    </message>
    <message>
        <source>Variables that the data lack (%1): %2.</source>
        <translation>Variablen, die den Daten fehlen (%1): %2.</translation>
    </message>
    <message>
        <source>unknown name</source>
        <translation>unbekannter Name</translation>
    </message>
    <message>
        <source>must be an object, not %1</source>
        <translation>muss ein Objekt sein, nicht %1</translation>
    </message>
    <message>
        <source>must be a list, not %1</source>
        <translation>muss eine Liste sein, nicht %1</translation>
    </message>
    <message>
        <source>must be a text, not %1</source>
        <translation>muss ein Text sein, nicht %1</translation>
    </message>
    <message>
        <source>must be a number, not %1</source>
        <translation>muss eine Zahl sein, nicht %1</translation>
    </message>
    <message>
        <source>the number is too large</source>
        <translation>die Zahl ist zu groß</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2, not %3</source>
        <translation>muss eine ganze Zahl von %1 bis %2 sein, nicht %3</translation>
    </message>
    <message>
        <source>%1 is no set of numbers such as &quot;1-3,7&quot;</source>
        <translation>%1 ist keine Menge von Zahlen wie „1-3,7“</translation>
    </message>
    <message>
        <source>%1 goes beyond %2, the last number</source>
        <translation>%1 geht über %2 hinaus, die letzte Nummer</translation>
    </message>
    <message>
        <source>the name must be a number from %1 to %2</source>
        <translation>der Name muss eine Zahl von %1 bis %2 sein</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>es ist schreibgeschützt</translation>
    </message>
    <message>
        <source>%1 cannot be read: it is no file</source>
        <translation>%1 kann nicht gelesen werden: es ist keine Datei</translation>
    </message>
    <message>
        <source>%1 is beyond %2, the last number</source>
        <translation>%1 liegt über %2, der letzten Nummer</translation>
    </message>
    <message>
        <source>zones and line maps are picked by their numbers</source>
        <translation>Zonen und Kurven werden mit ihren Nummern ausgewählt</translation>
    </message>
    <message>
        <source>must be one of &quot;zone&quot;, &quot;lineMap&quot; and &quot;other&quot;</source>
        <translation>muss „zone“, „lineMap“ oder „other“ sein</translation>
    </message>
    <message>
        <source>data and their zones and variables belong together</source>
        <translation>Daten und ihre Zonen und Variablen gehören zusammen</translation>
    </message>
    <message>
        <source>no zone belongs to a strand, so there is no time</source>
        <translation>keine Zone gehört zu einem Strang, daher gibt es keine Zeit</translation>
    </message>
    <message>
        <source>Zones matched by number (%1): %2.</source>
        <translation>Nach der Nummer zugeordnete Zonen (%1): %2.</translation>
    </message>
    <message>
        <source>Zones matched by number, which stay deleted (%1): %2.</source>
        <translation>Nach der Nummer zugeordnete Zonen, die gelöscht bleiben (%1): %2.</translation>
    </message>
    <message>
        <source>Variables matched by number (%1): %2.</source>
        <translation>Nach der Nummer zugeordnete Variablen (%1): %2.</translation>
    </message>
    <message>
        <source>The data do not reach the solution time %1.</source>
        <translation>Die Daten reichen nicht bis zur Lösungszeit %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>must be true or false, not %1</source>
        <translation>muss true oder false sein, nicht %1</translation>
    </message>
</context>
<context>
    <name>DynamicLineMapText</name>
    <message>
        <source>Zone name</source>
        <translation>Name der Zone</translation>
    </message>
    <message>
        <source>Zone number</source>
        <translation>Nummer der Zone</translation>
    </message>
    <message>
        <source>Dependent variable name</source>
        <translation>Name der abhängigen Variablen</translation>
    </message>
    <message>
        <source>Dependent variable number</source>
        <translation>Nummer der abhängigen Variablen</translation>
    </message>
    <message>
        <source>Independent variable name</source>
        <translation>Name der unabhängigen Variablen</translation>
    </message>
    <message>
        <source>Independent variable number</source>
        <translation>Nummer der unabhängigen Variablen</translation>
    </message>
    <message>
        <source>Map number</source>
        <translation>Nummer der Kurve</translation>
    </message>
    <message>
        <source>X-Axis number</source>
        <translation>Nummer der X-Achse</translation>
    </message>
    <message>
        <source>Y-Axis number</source>
        <translation>Nummer der Y-Achse</translation>
    </message>
</context>
<context>
    <name>FitReport</name>
    <message>
        <source>too few points</source>
        <translation>zu wenige Punkte</translation>
    </message>
    <message>
        <source>too few different values of the independent variable</source>
        <translation>zu wenige verschiedene Werte der unabhängigen Variablen</translation>
    </message>
    <message>
        <source>values of the independent variable are not positive</source>
        <translation>Werte der unabhängigen Variablen sind nicht positiv</translation>
    </message>
    <message>
        <source>values of the dependent variable are 0 or have both signs</source>
        <translation>Werte der abhängigen Variablen sind 0 oder haben beide Vorzeichen</translation>
    </message>
    <message>
        <source>all points lie at the same height</source>
        <translation>alle Punkte liegen auf gleicher Höhe</translation>
    </message>
    <message>
        <source>no such curve comes near the points</source>
        <translation>keine solche Kurve kommt den Punkten nahe</translation>
    </message>
    <message>
        <source>the numbers are too large</source>
        <translation>die Zahlen sind zu groß</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>nicht genug Speicher</translation>
    </message>
    <message>
        <source>There is no curve: %1.</source>
        <translation>Es gibt keine Kurve: %1.</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>standard error</source>
        <translation>Standardfehler</translation>
    </message>
    <message>
        <source>R squared</source>
        <translation>R-Quadrat</translation>
    </message>
    <message>
        <source>residual deviation</source>
        <translation>Reststreuung</translation>
    </message>
    <message>
        <source>points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>These are the first %1 of %2 lines of the map.</source>
        <translation>Dies sind die ersten %1 von %2 Linien der Kurve.</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>en</source>
        <comment>language of the pages of the help</comment>
        <translation>de</translation>
    </message>
</context>
<context>
    <name>LayerQueries</name>
    <message>
        <source>Show Layer</source>
        <translation>Ebene zeigen</translation>
    </message>
    <message>
        <source>The %1 layer is off, so nothing of it is drawn.
Do you want to switch it on?</source>
        <translation>Die Ebene %1 ist aus, daher wird nichts davon gezeichnet.
Möchten Sie sie einschalten?</translation>
    </message>
    <message>
        <source>Show Surfaces</source>
        <translation>Flächen zeigen</translation>
    </message>
    <message>
        <source>No active zone draws its surfaces, so the %1 layer shows nothing.
Do you want to draw the boundary cell faces of the active zones?</source>
        <translation>Keine aktive Zone zeichnet ihre Flächen, daher zeigt die Ebene %1 nichts.
Möchten Sie die Randflächen der aktiven Zonen zeichnen?</translation>
    </message>
</context>
<context>
    <name>LineMapZone</name>
    <message>
        <source>Zone %1 is not ordered, so a line through its points follows no order.</source>
        <translation>Zone %1 ist nicht geordnet, eine Linie durch ihre Punkte folgt daher keiner Ordnung.</translation>
    </message>
    <message>
        <source>Zone %1 has no values at its points of %2.</source>
        <translation>Zone %1 hat an ihren Punkten keine Werte von %2.</translation>
    </message>
    <message>
        <source>Zone</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Do you want to use it anyway?</source>
        <translation>Möchten Sie sie trotzdem verwenden?</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Enter character...</source>
        <translation>Zeichen eingeben...</translation>
    </message>
    <message>
        <source>Activate</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Deactivate</source>
        <translation>Deaktivieren</translation>
    </message>
    <message>
        <source>Show selected only</source>
        <translation>Nur Ausgewählte zeigen</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>Rename line map</source>
        <translation>Kurve umbenennen</translation>
    </message>
    <message>
        <source>Enter...</source>
        <translation>Eingeben...</translation>
    </message>
    <message>
        <source>Select Zone...</source>
        <translation>Zone auswählen...</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Enter range...</source>
        <translation>Bereich eingeben...</translation>
    </message>
    <message>
        <source>Select Variable...</source>
        <translation>Variable auswählen...</translation>
    </message>
    <message>
        <source>Draw all</source>
        <translation>Alle zeichnen</translation>
    </message>
    <message>
        <source>I skip=%1</source>
        <translation>I-Schritt=%1</translation>
    </message>
    <message>
        <source>Distance=%1</source>
        <translation>Abstand=%1</translation>
    </message>
    <message>
        <source>Enter index...</source>
        <translation>Index eingeben...</translation>
    </message>
    <message>
        <source>Enter distance...</source>
        <translation>Abstand eingeben...</translation>
    </message>
    <message>
        <source>No skip</source>
        <translation>Kein Schritt</translation>
    </message>
    <message>
        <source>Enter skip...</source>
        <translation>Schritt eingeben...</translation>
    </message>
    <message>
        <source>Select variable...</source>
        <translation>Variable auswählen...</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
</context>
<context>
    <name>OperationText</name>
    <message>
        <source>&quot;%1&quot; must be %2, not %3</source>
        <translation>„%1“ muss %2 sein, nicht %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>wahr oder falsch</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>a text or a list of texts</source>
        <translation>ein Text oder eine Liste von Texten</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>a set of numbers such as &quot;1-3,7&quot;</source>
        <translation>eine Menge von Zahlen wie „1-3,7“</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>unbekannter Schlüssel „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no set of numbers</source>
        <translation>„%1“ ist keine Menge von Zahlen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be one of %2</source>
        <translation>„%1“ muss einer von %2 sein</translation>
    </message>
    <message>
        <source>&quot;value&quot;: %1 is no style value</source>
        <translation>„value“: %1 ist kein Stilwert</translation>
    </message>
    <message>
        <source>there is no layer &quot;%1&quot;</source>
        <translation>es gibt keine Ebene „%1“</translation>
    </message>
    <message>
        <source>&quot;rename&quot; takes one of &quot;zone&quot;, &quot;variable&quot; and &quot;lineMap&quot;</source>
        <translation>„rename“ verlangt eines von „zone“, „variable“ und „lineMap“</translation>
    </message>
    <message>
        <source>&quot;lineMap&quot;: there is no map %1</source>
        <translation>„lineMap“: es gibt keine Kurve %1</translation>
    </message>
    <message>
        <source>&quot;pick&quot;: %1 is no pick</source>
        <translation>„pick“: %1 ist keine Wahl</translation>
    </message>
    <message>
        <source>&quot;rgb&quot; must be three numbers from 0 to 255, not %1</source>
        <translation>„rgb“ muss drei Zahlen von 0 bis 255 haben, nicht %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is scaled by &quot;%2&quot;</source>
        <translation>„%1“ wird durch „%2“ vergrößert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be 1 or more</source>
        <translation>„%1“ muss 1 oder mehr sein</translation>
    </message>
    <message>
        <source>&quot;data&quot; must be &quot;none&quot;</source>
        <translation>„data“ muss „none“ sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no key &quot;%2&quot;</source>
        <translation>„%1“ hat keinen Schlüssel „%2“</translation>
    </message>
    <message>
        <source>%1 is no operation</source>
        <translation>%1 ist kein Vorgang</translation>
    </message>
    <message>
        <source>a list of names with at most one index</source>
        <translation>eine Liste von Namen mit höchstens einem Index</translation>
    </message>
    <message>
        <source>there is no frame or no data for it</source>
        <translation>es gibt keinen Rahmen oder keine Daten dafür</translation>
    </message>
    <message>
        <source>no such style value</source>
        <translation>kein solcher Stilwert</translation>
    </message>
    <message>
        <source>the path names a group of style values</source>
        <translation>der Pfad benennt eine Gruppe von Stilwerten</translation>
    </message>
    <message>
        <source>the value has the wrong type</source>
        <translation>der Wert hat die falsche Art</translation>
    </message>
    <message>
        <source>the value is out of range</source>
        <translation>der Wert liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>there is nothing of that number</source>
        <translation>dazu gibt es nichts mit dieser Nummer</translation>
    </message>
    <message>
        <source>the operation does not suit the value</source>
        <translation>der Vorgang passt nicht zum Wert</translation>
    </message>
    <message>
        <source>the value was refused (%1)</source>
        <translation>der Wert wurde abgelehnt (%1)</translation>
    </message>
    <message>
        <source>%1 cannot be done: %2</source>
        <translation>%1 ist nicht möglich: %2</translation>
    </message>
</context>
<context>
    <name>PickedObjects</name>
    <message numerus="yes">
        <source>%Ln object(s) picked</source>
        <translation>
            <numerusform>%Ln Objekt gewählt</numerusform>
            <numerusform>%Ln Objekte gewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Linie %1: %2</translation>
    </message>
    <message>
        <source>Zone %1: %2, %3 cells</source>
        <translation>Zone %1: %2, %3 Zellen</translation>
    </message>
    <message>
        <source>Zone %1: %2, %3 points</source>
        <translation>Zone %1: %2, %3 Punkte</translation>
    </message>
</context>
<context>
    <name>PictureOutput</name>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
    <message>
        <source>PDF page (*.pdf)</source>
        <translation>PDF-Seite (*.pdf)</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>SVG-Zeichnung (*.svg)</translation>
    </message>
    <message>
        <source>Other pictures (*.jpg *.jpeg *.bmp)</source>
        <translation>Andere Bilder (*.jpg *.jpeg *.bmp)</translation>
    </message>
    <message>
        <source>%1 cannot be written: its ending must name a picture format, one of %2</source>
        <translation>%1 kann nicht geschrieben werden: die Endung muss ein Bildformat benennen, eines von %2</translation>
    </message>
    <message>
        <source>%1 cannot be drawn: %2</source>
        <translation>%1 kann nicht gezeichnet werden: %2</translation>
    </message>
    <message>
        <source>TIFF picture (*.tif *.tiff)</source>
        <translation>TIFF-Bild (*.tif *.tiff)</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 Pixel</translation>
    </message>
</context>
<context>
    <name>Plot3D</name>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>binary</source>
        <translation>binär</translation>
    </message>
    <message>
        <source>Grids</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>several grids</source>
        <translation>mehrere Gitter</translation>
    </message>
    <message>
        <source>one grid</source>
        <translation>ein Gitter</translation>
    </message>
    <message>
        <source>Blanking</source>
        <translation>Ausblendung</translation>
    </message>
    <message>
        <source>with blanking</source>
        <translation>mit Ausblendung</translation>
    </message>
    <message>
        <source>without blanking</source>
        <translation>ohne Ausblendung</translation>
    </message>
    <message>
        <source>Record marks</source>
        <translation>Satzmarken</translation>
    </message>
    <message>
        <source>with record marks</source>
        <translation>mit Satzmarken</translation>
    </message>
    <message>
        <source>without record marks</source>
        <translation>ohne Satzmarken</translation>
    </message>
    <message>
        <source>Byte order</source>
        <translation>Byte-Reihenfolge</translation>
    </message>
    <message>
        <source>big endian</source>
        <translation>Big Endian</translation>
    </message>
    <message>
        <source>little endian</source>
        <translation>Little Endian</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Genauigkeit</translation>
    </message>
    <message>
        <source>double precision</source>
        <translation>doppelte Genauigkeit</translation>
    </message>
    <message>
        <source>single precision</source>
        <translation>einfache Genauigkeit</translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation>Dimensionen</translation>
    </message>
    <message>
        <source>two dimensions</source>
        <translation>zwei Dimensionen</translation>
    </message>
    <message>
        <source>three dimensions</source>
        <translation>drei Dimensionen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no Plot3D property; there are %2</source>
        <translation>„%1“ ist keine Plot3D-Eigenschaft; es gibt %2</translation>
    </message>
    <message>
        <source>the Plot3D property %1 is &quot;%2&quot;, &quot;%3&quot; or &quot;auto&quot;, not &quot;%4&quot;</source>
        <translation>die Plot3D-Eigenschaft %1 ist „%2“, „%3“ oder „auto“, nicht „%4“</translation>
    </message>
</context>
<context>
    <name>Plot3DLayout</name>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>binary</source>
        <translation>binär</translation>
    </message>
    <message>
        <source>big-endian</source>
        <translation>Big Endian</translation>
    </message>
    <message>
        <source>little-endian</source>
        <translation>Little Endian</translation>
    </message>
    <message>
        <source>double precision</source>
        <translation>doppelte Genauigkeit</translation>
    </message>
    <message>
        <source>single precision</source>
        <translation>einfache Genauigkeit</translation>
    </message>
    <message>
        <source>with record marks</source>
        <translation>mit Satzmarken</translation>
    </message>
    <message>
        <source>several grids</source>
        <translation>mehrere Gitter</translation>
    </message>
    <message>
        <source>one grid</source>
        <translation>ein Gitter</translation>
    </message>
    <message>
        <source>with iblank</source>
        <translation>mit iblank</translation>
    </message>
    <message>
        <source>two-dimensional</source>
        <translation>zweidimensional</translation>
    </message>
</context>
<context>
    <name>PlotDetails</name>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Range by the data</source>
        <translation>Bereich nach den Daten</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Unterste Stufe</translation>
    </message>
    <message>
        <source>Highest level</source>
        <translation>Oberste Stufe</translation>
    </message>
    <message>
        <source>Bands</source>
        <translation>Bänder</translation>
    </message>
    <message>
        <source>More lines at (values)</source>
        <translation>Weitere Linien bei (Werte)</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Colors reversed</source>
        <translation>Farben umgekehrt</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>Title of the legend</source>
        <translation>Titel der Legende</translation>
    </message>
    <message>
        <source>Legend beside the plot</source>
        <translation>Legende neben der Darstellung</translation>
    </message>
    <message>
        <source>Its left edge [%]</source>
        <translation>Ihr linker Rand [%]</translation>
    </message>
    <message>
        <source>Its upper edge [%]</source>
        <translation>Ihr oberer Rand [%]</translation>
    </message>
    <message>
        <source>Reset Levels</source>
        <translation>Stufen zurücksetzen</translation>
    </message>
    <message>
        <source>U variable</source>
        <translation>Variable U</translation>
    </message>
    <message>
        <source>V variable</source>
        <translation>Variable V</translation>
    </message>
    <message>
        <source>W variable</source>
        <translation>Variable W</translation>
    </message>
    <message>
        <source>Length by the data</source>
        <translation>Länge nach den Daten</translation>
    </message>
    <message>
        <source>Length of magnitude 1</source>
        <translation>Länge beim Betrag 1</translation>
    </message>
    <message>
        <source>Relative length</source>
        <translation>Relative Länge</translation>
    </message>
    <message>
        <source>All of the same length</source>
        <translation>Alle gleich lang</translation>
    </message>
    <message>
        <source>Head size [% of the vector]</source>
        <translation>Größe der Spitze [% des Vektors]</translation>
    </message>
    <message>
        <source>Head angle [°]</source>
        <translation>Winkel der Spitze [°]</translation>
    </message>
    <message>
        <source>Reference arrow</source>
        <translation>Bezugspfeil</translation>
    </message>
    <message>
        <source>Its magnitude (0: a round one)</source>
        <translation>Sein Betrag (0: ein runder)</translation>
    </message>
    <message>
        <source>Size variable</source>
        <translation>Variable für die Größe</translation>
    </message>
    <message>
        <source>Smallest value</source>
        <translation>Kleinster Wert</translation>
    </message>
    <message>
        <source>Largest value</source>
        <translation>Größter Wert</translation>
    </message>
    <message>
        <source>Smallest size [%]</source>
        <translation>Kleinste Größe [%]</translation>
    </message>
    <message>
        <source>Largest size [%]</source>
        <translation>Größte Größe [%]</translation>
    </message>
    <message>
        <source>Crease angle [°]</source>
        <translation>Knickwinkel [°]</translation>
    </message>
    <message>
        <source>From the right [°]</source>
        <translation>Von rechts [°]</translation>
    </message>
    <message>
        <source>From above [°]</source>
        <translation>Von oben [°]</translation>
    </message>
    <message>
        <source>Translucent surfaces</source>
        <translation>Transparente Flächen</translation>
    </message>
    <message>
        <source>Red variable</source>
        <translation>Variable für Rot</translation>
    </message>
    <message>
        <source>Green variable</source>
        <translation>Variable für Grün</translation>
    </message>
    <message>
        <source>Blue variable</source>
        <translation>Variable für Blau</translation>
    </message>
    <message>
        <source>Value blanking</source>
        <translation>Werte ausblenden</translation>
    </message>
    <message>
        <source>Takes away</source>
        <translation>Nimmt weg</translation>
    </message>
    <message>
        <source>In force</source>
        <translation>In Kraft</translation>
    </message>
    <message>
        <source>Where the variable</source>
        <translation>Wo die Variable</translation>
    </message>
    <message>
        <source>is</source>
        <translation>ist</translation>
    </message>
    <message>
        <source>a</source>
        <translation>verglichen mit</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Konstante</translation>
    </message>
    <message>
        <source>Other variable</source>
        <translation>Andere Variable</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Gezeigt</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>Quer zu</translation>
    </message>
    <message>
        <source>In the middle</source>
        <translation>In der Mitte</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Lage</translation>
    </message>
    <message>
        <source>Flood by</source>
        <translation>Füllen nach</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Values by the data</source>
        <translation>Werte nach den Daten</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Erster Wert</translation>
    </message>
    <message>
        <source>Second value</source>
        <translation>Zweiter Wert</translation>
    </message>
    <message>
        <source>Third value</source>
        <translation>Dritter Wert</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Lines of the rake</source>
        <translation>Linien des Rechens</translation>
    </message>
    <message>
        <source>Rake across the data</source>
        <translation>Rechen quer durch die Daten</translation>
    </message>
    <message>
        <source>Rake from X</source>
        <translation>Rechen von X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Rake to X</source>
        <translation>Rechen bis X</translation>
    </message>
    <message>
        <source>Points besides (X Y Z ...)</source>
        <translation>Weitere Punkte (X Y Z ...)</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Line thickness [%]</source>
        <translation>Linienstärke [%]</translation>
    </message>
    <message>
        <source>X range by the data</source>
        <translation>X-Bereich nach den Daten</translation>
    </message>
    <message>
        <source>X minimum</source>
        <translation>X-Minimum</translation>
    </message>
    <message>
        <source>X maximum</source>
        <translation>X-Maximum</translation>
    </message>
    <message>
        <source>X title</source>
        <translation>X-Titel</translation>
    </message>
    <message>
        <source>Y range by the data</source>
        <translation>Y-Bereich nach den Daten</translation>
    </message>
    <message>
        <source>Y minimum</source>
        <translation>Y-Minimum</translation>
    </message>
    <message>
        <source>Y maximum</source>
        <translation>Y-Maximum</translation>
    </message>
    <message>
        <source>Y title</source>
        <translation>Y-Titel</translation>
    </message>
    <message>
        <source>Z range by the data</source>
        <translation>Z-Bereich nach den Daten</translation>
    </message>
    <message>
        <source>Z minimum</source>
        <translation>Z-Minimum</translation>
    </message>
    <message>
        <source>Z maximum</source>
        <translation>Z-Maximum</translation>
    </message>
    <message>
        <source>Z title</source>
        <translation>Z-Titel</translation>
    </message>
    <message>
        <source>Font size [%]</source>
        <translation>Schriftgröße [%]</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Radius by the data</source>
        <translation>Radius nach den Daten</translation>
    </message>
    <message>
        <source>Radius at the middle</source>
        <translation>Radius in der Mitte</translation>
    </message>
    <message>
        <source>Radius at the rim</source>
        <translation>Radius am Rand</translation>
    </message>
    <message>
        <source>Angle 0</source>
        <translation>Winkel 0</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>Im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>In the corner where it hides least</source>
        <translation>In der Ecke, wo sie am wenigsten verdeckt</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Kasten</translation>
    </message>
    <message>
        <source>Title of the plot</source>
        <translation>Titel der Darstellung</translation>
    </message>
    <message>
        <source>Contour</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Vektoren</translation>
    </message>
    <message>
        <source>Scatter</source>
        <translation>Streuung</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>Kanten</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Blanking</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Constraint</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>Slices</source>
        <translation>Schnitte</translation>
    </message>
    <message>
        <source>Slice</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Iso-surfaces</source>
        <translation>Isoflächen</translation>
    </message>
    <message>
        <source>Streamtraces</source>
        <translation>Stromlinien</translation>
    </message>
    <message>
        <source>Axes</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>X Axes</source>
        <translation>X-Achsen</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Achse</translation>
    </message>
    <message>
        <source>Y Axes</source>
        <translation>Y-Achsen</translation>
    </message>
    <message>
        <source>Polar Axes</source>
        <translation>Polarachsen</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Time in the picture</source>
        <translation>Zeit im Bild</translation>
    </message>
    <message>
        <source>Text before the time</source>
        <translation>Text vor der Zeit</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Stellen</translation>
    </message>
    <message>
        <source>In the corner of the plot</source>
        <translation>In der Ecke der Darstellung</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>note: %1</source>
        <translation>Hinweis: %1</translation>
    </message>
    <message>
        <source>Try &apos;corvala --help&apos;.</source>
        <translation>Versuchen Sie „corvala --help“.</translation>
    </message>
    <message>
        <source>corvala</source>
        <translation>corvala</translation>
    </message>
</context>
<context>
    <name>Prompt</name>
    <message>
        <source>Enter Range</source>
        <translation>Bereich eingeben</translation>
    </message>
    <message>
        <source>&amp;Begin</source>
        <translation>&amp;Anfang</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Ende</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Schritt</translation>
    </message>
    <message>
        <source>Enter Index Skipping</source>
        <translation>Indexschritte eingeben</translation>
    </message>
    <message>
        <source>&amp;I skip</source>
        <translation>&amp;I-Schritt</translation>
    </message>
    <message>
        <source>&amp;J skip</source>
        <translation>&amp;J-Schritt</translation>
    </message>
    <message>
        <source>&amp;K skip</source>
        <translation>&amp;K-Schritt</translation>
    </message>
    <message>
        <source>Enter the value for the line pattern length</source>
        <translation>Geben Sie die Länge des Linienmusters ein</translation>
    </message>
    <message>
        <source>Line Pattern Length [%]</source>
        <translation>Länge des Linienmusters [%]</translation>
    </message>
    <message>
        <source>Enter the value for the line thickness</source>
        <translation>Geben Sie die Linienstärke ein</translation>
    </message>
    <message>
        <source>Line Thickness [%]</source>
        <translation>Linienstärke [%]</translation>
    </message>
    <message>
        <source>Enter the size of scatter symbols in frame units</source>
        <translation>Geben Sie die Größe der Streusymbole in Rahmeneinheiten ein</translation>
    </message>
    <message>
        <source>Size [%]</source>
        <translation>Größe [%]</translation>
    </message>
    <message>
        <source>Enter the size of symbols in frame units</source>
        <translation>Geben Sie die Größe der Symbole in Rahmeneinheiten ein</translation>
    </message>
    <message>
        <source>Enter the size of error bars in frame units</source>
        <translation>Geben Sie die Größe der Fehlerbalken in Rahmeneinheiten ein</translation>
    </message>
    <message>
        <source>Enter the width of the bars in frame units</source>
        <translation>Geben Sie die Breite der Balken in Rahmeneinheiten ein</translation>
    </message>
    <message>
        <source>Surface Translucency</source>
        <translation>Flächentransparenz</translation>
    </message>
    <message>
        <source>Enter the surface translucency percentage.</source>
        <translation>Geben Sie die Flächentransparenz in Prozent ein.</translation>
    </message>
    <message>
        <source>Number of Points</source>
        <translation>Anzahl der Punkte</translation>
    </message>
    <message>
        <source>Enter the number of points used to draw the curve</source>
        <translation>Geben Sie die Anzahl der Punkte ein, mit denen die Kurve gezeichnet wird</translation>
    </message>
    <message>
        <source>Choose the variable</source>
        <translation>Wählen Sie die Variable</translation>
    </message>
    <message>
        <source>Select the error bar variable</source>
        <translation>Wählen Sie die Variable der Fehlerbalken</translation>
    </message>
    <message>
        <source>Enter the I-Index skipping</source>
        <translation>Geben Sie den Schritt des I-Index ein</translation>
    </message>
    <message>
        <source>I-Skip</source>
        <translation>I-Schritt</translation>
    </message>
    <message>
        <source>Enter the distance in frame units</source>
        <translation>Geben Sie den Abstand in Rahmeneinheiten ein</translation>
    </message>
    <message>
        <source>Distance [%]</source>
        <translation>Abstand [%]</translation>
    </message>
</context>
<context>
    <name>ReadMessage</name>
    <message numerus="yes">
        <source>%1 (and %n more like it)</source>
        <translation>
            <numerusform>%1 (und %n weiterer dieser Art)</numerusform>
            <numerusform>%1 (und %n weitere dieser Art)</numerusform>
        </translation>
    </message>
    <message>
        <source>it is longer than its header says</source>
        <translation>sie ist länger, als ihr Kopf sagt</translation>
    </message>
    <message>
        <source>it is cut off: %1 of %2 bytes are there</source>
        <translation>sie ist abgeschnitten: %1 von %2 Bytes sind da</translation>
    </message>
    <message>
        <source>%1: %2 names solutions of %3 times, but there are %4.</source>
        <translation>%1: %2 nennt Lösungen zu %3 Zeiten, aber es gibt %4.</translation>
    </message>
    <message>
        <source>%1: the solution %2 of %3 was left out: there is none.</source>
        <translation>%1: die Lösung %2 von %3 wurde ausgelassen: es gibt sie nicht.</translation>
    </message>
    <message>
        <source>%1: it does not say which solutions belong to which times; the first ones are shown, without a time.</source>
        <translation>%1: es steht nicht darin, welche Lösungen zu welchen Zeiten gehören; die ersten werden gezeigt, ohne Zeit.</translation>
    </message>
    <message>
        <source>%1: it does not say which solutions belong to which times; they were taken in their order.</source>
        <translation>%1: es steht nicht darin, welche Lösungen zu welchen Zeiten gehören; sie wurden in ihrer Reihenfolge genommen.</translation>
    </message>
    <message>
        <source>it is no collection that lists files</source>
        <translation>sie ist keine Sammlung, die Dateien aufzählt</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>Byte %1: %2</translation>
    </message>
    <message>
        <source>a file in the list has no name, or no time</source>
        <translation>eine Datei der Liste hat keinen Namen oder keine Zeit</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>%1 has no end; the files that it lists were read.</source>
        <translation>%1 hat kein Ende; die aufgezählten Dateien wurden gelesen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time</source>
        <translation>„%1“ ist keine Zeit</translation>
    </message>
    <message>
        <source>line %1: the entry names no file</source>
        <translation>Zeile %1: der Eintrag nennt keine Datei</translation>
    </message>
    <message>
        <source>there are no zones with points in it</source>
        <translation>es sind keine Zonen mit Punkten darin</translation>
    </message>
    <message>
        <source>%1 was read in another way: %2.</source>
        <translation>%1 wurde auf andere Weise gelesen: %2.</translation>
    </message>
    <message>
        <source>a solution time is not a number</source>
        <translation>eine Lösungszeit ist keine Zahl</translation>
    </message>
    <message>
        <source>%1: some times occur twice; the first is shown.</source>
        <translation>%1: einige Zeiten kommen zweimal vor; die erste wird gezeigt.</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lese %1</translation>
    </message>
    <message>
        <source>Reading %1, time %2 of %3</source>
        <translation>Lese %1, Zeit %2 von %3</translation>
    </message>
    <message>
        <source>a zone of %1 points does not fit the memory</source>
        <translation>eine Zone mit %1 Punkten passt nicht in den Speicher</translation>
    </message>
    <message>
        <source>%1: the zone &quot;%2&quot; was left out: %3.</source>
        <translation>%1: die Zone „%2“ wurde ausgelassen: %3.</translation>
    </message>
    <message>
        <source>1 empty block was left out.</source>
        <translation>1 leerer Block wurde ausgelassen.</translation>
    </message>
    <message>
        <source>%1 empty blocks were left out.</source>
        <translation>%1 leere Blöcke wurden ausgelassen.</translation>
    </message>
    <message>
        <source>Arrays without a number per point or cell were left out: %1.</source>
        <translation>Felder ohne eine Zahl je Punkt oder Zelle wurden ausgelassen: %1.</translation>
    </message>
    <message>
        <source>line %1 (&quot;%2&quot;) cannot be understood</source>
        <translation>Zeile %1 („%2“) ist nicht zu verstehen</translation>
    </message>
    <message>
        <source>it is no EnSight case file that names a geometry</source>
        <translation>sie ist keine EnSight-Falldatei, die eine Geometrie nennt</translation>
    </message>
    <message>
        <source>cases of type &quot;%1&quot; cannot be read</source>
        <translation>Fälle der Art „%1“ können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Line %1 of the case was left out: %2 is no field.</source>
        <translation>Zeile %1 des Falls wurde ausgelassen: %2 ist kein Feld.</translation>
    </message>
    <message>
        <source>time set %1 has not as many times or file numbers as steps</source>
        <translation>Zeitmenge %1 hat nicht so viele Zeiten oder Dateinummern wie Schritte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands where elements are due</source>
        <translation>„%1“ steht, wo Elemente fällig sind</translation>
    </message>
    <message>
        <source>an element has point %1, which does not exist</source>
        <translation>ein Element hat den Punkt %1, den es nicht gibt</translation>
    </message>
    <message>
        <source>%1 is no count</source>
        <translation>%1 ist keine Anzahl</translation>
    </message>
    <message>
        <source>Time %1 was left out: %2: %3.</source>
        <translation>Zeit %1 wurde ausgelassen: %2: %3.</translation>
    </message>
    <message>
        <source>Particles were left out at time %1: %2: %3.</source>
        <translation>Teilchen wurden zur Zeit %1 ausgelassen: %2: %3.</translation>
    </message>
    <message>
        <source>%1 has points, but no elements.</source>
        <translation>%1 hat Punkte, aber keine Elemente.</translation>
    </message>
    <message>
        <source>it has several values for a place</source>
        <translation>sie hat mehrere Werte für eine Stelle</translation>
    </message>
    <message>
        <source>there are no values of it</source>
        <translation>es gibt keine Werte davon</translation>
    </message>
    <message>
        <source>%1 was left out: %2: %3.</source>
        <translation>%1 wurde ausgelassen: %2: %3.</translation>
    </message>
    <message>
        <source>%1 was left out at time %4: %2: %3.</source>
        <translation>%1 wurde zur Zeit %4 ausgelassen: %2: %3.</translation>
    </message>
    <message>
        <source>%1: what follows the values was left out: %2.</source>
        <translation>%1: was auf die Werte folgt, wurde ausgelassen: %2.</translation>
    </message>
    <message>
        <source>%1 was left out in %4: %2: %3.</source>
        <translation>%1 wurde in %4 ausgelassen: %2: %3.</translation>
    </message>
    <message>
        <source>%1 was left out in %4 at time %5: %2: %3.</source>
        <translation>%1 wurde in %4 zur Zeit %5 ausgelassen: %2: %3.</translation>
    </message>
    <message>
        <source>the line &quot;%1 id&quot; is missing</source>
        <translation>die Zeile „%1 id“ fehlt</translation>
    </message>
    <message>
        <source>a block with &quot;%1&quot; cannot be read</source>
        <translation>ein Block mit „%1“ kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>part %1 stands in it twice, or is no part</source>
        <translation>Teil %1 steht zweimal darin oder ist kein Teil</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands in the place of &quot;%2&quot;</source>
        <translation>„%1“ steht anstelle von „%2“</translation>
    </message>
    <message>
        <source>there are no time steps in it</source>
        <translation>es sind keine Zeitschritte darin</translation>
    </message>
    <message>
        <source>a record at byte %1 has another length than %2</source>
        <translation>ein Datensatz bei Byte %1 hat eine andere Länge als %2</translation>
    </message>
    <message>
        <source>%1 is no count or number of a point</source>
        <translation>%1 ist keine Anzahl oder Punktnummer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>it is cut off: after its %1 bytes more numbers are due</source>
        <translation>sie ist abgeschnitten: nach ihren %1 Bytes sind weitere Zahlen fällig</translation>
    </message>
    <message>
        <source>it is cut off: %1 of at least %2 bytes are there</source>
        <translation>sie ist abgeschnitten: %1 von mindestens %2 Bytes sind da</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands in it where nothing like that is due</source>
        <translation>„%1“ steht darin, wo nichts dergleichen fällig ist</translation>
    </message>
    <message>
        <source>part %1 is not in the geometry</source>
        <translation>Teil %1 ist nicht in der Geometrie</translation>
    </message>
    <message>
        <source>%1 values of a part are missing in it</source>
        <translation>%1 Werte eines Teils fehlen darin</translation>
    </message>
    <message>
        <source>its header is cut off or damaged</source>
        <translation>ihr Kopf ist abgeschnitten oder beschädigt</translation>
    </message>
    <message>
        <source>%1: %2 of %3 times were left out: it is cut off: %4 of %5 bytes are there.</source>
        <translation>%1: %2 von %3 Zeiten wurden ausgelassen: sie ist abgeschnitten: %4 von %5 Bytes sind da.</translation>
    </message>
    <message>
        <source>%1: the set &quot;%2&quot; was left out: what it names is not there.</source>
        <translation>%1: die Menge „%2“ wurde ausgelassen: was sie nennt, gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 does not have time %2.</source>
        <translation>%1 hat die Zeit %2 nicht.</translation>
    </message>
    <message>
        <source>%1 was left out: %2.</source>
        <translation>%1 wurde ausgelassen: %2.</translation>
    </message>
    <message>
        <source>it changed while it was read</source>
        <translation>sie hat sich beim Lesen geändert</translation>
    </message>
    <message>
        <source>it is a folder that holds no data files</source>
        <translation>sie ist ein Ordner ohne Datendateien</translation>
    </message>
    <message>
        <source>it is a folder that holds several data files; open some of them: %1</source>
        <translation>sie ist ein Ordner mit mehreren Datendateien; öffnen Sie einige davon: %1</translation>
    </message>
    <message>
        <source>%1 was left out: there is no mesh in it.</source>
        <translation>%1 wurde ausgelassen: es ist kein Netz darin.</translation>
    </message>
    <message>
        <source>%1 was left out: %2 does not have it.</source>
        <translation>%1 wurde ausgelassen: %2 hat es nicht.</translation>
    </message>
    <message>
        <source>%1 was left out: only %2 has it.</source>
        <translation>%1 wurde ausgelassen: nur %2 hat es.</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>sie ist leer</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>%1 has the files of several processors in one (collated), which cannot be read; reconstruct the case, or write it uncollated</source>
        <translation>%1 hat die Dateien mehrerer Prozessoren in einer (collated), was nicht gelesen werden kann; setzen Sie den Fall zusammen oder schreiben Sie ihn uncollated</translation>
    </message>
    <message>
        <source>it is cut off after %1 bytes: more should follow</source>
        <translation>sie ist nach %1 Bytes abgeschnitten: es müsste mehr folgen</translation>
    </message>
    <message>
        <source>no values follow</source>
        <translation>es folgen keine Werte</translation>
    </message>
    <message>
        <source>more follows than it should hold</source>
        <translation>es folgt mehr, als sie enthalten sollte</translation>
    </message>
    <message>
        <source>it does not begin with &quot;# vtk DataFile&quot;, as legacy VTK files do</source>
        <translation>sie beginnt nicht mit „# vtk DataFile“ wie alte VTK-Dateien</translation>
    </message>
    <message>
        <source>there is no geometry in it (no DATASET line, or an unknown kind of data set)</source>
        <translation>es ist keine Geometrie darin (keine DATASET-Zeile oder eine unbekannte Art von Datensatz)</translation>
    </message>
    <message>
        <source>it needs more than %1 GiB of memory, which is the limit</source>
        <translation>sie braucht mehr als %1 GiB Speicher, was die Grenze ist</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>sie ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>files that end in &quot;%1&quot; are not known</source>
        <translation>Dateien mit der Endung „%1“ sind nicht bekannt</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Öffne %1</translation>
    </message>
    <message>
        <source>%1 was left out at time %2: %3.</source>
        <translation>%1 wurde zur Zeit %2 ausgelassen: %3.</translation>
    </message>
    <message>
        <source>%1: the values of %2 were left out: %3.</source>
        <translation>%1: die Werte von %2 wurden ausgelassen: %3.</translation>
    </message>
    <message>
        <source>it needs more memory than the limit, or is damaged</source>
        <translation>sie braucht mehr Speicher, als die Grenze erlaubt, oder ist beschädigt</translation>
    </message>
    <message>
        <source>%1: what cannot be read of it was left out: %2.</source>
        <translation>%1: was davon nicht gelesen werden kann, wurde ausgelassen: %2.</translation>
    </message>
    <message>
        <source>it is of an unknown kind</source>
        <translation>sie ist von unbekannter Art</translation>
    </message>
    <message>
        <source>it names itself as a part</source>
        <translation>sie nennt sich selbst als Teil</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>sie ist abgeschnitten</translation>
    </message>
    <message>
        <source>it is a Plot3D solution or function file, and no grid file of that name is beside it</source>
        <translation>sie ist eine Plot3D-Lösungs- oder Funktionsdatei, und daneben liegt keine Gitterdatei dieses Namens</translation>
    </message>
    <message>
        <source>there is something in the text that is no number</source>
        <translation>im Text steht etwas, das keine Zahl ist</translation>
    </message>
    <message>
        <source>it has %1 numbers, which are more than fit</source>
        <translation>sie hat %1 Zahlen, das sind mehr, als passen</translation>
    </message>
    <message>
        <source>its size fits no Plot3D grid (or it is cut off, or the layout that was chosen is not the right one)</source>
        <translation>ihre Größe passt zu keinem Plot3D-Gitter (oder sie ist abgeschnitten, oder der gewählte Aufbau ist nicht der richtige)</translation>
    </message>
    <message>
        <source>%1 fits more than one Plot3D layout; it was read as: %2.</source>
        <translation>%1 passt zu mehr als einem Plot3D-Aufbau; gelesen wurde es als: %2.</translation>
    </message>
    <message>
        <source>a solution of OVERFLOW without record marks cannot be read</source>
        <translation>eine Lösung von OVERFLOW ohne Satzmarken kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>it does not belong to the grid file %1</source>
        <translation>sie gehört nicht zur Gitterdatei %1</translation>
    </message>
    <message>
        <source>%1 was left out: a solution of OVERFLOW without record marks cannot be read.</source>
        <translation>%1 wurde ausgelassen: eine Lösung von OVERFLOW ohne Satzmarken kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 was left out: it does not belong to the grid file.</source>
        <translation>%1 wurde ausgelassen: sie gehört nicht zur Gitterdatei.</translation>
    </message>
    <message>
        <source>it lists no files</source>
        <translation>sie zählt keine Dateien auf</translation>
    </message>
    <message>
        <source>it is damaged: it holds more points or faces than it announces</source>
        <translation>sie ist beschädigt: sie enthält mehr Punkte oder Flächen, als sie ankündigt</translation>
    </message>
    <message>
        <source>it is cut off after %1 bytes: more points or faces should follow</source>
        <translation>sie ist nach %1 Bytes abgeschnitten: es müssten mehr Punkte oder Flächen folgen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no type of numbers</source>
        <translation>„%1“ ist keine Art von Zahlen</translation>
    </message>
    <message>
        <source>no temporary files can be written in %1; its disk may be full</source>
        <translation>in %1 können keine temporären Dateien geschrieben werden; der Datenträger ist vielleicht voll</translation>
    </message>
    <message>
        <source>it is cut off after %1 bytes: there is no &quot;endsolid&quot;</source>
        <translation>sie ist nach %1 Bytes abgeschnitten: es gibt kein „endsolid“</translation>
    </message>
    <message>
        <source>it is damaged: %1 bytes are there instead of %2</source>
        <translation>sie ist beschädigt: %1 Bytes sind da statt %2</translation>
    </message>
    <message>
        <source>the numbers of its %1 columns in %2 rows or more need %3 GiB of memory, and %4 GiB is the limit; columns that are left out need none</source>
        <translation>die Zahlen ihrer %1 Spalten in mindestens %2 Zeilen brauchen %3 GiB Speicher, und %4 GiB sind die Grenze; ausgelassene Spalten brauchen keinen</translation>
    </message>
    <message>
        <source>it has more than %1 rows, which is the limit</source>
        <translation>sie hat mehr als %1 Zeilen, was die Grenze ist</translation>
    </message>
    <message>
        <source>its numbers need %1 GiB in the folder for temporary files, %2, where %3 GiB are free</source>
        <translation>ihre Zahlen brauchen %1 GiB im Ordner für temporäre Dateien, %2, wo %3 GiB frei sind</translation>
    </message>
    <message>
        <source>it has %1 columns, which are more than %2</source>
        <translation>sie hat %1 Spalten, das sind mehr als %2</translation>
    </message>
    <message>
        <source>all its columns are left out</source>
        <translation>alle ihre Spalten sind ausgelassen</translation>
    </message>
    <message>
        <source>%1 can be meant in several ways; it was read as: %2.</source>
        <translation>%1 kann auf mehrere Arten gemeint sein; gelesen wurde es als: %2.</translation>
    </message>
    <message>
        <source>%1: lines above the table were left out: %2.</source>
        <translation>%1: Zeilen über der Tabelle wurden ausgelassen: %2.</translation>
    </message>
    <message>
        <source>it has no rows of equally many fields, so it is no table, or one that is written in an unusual way</source>
        <translation>sie hat keine Zeilen mit gleich vielen Feldern, ist also keine Tabelle oder eine, die ungewöhnlich geschrieben ist</translation>
    </message>
    <message>
        <source>there are no rows of data in it</source>
        <translation>es sind keine Datenzeilen darin</translation>
    </message>
    <message>
        <source>%1 of its %2 rows are bad. %3</source>
        <translation>%1 ihrer %2 Zeilen sind fehlerhaft. %3</translation>
    </message>
    <message>
        <source>%1: bad rows were left out: %2.</source>
        <translation>%1: fehlerhafte Zeilen wurden ausgelassen: %2.</translation>
    </message>
    <message>
        <source>%1: columns of words are numbered: %2.</source>
        <translation>%1: Spalten mit Wörtern sind nummeriert: %2.</translation>
    </message>
    <message>
        <source>%1: columns of text were left out: %2.</source>
        <translation>%1: Spalten mit Text wurden ausgelassen: %2.</translation>
    </message>
    <message>
        <source>%1: numbers that often stand for missing values were read as numbers: %2.</source>
        <translation>%1: Zahlen, die oft für fehlende Werte stehen, wurden als Zahlen gelesen: %2.</translation>
    </message>
    <message>
        <source>line %1, column %2: a quote is not closed</source>
        <translation>Zeile %1, Spalte %2: ein Anführungszeichen ist nicht geschlossen</translation>
    </message>
    <message>
        <source>line %1, column %2: the row has %3 fields, not %4</source>
        <translation>Zeile %1, Spalte %2: die Zeile hat %3 Felder, nicht %4</translation>
    </message>
    <message>
        <source>line %1, column %2 (%3): &quot;%4&quot; is no number</source>
        <translation>Zeile %1, Spalte %2 (%3): „%4“ ist keine Zahl</translation>
    </message>
    <message>
        <source>line %1, column %2 (%3): &quot;%4&quot; is no time</source>
        <translation>Zeile %1, Spalte %2 (%3): „%4“ ist keine Zeit</translation>
    </message>
    <message>
        <source>its data cannot begin in line %1, since it has %2 lines</source>
        <translation>ihre Daten können nicht in Zeile %1 beginnen, denn sie hat %2 Zeilen</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>sie ist kein Text</translation>
    </message>
    <message>
        <source>line %1 is longer than %2 MiB, so it is no table</source>
        <translation>Zeile %1 ist länger als %2 MiB, also ist sie keine Tabelle</translation>
    </message>
    <message>
        <source>it, or a file that it names, is cut off or damaged</source>
        <translation>sie, oder eine Datei, die sie nennt, ist abgeschnitten oder beschädigt</translation>
    </message>
    <message>
        <source>it is damaged: what it claims to hold takes at least %1 bytes, of which %2 are there</source>
        <translation>sie ist beschädigt: was sie zu enthalten behauptet, nimmt mindestens %1 Bytes ein, von denen %2 da sind</translation>
    </message>
    <message>
        <source>its pieces do not fill its grid: %1 points lack</source>
        <translation>ihre Stücke füllen ihr Gitter nicht: %1 Punkte fehlen</translation>
    </message>
    <message>
        <source>it is cut off after %1 bytes: the end of the XML is missing</source>
        <translation>sie ist nach %1 Bytes abgeschnitten: das Ende des XML fehlt</translation>
    </message>
    <message>
        <source>it is no VTK XML file of a kind that is known</source>
        <translation>sie ist keine VTK-XML-Datei einer bekannten Art</translation>
    </message>
    <message>
        <source>its blocks are nested too deeply</source>
        <translation>ihre Blöcke sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>coordinates are missing</source>
        <translation>Koordinaten fehlen</translation>
    </message>
    <message>
        <source>a cell is of an unknown kind, or its points do not exist</source>
        <translation>eine Zelle ist von unbekannter Art, oder ihre Punkte gibt es nicht</translation>
    </message>
    <message>
        <source>the zone &quot;%1&quot; has no %2</source>
        <translation>die Zone „%1“ hat kein %2</translation>
    </message>
    <message>
        <source>its elements (%1 of %2 points) cannot be read</source>
        <translation>ihre Elemente (%1 mit %2 Punkten) können nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1: element block %2 was left out: its elements (%3 of %4 points) cannot be read.</source>
        <translation>%1: der Elementblock %2 wurde ausgelassen: seine Elemente (%3 mit %4 Punkten) können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>its mesh is not whole: constant/polyMesh lacks %1</source>
        <translation>ihr Netz ist nicht vollständig: in constant/polyMesh fehlt %1</translation>
    </message>
    <message>
        <source>it names points or elements that are not there</source>
        <translation>sie nennt Punkte oder Elemente, die es nicht gibt</translation>
    </message>
    <message>
        <source>it is no face of its zone</source>
        <translation>sie ist keine Fläche ihrer Zone</translation>
    </message>
    <message>
        <source>it has elements that are no faces of a known kind</source>
        <translation>sie hat Elemente, die keine Flächen einer bekannten Art sind</translation>
    </message>
    <message>
        <source>its faces of a structured zone are listed one by one</source>
        <translation>ihre Flächen einer strukturierten Zone sind einzeln aufgezählt</translation>
    </message>
    <message>
        <source>%1: the boundary patch %2 of %3 was left out: %4.</source>
        <translation>%1: die Randfläche %2 von %3 wurde ausgelassen: %4.</translation>
    </message>
    <message>
        <source>%1: of %2 solutions of %3 without a time the first one, %4, is shown.</source>
        <translation>%1: von %2 Lösungen von %3 ohne Zeit wird die erste, %4, gezeigt.</translation>
    </message>
    <message>
        <source>VTK&apos;s reader for %1 failed; the file, or one that it names, holds something that it cannot read, or is damaged</source>
        <translation>VTKs Leser für %1 ist gescheitert; die Datei, oder eine, die sie nennt, enthält etwas, das er nicht lesen kann, oder ist beschädigt</translation>
    </message>
    <message>
        <source>VTK&apos;s reader for %1 failed, perhaps by what is rare in the file: %2</source>
        <translation>VTKs Leser für %1 ist gescheitert, vielleicht an dem, was in der Datei selten ist: %2</translation>
    </message>
    <message>
        <source>it has no CGNS base</source>
        <translation>sie hat keine CGNS-Basis</translation>
    </message>
    <message>
        <source>%1 says that it is %2, as another file does; it is shown as %3.</source>
        <translation>%1 nennt sich %2 wie eine andere Datei; sie wird als %3 gezeigt.</translation>
    </message>
    <message>
        <source>line %1 names point %2, which is not there</source>
        <translation>Zeile %1 nennt Punkt %2, den es nicht gibt</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot;</source>
        <translation>Zeile %1: „%2“</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot;, and %3 lines more</source>
        <translation>Zeile %1: „%2“, und %3 weitere Zeilen</translation>
    </message>
    <message>
        <source>line %1 has no three coordinates: &quot;%2&quot;</source>
        <translation>Zeile %1 hat keine drei Koordinaten: „%2“</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot; names no point</source>
        <translation>Zeile %1: „%2“ nennt keinen Punkt</translation>
    </message>
    <message>
        <source>line %1 is none of an OBJ file: &quot;%2&quot;</source>
        <translation>Zeile %1 ist keine Zeile einer OBJ-Datei: „%2“</translation>
    </message>
    <message>
        <source>there are no points in it</source>
        <translation>sie hat keine Punkte</translation>
    </message>
    <message>
        <source>line %1 names number %2 of them, which is not there</source>
        <translation>Zeile %1 nennt davon Nummer %2, die es nicht gibt</translation>
    </message>
    <message>
        <source>it is cut off in line %1 of %2</source>
        <translation>sie bricht in Zeile %1 von %2 ab</translation>
    </message>
    <message>
        <source>line %1 of %2 has the directive &quot;#%3&quot;, which cannot be read</source>
        <translation>Zeile %1 von %2 hat die Anweisung „#%3“, die nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>line %1 of %2 cannot be read</source>
        <translation>Zeile %1 von %2 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 has no header, or is cut off</source>
        <translation>%1 hat keinen Kopf oder ist abgeschnitten</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>there is no mesh in the case of %1</source>
        <translation>im Fall von %1 ist kein Netz</translation>
    </message>
    <message>
        <source>its XML is damaged in line %1 at column %2</source>
        <translation>ihr XML ist in Zeile %1, Spalte %2 beschädigt</translation>
    </message>
    <message>
        <source>the array &quot;%1&quot; is cut off or damaged</source>
        <translation>das Feld „%1“ ist abgeschnitten oder beschädigt</translation>
    </message>
    <message>
        <source>its points are cut off or damaged</source>
        <translation>ihre Punkte sind abgeschnitten oder beschädigt</translation>
    </message>
    <message>
        <source>what is compressed in it is damaged</source>
        <translation>was in ihr komprimiert ist, ist beschädigt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no word that is known there</source>
        <translation>„%1“ ist dort kein bekanntes Wort</translation>
    </message>
    <message>
        <source>its cells are cut off or damaged</source>
        <translation>ihre Zellen sind abgeschnitten oder beschädigt</translation>
    </message>
    <message>
        <source>it has fewer numbers than it announces</source>
        <translation>sie hat weniger Zahlen, als sie ankündigt</translation>
    </message>
    <message>
        <source>line %1 has &quot;%3&quot; instead of &quot;%2&quot;</source>
        <translation>Zeile %1 hat „%3“ statt „%2“</translation>
    </message>
    <message>
        <source>its coordinates cannot be read</source>
        <translation>ihre Koordinaten können nicht gelesen werden</translation>
    </message>
    <message>
        <source>a solution cannot be read</source>
        <translation>eine Lösung kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>it is damaged, or no Exodus file</source>
        <translation>sie ist beschädigt oder keine Exodus-Datei</translation>
    </message>
    <message>
        <source>the set &quot;%1&quot; cannot be read</source>
        <translation>die Menge „%1“ kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>VTK&apos;s reader says: %1</source>
        <translation>VTKs Leser sagt: %1</translation>
    </message>
    <message>
        <source>VTK&apos;s reader for %1 failed: the file is damaged, or holds something that cannot be read; its arrays are encoded, so that it cannot be told what</source>
        <translation>VTKs Leser für %1 ist gescheitert: Die Datei ist beschädigt oder enthält etwas, das nicht gelesen werden kann; ihre Felder sind kodiert, daher lässt sich nicht sagen, was</translation>
    </message>
    <message>
        <source>its points have no coordinate &quot;%1&quot;</source>
        <translation>ihre Punkte haben keine Koordinate „%1“</translation>
    </message>
    <message>
        <source>its faces come before its points, which cannot be read</source>
        <translation>ihre Flächen stehen vor ihren Punkten, was nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>its elements of the kind %1</source>
        <translation>ihre Elemente der Art %1</translation>
    </message>
    <message>
        <source>line %1 cannot be read</source>
        <translation>Zeile %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1: names are numbered: %2.</source>
        <translation>%1: Namen sind nummeriert: %2.</translation>
    </message>
    <message>
        <source>they are lists</source>
        <translation>sie sind Listen</translation>
    </message>
    <message>
        <source>its elements &quot;%1&quot; are numbered as in CGNS 3.0 alone, which cannot be read</source>
        <translation>ihre Elemente „%1“ sind nummeriert wie nur in CGNS 3.0, was nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>its pieces do not fill its grid</source>
        <translation>ihre Teile füllen ihr Gitter nicht</translation>
    </message>
    <message>
        <source>%1: its pieces are zones of their own: %2.</source>
        <translation>%1: Ihre Teile sind eigene Zonen: %2.</translation>
    </message>
    <message>
        <source>a vertex, line, polygon or strip has too few points</source>
        <translation>ein Punkt, eine Linie, ein Polygon oder ein Streifen hat zu wenige Punkte</translation>
    </message>
</context>
<context>
    <name>ReadOffers</name>
    <message numerus="yes">
        <source>%n file(s) without times are shown together; the numbers in their names can be times.</source>
        <translation>
            <numerusform>%n Datei ohne Zeiten wird gezeigt; die Nummer in ihrem Namen kann eine Zeit sein.</numerusform>
            <numerusform>%n Dateien ohne Zeiten werden zusammen gezeigt; die Nummern in ihren Namen können Zeiten sein.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n boundary patch(es) were not read.</source>
        <translation>
            <numerusform>%n Randfläche wurde nicht gelesen.</numerusform>
            <numerusform>%n Randflächen wurden nicht gelesen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StoredView</name>
    <message>
        <source>must be %1 numbers</source>
        <translation>müssen %1 Zahlen sein</translation>
    </message>
    <message>
        <source>a minimum is above its maximum</source>
        <translation>ein Minimum liegt über seinem Maximum</translation>
    </message>
    <message>
        <source>must be above 0</source>
        <translation>muss über 0 sein</translation>
    </message>
    <message>
        <source>the camera has no direction, or looks along &quot;viewUp&quot;</source>
        <translation>die Kamera hat keine Richtung oder blickt längs „viewUp“</translation>
    </message>
    <message>
        <source>the minimum is not below the maximum</source>
        <translation>das Minimum liegt nicht unter dem Maximum</translation>
    </message>
    <message>
        <source>must be ranges of at most %1 axes</source>
        <translation>müssen Bereiche von höchstens %1 Achsen sein</translation>
    </message>
    <message>
        <source>frames of this plot type have no view</source>
        <translation>Rahmen dieser Darstellung haben keine Ansicht</translation>
    </message>
</context>
<context>
    <name>StyleValues</name>
    <message>
        <source>Slice</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Iso-surfaces</source>
        <translation>Isoflächen</translation>
    </message>
    <message>
        <source>Streamtraces</source>
        <translation>Stromlinien</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>3D field</source>
        <translation>3D-Feld</translation>
    </message>
    <message>
        <source>2D field</source>
        <translation>2D-Feld</translation>
    </message>
    <message>
        <source>XY line</source>
        <translation>XY-Linien</translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation>Anmerkung</translation>
    </message>
    <message>
        <source>Polar line</source>
        <translation>Polarlinien</translation>
    </message>
    <message>
        <source>Wire frame</source>
        <translation>Drahtgitter</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Überlagert</translation>
    </message>
    <message>
        <source>Hidden line</source>
        <translation>Verdeckte Linien</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Durchgezogen</translation>
    </message>
    <message>
        <source>Dashed</source>
        <translation>Gestrichelt</translation>
    </message>
    <message>
        <source>Dash dot</source>
        <translation>Strich Punkt</translation>
    </message>
    <message>
        <source>Dotted</source>
        <translation>Gepunktet</translation>
    </message>
    <message>
        <source>Long dash</source>
        <translation>Lange Striche</translation>
    </message>
    <message>
        <source>Dash dot dot</source>
        <translation>Strich Punkt Punkt</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Flood</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Lines and flood</source>
        <translation>Linien und gefüllt</translation>
    </message>
    <message>
        <source>Average cell flood</source>
        <translation>Zellen nach Mittelwert</translation>
    </message>
    <message>
        <source>Primary value flood</source>
        <translation>Zellen nach erstem Wert</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Tail at point</source>
        <translation>Ende am Punkt</translation>
    </message>
    <message>
        <source>Head at point</source>
        <translation>Spitze am Punkt</translation>
    </message>
    <message>
        <source>Anchor at midpoint</source>
        <translation>Mitte am Punkt</translation>
    </message>
    <message>
        <source>Head only</source>
        <translation>Nur Spitze</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Einfach</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Hollow</source>
        <translation>Hohl</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Delta</source>
        <translation>Delta</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradient</translation>
    </message>
    <message>
        <source>Right triangle</source>
        <translation>Dreieck rechts</translation>
    </message>
    <message>
        <source>Left triangle</source>
        <translation>Dreieck links</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Raute</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>Würfel</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Octahedron</source>
        <translation>Oktaeder</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>PieChart</source>
        <translation>Kreisdiagramm</translation>
    </message>
    <message>
        <source>LineArt</source>
        <translation>Linienzeichnung</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Math</source>
        <translation>Mathematisch</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Specific color</source>
        <translation>Bestimmte Farbe</translation>
    </message>
    <message>
        <source>Line color</source>
        <translation>Linienfarbe</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Borders</source>
        <translation>Ränder</translation>
    </message>
    <message>
        <source>Creases</source>
        <translation>Knicke</translation>
    </message>
    <message>
        <source>Borders and creases</source>
        <translation>Ränder und Knicke</translation>
    </message>
    <message>
        <source>Min only</source>
        <translation>Nur Minimum</translation>
    </message>
    <message>
        <source>Max only</source>
        <translation>Nur Maximum</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <source>Surface nodes</source>
        <translation>Knoten der Oberfläche</translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation>Alle Knoten</translation>
    </message>
    <message>
        <source>Surface cell centers</source>
        <translation>Zellmitten der Oberfläche</translation>
    </message>
    <message>
        <source>All cell centers</source>
        <translation>Alle Zellmitten</translation>
    </message>
    <message>
        <source>All connected nodes</source>
        <translation>Alle verbundenen Knoten</translation>
    </message>
    <message>
        <source>Boundary cell faces</source>
        <translation>Randflächen</translation>
    </message>
    <message>
        <source>Exposed cell faces</source>
        <translation>Freiliegende Flächen</translation>
    </message>
    <message>
        <source>I-Planes</source>
        <translation>I-Ebenen</translation>
    </message>
    <message>
        <source>J-Planes</source>
        <translation>J-Ebenen</translation>
    </message>
    <message>
        <source>K-Planes</source>
        <translation>K-Ebenen</translation>
    </message>
    <message>
        <source>IJ-Planes</source>
        <translation>IJ-Ebenen</translation>
    </message>
    <message>
        <source>JK-Planes</source>
        <translation>JK-Ebenen</translation>
    </message>
    <message>
        <source>IK-Planes</source>
        <translation>IK-Ebenen</translation>
    </message>
    <message>
        <source>IJK-Planes</source>
        <translation>IJK-Ebenen</translation>
    </message>
    <message>
        <source>All surfaces</source>
        <translation>Alle Flächen</translation>
    </message>
    <message>
        <source>Paneled</source>
        <translation>Flach</translation>
    </message>
    <message>
        <source>Gouraud</source>
        <translation>Gouraud</translation>
    </message>
    <message>
        <source>Viridis</source>
        <translation>Viridis</translation>
    </message>
    <message>
        <source>Plasma</source>
        <translation>Plasma</translation>
    </message>
    <message>
        <source>Inferno</source>
        <translation>Inferno</translation>
    </message>
    <message>
        <source>Magma</source>
        <translation>Magma</translation>
    </message>
    <message>
        <source>Cividis</source>
        <translation>Cividis</translation>
    </message>
    <message>
        <source>Turbo</source>
        <translation>Turbo</translation>
    </message>
    <message>
        <source>Rainbow</source>
        <translation>Regenbogen</translation>
    </message>
    <message>
        <source>Cool to warm</source>
        <translation>Kalt nach warm</translation>
    </message>
    <message>
        <source>Blue, white, red</source>
        <translation>Blau, weiß, rot</translation>
    </message>
    <message>
        <source>Black body</source>
        <translation>Schwarzer Körper</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Gelände</translation>
    </message>
    <message>
        <source>Cells at all of whose points it holds</source>
        <translation>Zellen, an deren Punkten sie überall gilt</translation>
    </message>
    <message>
        <source>Cells at any of whose points it holds</source>
        <translation>Zellen, an deren Punkten sie irgendwo gilt</translation>
    </message>
    <message>
        <source>Cells at whose first point it holds</source>
        <translation>Zellen, an deren erstem Punkt sie gilt</translation>
    </message>
    <message>
        <source>Precise cut</source>
        <translation>Genauer Schnitt</translation>
    </message>
    <message>
        <source>at most</source>
        <translation>höchstens</translation>
    </message>
    <message>
        <source>at least</source>
        <translation>mindestens</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>kleiner als</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>größer als</translation>
    </message>
    <message>
        <source>equal to</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>not equal to</source>
        <translation>ungleich</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Konstante</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>I</source>
        <translation>I</translation>
    </message>
    <message>
        <source>J</source>
        <translation>J</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>Rückwärts</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>By independent variable</source>
        <translation>Nach unabhängiger Variablen</translation>
    </message>
    <message>
        <source>By dependent variable</source>
        <translation>Nach abhängiger Variablen</translation>
    </message>
    <message>
        <source>By specific variable</source>
        <translation>Nach bestimmter Variablen</translation>
    </message>
    <message>
        <source>y=f(x)</source>
        <translation>y=f(x)</translation>
    </message>
    <message>
        <source>x=f(y)</source>
        <translation>x=f(y)</translation>
    </message>
    <message>
        <source>Line segments</source>
        <translation>Geradenstücke</translation>
    </message>
    <message>
        <source>Polynomial fit</source>
        <translation>Polynomausgleich</translation>
    </message>
    <message>
        <source>Exponential fit</source>
        <translation>Exponentialausgleich</translation>
    </message>
    <message>
        <source>Power fit</source>
        <translation>Potenzausgleich</translation>
    </message>
    <message>
        <source>Spline</source>
        <translation>Spline</translation>
    </message>
    <message>
        <source>Parametric spline</source>
        <translation>Parametrischer Spline</translation>
    </message>
    <message>
        <source>Extended fit</source>
        <translation>Erweiterter Ausgleich</translation>
    </message>
    <message>
        <source>Smoothing spline</source>
        <translation>Glättungsspline</translation>
    </message>
    <message>
        <source>Gaussian</source>
        <translation>Gauß</translation>
    </message>
    <message>
        <source>By index</source>
        <translation>Nach Index</translation>
    </message>
    <message>
        <source>By distance</source>
        <translation>Nach Abstand</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>I-Varying</source>
        <translation>I läuft</translation>
    </message>
    <message>
        <source>J-Varying</source>
        <translation>J läuft</translation>
    </message>
    <message>
        <source>K-Varying</source>
        <translation>K läuft</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Logarithmic</source>
        <translation>Logarithmisch</translation>
    </message>
    <message>
        <source>In turn</source>
        <translation>Abwechselnd</translation>
    </message>
    <message>
        <source>Below or left</source>
        <translation>Unten oder links</translation>
    </message>
    <message>
        <source>Above or right</source>
        <translation>Oben oder rechts</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Scatter size variable</source>
        <translation>Variable der Symbolgröße</translation>
    </message>
    <message>
        <source>Scatter sizes by the range of values</source>
        <translation>Symbolgrößen nach dem Wertebereich</translation>
    </message>
    <message>
        <source>Scatter size range minimum</source>
        <translation>Kleinster Wert der Symbolgröße</translation>
    </message>
    <message>
        <source>Scatter size range maximum</source>
        <translation>Größter Wert der Symbolgröße</translation>
    </message>
    <message>
        <source>Smallest symbol size</source>
        <translation>Kleinste Symbolgröße</translation>
    </message>
    <message>
        <source>Largest symbol size</source>
        <translation>Größte Symbolgröße</translation>
    </message>
    <message>
        <source>Red channel variable</source>
        <translation>Variable für Rot</translation>
    </message>
    <message>
        <source>Green channel variable</source>
        <translation>Variable für Grün</translation>
    </message>
    <message>
        <source>Blue channel variable</source>
        <translation>Variable für Blau</translation>
    </message>
    <message>
        <source>U variable</source>
        <translation>Variable U</translation>
    </message>
    <message>
        <source>V variable</source>
        <translation>Variable V</translation>
    </message>
    <message>
        <source>W variable</source>
        <translation>Variable W</translation>
    </message>
    <message>
        <source>Vector length by the data</source>
        <translation>Vektorlänge nach den Daten</translation>
    </message>
    <message>
        <source>Length of a vector of magnitude 1</source>
        <translation>Länge eines Vektors vom Betrag 1</translation>
    </message>
    <message>
        <source>Relative vector length</source>
        <translation>Relative Vektorlänge</translation>
    </message>
    <message>
        <source>Vectors of the same length</source>
        <translation>Gleich lange Vektoren</translation>
    </message>
    <message>
        <source>Arrowhead size</source>
        <translation>Größe der Pfeilspitze</translation>
    </message>
    <message>
        <source>Arrowhead angle in degrees</source>
        <translation>Winkel der Pfeilspitze in Grad</translation>
    </message>
    <message>
        <source>Reference arrow</source>
        <translation>Bezugspfeil</translation>
    </message>
    <message>
        <source>Magnitude of the reference arrow</source>
        <translation>Betrag des Bezugspfeils</translation>
    </message>
    <message>
        <source>Contour variable</source>
        <translation>Konturvariable</translation>
    </message>
    <message>
        <source>Contour levels over the range of values</source>
        <translation>Konturstufen über den Wertebereich</translation>
    </message>
    <message>
        <source>Lowest contour level</source>
        <translation>Unterste Konturstufe</translation>
    </message>
    <message>
        <source>Highest contour level</source>
        <translation>Oberste Konturstufe</translation>
    </message>
    <message>
        <source>Number of contour bands, 0 by the data</source>
        <translation>Anzahl der Konturbänder, 0 nach den Daten</translation>
    </message>
    <message>
        <source>Contour lines at more values</source>
        <translation>Konturlinien bei weiteren Werten</translation>
    </message>
    <message>
        <source>Color map</source>
        <translation>Farbtabelle</translation>
    </message>
    <message>
        <source>Reversed color map</source>
        <translation>Umgekehrte Farbtabelle</translation>
    </message>
    <message>
        <source>Contour legend</source>
        <translation>Konturlegende</translation>
    </message>
    <message>
        <source>Title of the contour legend</source>
        <translation>Titel der Konturlegende</translation>
    </message>
    <message>
        <source>Contour legend beside the plot</source>
        <translation>Konturlegende neben der Darstellung</translation>
    </message>
    <message>
        <source>Contour legend from the left</source>
        <translation>Konturlegende von links</translation>
    </message>
    <message>
        <source>Contour legend from above</source>
        <translation>Konturlegende von oben</translation>
    </message>
    <message>
        <source>Blanking constraint</source>
        <translation>Bedingung der Ausblendung</translation>
    </message>
    <message>
        <source>Blanking variable</source>
        <translation>Variable der Ausblendung</translation>
    </message>
    <message>
        <source>Blanking relation</source>
        <translation>Vergleich der Ausblendung</translation>
    </message>
    <message>
        <source>Blanking compares with</source>
        <translation>Ausblendung vergleicht mit</translation>
    </message>
    <message>
        <source>Blanking constant</source>
        <translation>Konstante der Ausblendung</translation>
    </message>
    <message>
        <source>Blanking compared variable</source>
        <translation>Vergleichsvariable der Ausblendung</translation>
    </message>
    <message>
        <source>Value blanking</source>
        <translation>Ausblendung nach Werten</translation>
    </message>
    <message>
        <source>Blanked cells</source>
        <translation>Ausgeblendete Zellen</translation>
    </message>
    <message>
        <source>Slice plane</source>
        <translation>Schnittebene</translation>
    </message>
    <message>
        <source>Slice in the middle</source>
        <translation>Schnitt in der Mitte</translation>
    </message>
    <message>
        <source>Slice position</source>
        <translation>Lage des Schnitts</translation>
    </message>
    <message>
        <source>Slice flood by</source>
        <translation>Schnitt gefüllt nach</translation>
    </message>
    <message>
        <source>Iso-surface variable</source>
        <translation>Variable der Isoflächen</translation>
    </message>
    <message>
        <source>Number of iso-surfaces</source>
        <translation>Anzahl der Isoflächen</translation>
    </message>
    <message>
        <source>Iso-surfaces by the range of values</source>
        <translation>Isoflächen nach dem Wertebereich</translation>
    </message>
    <message>
        <source>First iso-surface value</source>
        <translation>Erster Wert der Isoflächen</translation>
    </message>
    <message>
        <source>Second iso-surface value</source>
        <translation>Zweiter Wert der Isoflächen</translation>
    </message>
    <message>
        <source>Third iso-surface value</source>
        <translation>Dritter Wert der Isoflächen</translation>
    </message>
    <message>
        <source>Iso-surface flood by</source>
        <translation>Isoflächen gefüllt nach</translation>
    </message>
    <message>
        <source>Streamtrace direction</source>
        <translation>Richtung der Stromlinien</translation>
    </message>
    <message>
        <source>Streamtraces of the rake</source>
        <translation>Stromlinien des Rechens</translation>
    </message>
    <message>
        <source>Rake across the data</source>
        <translation>Rechen quer durch die Daten</translation>
    </message>
    <message>
        <source>Rake start X</source>
        <translation>Anfang des Rechens X</translation>
    </message>
    <message>
        <source>Rake start Y</source>
        <translation>Anfang des Rechens Y</translation>
    </message>
    <message>
        <source>Rake start Z</source>
        <translation>Anfang des Rechens Z</translation>
    </message>
    <message>
        <source>Rake end X</source>
        <translation>Ende des Rechens X</translation>
    </message>
    <message>
        <source>Rake end Y</source>
        <translation>Ende des Rechens Y</translation>
    </message>
    <message>
        <source>Rake end Z</source>
        <translation>Ende des Rechens Z</translation>
    </message>
    <message>
        <source>Points of streamtraces</source>
        <translation>Punkte der Stromlinien</translation>
    </message>
    <message>
        <source>Streamtrace color</source>
        <translation>Farbe der Stromlinien</translation>
    </message>
    <message>
        <source>Streamtrace line thickness</source>
        <translation>Linienstärke der Stromlinien</translation>
    </message>
    <message>
        <source>Light from the right in degrees</source>
        <translation>Licht von rechts in Grad</translation>
    </message>
    <message>
        <source>Light from above in degrees</source>
        <translation>Licht von oben in Grad</translation>
    </message>
    <message>
        <source>Crease angle in degrees</source>
        <translation>Knickwinkel in Grad</translation>
    </message>
    <message>
        <source>X axis by the data</source>
        <translation>X-Achse nach den Daten</translation>
    </message>
    <message>
        <source>X axis minimum</source>
        <translation>Minimum der X-Achse</translation>
    </message>
    <message>
        <source>X axis maximum</source>
        <translation>Maximum der X-Achse</translation>
    </message>
    <message>
        <source>X axis title</source>
        <translation>Titel der X-Achse</translation>
    </message>
    <message>
        <source>Y axis by the data</source>
        <translation>Y-Achse nach den Daten</translation>
    </message>
    <message>
        <source>Y axis minimum</source>
        <translation>Minimum der Y-Achse</translation>
    </message>
    <message>
        <source>Y axis maximum</source>
        <translation>Maximum der Y-Achse</translation>
    </message>
    <message>
        <source>Y axis title</source>
        <translation>Titel der Y-Achse</translation>
    </message>
    <message>
        <source>Z axis by the data</source>
        <translation>Z-Achse nach den Daten</translation>
    </message>
    <message>
        <source>Z axis minimum</source>
        <translation>Minimum der Z-Achse</translation>
    </message>
    <message>
        <source>Z axis maximum</source>
        <translation>Maximum der Z-Achse</translation>
    </message>
    <message>
        <source>Z axis title</source>
        <translation>Titel der Z-Achse</translation>
    </message>
    <message>
        <source>Font size of axes and legends</source>
        <translation>Schriftgröße der Achsen und Legenden</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Show mesh</source>
        <translation>Netz zeigen</translation>
    </message>
    <message>
        <source>Mesh type</source>
        <translation>Netzart</translation>
    </message>
    <message>
        <source>Mesh color</source>
        <translation>Netzfarbe</translation>
    </message>
    <message>
        <source>Mesh line pattern</source>
        <translation>Linienmuster des Netzes</translation>
    </message>
    <message>
        <source>Mesh pattern length</source>
        <translation>Musterlänge des Netzes</translation>
    </message>
    <message>
        <source>Mesh line thickness</source>
        <translation>Linienstärke des Netzes</translation>
    </message>
    <message>
        <source>Show contour</source>
        <translation>Kontur zeigen</translation>
    </message>
    <message>
        <source>Contour type</source>
        <translation>Konturart</translation>
    </message>
    <message>
        <source>Flood by</source>
        <translation>Füllen nach</translation>
    </message>
    <message>
        <source>Lines by contour group</source>
        <translation>Linien nach Konturgruppe</translation>
    </message>
    <message>
        <source>Contour line color</source>
        <translation>Farbe der Konturlinien</translation>
    </message>
    <message>
        <source>Contour line pattern</source>
        <translation>Muster der Konturlinien</translation>
    </message>
    <message>
        <source>Contour pattern length</source>
        <translation>Musterlänge der Konturlinien</translation>
    </message>
    <message>
        <source>Contour line thickness</source>
        <translation>Stärke der Konturlinien</translation>
    </message>
    <message>
        <source>Contour lighting</source>
        <translation>Licht der Kontur</translation>
    </message>
    <message>
        <source>Show vectors</source>
        <translation>Vektoren zeigen</translation>
    </message>
    <message>
        <source>Vector type</source>
        <translation>Vektorart</translation>
    </message>
    <message>
        <source>Tangent vectors</source>
        <translation>Tangentiale Vektoren</translation>
    </message>
    <message>
        <source>Arrowhead style</source>
        <translation>Form der Pfeilspitze</translation>
    </message>
    <message>
        <source>Vector color</source>
        <translation>Farbe der Vektoren</translation>
    </message>
    <message>
        <source>Vector line pattern</source>
        <translation>Linienmuster der Vektoren</translation>
    </message>
    <message>
        <source>Vector pattern length</source>
        <translation>Musterlänge der Vektoren</translation>
    </message>
    <message>
        <source>Vector line thickness</source>
        <translation>Linienstärke der Vektoren</translation>
    </message>
    <message>
        <source>Show scatter</source>
        <translation>Streuung zeigen</translation>
    </message>
    <message>
        <source>Symbol size</source>
        <translation>Symbolgröße</translation>
    </message>
    <message>
        <source>Symbol size by variable</source>
        <translation>Symbolgröße nach Variable</translation>
    </message>
    <message>
        <source>Scatter color</source>
        <translation>Farbe der Streuung</translation>
    </message>
    <message>
        <source>Scatter line thickness</source>
        <translation>Linienstärke der Streuung</translation>
    </message>
    <message>
        <source>Scatter fill mode</source>
        <translation>Füllart der Streuung</translation>
    </message>
    <message>
        <source>Scatter fill color</source>
        <translation>Füllfarbe der Streuung</translation>
    </message>
    <message>
        <source>Show shade</source>
        <translation>Schattierung zeigen</translation>
    </message>
    <message>
        <source>Shade color</source>
        <translation>Farbe der Schattierung</translation>
    </message>
    <message>
        <source>Shade lighting</source>
        <translation>Licht der Schattierung</translation>
    </message>
    <message>
        <source>Show edges</source>
        <translation>Kanten zeigen</translation>
    </message>
    <message>
        <source>Edge type</source>
        <translation>Kantenart</translation>
    </message>
    <message>
        <source>Edge color</source>
        <translation>Kantenfarbe</translation>
    </message>
    <message>
        <source>Edge line thickness</source>
        <translation>Linienstärke der Kanten</translation>
    </message>
    <message>
        <source>I border</source>
        <translation>I-Rand</translation>
    </message>
    <message>
        <source>J border</source>
        <translation>J-Rand</translation>
    </message>
    <message>
        <source>K border</source>
        <translation>K-Rand</translation>
    </message>
    <message>
        <source>I skip</source>
        <translation>I-Schritt</translation>
    </message>
    <message>
        <source>J skip</source>
        <translation>J-Schritt</translation>
    </message>
    <message>
        <source>K skip</source>
        <translation>K-Schritt</translation>
    </message>
    <message>
        <source>Points to plot</source>
        <translation>Gezeigte Punkte</translation>
    </message>
    <message>
        <source>Surfaces to plot</source>
        <translation>Gezeigte Flächen</translation>
    </message>
    <message>
        <source>Slices</source>
        <translation>Schnitte</translation>
    </message>
    <message>
        <source>Use value blanking</source>
        <translation>Ausblendung nach Werten nutzen</translation>
    </message>
    <message>
        <source>Lighting effect</source>
        <translation>Lichteffekt</translation>
    </message>
    <message>
        <source>Use translucency</source>
        <translation>Transparenz nutzen</translation>
    </message>
    <message>
        <source>Surface translucency</source>
        <translation>Flächentransparenz</translation>
    </message>
    <message>
        <source>Group number</source>
        <translation>Gruppennummer</translation>
    </message>
    <message>
        <source>Preset pattern length</source>
        <translation>Vorgegebene Musterlänge</translation>
    </message>
    <message>
        <source>Preset line thickness</source>
        <translation>Vorgegebene Linienstärke</translation>
    </message>
    <message>
        <source>Preset symbol size</source>
        <translation>Vorgegebene Symbolgröße</translation>
    </message>
    <message>
        <source>Mesh layer</source>
        <translation>Ebene Netz</translation>
    </message>
    <message>
        <source>Contour layer</source>
        <translation>Ebene Kontur</translation>
    </message>
    <message>
        <source>Vector layer</source>
        <translation>Ebene Vektoren</translation>
    </message>
    <message>
        <source>Scatter layer</source>
        <translation>Ebene Streuung</translation>
    </message>
    <message>
        <source>Shade layer</source>
        <translation>Ebene Schattierung</translation>
    </message>
    <message>
        <source>Edge layer</source>
        <translation>Ebene Kanten</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Translucency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Lines layer</source>
        <translation>Ebene Linien</translation>
    </message>
    <message>
        <source>Symbols layer</source>
        <translation>Ebene Symbole</translation>
    </message>
    <message>
        <source>Error bars layer</source>
        <translation>Ebene Fehlerbalken</translation>
    </message>
    <message>
        <source>Bar charts layer</source>
        <translation>Ebene Balken</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Contour</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Vektoren</translation>
    </message>
    <message>
        <source>Scatter</source>
        <translation>Streuung</translation>
    </message>
    <message>
        <source>Shade</source>
        <translation>Schattierung</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>Kanten</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Error bars</source>
        <translation>Fehlerbalken</translation>
    </message>
    <message>
        <source>Bar charts</source>
        <translation>Balken</translation>
    </message>
    <message>
        <source>Polar angle 0</source>
        <translation>Polarwinkel 0</translation>
    </message>
    <message>
        <source>Polar angles clockwise</source>
        <translation>Polarwinkel im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Radius by the data</source>
        <translation>Radius nach den Daten</translation>
    </message>
    <message>
        <source>Radius minimum</source>
        <translation>Kleinster Radius</translation>
    </message>
    <message>
        <source>Radius maximum</source>
        <translation>Größter Radius</translation>
    </message>
    <message>
        <source>Title of polar axes</source>
        <translation>Titel der Polarachsen</translation>
    </message>
    <message>
        <source>X axis scale</source>
        <translation>Skala der X-Achse</translation>
    </message>
    <message>
        <source>X axis reversed</source>
        <translation>X-Achse umgekehrt</translation>
    </message>
    <message>
        <source>X axis color</source>
        <translation>Farbe der X-Achse</translation>
    </message>
    <message>
        <source>X axis side</source>
        <translation>Seite der X-Achse</translation>
    </message>
    <message>
        <source>Y axis scale</source>
        <translation>Skala der Y-Achse</translation>
    </message>
    <message>
        <source>Y axis reversed</source>
        <translation>Y-Achse umgekehrt</translation>
    </message>
    <message>
        <source>Y axis color</source>
        <translation>Farbe der Y-Achse</translation>
    </message>
    <message>
        <source>Y axis side</source>
        <translation>Seite der Y-Achse</translation>
    </message>
    <message>
        <source>Legend of lines</source>
        <translation>Legende der Linien</translation>
    </message>
    <message>
        <source>Legend of lines in a corner</source>
        <translation>Legende der Linien in einer Ecke</translation>
    </message>
    <message>
        <source>Legend of lines from the left</source>
        <translation>Legende der Linien von links</translation>
    </message>
    <message>
        <source>Legend of lines from above</source>
        <translation>Legende der Linien von oben</translation>
    </message>
    <message>
        <source>Box of the legend of lines</source>
        <translation>Kasten der Legende der Linien</translation>
    </message>
    <message>
        <source>Title of the line plot</source>
        <translation>Titel des Liniendiagramms</translation>
    </message>
    <message>
        <source>Font size of line plots</source>
        <translation>Schriftgröße von Liniendiagrammen</translation>
    </message>
    <message>
        <source>Grid of line plots</source>
        <translation>Gitter von Liniendiagrammen</translation>
    </message>
    <message>
        <source>Box around line plots</source>
        <translation>Kasten um Liniendiagramme</translation>
    </message>
    <message>
        <source>Zone</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>Sort variable</source>
        <translation>Variable der Sortierung</translation>
    </message>
    <message>
        <source>Show in legend</source>
        <translation>In Legende zeigen</translation>
    </message>
    <message>
        <source>X-axis variable</source>
        <translation>Variable der X-Achse</translation>
    </message>
    <message>
        <source>Y-axis variable</source>
        <translation>Variable der Y-Achse</translation>
    </message>
    <message>
        <source>X-axis</source>
        <translation>X-Achse</translation>
    </message>
    <message>
        <source>Y-axis</source>
        <translation>Y-Achse</translation>
    </message>
    <message>
        <source>Theta variable</source>
        <translation>Variable für Theta</translation>
    </message>
    <message>
        <source>Radius variable</source>
        <translation>Variable für Radius</translation>
    </message>
    <message>
        <source>Function dependency</source>
        <translation>Abhängigkeit der Funktion</translation>
    </message>
    <message>
        <source>Show lines</source>
        <translation>Linien zeigen</translation>
    </message>
    <message>
        <source>Line thickness</source>
        <translation>Linienstärke</translation>
    </message>
    <message>
        <source>Line pattern</source>
        <translation>Linienmuster</translation>
    </message>
    <message>
        <source>Line pattern length</source>
        <translation>Länge des Linienmusters</translation>
    </message>
    <message>
        <source>Curve type</source>
        <translation>Kurvenart</translation>
    </message>
    <message>
        <source>Closeness of a smoothing spline</source>
        <translation>Nähe eines Glättungssplines</translation>
    </message>
    <message>
        <source>Curve points</source>
        <translation>Kurvenpunkte</translation>
    </message>
    <message>
        <source>Polynomial order</source>
        <translation>Polynomgrad</translation>
    </message>
    <message>
        <source>Limit fit range</source>
        <translation>Bereich des Ausgleichs begrenzen</translation>
    </message>
    <message>
        <source>Fit range begin</source>
        <translation>Anfang des Ausgleichsbereichs</translation>
    </message>
    <message>
        <source>Fit range end</source>
        <translation>Ende des Ausgleichsbereichs</translation>
    </message>
    <message>
        <source>Weighted fit</source>
        <translation>Gewichteter Ausgleich</translation>
    </message>
    <message>
        <source>Weight variable</source>
        <translation>Gewichtungsvariable</translation>
    </message>
    <message>
        <source>Clamped spline</source>
        <translation>Eingespannter Spline</translation>
    </message>
    <message>
        <source>Spline slope at start</source>
        <translation>Steigung des Splines am Anfang</translation>
    </message>
    <message>
        <source>Spline slope at end</source>
        <translation>Steigung des Splines am Ende</translation>
    </message>
    <message>
        <source>Show symbols</source>
        <translation>Symbole zeigen</translation>
    </message>
    <message>
        <source>Symbol spacing mode</source>
        <translation>Art des Symbolabstands</translation>
    </message>
    <message>
        <source>Symbol spacing</source>
        <translation>Symbolabstand</translation>
    </message>
    <message>
        <source>Symbol color</source>
        <translation>Symbolfarbe</translation>
    </message>
    <message>
        <source>Symbol line thickness</source>
        <translation>Linienstärke der Symbole</translation>
    </message>
    <message>
        <source>Symbol fill mode</source>
        <translation>Füllart der Symbole</translation>
    </message>
    <message>
        <source>Symbol fill color</source>
        <translation>Füllfarbe der Symbole</translation>
    </message>
    <message>
        <source>Show error bars</source>
        <translation>Fehlerbalken zeigen</translation>
    </message>
    <message>
        <source>Error bar variable</source>
        <translation>Variable der Fehlerbalken</translation>
    </message>
    <message>
        <source>Error bar type</source>
        <translation>Art der Fehlerbalken</translation>
    </message>
    <message>
        <source>Error bar spacing mode</source>
        <translation>Art des Abstands der Fehlerbalken</translation>
    </message>
    <message>
        <source>Error bar spacing</source>
        <translation>Abstand der Fehlerbalken</translation>
    </message>
    <message>
        <source>Error bar color</source>
        <translation>Farbe der Fehlerbalken</translation>
    </message>
    <message>
        <source>Error bar size</source>
        <translation>Größe der Fehlerbalken</translation>
    </message>
    <message>
        <source>Error bar line thickness</source>
        <translation>Linienstärke der Fehlerbalken</translation>
    </message>
    <message>
        <source>Show bars</source>
        <translation>Balken zeigen</translation>
    </message>
    <message>
        <source>Bar size</source>
        <translation>Balkenbreite</translation>
    </message>
    <message>
        <source>Bar color</source>
        <translation>Balkenfarbe</translation>
    </message>
    <message>
        <source>Bar line thickness</source>
        <translation>Linienstärke der Balken</translation>
    </message>
    <message>
        <source>Bar fill mode</source>
        <translation>Füllart der Balken</translation>
    </message>
    <message>
        <source>Bar fill color</source>
        <translation>Füllfarbe der Balken</translation>
    </message>
    <message>
        <source>Varying index</source>
        <translation>Laufender Index</translation>
    </message>
    <message>
        <source>Map name</source>
        <translation>Name der Kurve</translation>
    </message>
    <message>
        <source>Symbol character</source>
        <translation>Zeichen des Symbols</translation>
    </message>
    <message>
        <source>Symbol base font</source>
        <translation>Grundschrift des Symbols</translation>
    </message>
    <message>
        <source>Symbol font</source>
        <translation>Schrift des Symbols</translation>
    </message>
    <message>
        <source>Character symbol</source>
        <translation>Zeichen als Symbol</translation>
    </message>
    <message>
        <source>Symbol shape</source>
        <translation>Symbolform</translation>
    </message>
    <message>
        <source>I range begin</source>
        <translation>Anfang des I-Bereichs</translation>
    </message>
    <message>
        <source>I range end</source>
        <translation>Ende des I-Bereichs</translation>
    </message>
    <message>
        <source>I range skip</source>
        <translation>Schritt des I-Bereichs</translation>
    </message>
    <message>
        <source>J range begin</source>
        <translation>Anfang des J-Bereichs</translation>
    </message>
    <message>
        <source>J range end</source>
        <translation>Ende des J-Bereichs</translation>
    </message>
    <message>
        <source>J range skip</source>
        <translation>Schritt des J-Bereichs</translation>
    </message>
    <message>
        <source>K range begin</source>
        <translation>Anfang des K-Bereichs</translation>
    </message>
    <message>
        <source>K range end</source>
        <translation>Ende des K-Bereichs</translation>
    </message>
    <message>
        <source>K range skip</source>
        <translation>Schritt des K-Bereichs</translation>
    </message>
    <message>
        <source>Plot type</source>
        <translation>Art der Darstellung</translation>
    </message>
    <message>
        <source>Active field maps</source>
        <translation>Aktive Zonen der Darstellung</translation>
    </message>
    <message>
        <source>Active zones</source>
        <translation>Aktive Zonen</translation>
    </message>
    <message>
        <source>Active line maps</source>
        <translation>Aktive Kurven</translation>
    </message>
    <message>
        <source>R=f(Theta)</source>
        <translation>R=f(Theta)</translation>
    </message>
    <message>
        <source>Theta=f(R)</source>
        <translation>Theta=f(R)</translation>
    </message>
    <message>
        <source>Vertical (y=f(x))</source>
        <translation>Senkrecht (y=f(x))</translation>
    </message>
    <message>
        <source>Horizontal (x=f(y))</source>
        <translation>Waagerecht (x=f(y))</translation>
    </message>
    <message>
        <source>(Greek)</source>
        <translation>(Griechisch)</translation>
    </message>
    <message>
        <source>(Math)</source>
        <translation>(Mathematisch)</translation>
    </message>
    <message>
        <source>(User)</source>
        <translation>(Benutzer)</translation>
    </message>
    <message>
        <source>Solution time in the picture</source>
        <translation>Lösungszeit im Bild</translation>
    </message>
    <message>
        <source>Title of the solution time</source>
        <translation>Titel der Lösungszeit</translation>
    </message>
    <message>
        <source>Unit of the solution time</source>
        <translation>Einheit der Lösungszeit</translation>
    </message>
    <message>
        <source>Significant digits of the solution time</source>
        <translation>Stellen der Lösungszeit</translation>
    </message>
    <message>
        <source>Solution time in the corner of the plot</source>
        <translation>Lösungszeit in der Ecke der Darstellung</translation>
    </message>
    <message>
        <source>Solution time from the left</source>
        <translation>Lösungszeit von links</translation>
    </message>
    <message>
        <source>Solution time from above</source>
        <translation>Lösungszeit von oben</translation>
    </message>
</context>
<context>
    <name>TextDialect</name>
    <message>
        <source>Separator</source>
        <translation>Trennzeichen</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>semicolon</source>
        <translation>Strichpunkt</translation>
    </message>
    <message>
        <source>tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>blanks</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>vertical bar</source>
        <translation>senkrechter Strich</translation>
    </message>
    <message>
        <source>colon</source>
        <translation>Doppelpunkt</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keines</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Dezimalzeichen</translation>
    </message>
    <message>
        <source>decimal point</source>
        <translation>Dezimalpunkt</translation>
    </message>
    <message>
        <source>decimal comma</source>
        <translation>Dezimalkomma</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Anführungszeichen</translation>
    </message>
    <message>
        <source>no quotes</source>
        <translation>keine Anführungszeichen</translation>
    </message>
    <message>
        <source>double quotes</source>
        <translation>doppelte Anführungszeichen</translation>
    </message>
    <message>
        <source>single quotes</source>
        <translation>einfache Anführungszeichen</translation>
    </message>
    <message>
        <source>Comment lines</source>
        <translation>Kommentarzeilen</translation>
    </message>
    <message>
        <source>no comments</source>
        <translation>keine Kommentare</translation>
    </message>
    <message>
        <source>comments after #</source>
        <translation>Kommentare nach #</translation>
    </message>
    <message>
        <source>comments after %</source>
        <translation>Kommentare nach %</translation>
    </message>
    <message>
        <source>comments after //</source>
        <translation>Kommentare nach //</translation>
    </message>
    <message>
        <source>comments after !</source>
        <translation>Kommentare nach !</translation>
    </message>
    <message>
        <source>comments after ;</source>
        <translation>Kommentare nach ;</translation>
    </message>
    <message>
        <source>Data from line</source>
        <translation>Daten ab Zeile</translation>
    </message>
    <message>
        <source>Header rows</source>
        <translation>Kopfzeilen</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>no row of units</source>
        <translation>keine Zeile mit Einheiten</translation>
    </message>
    <message>
        <source>units in the last header row</source>
        <translation>Einheiten in der letzten Kopfzeile</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datumsangaben</translation>
    </message>
    <message>
        <source>day first</source>
        <translation>Tag zuerst</translation>
    </message>
    <message>
        <source>month first</source>
        <translation>Monat zuerst</translation>
    </message>
    <message>
        <source>year first</source>
        <translation>Jahr zuerst</translation>
    </message>
    <message>
        <source>Also missing</source>
        <translation>Auch fehlend</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zonen</translation>
    </message>
    <message>
        <source>one zone</source>
        <translation>eine Zone</translation>
    </message>
    <message>
        <source>zones by blank lines</source>
        <translation>Zonen durch Leerzeilen</translation>
    </message>
    <message>
        <source>zones by a column of words</source>
        <translation>Zonen durch eine Spalte mit Wörtern</translation>
    </message>
    <message>
        <source>Bad rows</source>
        <translation>Fehlerhafte Zeilen</translation>
    </message>
    <message>
        <source>refuse bad rows</source>
        <translation>fehlerhafte Zeilen ablehnen</translation>
    </message>
    <message>
        <source>skip bad rows</source>
        <translation>fehlerhafte Zeilen überspringen</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation>UTF-8</translation>
    </message>
    <message>
        <source>UTF-16, little-endian</source>
        <translation>UTF-16, Little Endian</translation>
    </message>
    <message>
        <source>UTF-16, big-endian</source>
        <translation>UTF-16, Big Endian</translation>
    </message>
    <message>
        <source>Latin-1</source>
        <translation>Latin-1</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>numbers</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>dates</source>
        <translation>Datumsangaben</translation>
    </message>
    <message>
        <source>times</source>
        <translation>Zeiten</translation>
    </message>
    <message>
        <source>words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>ausgelassen</translation>
    </message>
</context>
<context>
    <name>ToolTip</name>
    <message>
        <source>&lt;html&gt;The strand has no zones at the current solution time, therefore nothing is shown. To view zones for this strand, change the solution time or, modify the option for how zones are shown, using the controls at the bottom of the Time Animation Details dialog.&lt;/html&gt;</source>
        <translation>&lt;html&gt;Der Strang hat zur aktuellen Lösungszeit keine Zonen, daher wird nichts gezeigt. Um Zonen dieses Strangs zu sehen, ändern Sie die Lösungszeit, oder ändern Sie mit den Bedienelementen unten im Dialog „Time Animation Details“, wie Zonen gezeigt werden.&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>UndoTexts</name>
    <message>
        <source>1 field map</source>
        <translation>1 Zone</translation>
    </message>
    <message>
        <source>1 line map</source>
        <translation>1 Kurve</translation>
    </message>
    <message>
        <source>%1 field maps</source>
        <translation>%1 Zonen</translation>
    </message>
    <message>
        <source>%1 line maps</source>
        <translation>%1 Kurven</translation>
    </message>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 = %2 (%3)</source>
        <translation>%1 = %2 (%3)</translation>
    </message>
    <message>
        <source>Activate %1</source>
        <translation>%1 aktivieren</translation>
    </message>
    <message>
        <source>Deactivate %1</source>
        <translation>%1 deaktivieren</translation>
    </message>
    <message>
        <source>Create %1</source>
        <translation>%1 anlegen</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>%1 kopieren</translation>
    </message>
    <message>
        <source>Move %1 to the top</source>
        <translation>%1 nach oben verschieben</translation>
    </message>
    <message>
        <source>Move %1 to the bottom</source>
        <translation>%1 nach unten verschieben</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>„%1“ in „%2“ umbenennen</translation>
    </message>
    <message>
        <source>Enable %1 zones</source>
        <translation>%1 Zonen freigeben</translation>
    </message>
    <message>
        <source>Enable %1 variables</source>
        <translation>%1 Variablen freigeben</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>Farbe %1</translation>
    </message>
    <message>
        <source>Load styles of %1</source>
        <translation>Stil von %1 laden</translation>
    </message>
    <message>
        <source>%1 and many more</source>
        <translation>%1 und vieles mehr</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Add data</source>
        <translation>Daten hinzufügen</translation>
    </message>
    <message>
        <source>Show only %1</source>
        <translation>Nur %1 zeigen</translation>
    </message>
</context>
<context>
    <name>VectorVariablesDialog</name>
    <message>
        <source>&amp;U:</source>
        <translation>&amp;U:</translation>
    </message>
    <message>
        <source>&amp;V:</source>
        <translation>&amp;V:</translation>
    </message>
    <message>
        <source>&amp;W:</source>
        <translation>&amp;W:</translation>
    </message>
    <message>
        <source>Select Vector Variables</source>
        <translation>Vektorvariablen auswählen</translation>
    </message>
</context>
<context>
    <name>ZoneStyle</name>
    <message>
        <source>C&amp;reate Map...</source>
        <translation>Kurve &amp;anlegen...</translation>
    </message>
    <message>
        <source>Copy &amp;Map</source>
        <translation>Kurve &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Delete Map</source>
        <translation>Kurve &amp;löschen</translation>
    </message>
    <message>
        <source>To &amp;Top</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>To &amp;Bottom</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Zone Style</source>
        <translation>Zonenstil</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Contour</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Vektoren</translation>
    </message>
    <message>
        <source>Scatter</source>
        <translation>Streuung</translation>
    </message>
    <message>
        <source>Shade</source>
        <translation>Schattierung</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>Kanten</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Surfaces</source>
        <translation>Flächen</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>Definitionen</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Error Bars</source>
        <translation>Fehlerbalken</translation>
    </message>
    <message>
        <source>Bar Charts</source>
        <translation>Balken</translation>
    </message>
    <message>
        <source>Indices</source>
        <translation>Indizes</translation>
    </message>
</context>
<context>
    <name>corvala::app::ContourBar</name>
    <message>
        <source>Contour variable</source>
        <translation>Konturvariable</translation>
    </message>
    <message>
        <source>Co&amp;ntour:</source>
        <translation>Ko&amp;ntur:</translation>
    </message>
    <message>
        <source>Variable of contour group 1</source>
        <translation>Variable der Konturgruppe 1</translation>
    </message>
    <message>
        <source>Re&amp;versed</source>
        <translation>&amp;Umgekehrt</translation>
    </message>
    <message>
        <source>&amp;Range and Levels...</source>
        <translation>&amp;Bereich und Stufen...</translation>
    </message>
    <message>
        <source>Colors, range and levels of contour group 1</source>
        <translation>Farben, Bereich und Stufen der Konturgruppe 1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>%1
Variable of contour group 1: type a part of its name to find it</source>
        <translation>%1
Variable der Konturgruppe 1: ein Teil ihres Namens genügt, um sie zu finden</translation>
    </message>
</context>
<context>
    <name>corvala::app::DataCommands</name>
    <message>
        <source>Open Data</source>
        <translation>Daten öffnen</translation>
    </message>
    <message>
        <source>Open Case Folder</source>
        <translation>Fallordner öffnen</translation>
    </message>
    <message>
        <source>Open Plot3D Data</source>
        <translation>Plot3D-Daten öffnen</translation>
    </message>
    <message>
        <source>Open Tables of Text</source>
        <translation>Texttabellen öffnen</translation>
    </message>
    <message>
        <source>Bad Rows</source>
        <translation>Fehlerhafte Zeilen</translation>
    </message>
    <message numerus="yes">
        <source>Skip %n bad row(s)?</source>
        <translation>
            <numerusform>%n fehlerhafte Zeile überspringen?</numerusform>
            <numerusform>%n fehlerhafte Zeilen überspringen?</numerusform>
        </translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Ändern...</translation>
    </message>
    <message>
        <source>Detected: %1.</source>
        <translation>Erkannt: %1.</translation>
    </message>
    <message>
        <source>Detected in %1: %2.</source>
        <translation>Erkannt in %1: %2.</translation>
    </message>
    <message>
        <source>Take Numbers as Times</source>
        <translation>Nummern als Zeiten nehmen</translation>
    </message>
    <message>
        <source>Read Them</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Add Data</source>
        <translation>Daten hinzufügen</translation>
    </message>
    <message>
        <source>That was about data that the active frame does not show any more.</source>
        <translation>Das betraf Daten, die der aktive Rahmen nicht mehr zeigt.</translation>
    </message>
</context>
<context>
    <name>corvala::app::DataOpener</name>
    <message>
        <source>%L1 lines can be made of the columns: the first %L2 are shown, more can be created in Mapping Style.</source>
        <translation>Aus den Spalten lassen sich %L1 Kurven machen: Die ersten %L2 werden gezeigt, weitere lassen sich unter Kurvenstil anlegen.</translation>
    </message>
</context>
<context>
    <name>corvala::app::DetailField</name>
    <message>
        <source>That of contour group 1</source>
        <translation>Die der Konturgruppe 1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>By contour group %1</source>
        <translation>Nach Konturgruppe %1</translation>
    </message>
    <message>
        <source>By RGB</source>
        <translation>Nach RGB</translation>
    </message>
</context>
<context>
    <name>corvala::app::DetailPageWidget</name>
    <message>
        <source>The axes of a flat plot have one scale, and the view can be moved</source>
        <translation>Die Achsen einer ebenen Darstellung haben einen Maßstab, und die Ansicht kann verschoben werden</translation>
    </message>
    <message>
        <source>All that the data can say follows from them again</source>
        <translation>Alles, was die Daten sagen können, folgt wieder aus ihnen</translation>
    </message>
    <message>
        <source>Pick in the Plot</source>
        <translation>In der Darstellung wählen</translation>
    </message>
    <message>
        <source>Each click in the plot adds a point, until Esc</source>
        <translation>Jeder Klick in der Darstellung fügt einen Punkt hinzu, bis Esc</translation>
    </message>
    <message>
        <source>in the plot: %1</source>
        <translation>in der Darstellung: %1</translation>
    </message>
</context>
<context>
    <name>corvala::app::DetailsDock</name>
    <message>
        <source>Plot Details</source>
        <translation>Einzelheiten der Darstellung</translation>
    </message>
    <message>
        <source>Plot &amp;Details</source>
        <translation>&amp;Einzelheiten der Darstellung</translation>
    </message>
</context>
<context>
    <name>corvala::app::DocumentCommands</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Begins an empty document</source>
        <translation>Beginnt ein leeres Dokument</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Saves the document: styles, views and where the data are</source>
        <translation>Speichert das Dokument: Stil, Ansichten und wo die Daten sind</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Saves the document in another file</source>
        <translation>Speichert das Dokument in einer anderen Datei</translation>
    </message>
    <message>
        <source>&amp;Load Style from Document...</source>
        <translation>Stil aus Dokument &amp;laden...</translation>
    </message>
    <message>
        <source>Takes the styles of zones of the same names over to the open data</source>
        <translation>Übernimmt den Stil von Zonen gleichen Namens für die offenen Daten</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Save the document?</source>
        <translation>Das Dokument speichern?</translation>
    </message>
    <message>
        <source>Save the changes of %1?</source>
        <translation>Die Änderungen von %1 speichern?</translation>
    </message>
    <message>
        <source>What is not saved will be lost.</source>
        <translation>Was nicht gespeichert wird, geht verloren.</translation>
    </message>
    <message>
        <source>Documents (*.cvdoc)</source>
        <translation>Dokumente (*.cvdoc)</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Missing Data</source>
        <translation>Fehlende Daten</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n data file(s) cannot be found.</source>
        <translation>
            <numerusform>%1: %n Datendatei ist nicht zu finden.</numerusform>
            <numerusform>%1: %n Datendateien sind nicht zu finden.</numerusform>
        </translation>
    </message>
    <message>
        <source>
...</source>
        <translation>
...</translation>
    </message>
    <message>
        <source>Look Elsewhere...</source>
        <translation>Woanders suchen...</translation>
    </message>
    <message>
        <source>Folder of the Data</source>
        <translation>Ordner der Daten</translation>
    </message>
    <message>
        <source>Changed Data</source>
        <translation>Geänderte Daten</translation>
    </message>
    <message>
        <source>The data of %1 have changed.</source>
        <translation>Die Daten von %1 haben sich geändert.</translation>
    </message>
    <message>
        <source>Load What Fits</source>
        <translation>Laden, was passt</translation>
    </message>
    <message>
        <source>Load Style from Document</source>
        <translation>Stil aus Dokument laden</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n data file(s) cannot be found in %2 either.</source>
        <translation>
            <numerusform>%1: Auch in %2 ist %n Datendatei nicht zu finden.</numerusform>
            <numerusform>%1: Auch in %2 sind %n Datendateien nicht zu finden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed File</source>
        <translation>Geänderte Datei</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was opened. Overwrite it?</source>
        <translation>%1 wurde von einem anderen Programm geändert, seit es geöffnet wurde. Überschreiben?</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>Ü&amp;berschreiben</translation>
    </message>
</context>
<context>
    <name>corvala::app::FileDrops</name>
    <message>
        <source>Only files and folders of this computer can be opened</source>
        <translation>Nur Dateien und Ordner dieses Rechners können geöffnet werden</translation>
    </message>
    <message>
        <source>Drop to open %1</source>
        <translation>Ablegen, um %1 zu öffnen</translation>
    </message>
</context>
<context>
    <name>corvala::app::HelpCommands</name>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>Open the help at what has the focus</source>
        <translation>Öffnet die Hilfe bei dem, was den Fokus hat</translation>
    </message>
    <message>
        <source>&amp;Mouse and Keys</source>
        <translation>&amp;Maus und Tasten</translation>
    </message>
    <message>
        <source>Tell what the mouse and the keys do</source>
        <translation>Sagt, was Maus und Tasten tun</translation>
    </message>
    <message>
        <source>&amp;File Formats</source>
        <translation>&amp;Dateiformate</translation>
    </message>
    <message>
        <source>Tell which files can be opened, and what of them is read</source>
        <translation>Sagt, welche Dateien sich öffnen lassen und was davon gelesen wird</translation>
    </message>
    <message>
        <source>&amp;Scripts</source>
        <translation>&amp;Skripte</translation>
    </message>
    <message>
        <source>Tell how scripts and options drive the program</source>
        <translation>Sagt, wie Skripte und Optionen das Programm bedienen</translation>
    </message>
</context>
<context>
    <name>corvala::app::HelpWindow</name>
    <message>
        <source>Help - corvala</source>
        <translation>Hilfe - corvala</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Search all pages</source>
        <translation>Alle Seiten durchsuchen</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
</context>
<context>
    <name>corvala::app::LayerBar</name>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Details of axes and others</source>
        <translation>Einzelheiten der Achsen und anderes</translation>
    </message>
    <message>
        <source>%1 details</source>
        <translation>Einzelheiten: %1</translation>
    </message>
    <message>
        <source>XY plots only</source>
        <translation>Nur XY-Diagramme</translation>
    </message>
    <message>
        <source>Show the lines of the grids</source>
        <translation>Zeigt die Linien der Gitter</translation>
    </message>
    <message>
        <source>Show the values of a variable as colors or lines</source>
        <translation>Zeigt die Werte einer Variablen als Farben oder Linien</translation>
    </message>
    <message>
        <source>Show arrows at the points</source>
        <translation>Zeigt Pfeile an den Punkten</translation>
    </message>
    <message>
        <source>Show a symbol at each point</source>
        <translation>Zeigt an jedem Punkt ein Symbol</translation>
    </message>
    <message>
        <source>Fill the surfaces with one color</source>
        <translation>Füllt die Flächen mit einer Farbe</translation>
    </message>
    <message>
        <source>Show the edges of the zones</source>
        <translation>Zeigt die Kanten der Zonen</translation>
    </message>
    <message>
        <source>Light the surfaces</source>
        <translation>Beleuchtet die Flächen</translation>
    </message>
    <message>
        <source>Show the lines</source>
        <translation>Zeigt die Linien</translation>
    </message>
    <message>
        <source>Show the errors of the points</source>
        <translation>Zeigt die Fehler der Punkte</translation>
    </message>
    <message>
        <source>Show a bar for each point</source>
        <translation>Zeigt für jeden Punkt einen Balken</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>corvala::app::LayerNotes</name>
    <message>
        <source>No line map is active, so the layer &quot;%1&quot; shows nothing.</source>
        <translation>Keine Kurve ist aktiv, daher zeigt die Ebene „%1“ nichts.</translation>
    </message>
    <message>
        <source>Activate All Line Maps</source>
        <translation>Alle Kurven aktivieren</translation>
    </message>
    <message>
        <source>No zone is active, so the layer &quot;%1&quot; shows nothing.</source>
        <translation>Keine Zone ist aktiv, daher zeigt die Ebene „%1“ nichts.</translation>
    </message>
    <message>
        <source>Activate All Zones</source>
        <translation>Alle Zonen aktivieren</translation>
    </message>
    <message>
        <source>The layer &quot;%1&quot; is on, but no active line map shows it.</source>
        <translation>Die Ebene „%1“ ist an, aber keine aktive Kurve zeigt sie.</translation>
    </message>
    <message>
        <source>Show in All Line Maps</source>
        <translation>In allen Kurven zeigen</translation>
    </message>
    <message>
        <source>The layer &quot;%1&quot; is on, but no active zone shows it.</source>
        <translation>Die Ebene „%1“ ist an, aber keine aktive Zone zeigt sie.</translation>
    </message>
    <message>
        <source>Show in All Zones</source>
        <translation>In allen Zonen zeigen</translation>
    </message>
    <message>
        <source>No zone draws its surfaces, so the layer &quot;%1&quot; shows nothing.</source>
        <translation>Keine Zone zeichnet ihre Flächen, daher zeigt die Ebene „%1“ nichts.</translation>
    </message>
    <message>
        <source>Draw Surfaces</source>
        <translation>Flächen zeichnen</translation>
    </message>
    <message>
        <source>No variable is chosen for the contours, so the layer &quot;%1&quot; shows nothing.</source>
        <translation>Für die Konturen ist keine Variable gewählt, daher zeigt die Ebene „%1“ nichts.</translation>
    </message>
    <message>
        <source>Choose Variables</source>
        <translation>Variablen wählen</translation>
    </message>
    <message>
        <source>No variables are chosen for the vectors, so the layer &quot;%1&quot; shows nothing.</source>
        <translation>Für die Vektoren sind keine Variablen gewählt, daher zeigt die Ebene „%1“ nichts.</translation>
    </message>
    <message>
        <source>Lighting shows in 3D field plots only.</source>
        <translation>Licht zeigt sich nur in 3D-Felddarstellungen.</translation>
    </message>
    <message>
        <source>Neither shade nor contours show, so lighting changes nothing.</source>
        <translation>Weder Schattierung noch Konturen werden gezeigt, daher ändert das Licht nichts.</translation>
    </message>
    <message>
        <source>Show Shade</source>
        <translation>Schattierung zeigen</translation>
    </message>
    <message>
        <source>The data have no variable that contours could show.</source>
        <translation>Die Daten haben keine Variable, die Konturen zeigen könnten.</translation>
    </message>
</context>
<context>
    <name>corvala::app::MainMenus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open Case &amp;Folder...</source>
        <translation>Fall&amp;ordner öffnen...</translation>
    </message>
    <message>
        <source>Open &amp;Plot3D...</source>
        <translation>&amp;Plot3D öffnen...</translation>
    </message>
    <message>
        <source>Open &amp;Table...</source>
        <translation>&amp;Tabelle öffnen...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Sa&amp;mples</source>
        <translation>B&amp;eispiele</translation>
    </message>
    <message>
        <source>2D field, 12 zones</source>
        <translation>2D-Feld, 12 Zonen</translation>
    </message>
    <message>
        <source>3D field, 12 zones</source>
        <translation>3D-Feld, 12 Zonen</translation>
    </message>
    <message>
        <source>Zones of all kinds</source>
        <translation>Zonen aller Arten</translation>
    </message>
    <message>
        <source>Transient zones</source>
        <translation>Zeitabhängige Zonen</translation>
    </message>
    <message>
        <source>XY lines</source>
        <translation>XY-Linien</translation>
    </message>
    <message>
        <source>Polar lines</source>
        <translation>Polarlinien</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>No Files Yet</source>
        <translation>Noch keine Dateien</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig:</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen:</translation>
    </message>
    <message>
        <source>&amp;Plot</source>
        <translation>Dar&amp;stellung</translation>
    </message>
    <message>
        <source>D&amp;etails Of</source>
        <translation>E&amp;inzelheiten zu</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About corvala</source>
        <translation>Ü&amp;ber corvala</translation>
    </message>
    <message>
        <source>About corvala</source>
        <translation>Über corvala</translation>
    </message>
    <message>
        <source>corvala %1
Plots field data and edits the style of their zones.
Licence: GPL-3.0-or-later</source>
        <translation>corvala %1
Stellt Felddaten dar und bearbeitet den Stil ihrer Zonen.
Lizenz: GPL-3.0-or-later</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Hauptleiste</translation>
    </message>
    <message>
        <source>&amp;Mapping Style...</source>
        <translation>&amp;Kurvenstil...</translation>
    </message>
    <message>
        <source>&amp;Zone Style...</source>
        <translation>&amp;Zonenstil...</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Save Pict&amp;ure...</source>
        <translation>B&amp;ild speichern...</translation>
    </message>
    <message>
        <source>Write the plot to a file: PNG, PDF, SVG, TIFF and others</source>
        <translation>Schreibt die Darstellung in eine Datei: PNG, PDF, SVG, TIFF und andere</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Beendet das Programm</translation>
    </message>
    <message>
        <source>Open data files</source>
        <translation>Öffnet Datendateien</translation>
    </message>
    <message>
        <source>Open the case, or the data, in a folder</source>
        <translation>Öffnet den Fall oder die Daten in einem Ordner</translation>
    </message>
    <message>
        <source>Open Plot3D files, and say how they are written</source>
        <translation>Öffnet Plot3D-Dateien und sagt, wie sie geschrieben sind</translation>
    </message>
    <message>
        <source>Open tables of text, and say how they are written</source>
        <translation>Öffnet Texttabellen und sagt, wie sie geschrieben sind</translation>
    </message>
    <message>
        <source>Open again what was opened last</source>
        <translation>Öffnet noch einmal, was zuletzt offen war</translation>
    </message>
    <message>
        <source>Open real data that come with the program</source>
        <translation>Öffnet echte Daten, die dem Programm beiliegen</translation>
    </message>
    <message>
        <source>Show data that are made on the spot</source>
        <translation>Zeigt Daten, die sofort erzeugt werden</translation>
    </message>
    <message>
        <source>&amp;Copy Picture</source>
        <translation>Bild &amp;kopieren</translation>
    </message>
    <message>
        <source>Show or hide the table of the style of each zone</source>
        <translation>Zeigt oder verbirgt die Tabelle mit dem Stil jeder Zone</translation>
    </message>
    <message>
        <source>Show or hide the panel of what is set for the plot as a whole</source>
        <translation>Zeigt oder verbirgt das Feld mit dem, was für die ganze Darstellung gilt</translation>
    </message>
    <message>
        <source>Show this page in the panel of details</source>
        <translation>Zeigt diese Seite im Feld der Einzelheiten</translation>
    </message>
    <message>
        <source>Show a page in the panel of details</source>
        <translation>Zeigt eine Seite im Feld der Einzelheiten</translation>
    </message>
    <message>
        <source>Solution &amp;Time</source>
        <translation>&amp;Lösungszeit</translation>
    </message>
    <message>
        <source>Tell which program this is</source>
        <translation>Sagt, welches Programm dies ist</translation>
    </message>
    <message>
        <source>Tell about the library that draws the windows</source>
        <translation>Sagt, welche Bibliothek die Fenster zeichnet</translation>
    </message>
    <message>
        <source>Put the plot, as it is seen, on the clipboard</source>
        <translation>Legt die Darstellung, wie sie zu sehen ist, in die Zwischenablage</translation>
    </message>
    <message>
        <source>Add &amp;Data...</source>
        <translation>Daten &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>Add the zones of other files to the open data</source>
        <translation>Fügt den offenen Daten die Zonen anderer Dateien hinzu</translation>
    </message>
    <message>
        <source>&amp;Close Data</source>
        <translation>Daten s&amp;chließen</translation>
    </message>
    <message>
        <source>Drop the data of this plot, with their style</source>
        <translation>Verwirft die Daten dieser Darstellung samt ihrem Stil</translation>
    </message>
    <message>
        <source>D&amp;emonstration Data</source>
        <translation>&amp;Vorführdaten</translation>
    </message>
    <message>
        <source>Contour &amp;Variable...</source>
        <translation>Kontur&amp;variable ...</translation>
    </message>
    <message>
        <source>Choose the variable that the colors of contour group 1 show</source>
        <translation>Die Variable wählen, die die Farben der Konturgruppe 1 zeigen</translation>
    </message>
    <message>
        <source>Plot T&amp;ype</source>
        <translation>A&amp;rt der Darstellung</translation>
    </message>
</context>
<context>
    <name>corvala::app::MainWindow</name>
    <message>
        <source>Reading %1...</source>
        <translation>Lese %1...</translation>
    </message>
    <message>
        <source>Drawing...</source>
        <translation>Zeichne...</translation>
    </message>
    <message>
        <source>Zones: %1, variables: %2</source>
        <translation>Zonen: %1, Variablen: %2</translation>
    </message>
    <message>
        <source>corvala</source>
        <translation>corvala</translation>
    </message>
    <message>
        <source>%1 - corvala</source>
        <translation>%1 - corvala</translation>
    </message>
    <message>
        <source>%1 is being read: drop other files when that is done</source>
        <translation>%1 wird gelesen: legen Sie andere Dateien danach ab</translation>
    </message>
    <message>
        <source>Picked: %1</source>
        <translation>Ausgewählt: %1</translation>
    </message>
</context>
<context>
    <name>corvala::app::NoticeBar</name>
    <message>
        <source>Details...</source>
        <translation>Einzelheiten...</translation>
    </message>
    <message>
        <source>Hide this note</source>
        <translation>Diesen Hinweis ausblenden</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Hinweise</translation>
    </message>
</context>
<context>
    <name>corvala::app::PictureCommands</name>
    <message>
        <source>The picture cannot be copied: %1</source>
        <translation>Das Bild kann nicht kopiert werden: %1</translation>
    </message>
    <message>
        <source>Copied the picture: %1 x %2 pixels</source>
        <translation>Bild kopiert: %1 x %2 Pixel</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Saved %1: %2</source>
        <translation>%1 gespeichert: %2</translation>
    </message>
    <message>
        <source>Drawing the picture...</source>
        <translation>Das Bild wird gezeichnet ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The picture was not copied</source>
        <translation>Das Bild wurde nicht kopiert</translation>
    </message>
    <message>
        <source>The picture was not saved</source>
        <translation>Das Bild wurde nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>corvala::app::PictureNotes</name>
    <message>
        <source>Plot Details...</source>
        <translation>Einzelheiten der Darstellung...</translation>
    </message>
</context>
<context>
    <name>corvala::app::PictureSizeDialog</name>
    <message>
        <source>Pixels of pictures, also of a field plot on a page</source>
        <translation>Pixel von Bildern, auch einer Felddarstellung auf einer Seite</translation>
    </message>
    <message>
        <source>Size of the Picture</source>
        <translation>Größe des Bildes</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 Pixel</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>&amp;Transparent background</source>
        <translation>&amp;Durchsichtiger Hintergrund</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>Ein&amp;heit:</translation>
    </message>
    <message>
        <source>&amp;Resolution [dpi]:</source>
        <translation>&amp;Auflösung [dpi]:</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>A side may have 1 to %1 pixels, and the resolution may be %2 to %3 dpi</source>
        <translation>Eine Seite darf 1 bis %1 Pixel haben, die Auflösung %2 bis %3 dpi</translation>
    </message>
    <message>
        <source>A side may have 1 to %1 mm, and the resolution may be %2 to %3 dpi</source>
        <translation>Eine Seite darf 1 bis %1 mm haben, die Auflösung %2 bis %3 dpi</translation>
    </message>
</context>
<context>
    <name>corvala::app::Plot3DDialog</name>
    <message>
        <source>detect</source>
        <translation>erkennen</translation>
    </message>
    <message>
        <source>Plot3D Layout</source>
        <translation>Plot3D-Aufbau</translation>
    </message>
    <message>
        <source>Detected: %1.</source>
        <translation>Erkannt: %1.</translation>
    </message>
</context>
<context>
    <name>corvala::app::PlotArea</name>
    <message>
        <source>Plots are drawn on X screens only: start with QT_QPA_PLATFORM=xcb.</source>
        <translation>Darstellungen werden nur auf X-Bildschirmen gezeichnet: starten Sie mit QT_QPA_PLATFORM=xcb.</translation>
    </message>
    <message>
        <source>the plot is drawn on an X screen only (QT_QPA_PLATFORM=xcb, for example under xvfb-run)</source>
        <translation>die Darstellung wird nur auf einem X-Bildschirm gezeichnet (QT_QPA_PLATFORM=xcb, etwa unter xvfb-run)</translation>
    </message>
</context>
<context>
    <name>corvala::app::PlotMenu</name>
    <message>
        <source>&amp;Pick This Zone</source>
        <translation>Diese Zone &amp;wählen</translation>
    </message>
    <message>
        <source>&amp;Pick This Line</source>
        <translation>Diese Linie &amp;wählen</translation>
    </message>
    <message>
        <source>&amp;Hide This Zone</source>
        <translation>Diese Zone &amp;verbergen</translation>
    </message>
    <message>
        <source>&amp;Hide This Line</source>
        <translation>Diese Linie &amp;verbergen</translation>
    </message>
    <message>
        <source>Show &amp;Only This Zone</source>
        <translation>&amp;Nur diese Zone zeigen</translation>
    </message>
    <message>
        <source>Show &amp;Only This Line</source>
        <translation>&amp;Nur diese Linie zeigen</translation>
    </message>
    <message>
        <source>&amp;Style of This Zone...</source>
        <translation>&amp;Stil dieser Zone...</translation>
    </message>
    <message>
        <source>&amp;Style of This Line...</source>
        <translation>&amp;Stil dieser Linie...</translation>
    </message>
    <message>
        <source>Show &amp;All Zones</source>
        <translation>&amp;Alle Zonen zeigen</translation>
    </message>
    <message>
        <source>Show &amp;All Lines</source>
        <translation>&amp;Alle Linien zeigen</translation>
    </message>
</context>
<context>
    <name>corvala::app::PlotTypeChoice</name>
    <message>
        <source>2D field plot</source>
        <translation>2D-Felddarstellung</translation>
    </message>
    <message>
        <source>3D field plot</source>
        <translation>3D-Felddarstellung</translation>
    </message>
    <message>
        <source>XY line plot</source>
        <translation>XY-Diagramm</translation>
    </message>
    <message>
        <source>Polar line plot</source>
        <translation>Polardiagramm</translation>
    </message>
    <message>
        <source>Plot t&amp;ype:</source>
        <translation>Da&amp;rstellung:</translation>
    </message>
    <message>
        <source>Show this kind of plot</source>
        <translation>Diese Art der Darstellung wählen</translation>
    </message>
</context>
<context>
    <name>corvala::app::StartPage</name>
    <message>
        <source>Opened last</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>Demonstrations</source>
        <translation>Vorführungen</translation>
    </message>
    <message>
        <source>Open data, or drop files and folders here</source>
        <translation>Öffnen Sie Daten, oder legen Sie Dateien und Ordner hier ab</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen...</translation>
    </message>
    <message>
        <source>Open data files (Ctrl+O)</source>
        <translation>Öffnet Datendateien (Strg+O)</translation>
    </message>
    <message>
        <source>Open Case Folder...</source>
        <translation>Fallordner öffnen...</translation>
    </message>
    <message>
        <source>Open the case, or the data, in a folder</source>
        <translation>Öffnet den Fall oder die Daten in einem Ordner</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Noch keine Dateien</translation>
    </message>
    <message>
        <source>Open real data that come with the program</source>
        <translation>Öffnet echte Daten, die dem Programm beiliegen</translation>
    </message>
    <message>
        <source>Show data that are made on the spot</source>
        <translation>Zeigt Daten, die sofort erzeugt werden</translation>
    </message>
</context>
<context>
    <name>corvala::app::TextImportDialog</name>
    <message>
        <source>Import %1</source>
        <translation>%1 einlesen</translation>
    </message>
    <message>
        <source>&amp;Preview (click a title, or press Return in a column, to say what the column holds):</source>
        <translation>&amp;Vorschau (ein Klick auf einen Titel, oder die Eingabetaste in einer Spalte, sagt, was die Spalte enthält):</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>detect</source>
        <translation>erkennen</translation>
    </message>
    <message>
        <source>words, such as -999</source>
        <translation>Wörter wie -999</translation>
    </message>
    <message numerus="yes">
        <source>This is one of %n files; the choices hold for all of them.</source>
        <translation>
            <numerusform>Dies ist die einzige Datei.</numerusform>
            <numerusform>Dies ist eine von %n Dateien; die Wahl gilt für alle.</numerusform>
        </translation>
    </message>
    <message>
        <source>No table is seen in this way.</source>
        <translation>So ist keine Tabelle zu sehen.</translation>
    </message>
    <message>
        <source>All columns are left out.</source>
        <translation>Alle Spalten sind ausgelassen.</translation>
    </message>
    <message>
        <source>This can be meant in several ways: please check the columns.</source>
        <translation>Dies kann auf mehrere Arten gemeint sein: bitte prüfen Sie die Spalten.</translation>
    </message>
    <message>
        <source>The first %1 of %2 columns are shown.</source>
        <translation>Die ersten %1 von %2 Spalten sind gezeigt.</translation>
    </message>
    <message numerus="yes">
        <source>Of these rows, %n cannot be read, the first in line %1.</source>
        <translation>
            <numerusform>Von diesen Zeilen kann %n nicht gelesen werden, in Zeile %1.</numerusform>
            <numerusform>Von diesen Zeilen können %n nicht gelesen werden, die erste in Zeile %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>detected: %1</source>
        <translation>erkannt: %1</translation>
    </message>
    <message>
        <source>&amp;Take %1 as Missing</source>
        <translation>%1 als &amp;fehlend nehmen</translation>
    </message>
</context>
<context>
    <name>corvala::app::TextPreviewTable</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>detect</source>
        <translation>erkennen</translation>
    </message>
    <message>
        <source>%1 bad</source>
        <translation>%1 fehlerhaft</translation>
    </message>
    <message>
        <source>This row cannot be read.</source>
        <translation>Diese Zeile kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>corvala::app::TimeBar</name>
    <message>
        <source>Solution time</source>
        <translation>Lösungszeit</translation>
    </message>
    <message>
        <source>&amp;First Time</source>
        <translation>&amp;Erste Zeit</translation>
    </message>
    <message>
        <source>Go to the first solution time</source>
        <translation>Geht zur ersten Lösungszeit</translation>
    </message>
    <message>
        <source>Step &amp;Back</source>
        <translation>Schritt &amp;zurück</translation>
    </message>
    <message>
        <source>Go to the solution time before</source>
        <translation>Geht zur Lösungszeit davor</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Abspielen</translation>
    </message>
    <message>
        <source>Go through the solution times, or stop</source>
        <translation>Geht durch die Lösungszeiten, oder hält an</translation>
    </message>
    <message>
        <source>Step For&amp;ward</source>
        <translation>Schritt &amp;vorwärts</translation>
    </message>
    <message>
        <source>Go to the next solution time</source>
        <translation>Geht zur nächsten Lösungszeit</translation>
    </message>
    <message>
        <source>&amp;Last Time</source>
        <translation>&amp;Letzte Zeit</translation>
    </message>
    <message>
        <source>Go to the last solution time</source>
        <translation>Geht zur letzten Lösungszeit</translation>
    </message>
    <message>
        <source>L&amp;oop</source>
        <translation>In &amp;Schleife</translation>
    </message>
    <message>
        <source>Play from the first time again after the last one</source>
        <translation>Beginnt nach der letzten Zeit wieder mit der ersten</translation>
    </message>
    <message>
        <source>&amp;Time in the Picture</source>
        <translation>Zeit im &amp;Bild</translation>
    </message>
    <message>
        <source>Show the solution time in the plot and in saved pictures</source>
        <translation>Zeigt die Lösungszeit in der Darstellung und in gespeicherten Bildern</translation>
    </message>
    <message>
        <source>Type a time: the nearest one is shown</source>
        <translation>Geben Sie eine Zeit ein: die nächste wird gezeigt</translation>
    </message>
    <message>
        <source>Ti&amp;me:</source>
        <translation>Ze&amp;it:</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>corvala::app::ViewCommands</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Fit View</source>
        <translation>Ansicht an&amp;passen</translation>
    </message>
    <message>
        <source>Show all that is drawn, as at the start</source>
        <translation>Zeigt alles Gezeichnete, wie am Anfang</translation>
    </message>
    <message>
        <source>Zoom &amp;Box</source>
        <translation>Zoom&amp;rechteck</translation>
    </message>
    <message>
        <source>Draw a box with the mouse that shall fill the plot; Esc leaves. A drag with Ctrl and Shift does the same at once</source>
        <translation>Ziehen Sie mit der Maus ein Rechteck, das die Darstellung füllen soll; Esc verlässt dies. Ziehen mit Strg und Umschalt tut dasselbe sofort</translation>
    </message>
    <message>
        <source>Zoom to &amp;Selected</source>
        <translation>Auf &amp;Ausgewählte zoomen</translation>
    </message>
    <message>
        <source>Show the maps whose rows are selected in the style dialog, or what was clicked in the plot, as large as possible</source>
        <translation>Zeigt so groß wie möglich, wessen Zeilen im Stildialog ausgewählt sind oder was in der Darstellung angeklickt wurde</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Show the middle of the plot larger</source>
        <translation>Zeigt die Mitte der Darstellung größer</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Show more round the plot</source>
        <translation>Zeigt mehr rings um die Darstellung</translation>
    </message>
    <message>
        <source>P&amp;revious View</source>
        <translation>&amp;Vorige Ansicht</translation>
    </message>
    <message>
        <source>Go back to what was seen before the view was last changed</source>
        <translation>Zeigt wieder, was vor der letzten Änderung der Ansicht zu sehen war</translation>
    </message>
    <message>
        <source>Along &amp;X</source>
        <translation>Entlang &amp;X</translation>
    </message>
    <message>
        <source>Look along X, Y to the right, Z upwards</source>
        <translation>Blickt entlang X, Y nach rechts, Z nach oben</translation>
    </message>
    <message>
        <source>Along &amp;Y</source>
        <translation>Entlang &amp;Y</translation>
    </message>
    <message>
        <source>Look along Y, X to the right, Z upwards</source>
        <translation>Blickt entlang Y, X nach rechts, Z nach oben</translation>
    </message>
    <message>
        <source>Along &amp;Z</source>
        <translation>Entlang &amp;Z</translation>
    </message>
    <message>
        <source>Look along Z, X to the right, Y upwards</source>
        <translation>Blickt entlang Z, X nach rechts, Y nach oben</translation>
    </message>
    <message>
        <source>From a &amp;Corner</source>
        <translation>Von einer &amp;Ecke</translation>
    </message>
    <message>
        <source>Look from a corner, Z upwards, as at the start</source>
        <translation>Blickt von einer Ecke, Z nach oben, wie am Anfang</translation>
    </message>
    <message>
        <source>&amp;Parallel Projection</source>
        <translation>Parallelpro&amp;jektion</translation>
    </message>
    <message>
        <source>Show what is far away as large as what is near</source>
        <translation>Zeigt Fernes so groß wie Nahes</translation>
    </message>
    <message>
        <source>Outline Se&amp;lected Rows</source>
        <translation>Ausgewählte Zeilen &amp;umranden</translation>
    </message>
    <message>
        <source>Mark in the plot what is selected in the style dialog; not in pictures that are saved</source>
        <translation>Kennzeichnet in der Darstellung, was im Stildialog ausgewählt ist; nicht in gespeicherten Bildern</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>Ganzer &amp;Bildschirm</translation>
    </message>
    <message>
        <source>Give the window all of the screen; Esc leaves</source>
        <translation>Gibt dem Fenster den ganzen Bildschirm; Esc verlässt dies</translation>
    </message>
    <message>
        <source>Select rows in the style dialog first, or click something in the plot</source>
        <translation>Wählen Sie zuerst Zeilen im Stildialog aus, oder klicken Sie etwas in der Darstellung an</translation>
    </message>
    <message>
        <source>Nothing is drawn of what is selected</source>
        <translation>Vom Ausgewählten wird nichts gezeichnet</translation>
    </message>
    <message>
        <source>Nothing is in view: all that is drawn lies beside it.</source>
        <translation>Nichts ist zu sehen: alles Gezeichnete liegt daneben.</translation>
    </message>
    <message>
        <source>Fit View</source>
        <translation>Ansicht anpassen</translation>
    </message>
</context>
<context>
    <name>corvala::app::WorkProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::common::LaunchHelpAction</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::common::NumberedNameListModel</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::lineplot::CurveFitSettingsDialog</name>
    <message>
        <source>Curve Fit Settings</source>
        <translation>Einstellungen des Ausgleichs</translation>
    </message>
    <message>
        <source>Result of the fit</source>
        <translation>Ergebnis des Ausgleichs</translation>
    </message>
    <message numerus="yes">
        <source>%n line maps</source>
        <translation>
            <numerusform>%n Kurve</numerusform>
            <numerusform>%n Kurven</numerusform>
        </translation>
    </message>
    <message>
        <source>The curve is being fitted.</source>
        <translation>Die Kurve wird berechnet.</translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::lineplot::CurveFitSettingsForm</name>
    <message>
        <source>&amp;Polynomial order:</source>
        <translation>&amp;Polynomgrad:</translation>
    </message>
    <message>
        <source>0 is a straight line, 1 runs through all points</source>
        <translation>0 ist eine Gerade, 1 geht durch alle Punkte</translation>
    </message>
    <message>
        <source>C&amp;loseness:</source>
        <translation>&amp;Nähe:</translation>
    </message>
    <message>
        <source>Use points in a &amp;range only</source>
        <translation>Nur Punkte eines &amp;Bereichs verwenden</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>B&amp;is:</translation>
    </message>
    <message>
        <source>Use a &amp;weighting variable</source>
        <translation>Eine &amp;Gewichtungsvariable verwenden</translation>
    </message>
    <message>
        <source>&amp;Variable:</source>
        <translation>&amp;Variable:</translation>
    </message>
    <message>
        <source>&amp;Clamp the ends</source>
        <translation>Enden &amp;einspannen</translation>
    </message>
    <message>
        <source>Derivative at &amp;start:</source>
        <translation>Ableitung am &amp;Anfang:</translation>
    </message>
    <message>
        <source>Derivative at &amp;end:</source>
        <translation>Ableitung am En&amp;de:</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::lineplot::LineMapCreateDialog</name>
    <message>
        <source>Create Line Maps</source>
        <translation>Kurven anlegen</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translation>&amp;Anlegen</translation>
    </message>
    <message>
        <source>&amp;Zone:</source>
        <translation>&amp;Zone:</translation>
    </message>
    <message>
        <source>&amp;Theta variable:</source>
        <translation>Variable für &amp;Theta:</translation>
    </message>
    <message>
        <source>&amp;X-axis variable:</source>
        <translation>Variable der &amp;X-Achse:</translation>
    </message>
    <message>
        <source>R&amp;adius variables:</source>
        <translation>Variablen für den &amp;Radius:</translation>
    </message>
    <message>
        <source>&amp;Y-axis variables:</source>
        <translation>Variablen der &amp;Y-Achse:</translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::prompt::ColorChooserWidget</name>
    <message>
        <source>By RGB</source>
        <translation>Nach RGB</translation>
    </message>
    <message>
        <source>By contour group %1</source>
        <translation>Nach Konturgruppe %1</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Present color</source>
        <translation>Jetzige Farbe</translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::prompt::EnterASCIICharacterDialog</name>
    <message>
        <source>Enter Character</source>
        <translation>Zeichen eingeben</translation>
    </message>
    <message>
        <source>&amp;Character:</source>
        <translation>&amp;Zeichen:</translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::prompt::FontChoice</name>
    <message>
        <source>Use &amp;base font</source>
        <translation>&amp;Grundschrift verwenden</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Schrift:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Math</source>
        <translation>Mathematisch</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::prompt::ScatterSizeFontDialog</name>
    <message>
        <source>Scatter Size and Font</source>
        <translation>Größe und Schrift der Streuung</translation>
    </message>
    <message>
        <source>&amp;Size variable:</source>
        <translation>Variable der &amp;Größe:</translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::prompt::ZoneSelectDialog</name>
    <message>
        <source>Select Zone</source>
        <translation>Zone auswählen</translation>
    </message>
    <message>
        <source>Part of the number or name</source>
        <translation>Teil der Nummer oder des Namens</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>&amp;Zones:</source>
        <translation>&amp;Zonen:</translation>
    </message>
</context>
<context>
    <name>corvala::host::io::DataReader</name>
    <message numerus="yes">
        <source>the reader made no progress for %n second(s)</source>
        <translation>
            <numerusform>der Leser kam %n Sekunde lang nicht voran</numerusform>
            <numerusform>der Leser kam %n Sekunden lang nicht voran</numerusform>
        </translation>
    </message>
    <message>
        <source>the reading program cannot be started: %1</source>
        <translation>das Leseprogramm kann nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>no file is named</source>
        <translation>keine Datei ist genannt</translation>
    </message>
    <message>
        <source>the reading program corvala-read is missing</source>
        <translation>das Leseprogramm corvala-read fehlt</translation>
    </message>
    <message>
        <source>no temporary folder can be made in %1</source>
        <translation>in %1 kann kein temporärer Ordner angelegt werden</translation>
    </message>
    <message>
        <source>the reader gave an answer that cannot be understood</source>
        <translation>der Leser gab eine Antwort, die nicht zu verstehen ist</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>the reader was killed; perhaps the machine ran out of memory</source>
        <translation>der Leser wurde beendet; vielleicht hatte der Rechner keinen Speicher mehr</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>Signal %1</translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation>Rückgabewert %1</translation>
    </message>
    <message>
        <source>the reader stopped unexpectedly (%1)</source>
        <translation>der Leser hielt unerwartet an (%1)</translation>
    </message>
    <message>
        <source>the reader failed (%1); the file, or one that it names, holds something that it cannot read, or is damaged</source>
        <translation>der Leser versagte (%1); die Datei, oder eine, die sie nennt, enthält etwas, das er nicht lesen kann, oder ist beschädigt</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>Lade %1</translation>
    </message>
    <message>
        <source>the reading was given up</source>
        <translation>das Lesen wurde abgebrochen</translation>
    </message>
    <message>
        <source>VTK files</source>
        <translation>VTK-Dateien</translation>
    </message>
    <message>
        <source>Surfaces</source>
        <translation>Oberflächen</translation>
    </message>
    <message>
        <source>CGNS files</source>
        <translation>CGNS-Dateien</translation>
    </message>
    <message>
        <source>Plot3D files</source>
        <translation>Plot3D-Dateien</translation>
    </message>
    <message>
        <source>EnSight files</source>
        <translation>EnSight-Dateien</translation>
    </message>
    <message>
        <source>Exodus II files</source>
        <translation>Exodus-II-Dateien</translation>
    </message>
    <message>
        <source>OpenFOAM cases</source>
        <translation>OpenFOAM-Fälle</translation>
    </message>
    <message>
        <source>Tables of text</source>
        <translation>Texttabellen</translation>
    </message>
    <message>
        <source>Data files (%1)</source>
        <translation>Datendateien (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
</context>
<context>
    <name>corvala::host::io::TextDialectTexts</name>
    <message>
        <source>a number from 0</source>
        <translation>eine Zahl ab 0</translation>
    </message>
    <message>
        <source>%1 for columns from 1 to %2, as in 2:words 4-9:skip</source>
        <translation>%1 für Spalten von 1 bis %2, etwa 2:words 4-9:skip</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no property of a table; there are %2</source>
        <translation>„%1“ ist keine Eigenschaft einer Tabelle; es gibt %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a table is one of %2, or auto, not &quot;%3&quot;</source>
        <translation>„%1“ einer Tabelle ist eines von %2 oder auto, nicht „%3“</translation>
    </message>
    <message>
        <source>separator %1</source>
        <translation>Trennzeichen %1</translation>
    </message>
    <message>
        <source>header rows: %1</source>
        <translation>Kopfzeilen: %1</translation>
    </message>
    <message>
        <source>dates with %1</source>
        <translation>Datumsangaben mit %1</translation>
    </message>
</context>
<context>
    <name>corvala::plot</name>
    <message>
        <source>An image of %1 by %2 pixels cannot be drawn; a side may have 1 to %3</source>
        <translation>Ein Bild von %1 mal %2 Pixeln kann nicht gezeichnet werden; eine Seite darf 1 bis %3 haben</translation>
    </message>
    <message>
        <source>A page of %1 by %2 mm cannot be drawn; a side may have %3 at most, and no less than a dot</source>
        <translation>Eine Seite von %1 mal %2 mm kann nicht gezeichnet werden; eine Seite darf höchstens %3 haben und nicht weniger als einen Punkt</translation>
    </message>
    <message>
        <source>no values</source>
        <translation>keine Werte</translation>
    </message>
    <message>
        <source>Field plots need an X server; the window system here is &quot;%1&quot;</source>
        <translation>Felddarstellungen brauchen einen X-Server; das Fenstersystem ist hier „%1“</translation>
    </message>
    <message>
        <source>OpenGL 3.2 is not available; install the package libgl1-mesa-dri</source>
        <translation>OpenGL 3.2 ist nicht verfügbar; installieren Sie das Paket libgl1-mesa-dri</translation>
    </message>
    <message>
        <source>The frame shows no data</source>
        <translation>Der Rahmen zeigt keine Daten</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>drawing was cancelled, or what it shows was changed meanwhile</source>
        <translation>das Zeichnen wurde abgebrochen, oder was es zeigt, wurde inzwischen geändert</translation>
    </message>
</context>
<context>
    <name>corvala::plot::FieldCanvas</name>
    <message>
        <source>Field plot</source>
        <translation>Felddarstellung</translation>
    </message>
</context>
<context>
    <name>corvala::plot::FieldScene</name>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Not drawn: %1 of zone %2 (%3)</source>
        <translation>Nicht gezeichnet: %1 der Zone %2 (%3)</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %Ln more</source>
        <translation>
            <numerusform>%1, und %Ln weitere</numerusform>
            <numerusform>%1, und %Ln weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::FieldView</name>
    <message>
        <source>Drawing was cancelled: the picture is not complete</source>
        <translation>Das Zeichnen wurde abgebrochen: das Bild ist nicht vollständig</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>Zone %1: %2</source>
        <translation>Zone %1: %2</translation>
    </message>
    <message>
        <source>cell %1</source>
        <translation>Zelle %1</translation>
    </message>
    <message>
        <source>point %1</source>
        <translation>Punkt %1</translation>
    </message>
</context>
<context>
    <name>corvala::plot::FrameView</name>
    <message>
        <source>Nothing is drawn for this plot type</source>
        <translation>Für diese Art der Darstellung wird nichts gezeichnet</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Keine Daten</translation>
    </message>
</context>
<context>
    <name>corvala::plot::LineCanvas</name>
    <message>
        <source>Line plot</source>
        <translation>Liniendiagramm</translation>
    </message>
</context>
<context>
    <name>corvala::plot::LineLegend</name>
    <message numerus="yes">
        <source>%Ln more</source>
        <translation>
            <numerusform>%Ln weitere</numerusform>
            <numerusform>%Ln weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::LineNotes</name>
    <message>
        <source>X axis %1</source>
        <translation>X-Achse %1</translation>
    </message>
    <message>
        <source>Y axis %1</source>
        <translation>Y-Achse %1</translation>
    </message>
    <message>
        <source>radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>The %1 has the range of the data: its minimum, %2, is not below its maximum, %3.</source>
        <translation>Gezeigt wird der Bereich der Daten (%1): das Minimum, %2, liegt nicht unter dem Maximum, %3.</translation>
    </message>
    <message>
        <source>The %1 has the range of the data: a logarithmic axis has no place for its minimum, %2.</source>
        <translation>Gezeigt wird der Bereich der Daten (%1): eine logarithmische Achse hat keinen Platz für das Minimum, %2.</translation>
    </message>
    <message>
        <source>Keep the Range of the Data</source>
        <translation>Bereich der Daten behalten</translation>
    </message>
    <message numerus="yes">
        <source>%Ln point(s) are left out: the %1 is logarithmic, and their values are not positive.</source>
        <translation>
            <numerusform>%Ln Punkt ist ausgelassen: die Achse (%1) ist logarithmisch, und sein Wert ist nicht positiv.</numerusform>
            <numerusform>%Ln Punkte sind ausgelassen: die Achse (%1) ist logarithmisch, und ihre Werte sind nicht positiv.</numerusform>
        </translation>
    </message>
    <message>
        <source>Make the Axis Linear</source>
        <translation>Achse linear machen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln point(s) are left out: their values are missing or infinite.</source>
        <translation>
            <numerusform>%Ln Punkt ist ausgelassen: sein Wert fehlt oder ist unendlich.</numerusform>
            <numerusform>%Ln Punkte sind ausgelassen: ihre Werte fehlen oder sind unendlich.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no curve through the points of &quot;%1&quot;: %2.</source>
        <translation>Durch die Punkte von „%1“ gibt es keine Kurve: %2.</translation>
    </message>
    <message>
        <source>The curve of &quot;%1&quot; is not seen: the layer of lines is off.</source>
        <translation>Die Kurve „%1“ ist nicht zu sehen: die Ebene der Linien ist aus.</translation>
    </message>
    <message>
        <source>Switch On the Layer</source>
        <translation>Ebene einschalten</translation>
    </message>
    <message>
        <source>The curve of &quot;%1&quot; is not seen: its line map does not show lines.</source>
        <translation>Die Kurve „%1“ ist nicht zu sehen: sie zeigt keine Linien.</translation>
    </message>
    <message>
        <source>Show Lines</source>
        <translation>Linien zeigen</translation>
    </message>
    <message>
        <source>Error bars are drawn in XY plots only.</source>
        <translation>Fehlerbalken werden nur in XY-Diagrammen gezeichnet.</translation>
    </message>
    <message>
        <source>Switch Off the Layer</source>
        <translation>Ebene ausschalten</translation>
    </message>
    <message>
        <source>No error bar is drawn: no active line map has an error bar variable.</source>
        <translation>Kein Fehlerbalken wird gezeichnet: keine aktive Kurve hat eine Variable dafür.</translation>
    </message>
    <message>
        <source>No error bar is drawn: the line maps that have a variable for them do not show them.</source>
        <translation>Kein Fehlerbalken wird gezeichnet: die Kurven, die eine Variable dafür haben, zeigen sie nicht.</translation>
    </message>
    <message>
        <source>Show Them</source>
        <translation>Zeigen</translation>
    </message>
</context>
<context>
    <name>corvala::plot::LinePlot</name>
    <message numerus="yes">
        <source>Drawing was cancelled: %Ln line(s) missing</source>
        <translation>
            <numerusform>Das Zeichnen wurde abgebrochen: %Ln Linie fehlt</numerusform>
            <numerusform>Das Zeichnen wurde abgebrochen: %Ln Linien fehlen</numerusform>
        </translation>
    </message>
    <message>
        <source>Dense lines are drawn thin</source>
        <translation>Dichte Linien sind dünn gezeichnet</translation>
    </message>
</context>
<context>
    <name>corvala::plot::MapScene</name>
    <message>
        <source>Drawing %L1 of %L2 active zones</source>
        <translation>%L1 von %L2 aktiven Zonen werden gezeichnet</translation>
    </message>
    <message>
        <source>Drawing %L1 of %L2 active lines</source>
        <translation>%L1 von %L2 aktiven Kurven werden gezeichnet</translation>
    </message>
    <message numerus="yes">
        <source>Drawing was cancelled: %Ln zone(s) missing</source>
        <translation>
            <numerusform>Das Zeichnen wurde abgebrochen: %Ln Zone fehlt</numerusform>
            <numerusform>Das Zeichnen wurde abgebrochen: %Ln Zonen fehlen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Drawing was cancelled: %Ln line(s) missing</source>
        <translation>
            <numerusform>Das Zeichnen wurde abgebrochen: %Ln Kurve fehlt</numerusform>
            <numerusform>Das Zeichnen wurde abgebrochen: %Ln Kurven fehlen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::Notes</name>
    <message>
        <source>%1 (&quot;%2&quot;)</source>
        <translation>%1 („%2“)</translation>
    </message>
    <message>
        <source>Value blanking takes away every cell of the active zones, by constraint %1.</source>
        <translation>Das Ausblenden nimmt jede Zelle der aktiven Zonen weg, durch Bedingung %1.</translation>
    </message>
    <message>
        <source>Switch Off Value Blanking</source>
        <translation>Ausblenden ausschalten</translation>
    </message>
    <message>
        <source>Blanking constraint %1 takes nothing away: it has no variable.</source>
        <translation>Bedingung %1 der Ausblendung nimmt nichts weg: sie hat keine Variable.</translation>
    </message>
    <message>
        <source>Switch Off the Constraint</source>
        <translation>Bedingung ausschalten</translation>
    </message>
    <message>
        <source>The %1 axis has the range of the data: its minimum, %2, is not below its maximum, %3.</source>
        <translation>Die %1-Achse hat den Bereich der Daten: ihr Minimum, %2, liegt nicht unter ihrem Maximum, %3.</translation>
    </message>
    <message>
        <source>Keep the Range of the Data</source>
        <translation>Bereich der Daten behalten</translation>
    </message>
    <message>
        <source>Contour group %1 has levels by the data: its lowest level, %2, is not below its highest, %3.</source>
        <translation>Konturgruppe %1 hat Stufen nach den Daten: ihre unterste Stufe, %2, liegt nicht unter ihrer obersten, %3.</translation>
    </message>
    <message>
        <source>Keep Levels by the Data</source>
        <translation>Stufen nach den Daten behalten</translation>
    </message>
    <message>
        <source>The list of more lines of contour group %1 ends before &quot;%2&quot;, which is no number.</source>
        <translation>Die Liste weiterer Linien der Konturgruppe %1 endet vor „%2“, was keine Zahl ist.</translation>
    </message>
    <message>
        <source>Slices, iso-surfaces and streamtraces are drawn in 3D plots only.</source>
        <translation>Schnitte, Isoflächen und Stromlinien werden nur in 3D-Darstellungen gezeichnet.</translation>
    </message>
    <message>
        <source>No streamtrace is drawn: no vector variables are chosen.</source>
        <translation>Keine Stromlinie wird gezeichnet: es sind keine Vektorvariablen gewählt.</translation>
    </message>
    <message>
        <source>Slice %1 shows nothing: no zone that shows slices has a plane %2 = %3.</source>
        <translation>Schnitt %1 zeigt nichts: keine Zone, die Schnitte zeigt, hat eine Ebene %2 = %3.</translation>
    </message>
    <message>
        <source>Slice %1 at %2 = %3 lies outside the zones that show slices (%4 to %5).</source>
        <translation>Schnitt %1 bei %2 = %3 liegt außerhalb der Zonen, die Schnitte zeigen (%4 bis %5).</translation>
    </message>
    <message>
        <source>Move It to the Middle</source>
        <translation>In die Mitte legen</translation>
    </message>
    <message>
        <source>No iso-surface is drawn: its variable &quot;%1&quot; is %2 in all zones that show them.</source>
        <translation>Keine Isofläche wird gezeichnet: ihre Variable „%1“ ist %2 in allen Zonen, die sie zeigen.</translation>
    </message>
    <message>
        <source>The iso-surface value %1 lies outside the values of &quot;%2&quot; (%3 to %4).</source>
        <translation>Der Wert %1 der Isofläche liegt außerhalb der Werte von „%2“ (%3 bis %4).</translation>
    </message>
    <message>
        <source>Take Values of the Data</source>
        <translation>Werte der Daten nehmen</translation>
    </message>
    <message>
        <source>No streamtrace is drawn: the rake and all points lie outside the cells of the zones that show streamtraces.</source>
        <translation>Keine Stromlinie wird gezeichnet: der Rechen und alle Punkte liegen außerhalb der Zellen der Zonen, die Stromlinien zeigen.</translation>
    </message>
    <message>
        <source>Lay the Rake Across the Data</source>
        <translation>Rechen quer durch die Daten legen</translation>
    </message>
    <message>
        <source>The last of the points besides the rake has no three coordinates.</source>
        <translation>Der letzte der weiteren Punkte hat keine drei Koordinaten.</translation>
    </message>
    <message>
        <source>The points besides the rake end before &quot;%1&quot;, which is no number.</source>
        <translation>Die weiteren Punkte enden vor „%1“, was keine Zahl ist.</translation>
    </message>
    <message>
        <source>No arrow is drawn: the vectors (%1) are zero in all active zones.</source>
        <translation>Kein Pfeil wird gezeichnet: die Vektoren (%1) sind in allen aktiven Zonen null.</translation>
    </message>
    <message>
        <source>All symbols have one size: their size variable &quot;%1&quot; is %2 in all active zones.</source>
        <translation>Alle Symbole sind gleich groß: ihre Variable „%1“ ist %2 in allen aktiven Zonen.</translation>
    </message>
    <message>
        <source>Slices, iso-surfaces and streamtraces are hidden: opaque faces stand all round the zones that show them.</source>
        <translation>Schnitte, Isoflächen und Stromlinien sind verdeckt: undurchsichtige Flächen stehen rings um die Zonen, die sie zeigen.</translation>
    </message>
    <message>
        <source>Hide These Faces</source>
        <translation>Diese Flächen ausblenden</translation>
    </message>
    <message numerus="yes">
        <source>%Ln zone(s) have no values of &quot;%1&quot;, the variable of contour group %2, and are not colored by it: &quot;%3&quot; is the first.</source>
        <translation>
            <numerusform>%Ln Zone hat keine Werte von „%1“, der Variablen der Konturgruppe %2, und ist nicht danach gefärbt: „%3“.</numerusform>
            <numerusform>%Ln Zonen haben keine Werte von „%1“, der Variablen der Konturgruppe %2, und sind nicht danach gefärbt: „%3“ ist die erste.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::PolarChart</name>
    <message>
        <source>angle = %1, radius = %2</source>
        <translation>Winkel = %1, Radius = %2</translation>
    </message>
</context>
<context>
    <name>corvala::plot::SecondAxes</name>
    <message>
        <source> (axis Y%1)</source>
        <translation> (Achse Y%1)</translation>
    </message>
    <message>
        <source> (right)</source>
        <translation> (rechts)</translation>
    </message>
    <message>
        <source> (left)</source>
        <translation> (links)</translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::ZoneStyleDialog</name>
    <message>
        <source>Linemap Delete</source>
        <translation>Kurven löschen</translation>
    </message>
    <message>
        <source>Are you sure you want to
delete the selected mappings?</source>
        <translation>Möchten Sie die ausgewählten
Kurven wirklich löschen?</translation>
    </message>
    <message>
        <source>S&amp;election criteria:</source>
        <translation>A&amp;uswahl nach:</translation>
    </message>
    <message>
        <source>Zone Style</source>
        <translation>Zonenstil</translation>
    </message>
    <message>
        <source>&amp;Zones</source>
        <translation>&amp;Zonen</translation>
    </message>
    <message>
        <source>Mapping Style</source>
        <translation>Kurvenstil</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>Aus&amp;wählen</translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::uicontrols::MapSelectionByPattern</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Selection &amp;criteria:</source>
        <translation>Auswahl &amp;nach:</translation>
    </message>
    <message>
        <source>Selection criteria</source>
        <translation>Auswahl nach</translation>
    </message>
    <message>
        <source>* stands for any text, ? for one character: wing* finds what begins with &quot;wing&quot;, */inlet what ends with &quot;/inlet&quot;</source>
        <translation>* steht für beliebigen Text, ? für ein Zeichen: wing* findet, was mit „wing“ beginnt, */inlet, was mit „/inlet“ endet</translation>
    </message>
    <message>
        <source>&amp;Zones</source>
        <translation>&amp;Zonen</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Gruppen</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>%L1 of %L2 selected</source>
        <translation>%L1 von %L2 ausgewählt</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::zonestyle::intern::views::ComboBoxDialog</name>
    <message>
        <source>New value</source>
        <translation>Neuer Wert</translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::zonestyle::intern::views::DynamicLineMapTextEditDialog</name>
    <message>
        <source>Name of line map %1</source>
        <translation>Name der Kurve %1</translation>
    </message>
    <message>
        <source>Insert token</source>
        <translation>Platzhalter einfügen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Platzhalter</translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::zonestyle::intern::views::ListBoxDialog</name>
    <message>
        <source>Choices</source>
        <translation>Auswahl</translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::zonestyle::intern::views::StyleTableView</name>
    <message>
        <source>Style table</source>
        <translation>Stiltabelle</translation>
    </message>
    <message>
        <source>Space switches the check boxes of all selected rows.
Return or F2 edits the current cell.
Alt+Down, Menu or Shift+F10 opens its menu.
Ctrl+A selects all rows; Shift and Ctrl extend the selection.
A double click on the border of a column fits its width.</source>
        <translation>Die Leertaste schaltet die Kästchen aller ausgewählten Zeilen.
Eingabetaste oder F2 bearbeitet die aktuelle Zelle.
Alt+Ab, Menütaste oder Umschalt+F10 öffnet ihr Menü.
Strg+A wählt alle Zeilen; Umschalt und Strg erweitern die Auswahl.
Ein Doppelklick auf den Rand einer Spalte passt ihre Breite an.</translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::zonestyle::intern::views::TextEditDialog</name>
    <message>
        <source>New value</source>
        <translation>Neuer Wert</translation>
    </message>
</context>
<context>
    <name>corvala::ui::NumberField</name>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
</context>
</TS>
