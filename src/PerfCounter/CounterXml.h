// SPDX-License-Identifier: MIT
// XML that comes from a file, read so that whatever is in it can be walked, kept and saved again.
#pragma once

class QByteArray;
class QDomDocument;
class QIODevice;
class QString;

namespace counterXml
{

/// Replaces an empty document; false, and a sentence, where the bytes are no XML, are nested too deeply or
/// would be no XML once they were saved.
bool read(const QByteArray& bytes, QDomDocument& document, QString& problem);
/// What keeps a document that was built, not read, from being read again; empty where nothing does.
QString causeOfUnsavable(const QDomDocument& document);
/// Saves the whole document, indented by two spaces per level.
void write(QIODevice* device, const QDomDocument& document);

} // namespace counterXml
