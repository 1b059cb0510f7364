// SPDX-License-Identifier: MIT
#include "SessionFiles.h"

#include "document/Autosave.h"
#include "services/HostPreview.h"

#include <xsg/files/SceneReader.h>
#include <xsg/files/SoSceneFile.h>

#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace scopix;

namespace
{

class Autosaving : public SessionFiles
{
protected:
    Autosaving()
    {
        autosave.setPause(20);
        autosave.start();
    }
    QStringList scenes() const { return QDir(path).entryList({"*.xsg"}); }
    QByteArray snapshot() const
    {
        return scenes().isEmpty() ? QByteArray() : contentOf(path + '/' + scenes()[0]);
    }
    QByteArray journal() const
    {
        return contentOf(path + '/' + QDir(path).entryList({"*.journal"}).value(0, "none"));
    }
    QByteArray saved() const { return snapshot() + journal(); }
    // As the next session reads it.
    std::string recovered() const
    {
        const QByteArray text = snapshot();
        xsg::SceneReader reader(std::string_view(text.constData(), static_cast<std::size_t>(text.size())));
        std::vector<SoNode*> nodes;
        reader.setNodeListener([&](SoNode* node) { nodes.push_back(node); });
        const SoRef<SoNode> scene = reader.read();
        EXPECT_TRUE(scene) << reader.getProblem().getText();
        if (!scene)
            return {};
        const int comment = text.lastIndexOf("# snapshot ");
        const QByteArray id = text.mid(comment).trimmed().mid(11);
        const QString file = path + '/' + QDir(path).entryList({"*.journal"}).value(0, "none");
        EXPECT_EQ(EditJournal::read(file, id).apply(nodes), "");
        return SoSceneFile::writeText(scene.get());
    }
    std::string current() const { return SoSceneFile::writeText(document.getRoot()); }
    void addMaterials(int count)
    {
        for (int i = 0; i < count; ++i)
            static_cast<SoSeparator*>(document.getRoot())->addChild(new SoMaterial);
    }
    bool waitForSaved(const char* text)
    {
        return waitFor([&] { return saved().contains(text); });
    }

