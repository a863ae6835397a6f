// What the settings component asks of its ini file, and what its author has to be told.
#ifndef LCDCHECK_RULES_SETTINGS_H
#define LCDCHECK_RULES_SETTINGS_H

#include "finding.h"

namespace lcdcheck {

/// unknown-key, not-a-number, duplicate-attribute, not-well-formed and missing-file of an ini file of that text. Nobody
/// may listen meanwhile.
void judgeSettings(const QString& path, const QByteArray& text, Findings& findings);

} // namespace lcdcheck

#endif
