// SPDX-License-Identifier: MIT
#include "commands/Commands.h"
#include "commands/FieldFormula.h"
#include "commands/Output.h"
#include "commands/SceneFiles.h"
#include "commands/ScenePlace.h"

namespace scopix
{

namespace
{

// The first "=" outside of quotes.
std::size_t findEquals(const std::string& word)
{
    bool isQuoted = false;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (word[i] == '\\' && isQuoted)
            ++i;
        else if (word[i] == '"')
            isQuoted = !isQuoted;
        else if (word[i] == '=' && !isQuoted)
            return i;
    }
    return std::string::npos;
}

bool setField(xsg::SceneLookup& lookup, const std::string& word, const std::string& file)
{
    const std::size_t equals = findEquals(word);
    if (equals == std::string::npos) {
        complain("PATH=VALUE was expected, such as /Bulb.radius=3, and not \"" + word + "\".");
        return false;
    }
    const std::string path = word.substr(0, equals);
    const std::string value = word.substr(equals + 1);
    const ScenePlace place = findPlace(lookup, path, file);
    if (!place.node)
        return false;
    if (!place.field) {
        complain("\"" + path + "\" is a node; a field of it was expected, such as " + path + ".name.");
        return false;
    }
    std::string problem;
    if (!assign(*place.field, place.index, value, lookup, problem))
        complain(path + " cannot be set to \"" + value + "\": " + problem + ".");
    return problem.empty();
}

} // namespace

int setFields(const Arguments& arguments)
{
    const std::string& file = arguments.values[0];
    const std::string out = arguments.has("o") ? arguments.get("o") : file;
    if (!canWriteScene(out))
        return Failed;
    const SoRef<SoNode> root = loadOrComplain(file);
    if (!root)
        return Failed;
    xsg::SceneLookup lookup(root.get());
    for (std::size_t i = 1; i < arguments.values.size(); ++i)
        if (!setField(lookup, arguments.values[i], file))
            return Failed;
    return writeScene(root.get(), out) ? Fine : Failed;
}

} // namespace scopix
