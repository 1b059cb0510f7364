// Runs the queue of triggered sensors, once per turn of the event loop. One lives while the host does. GUI
// thread only.
#pragma once

#include <QObject>

class SensorPump : public QObject
{
    Q_OBJECT

public:
    explicit SensorPump(QObject* parent = nullptr);
    ~SensorPump() override;

protected:
    bool event(QEvent* event) override;

private:
    static void wakeUp(void* pump);
};
