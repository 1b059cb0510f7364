// SPDX-License-Identifier: MIT
#pragma once

#include "OsgViewers.h"

#include <scopix/live/adapter/Adapter.h>

#include <osg/Stats>

#include <map>
#include <string>

namespace scopix::live
{

/// What the program's own statistics say about the last frames; they are switched on when they are asked for
/// first, and back to how they were by `stop`. Between frames only.
class OsgCounters
{
public:
    explicit OsgCounters(OsgViewers& viewers);

    static std::vector<CounterInfo> counters();
    std::vector<double> values();
    /// Of the viewer that has drawn first; those that a thread may still be drawing are left for the next
    /// time.
    FrameTable takeFrames();
    void stop();

private:
    struct Switched {
        osg::ref_ptr<osg::Stats> stats;
        std::string name;
    };

    void collect(osg::Stats* stats, const std::string& name);
    void start();

    OsgViewers& m_viewers;
    std::vector<Switched> m_switched;
    unsigned m_lastFrame = 0; // that was taken
};

} // namespace scopix::live
