// SPDX-License-Identifier: MIT
#include "commands/Commands.h"
#include "commands/JsonText.h"
#include "commands/Output.h"
#include "commands/PostedNotes.h"
#include "commands/SceneFiles.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/core/SoMField.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/paths/NodeLabel.h>
#include <xsg/paths/NodePlaces.h>

#include <QFile>
#include <QImageReader>

#include <cmath>

namespace scopix
{

namespace
{

/// Looks at each node of a scene for what a user would not expect.
class Oddities
{
public:
    Oddities(SoNode* root, std::vector<std::string>& found)
        : m_places(root)
        , m_found(found)
    {
    }
    void look()
    {
        for (SoNode* node : m_places.getNodes())
            look(*node);
        const SbBox3f box = SoBoundingBoxAction().getBox(m_places.getRoot());
        if (box.isEmpty())
            m_found.emplace_back("There is nothing to see in it.");
    }

private:
    void look(SoNode& node)
    {
        if (dynamic_cast<const SoUnknownNode*>(&node))
            add(node, "is of the type " + std::string(xsg::typeNameOf(node).getString()) +
                          ", which is not known and not drawn");
        if (const auto* texture = dynamic_cast<const SoTexture2*>(&node))
            lookAtPicture(*texture);
        if (const auto* choice = dynamic_cast<const SoSwitch*>(&node);
            choice && choice->whichChild.getValue() >= choice->getNumChildren())
            add(node, "chooses child " + std::to_string(choice->whichChild.getValue()) + " of " +
                          std::to_string(choice->getNumChildren()));
        const SoFieldData* data = node.getFieldData();
        for (SoField* field = data->getField(&node, 0); field; field = data->getNext(field))
            lookAtNumbers(node, *field);
    }
    void lookAtPicture(const SoTexture2& texture)
    {
        const std::string path = texture.getFilePath();
        if (path.empty())
            return;
        QImageReader reader(QFile::decodeName(path.c_str()));
        if (!QFile::exists(QFile::decodeName(path.c_str())))
            add(texture, "names the picture " + path + ", which does not exist");
        else if (!reader.canRead())
            add(texture, "names the picture " + path + ", which cannot be read");
    }
    void lookAtNumbers(const SoNode& node, const SoField& field)
    {
        if (field.isDefault())
            return;
        field.evaluate();
        field.get(m_text);
        if (hasWord("nan") || hasWord("inf"))
            add(node, std::string("has numbers in ") + field.getName().getString() + " that are not finite");
    }
    // As numbers are written, and not within a text.
    bool hasWord(std::string_view word) const
    {
        const std::string& text = m_text.str();
        if (text.find('"') != std::string::npos)
            return false;
        const auto isLetter = [&](std::size_t at) {
            return at < text.size() &&
                   ((text[at] >= 'a' && text[at] <= 'z') || (text[at] >= 'A' && text[at] <= 'Z'));
        };
        for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
            if ((at == 0 || !isLetter(at - 1)) && !isLetter(at + word.size()))
                return true;
        return false;
    }
    void add(const SoNode& node, const std::string& what)
    {
        m_found.push_back(m_places.pathOf(node).toText() + " " + what + ".");
    }

    xsg::NodePlaces m_places;
    std::vector<std::string>& m_found;
    SbString m_text;
};

struct Report {
    std::string error;
    std::vector<std::string> notes;

    ExitStatus status() const { return !error.empty() ? Failed : notes.empty() ? Fine : Differs; }
};

Report checkFile(const std::string& path)
{
    LoadedScene scene = loadScene(path);
    Report report{std::move(scene.error), std::move(scene.notes)};
    if (scene.root) {
        std::vector<std::string> posted;
        {
            const PostedNotes keep(posted);
            Oddities(scene.root.get(), report.notes).look();
        }
        report.notes.insert(report.notes.end(), posted.begin(), posted.end());
    }
    return report;
}

void printReport(const std::string& path, const Report& report)
{
    if (!report.error.empty())
        return complain(report.error);
    for (const std::string& note : report.notes)
        print(path + ": " + note + "\n");
}

void writeReport(JsonText& json, const std::string& path, const Report& report)
{
    json.beginObject();
    json.text("file", path);
    json.number("status", std::int64_t{report.status()});
    if (!report.error.empty())
        json.text("error", report.error);
    json.key("notes");
    json.beginArray();
    for (const std::string& note : report.notes)
        json.text(note);
    json.endArray();
    json.endObject();
}

} // namespace

int checkFiles(const Arguments& arguments)
{
    JsonText json;
    ExitStatus worst = Fine;
    const bool asJson = arguments.has("json");
    json.beginArray();
    for (const std::string& path : arguments.values) {
        const Report report = checkFile(path);
        worst = std::max(worst, report.status());
        if (asJson)
            writeReport(json, path, report);
        else
            printReport(path, report);
    }
    json.endArray();
    if (asJson)
        print(json.take());
    return worst;
}

} // namespace scopix
