<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Scopix</name>
    <message>
        <source>Pinned Panels</source>
        <translation>Angeheftete Panels</translation>
    </message>
    <message>
        <source>Panels that stay with their nodes, whatever is selected.</source>
        <translation>Panels, die bei ihren Knoten bleiben, was auch ausgewählt wird.</translation>
    </message>
    <message>
        <source>Shows a list as a wide table.</source>
        <translation>Zeigt eine Liste als breite Tabelle.</translation>
    </message>
    <message>
        <source>red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>normal x</source>
        <translation>Normale x</translation>
    </message>
    <message>
        <source>normal y</source>
        <translation>Normale y</translation>
    </message>
    <message>
        <source>normal z</source>
        <translation>Normale z</translation>
    </message>
    <message>
        <source>distance from the origin</source>
        <translation>Abstand vom Ursprung</translation>
    </message>
    <message>
        <source>There is not enough memory for this change; close other programs or change fewer rows.</source>
        <translation>Für diese Änderung reicht der Speicher nicht; schließe andere Programme oder ändere weniger Zeilen.</translation>
    </message>
    <message>
        <source>There is not enough memory to change so many rows; select fewer.</source>
        <translation>Für so viele Zeilen reicht der Speicher nicht; wähle weniger aus.</translation>
    </message>
    <message>
        <source>There is not enough memory for %1 more rows; add fewer.</source>
        <translation>Für %1 weitere Zeilen reicht der Speicher nicht; füge weniger hinzu.</translation>
    </message>
    <message>
        <source>The list was changed by somebody else meanwhile, so nothing was written; try again.</source>
        <translation>Die Liste wurde inzwischen von anderer Stelle geändert, darum wurde nichts geschrieben; versuche es noch einmal.</translation>
    </message>
    <message>
        <source>Changing %1 rows…</source>
        <translation>%1 Zeilen werden geändert …</translation>
    </message>
    <message>
        <source>There is not enough memory to remember so many rows for undo; delete fewer.</source>
        <translation>Der Speicher reicht nicht, um so viele Zeilen für Rückgängig aufzuheben; lösche weniger.</translation>
    </message>
    <message>
        <source>There is not enough memory to duplicate so many rows; select fewer.</source>
        <translation>Der Speicher reicht nicht, um so viele Zeilen zu duplizieren; wähle weniger aus.</translation>
    </message>
    <message>
        <source>There is not enough memory for %1 rows; close other programs.</source>
        <translation>Für %1 Zeilen reicht der Speicher nicht; schließe andere Programme.</translation>
    </message>
    <message>
        <source>Holds other nodes in order. State that a child sets is seen by the children after it, and by what follows the group.</source>
        <translation>Enthält andere Knoten der Reihe nach. Was ein Kind einstellt, gilt für die Kinder danach und für das, was der Gruppe folgt.</translation>
    </message>
    <message>
        <source>A group that isolates state: what its children set does not reach what follows the group.</source>
        <translation>Eine Gruppe, die abschirmt: Was ihre Kinder einstellen, gilt nicht für das, was der Gruppe folgt.</translation>
    </message>
    <message>
        <source>Shows one of its children, all, or none.</source>
        <translation>Zeigt eines ihrer Kinder, alle oder keines.</translation>
    </message>
    <message>
        <source>Shows one of its children by the distance of the eye: the first when nearer than the first distance, the second when nearer than the second, and so on; the last child beyond all distances.</source>
        <translation>Zeigt eines ihrer Kinder je nach Entfernung des Auges: das erste, wenn es näher als die erste Entfernung ist, das zweite, wenn näher als die zweite, und so weiter; jenseits aller Entfernungen das letzte.</translation>
    </message>
    <message>
        <source>Shows its children once for each matrix; the graphics hardware copies them. Lights and clip planes inside stand where the first copy does.</source>
        <translation>Zeigt ihre Kinder einmal für jede Matrix; die Grafikkarte vervielfacht sie. Lichter und Schnittebenen darin stehen, wo die erste Kopie steht.</translation>
    </message>
    <message>
        <source>Stands for a node of a type that this program does not know, as a file had it, so that writing the file again loses nothing. Its fields are those that the file has, each with its value as text; its children are shown as a separator's.</source>
        <translation>Steht für einen Knoten, dessen Typ dieses Programm nicht kennt, so wie er in einer Datei stand, damit beim Schreiben nichts verloren geht. Seine Felder sind die der Datei, jedes mit seinem Wert als Text; seine Kinder werden wie die eines Separators gezeigt.</translation>
    </message>
    <message>
        <source>Sees as an eye does: what is far is small.</source>
        <translation>Sieht wie ein Auge: Was fern ist, ist klein.</translation>
    </message>
    <message>
        <source>Sees everything in its size, however far it is.</source>
        <translation>Sieht alles in seiner Größe, wie fern es auch ist.</translation>
    </message>
    <message>
        <source>Light that comes from far away, everywhere from the same direction.</source>
        <translation>Licht, das von weit her kommt, überall aus derselben Richtung.</translation>
    </message>
    <message>
        <source>Light from a point in all directions.</source>
        <translation>Licht von einem Punkt in alle Richtungen.</translation>
    </message>
    <message>
        <source>Light from a point within a cone.</source>
        <translation>Licht von einem Punkt innerhalb eines Kegels.</translation>
    </message>
    <message>
        <source>Light that comes evenly from everywhere; takes the place of an earlier one.</source>
        <translation>Licht, das gleichmäßig von überall her kommt; tritt an die Stelle eines früheren.</translation>
    </message>
    <message>
        <source>The light of the surroundings, which physically based surfaces mirror and scatter: a ground, a horizon and a sky above it, the y axis pointing up. Takes the place of an earlier one and, for these surfaces, of the headlight. Colours are linear.</source>
        <translation>Das Licht der Umgebung, das physikalisch basierte Oberflächen spiegeln und streuen: ein Boden, ein Horizont und darüber ein Himmel; die y-Achse zeigt nach oben. Tritt an die Stelle eines früheren und für diese Oberflächen an die des Kameralichts. Farben sind linear.</translation>
    </message>
    <message>
        <source>Scales, then turns, then moves what follows it. An ignored field takes no part.</source>
        <translation>Skaliert, dreht und verschiebt in dieser Reihenfolge, was folgt. Ein ignoriertes Feld wirkt nicht mit.</translation>
    </message>
    <message>
        <source>Moves what follows it by a matrix.</source>
        <translation>Bewegt durch eine Matrix, was folgt.</translation>
    </message>
    <message>
        <source>Turns what follows it, faster or slower, as time passes: each view that shows the scene drives the time source (`SoTimeSource`).</source>
        <translation>Dreht mit der Zeit, was folgt, schneller oder langsamer: Jede Ansicht der Szene treibt die Zeitquelle (`SoTimeSource`) an.</translation>
    </message>
    <message>
        <source>A clip: its tracks give fields of other nodes the values of one time. While it is stopped these have their own. What it writes is no edit, and is not saved.</source>
        <translation>Ein Clip: Seine Spuren geben Feldern anderer Knoten die Werte eines Zeitpunkts. Solange er gestoppt ist, haben diese ihre eigenen. Was er schreibt, ist keine Bearbeitung und wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>Keys of one field of one node, for the animation that it is a child of. Fields of numbers, rotations, colours and lists of numbers can be animated.</source>
        <translation>Schlüssel für ein Feld eines Knotens, für die Animation, deren Kind sie ist. Animieren lassen sich Felder mit Zahlen, Drehungen, Farben und Listen von Zahlen.</translation>
    </message>
    <message>
        <source>Bends the points before it, and their normals, by the bones of a skeleton, for the vertex shapes after it. Bones are transforms that stand anywhere in the scene. Lists that do not fit together change nothing.</source>
        <translation>Biegt die Punkte davor und ihre Normalen nach den Knochen eines Skeletts, für die Punktkörper danach. Knochen sind Transformationen, die irgendwo in der Szene stehen. Listen, die nicht zusammenpassen, ändern nichts.</translation>
    </message>
    <message>
        <source>Moves the points before it, and their normals, towards other shapes, for the vertex shapes after it: adds what each target differs by, as much of it as its weight says. Lists that do not fit together change nothing.</source>
        <translation>Bewegt die Punkte davor und ihre Normalen auf andere Formen zu, für die Punktkörper danach: Fügt hinzu, worin sich jedes Ziel unterscheidet, so viel davon, wie sein Gewicht angibt. Listen, die nicht zusammenpassen, ändern nichts.</translation>
    </message>
    <message>
        <source>How the surface of what follows looks. An ignored field leaves what an earlier material said.</source>
        <translation>Wie die Oberfläche dessen aussieht, was folgt. Ein ignoriertes Feld lässt gelten, was ein früheres Material bestimmt hat.</translation>
    </message>
    <message>
        <source>A physically based surface for what follows, as glTF 2.0 defines it; takes the place of an earlier material of either kind. Colours are linear: half as bright is 0.5, shown as 0.735. A light of intensity 3.14 makes a white surface white. An ignored field has its default.</source>
        <translation>Eine physikalisch basierte Oberfläche für das, was folgt, wie glTF 2.0 sie festlegt; tritt an die Stelle eines früheren Materials beider Arten. Farben sind linear: Halb so hell ist 0.5, gezeigt als 0.735. Ein Licht der Stärke 3.14 macht eine weiße Fläche weiß. Ein ignoriertes Feld hat seinen Vorgabewert.</translation>
    </message>
    <message>
        <source>The picture of one property of the physically based surfaces that follow, which multiply it with their own values. Pictures of colours are decoded from sRGB, others are taken as they are. Texture2 is their base colour, too.</source>
        <translation>Das Bild einer Eigenschaft der physikalisch basierten Oberflächen, die folgen und es mit ihren eigenen Werten multiplizieren. Bilder von Farben werden aus sRGB umgerechnet, andere so genommen, wie sie sind. Auch Texture2 ist ihre Grundfarbe.</translation>
    </message>
    <message>
        <source>The picture on the surface of what follows. A file, where one is named and can be read, wins over the image.</source>
        <translation>Das Bild auf der Oberfläche dessen, was folgt. Eine Datei, die genannt und lesbar ist, geht dem eigenen Bild vor.</translation>
    </message>
    <message>
        <source>Moves the texture on what follows: scales, then turns, then moves its coordinates.</source>
        <translation>Bewegt die Textur auf dem, was folgt: Skaliert, dreht und verschiebt ihre Koordinaten in dieser Reihenfolge.</translation>
    </message>
    <message>
        <source>Whether what follows is drawn filled, as its edges, as its points, or not at all.</source>
        <translation>Ob das, was folgt, gefüllt, als Kanten, als Punkte oder gar nicht gezeichnet wird.</translation>
    </message>
    <message>
        <source>How finely what follows is drawn.</source>
        <translation>Wie fein das gezeichnet wird, was folgt.</translation>
    </message>
    <message>
        <source>Lets what follows fade into a colour with its distance from the eye.</source>
        <translation>Lässt das, was folgt, mit der Entfernung vom Auge in eine Farbe übergehen.</translation>
    </message>
    <message>
        <source>Cuts what follows it: what lies on the side the plane's normal points to stays.</source>
        <translation>Schneidet, was folgt: Was auf der Seite liegt, auf die die Normale der Ebene zeigt, bleibt.</translation>
    </message>
    <message>
        <source>The corners of the vertex shapes that follow.</source>
        <translation>Die Ecken der Punktkörper, die folgen.</translation>
    </message>
    <message>
        <source>The directions of light reflection at the corners of the vertex shapes that follow, one per point. Where they are missing or of another number than the points, a shape makes its own.</source>
        <translation>Die Richtungen, in denen die Ecken der folgenden Punktkörper Licht zurückwerfen, eine je Punkt. Wo sie fehlen oder nicht so viele wie die Punkte sind, bildet ein Körper eigene.</translation>
    </message>
    <message>
        <source>The places in the texture at the corners of the vertex shapes that follow, one per point: (0, 0) is the texture's lower left corner, (1, 1) the upper right.</source>
        <translation>Die Stellen der Textur an den Ecken der folgenden Punktkörper, eine je Punkt: (0, 0) ist die linke untere Ecke der Textur, (1, 1) die rechte obere.</translation>
    </message>
    <message>
        <source>Further places in textures at the corners of the vertex shapes that follow, one per point, for the MaterialTexture nodes that ask for them.</source>
        <translation>Weitere Stellen in Texturen an den Ecken der folgenden Punktkörper, eine je Punkt, für die MaterialTexture-Knoten, die danach verlangen.</translation>
    </message>
    <message>
        <source>A box around the origin.</source>
        <translation>Ein Quader um den Ursprung.</translation>
    </message>
    <message>
        <source>A ball around the origin.</source>
        <translation>Eine Kugel um den Ursprung.</translation>
    </message>
    <message>
        <source>A cone around the y axis, its tip up.</source>
        <translation>Ein Kegel um die y-Achse, die Spitze oben.</translation>
    </message>
    <message>
        <source>A cylinder around the y axis.</source>
        <translation>Ein Zylinder um die y-Achse.</translation>
    </message>
    <message>
        <source>Triangles, each of the next three points.</source>
        <translation>Dreiecke, jedes aus den nächsten drei Punkten.</translation>
    </message>
    <message>
        <source>Strips of triangles: each point after the second makes a triangle with the two before it. Each strip takes as many of the next points as its count says; without counts one strip takes all.</source>
        <translation>Streifen von Dreiecken: Jeder Punkt nach dem zweiten bildet mit den zwei davor ein Dreieck. Jeder Streifen nimmt so viele der nächsten Punkte, wie seine Anzahl angibt; ohne Anzahlen nimmt ein Streifen alle.</translation>
    </message>
    <message>
        <source>Triangles, each of three points named by their place in the list of points.</source>
        <translation>Dreiecke, jedes aus drei Punkten, die durch ihre Stelle in der Liste der Punkte genannt sind.</translation>
    </message>
    <message>
        <source>Strips of triangles, the points named by their places in the list.</source>
        <translation>Streifen von Dreiecken; die Punkte sind durch ihre Stellen in der Liste genannt.</translation>
    </message>
    <message>
        <source>Lines from point to point. Each joins as many of the next points as its count says; without counts one line joins all.</source>
        <translation>Linien von Punkt zu Punkt. Jede verbindet so viele der nächsten Punkte, wie ihre Anzahl angibt; ohne Anzahlen verbindet eine Linie alle.</translation>
    </message>
    <message>
        <source>Lines from point to point, the points named by their places in the list.</source>
        <translation>Linien von Punkt zu Punkt; die Punkte sind durch ihre Stellen in der Liste genannt.</translation>
    </message>
    <message>
        <source>Each of the points, drawn as a dot.</source>
        <translation>Jeder der Punkte, als Tupfen gezeichnet.</translation>
    </message>
    <message>
        <source>Some of the points, drawn as dots.</source>
        <translation>Einige der Punkte, als Tupfen gezeichnet.</translation>
    </message>
    <message>
        <source>Text that keeps its size on the screen and stands where the origin is. Lines run downwards. Latin letters, digits and signs; what the font does not have is shown as a box.</source>
        <translation>Text, der auf dem Bildschirm seine Größe behält und dort steht, wo der Ursprung ist. Zeilen folgen nach unten. Lateinische Buchstaben, Ziffern und Zeichen; was die Schrift nicht hat, erscheint als Kästchen.</translation>
    </message>
    <message>
        <source>A place in the scene where an application draws by itself, with OpenGL 3.3. Draws nothing until a callback is set.</source>
        <translation>Eine Stelle in der Szene, an der eine Anwendung selbst zeichnet, mit OpenGL 3.3. Zeichnet nichts, bis ein Callback gesetzt ist.</translation>
    </message>
    <message>
        <source>A comment: a text for people, without effect on the picture.</source>
        <translation>Ein Kommentar: ein Text für Menschen, ohne Wirkung auf das Bild.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>x from</source>
        <translation>x von</translation>
    </message>
    <message>
        <source>y from</source>
        <translation>y von</translation>
    </message>
    <message>
        <source>z from</source>
        <translation>z von</translation>
    </message>
    <message>
        <source>x to</source>
        <translation>x bis</translation>
    </message>
    <message>
        <source>y to</source>
        <translation>y bis</translation>
    </message>
    <message>
        <source>z to</source>
        <translation>z bis</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Kommagetrennte Werte (*.csv *.tsv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>has %1 columns and not %2</source>
        <translation>hat %1 Spalten und nicht %2</translation>
    </message>
    <message>
        <source>holds “%1”, which is no value of this list</source>
        <translation>enthält „%1“, das kein Wert dieser Liste ist</translation>
    </message>
    <message>
        <source>no picture</source>
        <translation>kein Bild</translation>
    </message>
    <message>
        <source>%1 × %2, %3 channels</source>
        <translation>%1 × %2, %3 Kanäle</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>1 value</source>
        <translation>1 Wert</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 Werte</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1, %2 bis %3</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>at least %1, at most %2</source>
        <translation>mindestens %1, höchstens %2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>radians, shown in degrees</source>
        <translation>Radiant, in Grad gezeigt</translation>
    </message>
    <message>
        <source>radians</source>
        <translation>Radiant</translation>
    </message>
    <message>
        <source>metres, where the scene has no other scale</source>
        <translation>Meter, sofern die Szene keinen anderen Maßstab hat</translation>
    </message>
    <message>
        <source>metres, shown in %1</source>
        <translation>Meter, als %1 gezeigt</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>Einheit: %1</translation>
    </message>
    <message>
        <source>Range: %1</source>
        <translation>Bereich: %1</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Vorgabe: %1</translation>
    </message>
    <message>
        <source>&amp;Find This Value</source>
        <translation>Diesen &amp;Wert suchen</translation>
    </message>
    <message>
        <source>Use as My Default for &amp;New Nodes</source>
        <translation>Als meine Voreinstellung für &amp;neue Knoten verwenden</translation>
    </message>
    <message>
        <source>For&amp;get My Default for New Nodes</source>
        <translation>Meine Voreinstellung für neue Knoten &amp;vergessen</translation>
    </message>
    <message>
        <source>&amp;Help on %1</source>
        <translation>&amp;Hilfe zu %1</translation>
    </message>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>This cell is “%1” now. Enter writes what you typed, Esc keeps “%1”.</source>
        <translation>Diese Zelle ist jetzt „%1“. Eingabe schreibt das Getippte, Esc behält „%1“.</translation>
    </message>
    <message>
        <source>%1, row %2, %3: %4</source>
        <translation>%1, Zeile %2, %3: %4</translation>
    </message>
    <message>
        <source>row %1, %2</source>
        <translation>Zeile %1, %2</translation>
    </message>
    <message>
        <source>Row %1 was removed while you typed in it.</source>
        <translation>Zeile %1 wurde entfernt, während du darin getippt hast.</translation>
    </message>
    <message>
        <source>HSV</source>
        <translation>HSV</translation>
    </message>
    <message>
        <source>&amp;HSV, sRGB</source>
        <translation>&amp;HSV, sRGB</translation>
    </message>
    <message>
        <source>Hue in degrees, saturation and value, of sRGB</source>
        <translation>Farbton in Grad, Sättigung und Helligkeit, in sRGB</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>hex</source>
        <translation>hex</translation>
    </message>
    <message>
        <source>He&amp;x, sRGB</source>
        <translation>He&amp;x, sRGB</translation>
    </message>
    <message>
        <source>Hexadecimal, sRGB, as in #1a6090</source>
        <translation>Hexadezimal, sRGB, wie in #1a6090</translation>
    </message>
    <message>
        <source>lin</source>
        <translation>lin</translation>
    </message>
    <message>
        <source>&amp;Linear RGB</source>
        <translation>&amp;Lineares RGB</translation>
    </message>
    <message>
        <source>Linear light, from 0 to 1; sRGB is stored</source>
        <translation>Lineares Licht, von 0 bis 1; gespeichert wird sRGB</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>&amp;RGB, sRGB</source>
        <translation>&amp;RGB, sRGB</translation>
    </message>
    <message>
        <source>sRGB, from 0 to 1, as stored</source>
        <translation>sRGB, von 0 bis 1, wie gespeichert</translation>
    </message>
    <message>
        <source>colour picker</source>
        <translation>Farbwähler</translation>
    </message>
    <message>
        <source>form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>as hexadecimal text</source>
        <translation>als hexadezimaler Text</translation>
    </message>
    <message>
        <source>%1, sRGB. A click opens the colour picker.</source>
        <translation>%1, sRGB. Ein Klick öffnet den Farbwähler.</translation>
    </message>
    <message>
        <source>%1, sRGB</source>
        <translation>%1, sRGB</translation>
    </message>
    <message>
        <source>“%1” is no colour: write one as in #1a6090.</source>
        <translation>„%1“ ist keine Farbe: Schreibe eine wie #1a6090.</translation>
    </message>
    <message>
        <source>Connect %1</source>
        <translation>%1 verbinden</translation>
    </message>
    <message>
        <source>Node, field or type</source>
        <translation>Knoten, Feld oder Typ</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Fields that it can follow</source>
        <translation>Felder, denen es folgen kann</translation>
    </message>
    <message>
        <source>%1 (no name)</source>
        <translation>%1 (ohne Namen)</translation>
    </message>
    <message>
        <source>&amp;Pin</source>
        <translation>&amp;Anheften</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Keeps this panel in a dock of its own, whatever is selected.</source>
        <translation>Behält dieses Panel in einem eigenen Dock, was auch ausgewählt wird.</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Shows the values from when the scene was opened or last saved. Nothing can be edited meanwhile. In the view and in the tree, B does this.</source>
        <translation>Zeigt die Werte vom Öffnen oder letzten Speichern der Szene. Solange lässt sich nichts ändern. In der Ansicht und im Baum tut B dasselbe.</translation>
    </message>
    <message>
        <source>Nothing here has been edited since the scene was opened or saved.</source>
        <translation>Hier wurde seit dem Öffnen oder Speichern der Szene nichts geändert.</translation>
    </message>
    <message>
        <source>Filter the fields by name, meaning, type or value</source>
        <translation>Die Felder nach Name, Bedeutung, Typ oder Wert filtern</translation>
    </message>
    <message>
        <source>Shows the fields whose name, meaning, type or value has these words.</source>
        <translation>Zeigt die Felder, deren Name, Bedeutung, Typ oder Wert diese Wörter enthält.</translation>
    </message>
    <message>
        <source>Only changed fields</source>
        <translation>Nur geänderte Felder</translation>
    </message>
    <message>
        <source>Shows the fields only that do not have their default value.</source>
        <translation>Zeigt nur die Felder, die nicht ihre Vorgabe haben.</translation>
    </message>
    <message>
        <source>More than %L1 nodes are selected; select fewer to edit what they share.</source>
        <translation>Mehr als %L1 Knoten sind ausgewählt; wähle weniger, um Gemeinsames zu ändern.</translation>
    </message>
    <message>
        <source>An edit changes all of them. Where they differ, it says “mixed”.</source>
        <translation>Eine Änderung gilt für alle. Wo sie sich unterscheiden, steht „gemischt“.</translation>
    </message>
    <message>
        <source>%L1 nodes: %2</source>
        <translation>%L1 Knoten: %2</translation>
    </message>
    <message>
        <source>Select %1, which holds it</source>
        <translation>%1 auswählen, das ihn enthält</translation>
    </message>
    <message>
        <source>Select the %1 that counts here</source>
        <translation>Das %1 auswählen, das hier gilt</translation>
    </message>
    <message>
        <source>%1 cells selected</source>
        <translation>%1 Zellen ausgewählt</translation>
    </message>
    <message>
        <source>%1 to %2, mean %3</source>
        <translation>%1 bis %2, Mittel %3</translation>
    </message>
    <message>
        <source>no numbers</source>
        <translation>keine Zahlen</translation>
    </message>
    <message>
        <source>%1, %2 NaN</source>
        <translation>%1, %2 NaN (keine Zahl)</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>choose a file</source>
        <translation>Datei auswählen</translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation>Eine Datei wählen</translation>
    </message>
    <message>
        <source>no node</source>
        <translation>kein Knoten</translation>
    </message>
    <message>
        <source>Click to select it.</source>
        <translation>Klicken wählt ihn aus.</translation>
    </message>
    <message>
        <source>Click to open it in the Field Editor.</source>
        <translation>Klicken öffnet es im Field Editor.</translation>
    </message>
    <message>
        <source>What the line is for</source>
        <translation>Wofür die Zeile da ist</translation>
    </message>
    <message>
        <source>Calculate</source>
        <translation>Rechnen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Go to</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
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
        <source>Paste as New &amp;Rows</source>
        <translation>Als neue &amp;Zeilen einfügen</translation>
    </message>
    <message>
        <source>Clear Cells or Delete Rows</source>
        <translation>Zellen leeren oder Zeilen löschen</translation>
    </message>
    <message>
        <source>C&amp;lear Cells</source>
        <translation>Zellen &amp;leeren</translation>
    </message>
    <message>
        <source>Edit Cell</source>
        <translation>Zelle bearbeiten</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>&amp;Wählen …</translation>
    </message>
    <message>
        <source>Go to the Node</source>
        <translation>Zum Knoten gehen</translation>
    </message>
    <message>
        <source>Calc&amp;ulate…</source>
        <translation>&amp;Rechnen …</translation>
    </message>
    <message>
        <source>Fill &amp;Down</source>
        <translation>Nach &amp;unten ausfüllen</translation>
    </message>
    <message>
        <source>Fill &amp;Series</source>
        <translation>&amp;Reihe ausfüllen</translation>
    </message>
    <message>
        <source>&amp;Insert Row Before</source>
        <translation>Zeile &amp;davor einfügen</translation>
    </message>
    <message>
        <source>&amp;Add Row Behind</source>
        <translation>Zeile da&amp;hinter einfügen</translation>
    </message>
    <message>
        <source>Du&amp;plicate Rows</source>
        <translation>Zeilen du&amp;plizieren</translation>
    </message>
    <message>
        <source>Delet&amp;e Rows</source>
        <translation>Zeilen lösc&amp;hen</translation>
    </message>
    <message>
        <source>Move Rows &amp;Up</source>
        <translation>Zeilen nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Rows Do&amp;wn</source>
        <translation>Zeilen nach un&amp;ten</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alles auswähle&amp;n</translation>
    </message>
    <message>
        <source>Select Whole Rows</source>
        <translation>Ganze Zeilen auswählen</translation>
    </message>
    <message>
        <source>Select Whole Columns</source>
        <translation>Ganze Spalten auswählen</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen …</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>&amp;Go to Row…</source>
        <translation>&amp;Gehe zu Zeile …</translation>
    </message>
    <message>
        <source>Filter…</source>
        <translation>Filtern …</translation>
    </message>
    <message>
        <source>Show Duplicates</source>
        <translation>Doppelte zeigen</translation>
    </message>
    <message>
        <source>Sort Rows Upwards</source>
        <translation>Zeilen aufsteigend sortieren</translation>
    </message>
    <message>
        <source>Sort Rows Downwards</source>
        <translation>Zeilen absteigend sortieren</translation>
    </message>
    <message>
        <source>Show All in the List’s Order</source>
        <translation>Alles in der Reihenfolge der Liste zeigen</translation>
    </message>
    <message>
        <source>Sort Values Upwards</source>
        <translation>Werte aufsteigend sortieren</translation>
    </message>
    <message>
        <source>Sort Values Downwards</source>
        <translation>Werte absteigend sortieren</translation>
    </message>
    <message>
        <source>Read CSV…</source>
        <translation>CSV lesen …</translation>
    </message>
    <message>
        <source>Write CSV…</source>
        <translation>CSV schreiben …</translation>
    </message>
    <message>
        <source>Reset to De&amp;fault</source>
        <translation>Auf &amp;Vorgabe zurücksetzen</translation>
    </message>
    <message>
        <source>I&amp;gnore This List</source>
        <translation>Diese Liste &amp;ignorieren</translation>
    </message>
    <message>
        <source>Open &amp;Wide</source>
        <translation>&amp;Breit öffnen</translation>
    </message>
    <message>
        <source>Fit Column Widths</source>
        <translation>Spaltenbreiten anpassen</translation>
    </message>
    <message>
        <source>ignored</source>
        <translation>ignoriert</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>%1 gezeigt</translation>
    </message>
    <message>
        <source>x*2, x+row*0.1, clamp(x,0,1)</source>
        <translation>x*2, x+row*0.1, clamp(x,0,1)</translation>
    </message>
    <message>
        <source>x &gt; 3, nan, duplicates</source>
        <translation>x &gt; 3, nan, duplicates</translation>
    </message>
    <message>
        <source>a number or text</source>
        <translation>eine Zahl oder ein Text</translation>
    </message>
    <message>
        <source>a row number</source>
        <translation>eine Zeilennummer</translation>
    </message>
    <message>
        <source>a text for all selected cells</source>
        <translation>ein Text für alle ausgewählten Zellen</translation>
    </message>
    <message>
        <source>a part of the text, duplicates</source>
        <translation>ein Teil des Textes, duplicates</translation>
    </message>
    <message>
        <source>A formula for every selected cell: x is the cell, row its row, n the number of rows, and c1, c2, … are the cells of its row. Enter writes.</source>
        <translation>Eine Formel für jede ausgewählte Zelle: x ist die Zelle, row ihre Zeile, n die Zahl der Zeilen, und c1, c2, … sind die Zellen ihrer Zeile. Eingabe schreibt.</translation>
    </message>
    <message>
        <source>Shows only the rows for which this holds: the columns by their headings, row, n; nan, inf or duplicates; nothing shows all rows. Enter applies.</source>
        <translation>Zeigt nur die Zeilen, für die das gilt: die Spalten mit ihren Überschriften, row, n; nan, inf oder duplicates; nichts zeigt alle Zeilen. Eingabe wendet an.</translation>
    </message>
    <message>
        <source>Goes to the next cell that holds this. Enter goes on.</source>
        <translation>Geht zur nächsten Zelle, die das enthält. Eingabe geht weiter.</translation>
    </message>
    <message>
        <source>Goes to this row.</source>
        <translation>Geht zu dieser Zeile.</translation>
    </message>
    <message>
        <source>Written to every selected cell by Enter.</source>
        <translation>Eingabe schreibt es in jede ausgewählte Zelle.</translation>
    </message>
    <message>
        <source>Shows only the rows that hold this text; nothing shows all rows. Enter applies.</source>
        <translation>Zeigt nur die Zeilen, die diesen Text enthalten; nichts zeigt alle Zeilen. Eingabe wendet an.</translation>
    </message>
    <message>
        <source>Bits that have no name; they stay as they are.</source>
        <translation>Bits ohne Namen; sie bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>move, turn, scale</source>
        <translation>verschieben, drehen, skalieren</translation>
    </message>
    <message>
        <source>row %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>move</source>
        <translation>verschieben</translation>
    </message>
    <message>
        <source>turn</source>
        <translation>drehen</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>skalieren</translation>
    </message>
    <message>
        <source>sheared</source>
        <translation>geschert</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>flach</translation>
    </message>
    <message>
        <source>perspective</source>
        <translation>perspektivisch</translation>
    </message>
    <message>
        <source>It shears: its axes are not at right angles</source>
        <translation>Sie schert: Ihre Achsen stehen nicht im rechten Winkel</translation>
    </message>
    <message>
        <source>It squeezes space flat, or has numbers that are not finite</source>
        <translation>Sie drückt den Raum flach oder hat Zahlen, die nicht endlich sind</translation>
    </message>
    <message>
        <source>Its last column is not 0 0 0 1</source>
        <translation>Ihre letzte Spalte ist nicht 0 0 0 1</translation>
    </message>
    <message>
        <source>%1, so it cannot be shown as moving, turning and scaling.</source>
        <translation>%1, darum lässt sie sich nicht als Verschieben, Drehen und Skalieren zeigen.</translation>
    </message>
    <message>
        <source>Sho&amp;w Only Changed</source>
        <translation>Nur &amp;Geändertes zeigen</translation>
    </message>
    <message>
        <source>&amp;Copy Values</source>
        <translation>Werte &amp;kopieren</translation>
    </message>
    <message>
        <source>Paste &amp;Values</source>
        <translation>Werte &amp;einfügen</translation>
    </message>
    <message>
        <source>Cop&amp;y Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Copy as C+&amp;+</source>
        <translation>Als &amp;C++ kopieren</translation>
    </message>
    <message>
        <source>&amp;Reset All to Defaults</source>
        <translation>Alles auf Vo&amp;rgaben zurücksetzen</translation>
    </message>
    <message>
        <source>Use as My Defaults for &amp;New Nodes</source>
        <translation>Als meine Voreinstellungen für &amp;neue Knoten verwenden</translation>
    </message>
    <message>
        <source>&amp;Find All of Type %1</source>
        <translation>Alle vom Typ %1 &amp;suchen</translation>
    </message>
    <message>
        <source>“%1” cannot be pasted: it has no values for the fields of %2.</source>
        <translation>„%1“ lässt sich nicht einfügen: Es hat keine Werte für die Felder von %2.</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
    <message>
        <source>The result is not a number that this field can hold.</source>
        <translation>Das Ergebnis ist keine Zahl, die dieses Feld fassen kann.</translation>
    </message>
    <message>
        <source>metres</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>centimetres</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>millimetres</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>feet</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>&amp;Filter the Fields</source>
        <translation>Die &amp;Felder filtern</translation>
    </message>
    <message>
        <source>An&amp;gles in Degrees</source>
        <translation>&amp;Winkel in Grad</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>Lengths in</source>
        <translation>Längen in</translation>
    </message>
    <message>
        <source>How the panel shows lengths. Any unit can be typed, as in “3 cm” or “2 in”.</source>
        <translation>Wie das Panel Längen zeigt. Tippen lässt sich jede Einheit, wie in „3 cm“ oder „2 in“.</translation>
    </message>
    <message>
        <source>Digits of a number</source>
        <translation>Stellen einer Zahl</translation>
    </message>
    <message>
        <source>How many the panel shows. What a field holds keeps all of them.</source>
        <translation>Wie viele das Panel zeigt. Im Feld bleiben alle erhalten.</translation>
    </message>
    <message>
        <source>%L1 nodes</source>
        <translation>%L1 Knoten</translation>
    </message>
    <message>
        <source>%1 (pinned)</source>
        <translation>%1 (angeheftet)</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Marks the rows that differ from those of the selected node, or of another pinned panel that compares.</source>
        <translation>Markiert die Zeilen, die sich von denen des ausgewählten Knotens oder eines anderen angehefteten Panels unterscheiden, das vergleicht.</translation>
    </message>
    <message>
        <source>with %1</source>
        <translation>mit %1</translation>
    </message>
    <message>
        <source>Select one other node to compare with.</source>
        <translation>Wähle einen anderen Knoten zum Vergleichen aus.</translation>
    </message>
    <message>
        <source>“%1” was removed from the scene and no longer exists; close this panel.</source>
        <translation>„%1“ wurde aus der Szene entfernt und existiert nicht mehr; schließe dieses Panel.</translation>
    </message>
    <message>
        <source>axis, angle</source>
        <translation>Achse, Winkel</translation>
    </message>
    <message>
        <source>Euler</source>
        <translation>Euler</translation>
    </message>
    <message>
        <source>quaternion</source>
        <translation>Quaternion</translation>
    </message>
    <message>
        <source>angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>State of %1</source>
        <translation>Zustand von %1</translation>
    </message>
    <message>
        <source>Changed elsewhere meanwhile: take that value, or keep yours.</source>
        <translation>Inzwischen anderswo geändert: nimm diesen Wert oder behalte deinen.</translation>
    </message>
    <message>
        <source>Follows %1.</source>
        <translation>Folgt %1.</translation>
    </message>
    <message>
        <source>Ignored: takes no part.</source>
        <translation>Ignoriert: nimmt nicht teil.</translation>
    </message>
    <message>
        <source>Animated: %1 at rest, which is what is saved.</source>
        <translation>Animiert: in Ruhe %1; das wird gespeichert.</translation>
    </message>
    <message>
        <source>Changes by itself.</source>
        <translation>Ändert sich von selbst.</translation>
    </message>
    <message>
        <source>Changed: not the default.</source>
        <translation>Geändert: nicht die Vorgabe.</translation>
    </message>
    <message>
        <source>The default.</source>
        <translation>Die Vorgabe.</translation>
    </message>
    <message>
        <source>Take the compared value of %1</source>
        <translation>Den verglichenen Wert von %1 übernehmen</translation>
    </message>
    <message>
        <source>Differs: takes %1, the value of the node that it is compared with.</source>
        <translation>Verschieden: übernimmt %1, den Wert des verglichenen Knotens.</translation>
    </message>
    <message>
        <source>&amp;Take the New Value</source>
        <translation>Den neuen Wert &amp;nehmen</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>Meinen &amp;behalten</translation>
    </message>
    <message>
        <source>&amp;Reset to Default</source>
        <translation>Auf Vo&amp;rgabe zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorieren</translation>
    </message>
    <message>
        <source>C&amp;onnect to a Field…</source>
        <translation>Mit einem Feld &amp;verbinden …</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>Verbindung &amp;trennen</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>Wert &amp;kopieren</translation>
    </message>
    <message>
        <source>Paste &amp;Value</source>
        <translation>Wert &amp;einfügen</translation>
    </message>
    <message>
        <source>Copy as &amp;Scene Text</source>
        <translation>Als &amp;Szenentext kopieren</translation>
    </message>
    <message>
        <source>“%1” cannot be pasted: it is no value for %2.</source>
        <translation>„%1“ lässt sich nicht einfügen: Das ist kein Wert für %2.</translation>
    </message>
    <message>
        <source>These nodes share no field.</source>
        <translation>Diese Knoten haben kein gemeinsames Feld.</translation>
    </message>
    <message>
        <source>This node has no fields.</source>
        <translation>Dieser Knoten hat keine Felder.</translation>
    </message>
    <message>
        <source>No field passes the filter.</source>
        <translation>Kein Feld passt zum Filter.</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>So many cells do not fit into the clipboard; write them to a file with “Write CSV…”.</source>
        <translation>So viele Zellen passen nicht in die Zwischenablage; schreibe sie mit „CSV schreiben …“ in eine Datei.</translation>
    </message>
    <message>
        <source>Copying %1 rows…</source>
        <translation>%1 Zeilen werden kopiert …</translation>
    </message>
    <message>
        <source>Reading the clipboard…</source>
        <translation>Die Zwischenablage wird gelesen…</translation>
    </message>
    <message>
        <source>Nothing was pasted, since the clipboard holds no text; copy cells or text first.</source>
        <translation>Nichts wurde eingefügt, da die Zwischenablage keinen Text enthält; kopiere zuerst Zellen oder Text.</translation>
    </message>
    <message>
        <source>The block was not pasted, since it has %1 columns and only %2 are left from there on; select a column further left.</source>
        <translation>Der Block wurde nicht eingefügt, da er %1 Spalten hat und von dort an nur %2 da sind; wähle eine Spalte weiter links.</translation>
    </message>
    <message>
        <source>The block was not pasted, since it is longer than the rows that are shown; show all rows in the list's order first.</source>
        <translation>Der Block wurde nicht eingefügt, da er länger ist als die gezeigten Zeilen; zeige zuerst alle Zeilen in der Reihenfolge der Liste.</translation>
    </message>
    <message>
        <source>The rows were not inserted, since only whole rows of %1 columns can be, into a list in its own order; paste them over cells instead.</source>
        <translation>Die Zeilen wurden nicht eingefügt, da das nur mit ganzen Zeilen von %1 Spalten geht, und nur in eine Liste in ihrer eigenen Reihenfolge; füge sie stattdessen über Zellen ein.</translation>
    </message>
    <message>
        <source>Nothing was pasted, since “%1” in row %2, column %3 of the copied block is no value that this list can hold; correct it where it was copied.</source>
        <translation>Nichts wurde eingefügt, da „%1“ in Zeile %2, Spalte %3 des kopierten Blocks kein Wert ist, den diese Liste fassen kann; berichtige ihn dort, wo er kopiert wurde.</translation>
    </message>
    <message>
        <source>“%1” was not written to row %2, %3, since it is no value that a list of type %4 can hold; type another or press Esc.</source>
        <translation>„%1“ wurde nicht in Zeile %2, %3 geschrieben, da es kein Wert ist, den eine Liste vom Typ %4 fassen kann; tippe einen anderen oder drücke Esc.</translation>
    </message>
    <message>
        <source>A series needs at least two selected rows of numbers; select them and try again.</source>
        <translation>Eine Reihe braucht mindestens zwei ausgewählte Zeilen mit Zahlen; wähle sie aus und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>Colour of the Selected Rows</source>
        <translation>Farbe der ausgewählten Zeilen</translation>
    </message>
    <message>
        <source>This list has no default value, since it belongs to no node that can be made anew.</source>
        <translation>Diese Liste hat keine Vorgabe, da sie zu keinem Knoten gehört, der sich neu anlegen ließe.</translation>
    </message>
    <message>
        <source>Rows cannot be added or moved while they are sorted or filtered; show all rows in the list's order first.</source>
        <translation>Zeilen lassen sich nicht hinzufügen oder verschieben, solange sie sortiert oder gefiltert sind; zeige zuerst alle Zeilen in der Reihenfolge der Liste.</translation>
    </message>
    <message>
        <source>Write CSV</source>
        <translation>CSV schreiben</translation>
    </message>
    <message>
        <source>Read CSV</source>
        <translation>CSV lesen</translation>
    </message>
    <message>
        <source>“%1” could not be written: %2; choose another file.</source>
        <translation>„%1“ ließ sich nicht schreiben: %2; wähle eine andere Datei.</translation>
    </message>
    <message>
        <source>its name was expected to end in .%1</source>
        <translation>erwartet wurde ein Name, der auf .%1 endet</translation>
    </message>
    <message>
        <source>“%1” was not written, since the list was changed meanwhile; try again.</source>
        <translation>„%1“ wurde nicht geschrieben, da sich die Liste inzwischen geändert hat; versuche es noch einmal.</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>„%1“ wird geschrieben …</translation>
    </message>
    <message>
        <source>“%1” could not be read: it is no regular file; choose another one.</source>
        <translation>„%1“ ließ sich nicht lesen: Das ist keine gewöhnliche Datei; wähle eine andere.</translation>
    </message>
    <message>
        <source>“%1” could not be read: %2; choose a file that you may read.</source>
        <translation>„%1“ ließ sich nicht lesen: %2; wähle eine Datei, die du lesen darfst.</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>„%1“ wird gelesen …</translation>
    </message>
    <message>
        <source>“%1” was not read, since line %2 %3; correct the file and try again.</source>
        <translation>„%1“ wurde nicht gelesen, denn Zeile %2 %3; berichtige die Datei und versuche es noch einmal.</translation>
    </message>
    <message>
        <source>A list as a table</source>
        <translation>Eine Liste als Tabelle</translation>
    </message>
    <message>
        <source>%1, a list of %2 values, type %3</source>
        <translation>%1, eine Liste von %2 Werten, Typ %3</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Sorting the rows…</source>
        <translation>Die Zeilen werden sortiert …</translation>
    </message>
    <message>
        <source>Sorting the values…</source>
        <translation>Die Werte werden sortiert …</translation>
    </message>
    <message>
        <source>Filtering the rows…</source>
        <translation>Die Zeilen werden gefiltert …</translation>
    </message>
    <message>
        <source>Searching for duplicates…</source>
        <translation>Doppelte werden gesucht …</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Suche läuft …</translation>
    </message>
    <message>
        <source>“%1” is in no cell that is shown.</source>
        <translation>„%1“ steht in keiner gezeigten Zelle.</translation>
    </message>
    <message>
        <source>“%1” is no row that is shown; type a number from 0 to %2.</source>
        <translation>„%1“ ist keine gezeigte Zeile; tippe eine Zahl von 0 bis %2.</translation>
    </message>
    <message>
        <source>Several lines: click the name and edit them in the Field Editor.</source>
        <translation>Mehrere Zeilen: Klicke auf den Namen und bearbeite sie im Field Editor.</translation>
    </message>
    <message>
        <source>“%1” is no value for %2.</source>
        <translation>„%1“ ist kein Wert für %2.</translation>
    </message>
    <message>
        <source>Choose “Open Wide” in the menu of a list’s table to see the list here.</source>
        <translation>Wähle „Breit öffnen“ im Menü der Tabelle einer Liste, um sie hier zu sehen.</translation>
    </message>
</context>
</TS>