    QString path = folder.filePath("recovery");
    Autosave autosave{document, path};
};

TEST_F(Autosaving, WritesOnceTheUserPauses)
{
    edit(0.5F);
    EXPECT_FALSE(QDir(path).exists()) << "not at once";
    ASSERT_TRUE(waitForSaved("transparency: 0.5"));
    const QString origin = contentOf(path + '/' + QDir(path).entryList({"*.json"}).value(0));
    EXPECT_TRUE(origin.contains("scene.xsg"));
    edit(0.625F);
    EXPECT_TRUE(waitForSaved("transparency: 0.625"));
    EXPECT_EQ(scenes().size(), 1);
}

TEST_F(Autosaving, WritesManyEditsOnce)
{
    for (int i = 1; i <= 50; ++i) {
        edit(static_cast<float>(i) / 100);
        ASSERT_TRUE(scenes().isEmpty());
    }
    EXPECT_TRUE(waitForSaved("transparency: 0.5"));
}

TEST_F(Autosaving, WritesASlowSceneLessOften)
{
    addMaterials(20000);
    edit(0.5F);
    const auto* pause = autosave.findChild<QTimer*>("pause");
    EXPECT_EQ(pause->interval(), 20);
    ASSERT_TRUE(waitForSaved("transparency: 0.5"));
    addMaterials(1);
    edit(0.75F);
    EXPECT_GT(pause->interval(), 20);
}

TEST_F(Autosaving, WaitsForTheReleaseOfAHeldButton)
{
    QWidget widget;
    widget.show();
    QTest::mousePress(widget.windowHandle(), Qt::LeftButton);
    ASSERT_EQ(QGuiApplication::mouseButtons(), Qt::LeftButton);
    edit(0.5F);
    const auto* pause = autosave.findChild<QTimer*>("pause");
    ASSERT_TRUE(pause);
    QSignalSpy passed(pause, &QTimer::timeout);
    ASSERT_TRUE(waitFor([&] { return passed.size() >= 3; }));
    EXPECT_TRUE(scenes().isEmpty());
    QTest::mouseRelease(widget.windowHandle(), Qt::LeftButton);
    EXPECT_TRUE(waitForSaved("transparency: 0.5"));
}

TEST_F(Autosaving, AButtonThatIsHeldForLongDelaysNothing)
{
    autosave.setLimit(30);
    QWidget widget;
    widget.show();
    QTest::mousePress(widget.windowHandle(), Qt::LeftButton);
    edit(0.5F);
    EXPECT_TRUE(waitForSaved("transparency: 0.5"));
    edit(0.75F);
    EXPECT_TRUE(waitForSaved("transparency: 0.75"));
    EXPECT_EQ(QGuiApplication::mouseButtons(), Qt::LeftButton);
    QTest::mouseRelease(widget.windowHandle(), Qt::LeftButton);
}

TEST_F(Autosaving, RecordsWhatChangesAfterASnapshot)
{
    edit(0.5F);
    ASSERT_TRUE(waitForSaved("transparency: 0.5"));
    const QByteArray before = snapshot();
    for (const float value : {0.625F, 0.75F, 0.875F}) {
        edit(value);
        ASSERT_TRUE(waitForSaved(QByteArray("transparency: ") + QByteArray::number(value)));
    }
    material->diffuseColor.set1Value(2, SbColor(1, 0, 0.5F)); // a list of many goes the same way
    material->diffuseColor.setNum(5000);
    edit(0.9375F);
    ASSERT_TRUE(waitForSaved("transparency: 0.9375"));
    autosave.keepNow();
    EXPECT_EQ(snapshot(), before);
    EXPECT_EQ(recovered(), current());
}

TEST_F(Autosaving, MoreThanFieldsTakesAnotherSnapshot)
{
    edit(0.5F);
    ASSERT_TRUE(waitForSaved("transparency: 0.5"));
    edit(0.625F);
    ASSERT_TRUE(waitForSaved("transparency: 0.625"));
    addMaterials(3);
    material->setName("renamed");
    edit(0.75F);
    ASSERT_TRUE(waitFor([&] { return snapshot().contains("transparency: 0.75"); }));
    EXPECT_EQ(recovered(), current()) << "and not what the journal of the first one says";
    edit(0.875F);
    ASSERT_TRUE(waitForSaved("transparency: 0.875"));
    EXPECT_EQ(recovered(), current());
}

constexpr int Many = 100000; // take many turns to become text, on any machine

TEST_F(Autosaving, WhatChangesWhileALargeSceneBecomesTextIsNotLost)
{
    addMaterials(Many);
    edit(0.5F);
    auto* last = static_cast<SoMaterial*>(document.getRoot()->asGroup()->getChild(Many));
    const auto* writer = autosave.findChild<SnapshotWriter*>();
    ASSERT_TRUE(waitFor([&] { return writer->isReading(); }));
    int edits = 0;
    while (writer->isReading()) {
        last->shininess.setValue(static_cast<float>(++edits));
        edit(static_cast<float>(edits) / 1024);
        QCoreApplication::processEvents();
    }
    EXPECT_GT(edits, 2) << "there was time to edit";
    autosave.keepNow();
    EXPECT_EQ(recovered(), current());
}

TEST_F(Autosaving, AChangeOfChildrenInterruptsASnapshotButNotForEver)
{
    addMaterials(Many);
    const auto* writer = autosave.findChild<SnapshotWriter*>();
    int interruptions = 0;
    while (scenes().isEmpty()) {
        edit(static_cast<float>(++interruptions) / 1024);
        ASSERT_TRUE(waitFor([&] { return writer->isReading() || !scenes().isEmpty(); }));
        static_cast<SoSeparator*>(document.getRoot())->removeChild(1);
    }
    EXPECT_GE(interruptions, 3);
    edit(0.5F);
    autosave.keepNow();
    EXPECT_EQ(recovered(), current());
}

TEST_F(Autosaving, KeepsEverythingAtOnceWhereThereIsNoTime)
{
    autosave.setPause(1000000);
    autosave.keepNow();
    EXPECT_TRUE(scenes().isEmpty()) << "nothing is unsaved";
    edit(0.5F);
    autosave.keepNow();
    EXPECT_EQ(recovered(), current());
    const QByteArray before = snapshot();
    edit(0.625F);
    autosave.keepNow();
    EXPECT_EQ(recovered(), current());
    EXPECT_EQ(snapshot(), before);
    addMaterials(20000);
    edit(0.75F);
    autosave.keepNow();
    EXPECT_EQ(recovered(), current());
    ASSERT_EQ(document.save(folder.filePath("scene.xsg")), "");
    EXPECT_TRUE(waitFor([&] { return !QDir(path).exists(); }));
}

TEST_F(Autosaving, ASceneThatIsReplacedIsNotLookedAtAnyMore)
{
    addMaterials(Many);
    edit(0.5F);
    const auto* writer = autosave.findChild<SnapshotWriter*>();
    ASSERT_TRUE(waitFor([&] { return writer->isReading(); }));
    begin();
    EXPECT_FALSE(writer->isBusy());
    edit(0.75F);
    ASSERT_TRUE(waitForSaved("transparency: 0.75"));
    EXPECT_EQ(recovered(), current());
}

TEST_F(Autosaving, SavesDuringUninterruptedEdits)
{
    autosave.setPause(1000000);
    autosave.setLimit(30);
    edit(0.5F);
    EXPECT_TRUE(waitForSaved("transparency: 0.5"));
}

TEST_F(Autosaving, WritesAnEditWithoutACommand)
{
    editWithoutCommand(0.5F);
    EXPECT_TRUE(waitForSaved("transparency: 0.5"));
}

TEST_F(Autosaving, SavingRemovesTheRecoveryFile)
{
    edit(0.5F);
    ASSERT_TRUE(waitForSaved("transparency: 0.5"));
    ASSERT_EQ(document.save(folder.filePath("scene.xsg")), "");
    EXPECT_TRUE(waitFor([&] { return !QDir(path).exists(); }));
}

TEST_F(Autosaving, UndoingEverythingRemovesTheRecoveryFile)
{
    edit(0.5F);
    ASSERT_TRUE(waitForSaved("transparency: 0.5"));
    services.undoStack().undo();
    EXPECT_TRUE(waitFor([&] { return !QDir(path).exists(); }));
    services.undoStack().redo();
    EXPECT_TRUE(waitForSaved("transparency: 0.5"));
}

TEST_F(Autosaving, AnotherSceneRemovesTheRecoveryFile)
{
    edit(0.5F);
    ASSERT_TRUE(waitForSaved("transparency: 0.5"));
    begin();
    EXPECT_TRUE(waitFor([&] { return !QDir(path).exists(); }));
}

TEST_F(Autosaving, ClearingTheHistoryKeepsTheRecoveryFile)
{
    edit(0.5F);
    ASSERT_TRUE(waitForSaved("transparency: 0.5"));
    const QStringList before = scenes();
    services.history().clear(); // clean for a moment
    pump();
    EXPECT_EQ(scenes(), before);
}

TEST_F(Autosaving, KeepsTheRecoveryFileOfEditsThatWereNotDiscarded)
{
    {
        Autosave other(document, folder.filePath("other"));
        other.setPause(20);
        other.start();
        edit(0.5F);
        ASSERT_TRUE(waitFor([&] { return !QDir(folder.filePath("other")).entryList({"*.xsg"}).isEmpty(); }));
    }
    EXPECT_TRUE(RecoverySlot::findOrphaned(folder.filePath("other")));
    autosave.drop();
    EXPECT_FALSE(QDir(path).exists());
}

TEST_F(Autosaving, ContinuesWithAnAdoptedRecoveryFile)
{
    auto lost = RecoverySlot::make(path);
    ASSERT_TRUE(lost->setOrigin({"/a.xsg", "a.xsg"}));
    const QString scene = lost->scenePath();
    document.beginModified(SoRef<SoNode>(document.getRoot()).get(), "/a.xsg", "a.xsg");
    autosave.adopt(std::move(lost));
    edit(0.5F);
    ASSERT_TRUE(waitForSaved("transparency: 0.5"));
    EXPECT_EQ(scenes(), QStringList{QFileInfo(scene).fileName()});
}

TEST_F(Autosaving, ReportsOnceThatNothingCanBeSaved)
{
    QFile inTheWay(path);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    QSignalSpy failed(&autosave, &Autosave::failed);
    edit(0.5F);
    ASSERT_TRUE(waitFor([&] { return !failed.isEmpty(); }));
    EXPECT_TRUE(failed[0][0].toString().contains(path)) << qPrintable(failed[0][0].toString());
    auto* pause = autosave.findChild<QTimer*>("pause");
    QSignalSpy passed(pause, &QTimer::timeout);
    edit(0.75F);
    ASSERT_TRUE(waitFor([&] { return !passed.isEmpty(); }));
    EXPECT_EQ(failed.size(), 1);
}

TEST(AutosaveStart, WritesNothingBefore)
{
    QTemporaryDir folder;
    HostServices services;
    SceneDocument document(services);
    SoRef<SoNode> root(new SoSeparator);
    document.beginModified(root.get(), {}, "a");
    Autosave autosave(document, folder.filePath("recovery"));
    autosave.setPause(1);
    services.executeCommand(nullptr);
    pump();
    EXPECT_FALSE(QDir(autosave.getFolder()).exists());
    autosave.start();
    EXPECT_TRUE(waitFor([&] { return QDir(autosave.getFolder()).exists(); }));
}

TEST_F(Autosaving, WritesThePresentValuesWhileFormerOnesShow)
{
    edit(0.5F);
    ASSERT_TRUE(waitForSaved("transparency: 0.5"));
    editWithoutCommand(0.75F);
    services.history().endStep();
    HostPreview& preview = services.preview();
    ASSERT_TRUE(preview.showFormer(preview.getEditedFields()));
    EXPECT_NE(material->transparency.getValue(), 0.75F);
    EXPECT_TRUE(waitForSaved("transparency: 0.75"));
    EXPECT_TRUE(preview.isShowingFormer());
    preview.showPresent();
    EXPECT_EQ(recovered(), current());
    EXPECT_TRUE(document.isModified());
    EXPECT_EQ(services.undoStack().count(), 2);
}

TEST_F(Autosaving, ASnapshotThatIsDueWhileFormerValuesShowHasThePresentOnes)
{
    editWithoutCommand(0.75F);
    services.history().endStep();
    HostPreview& preview = services.preview();
    ASSERT_TRUE(preview.showFormer(preview.getEditedFields()));
    EXPECT_TRUE(waitForSaved("transparency: 0.75"));
    EXPECT_TRUE(preview.isShowingFormer());
    autosave.keepNow();
    EXPECT_FALSE(preview.isShowingFormer()) << "the session ends";
    EXPECT_EQ(recovered(), current());
}

TEST_F(Autosaving, SavingEndsThePreview)
{
    editWithoutCommand(0.75F);
    services.history().endStep();
    HostPreview& preview = services.preview();
    ASSERT_TRUE(preview.showFormer(preview.getEditedFields()));
    EXPECT_TRUE(document.isModified());
    EXPECT_EQ(document.save(folder.filePath("scene.xsg")), "");
    EXPECT_FALSE(preview.isShowingFormer());
    EXPECT_EQ(material->transparency.getValue(), 0.75F);
    EXPECT_TRUE(contentOf(folder.filePath("scene.xsg")).contains("transparency 0.75") ||
                contentOf(folder.filePath("scene.xsg")).contains("transparency: 0.75"));
    EXPECT_FALSE(document.isModified());
}

} // namespace
