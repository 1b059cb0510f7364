// SPDX-License-Identifier: MIT
#include "TreeParts.h"
#include "panels/BranchMimeData.h"
#include "panels/TreeRowDelegate.h"
#include "panels/TypeChooser.h"

#include <support/Waiting.h>

#include <xsg/nodes/base/SoInfo.h>
#include <xsg/nodes/groups/SoGroup.h>

namespace
{

constexpr const char* Harbour = R"(
Separator "Harbour" {
    Separator "Sea" {
        Material "Blue" {}
        Cube "Water" {}
    }
    Group "Island" {
        Sphere "Hill" @hill { radius: 3 }
        Cone "Roof" { bottomRadius: <- @hill.radius }
    }
    Sphere "Sun" {}
}
)";

class NodeMenuKeys : public TreeWindow
{
protected:
    NodeMenuKeys()
    {
        show(Harbour);
        tree.expandAll();
        before = text();
    }
    void undo()
    {
        services.undoStack().undo();
        settle();
    }
    void expectUndoable(const char* outlineNow)
    {
        EXPECT_EQ(outline(), outlineNow) << told.join(" | ").toStdString();
        EXPECT_EQ(services.undoStack().count(), 1);
        undo();
        EXPECT_EQ(text(), before);
    }
    // Once a dialog is open: types and ends with Enter.
    void answerChooser(const QString& typed)
    {
        QTimer::singleShot(0, &window, [this, typed] {
            auto* chooser = window.findChild<TypeChooser*>();
            auto* line = chooser ? chooser->findChild<QLineEdit*>() : nullptr;
            EXPECT_TRUE(line);
            if (!line)
                return;
            QTest::keyClicks(line, typed);
            QTest::keyClick(line, Qt::Key_Return);
        });
    }
    QMenu& menu()
    {
        for (QAction* each : window.menuBar()->actions()) {
            if (each->text().remove('&') == "Node")
                return *each->menu();
        }
        throw std::runtime_error("no menu");
    }
    // Enters the name into the row's line that is open.
    void enterName(const QString& name)
    {
        auto* line = tree.findChild<QLineEdit*>();
        ASSERT_TRUE(line);
        line->selectAll();
        QTest::keyClicks(line, name);
        QTest::keyClick(line, Qt::Key_Return);
        settle();
    }
    void drop(QMimeData* data, const QPoint& at, Qt::DropAction action)
    {
        const std::unique_ptr<QMimeData> owned(data);
        QWidget* to = tree.viewport();
        QDragEnterEvent enter(at, Qt::MoveAction | Qt::CopyAction | Qt::LinkAction, data, Qt::LeftButton, {});
        QApplication::sendEvent(to, &enter);
        QDragMoveEvent move(at, Qt::MoveAction | Qt::CopyAction | Qt::LinkAction, data, Qt::LeftButton, {});
        QApplication::sendEvent(to, &move);
        QDropEvent end(at, action, data, Qt::LeftButton, {});
        QApplication::sendEvent(to, &end);
        settle();
    }
    std::string before;
};

TEST_F(NodeMenuKeys, DeleteTakesTheSelectedAndGoesToTheNext)
{
    click("Sea");
    key(Qt::Key_Delete);
    EXPECT_EQ(outline(), "Harbour(Island(Hill Roof) Sun)");
    EXPECT_EQ(selectedNames(), QStringList("Island(Hill Roof)"));
    EXPECT_EQ(tree.getModel().rowCount(tree.getModel().index(0, 0)), 2);
    expectUndoable("Harbour(Island(Hill Roof) Sun)");
}

TEST_F(NodeMenuKeys, ActsOnAllThatAreSelected)
{
    click("Sea");
    click("Sun", Qt::ControlModifier);
    key(Qt::Key_G, Qt::ControlModifier);
    expectUndoable("Harbour(Group(Sea(Blue Water) Sun) Island(Hill Roof))");
    click("Sun");
    click("Water", Qt::ControlModifier);
    key(Qt::Key_Delete);
    expectUndoable("Harbour(Sea(Blue) Island(Hill Roof))");
}

TEST_F(NodeMenuKeys, DuplicateSelectsTheCopy)
{
    click("Island");
    key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(services.getSelectedPaths().value(0).getTail(), window.getScene()->asGroup()->getChild(2));
    expectUndoable("Harbour(Sea(Blue Water) Island(Hill Roof) Island(Hill Roof) Sun)");
}

