// SPDX-License-Identifier: MIT
#include "console/LogDock.h"

#include "console/LogBadge.h"
#include "console/LogModel.h"
#include "console/LogPanel.h"

#include <scopix/SpxOutput.h>
#include <scopix/SpxShellMenus.h>

namespace profiler
{

LogDock::LogDock()
    : PanelDock(
          QT_TRANSLATE_NOOP("Extension", "Log"),
          QT_TRANSLATE_NOOP("Extension", "Shows what is written and reported, to filter and to find in."))
{
}

LogDock::~LogDock() = default;

QWidget* LogDock::makePanel()
{
    return new LogPanel(*m_model);
}

// From here on it hears, so that what is said before it is activated is there too.
void LogDock::load()
{
    m_model = std::make_unique<LogModel>();
    m_badge = std::make_unique<LogBadge>(*m_model);
    PanelDock::load();
    connect(m_badge.get(), &QToolButton::clicked, this, &LogDock::showFirstError);
    if (SpxOutput* output = SpxOutput::getInstance())
        output->addListener(&m_model->getInbox());
}

void LogDock::unload()
{
    if (SpxOutput* output = SpxOutput::getInstance())
        output->removeListener(&m_model->getInbox());
    PanelDock::unload();
    m_badge.reset();
    m_model.reset();
}

void LogDock::activate()
{
    PanelDock::activate();
    m_badge->attach();
    show();
}

void LogDock::deactivate()
{
    m_badge->detach();
    PanelDock::deactivate();
}

void LogDock::showFirstError()
{
    const std::uint64_t line = m_model->getFirstErrorLine();
    show();
    if (SpxShellMenus* menus = SpxShellMenus::getInstance())
        menus->raiseDocksOf("Log");
    static_cast<LogPanel*>(getPanel())->goToLine(line);
    m_model->clearErrors();
    getPanel()->setFocus();
}

} // namespace profiler
