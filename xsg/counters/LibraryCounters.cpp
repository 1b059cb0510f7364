// SPDX-License-Identifier: MIT
#include <xsg/counters/LibraryCounters.h>

#include <xsg/counters/SoPerfAccumCounter.h>
#include <xsg/counters/SoPerfStateCounter.h>

namespace xsg
{

LibraryFeeds feeds;

namespace
{

enum class Kind { Accumulation, State };

struct Row {
    Kind kind;
    const char* name;
    const char* module;
    SoPerfCounter::LevelEnum level;
    SoPerfFeed* feed;
    const char* description;
};

const Row Rows[] = {
    {Kind::Accumulation, "Frames", "Render", SoPerfCounter::LOW, &feeds.frames, "Frames drawn."},
    {Kind::Accumulation, "RenderTime", "Render", SoPerfCounter::LOW, &feeds.renderMicroseconds,
     "Time spent drawing frames, in microseconds."},
    {Kind::Accumulation, "NodesTraversed", "Render", SoPerfCounter::MEDIUM, &feeds.nodesTraversed,
     "Nodes visited while drawing; a node that stands in two places counts twice."},
    {Kind::Accumulation, "DrawCalls", "Render", SoPerfCounter::MEDIUM, &feeds.drawCalls,
     "Draw calls given to OpenGL."},
    {Kind::Accumulation, "Triangles", "Render", SoPerfCounter::LOW, &feeds.triangles, "Triangles drawn."},
    {Kind::Accumulation, "Vertices", "Render", SoPerfCounter::MEDIUM, &feeds.vertices, "Vertices drawn."},
    {Kind::Accumulation, "ShapesCulled", "Render", SoPerfCounter::MEDIUM, &feeds.shapesCulled,
     "Shapes not drawn since they are out of sight."},
    {Kind::Accumulation, "StateChanges", "Render", SoPerfCounter::HIGH, &feeds.stateChanges,
     "Changes of lights, textures, styles and the like between draw calls."},
    {Kind::Accumulation, "BufferUploads", "Render", SoPerfCounter::HIGH, &feeds.bufferUploads,
     "Buffers given to OpenGL."},
    {Kind::Accumulation, "BufferBytes", "Render", SoPerfCounter::HIGH, &feeds.bufferBytes,
     "Bytes of buffers given to OpenGL."},
    {Kind::Accumulation, "TextureBytes", "Render", SoPerfCounter::HIGH, &feeds.textureBytes,
     "Bytes of textures given to OpenGL."},
    {Kind::Accumulation, "GeometryHits", "Render", SoPerfCounter::HIGH, &feeds.geometryHits,
     "Shapes whose geometry was in OpenGL's memory already."},
    {Kind::Accumulation, "GeometryMisses", "Render", SoPerfCounter::HIGH, &feeds.geometryMisses,
     "Shapes whose geometry had to be made."},
    {Kind::Accumulation, "Picks", "Actions", SoPerfCounter::LOW, &feeds.picks, "Rays sent into scenes."},
    {Kind::Accumulation, "Searches", "Actions", SoPerfCounter::LOW, &feeds.searches,
     "Searches through scenes."},
    {Kind::Accumulation, "BoxHits", "Actions", SoPerfCounter::HIGH, &feeds.boxHits,
     "Separators whose remembered box was used."},
    {Kind::Accumulation, "BoxMisses", "Actions", SoPerfCounter::HIGH, &feeds.boxMisses,
     "Separators whose box had to be computed again."},
    {Kind::Accumulation, "FilesRead", "Files", SoPerfCounter::LOW, &feeds.filesRead, "Scene files read."},
    {Kind::Accumulation, "BytesParsed", "Files", SoPerfCounter::MEDIUM, &feeds.bytesParsed,
     "Bytes of scene text parsed."},
    {Kind::Accumulation, "FieldChanges", "Fields", SoPerfCounter::LOW, &feeds.fieldChanges,
     "Changes of fields: writes, and what connections pass on."},
    {Kind::Accumulation, "Notifications", "Fields", SoPerfCounter::MEDIUM, &feeds.notifications,
     "Nodes notified of a change, on the way from the field to the root."},
    {Kind::State, "FieldsAlive", "Fields", SoPerfCounter::MEDIUM, &feeds.fieldsAlive, "Fields that exist."},
    {Kind::State, "NodesAlive", "Nodes", SoPerfCounter::LOW, &feeds.nodesAlive, "Nodes that exist."},
    {Kind::Accumulation, "SensorsTriggered", "Sensors", SoPerfCounter::LOW, &feeds.sensorsTriggered,
     "Sensors whose callback was run."},
    {Kind::State, "SensorQueueLength", "Sensors", SoPerfCounter::MEDIUM, &feeds.sensorQueueLength,
     "Sensors that wait for the next turn of the queue."},
    {Kind::Accumulation, "AllocatedBytes", "Memory", SoPerfCounter::MEDIUM, &feeds.allocatedBytes,
     "Bytes asked of XsgMalloc."},
    {Kind::Accumulation, "Allocations", "Memory", SoPerfCounter::HIGH, &feeds.allocations,
     "Calls of XsgMalloc."},
};

} // namespace

std::vector<std::unique_ptr<SoPerfCounter>> makeLibraryCounters()
{
    std::vector<std::unique_ptr<SoPerfCounter>> counters;
    for (const Row& row : Rows) {
        if (row.kind == Kind::State)
            counters.push_back(std::make_unique<SoPerfStateCounter>(row.name, row.description, row.module,
                                                                    row.level, false, row.feed));
        else
            counters.push_back(std::make_unique<SoPerfAccumCounter>(row.name, row.description, row.module,
                                                                    row.level, false, row.feed));
    }
    return counters;
}

} // namespace xsg
