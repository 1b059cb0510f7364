// SPDX-License-Identifier: MIT
// Changes and the end of a field or a node, as Qt signals.
#include <scopix/editing/SpxWatcher.h>

#include <support/TestHost.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace
{

class Watcher : public ::testing::Test
{
protected:
    void SetUp() override { m_watcher->watch(&m_material->shininess); }

    TestHost m_host;
    SoRef<SoMaterial> m_material{new SoMaterial};
    std::unique_ptr<SpxWatcher> m_watcher = std::make_unique<SpxWatcher>();
    QSignalSpy m_changes{m_watcher.get(), &SpxWatcher::changed};
    QSignalSpy m_ends{m_watcher.get(), &SpxWatcher::objectDestroyed};
};

} // namespace

TEST_F(Watcher, ReportsManyChangesOnceAndNeverFromInsideTheChange)
{
    m_material->shininess.setValue(0.3F);
    m_material->shininess.setValue(0.4F);
    EXPECT_EQ(m_changes.count(), 0);
    m_host.pump();
    EXPECT_EQ(m_changes.count(), 1);
    m_host.pump();
    EXPECT_EQ(m_changes.count(), 1);
}

TEST_F(Watcher, OfAFieldIgnoresItsNeighbours)
{
    m_material->transparency.setValue(0.3F);
    m_host.pump();
    EXPECT_EQ(m_changes.count(), 0);
}

TEST_F(Watcher, OfANodeReportsEverythingBelow)
{
    const SoRef<SoGroup> group(new SoGroup);
    group->addChild(m_material.get());
    m_watcher->watch(group.get());
    EXPECT_EQ(m_watcher->getObject(), group.get());
    m_material->transparency.setValue(0.3F);
    m_host.pump();
    EXPECT_EQ(m_changes.count(), 1);
}

TEST_F(Watcher, ForgetsWhatItWatchedBefore)
{
    const SoRef<SoMaterial> other(new SoMaterial);
    m_material->shininess.setValue(0.3F);
    m_watcher->watch(static_cast<SoTypedObject*>(&other->shininess));
    m_host.pump();
    EXPECT_EQ(m_changes.count(), 0);
    m_material = nullptr;
    EXPECT_EQ(m_ends.count(), 0);
    EXPECT_EQ(m_watcher->getObject(), &other->shininess);
    m_watcher->stop();
    EXPECT_EQ(m_watcher->getObject(), nullptr);
}

TEST_F(Watcher, KeepsNoNodeAliveAndReportsItsEndOnce)
{
    m_material->shininess.setValue(0.3F);
    SoTypedObject* seen = m_watcher->getObject();
    QObject::connect(m_watcher.get(), &SpxWatcher::objectDestroyed, [&] { seen = m_watcher->getObject(); });
    EXPECT_EQ(m_material->getRefCount(), 1);
    m_material = nullptr;
    EXPECT_EQ(m_ends.count(), 1);
    EXPECT_EQ(seen, nullptr);
    m_host.pump();
    EXPECT_EQ(m_changes.count(), 0);
}

TEST_F(Watcher, WatchesTheNextFromInsideItsSignals)
{
    const SoRef<SoMaterial> next(new SoMaterial);
    QObject::connect(m_watcher.get(), &SpxWatcher::objectDestroyed,
                     [&] { m_watcher->watch(&next->shininess); });
    m_material = nullptr;
    next->shininess.setValue(0.3F);
    m_host.pump();
    EXPECT_EQ(m_changes.count(), 1);
}

TEST_F(Watcher, MayBeDeletedInsideItsSignals)
{
    QObject::connect(m_watcher.get(), &SpxWatcher::changed, [&] { m_watcher.reset(); });
    m_material->shininess.setValue(0.3F);
    m_host.pump();
    EXPECT_EQ(m_watcher, nullptr);

    auto* second = new SpxWatcher;
    second->watch(m_material.get());
    bool isDeleted = false;
    QObject::connect(second, &SpxWatcher::objectDestroyed, [&] {
        delete second;
        isDeleted = true;
    });
    m_material = nullptr;
    EXPECT_TRUE(isDeleted);
}

TEST_F(Watcher, MayBeDeletedByAnEarlierListenerOfTheSameEnd)
{
    SpxWatcher later;
    later.watch(&m_material->shininess);
    QSignalSpy laterEnds(&later, &SpxWatcher::objectDestroyed);
    auto* between = new SpxWatcher;
    QObject::connect(m_watcher.get(), &SpxWatcher::objectDestroyed, [&] { delete between; });
    between->watch(m_material.get());
    bool isReported = false;
    QObject::connect(between, &SpxWatcher::objectDestroyed, [&] { isReported = true; });
    m_material = nullptr;
    EXPECT_FALSE(isReported);
    EXPECT_EQ(laterEnds.count(), 1);
}

TEST_F(Watcher, MayDestroyTheNodeInsideItsSignal)
{
    QObject::connect(m_watcher.get(), &SpxWatcher::changed, [&] { m_material = nullptr; });
    m_material->shininess.setValue(0.3F);
    m_host.pump();
    EXPECT_EQ(m_ends.count(), 1);
    EXPECT_EQ(m_watcher->getObject(), nullptr);
}

TEST_F(Watcher, ReleasesAFieldWithoutANode)
{
    auto alone = std::make_unique<SoSFFloat>();
    m_watcher->watch(alone.get());
    alone->setValue(1);
    alone.reset();
    m_host.pump();
    EXPECT_EQ(m_watcher->getObject(), nullptr);
    EXPECT_EQ(m_changes.count(), 0);
}
