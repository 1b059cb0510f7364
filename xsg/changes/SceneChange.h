// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/paths/SoScenePath.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace xsg
{

/// One difference between two scenes, and one line of a patch. Paths name places in the scene as it is when
/// all changes have been made, except `from`, which is a place in the scene before. What is removed is called
/// as it was in its group. What is moved is inserted in one place and removed from another one.
struct XSG_API SceneChange {
    enum class Kind { Remove, Insert, Move, Replace, Order, Rename, Set };
    enum class Origin {
        New,
        Old,
        Same
    }; // a new node, one from its old place, or one that stands elsewhere too
    /// How many children of the group are called so, before and after.
    struct Count {
        int before = 0;
        int after = 0;
    };

    Kind kind = Kind::Set;
    SoScenePath path;
    SoScenePath from;                       // Move, and Insert of an old node
    Count count;                            // Remove, Insert and Move: at `path`
    std::optional<SoScenePath::Step> after; // Insert, Move, Order: the child before it; none: it is the first

    Origin origin = Origin::New;      // Insert, Replace
    std::string type;                 // of a new node
    std::optional<std::string> name;  // of a new or renamed node
    SoScenePath same;                 // Origin::Same
    std::optional<SoScenePath> apart; // Replace: has been made where this is another node
    std::vector<std::string> fields;  // Replace: has been made where the node has these fields

    std::optional<std::string> value; // Set; none: the default one
    bool isIgnored = false;
    std::optional<SoScenePath> source; // Set: the field that it follows

    std::string was; // for people: the value before, perhaps shortened
    int line = 0;    // in the text that it was read from

    static const char* nameOf(Kind kind);
};

using SceneChanges = std::vector<SceneChange>;

/// Patches as text, made for version control: a first line, and one line a change, in the order of the scene.
///
///     #XsgPatch V1.0 utf8
///     set /Lamp/Bulb.radius 3  # was 2
///     insert /Lamp/Cube[1] (1 -> 2) after Bulb new Cube "spare"
namespace PatchText
{

constexpr std::string_view FirstLine = "#XsgPatch V1.0 utf8";

XSG_API std::string write(const SceneChanges& changes);
/// Without the end of the line.
XSG_API std::string writeLine(const SceneChange& change);
/// False, and one sentence with name, line and what was expected, where the text is no patch; `changes` are
/// then as they were.
XSG_API bool read(std::string_view text, const std::string& name, SceneChanges& changes, SbSentence& error);

} // namespace PatchText

} // namespace xsg
