<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="qps" sourcelanguage="en">
<context>
    <name>Scopix</name>
    <message>
        <source>opens a model</source>
        <translation>[öpéñš à mödél ~~~~~]</translation>
    </message>
    <message>
        <source>opens a scene and shows one of its fields</source>
        <translation>[öpéñš à šçéñé àñd šĥöwš öñé öf îţš fîéldš ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>draws it without a window</source>
        <translation>[dŕàwš îţ wîţĥöûţ à wîñdöw ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0 where all that was asked for is done, 1 where something is not</source>
        <translation>[0 wĥéŕé àll ţĥàţ wàš àšķéd föŕ îš döñé, 1 wĥéŕé šöméţĥîñĝ îš ñöţ ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Write JSON instead of text.</source>
        <translation>[Wŕîţé ĴŠÖÑ îñšţéàd öf ţéxţ. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Write this file and leave FILE as it is; "-" is standard output.</source>
        <translation>[Wŕîţé ţĥîš fîlé àñd léàvé FÎLÉ àš îţ îš; "-" îš šţàñdàŕd öûţpûţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Prints the tree of a scene or model, a node with its fields, or the value of a field.</source>
        <translation>[Pŕîñţš ţĥé ţŕéé öf à šçéñé öŕ mödél, à ñödé wîţĥ îţš fîéldš, öŕ ţĥé vàlûé öf à fîéld. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the tree: names, types, and where a node stands again</source>
        <translation>[ţĥé ţŕéé: ñàméš, ţýpéš, àñd wĥéŕé à ñödé šţàñdš àĝàîñ ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the fields of one node, and what is below it</source>
        <translation>[ţĥé fîéldš öf öñé ñödé, àñd wĥàţ îš bélöw îţ ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>one value; without "/" wherever the node stands</source>
        <translation>[öñé vàlûé; wîţĥöûţ "/" wĥéŕévéŕ ţĥé ñödé šţàñdš ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>everything that a scene file holds</source>
        <translation>[évéŕýţĥîñĝ ţĥàţ à šçéñé fîlé ĥöldš ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Gives fields values and saves. A value is what a scene file has, or a formula with units such as 90deg, 30 cm or x*2, where x is the present value; what each field measures and takes is on the page of nodes. A number without a unit is in radians, metres or seconds. Where one of them cannot be set, nothing is saved.</source>
        <translation>[Ĝîvéš fîéldš vàlûéš àñd šàvéš. À vàlûé îš wĥàţ à šçéñé fîlé ĥàš, öŕ à föŕmûlà wîţĥ ûñîţš šûçĥ àš 90déĝ, 30 çm öŕ x*2, wĥéŕé x îš ţĥé pŕéšéñţ vàlûé; wĥàţ éàçĥ fîéld méàšûŕéš àñd ţàķéš îš öñ ţĥé pàĝé öf ñödéš. À ñûmbéŕ wîţĥöûţ à ûñîţ îš îñ ŕàdîàñš, méţŕéš öŕ šéçöñdš. Wĥéŕé öñé öf ţĥém çàññöţ bé šéţ, ñöţĥîñĝ îš šàvéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>saves lamp.xsg</source>
        <translation>[šàvéš làmp.xšĝ ~~~~~~]</translation>
    </message>
    <message>
        <source>one after the other</source>
        <translation>[öñé àfţéŕ ţĥé öţĥéŕ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>writes the scene to standard output</source>
        <translation>[wŕîţéš ţĥé šçéñé ţö šţàñdàŕd öûţpûţ ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Prints the paths of the nodes that a query finds; the query is that of the line above the scene tree.</source>
        <translation>[Pŕîñţš ţĥé pàţĥš öf ţĥé ñödéš ţĥàţ à qûéŕý fîñdš; ţĥé qûéŕý îš ţĥàţ öf ţĥé lîñé àbövé ţĥé šçéñé ţŕéé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>all lights</source>
        <translation>[àll lîĝĥţš ~~~~]</translation>
    </message>
    <message>
        <source>what is transparent and not called bulb</source>
        <translation>[wĥàţ îš ţŕàñšpàŕéñţ àñd ñöţ çàlléd bûlb ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0 where something was found, 1 where not</source>
        <translation>[0 wĥéŕé šöméţĥîñĝ wàš föûñd, 1 wĥéŕé ñöţ ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Prints what makes the scene in A the one in B, as a patch.</source>
        <translation>[Pŕîñţš wĥàţ màķéš ţĥé šçéñé îñ À ţĥé öñé îñ B, àš à pàţçĥ. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>one line a change</source>
        <translation>[öñé lîñé à çĥàñĝé ~~~~~~~]</translation>
    </message>
    <message>
        <source>keeps it for scopix apply</source>
        <translation>[ķéépš îţ föŕ šçöpîx àpplý ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0 where they are the same, 1 where they differ</source>
        <translation>[0 wĥéŕé ţĥéý àŕé ţĥé šàmé, 1 wĥéŕé ţĥéý dîfféŕ ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Makes the changes of a patch in a scene and saves it. What does not fit the scene is listed and the rest is applied; applied once more, a patch changes nothing.</source>
        <translation>[Màķéš ţĥé çĥàñĝéš öf à pàţçĥ îñ à šçéñé àñd šàvéš îţ. Wĥàţ döéš ñöţ fîţ ţĥé šçéñé îš lîšţéd àñd ţĥé ŕéšţ îš àpplîéd; àpplîéd öñçé möŕé, à pàţçĥ çĥàñĝéš ñöţĥîñĝ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>leaves lamp.xsg as it is</source>
        <translation>[léàvéš làmp.xšĝ àš îţ îš ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0 where all of it fits, 1 where some does not</source>
        <translation>[0 wĥéŕé àll öf îţ fîţš, 1 wĥéŕé šömé döéš ñöţ ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Reads a scene or model and writes it as a file of the kind that the ending of OUT says: .xsg, .glb, .gltf, .obj, .ply or .stl. What such a file cannot keep is said on standard error.</source>
        <translation>[Ŕéàdš à šçéñé öŕ mödél àñd wŕîţéš îţ àš à fîlé öf ţĥé ķîñd ţĥàţ ţĥé éñdîñĝ öf ÖÛŢ šàýš: .xšĝ, .ĝlb, .ĝlţf, .öbĵ, .plý öŕ .šţl. Wĥàţ šûçĥ à fîlé çàññöţ ķéép îš šàîd öñ šţàñdàŕd éŕŕöŕ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a model becomes a scene</source>
        <translation>[à mödél béçöméš à šçéñé ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Draws a scene or model into a picture file, such as .png or .jpg; needs no display.</source>
        <translation>[Dŕàwš à šçéñé öŕ mödél îñţö à pîçţûŕé fîlé, šûçĥ àš .pñĝ öŕ .ĵpĝ; ñéédš ñö dîšplàý. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The size in pixels; 800x600 at first.</source>
        <translation>[Ţĥé šîžé îñ pîxélš; 800x600 àţ fîŕšţ. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The path of a camera of the scene, all, front, back, left, right, top or bottom. At first the first camera of the scene, or all.</source>
        <translation>[Ţĥé pàţĥ öf à çàméŕà öf ţĥé šçéñé, àll, fŕöñţ, bàçķ, léfţ, ŕîĝĥţ, ţöp öŕ böţţöm. Àţ fîŕšţ ţĥé fîŕšţ çàméŕà öf ţĥé šçéñé, öŕ àll. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Draws N pictures, OUT-0001 and so on, 1/30 of a second apart.</source>
        <translation>[Dŕàwš Ñ pîçţûŕéš, ÖÛŢ-0001 àñd šö öñ, 1/30 öf à šéçöñd àpàŕţ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Three numbers from 0 to 1; "0 0 0" is black.</source>
        <translation>[Ţĥŕéé ñûmbéŕš fŕöm 0 ţö 1; "0 0 0" îš blàçķ. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>How light that is brighter than white comes into the picture: none, neutral or filmic; neutral at first.</source>
        <translation>[Ĥöw lîĝĥţ ţĥàţ îš bŕîĝĥţéŕ ţĥàñ wĥîţé çöméš îñţö ţĥé pîçţûŕé: ñöñé, ñéûţŕàl öŕ fîlmîç; ñéûţŕàl àţ fîŕšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>as the scene's camera sees it</source>
        <translation>[àš ţĥé šçéñé'š çàméŕà šééš îţ ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>everything, from above</source>
        <translation>[évéŕýţĥîñĝ, fŕöm àbövé ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>turn-0001.png to turn-0003.png</source>
        <translation>[ţûŕñ-0001.pñĝ ţö ţûŕñ-0003.pñĝ ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Opens files and reports what of them is dropped, missing or odd.</source>
        <translation>[Öpéñš fîléš àñd ŕépöŕţš wĥàţ öf ţĥém îš dŕöppéd, mîššîñĝ öŕ ödd. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a line for each thing that it notices</source>
        <translation>[à lîñé föŕ éàçĥ ţĥîñĝ ţĥàţ îţ ñöţîçéš ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the same for other programs</source>
        <translation>[ţĥé šàmé föŕ öţĥéŕ pŕöĝŕàmš ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0 where there is nothing to report, 1 where there is something, 2 where a file cannot be read</source>
        <translation>[0 wĥéŕé ţĥéŕé îš ñöţĥîñĝ ţö ŕépöŕţ, 1 wĥéŕé ţĥéŕé îš šöméţĥîñĝ, 2 wĥéŕé à fîlé çàññöţ bé ŕéàd ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Counts nodes, shapes, triangles, pictures and memory of a scene, and of each branch below its root or below PATH.</source>
        <translation>[Çöûñţš ñödéš, šĥàpéš, ţŕîàñĝléš, pîçţûŕéš àñd mémöŕý öf à šçéñé, àñd öf éàçĥ bŕàñçĥ bélöw îţš ŕööţ öŕ bélöw PÀŢĤ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a table</source>
        <translation>[à ţàblé ~~~]</translation>
    </message>
    <message>
        <source>Draws a scene or model and prints what a frame costs; needs no display. The first ten frames are not counted. With --against, medians are compared by the test of Mann and Whitney: slower is what takes 5 % longer and would be so by chance less than once in a hundred.</source>
        <translation>[Dŕàwš à šçéñé öŕ mödél àñd pŕîñţš wĥàţ à fŕàmé çöšţš; ñéédš ñö dîšplàý. Ţĥé fîŕšţ ţéñ fŕàméš àŕé ñöţ çöûñţéd. Wîţĥ --àĝàîñšţ, médîàñš àŕé çömpàŕéd bý ţĥé ţéšţ öf Màññ àñd Wĥîţñéý: šlöwéŕ îš wĥàţ ţàķéš 5 % löñĝéŕ àñd wöûld bé šö bý çĥàñçé léšš ţĥàñ öñçé îñ à ĥûñdŕéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>How many frames, from 1 to 3000; 120 at first.</source>
        <translation>[Ĥöw màñý fŕàméš, fŕöm 1 ţö 3000; 120 àţ fîŕšţ. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The size in pixels; 800x600 at first, or that of OLD.</source>
        <translation>[Ţĥé šîžé îñ pîxélš; 800x600 àţ fîŕšţ, öŕ ţĥàţ öf ÖLD. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Compares with this recording.</source>
        <translation>[Çömpàŕéš wîţĥ ţĥîš ŕéçöŕdîñĝ. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Keeps the frames as a recording.</source>
        <translation>[Ķéépš ţĥé fŕàméš àš à ŕéçöŕdîñĝ. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a table: phases, graphics card, draw calls and more</source>
        <translation>[à ţàblé: pĥàšéš, ĝŕàpĥîçš çàŕd, dŕàw çàllš àñd möŕé ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>keeps them for a comparison</source>
        <translation>[ķéépš ţĥém föŕ à çömpàŕîšöñ ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>whether it became slower</source>
        <translation>[wĥéţĥéŕ îţ béçàmé šlöwéŕ ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0, 1 where it is slower than OLD</source>
        <translation>[0, 1 wĥéŕé îţ îš šlöwéŕ ţĥàñ ÖLD ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>[Ûšàĝé: %1 ~~~~]</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[[öpţîöñš] ~~~~]</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>[Àŕĝûméñţš: ~~~~]</translation>
    </message>
    <message>
        <source>%1 (scopix --help lists the options.)</source>
        <translation>[%1 (šçöpîx --ĥélp lîšţš ţĥé öpţîöñš.) ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Without a window (scopix COMMAND --help says more; a file of such a name is ./NAME):
%1</source>
        <translation>[Wîţĥöûţ à wîñdöw (šçöpîx ÇÖMMÀÑD --ĥélp šàýš möŕé; à fîlé öf šûçĥ à ñàmé îš ./ÑÀMÉ):
%1 ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Inspects and tunes the 3D scene or model in FILE; several get a tab each.</source>
        <translation>[Îñšpéçţš àñd ţûñéš ţĥé 3D šçéñé öŕ mödél îñ FÎLÉ; šévéŕàl ĝéţ à ţàb éàçĥ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Load this plug-in too; may be given several times.</source>
        <translation>[Löàd ţĥîš plûĝ-îñ ţöö; màý bé ĝîvéñ šévéŕàl ţîméš. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Use this profile in this session.</source>
        <translation>[Ûšé ţĥîš pŕöfîlé îñ ţĥîš šéššîöñ. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Select this field; NODE is a node's name or type.</source>
        <translation>[Šéléçţ ţĥîš fîéld; ÑÖDÉ îš à ñödé'š ñàmé öŕ ţýpé. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Write a picture of the window and end; needs no display.</source>
        <translation>[Wŕîţé à pîçţûŕé öf ţĥé wîñdöw àñd éñd; ñéédš ñö dîšplàý. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Write a picture of the 3D view alone and end; needs no display.</source>
        <translation>[Wŕîţé à pîçţûŕé öf ţĥé 3D vîéw àlöñé àñd éñd; ñéédš ñö dîšplàý. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>How large that picture is, in pixels; 1920x1080 without it.</source>
        <translation>[Ĥöw làŕĝé ţĥàţ pîçţûŕé îš, îñ pîxélš; 1920x1080 wîţĥöûţ îţ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Leave its ground transparent.</source>
        <translation>[Léàvé îţš ĝŕöûñd ţŕàñšpàŕéñţ. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Write NUMBER pictures of one full turn instead: OUT-01.png and so on.</source>
        <translation>[Wŕîţé ÑÛMBÉŔ pîçţûŕéš öf öñé fûll ţûŕñ îñšţéàd: ÖÛŢ-01.pñĝ àñd šö öñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>How bright light comes into the view and its pictures: none, neutral or filmic. For this session; the menu remembers its choice.</source>
        <translation>[Ĥöw bŕîĝĥţ lîĝĥţ çöméš îñţö ţĥé vîéw àñd îţš pîçţûŕéš: ñöñé, ñéûţŕàl öŕ fîlmîç. Föŕ ţĥîš šéššîöñ; ţĥé méñû ŕémémbéŕš îţš çĥöîçé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Attach to a running program; may be left out: the only one. In place of FILE.</source>
        <translation>[Àţţàçĥ ţö à ŕûññîñĝ pŕöĝŕàm; màý bé léfţ öûţ: ţĥé öñlý öñé. Îñ plàçé öf FÎLÉ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Start PROGRAM and attach to it; what follows goes to it. In place of FILE.</source>
        <translation>[Šţàŕţ PŔÖĜŔÀM àñd àţţàçĥ ţö îţ; wĥàţ föllöwš ĝöéš ţö îţ. Îñ plàçé öf FÎLÉ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>List the running programs that can be attached to, and end.</source>
        <translation>[Lîšţ ţĥé ŕûññîñĝ pŕöĝŕàmš ţĥàţ çàñ bé àţţàçĥéd ţö, àñd éñd. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Write what FILE holds to this file, as its ending says, and end; needs no display.</source>
        <translation>[Wŕîţé wĥàţ FÎLÉ ĥöldš ţö ţĥîš fîlé, àš îţš éñdîñĝ šàýš, àñd éñd; ñéédš ñö dîšplàý. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>End when everything asked for is done.</source>
        <translation>[Éñd wĥéñ évéŕýţĥîñĝ àšķéd föŕ îš döñé. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Switch the performance counters on.</source>
        <translation>[Šwîţçĥ ţĥé péŕföŕmàñçé çöûñţéŕš öñ. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Show this text and end.</source>
        <translation>[Šĥöw ţĥîš ţéxţ àñd éñd. ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>[Šĥöw ţĥé véŕšîöñ àñd éñd. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1”, a file that the extensions need, cannot be written.</source>
        <translation>[“%1”, à fîlé ţĥàţ ţĥé éxţéñšîöñš ñééd, çàññöţ bé wŕîţţéñ. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>an exception without a text</source>
        <translation>[àñ éxçépţîöñ wîţĥöûţ à ţéxţ ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>an exception of an unknown type</source>
        <translation>[àñ éxçépţîöñ öf àñ ûñķñöwñ ţýpé ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its place, from 0; -1 none, -2 all</source>
        <translation>[îţš plàçé, fŕöm 0; -1 ñöñé, -2 àll ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>from where the distance is measured</source>
        <translation>[fŕöm wĥéŕé ţĥé dîšţàñçé îš méàšûŕéd ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>growing</source>
        <translation>[ĝŕöwîñĝ ~~~]</translation>
    </message>
    <message>
        <source>where each copy stands; none: nothing is shown</source>
        <translation>[wĥéŕé éàçĥ çöpý šţàñdš; ñöñé: ñöţĥîñĝ îš šĥöwñ ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>[Plàçé ~~]</translation>
    </message>
    <message>
        <source>where the eye is</source>
        <translation>[wĥéŕé ţĥé éýé îš ~~~~~~]</translation>
    </message>
    <message>
        <source>turns the view, which looks along -z at first</source>
        <translation>[ţûŕñš ţĥé vîéw, wĥîçĥ lööķš àlöñĝ -ž àţ fîŕšţ ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>View</source>
        <translation>[Vîéw ~~]</translation>
    </message>
    <message>
        <source>between the lower and the upper edge, in radians</source>
        <translation>[béţwééñ ţĥé löwéŕ àñd ţĥé ûppéŕ édĝé, îñ ŕàdîàñš ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>to the point that it turns around</source>
        <translation>[ţö ţĥé pöîñţ ţĥàţ îţ ţûŕñš àŕöûñd ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>what is nearer is not seen</source>
        <translation>[wĥàţ îš ñéàŕéŕ îš ñöţ šééñ ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>what is farther is not seen</source>
        <translation>[wĥàţ îš fàŕţĥéŕ îš ñöţ šééñ ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>of what is seen, in the camera's coordinates</source>
        <translation>[öf wĥàţ îš šééñ, îñ ţĥé çàméŕà'š çööŕdîñàţéš ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>whether it shines</source>
        <translation>[wĥéţĥéŕ îţ šĥîñéš ~~~~~~~]</translation>
    </message>
    <message>
        <source>of the light</source>
        <translation>[öf ţĥé lîĝĥţ ~~~~~]</translation>
    </message>
    <message>
        <source>0 dark to 1 full</source>
        <translation>[0 dàŕķ ţö 1 fûll ~~~~~~]</translation>
    </message>
    <message>
        <source>in which the light shines</source>
        <translation>[îñ wĥîçĥ ţĥé lîĝĥţ šĥîñéš ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>[Lîĝĥţ ~~]</translation>
    </message>
    <message>
        <source>where it stands</source>
        <translation>[wĥéŕé îţ šţàñdš ~~~~~~]</translation>
    </message>
    <message>
        <source>constant, linear, quadratic with distance</source>
        <translation>[çöñšţàñţ, lîñéàŕ, qûàdŕàţîç wîţĥ dîšţàñçé ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>of the cone's axis</source>
        <translation>[öf ţĥé çöñé'š àxîš ~~~~~~~]</translation>
    </message>
    <message>
        <source>Cone</source>
        <translation>[Çöñé ~~]</translation>
    </message>
    <message>
        <source>between the axis and the edge, in radians</source>
        <translation>[béţwééñ ţĥé àxîš àñd ţĥé édĝé, îñ ŕàdîàñš ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0 evenly bright; the higher, the darker towards the edge</source>
        <translation>[0 évéñlý bŕîĝĥţ; ţĥé ĥîĝĥéŕ, ţĥé dàŕķéŕ ţöwàŕdš ţĥé édĝé ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>[Dîšţàñçé ~~~]</translation>
    </message>
    <message>
        <source>times the colours</source>
        <translation>[ţîméš ţĥé çölöûŕš ~~~~~~~]</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>[Çölöûŕš ~~~]</translation>
    </message>
    <message>
        <source>straight above</source>
        <translation>[šţŕàîĝĥţ àbövé ~~~~~~]</translation>
    </message>
    <message>
        <source>between sky and ground</source>
        <translation>[béţwééñ šķý àñd ĝŕöûñd ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>below</source>
        <translation>[bélöw ~~]</translation>
    </message>
    <message>
        <source>how far it moves, at the end</source>
        <translation>[ĥöw fàŕ îţ mövéš, àţ ţĥé éñd ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>how it turns, after scaling</source>
        <translation>[ĥöw îţ ţûŕñš, àfţéŕ šçàlîñĝ ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>how it stretches along each axis, at first</source>
        <translation>[ĥöw îţ šţŕéţçĥéš àlöñĝ éàçĥ àxîš, àţ fîŕšţ ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>More</source>
        <translation>[Möŕé ~~]</translation>
    </message>
    <message>
        <source>the axes along which it scales</source>
        <translation>[ţĥé àxéš àlöñĝ wĥîçĥ îţ šçàléš ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>stays in place while turning and scaling</source>
        <translation>[šţàýš îñ plàçé wĥîlé ţûŕñîñĝ àñd šçàlîñĝ ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>rows first; the last row is the translation</source>
        <translation>[ŕöwš fîŕšţ; ţĥé làšţ ŕöw îš ţĥé ţŕàñšlàţîöñ ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>whether time moves it</source>
        <translation>[wĥéţĥéŕ ţîmé mövéš îţ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>around which it turns</source>
        <translation>[àŕöûñd wĥîçĥ îţ ţûŕñš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>turns a second</source>
        <translation>[ţûŕñš à šéçöñd ~~~~~~]</translation>
    </message>
    <message>
        <source>the speed; negative turns the other way</source>
        <translation>[ţĥé špééd; ñéĝàţîvé ţûŕñš ţĥé öţĥéŕ wàý ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the angle is time x turnsPerSecond turns</source>
        <translation>[ţĥé àñĝlé îš ţîmé x ţûŕñšPéŕŠéçöñd ţûŕñš ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>STOPPED: all fields have their own values; PAUSED: those of the time; PLAYING: time passes</source>
        <translation>[ŠŢÖPPÉD: àll fîéldš ĥàvé ţĥéîŕ öwñ vàlûéš; PÀÛŠÉD: ţĥöšé öf ţĥé ţîmé; PLÀÝÎÑĜ: ţîmé pàššéš ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>of what is shown, from the beginning</source>
        <translation>[öf wĥàţ îš šĥöwñ, fŕöm ţĥé béĝîññîñĝ ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 as the clip was made; below 0 it runs backwards</source>
        <translation>[1 àš ţĥé çlîp wàš màdé; bélöw 0 îţ ŕûñš bàçķwàŕdš ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>from the end it goes on at the beginning; else it pauses there</source>
        <translation>[fŕöm ţĥé éñd îţ ĝöéš öñ àţ ţĥé béĝîññîñĝ; élšé îţ pàûšéš ţĥéŕé ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0: until the last key</source>
        <translation>[0: ûñţîl ţĥé làšţ ķéý ~~~~~~~~]</translation>
    </message>
    <message>
        <source>the node that has the field</source>
        <translation>[ţĥé ñödé ţĥàţ ĥàš ţĥé fîéld ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the name of the field that it animates</source>
        <translation>[ţĥé ñàmé öf ţĥé fîéld ţĥàţ îţ àñîmàţéš ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>between keys: STEP keeps a value until the next, LINEAR goes straight, CUBIC follows tangents</source>
        <translation>[béţwééñ ķéýš: ŠŢÉP ķéépš à vàlûé ûñţîl ţĥé ñéxţ, LÎÑÉÀŔ ĝöéš šţŕàîĝĥţ, ÇÛBÎÇ föllöwš ţàñĝéñţš ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>of the keys, growing</source>
        <translation>[öf ţĥé ķéýš, ĝŕöwîñĝ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>the numbers of all keys, one key after the other; a cubic one has its incoming tangent, its value and its outgoing tangent</source>
        <translation>[ţĥé ñûmbéŕš öf àll ķéýš, öñé ķéý àfţéŕ ţĥé öţĥéŕ; à çûbîç öñé ĥàš îţš îñçömîñĝ ţàñĝéñţ, îţš vàlûé àñd îţš öûţĝöîñĝ ţàñĝéñţ ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>transforms, each after its parent; NULL: one that never moves</source>
        <translation>[ţŕàñšföŕmš, éàçĥ àfţéŕ îţš pàŕéñţ; ÑÛLL: öñé ţĥàţ ñévéŕ mövéš ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the place of each bone's parent in the list, or -1</source>
        <translation>[ţĥé plàçé öf éàçĥ böñé'š pàŕéñţ îñ ţĥé lîšţ, öŕ -1 ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>for each bone, from the points to it, as the skin was made</source>
        <translation>[föŕ éàçĥ böñé, fŕöm ţĥé pöîñţš ţö îţ, àš ţĥé šķîñ wàš màdé ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the bone in whose coordinates the points stand, or -1</source>
        <translation>[ţĥé böñé îñ wĥöšé çööŕdîñàţéš ţĥé pöîñţš šţàñd, öŕ -1 ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>how many bones can move a point</source>
        <translation>[ĥöw màñý böñéš çàñ mövé à pöîñţ ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>so many for each point, by place in the list of bones</source>
        <translation>[šö màñý föŕ éàçĥ pöîñţ, bý plàçé îñ ţĥé lîšţ öf böñéš ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>of each of these; of each point they add up to 1</source>
        <translation>[öf éàçĥ öf ţĥéšé; öf éàçĥ pöîñţ ţĥéý àdd ûp ţö 1 ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>one for each target, 0 none to 1 all of it</source>
        <translation>[öñé föŕ éàçĥ ţàŕĝéţ, 0 ñöñé ţö 1 àll öf îţ ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>for all points of the first target, then of the next</source>
        <translation>[föŕ àll pöîñţš öf ţĥé fîŕšţ ţàŕĝéţ, ţĥéñ öf ţĥé ñéxţ ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the same for the normals, or none</source>
        <translation>[ţĥé šàmé föŕ ţĥé ñöŕmàlš, öŕ ñöñé ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>[Šûŕfàçé ~~~]</translation>
    </message>
    <message>
        <source>Shapes that colour their parts, faces or vertices take one after the other; the others take the first.</source>
        <translation>[Šĥàpéš ţĥàţ çölöûŕ ţĥéîŕ pàŕţš, fàçéš öŕ véŕţîçéš ţàķé öñé àfţéŕ ţĥé öţĥéŕ; ţĥé öţĥéŕš ţàķé ţĥé fîŕšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0 dull to 1 sharp</source>
        <translation>[0 dûll ţö 1 šĥàŕp ~~~~~~~]</translation>
    </message>
    <message>
        <source>0 opaque to 1 invisible</source>
        <translation>[0 öpàqûé ţö 1 îñvîšîblé ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>[Öţĥéŕ çölöûŕš ~~~~~]</translation>
    </message>
    <message>
        <source>of the highlights</source>
        <translation>[öf ţĥé ĥîĝĥlîĝĥţš ~~~~~~~]</translation>
    </message>
    <message>
        <source>that it shows without any light</source>
        <translation>[ţĥàţ îţ šĥöwš wîţĥöûţ àñý lîĝĥţ ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>under ambient light</source>
        <translation>[ûñdéŕ àmbîéñţ lîĝĥţ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>linear; shapes that colour their parts, faces or vertices take one after the other, the others take the first</source>
        <translation>[lîñéàŕ; šĥàpéš ţĥàţ çölöûŕ ţĥéîŕ pàŕţš, fàçéš öŕ véŕţîçéš ţàķé öñé àfţéŕ ţĥé öţĥéŕ, ţĥé öţĥéŕš ţàķé ţĥé fîŕšţ ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0 not a metal to 1 metal</source>
        <translation>[0 ñöţ à méţàl ţö 1 méţàl ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0 mirror to 1 matte</source>
        <translation>[0 mîŕŕöŕ ţö 1 màţţé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Glow</source>
        <translation>[Ĝlöw ~~]</translation>
    </message>
    <message>
        <source>that it shows without any light; linear</source>
        <translation>[ţĥàţ îţ šĥöwš wîţĥöûţ àñý lîĝĥţ; lîñéàŕ ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>times the colour</source>
        <translation>[ţîméš ţĥé çölöûŕ ~~~~~~]</translation>
    </message>
    <message>
        <source>Clear coat</source>
        <translation>[Çléàŕ çöàţ ~~~~]</translation>
    </message>
    <message>
        <source>how much of a coat is on top</source>
        <translation>[ĥöw mûçĥ öf à çöàţ îš öñ ţöp ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>of the coat: 0 mirror to 1 matte</source>
        <translation>[öf ţĥé çöàţ: 0 mîŕŕöŕ ţö 1 màţţé ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>of the slopes in the normal picture of the coat</source>
        <translation>[öf ţĥé šlöpéš îñ ţĥé ñöŕmàl pîçţûŕé öf ţĥé çöàţ ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>[Pîçţûŕéš ~~~]</translation>
    </message>
    <message>
        <source>of the slopes in the normal picture</source>
        <translation>[öf ţĥé šlöpéš îñ ţĥé ñöŕmàl pîçţûŕé ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0: the occlusion picture has no effect</source>
        <translation>[0: ţĥé öççlûšîöñ pîçţûŕé ĥàš ñö éfféçţ ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>[Öpàçîţý ~~~]</translation>
    </message>
    <message>
        <source>OPAQUE as if nothing were transparent, MASK there or not, BLEND mixed</source>
        <translation>[ÖPÀQÛÉ àš îf ñöţĥîñĝ wéŕé ţŕàñšpàŕéñţ, MÀŠĶ ţĥéŕé öŕ ñöţ, BLÉÑD mîxéd ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>times that of the base colour’s picture; of the modes MASK and BLEND</source>
        <translation>[ţîméš ţĥàţ öf ţĥé bàšé çölöûŕ’š pîçţûŕé; öf ţĥé mödéš MÀŠĶ àñd BLÉÑD ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>MASK leaves out what is less opaque</source>
        <translation>[MÀŠĶ léàvéš öûţ wĥàţ îš léšš öpàqûé ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>[Pîçţûŕé ~~~]</translation>
    </message>
    <message>
        <source>the property that the picture is of</source>
        <translation>[ţĥé pŕöpéŕţý ţĥàţ ţĥé pîçţûŕé îš öf ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the picture file, beside the scene or with its full path</source>
        <translation>[ţĥé pîçţûŕé fîlé, béšîdé ţĥé šçéñé öŕ wîţĥ îţš fûll pàţĥ ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the picture itself, where no file is named</source>
        <translation>[ţĥé pîçţûŕé îţšélf, wĥéŕé ñö fîlé îš ñàméd ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>On the surface</source>
        <translation>[Öñ ţĥé šûŕfàçé ~~~~~~]</translation>
    </message>
    <message>
        <source>FIRST of TextureCoordinates, SECOND of SecondTextureCoordinates</source>
        <translation>[FÎŔŠŢ öf ŢéxţûŕéÇööŕdîñàţéš, ŠÉÇÖÑD öf ŠéçöñdŢéxţûŕéÇööŕdîñàţéš ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>around the origin, after scaling; in radians</source>
        <translation>[àŕöûñd ţĥé öŕîĝîñ, àfţéŕ šçàlîñĝ; îñ ŕàdîàñš ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>of the coordinates, at first</source>
        <translation>[öf ţĥé çööŕdîñàţéš, àţ fîŕšţ ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>[Édĝéš ~~]</translation>
    </message>
    <message>
        <source>beyond the left and right edges</source>
        <translation>[béýöñd ţĥé léfţ àñd ŕîĝĥţ édĝéš ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>beyond the lower and upper edges</source>
        <translation>[béýöñd ţĥé löwéŕ àñd ûppéŕ édĝéš ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>has no effect here</source>
        <translation>[ĥàš ñö éfféçţ ĥéŕé ~~~~~~~]</translation>
    </message>
    <message>
        <source>how the picture and the material's colour combine</source>
        <translation>[ĥöw ţĥé pîçţûŕé àñd ţĥé màţéŕîàl'š çölöûŕ çömbîñé ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>in radians</source>
        <translation>[îñ ŕàdîàñš ~~~~]</translation>
    </message>
    <message>
        <source>filled, lines, points or invisible</source>
        <translation>[fîlléd, lîñéš, pöîñţš öŕ îñvîšîblé ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>[pîxélš ~~]</translation>
    </message>
    <message>
        <source>in pixels</source>
        <translation>[îñ pîxélš ~~~~]</translation>
    </message>
    <message>
        <source>0 coarse to 1 fine: round shapes</source>
        <translation>[0 çöàŕšé ţö 1 fîñé: ŕöûñd šĥàpéš ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>0 no textures, below 0.5 blocky, above 0.5 smoothest</source>
        <translation>[0 ñö ţéxţûŕéš, bélöw 0.5 blöçķý, àbövé 0.5 šmööţĥéšţ ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>how it grows with distance</source>
        <translation>[ĥöw îţ ĝŕöwš wîţĥ dîšţàñçé ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>into which all fades</source>
        <translation>[îñţö wĥîçĥ àll fàdéš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>the distance at which nothing else is seen</source>
        <translation>[ţĥé dîšţàñçé àţ wĥîçĥ ñöţĥîñĝ élšé îš šééñ ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the normal, and its distance from the origin</source>
        <translation>[ţĥé ñöŕmàl, àñd îţš dîšţàñçé fŕöm ţĥé öŕîĝîñ ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>whether it cuts</source>
        <translation>[wĥéţĥéŕ îţ çûţš ~~~~~~]</translation>
    </message>
    <message>
        <source>where the corners are</source>
        <translation>[wĥéŕé ţĥé çöŕñéŕš àŕé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>one direction for each point</source>
        <translation>[öñé dîŕéçţîöñ föŕ éàçĥ pöîñţ ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>one place for each point</source>
        <translation>[öñé plàçé föŕ éàçĥ pöîñţ ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>along x</source>
        <translation>[àlöñĝ x ~~~]</translation>
    </message>
    <message>
        <source>along y</source>
        <translation>[àlöñĝ ý ~~~]</translation>
    </message>
    <message>
        <source>along z</source>
        <translation>[àlöñĝ ž ~~~]</translation>
    </message>
    <message>
        <source>from the middle to the surface</source>
        <translation>[fŕöm ţĥé mîddlé ţö ţĥé šûŕfàçé ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>what of it is drawn</source>
        <translation>[wĥàţ öf îţ îš dŕàwñ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>of the circle at the bottom</source>
        <translation>[öf ţĥé çîŕçlé àţ ţĥé böţţöm ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>from the bottom to the tip</source>
        <translation>[fŕöm ţĥé böţţöm ţö ţĥé ţîp ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>of its circles</source>
        <translation>[öf îţš çîŕçléš ~~~~~~]</translation>
    </message>
    <message>
        <source>from the bottom to the top</source>
        <translation>[fŕöm ţĥé böţţöm ţö ţĥé ţöp ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>What takes the material's diffuse colours: the whole, each face (line, point), or each point.</source>
        <translation>[Wĥàţ ţàķéš ţĥé màţéŕîàl'š dîffûšé çölöûŕš: ţĥé wĥölé, éàçĥ fàçé (lîñé, pöîñţ), öŕ éàçĥ pöîñţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>points in each strip</source>
        <translation>[pöîñţš îñ éàçĥ šţŕîp ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Three per triangle; a triangle that names a point that is not there is left out.</source>
        <translation>[Ţĥŕéé péŕ ţŕîàñĝlé; à ţŕîàñĝlé ţĥàţ ñàméš à pöîñţ ţĥàţ îš ñöţ ţĥéŕé îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>each strip's points, -1 after each strip</source>
        <translation>[éàçĥ šţŕîp'š pöîñţš, -1 àfţéŕ éàçĥ šţŕîp ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>points in each line</source>
        <translation>[pöîñţš îñ éàçĥ lîñé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>each line's points, -1 after each line</source>
        <translation>[éàçĥ lîñé'š pöîñţš, -1 àfţéŕ éàçĥ lîñé ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the places of the points in their list</source>
        <translation>[ţĥé plàçéš öf ţĥé pöîñţš îñ ţĥéîŕ lîšţ ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>what is written, line by line</source>
        <translation>[wĥàţ îš wŕîţţéñ, lîñé bý lîñé ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>height of a line in pixels</source>
        <translation>[ĥéîĝĥţ öf à lîñé îñ pîxélš ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>which part of the line stands at the origin</source>
        <translation>[wĥîçĥ pàŕţ öf ţĥé lîñé šţàñdš àţ ţĥé öŕîĝîñ ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>around what is drawn; empty: takes no part in boxes</source>
        <translation>[àŕöûñd wĥàţ îš dŕàwñ; émpţý: ţàķéš ñö pàŕţ îñ böxéš ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the comment</source>
        <translation>[ţĥé çömméñţ ~~~~]</translation>
    </message>
    <message>
        <source>The program that this node was in is not attached any more.</source>
        <translation>[Ţĥé pŕöĝŕàm ţĥàţ ţĥîš ñödé wàš îñ îš ñöţ àţţàçĥéd àñý möŕé. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>[Fŕöñţ ~~]</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>[Bàçķ ~~]</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>[Ŕîĝĥţ ~~]</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>[Léfţ ~~]</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>[Ţöp ~]</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>[Böţţöm ~~]</translation>
    </message>
    <message>
        <source>it was made for version %1 of the plug-in interface, this program has version %2</source>
        <translation>[îţ wàš màdé föŕ véŕšîöñ %1 öf ţĥé plûĝ-îñ îñţéŕfàçé, ţĥîš pŕöĝŕàm ĥàš véŕšîöñ %2 ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it was made for Qt %1, this program runs with Qt %2</source>
        <translation>[îţ wàš màdé föŕ Qţ %1, ţĥîš pŕöĝŕàm ŕûñš wîţĥ Qţ %2 ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its code ended the program</source>
        <translation>[îţš çödé éñdéd ţĥé pŕöĝŕàm ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its initialisation failed: %1</source>
        <translation>[îţš îñîţîàlîšàţîöñ fàîléd: %1 ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>such a file holds no more than 4 GiB</source>
        <translation>[šûçĥ à fîlé ĥöldš ñö möŕé ţĥàñ 4 ĜîB ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>such a file holds no more than 2147483647 points</source>
        <translation>[šûçĥ à fîlé ĥöldš ñö möŕé ţĥàñ 2147483647 pöîñţš ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>materials, but for the colours of points</source>
        <translation>[màţéŕîàlš, bûţ föŕ ţĥé çölöûŕš öf pöîñţš ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>materials</source>
        <translation>[màţéŕîàlš ~~~~]</translation>
    </message>
    <message>
        <source>such a file holds no more than 4294967295 triangles</source>
        <translation>[šûçĥ à fîlé ĥöldš ñö möŕé ţĥàñ 4294967295 ţŕîàñĝléš ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The patch puts another node in the place of the root, which cannot be done in an open scene; “scopix apply” does it in the file.</source>
        <translation>[Ţĥé pàţçĥ pûţš àñöţĥéŕ ñödé îñ ţĥé plàçé öf ţĥé ŕööţ, wĥîçĥ çàññöţ bé döñé îñ àñ öpéñ šçéñé; “šçöpîx àpplý” döéš îţ îñ ţĥé fîlé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The settings file is too large; expected at most 1 MiB.</source>
        <translation>[Ţĥé šéţţîñĝš fîlé îš ţöö làŕĝé; éxpéçţéd àţ möšţ 1 MîB. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The settings file cannot be read to its end.</source>
        <translation>[Ţĥé šéţţîñĝš fîlé çàññöţ bé ŕéàd ţö îţš éñd. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The line is no setting; expected NAME = value.</source>
        <translation>[Ţĥé lîñé îš ñö šéţţîñĝ; éxpéçţéd ÑÀMÉ = vàlûé. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A settings file was expected, but this is no regular file.</source>
        <translation>[À šéţţîñĝš fîlé wàš éxpéçţéd, bûţ ţĥîš îš ñö ŕéĝûlàŕ fîlé. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” takes 1 number and was given %2.</source>
        <translation>[“%1” ţàķéš 1 ñûmbéŕ àñd wàš ĝîvéñ %2. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” takes %2 numbers and was given %3.</source>
        <translation>[“%1” ţàķéš %2 ñûmbéŕš àñd wàš ĝîvéñ %3. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” takes 1 or 2 numbers and was given %2.</source>
        <translation>[“%1” ţàķéš 1 öŕ 2 ñûmbéŕš àñd wàš ĝîvéñ %2. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” takes 1 number or more and was given %2.</source>
        <translation>[“%1” ţàķéš 1 ñûmbéŕ öŕ möŕé àñd wàš ĝîvéñ %2. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The text is longer than 1000 characters.</source>
        <translation>[Ţĥé ţéxţ îš löñĝéŕ ţĥàñ 1000 çĥàŕàçţéŕš. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The result is not %1: a unit belongs to the number or parenthesis right before it.</source>
        <translation>[Ţĥé ŕéšûlţ îš ñöţ %1: à ûñîţ bélöñĝš ţö ţĥé ñûmbéŕ öŕ pàŕéñţĥéšîš ŕîĝĥţ béföŕé îţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The expression is nested too deeply.</source>
        <translation>[Ţĥé éxpŕéššîöñ îš ñéšţéd ţöö dééplý. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>There is no present value here that could be changed.</source>
        <translation>[Ţĥéŕé îš ñö pŕéšéñţ vàlûé ĥéŕé ţĥàţ çöûld bé çĥàñĝéd. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A plain number is needed after “%1”.</source>
        <translation>[À plàîñ ñûmbéŕ îš ñéédéd àfţéŕ “%1”. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Only plain numbers can be raised to a power.</source>
        <translation>[Öñlý plàîñ ñûmbéŕš çàñ bé ŕàîšéd ţö à pöwéŕ. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is a unit of %2, and %3 is wanted here.</source>
        <translation>[“%1” îš à ûñîţ öf %2, àñd %3 îš wàñţéd ĥéŕé. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>There is a unit already.</source>
        <translation>[Ţĥéŕé îš à ûñîţ àlŕéàdý. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>There is no function “%1”.</source>
        <translation>[Ţĥéŕé îš ñö fûñçţîöñ “%1”. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” needs its numbers in parentheses after it.</source>
        <translation>[“%1” ñéédš îţš ñûmbéŕš îñ pàŕéñţĥéšéš àfţéŕ îţ. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is not known here.</source>
        <translation>[“%1” îš ñöţ ķñöwñ ĥéŕé. ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>This has another unit than what stands before it.</source>
        <translation>[Ţĥîš ĥàš àñöţĥéŕ ûñîţ ţĥàñ wĥàţ šţàñdš béföŕé îţ. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The result of what stands here is not an angle.</source>
        <translation>[Ţĥé ŕéšûlţ öf wĥàţ šţàñdš ĥéŕé îš ñöţ àñ àñĝlé. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” takes plain numbers, without a unit.</source>
        <translation>[“%1” ţàķéš plàîñ ñûmbéŕš, wîţĥöûţ à ûñîţ. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The two sides have different units.</source>
        <translation>[Ţĥé ţwö šîdéš ĥàvé dîfféŕéñţ ûñîţš. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A “%1” is missing at the end.</source>
        <translation>[À “%1” îš mîššîñĝ àţ ţĥé éñd. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A number or a formula is missing.</source>
        <translation>[À ñûmbéŕ öŕ à föŕmûlà îš mîššîñĝ. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A number is missing after “%1”.</source>
        <translation>[À ñûmbéŕ îš mîššîñĝ àfţéŕ “%1”. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A comma separates the arguments of a function; it is a decimal sign only in a text that is one number.</source>
        <translation>[À çömmà šépàŕàţéš ţĥé àŕĝûméñţš öf à fûñçţîöñ; îţ îš à déçîmàl šîĝñ öñlý îñ à ţéxţ ţĥàţ îš öñé ñûmbéŕ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” makes no sense here.</source>
        <translation>[“%1” màķéš ñö šéñšé ĥéŕé. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A sign such as + or * is missing before “%1”.</source>
        <translation>[À šîĝñ šûçĥ àš + öŕ * îš mîššîñĝ béföŕé “%1”. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” has no meaning here.</source>
        <translation>[“%1” ĥàš ñö méàñîñĝ ĥéŕé. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is too large or too small a number.</source>
        <translation>[“%1” îš ţöö làŕĝé öŕ ţöö šmàll à ñûmbéŕ. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The name that begins here has no second quotation mark.</source>
        <translation>[Ţĥé ñàmé ţĥàţ béĝîñš ĥéŕé ĥàš ñö šéçöñd qûöţàţîöñ màŕķ. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>an angle</source>
        <translation>[àñ àñĝlé ~~~]</translation>
    </message>
    <message>
        <source>a length</source>
        <translation>[à léñĝţĥ ~~~]</translation>
    </message>
    <message>
        <source>a time</source>
        <translation>[à ţîmé ~~]</translation>
    </message>
    <message>
        <source>a plain number</source>
        <translation>[à plàîñ ñûmbéŕ ~~~~~~]</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>[“%1” ~~]</translation>
    </message>
    <message>
        <source>The scene</source>
        <translation>[Ţĥé šçéñé ~~~~]</translation>
    </message>
    <message>
        <source>%1 has groups that stand in so many places that only a part of it is shown, measured and searched: the first %2 repeated nodes.</source>
        <translation>[%1 ĥàš ĝŕöûpš ţĥàţ šţàñd îñ šö màñý plàçéš ţĥàţ öñlý à pàŕţ öf îţ îš šĥöwñ, méàšûŕéd àñd šéàŕçĥéd: ţĥé fîŕšţ %2 ŕépéàţéd ñödéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 has instances within instances that come to more than %2 copies; the others are left out.</source>
        <translation>[%1 ĥàš îñšţàñçéš wîţĥîñ îñšţàñçéš ţĥàţ çömé ţö möŕé ţĥàñ %2 çöpîéš; ţĥé öţĥéŕš àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a %1 has no such field</source>
        <translation>[à %1 ĥàš ñö šûçĥ fîéld ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>there is no field %1 to follow</source>
        <translation>[ţĥéŕé îš ñö fîéld %1 ţö föllöw ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the end of the value was expected</source>
        <translation>[ţĥé éñd öf ţĥé vàlûé wàš éxpéçţéd ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>there is no default value</source>
        <translation>[ţĥéŕé îš ñö défàûlţ vàlûé ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>"%1" is no value of a %2</source>
        <translation>["%1" îš ñö vàlûé öf à %2 ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the list has %1 values</source>
        <translation>[ţĥé lîšţ ĥàš %1 vàlûéš ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is no list</source>
        <translation>[îţ îš ñö lîšţ ~~~~~]</translation>
    </message>
    <message>
        <source>"%1" is no value of it</source>
        <translation>["%1" îš ñö vàlûé öf îţ ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it cannot follow %1</source>
        <translation>[îţ çàññöţ föllöw %1 ~~~~~~~~]</translation>
    </message>
    <message>
        <source>there are %1 children called %2 and not %3</source>
        <translation>[ţĥéŕé àŕé %1 çĥîldŕéñ çàlléd %2 àñd ñöţ %3 ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>line %1: %2 %3: %4.</source>
        <translation>[lîñé %1: %2 %3: %4. ~~~~~~~~]</translation>
    </message>
    <message>
        <source>a %1 has no children</source>
        <translation>[à %1 ĥàš ñö çĥîldŕéñ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>there is no such node</source>
        <translation>[ţĥéŕé îš ñö šûçĥ ñödé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>there is no %1 to put it after</source>
        <translation>[ţĥéŕé îš ñö %1 ţö pûţ îţ àfţéŕ ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 cannot stand in %2, which it holds.</source>
        <translation>[%1 çàññöţ šţàñd îñ %2, wĥîçĥ îţ ĥöldš. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 was expected at the end of the line</source>
        <translation>[%1 wàš éxpéçţéd àţ ţĥé éñd öf ţĥé lîñé ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 was expected instead of "%2"</source>
        <translation>[%1 wàš éxpéçţéd îñšţéàd öf "%2" ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>"set", "name", "insert", "remove", "move", "replace" or "order"</source>
        <translation>["šéţ", "ñàmé", "îñšéŕţ", "ŕémövé", "mövé", "ŕéplàçé" öŕ "öŕdéŕ" ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the path of a place below the root</source>
        <translation>[ţĥé pàţĥ öf à plàçé bélöw ţĥé ŕööţ ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>"from" and where it was</source>
        <translation>["fŕöm" àñd wĥéŕé îţ wàš ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a name in quotes</source>
        <translation>[à ñàmé îñ qûöţéš ~~~~~~]</translation>
    </message>
    <message>
        <source>a path, which starts with "/"</source>
        <translation>[à pàţĥ, wĥîçĥ šţàŕţš wîţĥ "/" ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the path of a field, such as /Lamp.intensity</source>
        <translation>[ţĥé pàţĥ öf à fîéld, šûçĥ àš /Làmp.îñţéñšîţý ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the path of a node</source>
        <translation>[ţĥé pàţĥ öf à ñödé ~~~~~~~]</translation>
    </message>
    <message>
        <source>a number of children</source>
        <translation>[à ñûmbéŕ öf çĥîldŕéñ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>"first", or "after" and a node</source>
        <translation>["fîŕšţ", öŕ "àfţéŕ" àñd à ñödé ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the end of the quotes</source>
        <translation>[ţĥé éñd öf ţĥé qûöţéš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>a name without a byte 0</source>
        <translation>[à ñàmé wîţĥöûţ à býţé 0 ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>"new", "from" or "same"</source>
        <translation>["ñéw", "fŕöm" öŕ "šàmé" ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a type</source>
        <translation>[à ţýpé ~~]</translation>
    </message>
    <message>
        <source>"new" or "same"</source>
        <translation>["ñéw" öŕ "šàmé" ~~~~~~]</translation>
    </message>
    <message>
        <source>the name of a field</source>
        <translation>[ţĥé ñàmé öf à fîéld ~~~~~~~~]</translation>
    </message>
    <message>
        <source>one value, without marks</source>
        <translation>[öñé vàlûé, wîţĥöûţ màŕķš ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a text in quotes</source>
        <translation>[à ţéxţ îñ qûöţéš ~~~~~~]</translation>
    </message>
    <message>
        <source>a text without a byte 0</source>
        <translation>[à ţéxţ wîţĥöûţ à býţé 0 ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>an end of the list or text that begins here</source>
        <translation>[àñ éñd öf ţĥé lîšţ öŕ ţéxţ ţĥàţ béĝîñš ĥéŕé ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a value or "!default"</source>
        <translation>[à vàlûé öŕ "!défàûlţ" ~~~~~~~~]</translation>
    </message>
    <message>
        <source>a whole field</source>
        <translation>[à wĥölé fîéld ~~~~~]</translation>
    </message>
    <message>
        <source>the end of the line</source>
        <translation>[ţĥé éñd öf ţĥé lîñé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>this is no patch: its first line must be "%1"</source>
        <translation>[ţĥîš îš ñö pàţçĥ: îţš fîŕšţ lîñé mûšţ bé "%1" ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a byte 0 stands here, which a text has not: the file is damaged, or no patch</source>
        <translation>[à býţé 0 šţàñdš ĥéŕé, wĥîçĥ à ţéxţ ĥàš ñöţ: ţĥé fîlé îš dàmàĝéd, öŕ ñö pàţçĥ ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the values of the field "%1"</source>
        <translation>[ţĥé vàlûéš öf ţĥé fîéld "%1" ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The setting %1 is "%2"; expected 1, 0, TRUE or FALSE. The default is used.</source>
        <translation>[Ţĥé šéţţîñĝ %1 îš "%2"; éxpéçţéd 1, 0, ŢŔÛÉ öŕ FÀLŠÉ. Ţĥé défàûlţ îš ûšéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The setting %1 is "%2"; expected a whole number. The default is used.</source>
        <translation>[Ţĥé šéţţîñĝ %1 îš "%2"; éxpéçţéd à wĥölé ñûmbéŕ. Ţĥé défàûlţ îš ûšéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The setting %1 is "%2"; expected a number. The default is used.</source>
        <translation>[Ţĥé šéţţîñĝ %1 îš "%2"; éxpéçţéd à ñûmbéŕ. Ţĥé défàûlţ îš ûšéd. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The counter "%1" would be computed from itself; expected parents that do not depend on it.</source>
        <translation>[Ţĥé çöûñţéŕ "%1" wöûld bé çömpûţéd fŕöm îţšélf; éxpéçţéd pàŕéñţš ţĥàţ dö ñöţ dépéñd öñ îţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1:%2: Column %3: %4</source>
        <translation>[%1:%2: Çölûmñ %3: %4 ~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1: Column %2: %3</source>
        <translation>[%1: Çölûmñ %2: %3 ~~~~~~~]</translation>
    </message>
    <message>
        <source>No memory for %1: %2 bytes were asked for.</source>
        <translation>[Ñö mémöŕý föŕ %1: %2 býţéš wéŕé àšķéd föŕ. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1: OpenGL reports %2.</source>
        <translation>[%1: ÖpéñĜL ŕépöŕţš %2. ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 is no value of %2, which is a %3; each field has a line of its own</source>
        <translation>[%1 îš ñö vàlûé öf %2, wĥîçĥ îš à %3; éàçĥ fîéld ĥàš à lîñé öf îţš öwñ ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 is no value of %2, which is a %3</source>
        <translation>[%1 îš ñö vàlûé öf %2, wĥîçĥ îš à %3 ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a byte 0 stands here, which a text has not: the file is damaged, or no scene</source>
        <translation>[à býţé 0 šţàñdš ĥéŕé, wĥîçĥ à ţéxţ ĥàš ñöţ: ţĥé fîlé îš dàmàĝéd, öŕ ñö šçéñé ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the text in quotes that starts here has no end, or an escape that does not exist</source>
        <translation>[ţĥé ţéxţ îñ qûöţéš ţĥàţ šţàŕţš ĥéŕé ĥàš ñö éñd, öŕ àñ éšçàpé ţĥàţ döéš ñöţ éxîšţ ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>this is no scene file: its first line must be "%1"</source>
        <translation>[ţĥîš îš ñö šçéñé fîlé: îţš fîŕšţ lîñé mûšţ bé "%1" ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a file holds one node with everything in it, so its end was expected instead of %1</source>
        <translation>[à fîlé ĥöldš öñé ñödé wîţĥ évéŕýţĥîñĝ îñ îţ, šö îţš éñd wàš éxpéçţéd îñšţéàd öf %1 ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the file ends too early: "}" was expected to close the %1</source>
        <translation>[ţĥé fîlé éñdš ţöö éàŕlý: "}" wàš éxpéçţéd ţö çlöšé ţĥé %1 ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the file has no node: a type such as Separator was expected</source>
        <translation>[ţĥé fîlé ĥàš ñö ñödé: à ţýpé šûçĥ àš Šépàŕàţöŕ wàš éxpéçţéd ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>"}" closes nothing; a node was expected</source>
        <translation>["}" çlöšéš ñöţĥîñĝ; à ñödé wàš éxpéçţéd ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a node was expected instead of %1</source>
        <translation>[à ñödé wàš éxpéçţéd îñšţéàd öf %1 ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a field, a node or "}" was expected instead of %1</source>
        <translation>[à fîéld, à ñödé öŕ "}" wàš éxpéçţéd îñšţéàd öf %1 ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a field stands within a node; a node was expected</source>
        <translation>[à fîéld šţàñdš wîţĥîñ à ñödé; à ñödé wàš éxpéçţéd ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a %1 has no children; a field such as "name: value" or "}" was expected instead of %2</source>
        <translation>[à %1 ĥàš ñö çĥîldŕéñ; à fîéld šûçĥ àš "ñàmé: vàlûé" öŕ "}" wàš éxpéçţéd îñšţéàd öf %2 ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a label was expected after "@"</source>
        <translation>[à làbél wàš éxpéçţéd àfţéŕ "@" ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>"{" was expected after %1</source>
        <translation>["{" wàš éxpéçţéd àfţéŕ %1 ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the label @%1 is already another node's</source>
        <translation>[ţĥé làbél @%1 îš àlŕéàdý àñöţĥéŕ ñödé'š ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the label @%1 is not that of a node that is complete here</source>
        <translation>[ţĥé làbél @%1 îš ñöţ ţĥàţ öf à ñödé ţĥàţ îš çömpléţé ĥéŕé ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a %1 has no field %2; a field of it, a node or "}" was expected</source>
        <translation>[à %1 ĥàš ñö fîéld %2; à fîéld öf îţ, à ñödé öŕ "}" wàš éxpéçţéd ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the value that starts here is longer than 1 GiB, and is not read</source>
        <translation>[ţĥé vàlûé ţĥàţ šţàŕţš ĥéŕé îš löñĝéŕ ţĥàñ 1 ĜîB, àñd îš ñöţ ŕéàd ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the list that starts here has no "]"</source>
        <translation>[ţĥé lîšţ ţĥàţ šţàŕţš ĥéŕé ĥàš ñö "]" ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the text in quotes that starts here has no end</source>
        <translation>[ţĥé ţéxţ îñ qûöţéš ţĥàţ šţàŕţš ĥéŕé ĥàš ñö éñd ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>"!ignored" was expected</source>
        <translation>["!îĝñöŕéd" wàš éxpéçţéd ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>"&lt;- @label.field" was expected</source>
        <translation>["&lt;- @làbél.fîéld" wàš éxpéçţéd ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a record starts with "@" and the number of a node</source>
        <translation>[à ŕéçöŕd šţàŕţš wîţĥ "@" àñd ţĥé ñûmbéŕ öf à ñödé ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a field of the %1 was expected</source>
        <translation>[à fîéld öf ţĥé %1 wàš éxpéçţéd ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the end of the record was expected</source>
        <translation>[ţĥé éñd öf ţĥé ŕéçöŕd wàš éxpéçţéd ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A scene file was expected, but this is not a file.</source>
        <translation>[À šçéñé fîlé wàš éxpéçţéd, bûţ ţĥîš îš ñöţ à fîlé. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>[Ţĥé fîlé çàññöţ bé ŕéàd: %1. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A scene file of at most 4 GiB was expected, but this one has %1 bytes.</source>
        <translation>[À šçéñé fîlé öf àţ möšţ 4 ĜîB wàš éxpéçţéd, bûţ ţĥîš öñé ĥàš %1 býţéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The file cannot be read to its end.</source>
        <translation>[Ţĥé fîlé çàññöţ bé ŕéàd ţö îţš éñd. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>there is no field @%1.%2 to connect from</source>
        <translation>[ţĥéŕé îš ñö fîéld @%1.%2 ţö çöññéçţ fŕöm ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 cannot be connected from a %2, or would in the end be connected from itself</source>
        <translation>[%1 çàññöţ bé çöññéçţéd fŕöm à %2, öŕ wöûld îñ ţĥé éñd bé çöññéçţéd fŕöm îţšélf ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1: The file cannot be written: %2.</source>
        <translation>[%1: Ţĥé fîlé çàññöţ bé wŕîţţéñ: %2. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>line %1 does not fit the names of the columns</source>
        <translation>[lîñé %1 döéš ñöţ fîţ ţĥé ñàméš öf ţĥé çölûmñš ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it has no line with the names of the columns</source>
        <translation>[îţ ĥàš ñö lîñé wîţĥ ţĥé ñàméš öf ţĥé çölûmñš ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>[îţ îš ñö ŕéĝûlàŕ fîlé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>[îţ çàññöţ bé ŕéàd ~~~~~~~]</translation>
    </message>
    <message>
        <source>it has more than 1 GiB</source>
        <translation>[îţ ĥàš möŕé ţĥàñ 1 ĜîB ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is no recording of frames</source>
        <translation>[îţ îš ñö ŕéçöŕdîñĝ öf fŕàméš ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its head is damaged</source>
        <translation>[îţš ĥéàd îš dàmàĝéd ~~~~~~~~]</translation>
    </message>
    <message>
        <source>there is no %1 below %2</source>
        <translation>[ţĥéŕé îš ñö %1 bélöw %2 ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>there is no %1 below the root, which itself is "/"</source>
        <translation>[ţĥéŕé îš ñö %1 bélöw ţĥé ŕööţ, wĥîçĥ îţšélf îš "/" ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>there is no %1 below the root</source>
        <translation>[ţĥéŕé îš ñö %1 bélöw ţĥé ŕööţ ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 nodes are meant; a path that starts with "/" names one of them</source>
        <translation>[%1 ñödéš àŕé méàñţ; à pàţĥ ţĥàţ šţàŕţš wîţĥ "/" ñàméš öñé öf ţĥém ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a %1 has no field "%2"</source>
        <translation>[à %1 ĥàš ñö fîéld "%2" ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the path was expected to end before "%1"</source>
        <translation>[ţĥé pàţĥ wàš éxpéçţéd ţö éñd béföŕé "%1" ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>"%1" is no path: %2.</source>
        <translation>["%1" îš ñö pàţĥ: %2. ~~~~~~~~]</translation>
    </message>
    <message>
        <source>the name or type of a node</source>
        <translation>[ţĥé ñàmé öŕ ţýpé öf à ñödé ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the quotes around %1 have no end, or nothing in them</source>
        <translation>[ţĥé qûöţéš àŕöûñd %1 ĥàvé ñö éñd, öŕ ñöţĥîñĝ îñ ţĥém ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 was expected at the end</source>
        <translation>[%1 wàš éxpéçţéd àţ ţĥé éñd ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 was expected before "%2"</source>
        <translation>[%1 wàš éxpéçţéd béföŕé "%2" ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a number, counted from 0, and "]" were expected after "["</source>
        <translation>[à ñûmbéŕ, çöûñţéd fŕöm 0, àñd "]" wéŕé éxpéçţéd àfţéŕ "[" ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>"/", ".", "[" or the end was expected before "%1"</source>
        <translation>["/", ".", "[" öŕ ţĥé éñd wàš éxpéçţéd béföŕé "%1" ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” lacks what to look for after the colon.</source>
        <translation>[“%1” làçķš wĥàţ ţö lööķ föŕ àfţéŕ ţĥé çölöñ. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A minus sign lacks what is not to be found.</source>
        <translation>[À mîñûš šîĝñ làçķš wĥàţ îš ñöţ ţö bé föûñd. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” has a sign that compares nothing: use = != &lt; &lt;= &gt; &gt;= or ~.</source>
        <translation>[“%1” ĥàš à šîĝñ ţĥàţ çömpàŕéš ñöţĥîñĝ: ûšé = != &lt; &lt;= &gt; &gt;= öŕ ~. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” names no number of a value: use .x .y .z .w or .r .g .b .a.</source>
        <translation>[“%1” ñàméš ñö ñûmbéŕ öf à vàlûé: ûšé .x .ý .ž .w öŕ .ŕ .ĝ .b .à. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” needs a number to compare with.</source>
        <translation>[“%1” ñéédš à ñûmbéŕ ţö çömpàŕé wîţĥ. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” lacks the value to compare with.</source>
        <translation>[“%1” làçķš ţĥé vàlûé ţö çömpàŕé wîţĥ. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>No display for drawing off the screen: EGL offers none, not even a surfaceless one.</source>
        <translation>[Ñö dîšplàý föŕ dŕàwîñĝ öff ţĥé šçŕééñ: ÉĜL öfféŕš ñöñé, ñöţ évéñ à šûŕfàçéléšš öñé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>OpenGL 3.3 could not be started for drawing off the screen (EGL error %1).</source>
        <translation>[ÖpéñĜL 3.3 çöûld ñöţ bé šţàŕţéd föŕ dŕàwîñĝ öff ţĥé šçŕééñ (ÉĜL éŕŕöŕ %1). ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The picture “%1” of %2 pixels is left out, as here no side can have more than %3.</source>
        <translation>[Ţĥé pîçţûŕé “%1” öf %2 pîxélš îš léfţ öûţ, àš ĥéŕé ñö šîdé çàñ ĥàvé möŕé ţĥàñ %3. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The picture “%1” of %2 pixels is brought down to %3 pixels, as here no side can have more than %4.</source>
        <translation>[Ţĥé pîçţûŕé “%1” öf %2 pîxélš îš bŕöûĝĥţ döwñ ţö %3 pîxélš, àš ĥéŕé ñö šîdé çàñ ĥàvé möŕé ţĥàñ %4. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The picture “%1” of %2 pixels is left out, as all pictures of a scene may take %3 MiB together (XSG_PICTURE_MEMORY in the preferences).</source>
        <translation>[Ţĥé pîçţûŕé “%1” öf %2 pîxélš îš léfţ öûţ, àš àll pîçţûŕéš öf à šçéñé màý ţàķé %3 MîB ţöĝéţĥéŕ (XŠĜ_PÎÇŢÛŔÉ_MÉMÖŔÝ îñ ţĥé pŕéféŕéñçéš). ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The picture “%1” of %2 pixels is brought down to %3 pixels, as all pictures of a scene may take %4 MiB together (XSG_PICTURE_MEMORY in the preferences).</source>
        <translation>[Ţĥé pîçţûŕé “%1” öf %2 pîxélš îš bŕöûĝĥţ döwñ ţö %3 pîxélš, àš àll pîçţûŕéš öf à šçéñé màý ţàķé %4 MîB ţöĝéţĥéŕ (XŠĜ_PÎÇŢÛŔÉ_MÉMÖŔÝ îñ ţĥé pŕéféŕéñçéš). ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Drawing needs OpenGL 3.3, but this system offers only %1.%2.</source>
        <translation>[Dŕàwîñĝ ñéédš ÖpéñĜL 3.3, bûţ ţĥîš šýšţém öfféŕš öñlý %1.%2. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 has so many copies of shapes that only the first %2 of them are shown.</source>
        <translation>[%1 ĥàš šö màñý çöpîéš öf šĥàpéš ţĥàţ öñlý ţĥé fîŕšţ %2 öf ţĥém àŕé šĥöwñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>OpenGL refused a drawing program: %1</source>
        <translation>[ÖpéñĜL ŕéfûšéd à dŕàwîñĝ pŕöĝŕàm: %1 ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>OpenGL could not link a drawing program: %1</source>
        <translation>[ÖpéñĜL çöûld ñöţ lîñķ à dŕàwîñĝ pŕöĝŕàm: %1 ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A picture of %1 x %2 pixels cannot be drawn; each side may have 1 to %3.</source>
        <translation>[À pîçţûŕé öf %1 x %2 pîxélš çàññöţ bé dŕàwñ; éàçĥ šîdé màý ĥàvé 1 ţö %3. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The picture of a texture is missing; the texture is drawn without it.</source>
        <translation>[Ţĥé pîçţûŕé öf à ţéxţûŕé îš mîššîñĝ; ţĥé ţéxţûŕé îš dŕàwñ wîţĥöûţ îţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The picture of a texture cannot be read; the texture is drawn without it.</source>
        <translation>[Ţĥé pîçţûŕé öf à ţéxţûŕé çàññöţ bé ŕéàd; ţĥé ţéxţûŕé îš dŕàwñ wîţĥöûţ îţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>[îţ îš à földéŕ ~~~~~~]</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>[ţĥé fîlé îš wŕîţé-pŕöţéçţéd ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>[Péŕmîššîöñ déñîéd ~~~~~~~]</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>[Öpéŕàţîöñ ñöţ péŕmîţţéd ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>[Ñö šûçĥ fîlé öŕ dîŕéçţöŕý ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>[Fîlé éxîšţš ~~~~]</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>[Îš à dîŕéçţöŕý ~~~~~~]</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>[Ñöţ à dîŕéçţöŕý ~~~~~~]</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>[Ţöö màñý lévélš öf šýmbölîç lîñķš ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>[Fîlé ñàmé ţöö löñĝ ~~~~~~~]</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>[Ŕéàd-öñlý fîlé šýšţém ~~~~~~~~]</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>[Ñö špàçé léfţ öñ dévîçé ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>[Dîšķ qûöţà éxçéédéd ~~~~~~~~]</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>[Fîlé ţöö làŕĝé ~~~~~~]</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>[Îñpûţ/öûţpûţ éŕŕöŕ ~~~~~~~]</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>[Dévîçé öŕ ŕéšöûŕçé bûšý ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>[Ţéxţ fîlé bûšý ~~~~~~]</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>[Ţöö màñý öpéñ fîléš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>[Ţöö màñý öpéñ fîléš îñ šýšţém ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>[Çàññöţ àllöçàţé mémöŕý ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be set: this program offers its scene for reading only.</source>
        <translation>[“%1” çàññöţ bé šéţ: ţĥîš pŕöĝŕàm öfféŕš îţš šçéñé föŕ ŕéàdîñĝ öñlý. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be added: this program lets nobody change its structure.</source>
        <translation>[“%1” çàññöţ bé àddéd: ţĥîš pŕöĝŕàm léţš ñöbödý çĥàñĝé îţš šţŕûçţûŕé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The node cannot be removed: this program lets nobody change its structure.</source>
        <translation>[Ţĥé ñödé çàññöţ bé ŕémövéd: ţĥîš pŕöĝŕàm léţš ñöbödý çĥàñĝé îţš šţŕûçţûŕé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The node cannot be inserted: this program lets nobody change its structure.</source>
        <translation>[Ţĥé ñödé çàññöţ bé îñšéŕţéd: ţĥîš pŕöĝŕàm léţš ñöbödý çĥàñĝé îţš šţŕûçţûŕé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The node cannot be copied: this program does not offer that.</source>
        <translation>[Ţĥé ñödé çàññöţ bé çöpîéd: ţĥîš pŕöĝŕàm döéš ñöţ öfféŕ ţĥàţ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The edit cannot be made: the program is not attached.</source>
        <translation>[Ţĥé édîţ çàññöţ bé màdé: ţĥé pŕöĝŕàm îš ñöţ àţţàçĥéd. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The edit cannot be made: it is too long.</source>
        <translation>[Ţĥé édîţ çàññöţ bé màdé: îţ îš ţöö löñĝ. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program “%1” sent a message that is too long or damaged; detached.</source>
        <translation>[Ţĥé pŕöĝŕàm “%1” šéñţ à méššàĝé ţĥàţ îš ţöö löñĝ öŕ dàmàĝéd; déţàçĥéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program “%1” has ended or was killed.</source>
        <translation>[Ţĥé pŕöĝŕàm “%1” ĥàš éñdéd öŕ wàš ķîlléd. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program “%1” sent a message that this inspector does not understand; detached.</source>
        <translation>[Ţĥé pŕöĝŕàm “%1” šéñţ à méššàĝé ţĥàţ ţĥîš îñšpéçţöŕ döéš ñöţ ûñdéŕšţàñd; déţàçĥéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The edit cannot be made: its value does not have the bytes of its kind.</source>
        <translation>[Ţĥé édîţ çàññöţ bé màdé: îţš vàlûé döéš ñöţ ĥàvé ţĥé býţéš öf îţš ķîñd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: the program does not answer.</source>
        <translation>[Çàññöţ àţţàçĥ ţö “%1”: ţĥé pŕöĝŕàm döéš ñöţ àñšwéŕ. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: what listens there is no program that can be inspected.</source>
        <translation>[Çàññöţ àţţàçĥ ţö “%1”: wĥàţ lîšţéñš ţĥéŕé îš ñö pŕöĝŕàm ţĥàţ çàñ bé îñšpéçţéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: no program listens there any more.</source>
        <translation>[Çàññöţ àţţàçĥ ţö “%1”: ñö pŕöĝŕàm lîšţéñš ţĥéŕé àñý möŕé. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: you may not open its socket.</source>
        <translation>[Çàññöţ àţţàçĥ ţö “%1”: ýöû màý ñöţ öpéñ îţš šöçķéţ. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: %2.</source>
        <translation>[Çàññöţ àţţàçĥ ţö “%1”: %2. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: it is another user’s program; inspect it as that user.</source>
        <translation>[Çàññöţ àţţàçĥ ţö “%1”: îţ îš àñöţĥéŕ ûšéŕ’š pŕöĝŕàm; îñšpéçţ îţ àš ţĥàţ ûšéŕ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: the program has closed the connection.</source>
        <translation>[Çàññöţ àţţàçĥ ţö “%1”: ţĥé pŕöĝŕàm ĥàš çlöšéd ţĥé çöññéçţîöñ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: it speaks version %2 of the protocol and this inspector version %3; use libraries and an inspector of the same version.</source>
        <translation>[Çàññöţ àţţàçĥ ţö “%1”: îţ špéàķš véŕšîöñ %2 öf ţĥé pŕöţöçöl àñd ţĥîš îñšpéçţöŕ véŕšîöñ %3; ûšé lîbŕàŕîéš àñd àñ îñšpéçţöŕ öf ţĥé šàmé véŕšîöñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: its greeting is damaged.</source>
        <translation>[Çàññöţ àţţàçĥ ţö “%1”: îţš ĝŕééţîñĝ îš dàmàĝéd. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>This uniform has %1 elements, and no others can be set.</source>
        <translation>[Ţĥîš ûñîföŕm ĥàš %1 éléméñţš, àñd ñö öţĥéŕš çàñ bé šéţ. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The text is damaged.</source>
        <translation>[Ţĥé ţéxţ îš dàmàĝéd. ~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be set so, since the program would draw more than there is.</source>
        <translation>[“%1” çàññöţ bé šéţ šö, šîñçé ţĥé pŕöĝŕàm wöûld dŕàw möŕé ţĥàñ ţĥéŕé îš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be set so, since the sequence would show children that it does not have.</source>
        <translation>[“%1” çàññöţ bé šéţ šö, šîñçé ţĥé šéqûéñçé wöûld šĥöw çĥîldŕéñ ţĥàţ îţ döéš ñöţ ĥàvé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be set so, since the sequence would never come to the end of a frame; each child needs some time, and a sequence that runs a speed above 0.</source>
        <translation>[“%1” çàññöţ bé šéţ šö, šîñçé ţĥé šéqûéñçé wöûld ñévéŕ çömé ţö ţĥé éñd öf à fŕàmé; éàçĥ çĥîld ñéédš šömé ţîmé, àñd à šéqûéñçé ţĥàţ ŕûñš à špééd àbövé 0. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be set, since its object has ended.</source>
        <translation>[“%1” çàññöţ bé šéţ, šîñçé îţš öbĵéçţ ĥàš éñdéd. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Objects of type “%1” have no “%2”.</source>
        <translation>[Öbĵéçţš öf ţýpé “%1” ĥàvé ñö “%2”. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program was still drawing after two seconds; try again.</source>
        <translation>[Ţĥé pŕöĝŕàm wàš šţîll dŕàwîñĝ àfţéŕ ţwö šéçöñdš; ţŕý àĝàîñ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” takes no value of this type.</source>
        <translation>[“%1” ţàķéš ñö vàlûé öf ţĥîš ţýpé. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” has no choice with the number %2.</source>
        <translation>[“%1” ĥàš ñö çĥöîçé wîţĥ ţĥé ñûmbéŕ %2. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” can only be read, since OpenSceneGraph offers no safe way to set it.</source>
        <translation>[“%1” çàñ öñlý bé ŕéàd, šîñçé ÖpéñŠçéñéĜŕàpĥ öfféŕš ñö šàfé wàý ţö šéţ îţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A node can only be added to a group that still exists.</source>
        <translation>[À ñödé çàñ öñlý bé àddéd ţö à ĝŕöûp ţĥàţ šţîll éxîšţš. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>No node of type “%1” can be added.</source>
        <translation>[Ñö ñödé öf ţýpé “%1” çàñ bé àddéd. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>There is no such child to remove.</source>
        <translation>[Ţĥéŕé îš ñö šûçĥ çĥîld ţö ŕémövé. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The child cannot be removed, since the sequence shows as many children as it has; lower “End” first.</source>
        <translation>[Ţĥé çĥîld çàññöţ bé ŕémövéd, šîñçé ţĥé šéqûéñçé šĥöwš àš màñý çĥîldŕéñ àš îţ ĥàš; löwéŕ “Éñd” fîŕšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A node can only be inserted into a group, and both have to exist.</source>
        <translation>[À ñödé çàñ öñlý bé îñšéŕţéd îñţö à ĝŕöûp, àñd böţĥ ĥàvé ţö éxîšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A node can only be copied into a group, and both have to exist.</source>
        <translation>[À ñödé çàñ öñlý bé çöpîéd îñţö à ĝŕöûp, àñd böţĥ ĥàvé ţö éxîšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The camera of a view cannot be copied.</source>
        <translation>[Ţĥé çàméŕà öf à vîéw çàññöţ bé çöpîéd. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The node cannot be copied, since more than %1 nodes are below it.</source>
        <translation>[Ţĥé ñödé çàññöţ bé çöpîéd, šîñçé möŕé ţĥàñ %1 ñödéš àŕé bélöw îţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The node cannot be copied, since the program does not say how objects of type “%1” are copied.</source>
        <translation>[Ţĥé ñödé çàññöţ bé çöpîéd, šîñçé ţĥé pŕöĝŕàm döéš ñöţ šàý ĥöw öbĵéçţš öf ţýpé “%1” àŕé çöpîéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A node cannot be put below itself.</source>
        <translation>[À ñödé çàññöţ bé pûţ bélöw îţšélf. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The group “%1” did not take the node.</source>
        <translation>[Ţĥé ĝŕöûp “%1” dîd ñöţ ţàķé ţĥé ñödé. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The pixels of this picture take another one of %1 × %2 pixels only, with as many components.</source>
        <translation>[Ţĥé pîxélš öf ţĥîš pîçţûŕé ţàķé àñöţĥéŕ öñé öf %1 × %2 pîxélš öñlý, wîţĥ àš màñý çömpöñéñţš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>This list has 1 element, one for each child, and no others can be set.</source>
        <translation>[Ţĥîš lîšţ ĥàš 1 éléméñţ, öñé föŕ éàçĥ çĥîld, àñd ñö öţĥéŕš çàñ bé šéţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>This list has %1 elements, one for each child, and no others can be set.</source>
        <translation>[Ţĥîš lîšţ ĥàš %1 éléméñţš, öñé föŕ éàçĥ çĥîld, àñd ñö öţĥéŕš çàñ bé šéţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” takes %2 numbers, each within its range.</source>
        <translation>[“%1” ţàķéš %2 ñûmbéŕš, éàçĥ wîţĥîñ îţš ŕàñĝé. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>OpenSceneGraph did not take the value of “%1”.</source>
        <translation>[ÖpéñŠçéñéĜŕàpĥ dîd ñöţ ţàķé ţĥé vàlûé öf “%1”. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be set, since that object has ended.</source>
        <translation>[“%1” çàññöţ bé šéţ, šîñçé ţĥàţ öbĵéçţ ĥàš éñdéd. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” takes no object of type “%2”.</source>
        <translation>[“%1” ţàķéš ñö öbĵéçţ öf ţýpé “%2”. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” takes nothing but pictures.</source>
        <translation>[“%1” ţàķéš ñöţĥîñĝ bûţ pîçţûŕéš. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program’s adapter failed: an exception of no known type.</source>
        <translation>[Ţĥé pŕöĝŕàm’š àdàpţéŕ fàîléd: àñ éxçépţîöñ öf ñö ķñöwñ ţýpé. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program’s adapter failed: %1.</source>
        <translation>[Ţĥé pŕöĝŕàm’š àdàpţéŕ fàîléd: %1. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program could not do it: an exception of no known type.</source>
        <translation>[Ţĥé pŕöĝŕàm çöûld ñöţ dö îţ: àñ éxçépţîöñ öf ñö ķñöwñ ţýpé. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program could not do it: %1.</source>
        <translation>[Ţĥé pŕöĝŕàm çöûld ñöţ dö îţ: %1. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The inspector asked something that this program does not understand; detached.</source>
        <translation>[Ţĥé îñšpéçţöŕ àšķéd šöméţĥîñĝ ţĥàţ ţĥîš pŕöĝŕàm döéš ñöţ ûñdéŕšţàñd; déţàçĥéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program’s adapter failed: the answer is longer than %1 MiB.</source>
        <translation>[Ţĥé pŕöĝŕàm’š àdàpţéŕ fàîléd: ţĥé àñšwéŕ îš löñĝéŕ ţĥàñ %1 MîB. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program could not do it: the answer is too long.</source>
        <translation>[Ţĥé pŕöĝŕàm çöûld ñöţ dö îţ: ţĥé àñšwéŕ îš ţöö löñĝ. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The node cannot be removed: the inspector keeps too many removed nodes already.</source>
        <translation>[Ţĥé ñödé çàññöţ bé ŕémövéd: ţĥé îñšpéçţöŕ ķéépš ţöö màñý ŕémövéd ñödéš àlŕéàdý. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The inspector watches too many nodes; detached.</source>
        <translation>[Ţĥé îñšpéçţöŕ wàţçĥéš ţöö màñý ñödéš; déţàçĥéd. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program’s adapter failed: the value of “%1” does not have the bytes of its kind.</source>
        <translation>[Ţĥé pŕöĝŕàm’š àdàpţéŕ fàîléd: ţĥé vàlûé öf “%1” döéš ñöţ ĥàvé ţĥé býţéš öf îţš ķîñd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program “%1” belongs to another user; inspect it as that user.</source>
        <translation>[Ţĥé pŕöĝŕàm “%1” bélöñĝš ţö àñöţĥéŕ ûšéŕ; îñšpéçţ îţ àš ţĥàţ ûšéŕ. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program “%1” has as many inspectors as it can have; detach another one first.</source>
        <translation>[Ţĥé pŕöĝŕàm “%1” ĥàš àš màñý îñšpéçţöŕš àš îţ çàñ ĥàvé; déţàçĥ àñöţĥéŕ öñé fîŕšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The inspector sent a message that is too long or damaged; detached.</source>
        <translation>[Ţĥé îñšpéçţöŕ šéñţ à méššàĝé ţĥàţ îš ţöö löñĝ öŕ dàmàĝéd; déţàçĥéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The inspector sent a message that this program does not understand; detached.</source>
        <translation>[Ţĥé îñšpéçţöŕ šéñţ à méššàĝé ţĥàţ ţĥîš pŕöĝŕàm döéš ñöţ ûñdéŕšţàñd; déţàçĥéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program “%1” was not greeted as an inspector greets it.</source>
        <translation>[Ţĥé pŕöĝŕàm “%1” wàš ñöţ ĝŕééţéd àš àñ îñšpéçţöŕ ĝŕééţš îţ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program “%1” speaks version %2 of the protocol and this inspector version %3; use libraries and an inspector of the same version.</source>
        <translation>[Ţĥé pŕöĝŕàm “%1” špéàķš véŕšîöñ %2 öf ţĥé pŕöţöçöl àñd ţĥîš îñšpéçţöŕ véŕšîöñ %3; ûšé lîbŕàŕîéš àñd àñ îñšpéçţöŕ öf ţĥé šàmé véŕšîöñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The inspector did not greet the program in time.</source>
        <translation>[Ţĥé îñšpéçţöŕ dîd ñöţ ĝŕééţ ţĥé pŕöĝŕàm îñ ţîmé. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program “%1” has ended its connection.</source>
        <translation>[Ţĥé pŕöĝŕàm “%1” ĥàš éñdéd îţš çöññéçţîöñ. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be set: it can only be read.</source>
        <translation>[“%1” çàññöţ bé šéţ: îţ çàñ öñlý bé ŕéàd. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be set: the value is of another type.</source>
        <translation>[“%1” çàññöţ bé šéţ: ţĥé vàlûé îš öf àñöţĥéŕ ţýpé. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be set: it cannot hold that value.</source>
        <translation>[“%1” çàññöţ bé šéţ: îţ çàññöţ ĥöld ţĥàţ vàlûé. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The node cannot be inserted there, since it would be its own descendant.</source>
        <translation>[Ţĥé ñödé çàññöţ bé îñšéŕţéd ţĥéŕé, šîñçé îţ wöûld bé îţš öwñ déšçéñdàñţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be set: the node is no more or has no such field.</source>
        <translation>[“%1” çàññöţ bé šéţ: ţĥé ñödé îš ñö möŕé öŕ ĥàš ñö šûçĥ fîéld. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be added, since the group is no more.</source>
        <translation>[“%1” çàññöţ bé àddéd, šîñçé ţĥé ĝŕöûp îš ñö möŕé. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be added, since the program knows no node of this type.</source>
        <translation>[“%1” çàññöţ bé àddéd, šîñçé ţĥé pŕöĝŕàm ķñöwš ñö ñödé öf ţĥîš ţýpé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The node cannot be removed, since it is not there any more.</source>
        <translation>[Ţĥé ñödé çàññöţ bé ŕémövéd, šîñçé îţ îš ñöţ ţĥéŕé àñý möŕé. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The node cannot be inserted, since it or its group is no more.</source>
        <translation>[Ţĥé ñödé çàññöţ bé îñšéŕţéd, šîñçé îţ öŕ îţš ĝŕöûp îš ñö möŕé. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The node cannot be copied, since it or its group is no more.</source>
        <translation>[Ţĥé ñödé çàññöţ bé çöpîéd, šîñçé îţ öŕ îţš ĝŕöûp îš ñö möŕé. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The node cannot be copied, since something in it is of a kind that cannot be.</source>
        <translation>[Ţĥé ñödé çàññöţ bé çöpîéd, šîñçé šöméţĥîñĝ îñ îţ îš öf à ķîñd ţĥàţ çàññöţ bé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written: %2.</source>
        <translation>[Ţĥé pîçţûŕé “%1” çàññöţ bé wŕîţţéñ: %2. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>another program is just changing the settings</source>
        <translation>[àñöţĥéŕ pŕöĝŕàm îš ĵûšţ çĥàñĝîñĝ ţĥé šéţţîñĝš ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>[Çĥàñĝé %1 ~~~~]</translation>
    </message>
    <message>
        <source>There is no text to paste.</source>
        <translation>[Ţĥéŕé îš ñö ţéxţ ţö pàšţé. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The text holds no nodes that can be pasted: %1</source>
        <translation>[Ţĥé ţéxţ ĥöldš ñö ñödéš ţĥàţ çàñ bé pàšţéd: %1 ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>There are no nodes in the text to paste.</source>
        <translation>[Ţĥéŕé àŕé ñö ñödéš îñ ţĥé ţéxţ ţö pàšţé. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Delete “%1”</source>
        <translation>[Déléţé “%1” ~~~~]</translation>
    </message>
    <message>
        <source>Delete %1 Nodes</source>
        <translation>[Déléţé %1 Ñödéš ~~~~~~]</translation>
    </message>
    <message>
        <source>Cut “%1”</source>
        <translation>[Çûţ “%1” ~~~]</translation>
    </message>
    <message>
        <source>Cut %1 Nodes</source>
        <translation>[Çûţ %1 Ñödéš ~~~~~]</translation>
    </message>
    <message>
        <source>Duplicate “%1”</source>
        <translation>[Dûplîçàţé “%1” ~~~~~~]</translation>
    </message>
    <message>
        <source>Duplicate %1 Nodes</source>
        <translation>[Dûplîçàţé %1 Ñödéš ~~~~~~~]</translation>
    </message>
    <message>
        <source>Paste “%1”</source>
        <translation>[Pàšţé “%1” ~~~~]</translation>
    </message>
    <message>
        <source>Paste %1 Nodes</source>
        <translation>[Pàšţé %1 Ñödéš ~~~~~~]</translation>
    </message>
    <message>
        <source>Ungroup “%1”</source>
        <translation>[Ûñĝŕöûp “%1” ~~~~~]</translation>
    </message>
    <message>
        <source>Ungroup %1 Nodes</source>
        <translation>[Ûñĝŕöûp %1 Ñödéš ~~~~~~]</translation>
    </message>
    <message>
        <source>Group “%1”</source>
        <translation>[Ĝŕöûp “%1” ~~~~]</translation>
    </message>
    <message>
        <source>Group %1 Nodes</source>
        <translation>[Ĝŕöûp %1 Ñödéš ~~~~~~]</translation>
    </message>
    <message>
        <source>Make Unique “%1”</source>
        <translation>[Màķé Ûñîqûé “%1” ~~~~~~]</translation>
    </message>
    <message>
        <source>Make Unique %1 Nodes</source>
        <translation>[Màķé Ûñîqûé %1 Ñödéš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Move “%1”</source>
        <translation>[Mövé “%1” ~~~~]</translation>
    </message>
    <message>
        <source>Move %1 Nodes</source>
        <translation>[Mövé %1 Ñödéš ~~~~~]</translation>
    </message>
    <message>
        <source>Copy “%1”</source>
        <translation>[Çöpý “%1” ~~~~]</translation>
    </message>
    <message>
        <source>Copy %1 Nodes</source>
        <translation>[Çöpý %1 Ñödéš ~~~~~]</translation>
    </message>
    <message>
        <source>Share “%1”</source>
        <translation>[Šĥàŕé “%1” ~~~~]</translation>
    </message>
    <message>
        <source>Share %1 Nodes</source>
        <translation>[Šĥàŕé %1 Ñödéš ~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” has been changed meanwhile.</source>
        <translation>[“%1” ĥàš bééñ çĥàñĝéd méàñwĥîlé. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>scopix: There is no display to open a window on; --screenshot OUT.png writes a picture of the window without one.</source>
        <translation>[šçöpîx: Ţĥéŕé îš ñö dîšplàý ţö öpéñ à wîñdöw öñ; --šçŕééñšĥöţ ÖÛŢ.pñĝ wŕîţéš à pîçţûŕé öf ţĥé wîñdöw wîţĥöûţ öñé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>--launch expects a program and its arguments, and nothing was given.</source>
        <translation>[--làûñçĥ éxpéçţš à pŕöĝŕàm àñd îţš àŕĝûméñţš, àñd ñöţĥîñĝ wàš ĝîvéñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The scene or model to open; several get a tab each, the first in front. A patch among them is for the one before it.</source>
        <translation>[Ţĥé šçéñé öŕ mödél ţö öpéñ; šévéŕàl ĝéţ à ţàb éàçĥ, ţĥé fîŕšţ îñ fŕöñţ. À pàţçĥ àmöñĝ ţĥém îš föŕ ţĥé öñé béföŕé îţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>--select expects NODE.FIELD, such as Material.transparency, and not “%1”.</source>
        <translation>[--šéléçţ éxpéçţš ÑÖDÉ.FÎÉLD, šûçĥ àš Màţéŕîàl.ţŕàñšpàŕéñçý, àñd ñöţ “%1”. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>--size expects WIDTHxHEIGHT, such as 1920x1080, and not “%1”.</source>
        <translation>[--šîžé éxpéçţš WÎDŢĤxĤÉÎĜĤŢ, šûçĥ àš 1920x1080, àñd ñöţ “%1”. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>--turntable expects a number of pictures, 2 or more, and not “%1”.</source>
        <translation>[--ţûŕñţàblé éxpéçţš à ñûmbéŕ öf pîçţûŕéš, 2 öŕ möŕé, àñd ñöţ “%1”. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>--tone-mapping expects none, neutral or filmic, and not “%1”.</source>
        <translation>[--ţöñé-màppîñĝ éxpéçţš ñöñé, ñéûţŕàl öŕ fîlmîç, àñd ñöţ “%1”. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>--%1 says how a picture is made, and --picture OUT.png is missing.</source>
        <translation>[--%1 šàýš ĥöw à pîçţûŕé îš màdé, àñd --pîçţûŕé ÖÛŢ.pñĝ îš mîššîñĝ. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>--save writes what FILE holds, and no FILE was given.</source>
        <translation>[--šàvé wŕîţéš wĥàţ FÎLÉ ĥöldš, àñd ñö FÎLÉ wàš ĝîvéñ. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>--save writes what one FILE holds, and %1 were given, the second being “%2”.</source>
        <translation>[--šàvé wŕîţéš wĥàţ öñé FÎLÉ ĥöldš, àñd %1 wéŕé ĝîvéñ, ţĥé šéçöñd béîñĝ “%2”. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>--save opens no window, so that --%1 cannot be given with it.</source>
        <translation>[--šàvé öpéñš ñö wîñdöw, šö ţĥàţ --%1 çàññöţ bé ĝîvéñ wîţĥ îţ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>--%1 expects %2, and nothing was given.</source>
        <translation>[--%1 éxpéçţš %2, àñd ñöţĥîñĝ wàš ĝîvéñ. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>FILE expects the path of a scene or model, and nothing was given.</source>
        <translation>[FÎLÉ éxpéçţš ţĥé pàţĥ öf à šçéñé öŕ mödél, àñd ñöţĥîñĝ wàš ĝîvéñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Either FILE or one running program can be shown, and more than one of them was given.</source>
        <translation>[Éîţĥéŕ FÎLÉ öŕ öñé ŕûññîñĝ pŕöĝŕàm çàñ bé šĥöwñ, àñd möŕé ţĥàñ öñé öf ţĥém wàš ĝîvéñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Usage: scopix %1 %2</source>
        <translation>[Ûšàĝé: šçöpîx %1 %2 ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>[Öpţîöñš: ~~~]</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>[Éxàmpléš: ~~~~]</translation>
    </message>
    <message>
        <source>Exit status: %1; 2 where it cannot be done.</source>
        <translation>[Éxîţ šţàţûš: %1; 2 wĥéŕé îţ çàññöţ bé döñé. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1: The patch cannot be read: %2.</source>
        <translation>[%1: Ţĥé pàţçĥ çàññöţ bé ŕéàd: %2. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The patch “%1” cannot be written: %2.</source>
        <translation>[Ţĥé pàţçĥ “%1” çàññöţ bé wŕîţţéñ: %2. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>environment lights</source>
        <translation>[éñvîŕöñméñţ lîĝĥţš ~~~~~~~]</translation>
    </message>
    <message>
        <source>fogs</source>
        <translation>[föĝš ~~]</translation>
    </message>
    <message>
        <source>animations</source>
        <translation>[àñîmàţîöñš ~~~~]</translation>
    </message>
    <message>
        <source>skins, whose present pose is kept</source>
        <translation>[šķîñš, wĥöšé pŕéšéñţ pöšé îš ķépţ ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>morph targets, whose present mix is kept</source>
        <translation>[möŕpĥ ţàŕĝéţš, wĥöšé pŕéšéñţ mîx îš ķépţ ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>clip planes</source>
        <translation>[çlîp plàñéš ~~~~]</translation>
    </message>
    <message>
        <source>lights</source>
        <translation>[lîĝĥţš ~~]</translation>
    </message>
    <message>
        <source>cameras</source>
        <translation>[çàméŕàš ~~~]</translation>
    </message>
    <message>
        <source>tracks that move other things than nodes and morph targets</source>
        <translation>[ţŕàçķš ţĥàţ mövé öţĥéŕ ţĥîñĝš ţĥàñ ñödéš àñd möŕpĥ ţàŕĝéţš ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>how fast, how long or how often animations are played</source>
        <translation>[ĥöw fàšţ, ĥöw löñĝ öŕ ĥöw öfţéñ àñîmàţîöñš àŕé plàýéd ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1, or that of another kind of model</source>
        <translation>[%1, öŕ ţĥàţ öf àñöţĥéŕ ķîñd öf mödél ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>[%1 öŕ %2 ~~~]</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>[ţĥéŕé îš ñö šûçĥ fîlé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is a folder, and a file was expected</source>
        <translation>[îţ îš à földéŕ, àñd à fîlé wàš éxpéçţéd ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is no file with an end, and one was expected</source>
        <translation>[îţ îš ñö fîlé wîţĥ àñ éñd, àñd öñé wàš éxpéçţéd ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its name was expected to end in %1</source>
        <translation>[îţš ñàmé wàš éxpéçţéd ţö éñd îñ %1 ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it cannot be read (%1)</source>
        <translation>[îţ çàññöţ bé ŕéàd (%1) ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is empty, and a scene or model was expected</source>
        <translation>[îţ îš émpţý, àñd à šçéñé öŕ mödél wàš éxpéçţéd ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation>[“%1” çàññöţ bé öpéñéd: %2. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the file is incomplete</source>
        <translation>[ţĥé fîlé îš îñçömpléţé ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its notes are damaged</source>
        <translation>[îţš ñöţéš àŕé dàmàĝéd ~~~~~~~~]</translation>
    </message>
    <message>
        <source>machine type %1</source>
        <translation>[màçĥîñé ţýpé %1 ~~~~~~]</translation>
    </message>
    <message>
        <source>it was built for another kind of machine (%1), this program runs on %2</source>
        <translation>[îţ wàš bûîlţ föŕ àñöţĥéŕ ķîñd öf màçĥîñé (%1), ţĥîš pŕöĝŕàm ŕûñš öñ %2 ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>[ûšéŕ %1 ~~~]</translation>
    </message>
    <message>
        <source>its version note is damaged</source>
        <translation>[îţš véŕšîöñ ñöţé îš dàmàĝéd ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its code crashed while it was tried in a process of its own (%1)</source>
        <translation>[îţš çödé çŕàšĥéd wĥîlé îţ wàš ţŕîéd îñ à pŕöçéšš öf îţš öwñ (%1) ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it was tried in a process of its own and did not finish loading within %1 seconds</source>
        <translation>[îţ wàš ţŕîéd îñ à pŕöçéšš öf îţš öwñ àñd dîd ñöţ fîñîšĥ löàdîñĝ wîţĥîñ %1 šéçöñdš ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>profile %1</source>
        <translation>[pŕöfîlé %1 ~~~~]</translation>
    </message>
    <message>
        <source>%1 must be a text</source>
        <translation>[%1 mûšţ bé à ţéxţ ~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>[%1 mûšţ bé %2 ~~~~~]</translation>
    </message>
    <message>
        <source>“%1” of %2</source>
        <translation>[“%1” öf %2 ~~~~]</translation>
    </message>
    <message>
        <source>“all” or a list of names</source>
        <translation>[“àll” öŕ à lîšţ öf ñàméš ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>each name in %1</source>
        <translation>[éàçĥ ñàmé îñ %1 ~~~~~~]</translation>
    </message>
    <message>
        <source>%1 must be an object in braces</source>
        <translation>[%1 mûšţ bé àñ öbĵéçţ îñ bŕàçéš ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“name” of %1</source>
        <translation>[“ñàmé” öf %1 ~~~~~]</translation>
    </message>
    <message>
        <source>a list of profiles</source>
        <translation>[à lîšţ öf pŕöfîléš ~~~~~~~]</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>[lîñé %1: %2 ~~~~]</translation>
    </message>
    <message>
        <source>the file must hold one object in braces</source>
        <translation>[ţĥé fîlé mûšţ ĥöld öñé öbĵéçţ îñ bŕàçéš ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be kept as a default: new nodes have no other nodes of the scene in their fields.</source>
        <translation>[“%1” çàññöţ bé ķépţ àš à défàûlţ: ñéw ñödéš ĥàvé ñö öţĥéŕ ñödéš öf ţĥé šçéñé îñ ţĥéîŕ fîéldš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The value of “%1” cannot be kept as a default: its text is longer than %2 characters.</source>
        <translation>[Ţĥé vàlûé öf “%1” çàññöţ bé ķépţ àš à défàûlţ: îţš ţéxţ îš löñĝéŕ ţĥàñ %2 çĥàŕàçţéŕš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it has more than %1 bytes</source>
        <translation>[îţ ĥàš möŕé ţĥàñ %1 býţéš ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it cannot be read to its end</source>
        <translation>[îţ çàññöţ bé ŕéàd ţö îţš éñd ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its name was expected to end in .%1</source>
        <translation>[îţš ñàmé wàš éxpéçţéd ţö éñd îñ .%1 ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>no picture</source>
        <translation>[ñö pîçţûŕé ~~~~]</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>[ĝŕéý ~~]</translation>
    </message>
    <message>
        <source>grey, alpha</source>
        <translation>[ĝŕéý, àlpĥà ~~~~]</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>[ŔĜB ~]</translation>
    </message>
    <message>
        <source>RGBA</source>
        <translation>[ŔĜBÀ ~~]</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>[émpţý ~~]</translation>
    </message>
    <message>
        <source>Another program has changed “%1” since it was opened or saved here.</source>
        <translation>[Àñöţĥéŕ pŕöĝŕàm ĥàš çĥàñĝéd “%1” šîñçé îţ wàš öpéñéd öŕ šàvéd ĥéŕé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Replacing it loses their changes; reloading it loses yours; reloading and reapplying keeps those of yours that still fit.</source>
        <translation>[Ŕéplàçîñĝ îţ löšéš ţĥéîŕ çĥàñĝéš; ŕélöàdîñĝ îţ löšéš ýöûŕš; ŕélöàdîñĝ àñd ŕéàpplýîñĝ ķéépš ţĥöšé öf ýöûŕš ţĥàţ šţîll fîţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Replacing it loses their changes.</source>
        <translation>[Ŕéplàçîñĝ îţ löšéš ţĥéîŕ çĥàñĝéš. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>[&amp;Ŕélöàd ~~~]</translation>
    </message>
    <message>
        <source>Reload and Re&amp;apply</source>
        <translation>[Ŕélöàd àñd Ŕé&amp;àpplý ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>[Šàvé &amp;Àš… ~~~~]</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>[Ŕé&amp;plàçé ~~~]</translation>
    </message>
    <message>
        <source>glTF in one file (*.glb)</source>
        <translation>[ĝlŢF îñ öñé fîlé (*.glb) ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>glTF (*.gltf)</source>
        <translation>[ĝlŢF (*.gltf) ~~~~~]</translation>
    </message>
    <message>
        <source>Wavefront (*.obj)</source>
        <translation>[Wàvéfŕöñţ (*.obj) ~~~~~~~]</translation>
    </message>
    <message>
        <source>Stanford polygons (*.ply)</source>
        <translation>[Šţàñföŕd pölýĝöñš (*.ply) ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Stereolithography (*.stl)</source>
        <translation>[Šţéŕéölîţĥöĝŕàpĥý (*.stl) ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Export Scene</source>
        <translation>[Éxpöŕţ Šçéñé ~~~~~]</translation>
    </message>
    <message>
        <source>“%1” will not keep everything. Export it?</source>
        <translation>[“%1” wîll ñöţ ķéép évéŕýţĥîñĝ. Éxpöŕţ îţ? ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>It leaves out: %1.</source>
        <translation>[Îţ léàvéš öûţ: %1. ~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>[&amp;Éxpöŕţ ~~~]</translation>
    </message>
    <message>
        <source>About Scopix</source>
        <translation>[Àböûţ Šçöpîx ~~~~~]</translation>
    </message>
    <message>
        <source>&lt;b&gt;Scopix %1&lt;/b&gt;&lt;p&gt;Opens a 3D scene and lets you click anything, tune any value live, undo everything and see what it costs.&lt;/p&gt;&lt;p&gt;Free under the MIT licence, by the Scopix authors.&lt;/p&gt;</source>
        <translation>[&lt;b&gt;Šçöpîx %1&lt;/b&gt;&lt;p&gt;Öpéñš à 3D šçéñé àñd léţš ýöû çlîçķ àñýţĥîñĝ, ţûñé àñý vàlûé lîvé, ûñdö évéŕýţĥîñĝ àñd šéé wĥàţ îţ çöšţš.&lt;/p&gt;&lt;p&gt;Fŕéé ûñdéŕ ţĥé MÎŢ lîçéñçé, bý ţĥé Šçöpîx àûţĥöŕš.&lt;/p&gt; ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Version, system, plug-ins and libraries</source>
        <translation>[Véŕšîöñ, šýšţém, plûĝ-îñš àñd lîbŕàŕîéš ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Copy for a Bug Report</source>
        <translation>[&amp;Çöpý föŕ à Bûĝ Ŕépöŕţ ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1
%2, process %3</source>
        <translation>[%1
%2, pŕöçéšš %3 ~~~~~~~]</translation>
    </message>
    <message>
        <source>No program that can be attached to is running.
scopix --launch PROGRAM starts one.</source>
        <translation>[Ñö pŕöĝŕàm ţĥàţ çàñ bé àţţàçĥéd ţö îš ŕûññîñĝ.
šçöpîx --làûñçĥ PŔÖĜŔÀM šţàŕţš öñé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Attach to a Running Program</source>
        <translation>[Àţţàçĥ ţö à Ŕûññîñĝ Pŕöĝŕàm ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Running programs</source>
        <translation>[Ŕûññîñĝ pŕöĝŕàmš ~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Attach</source>
        <translation>[&amp;Àţţàçĥ ~~~]</translation>
    </message>
    <message>
        <source>The file “%1” cannot be written: %2.</source>
        <translation>[Ţĥé fîlé “%1” çàññöţ bé wŕîţţéñ: %2. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing can be written to “%1”.</source>
        <translation>[Ñöţĥîñĝ çàñ bé wŕîţţéñ ţö “%1”. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Unsaved edits would not survive a crash. %1</source>
        <translation>[Ûñšàvéd édîţš wöûld ñöţ šûŕvîvé à çŕàšĥ. %1 ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Values &amp;Before the Edits</source>
        <translation>[Vàlûéš &amp;Béföŕé ţĥé Édîţš ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Before the edits</source>
        <translation>[Béföŕé ţĥé édîţš ~~~~~~]</translation>
    </message>
    <message>
        <source>The scene shows the values from when it was opened or last saved; press B in the view to see the present ones.</source>
        <translation>[Ţĥé šçéñé šĥöwš ţĥé vàlûéš fŕöm wĥéñ îţ wàš öpéñéd öŕ làšţ šàvéd; pŕéšš B îñ ţĥé vîéw ţö šéé ţĥé pŕéšéñţ öñéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>No value has been edited since the scene was opened or saved.</source>
        <translation>[Ñö vàlûé ĥàš bééñ édîţéd šîñçé ţĥé šçéñé wàš öpéñéd öŕ šàvéd. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>No value of what is selected has been edited since the scene was opened or saved.</source>
        <translation>[Ñö vàlûé öf wĥàţ îš šéléçţéd ĥàš bééñ édîţéd šîñçé ţĥé šçéñé wàš öpéñéd öŕ šàvéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Insert File</source>
        <translation>[Îñšéŕţ Fîlé ~~~~]</translation>
    </message>
    <message>
        <source>Insert “%1”</source>
        <translation>[Îñšéŕţ “%1” ~~~~]</translation>
    </message>
    <message>
        <source>No node is selected: select one in the tree or in the view first.</source>
        <translation>[Ñö ñödé îš šéléçţéd: šéléçţ öñé îñ ţĥé ţŕéé öŕ îñ ţĥé vîéw fîŕšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Save Branch As</source>
        <translation>[Šàvé Bŕàñçĥ Àš ~~~~~~]</translation>
    </message>
    <message>
        <source>Scenes (*.%1)</source>
        <translation>[Šçéñéš (*.%1) ~~~~~]</translation>
    </message>
    <message>
        <source>Saving “%1”…</source>
        <translation>[Šàvîñĝ “%1”… ~~~~~]</translation>
    </message>
    <message>
        <source>Saving “%1” was cancelled.</source>
        <translation>[Šàvîñĝ “%1” wàš çàñçélléd. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” was saved as “%2”.</source>
        <translation>[“%1” wàš šàvéd àš “%2”. ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The branch “%1” cannot be written to “%2”: %3.</source>
        <translation>[Ţĥé bŕàñçĥ “%1” çàññöţ bé wŕîţţéñ ţö “%2”: %3. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>something in it is of a kind that cannot be copied</source>
        <translation>[šöméţĥîñĝ îñ îţ îš öf à ķîñd ţĥàţ çàññöţ bé çöpîéd ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>[Ŕévéŕţ ~~]</translation>
    </message>
    <message>
        <source>%1, was %2, is %3</source>
        <translation>[%1, wàš %2, îš %3 ~~~~~~~]</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>[Çĥàñĝé ~~]</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>[Béföŕé ~~]</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>[Ñöw ~]</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>[Ţîmé ~~]</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>[Vàlûéš ~~]</translation>
    </message>
    <message>
        <source>Filter the changes</source>
        <translation>[Fîlţéŕ ţĥé çĥàñĝéš ~~~~~~~]</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>[Çĥàñĝéš ~~~]</translation>
    </message>
    <message>
        <source>Takes back the ticked changes, or those that are selected, as one step (Del).</source>
        <translation>[Ţàķéš bàçķ ţĥé ţîçķéd çĥàñĝéš, öŕ ţĥöšé ţĥàţ àŕé šéléçţéd, àš öñé šţép (Dél). ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Show Before</source>
        <translation>[Šĥöw Béföŕé ~~~~]</translation>
    </message>
    <message>
        <source>Shows the values from before the ticked changes, or before all of them.</source>
        <translation>[Šĥöwš ţĥé vàlûéš fŕöm béföŕé ţĥé ţîçķéd çĥàñĝéš, öŕ béföŕé àll öf ţĥém. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Tick All</source>
        <translation>[&amp;Ţîçķ Àll ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Untick All</source>
        <translation>[&amp;Ûñţîçķ Àll ~~~~]</translation>
    </message>
    <message>
        <source>Nothing differs from %1.</source>
        <translation>[Ñöţĥîñĝ dîfféŕš fŕöm %1. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 change from %1</source>
        <translation>[1 çĥàñĝé fŕöm %1 ~~~~~~]</translation>
    </message>
    <message>
        <source>%L1 changes from %2</source>
        <translation>[%L1 çĥàñĝéš fŕöm %2 ~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1, %2 of them ticked</source>
        <translation>[%1, %2 öf ţĥém ţîçķéd ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Changes that could not be taken over: %1; the first: %2</source>
        <translation>[Çĥàñĝéš ţĥàţ çöûld ñöţ bé ţàķéñ övéŕ: %1; ţĥé fîŕšţ: %2 ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>None of these changes is one of a value that could be shown as it was.</source>
        <translation>[Ñöñé öf ţĥéšé çĥàñĝéš îš öñé öf à vàlûé ţĥàţ çöûld bé šĥöwñ àš îţ wàš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be set to “%2”: it is no value of a %3.</source>
        <translation>[“%1” çàññöţ bé šéţ ţö “%2”: îţ îš ñö vàlûé öf à %3. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>X</source>
        <translation>[X ~]</translation>
    </message>
    <message>
        <source>Cut across the x axis</source>
        <translation>[Çûţ àçŕöšš ţĥé x àxîš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>[Ý ~]</translation>
    </message>
    <message>
        <source>Cut across the y axis</source>
        <translation>[Çûţ àçŕöšš ţĥé ý àxîš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>[Ž ~]</translation>
    </message>
    <message>
        <source>Cut across the z axis</source>
        <translation>[Çûţ àçŕöšš ţĥé ž àxîš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cut across the line of sight</source>
        <translation>[Çûţ àçŕöšš ţĥé lîñé öf šîĝĥţ ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Where the plane cuts</source>
        <translation>[Wĥéŕé ţĥé plàñé çûţš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>[Flîp ~~]</translation>
    </message>
    <message>
        <source>Show the other side</source>
        <translation>[Šĥöw ţĥé öţĥéŕ šîdé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>[Çlöšé ~~]</translation>
    </message>
    <message>
        <source>Show the whole scene again</source>
        <translation>[Šĥöw ţĥé wĥölé šçéñé àĝàîñ ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>colours of highlights</source>
        <translation>[çölöûŕš öf ĥîĝĥlîĝĥţš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>hidden parts</source>
        <translation>[ĥîddéñ pàŕţš ~~~~~]</translation>
    </message>
    <message>
        <source>shapes without a place in space</source>
        <translation>[šĥàpéš wîţĥöûţ à plàçé îñ špàçé ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>ambient lights</source>
        <translation>[àmbîéñţ lîĝĥţš ~~~~~~]</translation>
    </message>
    <message>
        <source>how lights fade with distance</source>
        <translation>[ĥöw lîĝĥţš fàdé wîţĥ dîšţàñçé ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing is called so.</source>
        <translation>[Ñöţĥîñĝ îš çàlléd šö. ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Find Anything</source>
        <translation>[Fîñd Àñýţĥîñĝ ~~~~~]</translation>
    </message>
    <message>
        <source>An act, node, field or setting</source>
        <translation>[Àñ àçţ, ñödé, fîéld öŕ šéţţîñĝ ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>[Wĥàţ wàš föûñd ~~~~~~]</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>[àñöţĥéŕ pŕöĝŕàm îš ûšîñĝ îţ ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it holds no performance counters</source>
        <translation>[îţ ĥöldš ñö péŕföŕmàñçé çöûñţéŕš ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be put back: %2.</source>
        <translation>[“%1” çàññöţ bé pûţ bàçķ: %2. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is no library (no ELF file)</source>
        <translation>[îţ îš ñö lîbŕàŕý (ñö ÉLF fîlé) ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it was built for another kind of machine (another word size)</source>
        <translation>[îţ wàš bûîlţ föŕ àñöţĥéŕ ķîñd öf màçĥîñé (àñöţĥéŕ wöŕd šîžé) ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it was built for another kind of machine (another byte order)</source>
        <translation>[îţ wàš bûîlţ föŕ àñöţĥéŕ ķîñd öf màçĥîñé (àñöţĥéŕ býţé öŕdéŕ) ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is no library (an ELF file of another type)</source>
        <translation>[îţ îš ñö lîbŕàŕý (àñ ÉLF fîlé öf àñöţĥéŕ ţýpé) ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is no library (its header is damaged)</source>
        <translation>[îţ îš ñö lîbŕàŕý (îţš ĥéàdéŕ îš dàmàĝéd) ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>ignored</source>
        <translation>[îĝñöŕéd ~~~]</translation>
    </message>
    <message>
        <source>not ignored</source>
        <translation>[ñöţ îĝñöŕéd ~~~~]</translation>
    </message>
    <message>
        <source>default</source>
        <translation>[défàûlţ ~~~]</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>[%1 vàlûéš ~~~~]</translation>
    </message>
    <message>
        <source>none</source>
        <translation>[ñöñé ~~]</translation>
    </message>
    <message>
        <source>%1: %2 → %3 values</source>
        <translation>[%1: %2 → %3 vàlûéš ~~~~~~~]</translation>
    </message>
    <message>
        <source>%1: %2 values changed</source>
        <translation>[%1: %2 vàlûéš çĥàñĝéd ~~~~~~~~]</translation>
    </message>
    <message>
        <source>no longer ignored</source>
        <translation>[ñö löñĝéŕ îĝñöŕéd ~~~~~~~]</translation>
    </message>
    <message>
        <source>no longer default</source>
        <translation>[ñö löñĝéŕ défàûlţ ~~~~~~~]</translation>
    </message>
    <message>
        <source>follows another field</source>
        <translation>[föllöwš àñöţĥéŕ fîéld ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>[Fîéld ~~]</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>[Ţýpé ~~]</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>[Vàlûé ~~]</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>[&amp;Çöpý Vàlûé ~~~~]</translation>
    </message>
    <message>
        <source>Cop&amp;y Path</source>
        <translation>[Çöp&amp;ý Pàţĥ ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Reset to Default</source>
        <translation>[&amp;Ŕéšéţ ţö Défàûlţ ~~~~~~~]</translation>
    </message>
    <message>
        <source>Reset %1.%2</source>
        <translation>[Ŕéšéţ %1.%2 ~~~~]</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>[ñöţ ţĥéŕé ~~~~]</translation>
    </message>
    <message>
        <source>there</source>
        <translation>[ţĥéŕé ~~]</translation>
    </message>
    <message>
        <source>another node</source>
        <translation>[àñöţĥéŕ ñödé ~~~~~]</translation>
    </message>
    <message>
        <source>here</source>
        <translation>[ĥéŕé ~~]</translation>
    </message>
    <message>
        <source>after %1</source>
        <translation>[àfţéŕ %1 ~~~]</translation>
    </message>
    <message>
        <source>first</source>
        <translation>[fîŕšţ ~~]</translation>
    </message>
    <message>
        <source>elsewhere in its group</source>
        <translation>[élšéwĥéŕé îñ îţš ĝŕöûp ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Take over %1</source>
        <translation>[Ţàķé övéŕ %1 ~~~~~]</translation>
    </message>
    <message>
        <source>Take Over %1 Changes</source>
        <translation>[Ţàķé Övéŕ %1 Çĥàñĝéš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” before the last edits; choose More ▸ Compare Again</source>
        <translation>[“%1” béföŕé ţĥé làšţ édîţš; çĥööšé Möŕé ▸ Çömpàŕé Àĝàîñ ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Take Over</source>
        <translation>[Ţàķé Övéŕ ~~~~]</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>[Ŕéàdîñĝ %1… ~~~~]</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>[&amp;Ñéw ~~]</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>[&amp;Öpéñ… ~~]</translation>
    </message>
    <message>
        <source>Open a scene or model</source>
        <translation>[Öpéñ à šçéñé öŕ mödél ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Open &amp;in a New Tab…</source>
        <translation>[Öpéñ &amp;îñ à Ñéw Ţàb… ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>[Öpéñ &amp;Ŕéçéñţ ~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>[&amp;Šàvé ~~]</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>[&amp;Éxpöŕţ… ~~~]</translation>
    </message>
    <message>
        <source>&amp;Close Tab</source>
        <translation>[&amp;Çlöšé Ţàb ~~~~]</translation>
    </message>
    <message>
        <source>With Ctrl held, it opens in a new tab</source>
        <translation>[Wîţĥ Çţŕl ĥéld, îţ öpéñš îñ à ñéw ţàb ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>None Yet</source>
        <translation>[Ñöñé Ýéţ ~~~]</translation>
    </message>
    <message>
        <source>&amp;Clear This List</source>
        <translation>[&amp;Çléàŕ Ţĥîš Lîšţ ~~~~~~]</translation>
    </message>
    <message>
        <source>Find in the scene</source>
        <translation>[Fîñd îñ ţĥé šçéñé ~~~~~~~]</translation>
    </message>
    <message>
        <source>&lt;p&gt;Finds nodes by name, type or text; also &lt;b&gt;type:Light&lt;/b&gt;, &lt;b&gt;name:door&lt;/b&gt;, &lt;b&gt;field:radius&lt;/b&gt;, &lt;b&gt;value:0.5&lt;/b&gt;, &lt;b&gt;transparency&amp;gt;0&lt;/b&gt;, &lt;b&gt;translation.x=1&lt;/b&gt;, &lt;b&gt;changed&lt;/b&gt;, &lt;b&gt;connected&lt;/b&gt;, &lt;b&gt;ignored&lt;/b&gt;, &lt;b&gt;shared&lt;/b&gt;. A minus sign before a term means “not”, a bar between terms “or”.&lt;/p&gt;</source>
        <translation>[&lt;p&gt;Fîñdš ñödéš bý ñàmé, ţýpé öŕ ţéxţ; àlšö &lt;b&gt;ţýpé:Lîĝĥţ&lt;/b&gt;, &lt;b&gt;ñàmé:dööŕ&lt;/b&gt;, &lt;b&gt;fîéld:ŕàdîûš&lt;/b&gt;, &lt;b&gt;vàlûé:0.5&lt;/b&gt;, &lt;b&gt;ţŕàñšpàŕéñçý&amp;gt;0&lt;/b&gt;, &lt;b&gt;ţŕàñšlàţîöñ.x=1&lt;/b&gt;, &lt;b&gt;çĥàñĝéd&lt;/b&gt;, &lt;b&gt;çöññéçţéd&lt;/b&gt;, &lt;b&gt;îĝñöŕéd&lt;/b&gt;, &lt;b&gt;šĥàŕéd&lt;/b&gt;. À mîñûš šîĝñ béföŕé à ţéŕm méàñš “ñöţ”, à bàŕ béţwééñ ţéŕmš “öŕ”.&lt;/p&gt; ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>[Pŕévîöûš ~~~]</translation>
    </message>
    <message>
        <source>Previous (Shift+Enter)</source>
        <translation>[Pŕévîöûš (Šĥîfţ+Éñţéŕ) ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>[Ñéxţ ~~]</translation>
    </message>
    <message>
        <source>Next (Enter)</source>
        <translation>[Ñéxţ (Éñţéŕ) ~~~~~]</translation>
    </message>
    <message>
        <source>Show only what is found</source>
        <translation>[Šĥöw öñlý wĥàţ îš föûñd ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Show only what is found, and what it is in</source>
        <translation>[Šĥöw öñlý wĥàţ îš föûñd, àñd wĥàţ îţ îš îñ ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>[%1 öf %2 ~~~]</translation>
    </message>
    <message>
        <source>Select %1</source>
        <translation>[Šéléçţ %1 ~~~~]</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>[Öpéñ %1 ~~~]</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>[Ûñdö %1 ~~~]</translation>
    </message>
    <message>
        <source>it has no entry point “%1”</source>
        <translation>[îţ ĥàš ñö éñţŕý pöîñţ “%1” ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The picture of the program is in the main window.</source>
        <translation>[Ţĥé pîçţûŕé öf ţĥé pŕöĝŕàm îš îñ ţĥé màîñ wîñdöw. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Handles in the 3D View</source>
        <translation>[Ĥàñdléš îñ ţĥé 3D Vîéw ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Close This Window</source>
        <translation>[&amp;Çlöšé Ţĥîš Wîñdöw ~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;New Window</source>
        <translation>[&amp;Ñéw Wîñdöw ~~~~]</translation>
    </message>
    <message>
        <source>Handles Along Their &amp;Own Axes</source>
        <translation>[Ĥàñdléš Àlöñĝ Ţĥéîŕ &amp;Öwñ Àxéš ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>[&amp;Šéléçţ ~~~]</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>[&amp;Mövé ~~]</translation>
    </message>
    <message>
        <source>&amp;Turn</source>
        <translation>[&amp;Ţûŕñ ~~]</translation>
    </message>
    <message>
        <source>S&amp;cale</source>
        <translation>[Š&amp;çàlé ~~]</translation>
    </message>
    <message>
        <source>There are no handles for “%1”: it is not in sight.</source>
        <translation>[Ţĥéŕé àŕé ñö ĥàñdléš föŕ “%1”: îţ îš ñöţ îñ šîĝĥţ. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be moved: it has no place.</source>
        <translation>[“%1” çàññöţ bé mövéd: îţ ĥàš ñö plàçé. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be turned: it has no direction.</source>
        <translation>[“%1” çàññöţ bé ţûŕñéd: îţ ĥàš ñö dîŕéçţîöñ. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be scaled: it has no size.</source>
        <translation>[“%1” çàññöţ bé šçàléd: îţ ĥàš ñö šîžé. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The handles change %1 nodes together.</source>
        <translation>[Ţĥé ĥàñdléš çĥàñĝé %1 ñödéš ţöĝéţĥéŕ. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The handles change %1 parts together; dragging puts a Transform above %2 of them.</source>
        <translation>[Ţĥé ĥàñdléš çĥàñĝé %1 pàŕţš ţöĝéţĥéŕ; dŕàĝĝîñĝ pûţš à Ţŕàñšföŕm àbövé %2 öf ţĥém. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Dragging a handle puts a Transform above “%1”.</source>
        <translation>[Dŕàĝĝîñĝ à ĥàñdlé pûţš à Ţŕàñšföŕm àbövé “%1”. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The handles change “%1”, which moves “%2”.</source>
        <translation>[Ţĥé ĥàñdléš çĥàñĝé “%1”, wĥîçĥ mövéš “%2”. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 nodes</source>
        <translation>[%1 ñödéš ~~~]</translation>
    </message>
    <message>
        <source>Put a Transform above “%1”.</source>
        <translation>[Pûţ à Ţŕàñšföŕm àbövé “%1”. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Put a Transform above each of %1 parts.</source>
        <translation>[Pûţ à Ţŕàñšföŕm àbövé éàçĥ öf %1 pàŕţš. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>[Mövé %1 ~~~]</translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation>[Ţûŕñ %1 ~~~]</translation>
    </message>
    <message>
        <source>Scale %1</source>
        <translation>[Šçàlé %1 ~~~]</translation>
    </message>
    <message>
        <source>own axes</source>
        <translation>[öwñ àxéš ~~~]</translation>
    </message>
    <message>
        <source>&amp;Moving in the 3D View</source>
        <translation>[&amp;Mövîñĝ îñ ţĥé 3D Vîéw ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Help on What &amp;Is Selected</source>
        <translation>[Ĥélp öñ Wĥàţ &amp;Îš Šéléçţéd ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>T&amp;utorial</source>
        <translation>[Ţ&amp;ûţöŕîàl ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Documentation</source>
        <translation>[&amp;Döçûméñţàţîöñ ~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Nodes</source>
        <translation>[&amp;Ñödéš ~~]</translation>
    </message>
    <message>
        <source>&amp;About Scopix</source>
        <translation>[&amp;Àböûţ Šçöpîx ~~~~~]</translation>
    </message>
    <message>
        <source>Moving in the 3D View</source>
        <translation>[Mövîñĝ îñ ţĥé 3D Vîéw ~~~~~~~~]</translation>
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
        <translation>[Ţûŕñ: dŕàĝ wîţĥ ţĥé léfţ bûţţöñ.
Mövé: dŕàĝ wîţĥ ţĥé mîddlé öŕ ŕîĝĥţ bûţţöñ.
Ñéàŕéŕ, fàŕţĥéŕ: ţûŕñ ţĥé wĥéél; ţĥé plàçé ûñdéŕ ţĥé pöîñţéŕ šţàýš.
Šéléçţ: çlîçķ; öñçé möŕé föŕ ţĥé šĥàpé, ţĥéñ îţš màţéŕîàl. Çţŕl àddš, Šĥîfţ àñd dŕàĝĝîñĝ šéléçţš àll îñ à ŕéçţàñĝlé, Àlţ lîšţš wĥàţ îš ûñdéŕ ţĥé pöîñţéŕ. Éšç ĝöéš ûp.
Šéé àll öf ţĥé šéléçţéd pàŕţ: döûblé-çlîçķ, öŕ F.
Šéé évéŕýţĥîñĝ: À. Àš àţ fîŕšţ, ţĥŕöûĝĥ ţĥé šçéñé'š öwñ çàméŕà wĥéŕé îţ ĥàš öñé: Ĥömé.
Bý ķéýš: ţĥé àŕŕöwš ţûŕñ, wîţĥ Šĥîfţ ţĥéý mövé; plûš àñd mîñûš çömé ñéàŕéŕ àñd ĝö àwàý.
Šéléçţ bý ķéýš: Çţŕl àñd ţĥé àŕŕöwš mövé à çŕöššĥàîŕ, Éñţéŕ çlîçķš ţĥéŕé.
Méàšûŕé: M.
Fŕöm ţĥé fŕöñţ, ţĥé ŕîĝĥţ, ţĥé ţöp: 1, 3, 7; öŕţĥöĝŕàpĥîç: 5. Wàlķ: Šĥîfţ+W.
Mövé, ţûŕñ, šçàlé wĥàţ îš šéléçţéd: W, É, Ŕ, ţĥéñ dŕàĝ à ĥàñdlé, öŕ X, Ý öŕ Ž àñd à ñûmbéŕ; šéléçţ àĝàîñ: Q. Šĥîfţ îš fîñéŕ, Çţŕl šñàpš.
Ĥîdé öŕ šĥöw wĥàţ îš šéléçţéd: Ĥ, šĥöw àll: Šĥîfţ+Ĥ, šĥöw ñöţĥîñĝ élšé: /.
Fîñd à ñödé: Çţŕl+F.
Édĝéš öñlý: F3. Wĥàţ à pîçţûŕé çöšţš: F4. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The documentation cannot be shown: it is not installed beside the program.</source>
        <translation>[Ţĥé döçûméñţàţîöñ çàññöţ bé šĥöwñ: îţ îš ñöţ îñšţàlléd béšîdé ţĥé pŕöĝŕàm. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The tutorial cannot be shown: it is not installed beside the program.</source>
        <translation>[Ţĥé ţûţöŕîàl çàññöţ bé šĥöwñ: îţ îš ñöţ îñšţàlléd béšîdé ţĥé pŕöĝŕàm. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The page on nodes cannot be shown: it is not installed beside the program.</source>
        <translation>[Ţĥé pàĝé öñ ñödéš çàññöţ bé šĥöwñ: îţ îš ñöţ îñšţàlléd béšîdé ţĥé pŕöĝŕàm. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>[Döçûméñţàţîöñ ~~~~~]</translation>
    </message>
    <message>
        <source>Key: %1</source>
        <translation>[Ķéý: %1 ~~~]</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>[Föŕwàŕd ~~~]</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>[Çöñţéñţš ~~~]</translation>
    </message>
    <message>
        <source>Find in this page</source>
        <translation>[Fîñd îñ ţĥîš pàĝé ~~~~~~~]</translation>
    </message>
    <message>
        <source>Not in this page</source>
        <translation>[Ñöţ îñ ţĥîš pàĝé ~~~~~~]</translation>
    </message>
    <message>
        <source>Older steps were dropped to keep within %1 MiB</source>
        <translation>[Öldéŕ šţépš wéŕé dŕöppéd ţö ķéép wîţĥîñ %1 MîB ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>[Ûñçĥàñĝéd ~~~~]</translation>
    </message>
    <message>
        <source>Nothing can be edited while the values before the edits show; press B in the view to see the present ones.</source>
        <translation>[Ñöţĥîñĝ çàñ bé édîţéd wĥîlé ţĥé vàlûéš béföŕé ţĥé édîţš šĥöw; pŕéšš B îñ ţĥé vîéw ţö šéé ţĥé pŕéšéñţ öñéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Fold the &amp;Bottom Area</source>
        <translation>[Föld ţĥé &amp;Böţţöm Àŕéà ~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program ended or hung while it was loaded.</source>
        <translation>[Ţĥé pŕöĝŕàm éñdéd öŕ ĥûñĝ wĥîlé îţ wàš löàdéd. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Another one</source>
        <translation>[Àñöţĥéŕ öñé ~~~~]</translation>
    </message>
    <message>
        <source>The file of the performance counters, “%1”, is damaged: %2.</source>
        <translation>[Ţĥé fîlé öf ţĥé péŕföŕmàñçé çöûñţéŕš, “%1”, îš dàmàĝéd: %2. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A good copy of it was kept on %1. The damaged file is kept, too, when that is put back.</source>
        <translation>[À ĝööd çöpý öf îţ wàš ķépţ öñ %1. Ţĥé dàmàĝéd fîlé îš ķépţ, ţöö, wĥéñ ţĥàţ îš pûţ bàçķ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Put Back</source>
        <translation>[&amp;Pûţ Bàçķ ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Leave As It Is</source>
        <translation>[&amp;Léàvé Àš Îţ Îš ~~~~~~]</translation>
    </message>
    <message>
        <source>There is no profile named “%1”.</source>
        <translation>[Ţĥéŕé îš ñö pŕöfîlé ñàméd “%1”. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The extension “%1” failed in %2(): %3.</source>
        <translation>[Ţĥé éxţéñšîöñ “%1” fàîléd îñ %2(): %3. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>[Šéléçţîöñ ~~~~]</translation>
    </message>
    <message>
        <source>The extension “%1” failed when it was to be shown or hidden: %2</source>
        <translation>[Ţĥé éxţéñšîöñ “%1” fàîléd wĥéñ îţ wàš ţö bé šĥöwñ öŕ ĥîddéñ: %2 ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A plug-in failed when it was to add entries to a menu: %1</source>
        <translation>[À plûĝ-îñ fàîléd wĥéñ îţ wàš ţö àdd éñţŕîéš ţö à méñû: %1 ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation>[&amp;Šéţ ~~]</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>[Ç&amp;léàŕ ~~]</translation>
    </message>
    <message>
        <source>As S&amp;hipped</source>
        <translation>[Àš Š&amp;ĥîppéd ~~~~]</translation>
    </message>
    <message>
        <source>All keys as in</source>
        <translation>[Àll ķéýš àš îñ ~~~~~~]</translation>
    </message>
    <message>
        <source>All keys as in…</source>
        <translation>[Àll ķéýš àš îñ… ~~~~~~]</translation>
    </message>
    <message>
        <source>Find an act or a key</source>
        <translation>[Fîñd àñ àçţ öŕ à ķéý ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Acts and their keys</source>
        <translation>[Àçţš àñd ţĥéîŕ ķéýš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Act</source>
        <translation>[Àçţ ~]</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>[Ķéý ~]</translation>
    </message>
    <message>
        <source>Another key</source>
        <translation>[Àñöţĥéŕ ķéý ~~~~]</translation>
    </message>
    <message>
        <source>“%1” has this key, and loses it when you set it.</source>
        <translation>[“%1” ĥàš ţĥîš ķéý, àñd löšéš îţ wĥéñ ýöû šéţ îţ. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>[Çĥööšé… ~~~]</translation>
    </message>
    <message>
        <source>Launch a Program</source>
        <translation>[Làûñçĥ à Pŕöĝŕàm ~~~~~~]</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>[Pŕöĝŕàm ~~~]</translation>
    </message>
    <message>
        <source>A file, or a name such as osgviewer</source>
        <translation>[À fîlé, öŕ à ñàmé šûçĥ àš öšĝvîéwéŕ ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>[Àŕĝûméñţš ~~~~]</translation>
    </message>
    <message>
        <source>What stands behind it on a command line</source>
        <translation>[Wĥàţ šţàñdš béĥîñd îţ öñ à çömmàñd lîñé ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>[Földéŕ ~~]</translation>
    </message>
    <message>
        <source>The current folder</source>
        <translation>[Ţĥé çûŕŕéñţ földéŕ ~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Program:</source>
        <translation>[&amp;Pŕöĝŕàm: ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Arguments:</source>
        <translation>[&amp;Àŕĝûméñţš: ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>[&amp;Földéŕ: ~~~]</translation>
    </message>
    <message>
        <source>&amp;Launch</source>
        <translation>[&amp;Làûñçĥ ~~~]</translation>
    </message>
    <message>
        <source>its owner cannot be found out</source>
        <translation>[îţš öwñéŕ çàññöţ bé föûñd öûţ ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its folder “%1” belongs to %2, and only plug-ins of yours and of the administrator are loaded; copy it to a folder of yours if you trust it</source>
        <translation>[îţš földéŕ “%1” bélöñĝš ţö %2, àñd öñlý plûĝ-îñš öf ýöûŕš àñd öf ţĥé àdmîñîšţŕàţöŕ àŕé löàdéd; çöpý îţ ţö à földéŕ öf ýöûŕš îf ýöû ţŕûšţ îţ ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it belongs to %1, and only plug-ins of yours and of the administrator are loaded; copy it to a folder of yours if you trust it</source>
        <translation>[îţ bélöñĝš ţö %1, àñd öñlý plûĝ-îñš öf ýöûŕš àñd öf ţĥé àdmîñîšţŕàţöŕ àŕé löàdéd; çöpý îţ ţö à földéŕ öf ýöûŕš îf ýöû ţŕûšţ îţ ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>every user may write to its folder “%1”, so that it may be anybody's; take that permission away, or copy it to a folder of yours</source>
        <translation>[évéŕý ûšéŕ màý wŕîţé ţö îţš földéŕ “%1”, šö ţĥàţ îţ màý bé àñýbödý'š; ţàķé ţĥàţ péŕmîššîöñ àwàý, öŕ çöpý îţ ţö à földéŕ öf ýöûŕš ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>every user may write to it, so that it may be anybody's; take that permission away, or copy it to a folder of yours</source>
        <translation>[évéŕý ûšéŕ màý wŕîţé ţö îţ, šö ţĥàţ îţ màý bé àñýbödý'š; ţàķé ţĥàţ péŕmîššîöñ àwàý, öŕ çöpý îţ ţö à földéŕ öf ýöûŕš ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>other users, those of its group, may write to its folder “%1”; take that permission away, or copy it to a folder of yours</source>
        <translation>[öţĥéŕ ûšéŕš, ţĥöšé öf îţš ĝŕöûp, màý wŕîţé ţö îţš földéŕ “%1”; ţàķé ţĥàţ péŕmîššîöñ àwàý, öŕ çöpý îţ ţö à földéŕ öf ýöûŕš ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>other users, those of its group, may write to it; take that permission away, or copy it to a folder of yours</source>
        <translation>[öţĥéŕ ûšéŕš, ţĥöšé öf îţš ĝŕöûp, màý wŕîţé ţö îţ; ţàķé ţĥàţ péŕmîššîöñ àwàý, öŕ çöpý îţ ţö à földéŕ öf ýöûŕš ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 change</source>
        <translation>[1 çĥàñĝé ~~~]</translation>
    </message>
    <message>
        <source>%L1 changes</source>
        <translation>[%L1 çĥàñĝéš ~~~~]</translation>
    </message>
    <message>
        <source>A&amp;ttach to a Program…</source>
        <translation>[À&amp;ţţàçĥ ţö à Pŕöĝŕàm… ~~~~~~~~]</translation>
    </message>
    <message>
        <source>La&amp;unch a Program…</source>
        <translation>[Là&amp;ûñçĥ à Pŕöĝŕàm… ~~~~~~~]</translation>
    </message>
    <message>
        <source>Launch A&amp;gain</source>
        <translation>[Làûñçĥ À&amp;ĝàîñ ~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Detach</source>
        <translation>[&amp;Déţàçĥ ~~~]</translation>
    </message>
    <message>
        <source>Take My Changes &amp;Back</source>
        <translation>[Ţàķé Mý Çĥàñĝéš &amp;Bàçķ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Look at the Selected Node in the Program</source>
        <translation>[&amp;Lööķ àţ ţĥé Šéléçţéd Ñödé îñ ţĥé Pŕöĝŕàm ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>No program was launched from this window yet.</source>
        <translation>[Ñö pŕöĝŕàm wàš làûñçĥéd fŕöm ţĥîš wîñdöw ýéţ. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” shows no picture here.</source>
        <translation>[“%1” šĥöwš ñö pîçţûŕé ĥéŕé. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>[%1, pŕöçéšš %2 ~~~~~~]</translation>
    </message>
    <message>
        <source>Launch Again</source>
        <translation>[Làûñçĥ Àĝàîñ ~~~~~]</translation>
    </message>
    <message>
        <source>Attached to “%1”.</source>
        <translation>[Àţţàçĥéd ţö “%1”. ~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” does not tell what is under a place of its picture.</source>
        <translation>[“%1” döéš ñöţ ţéll wĥàţ îš ûñdéŕ à plàçé öf îţš pîçţûŕé. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The selected node has no extent that could be looked at.</source>
        <translation>[Ţĥé šéléçţéd ñödé ĥàš ñö éxţéñţ ţĥàţ çöûld bé lööķéd àţ. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” has not answered for 2 seconds; what it showed last stays, and cannot be edited before it answers again.</source>
        <translation>[“%1” ĥàš ñöţ àñšwéŕéd föŕ 2 šéçöñdš; wĥàţ îţ šĥöwéd làšţ šţàýš, àñd çàññöţ bé édîţéd béföŕé îţ àñšwéŕš àĝàîñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Kept for when you attach to “%1” again: %2.</source>
        <translation>[Ķépţ föŕ wĥéñ ýöû àţţàçĥ ţö “%1” àĝàîñ: %2. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Apply %1 of the last run of “%2” again?</source>
        <translation>[Àpplý %1 öf ţĥé làšţ ŕûñ öf “%2” àĝàîñ? ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>[&amp;Àpplý ~~]</translation>
    </message>
    <message>
        <source>&amp;Leave It as It Is</source>
        <translation>[&amp;Léàvé Îţ àš Îţ Îš ~~~~~~~]</translation>
    </message>
    <message>
        <source>A change of the last run does not fit here any more and is left out.</source>
        <translation>[À çĥàñĝé öf ţĥé làšţ ŕûñ döéš ñöţ fîţ ĥéŕé àñý möŕé àñd îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Written to the program: %1.</source>
        <translation>[Wŕîţţéñ ţö ţĥé pŕöĝŕàm: %1. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Written to the program: %1; the console lists those that do not fit any more.</source>
        <translation>[Wŕîţţéñ ţö ţĥé pŕöĝŕàm: %1; ţĥé çöñšölé lîšţš ţĥöšé ţĥàţ dö ñöţ fîţ àñý möŕé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” could not be started: %2.</source>
        <translation>[“%1” çöûld ñöţ bé šţàŕţéd: %2. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>there is no such program</source>
        <translation>[ţĥéŕé îš ñö šûçĥ pŕöĝŕàm ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” ended before it could be attached to.</source>
        <translation>[“%1” éñdéd béföŕé îţ çöûld bé àţţàçĥéd ţö. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” runs and offers nothing to attach to: it has to use OpenSceneGraph as a shared library, or a live server of its own.</source>
        <translation>[“%1” ŕûñš àñd öfféŕš ñöţĥîñĝ ţö àţţàçĥ ţö: îţ ĥàš ţö ûšé ÖpéñŠçéñéĜŕàpĥ àš à šĥàŕéd lîbŕàŕý, öŕ à lîvé šéŕvéŕ öf îţš öwñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>More than one program can be attached to, so that the number of one has to be given: %1.</source>
        <translation>[Möŕé ţĥàñ öñé pŕöĝŕàm çàñ bé àţţàçĥéd ţö, šö ţĥàţ ţĥé ñûmbéŕ öf öñé ĥàš ţö bé ĝîvéñ: %1. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>No program that can be attached to is running; scopix --launch PROGRAM starts one.</source>
        <translation>[Ñö pŕöĝŕàm ţĥàţ çàñ bé àţţàçĥéd ţö îš ŕûññîñĝ; šçöpîx --làûñçĥ PŔÖĜŔÀM šţàŕţš öñé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>No program “%1” that can be attached to is running; scopix --list-live lists those that are.</source>
        <translation>[Ñö pŕöĝŕàm “%1” ţĥàţ çàñ bé àţţàçĥéd ţö îš ŕûññîñĝ; šçöpîx --lîšţ-lîvé lîšţš ţĥöšé ţĥàţ àŕé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Picture of the program</source>
        <translation>[Pîçţûŕé öf ţĥé pŕöĝŕàm ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Apply changes again</source>
        <translation>[Àpplý çĥàñĝéš àĝàîñ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Take changes back</source>
        <translation>[Ţàķé çĥàñĝéš bàçķ ~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing can be added to “%1”: “%2” offers no types for it.</source>
        <translation>[Ñöţĥîñĝ çàñ bé àddéd ţö “%1”: “%2” öfféŕš ñö ţýpéš föŕ îţ. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” added nothing to “%2”: %3</source>
        <translation>[“%1” àddéd ñöţĥîñĝ ţö “%2”: %3 ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Only nodes of “%1” itself can stand in it, and their names are among their fields.</source>
        <translation>[Öñlý ñödéš öf “%1” îţšélf çàñ šţàñd îñ îţ, àñd ţĥéîŕ ñàméš àŕé àmöñĝ ţĥéîŕ fîéldš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” refused to change the children of “%2”: %3</source>
        <translation>[“%1” ŕéfûšéd ţö çĥàñĝé ţĥé çĥîldŕéñ öf “%2”: %3 ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>What was done after that is undone too; it can be redone.</source>
        <translation>[Wĥàţ wàš döñé àfţéŕ ţĥàţ îš ûñdöñé ţöö; îţ çàñ bé ŕédöñé. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” takes whole numbers only, and is as it was.</source>
        <translation>[“%1” ţàķéš wĥölé ñûmbéŕš öñlý, àñd îš àš îţ wàš. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be changed: “%2” only lets it be read.</source>
        <translation>[“%1” çàññöţ bé çĥàñĝéd: “%2” öñlý léţš îţ bé ŕéàd. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” refused the value of “%2”: %3</source>
        <translation>[“%1” ŕéfûšéd ţĥé vàlûé öf “%2”: %3 ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” took another value for “%2” than was asked for.</source>
        <translation>[“%1” ţööķ àñöţĥéŕ vàlûé föŕ “%2” ţĥàñ wàš àšķéd föŕ. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” has more children than can be shown: those after the first %L2 are left out.</source>
        <translation>[“%1” ĥàš möŕé çĥîldŕéñ ţĥàñ çàñ bé šĥöwñ: ţĥöšé àfţéŕ ţĥé fîŕšţ %L2 àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” has no “%2” any more.</source>
        <translation>[“%1” ĥàš ñö “%2” àñý möŕé. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” came with a value that is none of its kind, and is not shown.</source>
        <translation>[“%1” çàmé wîţĥ à vàlûé ţĥàţ îš ñöñé öf îţš ķîñd, àñd îš ñöţ šĥöwñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>You have detached from “%1”.</source>
        <translation>[Ýöû ĥàvé déţàçĥéd fŕöm “%1”. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be edited: “%2” is not attached any more.</source>
        <translation>[“%1” çàññöţ bé édîţéd: “%2” îš ñöţ àţţàçĥéd àñý möŕé. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be edited before “%2” answers again.</source>
        <translation>[“%1” çàññöţ bé édîţéd béföŕé “%2” àñšwéŕš àĝàîñ. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be edited: it does not exist in “%2” any more.</source>
        <translation>[“%1” çàññöţ bé édîţéd: îţ döéš ñöţ éxîšţ îñ “%2” àñý möŕé. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The nodes of “%1” can be neither added, moved nor removed, since the program does not offer that.</source>
        <translation>[Ţĥé ñödéš öf “%1” çàñ bé ñéîţĥéŕ àddéd, mövéd ñöŕ ŕémövéd, šîñçé ţĥé pŕöĝŕàm döéš ñöţ öfféŕ ţĥàţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>[&amp;Ĥélp ~~]</translation>
    </message>
    <message>
        <source>Select a node: its fields are listed here.</source>
        <translation>[Šéléçţ à ñödé: îţš fîéldš àŕé lîšţéd ĥéŕé. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>[Wélçömé ~~~]</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>[Šçéñé ~~]</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>[Fîéldš ~~]</translation>
    </message>
    <message>
        <source>History</source>
        <translation>[Ĥîšţöŕý ~~~]</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>[&amp;Fîlé ~~]</translation>
    </message>
    <message>
        <source>Save Picture of the &amp;Window…</source>
        <translation>[Šàvé Pîçţûŕé öf ţĥé &amp;Wîñdöw… ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>[&amp;Qûîţ ~~]</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>[&amp;Édîţ ~~]</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>[Ûñdö ~~]</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>[Ŕédö ~~]</translation>
    </message>
    <message>
        <source>&amp;Find in the Scene</source>
        <translation>[&amp;Fîñd îñ ţĥé Šçéñé ~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>[&amp;Ñödé ~~]</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>[&amp;Vîéw ~~]</translation>
    </message>
    <message>
        <source>Columns of the T&amp;ree</source>
        <translation>[Çölûmñš öf ţĥé Ţ&amp;ŕéé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>[&amp;Ţöölš ~~]</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>[&amp;Pŕöfîlé ~~~]</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>[&amp;Çölöûŕš ~~~]</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>[Màîñ ~~]</translation>
    </message>
    <message>
        <source>Running Scene</source>
        <translation>[Ŕûññîñĝ Šçéñé ~~~~~]</translation>
    </message>
    <message>
        <source>%1 (deleted)</source>
        <translation>[%1 (déléţéd) ~~~~~]</translation>
    </message>
    <message>
        <source>Nothing in the scene has the name or the type “%1”.</source>
        <translation>[Ñöţĥîñĝ îñ ţĥé šçéñé ĥàš ţĥé ñàmé öŕ ţĥé ţýpé “%1”. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1”, a %2, has no field “%3”.</source>
        <translation>[“%1”, à %2, ĥàš ñö fîéld “%3”. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>[Šàvé Pîçţûŕé ~~~~~]</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>[Pîçţûŕéš (*.png) ~~~~~~]</translation>
    </message>
    <message>
        <source>Click something in the view or in the tree: its values appear here.</source>
        <translation>[Çlîçķ šöméţĥîñĝ îñ ţĥé vîéw öŕ îñ ţĥé ţŕéé: îţš vàlûéš àppéàŕ ĥéŕé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Along x, y, z</source>
        <translation>[Àlöñĝ x, ý, ž ~~~~~]</translation>
    </message>
    <message>
        <source>From</source>
        <translation>[Fŕöm ~~]</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>[Édĝé ~~]</translation>
    </message>
    <message>
        <source>Box of the selection</source>
        <translation>[Böx öf ţĥé šéléçţîöñ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>[Àŕéà ~~]</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>[Ţŕîàñĝléš ~~~~]</translation>
    </message>
    <message>
        <source>Click the second point.</source>
        <translation>[Çlîçķ ţĥé šéçöñd pöîñţ. ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Click two points. Ctrl+C copies, Esc ends.</source>
        <translation>[Çlîçķ ţwö pöîñţš. Çţŕl+Ç çöpîéš, Éšç éñdš. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the program that reads models, “%1”, cannot be started</source>
        <translation>[ţĥé pŕöĝŕàm ţĥàţ ŕéàdš mödélš, “%1”, çàññöţ bé šţàŕţéd ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>reading it takes too long, and was given up</source>
        <translation>[ŕéàdîñĝ îţ ţàķéš ţöö löñĝ, àñd wàš ĝîvéñ ûp ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it contradicts itself, and reading it was given up</source>
        <translation>[îţ çöñţŕàdîçţš îţšélf, àñd ŕéàdîñĝ îţ wàš ĝîvéñ ûp ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>what was read of it could not be written to “%1”</source>
        <translation>[wĥàţ wàš ŕéàd öf îţ çöûld ñöţ bé wŕîţţéñ ţö “%1” ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>No Plug-ins</source>
        <translation>[Ñö Plûĝ-îñš ~~~~]</translation>
    </message>
    <message>
        <source>No plug-in is loaded, so there are no editors and no tools. Plug-ins were looked for in these folders:

%1</source>
        <translation>[Ñö plûĝ-îñ îš löàdéd, šö ţĥéŕé àŕé ñö édîţöŕš àñd ñö ţöölš. Plûĝ-îñš wéŕé lööķéd föŕ îñ ţĥéšé földéŕš:

%1 ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing was dropped, since its place has gone meanwhile; drop it elsewhere.</source>
        <translation>[Ñöţĥîñĝ wàš dŕöppéd, šîñçé îţš plàçé ĥàš ĝöñé méàñwĥîlé; dŕöp îţ élšéwĥéŕé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>[Çöpýîñĝ… ~~~]</translation>
    </message>
    <message>
        <source>Copying was cancelled; nothing has changed.</source>
        <translation>[Çöpýîñĝ wàš çàñçélléd; ñöţĥîñĝ ĥàš çĥàñĝéd. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>[Àdd %1 ~~]</translation>
    </message>
    <message>
        <source>Copying was cancelled; the clipboard holds what it held.</source>
        <translation>[Çöpýîñĝ wàš çàñçélléd; ţĥé çlîpböàŕd ĥöldš wĥàţ îţ ĥéld. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) copied.</source>
        <translation><numerusform>[%n ñödé(š) çöpîéd. ~~~~~~~]</numerusform><numerusform>[%n ñödé(š) çöpîéd. ~~~~~~~]</numerusform></translation>
    </message>
    <message>
        <source>Pasting…</source>
        <translation>[Pàšţîñĝ… ~~~]</translation>
    </message>
    <message>
        <source>Pasting was cancelled; nothing has changed.</source>
        <translation>[Pàšţîñĝ wàš çàñçélléd; ñöţĥîñĝ ĥàš çĥàñĝéd. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Only nodes that were copied from this program, in this window, can be pasted into it.</source>
        <translation>[Öñlý ñödéš ţĥàţ wéŕé çöpîéd fŕöm ţĥîš pŕöĝŕàm, îñ ţĥîš wîñdöw, çàñ bé pàšţéd îñţö îţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Only nodes that were copied in this window, in this scene, can be pasted as shared ones.</source>
        <translation>[Öñlý ñödéš ţĥàţ wéŕé çöpîéd îñ ţĥîš wîñdöw, îñ ţĥîš šçéñé, çàñ bé pàšţéd àš šĥàŕéd öñéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Handing over what was dropped…</source>
        <translation>[Ĥàñdîñĝ övéŕ wĥàţ wàš dŕöppéd… ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing was handed over to the other program: it was cancelled.</source>
        <translation>[Ñöţĥîñĝ wàš ĥàñdéd övéŕ ţö ţĥé öţĥéŕ pŕöĝŕàm: îţ wàš çàñçélléd. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing was handed over to the other program: the text of what was dropped is too long for that. Copy it here, and paste it there.</source>
        <translation>[Ñöţĥîñĝ wàš ĥàñdéd övéŕ ţö ţĥé öţĥéŕ pŕöĝŕàm: ţĥé ţéxţ öf wĥàţ wàš dŕöppéd îš ţöö löñĝ föŕ ţĥàţ. Çöpý îţ ĥéŕé, àñd pàšţé îţ ţĥéŕé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message numerus="yes">
        <source>Drop %n Node(s)</source>
        <translation><numerusform>[Dŕöp %n Ñödé(š) ~~~~~~]</numerusform><numerusform>[Dŕöp %n Ñödé(š) ~~~~~~]</numerusform></translation>
    </message>
    <message>
        <source>“%1” cannot be hidden: it only sets something for other nodes.</source>
        <translation>[“%1” çàññöţ bé ĥîddéñ: îţ öñlý šéţš šöméţĥîñĝ föŕ öţĥéŕ ñödéš. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Only what is selected is seen; press / again to see the rest.</source>
        <translation>[Öñlý wĥàţ îš šéléçţéd îš šééñ; pŕéšš / àĝàîñ ţö šéé ţĥé ŕéšţ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>[&amp;Àdd… ~~]</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>[Ŕé&amp;ñàmé ~~~]</translation>
    </message>
    <message>
        <source>Insert &amp;File…</source>
        <translation>[Îñšéŕţ &amp;Fîlé… ~~~~~]</translation>
    </message>
    <message>
        <source>Sa&amp;ve Branch As…</source>
        <translation>[Šà&amp;vé Bŕàñçĥ Àš… ~~~~~~]</translation>
    </message>
    <message>
        <source>Put A&amp;bove</source>
        <translation>[Pûţ À&amp;bövé ~~~~]</translation>
    </message>
    <message>
        <source>Put a %1 Above</source>
        <translation>[Pûţ à %1 Àbövé ~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Another…</source>
        <translation>[&amp;Àñöţĥéŕ… ~~~~]</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>[Çû&amp;ţ ~~]</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>[&amp;Çöpý ~~]</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>[&amp;Pàšţé ~~]</translation>
    </message>
    <message>
        <source>Paste as &amp;Shared</source>
        <translation>[Pàšţé àš &amp;Šĥàŕéd ~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>[&amp;Dûplîçàţé ~~~~]</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>[D&amp;éléţé ~~~]</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>[&amp;Ĝŕöûp ~~]</translation>
    </message>
    <message>
        <source>&amp;Ungroup</source>
        <translation>[&amp;Ûñĝŕöûp ~~~]</translation>
    </message>
    <message>
        <source>Make Uni&amp;que</source>
        <translation>[Màķé Ûñî&amp;qûé ~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>[&amp;Ûp ~]</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>[&amp;Döwñ ~~]</translation>
    </message>
    <message>
        <source>&amp;Out of Its Group</source>
        <translation>[&amp;Öûţ öf Îţš Ĝŕöûp ~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Into the Group Before</source>
        <translation>[&amp;Îñţö ţĥé Ĝŕöûp Béföŕé ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Hide or Show</source>
        <translation>[&amp;Ĥîdé öŕ Šĥöw ~~~~~]</translation>
    </message>
    <message>
        <source>Sho&amp;w All</source>
        <translation>[Šĥö&amp;w Àll ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Isolate</source>
        <translation>[&amp;Îšölàţé ~~~]</translation>
    </message>
    <message>
        <source>&amp;Lock or Unlock</source>
        <translation>[&amp;Löçķ öŕ Ûñlöçķ ~~~~~~]</translation>
    </message>
    <message>
        <source>Make Hiding Pe&amp;rmanent</source>
        <translation>[Màķé Ĥîdîñĝ Pé&amp;ŕmàñéñţ ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Add a Node</source>
        <translation>[Àdd à Ñödé ~~~~]</translation>
    </message>
    <message>
        <source>Put a Node Above</source>
        <translation>[Pûţ à Ñödé Àbövé ~~~~~~]</translation>
    </message>
    <message>
        <source>the scene as it was opened</source>
        <translation>[ţĥé šçéñé àš îţ wàš öpéñéd ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Scenes and models (%1);;All files (*)</source>
        <translation>[Šçéñéš àñd mödélš (%1);;Àll fîléš (*) ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Reading “%1” was cancelled.</source>
        <translation>[Ŕéàdîñĝ “%1” wàš çàñçélléd. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Find Anything…</source>
        <translation>[&amp;Fîñd Àñýţĥîñĝ… ~~~~~~]</translation>
    </message>
    <message>
        <source>Preferences ▸ %1</source>
        <translation>[Pŕéféŕéñçéš ▸ %1 ~~~~~~]</translation>
    </message>
    <message>
        <source>field of %1</source>
        <translation>[fîéld öf %1 ~~~~]</translation>
    </message>
    <message>
        <source>node, %1</source>
        <translation>[ñödé, %1 ~~~]</translation>
    </message>
    <message>
        <source>Patches (*.%1)</source>
        <translation>[Pàţçĥéš (*.%1) ~~~~~~]</translation>
    </message>
    <message>
        <source>Save Changes as Patch</source>
        <translation>[Šàvé Çĥàñĝéš àš Pàţçĥ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>There is no change that could be saved.</source>
        <translation>[Ţĥéŕé îš ñö çĥàñĝé ţĥàţ çöûld bé šàvéd. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Saved the changes as “%1”.</source>
        <translation>[Šàvéd ţĥé çĥàñĝéš àš “%1”. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Apply Patch</source>
        <translation>[Àpplý Pàţçĥ ~~~~]</translation>
    </message>
    <message>
        <source>“%1” is a patch, and no scene is open that it could change: open the one that it was made for, then drop the patch on the window or choose File ▸ Apply Patch….</source>
        <translation>[“%1” îš à pàţçĥ, àñd ñö šçéñé îš öpéñ ţĥàţ îţ çöûld çĥàñĝé: öpéñ ţĥé öñé ţĥàţ îţ wàš màdé föŕ, ţĥéñ dŕöp ţĥé pàţçĥ öñ ţĥé wîñdöw öŕ çĥööšé Fîlé ▸ Àpplý Pàţçĥ…. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Apply the patch “%1” to “%2”?</source>
        <translation>[Àpplý ţĥé pàţçĥ “%1” ţö “%2”? ~~~~~~~~~~~~]</translation>
    </message>
    <message numerus="yes">
        <source>It has %n change(s). What fits is applied, and can be undone as one step.</source>
        <translation><numerusform>[Îţ ĥàš %n çĥàñĝé(š). Wĥàţ fîţš îš àpplîéd, àñd çàñ bé ûñdöñé àš öñé šţép. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</numerusform><numerusform>[Îţ ĥàš %n çĥàñĝé(š). Wĥàţ fîţš îš àpplîéd, àñd çàñ bé ûñdöñé àš öñé šţép. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</numerusform></translation>
    </message>
    <message>
        <source>Apply “%1”</source>
        <translation>[Àpplý “%1” ~~~~]</translation>
    </message>
    <message>
        <source>“%1”: %2 changes applied, %3 were so already, %4 did not fit.</source>
        <translation>[“%1”: %2 çĥàñĝéš àpplîéd, %3 wéŕé šö àlŕéàdý, %4 dîd ñöţ fîţ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>What fits is applied, and can be undone as one step.</source>
        <translation>[Wĥàţ fîţš îš àpplîéd, àñd çàñ bé ûñdöñé àš öñé šţép. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>There is no change that could be copied so.</source>
        <translation>[Ţĥéŕé îš ñö çĥàñĝé ţĥàţ çöûld bé çöpîéd šö. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The changes were copied as a patch.</source>
        <translation>[Ţĥé çĥàñĝéš wéŕé çöpîéd àš à pàţçĥ. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The changes were copied as C++.</source>
        <translation>[Ţĥé çĥàñĝéš wéŕé çöpîéd àš Ç++. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The changed values were copied as nodes of a scene.</source>
        <translation>[Ţĥé çĥàñĝéd vàlûéš wéŕé çöpîéd àš ñödéš öf à šçéñé. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is not applied: “%2”, which it was to change, is not open.</source>
        <translation>[“%1” îš ñöţ àpplîéd: “%2”, wĥîçĥ îţ wàš ţö çĥàñĝé, îš ñöţ öpéñ. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Save &amp;Picture…</source>
        <translation>[Šàvé &amp;Pîçţûŕé… ~~~~~~]</translation>
    </message>
    <message>
        <source>Save &amp;Turntable…</source>
        <translation>[Šàvé &amp;Ţûŕñţàblé… ~~~~~~]</translation>
    </message>
    <message>
        <source>Save Turntable</source>
        <translation>[Šàvé Ţûŕñţàblé ~~~~~~]</translation>
    </message>
    <message>
        <source>Pictures (*.%1)</source>
        <translation>[Pîçţûŕéš (*.%1) ~~~~~~]</translation>
    </message>
    <message numerus="yes">
        <source>%n of these pictures are there already in “%1”. Replace them?</source>
        <translation><numerusform>[%n öf ţĥéšé pîçţûŕéš àŕé ţĥéŕé àlŕéàdý îñ “%1”. Ŕéplàçé ţĥém? ~~~~~~~~~~~~~~~~~~~~~~~~]</numerusform><numerusform>[%n öf ţĥéšé pîçţûŕéš àŕé ţĥéŕé àlŕéàdý îñ “%1”. Ŕéplàçé ţĥém? ~~~~~~~~~~~~~~~~~~~~~~~~]</numerusform></translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>[Dŕàwîñĝ… ~~~]</translation>
    </message>
    <message>
        <source>Cancelled; no picture was written.</source>
        <translation>[Çàñçélléd; ñö pîçţûŕé wàš wŕîţţéñ. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cancelled; of %1 pictures, %2 were written.</source>
        <translation>[Çàñçélléd; öf %1 pîçţûŕéš, %2 wéŕé wŕîţţéñ. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Saved “%1”.</source>
        <translation>[Šàvéd “%1”. ~~~~]</translation>
    </message>
    <message>
        <source>Saved %1 pictures, the first being “%2”.</source>
        <translation>[Šàvéd %1 pîçţûŕéš, ţĥé fîŕšţ béîñĝ “%2”. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Transparent ground</source>
        <translation>[&amp;Ţŕàñšpàŕéñţ ĝŕöûñd ~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>[&amp;Šàvé… ~~]</translation>
    </message>
    <message>
        <source>&amp;Width in pixels:</source>
        <translation>[&amp;Wîdţĥ îñ pîxélš: ~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Height in pixels:</source>
        <translation>[&amp;Ĥéîĝĥţ îñ pîxélš: ~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Pictures of one turn:</source>
        <translation>[&amp;Pîçţûŕéš öf öñé ţûŕñ: ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Preparing the picture…</source>
        <translation>[Pŕépàŕîñĝ ţĥé pîçţûŕé… ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A picture of %1 × %2 pixels cannot be made: each side may have 1 to %3, and all of it %L4.</source>
        <translation>[À pîçţûŕé öf %1 × %2 pîxélš çàññöţ bé màdé: éàçĥ šîdé màý ĥàvé 1 ţö %3, àñd àll öf îţ %L4. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 pictures of one turn cannot be made: choose 2 to %2.</source>
        <translation>[%1 pîçţûŕéš öf öñé ţûŕñ çàññöţ bé màdé: çĥööšé 2 ţö %2. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be transparent, which .%2 files cannot hold: choose .png.</source>
        <translation>[Ţĥé pîçţûŕé “%1” çàññöţ bé ţŕàñšpàŕéñţ, wĥîçĥ .%2 fîléš çàññöţ ĥöld: çĥööšé .pñĝ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>[ţĥéŕé îš ñöţ éñöûĝĥ mémöŕý föŕ îţ ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>[Çlîp %1 ~~~]</translation>
    </message>
    <message>
        <source>All clips</source>
        <translation>[Àll çlîpš ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation>[&amp;Àñîmàţîöñ ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>[&amp;Plàý ~~]</translation>
    </message>
    <message>
        <source>&amp;Stop, as It Was</source>
        <translation>[&amp;Šţöp, àš Îţ Wàš ~~~~~~]</translation>
    </message>
    <message>
        <source>One Key &amp;Back</source>
        <translation>[Öñé Ķéý &amp;Bàçķ ~~~~~]</translation>
    </message>
    <message>
        <source>One Key &amp;Ahead</source>
        <translation>[Öñé Ķéý &amp;Àĥéàd ~~~~~~]</translation>
    </message>
    <message>
        <source>Half as &amp;Fast</source>
        <translation>[Ĥàlf àš &amp;Fàšţ ~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Twice as Fast</source>
        <translation>[&amp;Ţwîçé àš Fàšţ ~~~~~~]</translation>
    </message>
    <message>
        <source>Back&amp;wards</source>
        <translation>[Bàçķ&amp;wàŕdš ~~~~]</translation>
    </message>
    <message>
        <source>Again and A&amp;gain</source>
        <translation>[Àĝàîñ àñd À&amp;ĝàîñ ~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Next Clip</source>
        <translation>[&amp;Ñéxţ Çlîp ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>[&amp;Pàûšé ~~]</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>[Çlîp ~~]</translation>
    </message>
    <message>
        <source>Which clip is played</source>
        <translation>[Wĥîçĥ çlîp îš plàýéd ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Time in the clip</source>
        <translation>[Ţîmé îñ ţĥé çlîp ~~~~~~]</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>[Špééd ~~]</translation>
    </message>
    <message>
        <source>How fast it is played; below 0 backwards</source>
        <translation>[Ĥöw fàšţ îţ îš plàýéd; bélöw 0 bàçķwàŕdš ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 / %2 s</source>
        <translation>[%1 / %2 š ~~~~]</translation>
    </message>
    <message>
        <source>the program ended the last time while it was being loaded</source>
        <translation>[ţĥé pŕöĝŕàm éñdéd ţĥé làšţ ţîmé wĥîlé îţ wàš béîñĝ löàdéd ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1; View &gt; Tools &gt; Try Again loads it all the same</source>
        <translation>[%1; Vîéw &gt; Ţöölš &gt; Ţŕý Àĝàîñ löàdš îţ àll ţĥé šàmé ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is a folder, and a plug-in library was expected</source>
        <translation>[îţ îš à földéŕ, àñd à plûĝ-îñ lîbŕàŕý wàš éxpéçţéd ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the file may not be read</source>
        <translation>[ţĥé fîlé màý ñöţ bé ŕéàd ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is no library that this program can load (%1)</source>
        <translation>[îţ îš ñö lîbŕàŕý ţĥàţ ţĥîš pŕöĝŕàm çàñ löàd (%1) ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its loadPlugin failed: %1</source>
        <translation>[îţš löàdPlûĝîñ fàîléd: %1 ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its loadPlugin returned no plug-in</source>
        <translation>[îţš löàdPlûĝîñ ŕéţûŕñéd ñö plûĝ-îñ ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The plug-in “%1” was not loaded: %2.</source>
        <translation>[Ţĥé plûĝ-îñ “%1” wàš ñöţ löàdéd: %2. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it says that it cannot be used</source>
        <translation>[îţ šàýš ţĥàţ îţ çàññöţ bé ûšéd ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its load() failed: %1</source>
        <translation>[îţš löàd() fàîléd: %1 ~~~~~~~~]</translation>
    </message>
    <message>
        <source>The plug-in “%1” failed in %2(): %3.</source>
        <translation>[Ţĥé plûĝ-îñ “%1” fàîléd îñ %2(): %3. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it was made for the C++ library %1, this program uses %2</source>
        <translation>[îţ wàš màdé föŕ ţĥé Ç++ lîbŕàŕý %1, ţĥîš pŕöĝŕàm ûšéš %2 ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>[Löàdéd ~~]</translation>
    </message>
    <message>
        <source>Set aside</source>
        <translation>[Šéţ àšîdé ~~~~]</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>[Ŕéfûšéd ~~~]</translation>
    </message>
    <message>
        <source>its code ended the process in which it was tried</source>
        <translation>[îţš çödé éñdéd ţĥé pŕöçéšš îñ wĥîçĥ îţ wàš ţŕîéd ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>[Plûĝ-îñš ~~~]</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>[Plûĝ-îñ ~~~]</translation>
    </message>
    <message>
        <source>State</source>
        <translation>[Šţàţé ~~]</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>[Ŕéàšöñ ~~]</translation>
    </message>
    <message>
        <source>One that was set aside is loaded again by View ▸ Tools ▸ Try Again. Which tools are active is a profile’s choice: View ▸ Profile.</source>
        <translation>[Öñé ţĥàţ wàš šéţ àšîdé îš löàdéd àĝàîñ bý Vîéw ▸ Ţöölš ▸ Ţŕý Àĝàîñ. Wĥîçĥ ţöölš àŕé àçţîvé îš à pŕöfîlé’š çĥöîçé: Vîéw ▸ Pŕöfîlé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing is called so. Try another word.</source>
        <translation>[Ñöţĥîñĝ îš çàlléd šö. Ţŕý àñöţĥéŕ wöŕd. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>[Pŕéféŕéñçéš ~~~~]</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>[Fîñd à šéţţîñĝ ~~~~~~]</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>[Pàĝéš ~~]</translation>
    </message>
    <message>
        <source>&amp;Reset This Page</source>
        <translation>[&amp;Ŕéšéţ Ţĥîš Pàĝé ~~~~~~]</translation>
    </message>
    <message>
        <source>%1, and the shipped profiles are used.</source>
        <translation>[%1, àñd ţĥé šĥîppéd pŕöfîléš àŕé ûšéd. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The profiles file “%1” cannot be read: %2</source>
        <translation>[Ţĥé pŕöfîléš fîlé “%1” çàññöţ bé ŕéàd: %2 ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is larger than any profiles file can be</source>
        <translation>[îţ îš làŕĝéŕ ţĥàñ àñý pŕöfîléš fîlé çàñ bé ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The profiles file “%1” is damaged: %2; %3</source>
        <translation>[Ţĥé pŕöfîléš fîlé “%1” îš dàmàĝéd: %2; %3 ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The profiles file “%1” cannot be written: %2.</source>
        <translation>[Ţĥé pŕöfîléš fîlé “%1” çàññöţ bé wŕîţţéñ: %2. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it was kept as “%1”</source>
        <translation>[îţ wàš ķépţ àš “%1” ~~~~~~~~]</translation>
    </message>
    <message>
        <source>it could not be renamed</source>
        <translation>[îţ çöûld ñöţ bé ŕéñàméd ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a profile needs a name</source>
        <translation>[à pŕöfîlé ñéédš à ñàmé ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the name “%1” has letters that a profile's name cannot have (Latin-1 only)</source>
        <translation>[ţĥé ñàmé “%1” ĥàš léţţéŕš ţĥàţ à pŕöfîlé'š ñàmé çàññöţ ĥàvé (Làţîñ-1 öñlý) ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>there already is a profile named “%1”</source>
        <translation>[ţĥéŕé àlŕéàdý îš à pŕöfîlé ñàméd “%1” ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>[Pŕöfîléš ~~~]</translation>
    </message>
    <message>
        <source>The active profile</source>
        <translation>[Ţĥé àçţîvé pŕöfîlé ~~~~~~~]</translation>
    </message>
    <message>
        <source>Extensions that the profile controls</source>
        <translation>[Éxţéñšîöñš ţĥàţ ţĥé pŕöfîlé çöñţŕölš ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>[Ţöölš ~~]</translation>
    </message>
    <message>
        <source>Editors</source>
        <translation>[Édîţöŕš ~~~]</translation>
    </message>
    <message>
        <source>Makes a copy of the active profile, which stands in bold.</source>
        <translation>[Màķéš à çöpý öf ţĥé àçţîvé pŕöfîlé, wĥîçĥ šţàñdš îñ böld. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>[&amp;Ŕéñàmé ~~~]</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>[&amp;Déléţé ~~~]</translation>
    </message>
    <message>
        <source>“Default” controls every extension and stays as it is.</source>
        <translation>[“Défàûlţ” çöñţŕölš évéŕý éxţéñšîöñ àñd šţàýš àš îţ îš. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Manage Profiles…</source>
        <translation>[&amp;Màñàĝé Pŕöfîléš… ~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing was done, since the selected nodes have changed meanwhile; try it again.</source>
        <translation>[Ñöţĥîñĝ wàš döñé, šîñçé ţĥé šéléçţéd ñödéš ĥàvé çĥàñĝéd méàñwĥîlé; ţŕý îţ àĝàîñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is what the program has at its top, and has to stay where it is.</source>
        <translation>[“%1” îš wĥàţ ţĥé pŕöĝŕàm ĥàš àţ îţš ţöp, àñd ĥàš ţö šţàý wĥéŕé îţ îš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program makes no nodes of a type called “Group”; choose Put Above ▸ Another… to see which it makes.</source>
        <translation>[Ţĥé pŕöĝŕàm màķéš ñö ñödéš öf à ţýpé çàlléd “Ĝŕöûp”; çĥööšé Pûţ Àbövé ▸ Àñöţĥéŕ… ţö šéé wĥîçĥ îţ màķéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The program makes no nodes of the type “%1”; choose Put Above ▸ Another… to see which it makes.</source>
        <translation>[Ţĥé pŕöĝŕàm màķéš ñö ñödéš öf ţĥé ţýpé “%1”; çĥööšé Pûţ Àbövé ▸ Àñöţĥéŕ… ţö šéé wĥîçĥ îţ màķéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is what the program has at its top, and cannot be duplicated.</source>
        <translation>[“%1” îš wĥàţ ţĥé pŕöĝŕàm ĥàš àţ îţš ţöp, àñd çàññöţ bé dûplîçàţéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>[Çàñçél ~~]</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>[&amp;Çömpàŕé ~~~]</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>[&amp;Îĝñöŕé ~~~]</translation>
    </message>
    <message>
        <source>Another program has changed “%1”.</source>
        <translation>[Àñöţĥéŕ pŕöĝŕàm ĥàš çĥàñĝéd “%1”. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>What you have changed since the scene was opened</source>
        <translation>[Wĥàţ ýöû ĥàvé çĥàñĝéd šîñçé ţĥé šçéñé wàš öpéñéd ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Wr&amp;ite Patch…</source>
        <translation>[Wŕ&amp;îţé Pàţçĥ… ~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Copy as Patch</source>
        <translation>[&amp;Çöpý àš Pàţçĥ ~~~~~~]</translation>
    </message>
    <message>
        <source>Copy as C&amp;++</source>
        <translation>[Çöpý àš Ç&amp;++ ~~~~~]</translation>
    </message>
    <message>
        <source>Copy as Sce&amp;ne</source>
        <translation>[Çöpý àš Šçé&amp;ñé ~~~~~~]</translation>
    </message>
    <message>
        <source>Compare &amp;With…</source>
        <translation>[Çömpàŕé &amp;Wîţĥ… ~~~~~~]</translation>
    </message>
    <message>
        <source>Compare A&amp;gain</source>
        <translation>[Çömpàŕé À&amp;ĝàîñ ~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Back to What You Changed</source>
        <translation>[&amp;Bàçķ ţö Wĥàţ Ýöû Çĥàñĝéd ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Start Again from Here</source>
        <translation>[&amp;Šţàŕţ Àĝàîñ fŕöm Ĥéŕé ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Save Changes as &amp;Patch…</source>
        <translation>[Šàvé Çĥàñĝéš àš &amp;Pàţçĥ… ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>App&amp;ly Patch…</source>
        <translation>[Àpp&amp;lý Pàţçĥ… ~~~~~]</translation>
    </message>
    <message>
        <source>Reload and Reappl&amp;y</source>
        <translation>[Ŕélöàd àñd Ŕéàppl&amp;ý ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Opens the file as it is by now, and makes your changes once more</source>
        <translation>[Öpéñš ţĥé fîlé àš îţ îš bý ñöw, àñd màķéš ýöûŕ çĥàñĝéš öñçé möŕé ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>your changes to %1</source>
        <translation>[ýöûŕ çĥàñĝéš ţö %1 ~~~~~~~]</translation>
    </message>
    <message>
        <source>Compare With</source>
        <translation>[Çömpàŕé Wîţĥ ~~~~~]</translation>
    </message>
    <message>
        <source>Comparing…</source>
        <translation>[Çömpàŕîñĝ… ~~~~]</translation>
    </message>
    <message>
        <source>The comparison was cancelled; the list is as it was.</source>
        <translation>[Ţĥé çömpàŕîšöñ wàš çàñçélléd; ţĥé lîšţ îš àš îţ wàš. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Changes ●</source>
        <translation>[Çĥàñĝéš ● ~~~~]</translation>
    </message>
    <message>
        <source>The scene “%1” cannot be written: %2.</source>
        <translation>[Ţĥé šçéñé “%1” çàññöţ bé wŕîţţéñ: %2. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be reverted: something else than an edit has changed its number of values; open the file again for what it holds.</source>
        <translation>[“%1” çàññöţ bé ŕévéŕţéd: šöméţĥîñĝ élšé ţĥàñ àñ édîţ ĥàš çĥàñĝéd îţš ñûmbéŕ öf vàlûéš; öpéñ ţĥé fîlé àĝàîñ föŕ wĥàţ îţ ĥöldš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Revert %1</source>
        <translation>[Ŕévéŕţ %1 ~~~~]</translation>
    </message>
    <message>
        <source>Revert %1 Changes</source>
        <translation>[Ŕévéŕţ %1 Çĥàñĝéš ~~~~~~~]</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>[ñö ñàmé ~~~]</translation>
    </message>
    <message>
        <source>%1, follows %2</source>
        <translation>[%1, föllöwš %2 ~~~~~~]</translation>
    </message>
    <message>
        <source>Written since by something else than an edit.</source>
        <translation>[Wŕîţţéñ šîñçé bý šöméţĥîñĝ élšé ţĥàñ àñ édîţ. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>added</source>
        <translation>[àddéd ~~]</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>[ŕémövéd ~~~]</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>[îñ %1 ~~]</translation>
    </message>
    <message>
        <source>moved to %1</source>
        <translation>[mövéd ţö %1 ~~~~]</translation>
    </message>
    <message>
        <source>The order of what it holds.</source>
        <translation>[Ţĥé öŕdéŕ öf wĥàţ îţ ĥöldš. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be what %2 was: it is no value of a %3.</source>
        <translation>[“%1” çàññöţ bé wĥàţ %2 wàš: îţ îš ñö vàlûé öf à %3. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>[pîçţûŕéš ~~~]</translation>
    </message>
    <message>
        <source>lines and points</source>
        <translation>[lîñéš àñd pöîñţš ~~~~~~]</translation>
    </message>
    <message>
        <source>groups and transforms, which are applied</source>
        <translation>[ĝŕöûpš àñd ţŕàñšföŕmš, wĥîçĥ àŕé àpplîéd ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>[“%1” çàññöţ bé wŕîţţéñ: %2. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing of it can be seen: %1.</source>
        <translation>[Ñöţĥîñĝ öf îţ çàñ bé šééñ: %1. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Opened “%1”, of which nothing can be seen: %2.</source>
        <translation>[Öpéñéd “%1”, öf wĥîçĥ ñöţĥîñĝ çàñ bé šééñ: %2. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Opened “%1”; the console says what is left out.</source>
        <translation>[Öpéñéd “%1”; ţĥé çöñšölé šàýš wĥàţ îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Opened “%1”.</source>
        <translation>[Öpéñéd “%1”. ~~~~~]</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>[Öpéñ ~~]</translation>
    </message>
    <message>
        <source>“%1” does not exist any more and was removed from the list of recent files.</source>
        <translation>[“%1” döéš ñöţ éxîšţ àñý möŕé àñd wàš ŕémövéd fŕöm ţĥé lîšţ öf ŕéçéñţ fîléš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>[Šàvé Šçéñé ~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be exported to: its name must end in %2.</source>
        <translation>[“%1” çàññöţ bé éxpöŕţéd ţö: îţš ñàmé mûšţ éñd îñ %2. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Exporting “%1”…</source>
        <translation>[Éxpöŕţîñĝ “%1”… ~~~~~~]</translation>
    </message>
    <message>
        <source>Exporting “%1” was cancelled.</source>
        <translation>[Éxpöŕţîñĝ “%1” wàš çàñçélléd. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Exported “%1”.</source>
        <translation>[Éxpöŕţéd “%1”. ~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is not saved: another program has changed it since it was opened.</source>
        <translation>[“%1” îš ñöţ šàvéd: àñöţĥéŕ pŕöĝŕàm ĥàš çĥàñĝéd îţ šîñçé îţ wàš öpéñéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>[Šàvé ţĥé çĥàñĝéš ţö “%1”? ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Without saving, they are lost.</source>
        <translation>[Wîţĥöûţ šàvîñĝ, ţĥéý àŕé löšţ. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The last session ended without saving its changes to “%1”. Recover them?</source>
        <translation>[Ţĥé làšţ šéššîöñ éñdéd wîţĥöûţ šàvîñĝ îţš çĥàñĝéš ţö “%1”. Ŕéçövéŕ ţĥém? ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>They were kept on %1.</source>
        <translation>[Ţĥéý wéŕé ķépţ öñ %1. ~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>[&amp;Ŕéçövéŕ ~~~]</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>[&amp;Dîšçàŕd ~~~]</translation>
    </message>
    <message>
        <source>Recovered the unsaved changes to “%1”.</source>
        <translation>[Ŕéçövéŕéd ţĥé ûñšàvéd çĥàñĝéš ţö “%1”. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The last changes to “%1” could not be recovered: %2</source>
        <translation>[Ţĥé làšţ çĥàñĝéš ţö “%1” çöûld ñöţ bé ŕéçövéŕéd: %2 ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is locked, and cannot be edited before it is unlocked.</source>
        <translation>[“%1” îš löçķéd, àñd çàññöţ bé édîţéd béföŕé îţ îš ûñlöçķéd. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” stands in “%2”, which is locked, and cannot be edited before that is unlocked.</source>
        <translation>[“%1” šţàñdš îñ “%2”, wĥîçĥ îš löçķéd, àñd çàññöţ bé édîţéd béföŕé ţĥàţ îš ûñlöçķéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Open scenes</source>
        <translation>[Öpéñ šçéñéš ~~~~]</translation>
    </message>
    <message>
        <source>Ne&amp;xt Tab</source>
        <translation>[Ñé&amp;xţ Ţàb ~~~~]</translation>
    </message>
    <message>
        <source>Pre&amp;vious Tab</source>
        <translation>[Pŕé&amp;vîöûš Ţàb ~~~~~]</translation>
    </message>
    <message>
        <source>Move Tab to the Ri&amp;ght</source>
        <translation>[Mövé Ţàb ţö ţĥé Ŕî&amp;ĝĥţ ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Move Tab to the &amp;Left</source>
        <translation>[Mövé Ţàb ţö ţĥé &amp;Léfţ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Close this tab</source>
        <translation>[Çlöšé ţĥîš ţàb ~~~~~~]</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>[%1 “%2” ~~~]</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>[Ñödé ~~]</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>[Mémöŕý ~~]</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>[Plàçéš ~~]</translation>
    </message>
    <message>
        <source>The tree was unfolded by %1 levels only, as all of them would have more than %L2 rows.</source>
        <translation>[Ţĥé ţŕéé wàš ûñföldéd bý %1 lévélš öñlý, àš àll öf ţĥém wöûld ĥàvé möŕé ţĥàñ %L2 ŕöwš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Shapes: %L1, of them out of sight: %L2
Triangles: %L3, draw calls: %L4
Uploaded bytes: %L5, processor: %L6 ms</source>
        <translation>[Šĥàpéš: %L1, öf ţĥém öûţ öf šîĝĥţ: %L2
Ţŕîàñĝléš: %L3, dŕàw çàllš: %L4
Ûplöàdéd býţéš: %L5, pŕöçéššöŕ: %L6 mš ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it has no shapes that are drawn</source>
        <translation>[îţ ĥàš ñö šĥàpéš ţĥàţ àŕé dŕàwñ ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its draw styles make all of it invisible</source>
        <translation>[îţš dŕàw šţýléš màķé àll öf îţ îñvîšîblé ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>all of it is fully transparent</source>
        <translation>[àll öf îţ îš fûllý ţŕàñšpàŕéñţ ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>all of it is too large, too small or too far away to be shown</source>
        <translation>[àll öf îţ îš ţöö làŕĝé, ţöö šmàll öŕ ţöö fàŕ àwàý ţö bé šĥöwñ ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message numerus="yes">
        <source>%n more behind</source>
        <translation><numerusform>[%n möŕé béĥîñd ~~~~~~]</numerusform><numerusform>[%n möŕé béĥîñd ~~~~~~]</numerusform></translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>[Pŕé&amp;féŕéñçéš… ~~~~~]</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>[Àppéàŕàñçé ~~~~]</translation>
    </message>
    <message>
        <source>Size of texts</source>
        <translation>[Šîžé öf ţéxţš ~~~~~]</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> [pţ ~]</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>[Àš ţĥé šýšţém ~~~~~]</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>[Làñĝûàĝé ~~~]</translation>
    </message>
    <message>
        <source>The texts of the default extensions are in English.</source>
        <translation>[Ţĥé ţéxţš öf ţĥé défàûlţ éxţéñšîöñš àŕé îñ Éñĝlîšĥ. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>3D View</source>
        <translation>[3D Vîéw ~~~]</translation>
    </message>
    <message>
        <source>Mouse as in</source>
        <translation>[Möûšé àš îñ ~~~~]</translation>
    </message>
    <message>
        <source>Which buttons turn, move and come nearer. The left button selects in each, and the wheel comes nearer.</source>
        <translation>[Wĥîçĥ bûţţöñš ţûŕñ, mövé àñd çömé ñéàŕéŕ. Ţĥé léfţ bûţţöñ šéléçţš îñ éàçĥ, àñd ţĥé wĥéél çöméš ñéàŕéŕ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Scopix: left turns, middle and right move</source>
        <translation>[Šçöpîx: léfţ ţûŕñš, mîddlé àñd ŕîĝĥţ mövé ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Blender: middle turns, Shift+middle moves</source>
        <translation>[Bléñdéŕ: mîddlé ţûŕñš, Šĥîfţ+mîddlé mövéš ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Godot: middle and right turn, Shift+middle moves</source>
        <translation>[Ĝödöţ: mîddlé àñd ŕîĝĥţ ţûŕñ, Šĥîfţ+mîddlé mövéš ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Maya: Alt and left, middle, right</source>
        <translation>[Màýà: Àlţ àñd léfţ, mîddlé, ŕîĝĥţ ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Memory and Files</source>
        <translation>[Mémöŕý àñd Fîléš ~~~~~~]</translation>
    </message>
    <message>
        <source>Memory for undo</source>
        <translation>[Mémöŕý föŕ ûñdö ~~~~~~]</translation>
    </message>
    <message>
        <source>Older steps are dropped where they would need more.</source>
        <translation>[Öldéŕ šţépš àŕé dŕöppéd wĥéŕé ţĥéý wöûld ñééd möŕé. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source> MiB</source>
        <translation> [MîB ~~]</translation>
    </message>
    <message>
        <source>Memory for the pictures of a scene</source>
        <translation>[Mémöŕý föŕ ţĥé pîçţûŕéš öf à šçéñé ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Pictures are brought down to fit; holds for what is opened from now on.</source>
        <translation>[Pîçţûŕéš àŕé bŕöûĝĥţ döwñ ţö fîţ; ĥöldš föŕ wĥàţ îš öpéñéd fŕöm ñöw öñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Angle of edges</source>
        <translation>[Àñĝlé öf édĝéš ~~~~~~]</translation>
    </message>
    <message>
        <source>Faces of a model without normals have an edge between them above this angle; holds for what is opened from now on.</source>
        <translation>[Fàçéš öf à mödél wîţĥöûţ ñöŕmàlš ĥàvé àñ édĝé béţwééñ ţĥém àbövé ţĥîš àñĝlé; ĥöldš föŕ wĥàţ îš öpéñéd fŕöm ñöw öñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Keep unsaved edits after a pause of</source>
        <translation>[Ķéép ûñšàvéd édîţš àfţéŕ à pàûšé öf ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>They are kept beside your settings, and offered again after a crash.</source>
        <translation>[Ţĥéý àŕé ķépţ béšîdé ýöûŕ šéţţîñĝš, àñd öfféŕéd àĝàîñ àfţéŕ à çŕàšĥ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source> s</source>
        <translation> [š ~]</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>[Ķéýš ~~]</translation>
    </message>
    <message>
        <source>keyboard shortcuts presets Blender Godot Maya</source>
        <translation>[ķéýböàŕd šĥöŕţçûţš pŕéšéţš Bléñdéŕ Ĝödöţ Màýà ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>extensions tools loaded refused</source>
        <translation>[éxţéñšîöñš ţöölš löàdéd ŕéfûšéd ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The settings file “%1” cannot be changed: %2.</source>
        <translation>[Ţĥé šéţţîñĝš fîlé “%1” çàññöţ bé çĥàñĝéd: %2. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>no temporary file can be written</source>
        <translation>[ñö ţémpöŕàŕý fîlé çàñ bé wŕîţţéñ ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Every kind of node</source>
        <translation>[Évéŕý ķîñd öf ñödé ~~~~~~~]</translation>
    </message>
    <message>
        <source>A lighthouse by the sea</source>
        <translation>[À lîĝĥţĥöûšé bý ţĥé šéà ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A crate with a picture on it</source>
        <translation>[À çŕàţé wîţĥ à pîçţûŕé öñ îţ ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A knot, for printing</source>
        <translation>[À ķñöţ, föŕ pŕîñţîñĝ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>A colour at each vertex</source>
        <translation>[À çölöûŕ àţ éàçĥ véŕţéx ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>[Ŕéçéñţ fîléš ~~~~~]</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>[Šàmpléš ~~~]</translation>
    </message>
    <message>
        <source>What you open appears here. Files can be dropped anywhere in the window.</source>
        <translation>[Wĥàţ ýöû öpéñ àppéàŕš ĥéŕé. Fîléš çàñ bé dŕöppéd àñýwĥéŕé îñ ţĥé wîñdöw. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>[Šţàŕţ pàĝé ~~~~]</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>[Béĝîñ ~~]</translation>
    </message>
    <message>
        <source>&amp;Look Around in the Welcome Scene</source>
        <translation>[&amp;Lööķ Àŕöûñd îñ ţĥé Wélçömé Šçéñé ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>[Àš ţĥé &amp;Šýšţém ~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>[&amp;Dàŕķ ~~]</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>[&amp;Lîĝĥţ ~~]</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>[&amp;Bàçķ ~~]</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>[Ţöûŕ ~~]</translation>
    </message>
    <message>
        <source>&amp;End the Tour</source>
        <translation>[&amp;Éñd ţĥé Ţöûŕ ~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>[&amp;Fîñîšĥ ~~~]</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>[&amp;Ñéxţ ~~]</translation>
    </message>
    <message>
        <source>Nothing is open. Open a scene or model, or drop one here.</source>
        <translation>[Ñöţĥîñĝ îš öpéñ. Öpéñ à šçéñé öŕ mödél, öŕ dŕöp öñé ĥéŕé. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>View &amp;All</source>
        <translation>[Vîéw &amp;Àll ~~~~]</translation>
    </message>
    <message>
        <source>View &amp;Selected</source>
        <translation>[Vîéw &amp;Šéléçţéd ~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>[&amp;Ĥömé ~~]</translation>
    </message>
    <message>
        <source>&amp;Wireframe</source>
        <translation>[&amp;Wîŕéfŕàmé ~~~~]</translation>
    </message>
    <message>
        <source>S&amp;tatistics</source>
        <translation>[Š&amp;ţàţîšţîçš ~~~~]</translation>
    </message>
    <message>
        <source>In the Scene’s &amp;Order</source>
        <translation>[Îñ ţĥé Šçéñé’š &amp;Öŕdéŕ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Sorted by &amp;Name</source>
        <translation>[Šöŕţéd bý &amp;Ñàmé ~~~~~~]</translation>
    </message>
    <message>
        <source>Most T&amp;riangles First</source>
        <translation>[Möšţ Ţ&amp;ŕîàñĝléš Fîŕšţ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Most Me&amp;mory First</source>
        <translation>[Möšţ Mé&amp;möŕý Fîŕšţ ~~~~~~~]</translation>
    </message>
    <message>
        <source>Most Pla&amp;ces First</source>
        <translation>[Möšţ Plà&amp;çéš Fîŕšţ ~~~~~~~]</translation>
    </message>
    <message>
        <source>A plug-in failed when it was to tell its columns of the tree: %1</source>
        <translation>[À plûĝ-îñ fàîléd wĥéñ îţ wàš ţö ţéll îţš çölûmñš öf ţĥé ţŕéé: %1 ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>[Ţŕý Àĝàîñ ~~~~]</translation>
    </message>
    <message>
        <source>Type a part of the name</source>
        <translation>[Ţýpé à pàŕţ öf ţĥé ñàmé ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Types of nodes</source>
        <translation>[Ţýpéš öf ñödéš ~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” failed: %2</source>
        <translation>[“%1” fàîléd: %2 ~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be undone and is no longer in the history: %2</source>
        <translation>[“%1” çàññöţ bé ûñdöñé àñd îš ñö löñĝéŕ îñ ţĥé ĥîšţöŕý: %2 ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be redone and is no longer in the history: %2</source>
        <translation>[“%1” çàññöţ bé ŕédöñé àñd îš ñö löñĝéŕ îñ ţĥé ĥîšţöŕý: %2 ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A step of the history went with “%1”, which no longer exists.</source>
        <translation>[À šţép öf ţĥé ĥîšţöŕý wéñţ wîţĥ “%1”, wĥîçĥ ñö löñĝéŕ éxîšţš. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 steps of the history went with “%2”, which no longer exists.</source>
        <translation>[%1 šţépš öf ţĥé ĥîšţöŕý wéñţ wîţĥ “%2”, wĥîçĥ ñö löñĝéŕ éxîšţš. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>the list has another length by now</source>
        <translation>[ţĥé lîšţ ĥàš àñöţĥéŕ léñĝţĥ bý ñöw ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>nothing could be written</source>
        <translation>[ñöţĥîñĝ çöûld bé wŕîţţéñ ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1, and in %L2 more</source>
        <translation>[%1, àñd îñ %L2 möŕé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Look &amp;From</source>
        <translation>[Lööķ &amp;Fŕöm ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Front</source>
        <translation>[&amp;Fŕöñţ ~~]</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>[&amp;Ŕîĝĥţ ~~]</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>[&amp;Ţöp ~~]</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>[&amp;Léfţ ~~]</translation>
    </message>
    <message>
        <source>B&amp;ottom</source>
        <translation>[B&amp;öţţöm ~~~]</translation>
    </message>
    <message>
        <source>&amp;Orthographic</source>
        <translation>[&amp;Öŕţĥöĝŕàpĥîç ~~~~~]</translation>
    </message>
    <message>
        <source>Wal&amp;k</source>
        <translation>[Wàl&amp;ķ ~~]</translation>
    </message>
    <message>
        <source>Look Throu&amp;gh</source>
        <translation>[Lööķ Ţĥŕöû&amp;ĝĥ ~~~~~]</translation>
    </message>
    <message>
        <source>Keep This View as a &amp;Camera</source>
        <translation>[Ķéép Ţĥîš Vîéw àš à &amp;Çàméŕà ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>G&amp;rid</source>
        <translation>[Ĝ&amp;ŕîd ~~]</translation>
    </message>
    <message>
        <source>A&amp;xes</source>
        <translation>[À&amp;xéš ~~]</translation>
    </message>
    <message>
        <source>Orientation C&amp;ube</source>
        <translation>[Öŕîéñţàţîöñ Ç&amp;ûbé ~~~~~~~]</translation>
    </message>
    <message>
        <source>The view cannot be kept: what is open is a single node, and has no place for a camera; put it into a group first.</source>
        <translation>[Ţĥé vîéw çàññöţ bé ķépţ: wĥàţ îš öpéñ îš à šîñĝlé ñödé, àñd ĥàš ñö plàçé föŕ à çàméŕà; pûţ îţ îñţö à ĝŕöûp fîŕšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Keep a View as a Camera</source>
        <translation>[Ķéép à Vîéw àš à Çàméŕà ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>This view is kept as the camera “%1”.</source>
        <translation>[Ţĥîš vîéw îš ķépţ àš ţĥé çàméŕà “%1”. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>No Cameras in This Scene</source>
        <translation>[Ñö Çàméŕàš îñ Ţĥîš Šçéñé ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>S&amp;hading</source>
        <translation>[Š&amp;ĥàdîñĝ ~~~]</translation>
    </message>
    <message>
        <source>T&amp;one Mapping</source>
        <translation>[Ţ&amp;öñé Màppîñĝ ~~~~~]</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>[Šĥö&amp;w ~~]</translation>
    </message>
    <message>
        <source>&amp;Full</source>
        <translation>[&amp;Fûll ~~]</translation>
    </message>
    <message>
        <source>Full, with &amp;Edges</source>
        <translation>[Fûll, wîţĥ &amp;Édĝéš ~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Normals</source>
        <translation>[&amp;Ñöŕmàlš ~~~]</translation>
    </message>
    <message>
        <source>&amp;Texture Coordinates</source>
        <translation>[&amp;Ţéxţûŕé Çööŕdîñàţéš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Overdraw</source>
        <translation>[&amp;Övéŕdŕàw ~~~~]</translation>
    </message>
    <message>
        <source>&amp;None: What Is Brighter than White Is White</source>
        <translation>[&amp;Ñöñé: Wĥàţ Îš Bŕîĝĥţéŕ ţĥàñ Wĥîţé Îš Wĥîţé ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Neu&amp;tral: Bright Light Is Compressed, Colours Stay</source>
        <translation>[Ñéû&amp;ţŕàl: Bŕîĝĥţ Lîĝĥţ Îš Çömpŕéššéd, Çölöûŕš Šţàý ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Filmic: All Is Compressed, as on Film</source>
        <translation>[&amp;Fîlmîç: Àll Îš Çömpŕéššéd, àš öñ Fîlm ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Box with Sizes around the Selection</source>
        <translation>[&amp;Böx wîţĥ Šîžéš àŕöûñd ţĥé Šéléçţîöñ ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;What a Click Would Select</source>
        <translation>[&amp;Wĥàţ à Çlîçķ Wöûld Šéléçţ ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Clipping Plane</source>
        <translation>[&amp;Çlîppîñĝ Plàñé ~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Measure</source>
        <translation>[&amp;Méàšûŕé ~~~]</translation>
    </message>
    <message>
        <source>Walking: W A S D or arrows, drag to look around, Esc ends</source>
        <translation>[Wàlķîñĝ: W À Š D öŕ àŕŕöwš, dŕàĝ ţö lööķ àŕöûñd, Éšç éñdš ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Take the &amp;Tour</source>
        <translation>[Ţàķé ţĥé &amp;Ţöûŕ ~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Start Page</source>
        <translation>[&amp;Šţàŕţ Pàĝé ~~~~]</translation>
    </message>
    <message>
        <source>Five steps through this window</source>
        <translation>[Fîvé šţépš ţĥŕöûĝĥ ţĥîš wîñdöw ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Click anything</source>
        <translation>[Çlîçķ àñýţĥîñĝ ~~~~~~]</translation>
    </message>
    <message>
        <source>Click something in the 3D view. Drag to turn, drag with the right button to move, turn the wheel to come nearer.</source>
        <translation>[Çlîçķ šöméţĥîñĝ îñ ţĥé 3D vîéw. Dŕàĝ ţö ţûŕñ, dŕàĝ wîţĥ ţĥé ŕîĝĥţ bûţţöñ ţö mövé, ţûŕñ ţĥé wĥéél ţö çömé ñéàŕéŕ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>See where it stands</source>
        <translation>[Šéé wĥéŕé îţ šţàñdš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>The tree shows the whole scene. Choose another node in it; Ctrl+F finds one by its name, type or value.</source>
        <translation>[Ţĥé ţŕéé šĥöwš ţĥé wĥölé šçéñé. Çĥööšé àñöţĥéŕ ñödé îñ îţ; Çţŕl+F fîñdš öñé bý îţš ñàmé, ţýpé öŕ vàlûé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Tune it</source>
        <translation>[Ţûñé îţ ~~~]</translation>
    </message>
    <message>
        <source>Here are the values of what is selected. Change one: drag a number, or type one; the picture follows.</source>
        <translation>[Ĥéŕé àŕé ţĥé vàlûéš öf wĥàţ îš šéléçţéd. Çĥàñĝé öñé: dŕàĝ à ñûmbéŕ, öŕ ţýpé öñé; ţĥé pîçţûŕé föllöwš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Undo it</source>
        <translation>[Ûñdö îţ ~~~]</translation>
    </message>
    <message>
        <source>Ctrl+Z takes the change back, bit by bit. One gesture is one step.</source>
        <translation>[Çţŕl+Ž ţàķéš ţĥé çĥàñĝé bàçķ, bîţ bý bîţ. Öñé ĝéšţûŕé îš öñé šţép. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Find everything else</source>
        <translation>[Fîñd évéŕýţĥîñĝ élšé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Ctrl+K finds every act, node, field and setting by its name, F1 explains what is selected. Save with Ctrl+S, or export for another program from the File menu.</source>
        <translation>[Çţŕl+Ķ fîñdš évéŕý àçţ, ñödé, fîéld àñd šéţţîñĝ bý îţš ñàmé, F1 éxplàîñš wĥàţ îš šéléçţéd. Šàvé wîţĥ Çţŕl+Š, öŕ éxpöŕţ föŕ àñöţĥéŕ pŕöĝŕàm fŕöm ţĥé Fîlé méñû. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is the root of the scene, and has to stay where it is.</source>
        <translation>[“%1” îš ţĥé ŕööţ öf ţĥé šçéñé, àñd ĥàš ţö šţàý wĥéŕé îţ îš. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Put %1 Above “%2”</source>
        <translation>[Pûţ %1 Àbövé “%2” ~~~~~~~]</translation>
    </message>
    <message>
        <source>Put %1 Above %2 Nodes</source>
        <translation>[Pûţ %1 Àbövé %2 Ñödéš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing was put above, since “%1” takes no children; choose a type that does.</source>
        <translation>[Ñöţĥîñĝ wàš pûţ àbövé, šîñçé “%1” ţàķéš ñö çĥîldŕéñ; çĥööšé à ţýpé ţĥàţ döéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be duplicated: something in it is of a kind that cannot be copied.</source>
        <translation>[“%1” çàññöţ bé dûplîçàţéd: šöméţĥîñĝ îñ îţ îš öf à ķîñd ţĥàţ çàññöţ bé çöpîéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is no group, and cannot be ungrouped.</source>
        <translation>[“%1” îš ñö ĝŕöûp, àñd çàññöţ bé ûñĝŕöûpéd. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be put below itself.</source>
        <translation>[“%1” çàññöţ bé pûţ bélöw îţšélf. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” stands in one place only, and is its own already.</source>
        <translation>[“%1” šţàñdš îñ öñé plàçé öñlý, àñd îš îţš öwñ àlŕéàdý. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be made unique: something in it is of a kind that cannot be copied.</source>
        <translation>[“%1” çàññöţ bé màdé ûñîqûé: šöméţĥîñĝ îñ îţ îš öf à ķîñd ţĥàţ çàññöţ bé çöpîéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing can be put into “%1”, which is no group.</source>
        <translation>[Ñöţĥîñĝ çàñ bé pûţ îñţö “%1”, wĥîçĥ îš ñö ĝŕöûp. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A node cannot be called “%1”: names can have the letters of western European languages only.</source>
        <translation>[À ñödé çàññöţ bé çàlléd “%1”: ñàméš çàñ ĥàvé ţĥé léţţéŕš öf wéšţéŕñ Éûŕöpéàñ làñĝûàĝéš öñlý. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Rename “%1” to “%2”</source>
        <translation>[Ŕéñàmé “%1” ţö “%2” ~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be copied: something in it is of a kind that cannot be copied.</source>
        <translation>[“%1” çàññöţ bé çöpîéd: šöméţĥîñĝ îñ îţ îš öf à ķîñd ţĥàţ çàññöţ bé çöpîéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is the first one in its group already.</source>
        <translation>[“%1” îš ţĥé fîŕšţ öñé îñ îţš ĝŕöûp àlŕéàdý. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is the last one in its group already.</source>
        <translation>[“%1” îš ţĥé làšţ öñé îñ îţš ĝŕöûp àlŕéàdý. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” stands in the root of the scene, out of which nothing can be moved.</source>
        <translation>[“%1” šţàñdš îñ ţĥé ŕööţ öf ţĥé šçéñé, öûţ öf wĥîçĥ ñöţĥîñĝ çàñ bé mövéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>There is no group before “%1” that it could be moved into.</source>
        <translation>[Ţĥéŕé îš ñö ĝŕöûp béföŕé “%1” ţĥàţ îţ çöûld bé mövéd îñţö. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing is hidden that could be hidden for good.</source>
        <translation>[Ñöţĥîñĝ îš ĥîddéñ ţĥàţ çöûld bé ĥîddéñ föŕ ĝööd. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Hide “%1” for Good</source>
        <translation>[Ĥîdé “%1” föŕ Ĝööd ~~~~~~~]</translation>
    </message>
    <message>
        <source>Hide %1 Nodes for Good</source>
        <translation>[Ĥîdé %1 Ñödéš föŕ Ĝööd ~~~~~~~~~]</translation>
    </message>
</context>
</TS>
