// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/counters/SoPerfFeed.h>
#include <xsg/values/XsgExport.h>

#include <memory>
#include <vector>

class SoPerfCounter;

namespace xsg
{

/// What the library counts about itself. The code that does the work adds to a feed; the manager shows each
/// feed as a counter. A new counter is one feed here and one line of the table in the source.
struct LibraryFeeds {
    SoPerfFeed fieldChanges;
    SoPerfFeed notifications;
    SoPerfFeed sensorsTriggered;
    SoPerfFeed sensorQueueLength;
    SoPerfFeed nodesAlive;
    SoPerfFeed fieldsAlive;
    SoPerfFeed allocatedBytes;
    SoPerfFeed allocations;
    SoPerfFeed frames;
    SoPerfFeed renderMicroseconds;
    SoPerfFeed nodesTraversed;
    SoPerfFeed drawCalls;
    SoPerfFeed triangles;
    SoPerfFeed vertices;
    SoPerfFeed shapesCulled;
    SoPerfFeed stateChanges;
    SoPerfFeed bufferUploads;
    SoPerfFeed bufferBytes;
    SoPerfFeed textureBytes;
    SoPerfFeed geometryHits;
    SoPerfFeed geometryMisses;
    SoPerfFeed picks;
    SoPerfFeed searches;
    SoPerfFeed boxHits;
    SoPerfFeed boxMisses;
    SoPerfFeed filesRead;
    SoPerfFeed bytesParsed;
};
extern XSG_API LibraryFeeds feeds;

/// One counter per feed, in the order of the table.
std::vector<std::unique_ptr<SoPerfCounter>> makeLibraryCounters();

} // namespace xsg