TEST_F(NodeMenuKeys, F2RenamesInPlace)
{
    click("Sea");
    key(Qt::Key_F2);
    enterName("Ocean");
    expectUndoable("Harbour(Ocean(Blue Water) Island(Hill Roof) Sun)");
}

TEST_F(NodeMenuKeys, EscapeKeepsTheName)
{
    click("Sea");
    key(Qt::Key_F2);
    auto* line = tree.findChild<QLineEdit*>();
    ASSERT_TRUE(line);
    QTest::keyClicks(line, "Ocean");
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_EQ(text(), before);
    EXPECT_EQ(services.undoStack().count(), 0);
}

TEST_F(NodeMenuKeys, ShiftAAddsWhatIsTyped)
{
    click("Water");
    answerChooser("cone");
    key(Qt::Key_A, Qt::ShiftModifier);
    expectUndoable("Harbour(Sea(Blue Water Cone) Island(Hill Roof) Sun)");
}

TEST_F(NodeMenuKeys, TheListToAddFromHoldsWhatCanBeMade)
{
    const std::vector<SoType> types = TypeChooser::typesToAdd();
    EXPECT_GT(types.size(), 25U);
    for (const SoType type : types)
        EXPECT_TRUE(type.canCreateInstance());
    EXPECT_EQ(std::count_if(types.begin(), types.end(),
                            [](SoType type) { return type.getName() == SbName("UnknownNode"); }),
              0);
}

TEST_F(NodeMenuKeys, AltAndArrowsMove)
{
    click("Sun");
    key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(outline(), "Harbour(Sea(Blue Water) Sun Island(Hill Roof))");
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(outline(), "Harbour(Sea(Blue Water Sun) Island(Hill Roof))");
    key(Qt::Key_Left, Qt::AltModifier);
    key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(text(), before);
    EXPECT_EQ(selectedNames(), QStringList("Sun"));
    EXPECT_EQ(services.undoStack().count(), 4);
}

TEST_F(NodeMenuKeys, CutAndPasteThroughTheClipboard)
{
    click("Island");
    key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(outline(), "Harbour(Sea(Blue Water) Sun)");
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(copied.startsWith("#Xsg V1.0 utf8\nGroup \"Island\"")) << copied.toStdString();
    click("Sun");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(outline(), "Harbour(Sea(Blue Water) Sun Island(Hill Roof))");
    auto* island = services.getSelectedPaths().value(0).getTail()->asGroup();
    EXPECT_EQ(island->getChild(1)->getField("bottomRadius")->getConnectedField(),
              island->getChild(0)->getField("radius"));
    undo();
    undo();
    EXPECT_EQ(text(), before);
}

TEST_F(NodeMenuKeys, PastesWhatATextEditorHolds)
{
    click("Sea");
    QGuiApplication::clipboard()->setText("Cube \"Boat\" { width: 3 }\nSphere \"Buoy\" {}");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(selectedNames(), QStringList({"Boat", "Buoy"}));
    expectUndoable("Harbour(Sea(Blue Water Boat Buoy) Island(Hill Roof) Sun)");
    QGuiApplication::clipboard()->setText("A boat on the sea.");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(told.value(told.size() - 1).startsWith("The text holds no nodes that can be pasted"));
}

TEST_F(NodeMenuKeys, CopiesBetweenTwoWindows)
{
    HostServices otherServices;
    MainWindow other(otherServices, notifier);
    click("Island");
    key(Qt::Key_C, Qt::ControlModifier);
    other.getEditing().paste();
    SoGroup* scene = other.getScene()->asGroup();
    EXPECT_EQ(outlineOf(scene->getChild(scene->getNumChildren() - 1)), "Island(Hill Roof)");
    EXPECT_EQ(text(), before);
    other.getEditing().pasteShared();
    EXPECT_TRUE(told.value(told.size() - 1).startsWith("Only nodes that were copied in this window"));
}

