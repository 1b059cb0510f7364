// SPDX-License-Identifier: MIT
#include "commands/Commands.h"
#include "commands/JsonText.h"
#include "commands/Output.h"
#include "commands/SceneFiles.h"
#include "document/PatchFile.h"

#include <xsg/changes/PatchApplication.h>
#include <xsg/changes/SceneDiff.h>

#include <QFile>

namespace scopix
{

namespace
{

void writeCount(JsonText& json, const xsg::SceneChange::Count& count)
{
    json.number("countBefore", count.before);
    json.number("countAfter", count.after);
}

void writeOptional(JsonText& json, const char* key, bool has, const std::string& value)
{
    if (has)
        json.text(key, value);
}

void writeChange(JsonText& json, const xsg::SceneChange& change)
{
    using Kind = xsg::SceneChange::Kind;
    using Origin = xsg::SceneChange::Origin;
    json.beginObject();
    json.text("change", xsg::SceneChange::nameOf(change.kind));
    json.text("path", change.path.toText());
    if (change.kind == Kind::Insert || change.kind == Kind::Move || change.kind == Kind::Remove)
        writeCount(json, change.count);
    writeOptional(json, "from", change.origin == Origin::Old, change.from.toText());
    writeOptional(json, "same", change.origin == Origin::Same, change.same.toText());
    writeOptional(json, "type", !change.type.empty(), change.type);
    writeOptional(json, "name", change.name.has_value(), change.name.value_or(""));
    if (change.kind == Kind::Set) {
        json.boolean("default", !change.value);
        writeOptional(json, "value", change.value.has_value(), change.value.value_or(""));
        json.boolean("ignored", change.isIgnored);
        if (change.source)
            json.text("follows", change.source->toText());
    }
    writeOptional(json, "was", !change.was.empty(), change.was);
    json.text("line", xsg::PatchText::writeLine(change)); // as the patch has it
    json.endObject();
}

void printJson(const xsg::SceneChanges& changes)
{
    JsonText json;
    json.beginArray();
    for (const xsg::SceneChange& change : changes) {
        writeChange(json, change);
        print(json.take());
    }
    json.endArray();
    print(json.take());
}

bool readOrComplain(const std::string& path, xsg::SceneChanges& changes)
{
    const QString error = readPatch(QFile::decodeName(path.c_str()), changes);
    if (!error.isEmpty())
        complain(error.toStdString());
    return error.isEmpty();
}

void printResult(const xsg::PatchResult& result)
{
    JsonText json;
    json.beginObject();
    json.number("applied", result.applied);
    json.number("alreadySo", result.alreadySo);
    json.key("misfits");
    json.beginArray();
    for (const SbSentence& misfit : result.misfits)
        json.text(misfit.getText());
    json.endArray();
    json.endObject();
    print(json.take());
}

} // namespace

int compareFiles(const Arguments& arguments)
{
    const SoRef<SoNode> before = loadOrComplain(arguments.values[0]);
    const SoRef<SoNode> after = before ? loadOrComplain(arguments.values[1]) : SoRef<SoNode>();
    if (!after)
        return Failed;
    const xsg::SceneChanges changes = xsg::compareScenes(before.get(), after.get());
    if (arguments.has("json"))
        printJson(changes);
    else
        print(xsg::PatchText::write(changes));
    return changes.empty() ? Fine : Differs;
}

int applyPatch(const Arguments& arguments)
{
    const std::string& file = arguments.values[1];
    const std::string out = arguments.has("o") ? arguments.get("o") : file;
    xsg::SceneChanges changes;
    if (out == "-" && arguments.has("json")) {
        complain("apply: --json and the scene cannot both go to standard output.");
        return Failed;
    }
    if (!canWriteScene(out) || !readOrComplain(arguments.values[0], changes))
        return Failed;
    SoRef<SoNode> root = loadOrComplain(file);
    if (!root)
        return Failed;
    const xsg::PatchResult result = xsg::applyChanges(changes, root);
    if (!writeScene(root.get(), out))
        return Failed;
    if (arguments.has("json"))
        printResult(result);
    for (const SbSentence& misfit : result.misfits)
        warn(arguments.values[0] + " does not fit in " + misfit.getText());
    return result.isWhole() ? Fine : Differs;
}

} // namespace scopix
