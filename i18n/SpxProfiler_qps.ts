<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="qps" sourcelanguage="en">
<context>
    <name>Scopix</name>
    <message>
        <source>Time, ms</source>
        <translation>[Ţîmé, mš ~~~]</translation>
    </message>
    <message>
        <source>±, ms</source>
        <translation>[±, mš ~~]</translation>
    </message>
    <message>
        <source>Drawn triangles</source>
        <translation>[Dŕàwñ ţŕîàñĝléš ~~~~~~]</translation>
    </message>
    <message>
        <source>Draw calls</source>
        <translation>[Dŕàw çàllš ~~~~]</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>[Pîxélš ~~]</translation>
    </message>
    <message>
        <source>OpenGL memory, kB</source>
        <translation>[ÖpéñĜL mémöŕý, ķB ~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 materials are equal; one could serve all of them.</source>
        <translation>[%1 màţéŕîàlš àŕé éqûàl; öñé çöûld šéŕvé àll öf ţĥém. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 lists of points are equal; one could serve all of them.</source>
        <translation>[%1 lîšţš öf pöîñţš àŕé éqûàl; öñé çöûld šéŕvé àll öf ţĥém. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Its picture has %1 × %2 pixels, more than the view's %3 × %4, and takes %5, %6 of all pictures; a smaller one would look the same.</source>
        <translation>[Îţš pîçţûŕé ĥàš %1 × %2 pîxélš, möŕé ţĥàñ ţĥé vîéw'š %3 × %4, àñd ţàķéš %5, %6 öf àll pîçţûŕéš; à šmàlléŕ öñé wöûld lööķ ţĥé šàmé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 bodies with fewer than 100 triangles are below it, %2 of all bodies; joined to one, they would be drawn at once.</source>
        <translation>[%1 bödîéš wîţĥ féwéŕ ţĥàñ 100 ţŕîàñĝléš àŕé bélöw îţ, %2 öf àll bödîéš; ĵöîñéd ţö öñé, ţĥéý wöûld bé dŕàwñ àţ öñçé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>It has %1 of all triangles, %2 of %3.</source>
        <translation>[Îţ ĥàš %1 öf àll ţŕîàñĝléš, %2 öf %3. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>It has %1 of all triangles, %2 of %3; levels of detail would draw fewer from far away.</source>
        <translation>[Îţ ĥàš %1 öf àll ţŕîàñĝléš, %2 öf %3; lévélš öf déţàîl wöûld dŕàw féwéŕ fŕöm fàŕ àwàý. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>It is drawn, %1 triangles, and the picture is the same without it; hide it, or cut what is behind others.</source>
        <translation>[Îţ îš dŕàwñ, %1 ţŕîàñĝléš, àñd ţĥé pîçţûŕé îš ţĥé šàmé wîţĥöûţ îţ; ĥîdé îţ, öŕ çûţ wĥàţ îš béĥîñd öţĥéŕš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>[Löĝ ~]</translation>
    </message>
    <message>
        <source>Shows what is written and reported, to filter and to find in.</source>
        <translation>[Šĥöwš wĥàţ îš wŕîţţéñ àñd ŕépöŕţéd, ţö fîlţéŕ àñd ţö fîñd îñ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>[Çöšţ ~~]</translation>
    </message>
    <message>
        <source>Measures what each branch of the scene costs.</source>
        <translation>[Méàšûŕéš wĥàţ éàçĥ bŕàñçĥ öf ţĥé šçéñé çöšţš. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>[Fŕàméš ~~]</translation>
    </message>
    <message>
        <source>Shows what each frame cost, and why.</source>
        <translation>[Šĥöwš wĥàţ éàçĥ fŕàmé çöšţ, àñd wĥý. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>[îţ çàññöţ bé ŕéàd ~~~~~~~]</translation>
    </message>
    <message>
        <source>it has more than 256 MiB</source>
        <translation>[îţ ĥàš möŕé ţĥàñ 256 MîB ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 %2 instead of %3</source>
        <translation>[%1 %2 îñšţéàd öf %3 ~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>[“%1” ~~]</translation>
    </message>
    <message>
        <source>Recordings of frames (*.xsgframes);;Comma-separated values (*.csv)</source>
        <translation>[Ŕéçöŕdîñĝš öf fŕàméš (*.xsgframes);;Çömmà-šépàŕàţéd vàlûéš (*.csv) ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Compare Frames</source>
        <translation>[Çömpàŕé Fŕàméš ~~~~~~]</translation>
    </message>
    <message>
        <source>Medians of %1 frames of “%2” before, and of %3 frames after. By the test of Mann and Whitney; bold where chance alone would do it less than once in a hundred.</source>
        <translation>[Médîàñš öf %1 fŕàméš öf “%2” béföŕé, àñd öf %3 fŕàméš àfţéŕ. Bý ţĥé ţéšţ öf Màññ àñd Wĥîţñéý; böld wĥéŕé çĥàñçé àlöñé wöûld dö îţ léšš ţĥàñ öñçé îñ à ĥûñdŕéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>[Dîfféŕéñçéš ~~~~]</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>[Çöûñţéŕ ~~~]</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>[Béföŕé ~~]</translation>
    </message>
    <message>
        <source>After</source>
        <translation>[Àfţéŕ ~~]</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>[Çĥàñĝé ~~]</translation>
    </message>
    <message>
        <source>Chance</source>
        <translation>[Çĥàñçé ~~]</translation>
    </message>
    <message>
        <source>Measure Cost</source>
        <translation>[Méàšûŕé Çöšţ ~~~~~]</translation>
    </message>
    <message>
        <source>Without It</source>
        <translation>[Wîţĥöûţ Îţ ~~~~]</translation>
    </message>
    <message>
        <source>What does each part of the scene cost? It is drawn part by part to find out.</source>
        <translation>[Wĥàţ döéš éàçĥ pàŕţ öf ţĥé šçéñé çöšţ? Îţ îš dŕàwñ pàŕţ bý pàŕţ ţö fîñd öûţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Hide the chosen branch and measure what the picture takes then; nothing is written</source>
        <translation>[Ĥîdé ţĥé çĥöšéñ bŕàñçĥ àñd méàšûŕé wĥàţ ţĥé pîçţûŕé ţàķéš ţĥéñ; ñöţĥîñĝ îš wŕîţţéñ ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Areas: time</source>
        <translation>[Àŕéàš: ţîmé ~~~~]</translation>
    </message>
    <message>
        <source>Areas: triangles</source>
        <translation>[Àŕéàš: ţŕîàñĝléš ~~~~~~]</translation>
    </message>
    <message>
        <source>Areas: memory</source>
        <translation>[Àŕéàš: mémöŕý ~~~~~]</translation>
    </message>
    <message>
        <source>Areas: bodies</source>
        <translation>[Àŕéàš: bödîéš ~~~~~]</translation>
    </message>
    <message>
        <source>What the areas tell</source>
        <translation>[Wĥàţ ţĥé àŕéàš ţéll ~~~~~~~~]</translation>
    </message>
    <message>
        <source>View: as it is</source>
        <translation>[Vîéw: àš îţ îš ~~~~~~]</translation>
    </message>
    <message>
        <source>View: time</source>
        <translation>[Vîéw: ţîmé ~~~~]</translation>
    </message>
    <message>
        <source>View: triangles a pixel</source>
        <translation>[Vîéw: ţŕîàñĝléš à pîxél ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>View: overdraw</source>
        <translation>[Vîéw: övéŕdŕàw ~~~~~~]</translation>
    </message>
    <message>
        <source>What the colours of the 3D view tell</source>
        <translation>[Wĥàţ ţĥé çölöûŕš öf ţĥé 3D vîéw ţéll ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Blue costs little, red much</source>
        <translation>[Blûé çöšţš lîţţlé, ŕéd mûçĥ ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Cost of each branch</source>
        <translation>[Çöšţ öf éàçĥ bŕàñçĥ ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>[Ñödé ~~]</translation>
    </message>
    <message>
        <source>Processor, ms</source>
        <translation>[Pŕöçéššöŕ, mš ~~~~~]</translation>
    </message>
    <message>
        <source>Graphics card, ms</source>
        <translation>[Ĝŕàpĥîçš çàŕd, mš ~~~~~~~]</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>[Ţŕîàñĝléš ~~~~]</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>[Bödîéš ~~]</translation>
    </message>
    <message>
        <source>Memory, kB</source>
        <translation>[Mémöŕý, ķB ~~~~]</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>[Ĥîñţš ~~]</translation>
    </message>
    <message>
        <source>The cost cannot be told: no scene is open; open one first.</source>
        <translation>[Ţĥé çöšţ çàññöţ bé ţöld: ñö šçéñé îš öpéñ; öpéñ öñé fîŕšţ. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The view has these colours as soon as the cost is measured.</source>
        <translation>[Ţĥé vîéw ĥàš ţĥéšé çölöûŕš àš šööñ àš ţĥé çöšţ îš méàšûŕéd. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>[Šţöp ~~]</translation>
    </message>
    <message>
        <source>Measuring: %1 %</source>
        <translation>[Méàšûŕîñĝ: %1 % ~~~~~~]</translation>
    </message>
    <message>
        <source>The whole takes %1 ± %2, its parts drawn alone %3 together; an empty picture takes %4.</source>
        <translation>[Ţĥé wĥölé ţàķéš %1 ± %2, îţš pàŕţš dŕàwñ àlöñé %3 ţöĝéţĥéŕ; àñ émpţý pîçţûŕé ţàķéš %4. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>[“%1”: %2 ~~~]</translation>
    </message>
    <message>
        <source>Nothing conspicuous</source>
        <translation>[Ñöţĥîñĝ çöñšpîçûöûš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” was not drawn alone: it is a small part of the whole.</source>
        <translation>[“%1” wàš ñöţ dŕàwñ àlöñé: îţ îš à šmàll pàŕţ öf ţĥé wĥölé. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Without “%1” a picture would take %2 instead of %3, and look the same.</source>
        <translation>[Wîţĥöûţ “%1” à pîçţûŕé wöûld ţàķé %2 îñšţéàd öf %3, àñd lööķ ţĥé šàmé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Without “%1” a picture would take %2 instead of %3.</source>
        <translation>[Wîţĥöûţ “%1” à pîçţûŕé wöûld ţàķé %2 îñšţéàd öf %3. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Without “%1” a picture takes %2 instead of %3: %4 ± %5 more.</source>
        <translation>[Wîţĥöûţ “%1” à pîçţûŕé ţàķéš %2 îñšţéàd öf %3: %4 ± %5 möŕé. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Without “%1” a picture takes %2 instead of %3: %4 ± %5 more; that may be chance.</source>
        <translation>[Wîţĥöûţ “%1” à pîçţûŕé ţàķéš %2 îñšţéàd öf %3: %4 ± %5 möŕé; ţĥàţ màý bé çĥàñçé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Without “%1” a picture takes %2 instead of %3: %4 ± %5 less.</source>
        <translation>[Wîţĥöûţ “%1” à pîçţûŕé ţàķéš %2 îñšţéàd öf %3: %4 ± %5 léšš. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Without “%1” a picture takes %2 instead of %3: %4 ± %5 less; that may be chance.</source>
        <translation>[Wîţĥöûţ “%1” à pîçţûŕé ţàķéš %2 îñšţéàd öf %3: %4 ± %5 léšš; ţĥàţ màý bé çĥàñçé. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The cost cannot be told: the scene has changed meanwhile; stop what moves and measure again.</source>
        <translation>[Ţĥé çöšţ çàññöţ bé ţöld: ţĥé šçéñé ĥàš çĥàñĝéd méàñwĥîlé; šţöp wĥàţ mövéš àñd méàšûŕé àĝàîñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The cost cannot be told: the view has moved meanwhile; let it stand still and measure again.</source>
        <translation>[Ţĥé çöšţ çàññöţ bé ţöld: ţĥé vîéw ĥàš mövéd méàñwĥîlé; léţ îţ šţàñd šţîll àñd méàšûŕé àĝàîñ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Each frame that is drawn comes here as a bar: turn the view.</source>
        <translation>[Éàçĥ fŕàmé ţĥàţ îš dŕàwñ çöméš ĥéŕé àš à bàŕ: ţûŕñ ţĥé vîéw. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>No frames</source>
        <translation>[Ñö fŕàméš ~~~~]</translation>
    </message>
    <message>
        <source>%1 frames: longest %2, mean %3, 95 % within %4, 99 % within %5; %6 over %7</source>
        <translation>[%1 fŕàméš: löñĝéšţ %2, méàñ %3, 95 % wîţĥîñ %4, 99 % wîţĥîñ %5; %6 övéŕ %7 ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>This frame took %1, its neighbours %2</source>
        <translation>[Ţĥîš fŕàmé ţööķ %1, îţš ñéîĝĥböûŕš %2 ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Nothing else was different</source>
        <translation>[Ñöţĥîñĝ élšé wàš dîfféŕéñţ ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The recording “%1” cannot be continued: %2. What was written so far can be opened.</source>
        <translation>[Ţĥé ŕéçöŕdîñĝ “%1” çàññöţ bé çöñţîñûéd: %2. Wĥàţ wàš wŕîţţéñ šö fàŕ çàñ bé öpéñéd. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>[Pàûšé ~~]</translation>
    </message>
    <message>
        <source>Stand still and look at what was (Space)</source>
        <translation>[Šţàñd šţîll àñd lööķ àţ wĥàţ wàš (Špàçé) ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Record…</source>
        <translation>[Ŕéçöŕd… ~~~]</translation>
    </message>
    <message>
        <source>Write what comes to a file, until this is chosen again</source>
        <translation>[Wŕîţé wĥàţ çöméš ţö à fîlé, ûñţîl ţĥîš îš çĥöšéñ àĝàîñ ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>[Öpéñ… ~~]</translation>
    </message>
    <message>
        <source>Look at a recording, or at a table of comma-separated values</source>
        <translation>[Lööķ àţ à ŕéçöŕdîñĝ, öŕ àţ à ţàblé öf çömmà-šépàŕàţéd vàlûéš ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>[Šàvé… ~~]</translation>
    </message>
    <message>
        <source>Save what is here as a recording, or as comma-separated values</source>
        <translation>[Šàvé wĥàţ îš ĥéŕé àš à ŕéçöŕdîñĝ, öŕ àš çömmà-šépàŕàţéd vàlûéš ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Compare…</source>
        <translation>[Çömpàŕé… ~~~]</translation>
    </message>
    <message>
        <source>Compare what is here with a recording</source>
        <translation>[Çömpàŕé wĥàţ îš ĥéŕé wîţĥ à ŕéçöŕdîñĝ ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Back to the Program</source>
        <translation>[Bàçķ ţö ţĥé Pŕöĝŕàm ~~~~~~~~]</translation>
    </message>
    <message>
        <source>Budget of a frame</source>
        <translation>[Bûdĝéţ öf à fŕàmé ~~~~~~~]</translation>
    </message>
    <message>
        <source>What a frame may take</source>
        <translation>[Wĥàţ à fŕàmé màý ţàķé ~~~~~~~~]</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> [mš ~]</translation>
    </message>
    <message>
        <source>Counter or formula</source>
        <translation>[Çöûñţéŕ öŕ föŕmûlà ~~~~~~~]</translation>
    </message>
    <message>
        <source>Counter or formula, as in rate(Triangles)</source>
        <translation>[Çöûñţéŕ öŕ föŕmûlà, àš îñ ŕàţé(Ţŕîàñĝléš) ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>A counter, or a formula such as Triangles / DrawCalls, rate(x) or mean(x, 2s)</source>
        <translation>[À çöûñţéŕ, öŕ à föŕmûlà šûçĥ àš Ţŕîàñĝléš / DŕàwÇàllš, ŕàţé(x) öŕ méàñ(x, 2š) ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be shown: there are %2 curves already; take one out first.</source>
        <translation>[“%1” çàññöţ bé šĥöwñ: ţĥéŕé àŕé %2 çûŕvéš àlŕéàdý; ţàķé öñé öûţ fîŕšţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be shown: %2</source>
        <translation>[“%1” çàññöţ bé šĥöwñ: %2 ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>▔ Gpu</source>
        <translation>[▔ Ĝpû ~~]</translation>
    </message>
    <message>
        <source>Take “%1” out</source>
        <translation>[Ţàķé “%1” öûţ ~~~~~]</translation>
    </message>
    <message>
        <source>%1 %2: take out</source>
        <translation>[%1 %2: ţàķé öûţ ~~~~~~]</translation>
    </message>
    <message>
        <source>%1; recording, %2 frames so far</source>
        <translation>[%1; ŕéçöŕdîñĝ, %2 fŕàméš šö fàŕ ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Choose a frame to see what was different about it.</source>
        <translation>[Çĥööšé à fŕàmé ţö šéé wĥàţ wàš dîfféŕéñţ àböûţ îţ. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. Choose another place.</source>
        <translation>[“%1” çàññöţ bé wŕîţţéñ: %2. Çĥööšé àñöţĥéŕ plàçé. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>[1 éŕŕöŕ ~~~]</translation>
    </message>
    <message>
        <source>%L1 errors</source>
        <translation>[%L1 éŕŕöŕš ~~~~]</translation>
    </message>
    <message>
        <source>%1 in the log, the first: %2</source>
        <translation>[%1 îñ ţĥé löĝ, ţĥé fîŕšţ: %2 ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>&lt;p&gt;%1&lt;/p&gt;&lt;p&gt;Click to see it in the log.&lt;/p&gt;</source>
        <translation>[&lt;p&gt;%1&lt;/p&gt;&lt;p&gt;Çlîçķ ţö šéé îţ îñ ţĥé löĝ.&lt;/p&gt; ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>error</source>
        <translation>[éŕŕöŕ ~~]</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>[wàŕñîñĝ ~~~]</translation>
    </message>
    <message>
        <source>information</source>
        <translation>[îñföŕmàţîöñ ~~~~]</translation>
    </message>
    <message>
        <source>output</source>
        <translation>[öûţpûţ ~~]</translation>
    </message>
    <message>
        <source>%1, %2 times</source>
        <translation>[%1, %2 ţîméš ~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Open “%1”</source>
        <translation>[&amp;Öpéñ “%1” ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Go to “%1”</source>
        <translation>[&amp;Ĝö ţö “%1” ~~~~]</translation>
    </message>
    <message>
        <source>%L1 lines, %L2 older ones gone</source>
        <translation>[%L1 lîñéš, %L2 öldéŕ öñéš ĝöñé ~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%L1 lines</source>
        <translation>[%L1 lîñéš ~~~~]</translation>
    </message>
    <message>
        <source>%L1 of %L2 lines, %L3 older ones gone</source>
        <translation>[%L1 öf %L2 lîñéš, %L3 öldéŕ öñéš ĝöñé ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%L1 of %L2 lines</source>
        <translation>[%L1 öf %L2 lîñéš ~~~~~~]</translation>
    </message>
    <message>
        <source>Lines of the log</source>
        <translation>[Lîñéš öf ţĥé löĝ ~~~~~~]</translation>
    </message>
    <message>
        <source>Filter: words to have, -words to leave out</source>
        <translation>[Fîlţéŕ: wöŕdš ţö ĥàvé, -wöŕdš ţö léàvé öûţ ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Filter of the log</source>
        <translation>[Fîlţéŕ öf ţĥé löĝ ~~~~~~~]</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>[Éŕŕöŕš ~~]</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>[Wàŕñîñĝš ~~~]</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>[Îñföŕmàţîöñ ~~~~]</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>[Öûţpûţ ~~]</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>[Öpţîöñš ~~~]</translation>
    </message>
    <message>
        <source>Options of the log</source>
        <translation>[Öpţîöñš öf ţĥé löĝ ~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>[&amp;Ţîmé ~~]</translation>
    </message>
    <message>
        <source>T&amp;hread</source>
        <translation>[Ţ&amp;ĥŕéàd ~~~]</translation>
    </message>
    <message>
        <source>&amp;Clear the Log</source>
        <translation>[&amp;Çléàŕ ţĥé Löĝ ~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Each Line</source>
        <translation>[&amp;Éàçĥ Lîñé ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Repeated Lines Once</source>
        <translation>[&amp;Ŕépéàţéd Lîñéš Öñçé ~~~~~~~~]</translation>
    </message>
    <message>
        <source>E&amp;qual Lines Once</source>
        <translation>[É&amp;qûàl Lîñéš Öñçé ~~~~~~~]</translation>
    </message>
    <message>
        <source>Find in the lines that are shown</source>
        <translation>[Fîñd îñ ţĥé lîñéš ţĥàţ àŕé šĥöwñ ~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Find in the log</source>
        <translation>[Fîñd îñ ţĥé löĝ ~~~~~~]</translation>
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
        <source> lines</source>
        <translation> [lîñéš ~~]</translation>
    </message>
    <message>
        <source>How many lines before and after each line that the filter wants are shown too</source>
        <translation>[Ĥöw màñý lîñéš béföŕé àñd àfţéŕ éàçĥ lîñé ţĥàţ ţĥé fîlţéŕ wàñţš àŕé šĥöwñ ţöö ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Lines around those that the filter wants</source>
        <translation>[Lîñéš àŕöûñd ţĥöšé ţĥàţ ţĥé fîlţéŕ wàñţš ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>[Çlöšé ~~]</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>[Çlöšé (Éšç) ~~~~]</translation>
    </message>
    <message>
        <source>The newest %L1 lines are kept, and at most %2 MB of them.</source>
        <translation>[Ţĥé ñéwéšţ %L1 lîñéš àŕé ķépţ, àñd àţ möšţ %2 MB öf ţĥém. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>[ñöţ föûñd ~~~~]</translation>
    </message>
    <message>
        <source>looking…</source>
        <translation>[lööķîñĝ… ~~~]</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>[%L1 öf %L2 ~~~~]</translation>
    </message>
    <message>
        <source>%L1 found</source>
        <translation>[%L1 föûñd ~~~~]</translation>
    </message>
    <message>
        <source>This line names no node of the scene and no file that there is.</source>
        <translation>[Ţĥîš lîñé ñàméš ñö ñödé öf ţĥé šçéñé àñd ñö fîlé ţĥàţ ţĥéŕé îš. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1” is not there any more.</source>
        <translation>[“%1” îš ñöţ ţĥéŕé àñý möŕé. ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Show &amp;Among All Lines</source>
        <translation>[Šĥöw &amp;Àmöñĝ Àll Lîñéš ~~~~~~~~]</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>[&amp;Çöpý ~~]</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>[Šéléçţ &amp;Àll ~~~~]</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>[&amp;Fîñd… ~~]</translation>
    </message>
    <message>
        <source>Save Frames</source>
        <translation>[Šàvé Fŕàméš ~~~~]</translation>
    </message>
    <message>
        <source>Open Frames</source>
        <translation>[Öpéñ Fŕàméš ~~~~]</translation>
    </message>
    <message>
        <source>Frames (*.xsgframes *.csv)</source>
        <translation>[Fŕàméš (*.xsgframes *.csv) ~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>[Àll fîléš (*) ~~~~~]</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2. Choose a recording of frames.</source>
        <translation>[“%1” çàññöţ bé öpéñéd: %2. Çĥööšé à ŕéçöŕdîñĝ öf fŕàméš. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>Costs as areas</source>
        <translation>[Çöšţš àš àŕéàš ~~~~~~]</translation>
    </message>
</context>
</TS>
