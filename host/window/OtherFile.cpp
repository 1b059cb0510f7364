// SPDX-License-Identifier: MIT
#include "window/OtherFile.h"

#include "document/SceneDocument.h"
#include "import/AnyImport.h"
#include "model/FileChecks.h"
#include "support/UserNotifier.h"

#include <QFileDialog>

namespace scopix
{

OtherFile::OtherFile(QWidget& window, UserNotifier& notifier, QObject* parent)
    : QObject(parent)
    , m_window(window)
    , m_notifier(notifier)
{
}

QString OtherFile::nameFilter()
{
    QStringList patterns;
    for (const QString& ending : SceneDocument::fileExtensions())
        patterns << QStringLiteral("*.") + ending;
    return tr("Scenes and models (%1);;All files (*)").arg(patterns.join(QLatin1Char(' ')));
}

QString OtherFile::ask(const QString& title, const QString& folder)
{
    return QFileDialog::getOpenFileName(&m_window, title, folder, nameFilter());
}

void OtherFile::read(const QString& path, const Finished& finished)
{
    if (m_import)
        m_import->cancel();
    const QString error = checkFile(path, SceneDocument::fileExtensions());
    if (!error.isEmpty())
        return m_notifier.error(error);
    m_import = makeImport(path, &m_window, this,
                          [this, finished](const SoRef<SoNode>& scene) { finished(scene, forget()); });
    connect(m_import, &FileImport::failed, this, [this](const QString& sentence) {
        forget();
        m_notifier.error(sentence);
    });
    connect(m_import, &FileImport::cancelled, this, [this, path] {
        forget();
        m_notifier.info(tr("Reading “%1” was cancelled.").arg(path));
    });
    m_import->start(path);
}

// Its notes.
QStringList OtherFile::forget()
{
    if (!m_import)
        return {};
    m_import->deleteLater();
    return std::exchange(m_import, nullptr)->notes();
}

} // namespace scopix
