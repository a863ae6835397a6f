#include "selection.h"

#include <algorithm>
#include <tuple>

namespace lcdcheck {
namespace {

// There is one for nearly every attribute that is left out.
constexpr char ONLY_WHEN_ASKED_FOR[] = "default-read";

auto orderOf(const Finding& finding)
{
    return std::tuple(std::cref(finding.file), finding.place.line, finding.place.column,
                      -static_cast<int>(finding.kind->severity));
}

auto contentOf(const Finding& finding)
{
    return std::tuple(finding.kind, std::cref(finding.file), finding.place.line, finding.place.column,
                      finding.place.endColumn, std::cref(finding.element), std::cref(finding.message));
}

} // namespace

void sort(Findings& findings)
{
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding& left, const Finding& right) { return orderOf(left) < orderOf(right); });
    // Of the same place and severity there are few, but twins need not be neighbours.
    Findings kept;
    auto group = kept.size();
    for (Finding& finding : findings) {
        if (!kept.empty() && orderOf(kept.back()) != orderOf(finding)) group = kept.size();
        const bool twin =
            std::any_of(kept.begin() + std::ptrdiff_t(group), kept.end(),
                        [&finding](const Finding& other) { return contentOf(other) == contentOf(finding); });
        if (!twin) kept.push_back(std::move(finding));
    }
    findings = std::move(kept);
}

void select(Findings& findings, const Selection& selection)
{
    const auto unwanted = [&selection](const Finding& finding) {
        const QString id = finding.kind->id;
        if (selection.ignore.contains(id)) return true;
        return selection.only.isEmpty() ? id == ONLY_WHEN_ASKED_FOR : !selection.only.contains(id);
    };
    findings.erase(std::remove_if(findings.begin(), findings.end(), unwanted), findings.end());
}

bool reaches(const Findings& findings, std::optional<Severity> severity)
{
    return severity && std::any_of(findings.begin(), findings.end(),
                                   [severity](const Finding& finding) { return finding.kind->severity >= *severity; });
}

} // namespace lcdcheck
