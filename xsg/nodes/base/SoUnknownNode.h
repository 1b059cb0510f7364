// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoUnknownField.h>
#include <xsg/nodes/groups/SoSeparator.h>

#include <memory>
#include <unordered_map>

/// Stands for a node of a type that this program does not know, as a file had it, so that writing the file
/// again loses nothing. Its fields are those that the file has; its children are shown as a separator's.
class XSG_API SoUnknownNode : public SoTyped<SoUnknownNode, SoSeparator>
{
public:
    static constexpr const char* ClassName = "UnknownNode";

    explicit SoUnknownNode(SbName typeName = SbName(ClassName))
        : m_typeName(typeName)
    {
    }
    SbName getTypeName() const { return m_typeName; }
    /// The field of this name, made where there is none yet.
    SoUnknownField* addField(SbName name);

private:
    SbName m_typeName;
    std::vector<std::unique_ptr<SoUnknownField>> m_added;
    std::unordered_map<const char*, SoUnknownField*> m_byName;
};

extern template class SoTyped<SoUnknownNode, SoSeparator>;
