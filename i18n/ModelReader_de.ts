<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Scopix</name>
    <message>
        <source>The normal map of 1 material is left out.</source>
        <translation>Das Normalenbild von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The normal maps of %1 materials are left out.</source>
        <translation>Die Normalenbilder von %1 Materialien fehlen.</translation>
    </message>
    <message>
        <source>The emissive map of 1 material is left out.</source>
        <translation>Das Leuchtbild von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The emissive maps of %1 materials are left out.</source>
        <translation>Die Leuchtbilder von %1 Materialien fehlen.</translation>
    </message>
    <message>
        <source>The map of metal and roughness of 1 material is left out.</source>
        <translation>Das Bild für Metall und Rauheit von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The maps of metal and roughness of %1 materials are left out.</source>
        <translation>Die Bilder für Metall und Rauheit von %1 Materialien fehlen.</translation>
    </message>
    <message>
        <source>The occlusion map of 1 material is left out.</source>
        <translation>Das Verdeckungsbild von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The occlusion maps of %1 materials are left out.</source>
        <translation>Die Verdeckungsbilder von %1 Materialien fehlen.</translation>
    </message>
    <message>
        <source>The bump map of 1 material is left out.</source>
        <translation>Das Höhenbild von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The bump maps of %1 materials are left out.</source>
        <translation>Die Höhenbilder von %1 Materialien fehlen.</translation>
    </message>
    <message>
        <source>The specular map of 1 material is left out.</source>
        <translation>Das Glanzbild von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The specular maps of %1 materials are left out.</source>
        <translation>Die Glanzbilder von %1 Materialien fehlen.</translation>
    </message>
    <message>
        <source>The opacity map of 1 material is left out.</source>
        <translation>Das Deckkraftbild von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The opacity maps of %1 materials are left out.</source>
        <translation>Die Deckkraftbilder von %1 Materialien fehlen.</translation>
    </message>
    <message>
        <source>The reflection map of 1 material is left out.</source>
        <translation>Das Spiegelungsbild von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The reflection maps of %1 materials are left out.</source>
        <translation>Die Spiegelungsbilder von %1 Materialien fehlen.</translation>
    </message>
    <message>
        <source>1 list of texture coordinates is left out, which no picture uses.</source>
        <translation>1 Liste von Texturkoordinaten fehlt, die kein Bild benutzt.</translation>
    </message>
    <message>
        <source>%1 lists of texture coordinates are left out, which no picture uses.</source>
        <translation>%1 Listen von Texturkoordinaten fehlen, die kein Bild benutzt.</translation>
    </message>
    <message>
        <source>The further colours of the points of 1 mesh are left out.</source>
        <translation>Die weiteren Farben der Punkte von 1 Netz fehlen.</translation>
    </message>
    <message>
        <source>The further colours of the points of %1 meshes are left out.</source>
        <translation>Die weiteren Farben der Punkte von %1 Netzen fehlen.</translation>
    </message>
    <message>
        <source>How transparent the points of 1 mesh are is left out.</source>
        <translation>Wie durchsichtig die Punkte von 1 Netz sind, fehlt.</translation>
    </message>
    <message>
        <source>How transparent the points of %1 meshes are is left out.</source>
        <translation>Wie durchsichtig die Punkte von %1 Netzen sind, fehlt.</translation>
    </message>
    <message>
        <source>1 light with an area shines from its middle.</source>
        <translation>1 flächiges Licht leuchtet aus seiner Mitte.</translation>
    </message>
    <message>
        <source>%1 lights with an area shine from their middles.</source>
        <translation>%1 flächige Lichter leuchten aus ihrer Mitte.</translation>
    </message>
    <message>
        <source>1 light is left out, whose kind is not known here.</source>
        <translation>1 Licht fehlt, dessen Art hier nicht bekannt ist.</translation>
    </message>
    <message>
        <source>%1 lights are left out, whose kind is not known here.</source>
        <translation>%1 Lichter fehlen, deren Art hier nicht bekannt ist.</translation>
    </message>
    <message>
        <source>1 track of an animation moves what there is no node for, and is left out.</source>
        <translation>1 Spur einer Animation bewegt etwas, wofür es keinen Knoten gibt, und fehlt.</translation>
    </message>
    <message>
        <source>%1 tracks of animations move what there are no nodes for, and are left out.</source>
        <translation>%1 Spuren von Animationen bewegen etwas, wofür es keine Knoten gibt, und fehlen.</translation>
    </message>
    <message>
        <source>The movement of 1 light is left out.</source>
        <translation>Die Bewegung von 1 Licht fehlt.</translation>
    </message>
    <message>
        <source>The movements of %1 lights are left out.</source>
        <translation>Die Bewegungen von %1 Lichtern fehlen.</translation>
    </message>
    <message>
        <source>1 camera moves, and what is seen through it stays.</source>
        <translation>1 Kamera bewegt sich, doch was man durch sie sieht, bleibt stehen.</translation>
    </message>
    <message>
        <source>%1 cameras move, and what is seen through them stays.</source>
        <translation>%1 Kameras bewegen sich, doch was man durch sie sieht, bleibt stehen.</translation>
    </message>
    <message>
        <source>1 picture is left out, whose material has two other texture coordinates already.</source>
        <translation>1 Bild fehlt, dessen Material schon zwei andere Texturkoordinaten hat.</translation>
    </message>
    <message>
        <source>%1 pictures are left out, whose materials have two other texture coordinates already.</source>
        <translation>%1 Bilder fehlen, deren Materialien schon zwei andere Texturkoordinaten haben.</translation>
    </message>
    <message>
        <source>1 file of materials is missing, so that default ones are used: %1.</source>
        <translation>1 Materialdatei ist nicht da, stattdessen gelten vorgegebene Materialien: %1.</translation>
    </message>
    <message>
        <source>%1 files of materials are missing, so that default ones are used: %2.</source>
        <translation>%1 Materialdateien sind nicht da, stattdessen gelten vorgegebene Materialien: %2.</translation>
    </message>
    <message>
        <source>1 picture is missing or cannot be read, and is left out: %1.</source>
        <translation>1 Bild ist nicht da oder nicht lesbar und fehlt: %1.</translation>
    </message>
    <message>
        <source>%1 pictures are missing or cannot be read, and are left out: %2.</source>
        <translation>%1 Bilder sind nicht da oder nicht lesbar und fehlen: %2.</translation>
    </message>
    <message>
        <source>1 material, of which nothing would be seen, is shown opaque.</source>
        <translation>1 Material, von dem nichts zu sehen wäre, wird deckend gezeigt.</translation>
    </message>
    <message>
        <source>%1 materials, of which nothing would be seen, are shown opaque.</source>
        <translation>%1 Materialien, von denen nichts zu sehen wäre, werden deckend gezeigt.</translation>
    </message>
    <message>
        <source>1 material is to be shown without light, and is lit.</source>
        <translation>1 Material soll ohne Licht gezeigt werden und wird beleuchtet.</translation>
    </message>
    <message>
        <source>%1 materials are to be shown without light, and are lit.</source>
        <translation>%1 Materialien sollen ohne Licht gezeigt werden und werden beleuchtet.</translation>
    </message>
    <message>
        <source>1 material is to be drawn as lines, and is drawn as a surface.</source>
        <translation>1 Material soll als Linien gezeichnet werden und wird als Fläche gezeichnet.</translation>
    </message>
    <message>
        <source>%1 materials are to be drawn as lines, and are drawn as surfaces.</source>
        <translation>%1 Materialien sollen als Linien gezeichnet werden und werden als Flächen gezeichnet.</translation>
    </message>
    <message>
        <source>The blending of 1 material, which adds light, is left out.</source>
        <translation>Die Mischung von 1 Material, die Licht hinzufügt, fehlt.</translation>
    </message>
    <message>
        <source>The blending of %1 materials, which adds light, is left out.</source>
        <translation>Die Mischung von %1 Materialien, die Licht hinzufügt, fehlt.</translation>
    </message>
    <message>
        <source>The refraction of 1 material is left out.</source>
        <translation>Die Lichtbrechung von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The refraction of %1 materials is left out.</source>
        <translation>Die Lichtbrechung von %1 Materialien fehlt.</translation>
    </message>
    <message>
        <source>The reflectivity of 1 material is left out.</source>
        <translation>Die Spiegelung von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The reflectivity of %1 materials is left out.</source>
        <translation>Die Spiegelung von %1 Materialien fehlt.</translation>
    </message>
    <message>
        <source>The colour of what shines through 1 material is left out.</source>
        <translation>Die Farbe dessen, was durch 1 Material scheint, fehlt.</translation>
    </message>
    <message>
        <source>The colour of what shines through %1 materials is left out.</source>
        <translation>Die Farbe dessen, was durch %1 Materialien scheint, fehlt.</translation>
    </message>
    <message>
        <source>How strong the highlights of 1 material are is left out.</source>
        <translation>Wie stark die Glanzlichter von 1 Material sind, fehlt.</translation>
    </message>
    <message>
        <source>How strong the highlights of %1 materials are is left out.</source>
        <translation>Wie stark die Glanzlichter von %1 Materialien sind, fehlt.</translation>
    </message>
    <message>
        <source>The anisotropy of 1 material is left out.</source>
        <translation>Die Anisotropie von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The anisotropy of %1 materials is left out.</source>
        <translation>Die Anisotropie von %1 Materialien fehlt.</translation>
    </message>
    <message>
        <source>The colour of the highlights of 1 material is left out.</source>
        <translation>Die Farbe der Glanzlichter von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The colour of the highlights of %1 materials is left out.</source>
        <translation>Die Farbe der Glanzlichter von %1 Materialien fehlt.</translation>
    </message>
    <message>
        <source>The volume of 1 material is left out.</source>
        <translation>Das Volumen von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The volume of %1 materials is left out.</source>
        <translation>Das Volumen von %1 Materialien fehlt.</translation>
    </message>
    <message>
        <source>How 1 material lays its pictures on is left out: they follow the texture coordinates.</source>
        <translation>Wie 1 Material seine Bilder auflegt, fehlt: Sie folgen den Texturkoordinaten.</translation>
    </message>
    <message>
        <source>How %1 materials lay their pictures on is left out: they follow the texture coordinates.</source>
        <translation>Wie %1 Materialien ihre Bilder auflegen, fehlt: Sie folgen den Texturkoordinaten.</translation>
    </message>
    <message>
        <source>The sheen of 1 material is left out.</source>
        <translation>Der Schimmer von 1 Material fehlt.</translation>
    </message>
    <message>
        <source>The sheen of %1 materials is left out.</source>
        <translation>Der Schimmer von %1 Materialien fehlt.</translation>
    </message>
    <message>
        <source>The transmission of 1 material is shown as transparency.</source>
        <translation>Die Lichtdurchlässigkeit von 1 Material wird als Transparenz gezeigt.</translation>
    </message>
    <message>
        <source>The transmission of %1 materials is shown as transparency.</source>
        <translation>Die Lichtdurchlässigkeit von %1 Materialien wird als Transparenz gezeigt.</translation>
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
        <source>it is no binary glTF file, which starts with the four letters “glTF”</source>
        <translation>das ist keine binäre glTF-Datei, die mit den vier Buchstaben „glTF“ beginnt</translation>
    </message>
    <message>
        <source>it ends after %1 of the %2 bytes that its header announces</source>
        <translation>sie endet nach %1 der %2 Bytes, die ihr Kopf ankündigt</translation>
    </message>
    <message>
        <source>its JSON text is broken at line %1, column %2 (%3)</source>
        <translation>ihr JSON-Text ist fehlerhaft in Zeile %1, Spalte %2 (%3)</translation>
    </message>
    <message>
        <source>its “asset” was expected to name a version of glTF</source>
        <translation>ihr „asset“ nennt keine Version von glTF</translation>
    </message>
    <message>
        <source>its version of glTF is %1, and 1.0 or 2.0 was expected</source>
        <translation>ihre glTF-Version ist %1, erwartet wurde 1.0 oder 2.0</translation>
    </message>
    <message>
        <source>What the file says once by the extension “%1” is left out.</source>
        <translation>Was die Datei einmal mit der Erweiterung „%1“ sagt, wird ausgelassen.</translation>
    </message>
    <message>
        <source>What the file says %1 times by the extension “%2” is left out.</source>
        <translation>Was die Datei %1-mal mit der Erweiterung „%2“ sagt, wird ausgelassen.</translation>
    </message>
    <message>
        <source>1 property of materials is not known here and left out: %1.</source>
        <translation>1 Eigenschaft von Materialien ist hier nicht bekannt und wird ausgelassen: %1.</translation>
    </message>
    <message>
        <source>%1 properties of materials are not known here and left out: %2.</source>
        <translation>%1 Eigenschaften von Materialien sind hier nicht bekannt und werden ausgelassen: %2.</translation>
    </message>
    <message>
        <source>it is no file of the kind that its ending, .%1, says</source>
        <translation>sie ist nicht von der Art, die ihre Endung .%1 nennt</translation>
    </message>
    <message>
        <source>it asks for more memory than a file of its size can need</source>
        <translation>sie verlangt mehr Speicher, als eine Datei ihrer Größe brauchen kann</translation>
    </message>
    <message>
        <source>it holds no model that can be read</source>
        <translation>sie enthält kein Modell, das sich lesen lässt</translation>
    </message>
    <message>
        <source>it is not a whole model (%1)</source>
        <translation>das ist kein vollständiges Modell (%1)</translation>
    </message>
    <message>
        <source>it holds no mesh, and at least one was expected</source>
        <translation>sie enthält kein Netz, mindestens eines wurde erwartet</translation>
    </message>
    <message>
        <source>it asks for more memory than there is</source>
        <translation>sie verlangt mehr Speicher, als es gibt</translation>
    </message>
    <message>
        <source>reading it failed (%1)</source>
        <translation>das Lesen ist fehlgeschlagen (%1)</translation>
    </message>
    <message>
        <source>it is no PLY file, which starts with the line “ply”</source>
        <translation>das ist keine PLY-Datei, die mit der Zeile „ply“ beginnt</translation>
    </message>
    <message>
        <source>its line “%1” should end in a count</source>
        <translation>ihre Zeile „%1“ sollte auf eine Anzahl enden</translation>
    </message>
    <message>
        <source>its header does not end in the line “end_header”</source>
        <translation>ihr Kopf endet nicht mit der Zeile „end_header“</translation>
    </message>
    <message>
        <source>%1 bytes follow its header, which announces at least %2</source>
        <translation>auf ihren Kopf folgen %1 Bytes, er kündigt mindestens %2 an</translation>
    </message>
    <message>
        <source>%1 lines follow its header, which announces %2</source>
        <translation>auf ihren Kopf folgen %1 Zeilen, er kündigt %2 an</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
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
</context>
</TS>
