#include <xsg/nodes/NodeTypes.h>

#include <xsg/nodes/SoSeparator.h>

namespace
{

template <class... Nodes>
void registerAll()
{
    (Nodes::getClassTypeId(), ...);
}

} // namespace

// One line per node type.
void xsg::registerNodeTypes()
{
    registerAll<
        SoGroup,
        SoSeparator
    >();
}
