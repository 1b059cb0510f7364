// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoMeasureAction.h>

#include <QBasicTimer>
#include <QList>
#include <QObject>

namespace scopix
{

/// How large what is selected is, found between the user's events and kept up to date while somebody wants to
/// know. GUI thread only.
class SelectionMeasure : public QObject
{
    Q_OBJECT

public:
    /// What stands below another one of them counts once.
    void setSelected(const QList<SoPath>& paths);
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
    std::uint32_t sceneNow() const;

    QList<SoPath> m_paths;
    int m_wanted = 0;
    SoMeasureAction m_action;
    SoMeasureAction::Sum m_sum;
    int m_current = 0;
    std::uint32_t m_scene = 0; // the root's count of changes
    bool m_isReady = false;
    QBasicTimer m_timer; // runs while there is something to do
};

} // namespace scopix
