// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QtTest>

/// Runs the program as a shell or another program would, on a machine without a display, in a folder of its
/// own that has a small scene, lamp.xsg, and another one, spare.xsg.
class CommandRun : public testing::Test
{
protected:
    struct Outcome {
        int status;
        QByteArray out;
        QString said; // on standard error, without the program's name
    };

    CommandRun()
    {
        write("lamp.xsg", lamp());
        write("spare.xsg",
              QByteArray(lamp()).replace("radius: 2", "radius: 4").replace("width: 3", "depth: 9"));
    }
    static QByteArray lamp()
    {
        return "#Xsg V1.0 utf8\n"
               "Separator \"Lamp\" {\n"
               "    PerspectiveCamera \"Eye\" {\n"
               "        position: 0 0 10\n"
               "    }\n"
               "    Material \"Glass\" {\n"
               "        diffuseColor: [ 1 0.5 0 ]\n"
               "        transparency: 0.5\n"
               "    }\n"
               "    PointLight {}\n"
               "    Sphere \"Bulb\" @1 {\n"
               "        radius: 2\n"
               "    }\n"
               "    Cube {\n"
               "        width: 2 !ignored <- @1.radius\n"
               "    }\n"
               "    Cube {\n"
               "        width: 3\n"
               "    }\n"
               "    Separator \"two words\" {\n"
               "        @1\n"
               "        Points {\n"
               "            points: [ 0 0 0, 1 0 0, 0 1 0 ]\n"
               "        }\n"
               "    }\n"
               "}\n";
    }
    Outcome run(const QStringList& arguments) { return start(SCOPIX_PROGRAM, arguments); }
    Outcome start(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY"})
            environment.remove(name);
        environment.insert("QT_QPA_PLATFORM", "none"); // so that any use of a window system ends the program
        environment.insert("XDG_CONFIG_HOME", folder.path());
        environment.insert("PATH", QFileInfo(SCOPIX_PROGRAM).path() + ":" + environment.value("PATH"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(120000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << qPrintable(arguments.join(' '));
        QString said = QString::fromUtf8(process.readAllStandardError());
        return {process.exitCode(), process.readAllStandardOutput(),
                said.replace("scopix: ", QString()).trimmed()};
    }
    /// One sentence, status 2, nothing on standard output, and no file made or changed.
    void expectRefusal(const QStringList& arguments, const QString& reason)
    {
        const QMap<QString, QByteArray> before = files();
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 2) << qPrintable(arguments.join(' '));
        EXPECT_EQ(outcome.out, "") << qPrintable(arguments.join(' '));
        EXPECT_TRUE(outcome.said.contains(reason)) << qPrintable(outcome.said);
        EXPECT_FALSE(outcome.said.contains('\n')) << qPrintable(outcome.said);
        EXPECT_TRUE(outcome.said.endsWith('.')) << qPrintable(outcome.said);
        EXPECT_EQ(files(), before) << qPrintable(arguments.join(' '));
    }
    QMap<QString, QByteArray> files() const
    {
        QMap<QString, QByteArray> contents;
        for (const QString& name : QDir(folder.path()).entryList(QDir::Files | QDir::Hidden))
            contents[name] = content(name);
        return contents;
    }
    QByteArray content(const QString& name) const
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QString& name, const QByteArray& content) const
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static QString model(const char* name)
    {
        return QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/") + name;
    }

    QTemporaryDir folder;
};
