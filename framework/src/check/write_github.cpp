// Findings as workflow commands: GitHub shows each beside the changed line. It takes ten of a severity in one step.
#include "writers.h"

namespace lcdcheck {
namespace {

QString escaped(QString text) { return text.replace('%', "%25").replace('\r', "%0D").replace('\n', "%0A"); }

QString escapedProperty(const QString& text) { return escaped(text).replace(':', "%3A").replace(',', "%2C"); }

} // namespace

void writeGithub(const Checked& checked, const QStringList& /*roots*/, lcdcommon::Page& page)
{
    for (const Finding& finding : checked.findings) {
        const bool note = finding.kind->severity == Severity::Note;
        // The parts may hold anything, so that no placeholder is safe.
        page.line("::" + (note ? QStringLiteral("notice") : severityName(finding.kind->severity)) +
                  " file=" + escapedProperty(pathBelowWorkingDirectory(finding.file)) +
                  ",line=" + QString::number(finding.place.line) + ",col=" + QString::number(finding.place.column) +
                  ",endColumn=" + QString::number(finding.place.endColumn) + ",title=" + finding.kind->id +
                  "::" + escaped(fullMessage(finding)));
    }
}

} // namespace lcdcheck
