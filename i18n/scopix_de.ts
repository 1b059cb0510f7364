<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Scopix</name>
    <message>
        <source>opens a model</source>
        <translation>öffnet ein Modell</translation>
    </message>
    <message>
        <source>opens a scene and shows one of its fields</source>
        <translation>öffnet eine Szene und zeigt eines ihrer Felder</translation>
    </message>
    <message>
        <source>draws it without a window</source>
        <translation>zeichnet sie ohne Fenster</translation>
    </message>
    <message>
        <source>0 where all that was asked for is done, 1 where something is not</source>
        <translation>0, wenn alles Verlangte getan ist, 1, wenn etwas davon nicht</translation>
    </message>
    <message>
        <source>Write JSON instead of text.</source>
        <translation>Schreibt JSON statt Text.</translation>
    </message>
    <message>
        <source>Write this file and leave FILE as it is; "-" is standard output.</source>
        <translation>Schreibt diese Datei und lässt FILE, wie sie ist; „-“ ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Prints the tree of a scene or model, a node with its fields, or the value of a field.</source>
        <translation>Gibt den Baum einer Szene oder eines Modells aus, einen Knoten mit seinen Feldern oder den Wert eines Felds.</translation>
    </message>
    <message>
        <source>the tree: names, types, and where a node stands again</source>
        <translation>der Baum: Namen, Typen und wo ein Knoten noch einmal steht</translation>
    </message>
    <message>
        <source>the fields of one node, and what is below it</source>
        <translation>die Felder eines Knotens und was unter ihm steht</translation>
    </message>
    <message>
        <source>one value; without "/" wherever the node stands</source>
        <translation>ein Wert; ohne „/“, wo immer der Knoten steht</translation>
    </message>
    <message>
        <source>everything that a scene file holds</source>
        <translation>alles, was eine Szenendatei enthält</translation>
    </message>
    <message>
        <source>Gives fields values and saves. A value is what a scene file has, or a formula with units such as 90deg, 30 cm or x*2, where x is the present value; what each field measures and takes is on the page of nodes. A number without a unit is in radians, metres or seconds. Where one of them cannot be set, nothing is saved.</source>
        <translation>Gibt Feldern Werte und speichert. Ein Wert steht wie in einer Szenendatei oder ist eine Formel mit Einheiten wie 90deg, 30 cm oder x*2, wobei x der jetzige Wert ist; was jedes Feld misst und annimmt, steht auf der Seite der Knoten. Eine Zahl ohne Einheit steht für Radiant, Meter oder Sekunden. Lässt sich ein Wert nicht setzen, wird nichts gespeichert.</translation>
    </message>
    <message>
        <source>saves lamp.xsg</source>
        <translation>speichert lamp.xsg</translation>
    </message>
    <message>
        <source>one after the other</source>
        <translation>einer nach dem anderen</translation>
    </message>
    <message>
        <source>writes the scene to standard output</source>
        <translation>schreibt die Szene auf die Standardausgabe</translation>
    </message>
    <message>
        <source>Prints the paths of the nodes that a query finds; the query is that of the line above the scene tree.</source>
        <translation>Gibt die Pfade der Knoten aus, die eine Suche findet; gesucht wird wie in der Zeile über dem Szenenbaum.</translation>
    </message>
    <message>
        <source>all lights</source>
        <translation>alle Lichter</translation>
    </message>
    <message>
        <source>what is transparent and not called bulb</source>
        <translation>was durchsichtig ist und nicht „bulb“ heißt</translation>
    </message>
    <message>
        <source>0 where something was found, 1 where not</source>
        <translation>0, wenn etwas gefunden wurde, 1, wenn nicht</translation>
    </message>
    <message>
        <source>Prints what makes the scene in A the one in B, as a patch.</source>
        <translation>Gibt als Patch aus, was die Szene in A zu der in B macht.</translation>
    </message>
    <message>
        <source>one line a change</source>
        <translation>eine Zeile je Änderung</translation>
    </message>
    <message>
        <source>keeps it for scopix apply</source>
        <translation>hebt ihn für scopix apply auf</translation>
    </message>
    <message>
        <source>0 where they are the same, 1 where they differ</source>
        <translation>0, wenn beide gleich sind, 1, wenn sie sich unterscheiden</translation>
    </message>
    <message>
        <source>Makes the changes of a patch in a scene and saves it. What does not fit the scene is listed and the rest is applied; applied once more, a patch changes nothing.</source>
        <translation>Nimmt die Änderungen eines Patches an einer Szene vor und speichert sie. Was nicht zur Szene passt, wird aufgezählt, das Übrige angewandt; noch einmal angewandt, ändert ein Patch nichts.</translation>
    </message>
    <message>
        <source>leaves lamp.xsg as it is</source>
        <translation>lässt lamp.xsg, wie sie ist</translation>
    </message>
    <message>
        <source>0 where all of it fits, 1 where some does not</source>
        <translation>0, wenn alles passt, 1, wenn etwas nicht passt</translation>
    </message>
    <message>
        <source>Reads a scene or model and writes it as a file of the kind that the ending of OUT says: .xsg, .glb, .gltf, .obj, .ply or .stl. What such a file cannot keep is said on standard error.</source>
        <translation>Liest eine Szene oder ein Modell und schreibt eine Datei der Art, die die Endung von OUT angibt: .xsg, .glb, .gltf, .obj, .ply oder .stl. Was eine solche Datei nicht fassen kann, steht auf der Standardfehlerausgabe.</translation>
    </message>
    <message>
        <source>a model becomes a scene</source>
        <translation>aus einem Modell wird eine Szene</translation>
    </message>
    <message>
        <source>Draws a scene or model into a picture file, such as .png or .jpg; needs no display.</source>
        <translation>Zeichnet eine Szene oder ein Modell in eine Bilddatei wie .png oder .jpg; braucht keinen Bildschirm.</translation>
    </message>
    <message>
        <source>The size in pixels; 800x600 at first.</source>
        <translation>Die Größe in Pixeln; ohne Angabe 800x600.</translation>
    </message>
    <message>
        <source>The path of a camera of the scene, all, front, back, left, right, top or bottom. At first the first camera of the scene, or all.</source>
        <translation>Der Pfad einer Kamera der Szene oder all, front, back, left, right, top oder bottom. Ohne Angabe die erste Kamera der Szene oder all.</translation>
    </message>
    <message>
        <source>Draws N pictures, OUT-0001 and so on, 1/30 of a second apart.</source>
        <translation>Zeichnet N Bilder, OUT-0001 und so weiter, im Abstand von 1/30 Sekunde.</translation>
    </message>
    <message>
        <source>Three numbers from 0 to 1; "0 0 0" is black.</source>
        <translation>Drei Zahlen von 0 bis 1; "0 0 0" ist Schwarz.</translation>
    </message>
    <message>
        <source>How light that is brighter than white comes into the picture: none, neutral or filmic; neutral at first.</source>
        <translation>Wie Licht, das heller als Weiß ist, ins Bild kommt: none, neutral oder filmic; ohne Angabe neutral.</translation>
    </message>
    <message>
        <source>as the scene's camera sees it</source>
        <translation>wie die Kamera der Szene sie sieht</translation>
    </message>
    <message>
        <source>everything, from above</source>
        <translation>alles von oben</translation>
    </message>
    <message>
        <source>turn-0001.png to turn-0003.png</source>
        <translation>turn-0001.png bis turn-0003.png</translation>
    </message>
    <message>
        <source>Opens files and reports what of them is dropped, missing or odd.</source>
        <translation>Öffnet Dateien und meldet, was davon wegfällt, fehlt oder merkwürdig ist.</translation>
    </message>
    <message>
        <source>a line for each thing that it notices</source>
        <translation>eine Zeile für alles, was auffällt</translation>
    </message>
    <message>
        <source>the same for other programs</source>
        <translation>dasselbe für andere Programme</translation>
    </message>
    <message>
        <source>0 where there is nothing to report, 1 where there is something, 2 where a file cannot be read</source>
        <translation>0, wenn es nichts zu melden gibt, 1, wenn es etwas gibt, 2, wenn sich eine Datei nicht lesen lässt</translation>
    </message>
    <message>
        <source>Counts nodes, shapes, triangles, pictures and memory of a scene, and of each branch below its root or below PATH.</source>
        <translation>Zählt Knoten, Körper, Dreiecke, Bilder und Speicher einer Szene und jedes Zweigs unter ihrer Wurzel oder unter PATH.</translation>
    </message>
    <message>
        <source>a table</source>
        <translation>eine Tabelle</translation>
    </message>
    <message>
        <source>Draws a scene or model and prints what a frame costs; needs no display. The first ten frames are not counted. With --against, medians are compared by the test of Mann and Whitney: slower is what takes 5 % longer and would be so by chance less than once in a hundred.</source>
        <translation>Zeichnet eine Szene oder ein Modell und gibt aus, was ein Bild kostet; braucht keinen Bildschirm. Die ersten zehn Bilder zählen nicht. Mit --against werden Mediane durch den Test von Mann und Whitney verglichen: Langsamer ist, was 5 % länger dauert und durch Zufall seltener als einmal in hundert Fällen so wäre.</translation>
    </message>
    <message>
        <source>How many frames, from 1 to 3000; 120 at first.</source>
        <translation>Wie viele Bilder, von 1 bis 3000; ohne Angabe 120.</translation>
    </message>
    <message>
        <source>The size in pixels; 800x600 at first, or that of OLD.</source>
        <translation>Die Größe in Pixeln; ohne Angabe 800x600 oder die von OLD.</translation>
    </message>
    <message>
        <source>Compares with this recording.</source>
        <translation>Vergleicht mit dieser Aufzeichnung.</translation>
    </message>
    <message>
        <source>Keeps the frames as a recording.</source>
        <translation>Hebt die Bilder als Aufzeichnung auf.</translation>
    </message>
    <message>
        <source>a table: phases, graphics card, draw calls and more</source>
        <translation>eine Tabelle: Phasen, Grafikkarte, Zeichenaufrufe und mehr</translation>
    </message>
    <message>
        <source>keeps them for a comparison</source>
        <translation>hebt sie für einen Vergleich auf</translation>
    </message>
    <message>
        <source>whether it became slower</source>
        <translation>ob sie langsamer geworden ist</translation>
    </message>
    <message>
        <source>0, 1 where it is slower than OLD</source>
        <translation>0; 1, wenn sie langsamer als OLD ist</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[Optionen]</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
    <message>
        <source>%1 (scopix --help lists the options.)</source>
        <translation>%1 („scopix --help“ listet die Optionen auf.)</translation>
    </message>
    <message>
        <source>Without a window (scopix COMMAND --help says more; a file of such a name is ./NAME):
%1</source>
        <translation>Ohne Fenster („scopix COMMAND --help“ sagt mehr; eine Datei, die so heißt, ist ./NAME):
