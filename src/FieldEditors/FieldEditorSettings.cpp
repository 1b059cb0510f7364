// SPDX-License-Identifier: MIT
#include "FieldEditorSettings.h"

#include <QHash>
#include <QString>

#include <cstring>

namespace
{

struct Setting {
    const char* name;
    int value;
};

// Some names are misspelt or shortened (decisions.md: metric-names).
constexpr Setting Settings[] = {
    {"frameLineWidth", 0},
    {"labelLineWidth", 0},
    {"labelPointSize", 10},
    {"labelHeight", 20},
    {"buttonWidth", 20},
    {"buttonHeight", 20},
    {"PopupFrameWidth", 260},
    {"PopupFrameHeight", 100},
    {"PopupLayoutMargin", 6},
    {"PopupLayoutSpacing", 8},
    {"SFieldLayoutMargin", 4},
    {"SFieldLayoutSpacing", 6},
    {"SFieldEditLayoutMargin", 0},
    {"SFieldEditLayoutSpacing", 0},
    {"SFButtonLayoutMargin", 2},
    {"SFButtonLayoutSpacing", 0},
    {"SFEditionAreaLayMargin", 0},
    {"SFEditionAreaLaySpacing", 2},
    {"SFComponentHeight", 18},
    {"SFBoolWidth", 16},
    {"SFColorSpacing", 6},
    {"SFColorMargin", 0},
    {"SFColorInterSpacing", 2},
    {"SFColorDispWidth", 20},
    {"SFVecLineHeight", 16},
    {"SFVecLabelHeight", 14},
    {"SF4fBoxVSpacing", 4},
    {"SF4fBoxHSpacing", 4},
    {"SF4fBoxHMargin", 2},
    {"SF3fBoxVSpacing", 4},
    {"SF3fBoxHSpacing", 20},
    {"SF3fBoxHMargin", 2},
    {"SF2BoxHSpacing", 25},
    {"SF2BoxHMargin", 2},
    {"SF2BoxVSpacing", 4},
    {"MFGlobalLayoutSpacing", 2},
    {"MFGlobalLayoutMarging", 6},
    {"MFGlobalButtonsLayoutMargin", 0},
    {"MFGlobalButtonsLayoutSpacing", 5},
    {"MFButtonLayoutMargin", 0},
    {"MFButtonLayoutSpacing", 0},
    {"MFAccessWidth", 60},
    {"MFManageAccessSpacerWidth", 0},
    {"MFManageAccessSpacerHeight", 0},
    {"MFAccessMoveSpacerHeight", 0},
    {"MFAccessMoveSpacerWidth", 0},
    {"MFTableMinHeightWin", 43},
    {"MFTableMinHeightUnix", 46},
};

const Setting* find(const char* name)
{
    for (const Setting& setting : Settings) {
        if (std::strcmp(setting.name, name) == 0)
            return &setting;
    }
    return nullptr;
}

} // namespace

int xsgsettings_fieldEditor(const QString& key)
{
    static QHash<QString, int> cache;
    const auto cached = cache.constFind(key);
    if (cached != cache.constEnd())
        return *cached;
    const Setting* setting = find(key.toLatin1().constData());
    if (!setting)
        return 0;
    cache.insert(key, setting->value);
    return setting->value;
}
