// SPDX-License-Identifier: MIT
#pragma once

#include "import/FileImport.h"

#include <xsg/nodes/groups/SoSeparator.h>

#include <QProcess>
#include <QTemporaryFile>

namespace scopix
{

/// Reads one model file in a process of its own, so that a file which makes the reader crash, hang or ask for
/// all memory ends that process and nothing else. Deleting it ends the process at once. GUI thread only.
class ModelImport : public FileImport
{
    Q_OBJECT

public:
    /// The dialog opens over `window`; without one, no widget is made, and no window system is needed.
    explicit ModelImport(QWidget* window, QObject* parent = nullptr);
    ~ModelImport() override;

    /// The program that reads models: it belongs to this library and lies in a folder beside it.
    static QString readerProgram();

    void start(const QString& path) override;
    void cancel() override;

signals:
    /// From the event loop, as failed().
    void finished(const SoRef<SoSeparator>& scene);

private:
    QString resultPath() const;
    void showProgress();
    void readerEnded();
    void report();
    QString whyItEnded() const;
    void end();

    QString m_path;
    QProcess m_reader;
    QTemporaryFile m_result;
    bool m_hasEnded = false;
};

} // namespace scopix
