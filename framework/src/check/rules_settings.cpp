// The entries of an ini file against what the getters asked for.
#include "rules_settings.h"

#include "common/nearest.h"
#include "inisource.h"
#include "rules.h"
#include "settingsfile.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace lcdcheck {
namespace {

const QRegularExpression& rowOfArray()
{
    static const QRegularExpression row("/[0-9]+/");
    return row;
}

/// The key under which an entry is asked for: rows of an array are all alike.
QString pattern(QString key) { return key.replace(rowOfArray(), "/1/"); }

/// What a getter makes of a whole number that its type can't hold; empty for any other text.
QString storedOf(const IniEntry& entry)
{
    bool isNumber = false;
    const qlonglong number = entry.value.toLongLong(&isNumber);
    return isNumber && number != int(number) ? QString::number(int(number)) : QString();
}

} // namespace

void judgeSettings(const QString& path, const QByteArray& text, Findings& findings)
{
    const IniSource source = IniSource::read(text);
    QHash<QString, reading::Kind> known; ///< By pattern.
    QSet<QString> bad;                   ///< The entries whose values are none.
    for (const Setting& setting : settingsOf(text)) {
        known.insert(pattern(setting.key), setting.kind);
        if (!setting.good) bad.insert(setting.key);
    }
    const auto add = [&](const char* id, const Place& place, const QString& key, const QString& message) -> Finding& {
        Finding finding;
        finding.kind = kindOf(id);
        finding.file = path;
        finding.place = place;
        finding.element = key;
        finding.message = message;
        findings.push_back(std::move(finding));
        return findings.back();
    };
    for (const Place& fault : source.faults)
        add("not-well-formed", fault, {}, "this line is neither an entry nor a section").cost = "it is ignored";
    if (source.entries.empty() && source.faults.empty())
        add("missing-file", {}, {}, "holds no entry").cost = "every setting reads as 0 or empty";
    QHash<QString, int> lines;
    for (const IniEntry& entry : source.entries) {
        if (const int line = lines.value(entry.key); line != 0)
            add("duplicate-attribute", entry.place, entry.key,
                QString("%1 stands on line %2 already; the last one counts").arg(quoted(entry.key)).arg(line));
        lines.insert(entry.key, entry.place.line);
        const QString stored = storedOf(entry);
        // The rows of an array whose size is no number are not asked for.
        if (const int row = entry.key.indexOf(rowOfArray()); row >= 0 && bad.contains(entry.key.left(row) + "/size"))
            continue;
        if (!known.contains(pattern(entry.key))) {
            Finding& finding =
                add("unknown-key", entry.place, entry.key, QString("nobody reads %1").arg(quoted(entry.key)));
            finding.hint = didYouMean(entry.key, known.keys());
        } else if (bad.contains(entry.key)) {
            const bool isText = known.value(pattern(entry.key)) == reading::Kind::Text;
            Finding& finding = add(
                "not-a-number", entry.place, entry.key,
                isText
                    ? QString("%1 is a list, where a text is wanted").arg(entry.value)
                    : QString("%1 wants a whole number, and %2 is none").arg(quoted(entry.key), quoted(entry.value)));
            finding.cost = isText ? "an empty text is read" : "0 is read";
            if (isText) finding.hint = "put quotes around a text with a comma";
        } else if (known.value(pattern(entry.key)) == reading::Kind::Int && !stored.isEmpty()) {
            add("not-a-number", entry.place, entry.key,
                QString("%1 wants a whole number, and %2 is too large").arg(quoted(entry.key), quoted(entry.value)))
                .cost = QString("%1 is read").arg(stored);
        }
    }
}

} // namespace lcdcheck
