#include "inisource.h"

#include <QUrl>

namespace lcdcheck {
namespace {

/// A name with its escapes replaced: "%20" for a letter, and a backslash for the parting of groups.
QString plainName(const QString& written) { return QUrl::fromPercentEncoding(written.toUtf8()).replace('\\', '/'); }

/// Whether the value goes on in the next line: it ends with a backslash, or within quotes.
bool goesOn(const QString& line)
{
    bool quoted = false;
    for (int at = 0; at < line.size(); ++at) {
        if (line[at] == '\\') {
            if (++at == line.size()) return true;
        } else if (line[at] == '"')
            quoted = !quoted;
        else if (line[at] == ';' && !quoted)
            return false;
    }
    return false;
}

} // namespace

IniSource IniSource::read(const QByteArray& bytes)
{
    IniSource source;
    QString section;
    bool inside = false;
    const QStringList lines = QString::fromUtf8(bytes).split('\n');
    for (int number = 1; number <= lines.size(); ++number) {
        const QString& line = lines[number - 1];
        const QString text = line.trimmed();
        const bool continued = inside;
        inside = goesOn(line);
        if (continued || text.isEmpty() || text.startsWith(';') || text.startsWith('#')) continue;
        const int column = line.indexOf(text[0]) + 1;
        if (text.startsWith('[')) {
            section = plainName(text.mid(1, text.indexOf(']') - 1));
            if (section.compare("General", Qt::CaseInsensitive) == 0) section.clear();
            source.sections.push_back({section, {number, column, column + text.size()}});
            if (!text.contains(']')) source.faults.push_back({number, column, column + text.size()});
            continue;
        }
        const int equals = text.indexOf('=');
        const QString name = text.left(equals).trimmed();
        const Place place{number, column, column + (equals < 0 ? text.size() : name.size())};
        if (equals <= 0)
            source.faults.push_back(place);
        else
            source.entries.push_back({section.isEmpty() ? plainName(name) : section + '/' + plainName(name),
                                      text.mid(equals + 1).trimmed(), place});
    }
    return source;
}

} // namespace lcdcheck
