// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <map>
#include <mutex>
#include <ostream>
#include <streambuf>
#include <string>
#include <thread>

/// Stands in for the buffer of a stream and hands what is written to it to a callback: blocks unsplit, single
/// characters line by line, collected for each thread apart. Any thread may write; the callback runs on that
/// thread.
///
/// The thread that makes a redirector also closes it, which puts the stream's previous buffer back. A thread
/// that found this buffer on the stream just before may still write to it a moment later, so keep a closed
/// redirector alive for a while: it passes such text on to the previous buffer.
template <class Char, class Traits = std::char_traits<Char>>
class StdStreamRedirector : public std::basic_streambuf<Char, Traits>
{
public:
    using Stream = std::basic_ostream<Char, Traits>;
    using Buffer = std::basic_streambuf<Char, Traits>;
    /// text ends in NUL. The length is that of a block, and 1 for a collected line, whatever its length
    /// (decisions.md: redirector-length).
    using Callback = void(const Char* text, long length, void* data);

    StdStreamRedirector(Stream& stream, Callback* callback, void* data)
        : m_stream(stream)
        , m_previous(stream.rdbuf())
        , m_callback(callback)
        , m_data(data)
    {
        // Last: from here on, other threads come in.
        m_open = true;
        stream.rdbuf(this);
    }
    StdStreamRedirector(const StdStreamRedirector&) = delete;
    StdStreamRedirector& operator=(const StdStreamRedirector&) = delete;
    ~StdStreamRedirector() override
    {
        close();
        waitForVisitors();
    }

    /// Puts the previous buffer back, waits until no other thread is inside the callback, and hands over what
    /// no newline has ended yet. May be called from inside the callback; a second call does nothing.
    void close()
    {
        if (!m_open)
            return;
        m_stream.rdbuf(m_previous);
        m_open = false;
        waitForVisitors();
        handOverRest();
    }

protected:
    using Int = typename Traits::int_type;

    std::streamsize xsputn(const Char* text, std::streamsize length) override
    {
        const Visit visit(*this);
        if (!m_open)
            return m_previous ? m_previous->sputn(text, length) : 0;
        m_callback(Line(text, std::size_t(length)).c_str(), long(length), m_data);
        return length;
    }

    /// Returns the character, 0 for the end of the file.
    Int overflow(Int character) override
    {
        const Visit visit(*this);
        if (Traits::eq_int_type(character, Traits::eof()))
            return Int(0);
        const Char c = Traits::to_char_type(character);
        if (!m_open)
            return m_previous ? m_previous->sputc(c) : Traits::eof();
        if (c == Char('\n'))
            m_callback(takeLine().c_str(), 1, m_data);
        else
            extendLine(c);
        return character;
    }

private:
    using Line = std::basic_string<Char, Traits>;

    /// While one lives, close() waits: for every thread but the owner, which cannot wait for itself.
    class Visit
    {
    public:
        explicit Visit(StdStreamRedirector& visited)
            : m_visited(visited.isOwner() ? nullptr : &visited)
        {
            if (m_visited)
                ++m_visited->m_visitors;
        }
        Visit(const Visit&) = delete;
        Visit& operator=(const Visit&) = delete;
        ~Visit()
        {
            if (m_visited)
                --m_visited->m_visitors;
        }

    private:
        StdStreamRedirector* m_visited;
    };

    /// m_open first: it makes what the constructor wrote visible to this thread.
    bool isOwner() const { return m_open && std::this_thread::get_id() == m_owner; }

    void waitForVisitors() const
    {
        while (m_visitors > 0)
            std::this_thread::yield();
    }

    void extendLine(Char character)
    {
        const std::lock_guard lock(m_linesMutex);
        m_lines[std::this_thread::get_id()] += character;
    }

    Line takeLine()
    {
        const std::lock_guard lock(m_linesMutex);
        const auto node = m_lines.extract(std::this_thread::get_id());
        return node ? node.mapped() : Line();
    }

    void handOverRest()
    {
        std::map<std::thread::id, Line> rest;
        rest.swap(m_lines);
        for (const auto& [thread, line] : rest)
            m_callback(line.c_str(), 1, m_data);
    }

    Stream& m_stream;
    Buffer* m_previous;
    Callback* m_callback;
    void* m_data;
    const std::thread::id m_owner = std::this_thread::get_id();
    std::atomic<bool> m_open{false};
    std::atomic<int> m_visitors{0};
    std::mutex m_linesMutex;
    std::map<std::thread::id, Line> m_lines; // of each thread, since its last newline
};
