<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Scopix</name>
    <message>
        <source>%1 (scopix --help lists the options.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Without a window (scopix COMMAND --help says more; a file of such a name is ./NAME):
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inspects and tunes the 3D scene or model in FILE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load this plug-in too; may be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use this profile in this session.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select this field; NODE is a node's name or type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a picture of the window and end; needs no display.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a picture of the 3D view alone and end; needs no display.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How large that picture is, in pixels; 1920x1080 without it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave its ground transparent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write NUMBER pictures of one full turn instead: OUT-01.png and so on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attach to a running program; may be left out: the only one. In place of FILE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start PROGRAM and attach to it; what follows goes to it. In place of FILE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the running programs that can be attached to, and end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write what FILE holds to this file, as its ending says, and end; needs no display.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End when everything asked for is done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the performance counters on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this text and end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”, a file that the extensions need, cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an exception without a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an exception of an unknown type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program that this node was in is not attached any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was made for version %1 of the plug-in interface, this program has version %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was made for Qt %1, this program runs with Qt %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its initialisation failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>such a file holds no more than 4 GiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>such a file holds no more than 2147483647 points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>materials, but for the colours of points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>materials</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>such a file holds no more than 4294967295 triangles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program is just changing the settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no text to paste.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text holds no nodes that can be pasted: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no nodes in the text to paste.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has been changed meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>scopix: There is no display to open a window on; --screenshot OUT.png writes a picture of the window without one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--launch expects a program and its arguments, and nothing was given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene or model to open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--select expects NODE.FIELD, such as Material.transparency, and not “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--size expects WIDTHxHEIGHT, such as 1920x1080, and not “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--turntable expects a number of pictures, 2 or more, and not “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 says how a picture is made, and --picture OUT.png is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--save writes what FILE holds, and no FILE was given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--save opens no window, so that --%1 cannot be given with it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one FILE can be opened, and %1 were given, the second being “%2”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 expects %2, and nothing was given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FILE expects the path of a scene or model, and nothing was given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Either FILE or one running program can be shown, and more than one of them was given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: The patch cannot be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The patch “%1” cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, or that of another kind of model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder, and a file was expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no file with an end, and one was expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its name was expected to end in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be read (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is empty, and a scene or model was expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is incomplete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its notes are damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>machine type %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was built for another kind of machine (%1), this program runs on %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>user %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its version note is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its code crashed while it was tried in a process of its own (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was tried in a process of its own and did not finish loading within %1 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>profile %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“all” or a list of names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>each name in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be an object in braces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“name” of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file must hold one object in braces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no binary glTF file, which starts with the four letters “glTF”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it ends after %1 of the %2 bytes that its header announces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its JSON text is broken at line %1, column %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its “asset” was expected to name a version of glTF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its version of glTF is %1, and 1.0 or 2.0 was expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no file of the kind that its ending, .%1, says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it asks for more memory than a file of its size can need</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds no model that can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a whole model (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds no mesh, and at least one was expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it asks for more memory than there is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading it failed (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no PLY file, which starts with the line “ply”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its line “%1” should end in a count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its header does not end in the line “end_header”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes follow its header, which announces at least %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lines follow its header, which announces %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be kept as a default: new nodes have no other nodes of the scene in their fields.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value of “%1” cannot be kept as a default: its text is longer than %2 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more than %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be read to its end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its name was expected to end in .%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>grey, alpha</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RGBA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed “%1” since it was opened or saved here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replacing it loses their changes; reloading it loses yours; reloading and reapplying keeps those of yours that still fit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replacing it loses their changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload and Re&amp;apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Scopix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Scopix %1&lt;/b&gt;&lt;p&gt;Opens a 3D scene and lets you click anything, tune any value live, undo everything and see what it costs.&lt;/p&gt;&lt;p&gt;Free under the MIT licence, by the Scopix authors.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version, system, plug-ins and libraries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy for a Bug Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
%2, process %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program that can be attached to is running.
scopix --launch PROGRAM starts one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attach to a Running Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Attach</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be written to “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved edits would not survive a crash. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values &amp;Before the Edits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before the edits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene shows the values from when it was opened or last saved; press B in the view to see the present ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No value has been edited since the scene was opened or saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No value of what is selected has been edited since the scene was opened or saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scenes and models (%1);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading “%1” was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No node is selected: select one in the tree or in the view first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Branch As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scenes (*.%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The branch “%1” cannot be written to “%2”: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>something in it is of a kind that cannot be copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was saved as “%2”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, was %2, is %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter the changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes back the ticked changes, or those that are selected, as one step (Del).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the values from before the ticked changes, or before all of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tick All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Untick All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing differs from %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 change from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 changes from %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %L1 of them ticked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes that could not be taken over: %1; the first: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of these changes is one of a value that could be shown as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be set to “%2”: it is no value of a %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut across the x axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut across the y axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut across the z axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut across the line of sight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the plane cuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the other side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the whole scene again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is called so.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Anything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An act, node, field or setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds no performance counters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be put back: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no library (no ELF file)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was built for another kind of machine (another word size)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was built for another kind of machine (another byte order)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no library (an ELF file of another type)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no library (its header is damaged)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ignored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not ignored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>: %1 → %2 values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>: %1 values changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no longer ignored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no longer default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>follows another field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset to Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset %1.%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>after %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>elsewhere in its group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take over %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take Over %1 Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” before the last edits; choose More ▸ Compare Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take Over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a scene or model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None Yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear This List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find in the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Finds nodes by name, type or text; also &lt;b&gt;type:Light&lt;/b&gt;, &lt;b&gt;name:door&lt;/b&gt;, &lt;b&gt;field:radius&lt;/b&gt;, &lt;b&gt;value:0.5&lt;/b&gt;, &lt;b&gt;transparency&amp;gt;0&lt;/b&gt;, &lt;b&gt;translation.x=1&lt;/b&gt;, &lt;b&gt;changed&lt;/b&gt;, &lt;b&gt;connected&lt;/b&gt;, &lt;b&gt;ignored&lt;/b&gt;, &lt;b&gt;shared&lt;/b&gt;. A minus sign before a term means “not”, a bar between terms “or”.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous (Shift+Enter)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next (Enter)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only what is found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only what is found, and what it is in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no entry point “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handles Along Their &amp;Own Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;cale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no handles for “%1”: it is not in sight.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be moved: it has no place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be turned: it has no direction.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be scaled: it has no size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The handles change %1 nodes together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The handles change %1 parts together; dragging puts a Transform above %2 of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dragging a handle puts a Transform above “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The handles change “%1”, which moves “%2”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put a Transform above “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put a Transform above each of %1 parts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>own axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be edited while the values before the edits show; press B in the view to see the present ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fold the &amp;Bottom Area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program ended or hung while it was loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file of the performance counters, “%1”, is damaged: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A good copy of it was kept on %1. The damaged file is kept, too, when that is put back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Put Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Leave As It Is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no profile named “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The extension “%1” failed in %2(): %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The extension “%1” failed when it was to be shown or hidden: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plug-in failed when it was to add entries to a menu: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As S&amp;hipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All keys as in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All keys as in…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find an act or a key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acts and their keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Act</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has this key, and loses it when you set it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the owner of %1 cannot be found out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 belongs to %2, and only plug-ins of yours and of the administrator are loaded; copy it to a folder of yours if you trust it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every user may write to %1, so that it may be anybody's; take that permission away, or copy it to a folder of yours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>other users, those of its group, may write to %1; take that permission away, or copy it to a folder of yours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its folder “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;ttach to a Program…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Detach</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take My Changes &amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Look at the Selected Node in the Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” shows no picture here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attached to “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” does not tell what is under a place of its picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected node has no extent that could be looked at.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has not answered for 2 seconds; what it showed last stays, and cannot be edited before it answers again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept for when you attach to “%1” again: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply %1 of the last run of “%2” again?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Leave It as It Is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A change of the last run does not fit here any more and is left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written to the program: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written to the program: %1; the console lists those that do not fit any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be started: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” ended before it could be attached to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” runs and offers nothing to attach to: it has to use OpenSceneGraph as a shared library, or a live server of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than one program can be attached to, so that the number of one has to be given: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program that can be attached to is running; scopix --launch PROGRAM starts one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program “%1” that can be attached to is running; scopix --list-live lists those that are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture of the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply changes again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take changes back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” takes whole numbers only, and is as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be changed: “%2” only lets it be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” refused the value of “%2”: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” took another value for “%2” than was asked for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only nodes of “%1” itself can stand in it, and their names are among their fields.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” refused to change the children of “%2”: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has more children than can be shown: those after the first %L2 are left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has no “%2” any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” came with a value that is none of its kind, and is not shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have detached from “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be edited: “%2” is not attached any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be edited before “%2” answers again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be edited: it does not exist in “%2” any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The nodes of “%1” can be neither moved nor removed, since the program does not offer that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a node: its fields are listed here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is open. Open a scene or model, or drop one here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Older steps were dropped to keep within %1 MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Picture of the &amp;Window…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find in the Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handles in the 3D View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View &amp;Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wireframe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tatistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns of the T&amp;ree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Moving in the 3D View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moving in the 3D View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn: drag with the left button.
Move: drag with the middle or right button.
Nearer, farther: turn the wheel; the place under the pointer stays.
Select: click; once more for the shape, then its material. Ctrl adds, Shift and dragging selects all in a rectangle, Alt lists what is under the pointer. Esc goes up.
See all of the selected part: double-click, or F.
See everything: A. As at first, through the scene's own camera where it has one: Home.
By keys: the arrows turn, with Shift they move; plus and minus come nearer and go away.
Select by keys: Ctrl and the arrows move a crosshair, Enter clicks there.
Measure: M.
From the front, the right, the top: 1, 3, 7; orthographic: 5. Walk: Shift+W.
Move, turn, scale what is selected: W, E, R, then drag a handle, or X, Y or Z and a number; select again: Q. Shift is finer, Ctrl snaps.
Hide or show what is selected: H, show all: Shift+H, show nothing else: /.
Find a node: Ctrl+F.
Edges only: F3. What a picture costs: F4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help on What &amp;Is Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Scopix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page on nodes cannot be shown: it is not installed beside the program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (deleted)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing in the scene has the name or the type “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”, a %2, has no field “%3”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click something in the view or in the tree: its values appear here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Along x, y, z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Box of the selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click the second point.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click two points. Ctrl+C copies, Esc ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the program that reads models, “%1”, cannot be started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading it takes too long, and was given up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it contradicts itself, and reading it was given up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what was read of it could not be written to “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Plug-ins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No plug-in is loaded, so there are no editors and no tools. Plug-ins were looked for in these folders:

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) copied.</source>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste %1 Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only nodes that were copied in this window, in this scene, can be pasted as shared ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share %1 Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Drop %n Node(s)</source>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>“%1” cannot be hidden: it only sets something for other nodes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only what is selected is seen; press / again to see the rest.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert &amp;File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve Branch As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put A&amp;bove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put a %1 Above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Another…</source>
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
        <source>Paste as &amp;Shared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ungroup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make Uni&amp;que</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Out of Its Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Into the Group Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hide or Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Isolate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lock or Unlock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make Hiding Pe&amp;rmanent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put a Node Above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find Anything…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences ▸ %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>field of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>node, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patches (*.%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Changes as Patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no change that could be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved the changes as “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply Patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: %2 changes applied, %3 were so already, %4 did not fit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What fits is applied, and can be undone as one step.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no change that could be copied so.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The changes were copied as a patch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The changes were copied as C++.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The changed values were copied as nodes of a scene.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;Picture…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;Turntable…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Turntable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures (*.%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n of these pictures are there already in “%1”. Replace them?</source>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled; no picture was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled; of %1 pictures, %2 were written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1 pictures, the first being “%2”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Transparent ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width in pixels:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Height in pixels:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pictures of one turn:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing the picture…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A picture of %1 × %2 pixels cannot be made: each side may have 1 to %3, and all of it %L4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pictures of one turn cannot be made: choose 2 to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture “%1” cannot be transparent, which .%2 files cannot hold: choose .png.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All clips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop, as It Was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One Key &amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One Key &amp;Ahead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Half as &amp;Fast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Twice as Fast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back&amp;wards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Again and A&amp;gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which clip is played</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time in the clip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How fast it is played; below 0 backwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 / %2 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the program ended the last time while it was being loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; View &gt; Tools &gt; Try Again loads it all the same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder, and a plug-in library was expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file may not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no library that this program can load (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its loadPlugin failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its loadPlugin returned no plug-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in “%1” was not loaded: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it says that it cannot be used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its load() failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in “%1” failed in %2(): %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was made for the C++ library %1, this program uses %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set aside</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its code ended the process in which it was tried</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reason</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One that was set aside is loaded again by View ▸ Tools ▸ Try Again. Which tools are active is a profile’s choice: View ▸ Profile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is called so. Try another word.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset This Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, and the shipped profiles are used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profiles file “%1” cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is larger than any profiles file can be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profiles file “%1” is damaged: %2; %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profiles file “%1” cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was kept as “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it could not be renamed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a profile needs a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name “%1” has letters that a profile's name cannot have (Latin-1 only)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there already is a profile named “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The active profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extensions that the profile controls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Editors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes a copy of the active profile, which stands in bold.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“Default” controls every extension and stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Manage Profiles…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you have changed since the scene was opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wr&amp;ite Patch…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy as Patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as C&amp;++</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as Sce&amp;ne</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare &amp;With…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare A&amp;gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back to What You Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start Again from Here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Changes as &amp;Patch…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App&amp;ly Patch…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload and Reappl&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the file as it is by now, and makes your changes once more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the scene as it was opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>your changes to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare With</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes ●</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene “%1” cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written since by something else than an edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>moved to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The order of what it holds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be what %2 was: it is no value of a %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be reverted: something else than an edit has changed its number of values; open the file again for what it holds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revert %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revert %1 Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing of it can be seen: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opened “%1”, of which nothing can be seen: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opened “%1”; the console says what is left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opened “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” does not exist any more and was removed from the list of recent files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be exported to: its name must end in %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not saved: another program has changed it since it was opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without saving, they are lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last session ended without saving its changes to “%1”. Recover them?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They were kept on %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recovered the unsaved changes to “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last changes to “%1” could not be recovered: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is locked, and cannot be edited before it is unlocked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” stands in “%2”, which is locked, and cannot be edited before that is unlocked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Places</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tree was unfolded by %1 levels only, as all of them would have more than %L2 rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shapes: %L1, of them out of sight: %L2
Triangles: %L3, draw calls: %L4
Uploaded bytes: %L5, processor: %L6 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no shapes that are drawn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its draw styles make all of it invisible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all of it is fully transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all of it is too large, too small or too far away to be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n more behind</source>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> pt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3D View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mouse as in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which buttons turn, move and come nearer. The left button selects in each, and the wheel comes nearer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scopix: left turns, middle and right move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blender: middle turns, Shift+middle moves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Godot: middle and right turn, Shift+middle moves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maya: Alt and left, middle, right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory and Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory for undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Older steps are dropped where they would need more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory for the pictures of a scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures are brought down to fit; holds for what is opened from now on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle of edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faces of a model without normals have an edge between them above this angle; holds for what is opened from now on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep unsaved edits after a pause of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They are kept beside your settings, and offered again after a crash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keyboard shortcuts presets Blender Godot Maya</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>extensions tools loaded refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file “%1” cannot be changed: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no temporary file can be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: The file cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every kind of node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A lighthouse by the sea</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A crate with a picture on it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A knot, for printing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A colour at each vertex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you open appears here. Files can be dropped anywhere in the window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Look Around in the Welcome Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;End the Tour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the Scene’s &amp;Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorted by &amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most T&amp;riangles First</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most Me&amp;mory First</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most Pla&amp;ces First</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a part of the name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Types of nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” failed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be undone and is no longer in the history: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be redone and is no longer in the history: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A step of the history went with “%1”, which no longer exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 steps of the history went with “%2”, which no longer exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the list has another length by now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing could be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, and in %L2 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look &amp;From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B&amp;ottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Orthographic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wal&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look Throu&amp;gh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep This View as a &amp;Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>G&amp;rid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;xes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation C&amp;ube</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The view cannot be kept: what is open is a single node, and has no place for a camera; put it into a group first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep a View as a Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This view is kept as the camera “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Cameras in This Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;hading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;one Mapping</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full, with &amp;Edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Normals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Texture Coordinates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Overdraw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;None: What Is Brighter than White Is White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neu&amp;tral: Bright Light Is Compressed, Colours Stay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filmic: All Is Compressed, as on Film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Box with Sizes around the Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;What a Click Would Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clipping Plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Measure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Walking: W A S D or arrows, drag to look around, Esc ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the &amp;Tour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Five steps through this window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click anything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click something in the 3D view. Drag to turn, drag with the right button to move, turn the wheel to come nearer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See where it stands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tree shows the whole scene. Choose another node in it; Ctrl+F finds one by its name, type or value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tune it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Here are the values of what is selected. Change one: drag a number, or type one; the picture follows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Z takes the change back, bit by bit. One gesture is one step.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find everything else</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+K finds every act, node, field and setting by its name, F1 explains what is selected. Save with Ctrl+S, or export for another program from the File menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the root of the scene, and has to stay where it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be duplicated: something in it is of a kind that cannot be copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no group, and cannot be ungrouped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be put below itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put %1 Above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stands in one place only, and is its own already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be made unique: something in it is of a kind that cannot be copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make Unique</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be put into %1, which is no group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A node cannot be called “%1”: names can have the letters of western European languages only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename %1 to “%2”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be copied: something in it is of a kind that cannot be copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the first one in its group already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the last one in its group already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stands in the root of the scene, out of which nothing can be moved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no group before %1 that it could be moved into.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is hidden that could be hidden for good.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide %1 for Good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide %1 Nodes for Good</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
