// Stands for a node of a type that this program does not know, as a file had it, so that writing the file
// again loses nothing. Its children are shown as a separator's.
#pragma once

#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoSFString.h>
#include <xsg/nodes/SoSeparator.h>

class XSG_API SoUnknownNode : public SoTyped<SoUnknownNode, SoSeparator>
{
public:
    static constexpr const char* ClassName = "UnknownNode";

    SoSFString typeName{this, "typeName"};
    SoMFString contents{this, "contents"}; // the fields as they stood, each "name: value"
};

extern template class SoTyped<SoUnknownNode, SoSeparator>;
