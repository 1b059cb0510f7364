// SPDX-License-Identifier: MIT
// Sentences about things that are counted.
#pragma once

#include <QStringList>

namespace scopix
{

/// Adds the sentence for one or for several, with "%1" for how many; none for 0.
void addCounted(QStringList& sentences, unsigned count, const QString& one, const QString& several);
/// The first of the names, quoted.
QString quoted(const QStringList& names);

} // namespace scopix
