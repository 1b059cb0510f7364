// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace profiler
{

/// Finds a text in bytes, whatever the case of its ASCII letters; other bytes have to be the same.
///
/// Written here because std::search with a comparison takes eight times as long (bench/log): this compares
/// sixteen places at once by their first and last byte.
class TextFinder
{
public:
    TextFinder() = default;
    explicit TextFinder(std::string wanted);

    bool isEmpty() const { return m_wanted.empty(); }
    std::size_t size() const { return m_wanted.size(); }
    /// npos where there is none; an empty text is nowhere.
    std::size_t find(std::string_view text, std::size_t from = 0) const;
    bool operator==(const TextFinder& other) const { return m_wanted == other.m_wanted; }

private:
    bool isAt(const char* place) const;

    std::string m_wanted; // in lower case
};

} // namespace profiler
