// SPDX-License-Identifier: MIT
#pragma once

#include "ConsoleMessage.h"
#include "ConsoleMessageQueue.h"
#include "StdStreamRedirector.h"

#include <scopix/SpxExtension.h>

#include <QColor>
#include <QEvent>
#include <QTimer>

#include <array>
#include <memory>
#include <vector>

class ConsoleText;
class QDockWidget;
class QFrame;
class ScopedErrorHandlers;
class SoError;
class Ui_m_consoleFrame;

/// Shows, in a dock at the bottom, what the application writes to std::cout and std::cerr while the console
/// is active, and what the scene-graph library reports while it is loaded: coloured by kind, filtered,
/// cleared and saved by buttons. It holds the newest lines, as many as the preference XSG_CONSOLE_MAX_LINES
/// says (100,000 unless set).
///
/// Text may come from any thread: the GUI thread's is printed at once, that of others from the event loop.
class SpxConsole : public SpxExtension
{
    Q_OBJECT

public:
    class ConsoleEvent;

    SpxConsole();
    ~SpxConsole() override;

    void activate() override;
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;
    bool event(QEvent* event) override;

    /// GUI thread. What is printed while its kind is switched off is lost.
    void printError(const QString& text);
    void printInfo(const QString& text);
    void printWarning(const QString& text);

    /// The callbacks; data is the console. Any thread.
    static void stdoutcb(const char* text, long length, void* console);
    static void stderrcb(const char* text, long length, void* console);
    static void errorHandlerCB(const SoError* error, void* console);

public slots:
    void clear();
    void outputErrors();
    void outputInfos();
    void outputWarnings();
    void save();

private:
    using Redirector = StdStreamRedirector<char>;

    struct Output {
        QColor color;
        bool shown = true;
    };

    void write(ConsoleMessage&& message);
    void print(ConsoleMessage&& message);
    void append(const ConsoleMessage* begin, const ConsoleMessage* end);
    void toggle(ConsoleMessage::Kind kind);
    std::size_t printSome();
    void takeTurn();
    void printWaiting();
    void retire(std::unique_ptr<Redirector>& redirector);

    std::unique_ptr<Ui_m_consoleFrame> m_form;
    std::array<Output, ConsoleMessage::KindCount> m_outputs;
    QDockWidget* m_dock = nullptr;
    QFrame* m_frame = nullptr;           // child of the dock
    std::unique_ptr<ConsoleText> m_text; // null while not loaded
    ConsoleMessageQueue m_inbox;         // outlives those that write to it
    std::unique_ptr<ScopedErrorHandlers> m_savedHandlers;
    std::unique_ptr<Redirector> m_stderrRedirector; // null while inactive
    std::unique_ptr<Redirector> m_stdoutRedirector;
    /// Closed ones; another thread may still be about to write to them.
    std::vector<std::unique_ptr<Redirector>> m_retiredRedirectors;
    QTimer m_inboxTimer;
    bool m_printing = false;
};

/// Carries a message to the GUI thread.
class SpxConsole::ConsoleEvent : public QEvent
{
public:
    static constexpr Type EventType = Type(QEvent::User); // 1000

    explicit ConsoleEvent(ConsoleMessage&& message)
        : QEvent(EventType)
        , m_message(std::move(message))
    {
    }
    const ConsoleMessage& message() const { return m_message; }

private:
    ConsoleMessage m_message;
};
