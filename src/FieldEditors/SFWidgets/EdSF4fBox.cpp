// SPDX-License-Identifier: MIT
#include "EdSF4fBox.h"

namespace
{

// The names of the labels and inputs are meant as they are.
constexpr EdColumnLook Look{"SF4FvLayout",     "SF4fBoxVSpacing", "SF4flabel", "SF4fine",
                            "SF4fBoxHSpacing", "SF4fBoxHMargin",  false};

} // namespace

EdSF4fBox::EdSF4fBox(const char* name, const QStringList& captions)
    : EdSFFloatsWidget(name, Look, captions)
{
}
