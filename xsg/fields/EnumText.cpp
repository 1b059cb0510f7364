#include <xsg/fields/EnumText.h>

#include <xsg/fields/SoValueImpl.h>

namespace xsg
{
namespace
{

bool readTerm(XsgTextReader& in, const SoEnumTable& table, int& bits)
{
    in.skipBlanks();
    if ((in.peek() >= '0' && in.peek() <= '9') || in.peek() == '-' || in.peek() == '+')
        return in.readNumber(bits);
    SbName name;
    std::string quoted;
    if (in.peek() == '"') {
        if (!in.readQuoted(quoted))
            return false;
        name = SbName(quoted.c_str());
    } else {
        name = SbName(SbString(in.readWord()));
    }
    const int index = table.indexOf(name);
    if (index < 0)
        return false;
    bits = table.values[static_cast<std::size_t>(index)];
    return true;
}

} // namespace

void writeEnum(std::string& out, const SoEnumTable& table, int value)
{
    const int index = table.indexOf(value);
    if (index < 0)
        XsgText<int>::write(out, value);
    else
        out += table.names[static_cast<std::size_t>(index)].getString();
}

bool readEnum(std::string_view text, const SoEnumTable& table, int& value)
{
    const std::string_view bare = trimmed(text);
    const int index = table.indexOf(SbName(SbString(bare)));
    if (index >= 0 && !bare.empty()) {
        value = table.values[static_cast<std::size_t>(index)];
        return true;
    }
    return readOnly(bare, value);
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
        XsgText<SbName>::write(out, table.names[i]);
        left &= ~bits;
    }
    if (left != 0) {
        separate();
        XsgText<int>::write(out, static_cast<int>(left));
    } else if (out.size() == start) {
        writeEnum(out, table, 0);
    }
}

bool readBitMask(std::string_view text, const SoEnumTable& table, int& value)
{
    XsgTextReader in(text);
    unsigned all = 0;
    do {
        int bits = 0;
        if (!readTerm(in, table, bits))
            return false;
        all |= static_cast<unsigned>(bits);
        in.skipBlanks();
    } while (in.accept('|'));
    if (!in.atEnd())
        return false;
    value = static_cast<int>(all);
    return true;
}

} // namespace xsg
