// SPDX-License-Identifier: MIT
#include "EdSFPlaneWidget.h"
#include "EdSFRotationWidget.h"
#include "EdSFVec2fWidget.h"
#include "EdSFVec2i32Widget.h"
#include "EdSFVec2sWidget.h"
#include "EdSFVec3fWidget.h"
#include "EdSFVec4fWidget.h"
#include "EditedField.h"

#include <xsg/fields/SoSFPlane.h>
#include <xsg/fields/SoSFRotation.h>
#include <xsg/fields/SoSFVec2i32.h>
#include <xsg/fields/SoSFVec2s.h>

#include <QLabel>
#include <QSpinBox>
#include <QTest>

namespace
{

using EditedVec2f = EditedField<EdSFVec2fWidget, SoSFVec2f>;
using EditedVec3f = EditedField<EdSFVec3fWidget, SoSFVec3f>;
using EditedVec4f = EditedField<EdSFVec4fWidget, SoSFVec4f>;
using EditedPlane = EditedField<EdSFPlaneWidget, SoSFPlane>;
using EditedRotation = EditedField<EdSFRotationWidget, SoSFRotation>;
using EditedVec2s = EditedField<EdSFVec2sWidget, SoSFVec2s>;
using EditedVec2i32 = EditedField<EdSFVec2i32Widget, SoSFVec2i32>;

template <class Input, class Edited>
QList<Input*> inputs(Edited& edited)
{
    return edited.editor.getWidget()
        ->template findChild<QFrame*>("m_editionFrame")
        ->template findChildren<Input*>();
}

template <class Edited>
QStringList captions(Edited& edited)
{
    QStringList texts;
    for (const QLabel* label : inputs<QLabel>(edited))
        texts << label->text();
    return texts;
}

template <class Edited>
class FloatsEditor : public testing::Test
{
};
using FloatsEditors = testing::Types<EditedVec2f, EditedVec3f, EditedVec4f, EditedPlane>;
TYPED_TEST_SUITE(FloatsEditor, FloatsEditors);

// "1.123456789 2 3 4", as many as the field has.
template <class Edited>
std::string numbers(const char* first, const char* rest)
{
    std::string text = first;
    const int count = std::is_same_v<Edited, EditedVec2f> ? 2 : std::is_same_v<Edited, EditedVec3f> ? 3 : 4;
    for (int i = 1; i < count; ++i)
        text += std::string(" ") + rest;
    return text;
}

} // namespace

TYPED_TEST(FloatsEditor, EnterAppliesOneComponentAndKeepsEveryBitOfTheOthers)
{
    TypeParam edited(numbers<TypeParam>("1", "2.12345672").c_str());
    const QList<QLineEdit*> lines = inputs<QLineEdit>(edited);
    EXPECT_EQ(lines[1]->text(), "2.12346");
    person::typeAndEnter(lines[0], "7.5");
    TestHost::pump();
    EXPECT_EQ(edited.text(), numbers<TypeParam>("7.5", "2.1234567"));
    EXPECT_EQ(edited.host.log(), TestHost::Log{"executeCommand SpxSFSetValueCommand"});
    person::tab(lines[0]);
    EXPECT_EQ(edited.commands(), 1);
    edited.undo();
    EXPECT_EQ(edited.text(), numbers<TypeParam>("1", "2.1234567"));
    EXPECT_EQ(lines[0]->text(), "1");
    edited.redo();
    EXPECT_EQ(lines[0]->text(), "7.5");
}

TYPED_TEST(FloatsEditor, EnterAppliesWhatWasTypedInEveryInput)
{
    TypeParam edited(numbers<TypeParam>("1", "2").c_str());
    const QList<QLineEdit*> lines = inputs<QLineEdit>(edited);
    for (QLineEdit* line : lines) {
        line->setText("9"); // as typed: the focus stays elsewhere
        line->setModified(true);
    }
    person::focus(lines[0]);
    QTest::keyClick(lines[0], Qt::Key_Return);
    EXPECT_EQ(edited.text(), numbers<TypeParam>("9", "9"));
    EXPECT_EQ(edited.commands(), 1);
}

TYPED_TEST(FloatsEditor, LeavingAppliesOnlyWhatWasModified)
{
    TypeParam edited(numbers<TypeParam>("1", "2").c_str());
    const QList<QLineEdit*> lines = inputs<QLineEdit>(edited);
    person::focus(lines[0]);
    person::tab(lines[0]);
    EXPECT_TRUE(lines[1]->hasFocus());
    EXPECT_EQ(edited.commands(), 0);
    person::type(lines[1], "5");
    person::focus(lines[0]);
    EXPECT_EQ(edited.text().substr(0, 3), "1 5");
    EXPECT_EQ(edited.commands(), 1);
}

