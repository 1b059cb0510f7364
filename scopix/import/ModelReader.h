// Reads a model file (glTF, GLB, OBJ, STL, PLY, DAE, FBX) into plain data. Needs no event loop and touches no node,
// so it may run on any thread.
#pragma once

#include "import/ModelData.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace scopix
{

// How far the reading is, 0 to 1. Returning false gives up at the next occasion.
using ReadProgress = std::function<bool(float done)>;

struct ReadModel {
    ModelData data;
    QString error; // one sentence, or empty
    bool cancelled = false;
};

// The endings of file names that can be read, in lower case.
QStringList modelEndings();
ReadModel readModel(const QString& path, const ReadProgress& progress = {});

} // namespace scopix
