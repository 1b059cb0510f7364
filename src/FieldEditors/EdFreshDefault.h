// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoFieldContainer.h>

class SoField;

/// The default value of a node's field: the same field of a fresh node of the same type. The fresh node goes
/// with this object.
class EdFreshDefault
{
public:
    explicit EdFreshDefault(const SoField* field);

    /// Null where no fresh node can be made, or where it has no such field.
    SoField* get() const { return m_field; }

private:
    SoRef<SoFieldContainer> m_instance;
    SoField* m_field = nullptr;
};
