// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

/// A sentence for the user that can be put into another language: the English text as the program has it, a
/// literal with places such as %1, and apart from it what stands there: names, values, or sentences again.
/// A plain value that needs nothing but this header; empty unless something is said.
///
///     error = SbSentence("“%1” has no field “%2”.", node, field);
///
/// Catalogues of translations are made of these calls: the literal stands in the parentheses, is no half of a
/// sentence, and lives as long as whoever shows it. What is not ASCII is UTF-8.
class SbSentence
{
public:
    SbSentence() = default;
    template <std::size_t Size, class... Arguments>
    explicit SbSentence(const char (&source)[Size], const Arguments&... arguments)
        : m_source(source)
        , m_arguments{argument(arguments)...}
        , m_text(compose())
    {
    }
    /// What is the same in every language, such as a name or what the system says.
    static SbSentence verbatim(std::string text)
    {
        SbSentence sentence;
        sentence.m_text = std::move(text);
        return sentence;
    }

    bool empty() const { return m_text.empty(); }
    /// In English.
    const std::string& getText() const { return m_text; }
    operator const std::string&() const { return m_text; } // NOLINT(google-explicit-constructor)

    /// With its places; null for what is the same in every language.
    const char* getSource() const { return m_source; }
    /// What stands in the places %1, %2, ...
    const std::vector<SbSentence>& getArguments() const { return m_arguments; }

    /// The same of other names and values: `change` is given each, and in the end the English text, and
    /// returns it as it is to be.
    template <class Change>
    SbSentence withValues(const Change& change) const
    {
        if (!m_source)
            return verbatim(change(m_text));
        SbSentence changed;
        changed.m_source = m_source;
        for (const SbSentence& each : m_arguments)
            changed.m_arguments.push_back(each.withValues(change));
        changed.m_text = change(changed.compose());
        return changed;
    }

    /// Puts a text for each place into `source`: `write` is given what stands between the places, and
    /// `put` the number of each place, from 0.
    template <class Write, class Put>
    static void fill(std::string_view source, std::size_t places, const Write& write, const Put& put)
    {
        std::size_t begin = 0;
        for (std::size_t at = source.find('%'); at != std::string_view::npos; at = source.find('%', at + 1)) {
            const std::size_t place = at + 1 < source.size() ? std::size_t(source[at + 1] - '1') : places;
            if (place >= places)
                continue;
            write(source.substr(begin, at - begin));
            put(place);
            begin = at + 2;
        }
        write(source.substr(begin));
    }

private:
    template <class Argument>
    static SbSentence argument(const Argument& value)
    {
        if constexpr (std::is_same_v<Argument, SbSentence>)
            return value;
        else if constexpr (std::is_integral_v<Argument>)
            return verbatim(std::to_string(value));
        else
            return verbatim(std::string(value));
    }
    std::string compose() const
    {
        std::string text;
        fill(
            m_source, m_arguments.size(), [&](std::string_view between) { text += between; },
            [&](std::size_t place) { text += m_arguments[place].m_text; });
        return text;
    }

    const char* m_source = nullptr;
    std::vector<SbSentence> m_arguments;
    std::string m_text;
};

inline bool operator==(const SbSentence& sentence, std::string_view text)
{
    return sentence.getText() == text;
}
inline bool operator!=(const SbSentence& sentence, std::string_view text)
{
    return sentence.getText() != text;
}
