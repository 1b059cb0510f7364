// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/values/LiveExport.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace scopix::live
{

/// What a client, a server or an adapter says, so that an inspector can put it into the user's language: the
/// English text, a literal with places such as %1, and apart from it what stands there. A plain value, as
/// SbSentence is for the scene-graph library, on which programs that are inspected need not stand. Empty
/// unless something is said. Only the English text travels, by which the other end knows it again.
class SCOPIX_LIVE_API Sentence
{
public:
    Sentence() = default;
    template <std::size_t Size>
    explicit Sentence(const char (&source)[Size], std::vector<std::string> arguments = {})
        : m_source(source)
        , m_arguments(std::move(arguments))
        , m_text(composed())
    {
    }
    /// In the words of the program at the other end.
    static Sentence verbatim(std::string text);
    /// The sentence of this source, which lives as long as the library, with what stands in its places.
    static Sentence known(const char* source, std::vector<std::string> arguments);

    bool empty() const noexcept { return m_text.empty(); }
    /// In English.
    const std::string& text() const noexcept { return m_text; }
    operator const std::string&() const noexcept { return m_text; } // NOLINT(google-explicit-constructor)

    /// With its places; null for the words of a program.
    const char* source() const noexcept { return m_source; }
    /// What stands in the places %1, %2, ...
    const std::vector<std::string>& arguments() const noexcept { return m_arguments; }

private:
    std::string composed() const;

    const char* m_source = nullptr;
    std::vector<std::string> m_arguments;
    std::string m_text;
};

inline bool operator==(const Sentence& sentence, std::string_view text) noexcept
{
    return sentence.text() == text;
}
inline bool operator!=(const Sentence& sentence, std::string_view text) noexcept
{
    return sentence.text() != text;
}

} // namespace scopix::live
