// SPDX-License-Identifier: MIT
#include <xsg/values/XsgText.h>

#include <xsg/values/Utf.h>

#include <algorithm>

bool XsgTextReader::isWordByte(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) > 127;
}

std::string_view XsgTextReader::readWord()
{
    const char* start = m_at;
    while (m_at != m_end && isWordByte(*m_at))
        ++m_at;
    return {start, static_cast<std::size_t>(m_at - start)};
}

bool XsgTextReader::readHex(int digits, unsigned& value)
{
    if (m_end - m_at < digits)
        return false;
    const char* stop = m_at + digits;
    const auto [end, error] = std::from_chars(m_at, stop, value, 16);
    if (error != std::errc() || end != stop)
        return false;
    m_at = stop;
    return true;
}

bool XsgTextReader::readEscape(std::string& out)
{
    if (atEnd())
        return false;
    unsigned code = 0;
    switch (const char c = *m_at++) {
    case 'n':
        out += '\n';
        return true;
    case 'r':
        out += '\r';
        return true;
    case 't':
        out += '\t';
        return true;
    case '0':
        out += '\0';
        return true;
    case '"':
    case '\\':
        out += c;
        return true;
    case 'x':
        if (!readHex(2, code))
            return false;
        out += static_cast<char>(code);
        return true;
    case 'u':
        if (!readHex(4, code))
            return false;
        xsg::appendUtf8(out, code);
        return true;
    default:
        return false;
    }
}

bool XsgTextReader::readQuoted(std::string& out)
{
    if (!accept('"'))
        return false;
    out.clear();
    while (!atEnd()) {
        const char c = *m_at++;
        if (c == '"')
            return true;
        if (c != '\\')
            out += c;
        else if (!readEscape(out))
            return false;
    }
    return false;
}

namespace
{

std::size_t afterQuoted(std::string_view text, std::size_t at)
{
    for (++at; at < text.size(); ++at) {
        if (text[at] == '"')
            return at + 1;
        if (text[at] == '\\')
            ++at;
    }
    return std::string_view::npos;
}

} // namespace

XsgValueExtent::XsgValueExtent(std::string_view text)
{
    const bool isList = !text.empty() && text.front() == '[';
    const std::string_view ends = isList ? "\"]" : "\"\n!<}#";
    while (true) {
        length = std::min(text.find_first_of(ends, length), text.size());
        if (length == text.size() || text[length] != '"')
            break;
        const std::size_t after = afterQuoted(text, length);
        if (after == std::string_view::npos) {
            open = length;
            return;
        }
        length = after;
    }
    if (!isList)
        return;
    if (length == text.size())
        open = 0;
    else
        ++length;
}

