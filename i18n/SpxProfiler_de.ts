<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Scopix</name>
    <message>
        <source>%1 %2 instead of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings of frames (*.xsgframes);;Comma-separated values (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medians of %1 frames of “%2” before, and of %3 frames after. By the test of Mann and Whitney; bold where chance alone would do it less than once in a hundred.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measure Cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What does each part of the scene cost? It is drawn part by part to find out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Areas: time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Areas: triangles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Areas: memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Areas: bodies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the areas tell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cost of each branch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time, ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>±, ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processor, ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graphics card, ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw calls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory, kB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cost cannot be told: no scene is open; open one first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measuring: %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The whole takes %1 ± %2, its parts drawn alone %3 together; an empty picture takes %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing conspicuous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was not drawn alone: it is a small part of the whole.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without “%1” a picture would take %2 instead of %3, and look the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without “%1” a picture would take %2 instead of %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cost cannot be told: the scene has changed meanwhile; stop what moves and measure again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cost cannot be told: the view has moved meanwhile; let it stand still and measure again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each frame that is drawn comes here as a bar: turn the view.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frames: longest %2, mean %3, 95 % within %4, 99 % within %5; %6 over %7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This frame took %1, its neighbours %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing else was different</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording “%1” cannot be continued: %2. What was written so far can be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stand still and look at what was (Space)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write what comes to a file, until this is chosen again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look at a recording, or at a table of comma-separated values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save what is here as a recording, or as comma-separated values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare what is here with a recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back to the Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Budget of a frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a frame may take</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter or formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter or formula, as in rate(Triangles)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A counter, or a formula such as Triangles / DrawCalls, rate(x) or mean(x, 2s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be shown: there are %2 curves already; take one out first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be shown: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>▔ Gpu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take “%1” out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2: take out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; recording, %1 frames so far</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a frame to see what was different about it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. Choose another place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames (*.xsgframes *.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2. Choose a recording of frames.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Costs as areas</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
