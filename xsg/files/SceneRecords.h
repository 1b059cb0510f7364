// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>
#include <xsg/values/SbSentence.h>
#include <xsg/values/XsgExport.h>

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace xsg
{

/// What became of the fields of a scene since it was written: records that SceneWriter::recordOf() made, of
/// which the last of each field counts. Belongs to the graph's thread.
class XSG_API SceneRecords
{
public:
    void add(std::string_view record);
    bool isEmpty() const { return m_last.empty(); }

    /// Gives the fields the recorded states. `nodes` are those of the scene, in the order in which its text
    /// has them (SceneReader::setNodeListener()). Returns one sentence where a record does not fit them,
    /// which leaves the scene half changed; else an empty one.
    SbSentence apply(const std::vector<SoNode*>& nodes) const;

private:
    std::unordered_map<std::string, std::string> m_last; // by what stands before the colon: node and field
};

} // namespace xsg
