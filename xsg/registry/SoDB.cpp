// SPDX-License-Identifier: MIT
#include <xsg/registry/SoDB.h>

#include <xsg/registry/FieldTypes.h>
#include <xsg/registry/NodeTypes.h>
#include <xsg/types/TypeRegistration.h>

#include <mutex>

namespace
{

[[maybe_unused]] const bool isHooked = (xsg::setTypeRegistration(SoDB::init), true);

} // namespace

void SoDB::init()
{
    static std::once_flag once;
    std::call_once(once, [] {
        xsg::registerFieldTypes();
        xsg::registerNodeTypes();
    });
}
