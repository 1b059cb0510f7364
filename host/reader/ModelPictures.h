// SPDX-License-Identifier: MIT
#pragma once

#include "model/ModelData.h"

#include <xsg/render/PictureBudget.h>

#include <QStringList>

#include <map>
#include <string>

class QImage;
struct aiScene;
struct aiTexture;

namespace scopix
{

/// Reads the pictures of a model, each once, within the budget that all of them share. The scene has to stay.
class ModelPictures
{
public:
    /// `folder`: where the model's file is, for pictures beside it.
    ModelPictures(const aiScene& scene, const QString& folder, const xsg::PictureBudget& budget)
        : m_scene(scene)
        , m_folder(folder)
        , m_budget(budget)
    {
    }
    /// The picture's place among all of them; one that cannot be read, or has no room, is empty.
    int add(const std::string& name);

    std::vector<ModelData::Picture> takePictures() { return std::move(m_pictures); }
    /// One for each picture that is not as large as in its file.
    const std::vector<SbSentence>& getNotes() const { return m_notes; }
    /// The names of those that are missing, or no pictures.
    const QStringList& getUnread() const { return m_unread; }

private:
    QImage decode(const aiTexture& texture, const SoImageFit& fit) const;
    QImage readBeside(const QString& name, const SoImageFit& fit) const;

    const aiScene& m_scene;
    QString m_folder;
    xsg::PictureBudget m_budget;
    std::vector<ModelData::Picture> m_pictures;
    std::map<std::string, int> m_places; // of a picture among them, by what the file calls it
    std::vector<SbSentence> m_notes;
    QStringList m_unread;
};

} // namespace scopix
