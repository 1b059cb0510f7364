// SPDX-License-Identifier: MIT
// The text of the drawing programs. The one for scenes with clipping planes has CLIPPED defined: to write the
// distances to planes that are not there would cost each vertex a good deal. Those that draw a mask have
// PLACE_ONLY defined: they need to know where things are, and nothing of their looks. Those of physically
// based surfaces have PHYSICAL defined: see SurfaceText.h.
#pragma once

namespace xsg
{

constexpr const char* VersionText = "#version 330 core\n";
constexpr const char* ClippedText = "#define CLIPPED\n";
constexpr const char* PlaceOnlyText = "#define PLACE_ONLY\n";

constexpr const char* VertexShaderText = R"(
layout(location = 0) in vec3 point;
layout(location = 1) in vec3 normal;
layout(location = 2) in vec2 texturePoint;
layout(location = 3) in vec3 color; // red below 0: the instance's diffuse colour
layout(location = 4) in mat4 model;
layout(location = 8) in vec4 diffuse;
layout(location = 9) in vec4 ambient;
layout(location = 10) in vec4 specular;
layout(location = 11) in vec4 emissive;
#ifdef NORMAL_PICTURES
layout(location = 12) in vec4 tangent; // fourth number: on which side the second direction is
#endif
#ifdef SECOND_COORDINATES
layout(location = 13) in vec2 secondTexturePoint;
#endif

uniform mat4 viewProjection;
uniform mat4 textureMatrix;
uniform vec2 viewport;
uniform bool screenSpace;
#ifdef CLIPPED
uniform int clipCount;
uniform vec4 clipPlanes[7];
out float gl_ClipDistance[7];
#endif

#ifndef PLACE_ONLY
out vec3 worldPoint;
out vec3 worldNormal;
out vec2 textureAt;
flat out int isLit;
out vec4 vertexDiffuse;
flat out vec4 vertexAmbient;
flat out vec3 vertexSpecular;
flat out vec3 vertexEmissive;
#endif
#ifdef PHYSICAL
flat out vec4 vertexCoat;
#endif
#ifdef NORMAL_PICTURES
out vec3 worldTangent;
out vec3 worldBitangent;
#endif
#ifdef SECOND_COORDINATES
out vec2 secondTextureAt;
#endif

void main()
{
    vec4 world = model * vec4(screenSpace ? vec3(0) : point, 1);
    gl_Position = viewProjection * world;
    if (screenSpace) {
        // Whole pixels, so that glyphs stay sharp.
        vec2 anchor = floor((gl_Position.xy / gl_Position.w * 0.5 + 0.5) * viewport + 0.5);
        gl_Position = vec4(((anchor + point.xy) / viewport * 2 - 1) * gl_Position.w, gl_Position.zw);
    }
    vec3 place = world.xyz / world.w;
#ifndef PLACE_ONLY
    worldPoint = place;
    // The cofactors turn normals right also where the model is stretched or mirrored.
    mat3 m = mat3(model);
    worldNormal = mat3(cross(m[1], m[2]), cross(m[2], m[0]), cross(m[0], m[1])) * normal;
    isLit = any(notEqual(normal, vec3(0))) ? 1 : 0;
#ifdef PHYSICAL
    textureAt = texturePoint;
    vertexCoat = specular;
#else
    textureAt = (textureMatrix * vec4(texturePoint, 0, 1)).xy;
#endif
#ifdef NORMAL_PICTURES
    worldNormal *= sign(dot(m[0], cross(m[1], m[2])));
    worldTangent = m * tangent.xyz;
    worldBitangent = m * (cross(normal, tangent.xyz) * tangent.w);
#endif
#ifdef SECOND_COORDINATES
    secondTextureAt = secondTexturePoint;
#endif
    vertexDiffuse = vec4(color.r < 0 ? diffuse.rgb : color, diffuse.a);
    vertexAmbient = ambient;
    vertexSpecular = specular.rgb;
    vertexEmissive = emissive.rgb;
#endif
#ifdef CLIPPED
    for (int i = 0; i < 7; ++i)
        gl_ClipDistance[i] = i < clipCount ? dot(clipPlanes[i].xyz, place) - clipPlanes[i].w : 1.0;
#endif
}
)";

// What all lit surfaces share.
constexpr const char* LightText = R"(
in vec3 worldPoint;
in vec3 worldNormal;
in vec2 textureAt;
flat in int isLit;
in vec4 vertexDiffuse;
flat in vec4 vertexAmbient; // and shininess
flat in vec3 vertexSpecular;
flat in vec3 vertexEmissive;

