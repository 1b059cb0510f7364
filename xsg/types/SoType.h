// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbName.h>

#include <vector>

class SoTypedObject;

/// Run-time type of everything in a scene: a name, a parent and, where it can be made, a way to make one.
/// Types are registered once and compared by identity. Registration and look-up are safe from any thread.
class XSG_API SoType
{
public:
    using Factory = SoTypedObject* (*)();

    constexpr SoType() = default; // the bad type
    static SoType badType() { return {}; }
    /// The registered type of this name, or the bad type.
    static SoType fromName(SbName name);
    /// Registers a type at run time; a name already taken gives the type that has it.
    static SoType createType(SoType parent, SbName name, Factory factory = nullptr);
    /// All types derived from `type`, itself included, in order of registration.
    static std::vector<SoType> getAllDerivedFrom(SoType type);

    bool isBad() const { return !m_data; }
    SbName getName() const;
    /// True for the type itself; false whenever one of the two is bad.
    bool isDerivedFrom(SoType ancestor) const;
    bool canCreateInstance() const;
    /// A new object on the heap, or null where none can be made. A container comes with reference count 0.
    SoTypedObject* createInstance() const;

    friend bool operator==(SoType a, SoType b) { return a.m_data == b.m_data; }
    friend bool operator!=(SoType a, SoType b) { return a.m_data != b.m_data; }

private:
    struct Data;
    explicit constexpr SoType(const Data* data)
        : m_data(data)
    {
    }
    const Data* m_data = nullptr;
};
