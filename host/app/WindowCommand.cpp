// SPDX-License-Identifier: MIT
#include "app/WindowCommand.h"

#include <QtGlobal>

#include <limits>

namespace scopix
{

const Command& windowCommand()
{
    static const Command command{
        "",
        "[FILE...]",
        QT_TRANSLATE_NOOP("CommandLine",
                          "Inspects and tunes the 3D scene or model in FILE; several get a tab each."),
        0,
        std::numeric_limits<std::size_t>::max(),
        {{"plugin", "PATH",
          QT_TRANSLATE_NOOP("CommandLine", "Load this plug-in too; may be given several times.")},
         {"profile", "NAME", QT_TRANSLATE_NOOP("CommandLine", "Use this profile in this session.")},
         {"select", "NODE.FIELD",
          QT_TRANSLATE_NOOP("CommandLine", "Select this field; NODE is a node's name or type.")},
         {"screenshot", "OUT.png",
          QT_TRANSLATE_NOOP("CommandLine", "Write a picture of the window and end; needs no display.")},
         {"picture", "OUT.png",
          QT_TRANSLATE_NOOP("CommandLine",
                            "Write a picture of the 3D view alone and end; needs no display.")},
         {"size", "WIDTHxHEIGHT",
          QT_TRANSLATE_NOOP("CommandLine", "How large that picture is, in pixels; 1920x1080 without it.")},
         {"transparent", nullptr, QT_TRANSLATE_NOOP("CommandLine", "Leave its ground transparent.")},
         {"turntable", "NUMBER",
          QT_TRANSLATE_NOOP("CommandLine",
                            "Write NUMBER pictures of one full turn instead: OUT-01.png and so on.")},
         {"tone-mapping", "KIND",
          QT_TRANSLATE_NOOP("CommandLine",
                            "How bright light comes into the view and its pictures: none, neutral or filmic. "
                            "For this session; the menu remembers its choice.")},
         {"attach", "NAME|PID|SOCKET",
          QT_TRANSLATE_NOOP("CommandLine",
                            "Attach to a running program; may be left out: the only one. In place "
                            "of FILE.")},
         {"launch", "PROGRAM [ARGS...]",
          QT_TRANSLATE_NOOP("CommandLine",
                            "Start PROGRAM and attach to it; what follows goes to it. In place of FILE.")},
         {"list-live", nullptr,
          QT_TRANSLATE_NOOP("CommandLine", "List the running programs that can be attached to, and end.")},
         {"save", "OUT",
          QT_TRANSLATE_NOOP(
              "CommandLine",
              "Write what FILE holds to this file, as its ending says, and end; needs no display.")},
         {"quit", nullptr, QT_TRANSLATE_NOOP("CommandLine", "End when everything asked for is done.")},
         {"counters", nullptr, QT_TRANSLATE_NOOP("CommandLine", "Switch the performance counters on.")},
         {"help", nullptr, QT_TRANSLATE_NOOP("CommandLine", "Show this text and end.")},
         {"version", nullptr, QT_TRANSLATE_NOOP("CommandLine", "Show the version and end.")}},
        {{"scopix lighthouse.glb", QT_TRANSLATE_NOOP("Command", "opens a model")},
         {"scopix lamp.xsg --select Bulb.radius",
          QT_TRANSLATE_NOOP("Command", "opens a scene and shows one of its fields")},
         {"scopix lamp.xsg --picture lamp.png --size 800x600",
          QT_TRANSLATE_NOOP("Command", "draws it without a window")}},
        QT_TRANSLATE_NOOP("Command", "0 where all that was asked for is done, 1 where something is not"),
        nullptr};
    return command;
}

} // namespace scopix
