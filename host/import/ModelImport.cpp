// SPDX-License-Identifier: MIT
#include "import/ModelImport.h"

#include "import/SceneBuilder.h"
#include "language/Languages.h"
#include "model/FileChecks.h"
#include "model/ModelFile.h"
#include "model/ModelReadResult.h"
#include "support/OwnLibrary.h"

#include <xsg/render/PictureBudget.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcessEnvironment>

#include <csignal>

namespace scopix
{

namespace
{

// With the preferences that matter to it: in its process nobody else sets them.
QProcessEnvironment readerEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XSG_PICTURE_MEMORY"),
                       QString::number(xsg::PictureBudget::preferred().getBytes() / xsg::PictureBudget::MiB));
    // Its sentences are shown, or printed in English by a command.
    const Languages* languages = Languages::instance();
    environment.insert(QStringLiteral("SCOPIX_LANGUAGE"),
                       languages ? languages->current() : QStringLiteral("en"));
    const SbString angle = SoPreferences::getString("XSG_CREASE_ANGLE", SbString());
    if (angle.getLength() > 0)
        environment.insert(QStringLiteral("XSG_CREASE_ANGLE"), QString::fromLatin1(angle.getString()));
    return environment;
}

} // namespace

QString ModelImport::readerProgram()
{
    return OwnLibrary::helperProgram(QStringLiteral("scopix-read-model"));
}

ModelImport::ModelImport(QWidget* window, QObject* parent)
    : FileImport(window, parent)
    , m_reader(this)
{
    m_reader.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&m_reader, &QProcess::readyReadStandardOutput, this, &ModelImport::showProgress);
    connect(&m_reader, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &ModelImport::readerEnded);
    connect(
        &m_reader, &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                readerEnded();
        },
        Qt::QueuedConnection);
}

ModelImport::~ModelImport()
{
    end();
}

void ModelImport::start(const QString& path)
{
    m_path = path;
    openDialog(path);
    m_result.open(); // where that fails, the reader says so
    m_reader.setProcessEnvironment(readerEnvironment());
    m_reader.start(readerProgram(), {path, resultPath()});
}

// By its number, since a file without a name is gone with this process, however that ends.
QString ModelImport::resultPath() const
{
    return QStringLiteral("/proc/%1/fd/%2").arg(QCoreApplication::applicationPid()).arg(m_result.handle());
}

// One line for each percent.
void ModelImport::showProgress()
{
    int percent = 0;
    while (m_reader.canReadLine())
        percent = m_reader.readLine().trimmed().toInt();
    showPercent(percent);
}

void ModelImport::cancel()
{
    if (std::exchange(m_hasEnded, true))
        return;
    end();
    emit cancelled();
}

void ModelImport::readerEnded()
{
    if (std::exchange(m_hasEnded, true))
        return;
    report();
}

void ModelImport::report()
{
    ModelReadResult model;
    QFile result(resultPath());
    const bool ended =
        m_reader.exitStatus() == QProcess::NormalExit && m_reader.error() != QProcess::FailedToStart;
    const bool opened = ended && result.open(QIODevice::ReadOnly);
    if (!opened || !readModelFile(result, model))
        model.error = cannotOpen(m_path, whyItEnded());
    end();
    for (const std::string& note : model.notes)
        addNote(QString::fromStdString(note));
    if (model.error.isEmpty())
        emit finished(buildScene(std::move(model.data), QFileInfo(m_path).completeBaseName().toStdString()));
    else
        emit failed(model.error);
}

QString ModelImport::whyItEnded() const
{
    if (m_reader.error() == QProcess::FailedToStart)
        return tr("the program that reads models, “%1”, cannot be started").arg(readerProgram());
    const bool crashed = m_reader.exitStatus() == QProcess::CrashExit;
    if (crashed && m_reader.exitCode() == SIGXCPU)
        return tr("reading it takes too long, and was given up");
    return crashed ? tr("it contradicts itself, and reading it was given up")
                   : tr("what was read of it could not be written to “%1”").arg(QDir::tempPath());
}

void ModelImport::end()
{
    m_reader.disconnect(this);
    m_reader.kill();
    m_reader.waitForFinished(); // a killed process ends at once, unless it waits for a disk
    closeDialog();
}

} // namespace scopix
