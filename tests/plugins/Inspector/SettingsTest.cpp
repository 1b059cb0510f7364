// SPDX-License-Identifier: MIT
// What can be set of the panel, in the program's dialog of preferences.
#include "InspectorSession.h"

#include "preferences/PreferencesDialog.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <xsg/nodes/cameras/SoPerspectiveCamera.h>

#include <QComboBox>

namespace
{

class PanelSettingsTest : public testing::Test
{
protected:
    PanelSettingsTest()
        : session([](HostServices& services, UserNotifier& notifier) {
            return std::make_unique<MainWindow>(services, notifier);
        })
    {
        camera->position.setValue(SbVec3f(0.5F, 1.0F / 3, 2));
        camera->nearDistance.setValue(0.25F);
        session.selectNode(camera.get());
    }
    PreferencesDialog& dialog()
    {
        if (!session.host.window().findChild<PreferencesDialog*>())
            session.host.window().findChild<QAction*>("preferencesAction")->trigger();
        return *session.host.window().findChild<PreferencesDialog*>();
    }
    void choose(const char* setting, const char* text)
    {
        auto* box = dialog().findChild<QComboBox*>(setting);
        ASSERT_TRUE(box);
        box->setCurrentIndex(box->findText(text));
        emit box->activated(box->currentIndex());
        delete &dialog();
        session.host.window().activateWindow();
        EXPECT_TRUE(waitForActive(&session.host.window()));
        session.settle();
    }
    QString shown(const char* field, int which = 0) { return session.number(field, which)->text(); }

    const SoRef<SoPerspectiveCamera> camera{new SoPerspectiveCamera};
    InspectorSession session;
};

TEST_F(PanelSettingsTest, LengthsAreShownInTheUnitThatIsSet)
{
    EXPECT_EQ(shown("nearDistance"), "0.25");
    choose("lengthUnit", "centimetres");
    EXPECT_EQ(shown("nearDistance"), "25 cm");
    EXPECT_EQ(shown("heightAngle"), QString::fromUtf8("45°"));
    // What is typed without a unit is in the one that is shown.
    session.enter(session.number("nearDistance"), "50");
    EXPECT_EQ(camera->nearDistance.getValue(), 0.5F);
    session.enter(session.number("nearDistance"), "2 in");
    EXPECT_FLOAT_EQ(camera->nearDistance.getValue(), 0.0508F);
    EXPECT_EQ(shown("nearDistance"), "5.08 cm");
    session.undo();
    session.undo();
    EXPECT_EQ(camera->nearDistance.getValue(), 0.25F);
    choose("lengthUnit", "inches");
    EXPECT_EQ(shown("nearDistance"), "9.84252 in");
    // Looking at it writes nothing.
    session.click(session.number("nearDistance"));
    QTest::keyClick(session.number("nearDistance"), Qt::Key_Return);
    EXPECT_EQ(camera->nearDistance.getValue(), 0.25F);
    EXPECT_TRUE(session.stack().index() == 0);
    choose("lengthUnit", "metres");
    EXPECT_EQ(shown("nearDistance"), "0.25");
}

TEST_F(PanelSettingsTest, NumbersHaveAsManyDigitsAsIsSet)
{
    EXPECT_EQ(shown("position", 1), "0.33333334");
    choose("digits", "3");
    EXPECT_EQ(shown("position", 1), "0.333");
    session.click(session.number("position", 1));
    QTest::keyClick(session.number("position", 1), Qt::Key_Return);
    EXPECT_EQ(camera->position.getValue()[1], 1.0F / 3);
    session.enter(session.number("position", 1), "0.12345678");
    EXPECT_EQ(camera->position.getValue()[1], 0.12345678F);
    EXPECT_EQ(shown("position", 1), "0.123");
    choose("digits", "All");
    EXPECT_EQ(shown("position", 1), "0.12345678");
}

TEST_F(PanelSettingsTest, AreFoundByTheirWordsAndGoWithThePlugIn)
{
    QTest::keyClicks(&dialog().getSearch(), "centim");
    EXPECT_TRUE(dialog().findChild<QComboBox*>("lengthUnit")->isVisible());
    EXPECT_FALSE(dialog().findChild<QComboBox*>("digits")->isVisible());
    delete &dialog();
    EXPECT_EQ(session.host.shell().getChoices().size(), 2U);
    session.host.plugins().unloadAll();
    EXPECT_TRUE(session.host.shell().getChoices().empty());
    EXPECT_FALSE(dialog().findChild<QComboBox*>("lengthUnit"));
}

} // namespace
