// SPDX-License-Identifier: MIT
// The counter-profile file: its place, its elements, and what reading and writing do to the shared document.
// The dock window and the profile manager differ only in what they do around these steps.
#pragma once

#include <QDomElement>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

class QByteArray;
class QDomDocument;
class QFile;
class QIODevice;
class QWidget;
class SoPerfCounterProfile;

namespace counterProfileFile
{

/// Root folder of the installation, from the preference XSGHOME, and the file under it.
QString defaultPath();
/// Filter of the file dialogs.
QString dialogFilter();
/// Title of the message boxes about the file.
QString title();

/// Opens the file as it is to be read; else why not, as the file itself would say it.
QString openToRead(QFile& file);

/// Whether the device's content can replace the document; else `problem` says why not. The document, and
/// every one that shares its tree, changes only when this returns true.
bool parse(QIODevice* device, QDomDocument& document, QString& problem);
/// The same; says why not in a box over `parent`.
bool readDocument(QIODevice* device, QDomDocument& document, QWidget* parent);
/// Gives a document, and every one that shares its tree, the content of another.
void replace(QDomDocument& document, const QDomDocument& by);
/// Saves the whole document, indented by two spaces per level.
void writeDocument(QIODevice* device, const QDomDocument& document);
/// Why this cannot become the name of a profile file: it is that of another kind of file.
QString reasonAgainstName(const QString& path);
/// Opens the file of this name again and writes all of it, while no other program does so; says in a box over
/// `parent` what went wrong, if anything. Where there is a flaw, the file stays as it is. `content` is asked
/// when the file is its own.
bool writeFile(const QString& path, const std::function<QByteArray()>& content, const QString& flaw,
               QWidget* parent);
/// Makes the document empty again and saves it to the device.
void initDocument(QIODevice* device, QDomDocument& document);

/// Registers the custom counters of the document. A counter whose name is taken is left alone; the names of
/// those that no counter can be called by are returned.
QStringList readCustomCounters(const QDomDocument& document);
/// Lists such names in a box over `parent`, if there are any.
void reportLeftOut(const QStringList& counters, QWidget* parent);
/// Makes the document's custom counters those of the registry that are custom and enabled.
void writeCustomCounters(QDomDocument& document);

/// The elements of the document that are custom counters, or profiles.
enum class Section { Counters, Profiles };
QList<QDomElement> childrenOf(const QDomDocument& document, Section section);
void appendCopy(QDomDocument& document, Section section, const QDomElement& element);
/// The two lists of a profile.
QStringList readCounters(const QDomElement& profile);
QStringList readView(const QDomElement& profile);
void writeLists(QDomElement profile, const QStringList& counters, const QStringList& view);

/// New profiles, owned by the caller.
QList<SoPerfCounterProfile*> readProfiles(const QDomDocument& document);
void writeProfiles(QDomDocument& document, const QList<SoPerfCounterProfile*>& profiles);

/// The profile that was on screen; false when the document does not say.
bool readViewedProfile(const QDomDocument& document, QString& name);
/// Updates the one profile's view list, and notes it as the one on screen.
void writeView(QDomDocument& document, const SoPerfCounterProfile& profile);

} // namespace counterProfileFile
