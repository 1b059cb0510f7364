// SPDX-License-Identifier: MIT
// What options and settings call the ways in which bright light comes into a picture.
#pragma once

#include <xsg/render/SoRenderer.h>

#include <QString>

#include <optional>

namespace scopix
{

/// "none", "neutral" or "filmic".
QString nameOf(SoRenderer::ToneMapping toneMapping);
/// Nothing for any other text.
std::optional<SoRenderer::ToneMapping> toneMappingNamed(const QString& name);

} // namespace scopix
