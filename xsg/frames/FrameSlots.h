// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFrameLog.h>

namespace xsg
{

/// Words that one thread writes while others read them: whoever reads learns whether they belong together.
/// A word is stored after the number was taken away, and read before it is looked at again, so a reader that
/// has seen any word of the next content finds the number gone.
template <std::size_t Count>
class SharedWords
{
public:
    template <class WordOf>
    void write(std::uint64_t number, const WordOf& wordOf) noexcept
    {
        m_number.store(0, std::memory_order_relaxed);
        for (std::size_t i = 0; i < Count; ++i)
            m_words[i].store(wordOf(i), std::memory_order_release);
        m_number.store(number, std::memory_order_release);
    }
    template <class Take>
    bool read(std::uint64_t number, const Take& take) const noexcept
    {
        if (m_number.load(std::memory_order_acquire) != number)
            return false;
        for (std::size_t i = 0; i < Count; ++i)
            take(i, m_words[i].load(std::memory_order_acquire));
        return m_number.load(std::memory_order_relaxed) == number;
    }

private:
    std::atomic<std::uint64_t> m_number{0};
    std::atomic<std::uint64_t> m_words[Count]{};
};

/// A frame's place in the log.
struct FrameSlot {
    static constexpr std::size_t Figures = SoFrame::NumFigures;
    static constexpr int GpuBits = 40; // 18 minutes
    SharedWords<1 + Figures + SoFrame::MostCounters> words;
    std::atomic<std::uint64_t> gpu{0}; // the lowest bits of the frame's number, and the time plus one

    static std::uint64_t tag(std::uint64_t number) { return number << GpuBits; }

    void write(const SoFrame& frame) noexcept
    {
        gpu.store(tag(frame.number), std::memory_order_relaxed);
        words.write(frame.number, [&frame](std::size_t i) {
            if (i == 0)
                return frame.counterSet;
            const std::int64_t word = i <= Figures ? frame.figures[i - 1] : frame.counters[i - 1 - Figures];
            return static_cast<std::uint64_t>(word);
        });
        if (frame[SoFrame::Gpu] > 0)
            setGpu(frame.number, frame[SoFrame::Gpu]);
    }
    void setGpu(std::uint64_t number, std::int64_t nanoseconds) noexcept
    {
        std::uint64_t unknown = tag(number);
        constexpr std::int64_t Most = (std::int64_t{1} << GpuBits) - 2;
        const auto word = static_cast<std::uint64_t>(std::min(std::max<std::int64_t>(nanoseconds, 0), Most));
        gpu.compare_exchange_strong(unknown, unknown + word + 1, std::memory_order_relaxed);
    }
    bool read(std::uint64_t number, SoFrame& frame) const noexcept
    {
        const bool isRead = words.read(number, [&frame](std::size_t i, std::uint64_t word) {
            if (i == 0)
                frame.counterSet = word;
            else if (i <= Figures)
                frame.figures[i - 1] = static_cast<std::int64_t>(word);
            else
                frame.counters[i - 1 - Figures] = static_cast<std::int64_t>(word);
        });
        const std::uint64_t time = gpu.load(std::memory_order_relaxed) - tag(number);
        frame.number = number;
        frame[SoFrame::Gpu] =
            time == 0 || time >> GpuBits ? SoFrame::Unknown : static_cast<std::int64_t>(time) - 1;
        return isRead;
    }
};

/// A mark's place in the log.
struct MarkSlot {
    static constexpr std::size_t TextWords = SoFrameLog::LongestMark / sizeof(std::uint64_t);
    SharedWords<1 + TextWords> words;

    void write(std::uint64_t number, std::int64_t time, std::string_view text) noexcept
    {
        std::uint64_t bytes[TextWords]{};
        text.copy(reinterpret_cast<char*>(bytes), cutAt(text));
        words.write(number,
                    [&](std::size_t i) { return i == 0 ? static_cast<std::uint64_t>(time) : bytes[i - 1]; });
    }
    bool read(std::uint64_t number, SoFrameMark& mark) const
    {
        std::uint64_t bytes[TextWords + 1]{};
        const bool isRead = words.read(number, [&](std::size_t i, std::uint64_t word) {
            if (i == 0)
                mark.time = static_cast<std::int64_t>(word);
            else
                bytes[i - 1] = word;
        });
        mark.text = reinterpret_cast<const char*>(bytes);
        return isRead;
    }
    // Not inside of a character of UTF-8.
    static std::size_t cutAt(std::string_view text)
    {
        std::size_t size = std::min(text.size(), SoFrameLog::LongestMark);
        while (size > 0 && size < text.size() && (text[size] & 0xC0) == 0x80)
            --size;
        return size;
    }
};

} // namespace xsg
