// SPDX-License-Identifier: MIT
#include "window/HelpMenu.h"

#include "services/HostServices.h"
#include "start/AboutDialog.h"
#include "support/UserNotifier.h"
#include "text/NodeText.h"
#include "window/HelpWindow.h"

#include <scopix/SpxVersion.h>

#include <QMenu>
#include <QMessageBox>

namespace scopix
{

HelpMenu::HelpMenu(QMenu& menu, const Parts& parts)
    : QObject(&menu)
    , m_parts(parts)
{
    menu.addAction(tr("&Moving in the 3D View"), this, &HelpMenu::explainMoving, Qt::CTRL + Qt::Key_F1);
    menu.addAction(tr("Help on What &Is Selected"), this, &HelpMenu::showOnSelected, Qt::Key_F1);
    menu.addAction(tr("T&utorial"), this, &HelpMenu::showTutorial, Qt::CTRL + Qt::Key_F11)
        ->setObjectName(QStringLiteral("tutorialAction"));
    menu.addAction(tr("&Documentation"), this, &HelpMenu::showContents, Qt::SHIFT + Qt::Key_F11)
        ->setObjectName(QStringLiteral("documentationAction"));
    menu.addAction(
        tr("&Nodes"), this, [this] { show(QStringLiteral("nodes"), {}); }, Qt::SHIFT + Qt::Key_F1);
    menu.addAction(tr("&About Scopix"), this, &HelpMenu::showAbout, Qt::CTRL + Qt::SHIFT + Qt::Key_F1);
}

bool HelpMenu::show(const QString& page, const QString& section)
{
    if (!m_help)
        m_help = new HelpWindow(&m_parts.window);
    return m_help->open(page, section);
}

void HelpMenu::explainMoving()
{
    QMessageBox::information(
        &m_parts.window, tr("Moving in the 3D View"),
        tr("Turn: drag with the left button.\n"
           "Move: drag with the middle or right button.\n"
           "Nearer, farther: turn the wheel; the place under the pointer stays.\n"
           "Select: click; once more for the shape, then its material. Ctrl adds, Shift and "
           "dragging selects all in a rectangle, Alt lists what is under the pointer. Esc goes up.\n"
           "See all of the selected part: double-click, or F.\n"
           "See everything: A. As at first, through the scene's own camera where it has one: Home.\n"
           "By keys: the arrows turn, with Shift they move; plus and minus come nearer and go away.\n"
           "Select by keys: Ctrl and the arrows move a crosshair, Enter clicks there.\n"
           "Measure: M.\n"
           "From the front, the right, the top: 1, 3, 7; orthographic: 5. Walk: Shift+W.\n"
           "Move, turn, scale what is selected: W, E, R, then drag a handle, or X, Y or Z and a number; "
           "select again: Q. Shift is finer, Ctrl snaps.\n"
           "Hide or show what is selected: H, show all: Shift+H, show nothing else: /.\n"
           "Find a node: Ctrl+F.\n"
           "Edges only: F3. What a picture costs: F4."));
}

void HelpMenu::showContents()
{
    if (!show(HelpWindow::contentsPage(), {}))
        m_parts.notifier.error(
            tr("The documentation cannot be shown: it is not installed beside the program."));
}

void HelpMenu::showTutorial()
{
    if (!show(QStringLiteral("tutorial"), {}))
        m_parts.notifier.error(tr("The tutorial cannot be shown: it is not installed beside the program."));
}

void HelpMenu::showOnSelected()
{
    const SoFieldContainer* node = m_parts.services.selectedNode();
    if (!node)
        return showTutorial();
    if (!show(QStringLiteral("nodes"), typeText(node->getTypeId())))
        m_parts.notifier.error(
            tr("The page on nodes cannot be shown: it is not installed beside the program."));
}

void HelpMenu::showAbout()
{
    AboutDialog(QStringLiteral(SPX_SCOPIX_VERSION), m_parts.plugins, &m_parts.window).exec();
}

} // namespace scopix
