// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>

TEST(FirstWindow, FitsOnADenseScreen)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("window.png"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QGuiApplication::platformName());
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.path());
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(SCOPIX_PROGRAM), {QStringLiteral("--screenshot"), path});
    ASSERT_TRUE(program.waitForFinished(120000));
    ASSERT_EQ(program.exitCode(), 0);
    const QScreen& screen = *QGuiApplication::primaryScreen();
    const QSize pixels = screen.size() * screen.devicePixelRatio();
    const QImage picture(path);
    ASSERT_FALSE(picture.isNull());
    EXPECT_LE(picture.width(), pixels.width());
    EXPECT_LE(picture.height(), pixels.height());
}
