// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbName.h>

class SoField;
class SoFieldContainer;

/// The fields of a container, in the order in which its class declares them.
class XSG_API SoFieldData
{
public:
    int getNumFields() const { return m_count; }
    SbName getFieldName(int index) const;
    /// -1 when the field is not one of the container's.
    int getIndex(const SoFieldContainer* container, const SoField* field) const;
    /// The field at `index` of any container of the same class, or null out of range.
    SoField* getField(const SoFieldContainer* container, int index) const;
    /// The field after this one, or null; walking costs less than asking for one index after the other.
    SoField* getNext(const SoField* field) const;

private:
    friend class SoField;
    friend class SoFieldContainer;
    void append(SoField* field);
    void remove(SoField* field);

    SoField* m_first = nullptr;
    SoField* m_last = nullptr;
    int m_count = 0;
};
