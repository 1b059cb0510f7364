// SPDX-License-Identifier: MIT
#include "SpxConsole.h"

#include "ConsoleFile.h"
#include "ConsoleText.h"
#include "ScopedErrorHandlers.h"
#include "ui_SpxConsole.h"

#include <scopix/SpxShell.h>
#include <xsg/core/SoPreferences.h>
#include <xsg/errors/SoDebugError.h>

#include <QCoreApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QScopedValueRollback>
#include <QThread>

#include <cstdio>
#include <iostream>

namespace
{

constexpr const char* MaxLinesName = "XSG_CONSOLE_MAX_LINES";
constexpr int DefaultMaxLines = 100000;
constexpr int LargestMaxLines = 10000000;
// How long the event loop may be held up by printing what other threads have sent, and how much is printed
// between two looks at the clock.
constexpr qint64 TurnMilliseconds = 8;
constexpr int LinesAtOnce = 256;

// What the console can hold of what the preference asks for.
int maxLinesFor(int preference)
{
    return preference >= 1 && preference <= LargestMaxLines ? preference : DefaultMaxLines;
}

void complainAboutMaxLines(int preference)
{
    const QString sentence =
        QStringLiteral("%1 is %2, where a number of lines from 1 to %3 was expected; %4 are kept.")
            .arg(QLatin1String(MaxLinesName))
            .arg(preference)
            .arg(LargestMaxLines)
            .arg(DefaultMaxLines);
    SoDebugError::postWarning("SpxConsole", sentence.toLatin1().constData());
}

ConsoleMessage::Kind kindOf(const SoError& error)
{
    if (!error.isOfType(SoDebugError::getClassTypeId()))
        return ConsoleMessage::Error;
    switch (static_cast<const SoDebugError&>(error).getSeverity()) {
    case SoDebugError::WARNING:
        return ConsoleMessage::Warning;
    case SoDebugError::INFO:
        return ConsoleMessage::Info;
    default:
        return ConsoleMessage::Error;
    }
}

// UTF-8, as the scene graph writes it, or else bytes of an application's own.
QString textOf(const SoError& error)
{
    const char* bytes = error.getDebugString().getString();
    const QString text = QString::fromUtf8(bytes);
    return text.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(bytes) : text;
}

// For what comes when there is no console any more.
void passToStderr(const ConsoleMessage* begin, const ConsoleMessage* end)
{
    for (; begin != end; ++begin)
        std::fprintf(stderr, "%s\n", begin->text.toLatin1().constData());
}

} // namespace

SpxConsole::SpxConsole()
    : m_inbox([this](ConsoleMessage&& message) {
        QCoreApplication::postEvent(this, new ConsoleEvent(std::move(message)));
    })
{
    setName("Console");
    setDescription("A console which prints the standard output and error.");
    setVendor("Arvex");
    setVersion("1.0.0");
    m_outputs[ConsoleMessage::Error].color = Qt::darkRed;
    m_outputs[ConsoleMessage::Info].color = Qt::darkGreen;
    m_outputs[ConsoleMessage::Warning].color = Qt::darkYellow;
    connect(&m_inboxTimer, &QTimer::timeout, this, &SpxConsole::takeTurn);
}

SpxConsole::~SpxConsole() = default;

void SpxConsole::load()
{
    m_dock = new QDockWidget;
    m_frame = new QFrame(m_dock);
    m_form = std::make_unique<Ui_m_consoleFrame>();
    m_form->setupUi(m_frame);
    for (Output& output : m_outputs)
        output.shown = true;

    connect(m_form->m_clearButton, &QPushButton::clicked, this, &SpxConsole::clear);
    connect(m_form->m_errorsButton, &QPushButton::toggled, this, &SpxConsole::outputErrors);
    connect(m_form->m_infosButton, &QPushButton::toggled, this, &SpxConsole::outputInfos);
    connect(m_form->m_saveButton, &QPushButton::clicked, this, &SpxConsole::save);
    connect(m_form->m_warningsButton, &QPushButton::toggled, this, &SpxConsole::outputWarnings);

    const int preference = SoPreferences::getInt(MaxLinesName, DefaultMaxLines);
    const int maxLines = maxLinesFor(preference);
    m_inbox.setMaxLines(maxLines);
    m_text = std::make_unique<ConsoleText>(*m_form->m_consoleOutput, maxLines);
    m_savedHandlers = std::make_unique<ScopedErrorHandlers>(errorHandlerCB, this);
    if (maxLines != preference)
        complainAboutMaxLines(preference);
}

void SpxConsole::unload()
{
    m_text.reset();
    m_form.reset();
    delete m_frame;
    delete m_dock;
    m_frame = nullptr;
    m_dock = nullptr;
    m_savedHandlers.reset();
    m_retiredRedirectors.clear();
    printWaiting();
    m_inboxTimer.stop();
}

void SpxConsole::activate()
{
    // Before the base's activate() (decisions.md: console-attached-first).
    SpxShell::getInstance()->attachExtension(this, true);
    SpxExtension::activate();

    m_dock->setWidget(m_frame);
    m_dock->setWindowTitle(tr("Console"));
    m_retiredRedirectors.clear();
    m_stderrRedirector = std::make_unique<Redirector>(std::cerr, stderrcb, this);
    m_stdoutRedirector = std::make_unique<Redirector>(std::cout, stdoutcb, this);
    SpxShell::getInstance()->addDockWidget(m_dock, Qt::BottomDockWidgetArea);
    show();
}