%1</translation>
    </message>
    <message>
        <source>Inspects and tunes the 3D scene or model in FILE; several get a tab each.</source>
        <translation>Zeigt und verändert die 3D-Szene oder das Modell in FILE; mehrere bekommen je einen Tab.</translation>
    </message>
    <message>
        <source>Load this plug-in too; may be given several times.</source>
        <translation>Auch dieses Plug-in laden; mehrfach möglich.</translation>
    </message>
    <message>
        <source>Use this profile in this session.</source>
        <translation>In dieser Sitzung dieses Profil verwenden.</translation>
    </message>
    <message>
        <source>Select this field; NODE is a node's name or type.</source>
        <translation>Dieses Feld auswählen; NODE ist Name oder Typ eines Knotens.</translation>
    </message>
    <message>
        <source>Write a picture of the window and end; needs no display.</source>
        <translation>Ein Bild des Fensters schreiben und beenden; braucht keinen Bildschirm.</translation>
    </message>
    <message>
        <source>Write a picture of the 3D view alone and end; needs no display.</source>
        <translation>Ein Bild der 3D-Ansicht allein schreiben und beenden; braucht keinen Bildschirm.</translation>
    </message>
    <message>
        <source>How large that picture is, in pixels; 1920x1080 without it.</source>
        <translation>Größe dieses Bildes in Pixeln; 1920x1080, wenn nichts angegeben ist.</translation>
    </message>
    <message>
        <source>Leave its ground transparent.</source>
        <translation>Den Hintergrund durchsichtig lassen.</translation>
    </message>
    <message>
        <source>Write NUMBER pictures of one full turn instead: OUT-01.png and so on.</source>
        <translation>Stattdessen NUMBER Bilder einer vollen Drehung schreiben: OUT-01.png und so weiter.</translation>
    </message>
    <message>
        <source>How bright light comes into the view and its pictures: none, neutral or filmic. For this session; the menu remembers its choice.</source>
        <translation>Wie helles Licht in die Ansicht und ihre Bilder kommt: none, neutral oder filmic. Gilt für diese Sitzung; das Menü merkt sich seine Wahl.</translation>
    </message>
    <message>
        <source>Attach to a running program; may be left out: the only one. In place of FILE.</source>
        <translation>Mit einem laufenden Programm verbinden; ohne Angabe mit dem einzigen. Anstelle von FILE.</translation>
    </message>
    <message>
        <source>Start PROGRAM and attach to it; what follows goes to it. In place of FILE.</source>
        <translation>PROGRAM starten und sich damit verbinden; was folgt, erhält das Programm. Anstelle von FILE.</translation>
    </message>
    <message>
        <source>List the running programs that can be attached to, and end.</source>
        <translation>Die laufenden Programme auflisten, mit denen man sich verbinden kann, und beenden.</translation>
    </message>
    <message>
        <source>Write what FILE holds to this file, as its ending says, and end; needs no display.</source>
        <translation>Den Inhalt von FILE in diese Datei schreiben, im Format ihrer Endung, und beenden; braucht keinen Bildschirm.</translation>
    </message>
    <message>
        <source>End when everything asked for is done.</source>
        <translation>Beenden, wenn alles Verlangte getan ist.</translation>
    </message>
    <message>
        <source>Switch the performance counters on.</source>
        <translation>Die Leistungszähler einschalten.</translation>
    </message>
    <message>
        <source>Show this text and end.</source>
        <translation>Diesen Text anzeigen und beenden.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Die Version anzeigen und beenden.</translation>
    </message>
    <message>
        <source>“%1”, a file that the extensions need, cannot be written.</source>
        <translation>„%1“, eine Datei, die die Erweiterungen brauchen, lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>an exception without a text</source>
        <translation>ein Fehler ohne Text</translation>
    </message>
    <message>
        <source>an exception of an unknown type</source>
        <translation>ein Fehler unbekannter Art</translation>
    </message>
    <message>
        <source>its place, from 0; -1 none, -2 all</source>
        <translation>seine Stelle, von 0 an; -1 keines, -2 alle</translation>
    </message>
    <message>
        <source>from where the distance is measured</source>
        <translation>von wo aus die Entfernung gemessen wird</translation>
    </message>
    <message>
        <source>growing</source>
        <translation>aufsteigend</translation>
    </message>
    <message>
        <source>where each copy stands; none: nothing is shown</source>
        <translation>wo jede Kopie steht; keine: nichts wird gezeigt</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>where the eye is</source>
        <translation>wo das Auge ist</translation>
    </message>
    <message>
        <source>turns the view, which looks along -z at first</source>
        <translation>dreht den Blick, der zunächst entlang -z geht</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Sicht</translation>
    </message>
    <message>
        <source>between the lower and the upper edge, in radians</source>
        <translation>zwischen unterem und oberem Rand, in Radiant</translation>
    </message>
    <message>
        <source>to the point that it turns around</source>
        <translation>bis zu dem Punkt, um den sie sich dreht</translation>
    </message>
    <message>
        <source>what is nearer is not seen</source>
        <translation>was näher ist, sieht man nicht</translation>
    </message>
    <message>
        <source>what is farther is not seen</source>
        <translation>was weiter weg ist, sieht man nicht</translation>
    </message>
    <message>
        <source>of what is seen, in the camera's coordinates</source>
        <translation>dessen, was man sieht, in den Koordinaten der Kamera</translation>
    </message>
    <message>
        <source>whether it shines</source>
        <translation>ob es leuchtet</translation>
    </message>
    <message>
        <source>of the light</source>
        <translation>die des Lichts</translation>
    </message>
    <message>
        <source>0 dark to 1 full</source>
        <translation>von 0 dunkel bis 1 voll</translation>
    </message>
    <message>
        <source>in which the light shines</source>
        <translation>in die das Licht scheint</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>where it stands</source>
        <translation>wo es steht</translation>
    </message>
    <message>
        <source>constant, linear, quadratic with distance</source>
        <translation>konstant, linear, quadratisch mit der Entfernung</translation>
    </message>
    <message>
        <source>of the cone's axis</source>
        <translation>die der Achse des Kegels</translation>
    </message>
    <message>
        <source>Cone</source>
        <translation>Kegel</translation>
    </message>
    <message>
        <source>between the axis and the edge, in radians</source>
        <translation>zwischen Achse und Rand, in Radiant</translation>
    </message>
    <message>
        <source>0 evenly bright; the higher, the darker towards the edge</source>
        <translation>bei 0 gleichmäßig hell; je höher, desto dunkler zum Rand hin</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>times the colours</source>
        <translation>mal die Farben</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>straight above</source>
        <translation>senkrecht oben</translation>
    </message>
    <message>
        <source>between sky and ground</source>
        <translation>zwischen Himmel und Boden</translation>
    </message>
    <message>
        <source>below</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>how far it moves, at the end</source>
        <translation>wie weit es verschoben wird, als Letztes</translation>
    </message>
    <message>
        <source>how it turns, after scaling</source>
        <translation>wie es gedreht wird, nach dem Skalieren</translation>
    </message>
    <message>
        <source>how it stretches along each axis, at first</source>
        <translation>wie es entlang jeder Achse gestreckt wird, als Erstes</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>the axes along which it scales</source>
        <translation>die Achsen, entlang derer es skaliert wird</translation>
    </message>
    <message>
        <source>stays in place while turning and scaling</source>
        <translation>bleibt beim Drehen und Skalieren an seiner Stelle</translation>
    </message>
    <message>
        <source>rows first; the last row is the translation</source>
        <translation>zeilenweise; die letzte Zeile ist die Verschiebung</translation>
    </message>
    <message>
        <source>whether time moves it</source>
        <translation>ob die Zeit es bewegt</translation>
    </message>
    <message>
        <source>around which it turns</source>
        <translation>um die es sich dreht</translation>
    </message>
    <message>
        <source>turns a second</source>
        <translation>Umdrehungen je Sekunde</translation>
    </message>
    <message>
        <source>the speed; negative turns the other way</source>
        <translation>die Geschwindigkeit; negativ dreht andersherum</translation>
    </message>
    <message>
        <source>the angle is time x turnsPerSecond turns</source>
        <translation>der Winkel beträgt time x turnsPerSecond Umdrehungen</translation>
    </message>
    <message>
        <source>STOPPED: all fields have their own values; PAUSED: those of the time; PLAYING: time passes</source>
        <translation>STOPPED: alle Felder haben ihre eigenen Werte; PAUSED: die des Zeitpunkts; PLAYING: die Zeit läuft</translation>
    </message>
    <message>
        <source>of what is shown, from the beginning</source>
        <translation>des Gezeigten, vom Anfang an</translation>
    </message>
    <message>
        <source>1 as the clip was made; below 0 it runs backwards</source>
        <translation>1: wie der Clip gemacht wurde; unter 0 läuft er rückwärts</translation>
    </message>
    <message>
        <source>from the end it goes on at the beginning; else it pauses there</source>
        <translation>vom Ende geht es am Anfang weiter; sonst hält es dort an</translation>
    </message>
    <message>
        <source>0: until the last key</source>
        <translation>0: bis zum letzten Schlüssel</translation>
    </message>
    <message>
        <source>the node that has the field</source>
        <translation>der Knoten, der das Feld hat</translation>
    </message>
    <message>
        <source>the name of the field that it animates</source>
        <translation>der Name des Felds, das animiert wird</translation>
    </message>
    <message>
        <source>between keys: STEP keeps a value until the next, LINEAR goes straight, CUBIC follows tangents</source>
        <translation>zwischen Schlüsseln: STEP behält einen Wert bis zum nächsten, LINEAR geht geradeaus, CUBIC folgt Tangenten</translation>
    </message>
    <message>
        <source>of the keys, growing</source>
        <translation>die der Schlüssel, aufsteigend</translation>
    </message>
    <message>
        <source>the numbers of all keys, one key after the other; a cubic one has its incoming tangent, its value and its outgoing tangent</source>
        <translation>die Zahlen aller Schlüssel, einer nach dem anderen; ein kubischer hat die Tangente davor, den Wert und die Tangente danach</translation>
    </message>
    <message>
        <source>transforms, each after its parent; NULL: one that never moves</source>
        <translation>Transformationen, jede nach ihrer übergeordneten; NULL: eine, die sich nie bewegt</translation>
    </message>
    <message>
        <source>the place of each bone's parent in the list, or -1</source>
        <translation>die Stelle des übergeordneten Knochens in der Liste, oder -1</translation>
    </message>
    <message>
        <source>for each bone, from the points to it, as the skin was made</source>
        <translation>für jeden Knochen, von den Punkten zu ihm, wie die Haut gemacht wurde</translation>
    </message>
    <message>
        <source>the bone in whose coordinates the points stand, or -1</source>
        <translation>der Knochen, in dessen Koordinaten die Punkte stehen, oder -1</translation>
    </message>
    <message>
        <source>how many bones can move a point</source>
        <translation>wie viele Knochen einen Punkt bewegen können</translation>
    </message>
    <message>
        <source>so many for each point, by place in the list of bones</source>
        <translation>so viele für jeden Punkt, nach der Stelle in der Liste der Knochen</translation>
    </message>
    <message>
        <source>of each of these; of each point they add up to 1</source>
        <translation>die von jedem davon; für jeden Punkt ist die Summe 1</translation>
    </message>
    <message>
        <source>one for each target, 0 none to 1 all of it</source>
        <translation>eines für jedes Ziel, von 0 nichts bis 1 alles davon</translation>
    </message>
    <message>
        <source>for all points of the first target, then of the next</source>
        <translation>für alle Punkte des ersten Ziels, dann des nächsten</translation>
    </message>
    <message>
        <source>the same for the normals, or none</source>
        <translation>dasselbe für die Normalen, oder keine</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>Shapes that colour their parts, faces or vertices take one after the other; the others take the first.</source>
        <translation>Körper, die ihre Teile, Flächen oder Ecken färben, nehmen eine nach der anderen; alle übrigen nehmen die erste.</translation>
    </message>
    <message>
        <source>0 dull to 1 sharp</source>
        <translation>von 0 stumpf bis 1 scharf</translation>
    </message>
    <message>
        <source>0 opaque to 1 invisible</source>
        <translation>von 0 deckend bis 1 unsichtbar</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Weitere Farben</translation>
    </message>
    <message>
        <source>of the highlights</source>
        <translation>die der Glanzlichter</translation>
    </message>
    <message>
        <source>that it shows without any light</source>
        <translation>die es ohne jedes Licht zeigt</translation>
    </message>
    <message>
        <source>under ambient light</source>
        <translation>bei Umgebungslicht</translation>
    </message>
    <message>
        <source>linear; shapes that colour their parts, faces or vertices take one after the other, the others take the first</source>
        <translation>linear; Körper, die ihre Teile, Flächen oder Ecken färben, nehmen eine nach der anderen, alle übrigen die erste</translation>
    </message>
    <message>
        <source>0 not a metal to 1 metal</source>
        <translation>von 0 kein Metall bis 1 Metall</translation>
    </message>
    <message>
        <source>0 mirror to 1 matte</source>
        <translation>von 0 spiegelnd bis 1 matt</translation>
    </message>
    <message>
        <source>Glow</source>
        <translation>Leuchten</translation>
    </message>
    <message>
        <source>that it shows without any light; linear</source>
        <translation>die es ohne jedes Licht zeigt; linear</translation>
    </message>
    <message>
        <source>times the colour</source>
        <translation>mal die Farbe</translation>
    </message>
    <message>
        <source>Clear coat</source>
        <translation>Klarlack</translation>
    </message>
    <message>
        <source>how much of a coat is on top</source>
        <translation>wie viel Lack darauf ist</translation>
    </message>
    <message>
        <source>of the coat: 0 mirror to 1 matte</source>
        <translation>die des Lacks: von 0 spiegelnd bis 1 matt</translation>
    </message>
    <message>
        <source>of the slopes in the normal picture of the coat</source>
        <translation>die der Neigungen im Normalenbild des Lacks</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder der Oberfläche</translation>
    </message>
    <message>
        <source>of the slopes in the normal picture</source>
        <translation>die der Neigungen im Normalenbild</translation>
    </message>
    <message>
        <source>0: the occlusion picture has no effect</source>
        <translation>0: das Verdeckungsbild wirkt nicht</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>OPAQUE as if nothing were transparent, MASK there or not, BLEND mixed</source>
        <translation>OPAQUE: als wäre nichts durchsichtig; MASK: da oder nicht; BLEND: gemischt</translation>
    </message>
    <message>
        <source>times that of the base colour’s picture; of the modes MASK and BLEND</source>
        <translation>mal die des Bilds der Grundfarbe; für die Arten MASK und BLEND</translation>
    </message>
    <message>
        <source>MASK leaves out what is less opaque</source>
        <translation>MASK lässt weg, was weniger deckt</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>the property that the picture is of</source>
        <translation>die Eigenschaft, von der das Bild ist</translation>
    </message>
    <message>
        <source>the picture file, beside the scene or with its full path</source>
        <translation>die Bilddatei, neben der Szene oder mit vollem Pfad</translation>
    </message>
    <message>
        <source>the picture itself, where no file is named</source>
        <translation>das Bild selbst, wo keine Datei genannt ist</translation>
    </message>
    <message>
        <source>On the surface</source>
        <translation>Auf der Oberfläche</translation>
    </message>
    <message>
        <source>FIRST of TextureCoordinates, SECOND of SecondTextureCoordinates</source>
        <translation>FIRST: die von TextureCoordinates; SECOND: die von SecondTextureCoordinates</translation>
    </message>
    <message>
        <source>around the origin, after scaling; in radians</source>
        <translation>um den Ursprung, nach dem Skalieren; in Radiant</translation>
    </message>
    <message>
        <source>of the coordinates, at first</source>
        <translation>die der Koordinaten, als Erstes</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Ränder</translation>
    </message>
    <message>
        <source>beyond the left and right edges</source>
        <translation>jenseits des linken und rechten Rands</translation>
    </message>
    <message>
        <source>beyond the lower and upper edges</source>
        <translation>jenseits des unteren und oberen Rands</translation>
    </message>
    <message>
        <source>has no effect here</source>
        <translation>wirkt hier nicht</translation>
    </message>
    <message>
        <source>how the picture and the material's colour combine</source>
        <translation>wie das Bild und die Farbe des Materials zusammenwirken</translation>
    </message>
    <message>
        <source>in radians</source>
        <translation>in Radiant</translation>
    </message>
    <message>
        <source>filled, lines, points or invisible</source>
        <translation>gefüllt, Linien, Punkte oder unsichtbar</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Bildpunkte</translation>
    </message>
    <message>
        <source>in pixels</source>
        <translation>in Pixeln</translation>
    </message>
    <message>
        <source>0 coarse to 1 fine: round shapes</source>
        <translation>von 0 grob bis 1 fein: runde Körper</translation>
    </message>
    <message>
        <source>0 no textures, below 0.5 blocky, above 0.5 smoothest</source>
        <translation>0: keine Texturen; unter 0.5: grobe Pixel; über 0.5: am glattesten</translation>
    </message>
    <message>
        <source>how it grows with distance</source>
        <translation>wie er mit der Entfernung zunimmt</translation>
    </message>
    <message>
        <source>into which all fades</source>
        <translation>in die alles übergeht</translation>
    </message>
    <message>
        <source>the distance at which nothing else is seen</source>
        <translation>die Entfernung, in der man nichts anderes mehr sieht</translation>
    </message>
    <message>
        <source>the normal, and its distance from the origin</source>
        <translation>die Normale und der Abstand vom Ursprung</translation>
    </message>
    <message>
        <source>whether it cuts</source>
        <translation>ob sie schneidet</translation>
    </message>
    <message>
        <source>where the corners are</source>
        <translation>wo die Ecken sind</translation>
    </message>
    <message>
        <source>one direction for each point</source>
        <translation>eine Richtung für jeden Punkt</translation>
    </message>
    <message>
        <source>one place for each point</source>
        <translation>eine Stelle für jeden Punkt</translation>
    </message>
    <message>
        <source>along x</source>
        <translation>entlang x</translation>
    </message>
    <message>
        <source>along y</source>
        <translation>entlang y</translation>
    </message>
    <message>
        <source>along z</source>
        <translation>entlang z</translation>
    </message>
    <message>
        <source>from the middle to the surface</source>
        <translation>von der Mitte bis zur Oberfläche</translation>
    </message>
    <message>
        <source>what of it is drawn</source>
        <translation>was davon gezeichnet wird</translation>
    </message>
    <message>
        <source>of the circle at the bottom</source>
        <translation>der des Kreises am Boden</translation>
    </message>
    <message>
        <source>from the bottom to the tip</source>
        <translation>vom Boden bis zur Spitze</translation>
    </message>
    <message>
        <source>of its circles</source>
        <translation>der seiner Kreise</translation>
    </message>
    <message>
        <source>from the bottom to the top</source>
        <translation>vom Boden bis zum Deckel</translation>
    </message>
    <message>
        <source>What takes the material's diffuse colours: the whole, each face (line, point), or each point.</source>
        <translation>Was die diffusen Farben des Materials bekommt: das Ganze, jede Fläche (Linie, Punkt) oder jeder Punkt.</translation>
    </message>
    <message>
        <source>points in each strip</source>
        <translation>Punkte in jedem Streifen</translation>
    </message>
    <message>
        <source>Three per triangle; a triangle that names a point that is not there is left out.</source>
        <translation>Drei je Dreieck; ein Dreieck, das einen Punkt nennt, den es nicht gibt, fällt weg.</translation>
    </message>
    <message>
        <source>each strip's points, -1 after each strip</source>
        <translation>die Punkte jedes Streifens, nach jedem Streifen -1</translation>
    </message>
    <message>
        <source>points in each line</source>
        <translation>Punkte in jeder Linie</translation>
    </message>
    <message>
        <source>each line's points, -1 after each line</source>
        <translation>die Punkte jeder Linie, nach jeder Linie -1</translation>
    </message>
    <message>
        <source>the places of the points in their list</source>
        <translation>die Stellen der Punkte in ihrer Liste</translation>
    </message>
    <message>
        <source>what is written, line by line</source>
        <translation>was geschrieben steht, Zeile für Zeile</translation>
    </message>
    <message>
        <source>height of a line in pixels</source>
        <translation>Höhe einer Zeile in Pixeln</translation>
    </message>
    <message>
        <source>which part of the line stands at the origin</source>
        <translation>welcher Teil der Zeile am Ursprung steht</translation>
    </message>
    <message>
        <source>around what is drawn; empty: takes no part in boxes</source>
        <translation>um das Gezeichnete; leer: zählt in Quadern nicht mit</translation>
    </message>
    <message>
        <source>the comment</source>
        <translation>der Kommentar</translation>
    </message>
    <message>
        <source>The program that this node was in is not attached any more.</source>
        <translation>Das Programm, in dem dieser Knoten war, ist nicht mehr verbunden.</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Vorne</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>it was made for version %1 of the plug-in interface, this program has version %2</source>
        <translation>es ist für Version %1 der Plug-in-Schnittstelle gebaut, dieses Programm hat Version %2</translation>
    </message>
    <message>
        <source>it was made for Qt %1, this program runs with Qt %2</source>
        <translation>es ist für Qt %1 gebaut, dieses Programm läuft mit Qt %2</translation>
    </message>
    <message>
        <source>its code ended the program</source>
        <translation>sein Code hat das Programm beendet</translation>
    </message>
    <message>
        <source>its initialisation failed: %1</source>
        <translation>seine Initialisierung ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>such a file holds no more than 4 GiB</source>
        <translation>eine solche Datei fasst höchstens 4 GiB</translation>
    </message>
    <message>
        <source>such a file holds no more than 2147483647 points</source>
        <translation>eine solche Datei fasst höchstens 2147483647 Punkte</translation>
    </message>
    <message>
        <source>materials, but for the colours of points</source>
        <translation>Materialien, außer den Farben der Punkte</translation>
    </message>
    <message>
        <source>materials</source>
        <translation>Materialien</translation>
    </message>
    <message>
        <source>such a file holds no more than 4294967295 triangles</source>
        <translation>eine solche Datei fasst höchstens 4294967295 Dreiecke</translation>
    </message>
    <message>
        <source>The patch puts another node in the place of the root, which cannot be done in an open scene; “scopix apply” does it in the file.</source>
        <translation>Der Patch setzt einen anderen Knoten an die Stelle der Wurzel, was in einer geöffneten Szene nicht geht; „scopix apply“ tut es in der Datei.</translation>
    </message>
    <message>
        <source>The settings file is too large; expected at most 1 MiB.</source>
        <translation>Die Einstellungsdatei ist zu groß; erwartet wurde höchstens 1 MiB.</translation>
    </message>
    <message>
        <source>The settings file cannot be read to its end.</source>
        <translation>Die Einstellungsdatei lässt sich nicht bis zum Ende lesen.</translation>
    </message>
    <message>
        <source>The line is no setting; expected NAME = value.</source>
        <translation>Die Zeile ist keine Einstellung; erwartet wurde NAME = Wert.</translation>
    </message>
    <message>
        <source>A settings file was expected, but this is no regular file.</source>
        <translation>Erwartet wurde eine Einstellungsdatei, dies ist aber keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>“%1” takes 1 number and was given %2.</source>
        <translation>„%1“ nimmt 1 Zahl und hat %2 bekommen.</translation>
    </message>
    <message>
        <source>“%1” takes %2 numbers and was given %3.</source>
        <translation>„%1“ nimmt %2 Zahlen und hat %3 bekommen.</translation>
    </message>
    <message>
        <source>“%1” takes 1 or 2 numbers and was given %2.</source>
        <translation>„%1“ nimmt 1 oder 2 Zahlen und hat %2 bekommen.</translation>
    </message>
    <message>
        <source>“%1” takes 1 number or more and was given %2.</source>
        <translation>„%1“ nimmt mindestens 1 Zahl und hat %2 bekommen.</translation>
    </message>
    <message>
        <source>The text is longer than 1000 characters.</source>
        <translation>Der Text ist länger als 1000 Zeichen.</translation>
    </message>
    <message>
        <source>The result is not %1: a unit belongs to the number or parenthesis right before it.</source>
        <translation>Als Ergebnis ist %1 verlangt: Eine Einheit gehört zu der Zahl oder Klammer direkt davor.</translation>
    </message>
    <message>
        <source>The expression is nested too deeply.</source>
        <translation>Der Ausdruck ist zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>There is no present value here that could be changed.</source>
        <translation>Hier gibt es keinen jetzigen Wert, der sich ändern ließe.</translation>
    </message>
    <message>
        <source>A plain number is needed after “%1”.</source>
        <translation>Nach „%1“ muss eine einfache Zahl stehen.</translation>
    </message>
    <message>
        <source>Only plain numbers can be raised to a power.</source>
        <translation>Nur einfache Zahlen lassen sich potenzieren.</translation>
    </message>
    <message>
        <source>“%1” is a unit of %2, and %3 is wanted here.</source>
        <translation>Mit „%1“ ist %2 gemeint, hier ist aber %3 verlangt.</translation>
    </message>
    <message>
        <source>There is a unit already.</source>
        <translation>Hier steht schon eine Einheit.</translation>
    </message>
    <message>
        <source>There is no function “%1”.</source>
        <translation>Eine Funktion „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>“%1” needs its numbers in parentheses after it.</source>
        <translation>Nach „%1“ müssen die Zahlen in Klammern stehen.</translation>
    </message>
    <message>
        <source>“%1” is not known here.</source>
        <translation>„%1“ ist hier nicht bekannt.</translation>
    </message>
    <message>
        <source>This has another unit than what stands before it.</source>
        <translation>Das hat eine andere Einheit als das, was davor steht.</translation>
    </message>
    <message>
        <source>The result of what stands here is not an angle.</source>
        <translation>Was hier steht, ergibt keinen Winkel.</translation>
    </message>
    <message>
        <source>“%1” takes plain numbers, without a unit.</source>
        <translation>„%1“ nimmt einfache Zahlen, ohne Einheit.</translation>
    </message>
    <message>
        <source>The two sides have different units.</source>
        <translation>Die beiden Seiten haben verschiedene Einheiten.</translation>
    </message>
    <message>
        <source>A “%1” is missing at the end.</source>
        <translation>Am Ende fehlt „%1“.</translation>
    </message>
    <message>
        <source>A number or a formula is missing.</source>
        <translation>Es fehlt eine Zahl oder eine Formel.</translation>
    </message>
    <message>
        <source>A number is missing after “%1”.</source>
        <translation>Nach „%1“ fehlt eine Zahl.</translation>
    </message>
    <message>
        <source>A comma separates the arguments of a function; it is a decimal sign only in a text that is one number.</source>
        <translation>Ein Komma trennt die Argumente einer Funktion; Dezimalzeichen ist es nur in einem Text, der eine einzige Zahl ist.</translation>
    </message>
    <message>
        <source>“%1” makes no sense here.</source>
        <translation>„%1“ ergibt hier keinen Sinn.</translation>
    </message>
    <message>
        <source>A sign such as + or * is missing before “%1”.</source>
        <translation>Vor „%1“ fehlt ein Zeichen wie + oder *.</translation>
    </message>
    <message>
        <source>“%1” has no meaning here.</source>
        <translation>„%1“ hat hier keine Bedeutung.</translation>
    </message>
    <message>
        <source>“%1” is too large or too small a number.</source>
        <translation>Die Zahl „%1“ ist zu groß oder zu klein.</translation>
    </message>
    <message>
        <source>The name that begins here has no second quotation mark.</source>
        <translation>Dem Namen, der hier beginnt, fehlt das zweite Anführungszeichen.</translation>
    </message>
    <message>
        <source>an angle</source>
        <translation>ein Winkel</translation>
    </message>
    <message>
        <source>a length</source>
        <translation>eine Länge</translation>
    </message>
    <message>
        <source>a time</source>
        <translation>eine Zeit</translation>
    </message>
    <message>
        <source>a plain number</source>
        <translation>eine einfache Zahl</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>The scene</source>
        <translation>Die Szene</translation>
    </message>
    <message>
        <source>%1 has groups that stand in so many places that only a part of it is shown, measured and searched: the first %2 repeated nodes.</source>
        <translation>%1 hat Gruppen, die an so vielen Stellen stehen, dass nur ein Teil davon gezeigt, gemessen und durchsucht wird: die ersten %2 wiederholten Knoten.</translation>
    </message>
    <message>
        <source>%1 has instances within instances that come to more than %2 copies; the others are left out.</source>
        <translation>%1 hat Instanzen innerhalb von Instanzen, die mehr als %2 Kopien ergeben; die übrigen werden weggelassen.</translation>
    </message>
    <message>
        <source>a %1 has no such field</source>
        <translation>%1 hat kein solches Feld</translation>
    </message>
    <message>
        <source>there is no field %1 to follow</source>
        <translation>das Feld %1, dem es folgen soll, gibt es nicht</translation>
    </message>
    <message>
        <source>the end of the value was expected</source>
        <translation>das Ende des Werts wurde erwartet</translation>
    </message>
    <message>
        <source>there is no default value</source>
        <translation>es gibt keinen Standardwert</translation>
    </message>
    <message>
        <source>"%1" is no value of a %2</source>
        <translation>"%1" ist kein Wert eines %2</translation>
    </message>
    <message>
        <source>the list has %1 values</source>
        <translation>die Liste hat %1 Werte</translation>
    </message>
    <message>
        <source>it is no list</source>
        <translation>es ist keine Liste</translation>
    </message>
    <message>
        <source>"%1" is no value of it</source>
        <translation>"%1" ist kein Wert davon</translation>
    </message>
    <message>
        <source>it cannot follow %1</source>
        <translation>es kann %1 nicht folgen</translation>
    </message>
    <message>
        <source>there are %1 children called %2 and not %3</source>
        <translation>es gibt %1 Kinder namens %2 und nicht %3</translation>
    </message>
    <message>
        <source>line %1: %2 %3: %4.</source>
        <translation>Zeile %1: %2 %3: %4.</translation>
    </message>
    <message>
        <source>a %1 has no children</source>
        <translation>%1 hat keine Kinder</translation>
    </message>
    <message>
        <source>there is no such node</source>
        <translation>einen solchen Knoten gibt es nicht</translation>
    </message>
    <message>
        <source>there is no %1 to put it after</source>
        <translation>es gibt kein %1, hinter das es soll</translation>
    </message>
    <message>
        <source>%1 cannot stand in %2, which it holds.</source>
        <translation>%1 kann nicht in %2 stehen, das darin enthalten ist.</translation>
    </message>
    <message>
        <source>%1 was expected at the end of the line</source>
        <translation>am Ende der Zeile wurde %1 erwartet</translation>
    </message>
    <message>
        <source>%1 was expected instead of "%2"</source>
        <translation>statt "%2" wurde %1 erwartet</translation>
    </message>
    <message>
        <source>"set", "name", "insert", "remove", "move", "replace" or "order"</source>
        <translation>"set", "name", "insert", "remove", "move", "replace" oder "order"</translation>
    </message>
    <message>
        <source>the path of a place below the root</source>
        <translation>der Pfad einer Stelle unter der Wurzel</translation>
    </message>
    <message>
        <source>"from" and where it was</source>
        <translation>"from" und die alte Stelle</translation>
    </message>
    <message>
        <source>a name in quotes</source>
        <translation>ein Name in Anführungszeichen</translation>
    </message>
    <message>
        <source>a path, which starts with "/"</source>
        <translation>ein Pfad, der mit "/" beginnt</translation>
    </message>
    <message>
        <source>the path of a field, such as /Lamp.intensity</source>
        <translation>der Pfad eines Felds, etwa /Lamp.intensity</translation>
    </message>
    <message>
        <source>the path of a node</source>
        <translation>der Pfad eines Knotens</translation>
    </message>
    <message>
        <source>a number of children</source>
        <translation>eine Anzahl von Kindern</translation>
    </message>
    <message>
        <source>"first", or "after" and a node</source>
        <translation>"first", oder "after" und ein Knoten</translation>
    </message>
    <message>
        <source>the end of the quotes</source>
        <translation>das Ende der Anführungszeichen</translation>
    </message>
    <message>
        <source>a name without a byte 0</source>
        <translation>ein Name ohne Byte 0</translation>
    </message>
    <message>
        <source>"new", "from" or "same"</source>
        <translation>"new", "from" oder "same"</translation>
    </message>
    <message>
        <source>a type</source>
        <translation>ein Typ</translation>
    </message>
    <message>
        <source>"new" or "same"</source>
        <translation>"new" oder "same"</translation>
    </message>
    <message>
        <source>the name of a field</source>
        <translation>der Name eines Felds</translation>
    </message>
    <message>
        <source>one value, without marks</source>
        <translation>ein einzelner Wert, ohne Markierungen</translation>
    </message>
    <message>
        <source>a text in quotes</source>
        <translation>ein Text in Anführungszeichen</translation>
    </message>
    <message>
        <source>a text without a byte 0</source>
        <translation>ein Text ohne Byte 0</translation>
    </message>
    <message>
        <source>an end of the list or text that begins here</source>
        <translation>ein Ende der Liste oder des Texts, der hier beginnt</translation>
    </message>
    <message>
        <source>a value or "!default"</source>
        <translation>ein Wert oder "!default"</translation>
    </message>
    <message>
        <source>a whole field</source>
        <translation>ein ganzes Feld</translation>
    </message>
    <message>
        <source>the end of the line</source>
        <translation>das Ende der Zeile</translation>
    </message>
    <message>
        <source>this is no patch: its first line must be "%1"</source>
        <translation>das ist kein Patch: Die erste Zeile muss "%1" sein</translation>
    </message>
    <message>
        <source>a byte 0 stands here, which a text has not: the file is damaged, or no patch</source>
        <translation>hier steht ein Byte 0, das es in Texten nicht gibt: Die Datei ist beschädigt oder kein Patch</translation>
    </message>
    <message>
        <source>the values of the field "%1"</source>
        <translation>die Werte des Feldes "%1"</translation>
    </message>
    <message>
        <source>The setting %1 is "%2"; expected 1, 0, TRUE or FALSE. The default is used.</source>
        <translation>Die Einstellung %1 ist "%2"; erwartet wurde 1, 0, TRUE oder FALSE. Es gilt die Vorgabe.</translation>
    </message>
    <message>
        <source>The setting %1 is "%2"; expected a whole number. The default is used.</source>
        <translation>Die Einstellung %1 ist "%2"; erwartet wurde eine ganze Zahl. Es gilt die Vorgabe.</translation>
    </message>
    <message>
        <source>The setting %1 is "%2"; expected a number. The default is used.</source>
        <translation>Die Einstellung %1 ist "%2"; erwartet wurde eine Zahl. Es gilt die Vorgabe.</translation>
    </message>
    <message>
        <source>The counter "%1" would be computed from itself; expected parents that do not depend on it.</source>
        <translation>Der Zähler "%1" würde aus sich selbst berechnet; erwartet wurden Eltern, die nicht von ihm abhängen.</translation>
    </message>
    <message>
        <source>%1:%2: Column %3: %4</source>
        <translation>%1:%2: Spalte %3: %4</translation>
    </message>
    <message>
        <source>%1: Column %2: %3</source>
        <translation>%1: Spalte %2: %3</translation>
    </message>
    <message>
        <source>No memory for %1: %2 bytes were asked for.</source>
        <translation>Kein Speicher für %1: Verlangt wurden %2 Bytes.</translation>
    </message>
    <message>
        <source>%1: OpenGL reports %2.</source>
        <translation>%1: OpenGL meldet %2.</translation>
    </message>
    <message>
        <source>%1 is no value of %2, which is a %3; each field has a line of its own</source>
        <translation>%1 ist kein Wert von %2, das den Typ %3 hat; jedes Feld hat eine eigene Zeile</translation>
    </message>
    <message>
        <source>%1 is no value of %2, which is a %3</source>
        <translation>%1 ist kein Wert von %2, das den Typ %3 hat</translation>
    </message>
    <message>
        <source>a byte 0 stands here, which a text has not: the file is damaged, or no scene</source>
        <translation>hier steht ein Byte 0, das es in Texten nicht gibt: Die Datei ist beschädigt oder keine Szene</translation>
    </message>
    <message>
        <source>the text in quotes that starts here has no end, or an escape that does not exist</source>
        <translation>der Text in Anführungszeichen, der hier beginnt, endet nicht oder enthält ein Sonderzeichen, das es nicht gibt</translation>
    </message>
    <message>
        <source>this is no scene file: its first line must be "%1"</source>
        <translation>das ist keine Szenendatei: Die erste Zeile muss "%1" sein</translation>
    </message>
    <message>
        <source>a file holds one node with everything in it, so its end was expected instead of %1</source>
        <translation>eine Datei enthält einen Knoten mit allem darin, deshalb wurde statt %1 das Ende erwartet</translation>
    </message>
    <message>
        <source>the file ends too early: "}" was expected to close the %1</source>
        <translation>die Datei endet zu früh: "}" wurde erwartet, um %1 zu schließen</translation>
    </message>
    <message>
        <source>the file has no node: a type such as Separator was expected</source>
        <translation>die Datei hat keinen Knoten: Ein Typ wie Separator wurde erwartet</translation>
    </message>
    <message>
        <source>"}" closes nothing; a node was expected</source>
        <translation>"}" schließt nichts; ein Knoten wurde erwartet</translation>
    </message>
    <message>
        <source>a node was expected instead of %1</source>
        <translation>statt %1 wurde ein Knoten erwartet</translation>
    </message>
    <message>
        <source>a field, a node or "}" was expected instead of %1</source>
        <translation>statt %1 wurde ein Feld, ein Knoten oder "}" erwartet</translation>
    </message>
    <message>
        <source>a field stands within a node; a node was expected</source>
        <translation>ein Feld steht in einem Knoten; ein Knoten wurde erwartet</translation>
    </message>
    <message>
        <source>a %1 has no children; a field such as "name: value" or "}" was expected instead of %2</source>
        <translation>%1 hat keine Kinder; statt %2 wurde ein Feld wie "name: value" oder "}" erwartet</translation>
    </message>
    <message>
        <source>a label was expected after "@"</source>
        <translation>nach "@" wurde eine Marke erwartet</translation>
    </message>
    <message>
        <source>"{" was expected after %1</source>
        <translation>nach %1 wurde "{" erwartet</translation>
    </message>
    <message>
        <source>the label @%1 is already another node's</source>
        <translation>die Marke @%1 gehört schon einem anderen Knoten</translation>
    </message>
    <message>
        <source>the label @%1 is not that of a node that is complete here</source>
        <translation>die Marke @%1 gehört keinem Knoten, der hier schon vollständig ist</translation>
    </message>
    <message>
        <source>a %1 has no field %2; a field of it, a node or "}" was expected</source>
        <translation>%1 hat kein Feld %2; eines seiner Felder, ein Knoten oder "}" wurde erwartet</translation>
    </message>
    <message>
        <source>the value that starts here is longer than 1 GiB, and is not read</source>
        <translation>der Wert, der hier beginnt, ist länger als 1 GiB und wird nicht gelesen</translation>
    </message>
    <message>
        <source>the list that starts here has no "]"</source>
        <translation>der Liste, die hier beginnt, fehlt "]"</translation>
    </message>
    <message>
        <source>the text in quotes that starts here has no end</source>
        <translation>der Text in Anführungszeichen, der hier beginnt, endet nicht</translation>
    </message>
    <message>
        <source>"!ignored" was expected</source>
        <translation>"!ignored" wurde erwartet</translation>
    </message>
    <message>
        <source>"&lt;- @label.field" was expected</source>
        <translation>"&lt;- @label.field" wurde erwartet</translation>
    </message>
    <message>
        <source>a record starts with "@" and the number of a node</source>
        <translation>ein Eintrag beginnt mit "@" und der Nummer eines Knotens</translation>
    </message>
    <message>
        <source>a field of the %1 was expected</source>
        <translation>ein Feld von %1 wurde erwartet</translation>
    </message>
    <message>
        <source>the end of the record was expected</source>
        <translation>das Ende des Eintrags wurde erwartet</translation>
    </message>
    <message>
        <source>A scene file was expected, but this is not a file.</source>
        <translation>Eine Szenendatei wurde erwartet, aber das ist keine Datei.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Die Datei lässt sich nicht lesen: %1.</translation>
    </message>
    <message>
        <source>A scene file of at most 4 GiB was expected, but this one has %1 bytes.</source>
        <translation>Eine Szenendatei von höchstens 4 GiB wurde erwartet, aber diese hat %1 Bytes.</translation>
    </message>
    <message>
        <source>The file cannot be read to its end.</source>
        <translation>Die Datei lässt sich nicht bis zum Ende lesen.</translation>
    </message>
    <message>
        <source>there is no field @%1.%2 to connect from</source>
        <translation>das Feld @%1.%2, mit dem verbunden werden soll, gibt es nicht</translation>
    </message>
    <message>
        <source>%1 cannot be connected from a %2, or would in the end be connected from itself</source>
        <translation>%1 lässt sich nicht mit einem %2 verbinden oder wäre am Ende mit sich selbst verbunden</translation>
    </message>
    <message>
        <source>%1: The file cannot be written: %2.</source>
        <translation>%1: Die Datei lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>line %1 does not fit the names of the columns</source>
        <translation>Zeile %1 passt nicht zu den Namen der Spalten</translation>
    </message>
    <message>
        <source>it has no line with the names of the columns</source>
        <translation>ihr fehlt die Zeile mit den Namen der Spalten</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>sie lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>it has more than 1 GiB</source>
        <translation>sie hat mehr als 1 GiB</translation>
    </message>
    <message>
        <source>it is no recording of frames</source>
        <translation>sie ist keine Aufzeichnung von Bildern</translation>
    </message>
    <message>
        <source>its head is damaged</source>
        <translation>ihr Anfang ist beschädigt</translation>
    </message>
    <message>
        <source>there is no %1 below %2</source>
        <translation>unter %2 gibt es kein %1</translation>
    </message>
    <message>
        <source>there is no %1 below the root, which itself is "/"</source>
        <translation>unter der Wurzel, die selbst "/" heißt, gibt es kein %1</translation>
    </message>
    <message>
        <source>there is no %1 below the root</source>
        <translation>unter der Wurzel gibt es kein %1</translation>
    </message>
    <message>
        <source>%1 nodes are meant; a path that starts with "/" names one of them</source>
        <translation>gemeint sind %1 Knoten; ein Pfad, der mit "/" beginnt, nennt einen davon</translation>
    </message>
    <message>
        <source>a %1 has no field "%2"</source>
        <translation>%1 hat kein Feld "%2"</translation>
    </message>
    <message>
        <source>the path was expected to end before "%1"</source>
        <translation>vor "%1" wurde das Ende des Pfads erwartet</translation>
    </message>
    <message>
        <source>"%1" is no path: %2.</source>
        <translation>"%1" ist kein Pfad: %2.</translation>
    </message>
    <message>
        <source>the name or type of a node</source>
        <translation>der Name oder Typ eines Knotens</translation>
    </message>
    <message>
        <source>the quotes around %1 have no end, or nothing in them</source>
        <translation>hier steht %1 in Anführungszeichen, die nicht enden oder leer sind</translation>
    </message>
    <message>
        <source>%1 was expected at the end</source>
        <translation>am Ende wurde %1 erwartet</translation>
    </message>
    <message>
        <source>%1 was expected before "%2"</source>
        <translation>vor "%2" wurde %1 erwartet</translation>
    </message>
    <message>
        <source>a number, counted from 0, and "]" were expected after "["</source>
        <translation>nach "[" wurden eine Nummer, von 0 an gezählt, und "]" erwartet</translation>
    </message>
    <message>
        <source>"/", ".", "[" or the end was expected before "%1"</source>
        <translation>vor "%1" wurde "/", ".", "[" oder das Ende erwartet</translation>
    </message>
    <message>
        <source>“%1” lacks what to look for after the colon.</source>
        <translation>In „%1“ fehlt nach dem Doppelpunkt, was gesucht wird.</translation>
    </message>
    <message>
        <source>A minus sign lacks what is not to be found.</source>
        <translation>Nach einem Minuszeichen fehlt, was nicht gefunden werden soll.</translation>
    </message>
    <message>
        <source>“%1” has a sign that compares nothing: use = != &lt; &lt;= &gt; &gt;= or ~.</source>
        <translation>Das Zeichen in „%1“ vergleicht nichts: Möglich sind = != &lt; &lt;= &gt; &gt;= und ~.</translation>
    </message>
    <message>
        <source>“%1” names no number of a value: use .x .y .z .w or .r .g .b .a.</source>
        <translation>„%1“ nennt keine Zahl eines Werts: Möglich sind .x .y .z .w und .r .g .b .a.</translation>
    </message>
    <message>
        <source>“%1” needs a number to compare with.</source>
        <translation>„%1“ braucht eine Zahl, mit der verglichen wird.</translation>
    </message>
    <message>
        <source>“%1” lacks the value to compare with.</source>
        <translation>In „%1“ fehlt der Wert, mit dem verglichen wird.</translation>
    </message>
    <message>
        <source>No display for drawing off the screen: EGL offers none, not even a surfaceless one.</source>
        <translation>Keine Anzeige, um ohne Bildschirm zu zeichnen: EGL bietet keine an, auch keine ohne Oberfläche.</translation>
    </message>
    <message>
        <source>OpenGL 3.3 could not be started for drawing off the screen (EGL error %1).</source>
        <translation>OpenGL 3.3 ließ sich nicht starten, um ohne Bildschirm zu zeichnen (EGL-Fehler %1).</translation>
    </message>
    <message>
        <source>The picture “%1” of %2 pixels is left out, as here no side can have more than %3.</source>
        <translation>Das Bild „%1“ mit %2 Pixeln entfällt, da hier keine Seite mehr als %3 haben kann.</translation>
    </message>
    <message>
        <source>The picture “%1” of %2 pixels is brought down to %3 pixels, as here no side can have more than %4.</source>
        <translation>Das Bild „%1“ mit %2 Pixeln wird auf %3 Pixel verkleinert, da hier keine Seite mehr als %4 haben kann.</translation>
    </message>
    <message>
        <source>The picture “%1” of %2 pixels is left out, as all pictures of a scene may take %3 MiB together (XSG_PICTURE_MEMORY in the preferences).</source>
        <translation>Das Bild „%1“ mit %2 Pixeln entfällt, da alle Bilder einer Szene zusammen %3 MiB belegen dürfen (XSG_PICTURE_MEMORY in den Einstellungen).</translation>
    </message>
    <message>
        <source>The picture “%1” of %2 pixels is brought down to %3 pixels, as all pictures of a scene may take %4 MiB together (XSG_PICTURE_MEMORY in the preferences).</source>
        <translation>Das Bild „%1“ mit %2 Pixeln wird auf %3 Pixel verkleinert, da alle Bilder einer Szene zusammen %4 MiB belegen dürfen (XSG_PICTURE_MEMORY in den Einstellungen).</translation>
    </message>
    <message>
        <source>Drawing needs OpenGL 3.3, but this system offers only %1.%2.</source>
        <translation>Das Zeichnen braucht OpenGL 3.3, dieses System bietet aber nur %1.%2.</translation>
    </message>
    <message>
        <source>%1 has so many copies of shapes that only the first %2 of them are shown.</source>
        <translation>%1 hat so viele Kopien von Körpern, dass nur die ersten %2 davon gezeigt werden.</translation>
    </message>
    <message>
        <source>OpenGL refused a drawing program: %1</source>
        <translation>OpenGL hat ein Zeichenprogramm abgelehnt: %1</translation>
    </message>
    <message>
        <source>OpenGL could not link a drawing program: %1</source>
        <translation>OpenGL konnte ein Zeichenprogramm nicht binden: %1</translation>
    </message>
    <message>
        <source>A picture of %1 x %2 pixels cannot be drawn; each side may have 1 to %3.</source>
        <translation>Ein Bild von %1 x %2 Pixeln lässt sich nicht zeichnen; jede Seite darf 1 bis %3 haben.</translation>
    </message>
    <message>
        <source>The picture of a texture is missing; the texture is drawn without it.</source>
        <translation>Das Bild einer Textur fehlt; die Textur wird ohne es gezeichnet.</translation>
    </message>
    <message>
        <source>The picture of a texture cannot be read; the texture is drawn without it.</source>
        <translation>Das Bild einer Textur lässt sich nicht lesen; die Textur wird ohne es gezeichnet.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Die Operation ist nicht erlaubt</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Verzeichnis nicht gefunden</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Die Datei existiert bereits</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Ist ein Verzeichnis</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Ist kein Verzeichnis</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Zu viele Ebenen aus symbolischen Links</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Der Dateiname ist zu lang</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Das Dateisystem ist nur lesbar</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Auf dem Gerät ist kein Speicherplatz mehr verfügbar</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Der zugewiesene Plattenplatz ist überschritten</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Die Datei ist zu groß</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Eingabe-/Ausgabefehler</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Das Gerät oder die Ressource ist belegt</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>Das Programm in der Datei wird gerade ausgeführt</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Zu viele offene Dateien</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>Zu viele offene Dateien im System</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Es ist kein Speicher mehr verfügbar</translation>
    </message>
    <message>
        <source>“%1” cannot be set: this program offers its scene for reading only.</source>
        <translation>„%1“ lässt sich nicht setzen: Dieses Programm bietet seine Szene nur zum Lesen an.</translation>
    </message>
    <message>
        <source>“%1” cannot be added: this program lets nobody change its structure.</source>
        <translation>„%1“ lässt sich nicht hinzufügen: Dieses Programm lässt niemanden seine Struktur ändern.</translation>
    </message>
    <message>
        <source>The node cannot be removed: this program lets nobody change its structure.</source>
        <translation>Der Knoten lässt sich nicht entfernen: Dieses Programm lässt niemanden seine Struktur ändern.</translation>
    </message>
    <message>
        <source>The node cannot be inserted: this program lets nobody change its structure.</source>
        <translation>Der Knoten lässt sich nicht einfügen: Dieses Programm lässt niemanden seine Struktur ändern.</translation>
    </message>
    <message>
        <source>The node cannot be copied: this program does not offer that.</source>
        <translation>Der Knoten lässt sich nicht kopieren: Dieses Programm bietet das nicht an.</translation>
    </message>
    <message>
        <source>The edit cannot be made: the program is not attached.</source>
        <translation>Die Änderung ist nicht möglich: Das Programm ist nicht verbunden.</translation>
    </message>
    <message>
        <source>The edit cannot be made: it is too long.</source>
        <translation>Die Änderung ist nicht möglich: Sie ist zu lang.</translation>
    </message>
    <message>
        <source>The program “%1” sent a message that is too long or damaged; detached.</source>
        <translation>Das Programm „%1“ hat eine Nachricht geschickt, die zu lang oder beschädigt ist; getrennt.</translation>
    </message>
    <message>
        <source>The program “%1” has ended or was killed.</source>
        <translation>Das Programm „%1“ hat sich beendet oder wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The program “%1” sent a message that this inspector does not understand; detached.</source>
        <translation>Das Programm „%1“ hat eine Nachricht geschickt, die dieser Inspektor nicht versteht; getrennt.</translation>
    </message>
    <message>
        <source>The edit cannot be made: its value does not have the bytes of its kind.</source>
        <translation>Die Änderung ist nicht möglich: Ihr Wert hat nicht die Bytes seiner Art.</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: the program does not answer.</source>
        <translation>Verbinden mit „%1“ ist nicht möglich: Das Programm antwortet nicht.</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: what listens there is no program that can be inspected.</source>
        <translation>Verbinden mit „%1“ ist nicht möglich: Was dort lauscht, ist kein Programm, das sich untersuchen lässt.</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: no program listens there any more.</source>
        <translation>Verbinden mit „%1“ ist nicht möglich: Dort lauscht kein Programm mehr.</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: you may not open its socket.</source>
        <translation>Verbinden mit „%1“ ist nicht möglich: Du darfst seinen Socket nicht öffnen.</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: %2.</source>
        <translation>Verbinden mit „%1“ ist nicht möglich: %2.</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: it is another user’s program; inspect it as that user.</source>
        <translation>Verbinden mit „%1“ ist nicht möglich: Das Programm gehört einem anderen Benutzer; untersuche es als dieser.</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: the program has closed the connection.</source>
        <translation>Verbinden mit „%1“ ist nicht möglich: Das Programm hat die Verbindung geschlossen.</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: it speaks version %2 of the protocol and this inspector version %3; use libraries and an inspector of the same version.</source>
        <translation>Verbinden mit „%1“ ist nicht möglich: Es spricht Version %2 des Protokolls und dieser Inspektor Version %3; verwende Bibliotheken und einen Inspektor derselben Version.</translation>
    </message>
    <message>
        <source>Cannot attach to “%1”: its greeting is damaged.</source>
        <translation>Verbinden mit „%1“ ist nicht möglich: Seine Begrüßung ist beschädigt.</translation>
    </message>
    <message>
        <source>This uniform has %1 elements, and no others can be set.</source>
        <translation>Diese Uniform-Variable hat %1 Elemente, andere lassen sich nicht setzen.</translation>
    </message>
    <message>
        <source>The text is damaged.</source>
        <translation>Der Text ist beschädigt.</translation>
    </message>
    <message>
        <source>“%1” cannot be set so, since the program would draw more than there is.</source>
        <translation>„%1“ lässt sich so nicht setzen, da das Programm mehr zeichnen würde, als da ist.</translation>
    </message>
    <message>
        <source>“%1” cannot be set so, since the sequence would show children that it does not have.</source>
        <translation>„%1“ lässt sich so nicht setzen, da die Sequenz Kinder zeigen würde, die sie nicht hat.</translation>
    </message>
    <message>
        <source>“%1” cannot be set so, since the sequence would never come to the end of a frame; each child needs some time, and a sequence that runs a speed above 0.</source>
        <translation>„%1“ lässt sich so nicht setzen, da die Sequenz nie ans Ende eines Bildes käme; jedes Kind braucht etwas Zeit, und eine laufende Sequenz eine Geschwindigkeit über 0.</translation>
    </message>
    <message>
        <source>“%1” cannot be set, since its object has ended.</source>
        <translation>„%1“ lässt sich nicht setzen, da es das Objekt mit dieser Eigenschaft nicht mehr gibt.</translation>
    </message>
    <message>
        <source>Objects of type “%1” have no “%2”.</source>
        <translation>Objekte vom Typ „%1“ haben kein „%2“.</translation>
    </message>
    <message>
        <source>The program was still drawing after two seconds; try again.</source>
        <translation>Das Programm zeichnete nach zwei Sekunden immer noch; versuche es noch einmal.</translation>
    </message>
    <message>
        <source>“%1” takes no value of this type.</source>
        <translation>„%1“ nimmt keinen Wert dieses Typs an.</translation>
    </message>
    <message>
        <source>“%1” has no choice with the number %2.</source>
        <translation>„%1“ hat keine Auswahl mit der Nummer %2.</translation>
    </message>
    <message>
        <source>“%1” can only be read, since OpenSceneGraph offers no safe way to set it.</source>
        <translation>„%1“ lässt sich nur lesen, da OpenSceneGraph keinen sicheren Weg bietet, es zu setzen.</translation>
    </message>
    <message>
        <source>A node can only be added to a group that still exists.</source>
        <translation>Ein Knoten lässt sich nur zu einer Gruppe hinzufügen, die es noch gibt.</translation>
    </message>
    <message>
        <source>No node of type “%1” can be added.</source>
        <translation>Ein Knoten vom Typ „%1“ lässt sich nicht hinzufügen.</translation>
    </message>
    <message>
        <source>There is no such child to remove.</source>
        <translation>Ein solches Kind zum Entfernen gibt es nicht.</translation>
    </message>
    <message>
        <source>The child cannot be removed, since the sequence shows as many children as it has; lower “End” first.</source>
        <translation>Das Kind lässt sich nicht entfernen, da die Sequenz so viele Kinder zeigt, wie sie hat; verringere zuerst „End“.</translation>
    </message>
    <message>
        <source>A node can only be inserted into a group, and both have to exist.</source>
        <translation>Ein Knoten lässt sich nur in eine Gruppe einfügen, und beide muss es geben.</translation>
    </message>
    <message>
        <source>A node can only be copied into a group, and both have to exist.</source>
        <translation>Ein Knoten lässt sich nur in eine Gruppe kopieren, und beide muss es geben.</translation>
    </message>
    <message>
        <source>The camera of a view cannot be copied.</source>
        <translation>Die Kamera einer Ansicht lässt sich nicht kopieren.</translation>
    </message>
    <message>
        <source>The node cannot be copied, since more than %1 nodes are below it.</source>
        <translation>Der Knoten lässt sich nicht kopieren, da mehr als %1 Knoten unter ihm sind.</translation>
    </message>
    <message>
        <source>The node cannot be copied, since the program does not say how objects of type “%1” are copied.</source>
        <translation>Der Knoten lässt sich nicht kopieren, da das Programm nicht sagt, wie Objekte vom Typ „%1“ kopiert werden.</translation>
    </message>
    <message>
        <source>A node cannot be put below itself.</source>
        <translation>Ein Knoten lässt sich nicht unter sich selbst setzen.</translation>
    </message>
    <message>
        <source>The group “%1” did not take the node.</source>
        <translation>Die Gruppe „%1“ hat den Knoten nicht angenommen.</translation>
    </message>
    <message>
        <source>The pixels of this picture take another one of %1 × %2 pixels only, with as many components.</source>
        <translation>Die Pixel dieses Bildes nehmen nur ein anderes mit %1 × %2 Pixeln und ebenso vielen Komponenten an.</translation>
    </message>
    <message>
        <source>This list has 1 element, one for each child, and no others can be set.</source>
        <translation>Diese Liste hat 1 Element, eines für jedes Kind, andere lassen sich nicht setzen.</translation>
    </message>
    <message>
        <source>This list has %1 elements, one for each child, and no others can be set.</source>
        <translation>Diese Liste hat %1 Elemente, eines für jedes Kind, andere lassen sich nicht setzen.</translation>
    </message>
    <message>
        <source>“%1” takes %2 numbers, each within its range.</source>
        <translation>„%1“ nimmt %2 Zahlen an, jede in ihrem Bereich.</translation>
    </message>
    <message>
        <source>OpenSceneGraph did not take the value of “%1”.</source>
        <translation>OpenSceneGraph hat den Wert von „%1“ nicht angenommen.</translation>
    </message>
    <message>
        <source>“%1” cannot be set, since that object has ended.</source>
        <translation>„%1“ lässt sich nicht setzen, da es das gewählte Objekt nicht mehr gibt.</translation>
    </message>
    <message>
        <source>“%1” takes no object of type “%2”.</source>
        <translation>„%1“ nimmt kein Objekt vom Typ „%2“ an.</translation>
    </message>
    <message>
        <source>“%1” takes nothing but pictures.</source>
        <translation>„%1“ nimmt nur Bilder an.</translation>
    </message>
    <message>
        <source>The program’s adapter failed: an exception of no known type.</source>
        <translation>Der Adapter des Programms hat versagt: eine Ausnahme unbekannten Typs.</translation>
    </message>
    <message>
        <source>The program’s adapter failed: %1.</source>
        <translation>Der Adapter des Programms hat versagt: %1.</translation>
    </message>
    <message>
        <source>The program could not do it: an exception of no known type.</source>
        <translation>Das Programm konnte es nicht ausführen: eine Ausnahme unbekannten Typs.</translation>
    </message>
    <message>
        <source>The program could not do it: %1.</source>
        <translation>Das Programm konnte es nicht ausführen: %1.</translation>
    </message>
    <message>
        <source>The inspector asked something that this program does not understand; detached.</source>
        <translation>Der Inspektor hat etwas gefragt, das dieses Programm nicht versteht; getrennt.</translation>
    </message>
    <message>
        <source>The program’s adapter failed: the answer is longer than %1 MiB.</source>
        <translation>Der Adapter des Programms hat versagt: Die Antwort ist länger als %1 MiB.</translation>
    </message>
    <message>
        <source>The program could not do it: the answer is too long.</source>
        <translation>Das Programm konnte es nicht ausführen: Die Antwort ist zu lang.</translation>
    </message>
    <message>
        <source>The node cannot be removed: the inspector keeps too many removed nodes already.</source>
        <translation>Der Knoten lässt sich nicht entfernen: Der Inspektor hebt schon zu viele entfernte Knoten auf.</translation>
    </message>
    <message>
        <source>The inspector watches too many nodes; detached.</source>
        <translation>Der Inspektor beobachtet zu viele Knoten; getrennt.</translation>
    </message>
    <message>
        <source>The program’s adapter failed: the value of “%1” does not have the bytes of its kind.</source>
        <translation>Der Adapter des Programms hat versagt: Der Wert von „%1“ hat nicht die Bytes seiner Art.</translation>
    </message>
    <message>
        <source>The program “%1” belongs to another user; inspect it as that user.</source>
        <translation>Das Programm „%1“ gehört einem anderen Benutzer; untersuche es als dieser.</translation>
    </message>
    <message>
        <source>The program “%1” has as many inspectors as it can have; detach another one first.</source>
        <translation>Das Programm „%1“ hat so viele Inspektoren, wie es haben kann; trenne zuerst einen anderen.</translation>
    </message>
    <message>
        <source>The inspector sent a message that is too long or damaged; detached.</source>
        <translation>Der Inspektor hat eine Nachricht geschickt, die zu lang oder beschädigt ist; getrennt.</translation>
    </message>
    <message>
        <source>The inspector sent a message that this program does not understand; detached.</source>
        <translation>Der Inspektor hat eine Nachricht geschickt, die dieses Programm nicht versteht; getrennt.</translation>
    </message>
    <message>
        <source>The program “%1” was not greeted as an inspector greets it.</source>
        <translation>Das Programm „%1“ wurde nicht so begrüßt, wie ein Inspektor es begrüßt.</translation>
    </message>
    <message>
        <source>The program “%1” speaks version %2 of the protocol and this inspector version %3; use libraries and an inspector of the same version.</source>
        <translation>Das Programm „%1“ spricht Version %2 des Protokolls und dieser Inspektor Version %3; verwende Bibliotheken und einen Inspektor derselben Version.</translation>
    </message>
    <message>
        <source>The inspector did not greet the program in time.</source>
        <translation>Der Inspektor hat das Programm nicht rechtzeitig begrüßt.</translation>
    </message>
    <message>
        <source>The program “%1” has ended its connection.</source>
        <translation>Das Programm „%1“ hat seine Verbindung beendet.</translation>
    </message>
    <message>
        <source>“%1” cannot be set: it can only be read.</source>
        <translation>„%1“ lässt sich nicht setzen: Es lässt sich nur lesen.</translation>
    </message>
    <message>
        <source>“%1” cannot be set: the value is of another type.</source>
        <translation>„%1“ lässt sich nicht setzen: Der Wert ist von einem anderen Typ.</translation>
    </message>
    <message>
        <source>“%1” cannot be set: it cannot hold that value.</source>
        <translation>„%1“ lässt sich nicht setzen: Es kann diesen Wert nicht aufnehmen.</translation>
    </message>
    <message>
        <source>The node cannot be inserted there, since it would be its own descendant.</source>
        <translation>Der Knoten lässt sich dort nicht einfügen, da er sein eigener Nachfahre würde.</translation>
    </message>
    <message>
        <source>“%1” cannot be set: the node is no more or has no such field.</source>
        <translation>„%1“ lässt sich nicht setzen: Den Knoten gibt es nicht mehr, oder er hat kein solches Feld.</translation>
    </message>
    <message>
        <source>“%1” cannot be added, since the group is no more.</source>
        <translation>„%1“ lässt sich nicht hinzufügen, da es die Gruppe nicht mehr gibt.</translation>
    </message>
    <message>
        <source>“%1” cannot be added, since the program knows no node of this type.</source>
        <translation>„%1“ lässt sich nicht hinzufügen, da das Programm keinen Knoten dieses Typs kennt.</translation>
    </message>
    <message>
        <source>The node cannot be removed, since it is not there any more.</source>
        <translation>Der Knoten lässt sich nicht entfernen, da er nicht mehr da ist.</translation>
    </message>
    <message>
        <source>The node cannot be inserted, since it or its group is no more.</source>
        <translation>Der Knoten lässt sich nicht einfügen, da es ihn oder seine Gruppe nicht mehr gibt.</translation>
    </message>
    <message>
        <source>The node cannot be copied, since it or its group is no more.</source>
        <translation>Der Knoten lässt sich nicht kopieren, da es ihn oder seine Gruppe nicht mehr gibt.</translation>
    </message>
    <message>
        <source>The node cannot be copied, since something in it is of a kind that cannot be.</source>
        <translation>Der Knoten lässt sich nicht kopieren, da etwas darin von einer Art ist, die sich nicht kopieren lässt.</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written: %2.</source>
        <translation>Das Bild „%1“ lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>another program is just changing the settings</source>
        <translation>ein anderes Programm ändert gerade die Einstellungen</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
    </message>
    <message>
        <source>There is no text to paste.</source>
        <translation>Es gibt keinen Text zum Einfügen.</translation>
    </message>
    <message>
        <source>The text holds no nodes that can be pasted: %1</source>
        <translation>Der Text enthält keine Knoten, die sich einfügen lassen: %1</translation>
    </message>
    <message>
        <source>There are no nodes in the text to paste.</source>
        <translation>Im Text sind keine Knoten zum Einfügen.</translation>
    </message>
    <message>
        <source>Delete “%1”</source>
        <translation>„%1“ löschen</translation>
    </message>
    <message>
        <source>Delete %1 Nodes</source>
        <translation>%1 Knoten löschen</translation>
    </message>
    <message>
        <source>Cut “%1”</source>
        <translation>„%1“ ausschneiden</translation>
    </message>
    <message>
        <source>Cut %1 Nodes</source>
        <translation>%1 Knoten ausschneiden</translation>
    </message>
    <message>
        <source>Duplicate “%1”</source>
        <translation>„%1“ duplizieren</translation>
    </message>
    <message>
        <source>Duplicate %1 Nodes</source>
        <translation>%1 Knoten duplizieren</translation>
    </message>
    <message>
        <source>Paste “%1”</source>
        <translation>„%1“ einfügen</translation>
    </message>
    <message>
        <source>Paste %1 Nodes</source>
        <translation>%1 Knoten einfügen</translation>
    </message>
    <message>
        <source>Ungroup “%1”</source>
        <translation>Gruppierung „%1“ aufheben</translation>
    </message>
    <message>
        <source>Ungroup %1 Nodes</source>
        <translation>Gruppierung von %1 Knoten aufheben</translation>
    </message>
    <message>
        <source>Group “%1”</source>
        <translation>„%1“ gruppieren</translation>
    </message>
    <message>
        <source>Group %1 Nodes</source>
        <translation>%1 Knoten gruppieren</translation>
    </message>
    <message>
        <source>Make Unique “%1”</source>
        <translation>„%1“ eigenständig machen</translation>
    </message>
    <message>
        <source>Make Unique %1 Nodes</source>
        <translation>%1 Knoten eigenständig machen</translation>
    </message>
    <message>
        <source>Move “%1”</source>
        <translation>„%1“ verschieben</translation>
    </message>
    <message>
        <source>Move %1 Nodes</source>
        <translation>%1 Knoten verschieben</translation>
    </message>
    <message>
        <source>Copy “%1”</source>
        <translation>„%1“ kopieren</translation>
    </message>
    <message>
        <source>Copy %1 Nodes</source>
        <translation>%1 Knoten kopieren</translation>
    </message>
    <message>
        <source>Share “%1”</source>
        <translation>„%1“ gemeinsam nutzen</translation>
    </message>
    <message>
        <source>Share %1 Nodes</source>
        <translation>%1 Knoten gemeinsam nutzen</translation>
    </message>
    <message>
        <source>“%1” has been changed meanwhile.</source>
        <translation>„%1“ hat sich inzwischen geändert.</translation>
    </message>
    <message>
        <source>scopix: There is no display to open a window on; --screenshot OUT.png writes a picture of the window without one.</source>
        <translation>scopix: Es gibt keinen Bildschirm für ein Fenster; --screenshot AUS.png schreibt ein Bild des Fensters auch ohne.</translation>
    </message>
    <message>
        <source>--launch expects a program and its arguments, and nothing was given.</source>
        <translation>--launch erwartet ein Programm und seine Argumente, aber es wurde nichts angegeben.</translation>
    </message>
    <message>
        <source>The scene or model to open; several get a tab each, the first in front. A patch among them is for the one before it.</source>
        <translation>Die Szene oder das Modell, das geöffnet wird; mehrere bekommen je einen Tab, die erste steht vorn. Ein Patch dazwischen gilt für die Datei vor ihm.</translation>
    </message>
    <message>
        <source>--select expects NODE.FIELD, such as Material.transparency, and not “%1”.</source>
        <translation>--select erwartet KNOTEN.FELD, etwa Material.transparency, und nicht „%1“.</translation>
    </message>
    <message>
        <source>--size expects WIDTHxHEIGHT, such as 1920x1080, and not “%1”.</source>
        <translation>--size erwartet BREITExHÖHE, etwa 1920x1080, und nicht „%1“.</translation>
    </message>
    <message>
        <source>--turntable expects a number of pictures, 2 or more, and not “%1”.</source>
        <translation>--turntable erwartet eine Anzahl von Bildern, mindestens 2, und nicht „%1“.</translation>
    </message>
    <message>
        <source>--tone-mapping expects none, neutral or filmic, and not “%1”.</source>
        <translation>--tone-mapping erwartet none, neutral oder filmic, und nicht „%1“.</translation>
    </message>
    <message>
        <source>--%1 says how a picture is made, and --picture OUT.png is missing.</source>
        <translation>--%1 sagt, wie ein Bild entsteht, aber --picture AUS.png fehlt.</translation>
    </message>
    <message>
        <source>--save writes what FILE holds, and no FILE was given.</source>
        <translation>--save schreibt den Inhalt von FILE, aber es wurde keine FILE angegeben.</translation>
    </message>
    <message>
        <source>--save writes what one FILE holds, and %1 were given, the second being “%2”.</source>
        <translation>--save schreibt den Inhalt einer einzigen FILE; angegeben wurden %1, die zweite ist „%2“.</translation>
    </message>
    <message>
        <source>--save opens no window, so that --%1 cannot be given with it.</source>
        <translation>--save öffnet kein Fenster und lässt sich deshalb nicht mit --%1 verbinden.</translation>
    </message>
    <message>
        <source>--%1 expects %2, and nothing was given.</source>
        <translation>--%1 erwartet %2, aber es wurde nichts angegeben.</translation>
    </message>
    <message>
        <source>FILE expects the path of a scene or model, and nothing was given.</source>
        <translation>FILE erwartet den Pfad einer Szene oder eines Modells, aber es wurde nichts angegeben.</translation>
    </message>
    <message>
        <source>Either FILE or one running program can be shown, and more than one of them was given.</source>
        <translation>Es lässt sich entweder FILE oder ein laufendes Programm zeigen; angegeben wurde mehr als eins davon.</translation>
    </message>
    <message>
        <source>Usage: scopix %1 %2</source>
        <translation>Aufruf: scopix %1 %2</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Beispiele:</translation>
    </message>
    <message>
        <source>Exit status: %1; 2 where it cannot be done.</source>
        <translation>Rückgabewert: %1; 2, wenn es sich nicht ausführen lässt.</translation>
    </message>
    <message>
        <source>%1: The patch cannot be read: %2.</source>
        <translation>%1: Der Patch lässt sich nicht lesen: %2.</translation>
    </message>
    <message>
        <source>The patch “%1” cannot be written: %2.</source>
        <translation>Der Patch „%1“ lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>environment lights</source>
        <translation>Umgebungslichter</translation>
    </message>
    <message>
        <source>fogs</source>
        <translation>Nebel</translation>
    </message>
    <message>
        <source>animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>skins, whose present pose is kept</source>
        <translation>Häute, deren jetzige Haltung bleibt</translation>
    </message>
    <message>
        <source>morph targets, whose present mix is kept</source>
        <translation>Morphziele, deren jetzige Mischung bleibt</translation>
    </message>
    <message>
        <source>clip planes</source>
        <translation>Schnittebenen</translation>
    </message>
    <message>
        <source>lights</source>
        <translation>Lichter</translation>
    </message>
    <message>
        <source>cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>tracks that move other things than nodes and morph targets</source>
        <translation>Spuren, die anderes als Knoten und Morphziele bewegen</translation>
    </message>
    <message>
        <source>how fast, how long or how often animations are played</source>
        <translation>wie schnell, wie lange oder wie oft Animationen laufen</translation>
    </message>
    <message>
        <source>%1, or that of another kind of model</source>
        <translation>%1 oder die Endung einer anderen Art von Modell</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it is a folder, and a file was expected</source>
        <translation>das ist ein Ordner und keine Datei</translation>
    </message>
    <message>
        <source>it is no file with an end, and one was expected</source>
        <translation>das ist keine Datei mit einem Ende</translation>
    </message>
    <message>
        <source>its name was expected to end in %1</source>
        <translation>erwartet wurde ein Name, der auf %1 endet</translation>
    </message>
    <message>
        <source>it cannot be read (%1)</source>
        <translation>sie lässt sich nicht lesen (%1)</translation>
    </message>
    <message>
        <source>it is empty, and a scene or model was expected</source>
        <translation>sie ist leer, erwartet wurde eine Szene oder ein Modell</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation>„%1“ lässt sich nicht öffnen: %2.</translation>
    </message>
    <message>
        <source>the file is incomplete</source>
        <translation>die Datei ist unvollständig</translation>
    </message>
    <message>
        <source>its notes are damaged</source>
        <translation>ihre Angaben sind beschädigt</translation>
    </message>
    <message>
        <source>machine type %1</source>
        <translation>Maschinentyp %1</translation>
    </message>
    <message>
        <source>it was built for another kind of machine (%1), this program runs on %2</source>
        <translation>es ist für eine andere Art von Rechner gebaut (%1), dieses Programm läuft auf %2</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>Benutzer %1</translation>
    </message>
    <message>
        <source>its version note is damaged</source>
        <translation>seine Versionsangabe ist beschädigt</translation>
    </message>
    <message>
        <source>its code crashed while it was tried in a process of its own (%1)</source>
        <translation>sein Code ist abgestürzt, als er in einem eigenen Prozess erprobt wurde (%1)</translation>
    </message>
    <message>
        <source>it was tried in a process of its own and did not finish loading within %1 seconds</source>
        <translation>es wurde in einem eigenen Prozess erprobt und war nach %1 Sekunden nicht fertig geladen</translation>
    </message>
    <message>
        <source>profile %1</source>
        <translation>Profil %1</translation>
    </message>
    <message>
        <source>%1 must be a text</source>
        <translation>%1 muss ein Text sein</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 muss %2 sein</translation>
    </message>
    <message>
        <source>“%1” of %2</source>
        <translation>„%1“ von %2</translation>
    </message>
    <message>
        <source>“all” or a list of names</source>
        <translation>„all“ oder eine Liste von Namen</translation>
    </message>
    <message>
        <source>each name in %1</source>
        <translation>jeder Name in %1</translation>
    </message>
    <message>
        <source>%1 must be an object in braces</source>
        <translation>%1 muss ein Objekt in geschweiften Klammern sein</translation>
    </message>
    <message>
        <source>“name” of %1</source>
        <translation>„name“ von %1</translation>
    </message>
    <message>
        <source>a list of profiles</source>
        <translation>eine Liste von Profilen</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>the file must hold one object in braces</source>
        <translation>die Datei muss ein einziges Objekt in geschweiften Klammern enthalten</translation>
    </message>
    <message>
        <source>“%1” cannot be kept as a default: new nodes have no other nodes of the scene in their fields.</source>
        <translation>„%1“ lässt sich nicht als Voreinstellung behalten: Neue Knoten haben keine anderen Knoten der Szene in ihren Feldern.</translation>
    </message>
    <message>
        <source>The value of “%1” cannot be kept as a default: its text is longer than %2 characters.</source>
        <translation>Der Wert von „%1“ lässt sich nicht als Voreinstellung behalten: Sein Text ist länger als %2 Zeichen.</translation>
    </message>
    <message>
        <source>it has more than %1 bytes</source>
        <translation>sie hat mehr als %1 Bytes</translation>
    </message>
    <message>
        <source>it cannot be read to its end</source>
        <translation>sie lässt sich nicht bis zum Ende lesen</translation>
    </message>
    <message>
        <source>its name was expected to end in .%1</source>
        <translation>erwartet wurde ein Name, der auf .%1 endet</translation>
    </message>
    <message>
        <source>no picture</source>
        <translation>kein Bild</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>grey, alpha</source>
        <translation>Grau, Alpha</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>RGBA</source>
        <translation>RGBA</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>Another program has changed “%1” since it was opened or saved here.</source>
        <translation>Ein anderes Programm hat „%1“ geändert, seit die Datei hier geöffnet oder gespeichert wurde.</translation>
    </message>
    <message>
        <source>Replacing it loses their changes; reloading it loses yours; reloading and reapplying keeps those of yours that still fit.</source>
        <translation>Beim Ersetzen gehen dessen Änderungen verloren, beim Neuladen deine; beim Neuladen und erneuten Anwenden bleiben die von deinen, die noch passen.</translation>
    </message>
    <message>
        <source>Replacing it loses their changes.</source>
        <translation>Beim Ersetzen gehen dessen Änderungen verloren.</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Reload and Re&amp;apply</source>
        <translation>Neu laden und erneut &amp;anwenden</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>glTF in one file (*.glb)</source>
        <translation>glTF in einer Datei (*.glb)</translation>
    </message>
    <message>
        <source>glTF (*.gltf)</source>
        <translation>glTF mit Dateien daneben (*.gltf)</translation>
    </message>
    <message>
        <source>Wavefront (*.obj)</source>
        <translation>Wavefront-Modell (*.obj)</translation>
    </message>
    <message>
        <source>Stanford polygons (*.ply)</source>
        <translation>Stanford-Polygone (*.ply)</translation>
    </message>
    <message>
        <source>Stereolithography (*.stl)</source>
        <translation>Stereolithografie (*.stl)</translation>
    </message>
    <message>
        <source>Export Scene</source>
        <translation>Szene exportieren</translation>
    </message>
    <message>
        <source>“%1” will not keep everything. Export it?</source>
        <translation>„%1“ wird nicht alles enthalten. Trotzdem exportieren?</translation>
    </message>
    <message>
        <source>It leaves out: %1.</source>
        <translation>Es fehlt darin: %1.</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>About Scopix</source>
        <translation>Über Scopix</translation>
    </message>
    <message>
        <source>&lt;b&gt;Scopix %1&lt;/b&gt;&lt;p&gt;Opens a 3D scene and lets you click anything, tune any value live, undo everything and see what it costs.&lt;/p&gt;&lt;p&gt;Free under the MIT licence, by the Scopix authors.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Scopix %1&lt;/b&gt;&lt;p&gt;Öffnet eine 3D-Szene: alles darin anklicken, jeden Wert live verändern, alles rückgängig machen und sehen, was es kostet.&lt;/p&gt;&lt;p&gt;Frei unter der MIT-Lizenz, von den Autoren von Scopix.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Version, system, plug-ins and libraries</source>
        <translation>Version, System, Plug-ins und Bibliotheken</translation>
    </message>
    <message>
        <source>&amp;Copy for a Bug Report</source>
        <translation>Für einen Fehlerbericht &amp;kopieren</translation>
    </message>
    <message>
        <source>%1
