// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/sensors/SoDataSensor.h>

/// Runs its callback after anything changed in the container it is attached to: a field, the name, a child,
/// or, for a node, anything below it.
class XSG_API SoNodeSensor : public SoDataSensor
{
public:
    using SoDataSensor::SoDataSensor;
    ~SoNodeSensor() override;

    void attach(SoFieldContainer* container);
    void detach() override;
    SoFieldContainer* getAttachedContainer() const { return m_container; }

private:
    SoFieldContainer* m_container = nullptr;
};
