// SPDX-License-Identifier: MIT
#include "import/FileImport.h"

#include "support/ProgressDialog.h"

#include <QFileInfo>

namespace scopix
{

FileImport::FileImport(QWidget* window, QObject* parent)
    : QObject(parent)
    , m_window(window)
{
}

FileImport::~FileImport()
{
    closeDialog();
}

void FileImport::openDialog(const QString& path)
{
    if (!m_window)
        return;
    m_dialog = new ProgressDialog(tr("Reading %1…").arg(QFileInfo(path).fileName()),
                                  QStringLiteral("importProgress"), *m_window);
    m_dialog->setMaximum(100);
    m_dialog->setValue(0);
    connect(m_dialog, &QProgressDialog::canceled, this, &FileImport::cancel);
}

void FileImport::showPercent(int percent)
{
    if (m_dialog && m_dialog->value() != percent)
        m_dialog->setValue(percent);
}

void FileImport::closeDialog()
{
    if (!m_dialog)
        return;
    m_dialog->disconnect(this);
    m_dialog->end();
    m_dialog->deleteLater();
    m_dialog = nullptr;
}

} // namespace scopix
