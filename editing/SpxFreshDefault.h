// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxEditingExport.h>
#include <xsg/core/SoFieldContainer.h>

class SoField;

/// The default value of a node's field: the same field of a fresh node of the same type. The fresh node is
/// destroyed with this object, unless somebody else refers to it.
class SPX_EDITING_API SpxFreshDefault
{
public:
    explicit SpxFreshDefault(const SoField* field);

    /// Null where no fresh node can be made, or where that has no such field.
    SoField* get() const { return m_field; }

private:
    SoRef<SoFieldContainer> m_instance;
    SoField* m_field = nullptr;
};
