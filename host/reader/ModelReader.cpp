// SPDX-License-Identifier: MIT
#include "reader/ModelReader.h"

#include "model/FileChecks.h"
#include "model/ModelFormats.h"
#include "reader/AssimpModel.h"
#include "reader/FormatChecks.h"
#include "reader/RegularFiles.h"
#include "reader/ScopedCLocale.h"

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
                           aiProcess_ValidateDataStructure | aiProcess_FindInvalidData |
                           aiProcess_TransformUVCoords;

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

// The importer's words as the end of a sentence: one line, without its file name prefixes and full stop.
QString reasonOf(const Assimp::Importer& importer)
{
    QString text = QString::fromUtf8(importer.GetErrorString()).section(QLatin1Char('\n'), 0, 0).trimmed();
    if (text.contains(QLatin1String("bad_alloc")))
        return tr("it asks for more memory than a file of its size can need");
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

bool hasTriangles(const ModelData& model)
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

const aiScene* read(Assimp::Importer& importer, const QString& path)
{
    // The importer owns the scene and hands it out to be read; in between its steps nobody else does.
    auto* scene = const_cast<aiScene*>(importer.ReadFile(QFile::encodeName(path).constData(), 0));
    if (!scene || !scene->mRootNode)
        return nullptr;
    removeUnreferenced(*scene->mRootNode, scene->mLights, scene->mNumLights);
    removeUnreferenced(*scene->mRootNode, scene->mCameras, scene->mNumCameras);
    return importer.ApplyPostProcessing(Steps);
}

ModelReadResult import(const QString& path, const ReadProgress& progress)
{
    Assimp::Importer importer;
    importer.SetPropertyInteger(AI_CONFIG_PP_SBP_REMOVE, aiPrimitiveType_POINT | aiPrimitiveType_LINE);
    importer.SetIOHandler(new RegularFiles);             // the importer owns it
    importer.SetProgressHandler(new Progress(progress)); // the importer owns it
    const ScopedCLocale numbers;
    const aiScene* scene = read(importer, path);
    if (!scene)
        return failed(cannotOpen(path, reasonOf(importer)));
    ModelReadResult result;
    result.data = fromAssimp(*scene, QFileInfo(path).absolutePath());
    if (!hasTriangles(result.data))
        return failed(cannotOpen(path, tr("it holds no mesh, and at least one was expected")));
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
