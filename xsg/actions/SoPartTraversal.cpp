// SPDX-License-Identifier: MIT
#include <xsg/actions/SoPartTraversal.h>

#include <xsg/nodes/shapes/SoShape.h>

void SoPartTraversal::follow(const SoPath& path)
{
    SoPathTraversal::follow(idsOf(path));
    m_isWithin = false;
}

// What a group without a scope sets is seen by what follows it.
bool SoPartTraversal::wantsGroup(SoGroup* group)
{
    return m_isWithin || SoPathTraversal::wantsGroup(group);
}

void SoPartTraversal::enterGroup(SoGroup* group)
{
    m_isWithin = m_isWithin || isEnd(group);
    SoPathTraversal::enterGroup(group);
}

void SoPartTraversal::leaveGroup(SoGroup* group)
{
    if (m_isWithin && isEnd(group)) {
        m_isWithin = false;
        stop();
    }
    SoPathTraversal::leaveGroup(group);
}

void SoPartTraversal::visitShape(SoShape* shape)
{
    const bool isOnly = !m_isWithin && isEnd(shape);
    if (isOnly || m_isWithin)
        visitPartShape(shape);
    if (isOnly)
        stop();
}
