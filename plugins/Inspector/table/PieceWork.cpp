// SPDX-License-Identifier: MIT
#include "table/PieceWork.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>

namespace inspector
{

namespace
{

constexpr int Moment = 80;  // milliseconds until the dialog comes
constexpr int Steps = 1000; // of its bar

QProgressDialog* newDialog(QWidget* parent, const QString& what)
{
    auto* dialog =
        new QProgressDialog(what, QCoreApplication::translate("PieceWork", "Cancel"), 0, Steps, parent);
    dialog->setObjectName(QStringLiteral("pieceWork"));
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setMinimumDuration(0);
    dialog->setAutoReset(false);
    return dialog;
}

} // namespace

bool PieceWork::run(QWidget* parent, const QString& what, const std::function<Progress()>& step)
{
    QElapsedTimer timer;
    timer.start();
    QPointer<QProgressDialog> dialog;
    bool isDone = false;
    for (;;) {
        const Progress progress = step();
        isDone = !progress.isFailed && progress.done >= progress.total;
        if (isDone || progress.isFailed)
            break;
        if (!dialog && timer.elapsed() > Moment)
            dialog = newDialog(parent, what);
        else if (!dialog)
            continue;
        dialog->setValue(int(progress.done * Steps / progress.total)); // runs the event loop
        if (!dialog || dialog->wasCanceled())
            break;
    }
    delete dialog;
    return isDone;
}

} // namespace inspector
