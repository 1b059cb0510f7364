<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="qps" sourcelanguage="en">
<context>
    <name>Scopix</name>
    <message>
        <source>The normal map of 1 material is left out.</source>
        <translation>[Ţĥé ñöŕmàl màp öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The normal maps of %1 materials are left out.</source>
        <translation>[Ţĥé ñöŕmàl màpš öf %1 màţéŕîàlš àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The emissive map of 1 material is left out.</source>
        <translation>[Ţĥé émîššîvé màp öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The emissive maps of %1 materials are left out.</source>
        <translation>[Ţĥé émîššîvé màpš öf %1 màţéŕîàlš àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The map of metal and roughness of 1 material is left out.</source>
        <translation>[Ţĥé màp öf méţàl àñd ŕöûĝĥñéšš öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The maps of metal and roughness of %1 materials are left out.</source>
        <translation>[Ţĥé màpš öf méţàl àñd ŕöûĝĥñéšš öf %1 màţéŕîàlš àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The occlusion map of 1 material is left out.</source>
        <translation>[Ţĥé öççlûšîöñ màp öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The occlusion maps of %1 materials are left out.</source>
        <translation>[Ţĥé öççlûšîöñ màpš öf %1 màţéŕîàlš àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The bump map of 1 material is left out.</source>
        <translation>[Ţĥé bûmp màp öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The bump maps of %1 materials are left out.</source>
        <translation>[Ţĥé bûmp màpš öf %1 màţéŕîàlš àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The specular map of 1 material is left out.</source>
        <translation>[Ţĥé špéçûlàŕ màp öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The specular maps of %1 materials are left out.</source>
        <translation>[Ţĥé špéçûlàŕ màpš öf %1 màţéŕîàlš àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The opacity map of 1 material is left out.</source>
        <translation>[Ţĥé öpàçîţý màp öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The opacity maps of %1 materials are left out.</source>
        <translation>[Ţĥé öpàçîţý màpš öf %1 màţéŕîàlš àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The reflection map of 1 material is left out.</source>
        <translation>[Ţĥé ŕéfléçţîöñ màp öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The reflection maps of %1 materials are left out.</source>
        <translation>[Ţĥé ŕéfléçţîöñ màpš öf %1 màţéŕîàlš àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 list of texture coordinates is left out, which no picture uses.</source>
        <translation>[1 lîšţ öf ţéxţûŕé çööŕdîñàţéš îš léfţ öûţ, wĥîçĥ ñö pîçţûŕé ûšéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 lists of texture coordinates are left out, which no picture uses.</source>
        <translation>[%1 lîšţš öf ţéxţûŕé çööŕdîñàţéš àŕé léfţ öûţ, wĥîçĥ ñö pîçţûŕé ûšéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The further colours of the points of 1 mesh are left out.</source>
        <translation>[Ţĥé fûŕţĥéŕ çölöûŕš öf ţĥé pöîñţš öf 1 méšĥ àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The further colours of the points of %1 meshes are left out.</source>
        <translation>[Ţĥé fûŕţĥéŕ çölöûŕš öf ţĥé pöîñţš öf %1 méšĥéš àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>How transparent the points of 1 mesh are is left out.</source>
        <translation>[Ĥöw ţŕàñšpàŕéñţ ţĥé pöîñţš öf 1 méšĥ àŕé îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>How transparent the points of %1 meshes are is left out.</source>
        <translation>[Ĥöw ţŕàñšpàŕéñţ ţĥé pöîñţš öf %1 méšĥéš àŕé îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 light with an area shines from its middle.</source>
        <translation>[1 lîĝĥţ wîţĥ àñ àŕéà šĥîñéš fŕöm îţš mîddlé. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 lights with an area shine from their middles.</source>
        <translation>[%1 lîĝĥţš wîţĥ àñ àŕéà šĥîñé fŕöm ţĥéîŕ mîddléš. ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 light is left out, whose kind is not known here.</source>
        <translation>[1 lîĝĥţ îš léfţ öûţ, wĥöšé ķîñd îš ñöţ ķñöwñ ĥéŕé. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 lights are left out, whose kind is not known here.</source>
        <translation>[%1 lîĝĥţš àŕé léfţ öûţ, wĥöšé ķîñd îš ñöţ ķñöwñ ĥéŕé. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 track of an animation moves what there is no node for, and is left out.</source>
        <translation>[1 ţŕàçķ öf àñ àñîmàţîöñ mövéš wĥàţ ţĥéŕé îš ñö ñödé föŕ, àñd îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 tracks of animations move what there are no nodes for, and are left out.</source>
        <translation>[%1 ţŕàçķš öf àñîmàţîöñš mövé wĥàţ ţĥéŕé àŕé ñö ñödéš föŕ, àñd àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The movement of 1 light is left out.</source>
        <translation>[Ţĥé mövéméñţ öf 1 lîĝĥţ îš léfţ öûţ. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The movements of %1 lights are left out.</source>
        <translation>[Ţĥé mövéméñţš öf %1 lîĝĥţš àŕé léfţ öûţ. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 camera moves, and what is seen through it stays.</source>
        <translation>[1 çàméŕà mövéš, àñd wĥàţ îš šééñ ţĥŕöûĝĥ îţ šţàýš. ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 cameras move, and what is seen through them stays.</source>
        <translation>[%1 çàméŕàš mövé, àñd wĥàţ îš šééñ ţĥŕöûĝĥ ţĥém šţàýš. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 picture is left out, whose material has two other texture coordinates already.</source>
        <translation>[1 pîçţûŕé îš léfţ öûţ, wĥöšé màţéŕîàl ĥàš ţwö öţĥéŕ ţéxţûŕé çööŕdîñàţéš àlŕéàdý. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 pictures are left out, whose materials have two other texture coordinates already.</source>
        <translation>[%1 pîçţûŕéš àŕé léfţ öûţ, wĥöšé màţéŕîàlš ĥàvé ţwö öţĥéŕ ţéxţûŕé çööŕdîñàţéš àlŕéàdý. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 file of materials is missing, so that default ones are used: %1.</source>
        <translation>[1 fîlé öf màţéŕîàlš îš mîššîñĝ, šö ţĥàţ défàûlţ öñéš àŕé ûšéd: %1. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 files of materials are missing, so that default ones are used: %2.</source>
        <translation>[%1 fîléš öf màţéŕîàlš àŕé mîššîñĝ, šö ţĥàţ défàûlţ öñéš àŕé ûšéd: %2. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 picture is missing or cannot be read, and is left out: %1.</source>
        <translation>[1 pîçţûŕé îš mîššîñĝ öŕ çàññöţ bé ŕéàd, àñd îš léfţ öûţ: %1. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 pictures are missing or cannot be read, and are left out: %2.</source>
        <translation>[%1 pîçţûŕéš àŕé mîššîñĝ öŕ çàññöţ bé ŕéàd, àñd àŕé léfţ öûţ: %2. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 material, of which nothing would be seen, is shown opaque.</source>
        <translation>[1 màţéŕîàl, öf wĥîçĥ ñöţĥîñĝ wöûld bé šééñ, îš šĥöwñ öpàqûé. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 materials, of which nothing would be seen, are shown opaque.</source>
        <translation>[%1 màţéŕîàlš, öf wĥîçĥ ñöţĥîñĝ wöûld bé šééñ, àŕé šĥöwñ öpàqûé. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 material is to be shown without light, and is lit.</source>
        <translation>[1 màţéŕîàl îš ţö bé šĥöwñ wîţĥöûţ lîĝĥţ, àñd îš lîţ. ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 materials are to be shown without light, and are lit.</source>
        <translation>[%1 màţéŕîàlš àŕé ţö bé šĥöwñ wîţĥöûţ lîĝĥţ, àñd àŕé lîţ. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 material is to be drawn as lines, and is drawn as a surface.</source>
        <translation>[1 màţéŕîàl îš ţö bé dŕàwñ àš lîñéš, àñd îš dŕàwñ àš à šûŕfàçé. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 materials are to be drawn as lines, and are drawn as surfaces.</source>
        <translation>[%1 màţéŕîàlš àŕé ţö bé dŕàwñ àš lîñéš, àñd àŕé dŕàwñ àš šûŕfàçéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The blending of 1 material, which adds light, is left out.</source>
        <translation>[Ţĥé bléñdîñĝ öf 1 màţéŕîàl, wĥîçĥ àddš lîĝĥţ, îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The blending of %1 materials, which adds light, is left out.</source>
        <translation>[Ţĥé bléñdîñĝ öf %1 màţéŕîàlš, wĥîçĥ àddš lîĝĥţ, îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The refraction of 1 material is left out.</source>
        <translation>[Ţĥé ŕéfŕàçţîöñ öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The refraction of %1 materials is left out.</source>
        <translation>[Ţĥé ŕéfŕàçţîöñ öf %1 màţéŕîàlš îš léfţ öûţ. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The reflectivity of 1 material is left out.</source>
        <translation>[Ţĥé ŕéfléçţîvîţý öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The reflectivity of %1 materials is left out.</source>
        <translation>[Ţĥé ŕéfléçţîvîţý öf %1 màţéŕîàlš îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The colour of what shines through 1 material is left out.</source>
        <translation>[Ţĥé çölöûŕ öf wĥàţ šĥîñéš ţĥŕöûĝĥ 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The colour of what shines through %1 materials is left out.</source>
        <translation>[Ţĥé çölöûŕ öf wĥàţ šĥîñéš ţĥŕöûĝĥ %1 màţéŕîàlš îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>How strong the highlights of 1 material are is left out.</source>
        <translation>[Ĥöw šţŕöñĝ ţĥé ĥîĝĥlîĝĥţš öf 1 màţéŕîàl àŕé îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>How strong the highlights of %1 materials are is left out.</source>
        <translation>[Ĥöw šţŕöñĝ ţĥé ĥîĝĥlîĝĥţš öf %1 màţéŕîàlš àŕé îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The anisotropy of 1 material is left out.</source>
        <translation>[Ţĥé àñîšöţŕöpý öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The anisotropy of %1 materials is left out.</source>
        <translation>[Ţĥé àñîšöţŕöpý öf %1 màţéŕîàlš îš léfţ öûţ. ~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The colour of the highlights of 1 material is left out.</source>
        <translation>[Ţĥé çölöûŕ öf ţĥé ĥîĝĥlîĝĥţš öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The colour of the highlights of %1 materials is left out.</source>
        <translation>[Ţĥé çölöûŕ öf ţĥé ĥîĝĥlîĝĥţš öf %1 màţéŕîàlš îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The volume of 1 material is left out.</source>
        <translation>[Ţĥé völûmé öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The volume of %1 materials is left out.</source>
        <translation>[Ţĥé völûmé öf %1 màţéŕîàlš îš léfţ öûţ. ~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>How 1 material lays its pictures on is left out: they follow the texture coordinates.</source>
        <translation>[Ĥöw 1 màţéŕîàl làýš îţš pîçţûŕéš öñ îš léfţ öûţ: ţĥéý föllöw ţĥé ţéxţûŕé çööŕdîñàţéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>How %1 materials lay their pictures on is left out: they follow the texture coordinates.</source>
        <translation>[Ĥöw %1 màţéŕîàlš làý ţĥéîŕ pîçţûŕéš öñ îš léfţ öûţ: ţĥéý föllöw ţĥé ţéxţûŕé çööŕdîñàţéš. ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The sheen of 1 material is left out.</source>
        <translation>[Ţĥé šĥééñ öf 1 màţéŕîàl îš léfţ öûţ. ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The sheen of %1 materials is left out.</source>
        <translation>[Ţĥé šĥééñ öf %1 màţéŕîàlš îš léfţ öûţ. ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The transmission of 1 material is shown as transparency.</source>
        <translation>[Ţĥé ţŕàñšmîššîöñ öf 1 màţéŕîàl îš šĥöwñ àš ţŕàñšpàŕéñçý. ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>The transmission of %1 materials is shown as transparency.</source>
        <translation>[Ţĥé ţŕàñšmîššîöñ öf %1 màţéŕîàlš îš šĥöwñ àš ţŕàñšpàŕéñçý. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
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
        <source>it is no binary glTF file, which starts with the four letters “glTF”</source>
        <translation>[îţ îš ñö bîñàŕý ĝlŢF fîlé, wĥîçĥ šţàŕţš wîţĥ ţĥé föûŕ léţţéŕš “ĝlŢF” ~~~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it ends after %1 of the %2 bytes that its header announces</source>
        <translation>[îţ éñdš àfţéŕ %1 öf ţĥé %2 býţéš ţĥàţ îţš ĥéàdéŕ àññöûñçéš ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its JSON text is broken at line %1, column %2 (%3)</source>
        <translation>[îţš ĴŠÖÑ ţéxţ îš bŕöķéñ àţ lîñé %1, çölûmñ %2 (%3) ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its “asset” was expected to name a version of glTF</source>
        <translation>[îţš “àššéţ” wàš éxpéçţéd ţö ñàmé à véŕšîöñ öf ĝlŢF ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its version of glTF is %1, and 1.0 or 2.0 was expected</source>
        <translation>[îţš véŕšîöñ öf ĝlŢF îš %1, àñd 1.0 öŕ 2.0 wàš éxpéçţéd ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>What the file says once by the extension “%1” is left out.</source>
        <translation>[Wĥàţ ţĥé fîlé šàýš öñçé bý ţĥé éxţéñšîöñ “%1” îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>What the file says %1 times by the extension “%2” is left out.</source>
        <translation>[Wĥàţ ţĥé fîlé šàýš %1 ţîméš bý ţĥé éxţéñšîöñ “%2” îš léfţ öûţ. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>1 property of materials is not known here and left out: %1.</source>
        <translation>[1 pŕöpéŕţý öf màţéŕîàlš îš ñöţ ķñöwñ ĥéŕé àñd léfţ öûţ: %1. ~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 properties of materials are not known here and left out: %2.</source>
        <translation>[%1 pŕöpéŕţîéš öf màţéŕîàlš àŕé ñöţ ķñöwñ ĥéŕé àñd léfţ öûţ: %2. ~~~~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is no file of the kind that its ending, .%1, says</source>
        <translation>[îţ îš ñö fîlé öf ţĥé ķîñd ţĥàţ îţš éñdîñĝ, .%1, šàýš ~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it asks for more memory than a file of its size can need</source>
        <translation>[îţ àšķš föŕ möŕé mémöŕý ţĥàñ à fîlé öf îţš šîžé çàñ ñééd ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it holds no model that can be read</source>
        <translation>[îţ ĥöldš ñö mödél ţĥàţ çàñ bé ŕéàd ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is not a whole model (%1)</source>
        <translation>[îţ îš ñöţ à wĥölé mödél (%1) ~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it holds no mesh, and at least one was expected</source>
        <translation>[îţ ĥöldš ñö méšĥ, àñd àţ léàšţ öñé wàš éxpéçţéd ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it asks for more memory than there is</source>
        <translation>[îţ àšķš föŕ möŕé mémöŕý ţĥàñ ţĥéŕé îš ~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>reading it failed (%1)</source>
        <translation>[ŕéàdîñĝ îţ fàîléd (%1) ~~~~~~~~~]</translation>
    </message>
    <message>
        <source>it is no PLY file, which starts with the line “ply”</source>
        <translation>[îţ îš ñö PLÝ fîlé, wĥîçĥ šţàŕţš wîţĥ ţĥé lîñé “plý” ~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its line “%1” should end in a count</source>
        <translation>[îţš lîñé “%1” šĥöûld éñd îñ à çöûñţ ~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>its header does not end in the line “end_header”</source>
        <translation>[îţš ĥéàdéŕ döéš ñöţ éñd îñ ţĥé lîñé “éñd_ĥéàdéŕ” ~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 bytes follow its header, which announces at least %2</source>
        <translation>[%1 býţéš föllöw îţš ĥéàdéŕ, wĥîçĥ àññöûñçéš àţ léàšţ %2 ~~~~~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>%1 lines follow its header, which announces %2</source>
        <translation>[%1 lîñéš föllöw îţš ĥéàdéŕ, wĥîçĥ àññöûñçéš %2 ~~~~~~~~~~~~~~~~~~]</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>[“%1” ~~]</translation>
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
</context>
</TS>
