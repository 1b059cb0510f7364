// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/ChangeListener.h>
#include <xsg/sensors/SoSensor.h>

class SoField;
class SoFieldContainer;

/// A sensor that watches a field or a container.
class XSG_API SoDataSensor : public SoSensor, private xsg::ChangeListener
{
public:
    using SoSensor::SoSensor;
    /// Stops watching and cancels what is queued.
    virtual void detach() = 0;
    /// The field whose change triggered the sensor last, or null where it has been destroyed since. For use
    /// in the callback.
    SoField* getTriggerField() const { return m_triggerField; }
    /// Valid inside the callback: something else than fields changed too, a list of children or a name.
    bool isStructureChanged() const { return m_structureChanged; }

protected:
    void run() override;
    /// Subject: a field or a container.
    template <class Subject>
    void listenTo(Subject* subject);
    template <class Subject>
    void stopListeningTo(Subject*& subject);

private:
    void changed(const SoNotification& change) override;
    void subjectDestroyed() override { detach(); }
    /// Called for a destroyed field that triggered a sensor at some time.
    static void forgetTrigger(const SoField* field);

    SoField* m_triggerField = nullptr;
    bool m_structureTriggered = false;
    bool m_structureChanged = false;
};
