// SPDX-License-Identifier: MIT
// What the history makes of writes and commands: steps that come and go, names, memory, steps that can no
// longer run.
#include "HostParts.h"

#include <scopix/SpxEditedFields.h>
#include <xsg/fields/SoMFFloat.h>

#include <support/SoFieldGallery.h>
#include <support/Waiting.h>

#include <QAbstractItemDelegate>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace
{

class EditHistory : public ::testing::Test
{
protected:
    EditHistory()
    {
        m_services.select(&m_material->transparency);
        m_services.history().settle();
    }
    ~EditHistory() override { m_services.clearSelection(); }
    QUndoStack& stack() { return m_services.undoStack(); }
    UndoHistory& history() { return m_services.history(); }
    template <class Edit>
    void asUser(Edit edit)
    {
        const UserInput::Scope scope(history().input(), UserInput::Scope::User);
        edit();
    }
    void setTransparency(float value)
    {
        asUser([&] { m_material->transparency.setValue(value); });
    }
    float transparency() const { return m_material->transparency.getValue(); }

    HostServices m_services;
    Log m_log;
    SoRef<SoMaterial> m_material{new SoMaterial};
};

// Keeps a text that the field refuses.
class Refusing : public SpxCommand
{
public:
    explicit Refusing(SoField& field)
        : m_field(field)
    {
        execute(); // as an editor does, before it hands the command over
    }
    void execute() override { m_field.set(SbString("0.75")); }
    void undo() override { m_field.set(SbString("half")); }
    void redo() override { execute(); }

private:
    SoField& m_field;
};

// Says what it edits, and does nothing.
class Telling : public LoggingCommand, public SpxEditedFields
{
public:
    Telling(Log& log, std::vector<SoField*> fields, std::vector<SoFieldContainer*> containers = {},
            bool isWithoutEffect = false)
        : LoggingCommand(log, "telling")
        , m_fields(std::move(fields))
        , m_containers(std::move(containers))
        , m_isWithoutEffect(isWithoutEffect)
    {
    }
    std::vector<SoField*> editedFields() const override { return m_fields; }
    std::vector<SoFieldContainer*> editedContainers() const override { return m_containers; }
    bool isWithoutEffect() const override { return m_isWithoutEffect; }

private:
    std::vector<SoField*> m_fields;
    std::vector<SoFieldContainer*> m_containers;
    bool m_isWithoutEffect;
};

} // namespace

TEST_F(EditHistory, AnEditWithoutACommandIsAStep)
{
    setTransparency(0.5F);
    ASSERT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().undoText().toStdString(), "Material.transparency: 0 → 0.5");
    stack().undo();
    EXPECT_EQ(transparency(), 0);
    EXPECT_TRUE(m_material->transparency.isDefault());
    stack().redo();
    EXPECT_EQ(transparency(), 0.5F);
    EXPECT_FALSE(m_material->transparency.isDefault());
}

TEST_F(EditHistory, WhatNobodyDoesByHandIsNoStep)
{
    m_material->transparency.setValue(0.5F);
    EXPECT_EQ(stack().count(), 0);
    asUser([&] {
        const UserInput::Scope timer(history().input(), UserInput::Scope::Other);
        m_material->transparency.setValue(0.25F);
    });
    EXPECT_EQ(stack().count(), 0);
    EXPECT_TRUE(stack().isClean());
}

TEST_F(EditHistory, ACommandThatRestoresTooLittleIsCompleted)
{
    m_material->transparency.setValue(0.1F);
    asUser([&] {
        m_material->transparency.setValue(0.3F);
        m_services.executeCommand(new SetFloat(m_material->transparency, 0.4F)); // knows 0.3
    });
    ASSERT_EQ(stack().count(), 1);
    stack().undo();
    EXPECT_EQ(transparency(), 0.1F);
    stack().redo();
    EXPECT_EQ(transparency(), 0.4F);
    stack().undo();
    EXPECT_EQ(transparency(), 0.1F);
}

TEST_F(EditHistory, WhatAnInsertingCommandTakesBackIsNotTakenBackTwice)
{
    struct Insert : SpxCommand {
        explicit Insert(SoMFFloat& field)
            : field(field)
        {
        }
        void execute() override { field.insertSpace(1, 2); }
        void undo() override { field.deleteValues(1, 1); } // one too few
        void redo() override { execute(); }
        SoMFFloat& field;
    };
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    gallery->mfFloat.setValues(std::vector<float>{1, 2, 3});
    m_services.select(&gallery->mfFloat);
    asUser([&] { m_services.executeCommand(new Insert(gallery->mfFloat)); });
    for (int times = 0; times < 2; ++times) {
        stack().undo();
        ASSERT_EQ(gallery->mfFloat.getNum(), 3);
        EXPECT_EQ(gallery->mfFloat[2], 3);
        stack().redo();
        ASSERT_EQ(gallery->mfFloat.getNum(), 5);
    }
}

