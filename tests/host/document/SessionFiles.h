// SPDX-License-Identifier: MIT
#pragma once

#include "HostParts.h"

#include "document/SceneDocument.h"

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace scopix;

/// A scene that is open and edited, in a home of its own.
class SessionFiles : public testing::Test
{
protected:
    SessionFiles() { begin(); }
    void begin()
    {
        material = new SoMaterial;
        SoRef<SoSeparator> root(new SoSeparator);
        root->addChild(material);
        document.begin(root.get(), folder.filePath("scene.xsg"), "scene.xsg");
    }
    /// As an editor does it.
    void edit(float transparency)
    {
        services.select(&material->transparency);
        services.executeCommand(new SetFloat(material->transparency, transparency));
        SoSensorQueue::getInstance().process();
    }
    /// By an editor that hands over no command.
    void editWithoutCommand(float transparency)
    {
        services.select(&material->transparency);
        SoSensorQueue::getInstance().process();
        const UserInput::Scope scope(services.history().input(), UserInput::Scope::User);
        material->transparency.setValue(transparency);
    }
    QStringList filesIn(const QString& path) const
    {
        return QDir(path).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    HostServices services;
    SceneDocument document{services};
    SoMaterial* material = nullptr;
};
