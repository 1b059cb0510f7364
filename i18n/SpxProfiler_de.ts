<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Scopix</name>
    <message>
        <source>Time, ms</source>
        <translation>Zeit, ms</translation>
    </message>
    <message>
        <source>±, ms</source>
        <translation>±, ms</translation>
    </message>
    <message>
        <source>Drawn triangles</source>
        <translation>Gezeichnete Dreiecke</translation>
    </message>
    <message>
        <source>Draw calls</source>
        <translation>Zeichenaufrufe</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>OpenGL memory, kB</source>
        <translation>OpenGL-Speicher, kB</translation>
    </message>
    <message>
        <source>%1 materials are equal; one could serve all of them.</source>
        <translation>%1 Materialien sind gleich; eines könnte für alle dienen.</translation>
    </message>
    <message>
        <source>%1 lists of points are equal; one could serve all of them.</source>
        <translation>%1 Listen von Punkten sind gleich; eine könnte für alle dienen.</translation>
    </message>
    <message>
        <source>Its picture has %1 × %2 pixels, more than the view's %3 × %4, and takes %5, %6 of all pictures; a smaller one would look the same.</source>
        <translation>Sein Bild hat %1 × %2 Pixel, mehr als die %3 × %4 der Ansicht, und braucht %5, das sind %6 aller Bilder; ein kleineres sähe genauso aus.</translation>
    </message>
    <message>
        <source>%1 bodies with fewer than 100 triangles are below it, %2 of all bodies; joined to one, they would be drawn at once.</source>
        <translation>%1 Körper mit weniger als 100 Dreiecken stehen darunter, %2 aller Körper; zu einem verbunden würden sie auf einmal gezeichnet.</translation>
    </message>
    <message>
        <source>It has %1 of all triangles, %2 of %3.</source>
        <translation>Es hat %1 aller Dreiecke, %2 von %3.</translation>
    </message>
    <message>
        <source>It has %1 of all triangles, %2 of %3; levels of detail would draw fewer from far away.</source>
        <translation>Es hat %1 aller Dreiecke, %2 von %3; mit Detailstufen würden aus der Ferne weniger gezeichnet.</translation>
    </message>
    <message>
        <source>It is drawn, %1 triangles, and the picture is the same without it; hide it, or cut what is behind others.</source>
        <translation>Es wird gezeichnet, %1 Dreiecke, und das Bild ist ohne es dasselbe; blenden Sie es aus oder schneiden Sie weg, was hinter anderem liegt.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Shows what is written and reported, to filter and to find in.</source>
        <translation>Zeigt, was ausgegeben und gemeldet wird, zum Filtern und Suchen.</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Kosten</translation>
    </message>
    <message>
        <source>Measures what each branch of the scene costs.</source>
        <translation>Misst, was jeder Zweig der Szene kostet.</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Shows what each frame cost, and why.</source>
        <translation>Zeigt, was jedes Bild gekostet hat und warum.</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>sie lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>it has more than 256 MiB</source>
        <translation>sie hat mehr als 256 MiB</translation>
    </message>
    <message>
        <source>%1 %2 instead of %3</source>
        <translation>%1 %2 statt %3</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Recordings of frames (*.xsgframes);;Comma-separated values (*.csv)</source>
        <translation>Aufzeichnungen von Bildern (*.xsgframes);;Kommagetrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>Compare Frames</source>
        <translation>Bilder vergleichen</translation>
    </message>
    <message>
        <source>Medians of %1 frames of “%2” before, and of %3 frames after. By the test of Mann and Whitney; bold where chance alone would do it less than once in a hundred.</source>
        <translation>Mediane von %1 Bildern von „%2“ vorher und von %3 Bildern nachher. Nach dem Test von Mann und Whitney; fett, was der Zufall allein in weniger als einem von hundert Fällen täte.</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Chance</source>
        <translation>Zufall</translation>
    </message>
    <message>
        <source>Measure Cost</source>
        <translation>Kosten messen</translation>
    </message>
    <message>
        <source>Without It</source>
        <translation>Ohne den Zweig</translation>
    </message>
    <message>
        <source>What does each part of the scene cost? It is drawn part by part to find out.</source>
        <translation>Was kostet jeder Teil der Szene? Um das herauszufinden, wird sie Teil für Teil gezeichnet.</translation>
    </message>
    <message>
        <source>Hide the chosen branch and measure what the picture takes then; nothing is written</source>
        <translation>Den gewählten Zweig ausblenden und messen, was das Bild dann braucht; geschrieben wird nichts</translation>
    </message>
    <message>
        <source>Areas: time</source>
        <translation>Flächen: Zeit</translation>
    </message>
    <message>
        <source>Areas: triangles</source>
        <translation>Flächen: Dreiecke</translation>
    </message>
    <message>
        <source>Areas: memory</source>
        <translation>Flächen: Speicher</translation>
    </message>
    <message>
        <source>Areas: bodies</source>
        <translation>Flächen: Körper</translation>
    </message>
    <message>
        <source>What the areas tell</source>
        <translation>Was die Flächen bedeuten</translation>
    </message>
    <message>
        <source>View: as it is</source>
        <translation>Ansicht: wie sie ist</translation>
    </message>
    <message>
        <source>View: time</source>
        <translation>Ansicht: Zeit</translation>
    </message>
    <message>
        <source>View: triangles a pixel</source>
        <translation>Ansicht: Dreiecke pro Pixel</translation>
    </message>
    <message>
        <source>View: overdraw</source>
        <translation>Ansicht: Übermalungen</translation>
    </message>
    <message>
        <source>What the colours of the 3D view tell</source>
        <translation>Was die Farben der 3D-Ansicht bedeuten</translation>
    </message>
    <message>
        <source>Blue costs little, red much</source>
        <translation>Blau kostet wenig, Rot viel</translation>
    </message>
    <message>
        <source>Cost of each branch</source>
        <translation>Kosten jedes Zweigs</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Processor, ms</source>
        <translation>Prozessor, ms</translation>
    </message>
    <message>
        <source>Graphics card, ms</source>
        <translation>Grafikkarte, ms</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Körper</translation>
    </message>
    <message>
        <source>Memory, kB</source>
        <translation>Speicher, kB</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>The cost cannot be told: no scene is open; open one first.</source>
        <translation>Die Kosten lassen sich nicht bestimmen: Keine Szene ist geöffnet; öffne zuerst eine.</translation>
    </message>
    <message>
        <source>The view has these colours as soon as the cost is measured.</source>
        <translation>Die Ansicht hat diese Farben, sobald die Kosten gemessen sind.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Measuring: %1 %</source>
        <translation>Messung: %1 %</translation>
    </message>
    <message>
        <source>The whole takes %1 ± %2, its parts drawn alone %3 together; an empty picture takes %4.</source>
        <translation>Das Ganze braucht %1 ± %2, seine Teile einzeln gezeichnet zusammen %3; ein leeres Bild braucht %4.</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>Nothing conspicuous</source>
        <translation>Nichts Auffälliges</translation>
    </message>
    <message>
        <source>“%1” was not drawn alone: it is a small part of the whole.</source>
        <translation>„%1“ wurde nicht einzeln gezeichnet: Es ist ein kleiner Teil des Ganzen.</translation>
    </message>
    <message>
        <source>Without “%1” a picture would take %2 instead of %3, and look the same.</source>
        <translation>Ohne „%1“ bräuchte ein Bild %2 statt %3 und sähe gleich aus.</translation>
    </message>
    <message>
        <source>Without “%1” a picture would take %2 instead of %3.</source>
        <translation>Ohne „%1“ bräuchte ein Bild %2 statt %3.</translation>
    </message>
    <message>
        <source>Without “%1” a picture takes %2 instead of %3: %4 ± %5 more.</source>
        <translation>Ohne „%1“ braucht ein Bild %2 statt %3: %4 ± %5 mehr.</translation>
    </message>
    <message>
        <source>Without “%1” a picture takes %2 instead of %3: %4 ± %5 more; that may be chance.</source>
        <translation>Ohne „%1“ braucht ein Bild %2 statt %3: %4 ± %5 mehr; das kann Zufall sein.</translation>
    </message>
    <message>
        <source>Without “%1” a picture takes %2 instead of %3: %4 ± %5 less.</source>
        <translation>Ohne „%1“ braucht ein Bild %2 statt %3: %4 ± %5 weniger.</translation>
    </message>
    <message>
        <source>Without “%1” a picture takes %2 instead of %3: %4 ± %5 less; that may be chance.</source>
        <translation>Ohne „%1“ braucht ein Bild %2 statt %3: %4 ± %5 weniger; das kann Zufall sein.</translation>
    </message>
    <message>
        <source>The cost cannot be told: the scene has changed meanwhile; stop what moves and measure again.</source>
        <translation>Die Kosten lassen sich nicht bestimmen: Die Szene hat sich inzwischen geändert; halte an, was sich bewegt, und miss noch einmal.</translation>
    </message>
    <message>
        <source>The cost cannot be told: the view has moved meanwhile; let it stand still and measure again.</source>
        <translation>Die Kosten lassen sich nicht bestimmen: Die Ansicht hat sich inzwischen bewegt; lass sie stehen und miss noch einmal.</translation>
    </message>
    <message>
        <source>Each frame that is drawn comes here as a bar: turn the view.</source>
        <translation>Jedes gezeichnete Bild erscheint hier als Balken: Drehe die Ansicht.</translation>
    </message>
    <message>
        <source>No frames</source>
        <translation>Keine Bilder</translation>
    </message>
    <message>
        <source>%1 frames: longest %2, mean %3, 95 % within %4, 99 % within %5; %6 over %7</source>
        <translation>%1 Bilder: längstes %2, Mittel %3, 95 % bis %4, 99 % bis %5; %6 über %7</translation>
    </message>
    <message>
        <source>This frame took %1, its neighbours %2</source>
        <translation>Dieses Bild brauchte %1, seine Nachbarn %2</translation>
    </message>
    <message>
        <source>Nothing else was different</source>
        <translation>Sonst war nichts anders</translation>
    </message>
    <message>
        <source>The recording “%1” cannot be continued: %2. What was written so far can be opened.</source>
        <translation>Die Aufzeichnung „%1“ lässt sich nicht fortsetzen: %2. Was bisher geschrieben wurde, lässt sich öffnen.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Stand still and look at what was (Space)</source>
        <translation>Anhalten und ansehen, was war (Leertaste)</translation>
    </message>
    <message>
        <source>Record…</source>
        <translation>Aufzeichnen …</translation>
    </message>
    <message>
        <source>Write what comes to a file, until this is chosen again</source>
        <translation>Was kommt, in eine Datei schreiben, bis das noch einmal gewählt wird</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>Look at a recording, or at a table of comma-separated values</source>
        <translation>Eine Aufzeichnung oder eine Tabelle kommagetrennter Werte ansehen</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>Save what is here as a recording, or as comma-separated values</source>
        <translation>Was hier steht, als Aufzeichnung oder als kommagetrennte Werte speichern</translation>
    </message>
    <message>
        <source>Compare…</source>
        <translation>Vergleichen …</translation>
    </message>
    <message>
        <source>Compare what is here with a recording</source>
        <translation>Was hier steht, mit einer Aufzeichnung vergleichen</translation>
    </message>
    <message>
        <source>Back to the Program</source>
        <translation>Zurück zum Programm</translation>
    </message>
    <message>
        <source>Budget of a frame</source>
        <translation>Budget eines Bildes</translation>
    </message>
    <message>
        <source>What a frame may take</source>
        <translation>Was ein Bild brauchen darf</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Counter or formula</source>
        <translation>Zähler oder Formel</translation>
    </message>
    <message>
        <source>Counter or formula, as in rate(Triangles)</source>
        <translation>Zähler oder Formel, wie in rate(Triangles)</translation>
    </message>
    <message>
        <source>A counter, or a formula such as Triangles / DrawCalls, rate(x) or mean(x, 2s)</source>
        <translation>Ein Zähler oder eine Formel wie Triangles / DrawCalls, rate(x) oder mean(x, 2s)</translation>
    </message>
    <message>
        <source>“%1” cannot be shown: there are %2 curves already; take one out first.</source>
        <translation>„%1“ lässt sich nicht zeigen: Es gibt schon %2 Kurven; nimm zuerst eine heraus.</translation>
    </message>
    <message>
        <source>“%1” cannot be shown: %2</source>
        <translation>„%1“ lässt sich nicht zeigen: %2</translation>
    </message>
    <message>
        <source>▔ Gpu</source>
        <translation>▔ Gpu</translation>
    </message>
    <message>
        <source>Take “%1” out</source>
        <translation>„%1“ herausnehmen</translation>
    </message>
    <message>
        <source>%1 %2: take out</source>
        <translation>%1 %2: herausnehmen</translation>
    </message>
    <message>
        <source>%1; recording, %2 frames so far</source>
        <translation>%1; Aufzeichnung, bisher %2 Bilder</translation>
    </message>
    <message>
        <source>Choose a frame to see what was different about it.</source>
        <translation>Wähle ein Bild, um zu sehen, was daran anders war.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. Choose another place.</source>
        <translation>„%1“ lässt sich nicht schreiben: %2. Wähle einen anderen Ort.</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 Fehler</translation>
    </message>
    <message>
        <source>%L1 errors</source>
        <translation>%L1 Fehler</translation>
    </message>
    <message>
        <source>%1 in the log, the first: %2</source>
        <translation>%1 im Protokoll, der erste: %2</translation>
    </message>
    <message>
        <source>&lt;p&gt;%1&lt;/p&gt;&lt;p&gt;Click to see it in the log.&lt;/p&gt;</source>
        <translation>&lt;p&gt;%1&lt;/p&gt;&lt;p&gt;Klicken zeigt ihn im Protokoll.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehlermeldung</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>%1, %2 times</source>
        <translation>%1, %2-mal</translation>
    </message>
    <message>
        <source>&amp;Open “%1”</source>
        <translation>„%1“ ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Go to “%1”</source>
        <translation>&amp;Gehe zu „%1“</translation>
    </message>
    <message>
        <source>%L1 lines, %L2 older ones gone</source>
        <translation>%L1 Zeilen, %L2 ältere sind weg</translation>
    </message>
    <message>
        <source>%L1 lines</source>
        <translation>%L1 Zeilen</translation>
    </message>
    <message>
        <source>%L1 of %L2 lines, %L3 older ones gone</source>
        <translation>%L1 von %L2 Zeilen, %L3 ältere sind weg</translation>
    </message>
    <message>
        <source>%L1 of %L2 lines</source>
        <translation>%L1 von %L2 Zeilen</translation>
    </message>
    <message>
        <source>Lines of the log</source>
        <translation>Zeilen des Protokolls</translation>
    </message>
    <message>
        <source>Filter: words to have, -words to leave out</source>
        <translation>Filter: gewünschte Wörter, -unerwünschte Wörter</translation>
    </message>
    <message>
        <source>Filter of the log</source>
        <translation>Filter des Protokolls</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Infos</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgaben</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Options of the log</source>
        <translation>Optionen des Protokolls</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Zeit</translation>
    </message>
    <message>
        <source>T&amp;hread</source>
        <translation>T&amp;hread</translation>
    </message>
    <message>
        <source>&amp;Clear the Log</source>
        <translation>Protokoll &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;Each Line</source>
        <translation>&amp;Jede Zeile</translation>
    </message>
    <message>
        <source>&amp;Repeated Lines Once</source>
        <translation>&amp;Wiederholte Zeilen einmal</translation>
    </message>
    <message>
        <source>E&amp;qual Lines Once</source>
        <translation>&amp;Gleiche Zeilen einmal</translation>
    </message>
    <message>
        <source>Find in the lines that are shown</source>
        <translation>In den gezeigten Zeilen suchen</translation>
    </message>
    <message>
        <source>Find in the log</source>
        <translation>Im Protokoll suchen</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Previous (Shift+Enter)</source>
        <translation>Zurück (Umschalt+Eingabe)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Next (Enter)</source>
        <translation>Weiter (Eingabe)</translation>
    </message>
    <message>
        <source> lines</source>
        <translation> Zeilen</translation>
    </message>
    <message>
        <source>How many lines before and after each line that the filter wants are shown too</source>
        <translation>Wie viele Zeilen vor und nach jeder Zeile, die zum Filter passt, auch gezeigt werden</translation>
    </message>
    <message>
        <source>Lines around those that the filter wants</source>
        <translation>Zeilen um jene, die zum Filter passen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>The newest %L1 lines are kept, and at most %2 MB of them.</source>
        <translation>Aufgehoben werden die neuesten %L1 Zeilen, höchstens aber %2 MB davon.</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>looking…</source>
        <translation>wird gesucht …</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 von %L2</translation>
    </message>
    <message>
        <source>%L1 found</source>
        <translation>%L1 gefunden</translation>
    </message>
    <message>
        <source>This line names no node of the scene and no file that there is.</source>
        <translation>Diese Zeile nennt keinen Knoten der Szene und keine vorhandene Datei.</translation>
    </message>
    <message>
        <source>“%1” is not there any more.</source>
        <translation>„%1“ ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Show &amp;Among All Lines</source>
        <translation>&amp;Unter allen Zeilen zeigen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alles auswähle&amp;n</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen …</translation>
    </message>
    <message>
        <source>Save Frames</source>
        <translation>Bilder speichern</translation>
    </message>
    <message>
        <source>Open Frames</source>
        <translation>Bilder öffnen</translation>
    </message>
    <message>
        <source>Frames (*.xsgframes *.csv)</source>
        <translation>Bilder (*.xsgframes *.csv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2. Choose a recording of frames.</source>
        <translation>„%1“ lässt sich nicht öffnen: %2. Wähle eine Aufzeichnung von Bildern.</translation>
    </message>
    <message>
        <source>Costs as areas</source>
        <translation>Kosten als Flächen</translation>
    </message>
</context>
</TS>
