// SPDX-License-Identifier: MIT
#include "EdRealSlider.h"
#include "EdSFDoubleWidget.h"
#include "EdSFFloatWidget.h"
#include "EdSFInt32Widget.h"
#include "EdSFShortWidget.h"
#include "EdSFUInt32Widget.h"
#include "EdSFUShortWidget.h"
#include "EditedField.h"

#include <xsg/fields/SoSFDouble.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFInt32.h>
#include <xsg/fields/SoSFShort.h>
#include <xsg/fields/SoSFUInt32.h>
#include <xsg/fields/SoSFUShort.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/properties/SoComplexity.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <QTest>

namespace
{

using EditedFloat = EditedField<EdSFFloatWidget, SoSFFloat>;
using EditedDouble = EditedField<EdSFDoubleWidget, SoSFDouble>;
using EditedInt32 = EditedField<EdSFInt32Widget, SoSFInt32>;
using EditedShort = EditedField<EdSFShortWidget, SoSFShort>;
using EditedUInt32 = EditedField<EdSFUInt32Widget, SoSFUInt32>;
using EditedUShort = EditedField<EdSFUShortWidget, SoSFUShort>;

template <class Edited>
class NumericEditor : public testing::Test
{
};
using AllEditors =
    testing::Types<EditedFloat, EditedDouble, EditedInt32, EditedShort, EditedUInt32, EditedUShort>;
TYPED_TEST_SUITE(NumericEditor, AllEditors);

} // namespace

TYPED_TEST(NumericEditor, CarriesTheNamesOfItsFieldType)
{
    TypeParam edited("5");
    const std::string type = edited.field.getTypeId().getName().getString();
    EXPECT_EQ(edited.editor.getName().str(), type);
    EXPECT_EQ(edited.editor.objectName().toStdString(), "Ed" + type + "Widget");
    EXPECT_TRUE(edited.editor.getHandledType() == edited.field.getTypeId());
    EXPECT_EQ(edited.template find<QLabel>("m_label")->text().toStdString(),
              "<p align=\"center\">" + type + "</p>");
}

TYPED_TEST(NumericEditor, AppliesTypingOnceAndUndoes)
{
    TypeParam edited("5");
    person::typeAndEnter(edited.edit(), "7");
    TestHost::pump();
    EXPECT_EQ(edited.text(), "7");
    EXPECT_EQ(edited.commands(), 1);
    person::focus(edited.slider());
    EXPECT_EQ(edited.commands(), 1);
    edited.undo();
    EXPECT_EQ(edited.text(), "5");
    EXPECT_EQ(edited.edit()->text().toDouble(), 5);
    edited.redo();
    EXPECT_EQ(edited.text(), "7");
    EXPECT_EQ(edited.edit()->text().toDouble(), 7);
}

TYPED_TEST(NumericEditor, AppliesADragAndUndoesItToTheValueBefore)
{
    TypeParam edited("5");
    person::drag(edited.slider(), {edited.slider()->maximum()});
    TestHost::pump();
    EXPECT_NE(edited.text(), "5");
    EXPECT_EQ(edited.commands(), 2);
    edited.undo();
    edited.undo();
    EXPECT_EQ(edited.text(), "5");
}

TYPED_TEST(NumericEditor, DragWithoutLiveUpdateIsOneCommand)
{
    TypeParam edited("5");
    QTest::mouseClick(edited.live(), Qt::LeftButton, {}, {5, edited.live()->height() / 2});
    ASSERT_FALSE(edited.live()->isChecked());
    person::pressHandle(edited.slider());
    person::moveHandle(edited.slider(), edited.slider()->maximum());
    TestHost::pump();
    EXPECT_EQ(edited.text(), "5");
    person::releaseHandle(edited.slider());
    EXPECT_NE(edited.text(), "5");
    EXPECT_EQ(edited.commands(), 1);
    edited.undo();
    EXPECT_EQ(edited.text(), "5");
}

