// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/adapter/Adapter.h>

#include <osg/Notify>
#include <osg/ref_ptr>

#include <vector>

namespace scopix::live
{

/// Listens to what OpenSceneGraph notes, from any thread, and passes it on to who listened before.
class OsgNotices
{
public:
    OsgNotices();
    ~OsgNotices();
    OsgNotices(const OsgNotices&) = delete;
    OsgNotices& operator=(const OsgNotices&) = delete;

    void start();
    /// Gives the place back to who had it, unless another has taken it since.
    void stop();
    /// Whole lines; the oldest ones are left out where there are too many.
    std::vector<Notice> take();

private:
    class Handler;

    osg::ref_ptr<Handler> m_handler;
};

} // namespace scopix::live
