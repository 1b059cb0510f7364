// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/costs/SoCostMeter.h>

#include <QBasicTimer>
#include <QObject>
#include <QSize>

#include <memory>

namespace profiler
{

/// Measures a scene between the user's events, and ends when the scene changes. Keeps the nodes of the last
/// result alive until clear(). GUI thread only.
class CostRun : public QObject
{
    Q_OBJECT

public:
    explicit CostRun(QObject* parent = nullptr);
    ~CostRun() override;

    /// As the camera sees it now; null for the scene's own. Size in pixels.
    void start(SoNode* root, const SoCamera* camera, const QSize& size);
    /// Of the pictures of the last run.
    const QSize& getSize() const { return m_size; }
    void stop();
    void clear();
    bool isRunning() const { return m_meter != nullptr; }
    double getProgress() const { return m_meter ? m_meter->getProgress() : 1; }
    /// Of the last run that came to its end; empty where there was none.
    const SoCosts& getCosts() const { return m_costs; }

signals:
    void advanced();
    /// `problem`: a sentence, or empty.
    void finished(const QString& problem);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void finish(const QString& problem);

    SoRef<SoNode> m_root;
    SoRef<SoCamera> m_camera;
    QSize m_size;
    std::uint32_t m_changes = 0; // of the scene
    SbMatrix m_look;             // where the camera stands; its depths follow the scene
    std::unique_ptr<SoCostMeter> m_meter;
    SoCosts m_costs;
    QBasicTimer m_timer;
};

} // namespace profiler
