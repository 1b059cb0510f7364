// SPDX-License-Identifier: MIT
#include <xsg/actions/SoPathTraversal.h>

#include <xsg/nodes/shapes/SoShape.h>

void SoPathTraversal::follow(const SoPath& path)
{
    m_path = path;
    m_isWithin = false;
}

bool SoPathTraversal::isOnPath(const SoNode* node) const
{
    const auto depth = static_cast<int>(getFrames().size());
    if (m_path.getNode(depth) != node)
        return false;
    for (int i = 0; i < depth; ++i) {
        if (m_path.getNode(i) != getFrames()[static_cast<std::size_t>(i)].group)
            return false;
    }
    return true;
}

bool SoPathTraversal::isTail(const SoNode* node) const
{
    return static_cast<int>(getFrames().size()) == m_path.getLength() - 1 && isOnPath(node);
}

// What a group without a scope sets is seen by what follows it.
bool SoPathTraversal::wantsGroup(SoGroup* group)
{
    return m_isWithin || !group->isStateScope() || isOnPath(group);
}

void SoPathTraversal::enterGroup(SoGroup* group)
{
    m_isWithin = m_isWithin || isTail(group);
}

void SoPathTraversal::leaveGroup(SoGroup* group)
{
    if (m_isWithin && isTail(group)) {
        m_isWithin = false;
        stop();
    }
}

void SoPathTraversal::visitShape(SoShape* shape)
{
    const bool isOnly = !m_isWithin && isTail(shape);
    if (isOnly || m_isWithin)
        visitPartShape(shape);
    if (isOnly)
        stop();
}
