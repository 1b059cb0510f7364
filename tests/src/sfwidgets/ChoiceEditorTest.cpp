// SPDX-License-Identifier: MIT
#include "EdSFBitMaskWidget.h"
#include "EdSFBoolWidget.h"
#include "EdSFEnumWidget.h"
#include "EditedField.h"

#include <xsg/fields/SoSFBitMask.h>
#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFEnum.h>

#include <QApplication>
#include <QComboBox>
#include <QProxyStyle>
#include <QTest>

namespace
{

constexpr int Values[] = {0, 1, 2, 4, 6};
const SbName Names[] = {"NONE", "RED", "GREEN", "BLUE", "COLD"};

template <class Editor, class Field>
struct Chosen : EditedField<Editor, Field> {
    explicit Chosen(int value)
    {
        this->field.setEnums(5, Values, Names);
        this->field.SoSFEnum::setValue(value);
        this->host.edit(this->editor, &this->field);
        TestHost::pump();
    }
    QList<QCheckBox*> boxes() { return this->editor.getWidget()->template findChildren<QCheckBox*>(); }
    QCheckBox* box(const char* name)
    {
        for (QCheckBox* box : boxes()) {
            if (box->text() == name)
                return box;
        }
        return nullptr;
    }
    void click(const char* name)
    {
        QCheckBox* target = box(name);
        QTest::mouseClick(target, Qt::LeftButton, {}, {8, target->height() / 2});
        TestHost::pump();
    }
    QComboBox* combo() { return this->template find<QComboBox>("comboBox"); }
    // Picks an item in the open list.
    void choose(int row)
    {
        person::focus(combo());
        combo()->showPopup();
        QTest::keyClick(combo()->view(), Qt::Key_Home);
        for (int i = 0; i < row; ++i)
            QTest::keyClick(combo()->view(), Qt::Key_Down);
        QTest::keyClick(combo()->view(), Qt::Key_Return);
        TestHost::pump();
    }
};
using EditedEnum = Chosen<EdSFEnumWidget, SoSFEnum>;
using EditedMask = Chosen<EdSFBitMaskWidget, SoSFBitMask>;
using EditedBool = EditedField<EdSFBoolWidget, SoSFBool>;

} // namespace

TEST(BoolEditor, ClickIsAppliedAndUndone)
{
    EditedBool edited("FALSE");
    auto* box = edited.find<QCheckBox>("m_box");
    EXPECT_FALSE(box->isChecked());
    QTest::mouseClick(box, Qt::LeftButton);
    EXPECT_EQ(edited.text(), "TRUE");
    EXPECT_EQ(edited.host.log(), TestHost::Log{"executeCommand SpxSFSetValueCommand"});
    edited.undo();
    EXPECT_EQ(edited.text(), "FALSE");
    EXPECT_FALSE(box->isChecked());
    edited.change("TRUE");
    EXPECT_TRUE(box->isChecked());
    EXPECT_EQ(edited.commands(), 1);
}

// As on a screen of 168 dpi.
TEST(BoolEditor, BoxIsAsLargeAsItsTick)
{
    class LargeTicks : public QProxyStyle
    {
    public:
        int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
        {
            const bool isTick = metric == PM_IndicatorWidth || metric == PM_IndicatorHeight;
            return isTick ? 60 : QProxyStyle::pixelMetric(metric, option, widget);
        }
    };
    const QString style = QApplication::style()->objectName();
    QApplication::setStyle(new LargeTicks);
    {
        EditedBool edited("FALSE");
        const auto* box = edited.find<QCheckBox>("m_box");
        EXPECT_GE(box->width(), 60);
        EXPECT_GE(box->height(), 60);
    }
    QApplication::setStyle(style);
}

TEST(EnumEditor, ListsTheNamesWithTheirValues)
{
    EditedEnum edited(2);
    ASSERT_EQ(edited.combo()->count(), 5);
    EXPECT_EQ(edited.combo()->itemText(3), "BLUE");
    EXPECT_EQ(edited.combo()->itemData(4).toInt(), 6);
    EXPECT_EQ(edited.combo()->currentText(), "GREEN");
    edited.change("BLUE");
    EXPECT_EQ(edited.combo()->currentText(), "BLUE");
    EXPECT_EQ(edited.commands(), 0);
}

