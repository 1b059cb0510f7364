// SPDX-License-Identifier: MIT
#include "console/LogInbox.h"

#include "console/LogStore.h"

#include <scopix/SpxSentence.h>
#include <xsg/errors/SoDebugError.h>

#include <algorithm>
#include <utility>

#include <pthread.h>

namespace profiler
{

namespace
{

// Programs that start a thread for each piece of work have many of them, one after the other.
constexpr std::size_t MostThreads = 1000;

LogKind kindOf(SpxOutputListener::Stream stream)
{
    return stream == SpxOutputListener::Stream::Error ? LogKind::Error : LogKind::Output;
}

LogKind kindOf(const SoError& error)
{
    if (!error.isOfType(SoDebugError::getClassTypeId()))
        return LogKind::Error;
    switch (static_cast<const SoDebugError&>(error).getSeverity()) {
    case SoDebugError::WARNING:
        return LogKind::Warning;
    case SoDebugError::INFO:
        return LogKind::Info;
    default:
        return LogKind::Error;
    }
}

std::int64_t now()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

std::string_view withoutReturn(std::string_view line)
{
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

std::string nameOfThisThread()
{
    char name[16] = {};
    return pthread_getname_np(pthread_self(), name, sizeof name) == 0 ? name : "";
}

// In the user's language, where somebody has translated it.
std::string textOf(const SoError& error)
{
    const SbSentence& sentence = error.getSentence();
    return sentence.getSource() ? SpxSentence::translated(sentence).toStdString() : sentence.getText();
}

} // namespace

LogInbox::LogInbox(std::function<void()> wake, std::uint64_t mostLines)
    : m_wake(std::move(wake))
    , m_mostLines(mostLines)
{
    thisThread();
}

void LogInbox::written(Stream stream, const char* text, std::size_t length)
{
    const std::lock_guard lock(m_mutex);
    m_now = now();
    Thread& thread = thisThread();
    OpenLine& open = thread.open[int(stream)];
    const std::string_view rest =
        addLines(open, std::string_view(text, length), kindOf(stream), thread.number);
    if (!rest.empty()) {
        extend(open, rest, kindOf(stream), thread.number);
        open.touched = Clock::now();
    }
    wake();
}

void LogInbox::reported(const SoError& error)
{
    const std::string text = textOf(error);
    const std::lock_guard lock(m_mutex);
    m_now = now();
    const std::uint16_t thread = thisThread().number;
    OpenLine line;
    const std::string_view rest = addLines(line, text, kindOf(error), thread);
    endWith(line, rest, kindOf(error), thread);
    wake();
}

// Returns what stands behind the last line end.
std::string_view LogInbox::addLines(OpenLine& line, std::string_view text, LogKind kind, std::uint16_t thread)
{
    for (std::size_t end = text.find('\n'); end != text.npos; end = text.find('\n')) {
        endWith(line, text.substr(0, end), kind, thread);
        text.remove_prefix(end + 1);
    }
    return text;
}

// Most lines come whole, and are copied once.
void LogInbox::endWith(OpenLine& line, std::string_view text, LogKind kind, std::uint16_t thread)
{
    if (line.text.empty() && !line.isPiece && text.size() <= LogChunk::LongestLine)
        return add(withoutReturn(text), kind, thread);
    extend(line, text, kind, thread);
    end(line, kind, thread);
}

// An open line never grows beyond what a line may have.
void LogInbox::extend(OpenLine& line, std::string_view text, LogKind kind, std::uint16_t thread)
{
    while (line.text.size() + text.size() > LogChunk::LongestLine) {
        const std::size_t fitting = LogChunk::LongestLine - line.text.size();
        line.text += text.substr(0, fitting);
        text.remove_prefix(fitting);
        add(std::exchange(line.text, {}), kind, thread);
        line.isPiece = true;
    }
    line.text += text;
}

void LogInbox::end(OpenLine& line, LogKind kind, std::uint16_t thread)
{
    const std::string_view text = withoutReturn(line.text);
    if (!text.empty() || !line.isPiece)
        add(text, kind, thread);
    line.text.clear();
    line.isPiece = false;
}

void LogInbox::add(std::string_view line, LogKind kind, std::uint16_t thread)
{
    if (m_batch.chunks.empty() || m_batch.chunks.back().isFull())
        addChunk();
    m_batch.chunks.back().append(line, kind, thread, m_now);
    ++m_lines;
    m_bytes += line.size() + sizeof(LogLine);
    while (m_batch.chunks.size() > 1 && (m_lines > m_mostLines || m_bytes > LogStore::MostBytes)) {
        const LogChunk& oldest = m_batch.chunks.front();
        m_lines -= oldest.size();
        m_batch.dropped += oldest.size();
        m_bytes -= std::min(m_bytes, oldest.allText().size() + oldest.size() * sizeof(LogLine));
        m_batch.chunks.pop_front();
    }
}

// Where one has become full, the next one will.
void LogInbox::addChunk()
{
    LogChunk chunk;
    if (!m_batch.chunks.empty())
        chunk.reserveLike(m_batch.chunks.back());
    m_batch.chunks.push_back(std::move(chunk));
}

LogInbox::Batch LogInbox::take()
{
    const std::lock_guard lock(m_mutex);
    m_isAwake = false;
    m_lines = 0;
    m_bytes = 0;
    return std::exchange(m_batch, {});
}

bool LogInbox::endLines(Clock::time_point since)
{
    const std::lock_guard lock(m_mutex);
    bool hasOthers = false;
    m_now = now();
    for (auto& [id, thread] : m_threads) {
        for (int stream = 0; stream < 3; ++stream) {
            OpenLine& open = thread.open[stream];
            if (open.text.empty())
                continue;
            if (open.touched > since)
                hasOthers = true;
            else
                end(open, kindOf(Stream(stream)), thread.number);
        }
    }
    return hasOthers;
}

std::string LogInbox::nameOfThread(std::uint16_t thread) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_names.find(thread);
    return found == m_names.end() ? std::to_string(thread) : found->second;
}

// A new thread of the same id goes on with the number.
LogInbox::Thread& LogInbox::thisThread()
{
    const auto id = std::this_thread::get_id();
    if (m_latest && m_latestId == id)
        return *m_latest;
    m_latest = &findThread(id);
    m_latestId = id;
    return *m_latest;
}

LogInbox::Thread& LogInbox::findThread(std::thread::id id)
{
    const auto found = m_threads.find(id);
    if (found != m_threads.end())
        return found->second;
    if (m_threads.size() >= MostThreads)
        forgetIdleThreads();
    const std::uint16_t number = ++m_lastThread;
    const std::string own = nameOfThisThread();
    const bool isNamed = number > 1 && !own.empty() && own != m_names[1];
    if (m_names.size() > 2 * MostThreads)
        m_names.erase(std::next(m_names.begin()));
    m_names[number] = number == 1 ? own : std::to_string(number) + (isNamed ? " " + own : "");
    return m_threads[id] = Thread{number, {}};
}

void LogInbox::forgetIdleThreads()
{
    m_latest = nullptr;
    for (auto each = m_threads.begin(); each != m_threads.end();) {
        const Thread& thread = each->second;
        const bool isIdle = std::all_of(std::begin(thread.open), std::end(thread.open),
                                        [](const OpenLine& line) { return line.text.empty(); });
        each = isIdle ? m_threads.erase(each) : std::next(each);
    }
}

void LogInbox::wake()
{
    if (!std::exchange(m_isAwake, true))
        m_wake();
}

} // namespace profiler
