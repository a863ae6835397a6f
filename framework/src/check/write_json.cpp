// Findings for programs. The keys are a contract with them.
#include "common/json.h"
#include "writers.h"

namespace lcdcheck {

void writeJson(const Checked& checked, const QStringList& roots, lcdcommon::Page& page)
{
    const auto finding = [&roots](const Finding& found) {
        return QJsonObject{
            {"id", found.kind->id},
            {"severity", severityName(found.kind->severity)},
            {"file", pathBelowRoot(found.file, roots)},
            {"line", found.place.line},
            {"column", found.place.column},
            {"endColumn", found.place.endColumn},
            {"element", found.element},
            {"message", found.message},
            {"hint", found.hint},
            {"cost", found.cost},
        };
    };
    const QJsonObject summary{
        {"errors", countOf(checked.findings, Severity::Error)},
        {"warnings", countOf(checked.findings, Severity::Warning)},
        {"notes", countOf(checked.findings, Severity::Note)},
        {"files", checked.files},
    };
    page.write(lcdcommon::jsonText(
        QJsonObject{{"findings", lcdcommon::jsonArray(checked.findings, finding)}, {"summary", summary}}));
}

} // namespace lcdcheck
