// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoPath.h>
#include <xsg/values/SbSentence.h>
#include <xsg/values/SbValueText.h>

#include <string>
#include <string_view>
#include <vector>

/// The name of a place in a scene, as people write it:
///
///     /                        the root
///     /Lamp/Bulb               a child of a child of the root
///     /Lamp/Cube[2]            the third child of Lamp that is called Cube
///     /"two words"/"a/b"       names that are no plain words, in quotes as in a scene file
///     /Lamp/Bulb.radius        a field
///     /Mesh/Points.points[17]  one value of a list
///     Bulb.radius              without "/" at the start: of the only such node, wherever it stands
///
/// A node is called by its name, or by its type where it has none. Numbers count from 0; [0] may be left out.
/// A node that stands in several places is written by the first of them. A plain value.
class XSG_API SoScenePath
{
public:
    struct Step {
        std::string label;
        int index = 0;
        bool operator==(const Step& other) const { return label == other.label && index == other.index; }
    };

    /// The root.
    SoScenePath() = default;
    /// What is wrong with the text: getError().
    explicit SoScenePath(std::string_view text);
    /// From the path's own start.
    static SoScenePath of(const SoPath& path);
    /// Of the node, wherever it stands: of use where no other is called so.
    static SoScenePath ofLabel(const SoFieldContainer& node);
    /// Takes a path from the start of a text; it ends at a blank, a comma, "]" or "=". False, and a sentence
    /// without its full stop, where there is none.
    static bool read(xsg::TextReader& in, SoScenePath& path, SbSentence& problem);

    bool isValid() const { return m_error.empty(); }
    const SbSentence& getError() const { return m_error; }
    std::string toText() const;

    bool isAbsolute() const { return m_isAbsolute; }
    const std::vector<Step>& getSteps() const { return m_steps; }
    /// Empty for a node.
    const std::string& getField() const { return m_field; }
    /// Of a value of the field; -1 for all of it.
    int getIndex() const { return m_index; }

    void append(Step step) { m_steps.push_back(std::move(step)); }
    void setField(std::string field, int index = -1);
    SoScenePath withoutField() const;
    /// Of a place below the root: the group that it is in.
    SoScenePath getParent() const;
    bool operator==(const SoScenePath& other) const;

    static void writeStep(std::string& out, const Step& step);
    static bool readStep(xsg::TextReader& in, Step& step, SbSentence& problem);

private:
    enum class Word { Node, Field };
    static SbSentence nameOf(Word what);
    static bool readWord(xsg::TextReader& in, Word what, std::string& word, SbSentence& problem);
    static bool readIndex(xsg::TextReader& in, int& index, SbSentence& problem);

    bool m_isAbsolute = true;
    std::vector<Step> m_steps;
    std::string m_field;
    int m_index = -1;
    SbSentence m_error;
};
