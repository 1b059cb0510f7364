// SPDX-License-Identifier: MIT
#include "import/ModelImport.h"

#include "import/SceneBuilder.h"
#include "model/FileChecks.h"
#include "model/ModelFile.h"
#include "model/ModelReadResult.h"
#include "support/OwnLibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProgressDialog>

#include <csignal>

namespace scopix
{

namespace
{

constexpr int PatienceMs = 400; // before a dialog opens

} // namespace

QString ModelImport::readerProgram()
{
    return OwnLibrary::helperProgram(QStringLiteral("scopix-read-model"));
}

ModelImport::ModelImport(QWidget* window, QObject* parent)
    : QObject(parent)
    , m_window(window)
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
    m_dialog = new QProgressDialog(tr("Reading %1…").arg(QFileInfo(path).fileName()), tr("Cancel"), 0, 100,
                                   m_window);
    m_dialog->setObjectName(QStringLiteral("importProgress"));
    m_dialog->setWindowModality(Qt::WindowModal);
    m_dialog->setMinimumDuration(PatienceMs);
    m_dialog->setAutoClose(false);
    m_dialog->setAutoReset(false);
    m_dialog->setValue(0);
    connect(m_dialog, &QProgressDialog::canceled, this, &ModelImport::cancel);
    m_result.open(); // where that fails, the reader says so
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
    if (m_dialog)
        m_dialog->setValue(percent);
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
    m_reader.waitForFinished(-1); // a killed process ends at once
    if (!m_dialog)
        return;
    m_dialog->disconnect(this);
    m_dialog->hide();
    m_dialog->deleteLater();
    m_dialog = nullptr;
}

} // namespace scopix
