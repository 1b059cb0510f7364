// SPDX-License-Identifier: MIT
#pragma once

struct aiMaterial;

namespace scopix
{

/// From 0 to 1; 1 where the file does not say it.
float opacityOf(const aiMaterial& material);
/// Whether the file says that nothing is seen of the material. Programs that write old formats disagree about
/// which end of the numbers is clear, and nobody wants to keep what is never seen: opacityOf() is 1.
bool isSaidInvisible(const aiMaterial& material);

} // namespace scopix