TYPED_TEST(FloatsEditor, ComponentThatDoesNotConvertStandsForTheFieldsNumber)
{
    TypeParam edited(numbers<TypeParam>("1", "2").c_str());
    const QList<QLineEdit*> lines = inputs<QLineEdit>(edited);
    person::type(lines[0], "-");
    person::typeAndEnter(lines[1], "5");
    EXPECT_EQ(edited.text().substr(0, 3), "1 5");
    EXPECT_EQ(lines[0]->text(), "1");
    EXPECT_EQ(edited.commands(), 1) << "what was typed in all inputs is applied at once";
}

TYPED_TEST(FloatsEditor, EscapeBringsTheShownValueBack)
{
    TypeParam edited(numbers<TypeParam>("1", "2").c_str());
    QLineEdit* line = inputs<QLineEdit>(edited)[0];
    person::type(line, "5");
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_EQ(line->text(), "1");
    person::tab(line);
    EXPECT_EQ(edited.commands(), 0);
}

TYPED_TEST(FloatsEditor, OutsideChangeSparesTypingInTheOtherInputs)
{
    TypeParam edited(numbers<TypeParam>("1", "2").c_str());
    const QList<QLineEdit*> lines = inputs<QLineEdit>(edited);
    person::type(lines[0], "5");
    edited.change(numbers<TypeParam>("1", "3").c_str());
    EXPECT_EQ(lines[0]->text(), "5");
    EXPECT_EQ(lines[1]->text(), "3");
    QTest::keyClick(lines[0], Qt::Key_Return);
    EXPECT_EQ(edited.text(), numbers<TypeParam>("5", "3"));
}

TYPED_TEST(FloatsEditor, UnappliedTypingIsWrittenToTheOldFieldOnce)
{
    TypeParam edited(numbers<TypeParam>("1", "2").c_str());
    decltype(edited.field) other;
    other.set(numbers<TypeParam>("6", "6").c_str());
    person::type(inputs<QLineEdit>(edited)[0], "5");
    edited.host.release(edited.editor);
    edited.host.edit(edited.editor, &other);
    TestHost::pump();
    EXPECT_EQ(edited.text(), numbers<TypeParam>("5", "2"));
    EXPECT_EQ(textOf(other), numbers<TypeParam>("6", "6"));
    EXPECT_EQ(edited.commands(), 1);
    edited.host.release(edited.editor);
}

TYPED_TEST(FloatsEditor, EveryInputHasItsCaptionAsItsName)
{
    TypeParam edited(numbers<TypeParam>("1", "2").c_str());
    const QList<QLineEdit*> lines = inputs<QLineEdit>(edited);
    const QStringList texts = captions(edited);
    for (int i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(texts[i], "<p>" + lines[i]->accessibleName() + "</p>");
        EXPECT_EQ(lines[i]->height(), std::max(16, lines[i]->fontMetrics().height() + 2));
    }
}

TEST(ComponentEditor, NamesFollowTheDesign)
{
    EditedVec2f vec2("1 2");
    EXPECT_EQ(inputs<QLineEdit>(vec2)[0]->objectName(), "SFVec2fBox");
    EXPECT_EQ(inputs<QLabel>(vec2)[0]->objectName(), "SFVec2fLabel");
    EditedVec3f vec3("1 2 3");
    EXPECT_EQ(inputs<QLineEdit>(vec3)[2]->objectName(), "SFVec3fLine");
    EXPECT_EQ(captions(vec3), QStringList({"<p>x</p>", "<p>y</p>", "<p>z</p>"}));
    EditedVec4f vec4("1 2 3 4");
    EXPECT_EQ(inputs<QLineEdit>(vec4)[3]->objectName(), "SF4fine");
    EXPECT_EQ(inputs<QLabel>(vec4)[3]->objectName(), "SF4flabel");
    EXPECT_EQ(captions(vec4).last(), "<p>w</p>");
    EditedVec2s spin("1 2");
    EXPECT_EQ(inputs<QLabel>(spin)[0]->objectName(), "SF4flabel");
    EXPECT_EQ(inputs<QSpinBox>(spin)[0]->objectName(), "SF2Box");
    EditedPlane plane("0 0 1 2");
    EXPECT_EQ(captions(plane).last(), "<p>distance</p>");
    EditedRotation rotation("0 0 1 0");
    EXPECT_EQ(captions(rotation).last(), "<p>radians</p>");
}

TEST(ComponentEditor, PlaneKeepsTheNumbersTyped)
{
    EditedPlane edited("0 0 1 2");
    person::typeAndEnter(inputs<QLineEdit>(edited)[2], "5");
    EXPECT_EQ(edited.text(), "0 0 5 2");
}

