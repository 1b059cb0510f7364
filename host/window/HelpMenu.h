// SPDX-License-Identifier: MIT
#pragma once

#include "start/PluginState.h"

#include <QObject>

class QMenu;
class QWidget;

namespace scopix
{

class HelpWindow;
class HostServices;
class UserNotifier;

/// The help menu, with the pages of the documentation, and what the program is made of. GUI thread only.
class HelpMenu : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        QWidget& window; // whose help it is
        HostServices& services;
        UserNotifier& notifier;
        PluginStates plugins;
    };

    /// Fills `menu`, which owns it; the parts must outlive it.
    HelpMenu(QMenu& menu, const Parts& parts);

    /// As SpxGuide::showHelp() has it.
    bool show(const QString& page, const QString& section);

private:
    void explainMoving();
    void showContents();
    void showTutorial();
    void showOnSelected();
    void showAbout();

    Parts m_parts;
    HelpWindow* m_help = nullptr; // as soon as help is asked for
};

} // namespace scopix
