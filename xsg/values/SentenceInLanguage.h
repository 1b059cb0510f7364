// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbSentence.h>

namespace xsg
{

/// The sentence in another language: `translate` is given each source, and returns it with its places.
template <class Translate>
std::string inLanguage(const SbSentence& sentence, const Translate& translate)
{
    if (!sentence.getSource())
        return sentence.getText();
    const std::vector<SbSentence>& arguments = sentence.getArguments();
    std::string text;
    SbSentence::fill(
        translate(sentence.getSource()), arguments.size(), [&](std::string_view between) { text += between; },
        [&](std::size_t place) { text += inLanguage(arguments[place], translate); });
    return text;
}

} // namespace xsg
