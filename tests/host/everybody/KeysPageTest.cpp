// SPDX-License-Identifier: MIT
// docs/keys.md is what the menus say; SCOPIX_PAGES=FOLDER writes it there.
#include "WholeWindow.h"

#include "acts/MenuActs.h"

#include <QFile>
#include <QMenuBar>

using namespace scopix;

namespace
{

const char* const Start = R"(# Keys

Every act of the menus with its key. **Preferences ▸ Keys** changes them, or takes those of Blender, Godot or Maya;
Ctrl+K finds an act by its name and says its key. Where there are two keys, as in “Ctrl+J, G”, press one after the
other. Keys without Ctrl or Alt, and those of the Node menu, act while the 3D view or the tree has the focus.

Tab goes on to the next input and Shift+Tab back; where Tab itself moves between cells, Ctrl+Tab leaves the table.
What the keyboard has brought the focus to has a frame. In the 3D view, Ctrl and the arrows move a crosshair, and Enter
clicks there.
)";

const char* const End = R"(
## About this page

It is made of the menus. A test compares, and this makes it again:

    SCOPIX_PAGES=docs QT_QPA_PLATFORM=offscreen build/debug/bin/test_host_everybody --gtest_filter=KeysPage.*
)";

using KeysPage = WholeWindow;

} // namespace

TEST_F(KeysPage, ListsWhatTheMenusOffer)
{
    QString page = QString::fromUtf8(Start);
    QString menu;
    for (const MenuAct& each : findActs(*window->menuBar())) {
        const QString top = each.place.section(QString::fromUtf8(" ▸ "), 0, 0);
        if (top != menu)
            page += QStringLiteral("\n## %1\n\n| act | key |\n|---|---|\n").arg(top);
        menu = top;
        const QString below = each.place.section(QString::fromUtf8(" ▸ "), 1);
        page += QStringLiteral("| %1%2 | %3 |\n")
                    .arg(below.isEmpty() ? QString() : below + QString::fromUtf8(" ▸ "), each.text,
                         QKeySequence::listToString(each.action->shortcuts(), QKeySequence::PortableText));
    }
    page += QString::fromUtf8(End);
    const QByteArray folder = qgetenv("SCOPIX_PAGES");
    QFile file(folder.isEmpty() ? QStringLiteral(SCOPIX_SOURCE_DIR "/docs/keys.md")
                                : QString::fromLocal8Bit(folder) + QStringLiteral("/keys.md"));
    if (!folder.isEmpty()) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(page.toUtf8());
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(file.readAll()).toStdString(), page.toStdString());
}
