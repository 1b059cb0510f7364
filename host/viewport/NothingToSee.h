// SPDX-License-Identifier: MIT
// Why a scene that was opened shows nothing.
#pragma once

class QString;
class SoNode;

namespace scopix
{

/// The end of a sentence about why nothing of the scene can be seen, or an empty text where something can.
/// Looks no further than to the first shape that can be seen.
QString whyNothingIsSeen(SoNode* root);

} // namespace scopix
