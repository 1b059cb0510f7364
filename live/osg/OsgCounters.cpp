// SPDX-License-Identifier: MIT
#include "OsgCounters.h"

#include <algorithm>
#include <chrono>

namespace scopix::live
{

namespace
{

enum class Source { Viewer, Camera };

struct Row {
    const char* name;
    const char* unit;
    const char* documentation;
    Source source;
    const char* attribute;
    double factor;
};

const Row rows[] = {
    {"Frame time", "ms", "From the start of one frame to the start of the next.", Source::Viewer,
     "Frame duration", 1000},
    {"Event time", "ms", "What the program does with events.", Source::Viewer, "Event traversal time taken",
     1000},
    {"Update time", "ms", "What callbacks do to the scene.", Source::Viewer, "Update traversal time taken",
     1000},
    {"Cull time", "ms", "Finding what is seen.", Source::Camera, "Cull traversal time taken", 1000},
    {"Draw time", "ms", "Giving OpenGL what is seen.", Source::Camera, "Draw traversal time taken", 1000},
    {"GPU time", "ms", "Drawing it, where OpenGL can tell.", Source::Camera, "GPU draw time taken", 1000},
    {"Drawables seen", "", "Drawables in the last frame.", Source::Camera, "Visible number of drawables", 1},
    {"Vertices seen", "", "Vertices in the last frame.", Source::Camera, "Visible vertex count", 1},
    {"State changes", "", "State graphs in the last frame.", Source::Camera, "Number of StateGraphs", 1},
    {"Lights", "", "Lights in the last frame.", Source::Camera, "Visible number of lights", 1},
};

/// The latest frame that is complete; the draw thread may be a few behind.
double latest(const osg::Stats& stats, const char* attribute)
{
    double value = 0;
    const unsigned end = stats.getLatestFrameNumber();
    const unsigned first = std::max(stats.getEarliestFrameNumber(), end < 8 ? 0u : end - 8);
    for (unsigned frame = end + 1; frame-- > first;)
        if (stats.getAttribute(frame, attribute, value))
            break;
    return value;
}

constexpr unsigned Drawing = 3; // frames that threads may still be at, or that wait for the graphics card

std::int64_t nanoseconds(double seconds)
{
    return std::int64_t(seconds * 1e9);
}

std::int64_t now()
{
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// One frame of one viewer.
class FrameRow
{
public:
    FrameRow(osgViewer::ViewerBase& viewer, unsigned frame)
        : m_viewer(viewer)
        , m_frame(frame)
    {
        osgViewer::ViewerBase::Cameras cameras;
        viewer.getCameras(cameras);
        for (const osg::Camera* camera : cameras)
            if (const osg::Stats* stats = camera->getStats())
                m_cameras.push_back(stats);
    }

    bool isKnown() const { return ofViewer("Reference time") > 0; }
    void appendTo(std::vector<std::int64_t>& values) const
    {
        const std::int64_t age = nanoseconds(m_viewer.elapsedTime() - ofViewer("Reference time"));
        const std::int64_t update =
            nanoseconds(ofViewer("Event traversal time taken") + ofViewer("Update traversal time taken"));
        const std::int64_t cull = nanoseconds(ofCameras("Cull traversal time taken"));
        const std::int64_t draw = nanoseconds(ofCameras("Draw traversal time taken"));
        const double gpu = ofCameras("GPU draw time taken");
        values.insert(values.end(), {now() - age, update + cull + draw, update, cull, draw,
                                     gpu > 0 ? nanoseconds(gpu) : FrameTable::Missing,
                                     std::int64_t(ofCameras("Visible number of drawables"))});
    }
    static std::vector<std::string> columns()
    {
        return {"Begin", "Whole", "Update", "Cull", "Draw", "Gpu", "DrawCalls"};
    }

private:
    double attribute(const osg::Stats& stats, const char* name) const
    {
        double value = 0;
        return stats.getAttribute(m_frame, name, value) ? value : 0;
    }
    double ofViewer(const char* name) const
    {
        const osg::Stats* stats = m_viewer.getViewerStats();
        return stats ? attribute(*stats, name) : 0;
    }
    double ofCameras(const char* name) const
    {
        double sum = 0;
        for (const osg::Stats* stats : m_cameras)
            sum += attribute(*stats, name);
        return sum;
    }

    osgViewer::ViewerBase& m_viewer;
    unsigned m_frame;
    std::vector<const osg::Stats*> m_cameras;
};

const char* const ofViewer[] = {"frame_rate", "event", "update"};
const char* const ofCamera[] = {"rendering", "gpu", "scene"};

} // namespace

OsgCounters::OsgCounters(OsgViewers& viewers)
    : m_viewers(viewers)
{
}

std::vector<CounterInfo> OsgCounters::counters()
{
    std::vector<CounterInfo> infos;
    for (const Row& row : rows)
        infos.push_back({std::uint32_t(infos.size() + 1), row.name, row.unit, row.documentation});
    return infos;
}

std::vector<double> OsgCounters::values()
{
    start();
    std::vector<double> values;
    for (const Row& row : rows) {
        double sum = 0;
        if (row.source == Source::Viewer) {
            for (osgViewer::ViewerBase* viewer : m_viewers.viewers())
                if (const osg::Stats* stats = viewer->getViewerStats())
                    sum += latest(*stats, row.attribute);
        } else {
            for (osg::Camera* camera : m_viewers.cameras())
                if (const osg::Stats* stats = camera->getStats())
                    sum += latest(*stats, row.attribute);
        }
        values.push_back(sum * row.factor);
    }
    return values;
}

FrameTable OsgCounters::takeFrames()
{
    start();
    FrameTable table;
    const std::vector<osgViewer::ViewerBase*> viewers = m_viewers.viewers();
    const osg::Stats* stats = viewers.empty() ? nullptr : viewers.front()->getViewerStats();
    if (!stats || stats->getLatestFrameNumber() < Drawing)
        return table;
    const unsigned last = stats->getLatestFrameNumber() - Drawing;
    const unsigned kept = stats->getEarliestFrameNumber();
    const unsigned first = m_lastFrame == 0 || m_lastFrame > last ? last : std::max(m_lastFrame + 1, kept);
    table.columns = FrameRow::columns();
    for (unsigned frame = first; frame <= last; ++frame)
        if (const FrameRow row(*viewers.front(), frame); row.isKnown())
            row.appendTo(table.values);
    m_lastFrame = last;
    return table;
}

void OsgCounters::start()
{
    for (osgViewer::ViewerBase* viewer : m_viewers.viewers())
        for (const char* name : ofViewer)
            collect(viewer->getViewerStats(), name);
    for (osg::Camera* camera : m_viewers.cameras())
        for (const char* name : ofCamera)
            collect(camera->getStats(), name);
}

/// What is collected is read by threads that draw, and not locked when it is set.
void OsgCounters::collect(osg::Stats* stats, const std::string& name)
{
    const osg::Stats* reading = stats;
    if (!stats || reading->collectStats(name) || !m_viewers.waitForDrawing())
        return;
    stats->collectStats(name, true);
    m_switched.push_back({stats, name});
}

void OsgCounters::stop()
{
    if (m_switched.empty() || !m_viewers.waitForDrawing())
        return;
    for (const Switched& switched : m_switched)
        switched.stats->collectStats(switched.name, false);
    m_switched.clear();
    m_lastFrame = 0;
}

} // namespace scopix::live
