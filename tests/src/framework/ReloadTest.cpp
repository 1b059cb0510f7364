// SPDX-License-Identifier: MIT
// Editors that are loaded, unloaded and loaded again, as when a plug-in is switched off and on.
#include "SpxDefaults.h"

#include <support/QtWarnings.h>
#include <support/TestHost.h>

#include <gtest/gtest.h>

#include <QFrame>

namespace
{

// Every object in the editor's frame, as class and name.
QStringList partsOf(const SpxFieldEditors& editor)
{
    QStringList parts;
    for (const QObject* part : editor.getWidgetContainer()->findChildren<QObject*>())
        parts.append(QString::fromLatin1(part->metaObject()->className()) + ' ' + part->objectName());
    parts.sort();
    return parts;
}

} // namespace

TEST(EditorReload, BuildsEachEditorAgainAndLeavesNothingOfTheFirst)
{
    TestHost host;
    SpxDefaults plugin;
    plugin.load();
    int count = 0;
    for (SpxExtension* extension : plugin.getExtensions()) {
        auto* editor = dynamic_cast<SpxFieldEditors*>(extension);
        if (!editor)
            continue;
        const QtWarnings warnings;
        editor->load();
        const QStringList once = partsOf(*editor);
        editor->unload();
        editor->load();
        EXPECT_EQ(partsOf(*editor), once) << editor->getName().getString();
        EXPECT_EQ(warnings.all(), "") << editor->getName().getString();
        editor->unload();
        ++count;
    }
    EXPECT_EQ(count, 41);
    plugin.unload();
}
