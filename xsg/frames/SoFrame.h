// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

#include <array>
#include <cstdint>
#include <limits>

/// What drawing one picture cost: plain numbers, times in nanoseconds, memory in bytes.
struct XSG_API SoFrame {
    /// The columns of every table of frames, in this order. New ones come at the end, before NumFigures.
    enum Figure {
        Begin,    // when it began, of a clock that never goes back
        Whole,    // what the processor's thread spent on it: the five phases together
        Update,   // sensors, and what prepares the picture
        Traverse, // walking the scene
        Cull,     // finding out what is in sight
        Upload,   // giving geometry and textures to OpenGL
        Draw,     // giving commands to OpenGL, and waiting where it is behind
        Gpu,      // what the graphics card needed, which is known some frames later
        Memory,   // of the machine that the process has; looked at ten times a second
        DrawCalls,
        Triangles,
        StateChanges,
        Uploads, // buffers
        UploadedBytes,
        TextureBytes,
        NodesVisited,
        ShapesCulled,
        Allocations, // these, of the process, since the frame before
        FieldChanges,
        SensorsTriggered,
        BytesParsed,
        NumFigures
    };
    static constexpr int NumPhases = 5; // from Update to Draw
    static constexpr int MostCounters = 64;
    static constexpr std::int64_t Unknown = -1; // the graphics card's time where there is none
    static constexpr std::int64_t Missing = std::numeric_limits<std::int64_t>::min(); // was not noted

    std::uint64_t number = 0; // 1 for the first one
    std::uint64_t counterSet = 0;
    std::array<std::int64_t, NumFigures> figures{};
    /// The totals of the counters that SoFrameLog::setCounters() chose, when the frame ended.
    std::array<std::int64_t, MostCounters> counters{};

    std::int64_t operator[](Figure figure) const { return figures[figure]; }
    std::int64_t& operator[](Figure figure) { return figures[figure]; }

    /// What files and tables call the figure, as in "DrawCalls".
    static const char* getName(Figure figure);
    /// "ns", "B", or "" for counts.
    static const char* getUnit(Figure figure);
    /// Whether it says how things are, instead of how much came with the frame.
    static bool isState(Figure figure) { return figure == Memory || figure == Begin; }
};
