<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="qps" sourcelanguage="en">
<context>
    <name>Scopix</name>
    <message>
        <source>Pinned Panels</source>
        <translation>[Pîññéd Pàñélš ~~~~~]</translation>
    </message>
    <message>
        <source>Panels that stay with their nodes, whatever is selected.</source>
        <translation>[Pàñélš ţĥàţ šţàý wîţĥ ţĥéîŕ ñödéš, wĥàţévéŕ îš šéléçţéd. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Shows a list as a wide table.</source>
        <translation>[Šĥöwš à lîšţ àš à wîdé ţàblé. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>red</source>
        <translation>[ŕéd ~]</translation>
    </message>
    <message>
        <source>green</source>
        <translation>[ĝŕééñ ~~]</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>[blûé ~~]</translation>
    </message>
    <message>
        <source>normal x</source>
        <translation>[ñöŕmàl x ~~~]</translation>
    </message>
    <message>
        <source>normal y</source>
        <translation>[ñöŕmàl ý ~~~]</translation>
    </message>
    <message>
        <source>normal z</source>
        <translation>[ñöŕmàl ž ~~~]</translation>
    </message>
    <message>
        <source>distance from the origin</source>
        <translation>[dîšţàñçé fŕöm ţĥé öŕîĝîñ ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>There is not enough memory for this change; close other programs or change fewer rows.</source>
        <translation>[Ţĥéŕé îš ñöţ éñöûĝĥ mémöŕý föŕ ţĥîš çĥàñĝé; çlöšé öţĥéŕ pŕöĝŕàmš öŕ çĥàñĝé féwéŕ ŕöwš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>There is not enough memory to change so many rows; select fewer.</source>
        <translation>[Ţĥéŕé îš ñöţ éñöûĝĥ mémöŕý ţö çĥàñĝé šö màñý ŕöwš; šéléçţ féwéŕ. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>There is not enough memory for %1 more rows; add fewer.</source>
        <translation>[Ţĥéŕé îš ñöţ éñöûĝĥ mémöŕý föŕ %1 möŕé ŕöwš; àdd féwéŕ. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The list was changed by somebody else meanwhile, so nothing was written; try again.</source>
        <translation>[Ţĥé lîšţ wàš çĥàñĝéd bý šömébödý élšé méàñwĥîlé, šö ñöţĥîñĝ wàš wŕîţţéñ; ţŕý àĝàîñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Changing %1 rows…</source>
        <translation>[Çĥàñĝîñĝ %1 ŕöwš… ~~~~~~~]</translation>
    </message>
    <message>
        <source>There is not enough memory to remember so many rows for undo; delete fewer.</source>
        <translation>[Ţĥéŕé îš ñöţ éñöûĝĥ mémöŕý ţö ŕémémbéŕ šö màñý ŕöwš föŕ ûñdö; déléţé féwéŕ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>There is not enough memory to duplicate so many rows; select fewer.</source>
        <translation>[Ţĥéŕé îš ñöţ éñöûĝĥ mémöŕý ţö dûplîçàţé šö màñý ŕöwš; šéléçţ féwéŕ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>There is not enough memory for %1 rows; close other programs.</source>
        <translation>[Ţĥéŕé îš ñöţ éñöûĝĥ mémöŕý föŕ %1 ŕöwš; çlöšé öţĥéŕ pŕöĝŕàmš. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Holds other nodes in order. State that a child sets is seen by the children after it, and by what follows the group.</source>
        <translation>[Ĥöldš öţĥéŕ ñödéš îñ öŕdéŕ. Šţàţé ţĥàţ à çĥîld šéţš îš šééñ bý ţĥé çĥîldŕéñ àfţéŕ îţ, àñd bý wĥàţ föllöwš ţĥé ĝŕöûp. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A group that isolates state: what its children set does not reach what follows the group.</source>
        <translation>[À ĝŕöûp ţĥàţ îšölàţéš šţàţé: wĥàţ îţš çĥîldŕéñ šéţ döéš ñöţ ŕéàçĥ wĥàţ föllöwš ţĥé ĝŕöûp. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Shows one of its children, all, or none.</source>
        <translation>[Šĥöwš öñé öf îţš çĥîldŕéñ, àll, öŕ ñöñé. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Shows one of its children by the distance of the eye: the first when nearer than the first distance, the second when nearer than the second, and so on; the last child beyond all distances.</source>
        <translation>[Šĥöwš öñé öf îţš çĥîldŕéñ bý ţĥé dîšţàñçé öf ţĥé éýé: ţĥé fîŕšţ wĥéñ ñéàŕéŕ ţĥàñ ţĥé fîŕšţ dîšţàñçé, ţĥé šéçöñd wĥéñ ñéàŕéŕ ţĥàñ ţĥé šéçöñd, àñd šö öñ; ţĥé làšţ çĥîld béýöñd àll dîšţàñçéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Shows its children once for each matrix; the graphics hardware copies them. Lights and clip planes inside stand where the first copy does.</source>
        <translation>[Šĥöwš îţš çĥîldŕéñ öñçé föŕ éàçĥ màţŕîx; ţĥé ĝŕàpĥîçš ĥàŕdwàŕé çöpîéš ţĥém. Lîĝĥţš àñd çlîp plàñéš îñšîdé šţàñd wĥéŕé ţĥé fîŕšţ çöpý döéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Stands for a node of a type that this program does not know, as a file had it, so that writing the file again loses nothing. Its fields are those that the file has, each with its value as text; its children are shown as a separator's.</source>
        <translation>[Šţàñdš föŕ à ñödé öf à ţýpé ţĥàţ ţĥîš pŕöĝŕàm döéš ñöţ ķñöw, àš à fîlé ĥàd îţ, šö ţĥàţ wŕîţîñĝ ţĥé fîlé àĝàîñ löšéš ñöţĥîñĝ. Îţš fîéldš àŕé ţĥöšé ţĥàţ ţĥé fîlé ĥàš, éàçĥ wîţĥ îţš vàlûé àš ţéxţ; îţš çĥîldŕéñ àŕé šĥöwñ àš à šépàŕàţöŕ'š. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Sees as an eye does: what is far is small.</source>
        <translation>[Šééš àš àñ éýé döéš: wĥàţ îš fàŕ îš šmàll. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Sees everything in its size, however far it is.</source>
        <translation>[Šééš évéŕýţĥîñĝ îñ îţš šîžé, ĥöwévéŕ fàŕ îţ îš. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Light that comes from far away, everywhere from the same direction.</source>
        <translation>[Lîĝĥţ ţĥàţ çöméš fŕöm fàŕ àwàý, évéŕýwĥéŕé fŕöm ţĥé šàmé dîŕéçţîöñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Light from a point in all directions.</source>
        <translation>[Lîĝĥţ fŕöm à pöîñţ îñ àll dîŕéçţîöñš. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Light from a point within a cone.</source>
        <translation>[Lîĝĥţ fŕöm à pöîñţ wîţĥîñ à çöñé. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Light that comes evenly from everywhere; takes the place of an earlier one.</source>
        <translation>[Lîĝĥţ ţĥàţ çöméš évéñlý fŕöm évéŕýwĥéŕé; ţàķéš ţĥé plàçé öf àñ éàŕlîéŕ öñé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The light of the surroundings, which physically based surfaces mirror and scatter: a ground, a horizon and a sky above it, the y axis pointing up. Takes the place of an earlier one and, for these surfaces, of the headlight. Colours are linear.</source>
        <translation>[Ţĥé lîĝĥţ öf ţĥé šûŕŕöûñdîñĝš, wĥîçĥ pĥýšîçàllý bàšéd šûŕfàçéš mîŕŕöŕ àñd šçàţţéŕ: à ĝŕöûñd, à ĥöŕîžöñ àñd à šķý àbövé îţ, ţĥé ý àxîš pöîñţîñĝ ûp. Ţàķéš ţĥé plàçé öf àñ éàŕlîéŕ öñé àñd, föŕ ţĥéšé šûŕfàçéš, öf ţĥé ĥéàdlîĝĥţ. Çölöûŕš àŕé lîñéàŕ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Scales, then turns, then moves what follows it. An ignored field takes no part.</source>
        <translation>[Šçàléš, ţĥéñ ţûŕñš, ţĥéñ mövéš wĥàţ föllöwš îţ. Àñ îĝñöŕéd fîéld ţàķéš ñö pàŕţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Moves what follows it by a matrix.</source>
        <translation>[Mövéš wĥàţ föllöwš îţ bý à màţŕîx. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Turns what follows it, faster or slower, as time passes: each view that shows the scene drives the time source (`SoTimeSource`).</source>
        <translation>[Ţûŕñš wĥàţ föllöwš îţ, fàšţéŕ öŕ šlöwéŕ, àš ţîmé pàššéš: éàçĥ vîéw ţĥàţ šĥöwš ţĥé šçéñé dŕîvéš ţĥé ţîmé šöûŕçé (`ŠöŢîméŠöûŕçé`). ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A clip: its tracks give fields of other nodes the values of one time. While it is stopped these have their own. What it writes is no edit, and is not saved.</source>
        <translation>[À çlîp: îţš ţŕàçķš ĝîvé fîéldš öf öţĥéŕ ñödéš ţĥé vàlûéš öf öñé ţîmé. Wĥîlé îţ îš šţöppéd ţĥéšé ĥàvé ţĥéîŕ öwñ. Wĥàţ îţ wŕîţéš îš ñö édîţ, àñd îš ñöţ šàvéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Keys of one field of one node, for the animation that it is a child of. Fields of numbers, rotations, colours and lists of numbers can be animated.</source>
        <translation>[Ķéýš öf öñé fîéld öf öñé ñödé, föŕ ţĥé àñîmàţîöñ ţĥàţ îţ îš à çĥîld öf. Fîéldš öf ñûmbéŕš, ŕöţàţîöñš, çölöûŕš àñd lîšţš öf ñûmbéŕš çàñ bé àñîmàţéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Bends the points before it, and their normals, by the bones of a skeleton, for the vertex shapes after it. Bones are transforms that stand anywhere in the scene. Lists that do not fit together change nothing.</source>
        <translation>[Béñdš ţĥé pöîñţš béföŕé îţ, àñd ţĥéîŕ ñöŕmàlš, bý ţĥé böñéš öf à šķéléţöñ, föŕ ţĥé véŕţéx šĥàpéš àfţéŕ îţ. Böñéš àŕé ţŕàñšföŕmš ţĥàţ šţàñd àñýwĥéŕé îñ ţĥé šçéñé. Lîšţš ţĥàţ dö ñöţ fîţ ţöĝéţĥéŕ çĥàñĝé ñöţĥîñĝ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Moves the points before it, and their normals, towards other shapes, for the vertex shapes after it: adds what each target differs by, as much of it as its weight says. Lists that do not fit together change nothing.</source>
        <translation>[Mövéš ţĥé pöîñţš béföŕé îţ, àñd ţĥéîŕ ñöŕmàlš, ţöwàŕdš öţĥéŕ šĥàpéš, föŕ ţĥé véŕţéx šĥàpéš àfţéŕ îţ: àddš wĥàţ éàçĥ ţàŕĝéţ dîfféŕš bý, àš mûçĥ öf îţ àš îţš wéîĝĥţ šàýš. Lîšţš ţĥàţ dö ñöţ fîţ ţöĝéţĥéŕ çĥàñĝé ñöţĥîñĝ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>How the surface of what follows looks. An ignored field leaves what an earlier material said.</source>
        <translation>[Ĥöw ţĥé šûŕfàçé öf wĥàţ föllöwš lööķš. Àñ îĝñöŕéd fîéld léàvéš wĥàţ àñ éàŕlîéŕ màţéŕîàl šàîd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A physically based surface for what follows, as glTF 2.0 defines it; takes the place of an earlier material of either kind. Colours are linear: half as bright is 0.5, shown as 0.735. A light of intensity 3.14 makes a white surface white. An ignored field has its default.</source>
        <translation>[À pĥýšîçàllý bàšéd šûŕfàçé föŕ wĥàţ föllöwš, àš ĝlŢF 2.0 défîñéš îţ; ţàķéš ţĥé plàçé öf àñ éàŕlîéŕ màţéŕîàl öf éîţĥéŕ ķîñd. Çölöûŕš àŕé lîñéàŕ: ĥàlf àš bŕîĝĥţ îš 0.5, šĥöwñ àš 0.735. À lîĝĥţ öf îñţéñšîţý 3.14 màķéš à wĥîţé šûŕfàçé wĥîţé. Àñ îĝñöŕéd fîéld ĥàš îţš défàûlţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The picture of one property of the physically based surfaces that follow, which multiply it with their own values. Pictures of colours are decoded from sRGB, others are taken as they are. Texture2 is their base colour, too.</source>
        <translation>[Ţĥé pîçţûŕé öf öñé pŕöpéŕţý öf ţĥé pĥýšîçàllý bàšéd šûŕfàçéš ţĥàţ föllöw, wĥîçĥ mûlţîplý îţ wîţĥ ţĥéîŕ öwñ vàlûéš. Pîçţûŕéš öf çölöûŕš àŕé déçödéd fŕöm šŔĜB, öţĥéŕš àŕé ţàķéñ àš ţĥéý àŕé. Ţéxţûŕé2 îš ţĥéîŕ bàšé çölöûŕ, ţöö. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The picture on the surface of what follows. A file, where one is named and can be read, wins over the image.</source>
        <translation>[Ţĥé pîçţûŕé öñ ţĥé šûŕfàçé öf wĥàţ föllöwš. À fîlé, wĥéŕé öñé îš ñàméd àñd çàñ bé ŕéàd, wîñš övéŕ ţĥé îmàĝé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Moves the texture on what follows: scales, then turns, then moves its coordinates.</source>
        <translation>[Mövéš ţĥé ţéxţûŕé öñ wĥàţ föllöwš: šçàléš, ţĥéñ ţûŕñš, ţĥéñ mövéš îţš çööŕdîñàţéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Whether what follows is drawn filled, as its edges, as its points, or not at all.</source>
        <translation>[Wĥéţĥéŕ wĥàţ föllöwš îš dŕàwñ fîlléd, àš îţš édĝéš, àš îţš pöîñţš, öŕ ñöţ àţ àll. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>How finely what follows is drawn.</source>
        <translation>[Ĥöw fîñélý wĥàţ föllöwš îš dŕàwñ. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Lets what follows fade into a colour with its distance from the eye.</source>
        <translation>[Léţš wĥàţ föllöwš fàdé îñţö à çölöûŕ wîţĥ îţš dîšţàñçé fŕöm ţĥé éýé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cuts what follows it: what lies on the side the plane's normal points to stays.</source>
        <translation>[Çûţš wĥàţ föllöwš îţ: wĥàţ lîéš öñ ţĥé šîdé ţĥé plàñé'š ñöŕmàl pöîñţš ţö šţàýš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The corners of the vertex shapes that follow.</source>
        <translation>[Ţĥé çöŕñéŕš öf ţĥé véŕţéx šĥàpéš ţĥàţ föllöw. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The directions of light reflection at the corners of the vertex shapes that follow, one per point. Where they are missing or of another number than the points, a shape makes its own.</source>
        <translation>[Ţĥé dîŕéçţîöñš öf lîĝĥţ ŕéfléçţîöñ àţ ţĥé çöŕñéŕš öf ţĥé véŕţéx šĥàpéš ţĥàţ föllöw, öñé péŕ pöîñţ. Wĥéŕé ţĥéý àŕé mîššîñĝ öŕ öf àñöţĥéŕ ñûmbéŕ ţĥàñ ţĥé pöîñţš, à šĥàpé màķéš îţš öwñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The places in the texture at the corners of the vertex shapes that follow, one per point: (0, 0) is the texture's lower left corner, (1, 1) the upper right.</source>
        <translation>[Ţĥé plàçéš îñ ţĥé ţéxţûŕé àţ ţĥé çöŕñéŕš öf ţĥé véŕţéx šĥàpéš ţĥàţ föllöw, öñé péŕ pöîñţ: (0, 0) îš ţĥé ţéxţûŕé'š löwéŕ léfţ çöŕñéŕ, (1, 1) ţĥé ûppéŕ ŕîĝĥţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Further places in textures at the corners of the vertex shapes that follow, one per point, for the MaterialTexture nodes that ask for them.</source>
        <translation>[Fûŕţĥéŕ plàçéš îñ ţéxţûŕéš àţ ţĥé çöŕñéŕš öf ţĥé véŕţéx šĥàpéš ţĥàţ föllöw, öñé péŕ pöîñţ, föŕ ţĥé MàţéŕîàlŢéxţûŕé ñödéš ţĥàţ àšķ föŕ ţĥém. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A box around the origin.</source>
        <translation>[À böx àŕöûñd ţĥé öŕîĝîñ. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A ball around the origin.</source>
        <translation>[À bàll àŕöûñd ţĥé öŕîĝîñ. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A cone around the y axis, its tip up.</source>
        <translation>[À çöñé àŕöûñd ţĥé ý àxîš, îţš ţîp ûp. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A cylinder around the y axis.</source>
        <translation>[À çýlîñdéŕ àŕöûñd ţĥé ý àxîš. ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Triangles, each of the next three points.</source>
        <translation>[Ţŕîàñĝléš, éàçĥ öf ţĥé ñéxţ ţĥŕéé pöîñţš. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Strips of triangles: each point after the second makes a triangle with the two before it. Each strip takes as many of the next points as its count says; without counts one strip takes all.</source>
        <translation>[Šţŕîpš öf ţŕîàñĝléš: éàçĥ pöîñţ àfţéŕ ţĥé šéçöñd màķéš à ţŕîàñĝlé wîţĥ ţĥé ţwö béföŕé îţ. Éàçĥ šţŕîp ţàķéš àš màñý öf ţĥé ñéxţ pöîñţš àš îţš çöûñţ šàýš; wîţĥöûţ çöûñţš öñé šţŕîp ţàķéš àll. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Triangles, each of three points named by their place in the list of points.</source>
        <translation>[Ţŕîàñĝléš, éàçĥ öf ţĥŕéé pöîñţš ñàméd bý ţĥéîŕ plàçé îñ ţĥé lîšţ öf pöîñţš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Strips of triangles, the points named by their places in the list.</source>
        <translation>[Šţŕîpš öf ţŕîàñĝléš, ţĥé pöîñţš ñàméd bý ţĥéîŕ plàçéš îñ ţĥé lîšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Lines from point to point. Each joins as many of the next points as its count says; without counts one line joins all.</source>
        <translation>[Lîñéš fŕöm pöîñţ ţö pöîñţ. Éàçĥ ĵöîñš àš màñý öf ţĥé ñéxţ pöîñţš àš îţš çöûñţ šàýš; wîţĥöûţ çöûñţš öñé lîñé ĵöîñš àll. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Lines from point to point, the points named by their places in the list.</source>
        <translation>[Lîñéš fŕöm pöîñţ ţö pöîñţ, ţĥé pöîñţš ñàméd bý ţĥéîŕ plàçéš îñ ţĥé lîšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Each of the points, drawn as a dot.</source>
        <translation>[Éàçĥ öf ţĥé pöîñţš, dŕàwñ àš à döţ. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Some of the points, drawn as dots.</source>
        <translation>[Šömé öf ţĥé pöîñţš, dŕàwñ àš döţš. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Text that keeps its size on the screen and stands where the origin is. Lines run downwards. Latin letters, digits and signs; what the font does not have is shown as a box.</source>
        <translation>[Ţéxţ ţĥàţ ķéépš îţš šîžé öñ ţĥé šçŕééñ àñd šţàñdš wĥéŕé ţĥé öŕîĝîñ îš. Lîñéš ŕûñ döwñwàŕdš. Làţîñ léţţéŕš, dîĝîţš àñd šîĝñš; wĥàţ ţĥé föñţ döéš ñöţ ĥàvé îš šĥöwñ àš à böx. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A place in the scene where an application draws by itself, with OpenGL 3.3. Draws nothing until a callback is set.</source>
        <translation>[À plàçé îñ ţĥé šçéñé wĥéŕé àñ àpplîçàţîöñ dŕàwš bý îţšélf, wîţĥ ÖpéñĜL 3.3. Dŕàwš ñöţĥîñĝ ûñţîl à çàllbàçķ îš šéţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A comment: a text for people, without effect on the picture.</source>
        <translation>[À çömméñţ: à ţéxţ föŕ péöplé, wîţĥöûţ éfféçţ öñ ţĥé pîçţûŕé. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>[Çàñçél ~~]</translation>
    </message>
    <message>
        <source>x from</source>
        <translation>[x fŕöm ~~]</translation>
    </message>
    <message>
        <source>y from</source>
        <translation>[ý fŕöm ~~]</translation>
    </message>
    <message>
        <source>z from</source>
        <translation>[ž fŕöm ~~]</translation>
    </message>
    <message>
        <source>x to</source>
        <translation>[x ţö ~~]</translation>
    </message>
    <message>
        <source>y to</source>
        <translation>[ý ţö ~~]</translation>
    </message>
    <message>
        <source>z to</source>
        <translation>[ž ţö ~~]</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>[Çömmà-šépàŕàţéd vàlûéš (*.csv *.tsv *.txt);;Àll fîléš (*) ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>has %1 columns and not %2</source>
        <translation>[ĥàš %1 çölûmñš àñd ñöţ %2 ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>holds “%1”, which is no value of this list</source>
        <translation>[ĥöldš “%1”, wĥîçĥ îš ñö vàlûé öf ţĥîš lîšţ ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>no picture</source>
        <translation>[ñö pîçţûŕé ~~~~]</translation>
    </message>
    <message>
        <source>%1 × %2, %3 channels</source>
        <translation>[%1 × %2, %3 çĥàññélš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>[émpţý ~~]</translation>
    </message>
    <message>
        <source>1 value</source>
        <translation>[1 vàlûé ~~~]</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>[%1 vàlûéš ~~~~]</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>[%1, %2 ţö %3 ~~~~~]</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>[%1 ţö %2 ~~~]</translation>
    </message>
    <message>
        <source>at least %1, at most %2</source>
        <translation>[àţ léàšţ %1, àţ möšţ %2 ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>[àţ léàšţ %1 ~~~~]</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>[àţ möšţ %1 ~~~~]</translation>
    </message>
    <message>
        <source>radians, shown in degrees</source>
        <translation>[ŕàdîàñš, šĥöwñ îñ déĝŕééš ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>radians</source>
        <translation>[ŕàdîàñš ~~~]</translation>
    </message>
    <message>
        <source>metres, where the scene has no other scale</source>
        <translation>[méţŕéš, wĥéŕé ţĥé šçéñé ĥàš ñö öţĥéŕ šçàlé ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>metres, shown in %1</source>
        <translation>[méţŕéš, šĥöwñ îñ %1 ~~~~~~~~]</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>[šéçöñdš ~~~]</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>[Ûñîţ: %1 ~~~]</translation>
    </message>
    <message>
        <source>Range: %1</source>
        <translation>[Ŕàñĝé: %1 ~~~~]</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>[Défàûlţ: %1 ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Find This Value</source>
        <translation>[&amp;Fîñd Ţĥîš Vàlûé ~~~~~~]</translation>
    </message>
    <message>
        <source>Use as My Default for &amp;New Nodes</source>
        <translation>[Ûšé àš Mý Défàûlţ föŕ &amp;Ñéw Ñödéš ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>For&amp;get My Default for New Nodes</source>
        <translation>[Föŕ&amp;ĝéţ Mý Défàûlţ föŕ Ñéw Ñödéš ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Help on %1</source>
        <translation>[&amp;Ĥélp öñ %1 ~~~~]</translation>
    </message>
    <message>
        <source>on</source>
        <translation>[öñ ~]</translation>
    </message>
    <message>
        <source>off</source>
        <translation>[öff ~]</translation>
    </message>
    <message>
        <source>This cell is “%1” now. Enter writes what you typed, Esc keeps “%1”.</source>
        <translation>[Ţĥîš çéll îš “%1” ñöw. Éñţéŕ wŕîţéš wĥàţ ýöû ţýpéd, Éšç ķéépš “%1”. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1, row %2, %3: %4</source>
        <translation>[%1, ŕöw %2, %3: %4 ~~~~~~~]</translation>
    </message>
    <message>
        <source>row %1, %2</source>
        <translation>[ŕöw %1, %2 ~~~~]</translation>
    </message>
    <message>
        <source>Row %1 was removed while you typed in it.</source>
        <translation>[Ŕöw %1 wàš ŕémövéd wĥîlé ýöû ţýpéd îñ îţ. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>HSV</source>
        <translation>[ĤŠV ~]</translation>
    </message>
    <message>
        <source>&amp;HSV, sRGB</source>
        <translation>[&amp;ĤŠV, šŔĜB ~~~~]</translation>
    </message>
    <message>
        <source>Hue in degrees, saturation and value, of sRGB</source>
        <translation>[Ĥûé îñ déĝŕééš, šàţûŕàţîöñ àñd vàlûé, öf šŔĜB ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>[ĥûé ~]</translation>
    </message>
    <message>
        <source>saturation</source>
        <translation>[šàţûŕàţîöñ ~~~~]</translation>
    </message>
    <message>
        <source>value</source>
        <translation>[vàlûé ~~]</translation>
    </message>
    <message>
        <source>hex</source>
        <translation>[ĥéx ~]</translation>
    </message>
    <message>
        <source>He&amp;x, sRGB</source>
        <translation>[Ĥé&amp;x, šŔĜB ~~~~]</translation>
    </message>
    <message>
        <source>Hexadecimal, sRGB, as in #1a6090</source>
        <translation>[Ĥéxàdéçîmàl, šŔĜB, àš îñ #1à6090 ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>lin</source>
        <translation>[lîñ ~]</translation>
    </message>
    <message>
        <source>&amp;Linear RGB</source>
        <translation>[&amp;Lîñéàŕ ŔĜB ~~~~]</translation>
    </message>
    <message>
        <source>Linear light, from 0 to 1; sRGB is stored</source>
        <translation>[Lîñéàŕ lîĝĥţ, fŕöm 0 ţö 1; šŔĜB îš šţöŕéd ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>[ŔĜB ~]</translation>
    </message>
    <message>
        <source>&amp;RGB, sRGB</source>
        <translation>[&amp;ŔĜB, šŔĜB ~~~~]</translation>
    </message>
    <message>
        <source>sRGB, from 0 to 1, as stored</source>
        <translation>[šŔĜB, fŕöm 0 ţö 1, àš šţöŕéd ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>colour picker</source>
        <translation>[çölöûŕ pîçķéŕ ~~~~~]</translation>
    </message>
    <message>
        <source>form</source>
        <translation>[föŕm ~~]</translation>
    </message>
    <message>
        <source>as hexadecimal text</source>
        <translation>[àš ĥéxàdéçîmàl ţéxţ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1, sRGB. A click opens the colour picker.</source>
        <translation>[%1, šŔĜB. À çlîçķ öpéñš ţĥé çölöûŕ pîçķéŕ. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1, sRGB</source>
        <translation>[%1, šŔĜB ~~~]</translation>
    </message>
    <message>
        <source>“%1” is no colour: write one as in #1a6090.</source>
        <translation>[“%1” îš ñö çölöûŕ: wŕîţé öñé àš îñ #1à6090. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Connect %1</source>
        <translation>[Çöññéçţ %1 ~~~~]</translation>
    </message>
    <message>
        <source>Node, field or type</source>
        <translation>[Ñödé, fîéld öŕ ţýpé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>[Fîlţéŕ ~~]</translation>
    </message>
    <message>
        <source>Fields that it can follow</source>
        <translation>[Fîéldš ţĥàţ îţ çàñ föllöw ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 (no name)</source>
        <translation>[%1 (ñö ñàmé) ~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Pin</source>
        <translation>[&amp;Pîñ ~~]</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>[Çĥàñĝéd ~~~]</translation>
    </message>
    <message>
        <source>Keeps this panel in a dock of its own, whatever is selected.</source>
        <translation>[Ķéépš ţĥîš pàñél îñ à döçķ öf îţš öwñ, wĥàţévéŕ îš šéléçţéd. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>[Pîñ ~]</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>[Béföŕé ~~]</translation>
    </message>
    <message>
        <source>Shows the values from when the scene was opened or last saved. Nothing can be edited meanwhile. In the view and in the tree, B does this.</source>
        <translation>[Šĥöwš ţĥé vàlûéš fŕöm wĥéñ ţĥé šçéñé wàš öpéñéd öŕ làšţ šàvéd. Ñöţĥîñĝ çàñ bé édîţéd méàñwĥîlé. Îñ ţĥé vîéw àñd îñ ţĥé ţŕéé, B döéš ţĥîš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing here has been edited since the scene was opened or saved.</source>
        <translation>[Ñöţĥîñĝ ĥéŕé ĥàš bééñ édîţéd šîñçé ţĥé šçéñé wàš öpéñéd öŕ šàvéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Filter the fields by name, meaning, type or value</source>
        <translation>[Fîlţéŕ ţĥé fîéldš bý ñàmé, méàñîñĝ, ţýpé öŕ vàlûé ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Shows the fields whose name, meaning, type or value has these words.</source>
        <translation>[Šĥöwš ţĥé fîéldš wĥöšé ñàmé, méàñîñĝ, ţýpé öŕ vàlûé ĥàš ţĥéšé wöŕdš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Only changed fields</source>
        <translation>[Öñlý çĥàñĝéd fîéldš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Shows the fields only that do not have their default value.</source>
        <translation>[Šĥöwš ţĥé fîéldš öñlý ţĥàţ dö ñöţ ĥàvé ţĥéîŕ défàûlţ vàlûé. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>More than %L1 nodes are selected; select fewer to edit what they share.</source>
        <translation>[Möŕé ţĥàñ %L1 ñödéš àŕé šéléçţéd; šéléçţ féwéŕ ţö édîţ wĥàţ ţĥéý šĥàŕé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>An edit changes all of them. Where they differ, it says “mixed”.</source>
        <translation>[Àñ édîţ çĥàñĝéš àll öf ţĥém. Wĥéŕé ţĥéý dîfféŕ, îţ šàýš “mîxéd”. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%L1 nodes: %2</source>
        <translation>[%L1 ñödéš: %2 ~~~~~]</translation>
    </message>
    <message>
        <source>Select %1, which holds it</source>
        <translation>[Šéléçţ %1, wĥîçĥ ĥöldš îţ ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Select the %1 that counts here</source>
        <translation>[Šéléçţ ţĥé %1 ţĥàţ çöûñţš ĥéŕé ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 cells selected</source>
        <translation>[%1 çéllš šéléçţéd ~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 to %2, mean %3</source>
        <translation>[%1 ţö %2, méàñ %3 ~~~~~~~]</translation>
    </message>
    <message>
        <source>no numbers</source>
        <translation>[ñö ñûmbéŕš ~~~~]</translation>
    </message>
    <message>
        <source>%1, %2 NaN</source>
        <translation>[%1, %2 ÑàÑ ~~~~]</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>[Çĥööšé à fîlé ~~~~~]</translation>
    </message>
    <message>
        <source>choose a file</source>
        <translation>[çĥööšé à fîlé ~~~~~]</translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation>[Çĥööšé à Fîlé ~~~~~]</translation>
    </message>
    <message>
        <source>no node</source>
        <translation>[ñö ñödé ~~~]</translation>
    </message>
    <message>
        <source>Click to select it.</source>
        <translation>[Çlîçķ ţö šéléçţ îţ. ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Click to open it in the Field Editor.</source>
        <translation>[Çlîçķ ţö öpéñ îţ îñ ţĥé Fîéld Édîţöŕ. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>What the line is for</source>
        <translation>[Wĥàţ ţĥé lîñé îš föŕ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Calculate</source>
        <translation>[Çàlçûlàţé ~~~~]</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>[Fîñd ~~]</translation>
    </message>
    <message>
        <source>Go to</source>
        <translation>[Ĝö ţö ~~]</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>[Ţàblé ~~]</translation>
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
        <source>Paste as New &amp;Rows</source>
        <translation>[Pàšţé àš Ñéw &amp;Ŕöwš ~~~~~~~]</translation>
    </message>
    <message>
        <source>Clear Cells or Delete Rows</source>
        <translation>[Çléàŕ Çéllš öŕ Déléţé Ŕöwš ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>C&amp;lear Cells</source>
        <translation>[Ç&amp;léàŕ Çéllš ~~~~~]</translation>
    </message>
    <message>
        <source>Edit Cell</source>
        <translation>[Édîţ Çéll ~~~~]</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>[Ç&amp;ĥööšé… ~~~]</translation>
    </message>
    <message>
        <source>Go to the Node</source>
        <translation>[Ĝö ţö ţĥé Ñödé ~~~~~~]</translation>
    </message>
    <message>
        <source>Calc&amp;ulate…</source>
        <translation>[Çàlç&amp;ûlàţé… ~~~~]</translation>
    </message>
    <message>
        <source>Fill &amp;Down</source>
        <translation>[Fîll &amp;Döwñ ~~~~]</translation>
    </message>
    <message>
        <source>Fill &amp;Series</source>
        <translation>[Fîll &amp;Šéŕîéš ~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Insert Row Before</source>
        <translation>[&amp;Îñšéŕţ Ŕöw Béföŕé ~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Add Row Behind</source>
        <translation>[&amp;Àdd Ŕöw Béĥîñd ~~~~~~]</translation>
    </message>
    <message>
        <source>Du&amp;plicate Rows</source>
        <translation>[Dû&amp;plîçàţé Ŕöwš ~~~~~~]</translation>
    </message>
    <message>
        <source>Delet&amp;e Rows</source>
        <translation>[Déléţ&amp;é Ŕöwš ~~~~~]</translation>
    </message>
    <message>
        <source>Move Rows &amp;Up</source>
        <translation>[Mövé Ŕöwš &amp;Ûp ~~~~~]</translation>
    </message>
    <message>
        <source>Move Rows Do&amp;wn</source>
        <translation>[Mövé Ŕöwš Dö&amp;wñ ~~~~~~]</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>[Šéléçţ &amp;Àll ~~~~]</translation>
    </message>
    <message>
        <source>Select Whole Rows</source>
        <translation>[Šéléçţ Wĥölé Ŕöwš ~~~~~~~]</translation>
    </message>
    <message>
        <source>Select Whole Columns</source>
        <translation>[Šéléçţ Wĥölé Çölûmñš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>[&amp;Fîñd… ~~]</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>[Fîñd &amp;Ñéxţ ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Go to Row…</source>
        <translation>[&amp;Ĝö ţö Ŕöw… ~~~~]</translation>
    </message>
    <message>
        <source>Filter…</source>
        <translation>[Fîlţéŕ… ~~~]</translation>
    </message>
    <message>
        <source>Show Duplicates</source>
        <translation>[Šĥöw Dûplîçàţéš ~~~~~~]</translation>
    </message>
    <message>
        <source>Sort Rows Upwards</source>
        <translation>[Šöŕţ Ŕöwš Ûpwàŕdš ~~~~~~~]</translation>
    </message>
    <message>
        <source>Sort Rows Downwards</source>
        <translation>[Šöŕţ Ŕöwš Döwñwàŕdš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Show All in the List’s Order</source>
        <translation>[Šĥöw Àll îñ ţĥé Lîšţ’š Öŕdéŕ ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Sort Values Upwards</source>
        <translation>[Šöŕţ Vàlûéš Ûpwàŕdš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Sort Values Downwards</source>
        <translation>[Šöŕţ Vàlûéš Döwñwàŕdš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Read CSV…</source>
        <translation>[Ŕéàd ÇŠV… ~~~~]</translation>
    </message>
    <message>
        <source>Write CSV…</source>
        <translation>[Wŕîţé ÇŠV… ~~~~]</translation>
    </message>
    <message>
        <source>Reset to De&amp;fault</source>
        <translation>[Ŕéšéţ ţö Dé&amp;fàûlţ ~~~~~~~]</translation>
    </message>
    <message>
        <source>I&amp;gnore This List</source>
        <translation>[Î&amp;ĝñöŕé Ţĥîš Lîšţ ~~~~~~~]</translation>
    </message>
    <message>
        <source>Open &amp;Wide</source>
        <translation>[Öpéñ &amp;Wîdé ~~~~]</translation>
    </message>
    <message>
        <source>Fit Column Widths</source>
        <translation>[Fîţ Çölûmñ Wîdţĥš ~~~~~~~]</translation>
    </message>
    <message>
        <source>ignored</source>
        <translation>[îĝñöŕéd ~~~]</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>[çöññéçţéd ~~~~]</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>[%1 šĥöwñ ~~~]</translation>
    </message>
    <message>
        <source>x*2, x+row*0.1, clamp(x,0,1)</source>
        <translation>[x*2, x+ŕöw*0.1, çlàmp(x,0,1) ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>x &gt; 3, nan, duplicates</source>
        <translation>[x &gt; 3, ñàñ, dûplîçàţéš ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a number or text</source>
        <translation>[à ñûmbéŕ öŕ ţéxţ ~~~~~~]</translation>
    </message>
    <message>
        <source>a row number</source>
        <translation>[à ŕöw ñûmbéŕ ~~~~~]</translation>
    </message>
    <message>
        <source>a text for all selected cells</source>
        <translation>[à ţéxţ föŕ àll šéléçţéd çéllš ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>a part of the text, duplicates</source>
        <translation>[à pàŕţ öf ţĥé ţéxţ, dûplîçàţéš ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A formula for every selected cell: x is the cell, row its row, n the number of rows, and c1, c2, … are the cells of its row. Enter writes.</source>
        <translation>[À föŕmûlà föŕ évéŕý šéléçţéd çéll: x îš ţĥé çéll, ŕöw îţš ŕöw, ñ ţĥé ñûmbéŕ öf ŕöwš, àñd ç1, ç2, … àŕé ţĥé çéllš öf îţš ŕöw. Éñţéŕ wŕîţéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Shows only the rows for which this holds: the columns by their headings, row, n; nan, inf or duplicates; nothing shows all rows. Enter applies.</source>
        <translation>[Šĥöwš öñlý ţĥé ŕöwš föŕ wĥîçĥ ţĥîš ĥöldš: ţĥé çölûmñš bý ţĥéîŕ ĥéàdîñĝš, ŕöw, ñ; ñàñ, îñf öŕ dûplîçàţéš; ñöţĥîñĝ šĥöwš àll ŕöwš. Éñţéŕ àpplîéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Goes to the next cell that holds this. Enter goes on.</source>
        <translation>[Ĝöéš ţö ţĥé ñéxţ çéll ţĥàţ ĥöldš ţĥîš. Éñţéŕ ĝöéš öñ. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Goes to this row.</source>
        <translation>[Ĝöéš ţö ţĥîš ŕöw. ~~~~~~~]</translation>
    </message>
    <message>
        <source>Written to every selected cell by Enter.</source>
        <translation>[Wŕîţţéñ ţö évéŕý šéléçţéd çéll bý Éñţéŕ. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Shows only the rows that hold this text; nothing shows all rows. Enter applies.</source>
        <translation>[Šĥöwš öñlý ţĥé ŕöwš ţĥàţ ĥöld ţĥîš ţéxţ; ñöţĥîñĝ šĥöwš àll ŕöwš. Éñţéŕ àpplîéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Bits that have no name; they stay as they are.</source>
        <translation>[Bîţš ţĥàţ ĥàvé ñö ñàmé; ţĥéý šţàý àš ţĥéý àŕé. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>grid</source>
        <translation>[ĝŕîd ~~]</translation>
    </message>
    <message>
        <source>move, turn, scale</source>
        <translation>[mövé, ţûŕñ, šçàlé ~~~~~~~]</translation>
    </message>
    <message>
        <source>row %1, column %2</source>
        <translation>[ŕöw %1, çölûmñ %2 ~~~~~~~]</translation>
    </message>
    <message>
        <source>move</source>
        <translation>[mövé ~~]</translation>
    </message>
    <message>
        <source>turn</source>
        <translation>[ţûŕñ ~~]</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>[šçàlé ~~]</translation>
    </message>
    <message>
        <source>sheared</source>
        <translation>[šĥéàŕéd ~~~]</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>[flàţ ~~]</translation>
    </message>
    <message>
        <source>perspective</source>
        <translation>[péŕšpéçţîvé ~~~~]</translation>
    </message>
    <message>
        <source>It shears: its axes are not at right angles</source>
        <translation>[Îţ šĥéàŕš: îţš àxéš àŕé ñöţ àţ ŕîĝĥţ àñĝléš ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>It squeezes space flat, or has numbers that are not finite</source>
        <translation>[Îţ šqûééžéš špàçé flàţ, öŕ ĥàš ñûmbéŕš ţĥàţ àŕé ñöţ fîñîţé ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Its last column is not 0 0 0 1</source>
        <translation>[Îţš làšţ çölûmñ îš ñöţ 0 0 0 1 ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1, so it cannot be shown as moving, turning and scaling.</source>
        <translation>[%1, šö îţ çàññöţ bé šĥöwñ àš mövîñĝ, ţûŕñîñĝ àñd šçàlîñĝ. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Sho&amp;w Only Changed</source>
        <translation>[Šĥö&amp;w Öñlý Çĥàñĝéd ~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Copy Values</source>
        <translation>[&amp;Çöpý Vàlûéš ~~~~~]</translation>
    </message>
    <message>
        <source>Paste &amp;Values</source>
        <translation>[Pàšţé &amp;Vàlûéš ~~~~~]</translation>
    </message>
    <message>
        <source>Cop&amp;y Path</source>
        <translation>[Çöp&amp;ý Pàţĥ ~~~~]</translation>
    </message>
    <message>
        <source>Copy as C+&amp;+</source>
        <translation>[Çöpý àš Ç+&amp;+ ~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Reset All to Defaults</source>
        <translation>[&amp;Ŕéšéţ Àll ţö Défàûlţš ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Use as My Defaults for &amp;New Nodes</source>
        <translation>[Ûšé àš Mý Défàûlţš föŕ &amp;Ñéw Ñödéš ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Find All of Type %1</source>
        <translation>[&amp;Fîñd Àll öf Ţýpé %1 ~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be pasted: it has no values for the fields of %2.</source>
        <translation>[“%1” çàññöţ bé pàšţéd: îţ ĥàš ñö vàlûéš föŕ ţĥé fîéldš öf %2. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>[mîxéd ~~]</translation>
    </message>
    <message>
        <source>The result is not a number that this field can hold.</source>
        <translation>[Ţĥé ŕéšûlţ îš ñöţ à ñûmbéŕ ţĥàţ ţĥîš fîéld çàñ ĥöld. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>metres</source>
        <translation>[méţŕéš ~~]</translation>
    </message>
    <message>
        <source>centimetres</source>
        <translation>[çéñţîméţŕéš ~~~~]</translation>
    </message>
    <message>
        <source>millimetres</source>
        <translation>[mîllîméţŕéš ~~~~]</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>[îñçĥéš ~~]</translation>
    </message>
    <message>
        <source>feet</source>
        <translation>[fééţ ~~]</translation>
    </message>
    <message>
        <source>All</source>
        <translation>[Àll ~]</translation>
    </message>
    <message>
        <source>&amp;Filter the Fields</source>
        <translation>[&amp;Fîlţéŕ ţĥé Fîéldš ~~~~~~~]</translation>
    </message>
    <message>
        <source>An&amp;gles in Degrees</source>
        <translation>[Àñ&amp;ĝléš îñ Déĝŕééš ~~~~~~~]</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>[Ñûmbéŕš ~~~]</translation>
    </message>
    <message>
        <source>Lengths in</source>
        <translation>[Léñĝţĥš îñ ~~~~]</translation>
    </message>
    <message>
        <source>How the panel shows lengths. Any unit can be typed, as in “3 cm” or “2 in”.</source>
        <translation>[Ĥöw ţĥé pàñél šĥöwš léñĝţĥš. Àñý ûñîţ çàñ bé ţýpéd, àš îñ “3 çm” öŕ “2 îñ”. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Digits of a number</source>
        <translation>[Dîĝîţš öf à ñûmbéŕ ~~~~~~~]</translation>
    </message>
    <message>
        <source>How many the panel shows. What a field holds keeps all of them.</source>
        <translation>[Ĥöw màñý ţĥé pàñél šĥöwš. Wĥàţ à fîéld ĥöldš ķéépš àll öf ţĥém. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%L1 nodes</source>
        <translation>[%L1 ñödéš ~~~~]</translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation>[%1 (pîññéd) ~~~~]</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>[Çömpàŕé ~~~]</translation>
    </message>
    <message>
        <source>Marks the rows that differ from those of the selected node, or of another pinned panel that compares.</source>
        <translation>[Màŕķš ţĥé ŕöwš ţĥàţ dîfféŕ fŕöm ţĥöšé öf ţĥé šéléçţéd ñödé, öŕ öf àñöţĥéŕ pîññéd pàñél ţĥàţ çömpàŕéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>with %1</source>
        <translation>[wîţĥ %1 ~~~]</translation>
    </message>
    <message>
        <source>Select one other node to compare with.</source>
        <translation>[Šéléçţ öñé öţĥéŕ ñödé ţö çömpàŕé wîţĥ. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” was removed from the scene and no longer exists; close this panel.</source>
        <translation>[“%1” wàš ŕémövéd fŕöm ţĥé šçéñé àñd ñö löñĝéŕ éxîšţš; çlöšé ţĥîš pàñél. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>axis, angle</source>
        <translation>[àxîš, àñĝlé ~~~~]</translation>
    </message>
    <message>
        <source>Euler</source>
        <translation>[Éûléŕ ~~]</translation>
    </message>
    <message>
        <source>quaternion</source>
        <translation>[qûàţéŕñîöñ ~~~~]</translation>
    </message>
    <message>
        <source>angle</source>
        <translation>[àñĝlé ~~]</translation>
    </message>
    <message>
        <source>State of %1</source>
        <translation>[Šţàţé öf %1 ~~~~]</translation>
    </message>
    <message>
        <source>Changed elsewhere meanwhile: take that value, or keep yours.</source>
        <translation>[Çĥàñĝéd élšéwĥéŕé méàñwĥîlé: ţàķé ţĥàţ vàlûé, öŕ ķéép ýöûŕš. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Follows %1.</source>
        <translation>[Föllöwš %1. ~~~~]</translation>
    </message>
    <message>
        <source>Ignored: takes no part.</source>
        <translation>[Îĝñöŕéd: ţàķéš ñö pàŕţ. ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Animated: %1 at rest, which is what is saved.</source>
        <translation>[Àñîmàţéd: %1 àţ ŕéšţ, wĥîçĥ îš wĥàţ îš šàvéd. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Changes by itself.</source>
        <translation>[Çĥàñĝéš bý îţšélf. ~~~~~~~]</translation>
    </message>
    <message>
        <source>Changed: not the default.</source>
        <translation>[Çĥàñĝéd: ñöţ ţĥé défàûlţ. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The default.</source>
        <translation>[Ţĥé défàûlţ. ~~~~~]</translation>
    </message>
    <message>
        <source>Take the compared value of %1</source>
        <translation>[Ţàķé ţĥé çömpàŕéd vàlûé öf %1 ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Differs: takes %1, the value of the node that it is compared with.</source>
        <translation>[Dîfféŕš: ţàķéš %1, ţĥé vàlûé öf ţĥé ñödé ţĥàţ îţ îš çömpàŕéd wîţĥ. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Take the New Value</source>
        <translation>[&amp;Ţàķé ţĥé Ñéw Vàlûé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>[&amp;Ķéép Mîñé ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Reset to Default</source>
        <translation>[&amp;Ŕéšéţ ţö Défàûlţ ~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>[&amp;Îĝñöŕé ~~~]</translation>
    </message>
    <message>
        <source>C&amp;onnect to a Field…</source>
        <translation>[Ç&amp;öññéçţ ţö à Fîéld… ~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>[&amp;Dîšçöññéçţ ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>[&amp;Çöpý Vàlûé ~~~~]</translation>
    </message>
    <message>
        <source>Paste &amp;Value</source>
        <translation>[Pàšţé &amp;Vàlûé ~~~~~]</translation>
    </message>
    <message>
        <source>Copy as &amp;Scene Text</source>
        <translation>[Çöpý àš &amp;Šçéñé Ţéxţ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be pasted: it is no value for %2.</source>
        <translation>[“%1” çàññöţ bé pàšţéd: îţ îš ñö vàlûé föŕ %2. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>These nodes share no field.</source>
        <translation>[Ţĥéšé ñödéš šĥàŕé ñö fîéld. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>This node has no fields.</source>
        <translation>[Ţĥîš ñödé ĥàš ñö fîéldš. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>No field passes the filter.</source>
        <translation>[Ñö fîéld pàššéš ţĥé fîlţéŕ. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>[déĝŕééš ~~~]</translation>
    </message>
    <message>
        <source>So many cells do not fit into the clipboard; write them to a file with “Write CSV…”.</source>
        <translation>[Šö màñý çéllš dö ñöţ fîţ îñţö ţĥé çlîpböàŕd; wŕîţé ţĥém ţö à fîlé wîţĥ “Wŕîţé ÇŠV…”. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Copying %1 rows…</source>
        <translation>[Çöpýîñĝ %1 ŕöwš… ~~~~~~]</translation>
    </message>
    <message>
        <source>Reading the clipboard…</source>
        <translation>[Ŕéàdîñĝ ţĥé çlîpböàŕd… ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing was pasted, since the clipboard holds no text; copy cells or text first.</source>
        <translation>[Ñöţĥîñĝ wàš pàšţéd, šîñçé ţĥé çlîpböàŕd ĥöldš ñö ţéxţ; çöpý çéllš öŕ ţéxţ fîŕšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The block was not pasted, since it has %1 columns and only %2 are left from there on; select a column further left.</source>
        <translation>[Ţĥé blöçķ wàš ñöţ pàšţéd, šîñçé îţ ĥàš %1 çölûmñš àñd öñlý %2 àŕé léfţ fŕöm ţĥéŕé öñ; šéléçţ à çölûmñ fûŕţĥéŕ léfţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The block was not pasted, since it is longer than the rows that are shown; show all rows in the list's order first.</source>
        <translation>[Ţĥé blöçķ wàš ñöţ pàšţéd, šîñçé îţ îš löñĝéŕ ţĥàñ ţĥé ŕöwš ţĥàţ àŕé šĥöwñ; šĥöw àll ŕöwš îñ ţĥé lîšţ'š öŕdéŕ fîŕšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The rows were not inserted, since only whole rows of %1 columns can be, into a list in its own order; paste them over cells instead.</source>
        <translation>[Ţĥé ŕöwš wéŕé ñöţ îñšéŕţéd, šîñçé öñlý wĥölé ŕöwš öf %1 çölûmñš çàñ bé, îñţö à lîšţ îñ îţš öwñ öŕdéŕ; pàšţé ţĥém övéŕ çéllš îñšţéàd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing was pasted, since “%1” in row %2, column %3 of the copied block is no value that this list can hold; correct it where it was copied.</source>
        <translation>[Ñöţĥîñĝ wàš pàšţéd, šîñçé “%1” îñ ŕöw %2, çölûmñ %3 öf ţĥé çöpîéd blöçķ îš ñö vàlûé ţĥàţ ţĥîš lîšţ çàñ ĥöld; çöŕŕéçţ îţ wĥéŕé îţ wàš çöpîéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” was not written to row %2, %3, since it is no value that a list of type %4 can hold; type another or press Esc.</source>
        <translation>[“%1” wàš ñöţ wŕîţţéñ ţö ŕöw %2, %3, šîñçé îţ îš ñö vàlûé ţĥàţ à lîšţ öf ţýpé %4 çàñ ĥöld; ţýpé àñöţĥéŕ öŕ pŕéšš Éšç. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A series needs at least two selected rows of numbers; select them and try again.</source>
        <translation>[À šéŕîéš ñéédš àţ léàšţ ţwö šéléçţéd ŕöwš öf ñûmbéŕš; šéléçţ ţĥém àñd ţŕý àĝàîñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Colour of the Selected Rows</source>
        <translation>[Çölöûŕ öf ţĥé Šéléçţéd Ŕöwš ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>This list has no default value, since it belongs to no node that can be made anew.</source>
        <translation>[Ţĥîš lîšţ ĥàš ñö défàûlţ vàlûé, šîñçé îţ bélöñĝš ţö ñö ñödé ţĥàţ çàñ bé màdé àñéw. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Rows cannot be added or moved while they are sorted or filtered; show all rows in the list's order first.</source>
        <translation>[Ŕöwš çàññöţ bé àddéd öŕ mövéd wĥîlé ţĥéý àŕé šöŕţéd öŕ fîlţéŕéd; šĥöw àll ŕöwš îñ ţĥé lîšţ'š öŕdéŕ fîŕšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Write CSV</source>
        <translation>[Wŕîţé ÇŠV ~~~~]</translation>
    </message>
    <message>
        <source>Read CSV</source>
        <translation>[Ŕéàd ÇŠV ~~~]</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2; choose another file.</source>
        <translation>[“%1” çöûld ñöţ bé wŕîţţéñ: %2; çĥööšé àñöţĥéŕ fîlé. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its name was expected to end in .%1</source>
        <translation>[îţš ñàmé wàš éxpéçţéd ţö éñd îñ .%1 ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” was not written, since the list was changed meanwhile; try again.</source>
        <translation>[“%1” wàš ñöţ wŕîţţéñ, šîñçé ţĥé lîšţ wàš çĥàñĝéd méàñwĥîlé; ţŕý àĝàîñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>[Wŕîţîñĝ “%1”… ~~~~~]</translation>
    </message>
    <message>
        <source>“%1” could not be read: it is no regular file; choose another one.</source>
        <translation>[“%1” çöûld ñöţ bé ŕéàd: îţ îš ñö ŕéĝûlàŕ fîlé; çĥööšé àñöţĥéŕ öñé. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” could not be read: %2; choose a file that you may read.</source>
        <translation>[“%1” çöûld ñöţ bé ŕéàd: %2; çĥööšé à fîlé ţĥàţ ýöû màý ŕéàd. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>[Ŕéàdîñĝ “%1”… ~~~~~]</translation>
    </message>
    <message>
        <source>“%1” was not read, since line %2 %3; correct the file and try again.</source>
        <translation>[“%1” wàš ñöţ ŕéàd, šîñçé lîñé %2 %3; çöŕŕéçţ ţĥé fîlé àñd ţŕý àĝàîñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A list as a table</source>
        <translation>[À lîšţ àš à ţàblé ~~~~~~~]</translation>
    </message>
    <message>
        <source>%1, a list of %2 values, type %3</source>
        <translation>[%1, à lîšţ öf %2 vàlûéš, ţýpé %3 ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>[ŕöw %1 ~~]</translation>
    </message>
    <message>
        <source>Sorting the rows…</source>
        <translation>[Šöŕţîñĝ ţĥé ŕöwš… ~~~~~~~]</translation>
    </message>
    <message>
        <source>Sorting the values…</source>
        <translation>[Šöŕţîñĝ ţĥé vàlûéš… ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Filtering the rows…</source>
        <translation>[Fîlţéŕîñĝ ţĥé ŕöwš… ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Searching for duplicates…</source>
        <translation>[Šéàŕçĥîñĝ föŕ dûplîçàţéš… ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>[Šéàŕçĥîñĝ… ~~~~]</translation>
    </message>
    <message>
        <source>“%1” is in no cell that is shown.</source>
        <translation>[“%1” îš îñ ñö çéll ţĥàţ îš šĥöwñ. ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is no row that is shown; type a number from 0 to %2.</source>
        <translation>[“%1” îš ñö ŕöw ţĥàţ îš šĥöwñ; ţýpé à ñûmbéŕ fŕöm 0 ţö %2. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Several lines: click the name and edit them in the Field Editor.</source>
        <translation>[Šévéŕàl lîñéš: çlîçķ ţĥé ñàmé àñd édîţ ţĥém îñ ţĥé Fîéld Édîţöŕ. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is no value for %2.</source>
        <translation>[“%1” îš ñö vàlûé föŕ %2. ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Choose “Open Wide” in the menu of a list’s table to see the list here.</source>
        <translation>[Çĥööšé “Öpéñ Wîdé” îñ ţĥé méñû öf à lîšţ’š ţàblé ţö šéé ţĥé lîšţ ĥéŕé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
</context>
</TS>
