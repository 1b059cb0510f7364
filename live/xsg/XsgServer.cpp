// SPDX-License-Identifier: MIT
#include "XsgServer.h"

#include <xsg/sensors/SoTimerSensor.h>

#include <new>

namespace scopix::live
{

class XsgServer::Private
{
public:
    Private(SoNode* root, const std::string& name)
        : adapter(root)
        , server(adapter, name)
        , m_timer(tick, this)
    {
        m_timer.setInterval(SbTime(1.0 / 60));
        m_timer.schedule();
    }

    XsgAdapter adapter;
    Server server;

private:
    static void tick(void* self, SoSensor* /*timer*/) { static_cast<Private*>(self)->server.betweenFrames(); }

    SoTimerSensor m_timer;
};

XsgServer::XsgServer(SoNode* root, const std::string& name)
    : m_private(std::make_unique<Private>(root, name))
{
}

XsgServer::~XsgServer() = default;

XsgAdapter& XsgServer::adapter() noexcept
{
    return m_private->adapter;
}

Server& XsgServer::server() noexcept
{
    return m_private->server;
}

} // namespace scopix::live

void* scopixLiveBegin(SoNode* root, const char* name)
{
    try {
        return new scopix::live::XsgServer(root, name ? name : "");
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void scopixLiveEnd(void* server)
{
    delete static_cast<scopix::live::XsgServer*>(server);
}
