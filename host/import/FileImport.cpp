// SPDX-License-Identifier: MIT
#include "import/FileImport.h"

#include <QFileInfo>
#include <QLabel>
#include <QProgressDialog>

namespace scopix
{

namespace
{

constexpr int PatienceMs = 300; // before a dialog opens

} // namespace

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
    m_dialog = new QProgressDialog(tr("Reading %1…").arg(QFileInfo(path).fileName()), tr("Cancel"), 0, 100,
                                   m_window);
    m_dialog->setObjectName(QStringLiteral("importProgress"));
    for (QLabel* label : m_dialog->findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText); // a file may have any name
    m_dialog->setWindowModality(Qt::WindowModal);
    m_dialog->setMinimumDuration(PatienceMs);
    m_dialog->setAutoClose(false);
    m_dialog->setAutoReset(false);
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
    m_dialog->reset(); // or it opens when its patience ends, where an event loop runs before it is deleted
    m_dialog->hide();
    m_dialog->deleteLater();
    m_dialog = nullptr;
}

} // namespace scopix
