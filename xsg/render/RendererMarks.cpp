// SPDX-License-Identifier: MIT
// The lines around what is marked.
#include <xsg/render/SoRendererImpl.h>

#include <utility>

namespace
{

// The places that are in both; each in order.
std::vector<xsg::Run> common(const std::vector<xsg::Run>& some, const std::vector<xsg::Run>& others)
{
    std::vector<xsg::Run> both;
    auto other = others.begin();
    for (auto one = some.begin(); one != some.end() && other != others.end();) {
        const xsg::Run part{std::max(one->first, other->first), std::min(one->end, other->end)};
        if (part.first < part.end)
            both.push_back(part);
        if (one->end < other->end)
            ++one;
        else
            ++other;
    }
    return both;
}

} // namespace

void SoRenderer::Impl::setHighlight(const std::vector<std::uint64_t>& nodeIds)
{
    const auto set = [](Marked& marked, std::vector<std::uint64_t> ids) {
        const bool isOther = ids != marked.nodeIds;
        marked.isOther |= isOther;
        marked.nodeIds.swap(ids);
        return isOther;
    };
    const auto current = nodeIds.end() - (nodeIds.empty() ? 0 : 1);
    const bool areOthers = set(m_others, {nodeIds.begin(), current});
    if (set(m_current, {current, nodeIds.end()}) || areOthers)
        m_updater.watch(nodeIds);
}

void SoRenderer::Impl::collect(Marked& marked)
{
    const bool isOther = std::exchange(marked.isOther, false) || m_changes.all || m_changes.structure;
    if (isOther) {
        marked.items.clear();
        for (const std::uint64_t nodeId : marked.nodeIds)
            m_list.collectItemsOf(nodeId, marked.items);
        if (marked.nodeIds.size() > 1) { // one may stand below another
            std::sort(marked.items.begin(), marked.items.end());
            marked.items.erase(std::unique(marked.items.begin(), marked.items.end()), marked.items.end());
        }
    }
    if (isOther || m_changes.orders)
        m_opaque.findPlaces(marked.items, marked.opaque);
}

// False where nothing is to be marked.
bool SoRenderer::Impl::planMark(const Marked& marked)
{
    m_tasks.clear();
    m_nextTask = 0;
    const std::vector<xsg::Run> opaque = common(marked.opaque, m_visible);
    std::vector<xsg::Run> transparent;
    if (!marked.items.empty())
        m_transparent.findPlaces(marked.items, transparent);
    if ((opaque.empty() && transparent.empty()) || !m_outline.prepare(m_width, m_height, error))
        return false;
    planMask(m_opaque, opaque);
    m_opaqueTasks = m_tasks.size();
    planMask(m_transparent, transparent);
    return true;
}

void SoRenderer::Impl::planMask(const xsg::InstanceList& instances, const std::vector<xsg::Run>& runs)
{
    instances.forEachPart(runs, [&](const xsg::Run& part) {
        plan(instances, part);
        countDrawn(*instances.getItem(m_list.items, part.first).geometry, part.end - part.first);
    });
}

bool SoRenderer::Impl::drawMarks(Time until)
{
    constexpr float Thinner = 2.0F / 3;
    for (; m_mark < 2; ++m_mark) {
        const bool isCurrent = m_mark == 1;
        const float thickness = isCurrent ? highlightThickness : std::max(1.0F, Thinner * highlightThickness);
        const bool isToBegin = !m_isMarkPlanned && planMark(isCurrent ? m_current : m_others);
        if (isToBegin) {
            m_outline.beginMask();
            m_outline.endMask();
            m_isMarkPlanned = true;
        }
        if (m_isMarkPlanned && !drawMark(until, thickness))
            return false;
        m_isMarkPlanned = false;
    }
    return true;
}

bool SoRenderer::Impl::drawMark(Time until, float thickness)
{
    m_outline.goOnWithMask();
    m_state.setEdgesOnly(false);
    m_shader.use();
    m_shader.setPlaceOnly(true);
    const bool isFinished =
        drawTasks(m_opaque, m_opaqueTasks, until) && drawTasks(m_transparent, m_tasks.size(), until);
    if (isFinished)
        m_outline.draw(highlightColor, thickness);
    else
        m_outline.endMask();
    m_shader.use();
    m_shader.setPlaceOnly(false);
    return isFinished;
}
