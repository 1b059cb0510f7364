// SPDX-License-Identifier: MIT
#pragma once

#include "ConsoleMessage.h"

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <vector>

/// What other threads have for the console, until the GUI thread prints it: in the order of arrival, within
/// bounded memory, however fast it arrives. The first messages of a turn of the event loop are posted one by
/// one; when more come, they wait here and are taken in bulk.
class ConsoleMessageQueue
{
public:
    using Post = std::function<void(ConsoleMessage&&)>;
    /// post makes an event of the message for the GUI thread; it may run on any thread.
    explicit ConsoleMessageQueue(Post post);

    /// Of each kind at least the newest maxLines lines are kept: older ones would be dropped again as soon as
    /// the console had printed those.
    void setMaxLines(int maxLines);

    /// Any thread.
    void push(ConsoleMessage&& message);

    /// GUI thread, after it has delivered what was posted: the oldest waiting messages, about maxLines lines
    /// of them. When none is left, posting begins again, so the caller has printed those that it took before.
    std::vector<ConsoleMessage> take(int maxLines);
    std::size_t size() const;

private:
    struct Waiting {
        ConsoleMessage message;
        int lines;
        std::uint64_t number;
    };
    struct Queue {
        std::deque<Waiting> waiting;
        std::int64_t lines = 0;
    };

    void enqueue(ConsoleMessage&& message, int lines);
    Queue* oldest();
    static Waiting removeFirst(Queue& queue);

    const Post m_post;
    mutable std::mutex m_mutex;
    std::array<Queue, ConsoleMessage::KindCount> m_queues;
    int m_maxLines = 1;
    int m_posted = 0; // since take() last found nothing
    std::uint64_t m_number = 0;
};