// --- Steps that change nothing

TEST_F(EditHistory, AGestureThatChangesNothingKeepsWhatCanBeRedone)
{
    setTransparency(0.5F);
    stack().undo();
    asUser([&] {
        m_material->transparency.setValue(0);
        m_material->transparency.setDefault(true);
        m_services.executeCommand(new LoggingCommand(m_log, "too late"));
    });
    EXPECT_EQ(m_log, (Log{"execute too late"}));
    ASSERT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().index(), 0);
    EXPECT_TRUE(stack().isClean());
    stack().redo();
    EXPECT_EQ(transparency(), 0.5F);
}

TEST_F(EditHistory, AStepThatComesToNothingGivesBackWhatCouldBeRedone)
{
    QWidget widget;
    widget.show();
    setTransparency(0.5F);
    stack().setClean();
    stack().undo();
    QTest::mousePress(widget.windowHandle(), Qt::LeftButton);
    setTransparency(0.25F);
    EXPECT_EQ(stack().count(), 1);
    EXPECT_FALSE(stack().canRedo());
    asUser([&] {
        m_material->transparency.setValue(0);
        m_material->transparency.setDefault(true);
    });
    QTest::mouseRelease(widget.windowHandle(), Qt::LeftButton);
    ASSERT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().index(), 0);
    EXPECT_EQ(stack().cleanIndex(), 1);
    stack().redo();
    EXPECT_EQ(transparency(), 0.5F);
    EXPECT_TRUE(stack().isClean());
}