TEST(EnumEditor, ChoiceIsAppliedAndUndone)
{
    EditedEnum edited(2);
    edited.choose(1);
    EXPECT_EQ(edited.text(), "RED");
    EXPECT_EQ(edited.commands(), 1);
    edited.undo();
    EXPECT_EQ(edited.text(), "GREEN");
    EXPECT_EQ(edited.combo()->currentText(), "GREEN");
}

TEST(EnumEditor, ChoosingTheCurrentItemIsACommandToo)
{
    EditedEnum edited(2);
    edited.choose(2);
    EXPECT_EQ(edited.text(), "GREEN");
    EXPECT_EQ(edited.commands(), 1);
}

TEST(EnumEditor, ValueWithoutANameShowsNoSelection)
{
    EditedEnum edited(77);
    EXPECT_EQ(edited.combo()->currentIndex(), -1);
    edited.apply();
    EXPECT_EQ(edited.text(), "77");
    EXPECT_EQ(edited.commands(), 0);
}

TEST(EnumEditor, FieldWithoutNamesIsEmpty)
{
    EditedField<EdSFEnumWidget, SoSFEnum> edited;
    edited.host.edit(edited.editor, &edited.field);
    EXPECT_EQ(edited.find<QComboBox>("comboBox")->count(), 0);
    EditedField<EdSFBitMaskWidget, SoSFBitMask> mask;
    mask.host.edit(mask.editor, &mask.field);
    EXPECT_EQ(mask.find<QCheckBox>(), nullptr);
}

TEST(BitMaskEditor, HasABoxForEveryNameThatIsNotZero)
{
    EditedMask edited(2);
    QStringList names;
    for (const QCheckBox* box : edited.boxes())
        names << box->text();
    EXPECT_EQ(names, QStringList({"RED", "GREEN", "BLUE", "COLD"}));
    EXPECT_TRUE(edited.box("GREEN")->isChecked());
    EXPECT_TRUE(edited.box("COLD")->isChecked()) << "one of its bits is set";
    EXPECT_FALSE(edited.box("RED")->isChecked());
}

TEST(BitMaskEditor, ClicksAreWrittenWithoutACommand)
{
    EditedMask edited(1);
    edited.click("BLUE");
    EXPECT_EQ(edited.field.getValue(), 5);
    EXPECT_FALSE(edited.box("COLD")->isChecked()) << "a box follows no click on another";
    edited.click("RED");
    edited.click("BLUE");
    EXPECT_EQ(edited.field.getValue(), 0);
    EXPECT_EQ(edited.commands(), 0);
}

TEST(BitMaskEditor, BitsWithoutANameAreLostAtTheFirstClick)
{
    EditedMask edited(64 + 1);
    EXPECT_EQ(edited.field.getValue(), 65);
    edited.click("GREEN");
    EXPECT_EQ(edited.field.getValue(), 3);
}

TEST(BitMaskEditor, BoxesFollowAChangeFromElsewhere)
{
    EditedMask edited(1);
    edited.click("GREEN");
    edited.field.SoSFEnum::setValue(4);
    TestHost::pump();
    EXPECT_TRUE(edited.box("BLUE")->isChecked());
    EXPECT_FALSE(edited.box("GREEN")->isChecked());
    EXPECT_FALSE(edited.box("RED")->isChecked());
}

TEST(BitMaskEditor, ButtonsOfATallMaskStandAtTheTop)
{
    EditedMask edited(1);
    edited.editor.getWidget()->resize(420, 400);
    TestHost::pump();
    const QCheckBox* lowest = edited.boxes().last();
    ASSERT_GT(lowest->mapTo(edited.editor.getWidget(), QPoint()).y(), 60);
    for (const QPushButton* button : {edited.defaultButton(), edited.ignoreButton()})
        EXPECT_LT(button->geometry().bottom(), 45);
}

TEST(BitMaskEditor, AnotherFieldBringsItsOwnBoxes)
{
    EditedMask edited(1);
    SoSFBitMask other;
    const int values[] = {1, 2};
    const SbName names[] = {"LEFT", "RIGHT"};
    other.setEnums(2, values, names);
    edited.host.release(edited.editor);
    edited.host.edit(edited.editor, &other);
    ASSERT_EQ(edited.boxes().size(), 2);
    EXPECT_EQ(edited.boxes()[1]->text(), "RIGHT");
    edited.host.stop(edited.editor);
    EXPECT_TRUE(edited.boxes().isEmpty());
}
