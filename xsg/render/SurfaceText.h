// SPDX-License-Identifier: MIT
// The text of the drawing programs of physically based surfaces, after glTF 2.0, appendix B. It follows on
// LightText. What a surface does not have is not in its program: see Surface.h.
#pragma once

namespace xsg
{

constexpr const char* SurfaceFragmentText = R"(
flat in vec4 vertexCoat; // how much, its roughness; scale of the normal picture, and of the coat's
#ifdef NORMAL_PICTURES
in vec3 worldTangent;
in vec3 worldBitangent;
#endif
#ifdef SECOND_COORDINATES
in vec2 secondTextureAt;
#endif

uniform sampler2D pictures[8];
uniform mat3x2 pictureMatrix[8];
uniform int pictureCoordinates[8];
uniform vec3 surroundings[3]; // sky, horizon, ground
uniform vec3 up;
uniform sampler2D environmentTable;

const float Pi = 3.14159265358979;
const float DielectricReflectance = 0.04;

vec2 placeOn(int use)
{
#ifdef SECOND_COORDINATES
    vec2 at = pictureCoordinates[use] == 1 ? secondTextureAt : textureAt;
#else
    vec2 at = textureAt;
#endif
    return pictureMatrix[use] * vec3(at, 1);
}

// A power of 5 as three products.
float grazing(float cosine)
{
    float c = clamp(1.0 - cosine, 0.0, 1.0);
    float square = c * c;
    return square * square * c;
}

// The distribution of facets by Trowbridge and Reitz, with what they hide of each other by Smith.
float highlight(vec3 n, vec3 halfway, float facingLight, float facingEye, float alpha)
{
    float square = alpha * alpha;
    vec3 aside = cross(n, halfway); // more exact than 1 - cosine * cosine where there is little of it
    float cosine = dot(n, halfway);
    float spread = cosine * cosine * square + dot(aside, aside);
    float fromLight = facingLight + sqrt(square + (1.0 - square) * facingLight * facingLight);
    float toEye = facingEye + sqrt(square + (1.0 - square) * facingEye * facingEye);
    return square / (Pi * spread * spread * fromLight * toEye);
}

float alphaOf(float roughness)
{
    float r = max(roughness, 0.045); // below it, highlights are smaller than pixels
    return r * r;
}

#ifdef NORMAL_PICTURES
vec3 detailedNormal(vec3 texel, int use, float scale, vec3 n)
{
    vec3 detail = texel * 2.0 - 1.0;
    detail.xy *= scale;
    // From the coordinates of the shape to those of the picture.
    mat2 turn = inverse(mat2(pictureMatrix[use]));
    vec3 along = worldTangent * turn[0].x + worldBitangent * turn[0].y;
    vec3 across = worldTangent * turn[1].x + worldBitangent * turn[1].y;
    vec3 bent = normalize(along) * detail.x + normalize(across) * detail.y + n * detail.z;
    return dot(bent, bent) > 0.0 ? normalize(bent) : n;
}
#endif

#ifdef ENVIRONMENT
const float Rows = 17.0;

vec3 lightFrom(vec3 direction, float row)
{
    float height = dot(direction, up) * (31.5 / 64.0) + 0.5;
    vec3 parts = texture(environmentTable, vec2(height, (row + 0.5) / Rows)).rgb;
    return parts.x * surroundings[0] + parts.y * surroundings[1] + parts.z * surroundings[2];
}

// How much is mirrored of light from all around: factor and addend for the reflectance.
vec2 mirrored(float facingEye, float roughness)
{
    vec4 r = roughness * vec4(-1, -0.0275, -0.572, 0.022) + vec4(1, 0.0425, 1.04, -0.04);
    float a = min(r.x * r.x, exp2(-9.28 * facingEye)) * r.x + r.y;
    return vec2(-1.04, 1.04) * a + r.zw;
}
#endif

vec3 toneMapped(vec3 color)
{
#if TONE_MAPPING == 1
    const float Start = 0.8 - 0.04;
    float least = min(color.r, min(color.g, color.b));
    color -= least < 0.08 ? least - 6.25 * least * least : 0.04;
    float peak = max(color.r, max(color.g, color.b));
    float over = max(peak, Start);
    const float Room = 1.0 - Start;
    float lower = 1.0 - Room * Room / (over + Room - Start);
    float white = 1.0 - 1.0 / (0.15 * (over - lower) + 1.0);
    return peak < Start ? color : mix(color * (lower / over), vec3(lower), white);
#elif TONE_MAPPING == 2
    return color * (2.51 * color + 0.03) / (color * (2.43 * color + 0.59) + 0.14);
#else
    return color;
#endif
}

// From light to the numbers of sRGB; roots are several times cheaper than a power, and as exact as 8 bits.
vec3 encoded(vec3 color)
{
    vec3 c = clamp(color, 0.0, 1.0);
    vec3 root = sqrt(c);
    vec3 fourth = sqrt(root);
    vec3 eighth = sqrt(fourth);
    vec3 curve = 0.662002687 * root + 0.684122060 * fourth - 0.323583601 * eighth - 0.0225411470 * c;
    return mix(curve, c * 12.92, lessThan(c, vec3(0.0031308)));
}

void main()
{
    vec4 base = vertexDiffuse;
#ifdef PICTURE_0
    base *= texture(pictures[0], placeOn(0));
#endif
#if defined(MASKED)
    if (base.a < vertexAmbient.w)
        discard;
    base.a = 1.0;
#elif !defined(BLENDED)
    base.a = 1.0;
#endif
    vec3 glow = vertexEmissive;
#ifdef PICTURE_4
    glow *= texture(pictures[4], placeOn(4)).rgb;
#endif
    vec3 color = base.rgb + glow;
    if (isLit == 1) {
        float metallic = vertexAmbient.x;
        float roughness = vertexAmbient.y;
#ifdef PICTURE_1
        vec2 both = texture(pictures[1], placeOn(1)).bg;
        metallic *= both.x;
        roughness *= both.y;
#endif
        vec3 toEye = normalize(eye.xyz - worldPoint * eye.w);
        vec3 shapeNormal = normalize(worldNormal);
        float side = sideSeen(shapeNormal, toEye);
        vec3 n = shapeNormal * side;
#ifdef PICTURE_2
        n = detailedNormal(texture(pictures[2], placeOn(2)).xyz, 2, vertexCoat.z, shapeNormal) * side;
#endif
        float facingEye = max(dot(n, toEye), 1e-4);
        float alpha = alphaOf(roughness);
        vec3 diffuse = base.rgb * ((1.0 - metallic) / Pi);
        vec3 reflectance = mix(vec3(DielectricReflectance), base.rgb, metallic);
        color = glow;
#ifdef COATED
        float coat = vertexCoat.x;
        float coatRoughness = vertexCoat.y;
#ifdef PICTURE_5
        coat *= texture(pictures[5], placeOn(5)).r;
#endif
#ifdef PICTURE_6
        coatRoughness *= texture(pictures[6], placeOn(6)).g;
#endif
        vec3 coatNormal = shapeNormal * side;
#ifdef PICTURE_7
        coatNormal = detailedNormal(texture(pictures[7], placeOn(7)).xyz, 7, vertexCoat.w, shapeNormal) * side;
#endif
        float coatAlpha = alphaOf(coatRoughness);
        float coatFacingEye = max(dot(coatNormal, toEye), 1e-4);
        vec3 coatColor = vec3(0);
#endif
        for (int i = 0; i < lightCount; ++i) {
            vec3 toLight;
            vec3 light = lightAt(i, toLight);
            vec3 halfway = normalize(toLight + toEye);
            float fresnel = grazing(dot(toEye, halfway));
            float facing = dot(n, toLight);
            if (facing > 0.0) {
                float plain = DielectricReflectance + (1.0 - DielectricReflectance) * fresnel;
                vec3 mirror = reflectance + (1.0 - reflectance) * fresnel;
                float shine = highlight(n, halfway, facing, facingEye, alpha);
                color += light * facing * (diffuse * (1.0 - plain) + mirror * shine);
            }
#ifdef COATED
            float coatFacing = dot(coatNormal, toLight);
            if (coatFacing > 0.0)
                coatColor += light * (coatFacing * highlight(coatNormal, halfway, coatFacing, coatFacingEye, coatAlpha));
#endif
        }
#ifdef ENVIRONMENT
        float open = 1.0;
#ifdef PICTURE_3
        open += vertexAmbient.z * (texture(pictures[3], placeOn(3)).r - 1.0);
#endif
        vec2 share = mirrored(facingEye, roughness);
        vec3 around = diffuse * Pi * (1.0 - DielectricReflectance * share.x - share.y) * lightFrom(n, 16.0);
        around += (reflectance * share.x + share.y) * lightFrom(reflect(-toEye, n), roughness * 15.0);
        color += around * open;
#ifdef COATED
        coatColor += lightFrom(reflect(-toEye, coatNormal), coatRoughness * 15.0) * open;
#endif
#endif
#ifdef COATED
        float layer = coat * (DielectricReflectance + (1.0 - DielectricReflectance) * grazing(coatFacingEye));
        color = mix(color, coatColor, layer);
#endif
    }
    color = encoded(toneMapped(color));
    if (fogKind >= 0)
        color = mix(color, fogColor.rgb, fogAmount());
    result = vec4(color, base.a);
}
)";

} // namespace xsg