TYPED_TEST(NumericEditor, ShowsChangesFromElsewhereAndRecordsNothing)
{
    TypeParam edited("5");
    edited.change("9");
    EXPECT_EQ(edited.edit()->text().toDouble(), 9);
    edited.change("200");
    EXPECT_EQ(edited.edit()->text().toDouble(), 200);
    EXPECT_EQ(edited.slider()->value(), edited.slider()->maximum());
    edited.field.setIgnored(true);
    TestHost::pump();
    EXPECT_TRUE(edited.ignoreButton()->isChecked());
    EXPECT_EQ(edited.commands(), 0);
    EXPECT_EQ(edited.text(), "200");
}

TYPED_TEST(NumericEditor, IgnoreButtonIsOneCommand)
{
    TypeParam edited("5");
    QTest::mouseClick(edited.ignoreButton(), Qt::LeftButton);
    EXPECT_TRUE(edited.field.isIgnored());
    EXPECT_EQ(edited.host.takeLog(), TestHost::Log{"executeCommand SpxFieldIgnoredCommand"});
    edited.undo();
    EXPECT_FALSE(edited.field.isIgnored());
    edited.redo();
    EXPECT_TRUE(edited.field.isIgnored());
}

TYPED_TEST(NumericEditor, IgnoreButtonLeftWhilePressedRecordsNothing)
{
    TypeParam edited("5");
    QPushButton* button = edited.ignoreButton();
    QTest::mousePress(button, Qt::LeftButton);
    QMouseEvent away(QEvent::MouseMove, {-20, -20}, button->mapToGlobal({-20, -20}), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(button, &away);
    QTest::mouseRelease(button, Qt::LeftButton, {}, {-20, -20});
    EXPECT_EQ(edited.commands(), 0);
}

TYPED_TEST(NumericEditor, LeavingUntouchedAppliesNothing)
{
    TypeParam edited("5");
    person::focus(edited.edit());
    person::focus(edited.slider());
    EXPECT_EQ(edited.commands(), 0);
}

TYPED_TEST(NumericEditor, UnappliedTypingIsWrittenToTheOldFieldOnce)
{
    TypeParam edited("5");
    auto other = std::make_unique<std::decay_t<decltype(edited.field)>>();
    other->set("6");
    person::type(edited.edit(), "8");
    edited.host.release(edited.editor);
    edited.host.edit(edited.editor, other.get());
    TestHost::pump();
    EXPECT_EQ(edited.text(), "8");
    EXPECT_EQ(textOf(*other), "6");
    EXPECT_EQ(edited.edit()->text().toDouble(), 6);
    EXPECT_EQ(edited.commands(), 1);
    edited.host.release(edited.editor);
}

TYPED_TEST(NumericEditor, UnfinishedTypingIsDroppedWithTheField)
{
    TypeParam edited("5");
    person::type(edited.edit(), "-");
    edited.host.release(edited.editor);
    EXPECT_EQ(edited.text(), "5");
    EXPECT_FALSE(edited.editor.getWidget()->isVisible());
}

TYPED_TEST(NumericEditor, WritesNothingWithoutAField)
{
    TypeParam edited("5");
    edited.host.release(edited.editor);
    edited.edit()->setText("8");
    edited.apply();
    edited.editor.refresh();
    QTest::mouseClick(edited.defaultButton(), Qt::LeftButton);
    EXPECT_EQ(edited.commands(), 0);
    EXPECT_EQ(edited.text(), "5");
}

TYPED_TEST(NumericEditor, SurvivesTheEndOfItsField)
{
    TypeParam edited("5");
    auto other = std::make_unique<std::decay_t<decltype(edited.field)>>();
    edited.host.edit(edited.editor, other.get());
    person::type(edited.edit(), "8");
    other.reset();
    QTest::keyClick(edited.edit(), Qt::Key_Return);
    TestHost::pump();
    edited.editor.setEditedObject(nullptr);
    EXPECT_EQ(edited.commands(), 0);
}

TYPED_TEST(NumericEditor, MayBeDestroyedWhileTheUserTypes)
{
    auto field = std::make_unique<decltype(TypeParam::field)>();
    TestHost host;
    {
        decltype(TypeParam::editor) editor(nullptr);
        host.edit(editor, field.get());
        auto* edit = editor.getWidget()->template findChild<QLineEdit*>();
        person::type(edit, "8");
        host.log();
        editor.unload();
    }
    EXPECT_TRUE(host.log().empty());
}

// --- Ranges

// A kind of material that somebody else adds.
class Glass : public SoMaterial
{
public:
    SoType getTypeId() const override
    {
        static const SoType type = SoType::createType(SoMaterial::getClassTypeId(), "Glass");
        return type;
    }
};

TEST(RealEditor, TakesTheUnitRangeInThreeKindsOfNodes)
{
    TestHost host;
    EdSFFloatWidget editor(nullptr);
    const auto limits = [&](SoField* field) {
        host.edit(editor, field);
        const auto* slider = editor.getWidget()->findChild<EdRealSlider*>();
        return std::make_pair(slider->getTop(), slider->isBoundFixed());
    };
    const SoRef<SoComplexity> complexity(new SoComplexity);
    const SoRef<SoMaterial> material(new SoMaterial);
    const SoRef<SoDirectionalLight> light(new SoDirectionalLight);
    const SoRef<Glass> derived(new Glass);
    SoSFFloat alone;
    EXPECT_EQ(limits(&complexity->value), std::make_pair(1.0, true));
    EXPECT_EQ(limits(&material->transparency), std::make_pair(1.0, true));
    EXPECT_EQ(limits(&light->intensity), std::make_pair(1.0, true));
    EXPECT_EQ(limits(&derived->transparency), std::make_pair(1.0, true));
    EXPECT_EQ(limits(&alone), std::make_pair(10.0, false));
    host.release(editor);
}

TEST(RealEditor, RangeGrowsToTheValueAlsoWhenItIsFixed)
{
    TestHost host;
    EdSFFloatWidget editor(nullptr);
    const SoRef<SoMaterial> material(new SoMaterial);
    material->transparency.setValue(250.F);
    host.edit(editor, &material->transparency);
    const auto* slider = editor.getWidget()->findChild<EdRealSlider*>();
    EXPECT_EQ(slider->getTop(), 250);
    EXPECT_TRUE(slider->isBoundFixed());
    EXPECT_EQ(slider->getValue(), 100);
    host.release(editor);
}

TEST(RealEditor, DragInAMaterialIsUndoneToItsText)
{
    TestHost host;
    EdSFFloatWidget editor(nullptr);
    const SoRef<SoMaterial> material(new SoMaterial);
    material->transparency.setValue(0.25F);
    host.edit(editor, &material->transparency);
    editor.getWidget()->resize(420, 40);
    person::drag(editor.getWidget()->findChild<QSlider*>(), {50, 80});
    EXPECT_NE(material->transparency.getValue(), 0.25F);
    while (host.undo()) {
    }
    EXPECT_EQ(material->transparency.getValue(), 0.25F);
    host.release(editor);
}

TEST(RealEditor, DefaultIsOneCommandThatUndoes)
{
    TestHost host;
    EdSFFloatWidget editor(nullptr);
    const SoRef<SoMaterial> material(new SoMaterial);
    const float standard = material->transparency.getValue();
    material->transparency.setValue(0.75F);
    host.edit(editor, &material->transparency);
    QTest::mouseClick(editor.getWidget()->findChild<QPushButton*>("m_defaultButton"), Qt::LeftButton);
    EXPECT_EQ(material->transparency.getValue(), standard);
    EXPECT_EQ(host.takeLog(), TestHost::Log{"executeCommand SpxFieldSetDefaultCommand"});
    EXPECT_TRUE(host.undo());
    EXPECT_EQ(material->transparency.getValue(), 0.75F);
    host.release(editor);
}

TEST(RealEditor, FieldOnItsOwnHasNoDefault)
{
    EditedFloat edited("5");
    QTest::mouseClick(edited.defaultButton(), Qt::LeftButton);
    EXPECT_EQ(edited.commands(), 0);
    EXPECT_EQ(edited.text(), "5");
}

TEST(RealEditor, ShowsSixDecimalsAndAppliesThem)
{
    EditedFloat edited("4e-07");
    EXPECT_EQ(edited.shown(), "0.000000");
    edited.apply();
    EXPECT_EQ(edited.text(), "0");
}

TEST(RealEditor, UndoOfTypingRestoresEveryBit)
{
    EditedFloat edited("0.123456791");
    const float before = edited.field.getValue();
    person::typeAndEnter(edited.edit(), "0.5");
    EXPECT_EQ(edited.field.getValue(), 0.5F);
    edited.undo();
    EXPECT_EQ(edited.field.getValue(), before);
}

TEST(RealEditor, ShowsWhatIsNotFinite)
{
    EditedDouble edited("5");
    edited.field.setValue(std::numeric_limits<double>::infinity());
    TestHost::pump();
    EXPECT_EQ(edited.shown(), "inf");
    EXPECT_EQ(edited.slider()->value(), 0);
    edited.field.setValue(std::numeric_limits<double>::quiet_NaN());
    TestHost::pump();
    EXPECT_EQ(edited.shown(), "nan");
    EXPECT_EQ(edited.commands(), 0);
}

TEST(RealEditor, UnfixedRangeOfAMaterialFieldClampsTyping)
{
    TestHost host;
    EdSFFloatWidget editor(nullptr);
    const SoRef<SoMaterial> material(new SoMaterial);
    host.edit(editor, &material->transparency);
    auto* edit = editor.getWidget()->findChild<QLineEdit*>();
    person::typeAndEnter(edit, "2.5");
    TestHost::pump();
    EXPECT_EQ(material->transparency.getValue(), 1.F);
    EXPECT_EQ(edit->text(), "1.000000");
    host.release(editor);
}

TEST(IntegerEditor, StartsWithTheRangeOfAllNodes)
{
    EditedInt32 edited("5");
    EXPECT_EQ(edited.slider()->minimum(), 0);
    EXPECT_EQ(edited.slider()->maximum(), 100);
    edited.change("250");
    EXPECT_EQ(edited.slider()->maximum(), 250);
}

TEST(IntegerEditor, FixedRangeKeepsTheTextAndClampsTheSlider)
{
    EditedInt32 edited("5");
    edited.find<EdIntSlider>()->setValidLimits(0, 100, true);
    edited.change("250");
    EXPECT_EQ(edited.shown(), "250");
    EXPECT_EQ(edited.find<EdIntSlider>()->getNumber(), 100);
    EXPECT_EQ(edited.text(), "250");
}

TEST(IntegerEditor, ExtremesAreShownAndTyped)
{
    EditedInt32 signedField("-2147483648");
    EXPECT_EQ(signedField.shown(), "-2147483648");
    person::typeAndEnter(signedField.edit(), "2147483647");
    EXPECT_EQ(signedField.text(), "2147483647");
    TestHost::pump();
    signedField.editor.getWidget()->grab();

    EditedUInt32 natural("4294967295");
    EXPECT_EQ(natural.shown(), "4294967295");
    person::typeAndEnter(natural.edit(), "2147483648");
    EXPECT_EQ(natural.text(), "2147483648");
}

TEST(IntegerEditor, HexadecimalTextIsAppliedInDecimal)
{
    // A field that writes itself in base 16, as an application may have one.
    class HexField : public SoSFInt32
    {
    public:
        void get(SbString& text) const override
        {
            text = "0x" + QByteArray::number(getValue(), 16).toStdString();
        }
        bool set(const SbString& text) override
        {
            m_lastSet = text.str();
            return SoSFInt32::set(text);
        }
        std::string m_lastSet;
    } field;
    field.setValue(16);
    TestHost host;
    EdSFInt32Widget editor(nullptr);
    host.edit(editor, &field);
    EXPECT_EQ(editor.getWidget()->findChild<QLineEdit*>()->text(), "10");
    static_cast<SpxFieldEditors&>(editor).applyChanges();
    EXPECT_EQ(field.m_lastSet, "16");
    EXPECT_EQ(field.getValue(), 16);
    host.release(editor);
}
