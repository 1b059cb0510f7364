// SPDX-License-Identifier: MIT
#include "commands/ScenePlace.h"

#include "commands/Output.h"

#include <xsg/core/SoMField.h>

namespace scopix
{

namespace
{

SbSentence reasonAgainst(const SoField& field, int index)
{
    const auto* list = dynamic_cast<const SoMField*>(&field);
    if (index < 0 || (list && index < list->getNum()))
        return {};
    return SbSentence::verbatim(list ? "the list has " + std::to_string(list->getNum()) + " values"
                                     : "the field is no list");
}

} // namespace

ScenePlace findPlace(xsg::SceneLookup& lookup, const std::string& text, const std::string& file)
{
    const SoScenePath path(text);
    if (!path.isValid()) {
        complain(path.getError());
        return {};
    }
    SbSentence problem;
    ScenePlace place{lookup.find(path.withoutField(), problem), nullptr, path.getIndex()};
    if (place.node && !path.getField().empty()) {
        place.field = lookup.findField(path, problem);
        if (place.field)
            problem = reasonAgainst(*place.field, place.index);
    }
    if (problem.empty())
        return place;
    complain("\"" + text + "\" is not in " + file + ": " + problem.getText() + ".");
    return {};
}

} // namespace scopix
