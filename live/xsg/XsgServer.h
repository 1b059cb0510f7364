// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/server/Server.h>
#include <scopix/live/xsg/XsgAdapter.h>

/// Where a program loads the library at run time, instead of linking it: dlsym() finds these two. The first
/// one returns what the second one ends, or null.
extern "C" {
SCOPIX_LIVE_API void* scopixLiveBegin(SoNode* root, const char* name);
SCOPIX_LIVE_API void scopixLiveEnd(void* server);
}

namespace scopix::live
{

/// Makes a scene inspectable in one line, in a program that processes the sensor queue:
///
///     scopix::live::XsgServer server(root);
///
/// A timer sensor answers inspectors sixty times a second, so that the program's loop need not know of it. In
/// the scene's thread.
class SCOPIX_LIVE_API XsgServer
{
public:
    explicit XsgServer(SoNode* root, const std::string& name = {});
    ~XsgServer();
    XsgServer(const XsgServer&) = delete;
    XsgServer& operator=(const XsgServer&) = delete;

    XsgAdapter& adapter() noexcept;
    Server& server() noexcept;

private:
    class Private;
    std::unique_ptr<Private> m_private;
};

} // namespace scopix::live
