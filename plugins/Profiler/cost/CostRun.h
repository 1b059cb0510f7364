// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/costs/SoCostMeter.h>
#include <xsg/costs/SoWhatIfMeter.h>

#include <QBasicTimer>
#include <QObject>
#include <QSize>

#include <memory>

namespace profiler
{

/// Measures a scene, or what it would take without a branch, between the user's events, and ends when the
/// scene changes. Keeps the nodes of the last
/// result alive until clear(). GUI thread only.
class CostRun : public QObject
{
    Q_OBJECT

public:
    explicit CostRun(QObject* parent = nullptr);
    ~CostRun() override;

    /// As the camera sees it now; null for the scene's own. Size in pixels.
    void start(SoNode* root, const SoCamera* camera, const QSize& size, const SoHiding& hiding = {});
    /// The same with and without this node, where nothing of what `hiding` leaves out is drawn.
    void startWithout(const SoNode* node, SoNode* root, const SoCamera* camera, const QSize& size,
                      const SoHiding& hiding = {});
    /// While finished() tells of a run with startWithout(); null otherwise.
    const SoWhatIfMeter* getWhatIf() const { return isRunning() ? nullptr : m_whatIf.get(); }
    /// Of the pictures of the last run.
    const QSize& getSize() const { return m_size; }
    void stop();
    void clear();
    bool isRunning() const { return m_timer.isActive(); }
    double getProgress() const;
    /// Of the last run that came to its end; empty where there was none.
    const SoCosts& getCosts() const { return m_costs; }

signals:
    void advanced();
    /// `problem`: a sentence, or empty.
    void finished(const QString& problem);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void begin(SoNode* root, const SoCamera* camera, const QSize& size);
    void finish(const QString& problem);
    QString whyNot() const;

    SoRef<SoNode> m_root;
    SoRef<SoCamera> m_camera;
    QSize m_size;
    std::uint32_t m_changes = 0;          // of the scene
    SbMatrix m_look;                      // where the camera stands; its depths follow the scene
    std::unique_ptr<SoCostMeter> m_meter; // while it runs
    std::unique_ptr<SoWhatIfMeter> m_whatIf;
    SoCosts m_costs;
    QBasicTimer m_timer;
};

} // namespace profiler
