// SPDX-License-Identifier: MIT
#include <xsg/frames/SoFrame.h>

namespace
{

struct Row {
    const char* name;
    const char* unit;
};

constexpr Row Rows[] = {
    {"Begin", "ns"},      {"Whole", "ns"},        {"Update", "ns"},      {"Traverse", "ns"},
    {"Cull", "ns"},       {"Upload", "ns"},       {"Draw", "ns"},        {"Gpu", "ns"},
    {"Memory", "B"},      {"DrawCalls", ""},      {"Triangles", ""},     {"StateChanges", ""},
    {"Uploads", ""},      {"UploadedBytes", "B"}, {"TextureBytes", "B"}, {"NodesVisited", ""},
    {"ShapesCulled", ""}, {"Allocations", ""},    {"FieldChanges", ""},  {"SensorsTriggered", ""},
    {"BytesParsed", "B"},
};
static_assert(std::size(Rows) == SoFrame::NumFigures);

} // namespace

const char* SoFrame::getName(Figure figure)
{
    return Rows[figure].name;
}

const char* SoFrame::getUnit(Figure figure)
{
    return Rows[figure].unit;
}
