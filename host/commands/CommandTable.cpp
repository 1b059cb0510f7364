// SPDX-License-Identifier: MIT
#include "commands/CommandTable.h"

#include "commands/Commands.h"
#include "commands/Manual.h"
#include "commands/Output.h"

#include <QCoreApplication>

#include <algorithm>
#include <exception>
#include <limits>
#include <memory>
#include <new>

namespace scopix
{

namespace
{

constexpr std::size_t Any = std::numeric_limits<std::size_t>::max();
const Command::Option Json{"json", nullptr, QT_TRANSLATE_NOOP("Command", "Write JSON instead of text.")};
const Command::Option Out{
    "o", "OUT",
    QT_TRANSLATE_NOOP("Command", "Write this file and leave FILE as it is; \"-\" is standard output.")};

} // namespace

const std::vector<Command>& allCommands()
{
    static const std::vector<Command> commands{
        {"print",
         "FILE [PATH]",
         QT_TRANSLATE_NOOP(
             "Command",
             "Prints the tree of a scene or model, a node with its fields, or the value of a field."),
         1,
         2,
         {Json},
         {{"scopix print lamp.xsg",
           QT_TRANSLATE_NOOP("Command", "the tree: names, types, and where a node stands again")},
          {"scopix print lamp.xsg /Bulb",
           QT_TRANSLATE_NOOP("Command", "the fields of one node, and what is below it")},
          {"scopix print lamp.xsg Bulb.radius",
           QT_TRANSLATE_NOOP("Command", "one value; without \"/\" wherever the node stands")},
          {"scopix print --json lamp.xsg",
           QT_TRANSLATE_NOOP("Command", "everything that a scene file holds")}},
         "0",
         printScene},
        {"set",
         "FILE PATH=VALUE...",
         QT_TRANSLATE_NOOP("Command", "Gives fields values and saves. A value is what a scene file has, or a "
                                      "formula with units such as "
                                      "90deg, "
                                      "30 cm or x*2, where x is the present value; what each field measures "
                                      "and takes is on the page of "
                                      "nodes. A number without a unit is in radians, metres or seconds. "
                                      "Where one of them cannot be set, "
                                      "nothing is saved."),
         2,
         Any,
         {Out},
         {{"scopix set lamp.xsg /Bulb.radius=3", QT_TRANSLATE_NOOP("Command", "saves lamp.xsg")},
          {"scopix set lamp.xsg 'Bulb.radius=x*2' 'Bulb.radius=+= 10 cm' -o larger.xsg",
           QT_TRANSLATE_NOOP("Command", "one after the other")},
          {"scopix set lamp.xsg 'Glass.diffuseColor=1 0.5 0' -o -",
           QT_TRANSLATE_NOOP("Command", "writes the scene to standard output")}},
         "0",
         setFields},
        {"find",
         "FILE QUERY",
         QT_TRANSLATE_NOOP("Command", "Prints the paths of the nodes that a query finds; the query is that "
                                      "of the line above the scene "
                                      "tree."),
         2,
         2,
         {Json},
         {{"scopix find lamp.xsg type:Light", QT_TRANSLATE_NOOP("Command", "all lights")},
          {"scopix find lamp.xsg 'transparency>0 -name:bulb'",
           QT_TRANSLATE_NOOP("Command", "what is transparent and not called bulb")}},
         QT_TRANSLATE_NOOP("Command", "0 where something was found, 1 where not"),
         findNodes},
        {"diff",
         "A B",
         QT_TRANSLATE_NOOP("Command", "Prints what makes the scene in A the one in B, as a patch."),
         2,
         2,
         {Json},
         {{"scopix diff lamp.xsg spare.xsg", QT_TRANSLATE_NOOP("Command", "one line a change")},
          {"scopix diff lamp.xsg spare.xsg > spare.xsgpatch",
           QT_TRANSLATE_NOOP("Command", "keeps it for scopix apply")}},
         QT_TRANSLATE_NOOP("Command", "0 where they are the same, 1 where they differ"),
         compareFiles},
        {"apply",
         "PATCH FILE",
         QT_TRANSLATE_NOOP("Command", "Makes the changes of a patch in a scene and saves it. What does not "
                                      "fit the scene is listed and "
                                      "the rest "
                                      "is applied; applied once more, a patch changes nothing."),
         2,
         2,
         {Out, Json},
         {{"scopix apply spare.xsgpatch lamp.xsg", QT_TRANSLATE_NOOP("Command", "saves lamp.xsg")},
          {"scopix apply spare.xsgpatch lamp.xsg -o spare.xsg",
           QT_TRANSLATE_NOOP("Command", "leaves lamp.xsg as it is")}},
         QT_TRANSLATE_NOOP("Command", "0 where all of it fits, 1 where some does not"),
         applyPatch},
        {"convert",
         "IN OUT",
         QT_TRANSLATE_NOOP(
             "Command",
             "Reads a scene or model and writes it as a file of the kind that the ending of OUT says: .xsg, "
             ".glb, "
             ".gltf, .obj, .ply or .stl. What such a file cannot keep is said on standard error."),
         2,
         2,
         {},
         {{"scopix convert lighthouse.glb lighthouse.xsg",
           QT_TRANSLATE_NOOP("Command", "a model becomes a scene")},
          {"scopix convert lighthouse.glb -",
           QT_TRANSLATE_NOOP("Command", "writes the scene to standard output")}},
         "0",
         convertFile},
        {"picture",
         "FILE OUT",
         QT_TRANSLATE_NOOP(
             "Command",
             "Draws a scene or model into a picture file, such as .png or .jpg; needs no display."),
         2,
         2,
         {{"size", "WxH", QT_TRANSLATE_NOOP("Command", "The size in pixels; 800x600 at first.")},
          {"camera", "CAMERA",
           QT_TRANSLATE_NOOP(
               "Command", "The path of a camera of the scene, all, front, back, left, right, top or bottom. "
                          "At first the first camera of the scene, or all.")},
          {"frames", "N",
           QT_TRANSLATE_NOOP("Command", "Draws N pictures, OUT-0001 and so on, 1/30 of a second apart.")},
          {"background", "COLOR",
           QT_TRANSLATE_NOOP("Command", "Three numbers from 0 to 1; \"0 0 0\" is black.")},
          {"tone-mapping", "KIND",
           QT_TRANSLATE_NOOP(
               "Command",
               "How light that is brighter than white comes into the picture: none, neutral or filmic; "
               "neutral at first.")}},
         {{"scopix picture lamp.xsg lamp.png", QT_TRANSLATE_NOOP("Command", "as the scene's camera sees it")},
          {"scopix picture lamp.xsg lamp.png --size 400x300 --camera top",
           QT_TRANSLATE_NOOP("Command", "everything, from above")},
          {"scopix picture lamp.xsg turn.png --size 80x60 --frames 3",
           QT_TRANSLATE_NOOP("Command", "turn-0001.png to turn-0003.png")}},
         "0",
         drawPicture},
        {"check",
         "FILE...",
         QT_TRANSLATE_NOOP("Command", "Opens files and reports what of them is dropped, missing or odd."),
         1,
         Any,
         {Json},
         {{"scopix check lamp.xsg lighthouse.glb",
           QT_TRANSLATE_NOOP("Command", "a line for each thing that it notices")},
          {"scopix check --json lamp.xsg", QT_TRANSLATE_NOOP("Command", "the same for other programs")}},
         QT_TRANSLATE_NOOP(
             "Command",
             "0 where there is nothing to report, 1 where there is something, 2 where a file cannot be read"),
         checkFiles},
        {"stats",
         "FILE [PATH]",
         QT_TRANSLATE_NOOP("Command", "Counts nodes, shapes, triangles, pictures and memory of a scene, and "
                                      "of each branch below its root "
                                      "or "
                                      "below PATH."),
         1,
         2,
         {Json},
         {{"scopix stats lamp.xsg", QT_TRANSLATE_NOOP("Command", "a table")},
          {"scopix stats --json lamp.xsg", QT_TRANSLATE_NOOP("Command", "the same for other programs")}},
         "0",
         countScene},
        {"measure",
         "FILE",
         QT_TRANSLATE_NOOP(
             "Command",
             "Draws a scene or model and prints what a frame costs; needs no display. The first ten "
             "frames are not counted. With --against, medians are compared by the test of Mann and Whitney: "
             "slower is what takes 5 % longer and would be so by chance less than once in a hundred."),
         1,
         1,
         {{"frames", "N", QT_TRANSLATE_NOOP("Command", "How many frames, from 1 to 3000; 120 at first.")},
          {"size", "WxH",
           QT_TRANSLATE_NOOP("Command", "The size in pixels; 800x600 at first, or that of OLD.")},
          {"against", "OLD", QT_TRANSLATE_NOOP("Command", "Compares with this recording.")},
          {"o", "OUT", QT_TRANSLATE_NOOP("Command", "Keeps the frames as a recording.")},
          Json},
         {{"scopix measure lamp.xsg --frames 20 --size 80x60",
           QT_TRANSLATE_NOOP("Command", "a table: phases, graphics card, draw calls and more")},
          {"scopix measure lamp.xsg --frames 20 --size 80x60 -o before.xsgframes",
           QT_TRANSLATE_NOOP("Command", "keeps them for a comparison")},
          {"scopix measure lamp.xsg --frames 20 --against before.xsgframes",
           QT_TRANSLATE_NOOP("Command", "whether it became slower")}},
         QT_TRANSLATE_NOOP("Command", "0, 1 where it is slower than OLD"),
         measureScene},
    };
    return commands;
}

const Command* findCommand(const std::string& name)
{
    for (const Command& command : allCommands())
        if (name == command.name)
            return &command;
    return nullptr;
}

std::string commandList()
{
    std::string text;
    for (const Command& command : allCommands()) {
        std::string line = std::string("  ") + command.name + " " + command.usage;
        line.resize(std::max<std::size_t>(line.size() + 1, 27), ' ');
        const std::string summary = translated(command.summary);
        text += line + firstSentence(summary) + "\n";
    }
    return text;
}

int runCommand(const Command& command, const std::vector<std::string>& words)
{
    for (const std::string& word : words) {
        if (word == "--")
            break;
        if (word != "--help")
            continue;
        print(helpOf(command));
        return finishPrinting() ? Fine : Failed;
    }
    Arguments arguments;
    std::string error;
    if (!parseArguments(command, words, arguments, error)) {
        complain(std::string(command.name) + ": " + error);
        return Failed;
    }
    int count = 0;
    std::unique_ptr<QCoreApplication> application;
    if (!QCoreApplication::instance())
        application = std::make_unique<QCoreApplication>(count, nullptr);
    try {
        const int status = command.run(arguments);
        return finishPrinting() ? status : Failed;
    } catch (const std::bad_alloc&) {
        complain(std::string(command.name) + ": There is not enough memory.");
    } catch (const std::exception& exception) {
        complain(std::string(command.name) + ": " + exception.what());
    }
    return Failed;
}

} // namespace scopix