%2, process %3</source>
        <translation>%1
%2, Prozess %3</translation>
    </message>
    <message>
        <source>No program that can be attached to is running.
scopix --launch PROGRAM starts one.</source>
        <translation>Es läuft kein Programm, mit dem man sich verbinden kann.
„scopix --launch PROGRAMM“ startet eines.</translation>
    </message>
    <message>
        <source>Attach to a Running Program</source>
        <translation>Mit einem laufenden Programm verbinden</translation>
    </message>
    <message>
        <source>Running programs</source>
        <translation>Laufende Programme</translation>
    </message>
    <message>
        <source>&amp;Attach</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message>
        <source>The file “%1” cannot be written: %2.</source>
        <translation>Die Datei „%1“ lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>Nothing can be written to “%1”.</source>
        <translation>In „%1“ lässt sich nichts schreiben.</translation>
    </message>
    <message>
        <source>Unsaved edits would not survive a crash. %1</source>
        <translation>Ungespeicherte Änderungen würden einen Absturz nicht überstehen. %1</translation>
    </message>
    <message>
        <source>Values &amp;Before the Edits</source>
        <translation>Werte &amp;vor den Änderungen</translation>
    </message>
    <message>
        <source>Before the edits</source>
        <translation>Vor den Änderungen</translation>
    </message>
    <message>
        <source>The scene shows the values from when it was opened or last saved; press B in the view to see the present ones.</source>
        <translation>Die Szene zeigt die Werte vom Öffnen oder vom letzten Speichern; drücke B in der Ansicht, um die jetzigen zu sehen.</translation>
    </message>
    <message>
        <source>No value has been edited since the scene was opened or saved.</source>
        <translation>Seit dem Öffnen oder Speichern der Szene wurde kein Wert geändert.</translation>
    </message>
    <message>
        <source>No value of what is selected has been edited since the scene was opened or saved.</source>
        <translation>An der Auswahl wurde seit dem Öffnen oder Speichern der Szene kein Wert geändert.</translation>
    </message>
    <message>
        <source>Insert File</source>
        <translation>Datei einfügen</translation>
    </message>
    <message>
        <source>Insert “%1”</source>
        <translation>„%1“ aus Datei einfügen</translation>
    </message>
    <message>
        <source>No node is selected: select one in the tree or in the view first.</source>
        <translation>Kein Knoten ist ausgewählt: Wähle erst einen im Baum oder in der Ansicht.</translation>
    </message>
    <message>
        <source>Save Branch As</source>
        <translation>Zweig speichern unter</translation>
    </message>
    <message>
        <source>Scenes (*.%1)</source>
        <translation>Szenen (*.%1)</translation>
    </message>
    <message>
        <source>Saving “%1”…</source>
        <translation>„%1“ wird gespeichert …</translation>
    </message>
    <message>
        <source>Saving “%1” was cancelled.</source>
        <translation>Das Speichern von „%1“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>“%1” was saved as “%2”.</source>
        <translation>„%1“ wurde als „%2“ gespeichert.</translation>
    </message>
    <message>
        <source>The branch “%1” cannot be written to “%2”: %3.</source>
        <translation>Der Zweig „%1“ lässt sich nicht nach „%2“ schreiben: %3.</translation>
    </message>
    <message>
        <source>something in it is of a kind that cannot be copied</source>
        <translation>etwas darin ist von einer Art, die sich nicht kopieren lässt</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>%1, was %2, is %3</source>
        <translation>%1, war %2, ist %3</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Filter the changes</source>
        <translation>Änderungen filtern</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Takes back the ticked changes, or those that are selected, as one step (Del).</source>
        <translation>Nimmt die angehakten oder ausgewählten Änderungen in einem Schritt zurück (Entf).</translation>
    </message>
    <message>
        <source>Show Before</source>
        <translation>Vorher zeigen</translation>
    </message>
    <message>
        <source>Shows the values from before the ticked changes, or before all of them.</source>
        <translation>Zeigt die Werte vor den angehakten Änderungen oder vor allen.</translation>
    </message>
    <message>
        <source>&amp;Tick All</source>
        <translation>Alle &amp;anhaken</translation>
    </message>
    <message>
        <source>&amp;Untick All</source>
        <translation>Alle Haken &amp;entfernen</translation>
    </message>
    <message>
        <source>Nothing differs from %1.</source>
        <translation>Nichts unterscheidet sich von %1.</translation>
    </message>
    <message>
        <source>1 change from %1</source>
        <translation>1 Änderung gegenüber %1</translation>
    </message>
    <message>
        <source>%L1 changes from %2</source>
        <translation>%L1 Änderungen gegenüber %2</translation>
    </message>
    <message>
        <source>%1, %2 of them ticked</source>
        <translation>%1, %2 davon angehakt</translation>
    </message>
    <message>
        <source>Changes that could not be taken over: %1; the first: %2</source>
        <translation>Nicht übernehmbare Änderungen: %1; die erste: %2</translation>
    </message>
    <message>
        <source>None of these changes is one of a value that could be shown as it was.</source>
        <translation>Keine dieser Änderungen betrifft einen Wert, der sich im früheren Zustand zeigen ließe.</translation>
    </message>
    <message>
        <source>“%1” cannot be set to “%2”: it is no value of a %3.</source>
        <translation>„%1“ lässt sich nicht auf „%2“ setzen: Das ist kein Wert der Art %3.</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Cut across the x axis</source>
        <translation>Quer zur x-Achse schneiden</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Cut across the y axis</source>
        <translation>Quer zur y-Achse schneiden</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Cut across the z axis</source>
        <translation>Quer zur z-Achse schneiden</translation>
    </message>
    <message>
        <source>Cut across the line of sight</source>
        <translation>Quer zur Blickrichtung schneiden</translation>
    </message>
    <message>
        <source>Where the plane cuts</source>
        <translation>Wo die Ebene schneidet</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>Show the other side</source>
        <translation>Die andere Seite zeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Show the whole scene again</source>
        <translation>Wieder die ganze Szene zeigen</translation>
    </message>
    <message>
        <source>colours of highlights</source>
        <translation>Farben von Glanzlichtern</translation>
    </message>
    <message>
        <source>hidden parts</source>
        <translation>verborgene Teile</translation>
    </message>
    <message>
        <source>shapes without a place in space</source>
        <translation>Körper ohne Ort im Raum</translation>
    </message>
    <message>
        <source>ambient lights</source>
        <translation>Lichter von überallher</translation>
    </message>
    <message>
        <source>how lights fade with distance</source>
        <translation>wie Licht mit der Entfernung abnimmt</translation>
    </message>
    <message>
        <source>Nothing is called so.</source>
        <translation>Nichts heißt so.</translation>
    </message>
    <message>
        <source>Find Anything</source>
        <translation>Alles finden</translation>
    </message>
    <message>
        <source>An act, node, field or setting</source>
        <translation>Eine Aktion, ein Knoten, ein Feld oder eine Einstellung</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>ein anderes Programm benutzt sie</translation>
    </message>
    <message>
        <source>it holds no performance counters</source>
        <translation>sie enthält keine Leistungszähler</translation>
    </message>
    <message>
        <source>“%1” cannot be put back: %2.</source>
        <translation>„%1“ lässt sich nicht wiederherstellen: %2.</translation>
    </message>
    <message>
        <source>it is no library (no ELF file)</source>
        <translation>das ist keine Bibliothek (keine ELF-Datei)</translation>
    </message>
    <message>
        <source>it was built for another kind of machine (another word size)</source>
        <translation>es ist für eine andere Art von Rechner gebaut (andere Wortbreite)</translation>
    </message>
    <message>
        <source>it was built for another kind of machine (another byte order)</source>
        <translation>es ist für eine andere Art von Rechner gebaut (andere Byte-Reihenfolge)</translation>
    </message>
    <message>
        <source>it is no library (an ELF file of another type)</source>
        <translation>das ist keine Bibliothek (eine ELF-Datei anderer Art)</translation>
    </message>
    <message>
        <source>it is no library (its header is damaged)</source>
        <translation>das ist keine Bibliothek (der Kopf ist beschädigt)</translation>
    </message>
    <message>
        <source>ignored</source>
        <translation>ignoriert</translation>
    </message>
    <message>
        <source>not ignored</source>
        <translation>nicht ignoriert</translation>
    </message>
    <message>
        <source>default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 Werte</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1: %2 → %3 values</source>
        <translation>%1: %2 → %3 Werte</translation>
    </message>
    <message>
        <source>%1: %2 values changed</source>
        <translation>%1: %2 Werte geändert</translation>
    </message>
    <message>
        <source>no longer ignored</source>
        <translation>nicht mehr ignoriert</translation>
    </message>
    <message>
        <source>no longer default</source>
        <translation>nicht mehr die Vorgabe</translation>
    </message>
    <message>
        <source>follows another field</source>
        <translation>folgt einem anderen Feld</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>Wert &amp;kopieren</translation>
    </message>
    <message>
        <source>Cop&amp;y Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>&amp;Reset to Default</source>
        <translation>Auf Vo&amp;rgabe zurücksetzen</translation>
    </message>
    <message>
        <source>Reset %1.%2</source>
        <translation>%1.%2 zurücksetzen</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>nicht da</translation>
    </message>
    <message>
        <source>there</source>
        <translation>da</translation>
    </message>
    <message>
        <source>another node</source>
        <translation>ein anderer Knoten</translation>
    </message>
    <message>
        <source>here</source>
        <translation>hier</translation>
    </message>
    <message>
        <source>after %1</source>
        <translation>nach %1</translation>
    </message>
    <message>
        <source>first</source>
        <translation>zuerst</translation>
    </message>
    <message>
        <source>elsewhere in its group</source>
        <translation>woanders in seiner Gruppe</translation>
    </message>
    <message>
        <source>Take over %1</source>
        <translation>%1 übernehmen</translation>
    </message>
    <message>
        <source>Take Over %1 Changes</source>
        <translation>%1 Änderungen übernehmen</translation>
    </message>
    <message>
        <source>“%1” before the last edits; choose More ▸ Compare Again</source>
        <translation>„%1“ vor den letzten Änderungen; wähle Mehr ▸ Neu vergleichen</translation>
    </message>
    <message>
        <source>Take Over</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen …</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open a scene or model</source>
        <translation>Eine Szene oder ein Modell öffnen</translation>
    </message>
    <message>
        <source>Open &amp;in a New Tab…</source>
        <translation>In neuem &amp;Tab öffnen …</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Zuletzt &amp;geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren …</translation>
    </message>
    <message>
        <source>&amp;Close Tab</source>
        <translation>Tab s&amp;chließen</translation>
    </message>
    <message>
        <source>With Ctrl held, it opens in a new tab</source>
        <translation>Mit gedrückter Strg-Taste in einem neuen Tab</translation>
    </message>
    <message>
        <source>None Yet</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>&amp;Clear This List</source>
        <translation>Diese Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Find in the scene</source>
        <translation>In der Szene suchen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Finds nodes by name, type or text; also &lt;b&gt;type:Light&lt;/b&gt;, &lt;b&gt;name:door&lt;/b&gt;, &lt;b&gt;field:radius&lt;/b&gt;, &lt;b&gt;value:0.5&lt;/b&gt;, &lt;b&gt;transparency&amp;gt;0&lt;/b&gt;, &lt;b&gt;translation.x=1&lt;/b&gt;, &lt;b&gt;changed&lt;/b&gt;, &lt;b&gt;connected&lt;/b&gt;, &lt;b&gt;ignored&lt;/b&gt;, &lt;b&gt;shared&lt;/b&gt;. A minus sign before a term means “not”, a bar between terms “or”.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Findet Knoten nach Name, Typ oder Text; auch &lt;b&gt;type:Light&lt;/b&gt;, &lt;b&gt;name:door&lt;/b&gt;, &lt;b&gt;field:radius&lt;/b&gt;, &lt;b&gt;value:0.5&lt;/b&gt;, &lt;b&gt;transparency&amp;gt;0&lt;/b&gt;, &lt;b&gt;translation.x=1&lt;/b&gt;, &lt;b&gt;changed&lt;/b&gt;, &lt;b&gt;connected&lt;/b&gt;, &lt;b&gt;ignored&lt;/b&gt;, &lt;b&gt;shared&lt;/b&gt;. Ein Minuszeichen vor einem Begriff heißt „nicht“, ein senkrechter Strich zwischen Begriffen „oder“.&lt;/p&gt;</translation>
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
        <source>Show only what is found</source>
        <translation>Nur Gefundenes zeigen</translation>
    </message>
    <message>
        <source>Show only what is found, and what it is in</source>
        <translation>Nur Gefundenes zeigen und worin es liegt</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Select %1</source>
        <translation>%1 auswählen</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>%1 rückgängig machen</translation>
    </message>
    <message>
        <source>it has no entry point “%1”</source>
        <translation>es hat keinen Einsprungpunkt „%1“</translation>
    </message>
    <message>
        <source>The picture of the program is in the main window.</source>
        <translation>Das Bild des Programms ist im Hauptfenster.</translation>
    </message>
    <message>
        <source>Handles in the 3D View</source>
        <translation>Griffe in der 3D-Ansicht</translation>
    </message>
    <message>
        <source>&amp;Close This Window</source>
        <translation>Dieses Fenster &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;New Window</source>
        <translation>&amp;Neues Fenster</translation>
    </message>
    <message>
        <source>Handles Along Their &amp;Own Axes</source>
        <translation>Griffe an den &amp;eigenen Achsen</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Auswählen</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Verschieben</translation>
    </message>
    <message>
        <source>&amp;Turn</source>
        <translation>&amp;Drehen</translation>
    </message>
    <message>
        <source>S&amp;cale</source>
        <translation>S&amp;kalieren</translation>
    </message>
    <message>
        <source>There are no handles for “%1”: it is not in sight.</source>
        <translation>Für „%1“ gibt es keine Griffe: Es ist nicht zu sehen.</translation>
    </message>
    <message>
        <source>“%1” cannot be moved: it has no place.</source>
        <translation>„%1“ lässt sich nicht verschieben: Es hat keinen Ort.</translation>
    </message>
    <message>
        <source>“%1” cannot be turned: it has no direction.</source>
        <translation>„%1“ lässt sich nicht drehen: Es hat keine Richtung.</translation>
    </message>
    <message>
        <source>“%1” cannot be scaled: it has no size.</source>
        <translation>„%1“ lässt sich nicht skalieren: Es hat keine Größe.</translation>
    </message>
    <message>
        <source>The handles change %1 nodes together.</source>
        <translation>Die Griffe ändern %1 Knoten zusammen.</translation>
    </message>
    <message>
        <source>The handles change %1 parts together; dragging puts a Transform above %2 of them.</source>
        <translation>Die Griffe ändern %1 Teile zusammen; Ziehen setzt über %2 davon ein Transform.</translation>
    </message>
    <message>
        <source>Dragging a handle puts a Transform above “%1”.</source>
        <translation>Ziehen an einem Griff setzt ein Transform über „%1“.</translation>
    </message>
    <message>
        <source>The handles change “%1”, which moves “%2”.</source>
        <translation>Die Griffe ändern „%1“, das „%2“ bewegt.</translation>
    </message>
    <message>
        <source>%1 nodes</source>
        <translation>%1 Knoten</translation>
    </message>
    <message>
        <source>Put a Transform above “%1”.</source>
        <translation>Ein Transform über „%1“ setzen.</translation>
    </message>
    <message>
        <source>Put a Transform above each of %1 parts.</source>
        <translation>Je ein Transform über %1 Teile setzen.</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>%1 verschieben</translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation>%1 drehen</translation>
    </message>
    <message>
        <source>Scale %1</source>
        <translation>%1 skalieren</translation>
    </message>
    <message>
        <source>own axes</source>
        <translation>eigene Achsen</translation>
    </message>
    <message>
        <source>&amp;Moving in the 3D View</source>
        <translation>Bewegen in der &amp;3D-Ansicht</translation>
    </message>
    <message>
        <source>Help on What &amp;Is Selected</source>
        <translation>Hilfe zur &amp;Auswahl</translation>
    </message>
    <message>
        <source>T&amp;utorial</source>
        <translation>T&amp;utorial</translation>
    </message>
    <message>
        <source>&amp;Documentation</source>
        <translation>&amp;Dokumentation</translation>
    </message>
    <message>
        <source>&amp;Nodes</source>
        <translation>&amp;Knotenarten</translation>
    </message>
    <message>
        <source>&amp;About Scopix</source>
        <translation>Ü&amp;ber Scopix</translation>
    </message>
    <message>
        <source>Moving in the 3D View</source>
        <translation>Bewegen in der 3D-Ansicht</translation>
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
        <translation>Drehen: mit der linken Taste ziehen.
