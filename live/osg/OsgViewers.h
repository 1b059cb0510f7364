// SPDX-License-Identifier: MIT
#pragma once

#include <osg/Camera>
#include <osgViewer/View>
#include <osgViewer/ViewerBase>

#include <memory>
#include <vector>

namespace scopix::live
{

/// The viewers of the program that have drawn a frame, and the moment in which their scenes may be changed.
///
/// Viewers may end at any time, also those on a stack. For the thread that draws frames.
class OsgViewers
{
public:
    OsgViewers();
    ~OsgViewers();
    OsgViewers(const OsgViewers&) = delete;
    OsgViewers& operator=(const OsgViewers&) = delete;

    /// To be called between two frames, before anything else.
    void betweenFrames(osgViewer::ViewerBase& viewer);

    std::vector<osgViewer::ViewerBase*> viewers() const;
    std::vector<osgViewer::View*> views() const;
    /// The master camera of each view, then its slaves.
    std::vector<osg::Camera*> cameras() const;

    /// Waits until no thread draws the last frame any more; false where one has not finished within two
    /// seconds.
    ///
    /// Threads that cull have ended their part when a frame returns. A thread that draws takes what was
    /// culled from a queue of its renderer, draws it, and puts it into another; it reads the scene in between
    /// and at no other time. So when nothing is on its way between the two queues, this thread alone knows
    /// the scene until it culls the next frame, and the locks of the queues order what was read before what
    /// is written then.
    bool waitForDrawing();
    void requestRedraw();

private:
    class Observer;

    std::vector<std::unique_ptr<Observer>> m_observers;
    bool m_isDrawn = false;
};

} // namespace scopix::live
