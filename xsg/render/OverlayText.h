// SPDX-License-Identifier: MIT
// The text of the program that draws an overlay's marks.
#pragma once

namespace xsg
{

/// Four corners a mark: of a triangle, or of the square along a line. What of a line is behind the eye is cut
/// off before it is projected.
constexpr const char* OverlayVertexText = R"(
layout(location = 0) in vec3 a;
layout(location = 1) in vec3 b;
layout(location = 2) in vec3 c;
layout(location = 3) in vec4 color;
layout(location = 4) in float pixels;
uniform mat4 viewProjection;
uniform vec2 viewport;
uniform float nearer; // how much of the way to the eye
flat out vec4 shade;
flat out float isDisc;
out vec2 within; // a disc's square

vec4 cut(vec4 end, vec4 other)
{
    float height = end.z + end.w; // above the near plane
    float otherHeight = other.z + other.w;
    return height >= 0.0 || otherHeight <= 0.0 ? end : mix(end, other, height / (height - otherHeight) + 1e-5);
}

void main()
{
    shade = color;
    isDisc = 0.0;
    within = vec2(0);
    vec4 first = viewProjection * vec4(a, 1);
    vec4 second = viewProjection * vec4(b, 1);
    if (pixels < 0.0) {
        vec4 third = viewProjection * vec4(c, 1);
        gl_Position = gl_VertexID == 0 ? first : gl_VertexID == 1 ? second : third;
    } else {
        bool isPoint = a == b;
        vec4 start = cut(first, second);
        vec4 end = cut(second, first);
        vec2 along = isPoint ? vec2(1, 0) : (end.xy / end.w - start.xy / start.w) * viewport;
        along = length(along) > 1e-6 ? normalize(along) : vec2(1, 0);
        vec2 side = vec2(-along.y, along.x) * (gl_VertexID % 2 == 0 ? 1.0 : -1.0);
        float ahead = gl_VertexID < 2 ? -1.0 : 1.0;
        isDisc = isPoint ? 1.0 : 0.0;
        within = vec2(ahead, gl_VertexID % 2 == 0 ? 1.0 : -1.0);
        gl_Position = gl_VertexID < 2 ? start : end;
        vec2 by = (side + (isPoint ? along * ahead : vec2(0))) * pixels / viewport;
        gl_Position.xy += by * gl_Position.w;
    }
    gl_Position.z -= nearer * (gl_Position.w - gl_Position.z);
}
)";

constexpr const char* OverlayFragmentText = R"(
flat in vec4 shade;
flat in float isDisc;
in vec2 within;
out vec4 result;

void main()
{
    if (isDisc > 0.5 && dot(within, within) > 1.0)
        discard;
    result = shade;
}
)";

} // namespace xsg
