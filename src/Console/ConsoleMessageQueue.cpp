// SPDX-License-Identifier: MIT
#include "ConsoleMessageQueue.h"

#include "ConsoleLineSplitter.h"

namespace
{

constexpr int MaxPosted = 32;

} // namespace

ConsoleMessageQueue::ConsoleMessageQueue(Post post)
    : m_post(std::move(post))
{
}

void ConsoleMessageQueue::setMaxLines(int maxLines)
{
    const std::lock_guard lock(m_mutex);
    m_maxLines = maxLines;
}

void ConsoleMessageQueue::push(ConsoleMessage&& message)
{
    const int lines = console::countPieces(message.text);
    // Posted under the lock, so that nothing which comes later can be taken before the event is on its way.
    const std::lock_guard lock(m_mutex);
    if (m_posted < MaxPosted) {
        ++m_posted;
        m_post(std::move(message));
    } else {
        enqueue(std::move(message), lines);
    }
}

std::vector<ConsoleMessage> ConsoleMessageQueue::take(int maxLines)
{
    const std::lock_guard lock(m_mutex);
    std::vector<ConsoleMessage> messages;
    Queue* queue = oldest();
    for (int lines = 0; queue && lines < maxLines; queue = oldest()) {
        Waiting waiting = removeFirst(*queue);
        lines += waiting.lines;
        messages.push_back(std::move(waiting.message));
    }
    if (messages.empty())
        m_posted = 0;
    return messages;
}

std::size_t ConsoleMessageQueue::size() const
{
    const std::lock_guard lock(m_mutex);
    std::size_t count = 0;
    for (const Queue& queue : m_queues)
        count += queue.waiting.size();
    return count;
}

void ConsoleMessageQueue::enqueue(ConsoleMessage&& message, int lines)
{
    Queue& queue = m_queues[message.printedKind()];
    queue.waiting.push_back({std::move(message), lines, m_number++});
    queue.lines += lines;
    while (queue.lines - queue.waiting.front().lines >= m_maxLines)
        removeFirst(queue);
}

ConsoleMessageQueue::Queue* ConsoleMessageQueue::oldest()
{
    Queue* oldest = nullptr;
    for (Queue& queue : m_queues) {
        if (queue.waiting.empty())
            continue;
        if (!oldest || queue.waiting.front().number < oldest->waiting.front().number)
            oldest = &queue;
    }
    return oldest;
}

ConsoleMessageQueue::Waiting ConsoleMessageQueue::removeFirst(Queue& queue)
{
    Waiting first = std::move(queue.waiting.front());
    queue.waiting.pop_front();
    queue.lines -= first.lines;
    return first;
}
