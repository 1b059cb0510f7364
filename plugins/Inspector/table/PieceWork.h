// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <functional>

class QString;
class QWidget;

namespace inspector
{

/// Work that takes long, done in pieces of some milliseconds.
namespace PieceWork
{

/// How far the work is; it ends when `done` reaches `total`, and is given up where `isFailed`.
struct Progress {
    qint64 done = 0;
    qint64 total = 0;
    bool isFailed = false;
};

/// Calls `step` until the work is done. As soon as it takes longer than a moment, a dialog over `parent` says
/// how far it is and can cancel it, and the event loop runs between the pieces. False when it was cancelled
/// or failed.
bool run(QWidget* parent, const QString& what, const std::function<Progress()>& step);

} // namespace PieceWork

} // namespace inspector
