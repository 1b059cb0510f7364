// SPDX-License-Identifier: MIT
#include <xsg/changes/BranchHash.h>

#include <xsg/changes/NodeMatch.h>
#include <xsg/nodes/animation/SoAnimatedValues.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/paths/NodeLabel.h>

#include <functional>

namespace xsg
{

namespace
{

std::uint64_t mixed(std::uint64_t hash, std::uint64_t more)
{
    return (hash ^ (more + 0x9e3779b97f4a7c15ULL + (hash << 6U) + (hash >> 2U))) * 0x100000001b3ULL;
}

std::uint64_t hashOf(std::string_view text)
{
    return std::hash<std::string_view>()(text);
}

// References are told apart by nothing: what they lead to may be anywhere.
std::uint64_t hashOf(const SoField& field, SbString& text)
{
    field.evaluate();
    std::uint64_t hash = hashOf(field.getName().getString());
    hash = mixed(hash, (field.isDefault() ? 1U : 0U) + (field.isIgnored() ? 2U : 0U) +
                           (field.isConnected() ? 4U : 0U));
    if (field.isDefault() || dynamic_cast<const SoSFNode*>(&field) || dynamic_cast<const SoMFNode*>(&field))
        return hash;
    SoAnimatedValues::getInstance().getRest(field).get(text);
    return mixed(hash, hashOf(text.str()));
}

} // namespace

// Of the branch's nodes those that come later in it are done first.
void BranchHash::compute(SoNode* root)
{
    std::vector<SoNode*> open{root};
    SbString text;
    while (!open.empty()) {
        m_pieces.step();
        SoNode* node = open.back();
        const std::size_t count = open.size();
        SoGroup* group = node->asGroup();
        if (group) {
            for (SoNode* child : group->getChildren())
                if (!m_notes.find(*child).isKnown)
                    open.push_back(child);
        }
        if (open.size() > count)
            continue;
        open.pop_back();
        std::uint64_t hash = hashOf(typeNameOf(*node).getString());
        forEachField(*node, [&](const SoField& field) {
            if (isWritten(field))
                hash = mixed(hash, hashOf(field, text));
        });
        if (group) {
            for (const SoNode* child : group->getChildren())
                hash = mixed(hash, m_notes.find(*child).whole);
        }
        m_notes[*node] = {mixed(hash, hashOf(node->getName().getString())), hash, true};
    }
}

std::uint64_t BranchHash::of(SoNode* node)
{
    if (!m_notes.find(*node).isKnown)
        compute(node);
    return m_notes.find(*node).whole;
}

std::uint64_t BranchHash::ofContent(SoNode* node)
{
    return of(node) == 0 ? 0 : m_notes.find(*node).content;
}

} // namespace xsg
