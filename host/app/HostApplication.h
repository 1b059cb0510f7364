// SPDX-License-Identifier: MIT
#pragma once

#include <scopix-host/CommandLine.h>
#include <scopix-host/HostExport.h>

#include <QObject>

#include <memory>

class SoNode;

namespace scopix
{

/// The inspector: its window, its plug-ins and its profiles, either as the program `scopix` or inside of an
/// application that has a QApplication and shows a scene of its own:
///
///     scopix::HostApplication inspector;
///     inspector.inspect(scene, "Engine");
///     inspector.start();
///
/// The application stays as it is: its style, palette, font, environment and attributes are not touched, it
/// keeps running when the inspector's window is closed, and its scene is neither animated nor saved by the
/// inspector. One at a time; GUI thread only, and destroyed before the QApplication.
///
/// Plug-ins that are active may change the process: the default extensions redirect its output and error
/// handlers to their console. While the inspector lives, the buffers of the C++ streams and the error
/// handlers are behind others, which pass on what comes.
class SCOPIX_HOST_API HostApplication : public QObject
{
    Q_OBJECT

public:
    HostApplication();
    /// Unloads the plug-ins while the window still stands.
    ~HostApplication() override;

    /// Call it before the inspector is made to have its texts, and those of its plug-ins, in the user's
    /// language, as the program `scopix` has it: the settings say which, or else the system. It installs a
    /// translator in the QApplication; without it, the inspector speaks English.
    static void speakUsersLanguage();
    /// Call it before start() to have each plug-in that is new or has changed loaded in a process of its own
    /// first, as the program `scopix` has it: its initialisers and its loadPlugin() run there once more. What
    /// would end or block the application is then refused in a sentence. Without it no other process is
    /// started, and a plug-in that ends the application is left out at the next start.
    void tryPluginsFirst();

    /// Loads profiles and plug-ins, shows the window and does what the command line asks for. Call it once.
    void start(const CommandLine& line = {});
    /// start(), and the event loop until finished(). Returns the exit status: 1 when something of the command
    /// line could not be done.
    int run(const CommandLine& line = {});

    /// Shows a scene of the application's under this title, in place of what was open. Edits act on the scene
    /// at once and can be undone; they are never "unsaved", since the scene belongs to no file. Holds a
    /// reference to the scene until another one is shown; null shows the shipped scene. False when the user
    /// keeps unsaved edits of what is open, which stays then.
    bool inspect(SoNode* scene, const QString& title = {});

    bool isVisible() const;
    /// Shows the window again, in front of others, with the scene and the selection that it had.
    void show();
    /// Closes the window as its user would, who is asked about unsaved edits of a file. False when it stays
    /// open.
    bool close();
    /// Writes unsaved edits of a file to where the next session finds and offers them, for a program that is
    /// about to end and can ask nobody. All is on the disk when this returns. `withTyping`: what is being
    /// typed and was not confirmed counts as an edit, for which the windows must be usable.
    void keepEdits(bool withTyping = true);

signals:
    /// The user has closed the window, or everything that the command line asks for is done and nobody is
    /// there to go on.
    void finished();

private:
    struct Private;
    const std::unique_ptr<Private> m_private;
};

} // namespace scopix
