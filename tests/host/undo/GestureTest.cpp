// SPDX-License-Identifier: MIT
// One gesture, one undo step: with the events that the user's input makes.
#include "HostParts.h"

#include <support/Waiting.h>

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace
{

class Gesture : public ::testing::Test
{
protected:
    Gesture()
    {
        auto* layout = new QVBoxLayout(&m_window);
        for (QWidget* widget :
             std::initializer_list<QWidget*>{&m_slider, &m_other, &m_line, &m_otherLine, &m_button}) {
            layout->addWidget(widget);
        }
        m_slider.setTracking(true);
        // Every change of an input is an edit, as in an editor with live update.
        QObject::connect(&m_slider, &QSlider::valueChanged, [this] { edit("slider"); });
        QObject::connect(&m_other, &QSlider::valueChanged, [this] { edit("other"); });
        QObject::connect(&m_line, &QLineEdit::textEdited, [this] { edit("typed"); });
        QObject::connect(&m_line, &QLineEdit::editingFinished, [this] { edit("finished"); });
        QObject::connect(&m_otherLine, &QLineEdit::textEdited, [this] { edit("typed too"); });
        QObject::connect(&m_button, &QPushButton::pressed, [this] { edit("pressed"); });
        QObject::connect(&m_button, &QPushButton::clicked, [this] { edit("clicked"); });
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(waitForActive(&m_window));
        m_line.setFocus();
        pump();
        m_log.clear();
        m_services.history().clear();
    }

    void edit(const std::string& name) { m_services.executeCommand(new LoggingCommand(m_log, name)); }
    int steps() { return m_services.undoStack().count(); }
    QPoint handle(const QSlider& slider) const
    {
        QStyleOptionSlider option;
        option.initFrom(&slider);
        option.orientation = slider.orientation();
        option.minimum = slider.minimum();
        option.maximum = slider.maximum();
        option.sliderPosition = slider.sliderPosition();
        option.sliderValue = slider.value();
        option.subControls = QStyle::SC_All;
        return slider.style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider)
            .center();
    }
    void drag(QSlider& slider, int byPixels, int moves)
    {
        const QPoint from = handle(slider);
        QTest::mousePress(&slider, Qt::LeftButton, {}, from);
        for (int i = 1; i <= moves; ++i) {
            const QPointF at = from + QPoint(byPixels * i / moves, 0);
            QMouseEvent move(QEvent::MouseMove, at, slider.mapToGlobal(at.toPoint()), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&slider, &move);
            QCoreApplication::processEvents();
        }
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, from + QPoint(byPixels, 0));
    }
    static void wheel(QWidget& over)
    {
        const QPointF at = over.rect().center();
        QWheelEvent event(at, over.mapToGlobal(at.toPoint()), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&over, &event);
        QCoreApplication::processEvents();
    }
    int count(const std::string& entry) const
    {
        return static_cast<int>(std::count(m_log.begin(), m_log.end(), entry));
    }

    HostServices m_services;
    QWidget m_window;
    QSlider m_slider{Qt::Horizontal};
    QSlider m_other{Qt::Horizontal};
    QLineEdit m_line;
    QLineEdit m_otherLine;
    QPushButton m_button;
    Log m_log;
};

TEST_F(Gesture, ADragIsOneStepHoweverManyEditsItMakes)
{
    drag(m_slider, 60, 12);
    pump();
    ASSERT_GT(count("execute slider"), 3);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Gesture, UndoRunsTheEditsOfAStepInReverseAndRedoInOrder)
{
    QTest::mousePress(&m_button, Qt::LeftButton);
    edit("between");
    QTest::mouseRelease(&m_button, Qt::LeftButton);
    pump();
    ASSERT_EQ(steps(), 1);
    m_log.clear();
    m_services.undoStack().undo();
    m_services.undoStack().redo();
    EXPECT_EQ(m_log, (Log{"undo clicked", "undo between", "undo pressed", "redo pressed", "redo between",
                          "redo clicked"}));
}

TEST_F(Gesture, TwoDragsAreTwoStepsWithNoTurnOfTheLoopBetween)
{
    QTest::mouseClick(&m_button, Qt::LeftButton);
    QTest::mouseClick(&m_button, Qt::LeftButton);
    EXPECT_EQ(steps(), 2);
}

