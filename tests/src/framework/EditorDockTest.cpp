// SPDX-License-Identifier: MIT
#include "ProbeEditor.h"
#include "SpxFieldEditorDockWin.h"
#include "SpxNodeEditor.h"

#include <support/TestHost.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/fields/SoSFBitMask.h>
#include <xsg/fields/SoSFEnum.h>
#include <xsg/fields/SoSFInt32.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <QDockWidget>

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace
{

constexpr SoField* NoField = nullptr;
constexpr SoFieldContainer* NoNode = nullptr;

// A dock that is active in a shown window, with two editors to choose from.
template <class Dock>
struct Docked {
    explicit Docked(QList<SpxExtension*> controlled = {})
    {
        host.control(std::move(controlled));
        host.window().show();
        host.start(extension);
        dock = host.window().template findChild<QDockWidget*>();
        host.takeLog();
    }
    void load(std::initializer_list<ProbeEditor*> editors)
    {
        QList<SpxExtension*> controlled;
        for (ProbeEditor* editor : editors) {
            editor->load();
            editor->takeCalls();
            controlled.append(editor);
        }
        host.control(controlled);
    }

    Dock extension;
    TestHost host; // destroyed first, and unloads the extension
    QDockWidget* dock = nullptr;
};

using FieldDock = Docked<SpxFieldEditorDockWin>;
using NodeDock = Docked<SpxNodeEditor>;

// The dock with one editor, and a field for it.
class FieldEditorDock : public testing::Test
{
protected:
    FieldEditorDock() { fields.load({&editor}); }
    void TearDown() override { fields.host.select(NoField); }

    ProbeEditor editor;
    FieldDock fields;
    SoSFFloat field;
};

} // namespace

// --- Life of the dock, the same for both

TEST(EditorDock, HasItsNames)
{
    const SpxFieldEditorDockWin fields;
    EXPECT_EQ(fields.getName(), SbString("Field Editor"));
    EXPECT_EQ(fields.getDescription(), SbString("Field Editor for Scopix."));
    EXPECT_EQ(fields.getVendor(), SbString("Arvex"));
    EXPECT_EQ(fields.getVersion(), SbString("1.0.0"));
    const SpxNodeEditor nodes;
    EXPECT_EQ(nodes.getName(), SbString("Node Editor"));
    EXPECT_EQ(nodes.getDescription(), SbString("Node Editor for Scopix."));
}

TEST(EditorDock, CallsTheShellInOrder)
{
    TestHost host;
    SpxFieldEditorDockWin fields;
    host.start(fields);
    host.stop(fields);
    EXPECT_EQ(host.takeLog(),
              (TestHost::Log{"addDockWidget \"Field Editor\" 2", "attachExtension \"Field Editor\" true",
                             "removeDockWidget \"Field Editor\"", "detachExtension \"Field Editor\""}));
    SpxNodeEditor nodes;
    host.start(nodes);
    host.stop(nodes);
    EXPECT_EQ(host.takeLog(),
              (TestHost::Log{"addDockWidget \"Node Editor\" 2", "attachExtension \"Node Editor\" true",
                             "removeDockWidget \"Node Editor\"", "detachExtension \"Node Editor\""}));
}

TEST(EditorDock, StartsHiddenWithoutDrops)
{
    FieldDock fields;
    ASSERT_TRUE(fields.dock);
    EXPECT_EQ(fields.dock->windowTitle(), "Field Editor");
    EXPECT_FALSE(fields.dock->acceptDrops());
    EXPECT_FALSE(fields.dock->isVisible());
    EXPECT_EQ(fields.host.window().dockWidgetArea(fields.dock), Qt::RightDockWidgetArea);
}

TEST(EditorDock, ShowsAndHidesItsDock)
{
    FieldDock fields;
    fields.extension.show();
    EXPECT_TRUE(fields.dock->isVisible());
    EXPECT_TRUE(fields.extension.isShown());
    fields.extension.hide();
    EXPECT_FALSE(fields.dock->isVisible());
    EXPECT_FALSE(fields.extension.isShown());
}

