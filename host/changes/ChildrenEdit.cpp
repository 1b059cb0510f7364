// SPDX-License-Identifier: MIT
#include "changes/ChildrenEdit.h"

#include <algorithm>

namespace scopix
{

int ChildrenEdit::coveredNow() const
{
    return static_cast<int>(m_before.size()) + m_group.getNumChildren() - m_countBefore;
}

bool ChildrenEdit::isLost() const
{
    const int covered = coveredNow();
    return covered < 0 || m_start + covered > m_group.getNumChildren() ||
           (m_countNow >= 0 && m_countNow != m_group.getNumChildren());
}

// The part grows on both sides, by children that nobody has edited yet.
void ChildrenEdit::aboutToChange(int start, int removed)
{
    const int count = m_group.getNumChildren();
    start = std::clamp(start, 0, count);
    const int last = std::clamp(start + removed, start, count);
    m_countNow = -1;
    if (m_countBefore < 0) {
        m_countBefore = count;
        m_start = start;
    }
    const auto childAt = [this](int index) { return SoRef<SoNode>(m_group.getChild(index)); };
    if (start < m_start) {
        std::vector<SoRef<SoNode>> front;
        for (int i = start; i < m_start; ++i)
            front.push_back(childAt(i));
        m_before.insert(m_before.begin(), front.begin(), front.end());
        m_start = start;
    }
    for (int i = m_start + coveredNow(); i < std::max(start, last); ++i)
        m_before.push_back(childAt(i));
}

ChildrenEdit::Children ChildrenEdit::before() const
{
    Children part;
    for (const auto& child : m_before)
        part.push_back(child.get());
    return part;
}

ChildrenEdit::Children ChildrenEdit::after() const
{
    const Children& all = m_group.getChildren();
    const auto first = all.begin() + std::min<std::ptrdiff_t>(m_start, m_group.getNumChildren());
    const int covered = std::clamp(coveredNow(), 0, static_cast<int>(all.end() - first));
    return {first, first + covered};
}

ChildrenEdit::Children ChildrenEdit::withPart(const Children& part) const
{
    Children all = m_group.getChildren();
    const auto first = all.begin() + m_start;
    const auto at = all.erase(first, first + static_cast<std::ptrdiff_t>(after().size()));
    all.insert(at, part.begin(), part.end());
    return all;
}

} // namespace scopix
