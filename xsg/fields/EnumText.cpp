// SPDX-License-Identifier: MIT
#include <xsg/fields/EnumText.h>

#include <xsg/fields/SoValueImpl.h>

namespace xsg
{
namespace
{

// A name of the table in quotes.
bool readQuotedName(TextReader& in, const SoEnumTable& table, int& value)
{
    std::string name;
    if (!in.readQuoted(name) || name.find('\0') != std::string::npos)
        return false;
    return table.findValue(SbName(name.c_str()), value);
}

// A name is taken for a number only where the table does not have it ("2D", "32").
bool readBareName(TextReader& in, const SoEnumTable& table, int& value)
{
    TextReader ahead = in;
    const SbString word(ahead.readWord());
    if (word == SbString("") || !table.findValue(SbName(word), value))
        return false;
    in = ahead;
    return true;
}

bool isBareText(std::string_view name)
{
    return !name.empty() && name.front() != '"' && trimmed(name) == name;
}

} // namespace

void writeEnum(std::string& out, const SoEnumTable& table, int value)
{
    const int index = table.indexOf(value);
    const std::string_view name = index < 0 ? "" : table.names[static_cast<std::size_t>(index)].getString();
    if (isBareText(name))
        out += name;
    else
        writeListedEnum(out, table, value);
}

bool readEnum(std::string_view text, const SoEnumTable& table, int& value)
{
    const std::string_view bare = trimmed(text);
    if (bare.find('\0') != std::string_view::npos)
        return false;
    if (isBareText(bare) && table.findValue(SbName(SbString(bare)), value))
        return true;
    int read = 0;
    TextReader in(bare);
    if (!readListedEnum(in, table, read) || !in.atEnd())
        return false;
    value = read;
    return true;
}

void writeListedEnum(std::string& out, const SoEnumTable& table, int value)
{
    const int index = table.indexOf(value);
    if (index < 0)
        ValueText<int>::write(out, value);
    else
        ValueText<SbName>::write(out, table.names[static_cast<std::size_t>(index)]);
}

bool readListedEnum(TextReader& in, const SoEnumTable& table, int& value)
{
    in.skipBlanks();
    if (in.peek() == '"')
        return readQuotedName(in, table, value);
    return readBareName(in, table, value) || in.readNumber(value);
}

void writeBitMask(std::string& out, const SoEnumTable& table, int value)
{
    auto left = static_cast<unsigned>(value);
    const std::size_t start = out.size();
    const auto separate = [&] {
        if (out.size() > start)
            out += " | ";
    };
    for (std::size_t i = 0; i < table.values.size(); ++i) {
        const auto bits = static_cast<unsigned>(table.values[i]);
        if (bits == 0 || (bits & left) != bits)
            continue;
        separate();
        ValueText<SbName>::write(out, table.names[i]);
        left &= ~bits;
    }
    if (left != 0) {
        separate();
        ValueText<int>::write(out, static_cast<int>(left));
    } else if (out.size() == start) {
        writeListedEnum(out, table, 0);
    }
}

bool readListedBitMask(TextReader& in, const SoEnumTable& table, int& value)
{
    unsigned all = 0;
    while (true) {
        int bits = 0;
        if (!readListedEnum(in, table, bits))
            return false;
        all |= static_cast<unsigned>(bits);
        TextReader ahead = in;
        ahead.skipBlanks();
        if (!ahead.accept('|'))
            break;
        in = ahead;
    }
    value = static_cast<int>(all);
    return true;
}

bool readBitMask(std::string_view text, const SoEnumTable& table, int& value)
{
    int read = 0;
    TextReader in(text);
    if (!readListedBitMask(in, table, read) || !in.onlyBlanksLeft())
        return false;
    value = read;
    return true;
}

} // namespace xsg
