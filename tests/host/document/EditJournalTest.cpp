// SPDX-License-Identifier: MIT
#include "SessionFiles.h"

#include "document/EditJournal.h"
#include "document/RecoverySlot.h"

#include <xsg/files/SceneReader.h>
#include <xsg/files/SceneWriter.h>

#include <QSignalSpy>

using namespace scopix;

namespace
{

class Journal : public SessionFiles
{
protected:
    Journal()
    {
        writer.write(document.getRoot());
        journal.begin(path, "id");
    }
    void record(float transparency)
    {
        material->transparency.setValue(transparency);
        journal.append({{writer.recordOf(material->transparency).text, nullptr, {}}});
        journal.wait();
        ends.push_back(QFileInfo(path).size());
    }
    // The value that a journal of so many bytes leads to.
    float valueAfter(qint64 size)
    {
        const QString cut = folder.filePath("cut");
        QFile file(cut);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contentOf(path).left(static_cast<int>(size)));
        file.close();
        return valueIn(cut);
    }
    float valueIn(const QString& file, const QByteArray& id = "id")
    {
        material->transparency.setValue(0);
        EXPECT_EQ(EditJournal::read(file, id).apply({document.getRoot(), material}), "");
        return material->transparency.getValue();
    }

    QString path = folder.filePath("journal");
    xsg::SceneWriter writer{[](const std::string& /*piece*/) {}};
    EditJournal journal;
    std::vector<qint64> ends; // of the records in the file
};

TEST_F(Journal, EndsWithItsLastWholeRecordWhereverItIsCut)
{
    for (const float value : {0.25F, 0.5F, 0.75F})
        record(value);
    for (qint64 size = 0; size <= ends.back(); ++size) {
        const auto whole = std::count_if(ends.begin(), ends.end(), [&](qint64 end) { return end <= size; });
        EXPECT_EQ(valueAfter(size), 0.25F * static_cast<float>(whole)) << size;
    }
}

TEST_F(Journal, EndsBeforeARecordThatIsDamaged)
{
    for (const float value : {0.25F, 0.5F, 0.75F})
        record(value);
    const QByteArray whole = contentOf(path);
    for (int at = static_cast<int>(ends[0]); at < ends[1]; ++at) {
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 4);
        QFile file(folder.filePath("damaged"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(damaged);
        file.close();
        EXPECT_EQ(valueIn(file.fileName()), 0.25F) << at;
    }
}

TEST_F(Journal, IsOfItsOwnSnapshotOnly)
{
    record(0.5F);
    EXPECT_EQ(valueIn(path), 0.5F);
    EXPECT_EQ(valueIn(path, "other"), 0.0F);
    EXPECT_EQ(valueIn(path, ""), 0.0F);
    EXPECT_EQ(valueIn(folder.filePath("none")), 0.0F);
}

TEST_F(Journal, BeginsAgainForTheNextSnapshot)
{
    record(0.5F);
    journal.begin(path, "next");
    journal.wait();
    EXPECT_EQ(valueIn(path, "next"), 0.0F);
    record(0.75F);
    EXPECT_EQ(valueIn(path, "next"), 0.75F);
}

TEST_F(Journal, ReportsOnceThatItCannotBeWritten)
{
    EditJournal lost;
    QSignalSpy failed(&lost, &EditJournal::failed);
    lost.begin(folder.filePath("nowhere/journal"), "id");
    lost.append({{"a", nullptr, {}}});
    lost.append({{"b", nullptr, {}}});
    ASSERT_TRUE(waitFor([&] { return !failed.isEmpty(); }));
    lost.wait();
    pump();
    EXPECT_EQ(failed.size(), 1);
    EXPECT_FALSE(failed[0][0].toString().isEmpty());
}

TEST(SnapshotId, IsThatOfTheLastCommentAlone)
{
    QTemporaryDir folder;
    const auto slot = RecoverySlot::make(folder.filePath("recovery"));
    const auto idOf = [&](const QByteArray& text) {
        QFile file(slot->scenePath());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        return slot->getSnapshotId();
    };
    EXPECT_EQ(idOf("Cube {}\n" + RecoverySlot::snapshotComment("abc")), "abc");
    EXPECT_EQ(idOf(QByteArray(5000, ' ') + RecoverySlot::snapshotComment("abc")), "abc");
    EXPECT_EQ(idOf(RecoverySlot::snapshotComment("abc").chopped(1)), "") << "cut";
    EXPECT_EQ(idOf("Cube {}\n"), "");
    EXPECT_EQ(idOf(""), "");
}

} // namespace
