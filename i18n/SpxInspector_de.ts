<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Scopix</name>
    <message>
        <source>red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>normal x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>normal y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>normal z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>distance from the origin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for this change; close other programs or change fewer rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory to change so many rows; select fewer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for %1 more rows; add fewer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list was changed by somebody else meanwhile, so nothing was written; try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changing %1 rows…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory to remember so many rows for undo; delete fewer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory to duplicate so many rows; select fewer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for %1 rows; close other programs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>y from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>z from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>y to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>z to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv *.tsv *.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has %1 columns and not %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>holds “%1”, which is no value of this list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2, %3 channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at least %1, at most %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>radians, shown in degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>radians</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>metres, where the scene has no other scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find This Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use as My Default for &amp;New Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For&amp;get My Default for New Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help on %1</source>
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
        <source>This cell is “%1” now. Enter writes what you typed, Esc keeps “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, row %2, %3: %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1 was removed while you typed in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;HSV, sRGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue in degrees, saturation and value, of sRGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>He&amp;x, sRGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hexadecimal, sRGB, as in #1a6090</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Linear RGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear light, from 0 to 1; sRGB is stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;RGB, sRGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sRGB, from 0 to 1, as stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>colour picker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as hexadecimal text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, sRGB. A click opens the colour picker.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, sRGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no colour: write one as in #1a6090.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node, field or type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields that it can follow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (no name)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps this panel in a dock of its own, whatever is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the values from when the scene was opened or last saved. Nothing can be edited meanwhile. In the view and in the tree, B does this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing here has been edited since the scene was opened or saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter the fields by name, meaning, type or value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the fields whose name, meaning, type or value has these words.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only changed fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the fields only that do not have their default value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than %L1 nodes are selected; select fewer to edit what they share.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An edit changes all of them. Where they differ, it says “mixed”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 nodes: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select %1, which holds it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the %1 that counts here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cells selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2, mean %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 NaN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>choose a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to select it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to open it in the Field Editor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the line is for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste as New &amp;Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Cells or Delete Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lear Cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calc&amp;ulate…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill &amp;Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill &amp;Series</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert Row Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Row Behind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Du&amp;plicate Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delet&amp;e Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Rows &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Rows Do&amp;wn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Whole Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Whole Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go to Row…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort Rows Upwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort Rows Downwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show All in the List’s Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort Values Upwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort Values Downwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read CSV…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write CSV…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to De&amp;fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;gnore This List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Wide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit Column Widths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> · ignored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> · connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> · %1 shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x*2, x+row*0.1, clamp(x,0,1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x &gt; 3, nan, duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number or text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a row number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text for all selected cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a part of the text, duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A formula for every selected cell: x is the cell, row its row, n the number of rows, and c1, c2, … are the cells of its row. Enter writes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows only the rows for which this holds: the columns by their headings, row, n; nan, inf or duplicates; nothing shows all rows. Enter applies.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goes to the next cell that holds this. Enter goes on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goes to this row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written to every selected cell by Enter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows only the rows that hold this text; nothing shows all rows. Enter applies.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bits that have no name; they stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>move, turn, scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row %1, column %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sheared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>flat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>perspective</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It shears: its axes are not at right angles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It squeezes space flat, or has numbers that are not finite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its last column is not 0 0 0 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, so it cannot be shown as moving, turning and scaling.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Only C&amp;hanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Pat&amp;h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as C+&amp;+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset All to Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use as My Defaults for &amp;New Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find All of Type %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be pasted: it has no values for the fields of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The result is not a number that this field can hold.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter the Fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An&amp;gles in Degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marks the rows that differ from those of the selected node, or of another pinned panel that compares.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select one other node to compare with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was removed from the scene and no longer exists; close this panel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>axis, angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Euler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quaternion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed elsewhere meanwhile: take that value, or keep yours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follows %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignored: takes no part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animated: %1 at rest, which is what is saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed: not the default.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the compared value of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differs: takes %1, the value of the node that it is compared with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take the New Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset to Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;onnect to a Field…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as &amp;Scene Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be pasted: it is no value for %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These nodes share no field.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This node has no fields.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No field passes the filter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>So many cells do not fit into the clipboard; write them to a file with “Write CSV…”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying %1 rows…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was pasted, since the clipboard holds no text; copy cells or text first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The block was not pasted, since it has %1 columns and only %2 are left from there on; select a column further left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The block was not pasted, since it is longer than the rows that are shown; show all rows in the list's order first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rows were not inserted, since only whole rows of %1 columns can be, into a list in its own order; paste them over cells instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was pasted, since “%1” in row %2, column %3 of the copied block is no value that this list can hold; correct it where it was copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was not written to row %2, %3, since it is no value that a list of type %4 can hold; type another or press Esc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A series needs at least two selected rows of numbers; select them and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour of the Selected Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This list has no default value, since it belongs to no node that can be made anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows cannot be added or moved while they are sorted or filtered; show all rows in the list's order first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be written: %2; choose another file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its name was expected to end in .%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was not written, since the list was changed meanwhile; try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be read: it is no regular file; choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be read: %2; choose a file that you may read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was not read, since line %2 %3; correct the file and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, a list of %2 values, type %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorting the rows…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorting the values…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filtering the rows…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching for duplicates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is in no cell that is shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no row that is shown; type a number from 0 to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several lines: click the name and edit them in the Field Editor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no value for %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose “Open Wide” in the menu of a list’s table to see the list here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
