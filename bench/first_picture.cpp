// SPDX-License-Identifier: MIT
// From the start of the program to the first picture of its window, against an empty window of Qt that draws
// by OpenGL. Each is a process of its own; what is told is the middle of several, and their ratio.
// Run it on a display, or under `xvfb-run`: where windows are drawn off the screen, the empty one has no
// OpenGL and there is nothing to compare.
#include <QApplication>
#include <QElapsedTimer>
#include <QOpenGLFunctions>
#include <QOpenGLWidget>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace
{

constexpr int Runs = 7;

class EmptyView : public QOpenGLWidget
{
    void paintGL() override
    {
        context()->functions()->glClearColor(0.2F, 0.2F, 0.2F, 1);
        context()->functions()->glClear(GL_COLOR_BUFFER_BIT);
    }
};

int startEmpty(int argc, char** argv)
{
    QApplication application(argc, argv);
    EmptyView view;
    view.resize(1280, 800);
    view.show();
    QApplication::processEvents();
    return view.grab().save(QString::fromLocal8Bit(argv[2])) ? 0 : 1;
}

double milliseconds(const QString& program, const QStringList& arguments)
{
    std::vector<double> all;
    for (int run = 0; run < Runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        if (QProcess::execute(program, arguments) != 0)
            std::printf("%s failed\n", qPrintable(program));
        all.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(all.begin(), all.end());
    return all[Runs / 2];
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3)
        return startEmpty(argc, argv);
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    qputenv("XDG_DATA_HOME", folder.path().toUtf8());
    const QString picture = folder.filePath(QStringLiteral("picture.png"));
    const double empty =
        milliseconds(QCoreApplication::applicationFilePath(), {QStringLiteral("empty"), picture});
    const QStringList shot{QStringLiteral("--screenshot"), picture};
    const double welcome = milliseconds(QStringLiteral(SCOPIX_PROGRAM), shot);
    const double scene =
        milliseconds(QStringLiteral(SCOPIX_PROGRAM), QStringList{QStringLiteral(SCOPIX_SCENE)} + shot);
    std::printf("an empty window of Qt with OpenGL   %7.0f ms\n", empty);
    std::printf("Scopix without a file               %7.0f ms   %.2f x\n", welcome, welcome / empty);
    std::printf("Scopix with every kind of node      %7.0f ms   %.2f x\n", scene, scene / empty);
    return 0;
}
