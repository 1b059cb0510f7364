// SPDX-License-Identifier: MIT
#include <xsg/frames/SoFrameCsv.h>

#include <algorithm>
#include <charconv>

namespace
{

constexpr std::string_view State = " (state)";
constexpr std::string_view Mark = "mark ";
constexpr std::size_t MostColumns = 1024;

// One line, and no quotation marks that would end the cell.
std::string cell(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    const bool isPlain = !text.empty() && text.front() != '#'; // else it would be no cell, or a remark
    if (isPlain && text.find_first_of(",\"") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char c : text)
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + '"';
}

std::string line(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return text;
}

std::string nameOf(const SoFrameColumn& column)
{
    std::string name = column.name;
    if (!column.unit.empty())
        name += " [" + column.unit + "]";
    return column.isState ? name.append(State) : name;
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

SoFrameColumn columnOf(std::string name)
{
    SoFrameColumn column;
    column.isState = endsWith(name, State);
    if (column.isState)
        name.resize(name.size() - State.size());
    const std::size_t bracket = name.rfind(" [");
    if (bracket != std::string::npos && bracket + 3 < name.size() && name.back() == ']') {
        column.unit = name.substr(bracket + 2, name.size() - bracket - 3);
        name.resize(bracket);
    }
    column.name = name;
    return column;
}

std::string takeCell(std::string_view& rest, bool& hasMore)
{
    std::string text;
    bool isQuoted = false;
    hasMore = false;
    std::size_t i = 0;
    for (; i < rest.size(); ++i) {
        if (rest[i] == '"') {
            if (isQuoted && i + 1 < rest.size() && rest[i + 1] == '"')
                text += rest[++i];
            else
                isQuoted = !isQuoted;
            continue;
        }
        if (rest[i] == ',' && !isQuoted) {
            hasMore = true;
            break;
        }
        text += rest[i];
    }
    rest.remove_prefix(std::min(rest.size(), i + 1));
    return text;
}

std::vector<std::string> cellsOf(std::string_view rest)
{
    std::vector<std::string> cells;
    for (bool hasMore = true; hasMore && cells.size() <= MostColumns;)
        cells.push_back(takeCell(rest, hasMore));
    return cells;
}

bool toNumber(const std::string& text, std::int64_t& value)
{
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end;
}

// "# key: value", as scripts may write it too.
void takeRemark(std::string_view text, SoFrameRecording& to)
{
    text.remove_prefix(std::min(text.size(), text.find_first_not_of("# ")));
    const std::size_t colon = text.find(": ");
    if (colon == std::string_view::npos)
        return;
    const std::string key(text.substr(0, colon));
    const std::string value(text.substr(colon + 2));
    std::int64_t time = 0;
    if (key.compare(0, Mark.size(), Mark) == 0 && toNumber(key.substr(Mark.size()), time))
        to.marks.push_back({time, value});
    else
        to.about.emplace_back(key, value);
}

bool takeRow(std::string_view text, SoFrameRecording& to)
{
    const std::vector<std::string> cells = cellsOf(text);
    std::vector<std::int64_t> values;
    if (cells.size() != to.columns.size())
        return false;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        std::int64_t value = to.columns[i].unit == "ns" ? SoFrame::Unknown : SoFrame::Missing;
        if (!cells[i].empty() && !toNumber(cells[i], value))
            return false;
        values.push_back(value);
    }
    for (std::size_t i = 0; i < values.size(); ++i)
        to.columns[i].values.push_back(values[i]);
    return true;
}

bool takeNames(std::string_view text, SoFrameRecording& to)
{
    for (std::string& name : cellsOf(text))
        to.columns.push_back(columnOf(std::move(name)));
    return to.columns.size() <= MostColumns;
}

} // namespace

std::string SoFrameCsv::write(const SoFrameRecording& recording)
{
    std::string text;
    for (const auto& [key, value] : recording.about)
        text += line("# " + key + ": " + value) + '\n';
    for (const SoFrameMark& mark : recording.marks)
        text += line("# mark " + std::to_string(mark.time) + ": " + mark.text) + '\n';
    for (const SoFrameColumn& column : recording.columns)
        text += (&column == &recording.columns.front() ? "" : ",") + cell(nameOf(column));
    text += '\n';
    const std::string unknown = recording.columns.size() == 1 ? "\"\"" : ""; // an empty line is no row
    for (std::size_t row = 0; row < recording.getNumFrames(); ++row) {
        for (const SoFrameColumn& column : recording.columns) {
            const std::int64_t value = column.values[row];
            text += &column == &recording.columns.front() ? "" : ",";
            text += column.isKnown(value) ? std::to_string(value) : unknown;
        }
        text += '\n';
    }
    return text;
}

bool SoFrameCsv::read(std::string_view text, SoFrameRecording& recording, SbSentence& problem)
{
    recording = {};
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view each = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (!each.empty() && each.back() == '\r')
            each.remove_suffix(1);
        if (each.empty())
            continue;
        const bool isNames = recording.columns.empty();
        if (each.front() == '#' && isNames) {
            takeRemark(each, recording);
        } else if (!(isNames ? takeNames(each, recording) : takeRow(each, recording))) {
            problem = SbSentence("line %1 does not fit the names of the columns", number);
            recording = {};
            return false;
        }
    }
    if (recording.columns.empty())
        problem = SbSentence("it has no line with the names of the columns");
    return !recording.columns.empty();
}