TEST_F(EditHistory, ACommandThatSaysSoIsWithoutEffect)
{
    m_services.executeCommand(new Telling(m_log, {}, {}, true));
    EXPECT_EQ(stack().count(), 0);
    m_services.executeCommand(new Telling(m_log, {}));
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(EditHistory, ACommandOnAnotherFieldIsNoStepWithoutEffect)
{
    const SoRef<SoComplexity> other(new SoComplexity);
    asUser([&] {
        m_material->transparency.setValue(0);
        m_material->transparency.setDefault(true);
        other->value.setValue(0.75F);
        m_services.executeCommand(new Telling(m_log, {&other->value}));
    });
    EXPECT_EQ(stack().count(), 1);
}

// --- Steps that can no longer run

TEST_F(EditHistory, AStepGoesWithTheNodeThatItsCommandEdits)
{
    auto* other = new SoComplexity;
    other->ref();
    QSignalSpy lost(&m_services, &HostServices::stepsLost);
    m_services.executeCommand(new SetFloat(other->value, 0.75F));
    m_services.executeCommand(new Telling(m_log, {&other->value}));
    m_services.executeCommand(new Telling(m_log, {}, {other}));
    setTransparency(0.5F);
    ASSERT_EQ(stack().count(), 4);
    other->unref();
    EXPECT_EQ(stack().count(), 1);
    EXPECT_TRUE(waitFor([&] { return !lost.isEmpty(); }));
    ASSERT_EQ(lost.count(), 1);
    EXPECT_EQ(lost[0][0].toString().toStdString(),
              "3 steps of the history went with “Complexity”, which no longer exists.");
}

TEST_F(EditHistory, AStepStaysWithoutTheSelectedNodeThatItDoesNotTouch)
{
    const SoRef<SoComplexity> other(new SoComplexity);
    m_services.executeCommand(new SetFloat(other->value, 0.75F));
    m_material = nullptr;
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(EditHistory, ARefusedFormerValueIsToldAndTheStepTakenOut)
{
    const SoRef<SoComplexity> other(new SoComplexity);
    QSignalSpy failed(&m_services, &HostServices::commandFailed);
    m_services.executeCommand(new Refusing(other->value));
    stack().undo();
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed[0][0].toString().toStdString(), "“Change Material.transparency” cannot be undone and is "
                                                     "no longer in the history: nothing could be written");
    pump();
    EXPECT_EQ(stack().count(), 0);
    EXPECT_FALSE(stack().isClean()) << "what it did is still there";
}

TEST_F(EditHistory, AListOfAnotherLengthIsToldAndTheStepTakenOut)
{
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    gallery->mfFloat.setValues(std::vector<float>{1, 2, 3});
    m_services.select(&gallery->mfFloat);
    asUser([&] { gallery->mfFloat.insertSpace(0, 1); });
    gallery->mfFloat.setNum(1);
    QSignalSpy failed(&m_services, &HostServices::commandFailed);
    stack().undo();
    EXPECT_EQ(failed.count(), 1);
    EXPECT_EQ(gallery->mfFloat.getNum(), 1);
    pump();
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(EditHistory, ANodeThatACommandMakesForAMomentTakesNothingWithIt)
{
    struct Momentary : LoggingCommand {
        using LoggingCommand::LoggingCommand;
        void execute() override
        {
            const SoRef<SoComplexity> own(new SoComplexity);
            own->value.setValue(0.75F);
            LoggingCommand::execute();
        }
    };
    QWidget widget;
    widget.show();
    QTest::mousePress(widget.windowHandle(), Qt::LeftButton);
    setTransparency(0.5F);
    m_services.executeCommand(new Momentary(m_log, "momentary"));
    QTest::mouseRelease(widget.windowHandle(), Qt::LeftButton);
    ASSERT_EQ(stack().count(), 1);
    stack().undo();
    EXPECT_EQ(m_log.back(), "undo momentary");
    EXPECT_EQ(transparency(), 0);
}

TEST_F(EditHistory, AStepThatIsForgottenMayTakeNodesWithIt)
{
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    auto* held = new SoComplexity;
    gallery->mfNode.set1Value(0, SoRef<SoNode>(held));
    m_services.executeCommand(new SetFloat(held->value, 0.75F));
    m_services.select(&gallery->mfNode);
    asUser([&] { gallery->mfNode.deleteValues(0); });
    m_services.select(&m_material->transparency);
    setTransparency(0.25F);
    ASSERT_EQ(stack().count(), 3);
    ASSERT_EQ(held->getRefCount(), 1);
    history().setMemoryLimit(0);
    EXPECT_EQ(stack().count(), 1);
    stack().undo();
    EXPECT_EQ(transparency(), 0);
}

// --- Memory

TEST_F(EditHistory, TheOldestStepsGoFirst)
{
    QSignalSpy dropped(&history(), &UndoHistory::droppedOldSteps);
    for (int i = 1; i <= 100; ++i)
        setTransparency(static_cast<float>(i) / 128);
    ASSERT_EQ(stack().count(), 100);
    const std::size_t all = history().memoryUsed();
    EXPECT_FALSE(history().hasDroppedOldSteps());
    history().setMemoryLimit(all / 2);
    EXPECT_EQ(dropped.count(), 1);
    EXPECT_TRUE(history().hasDroppedOldSteps());
    EXPECT_LE(history().memoryUsed(), all / 2);
    EXPECT_GT(stack().count(), 30);
    EXPECT_FALSE(stack().isClean());
    while (stack().canUndo())
        stack().undo();
    EXPECT_GT(transparency(), 0.3F);
    EXPECT_FALSE(stack().isClean()) << "what was saved lies further back";
    for (int i = 1; i <= 1000; ++i)
        setTransparency(static_cast<float>(i));
    EXPECT_LE(history().memoryUsed(), all / 2 + all / 50);
    EXPECT_EQ(UndoHistory::DefaultMemoryLimit, std::size_t(256) << 20);
}

TEST_F(EditHistory, AThousandEditsOfALongListTakeLessThan4MiB)
{
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    gallery->mfFloat.setValues(std::vector<float>(1'000'000, 1));
    m_services.select(&gallery->mfFloat);
    for (int i = 0; i < 1000; ++i)
        asUser([&] { gallery->mfFloat.set1Value(i * 997, 2); });
    EXPECT_EQ(stack().count(), 1000);
    EXPECT_LT(history().memoryUsed(), std::size_t(4) << 20);
    while (stack().canUndo())
        stack().undo();
    EXPECT_EQ(std::count(gallery->mfFloat.getValues(), gallery->mfFloat.getValues() + 1'000'000, 1),
              1'000'000);
}

// --- What the user does

namespace
{

class Acting : public EditHistory
{
protected:
    Acting()
    {
        auto* layout = new QVBoxLayout(&m_window);
        layout->addWidget(&m_spin);
        layout->addWidget(&m_slider);
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(waitForActive(&m_window));
        pump();
        m_spin.setRange(0, 1'000'000);
        const auto edit = [this](int value) { m_material->transparency.setValue(static_cast<float>(value)); };
        QObject::connect(&m_spin, QOverload<int>::of(&QSpinBox::valueChanged), edit);
        QObject::connect(&m_slider, &QSlider::valueChanged, edit);
    }
    QWidget m_window;
    QSpinBox m_spin;
    QSlider m_slider{Qt::Horizontal};
};

} // namespace

TEST_F(Acting, EachPressOfASpinBoxsArrowKeyIsAStep)
{
    m_spin.setFocus();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&m_spin, Qt::Key_Up);
    EXPECT_EQ(stack().count(), 3);
    QTest::keyClicks(&m_spin, "7");
    QTest::keyClicks(&m_spin, "1");
    EXPECT_EQ(stack().count(), 4) << "typing is a run of its own";
    QTest::keyClick(&m_spin, Qt::Key_Down);
    EXPECT_EQ(stack().count(), 5);
}

TEST_F(Acting, AHeldArrowOfASpinBoxIsTheUsersDoing)
{
    QStyleOptionSpinBox option;
    option.initFrom(&m_spin);
    option.subControls = QStyle::SC_All;
    const QPoint up =
        m_spin.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &m_spin).center();
    QTest::mousePress(&m_spin, Qt::LeftButton, {}, up);
    ASSERT_TRUE(waitFor([this] { return m_spin.value() > 3; }));
    QTest::mouseRelease(&m_spin, Qt::LeftButton, {}, up);
    ASSERT_EQ(stack().count(), 1);
    const float last = transparency();
    stack().undo();
    EXPECT_EQ(transparency(), 0);
    stack().redo();
    EXPECT_EQ(transparency(), last);
}

