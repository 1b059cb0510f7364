// Reads one model file on a thread of its own, while a dialog shows how far it is once that takes noticeable time.
// Made for one file. Deleting it waits for the thread; after threadEnded() nothing is left to wait for. GUI thread only.
#pragma once

#include <xsg/nodes/SoSeparator.h>

#include <QObject>
#include <QPointer>

#include <memory>
#include <thread>

class QProgressDialog;
class QWidget;

namespace scopix
{
struct ReadModel;
}

class ModelImport : public QObject
{
    Q_OBJECT

public:
    // The dialog opens over `window`.
    explicit ModelImport(QWidget* window, QObject* parent = nullptr);
    // Waits for the thread to give up.
    ~ModelImport() override;

    void start(const QString& path);
    // failed() follows at once; what the thread still reads is dropped.
    void cancel();

signals:
    // Exactly one of the three, once, from the event loop.
    void finished(const SoRef<SoSeparator>& scene);
    void failed(const QString& sentence);
    void cancelled();
    // The last that is told.
    void threadEnded();

private:
    struct Shared;
    void showProgress(int percent);
    void threadDone();
    void tell(scopix::ReadModel& result);
    void closeDialog();

    QWidget* m_window;
    QString m_path;
    std::shared_ptr<Shared> m_shared;
    std::thread m_thread;
    QPointer<QProgressDialog> m_dialog;
    bool m_told = false;
};
