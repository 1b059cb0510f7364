// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/sensors/SoFieldSensor.h>

#include <QObject>

#include <memory>

class SoFieldContainer;

/// Whether a container, or a field without one, still exists. All that watch the same container share one
/// object, so that its end is looked up once however many commands refer to it. Internal to the library; GUI
/// thread only.
class FieldLife : public QObject
{
    Q_OBJECT

public:
    static std::shared_ptr<FieldLife> of(SoField& field);
    static std::shared_ptr<FieldLife> of(SoFieldContainer& container);
    ~FieldLife() override;

    bool isOver() const;

signals:
    /// The container is being destroyed; its fields are still there. Never emitted for a field without one.
    void over();

private:
    explicit FieldLife(SoFieldContainer& container);
    explicit FieldLife(SoField& aloneField);
    static void forget(const SoFieldContainer* container);
    static void dyingCB(void*, SoFieldContainer* dying);

    SoFieldContainer* m_container = nullptr; // null once it was destroyed
    SoFieldSensor m_alone; // without a callback: a field without a container reports its end to sensors only
};
