<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AxisNames</name>
    <message>
        <source>%1 over %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Cell</name>
    <message>
        <source>N/A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unassigned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strand ID %1 has no relevant zones at the current solution time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;Undef&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Column</name>
    <message>
        <source>Use
Lighting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Contour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour
Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flood
By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines
By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line
Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line
Pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pattern
Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line
Thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge
Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge
Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I-Index
Border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J-Index
Border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K-Index
Border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lighting
Effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Surface
Translucency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface
Translucency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Value
Blanking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mesh
Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mesh
Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points
to Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index
Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Scatter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol
Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter
Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outline
Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill
Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill
Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Shade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shade
Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zone
Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zone
Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group
Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Zone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surfaces
to Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I-Plane
Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J-Plane
Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K-Plane
Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Vector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector
Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector
Tangents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Head
Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Iso-Surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Slices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Streamtraces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar
Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar
Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve
Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dependent
Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve
Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve
Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in
Legend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Theta
Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius
Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X-Axis
Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y-Axis
Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which
X-Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which
Y-Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Error Bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Bar
Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Bar
Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Bar
Spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Bar
Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Bar
Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Varying
Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I-Index
Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J-Index
Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K-Index
Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map
Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map
Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show
Symbols</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol
Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol
Spacing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Open embedded data: %1 (when no name is given), %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play a script, then end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write what the style dialog shows, then end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a picture of the plot, then end: .png, .pdf, .svg, .jpg or .bmp.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the picture on paper, as 160x120mm (usual for .pdf and .svg), or in pixels, as 1200x900.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels of the picture to an inch (300).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout of Plot3D files, such as format=binary,grids=many,endian=big.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How tables of text are written, such as separator=tab,decimal=comma,header=1,columns=2:words 5-9:skip,bad=skip.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dialect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plots field data and lets you edit the style of its zones and lines.
Data are opened first; then a script is played, a report written, a picture drawn.
Exit codes: 0 success, 1 failure, 2 wrong usage.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data files, opened together, or the folder of a case.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no embedded data &quot;%1&quot;; there are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>give either files or --demo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of pixels to an inch: from %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size of a picture, such as 160x120mm or 1200x900</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CurveFitDetails</name>
    <message>
        <source>Order=%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points range=%1,%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Using all points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weighting variable=%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not using weighting variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clamped: D1=%1, D2=%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not clamped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closeness=%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N/A</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>plots are drawn through an X server: install the package xwayland</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no screen to show a window on; --play, --report and --render need none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>drawing without a screen needs Xvfb: install the package xvfb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xvfb cannot be started: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DynamicLineMapText</name>
    <message>
        <source>Zone name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zone number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dependent variable name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dependent variable number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Independent variable name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Independent variable number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X-Axis number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y-Axis number</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayerQueries</name>
    <message>
        <source>Show Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 layer is off, so nothing of it is drawn.
