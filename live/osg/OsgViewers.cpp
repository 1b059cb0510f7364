// SPDX-License-Identifier: MIT
#include "OsgViewers.h"

#include <osgViewer/Renderer>

#include <OpenThreads/ScopedLock>

#include <algorithm>
#include <chrono>
#include <thread>

namespace scopix::live
{

namespace
{

/// Looks into the queues of a renderer, which only classes derived from it can name.
class RendererQueues : public osgViewer::Renderer
{
public:
    static bool isIdle(osgViewer::Renderer& renderer)
    {
        ThreadSafeQueue& available = renderer.*(&RendererQueues::_availableQueue);
        OpenThreads::ScopedLock<OpenThreads::Mutex> lock(available._mutex);
        return available._queue.size() >= 2;
    }
};

bool isIdle(osg::Camera& camera)
{
    auto* renderer = dynamic_cast<osgViewer::Renderer*>(camera.getRenderer());
    return !renderer || renderer->getGraphicsThreadDoesCull() || !camera.getGraphicsContext() ||
           !camera.getGraphicsContext()->getGraphicsThread() || RendererQueues::isIdle(*renderer);
}

bool isIdle(osgViewer::ViewerBase& viewer)
{
    if (!viewer.areThreadsRunning())
        return true;
    osgViewer::ViewerBase::Cameras cameras;
    viewer.getCameras(cameras);
    return std::all_of(cameras.begin(), cameras.end(), [](osg::Camera* camera) { return isIdle(*camera); });
}

} // namespace

class OsgViewers::Observer : public osg::Observer
{
public:
    explicit Observer(osgViewer::ViewerBase& viewer)
        : m_viewer(&viewer)
    {
        viewer.addObserver(this);
    }
    ~Observer() override
    {
        if (m_viewer)
            m_viewer->removeObserver(this);
    }
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;

    void objectDeleted(void*) override { m_viewer = nullptr; }
    osgViewer::ViewerBase* viewer() const { return m_viewer; }

private:
    osgViewer::ViewerBase* m_viewer;
};

OsgViewers::OsgViewers() = default;
OsgViewers::~OsgViewers() = default;

void OsgViewers::betweenFrames(osgViewer::ViewerBase& viewer)
{
    m_isDrawn = false;
    const auto hasEnded = [](const auto& observer) { return !observer->viewer(); };
    m_observers.erase(std::remove_if(m_observers.begin(), m_observers.end(), hasEnded), m_observers.end());
    const auto isThis = [&](const auto& observer) { return observer->viewer() == &viewer; };
    if (std::none_of(m_observers.begin(), m_observers.end(), isThis))
        m_observers.push_back(std::make_unique<Observer>(viewer));
}

std::vector<osgViewer::ViewerBase*> OsgViewers::viewers() const
{
    std::vector<osgViewer::ViewerBase*> viewers;
    for (const auto& observer : m_observers)
        if (observer->viewer())
            viewers.push_back(observer->viewer());
    return viewers;
}

std::vector<osgViewer::View*> OsgViewers::views() const
{
    std::vector<osgViewer::View*> all;
    for (osgViewer::ViewerBase* viewer : viewers()) {
        osgViewer::ViewerBase::Views views;
        viewer->getViews(views);
        all.insert(all.end(), views.begin(), views.end());
    }
    return all;
}

std::vector<osg::Camera*> OsgViewers::cameras() const
{
    std::vector<osg::Camera*> cameras;
    for (osgViewer::View* view : views()) {
        cameras.push_back(view->getCamera());
        for (unsigned i = 0; i < view->getNumSlaves(); ++i)
            cameras.push_back(view->getSlave(i)._camera.get());
    }
    cameras.erase(std::remove(cameras.begin(), cameras.end(), nullptr), cameras.end());
    return cameras;
}

bool OsgViewers::waitForDrawing()
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(2);
    while (!m_isDrawn) {
        const std::vector<osgViewer::ViewerBase*> all = viewers();
        m_isDrawn = std::all_of(all.begin(), all.end(), [](auto* viewer) { return isIdle(*viewer); });
        if (!m_isDrawn && std::chrono::steady_clock::now() > end)
            return false;
        if (!m_isDrawn)
            std::this_thread::sleep_for(std::chrono::microseconds(50));
    }
    return true;
}

void OsgViewers::requestRedraw()
{
    for (osgViewer::View* view : views())
        view->requestRedraw();
}

} // namespace scopix::live
