// SPDX-License-Identifier: MIT
#include "HostParts.h"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include <stdexcept>

namespace
{

class History : public ::testing::Test
{
protected:
    QUndoStack& stack() { return m_services.undoStack(); }
    void log(const std::string& name) { m_services.executeCommand(new LoggingCommand(m_log, name)); }
    void setTransparency(SoMaterial& material, float value)
    {
        m_services.select(&material.transparency);
        m_services.executeCommand(new SetFloat(material.transparency, value));
    }
    static SoMaterial* newMaterial()
    {
        auto* material = new SoMaterial;
        material->ref();
        return material;
    }

    Log m_log;
    HostServices m_services;
};

class Throwing : public LoggingCommand
{
public:
    Throwing(Log& log, std::string in)
        : LoggingCommand(log, in)
        , m_in(std::move(in))
    {
    }
    void execute() override { maybeThrow("execute"); }
    void undo() override { maybeThrow("undo"); }

private:
    void maybeThrow(const std::string& here)
    {
        if (here == m_in)
            throw std::runtime_error("no more");
    }
    std::string m_in;
};

// Its undo lets go of the last reference to a node.
class Dropping : public LoggingCommand
{
public:
    Dropping(Log& log, SoMaterial* material)
        : LoggingCommand(log, "drop")
        , m_material(material)
    {
    }
    void undo() override
    {
        LoggingCommand::undo();
        m_material->unref();
    }

private:
    SoMaterial* m_material;
};

// Holds the last reference to a node.
class Holding : public LoggingCommand
{
public:
    Holding(Log& log, SoRef<SoMaterial> material)
        : LoggingCommand(log, "hold")
        , m_holdLog(log)
        , m_material(std::move(material))
    {
    }
    ~Holding() override { m_holdLog.push_back("gone"); }

private:
    Log& m_holdLog;
    SoRef<SoMaterial> m_material;
};

TEST_F(History, RunsACommandOnceAndThenUndoesAndRedoesIt)
{
    log("a");
    stack().undo();
    stack().redo();
    stack().undo();
    EXPECT_EQ(m_log, (Log{"execute a", "undo a", "redo a", "undo a"}));
}

TEST_F(History, NamesAStepByTheSelectedField)
{
    SoRef<SoMaterial> material = new SoMaterial;
    setTransparency(*material, 0.5F);
    EXPECT_EQ(stack().undoText(), "Change Material.transparency");
    m_services.clearSelection();
    log("a");
    EXPECT_EQ(stack().undoText(), "Change");
    m_services.select(material.get());
    log("b");
    EXPECT_EQ(stack().undoText(), "Change Material");
}

TEST_F(History, AnEditAppliedOnDeselectionIsNamedByThatField)
{
    SoRef<SoMaterial> material = new SoMaterial;
    SoRef<SoComplexity> other = new SoComplexity;
    m_services.select(&material->transparency);
    bool applied = false;
    QObject listener;
    QObject::connect(&m_services, &SpxServices::selectedFieldChanged, &listener, [&](SoField*) {
        if (!std::exchange(applied, true))
            log("pending");
    });
    m_services.select(&other->value);
    EXPECT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().undoText(), "Change Material.transparency");
}

