// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/support/FileReplacement.h>

#include <QString>

#include <charconv>
#include <string>
#include <string_view>

namespace scopix
{

/// A file that is written whole or not at all, in large pieces. Numbers are written in the shortest form that
/// reads back to the same value, or as their bytes.
class ExportSink
{
public:
    explicit ExportSink(const QString& path);

    ExportSink& operator<<(std::string_view text);
    ExportSink& operator<<(char c) { return *this << std::string_view(&c, 1); }
    ExportSink& operator<<(float number) { return writeNumber(number); }
    ExportSink& operator<<(std::size_t number) { return writeNumber(number); }

    /// In the order of bytes of the machine, which is the one of all that Scopix runs on.
    template <class Number>
    ExportSink& raw(const Number& number)
    {
        return *this << std::string_view(reinterpret_cast<const char*>(&number), sizeof number);
    }

    /// Puts the file in its place. Why it cannot be written, as the end of a sentence, or an empty text.
    QString finish();

private:
    template <class Number>
    ExportSink& writeNumber(Number number)
    {
        char text[32];
        const auto end = std::to_chars(text, text + sizeof text, number).ptr;
        return *this << std::string_view(text, static_cast<std::size_t>(end - text));
    }
    void flush();

    xsg::FileReplacement m_file;
    std::string m_piece;
    bool m_isGood;
};

} // namespace scopix
