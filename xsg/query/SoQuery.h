// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbSentence.h>
#include <xsg/values/XsgExport.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class SoNode;
namespace xsg
{
struct QueryTerm;
}

/// What to look for in a scene, as a user writes it. Upper and lower case do not matter.
///
///   lamp              in the node's name, its type or a text among its fields
///   name:lamp         in the name
///   type:Light        in the type, or in a type that it is derived from
///   field:diffuse     in the name of a field
///   value:0.5         in the text of a value of any field
///   transparency>0    a field's value: = != < <= > >= and ~ for "contains"; of a list or a vector, any
///                     number
///   translation.x<=1  one number of a vector: x y z w, or r g b a
///   changed           has a field whose value is not its type's; also connected, ignored, shared
///   /Lamp/Cube[2]     stands in this place (SoScenePath); without "/" at the start, wherever that begins
///   -type:Light       not so
///   "two words"       quotes keep spaces, signs and words such as changed as they are
///
/// Terms that follow each other must all hold; `|` separates alternatives. Immutable; copies are cheap.
class XSG_API SoQuery
{
public:
    /// Matches nothing.
    SoQuery();
    /// Never fails: a text that is no query gives one that matches nothing and says why.
    explicit SoQuery(std::string_view utf8);

    /// True where nothing is looked for: no text, or one that is no query.
    bool isEmpty() const;
    /// What is wrong with the text, as a sentence; empty where nothing is.
    const SbSentence& getError() const { return m_error; }
    /// Reads values, which fetches those that are connected. SoQuerySearch is quicker for many nodes.
    bool matches(const SoNode& node) const;

private:
    friend class SoQuerySearch;
    std::shared_ptr<const std::vector<std::vector<xsg::QueryTerm>>> m_alternatives;
    SbSentence m_error;
};
