// SPDX-License-Identifier: MIT
#include <xsg/core/SoFieldData.h>

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

namespace
{

// Up to here the walk along the fields is as fast as an index and needs no memory of its own.
constexpr int FewFields = 16;

} // namespace

SbName SoFieldData::getFieldName(int index) const
{
    const SoField* field = at(index);
    return field ? field->getName() : SbName();
}

int SoFieldData::getIndex(const SoFieldContainer* container, const SoField* wanted) const
{
    return container->m_fields.find(wanted);
}

SoField* SoFieldData::getField(const SoFieldContainer* container, int index) const
{
    return container->m_fields.at(index);
}

SoField* SoFieldData::getNext(const SoField* field) const
{
    return field->m_next;
}

SoField* SoFieldData::at(int index) const
{
    if (index < 0 || index >= m_count)
        return nullptr;
    if (m_count > FewFields)
        return fieldsByIndex()[static_cast<std::size_t>(index)];
    SoField* field = m_first;
    for (int i = 0; i < index; ++i)
        field = field->m_next;
    return field;
}

int SoFieldData::find(const SoField* wanted) const
{
    if (wanted && m_count > FewFields) {
        const auto& fields = fieldsByIndex();
        const std::size_t index = wanted->m_index;
        return index < fields.size() && fields[index] == wanted ? static_cast<int>(index) : -1;
    }
    int index = 0;
    for (const SoField* field = m_first; field; field = field->m_next, ++index) {
        if (field == wanted)
            return index;
    }
    return -1;
}

const std::vector<SoField*>& SoFieldData::fieldsByIndex() const
{
    if (!m_byIndex) {
        m_byIndex = std::make_unique<std::vector<SoField*>>();
        m_byIndex->reserve(static_cast<std::size_t>(m_count));
        for (SoField* field = m_first; field; field = field->m_next)
            addToIndex(field);
    }
    return *m_byIndex;
}

void SoFieldData::addToIndex(SoField* field) const
{
    field->m_index = static_cast<std::uint32_t>(m_byIndex->size());
    m_byIndex->push_back(field);
}

void SoFieldData::append(SoField* field)
{
    (m_last ? m_last->m_next : m_first) = field;
    m_last = field;
    ++m_count;
    if (m_byIndex)
        addToIndex(field);
}

void SoFieldData::remove(SoField* field)
{
    SoField* before = nullptr;
    for (SoField* at = m_first; at && at != field; at = at->m_next)
        before = at;
    (before ? before->m_next : m_first) = field->m_next;
    if (m_last == field)
        m_last = before;
    --m_count;
    m_byIndex.reset();
}
