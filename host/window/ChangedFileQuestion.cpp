// SPDX-License-Identifier: MIT
#include "window/ChangedFileQuestion.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("ChangedFileQuestion", text);
}

} // namespace

ChangedFileAnswer askAboutChangedFile(QWidget& window, const QString& title, bool isModified)
{
    QMessageBox box(QMessageBox::Warning, QApplication::applicationDisplayName(),
                    tr("Another program has changed “%1” since it was opened or saved here.").arg(title),
                    QMessageBox::Cancel, &window);
    box.setObjectName(QStringLiteral("changedFile"));
    box.setInformativeText(
        isModified
            ? tr("Replacing it loses their changes; reloading it loses yours; reloading and reapplying "
                 "keeps those of yours that still fit.")
            : tr("Replacing it loses their changes."));
    box.setTextFormat(Qt::PlainText);
    const QAbstractButton* reload = box.addButton(tr("&Reload"), QMessageBox::DestructiveRole);
    QAbstractButton* reapply =
        isModified ? box.addButton(tr("Reload and Re&apply"), QMessageBox::AcceptRole) : nullptr;
    QPushButton* elsewhere = box.addButton(tr("Save &As…"), QMessageBox::AcceptRole);
    const QAbstractButton* replace = box.addButton(tr("Re&place"), QMessageBox::AcceptRole);
    box.setDefaultButton(elsewhere); // loses nothing
    box.setEscapeButton(QMessageBox::Cancel);
    box.setWindowModality(Qt::WindowModal);
    box.exec();
    if (box.clickedButton() == reload)
        return ChangedFileAnswer::Reload;
    if (reapply && box.clickedButton() == reapply)
        return ChangedFileAnswer::Reapply;
    if (box.clickedButton() == elsewhere)
        return ChangedFileAnswer::SaveElsewhere;
    return box.clickedButton() == replace ? ChangedFileAnswer::Replace : ChangedFileAnswer::Cancel;
}

} // namespace scopix
