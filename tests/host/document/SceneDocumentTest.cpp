// SPDX-License-Identifier: MIT
#include "SessionFiles.h"

#include <xsg/nodes/properties/SoComplexity.h>

#include <QSignalSpy>

namespace
{

using Document = SessionFiles;

TEST_F(Document, FollowsTheHistory)
{
    EXPECT_FALSE(document.isModified());
    QSignalSpy told(&document, &SceneDocument::stateChanged);
    edit(0.5F);
    EXPECT_TRUE(document.isModified());
    EXPECT_FALSE(told.isEmpty());
    services.undoStack().undo();
    EXPECT_FALSE(document.isModified());
    services.undoStack().redo();
    EXPECT_TRUE(document.isModified());
}

TEST_F(Document, CountsAnEditWithoutACommand)
{
    QSignalSpy told(&document, &SceneDocument::stateChanged);
    editWithoutCommand(0.5F);
    EXPECT_TRUE(document.isModified());
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(document.save(folder.filePath("scene.xsg")), "");
    EXPECT_FALSE(document.isModified());
}

TEST_F(Document, AnEditWithItsStepIsTakenBackWhole)
{
    edit(0.5F);
    edit(0.7F);
    services.undoStack().undo();
    SoSensorQueue::getInstance().process();
    services.undoStack().undo();
    SoSensorQueue::getInstance().process();
    EXPECT_FALSE(document.isModified());
}

TEST_F(Document, AConnectedFieldsUpdateIsNoEdit)
{
    SoRef<SoComplexity> master(new SoComplexity);
    ASSERT_TRUE(material->transparency.connectFrom(&master->value));
    services.select(&material->transparency);
    SoSensorQueue::getInstance().process();
    master->value.setValue(0.125F);
    SoSensorQueue::getInstance().process();
    EXPECT_FALSE(document.isModified());
}

TEST_F(Document, CountsEveryEdit)
{
    const quint64 before = document.getEditCount();
    edit(0.5F);
    const quint64 edited = document.getEditCount();
    EXPECT_GT(edited, before);
    services.undoStack().undo();
    EXPECT_GT(document.getEditCount(), edited);
}

TEST_F(Document, SavingIsTheNewUnmodifiedState)
{
    edit(0.5F);
    const QString path = folder.filePath("other.xsg");
    EXPECT_EQ(document.save(path), "");
    EXPECT_FALSE(document.isModified());
    EXPECT_EQ(document.getPath(), path);
    EXPECT_EQ(document.getTitle(), "other.xsg");
    EXPECT_EQ(filesIn(folder.path()), QStringList{"other.xsg"});
    services.undoStack().undo();
    EXPECT_TRUE(document.isModified()) << "the file has the edit";
}

TEST_F(Document, AFailedSaveStaysModified)
{
    edit(0.5F);
    const QString error = document.save(folder.filePath("nowhere/scene.xsg"));
    EXPECT_TRUE(error.contains("nowhere/scene.xsg")) << qPrintable(error);
    EXPECT_TRUE(document.isModified());
    EXPECT_EQ(document.getTitle(), "scene.xsg");
}

TEST_F(Document, ALinkStaysALink)
{
    const QString real = folder.filePath("real.xsg");
    ASSERT_EQ(document.save(real), "");
    const QString link = folder.filePath("link.xsg");
    ASSERT_TRUE(QFile::link(real, link));
    edit(0.25F);
    ASSERT_EQ(document.save(link), "");
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(contentOf(real).contains("transparency: 0.25"));
}

TEST_F(Document, AModelHasNoSceneFileYet)
{
    const SoRef<SoNode> root(new SoSeparator);
    EXPECT_TRUE(document.hasSceneFile());
    document.begin(root.get(), "/somewhere/crate.gltf", "crate.gltf");
    EXPECT_FALSE(document.hasSceneFile());
    document.begin(root.get(), {}, "Welcome");
    EXPECT_FALSE(document.hasSceneFile());
}

TEST_F(Document, AnotherSceneBeginsUnmodified)
{
    editWithoutCommand(0.5F);
    edit(0.75F);
    begin();
    EXPECT_FALSE(document.isModified());
    EXPECT_EQ(services.undoStack().count(), 0);
    EXPECT_EQ(services.selectedNode(), nullptr);
}

TEST_F(Document, RecoveredEditsAreUnsavedWhateverIsUndone)
{
    const SoRef<SoNode> root(document.getRoot());
    document.beginModified(root.get(), "/somewhere/a.xsg", "a.xsg");
    EXPECT_TRUE(document.isModified());
    edit(0.5F);
    services.undoStack().undo();
    EXPECT_TRUE(document.isModified());
    ASSERT_EQ(document.save(folder.filePath("a.xsg")), "");
    EXPECT_FALSE(document.isModified());
}

TEST_F(Document, EditsSurviveTheEndOfTheirHistory)
{
    edit(0.5F);
    services.history().clear();
    EXPECT_TRUE(document.isModified()) << "the field still has the new value";
}

TEST_F(Document, AnApplicationsSceneIsNeverUnsavedAndSavesACopy)
{
    SoRef<SoSeparator> scene(new SoSeparator);
    material = new SoMaterial;
    scene->addChild(material);
    document.beginExternal(scene.get(), "Engine");
    EXPECT_TRUE(document.isExternal());
    edit(0.5F);
    editWithoutCommand(0.75F);
    EXPECT_FALSE(document.isModified());
    const QString copy = folder.filePath("copy.xsg");
    EXPECT_EQ(document.save(copy), "");
    EXPECT_TRUE(contentOf(copy).contains("0.75"));
    EXPECT_EQ(document.getTitle(), "Engine");
    EXPECT_EQ(document.getPath(), "");
    begin();
    EXPECT_FALSE(document.isExternal());
    EXPECT_EQ(scene->getRefCount(), 1) << "the document has let go of it";
}

// A relative path would mean another file once the program is started elsewhere.
TEST_F(Document, KeepsAbsolutePaths)
{
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    document.begin(document.getRoot(), "typed.xsg", "typed.xsg");
    QDir::setCurrent(before);
    EXPECT_EQ(document.getPath(), QDir(folder.path()).absoluteFilePath("typed.xsg"));
    document.begin(document.getRoot(), QString(), "untitled");
    EXPECT_EQ(document.getPath(), QString());
}

TEST_F(Document, ReplacesNoFileOfAnotherKindAndNoneThatIsProtected)
{
    const QString model = folder.filePath("model.glb");
    const QString scene = folder.filePath("protected.xsg");
    for (const QString& path : {model, scene}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("precious");
    }
    QFile::setPermissions(scene, QFile::ReadOwner);
    for (const QString& path : {model, scene}) {
        const QString error = document.save(path);
        EXPECT_TRUE(error.contains(path)) << qPrintable(error);
        EXPECT_EQ(contentOf(path), "precious");
    }
}

} // namespace