TEST(EditorDock, DeletesItsDockWhenUnloaded)
{
    FieldDock fields;
    const QPointer<QDockWidget> dock = fields.dock;
    fields.host.stop(fields.extension);
    EXPECT_FALSE(dock);
    EXPECT_FALSE(fields.host.window().findChild<QDockWidget*>());
}

TEST_F(FieldEditorDock, ListensOnlyWhileActive)
{
    fields.extension.deactivate();
    fields.host.select(&field);
    EXPECT_EQ(editor.takeCalls(), "");
    fields.extension.activate();
    fields.host.select(&field);
    EXPECT_TRUE(fields.dock->isVisible());
}

// --- What is shown

TEST_F(FieldEditorDock, ShowsTheEditorOfTheSelectedField)
{
    fields.host.select(&field);
    EXPECT_EQ(editor.takeCalls(), "docked activate setField refresh show ");
    EXPECT_EQ(editor.getEditedObject(), &field);
    EXPECT_EQ(fields.dock->widget(), editor.getWidget());
    EXPECT_TRUE(fields.dock->isVisible());
    EXPECT_TRUE(editor.getWidget()->isVisible());
    EXPECT_TRUE(fields.extension.isShown());
}

TEST_F(FieldEditorDock, ReleasesTheEditorWhenNothingIsSelected)
{
    fields.host.select(&field);
    editor.takeCalls();
    fields.host.select(NoField);
    EXPECT_EQ(editor.takeCalls(), "deactivate hide ");
    EXPECT_FALSE(editor.getEditedObject());
    EXPECT_FALSE(editor.field());
    EXPECT_FALSE(editor.getWidget()->parentWidget());
    EXPECT_FALSE(editor.getWidget()->isVisible());
    EXPECT_FALSE(fields.dock->widget());
    EXPECT_FALSE(fields.dock->isVisible());
    EXPECT_FALSE(fields.extension.isShown());
    fields.host.select(NoField);
    EXPECT_EQ(editor.takeCalls(), "");
}

TEST_F(FieldEditorDock, TakesUpTheSameFieldAgain)
{
    fields.host.select(&field);
    editor.takeCalls();
    fields.host.select(&field);
    EXPECT_EQ(editor.takeCalls(), "deactivate hide docked activate setField refresh show ");
    EXPECT_TRUE(fields.dock->isVisible());
}

TEST_F(FieldEditorDock, AppliesWhatWasTypedWhenTheSelectionMoves)
{
    SoSFFloat first;
    fields.host.select(&first);
    editor.type("0.5");
    fields.host.select(&field);
    EXPECT_EQ(first.getValue(), 0.5F);
    EXPECT_EQ(field.getValue(), 0.F);
    EXPECT_EQ(fields.host.undoCount(), 1);
}

TEST_F(FieldEditorDock, ReleasesADestroyedNode)
{
    SoRef<SoMaterial> material(new SoMaterial);
    fields.host.select(&material->transparency);
    editor.type("0.5");
    editor.applyChanges();
    EXPECT_EQ(fields.host.undoCount(), 1);
    editor.type("0.75");
    material = nullptr;
    EXPECT_FALSE(fields.dock->isVisible());
    EXPECT_FALSE(editor.getEditedObject());
    EXPECT_EQ(fields.host.undoCount(), 0);
}

TEST_F(FieldEditorDock, ReleasesTheEditorWhenDeactivated)
{
    fields.host.select(&field);
    editor.takeCalls();
    fields.extension.deactivate();
    EXPECT_EQ(editor.takeCalls(), "deactivate hide ");
    EXPECT_FALSE(editor.getWidget()->parentWidget());
    EXPECT_EQ(fields.host.takeLog(),
              (TestHost::Log{"removeDockWidget \"Field Editor\"", "detachExtension \"Field Editor\""}));
}

TEST_F(FieldEditorDock, KeepsTheEditorsWidgetWhenItIsDestroyed)
{
    fields.host.select(&field);
    const QPointer<QWidget> widget = editor.getWidget();
    fields.host.stop(fields.extension);
    EXPECT_TRUE(widget);
}

// --- Selections that change while the dock is at work

namespace
{

// Selects something else while it is activated or deactivated, once.
class SelectingEditor : public ProbeEditor
{
public:
    using ProbeEditor::ProbeEditor;

