// SPDX-License-Identifier: MIT
#include <xsg/registry/SoDB.h>

#include <xsg/registry/FieldTypes.h>
#include <xsg/registry/NodeTypes.h>

#include <mutex>

void SoDB::init()
{
    static std::once_flag once;
    std::call_once(once, [] {
        xsg::registerFieldTypes();
        xsg::registerNodeTypes();
    });
}