void SpxConsole::deactivate()
{
    SpxExtension::deactivate();
    m_dock->setWidget(nullptr);
    retire(m_stderrRedirector);
    retire(m_stdoutRedirector);
    printWaiting();
    SpxShell::getInstance()->removeDockWidget(m_dock);
    hide();
    SpxShell::getInstance()->detachExtension(this);
}

void SpxConsole::show()
{
    SpxExtension::show();
    m_dock->setVisible(true);
    m_frame->setVisible(true);
}

void SpxConsole::hide()
{
    SpxExtension::hide();
    m_dock->setVisible(false);
    m_frame->setVisible(false);
}

bool SpxConsole::event(QEvent* event)
{
    // Others may post events of the same number.
    if (const auto* consoleEvent = dynamic_cast<ConsoleEvent*>(event)) {
        print(ConsoleMessage(consoleEvent->message()));
        m_inboxTimer.start(0);
    }
    return QObject::event(event);
}

void SpxConsole::printError(const QString& text)
{
    print({text, ConsoleMessage::Error});
}

void SpxConsole::printInfo(const QString& text)
{
    print({text, ConsoleMessage::Info});
}

void SpxConsole::printWarning(const QString& text)
{
    print({text, ConsoleMessage::Warning});
}

void SpxConsole::stdoutcb(const char* text, long, void* console)
{
    static_cast<SpxConsole*>(console)->write({QString::fromLatin1(text), ConsoleMessage::Info});
}

void SpxConsole::stderrcb(const char* text, long, void* console)
{
    static_cast<SpxConsole*>(console)->write({QString::fromLatin1(text), ConsoleMessage::Error});
}

void SpxConsole::errorHandlerCB(const SoError* error, void* console)
{
    static_cast<SpxConsole*>(console)->m_inbox.push({textOf(*error), kindOf(*error)});
}

void SpxConsole::clear()
{
    m_text->clear();
}

void SpxConsole::outputErrors()
{
    toggle(ConsoleMessage::Error);
}

void SpxConsole::outputInfos()
{
    toggle(ConsoleMessage::Info);
}

void SpxConsole::outputWarnings()
{
    toggle(ConsoleMessage::Warning);
}

void SpxConsole::save()
{
    const QString name = QFileDialog::getSaveFileName(m_frame, tr("Save the content of the console"), ".",
                                                      tr("Console outputs (*.txt)"));
    if (name.isEmpty() || !m_text || !consoleFile::mayBeWritten(name))
        return;
    QFile file(name);
    // An existing longer file keeps its tail (decisions.md: console-saved-over).
    if (file.open(QIODevice::ReadWrite | QIODevice::Text))
        file.write(m_text->plainText().toLatin1());
}

// Inverts, whatever the button shows (decisions.md: console-toggles).
void SpxConsole::toggle(ConsoleMessage::Kind kind)
{
    m_outputs[kind].shown = !m_outputs[kind].shown;
}

void SpxConsole::write(ConsoleMessage&& message)
{
    if (QThread::currentThread() == thread())
        print(std::move(message));
    else
        m_inbox.push(std::move(message));
}

void SpxConsole::print(ConsoleMessage&& message)
{
    // What is written in answer to a text that is just being shown waits for its turn.
    if (m_printing)
        m_inbox.push(std::move(message));
    else
        append(&message, &message + 1);
}

void SpxConsole::append(const ConsoleMessage* begin, const ConsoleMessage* end)
{
    if (!m_text) {
        passToStderr(begin, end);
        return;
    }
    QVector<ConsoleText::Paragraphs> paragraphs;
    for (; begin != end; ++begin) {
        const Output& output = m_outputs[begin->printedKind()];
        if (output.shown)
            paragraphs.append({begin->text, output.color});
    }
    const QScopedValueRollback<bool> printing(m_printing, true);
    m_text->append(paragraphs);
}

std::size_t SpxConsole::printSome()
{
    const std::vector<ConsoleMessage> messages = m_inbox.take(LinesAtOnce);
    append(messages.data(), messages.data() + messages.size());
    return messages.size();
}

void SpxConsole::takeTurn()
{
    if (m_printing)
        return;
    QElapsedTimer clock;
    clock.start();
    QCoreApplication::sendPostedEvents(this, ConsoleEvent::EventType);
    while (clock.elapsed() < TurnMilliseconds) {
        if (printSome() == 0) {
            m_inboxTimer.stop();
            return;
        }
    }
}

// Also when other threads go on sending, it ends: with what has come until now.
void SpxConsole::printWaiting()
{
    if (m_printing)
        return;
    QCoreApplication::sendPostedEvents(this, ConsoleEvent::EventType);
    const std::size_t waiting = m_inbox.size();
    for (std::size_t printed = 0; printed < waiting;) {
        const std::size_t some = printSome();
        if (some == 0)
            return;
        printed += some;
    }
}

// Its stream is whole again when this returns.
void SpxConsole::retire(std::unique_ptr<Redirector>& redirector)
{
    redirector->close();
    m_retiredRedirectors.push_back(std::move(redirector));
}
