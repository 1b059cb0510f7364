// The whole road of an edit: the real plug-in, loaded by name, in the real host.
#include "PluginParts.h"

#include "SensorPump.h"
#include "UndoKeys.h"

#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/SoComplexity.h>
#include <xsg/nodes/SoMaterial.h>
#include <xsg/sensors/SoFieldSensor.h>

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include <cmath>

namespace
{

class Road : public ::testing::Test
{
protected:
    Road()
    {
        EXPECT_TRUE(m_host.manager.loadPlugin(SCOPIX_PLUGIN));
        EXPECT_EQ(m_host.failures, QStringList());
        m_host.window.setCentralWidget(&m_elsewhere);
        m_elsewhere.setFocusPolicy(Qt::StrongFocus);
        m_host.window.resize(900, 600);
        m_host.window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_host.window));
        field().setValue(0.1F);
        m_host.services.select(&field());
        runLoop();
    }
    ~Road() override
    {
        m_host.manager.unloadAll();
        m_elsewhere.setParent(nullptr);
    }

    SoSFFloat& field() { return m_material->transparency; }
    QUndoStack& stack() { return m_host.services.undoStack(); }
    QDockWidget* dock() { return m_host.window.findChild<QDockWidget*>("Field Editor"); }
    // The editor's input, which shows the value and not the ends of its range.
    QLineEdit* input()
    {
        for (QLineEdit* line : dock()->findChildren<QLineEdit*>()) {
            if (line->isVisible() && line->text().startsWith("0.1"))
                return line;
        }
        return nullptr;
    }
    QAbstractButton* button(const char* name) { return dock()->findChild<QAbstractButton*>(name); }
    void undoKey() { QTest::keyClick(m_host.window.focusWidget(), Qt::Key_Z, Qt::ControlModifier); }
    void redoKey()
    {
        QTest::keyClick(m_host.window.focusWidget(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    }
    void drag(QSlider& slider)
    {
        QStyleOptionSlider option;
        option.initFrom(&slider);
        option.orientation = Qt::Horizontal;
        option.minimum = slider.minimum();
        option.maximum = slider.maximum();
        option.sliderPosition = slider.sliderPosition();
        option.sliderValue = slider.value();
        const QPoint from = slider.style()
                                ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider)
                                .center();
        QTest::mousePress(&slider, Qt::LeftButton, {}, from);
        for (int i = 1; i <= 8; ++i) {
            const QPoint at = from + QPoint(5 * i, 0);
            QMouseEvent move(QEvent::MouseMove, at, slider.mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                             Qt::NoModifier);
            QApplication::sendEvent(&slider, &move);
            runLoop();
        }
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, from + QPoint(40, 0));
        runLoop();
    }
    template <class Act>
    void expectOneStepThatUndoes(Act act)
    {
        const float before = field().getValue();
        const bool ignoredBefore = field().isIgnored();
        act();
        const float after = field().getValue();
        const bool ignoredAfter = field().isIgnored();
        EXPECT_TRUE(before != after || ignoredBefore != ignoredAfter);
        ASSERT_EQ(stack().count(), 1);
        EXPECT_EQ(stack().undoText(), "Change Material.transparency");
        undoKey();
        EXPECT_EQ(field().getValue(), before);
        EXPECT_EQ(field().isIgnored(), ignoredBefore);
        redoKey();
        EXPECT_EQ(field().getValue(), after);
        EXPECT_EQ(field().isIgnored(), ignoredAfter);
    }

    SoRef<SoMaterial> m_material = new SoMaterial;
    QWidget m_elsewhere;
    PluginHost m_host;
    SensorPump m_pump;
    UndoKeys m_keys{m_host.services.undoStack(), m_host.window};
};

TEST_F(Road, SelectingAFieldDocksItsEditorAtTheRightAndNothingHidesIt)
{
    ASSERT_TRUE(dock());
    EXPECT_TRUE(dock()->isVisible());
    EXPECT_EQ(dock()->windowTitle(), "Field Editor");
    EXPECT_EQ(m_host.window.dockWidgetArea(dock()), Qt::RightDockWidgetArea);
    EXPECT_TRUE(input());
    m_host.services.clearSelection();
    EXPECT_FALSE(dock()->isVisible());
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(Road, ATypedValueIsOneStep)
{
    expectOneStepThatUndoes([this] {
        QLineEdit* line = input();
        ASSERT_TRUE(line);
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, "0.375");
        QTest::keyClick(line, Qt::Key_Return);
        m_elsewhere.setFocus();
        runLoop();
        EXPECT_EQ(field().getValue(), 0.375F);
    });
}

