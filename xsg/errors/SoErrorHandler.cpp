// SPDX-License-Identifier: MIT
#include <xsg/errors/SoErrorHandler.h>

#include <algorithm>
#include <vector>

namespace
{

constexpr std::size_t DeepestPosting = 16;

// The callbacks that this thread is inside of, the innermost last.
std::vector<const void*>& ownRuns()
{
    thread_local std::vector<const void*> runs;
    return runs;
}

} // namespace

// One run of a callback, from its beginning to its end.
class SoErrorHandler::Run
{
public:
    explicit Run(SoErrorHandler& handler)
        : m_handler(handler)
    {
        const std::lock_guard<std::mutex> lock(handler.m_mutex);
        m_slot = handler.m_slot;
        ++m_slot->runs;
        ownRuns().push_back(m_slot.get());
    }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;
    ~Run()
    {
        ownRuns().pop_back();
        const std::lock_guard<std::mutex> lock(m_handler.m_mutex);
        --m_slot->runs;
        m_handler.m_runEnded.notify_all();
    }
    void operator()(const SoError& error) const
    {
        if (m_slot->callback)
            m_slot->callback(&error, m_slot->data);
    }

private:
    SoErrorHandler& m_handler;
    std::shared_ptr<Slot> m_slot;
};

SoErrorHandler::SoErrorHandler(SoErrorCB* callback, void* data)
    : m_slot(std::make_shared<Slot>(Slot{callback, data, 0}))
{
}

void SoErrorHandler::set(SoErrorCB* callback, void* data)
{
    auto slot = std::make_shared<Slot>(Slot{callback, data, 0});
    std::unique_lock<std::mutex> lock(m_mutex);
    slot.swap(m_slot);
    const auto own = std::count(ownRuns().begin(), ownRuns().end(), slot.get());
    m_runEnded.wait(lock, [&] { return slot->runs <= own; });
}

SoErrorCB* SoErrorHandler::getCallback() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_slot->callback;
}

void* SoErrorHandler::getData() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_slot->data;
}

void SoErrorHandler::handle(const SoError& error)
{
    if (ownRuns().size() < DeepestPosting)
        Run{*this}(error);
}
