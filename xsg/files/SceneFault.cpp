// SPDX-License-Identifier: MIT
#include <xsg/files/SceneFault.h>

#include <xsg/core/SoField.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/values/Printable.h>
#include <xsg/values/Utf.h>

bool xsg::SceneFault::set(SceneText::Place where, const SbSentence& what)
{
    place = where;
    problem = printable(what);
    return false;
}

bool xsg::SceneFault::refuse(SceneText::Place where, const SoField& field, std::string_view value)
{
    // In a file written by hand the next field may well follow on the same line.
    const bool goesOn = value.find(": ") != std::string_view::npos;
    const std::string shown = quotedStart(value);
    const char* name = field.getName().getString();
    const char* type = field.getTypeId().getName().getString();
    return set(where,
               goesOn ? SbSentence("%1 is no value of %2, which is a %3; each field has a line of its own",
                                   shown, name, type)
                      : SbSentence("%1 is no value of %2, which is a %3", shown, name, type));
}

std::string xsg::quotedStart(std::string_view text)
{
    const std::string_view line = text.substr(0, text.find('\n'));
    const std::string_view shown = line.substr(0, wholeCharacters(line, ShownLength));
    return '"' + std::string(shown) + (shown.size() < line.size() ? "..." : "") + '"';
}

SoField* xsg::fieldOf(SoNode* node, const SbName& fieldName)
{
    auto* unknown =
        node->getTypeId() == SoUnknownNode::getClassTypeId() ? static_cast<SoUnknownNode*>(node) : nullptr;
    return unknown ? unknown->addField(fieldName) : node->getField(fieldName);
}
