// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/paths/SoScenePath.h>

#include <set>

namespace xsg
{

/// Whether nodes stand where a path says, and have its field. Looks upwards from the node, so that it costs
/// what the path is long and not what the scene holds. A path that does not start with "/" fits wherever its
/// first step does. Where there is no root, a node without parents is one.
class PlaceMatch
{
public:
    /// The root is compared only.
    PlaceMatch(const SoScenePath& path, const SoNode* root);

    bool matches(const SoNode& node);

private:
    struct Step {
        SbName label;
        SbName otherwise; // in Latin-1, what was typed being UTF-8
        int index = 0;
        const SoGroup* group = nullptr; // where a child was looked for last, and which
        const SoNode* child = nullptr;

        bool isCalled(const SoNode& node) const;
    };

    bool isRoot(const SoNode& node) const;
    bool isAt(const SoNode& node, std::size_t step);
    bool isChild(const SoNode& node, const SoGroup& parent, std::size_t step);
    bool isAnywhere(std::size_t step) const;

    std::vector<Step> m_steps;
    SbName m_field;
    bool m_isAbsolute;
    const SoNode* m_root;
    std::set<std::pair<const SoNode*, std::size_t>> m_failed; // shared ones, of the present node
};

} // namespace xsg
