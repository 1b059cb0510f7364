// SPDX-License-Identifier: MIT
#pragma once

#include "Mutation.h"
#include "Process.h"

#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace torture
{

/// One attack on the program, made of a kind and a seed: the same ones do the same, but for the moment at
/// which a process is killed. Where something is wrong, the folder that it worked in is kept.
class Round
{
public:
    /// The names of all kinds.
    static QStringList kinds();

    Round(const QString& kind, quint64 seed);

    /// Empty, or what was wrong.
    QStringList run();
    QString folder() const { return m_folder->path(); }
    void keepFolder() { m_folder->setAutoRemove(false); }

private:
    struct Kind;
    static const QList<Kind>& table();

    void openScene();
    void openModel();
    void openPicture();
    void readProfiles();
    void readSettings();
    void loadPlugin();
    void killWhileSaving();
    void killWhileEditing();
    void damageRecovery();
    void killWhileImporting();
    void killWhileProfilesAreWritten();
    void runTwo();
    void failOneCall();
    void failEachCall();
    void failEachAllocation();

    QString at(const QString& name) const { return m_folder->filePath(name); }
    QString write(const QString& name, const QByteArray& content);
    QString writeScene();
    QString writeProfiles();
    QStringList actor(const QStringList& arguments) const;
    Ended open(const QStringList& arguments, const Process::Environment& environment = {});
    void saveOnce();
    void killAnywhere(Process& process);
    void endKilled(Process& process);
    void check(const Ended& ended);
    void expect(bool isTrue, const QString& what);
    void expectScene(const QString& name);
    void expectNothingLeft();

    QString m_kind;
    Random m_random;
    std::unique_ptr<QTemporaryDir> m_folder = std::make_unique<QTemporaryDir>();
    QStringList m_wrong;
};

} // namespace torture
