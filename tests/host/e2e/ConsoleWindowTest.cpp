// SPDX-License-Identifier: MIT
// The console, the tool bar of profiles and their dialog in the program's own window. The pictures of the
// documentation come from here: SCOPIX_PICTURES names the folder that they go to.
#include <support/Session.h>

#include "theme/Theme.h"
#include "window/MainWindow.h"

#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoReadError.h>

#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <QTextEdit>
#include <QToolBar>

#include <iostream>

using namespace scopix;

namespace
{

class ConsoleWindow : public ::testing::TestWithParam<const char*>
{
protected:
    ConsoleWindow()
        : m_session([](HostServices& services, UserNotifier& notifier) {
            return std::make_unique<MainWindow>(services, notifier);
        })
    {
        applyTheme(window(), themeFromName(GetParam()));
        m_session.host.plugins().profiles().read();
        window().resize(1280, 700);
        Session::settle();
    }

    QMainWindow& window() { return m_session.host.window(); }
    QTextEdit* output() { return window().findChild<QTextEdit*>("m_consoleOutput"); }
    QToolBar* toolBar()
    {
        for (const auto* box : window().findChildren<QComboBox*>()) {
            if (auto* bar = qobject_cast<QToolBar*>(box->parentWidget()))
                return bar;
        }
        return nullptr;
    }
    // How many pixels of the console's text are of about this hue.
    int pixelsOfHue(int hue)
    {
        const QImage image = output()->viewport()->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                count += color.hslSaturation() > 100 && std::abs(color.hslHue() - hue) < 15;
            }
        return count;
    }
    void save(QWidget& widget, const QString& name, const QSize& size = {-1, -1})
    {
        const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
        if (folder.isEmpty())
            return;
        QDir().mkpath(folder);
        const QString file = QStringLiteral("%1-%2.png").arg(name, GetParam());
        EXPECT_TRUE(widget.grab(QRect({0, 0}, size)).save(QDir(folder).filePath(file)));
    }

    Session m_session;
};

INSTANTIATE_TEST_SUITE_P(Palettes, ConsoleWindow, ::testing::Values("light", "dark"));

} // namespace

TEST_P(ConsoleWindow, ShowsThreeColoursBesideTheToolBar)
{
    std::cout << "frame 1: 1204 nodes drawn in 16.6 ms";
    SoDebugError::postWarning("SoTexture2", "\"tiles.png\" is larger than 8192 pixels");
    SoReadError::post("harbour.xsg", 12, "\"SpereSet\" is no kind of node");
    SoDebugError::postInfo("SoSeparator", "1204 boxes are cached");
    Session::settle();
    std::cerr << "no connection to the tracker, trying again";
    std::cout << "frame 2: 1204 nodes drawn in 15.9 ms";
    Session::settle();
    EXPECT_GT(pixelsOfHue(QColor(Qt::darkRed).hslHue()), 20);
    EXPECT_GT(pixelsOfHue(QColor(Qt::darkGreen).hslHue()), 20);
    EXPECT_GT(pixelsOfHue(QColor(Qt::darkYellow).hslHue()), 20);
    EXPECT_EQ(toolBar()->findChild<QComboBox*>()->currentText(), "Default");
    save(*output()->window()->findChild<QDockWidget*>("Console"), "console");
    save(*toolBar(), "profiles-toolbar", toolBar()->sizeHint());
}

TEST_P(ConsoleWindow, ManagesProfilesFromTheMenu)
{
    auto* manage = window().findChild<QAction*>("manageProfiles");
    ASSERT_TRUE(manage);
    manage->trigger();
    Session::settle();
    QWidget* dialog = QApplication::activeModalWidget();
    ASSERT_TRUE(dialog);
    auto* list = dialog->findChild<QListWidget*>("profiles");
    list->setCurrentRow(1);
    Session::settle();
    save(*dialog, "profiles-dialog");
    dialog->close();
}
