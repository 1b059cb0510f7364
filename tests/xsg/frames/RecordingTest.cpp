// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "fuzz/FrameFileCheck.h"
#include "support/ChildProcess.h"

#include <xsg/counters/LibraryCounters.h>
#include <xsg/frames/SoFrameCsv.h>
#include <xsg/frames/SoFrameFile.h>

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <unistd.h>

namespace
{

SoFrameRecording makeRecording(int frames)
{
    std::mt19937_64 random(7);
    SoFrameRecording recording;
    recording.about = {{"scene", "/data/a, b.xsg"}, {"program", "Scopix: 1.0"}};
    recording.columns = {{"Begin", "ns", true, {}}, {"Gpu", "ns", false, {}}, {"a \"b\", c", "B", false, {}}};
    for (int i = 0; i < frames; ++i) {
        recording.columns[0].values.push_back(i * 16'666'667LL);
        recording.columns[1].values.push_back(i % 3 ? static_cast<std::int64_t>(random() % 1000)
                                                    : SoFrame::Unknown);
        recording.columns[2].values.push_back(static_cast<std::int64_t>(random()));
    }
    if (frames > 1)
        recording.columns[2].values[1] = SoFrame::Missing; // an empty cell
    recording.marks = {{5, "Change Material.shininess"}, {-1, ""}};
    return recording;
}

SoFrameRecording withoutRows(SoFrameRecording recording)
{
    for (SoFrameColumn& column : recording.columns)
        column.values.clear();
    recording.marks.clear();
    return recording;
}

void expectSame(const SoFrameRecording& a, const SoFrameRecording& b)
{
    EXPECT_EQ(a.about, b.about);
    ASSERT_EQ(a.columns.size(), b.columns.size());
    for (std::size_t i = 0; i < a.columns.size(); ++i) {
        EXPECT_EQ(a.columns[i].name, b.columns[i].name);
        EXPECT_EQ(a.columns[i].unit, b.columns[i].unit);
        EXPECT_EQ(a.columns[i].isState, b.columns[i].isState);
        EXPECT_EQ(a.columns[i].values, b.columns[i].values);
    }
    ASSERT_EQ(a.marks.size(), b.marks.size());
    for (std::size_t i = 0; i < a.marks.size(); ++i) {
        EXPECT_EQ(a.marks[i].time, b.marks[i].time);
        EXPECT_EQ(a.marks[i].text, b.marks[i].text);
    }
}

class RecordingFile : public testing::Test
{
protected:
    RecordingFile()
    {
        std::string folder = (std::filesystem::temp_directory_path() / "frames-XXXXXX").string();
        m_folder = mkdtemp(folder.data());
        path = m_folder + "/recording.xsgframes";
    }
    ~RecordingFile() override { std::filesystem::remove_all(m_folder); }

    SoFrameRecording read()
    {
        SoFrameRecording recording;
        EXPECT_TRUE(SoFrameFile::read(path, recording, problem)) << problem.getText();
        return recording;
    }
    std::string bytes() const
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::string path;
    SbSentence problem;

private:
    std::string m_folder;
};

} // namespace

TEST_F(RecordingFile, ReadsBackWhatWasWritten)
{
    const SoFrameRecording recording = makeRecording(1000);
    SoFrameFile file;
    ASSERT_TRUE(file.open(path, withoutRows(recording))) << file.getProblem().getText();
    ASSERT_TRUE(file.write(recording));
    file.close();
    expectSame(recording, read());
}

TEST_F(RecordingFile, ReadsAllUpToWhereItIsTorn)
{
    const SoFrameRecording recording = makeRecording(10);
    SoFrameFile file;
    ASSERT_TRUE(file.open(path, withoutRows(recording)));
    const std::size_t head = bytes().size();
    ASSERT_TRUE(file.write(recording));
    const std::size_t first = bytes().size();
    ASSERT_TRUE(file.write(recording));
    const std::string all = bytes();
    for (std::size_t size = 0; size <= all.size(); ++size) {
        SoFrameRecording part;
        const bool isRead = SoFrameFile::parse(all.substr(0, size), part, problem);
        EXPECT_EQ(isRead, size >= head) << size;
        EXPECT_TRUE(size < first || part.getNumFrames() >= 10U) << size;
    }
}

TEST_F(RecordingFile, BelievesNoDamagedByte)
{
    const SoFrameRecording recording = makeRecording(20);
    SoFrameFile file;
    ASSERT_TRUE(file.open(path, withoutRows(recording)));
    ASSERT_TRUE(file.write(recording));
    const std::string all = bytes();
    for (std::size_t place = 0; place < all.size(); ++place) {
        std::string damaged = all;
        damaged[place] = static_cast<char>(damaged[place] ^ 0x41);
        SoFrameRecording part;
        const bool isRead = SoFrameFile::parse(damaged, part, problem);
        EXPECT_LT(part.getNumFrames() + part.marks.size(), 22U) << place << isRead;
    }
}

// Until it is killed.
static const ChildAct writeRecording("writeRecording", [](const ChildAct::Words& words) {
    const SoFrameRecording recording = makeRecording(100);
    SoFrameFile file;
    file.open(words[0], withoutRows(recording));
    file.write(recording);
    file.write(recording);
    std::puts("written");
    std::fflush(stdout);
    return pause() == 0;
});

TEST_F(RecordingFile, SurvivesThatItsWriterIsKilled)
{
    ChildProcess writer(writeRecording.command({path}));
    ASSERT_EQ(writer.readLine(), "written");
    writer.signal(SIGKILL);
    EXPECT_EQ(writer.waitForEnd().signal, SIGKILL);
    EXPECT_EQ(read().getNumFrames(), 200U);
}

