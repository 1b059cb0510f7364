// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstddef>
#include <memory>
#include <vector>

class SoField;
class SoMField;

namespace scopix
{

/// What an edit made of one field: its value before and after, as typed copies, and its two flags. Of a list
/// it keeps the values that differ and no others, so it costs what changed. References to nodes are kept with
/// the values. GUI thread only; the field must outlive it.
class FieldEdit
{
public:
    /// Made before the first write.
    explicit FieldEdit(SoField& field);
    ~FieldEdit();

    SoField& field() const { return m_field; }
    /// Before each write, as of SoWriteRecorder.
    void aboutToWrite(int start, int removed);
    /// Keeps what differs now; the writes so far are over. What others write later is not part of the edit.
    void compare();
    /// No bit and no flag differs, by the last compare().
    bool isNothing() const { return m_runs.empty() && m_flagsBefore == m_flagsAfter; }
    /// What the field holds now is what the edit made of it, although others wrote it last. A list must have
    /// the length that the edit left.
    void completeLater();
    /// After the last write: lets go of all that does not differ.
    void close();

    /// Once it is closed. False, and nothing changes, where the list is no longer as this left it.
    bool undo();
    bool redo();

    // --- Of one that stays open, by the last compare():
    /// Somebody else has written the field since, which is to be compared too.
    void noteOtherWrite() { m_isStale = true; }
    /// What the field held, and which may be changed by its text: false where it is a list, or the text is no
    /// value of it.
    bool setFormer(const QString& text);
    /// All that it held; null where the type cannot be instantiated.
    std::unique_ptr<SoField> makeFormer() const;
    /// Gives the field that and both flags back. False, and nothing changes, where the list is no longer as
    /// it was left.
    bool writeFormer();
    /// The part that differs: as it was, and as it is.
    QString formerText(int limit) const;
    QString presentText(int limit) const;
    /// How many values differ.
    int countChanged() const;

    std::size_t bytes() const;
    /// "transparency: 0.2 → 0.38", "points[3]: 1 0 0 → 1 2 0", by the last compare().
    QString text() const;

private:
    struct Flags {
        bool isIgnored;
        bool isDefault;
        bool operator==(const Flags& other) const
        {
            return isIgnored == other.isIgnored && isDefault == other.isDefault;
        }
    };
    // Values that differ; until it is closed, `start` counts from m_start.
    struct Run {
        int start;
        int before; // how many
        int after;
    };

    Flags flags() const;
    void coverList(int start, int removed);
    int coveredNow() const;
    void compareLists();
    void compareSameCount(int count);
    void compareOtherCount(int count);
    void keepListAfter();
    void keepListBefore();
    bool fits(int Run::*present) const;
    bool apply(const SoField* value, int Run::*present, int Run::*wanted, Flags wantedFlags);
    bool write(const SoField& value, int Run::*present, int Run::*wanted);
    void setFlags(Flags wanted, bool isWritten);
    QString listText(const QString& name) const;
    QString flagsText() const;
    QString partText(const SoField* value, int Run::*count, Flags shown, int limit) const;

    SoField& m_field;
    SoMField* const m_list; // the same, where it is one
    Flags m_flagsBefore;
    Flags m_flagsAfter;
    std::unique_ptr<SoField> m_before; // of a list: the values of the part that was written, from m_start on
    std::unique_ptr<SoField> m_after;  // of a list: the values of all runs, one after the other
    int m_start = 0;
    int m_countBefore = 0; // of the whole list
    std::vector<Run> m_runs;
    bool m_isStale = false; // written since it was compared
    bool m_isClosed = false;
};

} // namespace scopix
