// SPDX-License-Identifier: MIT
#include <xsg/nodes/base/NodeText.h>

namespace
{

// Written bare, this is no reference; a node of this name takes quotes.
constexpr const char* NoNode = "NULL";

} // namespace

void xsg::ValueText<SoRef<SoNode>>::write(std::string& out, const SoRef<SoNode>& node)
{
    const SbName name = node ? node->getReferenceName() : SbName(NoNode);
    if (node && name == SbName(NoNode))
        xsg::appendQuoted(out, NoNode);
    else
        xsg::ValueText<SbName>::write(out, name);
}

bool xsg::ValueText<SoRef<SoNode>>::read(xsg::TextReader& in, SoRef<SoNode>& node)
{
    in.skipBlanks();
    const bool isQuoted = in.peek() == '"';
    SbName name;
    if (!xsg::ValueText<SbName>::read(in, name))
        return false;
    if (!isQuoted && name == SbName(NoNode)) {
        node = nullptr;
        return true;
    }
    auto* found = dynamic_cast<SoNode*>(SoFieldContainer::getByName(name));
    if (!found || found->isBeingDestroyed())
        return false;
    node = found;
    return true;
}
