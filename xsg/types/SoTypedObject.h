// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/types/SoType.h>

/// Root of everything that knows its run-time type.
class XSG_API SoTypedObject
{
public:
    virtual ~SoTypedObject();
    static SoType getClassTypeId();
    virtual SoType getTypeId() const = 0;
    bool isOfType(SoType type) const { return getTypeId().isDerivedFrom(type); }

protected:
    SoTypedObject() = default;
    SoTypedObject(const SoTypedObject&) = default;
    SoTypedObject& operator=(const SoTypedObject&) = default;
};
