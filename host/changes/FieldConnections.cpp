// SPDX-License-Identifier: MIT
#include "changes/FieldConnections.h"

#include <xsg/core/SoField.h>

namespace scopix
{

FieldConnections::Source FieldConnections::sourceOf(SoField* field)
{
    return {SoRef<SoFieldContainer>(field ? field->getContainer() : nullptr), field};
}

void FieldConnections::announce(SoField& field)
{
    field.evaluate();
    if (SoWriteRecorder* recorder = SoWriteRecorder::getActive())
        recorder->aboutToWrite(field, 0, -1);
}

void FieldConnections::aboutToConnect(SoField& field)
{
    announce(field);
    m_all.push_back(
        {SoRef<SoFieldContainer>(field.getContainer()), &field, sourceOf(field.getConnectedField()), {}});
}

void FieldConnections::connected()
{
    for (Connection& each : m_all)
        each.after = sourceOf(each.field->getConnectedField());
}

void FieldConnections::add(SoField& field, SoField* source)
{
    m_all.push_back({SoRef<SoFieldContainer>(field.getContainer()), &field,
                     sourceOf(field.getConnectedField()), sourceOf(source)});
}

void FieldConnections::follow(SoField& field, SoField* source)
{
    if (field.getConnectedField() == source)
        return;
    announce(field);
    if (source)
        field.connectFrom(source);
    else
        field.disconnect();
}

void FieldConnections::announce() const
{
    for (const Connection& each : m_all)
        announce(*each.field);
}

// None before all are free, so that nothing is refused for a loop.
void FieldConnections::undo() const
{
    for (const Connection& each : m_all)
        follow(*each.field, nullptr);
    for (const Connection& each : m_all)
        follow(*each.field, each.before.field);
}

void FieldConnections::redo() const
{
    for (const Connection& each : m_all)
        follow(*each.field, nullptr);
    for (const Connection& each : m_all)
        follow(*each.field, each.after.field);
}

std::vector<SoField*> FieldConnections::fields() const
{
    std::vector<SoField*> fields;
    for (const Connection& each : m_all)
        fields.push_back(each.field);
    return fields;
}

} // namespace scopix
