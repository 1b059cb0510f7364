#include "import/ModelImport.h"

#include "import/ModelReader.h"
#include "import/SceneBuilder.h"

#include <QFileInfo>
#include <QProgressDialog>

#include <atomic>

namespace
{

constexpr int PatienceMs = 400; // before a dialog opens

} // namespace

struct ModelImport::Shared {
    std::atomic<bool> cancelled{false};
    std::atomic<int> percent{0};
    scopix::ReadModel result; // the thread's until it is done
};

ModelImport::ModelImport(QWidget* window, QObject* parent)
    : QObject(parent)
    , m_window(window)
    , m_shared(std::make_shared<Shared>())
{
}

ModelImport::~ModelImport()
{
    m_shared->cancelled = true;
    if (m_thread.joinable())
        m_thread.join();
    delete m_dialog;
}

void ModelImport::start(const QString& path)
{
    m_path = path;
    m_dialog = new QProgressDialog(tr("Reading %1 …").arg(QFileInfo(path).fileName()), tr("Cancel"), 0, 100, m_window);
    m_dialog->setObjectName(QStringLiteral("importProgress"));
    m_dialog->setWindowModality(Qt::WindowModal);
    m_dialog->setMinimumDuration(PatienceMs);
    m_dialog->setAutoClose(false);
    m_dialog->setAutoReset(false);
    m_dialog->setValue(0);
    connect(m_dialog, &QProgressDialog::canceled, this, &ModelImport::cancel);
    m_thread = std::thread([this, path, shared = m_shared] {
        shared->result = scopix::readModel(path, [&](float done) {
            const int percent = static_cast<int>(100 * done);
            if (shared->percent.exchange(percent) != percent)
                QMetaObject::invokeMethod(this, [this, percent] { showProgress(percent); }, Qt::QueuedConnection);
            return !shared->cancelled;
        });
        QMetaObject::invokeMethod(this, [this] { threadDone(); }, Qt::QueuedConnection);
    });
}

void ModelImport::showProgress(int percent)
{
    if (m_dialog)
        m_dialog->setValue(percent);
}

void ModelImport::cancel()
{
    if (std::exchange(m_told, true))
        return;
    m_shared->cancelled = true;
    closeDialog();
    emit cancelled();
}

void ModelImport::closeDialog()
{
    if (!m_dialog)
        return;
    m_dialog->disconnect(this);
    m_dialog->hide();
    m_dialog->deleteLater();
    m_dialog = nullptr;
}

void ModelImport::threadDone()
{
    m_thread.join();
    if (!std::exchange(m_told, true)) {
        closeDialog();
        tell(m_shared->result);
    }
    emit threadEnded();
}

void ModelImport::tell(scopix::ReadModel& result)
{
    if (result.error.isEmpty())
        emit finished(scopix::buildScene(std::move(result.data), QFileInfo(m_path).completeBaseName().toStdString()));
    else
        emit failed(result.error);
}
