// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

namespace scopix
{

/// Runs the queue of triggered sensors, once per turn of the event loop, and again when a timed one is due.
/// Leaves the queue alone where the application already drives it. One lives while the host does. GUI thread
/// only.
class SensorPump : public QObject
{
    Q_OBJECT

public:
    explicit SensorPump(QObject* parent = nullptr);
    ~SensorPump() override;

protected:
    bool event(QEvent* event) override;

private:
    void turn();
    static void wakeUp(void* pump);

    QTimer m_due;
};

} // namespace scopix