TEST_F(History, RemovesTheStepsOfADestroyedNodeAndKeepsOthers)
{
    SoMaterial* first = newMaterial();
    SoMaterial* second = newMaterial();
    setTransparency(*first, 0.25F);
    setTransparency(*second, 0.5F);
    setTransparency(*first, 0.75F);
    setTransparency(*second, 1.F);
    stack().undo();
    m_services.clearSelection();

    first->unref();

    ASSERT_EQ(stack().count(), 2);
    EXPECT_EQ(stack().index(), 1);
    stack().redo();
    EXPECT_EQ(second->transparency.getValue(), 1.F);
    stack().undo();
    stack().undo();
    EXPECT_EQ(second->transparency.getValue(), 0.F);
    second->unref();
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(History, AnEditAppliedOnDeselectionIsRemovedWithThatNode)
{
    SoMaterial* first = newMaterial();
    SoRef<SoComplexity> other = new SoComplexity;
    m_services.select(first);
    {
        QObject listener;
        QObject::connect(&m_services, &SpxServices::selectedNodeChanged, &listener, [&] { log("pending"); });
        m_services.select(other.get());
    }
    ASSERT_EQ(stack().count(), 1);
    first->unref();
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(History, TheSelectedNodeMayBeDestroyedWhileItIsEdited)
{
    SoMaterial* material = newMaterial();
    setTransparency(*material, 0.5F);
    Log told;
    QObject listener;
    QObject::connect(&m_services, &SpxServices::selectedFieldChanged, &listener, [&](SoField* field) {
        told.push_back(field ? "field" : "no field");
        // What was typed is applied while the editor is let go: to a node whose memory is still there.
        m_services.executeCommand(new SetFloat(material->transparency, 0.75F));
    });
    QObject::connect(&m_services, &SpxServices::selectedNodeChanged, &listener,
                     [&](SoFieldContainer* node) { told.push_back(node ? "node" : "no node"); });
    material->unref();
    EXPECT_EQ(told, (Log{"no field", "no node"}));
    EXPECT_EQ(m_services.selectedNode(), nullptr);
    EXPECT_EQ(m_services.selectedField(), nullptr);
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(History, AStepThatMayTouchAnythingIsRemovedWithAnyNode)
{
    log("who knows what");
    SoMaterial* material = newMaterial();
    material->unref();
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(History, AStepMayComeToTouchAnythingByALaterCommand)
{
    SoRef<SoMaterial> material = new SoMaterial;
    QWidget widget;
    widget.show();
    QTest::mousePress(widget.windowHandle(), Qt::LeftButton);
    setTransparency(*material, 0.5F);
    m_services.clearSelection();
    log("who knows what");
    QTest::mouseRelease(widget.windowHandle(), Qt::LeftButton);
    ASSERT_EQ(stack().count(), 1);
    newMaterial()->unref();
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(History, SavingSplitsAGestureIntoTwoSteps)
{
    SoRef<SoMaterial> material = new SoMaterial;
    QWidget widget;
    widget.show();
    QTest::mousePress(widget.windowHandle(), Qt::LeftButton);
    setTransparency(*material, 0.25F);
    stack().setClean();
    setTransparency(*material, 0.5F);
    QTest::mouseRelease(widget.windowHandle(), Qt::LeftButton);
    EXPECT_EQ(stack().count(), 2);
    EXPECT_FALSE(stack().isClean());
}

TEST_F(History, AStepThatTouchesAnotherNodeOutlivesAFreshInstance)
{
    SoRef<SoMaterial> material = new SoMaterial;
    setTransparency(*material, 0.5F);
    newMaterial()->unref();
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(History, ANodeMayBeDestroyedInsideAnUndo)
{
    SoMaterial* material = newMaterial();
    setTransparency(*material, 0.5F);
    m_services.executeCommand(new Dropping(m_log, material));
    stack().undo();
    EXPECT_EQ(m_log.back(), "undo drop");
    pump();
    EXPECT_EQ(stack().count(), 0);
    EXPECT_FALSE(stack().canUndo());
}

TEST_F(History, AStepStopsWhereItsNodeIsDestroyed)
{
    SoMaterial* material = newMaterial();
    m_services.select(material);
    QWidget widget;
    widget.show();
    QTest::mousePress(widget.windowHandle(), Qt::LeftButton);
    log("on the node");
    m_services.executeCommand(new Dropping(m_log, material));
    QTest::mouseRelease(widget.windowHandle(), Qt::LeftButton);
    ASSERT_EQ(stack().count(), 1);
    stack().undo();
    EXPECT_EQ(m_log.back(), "undo drop") << "what comes next would reach for the node";
    pump();
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(History, ACommandHandedOverInsideAnUndoIsKeptATurnLater)
{
    struct Nesting : LoggingCommand {
        Nesting(Log& log, HostServices& services)
            : LoggingCommand(log, "outer")
            , log(log)
            , services(services)
        {
        }
        void undo() override
        {
            LoggingCommand::undo();
            services.executeCommand(new LoggingCommand(log, "inner"));
        }
        Log& log;
        HostServices& services;
    };
    m_services.executeCommand(new Nesting(m_log, m_services));
    stack().undo();
    EXPECT_EQ(m_log, (Log{"execute outer", "undo outer", "execute inner"}));
    pump();
    ASSERT_EQ(stack().count(), 1);
    stack().undo();
    EXPECT_EQ(m_log.back(), "undo inner");
}

TEST_F(History, ACommandThatThrowsIsReportedAndDropped)
{
    QSignalSpy failures(&m_services, &HostServices::commandFailed);
    m_services.executeCommand(new Throwing(m_log, "execute"));
    ASSERT_EQ(failures.count(), 1);
    EXPECT_EQ(failures.at(0).at(0).toString(), "“Change” failed: no more");
    EXPECT_EQ(stack().count(), 0);
    m_services.executeCommand(new Throwing(m_log, "undo"));
    stack().undo();
    EXPECT_EQ(failures.count(), 2);
    EXPECT_EQ(stack().index(), 0);
}

// What was saved and what was not must not be mixed up by steps that go, or edits would be lost without a
// question.
TEST_F(History, RemovingAStepBeforeTheSavedStateKeepsIt)
{
    SoMaterial* gone = newMaterial();
    SoRef<SoMaterial> stays = new SoMaterial;
    setTransparency(*gone, 0.25F);
    setTransparency(*stays, 0.5F);
    stack().setClean();
    setTransparency(*stays, 0.75F);
    m_services.clearSelection();
    gone->unref();
    ASSERT_EQ(stack().count(), 2);
    EXPECT_FALSE(stack().isClean());
    EXPECT_EQ(stack().cleanIndex(), 1);
    stack().undo();
    EXPECT_TRUE(stack().isClean());
}

TEST_F(History, AStepRemovedAfterSavingLeavesUnsavedEdits)
{
    for (const bool undone : {false, true}) {
        SoMaterial* gone = newMaterial();
        setTransparency(*gone, 0.25F);
        if (undone) {
            stack().setClean();
            stack().undo();
        }
        ASSERT_FALSE(stack().isClean());
        m_services.clearSelection();
        gone->unref();
        EXPECT_EQ(stack().count(), 0);
        EXPECT_FALSE(stack().isClean()) << "what it did can be neither undone nor done again";
        stack().setClean();
    }
}

TEST_F(History, AStepBeyondTheSavedStateMayBeRemoved)
{
    SoMaterial* gone = newMaterial();
    SoRef<SoMaterial> stays = new SoMaterial;
    setTransparency(*stays, 0.5F);
    setTransparency(*gone, 0.25F);
    stack().undo();
    stack().setClean();
    m_services.clearSelection();
    gone->unref();
    EXPECT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().index(), 1);
    EXPECT_TRUE(stack().isClean());
}

TEST_F(History, ForgettingTheStepsForgetsNoEdits)
{
    SoRef<SoMaterial> material = new SoMaterial;
    setTransparency(*material, 0.5F);
    m_services.history().clear();
    EXPECT_FALSE(stack().isClean());
    stack().setClean();
    m_services.history().clear();
    EXPECT_TRUE(stack().isClean());
}

// While the stack deletes its entries it still lists them.
TEST_F(History, NodesMayGoWithTheStepsOfAStackThatIsCleared)
{
    SoRef<SoMaterial> other = new SoMaterial;
    setTransparency(*other, 0.5F);
    m_services.executeCommand(new Holding(m_log, new SoMaterial));
    ASSERT_EQ(stack().count(), 2);
    stack().clear();
    EXPECT_EQ(stack().count(), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_log, (Log{"execute hold", "gone"}));
}

TEST_F(History, ReportsEveryAction)
{
    QSignalSpy acted(&m_services.history(), &UndoHistory::acted);
    SoRef<SoMaterial> material = new SoMaterial;
    QWidget widget;
    widget.show();
    QTest::mousePress(widget.windowHandle(), Qt::LeftButton);
    setTransparency(*material, 0.25F);
    EXPECT_EQ(acted.count(), 1);
    setTransparency(*material, 0.5F);
    ASSERT_EQ(stack().count(), 1);
    EXPECT_EQ(acted.count(), 2) << "one that joins the same step too";
    QTest::mouseRelease(widget.windowHandle(), Qt::LeftButton);
    stack().undo();
    EXPECT_EQ(acted.count(), 3);
}

TEST_F(History, IgnoresANullCommand)
{
    m_services.executeCommand(nullptr);
    EXPECT_EQ(stack().count(), 0);
}

} // namespace