Verschieben: mit der mittleren oder rechten Taste ziehen.
Näher, weiter weg: Mausrad drehen; die Stelle unter dem Zeiger bleibt.
Auswählen: klicken; noch einmal für die Form, dann ihr Material. Strg nimmt dazu, Umschalt und Ziehen wählt alles in einem Rechteck, Alt listet auf, was unter dem Zeiger liegt. Esc geht nach oben.
Die ganze Auswahl ansehen: Doppelklick oder F.
Alles ansehen: A. Wie am Anfang, durch die Kamera der Szene, wenn sie eine hat: Pos1.
Mit Tasten: Die Pfeile drehen, mit Umschalt verschieben sie; Plus und Minus gehen näher und weiter weg.
Mit Tasten auswählen: Strg und Pfeile bewegen ein Fadenkreuz, Eingabe klickt dort.
Messen: M.
Von vorne, rechts, oben: 1, 3, 7; orthografisch: 5. Gehen: Umschalt+W.
Die Auswahl verschieben, drehen, skalieren: W, E, R, dann an einem Griff ziehen, oder X, Y oder Z und eine Zahl; wieder auswählen: Q. Umschalt ist feiner, Strg rastet ein.
Die Auswahl aus- oder einblenden: H, alles einblenden: Umschalt+H, nur sie zeigen: /.
Einen Knoten finden: Strg+F.
Nur Kanten: F3. Was ein Bild kostet: F4.</translation>
    </message>
    <message>
        <source>The documentation cannot be shown: it is not installed beside the program.</source>
        <translation>Die Dokumentation kann nicht gezeigt werden: Sie ist nicht beim Programm installiert.</translation>
    </message>
    <message>
        <source>The tutorial cannot be shown: it is not installed beside the program.</source>
        <translation>Das Tutorial lässt sich nicht zeigen: Es ist nicht beim Programm installiert.</translation>
    </message>
    <message>
        <source>The page on nodes cannot be shown: it is not installed beside the program.</source>
        <translation>Die Seite über Knoten lässt sich nicht zeigen: Sie ist nicht beim Programm installiert.</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Key: %1</source>
        <translation>Taste: %1</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Find in this page</source>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message>
        <source>Not in this page</source>
        <translation>Nicht auf dieser Seite</translation>
    </message>
    <message>
        <source>Older steps were dropped to keep within %1 MiB</source>
        <translation>Ältere Schritte wurden verworfen, um unter %1 MiB zu bleiben</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Nothing can be edited while the values before the edits show; press B in the view to see the present ones.</source>
        <translation>Solange die Werte vor den Änderungen zu sehen sind, lässt sich nichts ändern; drücke B in der Ansicht, um die jetzigen zu sehen.</translation>
    </message>
    <message>
        <source>Fold the &amp;Bottom Area</source>
        <translation>&amp;Unteren Bereich einklappen</translation>
    </message>
    <message>
        <source>The program ended or hung while it was loaded.</source>
        <translation>Das Programm endete oder hing, während es geladen wurde.</translation>
    </message>
    <message>
        <source>Another one</source>
        <translation>Ein weiteres</translation>
    </message>
    <message>
        <source>The file of the performance counters, “%1”, is damaged: %2.</source>
        <translation>Die Datei der Leistungszähler, „%1“, ist beschädigt: %2.</translation>
    </message>
    <message>
        <source>A good copy of it was kept on %1. The damaged file is kept, too, when that is put back.</source>
        <translation>Am %1 wurde eine gute Kopie davon aufgehoben. Beim Wiederherstellen bleibt auch die beschädigte Datei erhalten.</translation>
    </message>
    <message>
        <source>&amp;Put Back</source>
        <translation>Zurück&amp;holen</translation>
    </message>
    <message>
        <source>&amp;Leave As It Is</source>
        <translation>So &amp;lassen</translation>
    </message>
    <message>
        <source>There is no profile named “%1”.</source>
        <translation>Es gibt kein Profil „%1“.</translation>
    </message>
    <message>
        <source>The extension “%1” failed in %2(): %3.</source>
        <translation>Die Erweiterung „%1“ ist in %2() fehlgeschlagen: %3.</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>The extension “%1” failed when it was to be shown or hidden: %2</source>
        <translation>Die Erweiterung „%1“ ist beim Ein- oder Ausblenden fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>A plug-in failed when it was to add entries to a menu: %1</source>
        <translation>Ein Plug-in ist beim Eintragen in ein Menü fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation>&amp;Setzen</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>As S&amp;hipped</source>
        <translation>&amp;Wie geliefert</translation>
    </message>
    <message>
        <source>All keys as in</source>
        <translation>Alle Tasten wie in</translation>
    </message>
    <message>
        <source>All keys as in…</source>
        <translation>Alle Tasten wie in …</translation>
    </message>
    <message>
        <source>Find an act or a key</source>
        <translation>Eine Aktion oder Taste finden</translation>
    </message>
    <message>
        <source>Acts and their keys</source>
        <translation>Aktionen und ihre Tasten</translation>
    </message>
    <message>
        <source>Act</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Another key</source>
        <translation>Andere Taste</translation>
    </message>
    <message>
        <source>“%1” has this key, and loses it when you set it.</source>
        <translation>„%1“ hat diese Taste und verliert sie beim Setzen.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Launch a Program</source>
        <translation>Programm starten</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>A file, or a name such as osgviewer</source>
        <translation>Eine Datei oder ein Name wie osgviewer</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>What stands behind it on a command line</source>
        <translation>Was auf einer Befehlszeile dahinter steht</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>The current folder</source>
        <translation>Der aktuelle Ordner</translation>
    </message>
    <message>
        <source>&amp;Program:</source>
        <translation>&amp;Programm:</translation>
    </message>
    <message>
        <source>&amp;Arguments:</source>
        <translation>&amp;Argumente:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Launch</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>its owner cannot be found out</source>
        <translation>sein Besitzer lässt sich nicht feststellen</translation>
    </message>
    <message>
        <source>its folder “%1” belongs to %2, and only plug-ins of yours and of the administrator are loaded; copy it to a folder of yours if you trust it</source>
        <translation>sein Ordner „%1“ gehört %2, und geladen werden nur deine Plug-ins und die des Systemverwalters; kopiere das Plug-in in einen deiner Ordner, wenn du ihm vertraust</translation>
    </message>
    <message>
        <source>it belongs to %1, and only plug-ins of yours and of the administrator are loaded; copy it to a folder of yours if you trust it</source>
        <translation>es gehört %1, und geladen werden nur deine Plug-ins und die des Systemverwalters; kopiere es in einen deiner Ordner, wenn du ihm vertraust</translation>
    </message>
    <message>
        <source>every user may write to its folder “%1”, so that it may be anybody's; take that permission away, or copy it to a folder of yours</source>
        <translation>jeder Benutzer darf in seinen Ordner „%1“ schreiben, es kann also von irgendwem sein; nimm dieses Recht weg oder kopiere es in einen deiner Ordner</translation>
    </message>
    <message>
        <source>every user may write to it, so that it may be anybody's; take that permission away, or copy it to a folder of yours</source>
        <translation>jeder Benutzer darf es ändern, es kann also von irgendwem sein; nimm dieses Recht weg oder kopiere es in einen deiner Ordner</translation>
    </message>
    <message>
        <source>other users, those of its group, may write to its folder “%1”; take that permission away, or copy it to a folder of yours</source>
        <translation>andere Benutzer aus dessen Gruppe dürfen in seinen Ordner „%1“ schreiben; nimm dieses Recht weg oder kopiere das Plug-in in einen deiner Ordner</translation>
    </message>
    <message>
        <source>other users, those of its group, may write to it; take that permission away, or copy it to a folder of yours</source>
        <translation>andere Benutzer aus seiner Gruppe dürfen es ändern; nimm dieses Recht weg oder kopiere es in einen deiner Ordner</translation>
    </message>
    <message>
        <source>1 change</source>
        <translation>1 Änderung</translation>
    </message>
    <message>
        <source>%L1 changes</source>
        <translation>%L1 Änderungen</translation>
    </message>
    <message>
        <source>A&amp;ttach to a Program…</source>
        <translation>Mit einem Programm &amp;verbinden …</translation>
    </message>
    <message>
        <source>La&amp;unch a Program…</source>
        <translation>Programm sta&amp;rten …</translation>
    </message>
    <message>
        <source>Launch A&amp;gain</source>
        <translation>Erneut s&amp;tarten</translation>
    </message>
    <message>
        <source>&amp;Detach</source>
        <translation>Verbindung &amp;beenden</translation>
    </message>
    <message>
        <source>Take My Changes &amp;Back</source>
        <translation>Meine Änderungen zurück&amp;nehmen</translation>
    </message>
    <message>
        <source>&amp;Look at the Selected Node in the Program</source>
        <translation>Den ausgewählten Knoten im Programm &amp;ansehen</translation>
    </message>
    <message>
        <source>No program was launched from this window yet.</source>
        <translation>Aus diesem Fenster wurde noch kein Programm gestartet.</translation>
    </message>
    <message>
        <source>“%1” shows no picture here.</source>
        <translation>„%1“ zeigt hier kein Bild.</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, Prozess %2</translation>
    </message>
    <message>
        <source>Launch Again</source>
        <translation>Erneut starten</translation>
    </message>
    <message>
        <source>Attached to “%1”.</source>
        <translation>Mit „%1“ verbunden.</translation>
    </message>
    <message>
        <source>“%1” does not tell what is under a place of its picture.</source>
        <translation>„%1“ sagt nicht, was unter einer Stelle seines Bildes liegt.</translation>
    </message>
    <message>
        <source>The selected node has no extent that could be looked at.</source>
        <translation>Der ausgewählte Knoten hat keine Ausdehnung, die sich ansehen ließe.</translation>
    </message>
    <message>
        <source>“%1” has not answered for 2 seconds; what it showed last stays, and cannot be edited before it answers again.</source>
        <translation>„%1“ antwortet seit 2 Sekunden nicht; das zuletzt Gezeigte bleibt stehen und lässt sich erst wieder ändern, wenn es antwortet.</translation>
    </message>
    <message>
        <source>Kept for when you attach to “%1” again: %2.</source>
        <translation>Aufgehoben für die nächste Verbindung mit „%1“: %2.</translation>
    </message>
    <message>
        <source>Apply %1 of the last run of “%2” again?</source>
        <translation>%1 vom letzten Lauf von „%2“ erneut anwenden?</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>&amp;Leave It as It Is</source>
        <translation>So &amp;lassen, wie es ist</translation>
    </message>
    <message>
        <source>A change of the last run does not fit here any more and is left out.</source>
        <translation>Eine Änderung vom letzten Lauf passt hier nicht mehr und wird ausgelassen.</translation>
    </message>
    <message>
        <source>Written to the program: %1.</source>
        <translation>Ins Programm geschrieben: %1.</translation>
    </message>
    <message>
        <source>Written to the program: %1; the console lists those that do not fit any more.</source>
        <translation>Ins Programm geschrieben: %1; die Konsole nennt, was nicht mehr passt.</translation>
    </message>
    <message>
        <source>“%1” could not be started: %2.</source>
        <translation>„%1“ ließ sich nicht starten: %2.</translation>
    </message>
    <message>
        <source>there is no such program</source>
        <translation>dieses Programm gibt es nicht</translation>
    </message>
    <message>
        <source>“%1” ended before it could be attached to.</source>
        <translation>„%1“ endete, bevor eine Verbindung möglich war.</translation>
    </message>
    <message>
        <source>“%1” runs and offers nothing to attach to: it has to use OpenSceneGraph as a shared library, or a live server of its own.</source>
        <translation>„%1“ läuft und bietet keine Verbindung an: Es muss OpenSceneGraph als gemeinsame Bibliothek benutzen oder einen eigenen Live-Server haben.</translation>
    </message>
    <message>
        <source>More than one program can be attached to, so that the number of one has to be given: %1.</source>
        <translation>Mehrere Programme bieten eine Verbindung an; gib die Nummer von einem an: %1.</translation>
    </message>
    <message>
        <source>No program that can be attached to is running; scopix --launch PROGRAM starts one.</source>
        <translation>Es läuft kein Programm, mit dem man sich verbinden kann; „scopix --launch PROGRAMM“ startet eines.</translation>
    </message>
    <message>
        <source>No program “%1” that can be attached to is running; scopix --list-live lists those that are.</source>
        <translation>Es läuft kein Programm „%1“, mit dem man sich verbinden kann; „scopix --list-live“ listet die laufenden auf.</translation>
    </message>
    <message>
        <source>Picture of the program</source>
        <translation>Bild des Programms</translation>
    </message>
    <message>
        <source>Apply changes again</source>
        <translation>Änderungen erneut anwenden</translation>
    </message>
    <message>
        <source>Take changes back</source>
        <translation>Änderungen zurücknehmen</translation>
    </message>
    <message>
        <source>Nothing can be added to “%1”: “%2” offers no types for it.</source>
        <translation>Zu „%1“ lässt sich nichts hinzufügen: „%2“ bietet dafür keine Typen an.</translation>
    </message>
    <message>
        <source>“%1” added nothing to “%2”: %3</source>
        <translation>„%1“ hat zu „%2“ nichts hinzugefügt: %3</translation>
    </message>
    <message>
        <source>Only nodes of “%1” itself can stand in it, and their names are among their fields.</source>
        <translation>Darin können nur Knoten aus „%1“ selbst stehen; ihre Namen sind unter ihren Feldern.</translation>
    </message>
    <message>
        <source>“%1” refused to change the children of “%2”: %3</source>
        <translation>„%1“ hat abgelehnt, die Kinder von „%2“ zu ändern: %3</translation>
    </message>
    <message>
        <source>What was done after that is undone too; it can be redone.</source>
        <translation>Was danach getan wurde, ist ebenfalls rückgängig gemacht; es lässt sich wiederholen.</translation>
    </message>
    <message>
        <source>“%1” takes whole numbers only, and is as it was.</source>
        <translation>„%1“ nimmt nur ganze Zahlen an und ist, wie es war.</translation>
    </message>
    <message>
        <source>“%1” cannot be changed: “%2” only lets it be read.</source>
        <translation>„%1“ lässt sich nicht ändern: „%2“ lässt es nur lesen.</translation>
    </message>
    <message>
        <source>“%1” refused the value of “%2”: %3</source>
        <translation>„%1“ hat den Wert von „%2“ abgelehnt: %3</translation>
    </message>
    <message>
        <source>“%1” took another value for “%2” than was asked for.</source>
        <translation>„%1“ hat für „%2“ einen anderen Wert genommen als verlangt.</translation>
    </message>
    <message>
        <source>“%1” has more children than can be shown: those after the first %L2 are left out.</source>
        <translation>„%1“ hat mehr Kinder, als sich zeigen lassen: Die nach den ersten %L2 fehlen hier.</translation>
    </message>
    <message>
        <source>“%1” has no “%2” any more.</source>
        <translation>„%1“ hat kein „%2“ mehr.</translation>
    </message>
    <message>
        <source>“%1” came with a value that is none of its kind, and is not shown.</source>
        <translation>„%1“ kam mit einem Wert, der nicht zu seiner Art passt, und wird nicht gezeigt.</translation>
    </message>
    <message>
        <source>You have detached from “%1”.</source>
        <translation>Die Verbindung mit „%1“ ist getrennt.</translation>
    </message>
    <message>
        <source>“%1” cannot be edited: “%2” is not attached any more.</source>
        <translation>„%1“ lässt sich nicht ändern: „%2“ ist nicht mehr verbunden.</translation>
    </message>
    <message>
        <source>“%1” cannot be edited before “%2” answers again.</source>
        <translation>„%1“ lässt sich erst ändern, wenn „%2“ wieder antwortet.</translation>
    </message>
    <message>
        <source>“%1” cannot be edited: it does not exist in “%2” any more.</source>
        <translation>„%1“ lässt sich nicht ändern: In „%2“ gibt es das nicht mehr.</translation>
    </message>
    <message>
        <source>The nodes of “%1” can be neither added, moved nor removed, since the program does not offer that.</source>
        <translation>In „%1“ lassen sich Knoten weder hinzufügen noch verschieben noch entfernen, da das Programm das nicht anbietet.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Select a node: its fields are listed here.</source>
        <translation>Wähle einen Knoten aus: Hier stehen dann seine Felder.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Save Picture of the &amp;Window…</source>
        <translation>Bild des &amp;Fensters speichern …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Find in the Scene</source>
        <translation>In der Szene &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Knoten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Columns of the T&amp;ree</source>
        <translation>Spalten des &amp;Baums</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Profil</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>Main</source>
        <translation>Haupt</translation>
    </message>
    <message>
        <source>Running Scene</source>
        <translation>Laufende Szene</translation>
    </message>
    <message>
        <source>%1 (deleted)</source>
        <translation>%1 (gelöscht)</translation>
    </message>
    <message>
        <source>Nothing in the scene has the name or the type “%1”.</source>
        <translation>Nichts in der Szene hat den Namen oder Typ „%1“.</translation>
    </message>
    <message>
        <source>“%1”, a %2, has no field “%3”.</source>
        <translation>„%1“, ein %2, hat kein Feld „%3“.</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Bilder (*.png)</translation>
    </message>
    <message>
        <source>Click something in the view or in the tree: its values appear here.</source>
        <translation>Klicke etwas in der Ansicht oder im Baum an: Hier erscheinen seine Werte.</translation>
    </message>
    <message>
        <source>Along x, y, z</source>
        <translation>Entlang x, y, z</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>Kante</translation>
    </message>
    <message>
        <source>Box of the selection</source>
        <translation>Box der Auswahl</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>Click the second point.</source>
        <translation>Klicke auf den zweiten Punkt.</translation>
    </message>
    <message>
        <source>Click two points. Ctrl+C copies, Esc ends.</source>
        <translation>Klicke auf zwei Punkte. Strg+C kopiert, Esc beendet.</translation>
    </message>
    <message>
        <source>the program that reads models, “%1”, cannot be started</source>
        <translation>das Programm, das Modelle liest, „%1“, lässt sich nicht starten</translation>
    </message>
    <message>
        <source>reading it takes too long, and was given up</source>
        <translation>das Lesen dauert zu lange und wurde aufgegeben</translation>
    </message>
    <message>
        <source>it contradicts itself, and reading it was given up</source>
        <translation>sie widerspricht sich selbst, das Lesen wurde aufgegeben</translation>
    </message>
    <message>
        <source>what was read of it could not be written to “%1”</source>
        <translation>was davon gelesen wurde, ließ sich nicht nach „%1“ schreiben</translation>
    </message>
    <message>
        <source>No Plug-ins</source>
        <translation>Keine Plug-ins</translation>
    </message>
    <message>
        <source>No plug-in is loaded, so there are no editors and no tools. Plug-ins were looked for in these folders:

