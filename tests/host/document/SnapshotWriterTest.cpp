// SPDX-License-Identifier: MIT
#include "SessionFiles.h"

#include "document/SnapshotWriter.h"

#include <QSignalSpy>

#include <xsg/files/SoSceneFile.h>

using namespace scopix;

namespace
{

class Snapshot : public SessionFiles
{
protected:
    SnapshotWriter writer;
    QSignalSpy finished{&writer, &SnapshotWriter::finished};
    QString path = folder.filePath("snapshot.xsg");
};

TEST_F(Snapshot, HoldsTheSceneAsItWas)
{
    material->transparency.setValue(0.25F);
    const std::string before = SoSceneFile::writeText(document.getRoot());
    writer.write(document.getRoot(), path);
    EXPECT_TRUE(writer.isBusy());
    material->transparency.setValue(0.75F);
    static_cast<SoSeparator*>(document.getRoot())->removeAllChildren();
    ASSERT_TRUE(waitFor([&] { return !finished.isEmpty(); }));
    EXPECT_EQ(finished[0][0].toString(), "");
    EXPECT_EQ(contentOf(path).toStdString(), before);
    EXPECT_FALSE(writer.isBusy());
}

TEST_F(Snapshot, CanBeMadeAgain)
{
    for (int i = 0; i < 3; ++i) {
        finished.clear();
        writer.write(document.getRoot(), path);
        ASSERT_TRUE(waitFor([&] { return !finished.isEmpty(); }));
        EXPECT_EQ(finished[0][0].toString(), "");
    }
    EXPECT_EQ(filesIn(folder.path()), QStringList{"snapshot.xsg"});
}

TEST_F(Snapshot, ReportsWhyItCannotBeWritten)
{
    writer.write(document.getRoot(), folder.filePath("nowhere/snapshot.xsg"));
    ASSERT_TRUE(waitFor([&] { return !finished.isEmpty(); }));
    const QString error = finished[0][0].toString();
    EXPECT_TRUE(error.contains("nowhere/snapshot.xsg: The file cannot be written")) << qPrintable(error);
}

TEST_F(Snapshot, ReplacesNothingOnceItWasCancelled)
{
    SoRef<SoSeparator> large(new SoSeparator);
    for (int i = 0; i < 20000; ++i)
        large->addChild(new SoMaterial);
    QByteArray before;
    {
        SnapshotWriter other;
        other.write(document.getRoot(), path);
        ASSERT_TRUE(waitFor([&] { return !other.isBusy(); }));
        other.write(large.get(), path);
        other.cancel();
        before = contentOf(path);
    } // waits for the thread
    EXPECT_FALSE(before.isEmpty());
    EXPECT_EQ(contentOf(path), before);
    EXPECT_EQ(filesIn(folder.path()), QStringList{"snapshot.xsg"});
}

TEST_F(Snapshot, CanBeCancelledWhileWriting)
{
    SoRef<SoSeparator> large(new SoSeparator);
    for (int i = 0; i < 20000; ++i)
        large->addChild(new SoMaterial);
    for (int i = 0; i < 5; ++i) {
        writer.write(large.get(), path);
        writer.cancel();
        EXPECT_FALSE(writer.isBusy());
    }
    pump();
    EXPECT_TRUE(finished.isEmpty());
    // One that was written before it was given up stands there whole.
    const std::string whole = SoSceneFile::writeText(large.get());
    for (const QString& name : filesIn(folder.path())) {
        if (name == "snapshot.xsg")
            EXPECT_EQ(contentOf(path).toStdString(), whole);
        else
            EXPECT_TRUE(name.startsWith("snapshot.xsg."))
                << "only under a temporary name: " << qPrintable(name);
    }
}

} // namespace
