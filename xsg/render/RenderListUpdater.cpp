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

void xsg::RenderListUpdater::setColors(const SoShapeColors* colors)
{
    const SoShapeColors* used = colors && !colors->isEmpty() ? colors : nullptr;
    const std::uint64_t version = used ? used->getVersion() : 0;
    if (used == m_colors && version == m_colorsVersion)
        return;
    m_colors = used;
    m_colorsVersion = version;
    m_builder.setColors(used);
    m_patcher.setColors(used);
    invalidate();
}

bool xsg::RenderListUpdater::isSameView(const SoNode* root, const RenderView& view) const
{
    return root->getNodeId() == m_rootId && view.camera == m_view.camera &&
           (!m_list.isViewDependent || view.eye == m_view.eye);
}

// Nodes that the walk stands at may be gone when children anywhere have changed.
bool xsg::RenderListUpdater::canGoOn(const SoNode* root, const RenderView& view) const
{
    return m_isBuilding && root->getNodeId() == m_rootId && view.camera == m_view.camera &&
           (root->getChangeCount() == m_rootCount || SoGroup::getStructureCount() == m_structureCount);
}

xsg::RenderListUpdater::Update xsg::RenderListUpdater::update(SoNode* root, const RenderView& view,
                                                              Time until)
{
    if (canGoOn(root, view))
        return build(root, until);
    if (!m_isBuilding && isSameView(root, view)) {
        if (root->getChangeCount() == m_rootCount)
            return Update::Same;
        m_view = view;
        m_rootCount = root->getChangeCount();
        const bool isPatched = m_patcher.patch(root, view);
        m_visited = m_patcher.getNumVisited();
        if (isPatched)
            return Update::Changed;
    }
    m_restarts = m_isBuilding && root->getNodeId() == m_rootId ? m_restarts + 1 : 0;
    m_view = view;
    m_rootId = root->getNodeId();
    m_rootCount = root->getChangeCount();
    m_structureCount = SoGroup::getStructureCount();
    m_isBuilding = true;
    m_builder.begin(root, view);
    return build(root, until);
}

// What has changed since the walk began is found by the next update.
xsg::RenderListUpdater::Update xsg::RenderListUpdater::build(SoNode* root, Time until)
{
    if (root->getChangeCount() == m_rootCount)
        m_structureCount = SoGroup::getStructureCount(); // others' children are of no concern
    if (!m_builder.advance(m_restarts < MostRestarts ? until : Time::max()))
        return Update::Unfinished;
    m_isBuilding = false;
    m_visited = m_builder.getNumVisited();
    return Update::Changed;
}

void xsg::RenderListUpdater::clear()
{
    m_list.clear();
    m_isBuilding = false;
    invalidate();
}
