// SPDX-License-Identifier: MIT
// A program and its inspectors over real sockets, in one process.
#include "RawPeer.h"
#include "ToyScene.h"
#include "live/Probe.h"

#include <scopix/live/server/Server.h>
#include <scopix/live/transport/SocketFolder.h>
#include <scopix/live/transport/Sockets.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <memory>
#include <thread>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace scopix::live;

namespace
{

class Served : public ::testing::Test
{
protected:
    std::function<void()> step()
    {
        return [this] {
            if (server)
                server->betweenFrames();
        };
    }
    std::unique_ptr<Probe> attached()
    {
        auto probe = std::make_unique<Probe>(step());
        EXPECT_EQ(probe->client.connect(server->socketPath()), "");
        probe->roots();
        return probe;
    }
    void runUntilDetached()
    {
        const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (server->isAttached() && std::chrono::steady_clock::now() < patience)
            server->betweenFrames();
        EXPECT_FALSE(server->isAttached());
    }

    OwnRuntimeFolder folder;
    ToyScene scene;
    std::unique_ptr<Server> server = std::make_unique<Server>(scene, "toy");
};

Value number(float value)
{
    return packed(ValueKind::Float, value);
}

} // namespace

TEST_F(Served, IsReachableForItsUserAlone)
{
    EXPECT_EQ(server->problem(), "");
    struct stat status {
    };
    ASSERT_EQ(stat(folder.sockets().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U);
    EXPECT_EQ(status.st_uid, geteuid());
    EXPECT_EQ(server->socketPath().find(folder.sockets() + "/"), 0U);
}

TEST_F(Served, AsksTheAdapterNothingUntilSomebodyIsAttached)
{
    EXPECT_EQ(ownPrograms().size(), 1U);
    for (int i = 0; i < 100; ++i)
        server->betweenFrames();
    EXPECT_FALSE(server->isAttached());
    EXPECT_TRUE(scene.attachments.empty());
    const auto probe = attached();
    EXPECT_TRUE(server->isAttached());
    EXPECT_EQ(scene.attachments, std::vector<bool>{true});
}

TEST_F(Served, LeavesNothingBehindWhenTheLastInspectorGoes)
{
    auto first = attached();
    auto second = attached();
    first->client.watch(ToyScene::Node, true);
    second->client.watch(ToyScene::Node, false);
    first->client.mark(ToyScene::Node);
    const auto removed = first->ask<StructureResult>(&Client::remove, ToyScene::Node, 5U);
    second->roots();
    EXPECT_EQ(scene.marked, ToyScene::Node);
    EXPECT_EQ(scene.watched, (std::map<NodeId, bool>{{ToyScene::Node, true}}));
    first.reset();
    second->runUntil([&] { return scene.marked == 0; });
    EXPECT_EQ(scene.marked, 0U);
    EXPECT_EQ(scene.watched, (std::map<NodeId, bool>{{ToyScene::Node, false}}))
        << "the other one still watches";
    EXPECT_EQ(scene.forgotten, std::vector<NodeId>{removed.node});
    EXPECT_EQ(scene.attachments, std::vector<bool>{true});
    second.reset();
    runUntilDetached();
    EXPECT_TRUE(scene.watched.empty());
    EXPECT_EQ(scene.attachments, (std::vector<bool>{true, false}));
}

TEST_F(Served, CopiesNodesAndLetsGoOfRemovedOnesWhenAsked)
{
    const auto probe = attached();
    EXPECT_EQ(probe->ask<StructureResult>(&Client::copy, ToyScene::Node, 5U, NodeId(3)).node, 3005U);
    const auto removed = probe->ask<StructureResult>(&Client::remove, ToyScene::Node, 5U);
    probe->client.forget(removed.node);
    probe->client.forget(77); // which it has not removed
    probe->roots();
    EXPECT_EQ(scene.forgotten, std::vector<NodeId>{removed.node});
}

TEST_F(Served, SendsFramesToThoseWhoLookAtThem)
{
    const auto probe = attached();
    const auto other = attached();
    scene.frames = {{"Begin", "Draw"}, {1, 2, 3, 4}};
    probe->client.showFrames(true);
    ASSERT_TRUE(probe->runUntil([&] { return !probe->frames.empty(); }));
    EXPECT_EQ(probe->frames.front().columns, scene.frames.columns);
    EXPECT_EQ(probe->frames.front().values, scene.frames.values);
    scene.frames.values.pop_back(); // no whole row
    const std::size_t before = probe->frames.size();
    const int asked = scene.framesAsked;
    ASSERT_TRUE(probe->runUntil([&] { return scene.framesAsked > asked + 1; }));
    probe->roots();
    EXPECT_EQ(probe->frames.size(), before);
    other->roots();
    EXPECT_TRUE(other->frames.empty());
}

TEST_F(Served, SendsAShownValueWhenItDiffersAndOnlyThen)
{
    const auto probe = attached();
    scene.values["size"] = number(1);
    probe->client.watch(ToyScene::Node, true);
    EXPECT_EQ(probe->value(ToyScene::Node, "size"), number(1));
    const auto change = [&] { scene.changes.properties.push_back({ToyScene::Node, "size"}); };
    change(); // but it is the same
    const int read = scene.read;
    ASSERT_TRUE(probe->runUntil([&] { return scene.read > read; }));
    scene.values["size"] = number(2);
    change();
    ASSERT_TRUE(probe->runUntil([&] { return probe->valueCount > 0; }));
    EXPECT_EQ(probe->values.at({ToyScene::Node, "size"}), number(2));
    EXPECT_EQ(probe->valueCount, 1);
    scene.changes.properties.push_back({77, "size"}); // which nobody watches
    probe->client.unwatch(ToyScene::Node);
    probe->roots();
    change();
    probe->runUntil([&] { return scene.changes.properties.empty(); });
    probe->roots();
    EXPECT_EQ(probe->valueCount, 1);
}

TEST_F(Served, TellsTheWriterNothingAndTheOthersOfWhatWasWritten)
{
    const auto writer = attached();
    const auto other = attached();
    for (Probe* probe : {writer.get(), other.get()})
        probe->client.watch(ToyScene::Node, true);
    other->roots();
    EXPECT_TRUE(writer->write(ToyScene::Node, "size", number(3)).taken);
    ASSERT_TRUE(other->runUntil([&] { return other->valueCount > 0; }));
    EXPECT_EQ(other->values.at({ToyScene::Node, "size"}), number(3));
    writer->roots();
    EXPECT_EQ(writer->valueCount, 0);
    // What the program makes of it later is a change from elsewhere.
    scene.values["size"] = number(2.5F);
    scene.changes.properties.push_back({ToyScene::Node, "size"});
    EXPECT_TRUE(writer->runUntil([&] { return writer->valueCount > 0; }));
    EXPECT_EQ(writer->values.at({ToyScene::Node, "size"}), number(2.5F));
}

TEST_F(Served, TurnsExceptionsOfTheAdapterIntoRefusals)
{
    const auto probe = attached();
    probe->client.showNotices(true);
    scene.fails = true;
    EXPECT_TRUE(probe->roots().empty());
    const WriteResult result = probe->write(ToyScene::Node, "size", number(1));
    EXPECT_FALSE(result.taken);
    EXPECT_EQ(result.refusal, "The program could not do it: an exception of no known type.");
    ASSERT_FALSE(probe->notices.empty());
    EXPECT_EQ(probe->notices.front().text, "The program’s adapter failed: it does not want to.");
    EXPECT_TRUE(isKnown(result.refusal));
    EXPECT_TRUE(isKnown(probe->notices.front().text));
}

TEST_F(Served, SendsNoValueThatIsNotWhatItsKindSays)
{
    const auto probe = attached();
    probe->client.showNotices(true);
    scene.values["bad"] = {ValueKind::Vec3f, false, {1, 2, 3}};
    EXPECT_FALSE(probe->value(ToyScene::Node, "bad"));
    EXPECT_EQ(probe->notices.size(), 1U);
}

TEST_F(Served, SendsAListOfMillions)
{
    const auto probe = attached();
    std::vector<float> floats(6000000);
    for (std::size_t i = 0; i < floats.size(); ++i)
        floats[i] = static_cast<float>(i);
    const Value list = packedList(ValueKind::Vec3f, floats.data(), floats.size());
    EXPECT_TRUE(probe->write(ToyScene::Node, "points", list).taken);
    EXPECT_EQ(scene.values["points"], list);
    EXPECT_EQ(probe->value(ToyScene::Node, "points"), list);
    EXPECT_EQ(list.count(), 2000000U);
    // One that is too long is refused, and the connection stays.
    scene.values["points"].bytes.resize(std::size_t(72) << 20);
    EXPECT_FALSE(probe->value(ToyScene::Node, "points"));
    EXPECT_EQ(probe->roots().size(), 1U);
}

TEST_F(Served, AsksForTheNextPictureWhenTheLastOneWasTaken)
{
    const auto probe = attached();
    scene.picture = Picture{2, 1, {1, 2, 3, 4, 5, 6, 7, 8}};
    RawPeer slow(server->socketPath(), step());
    slow.greet();
    slow.send(packedMessage(MessageType::ShowPictures, 0, Number(10), Number(10)));
    ASSERT_TRUE(slow.await(MessageType::PictureCame));
    const int asked = scene.picturesAsked;
    for (int i = 0; i < 20; ++i)
        probe->roots();
    EXPECT_EQ(scene.picturesAsked, asked) << "nobody has taken the first one";
    probe->client.showPictures(10, 10);
    ASSERT_TRUE(probe->runUntil([&] { return probe->pictures.size() >= 2; }));
    EXPECT_EQ(probe->pictures.front().pixels, scene.picture->pixels);
    EXPECT_GT(scene.picturesAsked, asked);
}

TEST_F(Served, GoesOnWithoutAPictureThatIsNotWhole)
{
    const auto probe = attached();
    scene.picture = Picture{200, 100, {1, 2, 3}};
    probe->client.showPictures(200, 100);
    ASSERT_TRUE(probe->runUntil([&] { return scene.picturesAsked >= 2; }));
    EXPECT_TRUE(probe->pictures.empty());
    EXPECT_EQ(probe->end, "");
}

TEST_F(Served, WakesTheProgramForQuestionsAndFarewells)
{
    std::atomic<bool> isWoken{false};
    server->setWake([&isWoken] { isWoken = true; });
    // As a program that sleeps until it is woken; a question comes in as many parts as it likes.
    Probe probe([&] {
        if (isWoken.exchange(false))
            server->betweenFrames();
    });
    ASSERT_EQ(probe.client.connect(server->socketPath()), "");
    EXPECT_FALSE(probe.roots().empty());
    EXPECT_TRUE(server->isAttached());
    probe.client.disconnect();
    const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (server->isAttached() && std::chrono::steady_clock::now() < patience) {
        if (isWoken.exchange(false))
            server->betweenFrames();
        else
            std::this_thread::yield();
    }
    EXPECT_FALSE(server->isAttached());
    server->setWake({});
}

TEST_F(Served, AnswersWithinItsBudget)
{
    server->setBudget(0);
    Probe probe;
    ASSERT_EQ(probe.client.connect(server->socketPath()), "");
    int answered = 0;
    for (int i = 0; i < 10; ++i)
        probe.client.roots([&](const std::vector<NodeInfo>&) { ++answered; });
    int frames = 0;
    while (answered < 10 && frames < 1000000) {
        const int before = scene.asked;
        server->betweenFrames();
        EXPECT_LE(scene.asked - before, 1) << "one a frame where there is no time";
        frames += scene.asked - before;
        probe.client.process();
    }
    EXPECT_EQ(frames, 10);
}

TEST_F(Served, NamesTheVersionsWhereTheyDiffer)
{
    RawPeer newer(server->socketPath(), step());
    newer.greet(ProtocolVersion + 1);
    EXPECT_EQ(newer.awaitGoodbye(),
              "The program “toy” speaks version 2 of the protocol and this inspector version 3; use "
              "libraries and an inspector of the same version.");
    EXPECT_FALSE(server->isAttached());
}

TEST_F(Served, HearsNobodyWhoDoesNotGreet)
{
    RawPeer stranger(server->socketPath(), step());
    stranger.send(packedMessage(MessageType::Roots, 1));
    EXPECT_EQ(stranger.awaitGoodbye(), "The program “toy” was not greeted as an inspector greets it.");
    EXPECT_EQ(scene.asked, 0);
}

TEST_F(Served, SendsAwayWhoeverAnnouncesAHugeMessage)
{
    const auto probe = attached();
    RawPeer hostile(server->socketPath(), step());
    hostile.greet();
    ASSERT_TRUE(hostile.await(MessageType::Hello));
    Bytes head = packedMessage(MessageType::Write, 1);
    head[3] = 0x7F; // the length: two thousand millions
    hostile.send(head);
    EXPECT_EQ(hostile.awaitGoodbye(), "The inspector sent a message that is too long or damaged; detached.");
    EXPECT_EQ(probe->roots().size(), 1U);
}

TEST_F(Served, SendsAwayWhoeverSaysWhatNobodyUnderstands)
{
    const auto probe = attached();
    const std::vector<Bytes> messages = {
        packedMessage(MessageType::Children, 1, NodeId(1)), // too short
        packedMessage(MessageType::Roots, 1, NodeId(1)),    // too long
        packedMessage(static_cast<MessageType>(999), 1),
        packedMessage(MessageType::ValueChanged, 1, NodeId(1), Text("x"), number(1)), // the program's words
        packedMessage(MessageType::Write, 1, NodeId(1), Text("x"), Value{ValueKind::Vec3f, false, {1}}),
        packedMessage(MessageType::Write, 1, NodeId(1), Text("x"), std::uint8_t(200), false, Bytes{1}),
    };
    for (const Bytes& message : messages) {
        RawPeer hostile(server->socketPath(), step());
        hostile.greet();
        hostile.send(message);
        EXPECT_EQ(hostile.awaitGoodbye(),
                  "The inspector sent a message that this program does not understand; detached.");
    }
    EXPECT_EQ(probe->roots().size(), 1U);
}

TEST_F(Served, AnswersTheOthersWhileOneFloodsIt)
{
    const auto probe = attached();
    RawPeer hostile(server->socketPath(), {});
    hostile.greet();
    Bytes flood;
    for (std::uint32_t id = 1; id <= 1000; ++id) {
        const Bytes question = packedMessage(MessageType::Roots, id);
        flood.insert(flood.end(), question.begin(), question.end());
    }
    for (int i = 0; i < 200; ++i) {
        hostile.sendSome(flood); // and never reads an answer
        EXPECT_EQ(probe->roots().size(), 1U);
    }
}

TEST_F(Served, EndsInGoodOrder)
{
    const auto probe = attached();
    probe->client.mark(ToyScene::Node);
    probe->roots();
    const std::string path = server->socketPath();
    server.reset();
    EXPECT_FALSE(std::filesystem::exists(path));
    probe->runUntil([&] { return !probe->end.empty(); });
    EXPECT_EQ(probe->end, "The program “toy” has ended its connection.");
    EXPECT_EQ(scene.marked, 0U);
    EXPECT_EQ(scene.attachments, (std::vector<bool>{true, false}));
}

TEST_F(Served, ServesSeveralInspectorsAndRefusesTooMany)
{
    std::vector<std::unique_ptr<Probe>> probes;
    std::string problem;
    for (int i = 0; i < 40 && problem.empty(); ++i) {
        probes.push_back(std::make_unique<Probe>(step()));
        problem = probes.back()->client.connect(server->socketPath());
    }
    EXPECT_EQ(problem, "The program “toy” has as many inspectors as it can have; detach another one first.");
    EXPECT_EQ(probes.size(), 33U);
    EXPECT_EQ(probes.front()->roots().size(), 1U);
}

TEST(SeveralPrograms, AreListedByName)
{
    const OwnRuntimeFolder folder;
    ToyScene scene;
    const Server second(scene, "second");
    const Server first(scene, "first");
    const std::vector<Program> programs = ownPrograms();
    ASSERT_EQ(programs.size(), 2U);
    EXPECT_EQ(programs[0].name, "first");
    EXPECT_EQ(programs[1].name, "second");
    EXPECT_NE(programs[0].socketPath, programs[1].socketPath);
}
