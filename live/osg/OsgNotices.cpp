// SPDX-License-Identifier: MIT
#include "OsgNotices.h"

#include <deque>
#include <mutex>

namespace scopix::live
{

namespace
{

constexpr std::size_t mostNotices = 1000;
constexpr std::size_t longestNotice = 4000;

NoticeLevel levelOf(osg::NotifySeverity severity)
{
    if (severity <= osg::FATAL)
        return NoticeLevel::Error;
    if (severity == osg::WARN)
        return NoticeLevel::Warning;
    return severity <= osg::INFO ? NoticeLevel::Info : NoticeLevel::Debug;
}

} // namespace

class OsgNotices::Handler : public osg::NotifyHandler
{
public:
    explicit Handler(osg::NotifyHandler* inner)
        : m_inner(inner)
    {
    }

    osg::NotifyHandler* inner() const { return m_inner.get(); }

    void notify(osg::NotifySeverity severity, const char* message) override
    {
        if (m_inner)
            m_inner->notify(severity, message);
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (const char* c = message; c && *c; ++c) {
            if (*c == '\n' || m_line.size() >= longestNotice)
                endLine(severity);
            if (*c != '\n')
                m_line += *c;
        }
    }

    std::vector<Notice> take()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        std::vector<Notice> notices(m_notices.begin(), m_notices.end());
        m_notices.clear();
        return notices;
    }

private:
    void endLine(osg::NotifySeverity severity)
    {
        if (!m_line.empty())
            m_notices.push_back({levelOf(severity), m_line});
        m_line.clear();
        if (m_notices.size() > mostNotices)
            m_notices.pop_front();
    }

    osg::ref_ptr<osg::NotifyHandler> m_inner;
    std::mutex m_mutex;
    std::string m_line;
    std::deque<Notice> m_notices;
};

OsgNotices::OsgNotices() = default;

OsgNotices::~OsgNotices()
{
    stop();
}

void OsgNotices::start()
{
    if (m_handler)
        return;
    m_handler = new Handler(osg::getNotifyHandler());
    osg::setNotifyHandler(m_handler);
}

void OsgNotices::stop()
{
    if (m_handler && osg::getNotifyHandler() == m_handler)
        osg::setNotifyHandler(m_handler->inner());
    m_handler = nullptr;
}

std::vector<Notice> OsgNotices::take()
{
    return m_handler ? m_handler->take() : std::vector<Notice>();
}

} // namespace scopix::live