    void activate() override
    {
        ProbeEditor::activate();
        if (const auto select = std::exchange(whenActivated, {}))
            select();
    }
    void deactivate() override
    {
        ProbeEditor::deactivate();
        if (const auto select = std::exchange(whenDeactivated, {}))
            select();
    }

    std::function<void()> whenActivated;
    std::function<void()> whenDeactivated;
};

class NestedSelection : public testing::Test
{
protected:
    NestedSelection() { fields.load({&selecting, &other}); }
    void TearDown() override { fields.host.select(NoField); }
    void expectOnlyTheOther()
    {
        EXPECT_EQ(fields.dock->widget(), other.getWidget());
        EXPECT_TRUE(fields.dock->isVisible());
        EXPECT_TRUE(other.getWidget()->isVisible());
        EXPECT_EQ(other.field(), &count);
        EXPECT_FALSE(selecting.field());
        EXPECT_FALSE(selecting.getEditedObject());
        EXPECT_FALSE(selecting.isActive());
        EXPECT_FALSE(selecting.getWidget()->parentWidget());
    }

    SelectingEditor selecting;
    ProbeEditor other{SoSFInt32::getClassTypeId()};
    FieldDock fields;
    SoSFFloat number;
    SoSFInt32 count;
};

} // namespace

TEST_F(NestedSelection, InActivateLeavesOneActiveEditor)
{
    selecting.whenActivated = [this] { fields.host.select(&count); };
    fields.host.select(&number);
    expectOnlyTheOther();
}

TEST_F(NestedSelection, OfNothingInActivateLeavesTheDockHidden)
{
    selecting.whenActivated = [this] { fields.host.select(NoField); };
    fields.host.select(&number);
    EXPECT_FALSE(fields.dock->isVisible());
    EXPECT_FALSE(fields.dock->widget());
    EXPECT_FALSE(selecting.field());
    EXPECT_FALSE(selecting.isActive());
}

TEST_F(NestedSelection, InDeactivateIsTheOneThatStays)
{
    fields.host.select(&number);
    selecting.whenDeactivated = [this] { fields.host.select(&count); };
    fields.host.select(NoField);
    expectOnlyTheOther();
}

TEST(EditorOfTwoDocks, IsReleasedByTheOneBeforeTheOtherTakesIt)
{
    ProbeEditor editor(SoTypedObject::getClassTypeId());
    FieldDock fields;
    fields.load({&editor});
    SpxNodeEditor nodes;
    fields.host.start(nodes);
    SoSFFloat field;
    const SoRef<SoMaterial> material(new SoMaterial);

    fields.host.select(&field);
    editor.type("0.5");
    editor.takeCalls();
    fields.host.select(material.get());
    EXPECT_EQ(editor.takeCalls(), "deactivate apply hide docked activate ");
    EXPECT_EQ(field.getValue(), 0.5F);
    EXPECT_FALSE(fields.dock->isVisible());

    fields.host.select(NoField); // nothing that the field's dock still shows
    EXPECT_EQ(editor.takeCalls(), "");
    EXPECT_EQ(editor.getEditedObject(), static_cast<SoTypedObject*>(material.get()));
    fields.host.select(&field);
    EXPECT_EQ(editor.takeCalls(), "deactivate hide docked activate setField refresh show ");
    EXPECT_EQ(fields.dock->widget(), editor.getWidget());
    fields.host.select(NoNode);
    EXPECT_EQ(editor.takeCalls(), "");
    fields.host.select(NoField);
    fields.host.stop(nodes);
}

// --- The choice

TEST(EditorChoice, TheMostSpecificEditorWinsWhateverTheOrder)
{
    ProbeEditor general(SoSField::getClassTypeId());
    ProbeEditor special(SoSFFloat::getClassTypeId());
    FieldDock fields;
    SoSFFloat field;
    fields.load({&general, &special});
    fields.host.select(&field);
    EXPECT_EQ(fields.dock->widget(), special.getWidget());
    fields.host.select(NoField);
    fields.host.control({&special, &general});
    fields.host.select(&field);
    EXPECT_EQ(fields.dock->widget(), special.getWidget());
    fields.host.select(NoField);
}

