// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoPath.h>

/// Finds nodes by name, by type, or one given node, anywhere below a root, what is not chosen at present
/// included. All criteria that are set must hold.
class XSG_API SoSearchAction
{
public:
    void setName(SbName name);
    /// `derived`: types derived from it count too.
    void setType(SoType type, bool derived = true);
    void setNode(const SoNode* node) { m_node = node; }
    /// At most this many paths; -1 for all. 1 by default.
    void setLimit(int limit) { m_limit = limit; }

    /// The paths to what was found, in order; a node that stands in several places is found in each.
    const std::vector<SoPath>& apply(SoNode* root);
    const std::vector<SoPath>& getPaths() const { return m_paths; }
    /// The first node found, or null.
    SoNode* find(SoNode* root);

private:
    bool matches(const SoNode* node) const;

    std::vector<SoPath> m_paths;
    SbName m_name;
    SoType m_type;
    const SoNode* m_node = nullptr;
    bool m_hasName = false;
    bool m_derived = true;
    int m_limit = 1;
};
