// SPDX-License-Identifier: MIT
// A program whose host library lies somewhere else than the program does, as where an application embeds it.
#include <gtest/gtest.h>

#include <QtTest>

namespace
{

class Elsewhere : public testing::Test
{
protected:
    Elsewhere()
    {
        copy(SCOPIX_PROGRAM, "app/scopix");
        copy(HOST_LIBRARY, "sdk/" HOST_LIBRARY_NAME);
    }

    QString at(const QString& path) const { return QDir(m_folder.path()).canonicalPath() + '/' + path; }
    QString copy(const char* file, const QString& to) const
    {
        QDir().mkpath(QFileInfo(at(to)).path());
        EXPECT_TRUE(QFile::copy(file, at(to))) << file;
        return at(to);
    }
    // The libraries that the program loaded, as the dynamic linker lists them.
    QString loadedBy(const QStringList& arguments) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("XDG_CONFIG_HOME", at("home"));
        environment.insert("XDG_DATA_HOME", at("home"));
        environment.insert("XDG_RUNTIME_DIR", m_folder.path());
        environment.insert("LD_LIBRARY_PATH", at("sdk"));
        environment.insert("LD_DEBUG", "files");
        environment.insert("LD_DEBUG_OUTPUT", at("loaded"));
        process.setProcessEnvironment(environment);
        process.start(at("app/scopix"), arguments);
        EXPECT_TRUE(process.waitForFinished(120000));
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        QString text;
        for (const QFileInfo& file : QDir(m_folder.path()).entryInfoList({"loaded.*"})) {
            QFile content(file.filePath());
            EXPECT_TRUE(content.open(QIODevice::ReadOnly));
            text += content.readAll();
        }
        return text;
    }

    QTemporaryDir m_folder;
};

TEST_F(Elsewhere, TheProgramTakesPluginsFromBesideItsLibrary)
{
    const QString plugin = copy(SCOPIX_PLUGIN, "sdk/scopix/plugins/libSpxDefaults.so");
    const QString loaded = loadedBy({"--quit"});
    EXPECT_TRUE(loaded.contains(at("sdk/" HOST_LIBRARY_NAME))) << loaded.toStdString();
    EXPECT_TRUE(loaded.contains(plugin)) << loaded.toStdString();
}

TEST_F(Elsewhere, OpensTheWindowWithoutAnyPlugin)
{
    const QString loaded = loadedBy({"--screenshot", at("window.png")});
    EXPECT_FALSE(loaded.contains("libSpxDefaults.so"));
    EXPECT_FALSE(QImage(at("window.png")).isNull());
}

} // namespace
