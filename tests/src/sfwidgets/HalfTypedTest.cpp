// SPDX-License-Identifier: MIT
// Text that is no value yet, in every line of every editor: however its typing ends, the field keeps what it
// has.
#include "EdSFFloatWidget.h"
#include "EdSFInt32Widget.h"
#include "EdSFShortWidget.h"
#include "EdSFUInt32Widget.h"
#include "EdSFUShortWidget.h"
#include "EveryEditor.h"

#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFInt32.h>
#include <xsg/fields/SoSFShort.h>
#include <xsg/fields/SoSFUInt32.h>
#include <xsg/fields/SoSFUShort.h>

#include <array>

namespace
{

class HalfTypedTest : public EveryEditor
{
protected:
    // False where the line does not let the text in.
    static bool halfType(QWidget* input, const QString& text)
    {
        auto* line = qobject_cast<QLineEdit*>(input);
        if (!line && text == "1e")
            return false; // a spin box applies each digit
        if (!line)
            line = input->findChild<QLineEdit*>();
        ::typeInto(input, text);
        if (text.isEmpty())
            QTest::keyClick(line, Qt::Key_Delete);
        return line->text() == text;
    }
    void leave()
    {
        m_editor->window()->setFocus();
        TestHost::pump();
    }
    void expectUntouched(const char* text) const
    {
        EXPECT_EQ(this->text(), value(0)) << '"' << text << '"';
        EXPECT_EQ(commands(), 0) << '"' << text << '"';
    }
};

INSTANTIATE_TEST_SUITE_P(Rows, HalfTypedTest, testing::ValuesIn(editorRows()),
                         [](const auto& info) { return info.param.name(); });

constexpr std::array HalfTyped{"", "-", "1e"};

} // namespace

TEST_P(HalfTypedTest, IsReplacedByTheValueWhenItsInputIsLeft)
{
    for (int i = 0; isNumbers() && i < lines().size(); ++i) {
        for (const char* text : HalfTyped) {
            if (!halfType(lines()[i], text)) {
                QTest::keyClick(lines()[i], Qt::Key_Escape);
                continue;
            }
            leave();
            EXPECT_EQ(shown(), row().shown[0]) << '"' << text << '"';
            expectUntouched(text);
        }
    }
}

TEST_P(HalfTypedTest, IsDroppedWhenTheEditorIsReleasedOrAnotherFieldComes)
{
    SoSField* next = another(1);
    for (int i = 0; isNumbers() && i < lines().size(); ++i) {
        for (const char* text : HalfTyped) {
            for (SoSField* field : {static_cast<SoSField*>(nullptr), next}) {
                if (!halfType(lines()[i], text)) {
                    QTest::keyClick(lines()[i], Qt::Key_Escape);
                    continue;
                }
                show(field);
                expectUntouched(text);
                EXPECT_EQ(textOf(*next), value(1));
                open();
                EXPECT_EQ(shown(), row().shown[0]) << '"' << text << '"';
            }
        }
    }
}

TEST_P(HalfTypedTest, SetToDefaultDropsWhatWaits)
{
    const std::string fresh = textOf(*fieldOf(addNode(), row().type));
    m_field->set(fresh.c_str());
    TestHost::pump();
    for (QWidget* line : lines()) {
        const int before = commands();
        halfType(line, row().isEachKeyApplied() ? "-" : "8");
        QTest::mouseClick(button("m_defaultButton"), Qt::LeftButton);
        TestHost::pump();
        leave();
        EXPECT_EQ(text(), fresh);
        if (isNumbers()) {
            EXPECT_EQ(commands(), before + 1);
        }
    }
}

TEST_P(HalfTypedTest, TextThatEndsAsItWasShownChangesNothing)
{
    for (QWidget* input : lines()) {
        auto* line = qobject_cast<QLineEdit*>(input);
        if (!isNumbers() || !line)
            continue; // texts are applied at every end; each digit in a spin box is
        person::focus(line);
        line->end(false);
        QTest::keyClick(line, Qt::Key_Backspace);
        const QString all = QString::fromStdString(row().shown[0]).split('|')[lines().indexOf(input)];
        QTest::keyClicks(line, all.right(1));
        EXPECT_EQ(line->text(), all);
        EXPECT_TRUE(line->isModified());
        QTest::keyClick(line, Qt::Key_Return);
        leave();
        expectUntouched("the same");
    }
}

TEST(RealEditor, DigitThatIsTypedAndDeletedAgainKeepsEveryBit)
{
    EditedField<EdSFFloatWidget, SoSFFloat> edited("4e-07");
    person::focus(edited.edit());
    edited.edit()->end(false);
    QTest::keyClick(edited.edit(), Qt::Key_Backspace);
    QTest::keyClick(edited.edit(), Qt::Key_0);
    person::focus(edited.slider());
    EXPECT_EQ(edited.text(), "4e-07");
    EXPECT_EQ(edited.commands(), 0);
}

template <class Edited>
class RefusedIntegerTest : public testing::Test
{
};
using IntegerEditors =
    testing::Types<EditedField<EdSFInt32Widget, SoSFInt32>, EditedField<EdSFShortWidget, SoSFShort>,
                   EditedField<EdSFUInt32Widget, SoSFUInt32>, EditedField<EdSFUShortWidget, SoSFUShort>>;
TYPED_TEST_SUITE(RefusedIntegerTest, IntegerEditors);

TYPED_TEST(RefusedIntegerTest, WhatIsNoNumberOfTheTypeIsDroppedAtEnter)
{
    TypeParam edited("7");
    for (const char* text : {"abc", "-3", "99999999999", "7x", "--"}) {
        person::type(edited.edit(), text);
        if (edited.edit()->validator())
            continue; // is kept from being typed
        QTest::keyClick(edited.edit(), Qt::Key_Return);
        EXPECT_EQ(edited.shown(), "7") << text;
        person::focus(edited.slider());
        TestHost::pump();
        EXPECT_EQ(edited.text(), "7") << text;
        EXPECT_EQ(edited.commands(), 0) << text;
    }
}

TEST(IntegerEditor, UnsignedNumbersBeyondTheirTypeAreDropped)
{
    EditedField<EdSFUShortWidget, SoSFUShort> edited("7");
    EXPECT_EQ(edited.edit()->validator(), nullptr);
    for (const char* text : {"-3", "65536", "70000"}) {
        person::typeAndEnter(edited.edit(), text);
        EXPECT_EQ(edited.shown(), "7") << text;
    }
    EXPECT_EQ(edited.commands(), 0);
    person::typeAndEnter(edited.edit(), "65535");
    EXPECT_EQ(edited.text(), "65535");
}
