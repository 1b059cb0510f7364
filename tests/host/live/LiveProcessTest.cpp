// SPDX-License-Identifier: MIT
// Programs in processes of their own: attaching, launching, and their end at any moment.
#include "live/LiveLaunch.h"
#include "live/LiveScene.h"
#include "live/SocketLink.h"
#include "services/HostServices.h"
#include "structure/StructureActs.h"
#include "support/UserNotifier.h"
#include "text/NodeText.h"
#include "window/LiveActs.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <xsg/core/SoField.h>
#include <xsg/fields/SoSFFloat.h>

#include <QAction>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <gtest/gtest.h>

#include <csignal>
#include <random>

using namespace scopix;

namespace
{

QStringList mill()
{
    return {QStringLiteral(SCOPIX_MILL), QStringLiteral("--no-window")};
}

class LiveProcess : public testing::Test
{
protected:
    LiveProcess() { qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit()); }
    ~LiveProcess() override
    {
        process.kill();
        process.waitForFinished(MostWaitMs);
    }
    QString start()
    {
        process.start(mill().first(), mill().mid(1));
        while (!process.canReadLine() && process.waitForReadyRead(MostWaitMs))
            ;
        return QString::fromLocal8Bit(process.readLine()).trimmed();
    }
    std::unique_ptr<LiveScene> attach(const QString& socket)
    {
        auto link = std::make_unique<SocketLink>();
        const QString problem = link->connectTo(socket);
        EXPECT_TRUE(problem.isEmpty()) << problem.toStdString();
        return std::make_unique<LiveScene>(std::move(link), services);
    }
    static LiveNode& rootOf(LiveScene& scene) { return static_cast<LiveNode&>(*scene.getRoot()); }
    // The first node below that has a field of this name which can be written.
    SoSFFloat* findField(LiveScene& scene, const char* name)
    {
        SoSFFloat* found = nullptr;
        std::vector<SoRef<LiveNode>> pending{SoRef<LiveNode>(&rootOf(scene))};
        while (!found && !pending.empty()) {
            const SoRef<LiveNode> node = pending.back();
            pending.pop_back();
            bool isHere = false;
            scene.getWays().whenUnfolded(*node, [&] { isHere = true; });
            EXPECT_TRUE(waitFor([&] { return isHere; }));
            found = dynamic_cast<SoSFFloat*>(node->getField(name));
            if (found) {
                bool isShown = false;
                scene.whenShown(*node, [&] { isShown = true; });
                EXPECT_TRUE(waitFor([&] { return isShown; }));
            }
            for (SoNode* child : node->getChildren()) {
                if (auto* live = dynamic_cast<LiveNode*>(child))
                    pending.emplace_back(live);
            }
        }
        return found;
    }

    // The way to the first node that has several children of its own.
    static SoPath unfoldToSeveral(LiveScene& scene)
    {
        SoPath path;
        for (LiveNode* node = &rootOf(scene); node;) {
            path.append(node);
            bool isHere = false;
            scene.getWays().whenUnfolded(*node, [&] { isHere = true; });
            EXPECT_TRUE(waitFor([&] { return isHere; }));
            if (node->getNumChildren() - node->countObjects() > 1)
                return path;
            node = dynamic_cast<LiveNode*>(node->getChild(node->countObjects()));
        }
        ADD_FAILURE() << "no node has several children";
        return path;
    }
    // As another inspector sees them.
    std::vector<live::NodeId> childrenNow(const QString& socket, live::NodeId parent)
    {
        SocketLink link;
        EXPECT_EQ(link.connectTo(socket), QString());
        std::optional<std::vector<live::NodeId>> ids;
        link.children(parent, 0, 1000, [&](const std::vector<live::NodeInfo>& all) {
            ids.emplace();
            for (const live::NodeInfo& info : all)
                ids->push_back(info.id);
        });
        EXPECT_TRUE(waitFor([&] { return ids.has_value(); }));
        return ids.value_or(std::vector<live::NodeId>());
    }

