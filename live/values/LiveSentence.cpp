// SPDX-License-Identifier: MIT
#include "LiveSentence.h"

namespace scopix::live
{

Sentence Sentence::verbatim(std::string text)
{
    Sentence sentence;
    sentence.m_text = std::move(text);
    return sentence;
}

Sentence Sentence::known(const char* source, std::vector<std::string> arguments)
{
    Sentence sentence;
    sentence.m_source = source;
    sentence.m_arguments = std::move(arguments);
    sentence.m_text = sentence.composed();
    return sentence;
}

std::string Sentence::composed() const
{
    std::string text;
    for (const char* at = m_source; *at != '\0'; ++at) {
        const std::size_t place = *at == '%' ? static_cast<std::size_t>(at[1] - '1') : m_arguments.size();
        if (place < m_arguments.size()) {
            text += m_arguments[place];
            ++at;
        } else {
            text += *at;
        }
    }
    return text;
}

} // namespace scopix::live
