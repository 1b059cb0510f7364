// SPDX-License-Identifier: MIT
#include <xsg/types/SoTypedObject.h>

SoTypedObject::~SoTypedObject() = default;

SoType SoTypedObject::getClassTypeId()
{
    static const SoType type = SoType::createType(SoType(), "TypedObject");
    return type;
}
