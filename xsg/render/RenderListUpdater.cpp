// SPDX-License-Identifier: MIT
#include <xsg/render/RenderListUpdater.h>

#include <xsg/actions/SoHiding.h>

void xsg::RenderListUpdater::setHiding(const SoHiding* hiding)
{
    const std::uint64_t version = hiding ? hiding->getVersion() : 0;
    if (hiding == m_hiding && version == m_hidingVersion)
        return;
    m_hiding = hiding;
    m_hidingVersion = version;
    m_builder.setHiding(hiding);
    m_patcher.setHiding(hiding);
    invalidate();
}

bool xsg::RenderListUpdater::update(SoNode* root, const RenderView& view)
{
    const bool isSameView = root->getNodeId() == m_rootId && view.camera == m_view.camera &&
                            (!m_list.isViewDependent || view.eye == m_view.eye);
    if (isSameView && root->getChangeCount() == m_rootCount)
        return false;
    m_view = view;
    const bool isPatched = isSameView && m_patcher.patch(root, view);
    if (!isPatched)
        m_builder.build(root, view);
    m_visited = isPatched ? m_patcher.getNumVisited() : m_builder.getNumVisited();
    m_rootId = root->getNodeId();
    m_rootCount = root->getChangeCount();
    return true;
}

void xsg::RenderListUpdater::clear()
{
    m_list.clear();
    invalidate();
}
