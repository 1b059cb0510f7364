// SPDX-License-Identifier: MIT
#include "window/ExportQuestion.h"

#include "document/SceneDocument.h"
#include "export/SceneExport.h"
#include "support/Printable.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace scopix
{

namespace
{

QString translated(const char* text)
{
    return QCoreApplication::translate("SceneExport", text);
}

QStringList nameFilters()
{
    return {translated("glTF in one file (*.glb)"), translated("glTF (*.gltf)"),
            translated("Wavefront (*.obj)"), translated("Stanford polygons (*.ply)"),
            translated("Stereolithography (*.stl)")};
}

} // namespace

QString askForExport(QWidget& window, const SceneDocument& document, const QString& folder)
{
    QFileDialog dialog(&window, translated("Export Scene"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(nameFilters());
    dialog.setDefaultSuffix(SceneExport::endings().constFirst());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        dialog.setDefaultSuffix(SceneExport::endings().value(nameFilters().indexOf(filter)));
    });
    const QFileInfo origin(document.getPath().isEmpty() ? document.getTitle() : document.getPath());
    dialog.setDirectory(folder);
    dialog.selectFile(origin.completeBaseName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

bool confirmLosses(QWidget& window, const QString& path, const SceneExport& scene)
{
    const QStringList losses = scene.getLosses();
    if (losses.isEmpty())
        return true;
    QMessageBox box(
        QMessageBox::Question, QApplication::applicationDisplayName(),
        translated("“%1” will not keep everything. Export it?").arg(printable(QFileInfo(path).fileName())),
        QMessageBox::Cancel, &window);
    box.setObjectName(QStringLiteral("exportLosses"));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(translated("It leaves out: %1.").arg(losses.join(QStringLiteral("; "))));
    QPushButton* go = box.addButton(translated("&Export"), QMessageBox::AcceptRole);
    box.setDefaultButton(go);
    box.exec();
    return box.clickedButton() == go;
}

} // namespace scopix
