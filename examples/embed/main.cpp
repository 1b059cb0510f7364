// SPDX-License-Identifier: MIT
// A small application with a scene. F12 opens the inspector on it.
#include "Look.h"
#include "MainWindow.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("turntable"));
    applyLook();
    MainWindow window;
    window.show();
    return QApplication::exec();
}
