// SPDX-License-Identifier: MIT
// A console in a host, and what the tests look at.
#pragma once

#include "SpxConsole.h"

#include <support/TestHost.h>

#include <gtest/gtest.h>

#include <QDockWidget>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>

#include <iostream>
#include <sstream>

/// Gives a stream another buffer while it lives, so that what the console does not take can be read.
class CapturedStream
{
public:
    explicit CapturedStream(std::ostream& stream)
        : m_stream(stream)
        , m_previous(stream.rdbuf(m_text.rdbuf()))
    {
    }
    CapturedStream(const CapturedStream&) = delete;
    CapturedStream& operator=(const CapturedStream&) = delete;
    ~CapturedStream() { m_stream.rdbuf(m_previous); }

    std::string text() const { return m_text.str(); }
    std::streambuf* buffer() const { return m_text.rdbuf(); }

private:
    std::ostream& m_stream;
    std::ostringstream m_text;
    std::streambuf* m_previous;
};

class ConsoleFixture : public ::testing::Test
{
protected:
    ~ConsoleFixture() override
    {
        m_host.stop(m_console);
        qunsetenv("XSG_CONSOLE_MAX_LINES");
    }

    void holdLines(int lines) { qputenv("XSG_CONSOLE_MAX_LINES", QByteArray::number(lines)); }
    void start()
    {
        m_host.window().resize(800, 500);
        m_host.window().show();
        m_host.start(m_console);
        m_output = m_host.window().findChild<QTextEdit*>("m_consoleOutput");
    }
    QTextEdit& output() { return *m_output; }
    QString text() { return output().toPlainText(); }
    QStringList lines() { return text().split('\n'); }
    QPushButton& button(const char* name) { return *m_host.window().findChild<QPushButton*>(name); }
    void click(const char* name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    static QColor colorOf(const QTextBlock& block)
    {
        return block.begin().fragment().charFormat().foreground().color();
    }

    CapturedStream m_cout{std::cout};
    CapturedStream m_cerr{std::cerr};
    TestHost m_host;
    SpxConsole m_console;
    QPointer<QTextEdit> m_output;
};
