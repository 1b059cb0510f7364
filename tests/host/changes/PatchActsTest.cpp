// SPDX-License-Identifier: MIT
// Patches saved from the dock and applied in the window, and comparing with another file.
#include "window/PatchActs.h"
#include "ChangeParts.h"
#include "window/SceneFiles.h"

#include <support/Waiting.h>

#include <QClipboard>
#include <QMessageBox>
#include <QTemporaryDir>

namespace
{

constexpr auto Scene = R"(Separator "top" {
    Material "paint" {
        transparency: 0.25
    }
    Separator "left" { Cube "box" {} Cube {} }
    Separator "right" { Sphere "ball" {} }
}
)";

class Patches : public ChangesWindow
{
protected:
    Patches() { show(Scene); }
    QString fileOf(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    QByteArray content(const QString& path) const
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }
    void write(const QString& path, const QByteArray& text)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    void setWidth(float value)
    {
        SoCube& box = named<SoCube>("box");
        edit(box.width, [&] { box.width.setValue(value); });
    }
    void removeBall()
    {
        click("ball");
        key(Qt::Key_Delete);
    }

    QTemporaryDir m_folder;
    PatchActs& patches = changes.getPatches();
};

} // namespace

TEST_F(Patches, AreSavedOfWhatIsTickedOrOfAll)
{
    EXPECT_FALSE(patches.save(fileOf("none.xsgpatch")));
    setWidth(3);
    removeBall();
    tick("/left/box.width");
    EXPECT_TRUE(patches.save(fileOf("one.xsgpatch")));
    EXPECT_EQ(content(fileOf("one.xsgpatch")),
              "#XsgPatch V1.0 utf8\nset /left/box.width 3  # was the default\n");
    keyInList(Qt::Key_Space);
    EXPECT_TRUE(patches.save(fileOf("all.xsgpatch")));
    EXPECT_EQ(content(fileOf("all.xsgpatch")), "#XsgPatch V1.0 utf8\n"
                                               "set /left/box.width 3  # was the default\n"
                                               "remove /right/ball (1 -> 0)\n");
    EXPECT_FALSE(patches.save(fileOf("all.xsg")));
    EXPECT_FALSE(QFile::exists(fileOf("all.xsg")));
}

TEST_F(Patches, AreAppliedAsOneStepAndOnceOnly)
{
    const std::string first = text();
    setWidth(3);
    removeBall();
    SoPath path = tree.pathTo(&named<SoNode>("left"));
    editing.rename(path, "west");
    const std::string last = text();
    ASSERT_TRUE(patches.save(fileOf("all.xsgpatch")));
    show(Scene);
    ASSERT_TRUE(patches.apply(fileOf("all.xsgpatch")));
    EXPECT_EQ(text(), last);
    EXPECT_EQ(services.undoStack().count(), 1);
    // The group is another node, which holds what the one before held.
    EXPECT_EQ(rows().size(), 4) << rows().join(", ").toStdString();
    ASSERT_TRUE(patches.apply(fileOf("all.xsgpatch")));
    EXPECT_EQ(text(), last);
    EXPECT_EQ(services.undoStack().count(), 1) << "nothing was left to do";
    services.undoStack().undo();
    EXPECT_EQ(text(), first);
    EXPECT_TRUE(rows().isEmpty());
    services.undoStack().redo();
    EXPECT_EQ(text(), last);
}

TEST_F(Patches, ThatDoNotFitAreListedAndTheRestIsApplied)
{
    write(fileOf("part.xsgpatch"), "#XsgPatch V1.0 utf8\nset /left/box.width 7\nset /nowhere.width 3\n");
    ASSERT_TRUE(patches.apply(fileOf("part.xsgpatch")));
    EXPECT_FLOAT_EQ(named<SoCube>("box").width.getValue(), 7);
    EXPECT_TRUE(told.last().contains("1 changes applied, 0 were so already, 1 did not fit"))
        << told.last().toStdString();
    notifier.setAttended(true);
    ASSERT_TRUE(patches.apply(fileOf("part.xsgpatch")));
    auto* box = window.findChild<QMessageBox*>("patchMisfits");
    ASSERT_TRUE(box);
    EXPECT_TRUE(box->detailedText().contains("line 3: set /nowhere.width"));
    box->close();
    notifier.setAttended(false);
    write(fileOf("bad.xsgpatch"), "what is this");
    const std::string before = text();
    EXPECT_FALSE(patches.apply(fileOf("bad.xsgpatch")));
    EXPECT_FALSE(patches.apply(fileOf("missing.xsgpatch")));
    write(fileOf("root.xsgpatch"), "#XsgPatch V1.0 utf8\nreplace / new Cube\n");
    EXPECT_TRUE(patches.apply(fileOf("root.xsgpatch")));
    EXPECT_TRUE(told.last().contains("1 did not fit"));
    EXPECT_EQ(text(), before);
}

