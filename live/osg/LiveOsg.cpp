// SPDX-License-Identifier: MIT
#include "LiveOsg.h"

#include "OsgAdapter.h"

#include <scopix/live/server/Server.h>

#include <osg/OperationThread>
#include <osgViewer/CompositeViewer>
#include <osgViewer/Viewer>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>

namespace scopix::live
{

namespace
{

/// Serves all viewers of one thread. Ends when the program does, before the scene graph's own statics.
class Session
{
public:
    static Session& instance()
    {
        static auto* const session = new Session; // reachable until the end, whatever ends first
        return *session;
    }

    void betweenFrames(osgViewer::ViewerBase& viewer)
    {
        if (!m_server || m_thread != std::this_thread::get_id() || m_isBusy)
            return;
        m_isBusy = true;
        m_adapter.betweenFrames(viewer);
        m_server->betweenFrames();
        m_isBusy = false;
    }

private:
    Session()
        : m_server(std::make_unique<Server>(m_adapter))
    {
        if (!m_server->problem().empty())
            std::fprintf(stderr, "Scopix: %s\n", m_server->problem().c_str());
        std::atexit([] { instance().m_server.reset(); });
    }

    OsgAdapter m_adapter;
    std::unique_ptr<Server> m_server;
    std::thread::id m_thread = std::this_thread::get_id();
    bool m_isBusy = false;
};

void betweenFrames(osgViewer::ViewerBase& viewer) noexcept
{
    try {
        Session::instance().betweenFrames(viewer);
    } catch (...) { // no exception of ours is the program's concern
    }
}

/// Is run by the viewer once a frame, after its update callbacks.
class FrameOperation : public osg::Operation
{
public:
    FrameOperation()
        : osg::Operation("Scopix", true)
    {
    }

    void operator()(osg::Object* object) override
    {
        if (auto* viewer = dynamic_cast<osgViewer::ViewerBase*>(object))
            betweenFrames(*viewer);
    }
};

} // namespace

void inspect(osgViewer::ViewerBase& viewer) noexcept
{
    try {
        Session::instance();
        viewer.addUpdateOperation(new FrameOperation);
    } catch (...) {
    }
}

} // namespace scopix::live

// What the preloaded library calls; each viewer class comes with its own address of the base class.
extern "C" {

SCOPIX_LIVE_API void scopixLiveBetweenFrames(osgViewer::ViewerBase* viewer)
{
    scopix::live::betweenFrames(*viewer);
}

SCOPIX_LIVE_API void scopixLiveViewerIdle(osgViewer::Viewer* viewer)
{
    scopix::live::betweenFrames(*viewer);
}

SCOPIX_LIVE_API void scopixLiveCompositeViewerIdle(osgViewer::CompositeViewer* viewer)
{
    scopix::live::betweenFrames(*viewer);
}
}
