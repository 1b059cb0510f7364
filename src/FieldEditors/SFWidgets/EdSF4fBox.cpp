// SPDX-License-Identifier: MIT
#include "EdSF4fBox.h"

namespace
{

// Irregular names, which style sheets and scripts use (decisions.md: layout-names).
constexpr EdColumnLook Look{"SF4FvLayout",     "SF4fBoxVSpacing", "SF4flabel", "SF4fine",
                            "SF4fBoxHSpacing", "SF4fBoxHMargin",  false};

} // namespace

EdSF4fBox::EdSF4fBox(const char* name, const QStringList& captions)
    : EdSFFloatsWidget(name, Look, captions)
{
}