    // The first two of several nodes, and back again.
    void groupAndUngroup(const QString& socket)
    {
        const auto scene = attach(socket);
        const SoPath parentWay = unfoldToSeveral(*scene);
        auto& parent = static_cast<LiveNode&>(*parentWay.getTail());
        const std::vector<live::NodeId> first = childrenNow(socket, parent.getId());
        Paths two;
        for (const int i : {0, 1})
            two += extended(parentWay, parent.getChild(parent.countObjects() + i));
        SoType group;
        parent.askTypesToAdd([&](const std::vector<SoType>& types) {
            for (const SoType type : types)
                group = typeText(type).endsWith("Group") && group.isBad() ? type : group;
        });
        ASSERT_TRUE(waitFor([&] { return !group.isBad(); }));
        MirroredAct act;
        act.additions.push_back({parentWay, parent.countObjects(), group});
        act.think = [&](const structure::MakeNode& make) { return structure::group(two, make); };
        parent.actInProgram(act);
        ASSERT_TRUE(waitFor([&] { return services.undoStack().count() == 1; }));
        auto& made = dynamic_cast<LiveNode&>(*parent.getChild(parent.countObjects()));
        const std::vector<live::NodeId> both(first.begin(), first.begin() + 2);
        std::vector<live::NodeId> grouped(first.begin() + 1, first.end());
        grouped.front() = made.getId();
        EXPECT_TRUE(waitFor([&] { return childrenNow(socket, parent.getId()) == grouped; }));
        EXPECT_TRUE(waitFor([&] { return childrenNow(socket, made.getId()) == both; }));

        MirroredAct back;
        const Paths madeWay{extended(parentWay, &made)};
        back.unfolded.emplace_back(&made);
        back.think = [&](const structure::MakeNode&) { return structure::ungroup(madeWay); };
        parent.actInProgram(back);
        EXPECT_TRUE(waitFor([&] { return childrenNow(socket, parent.getId()) == first; }));
        services.undoStack().undo();
        EXPECT_TRUE(waitFor([&] { return childrenNow(socket, parent.getId()) == grouped; }));
        EXPECT_TRUE(waitFor([&] { return childrenNow(socket, made.getId()) == both; }));
        services.undoStack().undo();
        EXPECT_TRUE(waitFor([&] { return childrenNow(socket, parent.getId()) == first; }));
        services.undoStack().clear();
    }

    QTemporaryDir folder;
    QProcess process;
    HostServices services;
};

} // namespace

TEST_F(LiveProcess, IsListedFoundAndEdited)
{
    const QString socket = start();
    QString problem;
    ASSERT_TRUE(findProgram({}, problem)) << problem.toStdString();
    EXPECT_EQ(findProgram(QString::number(process.processId()), problem)->socketPath, socket.toStdString());
    EXPECT_TRUE(findProgram(QStringLiteral("MIL"), problem));
    EXPECT_FALSE(findProgram(QStringLiteral("loom"), problem));
    EXPECT_TRUE(problem.contains("loom"));
    EXPECT_TRUE(waitFor([&] { return livePrograms().contains(socket); }));
    const auto scene = attach(socket);
    SoSFFloat* height = findField(*scene, "height");
    ASSERT_TRUE(height);
    const float before = height->getValue();
    height->setValue(before + 1);
    const auto& changes = scene->getEdits().getChanges();
    EXPECT_TRUE(waitFor([&] { return changes.getAll().size() == 1; }));
    height->setValue(before);
    EXPECT_TRUE(waitFor([&] { return changes.isEmpty(); }));
}

TEST_F(LiveProcess, GroupsAndUngroupsItsNodes)
{
    groupAndUngroup(start());
}

#ifdef SCOPIX_OSGVIEWER
TEST_F(LiveProcess, GroupsAndUngroupsTheNodesOfAProgramOnOpenSceneGraph)
{
    const QString scene = folder.filePath(QStringLiteral("scene.osgt"));
    ASSERT_EQ(QProcess::execute(QStringLiteral(SCOPIX_OSG_PROGRAM), {QStringLiteral("--write"), scene}), 0);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(QStringLiteral("env"),
                  {QStringLiteral("LD_PRELOAD=" SCOPIX_OSG_PRELOAD), QStringLiteral(SCOPIX_OSGVIEWER),
                   QStringLiteral("--window"), "0", "0", "320", "240", scene});
    QString problem;
    ASSERT_TRUE(waitFor([&] { return findProgram({}, problem).has_value(); })) << problem.toStdString();
    groupAndUngroup(QString::fromStdString(findProgram({}, problem)->socketPath));
}
#endif

TEST_F(LiveProcess, MayBeKilledAtAnyMoment)
{
    std::mt19937 random(static_cast<unsigned>(qEnvironmentVariableIntValue("SCOPIX_WALK_SEED")));
    const int runs = std::max(3, qEnvironmentVariableIntValue("SCOPIX_WALK_STEPS") / 100);
    for (int run = 0; run < runs; ++run) {
        const auto scene = attach(start());
        SoSFFloat* height = findField(*scene, "height");
        ASSERT_TRUE(height);
        const auto edits = std::uniform_int_distribution(0, 40)(random);
        for (int i = 0; i < edits; ++i) {
            height->setValue(static_cast<float>(1 + i));
            if (i % 3 == 0)
                QCoreApplication::processEvents();
        }
        process.kill();
        ASSERT_TRUE(waitFor([&] { return scene->getState() == LiveScene::State::Ended; }));
        process.waitForFinished(MostWaitMs);
        EXPECT_FALSE(scene->getEnd().isEmpty());
        const SoRef<SoFieldContainer> node(height->getContainer());
        EXPECT_FALSE(MirroredNode::of(node.get())->refusal().isEmpty());
        height->setValue(1000);
        EXPECT_TRUE(waitFor([&] { return height->getValue() < 1000; }));
    }
}