TEST_F(Gesture, ASecondButtonOfTheMouseDoesNotSplitADrag)
{
    QTest::mousePress(&m_button, Qt::LeftButton);
    QMouseEvent second(QEvent::MouseButtonPress, {3, 3}, Qt::RightButton, Qt::LeftButton | Qt::RightButton,
                       Qt::NoModifier);
    QApplication::sendEvent(&m_button, &second);
    QMouseEvent secondUp(QEvent::MouseButtonRelease, {3, 3}, Qt::RightButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&m_button, &secondUp);
    pump();
    QTest::mouseRelease(&m_button, Qt::LeftButton);
    pump();
    EXPECT_EQ(count("execute clicked"), 1);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Gesture, TheEscapeThatGivesADragBackIsPartOfIt)
{
    struct Draggable : QWidget {
        void keyPressEvent(QKeyEvent* /*event*/) override { giveBack(); }
        std::function<void()> giveBack;
    } draggable;
    draggable.giveBack = [this] { edit("given back"); };
    QTest::mousePress(&m_button, Qt::LeftButton);
    QTest::keyClick(&draggable, Qt::Key_Escape);
    QTest::mouseRelease(&m_button, Qt::LeftButton);
    pump();
    EXPECT_EQ(count("execute given back"), 1);
    EXPECT_EQ(count("execute clicked"), 1);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Gesture, AnEditAfterTheReleaseIsNotPartOfIt)
{
    QTest::mouseClick(&m_button, Qt::LeftButton);
    pump();
    edit("later");
    edit("later still");
    EXPECT_EQ(steps(), 3);
}

TEST_F(Gesture, ATimerRightAfterTheReleaseIsNotPartOfIt)
{
    QTimer timer;
    bool fired = false;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        edit("timer");
        fired = true;
    });
    timer.setSingleShot(true);
    QObject::connect(&m_button, &QPushButton::clicked, [&] { timer.start(0); });
    QTest::mouseClick(&m_button, Qt::LeftButton);
    ASSERT_TRUE(waitFor([&] { return fired; }));
    EXPECT_EQ(steps(), 2);
}

TEST_F(Gesture, ATimerWhileTheButtonIsHeldIsPartOfTheGesture)
{
    QTest::mousePress(&m_button, Qt::LeftButton);
    bool fired = false;
    QTimer::singleShot(0, &m_button, [&] {
        edit("repeat");
        fired = true;
    });
    ASSERT_TRUE(waitFor([&] { return fired; }));
    QTest::mouseRelease(&m_button, Qt::LeftButton);
    pump();
    EXPECT_EQ(steps(), 1);
}

TEST_F(Gesture, ARunOfTypingIsOneStepWithWhatTheFocusLossApplies)
{
    QTest::keyClicks(&m_line, "12.5");
    pump();
    QTest::keyClick(&m_line, Qt::Key_Tab);
    ASSERT_FALSE(m_line.hasFocus());
    ASSERT_EQ(count("execute finished"), 1);
    EXPECT_EQ(steps(), 1);
    pump();
    edit("later");
    EXPECT_EQ(steps(), 2);
}

TEST_F(Gesture, TypingThatAPressElsewhereAppliesStaysApartFromThePress)
{
    QTest::keyClicks(&m_line, "12");
    m_slider.setFocusPolicy(Qt::StrongFocus);
    drag(m_slider, 40, 5);
    ASSERT_EQ(count("execute finished"), 1);
    ASSERT_GT(count("execute slider"), 1);
    EXPECT_EQ(steps(), 2);
    m_log.clear();
    m_services.undoStack().undo();
    EXPECT_EQ(count("undo finished"), 0);
    m_services.undoStack().undo();
    EXPECT_EQ(count("undo finished"), 1);
    EXPECT_EQ(count("undo typed"), 2);
}

TEST_F(Gesture, ATextPastedWithTheMouseStaysApartFromThePressThatAppliesIt)
{
    m_line.setText("pasted");
    m_button.setFocusPolicy(Qt::StrongFocus);
    QTest::mouseClick(&m_button, Qt::LeftButton);
    ASSERT_EQ(count("execute finished"), 1);
    EXPECT_EQ(steps(), 2);
}