Do you want to switch it on?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No active zone draws its surfaces, so the %1 layer shows nothing.
Do you want to draw the boundary cell faces of the active zones?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LineMapZone</name>
    <message>
        <source>Zone %1 is not ordered, so a line through its points follows no order.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zone %1 has no values at its points of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to use it anyway?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Enter character...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deactivate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show selected only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename line map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Zone...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter range...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Variable...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I skip=%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance=%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter index...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter distance...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter skip...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select variable...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OperationText</name>
    <message>
        <source>&quot;%1&quot; must be %2, not %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text or a list of texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a set of numbers such as &quot;1-3,7&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no set of numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be one of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;value&quot;: %1 is no style value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no layer &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;rename&quot; takes one of &quot;zone&quot;, &quot;variable&quot; and &quot;lineMap&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;lineMap&quot;: there is no map %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;pick&quot;: %1 is no pick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;rgb&quot; must be three numbers from 0 to 255, not %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is scaled by &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be 1 or more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;data&quot; must be &quot;none&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no key &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no operation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of names with at most one index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no frame or no data for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no such style value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the path names a group of style values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value has the wrong type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value is out of range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is nothing of that number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the operation does not suit the value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value was refused (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be done: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Picture</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its ending must name a picture format, such as .png</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureOutput</name>
    <message>
        <source>PNG picture (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF page (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other pictures (*.jpg *.jpeg *.bmp)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written: its ending must name a picture format, one of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be drawn: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Plot3D</name>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>binary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grids</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>several grids</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blanking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with blanking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without blanking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with record marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without record marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Byte order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>big endian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>little endian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Precision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>double precision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>single precision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dimensions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>two dimensions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>three dimensions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no Plot3D property; there are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the Plot3D property %1 is &quot;%2&quot;, &quot;%3&quot; or &quot;auto&quot;, not &quot;%4&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Plot3DLayout</name>
    <message>
        <source>text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>binary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>big-endian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>little-endian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>double precision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>single precision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with record marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>several grids</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with iblank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>two-dimensional</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>note: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try &apos;corvala --help&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Prompt</name>
    <message>
        <source>Enter Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Index Skipping</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;I skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;J skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;K skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the value for the line pattern length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line Pattern Length [%]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the value for the line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line Thickness [%]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the size of scatter symbols in frame units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size [%]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the size of symbols in frame units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the size of error bars in frame units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the width of the bars in frame units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface Translucency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the surface translucency percentage.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the number of points used to draw the curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the error bar variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the I-Index skipping</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I-Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the distance in frame units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance [%]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReadMessage</name>
    <message numerus="yes">
        <source>%1 (and %n more like it)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>it is longer than its header says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is cut off: %1 of %2 bytes are there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 names solutions of %3 times, but there are %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the solution %2 of %3 was left out: there is none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: it does not say which solutions belong to which times; the first ones are shown, without a time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: it does not say which solutions belong to which times; they were taken in their order.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no collection that lists files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a file in the list has no name, or no time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no end; the files that it lists were read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: the entry names no file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are no zones with points in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was read in another way: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a solution time is not a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: some times occur twice; the first is shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading %1, time %2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a zone of %1 points does not fit the memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the zone &quot;%2&quot; was left out: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 empty block was left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 empty blocks were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrays without a number per point or cell were left out: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 (&quot;%2&quot;) cannot be understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no EnSight case file that names a geometry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cases of type &quot;%1&quot; cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1 of the case was left out: %2 is no field.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>time set %1 has not as many times or file numbers as steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands where elements are due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an element has point %1, which does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time %1 was left out: %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Particles were left out at time %1: %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has points, but no elements.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has several values for a place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are no values of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was left out: %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was left out at time %4: %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: what follows the values was left out: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was left out in %4: %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was left out in %4 at time %5: %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the line &quot;%1 id&quot; is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a block with &quot;%1&quot; cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>part %1 stands in it twice, or is no part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands in the place of &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are no time steps in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a record at byte %1 has another length than %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no count or number of a point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is cut off: after its %1 bytes more numbers are due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is cut off: %1 of at least %2 bytes are there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands in it where nothing like that is due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>part %1 is not in the geometry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 values of a part are missing in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its header is cut off or damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 of %3 times were left out: it is cut off: %4 of %5 bytes are there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the set &quot;%2&quot; was left out: what it names is not there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: element block %2 was left out: its elements (%3) cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not have time %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was left out: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it changed while it was read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder that holds no data files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder that holds several data files; open some of them: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was left out: there is no mesh in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was left out: %2 does not have it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was left out: only %2 has it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has the files of several processors in one (collated), which cannot be read; reconstruct the case, or write it uncollated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is cut off after %1 bytes: more should follow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no values follow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more follows than it should hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it does not begin with &quot;# vtk DataFile&quot;, as legacy VTK files do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no geometry in it (no DATASET line, or an unknown kind of data set)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it needs more than %1 GiB of memory, which is the limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>files that end in &quot;%1&quot; are not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was left out at time %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the values of %2 were left out: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it needs more memory than the limit, or is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: what cannot be read of it was left out: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is of an unknown kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it names itself as a part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a Plot3D solution or function file, and no grid file of that name is beside it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is something in the text that is no number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has %1 numbers, which are more than fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its size fits no Plot3D grid (or it is cut off, or the layout that was chosen is not the right one)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fits more than one Plot3D layout; it was read as: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a solution of OVERFLOW without record marks cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it does not belong to the grid file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was left out: a solution of OVERFLOW without record marks cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was left out: it does not belong to the grid file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it lists no files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is damaged: it holds more points or faces than it announces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is cut off after %1 bytes: more points or faces should follow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no type of numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no temporary files can be written in %1; its disk may be full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is cut off after %1 bytes: there is no &quot;endsolid&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is damaged: %1 bytes are there instead of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the numbers of its %1 columns in %2 rows or more need %3 GiB of memory, and %4 GiB is the limit; columns that are left out need none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more than %1 rows, which is the limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its numbers need %1 GiB in the folder for temporary files, %2, where %3 GiB are free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has %1 columns, which are more than %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all its columns are left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can be meant in several ways; it was read as: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: lines above the table were left out: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no rows of equally many fields, so it is no table, or one that is written in an unusual way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are no rows of data in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of its %2 rows are bad. %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: bad rows were left out: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: columns of words are numbered: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: columns of text were left out: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: numbers that often stand for missing values were read as numbers: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1, column %2: a quote is not closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1, column %2: the row has %3 fields, not %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1, column %2 (%3): &quot;%4&quot; is no number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1, column %2 (%3): &quot;%4&quot; is no time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its data cannot begin in line %1, since it has %2 lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 is longer than %2 MiB, so it is no table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it, or a file that it names, is cut off or damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is damaged: what it claims to hold takes at least %1 bytes, of which %2 are there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its pieces do not fill its grid: %1 points lack</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is cut off after %1 bytes: the end of the XML is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no VTK XML file of a kind that is known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its blocks are nested too deeply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>coordinates are missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a cell is of an unknown kind, or its points do not exist</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Script</name>
    <message>
        <source>a file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;end&quot; must be &quot;outside&quot; or a key such as &quot;Return&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;type&quot; and &quot;choose&quot; exclude each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the editor has no entry %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the editor has no list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the editor stays open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the editor closes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the cell has no check box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;choose&quot; and &quot;color&quot; exclude each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the cell has no menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an editor opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no editor opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no value for a cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the table answered %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the dialog has no &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the dialog is not open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the dialog shows no table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the dialog has no button &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the table has no column %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the table has no map %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the table does not answer %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the cell cannot be brought into view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;dialog&quot; must be &quot;open&quot;, &quot;close&quot; or &quot;destroy&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the dialog has no tab &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the tab &quot;%1&quot; cannot be clicked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no set of maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the button &quot;%1&quot; is disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the %1 button of the pattern is not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the dialog has no pattern field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;apply&quot; must be &quot;names&quot;, &quot;groups&quot;, &quot;clear&quot;, &quot;Return&quot; or null</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no key &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the column has the width %1 after dragging, not %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;map&quot; is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no value of a map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no value %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2, not %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be 1 or more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no tab number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of map %2 in %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of column %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no menu was opened yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the menu is %1, not %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no prompt was opened yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the prompt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the number of refreshes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>selected is &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read as an image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the images differ in size: %1 by %2 and %3 by %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;of&quot; must be &quot;dialog&quot;, &quot;canvas&quot; or &quot;window&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the images differ in %1 % of their pixels only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the images differ in %1 % of their pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;choose&quot; must be a text, a position or null</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the menu has no entry %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the menu entry %1 is disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the menu has no colour chooser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the colour chooser does not offer colour %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>replies are left that no prompt asked for: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no reply to a prompt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;answers&quot; must be a list of replies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot; cannot be accepted as it stands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot; has no entry &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a check box takes true or false, not %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot; takes no value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot; has %2 fields, not %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the list of the prompt &quot;%1&quot; has no position %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot; has no list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot; accepts %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no reply is queued for the prompt &quot;%1&quot; (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the prompt &quot;%1&quot; did not take %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no window is open beside the dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the window has no field &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the list has no entry &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the window has no button &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not valid JSON: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the key &quot;%1&quot; stands twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what was dropped has changed the document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 of &quot;during&quot;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is open was not dropped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what was open is closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>two verbs in one line: &quot;%1&quot; and &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown verb &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the line holds no verb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no key &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;during&quot; must be a list of lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a menu opened that the script does not expect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an editor opened that the script does not expect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a prompt opened that the script does not expect</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StyleValues</name>
    <message>
        <source>Slice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Iso-surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Streamtraces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3D field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2D field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XY line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Annotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polar line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wire frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hidden line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dashed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dash dot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dotted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Long dash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dash dot dot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines and flood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average cell flood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primary value flood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tail at point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Head at point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anchor at midpoint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Head only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hollow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Square</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right triangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left triangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cube</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Octahedron</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PieChart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LineArt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Character</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Math</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specific color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Borders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Borders and creases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Min only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface cell centers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All cell centers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All connected nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Boundary cell faces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exposed cell faces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I-Planes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J-Planes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K-Planes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IJ-Planes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JK-Planes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IK-Planes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IJK-Planes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paneled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gouraud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Viridis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plasma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inferno</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cividis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turbo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rainbow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cool to warm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue, white, red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells at all of whose points it holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells at any of whose points it holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells at whose first point it holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Precise cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at least</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>less than</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>greater than</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>equal to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not equal to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Constant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By independent variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By dependent variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By specific variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>y=f(x)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x=f(y)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line segments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polynomial fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exponential fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parametric spline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extended fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smoothing spline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gaussian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cross</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I-Varying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J-Varying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K-Varying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logarithmic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Below or left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Above or right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter size variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter sizes by the range of values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter size range minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter size range maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smallest symbol size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest symbol size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red channel variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green channel variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue channel variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>U variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector length by the data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of a vector of magnitude 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relative vector length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vectors of the same length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrowhead size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrowhead angle in degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference arrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnitude of the reference arrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour levels over the range of values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowest contour level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest contour level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of contour bands, 0 by the data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour lines at more values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reversed color map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour legend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title of the contour legend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour legend beside the plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour legend from the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour legend from above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blanking constraint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blanking variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blanking relation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blanking compares with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blanking constant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blanking compared variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value blanking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blanked cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slice plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slice in the middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slice position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slice flood by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Iso-surface variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of iso-surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Iso-surfaces by the range of values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First iso-surface value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second iso-surface value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Third iso-surface value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Iso-surface flood by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Streamtrace direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Streamtraces of the rake</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rake across the data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rake start X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rake start Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rake start Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rake end X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rake end Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rake end Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points of streamtraces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Streamtrace color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Streamtrace line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light from the right in degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light from above in degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crease angle in degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X axis by the data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X axis minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X axis maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X axis title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y axis by the data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y axis minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y axis maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y axis title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z axis by the data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z axis minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z axis maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z axis title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font size of axes and legends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mesh type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mesh color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mesh line pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mesh pattern length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mesh line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show contour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flood by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines by contour group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour line color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour line pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour pattern length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour lighting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show vectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tangent vectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrowhead style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector line pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector pattern length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show scatter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol size by variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter fill mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter fill color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show shade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shade color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shade lighting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points to plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surfaces to plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use value blanking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lighting effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use translucency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface translucency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset pattern length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset symbol size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mesh layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shade layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translucency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbols layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error bars layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar charts layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar charts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polar angle 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polar angles clockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius by the data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title of polar axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X axis scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X axis reversed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X axis color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X axis side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y axis scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y axis reversed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y axis color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y axis side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legend of lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legend of lines in a corner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legend of lines from the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legend of lines from above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Box of the legend of lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title of the line plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font size of line plots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid of line plots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Box around line plots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in legend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X-axis variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y-axis variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X-axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y-axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Theta variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Function dependency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line pattern length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closeness of a smoothing spline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polynomial order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit fit range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit range begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit range end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weighted fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clamped spline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spline slope at start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spline slope at end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show symbols</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol spacing mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol fill mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol fill color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show error bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error bar variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error bar type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error bar spacing mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error bar spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error bar color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error bar size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error bar line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar fill mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar fill color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Varying index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol character</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol base font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Character symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I range begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I range end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I range skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J range begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J range end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J range skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K range begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K range end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K range skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plot type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active field maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active zones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active line maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R=f(Theta)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Theta=f(R)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical (y=f(x))</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal (x=f(y))</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Greek)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Math)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(User)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolTip</name>
    <message>
        <source>&lt;html&gt;The strand has no zones at the current solution time, therefore nothing is shown. To view zones for this strand, change the solution time or, modify the option for how zones are shown, using the controls at the bottom of the Time Animation Details dialog.&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UndoTexts</name>
    <message>
        <source>1 field map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 line map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 field maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 line maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 = %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activate %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deactivate %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activate only %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 to the top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 to the bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable %1 zones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable %1 variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VectorVariablesDialog</name>
    <message>
        <source>&amp;U:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;V:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;W:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Vector Variables</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZoneStyle</name>
    <message>
        <source>C&amp;reate Map...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To &amp;Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To &amp;Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zone Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scatter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error Bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar Charts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Indices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::DataCommands</name>
    <message>
        <source>Open Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Case Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Plot3D Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Tables of Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bad Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Skip %n bad row(s)?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detected: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detected in %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::DetailField</name>
    <message>
        <source>That of contour group 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By contour group %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By RGB</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::DetailPageWidget</name>
    <message>
        <source>The axes of a flat plot have one scale, and the view can be moved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All that the data can say follows from them again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick in the Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each click in the plot adds a point, until Esc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in the plot: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::DetailsDock</name>
    <message>
        <source>Plot Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plot &amp;Details</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::LayerBar</name>
    <message>
        <source>Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details of axes and others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XY plots only</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::LayerNotes</name>
    <message>
        <source>No line map is active, so the layer &quot;%1&quot; shows nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activate All Line Maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No zone is active, so the layer &quot;%1&quot; shows nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activate All Zones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layer &quot;%1&quot; is on, but no active line map shows it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in All Line Maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layer &quot;%1&quot; is on, but no active zone shows it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in All Zones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No zone draws its surfaces, so the layer &quot;%1&quot; shows nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw Surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No variable is chosen for the contours, so the layer &quot;%1&quot; shows nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No variables are chosen for the vectors, so the layer &quot;%1&quot; shows nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lighting shows in 3D field plots only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neither shade nor contours show, so lighting changes nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Shade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data have no variable that contours could show.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::MainMenus</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Case &amp;Folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Plot3D...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Table...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;mples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2D field, 12 zones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3D field, 12 zones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zones of all kinds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transient zones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XY lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polar lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Demonstration Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>No Files Yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fit View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;etails Of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About corvala</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About corvala</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>corvala %1
Plots field data and edits the style of their zones.
Licence: GPL-3.0-or-later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mapping Style...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zone Style...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::MainWindow</name>
    <message>
        <source>Reading %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zones: %1, variables: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>corvala</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - corvala</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::NoticeBar</name>
    <message>
        <source>Details...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide this note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::PictureNotes</name>
    <message>
        <source>Plot Details...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::PictureSizeDialog</name>
    <message>
        <source> mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> dpi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels of pictures, also of a field plot on a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::Plot3DDialog</name>
    <message>
        <source>detect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plot3D Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detected: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::PlotArea</name>
    <message>
        <source>Plots are drawn on X screens only: start with QT_QPA_PLATFORM=xcb.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the plot is drawn on an X screen only (QT_QPA_PLATFORM=xcb, for example under xvfb-run)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::PlotTypeChoice</name>
    <message>
        <source>2D field plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3D field plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XY line plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polar line plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plot t&amp;ype:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::TextImportDialog</name>
    <message>
        <source>Import %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preview (click a title, or press Return in a column, to say what the column holds):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>detect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>words, such as -999</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>This is one of %n files; the choices hold for all of them.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>No table is seen in this way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All columns are left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This can be meant in several ways: please check the columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first %1 of %2 columns are shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Of these rows, %n cannot be read, the first in line %1.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>detected: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take %1 as Missing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::TextPreviewTable</name>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>detect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This row cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::TimeBar</name>
    <message>
        <source>Solution time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solution &amp;time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::app::WorkProgress</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::common::LaunchHelpAction</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::common::NumberedNameListModel</name>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::lineplot::CurveFitSettingsDialog</name>
    <message>
        <source>Curve Fit Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result of the fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n line maps</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The curve is being fitted.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::lineplot::CurveFitSettingsForm</name>
    <message>
        <source>&amp;Polynomial order:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 is a straight line, 1 runs through all points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;loseness:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use points in a &amp;range only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use a &amp;weighting variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Variable:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clamp the ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Derivative at &amp;start:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Derivative at &amp;end:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::lineplot::LineMapCreateDialog</name>
    <message>
        <source>Create Line Maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Theta variable:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;X-axis variable:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;adius variables:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Y-axis variables:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::prompt::ColorChooserWidget</name>
    <message>
        <source>By RGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By contour group %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Present color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::prompt::EnterASCIICharacterDialog</name>
    <message>
        <source>Enter Character</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Character:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::prompt::FontChoice</name>
    <message>
        <source>Use &amp;base font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greek</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Math</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::prompt::ScatterSizeFontDialog</name>
    <message>
        <source>Scatter Size and Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Size variable:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::prompt::ZoneSelectDialog</name>
    <message>
        <source>Select Zone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of the number or name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zones:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::host::io::DataReader</name>
    <message numerus="yes">
        <source>the reader made no progress for %n second(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>the reading program cannot be started: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no file is named</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reading program corvala-read is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no temporary folder can be made in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reader gave an answer that cannot be understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reader was killed; perhaps the machine ran out of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reader stopped unexpectedly (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reader failed (%1); the file, or one that it names, holds something that it cannot read, or is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reading was given up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VTK files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CGNS files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plot3D files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EnSight files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exodus II files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OpenFOAM cases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables of text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data files (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::host::io::TextDialectTexts</name>
    <message>
        <source>a number from 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 for columns from 1 to %2, as in 2:words 4-9:skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no property of a table; there are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a table is one of %2, or auto, not &quot;%3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>separator %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>header rows: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dates with %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::plot</name>
    <message>
        <source>An image of %1 by %2 pixels cannot be drawn; a side may have 1 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A page of %1 by %2 mm cannot be drawn; a side may have %3 at most, and no less than a dot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field plots need an X server; the window system here is &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OpenGL 3.2 is not available; install the package libgl1-mesa-dri</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The frame shows no data</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::plot::FieldCanvas</name>
    <message>
        <source>Field plot</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::plot::FieldScene</name>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not drawn: %1 of zone %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1, and %Ln more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::FieldView</name>
    <message>
        <source>Drawing was cancelled: the picture is not complete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::plot::FrameView</name>
    <message>
        <source>Nothing is drawn for this plot type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No data: open a file, a sample or demonstration data in the File menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::plot::LineCanvas</name>
    <message>
        <source>Line plot</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::plot::LineLegend</name>
    <message numerus="yes">
        <source>%Ln more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::LineNotes</name>
    <message>
        <source>X axis %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y axis %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 has the range of the data: its minimum, %2, is not below its maximum, %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 has the range of the data: a logarithmic axis has no place for its minimum, %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the Range of the Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln point(s) are left out: the %1 is logarithmic, and their values are not positive.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Make the Axis Linear</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln point(s) are left out: their values are missing or infinite.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>There is no curve through the points of &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The curve of &quot;%1&quot; is not seen: the layer of lines is off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch On the Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The curve of &quot;%1&quot; is not seen: its line map does not show lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error bars are drawn in XY plots only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Off the Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No error bar is drawn: no active line map has an error bar variable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No error bar is drawn: the line maps that have a variable for them do not show them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Them</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::plot::LinePlot</name>
    <message numerus="yes">
        <source>Drawing was cancelled: %Ln line(s) missing</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Dense lines are drawn thin</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::plot::MapScene</name>
    <message>
        <source>Drawing %L1 of %L2 active maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Drawing was cancelled: %Ln map(s) missing</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::Notes</name>
    <message>
        <source>%1 (&quot;%2&quot;)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value blanking takes away every cell of the active zones, by constraint %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Off Value Blanking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blanking constraint %1 takes nothing away: it has no variable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Off the Constraint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 axis has the range of the data: its minimum, %2, is not below its maximum, %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the Range of the Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contour group %1 has levels by the data: its lowest level, %2, is not below its highest, %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Levels by the Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of more lines of contour group %1 ends before &quot;%2&quot;, which is no number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slices, iso-surfaces and streamtraces are drawn in 3D plots only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No streamtrace is drawn: no vector variables are chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slice %1 shows nothing: no zone that shows slices has a plane %2 = %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slice %1 at %2 = %3 lies outside the zones that show slices (%4 to %5).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move It to the Middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No iso-surface is drawn: its variable &quot;%1&quot; is %2 in all zones that show them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The iso-surface value %1 lies outside the values of &quot;%2&quot; (%3 to %4).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take Values of the Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No streamtrace is drawn: the rake and all points lie outside the cells of the zones that show streamtraces.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay the Rake Across the Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last of the points besides the rake has no three coordinates.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The points besides the rake end before &quot;%1&quot;, which is no number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No arrow is drawn: the vectors (%1) are zero in all active zones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All symbols have one size: their size variable &quot;%1&quot; is %2 in all active zones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slices, iso-surfaces and streamtraces are hidden: opaque faces stand all round the zones that show them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide These Faces</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::ZoneStyleDialog</name>
    <message>
        <source>Linemap Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to
delete the selected mappings?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;election criteria:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zone Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mapping Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::uicontrols::MapSelectionByPattern</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection &amp;criteria:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection criteria</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* stands for any text, ? for one character: wing* finds what begins with &quot;wing&quot;, */inlet what ends with &quot;/inlet&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 of %L2 selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::zonestyle::intern::views::ComboBoxDialog</name>
    <message>
        <source>New value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::zonestyle::intern::views::DynamicLineMapTextEditDialog</name>
    <message>
        <source>Name of line map %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert token</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::zonestyle::intern::views::ListBoxDialog</name>
    <message>
        <source>Choices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::zonestyle::intern::views::StyleTableView</name>
    <message>
        <source>Style table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space switches the check boxes of all selected rows.
Return or F2 edits the current cell.
Alt+Down, Menu or Shift+F10 opens its menu.
Ctrl+A selects all rows; Shift and Ctrl extend the selection.
A double click on the border of a column fits its width.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::sdk::ui::dialogs::zonestyle::intern::views::TextEditDialog</name>
    <message>
        <source>New value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvala::ui::NumberField</name>
    <message>
        <source>a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
