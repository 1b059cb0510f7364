// SPDX-License-Identifier: MIT
#include "SentenceOfProgram.h"

#include <optional>

namespace scopix::live
{

namespace
{

// How many letters of a sentence are its own, and what stands in its places.
struct Reading {
    std::size_t letters = 0;
    std::vector<std::string> arguments;
};

bool isPlace(std::string_view source, std::size_t at)
{
    return source[at] == '%' && at + 1 < source.size() && source[at + 1] >= '1' && source[at + 1] <= '9';
}

std::size_t findPlace(std::string_view source)
{
    std::size_t at = 0;
    while (at < source.size() && !isPlace(source, at))
        ++at;
    return at;
}

// What stands in a place ends where the sentence goes on first, and in the last place only where it ends.
bool read(std::string_view source, std::string_view words, Reading& reading)
{
    const std::size_t place = findPlace(source);
    reading.letters += place;
    if (place == source.size())
        return words == source;
    if (words.substr(0, place) != source.substr(0, place))
        return false;
    const std::string_view rest = source.substr(place + 2);
    const std::string_view next = rest.substr(0, findPlace(rest));
    const bool isLast = next.size() == rest.size();
    const std::size_t end =
        isLast ? (words.size() < place + next.size() ? words.npos : words.size() - next.size())
               : words.find(next, place);
    if (end == words.npos)
        return false;
    const auto number = static_cast<std::size_t>(source[place + 1] - '0');
    if (reading.arguments.size() < number)
        reading.arguments.resize(number);
    reading.arguments[number - 1] = words.substr(place, end - place);
    return read(rest, words.substr(end), reading);
}

} // namespace

// The one that leaves the least to its places says the most.
Sentence sentenceOfProgram(const std::string& words)
{
    const char* found = nullptr;
    Reading best;
    for (const char* const* source = SentencesOfPrograms; *source; ++source) {
        Reading reading;
        if (read(*source, words, reading) && (!found || reading.letters > best.letters)) {
            found = *source;
            best = std::move(reading);
        }
    }
    return found ? Sentence::known(found, std::move(best.arguments)) : Sentence::verbatim(words);
}

} // namespace scopix::live