%1</source>
        <translation>Es ist kein Plug-in geladen, darum gibt es keine Editoren und keine Werkzeuge. Gesucht wurde in diesen Ordnern:

%1</translation>
    </message>
    <message>
        <source>Nothing was dropped, since its place has gone meanwhile; drop it elsewhere.</source>
        <translation>Es wurde nichts abgelegt, weil es die Stelle inzwischen nicht mehr gibt; legen Sie es an einer anderen ab.</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>Wird kopiert…</translation>
    </message>
    <message>
        <source>Copying was cancelled; nothing has changed.</source>
        <translation>Das Kopieren wurde abgebrochen; es hat sich nichts geändert.</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Copying was cancelled; the clipboard holds what it held.</source>
        <translation>Das Kopieren wurde abgebrochen; die Zwischenablage enthält, was sie enthielt.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) copied.</source>
        <translation><numerusform>%n Knoten kopiert.</numerusform><numerusform>%n Knoten kopiert.</numerusform></translation>
    </message>
    <message>
        <source>Pasting…</source>
        <translation>Wird eingefügt…</translation>
    </message>
    <message>
        <source>Pasting was cancelled; nothing has changed.</source>
        <translation>Das Einfügen wurde abgebrochen; es hat sich nichts geändert.</translation>
    </message>
    <message>
        <source>Only nodes that were copied from this program, in this window, can be pasted into it.</source>
        <translation>Nur Knoten, die in diesem Fenster aus diesem Programm kopiert wurden, lassen sich darin einfügen.</translation>
    </message>
    <message>
        <source>Only nodes that were copied in this window, in this scene, can be pasted as shared ones.</source>
        <translation>Nur Knoten, die in diesem Fenster und in dieser Szene kopiert wurden, lassen sich als gemeinsame einfügen.</translation>
    </message>
    <message>
        <source>Handing over what was dropped…</source>
        <translation>Was abgelegt wurde, wird übergeben …</translation>
    </message>
    <message>
        <source>Nothing was handed over to the other program: it was cancelled.</source>
        <translation>Dem anderen Programm wurde nichts übergeben: Es wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Nothing was handed over to the other program: the text of what was dropped is too long for that. Copy it here, and paste it there.</source>
        <translation>Dem anderen Programm wurde nichts übergeben: Der Text dessen, was abgelegt wurde, ist zu lang dafür. Kopiere es hier, und füge es dort ein.</translation>
    </message>
    <message numerus="yes">
        <source>Drop %n Node(s)</source>
        <translation><numerusform>%n Knoten ablegen</numerusform><numerusform>%n Knoten ablegen</numerusform></translation>
    </message>
    <message>
        <source>“%1” cannot be hidden: it only sets something for other nodes.</source>
        <translation>„%1“ lässt sich nicht ausblenden: Es stellt nur etwas für andere Knoten ein.</translation>
    </message>
    <message>
        <source>Only what is selected is seen; press / again to see the rest.</source>
        <translation>Nur die Auswahl ist zu sehen; drücke wieder /, um den Rest zu sehen.</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen …</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Insert &amp;File…</source>
        <translation>&amp;Datei einfügen …</translation>
    </message>
    <message>
        <source>Sa&amp;ve Branch As…</source>
        <translation>&amp;Zweig speichern unter …</translation>
    </message>
    <message>
        <source>Put A&amp;bove</source>
        <translation>Darü&amp;ber setzen</translation>
    </message>
    <message>
        <source>Put a %1 Above</source>
        <translation>%1 darübersetzen</translation>
    </message>
    <message>
        <source>&amp;Another…</source>
        <translation>&amp;Anderes …</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Paste as &amp;Shared</source>
        <translation>Ge&amp;meinsam genutzt einfügen</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Gruppieren</translation>
    </message>
    <message>
        <source>&amp;Ungroup</source>
        <translation>Gruppierung au&amp;fheben</translation>
    </message>
    <message>
        <source>Make Uni&amp;que</source>
        <translation>E&amp;igenständig machen</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Out of Its Group</source>
        <translation>&amp;Aus der Gruppe heraus</translation>
    </message>
    <message>
        <source>&amp;Into the Group Before</source>
        <translation>In die Gruppe &amp;davor</translation>
    </message>
    <message>
        <source>&amp;Hide or Show</source>
        <translation>Aus- oder ein&amp;blenden</translation>
    </message>
    <message>
        <source>Sho&amp;w All</source>
        <translation>Alles ei&amp;nblenden</translation>
    </message>
    <message>
        <source>&amp;Isolate</source>
        <translation>Nur das &amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Lock or Unlock</source>
        <translation>&amp;Sperren oder entsperren</translation>
    </message>
    <message>
        <source>Make Hiding Pe&amp;rmanent</source>
        <translation>Ausblenden &amp;dauerhaft machen</translation>
    </message>
    <message>
        <source>Add a Node</source>
        <translation>Knoten hinzufügen</translation>
    </message>
    <message>
        <source>Put a Node Above</source>
        <translation>Knoten darübersetzen</translation>
    </message>
    <message>
        <source>the scene as it was opened</source>
        <translation>der Szene beim Öffnen</translation>
    </message>
    <message>
        <source>Scenes and models (%1);;All files (*)</source>
        <translation>Szenen und Modelle (%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Reading “%1” was cancelled.</source>
        <translation>Das Lesen von „%1“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>&amp;Find Anything…</source>
        <translation>&amp;Alles finden …</translation>
    </message>
    <message>
        <source>Preferences ▸ %1</source>
        <translation>Einstellungen ▸ %1</translation>
    </message>
    <message>
        <source>field of %1</source>
        <translation>Feld von %1</translation>
    </message>
    <message>
        <source>node, %1</source>
        <translation>Knoten, %1</translation>
    </message>
    <message>
        <source>Patches (*.%1)</source>
        <translation>Patches (*.%1)</translation>
    </message>
    <message>
        <source>Save Changes as Patch</source>
        <translation>Änderungen als Patch speichern</translation>
    </message>
    <message>
        <source>There is no change that could be saved.</source>
        <translation>Es gibt keine Änderung, die sich speichern ließe.</translation>
    </message>
    <message>
        <source>Saved the changes as “%1”.</source>
        <translation>Die Änderungen sind als „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Apply Patch</source>
        <translation>Patch anwenden</translation>
    </message>
    <message>
        <source>“%1” is a patch, and no scene is open that it could change: open the one that it was made for, then drop the patch on the window or choose File ▸ Apply Patch….</source>
        <translation>„%1“ ist ein Patch, und es ist keine Szene geöffnet, die er ändern könnte: Öffne die, für die er gemacht ist, und wähle dann Datei ▸ Patch anwenden … oder ziehe den Patch ins Fenster.</translation>
    </message>
    <message>
        <source>Apply the patch “%1” to “%2”?</source>
        <translation>Den Patch „%1“ auf „%2“ anwenden?</translation>
    </message>
    <message numerus="yes">
        <source>It has %n change(s). What fits is applied, and can be undone as one step.</source>
        <translation><numerusform>Er enthält %n Änderung. Was passt, wird angewendet und lässt sich in einem Schritt rückgängig machen.</numerusform><numerusform>Er enthält %n Änderungen. Was passt, wird angewendet und lässt sich in einem Schritt rückgängig machen.</numerusform></translation>
    </message>
    <message>
        <source>Apply “%1”</source>
        <translation>„%1“ anwenden</translation>
    </message>
    <message>
        <source>“%1”: %2 changes applied, %3 were so already, %4 did not fit.</source>
        <translation>„%1“: %2 Änderungen angewendet, %3 waren schon so, %4 passten nicht.</translation>
    </message>
    <message>
        <source>What fits is applied, and can be undone as one step.</source>
        <translation>Was passt, wird angewendet und lässt sich in einem Schritt rückgängig machen.</translation>
    </message>
    <message>
        <source>There is no change that could be copied so.</source>
        <translation>Es gibt keine Änderung, die sich so kopieren ließe.</translation>
    </message>
    <message>
        <source>The changes were copied as a patch.</source>
        <translation>Die Änderungen wurden als Patch kopiert.</translation>
    </message>
    <message>
        <source>The changes were copied as C++.</source>
        <translation>Die Änderungen wurden als C++ kopiert.</translation>
    </message>
    <message>
        <source>The changed values were copied as nodes of a scene.</source>
        <translation>Die geänderten Werte wurden als Knoten einer Szene kopiert.</translation>
    </message>
    <message>
        <source>“%1” is not applied: “%2”, which it was to change, is not open.</source>
        <translation>„%1“ wird nicht angewandt: „%2“ sollte er ändern, und das ist nicht offen.</translation>
    </message>
    <message>
        <source>Save &amp;Picture…</source>
        <translation>&amp;Bild speichern …</translation>
    </message>
    <message>
        <source>Save &amp;Turntable…</source>
        <translation>Dreh&amp;ansicht speichern …</translation>
    </message>
    <message>
        <source>Save Turntable</source>
        <translation>Drehansicht speichern</translation>
    </message>
    <message>
        <source>Pictures (*.%1)</source>
        <translation>Bilder (*.%1)</translation>
    </message>
    <message numerus="yes">
        <source>%n of these pictures are there already in “%1”. Replace them?</source>
        <translation><numerusform>%n dieser Bilder gibt es in „%1“ schon. Ersetzen?</numerusform><numerusform>%n dieser Bilder gibt es in „%1“ schon. Ersetzen?</numerusform></translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Wird gezeichnet …</translation>
    </message>
    <message>
        <source>Cancelled; no picture was written.</source>
        <translation>Abgebrochen; es wurde kein Bild geschrieben.</translation>
    </message>
    <message>
        <source>Cancelled; of %1 pictures, %2 were written.</source>
        <translation>Abgebrochen; von %1 Bildern wurden %2 geschrieben.</translation>
    </message>
    <message>
        <source>Saved “%1”.</source>
        <translation>„%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Saved %1 pictures, the first being “%2”.</source>
        <translation>%1 Bilder gespeichert, das erste ist „%2“.</translation>
    </message>
    <message>
        <source>&amp;Transparent ground</source>
        <translation>&amp;Durchsichtiger Hintergrund</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern …</translation>
    </message>
    <message>
        <source>&amp;Width in pixels:</source>
        <translation>&amp;Breite in Pixeln:</translation>
    </message>
    <message>
        <source>&amp;Height in pixels:</source>
        <translation>&amp;Höhe in Pixeln:</translation>
    </message>
    <message>
        <source>&amp;Pictures of one turn:</source>
        <translation>B&amp;ilder einer Drehung:</translation>
    </message>
    <message>
        <source>Preparing the picture…</source>
        <translation>Das Bild wird vorbereitet …</translation>
    </message>
    <message>
        <source>A picture of %1 × %2 pixels cannot be made: each side may have 1 to %3, and all of it %L4.</source>
        <translation>Ein Bild von %1 × %2 Pixeln ist nicht möglich: Jede Seite darf 1 bis %3 haben, das ganze Bild %L4.</translation>
    </message>
    <message>
        <source>%1 pictures of one turn cannot be made: choose 2 to %2.</source>
        <translation>%1 Bilder einer Drehung sind nicht möglich: Wähle 2 bis %2.</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be transparent, which .%2 files cannot hold: choose .png.</source>
        <translation>Das Bild „%1“ kann nicht durchsichtig sein, da .%2-Dateien das nicht können: Wähle .png.</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>dafür reicht der Speicher nicht</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>Clip %1</translation>
    </message>
    <message>
        <source>All clips</source>
        <translation>Alle Clips</translation>
    </message>
    <message>
        <source>&amp;Animation</source>
        <translation>A&amp;nimation</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Abspielen</translation>
    </message>
    <message>
        <source>&amp;Stop, as It Was</source>
        <translation>&amp;Stopp, wie es war</translation>
    </message>
    <message>
        <source>One Key &amp;Back</source>
        <translation>Einen Schlüssel &amp;zurück</translation>
    </message>
    <message>
        <source>One Key &amp;Ahead</source>
        <translation>Einen Schlüssel &amp;weiter</translation>
    </message>
    <message>
        <source>Half as &amp;Fast</source>
        <translation>&amp;Halb so schnell</translation>
    </message>
    <message>
        <source>&amp;Twice as Fast</source>
        <translation>&amp;Doppelt so schnell</translation>
    </message>
    <message>
        <source>Back&amp;wards</source>
        <translation>&amp;Rückwärts</translation>
    </message>
    <message>
        <source>Again and A&amp;gain</source>
        <translation>&amp;Immer wieder</translation>
    </message>
    <message>
        <source>&amp;Next Clip</source>
        <translation>&amp;Nächster Clip</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Which clip is played</source>
        <translation>Welcher Clip gespielt wird</translation>
    </message>
    <message>
        <source>Time in the clip</source>
        <translation>Zeit im Clip</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>How fast it is played; below 0 backwards</source>
        <translation>Wie schnell gespielt wird; unter 0 rückwärts</translation>
    </message>
    <message>
        <source>%1 / %2 s</source>
        <translation>%1 / %2 s</translation>
    </message>
    <message>
        <source>the program ended the last time while it was being loaded</source>
        <translation>das Programm endete beim letzten Mal, während es geladen wurde</translation>
    </message>
    <message>
        <source>%1; View &gt; Tools &gt; Try Again loads it all the same</source>
        <translation>%1; Ansicht &gt; Werkzeuge &gt; Neu versuchen lädt es trotzdem</translation>
    </message>
    <message>
        <source>it is a folder, and a plug-in library was expected</source>
        <translation>das ist ein Ordner und keine Plug-in-Bibliothek</translation>
    </message>
    <message>
        <source>the file may not be read</source>
        <translation>die Datei darf nicht gelesen werden</translation>
    </message>
    <message>
        <source>it is no library that this program can load (%1)</source>
        <translation>das ist keine Bibliothek, die dieses Programm laden kann (%1)</translation>
    </message>
    <message>
        <source>its loadPlugin failed: %1</source>
        <translation>sein loadPlugin ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>its loadPlugin returned no plug-in</source>
        <translation>sein loadPlugin hat kein Plug-in geliefert</translation>
    </message>
    <message>
        <source>The plug-in “%1” was not loaded: %2.</source>
        <translation>Das Plug-in „%1“ wurde nicht geladen: %2.</translation>
    </message>
    <message>
        <source>it says that it cannot be used</source>
        <translation>es sagt, dass es sich nicht benutzen lässt</translation>
    </message>
    <message>
        <source>its load() failed: %1</source>
        <translation>sein load() ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The plug-in “%1” failed in %2(): %3.</source>
        <translation>Das Plug-in „%1“ ist in %2() fehlgeschlagen: %3.</translation>
    </message>
    <message>
        <source>it was made for the C++ library %1, this program uses %2</source>
        <translation>es ist für die C++-Bibliothek %1 gebaut, dieses Programm benutzt %2</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Geladen</translation>
    </message>
    <message>
        <source>Set aside</source>
        <translation>Beiseitegelegt</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Abgelehnt</translation>
    </message>
    <message>
        <source>its code ended the process in which it was tried</source>
        <translation>sein Code hat den Prozess beendet, in dem es erprobt wurde</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>One that was set aside is loaded again by View ▸ Tools ▸ Try Again. Which tools are active is a profile’s choice: View ▸ Profile.</source>
        <translation>Ein beiseitegelegtes wird mit Ansicht ▸ Werkzeuge ▸ Neu versuchen wieder geladen. Welche Werkzeuge aktiv sind, bestimmt das Profil: Ansicht ▸ Profil.</translation>
    </message>
    <message>
        <source>Nothing is called so. Try another word.</source>
        <translation>Nichts heißt so. Versuche ein anderes Wort.</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Eine Einstellung suchen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>&amp;Reset This Page</source>
        <translation>Diese Seite &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>%1, and the shipped profiles are used.</source>
        <translation>%1, und die mitgelieferten Profile werden verwendet.</translation>
    </message>
    <message>
        <source>The profiles file “%1” cannot be read: %2</source>
        <translation>Die Profildatei „%1“ lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>it is larger than any profiles file can be</source>
        <translation>sie ist größer, als eine Profildatei sein kann</translation>
    </message>
    <message>
        <source>The profiles file “%1” is damaged: %2; %3</source>
        <translation>Die Profildatei „%1“ ist beschädigt: %2; %3</translation>
    </message>
    <message>
        <source>The profiles file “%1” cannot be written: %2.</source>
        <translation>Die Profildatei „%1“ lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>it was kept as “%1”</source>
        <translation>sie wurde als „%1“ aufgehoben</translation>
    </message>
    <message>
        <source>it could not be renamed</source>
        <translation>sie ließ sich nicht umbenennen</translation>
    </message>
    <message>
        <source>a profile needs a name</source>
        <translation>ein Profil braucht einen Namen</translation>
    </message>
    <message>
        <source>the name “%1” has letters that a profile's name cannot have (Latin-1 only)</source>
        <translation>der Name „%1“ hat Buchstaben, die ein Profilname nicht haben kann (nur Latin-1)</translation>
    </message>
    <message>
        <source>there already is a profile named “%1”</source>
        <translation>ein Profil „%1“ gibt es schon</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>The active profile</source>
        <translation>Das aktive Profil</translation>
    </message>
    <message>
        <source>Extensions that the profile controls</source>
        <translation>Erweiterungen, die das Profil steuert</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Editors</source>
        <translation>Editoren</translation>
    </message>
    <message>
        <source>Makes a copy of the active profile, which stands in bold.</source>
        <translation>Legt eine Kopie des aktiven Profils an, das fett gedruckt ist.</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>U&amp;mbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>L&amp;öschen</translation>
    </message>
    <message>
        <source>“Default” controls every extension and stays as it is.</source>
        <translation>„Default“ steuert jede Erweiterung und bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>&amp;Manage Profiles…</source>
        <translation>Profile &amp;verwalten …</translation>
    </message>
    <message>
        <source>Nothing was done, since the selected nodes have changed meanwhile; try it again.</source>
        <translation>Es wurde nichts geändert, weil sich die ausgewählten Knoten inzwischen geändert haben; versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>“%1” is what the program has at its top, and has to stay where it is.</source>
        <translation>„%1“ steht im Programm ganz oben und muss dort bleiben.</translation>
    </message>
    <message>
        <source>The program makes no nodes of a type called “Group”; choose Put Above ▸ Another… to see which it makes.</source>
        <translation>Das Programm erzeugt keine Knoten von einem Typ namens „Group“; Darüber setzen ▸ Anderes … zeigt, welche es erzeugt.</translation>
    </message>
    <message>
        <source>The program makes no nodes of the type “%1”; choose Put Above ▸ Another… to see which it makes.</source>
        <translation>Das Programm erzeugt keine Knoten vom Typ „%1“; Darüber setzen ▸ Anderes … zeigt, welche es erzeugt.</translation>
    </message>
    <message>
        <source>“%1” is what the program has at its top, and cannot be duplicated.</source>
        <translation>„%1“ steht im Programm ganz oben und lässt sich nicht duplizieren.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorieren</translation>
    </message>
    <message>
        <source>Another program has changed “%1”.</source>
        <translation>Ein anderes Programm hat „%1“ geändert.</translation>
    </message>
    <message>
        <source>What you have changed since the scene was opened</source>
        <translation>Was du seit dem Öffnen der Szene geändert hast</translation>
    </message>
    <message>
        <source>Wr&amp;ite Patch…</source>
        <translation>Patch &amp;schreiben …</translation>
    </message>
    <message>
        <source>&amp;Copy as Patch</source>
        <translation>Als Patch &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy as C&amp;++</source>
        <translation>Als C&amp;++ kopieren</translation>
    </message>
    <message>
        <source>Copy as Sce&amp;ne</source>
        <translation>Als Sze&amp;ne kopieren</translation>
    </message>
    <message>
        <source>Compare &amp;With…</source>
        <translation>Vergleichen &amp;mit …</translation>
    </message>
    <message>
        <source>Compare A&amp;gain</source>
        <translation>Neu ver&amp;gleichen</translation>
    </message>
    <message>
        <source>&amp;Back to What You Changed</source>
        <translation>&amp;Zurück zu deinen Änderungen</translation>
    </message>
    <message>
        <source>&amp;Start Again from Here</source>
        <translation>Von &amp;hier an neu beginnen</translation>
    </message>
    <message>
        <source>Save Changes as &amp;Patch…</source>
        <translation>Änderungen als &amp;Patch speichern …</translation>
    </message>
    <message>
        <source>App&amp;ly Patch…</source>
        <translation>Patch a&amp;nwenden …</translation>
    </message>
    <message>
        <source>Reload and Reappl&amp;y</source>
        <translation>Neu laden und erneut an&amp;wenden</translation>
    </message>
    <message>
        <source>Opens the file as it is by now, and makes your changes once more</source>
        <translation>Öffnet die Datei in ihrem jetzigen Zustand und macht deine Änderungen noch einmal</translation>
    </message>
    <message>
        <source>your changes to %1</source>
        <translation>deine Änderungen an %1</translation>
    </message>
    <message>
        <source>Compare With</source>
        <translation>Vergleichen mit</translation>
    </message>
    <message>
        <source>Comparing…</source>
        <translation>Wird verglichen…</translation>
    </message>
    <message>
        <source>The comparison was cancelled; the list is as it was.</source>
        <translation>Der Vergleich wurde abgebrochen; die Liste ist, wie sie war.</translation>
    </message>
    <message>
        <source>Changes ●</source>
        <translation>Änderungen ●</translation>
    </message>
    <message>
        <source>The scene “%1” cannot be written: %2.</source>
        <translation>Die Szene „%1“ lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be reverted: something else than an edit has changed its number of values; open the file again for what it holds.</source>
        <translation>„%1“ lässt sich nicht zurücknehmen: Etwas anderes als eine Bearbeitung hat die Zahl der Werte geändert; öffne die Datei neu, um zu sehen, was sie enthält.</translation>
    </message>
    <message>
        <source>Revert %1</source>
        <translation>%1 zurücknehmen</translation>
    </message>
    <message>
        <source>Revert %1 Changes</source>
        <translation>%1 Änderungen zurücknehmen</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>ohne Namen</translation>
    </message>
    <message>
        <source>%1, follows %2</source>
        <translation>%1, folgt %2</translation>
    </message>
    <message>
        <source>Written since by something else than an edit.</source>
        <translation>Seitdem von etwas anderem als einer Bearbeitung geschrieben.</translation>
    </message>
    <message>
        <source>added</source>
        <translation>hinzugefügt</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfernt</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>moved to %1</source>
        <translation>verschoben nach %1</translation>
    </message>
    <message>
        <source>The order of what it holds.</source>
        <translation>Die Reihenfolge des Inhalts.</translation>
    </message>
    <message>
        <source>“%1” cannot be what %2 was: it is no value of a %3.</source>
        <translation>„%1“ kann nicht sein, was %2 war: Das ist kein Wert der Art %3.</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>Bilder auf Oberflächen</translation>
    </message>
    <message>
        <source>lines and points</source>
        <translation>Linien und Punkte</translation>
    </message>
    <message>
        <source>groups and transforms, which are applied</source>
        <translation>Gruppen und Transformationen, die eingerechnet sind</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>„%1“ lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>Nothing of it can be seen: %1.</source>
        <translation>Davon ist nichts zu sehen: %1.</translation>
    </message>
    <message>
        <source>Opened “%1”, of which nothing can be seen: %2.</source>
        <translation>„%1“ ist geöffnet, aber nicht zu sehen: %2.</translation>
    </message>
    <message>
        <source>Opened “%1”; the console says what is left out.</source>
        <translation>„%1“ ist geöffnet; die Konsole nennt, was fehlt.</translation>
    </message>
    <message>
        <source>Opened “%1”.</source>
        <translation>„%1“ ist geöffnet.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>“%1” does not exist any more and was removed from the list of recent files.</source>
        <translation>„%1“ gibt es nicht mehr; die Datei wurde aus der Liste der zuletzt geöffneten entfernt.</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Szene speichern</translation>
    </message>
    <message>
        <source>“%1” cannot be exported to: its name must end in %2.</source>
        <translation>Nach „%1“ lässt sich nicht exportieren: Der Name muss auf %2 enden.</translation>
    </message>
    <message>
        <source>Exporting “%1”…</source>
        <translation>„%1“ wird exportiert …</translation>
    </message>
    <message>
        <source>Exporting “%1” was cancelled.</source>
        <translation>Das Exportieren von „%1“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Exported “%1”.</source>
        <translation>„%1“ exportiert.</translation>
    </message>
    <message>
        <source>“%1” is not saved: another program has changed it since it was opened.</source>
        <translation>„%1“ ist nicht gespeichert: Ein anderes Programm hat die Datei seit dem Öffnen geändert.</translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Die Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>Without saving, they are lost.</source>
        <translation>Ohne Speichern gehen sie verloren.</translation>
    </message>
    <message>
        <source>The last session ended without saving its changes to “%1”. Recover them?</source>
        <translation>Die letzte Sitzung endete, ohne ihre Änderungen an „%1“ zu speichern. Wiederherstellen?</translation>
    </message>
    <message>
        <source>They were kept on %1.</source>
        <translation>Sie wurden am %1 aufgehoben.</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>Recovered the unsaved changes to “%1”.</source>
        <translation>Die ungespeicherten Änderungen an „%1“ sind wiederhergestellt.</translation>
    </message>
    <message>
        <source>The last changes to “%1” could not be recovered: %2</source>
        <translation>Die letzten Änderungen an „%1“ ließen sich nicht wiederherstellen: %2</translation>
    </message>
    <message>
        <source>“%1” is locked, and cannot be edited before it is unlocked.</source>
        <translation>„%1“ ist gesperrt und lässt sich erst nach dem Entsperren ändern.</translation>
    </message>
    <message>
        <source>“%1” stands in “%2”, which is locked, and cannot be edited before that is unlocked.</source>
        <translation>„%1“ steht in „%2“, das gesperrt ist, und lässt sich erst ändern, wenn das entsperrt ist.</translation>
    </message>
    <message>
        <source>Open scenes</source>
        <translation>Offene Szenen</translation>
    </message>
    <message>
        <source>Ne&amp;xt Tab</source>
        <translation>Nä&amp;chster Tab</translation>
    </message>
    <message>
        <source>Pre&amp;vious Tab</source>
        <translation>V&amp;origer Tab</translation>
    </message>
    <message>
        <source>Move Tab to the Ri&amp;ght</source>
        <translation>Tab nach &amp;rechts</translation>
    </message>
    <message>
        <source>Move Tab to the &amp;Left</source>
        <translation>Tab nach &amp;links</translation>
    </message>
    <message>
        <source>Close this tab</source>
        <translation>Diesen Tab schließen</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>%1 „%2“</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Stellen</translation>
    </message>
    <message>
        <source>The tree was unfolded by %1 levels only, as all of them would have more than %L2 rows.</source>
        <translation>Der Baum wurde nur %1 Ebenen weit aufgeklappt, da alle mehr als %L2 Zeilen hätten.</translation>
    </message>
    <message>
        <source>Shapes: %L1, of them out of sight: %L2
Triangles: %L3, draw calls: %L4
Uploaded bytes: %L5, processor: %L6 ms</source>
        <translation>Formen: %L1, davon nicht im Bild: %L2
Dreiecke: %L3, Zeichenaufrufe: %L4
Hochgeladene Bytes: %L5, Prozessor: %L6 ms</translation>
    </message>
    <message>
        <source>it has no shapes that are drawn</source>
        <translation>sie hat keine Formen, die gezeichnet werden</translation>
    </message>
    <message>
        <source>its draw styles make all of it invisible</source>
        <translation>ihre Zeichenstile machen alles unsichtbar</translation>
    </message>
    <message>
        <source>all of it is fully transparent</source>
        <translation>alles ist ganz durchsichtig</translation>
    </message>
    <message>
        <source>all of it is too large, too small or too far away to be shown</source>
        <translation>alles ist zu groß, zu klein oder zu weit weg, um gezeigt zu werden</translation>
    </message>
    <message numerus="yes">
        <source>%n more behind</source>
        <translation><numerusform>%n weitere dahinter</numerusform><numerusform>%n weitere dahinter</numerusform></translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>&amp;Einstellungen …</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Size of texts</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The texts of the default extensions are in English.</source>
        <translation>Die Texte der Standarderweiterungen sind auf Englisch.</translation>
    </message>
    <message>
        <source>3D View</source>
        <translation>3D-Ansicht</translation>
    </message>
    <message>
        <source>Mouse as in</source>
        <translation>Maus wie in</translation>
    </message>
    <message>
        <source>Which buttons turn, move and come nearer. The left button selects in each, and the wheel comes nearer.</source>
        <translation>Welche Tasten drehen, verschieben und näher herangehen. Die linke Taste wählt immer aus, das Mausrad geht näher heran.</translation>
    </message>
    <message>
        <source>Scopix: left turns, middle and right move</source>
        <translation>Scopix: links dreht, Mitte und rechts verschieben</translation>
    </message>
    <message>
        <source>Blender: middle turns, Shift+middle moves</source>
        <translation>Blender: Mitte dreht, Umschalt+Mitte verschiebt</translation>
    </message>
    <message>
        <source>Godot: middle and right turn, Shift+middle moves</source>
        <translation>Godot: Mitte und rechts drehen, Umschalt+Mitte verschiebt</translation>
    </message>
    <message>
        <source>Maya: Alt and left, middle, right</source>
        <translation>Maya: Alt und links, Mitte, rechts</translation>
    </message>
    <message>
        <source>Memory and Files</source>
        <translation>Speicher und Dateien</translation>
    </message>
    <message>
        <source>Memory for undo</source>
        <translation>Speicher für Rückgängig</translation>
    </message>
    <message>
        <source>Older steps are dropped where they would need more.</source>
        <translation>Ältere Schritte werden verworfen, wenn sie mehr brauchen.</translation>
    </message>
    <message>
        <source> MiB</source>
        <translation> MiB</translation>
    </message>
    <message>
        <source>Memory for the pictures of a scene</source>
        <translation>Speicher für die Bilder einer Szene</translation>
    </message>
    <message>
        <source>Pictures are brought down to fit; holds for what is opened from now on.</source>
        <translation>Bilder werden passend verkleinert; gilt für alles, was ab jetzt geöffnet wird.</translation>
    </message>
    <message>
        <source>Angle of edges</source>
        <translation>Kantenwinkel</translation>
    </message>
    <message>
        <source>Faces of a model without normals have an edge between them above this angle; holds for what is opened from now on.</source>
        <translation>Flächen eines Modells ohne Normalen haben über diesem Winkel eine Kante zwischen sich; gilt für alles, was ab jetzt geöffnet wird.</translation>
    </message>
    <message>
        <source>Keep unsaved edits after a pause of</source>
        <translation>Ungespeichertes sichern nach einer Pause von</translation>
    </message>
    <message>
        <source>They are kept beside your settings, and offered again after a crash.</source>
        <translation>Es wird bei deinen Einstellungen aufgehoben und nach einem Absturz wieder angeboten.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>keyboard shortcuts presets Blender Godot Maya</source>
        <translation>Tastatur Kürzel Vorlagen Blender Godot Maya</translation>
    </message>
    <message>
        <source>extensions tools loaded refused</source>
        <translation>Erweiterungen Werkzeuge geladen abgelehnt</translation>
    </message>
    <message>
        <source>The settings file “%1” cannot be changed: %2.</source>
        <translation>Die Einstellungsdatei „%1“ lässt sich nicht ändern: %2.</translation>
    </message>
    <message>
        <source>no temporary file can be written</source>
        <translation>es lässt sich keine temporäre Datei schreiben</translation>
    </message>
    <message>
        <source>Every kind of node</source>
        <translation>Jede Art von Knoten</translation>
    </message>
    <message>
        <source>A lighthouse by the sea</source>
        <translation>Ein Leuchtturm am Meer</translation>
    </message>
    <message>
        <source>A crate with a picture on it</source>
        <translation>Eine Kiste mit einem Bild darauf</translation>
    </message>
    <message>
        <source>A knot, for printing</source>
        <translation>Ein Knoten zum Drucken</translation>
    </message>
    <message>
        <source>A colour at each vertex</source>
        <translation>Eine Farbe an jeder Ecke</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt geöffnete Dateien</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>What you open appears here. Files can be dropped anywhere in the window.</source>
        <translation>Was du öffnest, erscheint hier. Dateien lassen sich überall ins Fenster ziehen.</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>&amp;Look Around in the Welcome Scene</source>
        <translation>In der Willkommensszene &amp;umsehen</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>Wie das &amp;System</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Tour</translation>
    </message>
    <message>
        <source>&amp;End the Tour</source>
        <translation>Tour &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Nothing is open. Open a scene or model, or drop one here.</source>
        <translation>Nichts ist geöffnet. Öffne eine Szene oder ein Modell oder ziehe eine Datei hierher.</translation>
    </message>
    <message>
        <source>View &amp;All</source>
        <translation>&amp;Alles ansehen</translation>
    </message>
    <message>
        <source>View &amp;Selected</source>
        <translation>Au&amp;swahl ansehen</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>Aus&amp;gangsansicht</translation>
    </message>
    <message>
        <source>&amp;Wireframe</source>
        <translation>&amp;Drahtgitter</translation>
    </message>
    <message>
        <source>S&amp;tatistics</source>
        <translation>S&amp;tatistik</translation>
    </message>
    <message>
        <source>In the Scene’s &amp;Order</source>
        <translation>In der &amp;Reihenfolge der Szene</translation>
    </message>
    <message>
        <source>Sorted by &amp;Name</source>
        <translation>Nach &amp;Namen sortiert</translation>
    </message>
    <message>
        <source>Most T&amp;riangles First</source>
        <translation>Die meisten &amp;Dreiecke zuerst</translation>
    </message>
    <message>
        <source>Most Me&amp;mory First</source>
        <translation>Der meiste &amp;Speicher zuerst</translation>
    </message>
    <message>
        <source>Most Pla&amp;ces First</source>
        <translation>Die meisten S&amp;tellen zuerst</translation>
    </message>
    <message>
        <source>A plug-in failed when it was to tell its columns of the tree: %1</source>
        <translation>Ein Plug-in ist beim Nennen seiner Spalten des Baums fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Neu versuchen</translation>
    </message>
    <message>
        <source>Type a part of the name</source>
        <translation>Einen Teil des Namens tippen</translation>
    </message>
    <message>
        <source>Types of nodes</source>
        <translation>Knotentypen</translation>
    </message>
    <message>
        <source>“%1” failed: %2</source>
        <translation>„%1“ ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be undone and is no longer in the history: %2</source>
        <translation>„%1“ lässt sich nicht rückgängig machen und steht nicht mehr im Verlauf: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be redone and is no longer in the history: %2</source>
        <translation>„%1“ lässt sich nicht wiederholen und steht nicht mehr im Verlauf: %2</translation>
    </message>
    <message>
        <source>A step of the history went with “%1”, which no longer exists.</source>
        <translation>Mit „%1“, das es nicht mehr gibt, ist ein Schritt des Verlaufs weggefallen.</translation>
    </message>
    <message>
        <source>%1 steps of the history went with “%2”, which no longer exists.</source>
        <translation>Mit „%2“, das es nicht mehr gibt, sind %1 Schritte des Verlaufs weggefallen.</translation>
    </message>
    <message>
        <source>the list has another length by now</source>
        <translation>die Liste ist inzwischen anders lang</translation>
    </message>
    <message>
        <source>nothing could be written</source>
        <translation>es ließ sich nichts schreiben</translation>
    </message>
    <message>
        <source>%1, and in %L2 more</source>
        <translation>%1, und in %L2 weiteren</translation>
    </message>
    <message>
        <source>Look &amp;From</source>
        <translation>&amp;Blick von</translation>
    </message>
    <message>
        <source>&amp;Front</source>
        <translation>&amp;Vorne</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Rechts</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Oben</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Links</translation>
    </message>
    <message>
        <source>B&amp;ottom</source>
        <translation>&amp;Unten</translation>
    </message>
    <message>
        <source>&amp;Orthographic</source>
        <translation>&amp;Orthografisch</translation>
    </message>
    <message>
        <source>Wal&amp;k</source>
        <translation>&amp;Gehen</translation>
    </message>
    <message>
        <source>Look Throu&amp;gh</source>
        <translation>Blick &amp;durch</translation>
    </message>
    <message>
        <source>Keep This View as a &amp;Camera</source>
        <translation>Diese Ansicht als &amp;Kamera behalten</translation>
    </message>
    <message>
        <source>G&amp;rid</source>
        <translation>&amp;Raster</translation>
    </message>
    <message>
        <source>A&amp;xes</source>
        <translation>A&amp;chsen</translation>
    </message>
    <message>
        <source>Orientation C&amp;ube</source>
        <translation>Orientierungs&amp;würfel</translation>
    </message>
    <message>
        <source>The view cannot be kept: what is open is a single node, and has no place for a camera; put it into a group first.</source>
        <translation>Die Ansicht lässt sich nicht behalten: Geöffnet ist ein einzelner Knoten, in dem keine Kamera Platz hat; setze ihn erst in eine Gruppe.</translation>
    </message>
    <message>
        <source>Keep a View as a Camera</source>
        <translation>Eine Ansicht als Kamera behalten</translation>
    </message>
    <message>
        <source>This view is kept as the camera “%1”.</source>
        <translation>Diese Ansicht ist als Kamera „%1“ aufgehoben.</translation>
    </message>
    <message>
        <source>No Cameras in This Scene</source>
        <translation>Keine Kameras in dieser Szene</translation>
    </message>
    <message>
        <source>S&amp;hading</source>
        <translation>S&amp;chattierung</translation>
    </message>
    <message>
        <source>T&amp;one Mapping</source>
        <translation>T&amp;onwerte</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Einblenden</translation>
    </message>
    <message>
        <source>&amp;Full</source>
        <translation>&amp;Voll</translation>
    </message>
    <message>
        <source>Full, with &amp;Edges</source>
        <translation>Voll, mit &amp;Kanten</translation>
    </message>
    <message>
        <source>&amp;Normals</source>
        <translation>&amp;Normalen</translation>
    </message>
    <message>
        <source>&amp;Texture Coordinates</source>
        <translation>&amp;Texturkoordinaten</translation>
    </message>
    <message>
        <source>&amp;Overdraw</source>
        <translation>&amp;Übermalungen</translation>
    </message>
    <message>
        <source>&amp;None: What Is Brighter than White Is White</source>
        <translation>&amp;Keine: Was heller als Weiß ist, ist weiß</translation>
    </message>
    <message>
        <source>Neu&amp;tral: Bright Light Is Compressed, Colours Stay</source>
        <translation>&amp;Neutral: Helles wird gestaucht, Farben bleiben</translation>
    </message>
    <message>
        <source>&amp;Filmic: All Is Compressed, as on Film</source>
        <translation>&amp;Filmisch: Alles wird gestaucht, wie auf Film</translation>
    </message>
    <message>
        <source>&amp;Box with Sizes around the Selection</source>
        <translation>&amp;Box mit Maßen um die Auswahl</translation>
    </message>
    <message>
        <source>&amp;What a Click Would Select</source>
        <translation>&amp;Was ein Klick auswählen würde</translation>
    </message>
    <message>
        <source>&amp;Clipping Plane</source>
        <translation>&amp;Schnittebene</translation>
    </message>
    <message>
        <source>&amp;Measure</source>
        <translation>&amp;Messen</translation>
    </message>
    <message>
        <source>Walking: W A S D or arrows, drag to look around, Esc ends</source>
        <translation>Gehen: W A S D oder Pfeile, Ziehen zum Umsehen, Esc beendet</translation>
    </message>
    <message>
        <source>Take the &amp;Tour</source>
        <translation>Die &amp;Tour machen</translation>
    </message>
    <message>
        <source>&amp;Start Page</source>
        <translation>&amp;Startseite</translation>
    </message>
    <message>
        <source>Five steps through this window</source>
        <translation>In fünf Schritten durch dieses Fenster</translation>
    </message>
    <message>
        <source>Click anything</source>
        <translation>Klicke etwas an</translation>
    </message>
    <message>
        <source>Click something in the 3D view. Drag to turn, drag with the right button to move, turn the wheel to come nearer.</source>
        <translation>Klicke etwas in der 3D-Ansicht an. Ziehen dreht, Ziehen mit der rechten Taste verschiebt, das Mausrad geht näher heran.</translation>
    </message>
    <message>
        <source>See where it stands</source>
        <translation>Sieh, wo es steht</translation>
    </message>
    <message>
        <source>The tree shows the whole scene. Choose another node in it; Ctrl+F finds one by its name, type or value.</source>
        <translation>Der Baum zeigt die ganze Szene. Wähle einen anderen Knoten darin; Strg+F findet einen nach Name, Typ oder Wert.</translation>
    </message>
    <message>
        <source>Tune it</source>
        <translation>Verändere es</translation>
    </message>
    <message>
        <source>Here are the values of what is selected. Change one: drag a number, or type one; the picture follows.</source>
        <translation>Hier sind die Werte der Auswahl. Ändere einen: Ziehe an einer Zahl oder tippe eine; das Bild folgt.</translation>
    </message>
    <message>
        <source>Undo it</source>
        <translation>Mach es rückgängig</translation>
    </message>
    <message>
        <source>Ctrl+Z takes the change back, bit by bit. One gesture is one step.</source>
        <translation>Strg+Z nimmt die Änderung zurück, bis aufs letzte Bit. Eine Geste ist ein Schritt.</translation>
    </message>
    <message>
        <source>Find everything else</source>
        <translation>Finde alles Weitere</translation>
    </message>
    <message>
        <source>Ctrl+K finds every act, node, field and setting by its name, F1 explains what is selected. Save with Ctrl+S, or export for another program from the File menu.</source>
        <translation>Strg+K findet jede Aktion, jeden Knoten, jedes Feld und jede Einstellung nach dem Namen, F1 erklärt die Auswahl. Speichere mit Strg+S oder exportiere aus dem Dateimenü für ein anderes Programm.</translation>
    </message>
    <message>
        <source>“%1” is the root of the scene, and has to stay where it is.</source>
        <translation>„%1“ ist die Wurzel der Szene und muss bleiben, wo es ist.</translation>
    </message>
    <message>
        <source>Put %1 Above “%2”</source>
        <translation>%1 über „%2“ einsetzen</translation>
    </message>
    <message>
        <source>Put %1 Above %2 Nodes</source>
        <translation>%1 über %2 Knoten einsetzen</translation>
    </message>
    <message>
        <source>Nothing was put above, since “%1” takes no children; choose a type that does.</source>
        <translation>Es wurde nichts darüber eingesetzt, weil „%1“ keine Kinder aufnimmt; wählen Sie einen Typ, der welche aufnimmt.</translation>
    </message>
    <message>
        <source>“%1” cannot be duplicated: something in it is of a kind that cannot be copied.</source>
        <translation>„%1“ lässt sich nicht duplizieren: Etwas darin ist von einer Art, die sich nicht kopieren lässt.</translation>
    </message>
    <message>
        <source>“%1” is no group, and cannot be ungrouped.</source>
        <translation>„%1“ ist keine Gruppe und lässt sich nicht auflösen.</translation>
    </message>
    <message>
        <source>“%1” cannot be put below itself.</source>
        <translation>„%1“ lässt sich nicht unter sich selbst setzen.</translation>
    </message>
    <message>
        <source>“%1” stands in one place only, and is its own already.</source>
        <translation>„%1“ steht nur an einer Stelle und ist schon eigenständig.</translation>
    </message>
    <message>
        <source>“%1” cannot be made unique: something in it is of a kind that cannot be copied.</source>
        <translation>„%1“ lässt sich nicht eigenständig machen: Etwas darin ist von einer Art, die sich nicht kopieren lässt.</translation>
    </message>
    <message>
        <source>Nothing can be put into “%1”, which is no group.</source>
        <translation>In „%1“ lässt sich nichts setzen, das ist keine Gruppe.</translation>
    </message>
    <message>
        <source>A node cannot be called “%1”: names can have the letters of western European languages only.</source>
        <translation>Ein Knoten kann nicht „%1“ heißen: Namen können nur Buchstaben westeuropäischer Sprachen haben.</translation>
    </message>
    <message>
        <source>Rename “%1” to “%2”</source>
        <translation>„%1“ in „%2“ umbenennen</translation>
    </message>
    <message>
        <source>“%1” cannot be copied: something in it is of a kind that cannot be copied.</source>
        <translation>„%1“ lässt sich nicht kopieren: Etwas darin ist von einer Art, die sich nicht kopieren lässt.</translation>
    </message>
    <message>
        <source>“%1” is the first one in its group already.</source>
        <translation>„%1“ ist schon das erste in seiner Gruppe.</translation>
    </message>
    <message>
        <source>“%1” is the last one in its group already.</source>
        <translation>„%1“ ist schon das letzte in seiner Gruppe.</translation>
    </message>
    <message>
        <source>“%1” stands in the root of the scene, out of which nothing can be moved.</source>
        <translation>„%1“ steht in der Wurzel der Szene; daraus lässt sich nichts herausnehmen.</translation>
    </message>
    <message>
        <source>There is no group before “%1” that it could be moved into.</source>
        <translation>Vor „%1“ steht keine Gruppe, in die es sich verschieben ließe.</translation>
    </message>
    <message>
        <source>Nothing is hidden that could be hidden for good.</source>
        <translation>Nichts ist ausgeblendet, das sich dauerhaft ausblenden ließe.</translation>
    </message>
    <message>
        <source>Hide “%1” for Good</source>
        <translation>„%1“ dauerhaft ausblenden</translation>
    </message>
    <message>
        <source>Hide %1 Nodes for Good</source>
        <translation>%1 Knoten dauerhaft ausblenden</translation>
    </message>
</context>
</TS>
