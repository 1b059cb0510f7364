// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoMeasureAction.h>

#include <QBasicTimer>
#include <QList>
#include <QObject>

#include <functional>

namespace scopix
{

class SceneView;

/// How large what is selected is, found between the user's events and kept up to date while somebody wants to
/// know. GUI thread only.
class SelectionMeasure : public QObject
{
    Q_OBJECT

public:
    using Selected = std::function<QList<SoPath>()>;
    /// Of what is selected, what stands below another one counts once. The view must outlive it. Keeps no
    /// node alive but while it measures.
    SelectionMeasure(SceneView& view, Selected selected);

    /// Something else is selected now.
    void selectionChanged() { restart(); }
    /// As often as it is wanted, it has to be let go.
    void want(bool on);
    /// Looks whether the scene has changed since.
    void refresh();

    /// Of everything selected; true where it is complete.
    bool isReady() const { return m_isReady; }
    const SoMeasureAction::Sum& getSum() const { return m_sum; }

signals:
    void ready();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void restart();
    void next();
    std::uint64_t sceneNow() const;

    SceneView& m_view;
    Selected m_selected;
    QList<SoPath> m_paths; // while they are being measured
    int m_wanted = 0;
    SoMeasureAction m_action;
    SoMeasureAction::Sum m_sum;
    int m_current = 0;
    std::uint64_t m_scene = 0; // the root's number and its count of changes
    bool m_isReady = false;
    QBasicTimer m_timer; // runs while there is something to do
};

} // namespace scopix
