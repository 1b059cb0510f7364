// SPDX-License-Identifier: MIT
#include "PlaceMatch.h"

#include <xsg/paths/NodeLabel.h>

#include <algorithm>

namespace xsg
{

PlaceMatch::PlaceMatch(const SoScenePath& path, const SoNode* root)
    : m_field(path.getField().c_str())
    , m_isAbsolute(path.isAbsolute())
    , m_root(root)
{
    for (const SoScenePath::Step& step : path.getSteps())
        m_steps.push_back(
            {SbName(step.label.c_str()), SbName(latin1Of(step.label).c_str()), step.index, nullptr, nullptr});
}

bool PlaceMatch::matches(const SoNode& node)
{
    if (m_field.getLength() > 0 && !node.getField(m_field))
        return false;
    m_failed.clear();
    return m_steps.empty() ? isRoot(node) : isAt(node, m_steps.size() - 1);
}

bool PlaceMatch::isRoot(const SoNode& node) const
{
    return m_root ? &node == m_root : node.getParents().empty();
}

bool PlaceMatch::Step::isCalled(const SoNode& node) const
{
    const SbName own = labelOf(node);
    return own == label || (otherwise.getLength() > 0 && own == otherwise);
}

// As for all that finds paths: such a step without a number means each of its kind.
bool PlaceMatch::isAnywhere(std::size_t step) const
{
    return step == 0 && !m_isAbsolute && m_steps[step].index == 0;
}

bool PlaceMatch::isAt(const SoNode& node, std::size_t step)
{
    if (!m_steps[step].isCalled(node))
        return false;
    if (isAnywhere(step))
        return true;
    const auto& parents = node.getParents();
    const bool isShared = parents.size() > 1;
    if (isShared && m_failed.count({&node, step}) > 0)
        return false;
    const bool isThere = std::any_of(parents.begin(), parents.end(), [&](const SoGroup* parent) {
        const bool fits = step > 0 ? isAt(*parent, step - 1) : !m_isAbsolute || isRoot(*parent);
        return fits && isChild(node, *parent, step);
    });
    if (isShared && !isThere)
        m_failed.insert({&node, step});
    return isThere;
}

// A search asks for the children of a group one after the other.
bool PlaceMatch::isChild(const SoNode& node, const SoGroup& parent, std::size_t which)
{
    Step& step = m_steps[which];
    if (step.group != &parent) {
        step.group = &parent;
        step.child = nullptr;
        int index = step.index;
        for (const SoNode* child : parent.getChildren()) {
            if (step.isCalled(*child) && index-- == 0) {
                step.child = child;
                break;
            }
        }
    }
    return step.child == &node;
}

} // namespace xsg
