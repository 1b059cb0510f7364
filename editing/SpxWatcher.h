// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxEditingExport.h>
#include <xsg/sensors/SoFieldSensor.h>
#include <xsg/sensors/SoNodeSensor.h>

#include <QObject>

#include <memory>

class FieldLife;
class SoTypedObject;

/// Reports the changes and the end of one field, or of one node with everything below it, as Qt signals. It
/// keeps neither alive. It may be deleted, stopped or given something else to watch at any time, inside its
/// own signals too. GUI thread only.
class SPX_EDITING_API SpxWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SpxWatcher(QObject* parent = nullptr);
    ~SpxWatcher() override;

    /// From now on this and nothing else.
    void watch(SoField* field);
    void watch(SoFieldContainer* node);
    /// For an object whose class is not known: a field, a node, or anything else, which is not watched.
    void watch(SoTypedObject* object);
    void stop();

    /// What is watched, or null: the field or the node, as watch() was given it.
    SoTypedObject* getObject() const;

signals:
    /// Once per turn of the sensor queue, however often the value changed; never from inside the change.
    void changed();
    /// The node, or the field's node, is being destroyed; getObject() is null already. A field that belongs
    /// to no node ends without a signal.
    void objectDestroyed();

private:
    void follow(std::shared_ptr<FieldLife> life);
    void end();
    static void sensorCB(void* watcher, SoSensor* sensor);

    SoFieldSensor m_fieldSensor;
    SoNodeSensor m_nodeSensor;
    std::shared_ptr<FieldLife> m_life;
};
