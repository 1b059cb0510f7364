// SPDX-License-Identifier: MIT
#include <xsg/costs/SoCostPictures.h>

SoCostPictures::SoCostPictures(SoNode* root, const SoCamera* camera, int width, int height,
                               const SoFittingImageReader& reader, const SoHiding& hiding)
    : m_root(root)
    , m_camera(const_cast<SoCamera*>(camera))
    , m_width(width)
    , m_height(height)
    , m_hiddenAlways(hiding)
    , m_hiding(hiding)
{
    m_log.addUser();
    m_log.setTimesEach(true);
    m_renderer.setSamples(1);
    m_renderer.getRenderer().setFrameLog(&m_log);
    m_renderer.getRenderer().setHiding(&m_hiding);
    if (reader)
        m_renderer.getRenderer().setFittingImageReader(reader);
}

void SoCostPictures::showAll()
{
    m_numbers.clear();
    m_hiding.showLike(m_hiddenAlways);
}

void SoCostPictures::hide(const SoNode* node)
{
    showAll();
    m_hiding.setHidden(node, true);
}

void SoCostPictures::isolate(const std::vector<const SoNode*>& nodes)
{
    showAll();
    m_hiding.isolate(nodes);
}

bool SoCostPictures::draw(bool countsPixels)
{
    m_renderer.getRenderer().setCountsPixels(countsPixels);
    if (!m_renderer.render(m_root.get(), m_camera.get(), m_width, m_height, m_pixels))
        return false;
    m_numbers.push_back(m_log.getLast());
    return true;
}

std::vector<SoFrame> SoCostPictures::getFrames() const
{
    std::vector<SoFrame> frames;
    SoFrame frame;
    for (std::size_t i = 1; i + 1 < m_numbers.size(); ++i) {
        if (m_log.get(m_numbers[i], frame))
            frames.push_back(frame);
    }
    return frames;
}