TEST_F(Gesture, EnterEndsTheRunAtTheNextKey)
{
    QTest::keyClicks(&m_line, "1");
    QTest::keyClick(&m_line, Qt::Key_Return);
    pump();
    ASSERT_EQ(count("execute finished"), 1);
    EXPECT_EQ(steps(), 1);
    edit("queued by Enter");
    EXPECT_EQ(steps(), 1);
    QTest::keyClicks(&m_line, "23");
    EXPECT_EQ(steps(), 2);
}

TEST_F(Gesture, TypingInAnotherInputIsAnotherStep)
{
    QTest::keyClicks(&m_line, "1");
    QTest::keyClicks(&m_otherLine, "2");
    EXPECT_EQ(steps(), 2);
}

TEST_F(Gesture, ModifierKeysAloneNeitherMakeNorEndAGesture)
{
    QTest::keyClicks(&m_line, "1");
    QTest::keyClick(&m_line, Qt::Key_Shift);
    QTest::keyClicks(&m_line, "A");
    EXPECT_EQ(steps(), 1);
}

TEST_F(Gesture, AKeyOutsideTextIsAGestureOfItsOwn)
{
    m_slider.setFocus();
    QTest::keyClick(&m_slider, Qt::Key_Right);
    QTest::keyClick(&m_slider, Qt::Key_Right);
    EXPECT_EQ(steps(), 2);
}

TEST_F(Gesture, AHeldKeyIsOneStep)
{
    m_slider.setFocus();
    QTest::keyPress(&m_slider, Qt::Key_Right);
    for (int i = 0; i < 5; ++i) {
        QKeyEvent up(QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier, {}, true);
        QApplication::sendEvent(&m_slider, &up);
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, {}, true);
        QApplication::sendEvent(&m_slider, &down);
        pump();
    }
    QTest::keyRelease(&m_slider, Qt::Key_Right);
    ASSERT_EQ(count("execute slider"), 6);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Gesture, AKeyPassedUpToTheParentsIsStillOneKey)
{
    QFrame outer;
    auto* inner = new QWidget(&outer);
    struct Passes : QObject {
        explicit Passes(std::function<void()> act)
            : act(std::move(act))
        {
        }
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::KeyPress)
                act();
            return false;
        }
        std::function<void()> act;
    } filter([this] { edit("key"); });
    inner->installEventFilter(&filter);
    outer.installEventFilter(&filter);
    QTest::keyClick(inner, Qt::Key_F5);
    EXPECT_EQ(count("execute key"), 2);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Gesture, AWheelBurstIsOneStepEndedByTheFirstOtherInput)
{
    for (int i = 0; i < 5; ++i)
        wheel(m_slider);
    ASSERT_GT(count("execute slider"), 3);
    EXPECT_EQ(steps(), 1);
    wheel(m_other);
    EXPECT_EQ(steps(), 2);
    QTest::mouseClick(&m_window, Qt::LeftButton, {}, {1, 1});
    wheel(m_other);
    EXPECT_EQ(steps(), 3);
}

TEST_F(Gesture, AModalDialogBelongsToTheGestureThatOpenedIt)
{
    QDialog dialog(&m_window);
    auto* inside = new QPushButton(&dialog);
    QObject::connect(inside, &QPushButton::clicked, [this] { edit("inside"); });
    QObject::connect(&m_button, &QPushButton::clicked, [&] {
        dialog.exec();
        edit("after the dialog");
    });
    QTimer::singleShot(0, &dialog, [&] {
        QTest::mouseClick(inside, Qt::LeftButton);
        pump();
        QTest::mouseClick(inside, Qt::LeftButton);
        pump();
        // Posted, so that the end comes with more events in the same turn of the dialog's loop.
        QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    });
    QTest::mouseClick(&m_button, Qt::LeftButton);
    ASSERT_EQ(count("execute inside"), 2);
    ASSERT_EQ(count("execute after the dialog"), 1);
    EXPECT_EQ(steps(), 1);
    pump();
    edit("later");
    EXPECT_EQ(steps(), 2);
}

