// SPDX-License-Identifier: MIT
#include "app/SecondConsole.h"

#include "shell/HostShell.h"
#include "support/CatchExceptions.h"

#include <scopix/SpxExtension.h>

#include <algorithm>
#include <utility>

namespace scopix
{

SecondConsole::SecondConsole(HostShell& shell)
    : m_shell(shell)
{
    connect(&shell, &HostShell::extensionsChanged, this, &SecondConsole::arrange);
}

SpxExtension* SecondConsole::find(const char* name) const
{
    const QList<SpxExtension*>& all = m_shell.extensions();
    const auto found = std::find_if(all.begin(), all.end(), [name](const SpxExtension* each) {
        return each->getName() == SbString(name);
    });
    return found == all.end() ? nullptr : *found;
}

void SecondConsole::arrange()
{
    SpxExtension* plain = find("Console");
    const bool isBeside = plain && find("Log");
    if (isBeside == std::exchange(m_isBeside, isBeside))
        return;
    if (!isBeside) {
        if (plain)
            disconnect(plain, nullptr, this, nullptr);
        return;
    }
    if (!m_isAskedFor && plain->isShown())
        catchExceptions([plain] { plain->hide(); });
    connect(plain, &SpxExtension::shownChanged, this, &SecondConsole::shownChanged, Qt::UniqueConnection);
}

// Its own activation and end are no wish of the user's.
void SecondConsole::shownChanged(bool isShown)
{
    const SpxExtension* plain = find("Console");
    if (plain && plain->isActive() && m_isBeside)
        m_isAskedFor = isShown;
}

} // namespace scopix
