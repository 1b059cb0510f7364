// SPDX-License-Identifier: MIT
#include "OsgPicture.h"

#include <osg/Image>

#include <algorithm>
#include <atomic>

namespace scopix::live
{

namespace
{

/// The picture, turned upside down and no larger than wanted; what is made smaller is averaged.
Picture fitted(const osg::Image& image, std::uint32_t mostWidth, std::uint32_t mostHeight)
{
    const auto width = std::uint32_t(image.s());
    const auto height = std::uint32_t(image.t());
    const std::uint32_t step =
        std::max({1u, (width + mostWidth - 1) / mostWidth, (height + mostHeight - 1) / mostHeight});
    Picture picture;
    picture.width = std::max(1u, width / step);
    picture.height = std::max(1u, height / step);
    picture.pixels.resize(std::size_t(picture.width) * picture.height * 4);
    const std::uint32_t block = std::min({step, width, height});
    for (std::uint32_t y = 0; y < picture.height; ++y)
        for (std::uint32_t x = 0; x < picture.width; ++x) {
            std::uint32_t sums[4] = {};
            for (std::uint32_t v = 0; v < block; ++v) {
                const std::uint8_t* from = image.data(int(x * step), int(height - 1 - y * step - v));
                for (std::uint32_t i = 0; i < block * 4; ++i)
                    sums[i % 4] += from[i];
            }
            std::uint8_t* to = &picture.pixels[(std::size_t(y) * picture.width + x) * 4];
            for (int i = 0; i < 3; ++i)
                to[i] = std::uint8_t(sums[i] / (block * block));
            to[3] = 255;
        }
    return picture;
}

} // namespace

class OsgPicture::Callback : public osg::Camera::DrawCallback
{
public:
    explicit Callback(osg::Camera::DrawCallback* inner)
        : m_inner(inner)
    {
    }

    osg::Camera::DrawCallback* inner() const { return m_inner.get(); }

    void operator()(osg::RenderInfo& info) const override
    {
        if (m_inner)
            (*m_inner)(info);
        if (!m_isWanted.exchange(false))
            return;
        const osg::GraphicsContext* context =
            info.getState() ? info.getState()->getGraphicsContext() : nullptr;
        if (!context || !context->getTraits())
            return;
        osg::ref_ptr<osg::Image> image = new osg::Image;
        image->readPixels(0, 0, context->getTraits()->width, context->getTraits()->height, GL_RGBA,
                          GL_UNSIGNED_BYTE);
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_image = image;
    }

    osg::ref_ptr<osg::Image> takeImage() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        osg::ref_ptr<osg::Image> image = m_image;
        m_image = nullptr;
        return image;
    }

private:
    osg::ref_ptr<osg::Camera::DrawCallback> m_inner;
    mutable std::atomic<bool> m_isWanted{true};
    mutable std::mutex m_mutex;
    mutable osg::ref_ptr<osg::Image> m_image;
};

OsgPicture::OsgPicture(OsgViewers& viewers, OsgViewing& viewing)
    : m_viewers(viewers)
    , m_viewing(viewing)
{
}

OsgPicture::~OsgPicture() = default;

void OsgPicture::ask(std::uint32_t width, std::uint32_t height)
{
    m_width = width;
    m_height = height;
    osg::Camera* camera = m_viewing.lastCamera();
    if (m_callback || !camera || width == 0 || height == 0 || !m_viewers.waitForDrawing())
        return;
    m_callback = new Callback(camera->getFinalDrawCallback());
    m_camera = camera;
    camera->setFinalDrawCallback(m_callback);
    m_viewers.requestRedraw();
}

std::optional<Picture> OsgPicture::take()
{
    const osg::ref_ptr<osg::Image> image = m_callback ? m_callback->takeImage() : nullptr;
    if (!image)
        return std::nullopt;
    stop();
    if (!image->data() || m_width == 0 || m_height == 0)
        return std::nullopt;
    return fitted(*image, m_width, m_height);
}

void OsgPicture::stop()
{
    osg::ref_ptr<osg::Camera> camera;
    const bool isThere = m_callback && m_camera.lock(camera) && camera->getFinalDrawCallback() == m_callback;
    if (isThere && !m_viewers.waitForDrawing())
        return; // it stays until the next call, and reads no more pictures
    if (isThere)
        camera->setFinalDrawCallback(m_callback->inner());
    m_callback = nullptr;
    m_camera = nullptr;
}

} // namespace scopix::live