uniform vec4 eye; // fourth number 0: the direction towards an eye far away
uniform int lightCount;
uniform vec3 lightColor[8];
uniform vec4 lightLocation[8]; // fourth number 0: light from a direction
uniform vec4 lightDirection[8]; // fourth number: cosine of the cut-off angle
uniform vec4 lightAttenuation[8]; // fourth number: drop-off
uniform vec3 ambientLight;
uniform int fogKind;
uniform vec4 fogColor; // fourth number: range

out vec4 result;

vec3 lightAt(int i, out vec3 toLight)
{
    if (lightLocation[i].w == 0.0) {
        toLight = -lightDirection[i].xyz;
        return lightColor[i];
    }
    vec3 way = lightLocation[i].xyz - worldPoint;
    float distance = max(length(way), 1e-6);
    toLight = way / distance;
    vec3 a = lightAttenuation[i].xyz;
    float strength = 1.0 / max(a.x + a.y * distance + a.z * distance * distance, 1e-6);
    float cosine = dot(-toLight, lightDirection[i].xyz);
    if (cosine < lightDirection[i].w)
        return vec3(0);
    return lightColor[i] * strength * pow(max(cosine, 1e-6), lightAttenuation[i].w);
}

// Both sides of a surface are lit. Which of them is seen, the face says: near a silhouette, a normal that is smoothed
// between faces may well look away from the eye. -1: the normal is to be turned around.
float sideSeen(vec3 n, vec3 toEye)
{
    // Lines and points have no face.
    vec3 across = dFdx(worldPoint);
    vec3 up = dFdy(worldPoint);
    vec3 face = cross(across, up);
    if (length(face) <= 1e-4 * length(across) * length(up))
        face = toEye;
    return dot(n, face) * dot(toEye, face) < 0.0 ? -1.0 : 1.0;
}

float fogAmount()
{
    float distance = length(eye.xyz - worldPoint * eye.w) / max(fogColor.w, 1e-6);
    if (fogKind == 0)
        return clamp(distance, 0.0, 1.0);
    float density = fogKind == 1 ? distance * 4.0 : distance * distance * 5.0;
    return 1.0 - exp(-density);
}
)";

constexpr const char* FragmentShaderText = R"(
uniform int textureModel;
uniform sampler2D picture;

vec4 surfaceColor()
{
    if (textureModel < 0)
        return vertexDiffuse;
    vec4 texel = texture(picture, textureAt);
    if (textureModel == 0)
        return vertexDiffuse * texel;
    if (textureModel == 1)
        return vec4(mix(vertexDiffuse.rgb, texel.rgb, texel.a), vertexDiffuse.a);
    return texel;
}

void main()
{
    vec4 base = surfaceColor();
    vec3 color = base.rgb + vertexEmissive;
    if (isLit == 1) {
        vec3 toEye = normalize(eye.xyz - worldPoint * eye.w);
        vec3 n = normalize(worldNormal);
        n *= sideSeen(n, toEye);
        color = vertexEmissive + ambientLight * vertexAmbient.rgb;
        float sharpness = max(vertexAmbient.a, 0.0) * 128.0;
        for (int i = 0; i < lightCount; ++i) {
            vec3 toLight;
            vec3 light = lightAt(i, toLight);
            float facing = dot(n, toLight);
            if (facing <= 0.0)
                continue;
            color += light * base.rgb * facing;
            float mirrored = max(dot(n, normalize(toLight + toEye)), 1e-6);
            color += light * vertexSpecular * pow(mirrored, sharpness);
        }
    }
    if (fogKind >= 0)
        color = mix(color, fogColor.rgb, fogAmount());
    result = vec4(color, base.a);
}
)";

constexpr const char* NoFragmentText = "void main() {}\n";

constexpr const char* FlatFragmentText = R"(
uniform vec4 flatColor;
out vec4 result;
void main()
{
    result = flatColor;
}
)";

// Red, green and blue where a surface faces along x, y and z; grey where it has no normals.
constexpr const char* NormalsFragmentText = R"(
in vec3 worldNormal;
flat in int isLit;
in vec4 vertexDiffuse;
out vec4 result;
void main()
{
    vec3 color = isLit == 1 ? normalize(worldNormal) * 0.5 + 0.5 : vec3(0.3);
    result = vec4(color, vertexDiffuse.a);
}
)";

// Eight by eight squares for each time that a picture fits; redder to the right, greener upwards.
constexpr const char* TextureFragmentText = R"(
in vec2 textureAt;
in vec4 vertexDiffuse;
out vec4 result;
void main()
{
    vec2 square = floor(textureAt * 8.0);
    float shade = mod(square.x + square.y, 2.0) < 1.0 ? 1.0 : 0.55;
    result = vec4(vec3(0.25 + 0.75 * fract(textureAt), 0.35) * shade, vertexDiffuse.a);
}
)";

} // namespace xsg
