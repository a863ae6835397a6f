// The panel's ini file in the forms of the other kinds: as reference, as a file to start from, and as it is taken.
#include "reference.h"
#include "settingsfile.h"

#include <QHash>

#include <algorithm>

namespace lcdcheck {

namespace {

ReferenceAttribute referenceOf(const Setting& setting)
{
    ReferenceAttribute shown = referenceOf(Attribute{setting.name(), {{setting.kind, setting.readDefault, {}}}, {}});
    shown.fields = setting.getterNames();
    shown.meanings = QStringList{setting.isSize() ? QStringLiteral("How many rows there are.") : setting.meaning()};
    if (setting.isCounted()) shown.condition = QStringLiteral("one entry for each, counted from 0");
    if (setting.isInRow()) shown.condition = QStringLiteral("of every row, counted from 1");
    return shown;
}

bool isArray(const std::vector<Setting>& section)
{
    return std::any_of(section.begin(), section.end(), [](const Setting& setting) { return setting.isSize(); });
}

/// Of the entries that are counted, those up to the last that is there.
std::vector<Setting> withoutUnused(std::vector<Setting> settings)
{
    const auto last = std::find_if(settings.rbegin(), settings.rend(),
                                   [](const Setting& setting) { return setting.isCounted() && setting.present; });
    settings.erase(std::remove_if(last.base(), settings.end(), [](const Setting& s) { return s.isCounted(); }),
                   settings.end());
    return settings;
}

QString comment(const QString& text)
{
    constexpr int WIDTH = 110;
    QString lines, line;
    for (const QString& word : text.split(' ')) {
        if (line.size() + word.size() > WIDTH) lines += "; " + std::exchange(line, QString()).trimmed() + '\n';
        line += word + ' ';
    }
    return lines + "; " + line.trimmed() + '\n';
}

} // namespace

ReferenceElement referenceOfSection(const QString& section)
{
    const std::vector<Setting> settings = inSection(possibleSettings(), section);
    ReferenceElement shown;
    shown.path = section;
    if (isArray(settings)) shown.meaning = QStringLiteral("An array, whose rows are counted from 1.");
    shown.count = QStringLiteral("optional: its defaults hold");
    for (const Setting& setting : settings) shown.attributes.push_back(referenceOf(setting));
    return shown;
}

std::vector<ReferenceElement> referenceOfSettings()
{
    std::vector<ReferenceElement> all;
    for (const QString& section : sectionsOf(possibleSettings())) all.push_back(referenceOfSection(section));
    return all;
}

QString writeSettingsSkeleton()
{
    QString text = comment(QString(infoOf(FileKind::Settings).summary) +
                           ". Each entry stands here as it reads where it is left out. Quote a text that holds a "
                           "comma, a semicolon or an equals sign.");
    for (const QString& section : sectionsOf(possibleSettings())) {
        text += "\n[" + section + "]\n";
        QString last;
        for (const Setting& setting : inSection(possibleSettings(), section)) {
            if (const QString meaning = setting.meaning(); meaning != std::exchange(last, meaning))
                text += comment(meaning);
            text += (setting.isInRow() ? "; " : "") + setting.name() + '=' + setting.readDefault + '\n';
        }
    }
    return text;
}

TakenElement takenSettings(const QByteArray& text)
{
    TakenElement taken{"settings", {}, {}};
    const std::vector<Setting> settings = withoutUnused(settingsOf(text));
    for (const QString& section : sectionsOf(settings)) {
        TakenElement element{section, {}, {}};
        QHash<QString, std::size_t> rows;
        for (const Setting& setting : inSection(settings, section)) {
            if (!setting.isInRow()) {
                element.attributes.push_back({setting.name(), setting.value});
                continue;
            }
            const QString row = setting.key.section('/', 1, 1);
            if (!rows.contains(row)) {
                rows.insert(row, element.children.size());
                element.children.push_back({"row", {{"index", row}}, {}});
            }
            element.children[rows.value(row)].attributes.push_back({setting.key.section('/', 2), setting.value});
        }
        taken.children.push_back(std::move(element));
    }
    return taken;
}

} // namespace lcdcheck
