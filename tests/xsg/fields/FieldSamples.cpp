// SPDX-License-Identifier: MIT
#include "FieldSamples.h"

#include <xsg/fields/SoMFEnum.h>
#include <xsg/fields/SoSFEnum.h>

#include <gtest/gtest.h>

namespace
{

using Texts = std::vector<std::string>;

const Texts FloatEdges = {
    "0",   "-0",  "1",    "0.1",           "-12.5",          "1e-45",    "1.1754944e-38",
    "nan", "inf", "-inf", "3.4028235e+38", "-3.4028235e+38", "16777216", "0.33333334",
    "-nan"};
const Texts DoubleEdges = {"0",
                           "-0",
                           "1",
                           "0.1",
                           "-12.5",
                           "5e-324",
                           "2.2250738585072014e-308",
                           "nan",
                           "-nan",
                           "inf",
                           "-inf",
                           "1.7976931348623157e+308",
                           "-1.7976931348623157e+308",
                           "0.3333333333333333"};

// No number of any type.
const Texts NoNumbers = {"",    " ",   "abc", "1..2",  "--1", "+-1", "-",  "+",      ".",     "1e",   "e1",
                         "0x",  "0xg", "1x",  "1-2",   "1+2", "1 x", "#1", "TRUE",   "\"1\"", "1;2",  "1,5,",
                         "1/2", "(1)", "\\1", "1.5.2", "1\"", "{1}", "١",  "1 \x01", "1|2",   "0x1x", "''"};
const Texts NoFloat = {"0x10", "1e999", "-1e999", "1e5x", "1f", "infx", "nanx"};
const Texts NoInteger = {"1.5", "1e3", "nan", "inf", ".5", "99999999999999999999999999"};

Texts joined(Texts a, const Texts& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

struct Scalar {
    Texts edges;
    Texts bad;
};

const Scalar Float{FloatEdges, joined(NoNumbers, NoFloat)};
const Scalar Double{DoubleEdges, joined(NoNumbers, NoFloat)};
const Scalar Int32{
    {"0", "1", "-1", "2147483647", "-2147483648"},
    joined(joined(NoNumbers, NoInteger), {"2147483648", "-2147483649", "0x80000000", "-0x80000001"})};
const Scalar UInt32{{"0", "1", "4294967295"},
                    joined(joined(NoNumbers, NoInteger), {"-1", "4294967296", "0x100000000", "-0x1"})};
const Scalar Short{{"0", "1", "-1", "32767", "-32768"},
                   joined(joined(NoNumbers, NoInteger), {"32768", "-32769", "0x8000", "40000"})};
const Scalar UShort{{"0", "1", "65535"}, joined(joined(NoNumbers, NoInteger), {"-1", "65536", "0x10000"})};

const Texts Planes = {u8"ASCII", u8"é", u8"€", u8"𝄞", u8"𠀀", u8"\U000E0001", u8"\U000F0000", u8"\U0010FFFD"};

Texts strings()
{
    Texts texts = {R"("")",
                   R"(" ")",
                   R"("a \"quoted\" text")",
                   R"("back\\slash")",
                   R"("line\nline\r\ttab")",
                   R"("nul\0nul")",
                   R"("[ 1, 2 ]")",
                   R"("#")",
                   "\"\x7f\x01\""};
    for (const std::string& text : Planes)
        texts.push_back('"' + text + '"');
    return texts;
}

const Texts NoStrings = {"",
                         " ",
                         "\n",
                         "\"",
                         "\"a",
                         "\"\\",
                         "\"\\\"",
                         "\"\\q\"",
                         "\"\\x\"",
                         "\"\\x1\"",
                         "\"\\xg1\"",
                         "\"\\u\"",
                         "\"\\u1\"",
                         "\"\\u12\"",
                         "\"\\u123\"",
                         "\"\\u123g\"",
                         "\"a\"b",
                         "\"a\" b",
                         "\"a\" \"b\"",
                         "\"a\"]",
                         "\"\\",
                         "\"a\\\"",
                         std::string("a\0b", 3),
                         "\"a\" 1"};

Texts names()
{
    Texts texts = {R"("")", "Table", "Table_2", "42", R"("two words")", R"("a.b")", R"("\"")", "\xe9t\xe9"};
    return joined(texts, {u8"é", u8"𝄞"});
}

const Texts NoNames = joined(NoStrings, {"\"a\\0b\""});

const Texts NoBools = {"",         " ",  "2", "-1",     "yes", "no",  "on",         "off",
                       "TRUEE",    "T",  "F", "tru",    "1.0", "0x1", "TRUE FALSE", "1 0",
                       "\"TRUE\"", "01", "#", "TRUE.x", "!",   "-",   "true,",      "|"};
const Texts NoEnums = {
    "",     " ",       "red",  "RE",          "REDD",       "DARK",  "GREEN",   "DARK  GREEN", "\"RED",
    "\"\"", "1.5",     "1 2",  "RED 1",       "3D",         "-",     "+",       "|",           "#",
    "0xg",  "\"\\q\"", "RED,", "99999999999", "\"BLUE\" x", "{RED}", "RED BLUE"};
const Texts NoMasks = joined(NoEnums, {"RED |", "| RED", "RED || BLUE", "RED | x", "RED & BLUE"});
const Texts NoNodes = {"",     " ",  "null",    "Null", "NoSuchNode", "\"NULL\"",      "NULL NULL",
                       "\"\"", "42", "\"",      "\"a",  "#1",         "Sphere#999999", "1.5",
                       "{",    "}",  "\"\\q\"", "|",    "-",          "NULL,",         "nullptr"};
const Texts NoImages = {"",
                        " ",
                        "1",
                        "1 1",
                        "-1 1 1",
                        "1 -1 1",
                        "1 1 -1",
                        "1 1 5",
                        "1 1 1 x",
                        "a b c",
                        "1 1 1 256",
                        "1 1 1 0x100",
                        "2 1 1 0",
                        "1 1 1 0 0",
                        "1 1 3 0x1000000",
                        "1 1 0 0",
                        "1.5 1 1",
                        "1 1 1 -1",
                        "1 1 4 0x100000000",
                        "99999999999 1 1",
                        "1 1 1 1.5",
                        "1,1,1",
                        "1 1 1 0xg",
                        "2 2 3 0xff 0xff 0xff"};

// Values of `numbers` numbers, each made of neighbouring edges.
FieldSample numeric(const std::string& type, const Scalar& scalar, int numbers)
{
    FieldSample sample;
    sample.type = type;
    sample.numbers = numbers;
    for (std::size_t first = 0; first < scalar.edges.size(); ++first) {
        std::string text;
        for (int i = 0; i < numbers; ++i)
            text += (i > 0 ? " " : "") +
                    scalar.edges[(first + static_cast<std::size_t>(i)) % scalar.edges.size()];
        sample.values.push_back(text);
    }
    std::string before;
    for (int i = 1; i < numbers; ++i)
        before += "1 ";
    for (const std::string& bad : scalar.bad)
        sample.badValues.push_back(before + bad);
    sample.badValues.push_back(before + "1 1");
    return sample;
}

FieldSample other(const std::string& type, const Texts& values, const Texts& bad)
{
    FieldSample sample;
    sample.type = type;
    sample.values = values;
    sample.badValues = bad;
    return sample;
}

std::vector<FieldSample> singleValues()
{
    std::vector<FieldSample> all = {
        numeric("Float", Float, 1),
        numeric("Double", Double, 1),
        numeric("Int32", Int32, 1),
        numeric("UInt32", UInt32, 1),
        numeric("Short", Short, 1),
        numeric("UShort", UShort, 1),
        numeric("Time", Double, 1),
        numeric("Vec2f", Float, 2),
        numeric("Vec3f", Float, 3),
        numeric("Vec4f", Float, 4),
        numeric("Vec2d", Double, 2),
        numeric("Vec3d", Double, 3),
        numeric("Vec4d", Double, 4),
        numeric("Vec2i32", Int32, 2),
        numeric("Vec2s", Short, 2),
        numeric("Vec3s", Short, 3),
        numeric("Color", Float, 3),
        numeric("Plane", Float, 4),
        numeric("Rotation", Float, 4),
        numeric("Matrix", Float, 16),
        numeric("Box3s", Short, 6),
        numeric("Box3f", Float, 6),
        other("Bool", {"TRUE", "FALSE"}, NoBools),
        other("String", strings(), NoStrings),
        other("FilePathString", strings(), NoStrings),
        other("Name", names(), NoNames),
        other("Enum", {"RED", "DARK GREEN", "BLUE", "2D", "0", "17", "-1"}, NoEnums),
        other("BitMask",
              {"RED", "RED | \"DARK GREEN\"", "BLUE | 64", "RED | \"DARK GREEN\" | BLUE | 2D", "0"}, NoMasks),
        other("Node", {"NULL"}, NoNodes),
        other("Image",
              {"0 0 0", "1 1 1 0xff", "2 1 2 0x0102 0xfffe", "1 2 3 0xff0000 0x00ff00", "1 1 4 0x01020304",
               "100000 100000 4", "0 5 3"},
              NoImages),
    };
    for (FieldSample& sample : all) {
        if (sample.type == "Bool" || sample.type == "Enum" || sample.type == "BitMask")
            sample.numbers = 1;
        if (sample.type == "BitMask")
            sample.numbers = 1;
    }
    return all;
}

std::vector<FieldSample> makeSamples()
{
    std::vector<FieldSample> all;
    for (FieldSample sample : singleValues()) {
        const std::string kind = sample.type;
        sample.type = "SF" + kind;
        all.push_back(sample);
        sample.type = "MF" + kind;
        sample.isList = true;
        // In a list, a name that is no word takes quotes.
        if (kind == "Enum")
            sample.values[1] = "\"DARK GREEN\"";
        if (!SoType::fromName(sample.type.c_str()).isBad())
            all.push_back(sample);
    }
    return all;
}

} // namespace

