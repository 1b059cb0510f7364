// SPDX-License-Identifier: MIT
#include "document/ChangedFields.h"

#include <xsg/nodes/animation/SoAnimatedValues.h>

namespace scopix
{

ChangedFields::~ChangedFields()
{
    watch(nullptr);
}

void ChangedFields::watch(SoNode* root)
{
    if (m_root)
        m_root->removeListener(this);
    m_root = root;
    m_fields.clear();
    m_known.clear();
    m_isStructureChanged = false;
    if (m_root)
        m_root->addListener(this);
}

SoField* ChangedFields::take()
{
    SoField* field = m_fields.back();
    m_fields.pop_back();
    m_known.erase(field);
    return field;
}

void ChangedFields::changed(const SoNotification& change)
{
    if (m_isStructureChanged || SoAnimatedValues::getInstance().isWriting())
        return;
    m_isStructureChanged = !change.field;
    if (m_isStructureChanged) {
        m_fields.clear();
        m_known.clear();
        m_report();
    } else if (m_known.insert(change.field).second) {
        m_fields.push_back(change.field);
    }
}

} // namespace scopix
