// SPDX-License-Identifier: MIT
#include <xsg/actions/SoTraversal.h>

#include <xsg/actions/GroupCache.h>
#include <xsg/actions/RepeatBound.h>
#include <xsg/actions/SoHiding.h>
#include <xsg/nodes/shapes/SoShape.h>

namespace
{

void prefetch(const void* place, int bytes)
{
    constexpr int Line = 64; // what a processor fetches at once
    for (int at = 0; at < bytes; at += Line)
        __builtin_prefetch(static_cast<const char*>(place) + at);
}

// A large scene is walked faster than memory delivers it, so what the walk will meet soon is prefetched:
// first the child itself, then its list of children, then those and what is remembered about it.
void lookAhead(const std::vector<SoNode*>& children, std::size_t child)
{
    constexpr std::size_t Steps = 3;
    constexpr std::size_t MostGrandchildren = 4;
    if (child + 3 * Steps >= children.size())
        return;
    prefetch(children[child + 3 * Steps], sizeof(SoGroup));
    if (const SoGroup* group = children[child + 2 * Steps]->asGroup())
        prefetch(group->getChildren().data(), 1);
    if (SoGroup* group = children[child + Steps]->asGroup()) {
        prefetch(group->getExtension(), sizeof(xsg::GroupCache));
        const auto& grandchildren = group->getChildren();
        for (std::size_t i = 0; i < std::min(grandchildren.size(), MostGrandchildren); ++i)
            prefetch(grandchildren[i], 3 * sizeof(SoNode));
    }
}

} // namespace

SoTraversal::SoTraversal() = default;
SoTraversal::~SoTraversal() = default;

bool SoTraversal::wantsGroup(SoGroup* /*group*/)
{
    return true;
}

void SoTraversal::enterGroup(SoGroup* /*group*/) {}
void SoTraversal::leaveGroup(SoGroup* /*group*/) {}
void SoTraversal::visitShape(SoShape* /*shape*/) {}
void SoTraversal::visitProperty(SoNode* /*node*/) {}

void SoTraversal::traverse(SoNode* root)
{
    begin(root);
    while (!m_frames.empty() && !m_stopped)
        step();
    end();
}

bool SoTraversal::advance(std::chrono::steady_clock::time_point until)
{
    constexpr int StepsBetweenLooks = 64; // at the clock
    for (int steps = 1; !m_frames.empty() && !m_stopped; ++steps) {
        step();
        if (steps % StepsBetweenLooks == 0 && std::chrono::steady_clock::now() >= until)
            return false;
    }
    end();
    return true;
}

void SoTraversal::begin(SoNode* root)
{
    m_root = root;
    m_frames.clear();
    m_savedCount = 0;
    m_plans.clear();
    m_hasNewPlan = false;
    m_stopped = false;
    m_visited = 0;
    m_met.clear();
    m_repeating = 0;
    m_repeats = 0;
    m_isCut = false;
    m_hiding = m_setHiding && !m_setHiding->isEmpty() ? m_setHiding : nullptr;
    m_sight = Sight::Plain;
    visit(root);
}

void SoTraversal::step()
{
    Frame& frame = m_frames.back();
    if (goToNextChild(frame))
        visit(frame.group->getChildren()[static_cast<std::size_t>(frame.child)]);
    else
        closeGroup();
}

void SoTraversal::end()
{
    if (m_isCut)
        xsg::reportRepeats(*m_root);
}

bool SoTraversal::mayVisit()
{
    if (m_repeating == 0)
        return true;
    m_isCut = m_isCut || m_repeats == MostRepeats;
    return !m_isCut && ++m_repeats > 0;
}

bool SoTraversal::hasMet(const SoGroup* group)
{
    return group->getParents().size() > 1 && !m_met.insert(group).second;
}

bool SoTraversal::goToNextChild(Frame& frame)
{
    if (frame.planned == NoPlan) {
        if (++frame.child >= frame.end)
            return false;
        if (frame.end >= xsg::GroupCache::ManyChildren)
            lookAhead(frame.group->getChildren(), static_cast<std::size_t>(frame.child));
        return true;
    }
    const std::vector<std::uint32_t>& plan = m_plans.back();
    if (frame.planned == plan.size())
        return false;
    frame.child = static_cast<int>(plan[frame.planned++]);
    return true;
}

void SoTraversal::visitOnly(std::vector<std::uint32_t> places)
{
    m_plans.push_back(std::move(places));
    m_hasNewPlan = true;
}

void SoTraversal::visit(SoNode* node)
{
    if (!mayVisit())
        return;
    const Sight sight = m_hiding ? sightOf(node) : Sight::Plain;
    if (m_hiding && !isSeen(node, sight))
        return;
    ++m_visited;
    if (SoGroup* group = node->asGroup()) {
        openGroup(group, sight);
    } else if (SoShape* shape = node->asShape()) {
        visitShape(shape);
    } else {
        node->apply(m_state);
        visitProperty(node);
    }
}

SoTraversal::Sight SoTraversal::sightOf(const SoNode* node) const
{
    if (m_sight == Sight::Hidden || m_hiding->isHidden(node))
        return Sight::Hidden;
    return m_hiding->isIsolated(node) ? Sight::Isolated : m_sight;
}

// What sets something for its followers is visited in any case, except for what is hidden itself.
bool SoTraversal::isSeen(SoNode* node, Sight sight) const
{
    if (const SoGroup* group = node->asGroup())
        return sight != Sight::Hidden || !group->isStateScope();
    if (node->asShape())
        return sight == Sight::Isolated || (sight == Sight::Plain && !m_hiding->isIsolating());
    return !m_hiding->isHidden(node);
}

void SoTraversal::openGroup(SoGroup* group, Sight sight)
{
    if (!wantsGroup(group))
        return;
    const bool isolates = group->isStateScope();
    if (isolates)
        saveState();
    group->apply(m_state);
    const SoChildRange range = group->getChosenChildren(m_state);
    enterGroup(group);
    const bool isPlanned = std::exchange(m_hasNewPlan, false);
    const bool repeats = hasMet(group);
    m_repeating += repeats ? 1 : 0;
    m_frames.push_back({group, range.first - 1, range.last, isolates, repeats, std::exchange(m_sight, sight),
                        isPlanned ? 0 : NoPlan});
}

void SoTraversal::closeGroup()
{
    const Frame frame = m_frames.back();
    m_frames.pop_back();
    m_sight = frame.sightBefore;
    m_repeating -= frame.repeats ? 1 : 0;
    if (frame.planned != NoPlan)
        m_plans.pop_back();
    if (frame.isolates)
        restoreState();
    leaveGroup(frame.group);
}

// Saved states are kept for reuse, since the next group on this level needs one too.
void SoTraversal::saveState()
{
    if (m_savedCount == m_saved.size())
        m_saved.push_back(m_state);
    else
        m_saved[m_savedCount] = m_state;
    ++m_savedCount;
}

void SoTraversal::restoreState()
{
    m_state = std::move(m_saved[--m_savedCount]);
}
