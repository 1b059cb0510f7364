// SPDX-License-Identifier: MIT
// The text of the programs that draw a line around what is marked.
#pragma once

namespace xsg
{

/// One triangle that covers the picture, without vertices.
constexpr const char* WholePictureText = R"(
void main()
{
    gl_Position = vec4(gl_VertexID == 1 ? 3.0 : -1.0, gl_VertexID == 2 ? 3.0 : -1.0, 0, 1);
}
)";

/// For each tile: 0 where none of its pixels is marked, 1 where all are, else a half.
constexpr const char* TilesText = R"(
uniform sampler2D mask;
out vec4 result;

void main()
{
    ivec2 first = ivec2(gl_FragCoord.xy) * TileSize;
    ivec2 end = min(first + TileSize, textureSize(mask, 0));
    float nearest = 1.0;
    float farthest = 0.0;
    for (int y = first.y; y < end.y; ++y) {
        for (int x = first.x; x < end.x; ++x) {
            float depth = texelFetch(mask, ivec2(x, y), 0).r;
            nearest = min(nearest, depth);
            farthest = max(farthest, depth);
        }
    }
    result = vec4(nearest == 1.0 ? 0.0 : farthest < 1.0 ? 1.0 : 0.5);
}
)";

/// A square for each tile near the mask's edge, or where the mask meets the picture's border; the others
/// collapse.
constexpr const char* TileVertexText = R"(
uniform sampler2D tiles;
uniform sampler2D mask;

bool isNearEdge(ivec2 tile)
{
    ivec2 size = textureSize(tiles, 0);
    float least = 1.0;
    float most = 0.0;
    for (int y = -1; y <= 1; ++y) {
        for (int x = -1; x <= 1; ++x) {
            ivec2 at = tile + ivec2(x, y);
            bool isInside = all(greaterThanEqual(at, ivec2(0))) && all(lessThan(at, size));
            float marked = isInside ? texelFetch(tiles, at, 0).r : 0.0;
            least = min(least, marked);
            most = max(most, marked);
        }
    }
    return most > 0.0 && least < 1.0;
}

void main()
{
    int columns = textureSize(tiles, 0).x;
    ivec2 tile = ivec2(gl_InstanceID % columns, gl_InstanceID / columns);
    vec2 corner = vec2(gl_VertexID % 2, gl_VertexID / 2);
    vec2 place = (vec2(tile) + (isNearEdge(tile) ? corner : vec2(0))) * float(TileSize);
    gl_Position = vec4(place / vec2(textureSize(mask, 0)) * 2.0 - 1.0, 0, 1);
}
)";

/// How much of the line is in a pixel, and its depth. The line lies outside of what is marked; where that
/// reaches the picture's border, along the border.
constexpr const char* EdgesText = R"(
uniform sampler2D mask;
uniform float thickness;
out vec4 result;

void main()
{
    ivec2 here = ivec2(gl_FragCoord.xy);
    ivec2 size = textureSize(mask, 0);
    float depth = texelFetch(mask, here, 0).r;
    bool isMarked = depth < 1.0;
    ivec2 toBorder = min(here, size - 1 - here) + 1;
    float distance = isMarked ? float(min(toBorder.x, toBorder.y)) : 1e6;
    int reach = isMarked ? -1 : int(ceil(1.5 * thickness));
    for (int y = -reach; y <= reach; ++y) {
        for (int x = -reach; x <= reach; ++x) {
            ivec2 at = clamp(here + ivec2(x, y), ivec2(0), size - 1);
            float there = texelFetch(mask, at, 0).r;
            if (there < 1.0) {
                distance = min(distance, length(vec2(x, y)));
                depth = min(depth, there);
            }
        }
    }
    // Up to the thickness in colour; half as much more is rim, outside only.
    float line = clamp(thickness + 1.0 - distance, 0.0, 1.0);
    float rim = isMarked ? 0.0 : clamp(1.5 * thickness + 1.0 - distance, 0.0, 1.0);
    if (line <= 0.0 && rim <= 0.0)
        discard;
    // A hundredth nearer, since the scene beside a body may rise in front of it a little, as a floor does.
    depth -= 0.01 * (1.0 - depth);
    float code = line > 0.0 ? 128.0 + 127.0 * line : 127.0 * rim;
    uint whole = uint(clamp(depth, 0.0, 1.0) * 16777215.0);
    result = vec4(float(whole >> 16), float((whole >> 8) & 255u), float(whole & 255u), code) / 255.0;
}
)";

/// The line in its colours, with the depth of what it belongs to.
constexpr const char* ComposeText = R"(
uniform sampler2D edges;
uniform vec4 color; // of the line; fourth number: how strong
uniform vec4 rim;
out vec4 result;

void main()
{
    vec4 edge = texelFetch(edges, ivec2(gl_FragCoord.xy), 0) * 255.0;
    float code = floor(edge.a + 0.5);
    if (code < 1.0)
        discard;
    gl_FragDepth = dot(floor(edge.rgb + 0.5), vec3(65536.0, 256.0, 1.0)) / 16777215.0;
    if (code < 128.0)
        result = vec4(rim.rgb, rim.a * code / 127.0);
    else // where the line grows fainter, its rim shows through
        result = vec4(mix(rim.rgb, color.rgb, (code - 128.0) / 127.0),
                      mix(rim.a, color.a, (code - 128.0) / 127.0));
}
)";

} // namespace xsg
