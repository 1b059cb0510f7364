// SPDX-License-Identifier: MIT
#pragma once

#include "Wakeup.h"

#include <scopix/live/protocol/Messages.h>

#include <deque>
#include <memory>
#include <mutex>

namespace scopix::live
{

/// What waits between an inspector's connection, in the server's thread, and its attachment, in the
/// program's. Both ways are bounded: where the program draws no frames no more is read, and where the
/// inspector reads nothing no more is answered.
class Peer
{
public:
    /// A message for the inspector. A picture's pixels follow by themselves.
    struct Answer {
        Bytes bytes;
        std::optional<Picture> picture;
    };

    explicit Peer(std::shared_ptr<const Wakeup> wakeup);

    // For the server's thread
    bool hasRoomForQuestions() const;
    void addQuestion(Message question);
    std::deque<Answer> takeAnswers();
    /// How much of what was taken is not sent yet.
    void setUnsentBytes(std::size_t bytes);
    void setGone();
    /// Why the program wants the inspector to go; empty while it does not.
    std::string reasonToGo() const;

    // For the program's thread
    std::optional<Message> takeQuestion();
    /// What can be told later, or not at all, waits until hardly anything else does.
    bool isIdle() const;
    void send(Answer answer);
    bool isGone() const;
    void sendAway(const std::string& reason);

private:
    bool isFull() const;
    std::size_t unsent() const { return m_answerBytes + m_unsentBytes; }

    mutable std::mutex m_mutex;
    std::shared_ptr<const Wakeup> m_wakeup;
    std::deque<Message> m_questions;
    std::size_t m_questionBytes = 0;
    std::deque<Answer> m_answers;
    std::size_t m_answerBytes = 0;
    std::size_t m_unsentBytes = 0;
    bool m_gone = false;
    std::string m_reasonToGo;
};

} // namespace scopix::live
