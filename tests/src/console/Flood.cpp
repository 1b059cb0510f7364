// SPDX-License-Identifier: MIT
#include "Flood.h"

#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoReadError.h>

#include <iostream>
#include <string>

namespace
{

constexpr int OddEvery = 100;

const std::array<std::string, Flood::OddKinds> OddTexts{
    std::string("NUL\0after", 9), "controls \x01\x02\x07\b\t\v\f\x1b[31m\x7f",
    "no UTF-8 \xc3\x28 \xf0\x9f \xed\xa0\x80 \xff\xfe", "a\nb\r\n\n\rc"};

std::string numbered(const std::string& who, int number)
{
    return who + ' ' + std::to_string(number);
}

// Hands each text of the line with this number to writeLine, the numbered one last.
template <class WriteLine>
void writeLineOf(const std::string& who, int number, WriteLine writeLine)
{
    constexpr int LongLineAt = 2 * OddEvery + 1;
    if (number == LongLineAt)
        writeLine(std::string(Flood::LongLine, 'x'));
    if (number % OddEvery == 0)
        writeLine(OddTexts[std::size_t(number / OddEvery) % OddTexts.size()]);
    writeLine(numbered(who, number));
}

void writeCharacters(std::ostream& stream, const std::string& text)
{
    for (const char c : text + '\n')
        stream.rdbuf()->sputc(c);
}

} // namespace

Flood::Flood(int lines)
{
    start(
        "out", [](const std::string& text) { std::cout << text; }, lines);
    start(
        "err", [](const std::string& text) { std::cerr << text; }, lines);
    start(
        "outchars", [](const std::string& text) { writeCharacters(std::cout, text); }, lines);
    start(
        "errchars", [](const std::string& text) { writeCharacters(std::cerr, text); }, lines);
    start(
        "warning", [](const std::string& text) { SoDebugError::postWarning("flood", text); }, lines);
    start(
        "reading", [](const std::string& text) { SoError::post("flood: " + text); }, lines);
}

Flood::~Flood()
{
    stop();
    for (std::thread& thread : m_threads)
        thread.join();
}

void Flood::start(const char* who, WriteLine writeLine, int lines)
{
    ++m_running;
    m_threads.emplace_back([this, who, writeLine, lines] {
        for (int i = 0; i < lines && !m_stop; ++i)
            writeLineOf(who, i, writeLine);
        --m_running;
    });
}

void Flood::writeGuiLine(int number)
{
    writeLineOf("gui", number, [](const std::string& text) { std::cout << text; });
}

int Flood::timesOfOdd(int kind, int lines)
{
    int times = 0;
    for (int i = kind * OddEvery; i < lines; i += OddEvery * OddKinds)
        ++times;
    return times;
}