TEST_F(LiveProcess, RunsOnWhenItWasLaunchedAndWeAreGone)
{
    auto launch = std::make_unique<LiveLaunch>();
    QSignalSpy found(launch.get(), &LiveLaunch::found);
    QSignalSpy failed(launch.get(), &LiveLaunch::failed);
    launch->start(mill(), {});
    ASSERT_TRUE(waitFor([&] { return !found.isEmpty() || !failed.isEmpty(); }));
    ASSERT_EQ(found.size(), 1) << failed.value(0).value(0).toString().toStdString();
    launch.reset();
    QString problem;
    const auto program = findProgram({}, problem);
    ASSERT_TRUE(program);
    EXPECT_EQ(::kill(static_cast<pid_t>(program->pid), SIGKILL), 0);
}

TEST_F(LiveProcess, IsToldOfWhereItCannotBeLaunchedOrEndsAtOnce)
{
    LiveLaunch launch;
    QSignalSpy failed(&launch, &LiveLaunch::failed);
    launch.start({QStringLiteral("/no/such/program")}, {});
    ASSERT_EQ(failed.size(), 1);
    EXPECT_TRUE(failed.last().first().toString().contains("there is no such program"));
    launch.start({QStringLiteral("/bin/true")}, {});
    ASSERT_TRUE(waitFor([&] { return failed.size() == 2; }));
    EXPECT_TRUE(failed.last().first().toString().contains("ended before"));
}

TEST_F(LiveProcess, OffersTheChangesOfAKilledRunToTheNextOne)
{
    UserNotifier notifier;
    MainWindow window(services, notifier);
    LiveActs& acts = window.getLive();
    QSignalSpy attached(&acts, &LiveActs::attached);
    acts.attachTo(start());
    ASSERT_TRUE(waitFor([&] { return attached.size() == 1; }));
    SoSFFloat* height = findField(*acts.getScene(), "height");
    ASSERT_TRUE(height);
    height->setValue(4.75F);
    ASSERT_TRUE(waitFor([&] { return !acts.getScene()->getEdits().getChanges().isEmpty(); }));
    process.kill();
    process.waitForFinished(MostWaitMs);
    ASSERT_TRUE(waitFor([&] { return acts.getScene()->getState() == LiveScene::State::Ended; }));
    acts.attachTo(start());
    ASSERT_TRUE(waitFor([&] { return attached.size() == 2; }));
    auto* box = window.findChild<QMessageBox*>("applyLiveChanges");
    ASSERT_TRUE(box);
    EXPECT_TRUE(box->text().contains("1 change")) << box->text().toStdString();
    box->buttons().first()->click();
    EXPECT_TRUE(waitFor([&] { return !acts.getScene()->getEdits().getChanges().isEmpty(); }));
    height = findField(*acts.getScene(), "height");
    ASSERT_TRUE(height);
    EXPECT_EQ(height->getValue(), 4.75F);
}

TEST_F(LiveProcess, IsLaunchedAgainFromTheWindowWithTheChangesOfTheLastRun)
{
    UserNotifier notifier;
    MainWindow window(services, notifier);
    LiveActs& acts = window.getLive();
    QSignalSpy attached(&acts, &LiveActs::attached);
    auto* again = window.findChild<QAction*>("launchAgainAction");
    ASSERT_TRUE(again);
    EXPECT_FALSE(again->isEnabled());
    acts.launch(mill());
    ASSERT_TRUE(waitFor([&] { return attached.size() == 1; }));
    EXPECT_TRUE(again->isEnabled());
    const auto pid = [&] { return static_cast<pid_t>(acts.getScene()->getLink().program().pid); };
    const pid_t first = pid();
    SoSFFloat* height = findField(*acts.getScene(), "height");
    ASSERT_TRUE(height);
    height->setValue(4.75F);
    ASSERT_TRUE(waitFor([&] { return !acts.getScene()->getEdits().getChanges().isEmpty(); }));
    auto* offer = window.findChild<QPushButton*>("liveOffer");
    ASSERT_TRUE(offer);
    EXPECT_TRUE(offer->isHidden());
    ASSERT_EQ(::kill(first, SIGKILL), 0);
    ASSERT_TRUE(waitFor([&] { return !offer->isHidden(); }));
    offer->click();
    ASSERT_TRUE(waitFor([&] { return attached.size() == 2; }));
    EXPECT_NE(pid(), first);
    EXPECT_TRUE(offer->isHidden());
    auto* box = window.findChild<QMessageBox*>("applyLiveChanges");
    ASSERT_TRUE(box);
    box->buttons().first()->click();
    EXPECT_TRUE(waitFor([&] { return !acts.getScene()->getEdits().getChanges().isEmpty(); }));
    EXPECT_EQ(::kill(pid(), SIGKILL), 0);
}

TEST(LaunchDialog, SplitsArgumentsAsACommandLineDoes)
{
    const LaunchOrder order{{"/opt/a viewer", "--scene", "my \"best\" scene.osgt"}, "/tmp"};
    const LaunchDialog dialog(order, nullptr);
    EXPECT_EQ(dialog.getOrder().command, order.command);
    EXPECT_EQ(dialog.getOrder().folder, order.folder);
}
