// SPDX-License-Identifier: MIT
#include "ProbeEditor.h"

#include <support/TestHost.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <gtest/gtest.h>

TEST(FieldEditor, NamesItsMaker)
{
    const ProbeEditor editor;
    EXPECT_EQ(editor.getName(), SbString("Probe"));
    EXPECT_EQ(editor.getDescription(), SbString("Field Editor for Scopix."));
    EXPECT_EQ(editor.getVendor(), SbString("Arvex"));
    EXPECT_EQ(editor.getVersion(), SbString("1.0.0"));
    EXPECT_EQ(editor.range(), EdRangeComponent());
}

TEST(FieldEditor, OffersItsContainerAsItsWidget)
{
    const ProbeEditor editor;
    ASSERT_TRUE(editor.getWidgetContainer());
    EXPECT_EQ(editor.getWidget(), editor.getWidgetContainer());
    EXPECT_FALSE(editor.getWidget()->parentWidget());
    EXPECT_FALSE(editor.getWidget()->isVisible());
}

TEST(FieldEditor, DestroysItsWidgets)
{
    auto editor = std::make_unique<ProbeEditor>();
    const QPointer<QWidget> container = editor->getWidget();
    editor->load();
    const QPointer<QWidget> input = editor->input;
    editor->unload();
    editor.reset();
    EXPECT_FALSE(container);
    EXPECT_FALSE(input);
}

TEST(FieldEditor, SurvivesTheEndOfTheDockAroundItsWidget)
{
    ProbeEditor editor;
    {
        QWidget dock;
        editor.getWidget()->setParent(&dock);
    }
    editor.show();
    editor.hide();
    EXPECT_FALSE(editor.getWidgetContainer());
}

TEST(FieldEditor, IsHiddenFromLoadingToActivation)
{
    TestHost host;
    ProbeEditor editor;
    editor.load();
    EXPECT_EQ(editor.takeCalls(), "load hide ");
    EXPECT_FALSE(editor.getWidget()->isVisible());
    SoSFFloat field;
    editor.setEditedObject(&field);
    EXPECT_FALSE(editor.getWidget()->isVisible());
    editor.activate();
    EXPECT_EQ(editor.takeCalls(), "activate setField refresh show ");
    EXPECT_TRUE(editor.getWidget()->isVisible());
    EXPECT_TRUE(editor.isActive());
    editor.deactivate();
    EXPECT_EQ(editor.takeCalls(), "deactivate hide ");
    EXPECT_FALSE(editor.getWidget()->isVisible());
    EXPECT_FALSE(editor.isActive());
    editor.unload();
}

TEST(FieldEditor, ShowsNothingWithoutAField)
{
    TestHost host;
    ProbeEditor editor;
    host.edit(editor, nullptr);
    EXPECT_EQ(editor.takeCalls(), "load hide activate ");
    EXPECT_FALSE(editor.getWidget()->isVisible());
    const SoRef<SoMaterial> node(new SoMaterial);
    host.edit(editor, node.get());
    EXPECT_EQ(editor.takeCalls(), "activate ");
    EXPECT_FALSE(editor.getWidget()->isVisible());
    EXPECT_FALSE(editor.field());
}

TEST(FieldEditor, RefreshesOnceAfterChangesFromElsewhere)
{
    TestHost host;
    ProbeEditor editor;
    SoSFFloat field;
    host.edit(editor, &field);
    editor.takeCalls();
    field.setValue(0.25F);
    field.setValue(0.5F);
    field.setIgnored(true);
    EXPECT_EQ(editor.takeCalls(), "");
    host.pump();
    EXPECT_EQ(editor.takeCalls(), "refresh ");
    EXPECT_EQ(editor.input->text(), "0.5");
    EXPECT_TRUE(host.log().empty());
}

TEST(FieldEditor, RefreshesAfterItsOwnChangeToo)
{
    TestHost host;
    ProbeEditor editor;
    SoSFFloat field;
    host.edit(editor, &field);
    editor.takeCalls();
    editor.type("0.5");
    editor.applyChanges();
    host.pump();
    EXPECT_EQ(editor.takeCalls(), "apply refresh ");
}

TEST(FieldEditor, IgnoresAFieldThatItHasReleased)
{
    TestHost host;
    ProbeEditor editor;
    SoSFFloat field;
    host.edit(editor, &field);
    field.setValue(0.5F);
    editor.deactivate();
    editor.takeCalls();
    field.setValue(0.75F);
    host.pump();
    EXPECT_EQ(editor.takeCalls(), "");
    EXPECT_FALSE(editor.field());
}

