// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <memory>
#include <thread>
#include <vector>

namespace scopix
{

/// A place through which texts go on their way to `below`. Counts the threads that are inside of it.
template <class Target>
class Tap
{
public:
    /// A thread's way through one tap. Text that comes from a tap further up has been heard there; text that
    /// starts at the top, or in the middle of nothing, is new.
    class Visit
    {
    public:
        explicit Visit(Tap& tap)
            : m_tap(tap)
            , m_outer(innermost())
            , m_isNew(!m_outer || m_outer->m_tap.m_chain != tap.m_chain ||
                      m_outer->m_tap.m_level <= tap.m_level)
        {
            ++m_tap.m_visitors;
            innermost() = this;
        }
        Visit(const Visit&) = delete;
        Visit& operator=(const Visit&) = delete;
        ~Visit()
        {
            innermost() = m_outer;
            --m_tap.m_visitors;
        }
        bool isNew() const { return m_isNew; }

        static int countOwn(const Tap& tap)
        {
            int count = 0;
            for (const Visit* each = innermost(); each; each = each->m_outer)
                count += &each->m_tap == &tap ? 1 : 0;
            return count;
        }

    private:
        static Visit*& innermost()
        {
            thread_local Visit* visit = nullptr;
            return visit;
        }

        Tap& m_tap;
        Visit* m_outer;
        bool m_isNew;
    };

    explicit Tap(const void* chain)
        : m_chain(chain)
    {
    }
    Tap(const Tap&) = delete;
    Tap& operator=(const Tap&) = delete;
    virtual ~Tap() = default;

    Target getBelow() const { return m_below; }
    void setBelow(Target below) { m_below = below; }
    void setLevel(std::uint64_t level) { m_level = level; }
    /// Until no other thread is inside that found what was below before.
    void waitForVisitors() const
    {
        const int own = Visit::countOwn(*this);
        while (m_visitors > own)
            std::this_thread::yield();
    }

private:
    const void* m_chain;
    std::atomic<Target> m_below{};
    std::atomic<std::uint64_t> m_level{0};
    std::atomic<int> m_visitors{0};
};

/// Hears what goes through one slot of the process, such as the buffer of a stream, that others take over and
/// give back as they like. Above each of them it puts a tap, so that all that comes is heard at the top, and
/// each of them finds a tap, which outlives it, as what it has to put back. Whoever gives the slot back while
/// others stand above is taken out from among them.
///
/// Slot has the types Target and SlotTap, a Tap<Target>, and get(), set(Target), targetOf(SlotTap&),
/// makeTap(chain). Taps are never destroyed: somebody may still hold one, and uses it at any time. GUI thread
/// only, while other threads go through the slot.
template <class Slot>
class TapChain
{
public:
    using Target = typename Slot::Target;
    using SlotTap = typename Slot::SlotTap;

    explicit TapChain(Slot slot)
        : m_slot(slot)
    {
    }

    /// To be called after others may have taken the slot over or given it back.
    void settle()
    {
        const Target top = m_slot.get();
        const auto found = std::find_if(m_stack.begin(), m_stack.end(),
                                        [&](SlotTap* each) { return m_slot.targetOf(*each) == top; });
        if (found == m_stack.end())
            push(top);
        else if (*found != m_stack.back())
            takeOut(std::size_t(found - m_stack.begin()));
    }

    /// Gives the slot back. Taps below others stay in place and only pass on what comes.
    void end()
    {
        settle();
        m_slot.set(m_stack.back()->getBelow());
        m_stack.back()->waitForVisitors();
        if (m_stack.size() == 1)
            m_free.push_back(m_stack.back());
        m_stack.clear();
    }

    /// What was at this target has gone, and had taken over from `next`.
    void bypass(Target gone, Target next)
    {
        for (SlotTap* each : m_stack) {
            if (each->getBelow() == gone) {
                each->setBelow(next);
                each->waitForVisitors();
            }
        }
        dropDirect();
    }

    std::size_t size() const { return m_stack.size(); }

private:
    SlotTap* take()
    {
        if (m_free.empty()) {
            m_all.push_back(m_slot.makeTap(this));
            return m_all.back().get();
        }
        SlotTap* tap = m_free.back();
        m_free.pop_back();
        return tap;
    }

    void push(Target top)
    {
        SlotTap* tap = take();
        tap->setBelow(top);
        tap->setLevel(++m_level);
        m_stack.push_back(tap);
        m_slot.set(m_slot.targetOf(*tap));
    }

    // Whoever stood above this tap has given it back, and nobody else knows it.
    void takeOut(std::size_t place)
    {
        SlotTap* gone = m_stack[place];
        SlotTap* above = m_stack[place + 1];
        above->setBelow(gone->getBelow());
        m_slot.set(m_slot.targetOf(*m_stack.back()));
        above->waitForVisitors();
        gone->waitForVisitors();
        m_stack.erase(m_stack.begin() + std::ptrdiff_t(place));
        m_free.push_back(gone);
    }

    // A tap right above another is one too many.
    void dropDirect()
    {
        for (std::size_t i = 0; i + 1 < m_stack.size();) {
            if (m_stack[i + 1]->getBelow() == m_slot.targetOf(*m_stack[i]))
                takeOut(i);
            else
                ++i;
        }
    }

    Slot m_slot;
    std::vector<std::unique_ptr<SlotTap>> m_all;
    std::vector<SlotTap*> m_stack; // from the bottom
    std::vector<SlotTap*> m_free;
    std::uint64_t m_level = 0;
};

} // namespace scopix