Texts FieldSample::goodTexts() const
{
    if (!isList)
        return values;
    Texts texts = {"[ ]"};
    std::string all;
    for (const std::string& value : values) {
        texts.push_back("[ " + value + " ]");
        all += (all.empty() ? "[ " : ", ") + value;
    }
    if (values.size() > 1)
        texts.push_back(all + " ]");
    return texts;
}

Texts FieldSample::badTexts() const
{
    Texts texts = badValues;
    if (!isList) {
        for (const char* list : {"[ ]", "[", "]", "[ 1 ]", "[ \"\""})
            texts.push_back(list);
        // Strings and names take any text that stands alone.
        if (type == "SFString" || type == "SFFilePathString" || type == "SFName")
            texts.resize(badValues.size());
        return texts;
    }
    const std::string& good = values.front();
    for (const std::string& bad :
         Texts{"[", "[ " + good, "[ " + good + " ] ]", "[ [ " + good + " ] ]", "[ , " + good + " ]",
               "[ " + good + ",, " + good + " ]", "[ " + good + " ] " + good, "[ ] x"})
        texts.push_back(bad);
    for (const std::string& bad : badValues) {
        // Inside a list a comma and a blank part values, and nothing at all is no value.
        const bool isListSyntax = bad.find_first_not_of(" \n") == std::string::npos ||
                                  bad.find(',') != std::string::npos || bad.find(']') != std::string::npos;
        if (!isListSyntax && bad.find(' ') == std::string::npos)
            texts.push_back("[ " + good + ", " + bad + " ]");
    }
    return texts;
}

std::unique_ptr<SoField> FieldSample::create() const
{
    static const SbName Names[] = {"RED", "DARK GREEN", "BLUE", "2D"};
    static constexpr int Values[] = {1, 2, 4, 8};
    auto* object = SoType::fromName(type.c_str()).createInstance();
    auto* field = dynamic_cast<SoField*>(object);
    EXPECT_TRUE(field) << type;
    if (auto* single = dynamic_cast<SoSFEnum*>(field))
        single->setEnums(4, Values, Names);
    if (auto* list = dynamic_cast<SoMFEnum*>(field))
        list->setEnums(4, Values, Names);
    return std::unique_ptr<SoField>(field);
}

const std::vector<FieldSample>& fieldSamples()
{
    static const std::vector<FieldSample> all = makeSamples();
    return all;
}

const FieldSample& sampleOf(const std::string& type)
{
    for (const FieldSample& sample : fieldSamples()) {
        if (sample.type == type)
            return sample;
    }
    ADD_FAILURE() << "no sample of " << type;
    return fieldSamples().front();
}
