// What the settings component asks of its ini file, and what its author has to be told.
#ifndef LCDCHECK_RULES_SETTINGS_H
#define LCDCHECK_RULES_SETTINGS_H

#include "finding.h"
#include "inisource.h"

#include "reading/listener.h"

#include <lcdmainconfig/ilcdconfig.h>

#include <QHash>
#include <QSet>

namespace lcdcheck {

namespace reading = LCD::MainConfigImpl::reading;

/// Hears which entries the getters of the factory settings ask for.
class HeardSettings final : public reading::Listener {
public:
    /// Asks every getter of an open store.
    void ask(LCD::MainConfig::ILcdConfig& settings, const IniSource& source);
    /// unknown-key, not-a-number, duplicate-attribute, not-well-formed and missing-file of the ini file.
    void judge(const QString& path, const IniSource& source, Findings& findings) const;

    void settingAsked(const QString& key, const reading::Asked& asked) override;

private:
    QHash<QString, QString> _known; ///< What each entry is read as, "number" or "text".
    QSet<QString> _bad;             ///< The entries whose values are none.
};

} // namespace lcdcheck

#endif
