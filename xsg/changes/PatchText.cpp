// SPDX-License-Identifier: MIT
#include <xsg/changes/PatchLine.h>
#include <xsg/changes/SceneChange.h>
#include <xsg/values/Printable.h>

#include <algorithm>

namespace xsg
{

namespace
{

constexpr std::string_view ByteOrderMark = "\xef\xbb\xbf";

std::string countText(const SceneChange::Count& count)
{
    return " (" + std::to_string(count.before) + " -> " + std::to_string(count.after) + ")";
}

void writeAnchor(std::string& out, const SceneChange& change)
{
    if (!change.after) {
        out += " first";
        return;
    }
    out += " after ";
    SoScenePath::writeStep(out, *change.after);
}

void writeName(std::string& out, const SceneChange& change)
{
    if (!change.name)
        return;
    out += ' ';
    appendQuoted(out, *change.name);
}

void writeOrigin(std::string& out, const SceneChange& change)
{
    if (change.origin == SceneChange::Origin::Same) {
        out += " same " + change.same.toText();
    } else if (change.origin == SceneChange::Origin::Old) {
        out += " from " + change.from.toText();
        writeName(out, change);
    } else {
        out += " new " + change.type;
        writeName(out, change);
    }
}

// What a scene file could hold on one line stands as it is.
void writeValue(std::string& out, const std::string& value)
{
    const ValueExtent extent(value);
    out += ' ';
    if (extent.isWhole() && extent.length == value.size() && trimmed(value) == value && !value.empty() &&
        value.find_first_of("\n\r") == std::string::npos) {
        out += value;
        return;
    }
    out += "!text ";
    appendQuoted(out, value);
}

void writeSet(std::string& out, const SceneChange& change)
{
    if (change.value)
        writeValue(out, *change.value);
    else
        out += " !default";
    if (change.isIgnored)
        out += " !ignored";
    if (change.source)
        out += " <- " + change.source->toText();
}

void writeReplacement(std::string& out, const SceneChange& change)
{
    writeOrigin(out, change);
    if (change.apart)
        out += " apart " + change.apart->toText();
    if (change.fields.empty())
        return;
    out += " fields";
    for (const std::string& field : change.fields)
        out += ' ' + field;
}

} // namespace

const char* SceneChange::nameOf(Kind kind)
{
    static constexpr const char* names[] = {"remove", "insert", "move", "replace", "order", "name", "set"};
    return names[static_cast<int>(kind)];
}

std::string PatchText::writeLine(const SceneChange& change)
{
    using Kind = SceneChange::Kind;
    std::string out = SceneChange::nameOf(change.kind);
    out += ' ';
    out += change.path.toText();
    if (change.kind == Kind::Remove || change.kind == Kind::Insert || change.kind == Kind::Move)
        out += countText(change.count);
    if (change.kind == Kind::Insert || change.kind == Kind::Move || change.kind == Kind::Order)
        writeAnchor(out, change);
    if (change.kind == Kind::Insert || change.kind == Kind::Move)
        writeOrigin(out, change);
    else if (change.kind == Kind::Replace)
        writeReplacement(out, change);
    else if (change.kind == Kind::Set)
        writeSet(out, change);
    else if (change.kind == Kind::Rename)
        writeName(out, change);
    if (!change.was.empty())
        out += "  # was " + change.was;
    return out;
}

std::string PatchText::write(const SceneChanges& changes)
{
    std::string text(FirstLine);
    text += '\n';
    for (const SceneChange& change : changes)
        text += writeLine(change) + '\n';
    return text;
}

bool PatchText::read(std::string_view text, const std::string& name, SceneChanges& changes, SbSentence& error)
{
    if (text.substr(0, ByteOrderMark.size()) == ByteOrderMark)
        text.remove_prefix(ByteOrderMark.size());
    SceneChanges found;
    SbSentence problem;
    int number = 0;
    for (std::size_t at = 0; at < text.size() || number == 0;) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        const std::string_view line = trimmed(text.substr(at, end - at));
        at = end + 1;
        if (++number == 1 && line != FirstLine)
            problem = SbSentence("this is no patch: its first line must be \"%1\"", FirstLine);
        else if (line.find('\0') != std::string_view::npos)
            problem =
                SbSentence("a byte 0 stands here, which a text has not: the file is damaged, or no patch");
        else if (number > 1 && !line.empty() && line.front() != '#')
            PatchLine(line).read(found.emplace_back(), problem);
        if (!problem.empty()) {
            error = printable(SbSentence("%1:%2: %3.", name, number, problem));
            return false;
        }
        if (!found.empty() && found.back().line == 0)
            found.back().line = number;
    }
    changes = std::move(found);
    return true;
}

} // namespace xsg
