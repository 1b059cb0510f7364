// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class SpxExtension;

namespace scopix
{

class HostShell;

/// Of two consoles that show the same, the plain one stays hidden while the one that can be searched is
/// active, unless the user has shown it. Hidden or not, it handles what it handles. GUI thread only.
class SecondConsole : public QObject
{
    Q_OBJECT

public:
    /// The shell must outlive it.
    explicit SecondConsole(HostShell& shell);

    /// What the user wants, for the next session.
    bool isAskedFor() const { return m_isAskedFor; }
    void setAskedFor(bool isAskedFor) { m_isAskedFor = isAskedFor; }

private:
    SpxExtension* find(const char* name) const;
    void arrange();
    void shownChanged(bool isShown);

    HostShell& m_shell;
    bool m_isBeside = false; // both are active
    bool m_isAskedFor = false;
};

} // namespace scopix