TEST_F(Road, TypingThatIsNotAppliedKeepsTheUndoKeyForItself)
{
    QLineEdit* line = input();
    ASSERT_TRUE(line);
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, "0.5");
    undoKey();
    EXPECT_EQ(stack().count(), 0);
    EXPECT_EQ(field().getValue(), 0.1F);
    EXPECT_TRUE(line->text().startsWith("0.1")) << line->text().toStdString();
}

TEST_F(Road, ASliderDragWithLiveUpdateIsOneStep)
{
    auto* slider = dock()->findChild<QSlider*>();
    auto* live = dock()->findChild<QCheckBox*>();
    ASSERT_TRUE(slider && live);
    live->setChecked(true);
    const float before = field().getValue();
    int writes = 0;
    SoFieldSensor sensor([](void* count, SoSensor*) { ++*static_cast<int*>(count); }, &writes);
    sensor.attach(&field());
    drag(*slider);
    EXPECT_GT(writes, 2);
    ASSERT_EQ(stack().count(), 1);
    EXPECT_NE(field().getValue(), before);
    undoKey();
    EXPECT_NEAR(field().getValue(), before, 1e-6);
    EXPECT_EQ(stack().index(), 0);
}

TEST_F(Road, SetToDefaultIsOneStep)
{
    expectOneStepThatUndoes([this] {
        QTest::mouseClick(button("m_defaultButton"), Qt::LeftButton);
        runLoop();
        EXPECT_EQ(field().getValue(), 0.F);
    });
}

TEST_F(Road, TheIgnoreButtonIsOneStep)
{
    expectOneStepThatUndoes([this] {
        QTest::mouseClick(button("m_ignoreButton"), Qt::LeftButton);
        runLoop();
        EXPECT_TRUE(field().isIgnored());
    });
}

TEST_F(Road, TheNodeMayGoWhileItsEditorHoldsTyping)
{
    QLineEdit* line = input();
    ASSERT_TRUE(line);
    line->setFocus();
    QTest::keyClicks(line, "5");
    m_material = {};
    EXPECT_EQ(m_host.services.selectedField(), nullptr);
    EXPECT_FALSE(dock()->isVisible());
    EXPECT_EQ(stack().count(), 0);
    runLoop();
}

TEST_F(Road, AProfileSwitchAppliesAnEditInProgressAndKeepsSelectionAndScene)
{
    m_host.manager.setProfiles(ProfileFile::shipped().profiles, "Default");
    runLoop();
    QLineEdit* line = input();
    ASSERT_TRUE(line);
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, "0.25");
    m_host.manager.setActiveProfile(m_host.manager.findProfile("Edit"));
    runLoop();
    EXPECT_EQ(field().getValue(), 0.25F);
    EXPECT_EQ(stack().count(), 1);
    EXPECT_EQ(m_host.services.selectedField(), &field());
    EXPECT_TRUE(dock()->isVisible());
}

TEST_F(Road, AThousandProfileSwitchesLeaveNothingBehind)
{
    m_host.manager.setProfiles(ProfileFile::shipped().profiles, "Default");
    const char* const names[] = {"Edit", "Measure", "Default"};
    for (int i = 0; i < 1000; ++i) {
        m_host.manager.setActiveProfile(m_host.manager.findProfile(names[i % 3]));
        QCoreApplication::sendPostedEvents();
    }
    runLoop();
    m_host.manager.setActiveProfile(m_host.manager.findProfile("Measure"));
    runLoop();
    EXPECT_EQ(dock(), nullptr);
    m_host.manager.setActiveProfile(m_host.manager.findProfile("Default"));
    runLoop();
    EXPECT_EQ(m_host.services.selectedField(), &field());
    ASSERT_TRUE(dock());
    EXPECT_TRUE(dock()->isVisible());
    EXPECT_EQ(field().getValue(), 0.1F);
    EXPECT_EQ(stack().count(), 0);
    EXPECT_EQ(m_host.failures, QStringList());
}

TEST_F(Road, LoadsAndUnloadsAgainWithAnEditorOpen)
{
    for (int i = 0; i < 3; ++i) {
        m_host.manager.unloadAll();
        EXPECT_EQ(dock(), nullptr);
        ASSERT_TRUE(m_host.manager.loadPlugin(SCOPIX_PLUGIN));
        ASSERT_TRUE(dock());
        EXPECT_TRUE(dock()->isVisible());
    }
}

} // namespace
