// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbName.h>

#include <memory>
#include <vector>

class SoField;
class SoFieldContainer;

/// The fields of a container, in the order in which its class declares them. Access by index takes constant
/// time.
class XSG_API SoFieldData
{
public:
    int getNumFields() const { return m_count; }
    SbName getFieldName(int index) const;
    /// -1 when the field is not one of the container's.
    int getIndex(const SoFieldContainer* container, const SoField* field) const;
    /// The field at `index` of any container of the same class, or null out of range.
    SoField* getField(const SoFieldContainer* container, int index) const;
    /// The field after this one, or null.
    SoField* getNext(const SoField* field) const;

private:
    friend class SoField;
    friend class SoFieldContainer;
    void append(SoField* field);
    void remove(SoField* field);
    SoField* at(int index) const;
    int find(const SoField* wanted) const;
    const std::vector<SoField*>& fieldsByIndex() const;
    void addToIndex(SoField* field) const;

    SoField* m_first = nullptr;
    SoField* m_last = nullptr;
    int m_count = 0;
    mutable std::unique_ptr<std::vector<SoField*>> m_byIndex; // made at the first look-up among many fields
};
