// SPDX-License-Identifier: MIT
#include <xsg/actions/SoSearchAction.h>

#include <xsg/actions/RepeatBound.h>
#include <xsg/actions/SoTraversal.h>
#include <xsg/counters/LibraryCounters.h>

#include <unordered_map>

void SoSearchAction::setName(SbName name)
{
    m_name = name;
    m_hasName = true;
}

void SoSearchAction::setType(SoType type, bool derived)
{
    m_type = type;
    m_derived = derived;
}

bool SoSearchAction::matches(const SoNode* node) const
{
    if (m_node && node != m_node)
        return false;
    if (m_hasName && node->getName() != m_name)
        return false;
    if (m_type.isBad())
        return true;
    return m_derived ? node->isOfType(m_type) : node->getTypeId() == m_type;
}

namespace
{

// The groups that stand in several places, and what a search found below them: where that was nothing, it
// need not look again. Elsewhere the number of visits is bounded.
class SharedGroups
{
public:
    enum class Look { First, Again, NotAtAll };
    /// How to look below; `found`: the paths so far.
    Look open(const SoGroup& group, std::size_t found)
    {
        if (group.getParents().size() < 2)
            return Look::First;
        const auto [known, isNew] = m_foundBefore.try_emplace(&group, found);
        if (isNew)
            return Look::First;
        if (known->second == Nothing)
            return Look::NotAtAll;
        ++m_repeating;
        return Look::Again;
    }
    void close(const SoGroup& group, bool repeats, std::size_t found)
    {
        m_repeating -= repeats ? 1 : 0;
        const auto known = m_foundBefore.find(&group);
        if (!repeats && known != m_foundBefore.end() && known->second == found)
            known->second = Nothing;
    }
    bool mayVisit()
    {
        m_isCut = m_isCut || m_repeats == SoTraversal::MostRepeats;
        return m_repeating == 0 || (!m_isCut && ++m_repeats > 0);
    }
    bool isCut() const { return m_isCut; }

private:
    static constexpr std::size_t Nothing = static_cast<std::size_t>(-1);
    std::unordered_map<const SoGroup*, std::size_t> m_foundBefore; // paths when it was first met
    int m_repeating = 0;
    int m_repeats = 0;
    bool m_isCut = false;
};

} // namespace

const std::vector<SoPath>& SoSearchAction::apply(SoNode* root)
{
    struct Frame {
        SoNode* node;
        int child;
        int end;
        bool repeats;
    };
    xsg::feeds.searches.add();
    m_paths.clear();
    std::vector<Frame> frames;
    SharedGroups shared;
    const auto visit = [&](SoNode* node) {
        if (!shared.mayVisit())
            return;
        const std::size_t found = m_paths.size();
        Frame& frame = frames.emplace_back(Frame{node, -1, 0, false});
        if (matches(node)) {
            SoPath& path = m_paths.emplace_back();
            for (const Frame& each : frames)
                path.append(each.node);
        }
        const SoGroup* group = node->asGroup();
        const auto look = group ? shared.open(*group, found) : SharedGroups::Look::NotAtAll;
        frame.end = look == SharedGroups::Look::NotAtAll ? 0 : group->getNumChildren();
        frame.repeats = look == SharedGroups::Look::Again;
    };
    const auto close = [&](const Frame& frame) {
        if (const SoGroup* group = frame.node->asGroup())
            shared.close(*group, frame.repeats, m_paths.size());
    };
    if (root && m_limit != 0)
        visit(root);
    while (!frames.empty() && (m_limit < 0 || static_cast<int>(m_paths.size()) < m_limit)) {
        Frame& frame = frames.back();
        if (++frame.child < frame.end) {
            visit(frame.node->asGroup()->getChild(frame.child));
        } else {
            close(frame);
            frames.pop_back();
        }
    }
    if (shared.isCut())
        xsg::reportRepeats(*root);
    return m_paths;
}

SoNode* SoSearchAction::find(SoNode* root)
{
    const int limit = std::exchange(m_limit, 1);
    apply(root);
    m_limit = limit;
    return m_paths.empty() ? nullptr : m_paths.front().getTail();
}