TEST_F(Patches, AreOfferedWhereTheyAreOpenedLikeAScene)
{
    const QString path = fileOf("opened.xsgpatch");
    write(path, "#XsgPatch V1.0 utf8\nset /left/box.width 7\n");
    notifier.setAttended(true);
    const auto answer = [&](bool applies) {
        window.openFile(path);
        auto* box = window.findChild<QMessageBox*>("patchOffer");
        ASSERT_TRUE(box);
        EXPECT_TRUE(rows().isEmpty());
        QTest::mouseClick(applies ? static_cast<QAbstractButton*>(box->defaultButton())
                                  : box->button(QMessageBox::Cancel),
                          Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    answer(false);
    EXPECT_TRUE(rows().isEmpty());
    answer(true);
    EXPECT_EQ(rows(), QStringList("/left/box.width: 2 → 7"));
    notifier.setAttended(false);
}

TEST_F(ChangesWindow, PatchesNeedAScene)
{
    QTemporaryDir folder;
    const QString path = folder.filePath("lonely.xsgpatch");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#XsgPatch V1.0 utf8\nset /left/box.width 7\n");
    file.close();
    window.openFile(path);
    EXPECT_EQ(done, QList<bool>{false});
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.front().contains("lonely.xsgpatch” is a patch, and no scene is open"))
        << told.front().toStdString();
}

TEST_F(Patches, CanBeDroppedOnTheWindow)
{
    write(fileOf("drop.xsgpatch"), "#XsgPatch V1.0 utf8\nset /left/box.width 7\n");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(fileOf("drop.xsgpatch"))});
    ASSERT_TRUE(window.acceptDrops());
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &drop);
    settle();
    EXPECT_FLOAT_EQ(named<SoCube>("box").width.getValue(), 7) << told.join("; ").toStdString();
}

TEST_F(Patches, KeepConnectionsThroughUndo)
{
    write(fileOf("follow.xsgpatch"), "#XsgPatch V1.0 utf8\nset /left/box.width 2 from /right/ball.radius\n");
    std::string error;
    xsg::SceneChanges changesRead;
    const std::string line = "#XsgPatch V1.0 utf8\n";
    SoCube& box = named<SoCube>("box");
    xsg::SceneChange change;
    change.path = SoScenePath("/left/box.width");
    change.value = "2";
    change.source = SoScenePath("/right/ball.radius");
    patches.apply({change}, "follow");
    EXPECT_TRUE(box.width.isConnected()) << told.last().toStdString();
    services.undoStack().undo();
    EXPECT_FALSE(box.width.isConnected());
    services.undoStack().redo();
    EXPECT_TRUE(box.width.isConnected());
}

TEST_F(Patches, AreCopiedAsTextOfSeveralKinds)
{
    setWidth(3);
    patches.copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              "#XsgPatch V1.0 utf8\nset /left/box.width 3  # was the default\n");
    patches.copyCpp();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "// /left/box.width: 2 → 3\nbox->width.set(\"3\");\n");
    patches.copyScene();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "#Xsg V1.0 utf8\nCube \"box\" {\n    width: 3\n}\n");
}

TEST_F(Patches, AFileIsComparedAndTakenOverLineByLine)
{
    const std::string first = text();
    write(fileOf("other.xsg"), QByteArray::fromStdString(first));
    setWidth(3);
    removeBall();
    changes.compareWith(fileOf("other.xsg"));
    ASSERT_TRUE(waitFor([this] { return changes.isComparing(); }));
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(rowWith("/left/box.width", ChangesModel::BeforeColumn).data().toString(), "default");
    EXPECT_EQ(button("changesRevert").text(), "Take Over");
    tick("/left/box.width");
    press("changesRevert");
    EXPECT_FLOAT_EQ(named<SoCube>("box").width.getValue(), 2);
    EXPECT_EQ(rows().size(), 1);
    services.undoStack().undo();
    EXPECT_EQ(rows().size(), 2);
    panel.getModel().setTicked({panel.getModel().keyAt(0), panel.getModel().keyAt(1)}, true);
    press("changesRevert");
    EXPECT_EQ(text(), first);
    EXPECT_TRUE(rows().isEmpty());
    changes.showEdits();
    EXPECT_TRUE(changes.takeChanges().empty()) << "all is as it was opened";
    services.undoStack().undo();
    EXPECT_EQ(rows().size(), 2);
}

TEST_F(Patches, AFileThatHasChangedIsReloadedAndTheEditsMadeAgain)
{
    write(fileOf("scene.xsg"), QByteArray::fromStdString(text()));
    ASSERT_TRUE(open(fileOf("scene.xsg")));
    setWidth(3);
    removeBall();
    QByteArray theirs = content(fileOf("scene.xsg"));
    theirs.replace("0.25", "0.75");
    write(fileOf("scene.xsg"), theirs);
    done.clear();
    changes.reloadAndReapply();
    ASSERT_TRUE(waitFor([this] { return !done.isEmpty(); }));
    EXPECT_FLOAT_EQ(named<SoMaterial>("paint").transparency.getValue(), 0.75F);
    EXPECT_FLOAT_EQ(named<SoCube>("box").width.getValue(), 3);
    EXPECT_EQ(outline(), "top(paint left(box Cube) right)");
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(services.undoStack().count(), 1) << "one step";
    write(fileOf("scene.xsg"), "half of");
    const std::string before = text();
    changes.reloadAndReapply();
    settle();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(rows().size(), 2) << "what was open stays";
}