TEST(ComponentEditor, RotationIsShownAsAxisAndAngle)
{
    EditedRotation edited("0 0 0 1");
    edited.field.setValue(SbRotation(SbVec3f(0, 0, 1), 1.5F));
    TestHost::pump();
    const QList<QLineEdit*> lines = inputs<QLineEdit>(edited);
    EXPECT_EQ(lines[2]->text(), "1");
    EXPECT_EQ(lines[3]->text(), "1.5");
    person::typeAndEnter(lines[3], "0.5");
    SbVec3f axis;
    float radians = 0;
    edited.field.getValue().getValue(axis, radians);
    EXPECT_NEAR(radians, 0.5F, 1e-6);
    EXPECT_EQ(edited.commands(), 1);
    edited.undo();
    EXPECT_EQ(lines[3]->text(), "1.5");
}

TEST(ComponentEditor, RotationLeftByAClickElsewhereIsApplied)
{
    EditedRotation edited("0 0 1 1.5");
    person::type(inputs<QLineEdit>(edited)[3], "0");
    person::clickElsewhere(inputs<QLineEdit>(edited)[3]);
    EXPECT_EQ(edited.text(), "0 0 0 1");
    EXPECT_EQ(edited.commands(), 1);
}

TEST(ComponentEditor, RotationLeftByAFocusEventIsApplied)
{
    EditedRotation edited("0 0 1 1.5");
    person::type(inputs<QLineEdit>(edited)[3], "0.5");
    edited.editor.focusOutEvent(nullptr);
    EXPECT_EQ(edited.commands(), 1);
    edited.editor.focusOutEvent(nullptr);
    EXPECT_EQ(edited.commands(), 1);
}

TEST(ComponentEditor, ShowingARotationNeverChangesItsBits)
{
    EditedRotation edited("0.267261237 0.534522474 0.801783681 1.23456788");
    const std::string before = edited.text();
    edited.apply();
    edited.host.release(edited.editor);
    EXPECT_EQ(edited.text(), before);
    EXPECT_EQ(edited.commands(), 0);
}

// The stated heights are the least.
TYPED_TEST(FloatsEditor, GrowsWithTheFont)
{
    TypeParam edited(numbers<TypeParam>("1", "2").c_str());
    QLineEdit* input = edited.edit();
    EXPECT_EQ(input->font(), QApplication::font());
    QFont large(QApplication::font());
    large.setPixelSize(30);
    edited.editor.getWidget()->setFont(large);
    constexpr int Frame = 2;
    EXPECT_GE(input->height(), QFontMetrics(large).height() + Frame);
    EXPECT_EQ(input->fontInfo().pixelSize(), 30);
    EXPECT_GE(inputs<QLabel>(edited)[0]->height(), QFontMetrics(large).height());
    QFont small(large);
    small.setPixelSize(7);
    edited.editor.getWidget()->setFont(small);
    EXPECT_EQ(input->height(), 16);
}

// --- Spin boxes

TEST(SpinBoxEditor, EveryStepIsAppliedAtOnce)
{
    EditedVec2i32 edited("1 2");
    QSpinBox* box = inputs<QSpinBox>(edited)[0];
    person::focus(box);
    QTest::keyClick(box, Qt::Key_Up);
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(edited.text(), "3 2");
    EXPECT_EQ(edited.commands(), 2);
    edited.undo();
    EXPECT_EQ(edited.text(), "2 2");
    EXPECT_EQ(box->value(), 2);
    EXPECT_EQ(edited.commands(), 2) << "showing is not editing";
}

TEST(SpinBoxEditor, ChangeFromElsewhereShowsBothNumbers)
{
    EditedVec2s edited("1 2");
    edited.change("5 6");
    EXPECT_EQ(inputs<QSpinBox>(edited)[0]->value(), 5);
    EXPECT_EQ(inputs<QSpinBox>(edited)[1]->value(), 6);
    EXPECT_EQ(edited.text(), "5 6");
    EXPECT_EQ(edited.commands(), 0);
}

TEST(SpinBoxEditor, StopsWhereTheTypeStops)
{
    EditedVec2s shorts("32766 2");
    QSpinBox* box = inputs<QSpinBox>(shorts)[0];
    person::focus(box);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(shorts.text(), "32767 2");
    EXPECT_EQ(box->minimum(), -32768);

    EditedVec2i32 ints("1 2");
    QSpinBox* wide = inputs<QSpinBox>(ints)[1];
    person::focus(wide);
    wide->selectAll();
    QTest::keyClicks(wide, "2147483647");
    EXPECT_EQ(ints.text(), "1 2147483647");
    EXPECT_FALSE(wide->findChild<QLineEdit*>()->isModified())
        << "Ctrl+Z would take back letters, not the edit";
}

TEST(SpinBoxEditor, UntouchedNeighbourKeepsWhatTheFieldHas)
{
    EditedVec2i32 edited("1 2");
    edited.field.set("1 99"); // not shown yet
    QSpinBox* box = inputs<QSpinBox>(edited)[0];
    person::focus(box);
    edited.change("1 98");
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(edited.text(), "2 98");
}
