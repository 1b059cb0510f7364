// SPDX-License-Identifier: MIT
#include "EdMFieldTable.h"
#include "FieldEditorSettings.h"
#include "SpxDefaults.h"
#include "support/TestHost.h"

#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFMatrix.h>
#include <xsg/fields/SoSFVec3f.h>

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QSpinBox>

#include <gtest/gtest.h>

namespace
{

/// The plug-in's own editor of a field, loaded and shown.
class Metrics : public testing::Test
{
protected:
    QWidget& edit(SoField& field)
    {
        for (SpxExtension* extension : m_plugin.getExtensions()) {
            auto* editor = dynamic_cast<SpxEditor*>(extension);
            if (editor && editor->getHandledType() == field.getTypeId()) {
                m_host.edit(*editor, &field);
                TestHost::pump();
                return *editor->getWidget();
            }
        }
        throw std::runtime_error("no editor of this type");
    }
    template <class Child>
    static const Child& in(const QWidget& editor, const char* name)
    {
        const auto* child = editor.findChild<Child*>(QLatin1String(name));
        if (!child)
            throw std::runtime_error(name);
        return *child;
    }

private:
    void SetUp() override { ASSERT_TRUE(m_plugin.load()); }
    void TearDown() override { m_plugin.unload(); }

    TestHost m_host;
    SpxDefaults m_plugin;
};

} // namespace

TEST_F(Metrics, AreThoseOfTheFrameAroundEveryInput)
{
    SoSFBool field;
    const QWidget& editor = edit(field);
    EXPECT_EQ(editor.layout()->contentsMargins(), QMargins(4, 4, 4, 4));
    EXPECT_EQ(editor.layout()->spacing(), 6);
    EXPECT_EQ(in<QLabel>(editor, "m_label").font().pointSize(), 10);
    for (const char* button : {"m_defaultButton", "m_ignoreButton"})
        EXPECT_EQ(in<QPushButton>(editor, button).maximumSize(), QSize(20, 20)) << button;
    EXPECT_EQ(in<QCheckBox>(editor, "m_box").size(), QSize(16, 18));
}

TEST_F(Metrics, GiveAColourItsSwatch)
{
    SoSFColor field;
    EXPECT_EQ(in<QWidget>(edit(field), "m_colorDisp").size(), QSize(20, 18));
}

TEST_F(Metrics, GiveAMatrixItsPopup)
{
    SoSFMatrix field;
    const QWidget& editor = edit(field);
    EXPECT_EQ(in<QPushButton>(editor, "m_editButton").size(), QSize(20, 20));
    const auto* grid = editor.findChild<QLayout*>("m_popupFrameLayout");
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(grid->contentsMargins(), QMargins(6, 6, 6, 6));
    EXPECT_EQ(grid->spacing(), 8);
    // At the least: sixteen long numbers need more.
    EXPECT_GE(grid->parentWidget()->width(), 260);
    EXPECT_GE(grid->parentWidget()->height(), 100);
}

TEST_F(Metrics, GiveAListItsTableAndAccessBox)
{
    SoMFFloat field;
    const QWidget& editor = edit(field);
    EXPECT_EQ(editor.layout()->contentsMargins(), QMargins(6, 6, 6, 6));
    EXPECT_EQ(editor.layout()->spacing(), 2);
    const auto* table = editor.findChild<EdMFieldTable*>();
    const auto* box = editor.findChild<QSpinBox*>();
    ASSERT_TRUE(table && box);
    EXPECT_EQ(table->minimumHeight(), 46);
    EXPECT_EQ(box->maximumWidth(), 60);
}

TEST(FieldEditorSettings, GiveZeroForAnUnknownKeyEveryTime)
{
    EXPECT_EQ(xsgsettings_fieldEditor("noSuchSetting"), 0);
    EXPECT_EQ(xsgsettings_fieldEditor("noSuchSetting"), 0);
    EXPECT_EQ(xsgsettings_fieldEditor(QString()), 0);
}

TEST(FieldEditorSettings, AreCaseSensitive)
{
    EXPECT_EQ(xsgsettings_fieldEditor("sfboolwidth"), 0);
    EXPECT_EQ(xsgsettings_fieldEditor("SFBoolWidth"), 16);
}