TEST_F(Gesture, ADialogThatDoesNotBlockKeepsItsGestureOpenUntilItCloses)
{
    QDialog dialog(&m_window);
    auto* inside = new QPushButton(&dialog);
    QObject::connect(inside, &QPushButton::clicked, [this] { edit("inside"); });
    QObject::connect(&m_button, &QPushButton::clicked, [&] { dialog.open(); });
    QTest::mouseClick(&m_button, Qt::LeftButton);
    pump();
    QTest::mouseClick(inside, Qt::LeftButton);
    pump();
    QTest::keyClick(inside, Qt::Key_Space);
    EXPECT_EQ(count("execute inside"), 2);
    EXPECT_EQ(steps(), 1);
    dialog.accept();
    pump();
    edit("later");
    EXPECT_EQ(steps(), 2);
}

TEST_F(Gesture, ADialogWithoutAnOpeningGestureIsAGestureOfItsOwn)
{
    QDialog dialog(&m_window);
    auto* inside = new QPushButton(&dialog);
    QObject::connect(inside, &QPushButton::clicked, [this] { edit("inside"); });
    dialog.open();
    QTest::mouseClick(inside, Qt::LeftButton);
    QTest::mouseClick(inside, Qt::LeftButton);
    EXPECT_EQ(steps(), 1);
    dialog.accept();
    pump();
    edit("later");
    EXPECT_EQ(steps(), 2);
}

TEST_F(Gesture, WhatAMenuChoiceMakesIsOneStep)
{
    QMenu menu;
    QAction* choice = menu.addAction("choice");
    m_button.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&m_button, &QPushButton::pressed, [&] {
        if (menu.exec() == choice) {
            edit("chosen");
            edit("chosen too");
        }
    });
    QTimer::singleShot(0, &menu, [&] {
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(choice).center());
    });
    m_log.clear();
    QTest::mousePress(&m_button, Qt::LeftButton);
    ASSERT_EQ(count("execute chosen too"), 1);
    QTest::mouseRelease(&m_button, Qt::LeftButton);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Gesture, AReleaseInsideALoopThatThePressRunsEndsTheGestureAfterThePress)
{
    QObject::connect(&m_button, &QPushButton::pressed, [this] {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] {
            QTest::mouseRelease(&m_button, Qt::LeftButton);
            pump();
            loop.quit();
        });
        loop.exec();
        edit("after the loop");
    });
    QTest::mousePress(&m_button, Qt::LeftButton);
    ASSERT_EQ(count("execute clicked"), 1);
    ASSERT_EQ(count("execute after the loop"), 1);
    EXPECT_EQ(steps(), 1);
    QMetaObject::invokeMethod(
        &m_window, [this] { edit("later"); }, Qt::QueuedConnection);
    pump();
    EXPECT_EQ(steps(), 2);
}

TEST_F(Gesture, TypingThatEndsLeavesTheGestureOfAnInnerLoopAlone)
{
    m_button.setFocusPolicy(Qt::NoFocus);
    QObject::connect(&m_button, &QPushButton::pressed, [this] {
        m_line.clearFocus();
        const int before = steps();
        edit("one");
        edit("and one more");
        EXPECT_EQ(steps(), before + 1);
    });
    QTest::keyClicks(&m_line, "a");
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        QTest::mouseClick(&m_button, Qt::LeftButton);
        loop.quit();
    });
    loop.exec();
    EXPECT_EQ(count("execute finished"), 1);
    EXPECT_EQ(count("execute and one more"), 1);
}

TEST_F(Gesture, WithoutAGestureEachEditIsAStep)
{
    edit("one");
    edit("two");
    EXPECT_EQ(steps(), 2);
}

TEST_F(Gesture, NothingIsAddedToAStepThatWasUndone)
{
    QTest::mousePress(&m_button, Qt::LeftButton);
    m_services.undoStack().undo();
    m_services.undoStack().redo();
    edit("after the redo");
    QTest::mouseRelease(&m_button, Qt::LeftButton);
    EXPECT_EQ(steps(), 2);
}

} // namespace
