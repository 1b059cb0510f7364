// SPDX-License-Identifier: MIT
#include "frames/RecordingFiles.h"

#include <scopix/SpxSentence.h>
#include <xsg/frames/SoFrameCsv.h>
#include <xsg/frames/SoFrameFile.h>
#include <xsg/support/FileReplacement.h>
#include <xsg/support/SpecialFile.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

namespace profiler
{

namespace
{

constexpr qint64 LargestTable = qint64{1} << 28;

QString tr(const char* text)
{
    return QCoreApplication::translate("RecordingFiles", text);
}

bool isTable(const QString& path)
{
    return path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

QString filters()
{
    return tr("Recordings of frames (*.xsgframes);;Comma-separated values (*.csv)");
}

bool readTable(const std::string& path, SoFrameRecording& recording, SbSentence& problem)
{
    QFile file(QFile::decodeName(path.c_str()));
    if (xsg::isSpecialFile(path) || !file.open(QIODevice::ReadOnly)) {
        problem = SbSentence("it cannot be read");
        return false;
    }
    if (file.size() > LargestTable) {
        problem = SbSentence("it has more than 256 MiB");
        return false;
    }
    return SoFrameCsv::read(file.readAll().toStdString(), recording, problem);
}

} // namespace

QString RecordingFiles::askForNew(QWidget* parent)
{
    QString filter;
    QString path = QFileDialog::getSaveFileName(parent, tr("Save Frames"), {}, filters(), &filter);
    if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty())
        path += filter.contains(QLatin1String("csv")) ? QStringLiteral(".csv") : QStringLiteral(".xsgframes");
    return path;
}

QString RecordingFiles::askForOne(QWidget* parent)
{
    return QFileDialog::getOpenFileName(parent, tr("Open Frames"), {},
                                        tr("Frames (*.xsgframes *.csv)") + QStringLiteral(";;") +
                                            tr("All files (*)"));
}

bool RecordingFiles::read(const QString& path, SoFrameRecording& recording, QString& problem)
{
    const std::string bytes = QFile::encodeName(path).toStdString();
    SbSentence reason;
    const bool isRead =
        isTable(path) ? readTable(bytes, recording, reason) : SoFrameFile::read(bytes, recording, reason);
    recording.setAbout("title", QFileInfo(path).fileName().toStdString());
    if (!isRead)
        problem = tr("“%1” cannot be opened: %2. Choose a recording of frames.")
                      .arg(path, SpxSentence::translated(reason));
    return isRead;
}

QString RecordingFiles::write(const QString& path, const SoFrameRecording& recording)
{
    const std::string bytes = QFile::encodeName(path).toStdString();
    SbSentence problem;
    if (isTable(path)) {
        xsg::FileReplacement file(bytes);
        if (!file.open() || !file.write(SoFrameCsv::write(recording)) || !file.commit())
            problem = file.getProblem();
    } else {
        SoFrameFile file;
        if (!file.open(bytes, recording) || !file.write(recording))
            problem = file.getProblem();
    }
    return problem.empty() ? QString()
                           : tr("“%1” cannot be written: %2. Choose another place.")
                                 .arg(path, SpxSentence::translated(problem));
}

} // namespace profiler
