// SPDX-License-Identifier: MIT
#include <xsg/frames/SoFrameRecording.h>

#include <xsg/counters/SoPerfCounterManager.h>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

namespace
{

bool isScale(const std::string& unit)
{
    return !unit.empty() && unit.front() == '/';
}

// What files may hold is no number perhaps.
double scaleOf(const std::string& unit)
{
    double scale = 1;
    if (isScale(unit))
        std::from_chars(unit.data() + 1, unit.data() + unit.size(), scale);
    return scale > 0 ? scale : 1;
}

std::string unitOf(const SoPerfCounter& counter)
{
    char number[32];
    const double scale = counter.getScaleFactor();
    const auto end = std::to_chars(std::begin(number), std::end(number), scale).ptr;
    return scale == 1 ? std::string() : "/" + std::string(number, end);
}

SoFrameColumn columnOf(SbName name)
{
    const SoPerfCounter* counter = SoPerfCounterManager::getInstance()->getCounter(name);
    return {name.getString(),
            counter ? unitOf(*counter) : "",
            counter && counter->getTypeCode() == SbString("S"),
            {}};
}

} // namespace

double SoFrameColumn::getShown(std::int64_t value) const
{
    const auto number = static_cast<double>(value);
    return unit == "ns" ? number * 1e-6 : number / scaleOf(unit);
}

std::string SoFrameColumn::getShownUnit() const
{
    return unit == "ns" ? "ms" : isScale(unit) ? "" : unit;
}

std::vector<double> SoFrameColumn::getKnown() const
{
    std::vector<double> known;
    known.reserve(values.size());
    for (const std::int64_t value : values) {
        if (isKnown(value))
            known.push_back(getShown(value));
    }
    return known;
}

const SoFrameColumn* SoFrameRecording::findColumn(std::string_view name) const
{
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [name](const SoFrameColumn& column) { return column.name == name; });
    return found == columns.end() ? nullptr : &*found;
}

std::string SoFrameRecording::getAbout(std::string_view key) const
{
    for (const auto& [known, value] : about) {
        if (known == key)
            return value;
    }
    return {};
}

void SoFrameRecording::setAbout(const std::string& key, const std::string& value)
{
    for (auto& [known, old] : about) {
        if (known == key) {
            old = value;
            return;
        }
    }
    about.emplace_back(key, value);
}

SoFrameReader::SoFrameReader(const SoFrameLog& log)
    : m_log(log)
    , m_counterSet(log.getCounterSet())
    , m_last(log.getLast())
    , m_lastMark(log.getLastMark())
{
    for (const SbName name : log.getCounters())
        m_counters.push_back(columnOf(name));
    m_before.assign(m_counters.size(), SoFrame::Missing);
    findPlaces();
}

void SoFrameReader::findPlaces()
{
    const std::vector<SbName>& names = m_log.getCounters();
    m_counterSet = m_log.getCounterSet();
    m_places.clear();
    for (const SoFrameColumn& counter : m_counters) {
        const auto found = std::find(names.begin(), names.end(), SbName(counter.name.c_str()));
        m_places.push_back(found == names.end() ? -1 : found - names.begin());
    }
}

std::int64_t SoFrameReader::totalOf(const SoFrame& frame, std::size_t counter) const
{
    const std::ptrdiff_t place = m_places[counter];
    return frame.counterSet == m_counterSet && place >= 0 ? frame.counters[static_cast<std::size_t>(place)]
                                                          : SoFrame::Missing;
}

SoFrameRecording SoFrameReader::makeEmpty() const
{
    SoFrameRecording recording;
    for (int i = 0; i < SoFrame::NumFigures; ++i) {
        const auto figure = static_cast<SoFrame::Figure>(i);
        recording.columns.push_back(
            {SoFrame::getName(figure), SoFrame::getUnit(figure), SoFrame::isState(figure), {}});
    }
    recording.columns.insert(recording.columns.end(), m_counters.begin(), m_counters.end());
    return recording;
}

void SoFrameReader::take(SoFrameRecording& to, std::uint64_t heldBack)
{
    if (m_counterSet != m_log.getCounterSet())
        findPlaces();
    const std::uint64_t newest = m_log.getLast();
    if (newest > m_last + SoFrameLog::Capacity) {
        m_lost += newest - SoFrameLog::Capacity - m_last;
        m_last = newest - SoFrameLog::Capacity;
    }
    SoFrame frame;
    for (; m_last < newest; ++m_last) {
        if (!m_log.get(m_last + 1, frame)) {
            ++m_lost;
            continue;
        }
        if (frame[SoFrame::Gpu] == SoFrame::Unknown && m_last + 1 + heldBack > newest)
            break;
        append(frame, to);
    }
    takeMarks(to);
}

void SoFrameReader::append(const SoFrame& frame, SoFrameRecording& to)
{
    for (std::size_t i = 0; i < SoFrame::NumFigures; ++i)
        to.columns[i].values.push_back(frame.figures[i]);
    for (std::size_t i = 0; i < m_counters.size(); ++i) {
        const std::int64_t total = totalOf(frame, i);
        const std::int64_t before = std::exchange(m_before[i], total);
        const bool isKnown = total != SoFrame::Missing && before != SoFrame::Missing;
        const std::int64_t since = isKnown ? total - before : SoFrame::Missing;
        to.columns[SoFrame::NumFigures + i].values.push_back(m_counters[i].isState ? total : since);
    }
}

void SoFrameReader::takeMarks(SoFrameRecording& to)
{
    const std::uint64_t newest = m_log.getLastMark();
    if (newest > m_lastMark + SoFrameLog::MarkCapacity)
        m_lastMark = newest - SoFrameLog::MarkCapacity;
    SoFrameMark mark;
    for (; m_lastMark < newest; ++m_lastMark) {
        if (m_log.getMark(m_lastMark + 1, mark))
            to.marks.push_back(mark);
    }
}
