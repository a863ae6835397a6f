// Findings as compilers write them, one line each.
#include "writers.h"

namespace lcdcheck {

void writeGcc(const Checked& checked, const QStringList& /*roots*/, lcdcommon::Page& page)
{
    for (const Finding& finding : checked.findings)
        page.line(placeText(finding) + ": " + severityName(finding.kind->severity) + ": " + finding.message + " [" +
                  finding.kind->id + ']');
}

} // namespace lcdcheck
