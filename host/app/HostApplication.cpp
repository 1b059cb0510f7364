// SPDX-License-Identifier: MIT
#include <scopix-host/HostApplication.h>

#include "app/HostSession.h"
#include "language/Languages.h"
#include "window/MainWindow.h"

namespace scopix
{

namespace
{

std::unique_ptr<HostWindow> makeWindow(HostServices& services, UserNotifier& notifier)
{
    return std::make_unique<MainWindow>(services, notifier);
}

} // namespace

struct HostApplication::Private {
    HostSession session{makeWindow};
    MainWindow& window = static_cast<MainWindow&>(session.window());
};

HostApplication::HostApplication()
    : m_private(std::make_unique<Private>())
{
    connect(&m_private->session, &HostSession::finished, this, &HostApplication::finished);
}

HostApplication::~HostApplication() = default;

void HostApplication::speakUsersLanguage()
{
    Languages::begin();
}

void HostApplication::tryPluginsFirst()
{
    m_private->session.plugins().setTriesFirst(true);
}

void HostApplication::start(const CommandLine& line)
{
    m_private->session.start(line);
}

int HostApplication::run(const CommandLine& line)
{
    return m_private->session.run(line);
}

bool HostApplication::inspect(SoNode* scene, const QString& title)
{
    return m_private->window.inspect(scene, title);
}

bool HostApplication::isVisible() const
{
    return m_private->window.isVisible();
}

void HostApplication::show()
{
    MainWindow& window = m_private->window;
    if (window.isMinimized())
        window.showNormal();
    window.show();
    window.raise();
    window.activateWindow();
}

bool HostApplication::close()
{
    return m_private->window.close();
}

void HostApplication::keepEdits(bool withTyping)
{
    m_private->window.getFiles().keepEdits(withTyping);
}

} // namespace scopix
