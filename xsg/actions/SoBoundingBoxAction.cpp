#include <xsg/actions/SoBoundingBoxAction.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/nodes/SoDrawStyle.h>
#include <xsg/nodes/SoPoints.h>
#include <xsg/nodes/SoSeparator.h>
#include <xsg/nodes/SoShape.h>

namespace
{

std::uint64_t pointsIdOf(const SoState& state)
{
    return state.points ? state.points->getNodeId() : 0;
}

std::uint32_t pointsCountOf(const SoState& state)
{
    return state.points ? state.points->getChangeCount() : 0;
}

} // namespace

bool SoBoundingBoxAction::isValid(const SoSeparator& separator, const SoState& stateAt)
{
    const auto& cache = separator.boxCache();
    return cache.isValid && cache.changeCount == separator.getChangeCount() &&
           cache.pointsId == pointsIdOf(stateAt) && cache.pointsCount == pointsCountOf(stateAt);
}

SbBox3f SoBoundingBoxAction::getBox(SoNode* root)
{
    resetState();
    state().chooseAll = true;
    m_boxes.assign(1, {});
    if (root)
        traverse(root);
    return m_boxes.front();
}

bool SoBoundingBoxAction::wantsGroup(SoGroup* group)
{
    const SoSeparator* separator = group->asSeparator();
    if (!separator || !isValid(*separator, state()))
        return true;
    xsg::feeds.boxHits.add();
    extend(separator->boxCache().box);
    return false;
}

void SoBoundingBoxAction::enterGroup(SoGroup* group)
{
    if (!group->asSeparator())
        return;
    xsg::feeds.boxMisses.add();
    m_boxes.emplace_back();
    state().modelMatrix = SbMatrix();
    state().instances = nullptr;
}

void SoBoundingBoxAction::leaveGroup(SoGroup* group)
{
    const SoSeparator* separator = group->asSeparator();
    if (!separator)
        return;
    const SbBox3f box = m_boxes.back();
    m_boxes.pop_back();
    separator->boxCache() = {box, true, separator->getChangeCount(), pointsIdOf(state()),
                             pointsCountOf(state())};
    extend(box);
}

void SoBoundingBoxAction::visitShape(SoShape* shape)
{
    if (!state().drawStyle || state().drawStyle->isVisible())
        extend(shape->getBox(state()));
}

void SoBoundingBoxAction::extend(const SbBox3f& box)
{
    if (box.isEmpty())
        return;
    state().forEachInstance([&](const SbMatrix& matrix) { m_boxes.back().extendBy(matrix.transform(box)); });
}
