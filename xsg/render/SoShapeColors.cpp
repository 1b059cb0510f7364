// SPDX-License-Identifier: MIT
#include <xsg/render/SoShapeColors.h>

#include <xsg/nodes/base/SoNode.h>

#include <atomic>

namespace
{

std::uint64_t nextVersion()
{
    static std::atomic<std::uint64_t> last{0};
    return ++last;
}

} // namespace

void SoShapeColors::set(const SoNode* shape, const SbColor& color)
{
    m_colors[shape->getNodeId()] = color;
    m_version = nextVersion();
}

void SoShapeColors::clear()
{
    m_colors.clear();
    m_version = nextVersion();
}

const SbColor& SoShapeColors::get(const SoNode& shape) const
{
    static const SbColor grey(0.35F, 0.35F, 0.35F);
    const auto found = m_colors.find(shape.getNodeId());
    return found == m_colors.end() ? grey : found->second;
}
