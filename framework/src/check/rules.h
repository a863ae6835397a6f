// The rules by which what was heard and collected is judged. Each is a function that adds findings; they stand in files
// by subject.
#ifndef LCDCHECK_RULES_H
#define LCDCHECK_RULES_H

#include "collected.h"
#include "finding.h"
#include "loaded.h"

namespace lcdcheck {

/// Adds the findings of one file. `id` is a row of the table of kinds.
class FileJudge {
public:
    FileJudge(const HeardFile& file, Findings& findings) : _file(file), _findings(findings) {}

    /// About an element, at its start tag.
    Finding& about(const char* id, int element, const QString& message);
    /// About an attribute of an element.
    Finding& about(const char* id, int element, const Source::Attribute& attribute, const QString& message);
    /// About a place in the file.
    Finding& at(const char* id, const Place& place, const QString& message);

private:
    const HeardFile& _file;
    Findings& _findings;
};

/// A name in quotes.
QString quoted(const QString& name);
/// "did you mean ...?" for the nearest of the names; empty when none is near.
QString didYouMean(const QString& word, const QStringList& names);

// --- One file

/// not-well-formed, bad-encoding, duplicate-attribute, wrong-root, wrong-version, cannot-read.
void judgeFrame(const HeardFile& file, Findings& findings);
/// unknown-attribute, unknown-element, unexpected-tag, duplicate-element, missing-element, default-read.
void judgeStructure(const HeardFile& file, const Vocabulary* vocabulary, Findings& findings);
/// not-a-number, value-out-of-range, empty-range, value-not-in-list, duplicate-value.
void judgeValues(const HeardFile& file, Findings& findings);

// --- Several files

/// Adds the findings of rules over several files.
class Judge {
public:
    Judge(const Collected& collected, Findings& findings) : _collected(collected), _findings(findings) {}

    Finding& about(const char* id, const Value& value, const QString& message);
    /// "line 12", or "line 12 of slot.xml" where that is another file than `here`'s.
    [[nodiscard]] QString where(const Value& value, const Value& here) const;

private:
    const Collected& _collected;
    Findings& _findings;
};

/// The fields that the rules below compare.
std::set<Field> fieldsOfIdentities();
std::set<Field> fieldsOfReferences();
std::set<Field> fieldsOfLayouts();
std::set<Field> fieldsOfResolutions();

/// duplicate-identifier, shadowed.
void judgeIdentities(const Collected& collected, Findings& findings);
/// missing-card, missing-connector-type, missing-layer-type, missing-slot, missing-connector, missing-position.
void judgeReferences(const Collected& collected, Findings& findings);
/// overlapping-cells, cell-outside.
void judgeLayouts(const Collected& collected, Findings& findings);
/// missing-resolution, no-resolution.
void judgeResolutions(const Collected& collected, const Loaded& loaded, Findings& findings);

} // namespace lcdcheck

#endif
