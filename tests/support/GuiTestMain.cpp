// SPDX-License-Identifier: MIT
// main() of the tests that need a QApplication.
#include "support/ChildProcess.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

namespace
{

QtMessageHandler defaultHandler = nullptr;

// The offscreen platform says it of every window, between which the words of a failed test are hard to find.
void tellAllButSizeHints(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message != QLatin1String("This plugin does not support propagateSizeHints()"))
        defaultHandler(type, context, message);
}

} // namespace

int main(int argc, char** argv)
{
    if (ChildAct::isAsked(argc, argv)) {
        const QCoreApplication application(argc, argv);
        return ChildAct::perform(argc, argv);
    }
    ::testing::InitGoogleTest(&argc, argv);
    // Listing the tests needs no display, and has nothing to clean up.
    if (::testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    // What a test remembers is no setting of the user's, nor of another test's that runs beside it.
    const QTemporaryDir settings;
    if (!qEnvironmentVariableIsSet("XDG_CONFIG_HOME"))
        qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    defaultHandler = qInstallMessageHandler(tellAllButSizeHints);
    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
