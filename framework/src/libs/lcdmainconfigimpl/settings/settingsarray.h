// An array of an ini file, as QSettings lays it out: an entry "size", and rows that the file counts from 1. Here they
// count from 0.
#ifndef LCDMAINCONFIGIMPL_SETTINGS_SETTINGSARRAY_H
#define LCDMAINCONFIGIMPL_SETTINGS_SETTINGSARRAY_H

#include "inifile.h"

#include <QString>

namespace LCD::MainConfigImpl {

class SettingsArray {
public:
    SettingsArray(IniFile& setting, const char* name) : _setting(setting), _prefix(QString(name) + '/') {}

    /// As the file tells it, but no more than a file can sensibly hold: a mistyped number must not keep the panel
    /// waiting.
    [[nodiscard]] int size() const { return qBound(0, _setting.value(_prefix + "size").toInt(), MOST_ROWS); }
    /// Makes room for rows up to `size`; never shrinks.
    void growTo(int size)
    {
        if (size > this->size()) _setting.setValue(_prefix + "size", size);
    }
    [[nodiscard]] int number(int row, const char* entry) const { return _setting.value(key(row, entry)).toInt(); }
    void set(int row, const char* entry, int value) { _setting.setValue(key(row, entry), value); }

    /// The first row that `matches` accepts; -1 when there is none.
    template <class Matches> [[nodiscard]] int firstRow(const Matches& matches) const
    {
        const int rows = size();
        for (int row = 0; row < rows; ++row)
            if (matches(row)) return row;
        return -1;
    }

private:
    static constexpr int MOST_ROWS = 65536;

    [[nodiscard]] QString key(int row, const char* entry) const
    {
        return _prefix + QString::number(row + 1) + '/' + entry;
    }

    IniFile& _setting;
    QString _prefix;
};

} // namespace LCD::MainConfigImpl

#endif
