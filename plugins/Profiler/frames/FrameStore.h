// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFrameFile.h>

#include <QBasicTimer>
#include <QObject>

#include <optional>

namespace profiler
{

/// The frames to look at: the program's as they come, or those of a file that was opened. Keeps the last
/// 20,000. The log of frames is on while somebody looks on or a recording is written, and off otherwise. GUI
/// thread only.
class FrameStore : public QObject
{
    Q_OBJECT

public:
    static constexpr std::size_t MostFrames = 20'000;

    explicit FrameStore(SoFrameLog& log, QObject* parent = nullptr);
    ~FrameStore() override;

    const SoFrameRecording& getFrames() const { return m_frames; }
    /// How many frames came before the first one that is kept.
    std::uint64_t getFirst() const { return m_first; }
    /// Another number for each row of frames that is shown: the program's, or those of a file.
    std::uint64_t getSeries() const { return m_series; }
    /// While it is false, nothing is taken unless a recording is written.
    void setWatched(bool on);
    /// Takes what has come at once, instead of ten times a second.
    void takeNow();

    /// All that is counted in each frame: as many as the log takes, these among them.
    void wantCounters(const std::vector<SbName>& names);

    bool isRecording() const { return m_file.isOpen(); }
    /// Why it cannot be written, or an empty text. `scene`: the path of what is drawn, where it has one.
    QString startRecording(const QString& path, const QString& scene = {});
    void stopRecording();
    /// Frames written to the file so far.
    std::size_t getNumRecorded() const { return m_numRecorded; }

    /// Shows this instead of what the program draws, until showLive().
    void show(SoFrameRecording recording);
    void showLive();
    bool isLive() const { return m_isLive; }
    /// Of the file that is shown.
    QString getTitle() const;

signals:
    void changed();
    /// A sentence.
    void failed(const QString& problem);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void follow();
    void chooseCounters();
    void take(std::uint64_t heldBack);
    std::uint64_t countHeldBack() const;
    void write(const SoFrameRecording& rows);
    void append(const SoFrameRecording& rows);

    SoFrameLog& m_log;
    std::optional<SoFrameReader> m_reader; // while the log is on for us
    SoFrameRecording m_frames;
    SoFrameFile m_file;
    SoFrameRecording m_recorded; // its columns
    std::vector<SbName> m_wanted;
    std::uint64_t m_first = 0;
    std::uint64_t m_series = 1;
    std::size_t m_numRecorded = 0;
    QBasicTimer m_timer;
    QString m_path;
    bool m_isWatched = false;
    bool m_isLive = true;
};

/// What a recording says about where it was made, and of what.
SoFrameRecording withSurroundings(SoFrameRecording recording, const QString& scene);

} // namespace profiler
