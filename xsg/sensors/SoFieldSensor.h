// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/sensors/SoDataSensor.h>

/// Runs its callback after the field it is attached to changed, by writing, by connection or by its ignore
/// flag.
class XSG_API SoFieldSensor : public SoDataSensor
{
public:
    using SoDataSensor::SoDataSensor;
    ~SoFieldSensor() override;

    /// Watches this field and no other; a null field detaches. The sensor detaches itself when the field is
    /// destroyed.
    void attach(SoField* field);
    void detach() override;
    SoField* getAttachedField() const { return m_field; }

private:
    SoField* m_field = nullptr;
};
