// SPDX-License-Identifier: MIT
#include <xsg/values/SbValueText.h>

#include <xsg/values/Utf.h>
#include <xsg/values/ValueScan.h>

#include <algorithm>

bool xsg::TextReader::isWordByte(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) > 127;
}

std::string_view xsg::TextReader::readWord()
{
    const char* start = m_at;
    while (m_at != m_end && isWordByte(*m_at))
        ++m_at;
    return {start, static_cast<std::size_t>(m_at - start)};
}

bool xsg::TextReader::readHex(int digits, unsigned& value)
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

bool xsg::TextReader::readEscape(std::string& out)
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

bool xsg::TextReader::readQuoted(std::string& out)
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

xsg::ValueExtent::ValueExtent(std::string_view text)
{
    ValueScan scan;
    scan.advance(text);
    open = scan.getOpen();
    length = isWhole() ? scan.getLength() : open;
}

std::string_view xsg::trimmed(std::string_view text)
{
    while (!text.empty() && xsg::TextReader::isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && xsg::TextReader::isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

void xsg::appendQuoted(std::string& out, std::string_view text)
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
std::string_view readBare(xsg::TextReader& in)
{
    const std::string_view rest = in.rest();
    std::size_t size = 0;
    while (size < rest.size() && !xsg::TextReader::isBlank(rest[size]) && rest[size] != ',' &&
           rest[size] != ']' && rest[size] != '[' && rest[size] != '"')
        ++size;
    in.skip(size);
    return rest.substr(0, size);
}

template <int N>
bool readFloats(xsg::TextReader& in, float (&values)[N])
{
    return xsg::NumbersText<float, N>::read(in, values);
}

} // namespace

void xsg::ValueText<bool>::write(std::string& out, bool value)
{
    out += value ? "TRUE" : "FALSE";
}

bool xsg::ValueText<bool>::read(xsg::TextReader& in, bool& value)
{
    in.skipBlanks();
    const std::string_view word = in.readWord();
    const bool yes = word == "1" || equalsIgnoringCase(word, "true");
    if (!yes && word != "0" && !equalsIgnoringCase(word, "false"))
        return false;
    value = yes;
    return true;
}

bool xsg::ValueText<SbBool>::read(xsg::TextReader& in, SbBool& value)
{
    bool parsed = false;
    if (!xsg::ValueText<bool>::read(in, parsed))
        return false;
    value = parsed ? 1 : 0;
    return true;
}

void xsg::ValueText<SbRotation>::write(std::string& out, const SbRotation& r)
{
    xsg::NumbersText<float, 4>::write(out, r.getValue());
}

bool xsg::ValueText<SbRotation>::read(xsg::TextReader& in, SbRotation& r)
{
    float four[4];
    if (!readFloats(in, four))
        return false;
    r.setValue(four);
    return true;
}

void xsg::ValueText<SbPlane>::write(std::string& out, const SbPlane& p)
{
    xsg::ValueText<SbVec3f>::write(out, p.getNormal());
    out += ' ';
    xsg::ValueText<float>::write(out, p.getDistanceFromOrigin());
}

bool xsg::ValueText<SbPlane>::read(xsg::TextReader& in, SbPlane& p)
{
    float four[4];
    if (!readFloats(in, four))
        return false;
    p = SbPlane(SbVec3f(four), four[3]);
    return true;
}

void xsg::ValueText<SbBox3s>::write(std::string& out, const SbBox3s& b)
{
    xsg::ValueText<SbVec3s>::write(out, b.getMin());
    out += ' ';
    xsg::ValueText<SbVec3s>::write(out, b.getMax());
}

bool xsg::ValueText<SbBox3s>::read(xsg::TextReader& in, SbBox3s& b)
{
    short six[6];
    if (!xsg::NumbersText<short, 6>::read(in, six))
        return false;
    b = SbBox3s(SbVec3s(six), SbVec3s(six + 3));
    return true;
}

void xsg::ValueText<SbBox3f>::write(std::string& out, const SbBox3f& b)
{
    xsg::ValueText<SbVec3f>::write(out, b.getMin());
    out += ' ';
    xsg::ValueText<SbVec3f>::write(out, b.getMax());
}

bool xsg::ValueText<SbBox3f>::read(xsg::TextReader& in, SbBox3f& b)
{
    float six[6];
    if (!readFloats(in, six))
        return false;
    b = SbBox3f(SbVec3f(six), SbVec3f(six + 3));
    return true;
}

void xsg::ValueText<SbTime>::write(std::string& out, SbTime t)
{
    xsg::ValueText<double>::write(out, t.getValue());
}

bool xsg::ValueText<SbTime>::read(xsg::TextReader& in, SbTime& t)
{
    double seconds = 0;
    if (!xsg::ValueText<double>::read(in, seconds))
        return false;
    t = seconds;
    return true;
}

void xsg::ValueText<SbString>::write(std::string& out, const SbString& s)
{
    xsg::appendQuoted(out, s.str());
}

bool xsg::ValueText<SbString>::read(xsg::TextReader& in, SbString& s)
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

void xsg::ValueText<SbName>::write(std::string& out, SbName n)
{
    const std::string_view text = n.getString();
    const bool isWord = !text.empty() && std::all_of(text.begin(), text.end(), xsg::TextReader::isWordByte);
    if (isWord)
        out += text;
    else
        xsg::appendQuoted(out, text);
}

bool xsg::ValueText<SbName>::read(xsg::TextReader& in, SbName& n)
{
    SbString text;
    if (!xsg::ValueText<SbString>::read(in, text))
        return false;
    // A name ends at its first NUL; a text that has one is no name.
    if (text.str().find('\0') != std::string::npos)
        return false;
    n = SbName(text);
    return true;
}
