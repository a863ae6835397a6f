// The text of an ini file as its author wrote it: where every entry stands. QSettings knows none of these places.
#ifndef LCDCHECK_INISOURCE_H
#define LCDCHECK_INISOURCE_H

#include "finding.h"

#include <QByteArray>

#include <vector>

namespace lcdcheck {

struct IniEntry {
    QString key;   ///< The whole key as QSettings has it, "Section/Entry".
    QString value; ///< As written, without the space around it.
    Place place;   ///< Of the entry's name.
};

struct IniSection {
    QString name;
    Place place; ///< Of its line.
};

struct IniSource {
    std::vector<IniEntry> entries;    ///< In the order of the file.
    std::vector<IniSection> sections; ///< In the order of the file.
    std::vector<Place> faults;        ///< Lines that are neither a section nor an entry nor a comment.

    static IniSource read(const QByteArray& bytes);
};

} // namespace lcdcheck

#endif
