// The panel's ini file as the getters of the factory settings read it, and all entries that it may hold. Nobody writes
// them down: each getter is called while the checker listens.
#ifndef LCDCHECK_SETTINGSFILE_H
#define LCDCHECK_SETTINGSFILE_H

#include "reading/listener.h"
#include "taken.h"

#include <QByteArray>

#include <vector>

namespace lcdcheck {

namespace reading = LCD::MainConfigImpl::reading;

struct SettingGetter;

/// An entry that was asked for.
struct Setting {
    QString key; ///< Whole, as "Section/Entry"; of a row of an array "Section/1/Entry".
    reading::Kind kind = reading::Kind::Text;
    QString readDefault; ///< What an absent one reads as.
    bool present = false;
    bool good = true; ///< Whether what is there is of the kind.
    QString value;    ///< As the panel takes it.
    std::vector<const SettingGetter*> getters;

    [[nodiscard]] QString section() const { return key.section('/', 0, 0); }
    /// As the file has it below its section, a row as "1\\Entry".
    [[nodiscard]] QString name() const { return key.section('/', 1).replace('/', '\\'); }
    [[nodiscard]] bool isSize() const { return key.endsWith("/size"); }
    [[nodiscard]] bool isInRow() const { return key.count('/') == 2; }
    /// Whether it is one for each button, which its name counts.
    [[nodiscard]] bool isCounted() const;
    [[nodiscard]] QStringList getterNames() const;
    /// In the words of its first getter's docstring.
    [[nodiscard]] QString meaning() const;
};

/// All that the getters ask of an ini file of that text, in the order of the getters. Nobody may listen meanwhile.
std::vector<Setting> settingsOf(const QByteArray& text);
/// All that an ini file may hold: of an array the first row, of what is counted the entry of number 0.
const std::vector<Setting>& possibleSettings();

/// Keeps those of one section.
std::vector<Setting> inSection(std::vector<Setting> settings, const QString& section);
/// In the order of the settings.
QStringList sectionsOf(const std::vector<Setting>& settings);

/// What the panel takes of an ini file of that text, a section as an element and a row as one below.
TakenElement takenSettings(const QByteArray& text);

/// An ini file with every entry, each with its default and its meaning; rows of arrays are comments.
QString writeSettingsSkeleton();

} // namespace lcdcheck

#endif
