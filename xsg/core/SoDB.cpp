#include <xsg/core/SoDB.h>

#include <xsg/fields/FieldTypes.h>
#include <xsg/nodes/NodeTypes.h>

#include <mutex>

void SoDB::init()
{
    static std::once_flag once;
    std::call_once(once, [] {
        xsg::registerFieldTypes();
        xsg::registerNodeTypes();
    });
}
