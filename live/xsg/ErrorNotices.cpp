// SPDX-License-Identifier: MIT
#include "ErrorNotices.h"

#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoMemoryError.h>
#include <xsg/errors/SoReadError.h>

namespace scopix::live
{

namespace
{

constexpr std::size_t MostNotices = 1000; // the oldest ones go

NoticeLevel levelOf(const SoError& error)
{
    const auto* debug = dynamic_cast<const SoDebugError*>(&error);
    if (!debug || debug->getSeverity() == SoDebugError::ERROR)
        return NoticeLevel::Error;
    return debug->getSeverity() == SoDebugError::WARNING ? NoticeLevel::Warning : NoticeLevel::Info;
}

} // namespace

template <class Error>
void ErrorNotices::hearOf(Handling& handling)
{
    handling.former = {Error::getHandlerCallback(), Error::getHandlerData()};
    Error::setHandlerCallback(handle, &handling);
}

// Where somebody else has taken the handler since, it stays theirs.
template <class Error>
void ErrorNotices::leave(const Handling& handling)
{
    if (Error::getHandlerData() == &handling)
        Error::setHandlerCallback(handling.former.callback, handling.former.data);
}

ErrorNotices::ErrorNotices()
{
    hearOf<SoError>(m_errors);
    hearOf<SoDebugError>(m_debugErrors);
    hearOf<SoReadError>(m_readErrors);
    hearOf<SoMemoryError>(m_memoryErrors);
}

ErrorNotices::~ErrorNotices()
{
    leave<SoMemoryError>(m_memoryErrors);
    leave<SoReadError>(m_readErrors);
    leave<SoDebugError>(m_debugErrors);
    leave<SoError>(m_errors);
}

void ErrorNotices::handle(const SoError* error, void* data)
{
    const auto& handling = *static_cast<const Handling*>(data);
    handling.notices->add({levelOf(*error), error->getDebugString().str()});
    if (handling.former.callback)
        handling.former.callback(error, handling.former.data);
}

void ErrorNotices::add(Notice notice)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_notices.push_back(std::move(notice));
    if (m_notices.size() > MostNotices)
        m_notices.pop_front();
}

std::vector<Notice> ErrorNotices::take()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<Notice> notices(m_notices.begin(), m_notices.end());
    m_notices.clear();
    return notices;
}

} // namespace scopix::live