TEST_F(RecordingFile, ReplacesNoDeviceAndReadsNone)
{
    SoFrameFile file;
    EXPECT_FALSE(file.open("/dev/null", makeRecording(1)));
    EXPECT_FALSE(file.getProblem().empty());
    SoFrameRecording recording;
    EXPECT_FALSE(SoFrameFile::read("/dev/zero", recording, problem));
    EXPECT_FALSE(SoFrameFile::read(path, recording, problem));
}

TEST(RecordingBytes, RefusesWhatIsNoRecording)
{
    SoFrameRecording recording;
    SbSentence problem;
    EXPECT_FALSE(SoFrameFile::parse("", recording, problem));
    EXPECT_FALSE(SoFrameFile::parse("#Xsg frames V1\n", recording, problem));
    EXPECT_EQ(problem, "its head is damaged");
}

// Replays the fuzzer's corpus, so that the sanitizers see it in every run.
TEST(RecordingFuzz, TheCorpusHolds)
{
    const fuzz::FrameFileCheck check;
    const auto inputs = fuzz::inputsOf(SCOPIX_SOURCE_DIR "/fuzz/corpus/frame_file");
    ASSERT_FALSE(inputs.empty());
    for (const fuzz::Input& input : inputs)
        check(input.data(), input.size());
}

TEST(RecordingBytes, AreThoseOfTheFile)
{
    const SoFrameRecording recording = makeRecording(20);
    SoFrameRecording again;
    SbSentence problem;
    ASSERT_TRUE(SoFrameFile::parse(SoFrameFile::format(recording), again, problem)) << problem.getText();
    expectSame(recording, again);
}

TEST(RecordingCsv, ReadsBackWhatWasWritten)
{
    const SoFrameRecording recording = makeRecording(50);
    SoFrameRecording again;
    SbSentence problem;
    ASSERT_TRUE(SoFrameCsv::read(SoFrameCsv::write(recording), again, problem)) << problem.getText();
    expectSame(recording, again);
}

TEST(RecordingCsv, HasOneNameLineAndEmptyCellsForWhatIsNotKnown)
{
    SoFrameRecording recording;
    recording.columns = {{"Whole", "ns", false, {5, 6}}, {"Gpu", "ns", false, {-1, 7}}};
    recording.setAbout("scene", "two\nlines");
    EXPECT_EQ(SoFrameCsv::write(recording), "# scene: two lines\nWhole [ns],Gpu [ns]\n5,\n6,7\n");
}

TEST(RecordingCsv, SaysWhichLineDoesNotFit)
{
    SoFrameRecording recording;
    SbSentence problem;
    EXPECT_FALSE(SoFrameCsv::read("a,b\r\n1,2\r\n3\r\n", recording, problem));
    EXPECT_EQ(problem, "line 3 does not fit the names of the columns");
    EXPECT_FALSE(SoFrameCsv::read("a\n1.5\n", recording, problem));
    EXPECT_FALSE(SoFrameCsv::read("", recording, problem));
}

TEST(FrameReading, TakesEachFrameOnceAndWaitsForTheGraphicsCard)
{
    SoFrameLog log;
    log.addUser();
    SoFrameReader reader(log);
    SoFrameRecording recording = reader.makeEmpty();
    SoFrame frame;
    for (int i = 0; i < 5; ++i)
        log.add(frame);
    log.mark("edit");
    log.setGpu(1, 10);
    log.setGpu(2, 20);
    reader.take(recording, 3);
    EXPECT_EQ(recording.findColumn("Gpu")->values, (std::vector<std::int64_t>{10, 20}));
    EXPECT_EQ(recording.marks.size(), 1U);
    log.setGpu(3, 30);
    reader.take(recording);
    EXPECT_EQ(recording.findColumn("Gpu")->values, (std::vector<std::int64_t>{10, 20, 30, -1, -1}));
    reader.take(recording);
    EXPECT_EQ(recording.getNumFrames(), 5U);
    EXPECT_EQ(recording.marks.size(), 1U);
    for (std::uint64_t i = 0; i < SoFrameLog::Capacity + 2; ++i)
        log.add(frame);
    reader.take(recording);
    EXPECT_EQ(reader.getLost(), 2U);
}

TEST(FrameReading, TellsCountersAsWhatCameWithEachFrame)
{
    SoFrameLog log;
    log.addUser();
    log.setCounters({"Picks", "NodesAlive"});
    SoFrameReader reader(log);
    SoFrameRecording recording = reader.makeEmpty();
    SoFrame frame;
    const std::int64_t alive = xsg::feeds.nodesAlive.get();
    for (const int picks : {1, 4, 0}) {
        xsg::feeds.picks.add(picks);
        log.add(frame);
    }
    log.setCounters({"Searches", "Picks"});
    xsg::feeds.picks.add(9);
    log.add(frame);
    reader.take(recording);
    xsg::feeds.picks.add(2);
    log.add(frame);
    log.add(frame);
    reader.take(recording);
    constexpr std::int64_t Missing = SoFrame::Missing;
    // The first of a set has none before it; frames of a set that is no more are not understood.
    EXPECT_EQ(recording.findColumn("Picks")->values,
              (std::vector<std::int64_t>{Missing, Missing, Missing, Missing, 2, 0}));
    EXPECT_EQ(recording.findColumn("NodesAlive")->values.back(), Missing);
    log.setCounters({"NodesAlive"});
    log.add(frame);
    reader.take(recording);
    EXPECT_EQ(recording.findColumn("NodesAlive")->values.back(), alive);
}