TEST_F(NodeMenuKeys, SharesWhatWasCopied)
{
    click("Blue");
    key(Qt::Key_C, Qt::ControlModifier);
    click("Island");
    key(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    SoGroup* island = window.getScene()->asGroup()->getChild(1)->asGroup();
    EXPECT_EQ(island->getChild(2), window.getScene()->asGroup()->getChild(0)->asGroup()->getChild(0));
    expectUndoable("Harbour(Sea(Blue Water) Island(Hill Roof Blue) Sun)");
}

TEST_F(NodeMenuKeys, KeysOfLettersStayLettersElsewhere)
{
    click("Sea");
    auto* line = window.findChild<QLineEdit*>("findLine");
    if (!line)
        line = window.findChildren<QLineEdit*>().value(0);
    ASSERT_TRUE(line);
    line->setFocus();
    QTest::keyClicks(line, "h/");
    QTest::keyClick(line, Qt::Key_Delete);
    EXPECT_TRUE(states.getHiding().isEmpty());
    EXPECT_EQ(text(), before);
}

TEST_F(NodeMenuKeys, EveryEntryIsReachedByTheKeyboard)
{
    std::function<void(const QMenu&)> check = [&](const QMenu& menu) {
        QStringList letters;
        for (const QAction* each : menu.actions()) {
            if (each->isSeparator())
                continue;
            EXPECT_FALSE(each->text().isEmpty());
            if (each->menu())
                check(*each->menu());
            const int mnemonic = each->text().indexOf('&');
            if (mnemonic >= 0)
                letters << each->text().mid(mnemonic + 1, 1).toLower();
        }
        EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(' ').toStdString();
    };
    check(menu());
}

TEST_F(NodeMenuKeys, TheContextMenuOpensOverTheTree)
{
    click("Sun");
    bool wasOpen = false;
    QTimer::singleShot(0, &window, [&] {
        auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(open);
        wasOpen = open->actions().size() >= menu().actions().size();
        for (QAction* each : open->actions()) {
            if (each->text().remove('&') == "Delete")
                each->trigger();
        }
        open->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, middleOf(row("Sun")));
    QApplication::sendEvent(tree.viewport(), &event);
    settle();
    EXPECT_TRUE(wasOpen);
    expectUndoable("Harbour(Sea(Blue Water) Island(Hill Roof))");
}

TEST_F(NodeMenuKeys, ShiftAndF10OpenTheContextMenuAsTheMenuKeyDoes)
{
    click("Sun");
    tree.setFocus();
    bool wasOpen = false;
    QTimer::singleShot(0, &window, [&] {
        auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(open);
        wasOpen = open->actions().size() >= menu().actions().size();
        open->close();
    });
    QTest::keyClick(&tree, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(wasOpen);
}

// --- Dragging

TEST_F(NodeMenuKeys, ADropOnAGroupMovesIntoIt)
{
    click("Sun");
    drop(tree.makeDragData(), middleOf(row("Island")), Qt::MoveAction);
    EXPECT_EQ(selectedNames(), QStringList("Sun"));
    expectUndoable("Harbour(Sea(Blue Water) Island(Hill Roof Sun))");
}

TEST_F(NodeMenuKeys, ADropBetweenRowsGoesThere)
{
    click("Sun");
    const QRect hill = tree.visualRect(row("Hill"));
    drop(tree.makeDragData(), hill.topLeft() + QPoint(20, 0), Qt::MoveAction);
    expectUndoable("Harbour(Sea(Blue Water) Island(Sun Hill Roof))");
    click("Sun");
    const QRect again = tree.visualRect(row("Hill"));
    drop(tree.makeDragData(), again.bottomLeft() + QPoint(20, 0), Qt::CopyAction);
    expectUndoable("Harbour(Sea(Blue Water) Island(Hill Sun Roof) Sun)");
}

TEST_F(NodeMenuKeys, ADropOfTextInsertsNodes)
{
    auto* data = new QMimeData;
    data->setText("Cube \"Boat\" {}");
    drop(data, middleOf(row("Sea")), Qt::MoveAction);
    expectUndoable("Harbour(Sea(Blue Water Boat) Island(Hill Roof) Sun)");
}

TEST_F(NodeMenuKeys, WhatIsDraggedIsTextForOtherPrograms)
{
    click("Sea");
    const std::unique_ptr<QMimeData> data(tree.makeDragData());
    EXPECT_TRUE(data->hasText());
    EXPECT_TRUE(data->text().contains("Separator \"Sea\""));
}

TEST_F(NodeMenuKeys, WhatIsTooLongForOtherProgramsIsNotHandedOver)
{
    auto* island = static_cast<SoGroup*>(SoFieldContainer::getByName("Island"));
    const SoRef<SoInfo> note(new SoInfo);
    note->text.setValue(std::string(std::size_t{9} << 20, 'x').c_str());
    island->addChild(note.get());
    click("Island");
    const std::unique_ptr<QMimeData> data(tree.makeDragData());
    EXPECT_EQ(data->text(), QString());
    EXPECT_TRUE(told.value(told.size() - 1).contains("too long for that")) << told.join("; ").toStdString();
    note->text.setValue("short");
    EXPECT_TRUE(data->text().contains("short"));
}

TEST_F(NodeMenuKeys, ANodeIsNotDroppedIntoItself)
{
    click("Island");
    drop(tree.makeDragData(), middleOf(row("Island")), Qt::MoveAction);
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(told.value(told.size() - 1).contains("cannot be put below itself"));
}

// --- What is seen

TEST_F(NodeMenuKeys, HHidesAndShowsAgain)
{
    click("Island");
    key(Qt::Key_H);
    EXPECT_TRUE(tree.isOutOfSight(row("Hill")));
    EXPECT_FALSE(tree.isOutOfSight(row("Sun")));
    key(Qt::Key_H);
    EXPECT_FALSE(tree.isOutOfSight(row("Hill")));
    key(Qt::Key_H);
    key(Qt::Key_H, Qt::ShiftModifier);
    EXPECT_TRUE(states.getHiding().isEmpty());
    EXPECT_EQ(services.undoStack().count(), 0);
    EXPECT_EQ(text(), before);
}

TEST_F(NodeMenuKeys, AClickOnTheEyeHides)
{
    const QModelIndex island = row("Island");
    click("Sun");
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.getRows().eyeAt(island).center());
    EXPECT_TRUE(states.isHidden(tree.getModel().nodeAt(island)));
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.getRows().eyeAt(island).center());
    EXPECT_FALSE(states.isHidden(tree.getModel().nodeAt(island)));
}

TEST_F(NodeMenuKeys, TheViewShowsWhatIsNotHidden)
{
    const auto colourInTheMiddle = [this] {
        settle();
        const QImage picture = window.getView().grab().toImage();
        return picture.pixelColor(picture.rect().center());
    };
    const QColor full = colourInTheMiddle();
    states.setHidden({window.getScene()}, true);
    const QColor empty = colourInTheMiddle();
    EXPECT_NE(full, empty);
    states.showAll();
    EXPECT_EQ(colourInTheMiddle(), full);
}

TEST_F(NodeMenuKeys, SlashIsolatesAndComesBack)
{
    click("Sun");
    key(Qt::Key_Slash);
    EXPECT_TRUE(tree.isOutOfSight(row("Water")));
    EXPECT_FALSE(tree.isOutOfSight(row("Sun")));
    key(Qt::Key_Slash);
    EXPECT_FALSE(tree.isOutOfSight(row("Water")));
}

TEST_F(NodeMenuKeys, WhatIsHiddenCanBeWrittenToTheScene)
{
    click("Island");
    key(Qt::Key_H);
    editing.makePermanent();
    settle();
    EXPECT_TRUE(states.getHiding().isEmpty());
    expectUndoable("Harbour(Sea(Blue Water) Switch(Island(Hill Roof)) Sun)");
}

TEST_F(NodeMenuKeys, AnotherSceneStartsWithAllSeen)
{
    click("Island");
    key(Qt::Key_H);
    key(Qt::Key_L, Qt::ControlModifier);
    show("Separator {}");
    EXPECT_TRUE(states.getHiding().isEmpty());
    EXPECT_TRUE(states.getUntouchable().isEmpty());
}

// --- Files

TEST_F(NodeMenuKeys, SavesABranchAndInsertsIt)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("island.xsg");
    click("Island");
    ASSERT_TRUE(window.getBranchFiles().save(services.getSelectedPaths().value(0).getTail(), path));
    click("Sea");
    window.getBranchFiles().insert(path);
    ASSERT_TRUE(waitFor([this] { return services.undoStack().count() == 1; }));
    settle();
    expectUndoable("Harbour(Sea(Blue Water Island(Hill Roof)) Island(Hill Roof) Sun)");
    EXPECT_FALSE(window.getBranchFiles().save(window.getScene(), folder.filePath("island.txt")));
}

TEST_F(NodeMenuKeys, InsertsAModel)
{
    click("Sea");
    window.getBranchFiles().insert(QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/knot.stl"));
    ASSERT_TRUE(waitFor([this] { return services.undoStack().count() == 1; }));
    settle();
    EXPECT_NE(text(), before);
    undo();
    EXPECT_EQ(text(), before);
    window.getBranchFiles().insert("/nowhere/at-all.obj");
    EXPECT_TRUE(told.value(told.size() - 1).contains("at-all.obj"));
}

} // namespace
