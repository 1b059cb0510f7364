// SPDX-License-Identifier: MIT
#include "Peer.h"

namespace scopix::live
{

namespace
{

constexpr std::size_t MostQuestions = 4096;
constexpr std::size_t MostQuestionBytes = std::size_t(16) << 20; // one more message may come on top
constexpr std::size_t MostAnswerBytes = std::size_t(8) << 20;    // one more answer may come on top
constexpr std::size_t IdleBytes = std::size_t(1) << 20;

using Lock = std::lock_guard<std::mutex>;

} // namespace

Peer::Peer(std::shared_ptr<const Wakeup> wakeup)
    : m_wakeup(std::move(wakeup))
{
}

bool Peer::isFull() const
{
    return m_questions.size() >= MostQuestions || m_questionBytes >= MostQuestionBytes;
}

bool Peer::hasRoomForQuestions() const
{
    const Lock lock(m_mutex);
    return !isFull();
}

void Peer::addQuestion(Message question)
{
    const Lock lock(m_mutex);
    m_questionBytes += question.contents.size();
    m_questions.push_back(std::move(question));
}

std::deque<Peer::Answer> Peer::takeAnswers()
{
    const Lock lock(m_mutex);
    m_unsentBytes += m_answerBytes;
    m_answerBytes = 0;
    return std::exchange(m_answers, {});
}

void Peer::setUnsentBytes(std::size_t bytes)
{
    const Lock lock(m_mutex);
    m_unsentBytes = bytes;
}

void Peer::setGone()
{
    const Lock lock(m_mutex);
    m_gone = true;
}

std::string Peer::reasonToGo() const
{
    const Lock lock(m_mutex);
    return m_reasonToGo;
}

std::optional<Message> Peer::takeQuestion()
{
    const Lock lock(m_mutex);
    if (m_questions.empty() || unsent() > MostAnswerBytes)
        return std::nullopt;
    const bool wasFull = isFull();
    Message question = std::move(m_questions.front());
    m_questions.pop_front();
    m_questionBytes -= question.contents.size();
    if (wasFull && !isFull())
        m_wakeup->wake();
    return question;
}

bool Peer::isIdle() const
{
    const Lock lock(m_mutex);
    return unsent() <= IdleBytes;
}

void Peer::send(Answer answer)
{
    const Lock lock(m_mutex);
    if (m_answers.empty())
        m_wakeup->wake();
    m_answerBytes += answer.bytes.size() + (answer.picture ? answer.picture->pixels.size() : 0);
    m_answers.push_back(std::move(answer));
}

bool Peer::isGone() const
{
    const Lock lock(m_mutex);
    return m_gone;
}

void Peer::sendAway(const std::string& reason)
{
    const Lock lock(m_mutex);
    m_reasonToGo = reason;
    m_wakeup->wake();
}

} // namespace scopix::live
