// The rules by which what was heard and collected is judged. Each is a function that adds findings; they stand in files
// by subject.
#ifndef LCDCHECK_RULES_H
#define LCDCHECK_RULES_H

#include "collected.h"
#include "finding.h"

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

/// The fields that the rules below compare.
std::set<Field> fieldsOfReferences();
/// duplicate-identifier, shadowed and all that one file says of another.
void judgeReferences(const Collected& collected, Findings& findings);

} // namespace lcdcheck

#endif
