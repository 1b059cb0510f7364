// SPDX-License-Identifier: MIT
#include "structure/BranchText.h"

#include <scopix/SpxSentence.h>
#include <xsg/files/SceneReader.h>
#include <xsg/files/SceneWriter.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/support/WorkPieces.h>

#include <QCoreApplication>

namespace scopix
{

namespace
{

// A text editor leaves it, where a data type of the clipboard's own would be lost.
constexpr std::string_view GroupNote = "# The group around these nodes is left out when they are pasted.\n";
constexpr std::string_view Whitespace = " \t\r\n";

std::string firstLine()
{
    return std::string(SoSceneFile::FirstLine) + "\n";
}

std::string_view trimmed(std::string_view text)
{
    const auto start = text.find_first_not_of(Whitespace);
    return start == std::string_view::npos ? std::string_view() : text.substr(start);
}

bool beginsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

bool isInGroup(std::string_view text)
{
    return beginsWith(trimmed(text.substr(std::min(text.size(), SoSceneFile::FirstLine.size()))), GroupNote);
}

SoRef<SoNode> joined(const std::vector<SoNode*>& nodes)
{
    if (nodes.size() == 1)
        return SoRef<SoNode>(nodes.front());
    const SoRef<SoGroup> group(new SoGroup);
    for (SoNode* node : nodes)
        group->addChild(node);
    return SoRef<SoNode>(group.get());
}

std::string noted(std::string text, const std::vector<SoNode*>& nodes)
{
    return nodes.size() == 1 ? text : text.insert(firstLine().size(), GroupNote);
}

std::vector<SoRef<SoNode>> takeChildren(SoNode& wrapper)
{
    std::vector<SoRef<SoNode>> nodes;
    SoGroup* group = wrapper.asGroup();
    if (!group)
        return {&wrapper};
    for (SoNode* child : group->getChildren())
        nodes.emplace_back(child);
    group->removeAllChildren();
    return nodes;
}

} // namespace

std::string writeBranches(const std::vector<SoNode*>& nodes, const std::function<void(double)>& goOn)
{
    return noted(SoSceneFile::writeText(joined(nodes).get(), goOn), nodes);
}

std::optional<std::string> writeShortBranches(const std::vector<SoNode*>& nodes, std::size_t most,
                                              const std::function<void(double)>& goOn)
{
    const SoRef<SoNode> root = joined(nodes);
    std::string text;
    xsg::SceneWriter writer([&text](const std::string& piece) { text += piece; });
    writer.begin(root.get());
    while (text.size() <= most && !writer.advance(xsg::SceneWriter::Clock::now() + xsg::WorkPieces::Length)) {
        if (goOn)
            goOn(writer.getProgress());
    }
    return text.size() <= most ? std::optional(noted(std::move(text), nodes)) : std::nullopt;
}

BranchReading readBranches(std::string_view given, const std::function<void(double)>& goOn)
{
    const std::string_view start = trimmed(given);
    if (start.empty())
        return {{}, QCoreApplication::translate("Structure", "There is no text to paste.")};
    const bool isFile = beginsWith(start, "#Xsg");
    const std::string text =
        isFile ? std::string(start)
               : firstLine() + std::string(GroupNote) + "Group {\n" + std::string(start) + "\n}\n";
    xsg::SceneReader reader(text);
    const SoRef<SoNode> root = reader.read(goOn);
    if (!root)
        return {{},
                QCoreApplication::translate("Structure", "The text holds no nodes that can be pasted: %1")
                    .arg(SpxSentence::translated(reader.getProblem()))};
    std::vector<SoRef<SoNode>> nodes;
    if (isInGroup(text))
        nodes = takeChildren(*root);
    else
        nodes.push_back(root);
    if (nodes.empty())
        return {{}, QCoreApplication::translate("Structure", "There are no nodes in the text to paste.")};
    return {std::move(nodes), {}};
}

} // namespace scopix
