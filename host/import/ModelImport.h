// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoSeparator.h>

#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QTemporaryFile>

class QProgressDialog;
class QWidget;

namespace scopix
{

/// Reads one model file in a process of its own, so that a file which makes the reader crash, hang or ask for
/// all memory ends that process and nothing else; shows how far it is once that takes noticeable time. Made
/// for one file; deleting it ends the process at once. GUI thread only.
class ModelImport : public QObject
{
    Q_OBJECT

public:
    /// The dialog opens over `window`.
    explicit ModelImport(QWidget* window, QObject* parent = nullptr);
    ~ModelImport() override;

    /// The program that reads models: it belongs to this library and lies in a folder beside it.
    static QString readerProgram();

    void start(const QString& path);
    /// cancelled() follows at once.
    void cancel();

signals:
    /// Exactly one of the three, once; the first two from the event loop. It is of no more use then.
    void finished(const SoRef<SoSeparator>& scene);
    void failed(const QString& sentence);
    void cancelled();

private:
    QString resultPath() const;
    void showProgress();
    void readerEnded();
    void report();
    QString whyItEnded() const;
    void end();

    QWidget* m_window;
    QString m_path;
    QProcess m_reader;
    QTemporaryFile m_result;
    QPointer<QProgressDialog> m_dialog;
    bool m_hasEnded = false;
};

} // namespace scopix
