// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFrameLog.h>

#include <utility>

/// Numbers of one kind, one for each frame.
struct XSG_API SoFrameColumn {
    std::string name; // of a figure or of a counter
    std::string unit; // "ns", "B", or "" for counts; "/N" where a count is N times what it tells
    bool isState = false;
    std::vector<std::int64_t> values;

    bool isKnown(std::int64_t value) const
    {
        return value != SoFrame::Missing && (unit != "ns" || value != SoFrame::Unknown);
    }
    /// A value as it is shown: times in milliseconds, and what a counter with a scale tells.
    double getShown(std::int64_t value) const;
    /// "ms", "B", or "".
    std::string getShownUnit() const;
    /// The values as doubles, those that are unknown left out: in milliseconds where they are times.
    std::vector<double> getKnown() const;
};

/// Frames as a table, as files keep them: the figures of SoFrame in their order, then counters, and what
/// happened meanwhile. Counters that add up are told as what came with each frame. Values that are not known
/// are SoFrame::Unknown where they are times, else SoFrame::Missing.
struct XSG_API SoFrameRecording {
    /// What was measured: pairs such as ("scene", "/data/harbour.xsg").
    std::vector<std::pair<std::string, std::string>> about;
    std::vector<SoFrameColumn> columns;
    std::vector<SoFrameMark> marks;

    std::size_t getNumFrames() const { return columns.empty() ? 0 : columns.front().values.size(); }
    /// Null where there is none of this name.
    const SoFrameColumn* findColumn(std::string_view name) const;
    /// An empty text where nothing is said about it.
    std::string getAbout(std::string_view key) const;
    void setAbout(const std::string& key, const std::string& value);
};

/// Takes frames and marks out of a log as they come, as rows of recordings. The counters are those that the
/// log has when the reader is made; what a frame has not noted is Missing. On the thread that chooses the
/// log's counters.
class XSG_API SoFrameReader
{
public:
    /// From the next frame on; the log has to outlive it.
    explicit SoFrameReader(const SoFrameLog& log);

    /// The columns, without values.
    SoFrameRecording makeEmpty() const;
    /// Appends what has come since. The time of the graphics card is known some frames later: the newest
    /// `heldBack` frames are left for the next time where it is missing.
    void take(SoFrameRecording& to, std::uint64_t heldBack = 0);
    /// Frames that left the log before they were taken.
    std::uint64_t getLost() const { return m_lost; }

private:
    void append(const SoFrame& frame, SoFrameRecording& to);
    void takeMarks(SoFrameRecording& to);
    void findPlaces();
    std::int64_t totalOf(const SoFrame& frame, std::size_t counter) const;

    const SoFrameLog& m_log;
    std::vector<SoFrameColumn> m_counters;
    std::uint64_t m_counterSet;
    std::uint64_t m_last;
    std::uint64_t m_lastMark;
    std::uint64_t m_lost = 0;
    std::vector<std::ptrdiff_t> m_places; // of the counters in the log's frames; -1: not there
    std::vector<std::int64_t> m_before;   // their totals in the frame taken last
};
