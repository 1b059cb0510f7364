// SPDX-License-Identifier: MIT
// Branches of a scene as text, for the clipboard and for text editors.
#pragma once

#include <xsg/nodes/base/SoNode.h>

#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace scopix
{

/// A scene file that holds these nodes; where they are several, in a group that readBranches() leaves out.
/// What two of them share, and connections between them, is kept. `goOn` is called with the part that is
/// written, each few milliseconds; what it throws is passed on. The nodes must stay as they are meanwhile.
std::string writeBranches(const std::vector<SoNode*>& nodes, const std::function<void(double)>& goOn = {});

/// The same; nothing where the text has more bytes than that, which shows before all of it is written.
std::optional<std::string> writeShortBranches(const std::vector<SoNode*>& nodes, std::size_t most,
                                              const std::function<void(double)>& goOn = {});

struct BranchReading {
    std::vector<SoRef<SoNode>> nodes; // none: it cannot be read
    QString error;                    // one sentence then
};
/// Reads such text, any scene file, or nodes as they stand inside of one; `goOn` as above.
BranchReading readBranches(std::string_view text, const std::function<void(double)>& goOn = {});

} // namespace scopix
