// SPDX-License-Identifier: MIT
// What is wrong with a scene's text, and the words for it that its readers share.
#pragma once

#include <xsg/files/SceneText.h>
#include <xsg/nodes/base/SoNode.h>
#include <xsg/values/SbSentence.h>

#include <string>
#include <string_view>

namespace xsg
{

struct SceneFault {
    SceneText::Place place{};
    SbSentence problem; // one printable sentence on what is wrong and what was expected; empty: nothing is

    /// Returns false, for whoever failed to return.
    bool set(SceneText::Place where, const SbSentence& what);
    /// The same, of a text that is no value of this field.
    bool refuse(SceneText::Place where, const SoField& field, std::string_view value);
};

/// How much of a wrong text an error shows.
constexpr std::size_t ShownLength = 40;
/// The beginning of a text's first line, whole characters, in quotation marks.
std::string quotedStart(std::string_view text);

/// The node's field of this name, or null; a node of an unknown type has whatever field a file names.
SoField* fieldOf(SoNode* node, const SbName& fieldName);

} // namespace xsg
