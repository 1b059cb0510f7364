// SPDX-License-Identifier: MIT
#include "SessionFiles.h"

#include "document/Autosave.h"

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
    QByteArray saved() const
    {
        return scenes().isEmpty() ? QByteArray() : contentOf(path + '/' + scenes()[0]);
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
    for (int i = 0; i < 20000; ++i)
        static_cast<SoSeparator*>(document.getRoot())->addChild(new SoMaterial);
    edit(0.5F);
    const auto* pause = autosave.findChild<QTimer*>("pause");
    EXPECT_EQ(pause->interval(), 20);
    ASSERT_TRUE(waitForSaved("transparency: 0.5"));
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

} // namespace
