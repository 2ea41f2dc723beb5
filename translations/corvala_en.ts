<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>PickedObjects</name>
    <message numerus="yes">
        <source>%Ln object(s) picked</source>
        <translation>
            <numerusform>%Ln object picked</numerusform>
            <numerusform>%Ln objects picked</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReadMessage</name>
    <message numerus="yes">
        <source>%1 (and %n more like it)</source>
        <translation>
            <numerusform>%1 (and %n more like it)</numerusform>
            <numerusform>%1 (and %n more like it)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReadOffers</name>
    <message numerus="yes">
        <source>%n file(s) without times are shown together; the numbers in their names can be times.</source>
        <translation>
            <numerusform>%n file without times is shown; the number in its name can be a time.</numerusform>
            <numerusform>%n files without times are shown together; the numbers in their names can be times.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n boundary patch(es) were not read.</source>
        <translation>
            <numerusform>%n boundary patch was not read.</numerusform>
            <numerusform>%n boundary patches were not read.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::app::DataCommands</name>
    <message numerus="yes">
        <source>Skip %n bad row(s)?</source>
        <translation>
            <numerusform>Skip %n bad row?</numerusform>
            <numerusform>Skip %n bad rows?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::app::DocumentCommands</name>
    <message numerus="yes">
        <source>%1: %n data file(s) cannot be found.</source>
        <translation>
            <numerusform>%1: %n data file cannot be found.</numerusform>
            <numerusform>%1: %n data files cannot be found.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n data file(s) cannot be found in %2 either.</source>
        <translation>
            <numerusform>%1: %n data file cannot be found in %2 either.</numerusform>
            <numerusform>%1: %n data files cannot be found in %2 either.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::app::MainMenus</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::app::TextImportDialog</name>
    <message numerus="yes">
        <source>This is one of %n files; the choices hold for all of them.</source>
        <translation>
            <numerusform>This is the only file.</numerusform>
            <numerusform>This is one of %n files; the choices hold for all of them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Of these rows, %n cannot be read, the first in line %1.</source>
        <translation>
            <numerusform>Of these rows, %n cannot be read, the first in line %1.</numerusform>
            <numerusform>Of these rows, %n cannot be read, the first in line %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::dialogs::lineplot::CurveFitSettingsDialog</name>
    <message numerus="yes">
        <source>%n line maps</source>
        <translation>
            <numerusform>%n line map</numerusform>
            <numerusform>%n line maps</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::host::io::DataReader</name>
    <message numerus="yes">
        <source>the reader made no progress for %n second(s)</source>
        <translation>
            <numerusform>the reader made no progress for %n second</numerusform>
            <numerusform>the reader made no progress for %n seconds</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::FieldScene</name>
    <message numerus="yes">
        <source>%1, and %Ln more</source>
        <translation>
            <numerusform>%1, and %Ln more</numerusform>
            <numerusform>%1, and %Ln more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::LineLegend</name>
    <message numerus="yes">
        <source>%Ln more</source>
        <translation>
            <numerusform>%Ln more</numerusform>
            <numerusform>%Ln more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::LineNotes</name>
    <message numerus="yes">
        <source>%Ln point(s) are left out: the %1 is logarithmic, and their values are not positive.</source>
        <translation>
            <numerusform>%Ln point is left out: the %1 is logarithmic, and its value is not positive.</numerusform>
            <numerusform>%Ln points are left out: the %1 is logarithmic, and their values are not positive.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln point(s) are left out: their values are missing or infinite.</source>
        <translation>
            <numerusform>%Ln point is left out: its value is missing or infinite.</numerusform>
            <numerusform>%Ln points are left out: their values are missing or infinite.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::LinePlot</name>
    <message numerus="yes">
        <source>Drawing was cancelled: %Ln line(s) missing</source>
        <translation>
            <numerusform>Drawing was cancelled: %Ln line is missing</numerusform>
            <numerusform>Drawing was cancelled: %Ln lines are missing</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::MapScene</name>
    <message numerus="yes">
        <source>Drawing was cancelled: %Ln zone(s) missing</source>
        <translation>
            <numerusform>Drawing was cancelled: %Ln zone is missing</numerusform>
            <numerusform>Drawing was cancelled: %Ln zones are missing</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Drawing was cancelled: %Ln line(s) missing</source>
        <translation>
            <numerusform>Drawing was cancelled: %Ln line is missing</numerusform>
            <numerusform>Drawing was cancelled: %Ln lines are missing</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corvala::plot::Notes</name>
    <message numerus="yes">
        <source>%Ln zone(s) have no values of &quot;%1&quot;, the variable of contour group %2, and are not colored by it: &quot;%3&quot; is the first.</source>
        <translation>
            <numerusform>%Ln zone has no values of &quot;%1&quot;, the variable of contour group %2, and is not colored by it: &quot;%3&quot;.</numerusform>
            <numerusform>%Ln zones have no values of &quot;%1&quot;, the variable of contour group %2, and are not colored by it: &quot;%3&quot; is the first.</numerusform>
        </translation>
    </message>
</context>
</TS>
