// Which findings are told, in which order, and whether they make the run a failure.
#ifndef LCDCHECK_SELECTION_H
#define LCDCHECK_SELECTION_H

#include "finding.h"

#include <QStringList>

#include <optional>

namespace lcdcheck {

struct Selection {
    QStringList only; ///< Ids; empty: all but those that are told only when asked for.
    QStringList ignore;
};

/// By file, line, column and severity, the gravest first; a finding that was made twice stays once.
void sort(Findings& findings);

/// Takes out what the selection does not want.
void select(Findings& findings, const Selection& selection);

/// Whether a finding is at least that grave; without a severity none is.
bool reaches(const Findings& findings, std::optional<Severity> severity);

} // namespace lcdcheck

#endif
