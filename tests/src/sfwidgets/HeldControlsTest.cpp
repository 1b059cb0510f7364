// SPDX-License-Identifier: MIT
// Gestures that begin on one field and end on another, or go on after an undo, in every editor.
#include "EveryEditor.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QSlider>
#include <QVBoxLayout>

namespace
{

class HeldControlsTest : public EveryEditor
{
protected:
    static void send(QWidget* to, QEvent::Type type, QPoint at, Qt::MouseButton button)
    {
        const bool isRelease = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, to->mapToGlobal(at), button, isRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(to, &event);
    }
    // Those of a bit mask are deleted when another field comes.
    QList<QPointer<QAbstractButton>> buttons() const
    {
        QList<QPointer<QAbstractButton>> found;
        for (QAbstractButton* each : m_editor->findChildren<QAbstractButton*>())
            found << each;
        return found;
    }
    void expectUntouched(const SoSField* field, int index, const QWidget* control) const
    {
        EXPECT_EQ(textOf(*field), value(index)) << control->objectName().toStdString();
        EXPECT_FALSE(field->isIgnored()) << control->objectName().toStdString();
    }
};

INSTANTIATE_TEST_SUITE_P(Rows, HeldControlsTest, testing::ValuesIn(editorRows()),
                         [](const auto& info) { return info.param.name(); });

} // namespace

TEST_P(HeldControlsTest, HandleThatIsHeldIsNotForTheNextField)
{
    auto* slider = m_editor->findChild<QSlider*>();
    if (!slider)
        return;
    SoSField* next = another(1);
    person::pressHandle(slider);
    open(next);
    const int before = commands();
    EXPECT_FALSE(slider->isSliderDown());
    person::moveHandle(slider, slider->maximum());
    person::moveHandle(slider, slider->minimum());
    person::releaseHandle(slider);
    TestHost::pump();
    expectUntouched(next, 1, slider);
    expectUntouched(m_field, 0, slider);
    EXPECT_EQ(commands(), before);
    person::drag(slider, {slider->minimum()});
    EXPECT_NE(textOf(*next), value(1)) << "a handle that is pressed again moves the value";
}

TEST_P(HeldControlsTest, ButtonThatIsHeldIsNotForTheNextField)
{
    SoSField* next = another(1);
    for (const QPointer<QAbstractButton>& held : buttons()) {
        if (!held)
            continue;
        const QPoint at(6, held->height() / 2);
        send(held, QEvent::MouseButtonPress, at, Qt::LeftButton);
        const int before = commands();
        EXPECT_TRUE(held->isDown());
        open(next);
        if (!held)
            continue; // of a bit of the first field
        EXPECT_FALSE(held->isDown());
        send(held, QEvent::MouseMove, at + QPoint(1, 0), Qt::NoButton);
        EXPECT_FALSE(held->isDown());
        send(held, QEvent::MouseButtonRelease, at, Qt::LeftButton);
        TestHost::pump();
        expectUntouched(next, 1, held);
        EXPECT_EQ(commands(), before);
        open();
        expectUntouched(m_field, 0, held);
    }
}

TEST_P(HeldControlsTest, KeyThatHoldsAButtonIsNotForTheNextField)
{
    SoSField* next = another(1);
    for (const QPointer<QAbstractButton>& held : buttons()) {
        if (!held)
            continue;
        QTest::keyPress(held, Qt::Key_Space);
        open(next);
        if (!held)
            continue;
        QTest::keyRelease(held, Qt::Key_Space);
        TestHost::pump();
        expectUntouched(next, 1, held);
        open();
    }
    EXPECT_EQ(commands(), 0);
}

// A step of the slider that was not applied is over once an undo shows another value.
TEST_P(HeldControlsTest, HandleTouchedAfterAnUndoKeepsEveryBitAndTheRedo)
{
    auto* slider = m_editor->findChild<QSlider*>();
    if (!slider)
        return;
    const bool isReal = row().shown[0].find('.') != std::string::npos;
    const std::string fine = isReal ? "0.123456789" : value(0);
    m_field->set(fine.c_str());
    TestHost::pump();
    const std::string before = text();
    typeAndEnter();
    slider->parentWidget()->findChild<QCheckBox*>()->setChecked(false);
    person::focus(slider);
    QTest::keyClick(slider, Qt::Key_Right);
    ASSERT_TRUE(m_host.undo());
    TestHost::pump();
    EXPECT_EQ(text(), before);
    person::pressHandle(slider);
    person::releaseHandle(slider);
    TestHost::pump();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(m_host.redoCount(), 1);
}

TEST_P(HeldControlsTest, TabGoesThroughTheEditorBetweenItsNeighbours)
{
    if (row().isInGrid())
        return; // a window of its own
    QWidget window;
    QVBoxLayout layout(&window);
    QLineEdit before(&window);
    layout.addWidget(&before);
    layout.addWidget(m_editor);
    QLineEdit after(&window);
    layout.addWidget(&after);
    window.show();
    m_editor->show();
    const QList<QWidget*> stops = stopsOf(row(), m_editor) + QList<QWidget*>{&after};
    person::focus(&before);
    for (QWidget* stop : stops) {
        person::tab(QApplication::focusWidget());
        EXPECT_EQ(QApplication::focusWidget(), stop) << stop->accessibleName().toStdString();
    }
    for (int i = stops.size() - 2; i >= 0; --i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        EXPECT_EQ(QApplication::focusWidget(), stops[i]) << stops[i]->accessibleName().toStdString();
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), &before);
    showNothing();
    EXPECT_FALSE(window.isAncestorOf(m_editor));
}