std::string_view xsgTrimmed(std::string_view text)
{
    while (!text.empty() && XsgTextReader::isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && XsgTextReader::isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

void xsgAppendQuoted(std::string& out, std::string_view text)
{
    out.reserve(out.size() + text.size() + 2);
    out += '"';
    for (const char c : text) {
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        case '\0':
            out += "\\0";
            break;
        default:
            out += c;
        }
    }
    out += '"';
}

namespace
{

bool equalsIgnoringCase(std::string_view word, std::string_view lower)
{
    return word.size() == lower.size() &&
           std::equal(word.begin(), word.end(), lower.begin(), [](char a, char b) {
               return (a >= 'A' && a <= 'Z' ? static_cast<char>(a - 'A' + 'a') : a) == b;
           });
}

// Text without quotes, up to what can end it inside a list.
std::string_view readBare(XsgTextReader& in)
{
    const std::string_view rest = in.rest();
    std::size_t size = 0;
    while (size < rest.size() && !XsgTextReader::isBlank(rest[size]) && rest[size] != ',' &&
           rest[size] != ']' && rest[size] != '[' && rest[size] != '"')
        ++size;
    in.skip(size);
    return rest.substr(0, size);
}

template <int N>
bool readFloats(XsgTextReader& in, float (&values)[N])
{
    return XsgNumbersText<float, N>::read(in, values);
}

} // namespace

void XsgText<bool>::write(std::string& out, bool value)
{
    out += value ? "TRUE" : "FALSE";
}

bool XsgText<bool>::read(XsgTextReader& in, bool& value)
{
    in.skipBlanks();
    const std::string_view word = in.readWord();
    const bool yes = word == "1" || equalsIgnoringCase(word, "true");
    if (!yes && word != "0" && !equalsIgnoringCase(word, "false"))
        return false;
    value = yes;
    return true;
}

bool XsgText<SbBool>::read(XsgTextReader& in, SbBool& value)
{
    bool parsed = false;
    if (!XsgText<bool>::read(in, parsed))
        return false;
    value = parsed ? 1 : 0;
    return true;
}

void XsgText<SbRotation>::write(std::string& out, const SbRotation& r)
{
    XsgNumbersText<float, 4>::write(out, r.getValue());
}

bool XsgText<SbRotation>::read(XsgTextReader& in, SbRotation& r)
{
    float four[4];
    if (!readFloats(in, four))
        return false;
    r.setValue(four);
    return true;
}

void XsgText<SbPlane>::write(std::string& out, const SbPlane& p)
{
    XsgText<SbVec3f>::write(out, p.getNormal());
    out += ' ';
    XsgText<float>::write(out, p.getDistanceFromOrigin());
}

bool XsgText<SbPlane>::read(XsgTextReader& in, SbPlane& p)
{
    float four[4];
    if (!readFloats(in, four))
        return false;
    p = SbPlane(SbVec3f(four), four[3]);
    return true;
}

void XsgText<SbBox3s>::write(std::string& out, const SbBox3s& b)
{
    XsgText<SbVec3s>::write(out, b.getMin());
    out += ' ';
    XsgText<SbVec3s>::write(out, b.getMax());
}

bool XsgText<SbBox3s>::read(XsgTextReader& in, SbBox3s& b)
{
    short six[6];
    if (!XsgNumbersText<short, 6>::read(in, six))
        return false;
    b = SbBox3s(SbVec3s(six), SbVec3s(six + 3));
    return true;
}

void XsgText<SbBox3f>::write(std::string& out, const SbBox3f& b)
{
    XsgText<SbVec3f>::write(out, b.getMin());
    out += ' ';
    XsgText<SbVec3f>::write(out, b.getMax());
}

bool XsgText<SbBox3f>::read(XsgTextReader& in, SbBox3f& b)
{
    float six[6];
    if (!readFloats(in, six))
        return false;
    b = SbBox3f(SbVec3f(six), SbVec3f(six + 3));
    return true;
}

void XsgText<SbTime>::write(std::string& out, SbTime t)
{
    XsgText<double>::write(out, t.getValue());
}

bool XsgText<SbTime>::read(XsgTextReader& in, SbTime& t)
{
    double seconds = 0;
    if (!XsgText<double>::read(in, seconds))
        return false;
    t = seconds;
    return true;
}

void XsgText<SbString>::write(std::string& out, const SbString& s)
{
    xsgAppendQuoted(out, s.str());
}

bool XsgText<SbString>::read(XsgTextReader& in, SbString& s)
{
    in.skipBlanks();
    std::string text;
    if (in.peek() == '"') {
        if (!in.readQuoted(text))
            return false;
    } else {
        text = readBare(in);
        if (text.empty() || text.find('\0') != std::string::npos)
            return false;
    }
    s = SbString(std::move(text));
    return true;
}

void XsgText<SbName>::write(std::string& out, SbName n)
{
    const std::string_view text = n.getString();
    const bool isWord = !text.empty() && std::all_of(text.begin(), text.end(), XsgTextReader::isWordByte);
    if (isWord)
        out += text;
    else
        xsgAppendQuoted(out, text);
}

bool XsgText<SbName>::read(XsgTextReader& in, SbName& n)
{
    SbString text;
    if (!XsgText<SbString>::read(in, text))
        return false;
    // A name ends at its first NUL; a text that has one is no name.
    if (text.str().find('\0') != std::string::npos)
        return false;
    n = SbName(text);
    return true;
}
