// SPDX-License-Identifier: MIT
#include "EditorRows.h"

namespace
{

using Row = EditorRow;
constexpr auto Own = Row::Own;
constexpr auto General = Row::General;
constexpr auto Grid = Row::Grid;
constexpr auto AtTheEnd = Row::AtTheEnd;
constexpr auto AtEachKey = Row::AtEachKey;

constexpr const char* One = "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1";
constexpr const char* Counted = "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16";
constexpr const char* Red = "1 1 3 0xff0000";
constexpr const char* Green = "1 1 3 0x00ff00";

} // namespace

const std::vector<EditorRow>& editorRows()
{
    // clang-format off
    static const std::vector<Row> rows{
        {"SFBool", Own, {"TRUE", "FALSE"}, {"+", "-"}, 0, " ", "FALSE", 1, AtEachKey},
        {"SFInt32", Own, {"-42", "7", "0"}, {"-42", "7"}, 0, "17", "17", 1, AtTheEnd},
        {"SFShort", Own, {"-42", "7", "0"}, {"-42", "7"}, 0, "17", "17", 1, AtTheEnd},
        {"SFUInt32", Own, {"3000000000", "7"}, {"3000000000", "7"}, 0, "17", "17", 1, AtTheEnd},
        {"SFUShort", Own, {"40000", "7"}, {"40000", "7"}, 0, "17", "17", 1, AtTheEnd},
        {"SFFloat", Own, {"0.5", "2.25"}, {"0.500000", "2.250000"}, 0, "1.5", "1.5", 1, AtTheEnd},
        {"SFDouble", Own, {"0.1", "2.25"}, {"0.1", "2.25"}, 0, "1.5", "1.5", 1, AtTheEnd},
        {"SFVec2f", Own, {"0.25 0.75", "1 2"}, {"0.25|0.75", "1|2"}, 1, "5", "0.25 5", 1, AtTheEnd},
        {"SFVec3f", Own, {"1 2 3", "4 5 6"}, {"1|2|3", "4|5|6"}, 1, "9", "1 9 3", 1, AtTheEnd},
        {"SFVec4f", Own, {"1 2 3 4", "5 6 7 8"}, {"1|2|3|4", "5|6|7|8"}, 3, "9", "1 2 3 9", 1, AtTheEnd},
        {"SFPlane", Own, {"0 1 0 2", "0 0 1 3"}, {"0|1|0|2", "0|0|1|3"}, 3, "9", "0 1 0 9", 1, AtTheEnd},
        {"SFRotation", Own, {"0 0 1 0", "0 1 0 0"}, {"0|0|1|3.14159", "0|1|0|3.14159"}, 3, "0", "0 0 0 1", 1,
         AtTheEnd},
        {"SFVec2i32", Own, {"640 480", "1 2"}, {"640|480", "1|2"}, 1, "9", "640 9", 1, AtEachKey},
        {"SFVec2s", Own, {"-3 4", "1 2"}, {"-3|4", "1|2"}, 1, "9", "-3 9", 1, AtEachKey},
        {"SFColor", Own, {"1 0.5 0", "0 0 1"}, {"1|0.5|0", "0|0|1"}, 2, "0.25", "1 0.5 0.25", 1, AtTheEnd},
        {"SFEnum", Own, {"SUMMER", "WINTER", "SPRING"}, {"SUMMER", "WINTER"}, 0, "A", "AUTUMN", 1, AtEachKey},
        {"SFBitMask", Own, {"LEFT | TOP", "RIGHT"},
         {"LEFT+|RIGHT-|TOP+|BOTTOM-", "LEFT-|RIGHT+|TOP-|BOTTOM-"}, 1, " ", "LEFT | RIGHT | TOP", 0, AtEachKey},
        {"SFString", Own, {R"("one")", R"("a \"b\"")"}, {"one", "a \"b\""}, 0, "x y", R"("x y")", 1, AtTheEnd},
        {"SFName", Own, {"Table", "Chair"}, {"Table", "Chair"}, 0, "Leg", "Leg", 1, AtTheEnd},
        {"SFFilePathString", Own, {R"("a/b.png")", R"("c.png")"}, {"a/b.png", "c.png"}, 0, "d.png",
         R"("d.png")", 1, AtTheEnd},
        {"SFImage", Own, {Red, Green}, {"#ff0000", "#00ff00"}, -1, "", Red, 0, AtEachKey},
        {"SFBox3s", Own, {"1 2 3 4 5 6", "0 0 0 1 1 1"}, {"1 2 3 4 5 6", "0 0 0 1 1 1"}, 0, "2 2 2 3 3 3",
         "2 2 2 3 3 3", 2, AtEachKey},
        {"SFBox3s", Grid, {"1 2 3 4 5 6", "0 0 0 1 1 1"}, {"1|2|3|4|5|6", "0|0|0|1|1|1"}, 4, "9", "1 2 3 4 9 6",
         1, AtTheEnd},
        {"SFMatrix", Own, {Counted, One}, {Counted, One}, 0, One, One, 2, AtEachKey},
        {"SFMatrix", Grid, {One, Counted},
         {"1|0|0|0|0|1|0|0|0|0|1|0|0|0|0|1", "1|5|9|13|2|6|10|14|3|7|11|15|4|8|12|16"}, 3, "9",
         "1 0 0 0 0 1 0 0 0 0 1 0 9 0 0 1", 1, AtTheEnd},
        {"SFTime", General, {"1.5", "2"}, {"1.5", "2"}, 0, "9", "9", 2, AtEachKey},
        {"SFVec3d", General, {"1 2 3", "4 5 6"}, {"1 2 3", "4 5 6"}, 0, "7 8 9", "7 8 9", 2, AtEachKey},
    };
    // clang-format on
    return rows;
}

std::ostream& operator<<(std::ostream& out, const EditorRow& row)
{
    return out << row.name();
}
