// SPDX-License-Identifier: MIT
#include "HostParts.h"

#include <gtest/gtest.h>

#include <xsg/nodes/properties/SoComplexity.h>

namespace
{

class Selecting : public ::testing::Test
{
protected:
    Selecting()
    {
        QObject::connect(&m_services, &SpxServices::selectedNodeChanged,
                         [this](SoFieldContainer* node) { m_log.push_back("node " + nameOf(node)); });
        QObject::connect(&m_services, &SpxServices::selectedFieldChanged, [this](SoField* field) {
            m_log.push_back(field ? std::string("field ") + field->getName().getString() : "field none");
        });
    }
    static std::string nameOf(SoFieldContainer* node)
    {
        return node ? node->getTypeId().getName().getString() : "none";
    }
    Log take() { return std::exchange(m_log, {}); }

    Log m_log; // nodes that are destroyed at the end are still reported
    HostServices m_services;
    SoRef<SoMaterial> m_material = new SoMaterial;
    SoRef<SoComplexity> m_complexity = new SoComplexity;
};

TEST_F(Selecting, AFieldBringsItsNode)
{
    m_services.select(&m_material->transparency);
    EXPECT_EQ(take(), (Log{"node Material", "field transparency"}));
    EXPECT_EQ(m_services.selectedNode(), m_material.get());
}

TEST_F(Selecting, ReportsTheSameSelectionAgain)
{
    m_services.select(&m_material->transparency);
    take();
    m_services.select(&m_material->transparency);
    EXPECT_EQ(take(), (Log{"field transparency"}));
    m_services.select(m_material.get());
    EXPECT_EQ(take(), (Log{"node Material"}));
    EXPECT_EQ(m_services.selectedField(), &m_material->transparency);
    m_services.tellSelectionAgain();
    EXPECT_EQ(take(), (Log{"node Material", "field transparency"}));
}

TEST_F(Selecting, AnotherNodeDropsTheFieldFirst)
{
    m_services.select(&m_material->transparency);
    take();
    m_services.select(m_complexity.get());
    EXPECT_EQ(take(), (Log{"field none", "node Complexity"}));
    m_services.clearSelection();
    EXPECT_EQ(take(), (Log{"node none"}));
}

TEST_F(Selecting, NoFieldKeepsTheNode)
{
    m_services.select(&m_material->transparency);
    take();
    m_services.select(static_cast<SoField*>(nullptr));
    EXPECT_EQ(take(), (Log{"field none"}));
    EXPECT_EQ(m_services.selectedNode(), m_material.get());
}

TEST_F(Selecting, QueuesASelectionMadeWhileOneIsReported)
{
    bool answered = false;
    QObject listener;
    QObject::connect(&m_services, &SpxServices::selectedNodeChanged, &listener, [&](SoFieldContainer* node) {
        if (node && !std::exchange(answered, true))
            m_services.select(&m_complexity->value);
    });
    m_services.select(&m_material->transparency);
    EXPECT_EQ(take(),
              (Log{"node Material", "field transparency", "field none", "node Complexity", "field value"}));
}

TEST_F(Selecting, ASelectedNodeThatNobodyReferencesIsLeftAsItIs)
{
    auto* loose = new SoMaterial;
    m_services.select(loose);
    m_services.clearSelection();
    EXPECT_EQ(loose->getRefCount(), 0);
    loose->ref();
    loose->unref();
}

TEST_F(Selecting, ANodeWithAQueuedSelectionMayBeDestroyed)
{
    auto* going = new SoMaterial;
    going->ref();
    bool answered = false;
    QObject listener;
    QObject::connect(&m_services, &SpxServices::selectedNodeChanged, &listener, [&](SoFieldContainer*) {
        if (std::exchange(answered, true))
            return;
        m_services.select(&going->transparency);
        going->unref();
    });
    m_services.select(m_complexity.get());
    EXPECT_EQ(m_services.selectedNode(), m_complexity.get());
}

TEST_F(Selecting, SeveralTellTheLastAndEachChangeOfTheOthers)
{
    const SoRef<SoMaterial> third(new SoMaterial);
    int changes = 0;
    const QObject whileCounting;
    QObject::connect(&m_services, &HostServices::selectionChanged, &whileCounting, [&changes] { ++changes; });
    m_services.selectNodes({m_material.get(), m_complexity.get()});
    EXPECT_EQ(take(), (Log{"node Complexity"}));
    m_services.selectNodes({m_material.get(), third.get(), m_complexity.get()});
    EXPECT_EQ(take(), (Log{"node Complexity"}));
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(m_services.getSelectedNodes(),
              (QList<SoFieldContainer*>{m_material.get(), third.get(), m_complexity.get()}));
    m_services.select(&m_complexity->value);
    EXPECT_EQ(take(), (Log{"field value"}));
    EXPECT_EQ(m_services.getSelectedNodes().size(), 3) << "a field of the current node leaves the others";
    m_services.select(&m_material->transparency);
    EXPECT_EQ(m_services.getSelectedNodes(), (QList<SoFieldContainer*>{m_material.get()}));
    EXPECT_EQ(take(), (Log{"field none", "node Material", "field transparency"}));
}

TEST_F(Selecting, ANodeThatIsNamedTwiceCountsOnce)
{
    m_services.selectNodes({m_material.get(), m_complexity.get(), nullptr, m_material.get()});
    EXPECT_EQ(m_services.getSelectedNodes(),
              (QList<SoFieldContainer*>{m_complexity.get(), m_material.get()}));
}

TEST_F(Selecting, WhatDiesDropsOutOfSeveral)
{
    auto* first = new SoMaterial;
    first->ref();
    auto* last = new SoMaterial;
    last->ref();
    m_services.selectNodes({first, m_complexity.get(), last});
    take();
    first->unref();
    EXPECT_EQ(take(), (Log{"node Material"}));
    EXPECT_EQ(m_services.getSelectedNodes(), (QList<SoFieldContainer*>{m_complexity.get(), last}));
    m_services.select(&last->transparency);
    take();
    last->unref();
    EXPECT_EQ(take(), (Log{"field none", "node Complexity"})) << "the one before it is the current one";
    EXPECT_EQ(m_services.selectedNode(), m_complexity.get());
}

TEST_F(Selecting, ANodeOfAQueuedSelectionOfSeveralMayBeDestroyed)
{
    auto* going = new SoMaterial;
    going->ref();
    bool answered = false;
    QObject listener;
    QObject::connect(&m_services, &SpxServices::selectedNodeChanged, &listener, [&](SoFieldContainer*) {
        if (std::exchange(answered, true))
            return;
        m_services.selectNodes({m_material.get(), going});
        going->unref();
    });
    m_services.select(m_complexity.get());
    EXPECT_EQ(m_services.getSelectedNodes(), (QList<SoFieldContainer*>{m_material.get()}));
}

TEST_F(Selecting, WritesOfAllSelectedNodesAreEdits)
{
    const SoRef<SoMaterial> second(new SoMaterial);
    m_services.selectNodes({m_material.get(), second.get()});
    {
        const UserInput::Scope scope(m_services.history().input(), UserInput::Scope::User);
        m_material->shininess.setValue(0.25F);
        second->shininess.setValue(0.75F);
    }
    m_services.history().settle();
    ASSERT_EQ(m_services.undoStack().count(), 1);
    m_services.undoStack().undo();
    EXPECT_EQ(m_material->shininess.getValue(), SoMaterial().shininess.getValue());
    EXPECT_EQ(second->shininess.getValue(), SoMaterial().shininess.getValue());
}

} // namespace
