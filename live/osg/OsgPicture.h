// SPDX-License-Identifier: MIT
#pragma once

#include "OsgViewing.h"

#include <mutex>

namespace scopix::live
{

/// Takes pictures of the program's window as it is drawn. A callback is there only from when a picture was
/// asked for until it was taken. Between frames only; the picture itself is read by the thread that draws.
class OsgPicture
{
public:
    OsgPicture(OsgViewers& viewers, OsgViewing& viewing);
    ~OsgPicture();
    OsgPicture(const OsgPicture&) = delete;
    OsgPicture& operator=(const OsgPicture&) = delete;

    void ask(std::uint32_t width, std::uint32_t height);
    std::optional<Picture> take();
    void stop();

private:
    class Callback;

    OsgViewers& m_viewers;
    OsgViewing& m_viewing;
    osg::observer_ptr<osg::Camera> m_camera;
    osg::ref_ptr<Callback> m_callback;
    std::uint32_t m_width = 0;
    std::uint32_t m_height = 0;
};

} // namespace scopix::live
