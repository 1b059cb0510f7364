// SPDX-License-Identifier: MIT
// The animations of a glTF 2.0 file as it says them: the importer takes straight lines for all that is
// between keys, and knows nodes by their names, of which there may be several.
#pragma once

namespace scopix
{

class GltfFile;
struct ModelData;

/// Takes the file's own animations in place of the model's clips. These stay where the file cannot be read
/// so, or has other nodes.
void takeGltfAnimations(GltfFile& file, ModelData& model);

} // namespace scopix
