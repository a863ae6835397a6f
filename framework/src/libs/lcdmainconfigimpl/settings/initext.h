// The text of an ini file and its entries. Both ways are those of QSettings, to the byte; but the text lies in memory,
// so that a file can be looked at before it is read, and a new one be proven whole before it takes the old one's place.
#ifndef LCDMAINCONFIGIMPL_SETTINGS_INITEXT_H
#define LCDMAINCONFIGIMPL_SETTINGS_INITEXT_H

#include <memory>

#include <QByteArray>
#include <QMap>
#include <QSettings>
#include <QString>
#include <QVariant>

namespace LCD::MainConfigImpl {

/// Entries by their whole keys, "Section/Entry".
using IniEntries = QMap<QString, QVariant>;

/// The text as QSettings would write it.
QByteArray iniText(const IniEntries& entries);

/// A QSettings with the entries of the text, for reading alone: it stands on no file. Its status tells whether the text
/// is one of an ini file. Null: the system gave no memory for it.
std::unique_ptr<const QSettings> readIniText(const QByteArray& text);

} // namespace LCD::MainConfigImpl

#endif
