// SPDX-License-Identifier: MIT
// The sample plug-in, loaded and driven as the program does it.
#include "support/TestHost.h"

#include <scopix/SpxPlugin.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>

#include <gtest/gtest.h>

#include <QLibrary>
#include <QSlider>
#include <QtTest>

namespace
{

class LightAim : public ::testing::Test
{
protected:
    void SetUp() override
    {
        auto* loadPlugin = reinterpret_cast<SpxPlugin* (*)()>(m_library.resolve("loadPlugin"));
        ASSERT_NE(loadPlugin, nullptr) << m_library.errorString().toStdString();
        m_plugin = loadPlugin();
        ASSERT_TRUE(m_plugin->load());
        ASSERT_EQ(m_plugin->getExtensions().size(), 1);
        m_editor = qobject_cast<SpxEditor*>(m_plugin->getExtensions().front());
        ASSERT_NE(m_editor, nullptr);
        m_host.edit(*m_editor, m_light.get());
    }

    void TearDown() override
    {
        if (m_editor)
            m_host.stop(*m_editor);
        m_host.clearUndo();
        reinterpret_cast<void (*)()>(m_library.resolve("unloadPlugin"))();
    }

    QSlider* slider(const char* name) { return m_editor->getWidget()->findChild<QSlider*>(name); }

    static void expectNear(const SbVec3f& value, const SbVec3f& wanted)
    {
        for (int i = 0; i < 3; ++i)
            EXPECT_NEAR(value[i], wanted[i], 1e-5) << "component " << i;
    }

    TestHost m_host;
    SoRef<SoDirectionalLight> m_light{new SoDirectionalLight};
    QLibrary m_library{LIGHTAIM_FILE};
    SpxPlugin* m_plugin = nullptr;
    SpxEditor* m_editor = nullptr;
};

} // namespace

TEST_F(LightAim, HandlesDirectionalLights)
{
    EXPECT_EQ(m_editor->getHandledType(), SoDirectionalLight::getClassTypeId());
}

TEST_F(LightAim, ShowingChangesNothing)
{
    EXPECT_EQ(slider("azimuth")->value(), 0);
    EXPECT_EQ(slider("elevation")->value(), 0);
    EXPECT_TRUE(m_light->direction.isDefault());
    EXPECT_EQ(m_host.undoCount(), 0);
}

TEST_F(LightAim, AKeyOnASliderTurnsTheLightAndUndoTurnsItBack)
{
    const SbVec3f before = m_light->direction.getValue();
    QTest::keyClick(slider("elevation"), Qt::Key_End);
    expectNear(m_light->direction.getValue(), {0, -1, 0});
    EXPECT_EQ(m_host.undoCount(), 1);

    m_host.undo();
    EXPECT_EQ(m_light->direction.getValue(), before);
    m_host.pump();
    EXPECT_EQ(slider("elevation")->value(), 0);

    m_host.redo();
    expectNear(m_light->direction.getValue(), {0, -1, 0});
}

TEST_F(LightAim, FollowsAChangeFromElsewhere)
{
    m_light->direction.setValue(SbVec3f(-1, 0, 0));
    m_host.pump();
    EXPECT_EQ(slider("azimuth")->value(), 90);
    EXPECT_EQ(m_host.undoCount(), 0);
}

TEST_F(LightAim, KeepsTheLengthAndTheOtherAnglesDigits)
{
    m_light->direction.setValue(SbVec3f(-3, -0.35F, -4));
    const float length = m_light->direction.getValue().length();
    m_host.pump();
    QTest::keyClick(slider("azimuth"), Qt::Key_Right);
    EXPECT_NEAR(m_light->direction.getValue()[1], -0.35F, 1e-5);
    EXPECT_NEAR(m_light->direction.getValue().length(), length, 1e-5);
}
