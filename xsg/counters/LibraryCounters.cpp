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
    {Kind::Accumulation, "FieldChanges", "Fields", SoPerfCounter::LOW, &feeds.fieldChanges,
     "Changes of fields: writes, and what connections pass on."},
    {Kind::Accumulation, "Notifications", "Fields", SoPerfCounter::MEDIUM, &feeds.notifications,
     "Nodes told of a change, on the way from the field to the root."},
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