TEST(FieldEditor, TakesTheSameFieldUpAgain)
{
    TestHost host;
    ProbeEditor editor;
    SoSFFloat field;
    host.edit(editor, &field);
    editor.deactivate();
    field.setValue(0.5F);
    editor.takeCalls();
    editor.activate();
    EXPECT_EQ(editor.takeCalls(), "activate setField refresh show ");
    EXPECT_EQ(editor.input->text(), "0.5");
    field.setValue(0.75F);
    host.pump();
    EXPECT_EQ(editor.input->text(), "0.75");
}

TEST(FieldEditor, ListensToOneFieldOnly)
{
    TestHost host;
    ProbeEditor editor;
    SoSFFloat first;
    SoSFFloat second;
    host.edit(editor, &first);
    editor.setField(&second);
    editor.takeCalls();
    first.setValue(0.5F);
    host.pump();
    EXPECT_EQ(editor.takeCalls(), "");
    second.setValue(0.5F);
    host.pump();
    EXPECT_EQ(editor.takeCalls(), "refresh ");
}

TEST(FieldEditor, AppliesWhatWasTypedBeforeItReleasesTheField)
{
    TestHost host;
    ProbeEditor editor;
    SoSFFloat field;
    host.edit(editor, &field);
    editor.type("0.5");
    editor.takeCalls();
    editor.deactivate();
    EXPECT_EQ(editor.takeCalls(), "deactivate apply hide ");
    EXPECT_EQ(field.getValue(), 0.5F);
    EXPECT_EQ(host.undoCount(), 1);
    host.undo();
    EXPECT_EQ(field.getValue(), 0.F);
}

TEST(FieldEditor, AppliesNothingWhereNothingWasTyped)
{
    TestHost host;
    ProbeEditor editor;
    SoSFFloat field;
    const auto changes = field.getChangeCount();
    host.edit(editor, &field);
    host.release(editor);
    EXPECT_TRUE(host.log().empty());
    EXPECT_EQ(field.getChangeCount(), changes);
}

TEST(FieldEditor, HidesItsWindowsWithItsContainer)
{
    TestHost host;
    ProbeEditor editor;
    SoSFFloat field;
    host.edit(editor, &field);
    editor.window->show();
    ASSERT_TRUE(editor.window->isVisible());
    host.release(editor);
    EXPECT_FALSE(editor.window->isVisible());
}

TEST(FieldEditor, WritesNothingWhenASignalComesBackLate)
{
    TestHost host;
    ProbeEditor editor;
    SoSFFloat field;
    host.edit(editor, &field);
    host.release(editor);
    editor.type("0.5");
    editor.applyChanges();
    EXPECT_EQ(field.getValue(), 0.F);
    EXPECT_TRUE(host.log().empty());
}

TEST(FieldEditor, DropsWhatWasTypedWhenTheNodeIsDestroyed)
{
    TestHost host;
    ProbeEditor editor;
    SoRef<SoMaterial> material(new SoMaterial);
    host.edit(editor, &material->transparency);
    editor.type("0.5");
    editor.takeCalls();
    material = nullptr;
    EXPECT_EQ(editor.takeCalls(), "deactivate hide ");
    EXPECT_TRUE(host.log().empty());
    EXPECT_FALSE(editor.field());
    editor.applyChanges();
    host.pump();
    EXPECT_EQ(editor.takeCalls(), "");
}

// Nobody reports the end of a field without a container; the editor notices it by itself.
TEST(FieldEditor, OutlivesItsField)
{
    TestHost host;
    ProbeEditor editor;
    {
        SoSFFloat field;
        host.edit(editor, &field);
        editor.type("0.5");
        field.setValue(0.25F);
    }
    EXPECT_FALSE(editor.field());
    host.pump();
    editor.applyChanges();
    editor.deactivate();
    EXPECT_TRUE(host.log().empty());
}

TEST(FieldEditor, CanBeLoadedAgain)
{
    TestHost host;
    ProbeEditor editor;
    SoSFFloat field;
    host.edit(editor, &field);
    host.stop(editor);
    host.edit(editor, &field);
    editor.takeCalls();
    field.setValue(0.5F);
    host.pump();
    EXPECT_EQ(editor.takeCalls(), "refresh ");
}
