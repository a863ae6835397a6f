// How findings are told: one writer for each format, and what the writers share. Writers know no rule.
#ifndef LCDCHECK_WRITERS_H
#define LCDCHECK_WRITERS_H

#include "check.h"

#include "common/page.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace lcdcheck {

/// A format by its name on the command line. The findings are told in their order; `roots` are those of the request.
struct Format {
    const char* name;
    const char* summary; ///< One line, without a full stop.
    void (*write)(const Checked& checked, const QStringList& roots, lcdcommon::Page& page);
};

/// The first one is the default.
const std::vector<Format>& formats();

void writeText(const Checked& checked, const QStringList& roots, lcdcommon::Page& page);
void writeGcc(const Checked& checked, const QStringList& roots, lcdcommon::Page& page);
void writeJson(const Checked& checked, const QStringList& roots, lcdcommon::Page& page);
void writeSarif(const Checked& checked, const QStringList& roots, lcdcommon::Page& page);
void writeGithub(const Checked& checked, const QStringList& roots, lcdcommon::Page& page);

/// "error", "warning" or "note".
QString severityName(Severity severity);

/// How many findings have that severity.
int countOf(const Findings& findings, Severity severity);

/// The path of a file below its root; where there are several roots, below the root as it was given. A file outside
/// all roots keeps its path. Parted by "/".
QString pathBelowRoot(const QString& file, const QStringList& roots);

/// The path from the working directory for a file below it, else the path as it is. Parted by "/".
QString pathBelowWorkingDirectory(const QString& file);

/// FILE:LINE:COLUMN, for programs that jump there.
QString placeText(const Finding& finding);

/// Message, hint and cost as sentences in one line, for formats with one text for each finding.
QString fullMessage(const Finding& finding);

} // namespace lcdcheck

#endif