TEST(EditorChoice, FallsBackToTheEditorOfABaseClass)
{
    ProbeEditor general(SoSField::getClassTypeId());
    ProbeEditor enums(SoSFEnum::getClassTypeId());
    ProbeEditor lists(SoMField::getClassTypeId());
    FieldDock fields;
    fields.load({&enums, &general, &lists});
    SoSFBitMask mask(nullptr, "mask", std::make_shared<SoEnumTable>(), 0);
    fields.host.select(&mask);
    EXPECT_EQ(fields.dock->widget(), enums.getWidget());
    SoMFInt32 list;
    fields.host.select(&list);
    EXPECT_EQ(fields.dock->widget(), lists.getWidget());
    SoSFFloat number;
    fields.host.select(&number);
    EXPECT_EQ(fields.dock->widget(), general.getWidget());
    fields.host.select(NoField);
}

TEST(EditorChoice, TheLaterOfTwoEqualsWins)
{
    ProbeEditor first;
    ProbeEditor second;
    FieldDock fields;
    fields.load({&first, &second});
    SoSFFloat field;
    fields.host.select(&field);
    EXPECT_EQ(fields.dock->widget(), second.getWidget());
    fields.host.select(NoField);
    fields.host.control({&second, &first});
    fields.host.select(&field);
    EXPECT_EQ(fields.dock->widget(), first.getWidget());
    fields.host.select(NoField);
}

TEST(EditorChoice, WithoutAnEditorTheDockStaysHidden)
{
    ProbeEditor lists(SoMField::getClassTypeId());
    ProbeEditor numbers;
    FieldDock fields;
    fields.load({&lists, &numbers});
    SoSFFloat field;
    fields.host.select(&field);
    ASSERT_TRUE(fields.dock->isVisible());
    fields.host.control({&lists});
    fields.host.select(&field);
    EXPECT_FALSE(fields.dock->isVisible());
    EXPECT_FALSE(fields.dock->widget());
    EXPECT_FALSE(numbers.field());
}

TEST(EditorChoice, PassesOverWhatIsNoEditor)
{
    ProbeEditor editor(SoType::badType());
    FieldDock fields;
    editor.load();
    fields.host.control({nullptr, &fields.extension, &editor});
    SoSFFloat field;
    fields.host.select(&field);
    EXPECT_FALSE(fields.dock->isVisible());
}

// --- Nodes

TEST(NodeEditorDock, ShowsTheMostSpecificEditorOfTheSelectedNode)
{
    ProbeEditor groups(SoGroup::getClassTypeId());
    ProbeEditor nodes(SoNode::getClassTypeId());
    NodeDock docked;
    docked.load({&groups, &nodes});
    const SoRef<SoSeparator> separator(new SoSeparator);
    const SoRef<SoMaterial> material(new SoMaterial);
    docked.host.select(separator.get());
    EXPECT_EQ(docked.dock->widget(), groups.getWidget());
    EXPECT_EQ(groups.getEditedObject(), static_cast<SoTypedObject*>(separator.get()));
    docked.host.select(material.get());
    EXPECT_EQ(docked.dock->widget(), nodes.getWidget());
    EXPECT_FALSE(groups.getEditedObject());
    EXPECT_TRUE(docked.dock->isVisible());
    docked.host.select(NoNode);
    EXPECT_FALSE(docked.dock->isVisible());
    EXPECT_FALSE(nodes.getEditedObject());
}

TEST(NodeEditorDock, StaysHiddenWhereEditorsAreForFields)
{
    ProbeEditor editor(SoField::getClassTypeId());
    NodeDock docked;
    docked.load({&editor});
    const SoRef<SoMaterial> material(new SoMaterial);
    docked.host.select(material.get());
    EXPECT_FALSE(docked.dock->isVisible());
}

TEST(NodeEditorDock, LeavesFieldsToItsTwin)
{
    ProbeEditor editor(SoField::getClassTypeId());
    NodeDock docked;
    docked.load({&editor});
    SoSFFloat field;
    docked.host.select(&field);
    EXPECT_FALSE(docked.dock->isVisible());
    EXPECT_EQ(editor.takeCalls(), "");
}
