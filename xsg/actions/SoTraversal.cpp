#include <xsg/actions/SoTraversal.h>

#include <xsg/nodes/SoShape.h>

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
    m_frames.clear();
    m_saved.clear();
    m_plans.clear();
    m_hasNewPlan = false;
    m_stopped = false;
    m_visited = 0;
    visit(root);
    while (!m_frames.empty() && !m_stopped && m_visited < MostVisits) {
        Frame& frame = m_frames.back();
        if (goToNextChild(frame))
            visit(frame.group->getChildren()[static_cast<std::size_t>(frame.child)]);
        else
            closeGroup();
    }
}

bool SoTraversal::goToNextChild(Frame& frame)
{
    if (frame.planned == NoPlan)
        return ++frame.child < frame.end;
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
    ++m_visited;
    if (SoGroup* group = node->asGroup()) {
        openGroup(group);
    } else if (SoShape* shape = node->asShape()) {
        visitShape(shape);
    } else {
        node->apply(m_state);
        visitProperty(node);
    }
}

void SoTraversal::openGroup(SoGroup* group)
{
    if (!wantsGroup(group))
        return;
    const bool isolates = group->isIsolating();
    if (isolates)
        m_saved.push_back(m_state);
    group->apply(m_state);
    const SoChildRange range = group->getChosenChildren(m_state);
    enterGroup(group);
    const bool isPlanned = std::exchange(m_hasNewPlan, false);
    m_frames.push_back({group, range.first - 1, range.last, isolates, isPlanned ? 0 : NoPlan});
}

void SoTraversal::closeGroup()
{
    const Frame frame = m_frames.back();
    m_frames.pop_back();
    if (frame.planned != NoPlan)
        m_plans.pop_back();
    if (frame.isolates)
        restoreState();
    leaveGroup(frame.group);
}

void SoTraversal::restoreState()
{
    m_state = std::move(m_saved.back());
    m_saved.pop_back();
}
