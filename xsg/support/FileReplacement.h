// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbSentence.h>
#include <xsg/values/XsgExport.h>

#include <string>
#include <string_view>
#include <vector>

namespace xsg
{

/// Why the file of this path must not be replaced, as the end of a sentence, or empty: what is there
/// is no regular file, or nobody may write to it. True for root too, who could.
XSG_API SbSentence reasonAgainstReplacing(const std::string& path);

/// Whether the name of this file, or of what it leads to over links, has the ending of another kind than
/// those that are given in lower case, as in "csv". What a link leads to may have none.
XSG_API bool isOfAnotherKind(const std::string& path, const std::vector<std::string>& endings);

/// The path that this one leads to over symbolic links, also where nothing is there yet.
XSG_API std::string followLinks(const std::string& path);

/// Gives a file new content in one step: whatever happens meanwhile, the file is the old one or the new one.
/// Writes a temporary file beside it, makes sure that it is on the disk, and renames it. A symbolic link
/// stays one, and what it leads to is replaced; other hard links keep the old content (decisions.md:
/// hard-links). Mode, owner and group stay, as far as the user may keep them; a new file gets the mode that
/// the umask asks for.
///
/// The temporary file is locked while it is written. What a killed program left is not, and goes with the
/// next replacement of the same file.
///
///     FileReplacement file(path);
///     if (!file.open() || !file.write(text) || !file.commit())
///         ... file.getProblem() is the end of a sentence, and nothing has changed
///
/// One thread at a time.
class XSG_API FileReplacement
{
public:
    explicit FileReplacement(const std::string& path);
    /// Unless it is committed, nothing has happened.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    bool open();
    bool write(std::string_view text);
    bool commit();
    /// Why one of these returned false.
    const SbSentence& getProblem() const { return m_problem; }

private:
    bool fail(int code);
    bool makeTemporary();
    bool isOurs() const;
    bool keepOwnerAndMode();
    void discard();

    std::string m_target;
    std::string m_temporary; // empty where there is none
    int m_descriptor = -1;
    SbSentence m_problem;
};

} // namespace xsg
