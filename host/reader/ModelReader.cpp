// SPDX-License-Identifier: MIT
#include "reader/ModelReader.h"

#include "model/FileChecks.h"
#include "model/ModelFormats.h"
#include "model/TranslatedSentence.h"
#include "reader/AssimpModel.h"
#include "reader/FormatChecks.h"
#include "reader/GltfAnimations.h"
#include "reader/GltfFile.h"
#include "reader/GltfLosses.h"
#include "reader/GltfMaterials.h"
#include "reader/LeftOut.h"
#include "reader/ModelPictures.h"
#include "reader/RegularFiles.h"
#include "reader/ScopedCLocale.h"
#include "reader/Sentences.h"

#include <xsg/core/SoPreferences.h>

#include <assimp/Importer.hpp>
#include <assimp/ProgressHandler.hpp>
#include <assimp/config.h>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <optional>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("ModelReader", text);
}

constexpr unsigned Steps = aiProcess_Triangulate | aiProcess_JoinIdenticalVertices |
                           aiProcess_GenSmoothNormals | aiProcess_SortByPType |
                           aiProcess_ValidateDataStructure | aiProcess_FindInvalidData;

bool isGltf(const QString& path)
{
    return path.endsWith(QLatin1String(".gltf"), Qt::CaseInsensitive) ||
           path.endsWith(QLatin1String(".glb"), Qt::CaseInsensitive);
}

// How pictures are moved stays with the pictures where the scene's nodes can say it.
unsigned stepsFor(const QString& path)
{
    return isGltf(path) ? Steps : Steps | aiProcess_TransformUVCoords;
}

class Progress : public Assimp::ProgressHandler
{
public:
    explicit Progress(const ReadProgress& tell)
        : m_tell(tell)
    {
    }
    bool Update(float done) override
    {
        if (m_tell)
            m_tell(std::clamp(done, 0.0F, 1.0F));
        return true;
    }

private:
    const ReadProgress& m_tell;
};

// Remembers which files of materials a model names and are not there: the importer does without. Where one
// is missing it tries the model's own name with their ending, of which the user knows nothing.
class FileAccess : public RegularFiles
{
public:
    FileAccess(const QString& model, QStringList& missing)
        : m_guess(QFileInfo(model).completeBaseName() + QStringLiteral(".mtl"))
        , m_missing(missing)
    {
    }
    Assimp::IOStream* Open(const char* path, const char* mode) override
    {
        Assimp::IOStream* file = RegularFiles::Open(path, mode);
        if (!file)
            note(QFileInfo(QFile::decodeName(path)).fileName());
        return file;
    }

private:
    void note(const QString& name)
    {
        const bool isGuess = name == m_guess && !m_missing.isEmpty();
        if (name.endsWith(QLatin1String(".mtl"), Qt::CaseInsensitive) && !isGuess &&
            !m_missing.contains(name))
            m_missing += name;
    }

    QString m_guess;
    QStringList& m_missing;
};

QString unrecognized(const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    const QString fault = isGltf(path) ? gltfFault(path) : QString();
    return fault.isEmpty() ? tr("it is no file of the kind that its ending, .%1, says").arg(ending) : fault;
}

