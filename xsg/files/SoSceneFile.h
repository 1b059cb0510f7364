// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>
#include <xsg/values/SbSentence.h>

#include <functional>
#include <string>
#include <string_view>

/// Scenes as text files. What is read equals what was written, bit for bit: fields of every type with their
/// values, their ignore flags, whether they were ever written, and their connections; names; nodes that stand
/// in several places; and nodes of types that this program does not know.
///
///     #Xsg V1.0 utf8
///     Separator "whole scene" {
///         Material @paint {
///             diffuseColor: [ 1 0 0, 0 1 0 ]
///             transparency: 0.5 !ignored
///         }
///         Sphere { radius: 2 <- @box.width }
///         Cube @box {}
///         @paint
///     }
///
/// A node is its type, perhaps its name in quotes, perhaps a label after "@", and braces around its fields
/// and children. A label alone stands for the node that has it, as a child and as the value of a field of
/// nodes
/// ("NULL" for none, and for a node that is not in the scene). A field is its name, a colon, on the same line
/// its value as text where it is not the default one, and marks: "!ignored", and "<- @label.field" for the
/// field it is connected from. What follows a "#" up to the end of the line is for people.
class XSG_API SoSceneFile
{
public:
    static constexpr std::string_view FirstLine = "#Xsg V1.0 utf8";

    /// Null where the file cannot be read; `error` then is one sentence with file, line, column and what was
    /// expected, and has been posted as an SoReadError too. The first error ends the reading.
    static SoRef<SoNode> read(const std::string& path, std::string& error);
    /// The same from memory; `name` stands for the file in errors.
    static SoRef<SoNode> readText(std::string_view text, const std::string& name, std::string& error);
    /// The same, calling `goOn` with the part that is read, as write() does.
    static SoRef<SoNode> readText(std::string_view text, const std::string& name, std::string& error,
                                  const std::function<void(double)>& goOn);

    /// Whatever happens, the file is either the old or the new one; xsg::FileReplacement says what becomes of
    /// its mode and its links. False, and a sentence, where it cannot be written.
    static bool write(const SoNode* root, const std::string& path, std::string& error);
    /// The same, calling `goOn` with the part that is written, from 0 to 1, each few milliseconds; what it
    /// throws leaves the file as it was. Fields and the structure of the scene may change in it.
    static bool write(const SoNode* root, const std::string& path, std::string& error,
                      const std::function<void(double)>& goOn);
    /// The same; the sentence can be shown in another language.
    static bool write(const SoNode* root, const std::string& path, SbSentence& error,
                      const std::function<void(double)>& goOn);
    static std::string writeText(const SoNode* root);
    /// The same, calling `goOn` as write() does.
    static std::string writeText(const SoNode* root, const std::function<void(double)>& goOn);
};