TEST_F(Acting, ATimerOfTheApplicationDuringAGestureIsNot)
{
    QTest::mousePress(&m_slider, Qt::LeftButton, {}, {1, 1});
    const int before = stack().count();
    bool fired = false;
    QTimer::singleShot(0, &m_slider, [&] {
        m_material->transparency.setValue(77);
        fired = true;
    });
    EXPECT_TRUE(waitFor([&] { return fired; }));
    m_material->transparency.setValue(78); // by whoever runs the event loop
    EXPECT_EQ(stack().count(), before);
    QTest::mouseRelease(&m_slider, Qt::LeftButton, {}, {1, 1});
    EXPECT_EQ(stack().count(), before);
}

TEST_F(Acting, OnlyTheHostsOwnWindowCounts)
{
    QWidget host;
    history().input().setWindow(&host);
    m_spin.setFocus();
    QTest::keyClick(&m_spin, Qt::Key_Up);
    EXPECT_EQ(transparency(), 1);
    EXPECT_EQ(stack().count(), 0);
    history().input().setWindow(&m_window);
    QTest::keyClick(&m_spin, Qt::Key_Up);
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(Acting, AnEventReachesEachWidgetOnce)
{
    struct Counting : QWidget {
        using QWidget::QWidget;
        void mousePressEvent(QMouseEvent* event) override
        {
            ++presses;
            event->ignore();
        }
        void keyPressEvent(QKeyEvent* event) override
        {
            ++keys;
            event->ignore();
        }
        void wheelEvent(QWheelEvent* event) override
        {
            ++wheels;
            event->ignore();
        }
        int presses = 0;
        int keys = 0;
        int wheels = 0;
    };
    Counting outer;
    Counting inner(&outer);
    outer.resize(50, 50);
    inner.resize(50, 50);
    outer.show();
    for (const bool throughWindow : {false, true}) {
        if (throughWindow)
            QTest::mousePress(outer.windowHandle(), Qt::LeftButton, {}, {5, 5});
        else
            QTest::mousePress(&inner, Qt::LeftButton, {}, {5, 5});
    }
    QTest::mouseRelease(&inner, Qt::LeftButton, {}, {5, 5});
    QTest::keyPress(&inner, Qt::Key_A);
    // A wheel that the program sends is not passed on by Qt.
    for (Counting* widget : {&inner, &outer}) {
        QWheelEvent wheel({5, 5}, widget->mapToGlobal(QPoint(5, 5)), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &wheel);
        EXPECT_FALSE(wheel.isAccepted());
    }
    for (const Counting* widget : {&inner, &outer}) {
        EXPECT_EQ(widget->presses, 2);
        EXPECT_EQ(widget->keys, 1);
        EXPECT_EQ(widget->wheels, 1);
    }
}

TEST_F(Acting, FiltersThatComeFirstMayCauseOtherEvents)
{
    // As a tool tip, which closes when the focus moves.
    struct Closing : QObject {
        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            if (event->type() == QEvent::FocusOut && ++focusOuts < 10) {
                QEvent other(QEvent::User);
                QCoreApplication::sendEvent(this, &other);
            }
            return false;
        }
        int focusOuts = 0;
    } filter;
    m_spin.setFocus();
    pump();
    qApp->installEventFilter(&filter);
    m_slider.setFocus();
    EXPECT_EQ(QApplication::focusWidget(), &m_slider);
    EXPECT_LT(filter.focusOuts, 10) << "it was delivered again and again";
}
