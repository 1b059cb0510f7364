// SPDX-License-Identifier: MIT
#include "model/GradualRelease.h"

#include <xsg/nodes/groups/SoGroup.h>

#include <QBasicTimer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimerEvent>

namespace scopix
{

namespace
{

constexpr qint64 TurnMs = 8;

/// Owned by the application; deletes itself when it is done.
class Release : public QObject
{
public:
    explicit Release(std::vector<SoRef<SoNode>> nodes)
        : QObject(QCoreApplication::instance())
        , m_open(std::move(nodes))
    {
        setObjectName(QStringLiteral("gradualRelease"));
    }
    bool isDone() const { return m_open.empty(); }
    void advance()
    {
        QElapsedTimer clock;
        clock.start();
        while (!isDone() && !clock.hasExpired(TurnMs))
            step();
    }
    void goOn() { m_turn.start(0, this); }

protected:
    void timerEvent(QTimerEvent* /*event*/) override
    {
        advance();
        if (isDone())
            delete this;
    }

private:
    // Downwards to a node without children that nothing else holds, which then goes.
    void step()
    {
        SoGroup* group = m_open.back()->asGroup();
        if (!group || group->getRefCount() > 1 || group->getNumChildren() == 0)
            return m_open.pop_back();
        const int last = group->getNumChildren() - 1;
        SoRef<SoNode> child(group->getChild(last));
        group->removeChild(last);
        m_open.push_back(std::move(child));
    }

    std::vector<SoRef<SoNode>> m_open;
    QBasicTimer m_turn;
};

} // namespace

void releaseGradually(std::vector<SoRef<SoNode>> nodes)
{
    auto release = std::make_unique<Release>(std::move(nodes));
    release->advance();
    if (!release->isDone() && QCoreApplication::instance())
        release.release()->goOn();
}

void releaseGradually(SoRef<SoNode> node)
{
    std::vector<SoRef<SoNode>> nodes;
    nodes.push_back(std::move(node)); // a braced list would hold it too
    releaseGradually(std::move(nodes));
}

} // namespace scopix