// The importer's words as the end of a sentence: one line, without its file name prefixes and full stop.
QString reasonOf(const Assimp::Importer& importer, const QString& path)
{
    QString text = QString::fromUtf8(importer.GetErrorString()).section(QLatin1Char('\n'), 0, 0).trimmed();
    if (text.contains(QLatin1String("bad_alloc")))
        return tr("it asks for more memory than a file of its size can need");
    if (text.startsWith(QLatin1String("No suitable reader")))
        return unrecognized(path);
    while (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text.isEmpty() ? tr("it holds no model that can be read")
                          : tr("it is not a whole model (%1)").arg(text);
}

ModelReadResult failed(const QString& sentence)
{
    ModelReadResult result;
    result.error = sentence;
    return result;
}

bool hasShapes(const ModelData& model)
{
    return std::any_of(model.meshes.begin(), model.meshes.end(),
                       [](const ModelData::Mesh& mesh) { return !mesh.index.empty(); });
}

// What lights or sees from nowhere is not worth refusing the rest of a model for.
template <class Thing>
void removeUnreferenced(aiNode& root, Thing** things, unsigned& count)
{
    Thing** end = std::remove_if(things, things + count, [&](Thing* thing) {
        const bool homeless = !root.FindNode(thing->mName);
        if (homeless)
            delete thing;
        return homeless;
    });
    count = static_cast<unsigned>(end - things);
}

// Some importers give a cloud of points no faces, which the steps after them expect: one for each point.
void giveFacesToPoints(aiMesh& mesh)
{
    if (mesh.mNumFaces > 0 || mesh.mNumVertices == 0)
        return;
    mesh.mPrimitiveTypes = aiPrimitiveType_POINT;
    mesh.mNumFaces = mesh.mNumVertices;
    mesh.mFaces = new aiFace[mesh.mNumFaces];
    for (unsigned i = 0; i < mesh.mNumFaces; ++i) {
        mesh.mFaces[i].mNumIndices = 1;
        mesh.mFaces[i].mIndices = new unsigned[1]{i};
    }
}

// `gltf`: the text of the file, where it is of that format.
const aiScene* read(Assimp::Importer& importer, const QString& path, const QJsonObject& gltf)
{
    // The importer owns the scene and hands it out to be read; in between its steps nobody else does.
    auto* scene = const_cast<aiScene*>(importer.ReadFile(QFile::encodeName(path).constData(), 0));
    if (!scene || !scene->mRootNode)
        return nullptr;
    removeUnreferenced(*scene->mRootNode, scene->mLights, scene->mNumLights);
    removeUnreferenced(*scene->mRootNode, scene->mCameras, scene->mNumCameras);
    for (unsigned i = 0; i < scene->mNumMeshes; ++i)
        giveFacesToPoints(*scene->mMeshes[i]);
    takeCoordinateSets(gltf, *scene);
    return importer.ApplyPostProcessing(stepsFor(path));
}

// In degrees: faces that meet at a sharper angle have an edge between them, where a file has no normals.
float creaseAngle()
{
    return std::clamp(SoPreferences::getFloat("XSG_CREASE_ANGLE", 35), 0.0F, 175.0F);
}

ModelReadResult import(const QString& path, const ReadProgress& progress)
{
    Assimp::Importer importer;
    QStringList missingFiles;
    importer.SetProgressHandler(new Progress(progress)); // the importer owns both
    importer.SetIOHandler(new FileAccess(path, missingFiles));
    importer.SetPropertyFloat(AI_CONFIG_PP_GSN_MAX_SMOOTHING_ANGLE, creaseAngle());
    const ScopedCLocale numbers;
    std::optional<GltfFile> gltf;
    if (isGltf(path))
        gltf.emplace(path);
    const aiScene* scene = read(importer, path, gltf ? gltf->getText() : QJsonObject());
    if (!scene)
        return failed(cannotOpen(path, reasonOf(importer, path)));
    ModelReadResult result;
    ModelPictures pictures(*scene, QFileInfo(path).absolutePath(), xsg::PictureBudget::preferred());
    result.data = fromAssimp(*scene, pictures);
    if (gltf) {
        readMaterialExtensions(gltf->getText(), result.data);
        takeGltfAnimations(*gltf, result.data);
    }
    for (const SbSentence& note : pictures.getNotes())
        result.notes.push_back(translated(note).toStdString());
    if (!hasShapes(result.data))
        return failed(cannotOpen(path, tr("it holds no mesh, and at least one was expected")));
    const QStringList extensions = gltf ? extensionLosses(gltf->getText()) : QStringList();
    for (const QString& note : partsLeftOut(*scene) + extensions + missingMaterialFiles(missingFiles) +
                                   missingPictures(pictures.getUnread()))
        result.notes.push_back(note.toStdString());
    return result;
}

} // namespace

ModelReadResult readModel(const QString& path, const ReadProgress& progress)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    QString error = checkFile(path, modelEndings());
    if (error.isEmpty() && ending == QLatin1String("glb"))
        error = checkBinaryGltf(path);
    if (error.isEmpty() && ending == QLatin1String("ply"))
        error = checkPly(path);
    if (!error.isEmpty())
        return failed(error);
    try {
        return import(path, progress);
    } catch (const std::bad_alloc&) {
        return failed(cannotOpen(path, tr("it asks for more memory than there is")));
    } catch (const std::exception& e) {
        return failed(cannotOpen(path, tr("reading it failed (%1)").arg(QString::fromUtf8(e.what()))));
    }
}

} // namespace scopix
