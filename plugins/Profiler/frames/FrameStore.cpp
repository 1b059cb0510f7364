// SPDX-License-Identifier: MIT
#include "frames/FrameStore.h"

#include <scopix/SpxSentence.h>
#include <xsg/counters/SoPerfCounterManager.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QSysInfo>
#include <QTimerEvent>

#include <algorithm>

namespace profiler
{

namespace
{

constexpr int TakeMs = 100;
// Frames for which the graphics card's time is waited for.
constexpr std::uint64_t MostHeldBack = 8;
constexpr std::int64_t LongestHeldBack = 500'000'000; // nanoseconds: what ends the program takes no more

bool isThere(const SoFrameRecording& recording, const std::string& name)
{
    return recording.findColumn(name) != nullptr;
}

} // namespace

FrameStore::FrameStore(SoFrameLog& log, QObject* parent)
    : QObject(parent)
    , m_log(log)
{
    m_frames = SoFrameReader(log).makeEmpty();
}

FrameStore::~FrameStore()
{
    stopRecording();
    setWatched(false);
}

void FrameStore::setWatched(bool on)
{
    m_isWatched = on;
    follow();
}

// Whether somebody needs frames may have changed.
void FrameStore::follow()
{
    const bool isNeeded = m_isWatched || isRecording();
    if (isNeeded == m_reader.has_value())
        return;
    if (!isNeeded) {
        take(0);
        m_reader.reset();
        m_timer.stop();
        m_log.removeUser();
        return;
    }
    m_log.addUser();
    chooseCounters();
    m_timer.start(TakeMs, this);
}

std::uint64_t FrameStore::countHeldBack() const
{
    std::uint64_t count = 0;
    SoFrame frame;
    while (count < MostHeldBack && m_log.get(m_log.getLast() - count, frame) &&
           SoFrameLog::now() - frame[SoFrame::Begin] < LongestHeldBack)
        ++count;
    return count;
}

void FrameStore::wantCounters(const std::vector<SbName>& names)
{
    m_wanted = names;
    if (m_reader)
        chooseCounters();
}

void FrameStore::chooseCounters()
{
    std::vector<SbName> names;
    const SoPerfCounterManager& manager = *SoPerfCounterManager::getInstance();
    for (const SbName name : m_wanted) {
        const SoPerfCounter* counter = manager.getCounter(name);
        const bool isKnown = std::find(names.begin(), names.end(), name) != names.end();
        if (counter && !counter->isCustom() && !isKnown && names.size() < SoFrame::MostCounters)
            names.push_back(name);
    }
    for (const SoPerfCounter* counter : manager.getCounters()) {
        const bool isKnown = std::find(names.begin(), names.end(), counter->getName()) != names.end();
        if (!counter->isCustom() && !isKnown && names.size() < SoFrame::MostCounters)
            names.push_back(counter->getName());
    }
    if (m_reader && names == m_log.getCounters())
        return;
    if (m_reader)
        take(0);
    if (names != m_log.getCounters())
        m_log.setCounters(names);
    m_reader.emplace(m_log);
}

void FrameStore::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId())
        return;
    take(countHeldBack());
    follow(); // a recording may have ended by itself
}

void FrameStore::takeNow()
{
    take(0);
}

void FrameStore::take(std::uint64_t heldBack)
{
    if (!m_reader)
        return;
    SoFrameRecording rows = m_reader->makeEmpty();
    m_reader->take(rows, heldBack);
    if (rows.getNumFrames() == 0 && rows.marks.empty())
        return;
    write(rows);
    if (!m_isLive)
        return;
    append(rows);
    emit changed();
}

// Columns that only one side has are filled up.
void FrameStore::append(const SoFrameRecording& rows)
{
    const std::size_t before = m_frames.getNumFrames();
    for (const SoFrameColumn& column : rows.columns) {
        if (!isThere(m_frames, column.name))
            m_frames.columns.push_back({column.name, column.unit, column.isState,
                                        std::vector<std::int64_t>(before, SoFrame::Missing)});
    }
    const std::size_t whole = before + rows.getNumFrames();
    const std::size_t surplus = whole > MostFrames ? whole - MostFrames : 0;
    for (SoFrameColumn& column : m_frames.columns) {
        if (const SoFrameColumn* added = rows.findColumn(column.name))
            column.values.insert(column.values.end(), added->values.begin(), added->values.end());
        column.values.resize(whole, SoFrame::Missing);
        column.values.erase(column.values.begin(),
                            column.values.begin() + static_cast<std::ptrdiff_t>(surplus));
    }
    m_first += surplus;
    m_frames.marks.insert(m_frames.marks.end(), rows.marks.begin(), rows.marks.end());
    if (m_frames.marks.size() > MostFrames)
        m_frames.marks.erase(m_frames.marks.begin(), m_frames.marks.end() - MostFrames);
}

QString FrameStore::startRecording(const QString& path, const QString& scene)
{
    stopRecording();
    const bool wasOn = m_reader.has_value();
    if (!wasOn) {
        m_log.addUser();
        chooseCounters();
    }
    take(0);
    m_recorded = withSurroundings(m_reader->makeEmpty(), scene);
    const bool isOpen = m_file.open(path.toLocal8Bit().toStdString(), m_recorded);
    m_path = path;
    m_numRecorded = 0;
    if (!wasOn)
        m_timer.start(TakeMs, this);
    if (!isOpen)
        follow();
    return isOpen ? QString() : SpxSentence::translated(m_file.getProblem());
}

void FrameStore::write(const SoFrameRecording& rows)
{
    if (!isRecording())
        return;
    SoFrameRecording fitting = m_recorded;
    fitting.marks = rows.marks;
    for (SoFrameColumn& column : fitting.columns) {
        if (const SoFrameColumn* given = rows.findColumn(column.name))
            column.values = given->values;
        column.values.resize(rows.getNumFrames(), SoFrame::Missing);
    }
    if (m_file.write(fitting)) {
        m_numRecorded += rows.getNumFrames();
        return;
    }
    m_file.close();
    emit failed(tr("The recording “%1” cannot be continued: %2. What was written so far can be opened.")
                    .arg(m_path, SpxSentence::translated(m_file.getProblem())));
}

void FrameStore::stopRecording()
{
    if (!isRecording())
        return;
    take(0);
    m_file.close();
    follow();
}

void FrameStore::show(SoFrameRecording recording)
{
    m_isLive = false;
    m_first = 0;
    ++m_series;
    m_frames = std::move(recording);
    emit changed();
}

void FrameStore::showLive()
{
    m_isLive = true;
    m_first = 0;
    ++m_series;
    m_frames = SoFrameReader(m_log).makeEmpty();
    emit changed();
}

QString FrameStore::getTitle() const
{
    return QString::fromStdString(m_frames.getAbout("title"));
}

SoFrameRecording withSurroundings(SoFrameRecording recording, const QString& scene)
{
    if (!scene.isEmpty())
        recording.setAbout("scene", scene.toStdString());
    recording.setAbout("program", QCoreApplication::applicationName().toStdString() + " " +
                                      QCoreApplication::applicationVersion().toStdString());
    recording.setAbout("system", QSysInfo::prettyProductName().toStdString());
    recording.setAbout("processor", QSysInfo::currentCpuArchitecture().toStdString());
    recording.setAbout("began", QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString());
    return recording;
}

} // namespace profiler
