// SPDX-License-Identifier: MIT
#include "EdSFBoolWidget.h"
#include "EdSFBox3sWidget.h"
#include "EdSFFilePathStringWidget.h"
#include "EdSFFloatWidget.h"
#include "EdSFStringWidget.h"
#include "EdSFVec2sWidget.h"
#include "EdSlider.h"
#include "EditedField.h"
#include "FieldEditorSettings.h"

#include <xsg/fields/SoSFFloat.h>

#include <QHBoxLayout>
#include <QLabel>

#include <type_traits>
#include <utility>

namespace
{

template <class Editor, class = void>
struct CanApply : std::false_type {
};
template <class Editor>
struct CanApply<Editor, std::void_t<decltype(std::declval<Editor&>().applyChanges())>> : std::true_type {
};
template <class Editor, class = void>
struct CanAsk : std::false_type {
};
template <class Editor>
struct CanAsk<Editor, std::void_t<decltype(std::declval<Editor&>().edited())>> : std::true_type {
};

// An editor with a plain line of its own.
class PlainEditor : public EdSFieldWidget
{
public:
    explicit PlainEditor(SFFrameType type)
        : EdSFieldWidget(type, nullptr)
    {
    }
};

} // namespace

TEST(SFieldWidget, UnknownFrameTypeHasAPlainEditionFrame)
{
    for (int type : {0, 7, 1000}) {
        PlainEditor editor{SFFrameType(type)};
        EXPECT_EQ(editor.objectName(), "EdSFieldWidget");
        editor.load();
        EXPECT_EQ(editor.getWidget()->findChild<EdSlider*>(), nullptr);
        const auto* frame = editor.getWidget()->findChild<QFrame*>("m_editionFrame");
        ASSERT_NE(frame, nullptr);
        EXPECT_EQ(frame->layout()->objectName(), "editLayout");
        editor.unload();
    }
}

TEST(SFieldWidget, FirstCaptionStays)
{
    PlainEditor editor{PlainFrame};
    editor.setFieldName("First");
    editor.setFieldName("Second");
    EXPECT_EQ(editor.getWidget()->findChild<QLabel*>("m_label")->text(), "<p align=\"center\">First</p>");
}

TEST(SFieldWidget, LayoutFollowsTheSettings)
{
    EdSFFloatWidget editor(nullptr);
    editor.load();
    const auto* container = qobject_cast<QFrame*>(editor.getWidget());
    EXPECT_EQ(container->frameShape(), QFrame::Box);
    EXPECT_EQ(container->layout()->objectName(), "SFieldLayout");
    EXPECT_EQ(container->layout()->spacing(), xsgsettings_fieldEditor("SFieldLayoutSpacing"));
    const int margin = xsgsettings_fieldEditor("SFieldLayoutMargin");
    EXPECT_EQ(container->layout()->contentsMargins(), QMargins(margin, margin, margin, margin));
    const auto* label = container->findChild<QLabel*>("m_label");
    EXPECT_EQ(label->font().pointSize(), xsgsettings_fieldEditor("labelPointSize"));
    EXPECT_TRUE(label->hasScaledContents());
    EXPECT_EQ(container->layout()->itemAt(0)->widget(), label);
    EXPECT_NE(container->layout()->itemAt(1)->spacerItem(), nullptr);
    const QLayout* area = container->layout()->itemAt(2)->layout();
    ASSERT_NE(area, nullptr);
    EXPECT_EQ(area->objectName(), "SFieldEditionAreaLayout");
    EXPECT_EQ(area->sizeConstraint(), QLayout::SetMinimumSize);
    EXPECT_EQ(area->itemAt(0)->widget()->objectName(), "EdSliderFrame");
    EXPECT_NE(area->itemAt(1)->spacerItem(), nullptr);
    EXPECT_EQ(area->itemAt(2)->layout()->objectName(), "SFieldLayout");
    EXPECT_EQ(container->findChild<QPushButton*>("m_defaultButton")->toolTip(), "Set to default");
    EXPECT_EQ(container->findChild<QPushButton*>("m_ignoreButton")->toolTip(), "Ignore this field");
    for (const auto* button : container->findChildren<QPushButton*>()) {
        EXPECT_EQ(button->focusPolicy(), Qt::NoFocus);
        EXPECT_EQ(button->maximumSize(), QSize(20, 20));
        EXPECT_TRUE(button->text().isEmpty());
        EXPECT_FALSE(button->icon().isNull());
    }
    editor.unload();
}

TEST(SFieldWidget, HiddenUntilActivated)
{
    SoSFFloat field;
    TestHost host;
    EdSFFloatWidget editor(nullptr);
    host.start(editor); // without a field there is nothing to show
    EXPECT_TRUE(editor.getWidget()->isHidden());
    host.edit(editor, &field);
    EXPECT_FALSE(editor.getWidget()->isHidden());
    host.release(editor);
    EXPECT_TRUE(editor.getWidget()->isHidden());
}

TEST(SFieldWidget, ApplyingIsForTheEditorsThemselves)
{
    EXPECT_FALSE(CanApply<EdSFieldWidget>::value);
    EXPECT_FALSE((CanApply<EdSFBoolWidget>::value));
    EXPECT_FALSE((CanApply<EdSFFloatWidget>::value));
    EXPECT_FALSE((CanApply<EdSFVec2sWidget>::value));
    EXPECT_TRUE(CanApply<EdSFBox3sWidget>::value);
    EXPECT_TRUE(CanAsk<EdSFStringWidget>::value);
    EXPECT_FALSE(CanAsk<EdSFFilePathStringWidget>::value);
}
