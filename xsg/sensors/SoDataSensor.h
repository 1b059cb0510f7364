// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoNotification.h>
#include <xsg/sensors/SoSensor.h>

class SoField;
class SoFieldContainer;

/// A sensor that watches a field or a container.
class XSG_API SoDataSensor : public SoSensor
{
public:
    using SoSensor::SoSensor;
    /// Stops watching and cancels what is queued.
    virtual void detach() = 0;
    /// The field whose change triggered the sensor last, or null where it is gone since. For use in the
    /// callback.
    SoField* getTriggerField() const { return m_triggerField; }
    /// Good inside the callback: something else than fields changed too, a list of children or a name.
    bool isStructureChanged() const { return m_structureChanged; }

protected:
    void run() override;
    static void add(SoField* field, SoDataSensor* sensor);
    static void remove(SoField* field, SoDataSensor* sensor);
    static void add(SoFieldContainer* container, SoDataSensor* sensor);
    static void remove(SoFieldContainer* container, SoDataSensor* sensor);
    void forgetTrigger();

private:
    friend class SoField;
    friend class SoFieldContainer;
    void notified(const SoNotification& change);
    /// Called by a field that goes, where it ever triggered a sensor.
    static void forget(const SoField* field);

    SoField* m_triggerField = nullptr;
    bool m_structureTriggered = false;
    bool m_structureChanged = false;
};
