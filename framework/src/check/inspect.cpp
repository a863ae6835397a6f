// The modes of the program that tell what the readers make of files: --effective, --diff and --at.
#include "describe.h"

#include "difference.h"
#include "drive.h"
#include "inisource.h"
#include "reference.h"
#include "settingsfile.h"
#include "vocabulary.h"

#include "common/access.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace lcdcheck {

namespace {

int complain(Console& console, const QString& text)
{
    console.complaints.line("lcdcheck: " + text);
    return WrongUse;
}

/// Why a root can't be read; empty when it can.
QString whyNoRoot(const QString& root)
{
    const QString reason = lcdcommon::whyNoFolder(root);
    return reason.isEmpty() ? QString() : root + ": " + reason;
}

QString textOf(const Difference& difference)
{
    const QString place = difference.path.isEmpty() ? difference.file : difference.file + ": " + difference.path;
    switch (difference.change) {
    case Difference::Change::Added:
        return "+ " + place;
    case Difference::Change::Removed:
        return "- " + place;
    case Difference::Change::Changed:
        break;
    }
    return QString("~ %1 %2: \"%3\" -> \"%4\"").arg(place, difference.attribute, difference.before, difference.after);
}

QJsonObject jsonOf(const Difference& difference)
{
    static const char* const names[] = {"added", "removed", "changed"};
    QJsonObject object{{"change", names[int(difference.change)]}, {"file", difference.file}, {"path", difference.path}};
    if (difference.change == Difference::Change::Changed) {
        object.insert("attribute", difference.attribute);
        object.insert("before", difference.before);
        object.insert("after", difference.after);
    }
    return object;
}

/// The column of a place that names only a line: the line's last.
constexpr int COLUMN_OF_LINE = std::numeric_limits<int>::max();

/// The element at a place: the innermost one whose text the place lies in; -1 before the first.
int elementAt(const Source& source, int line, int column)
{
    const auto isBefore = [&](const Place& place) {
        return place.line < line || (place.line == line && place.column <= column);
    };
    int at = -1;
    for (int index = 0; index < int(source.elements().size()); ++index)
        if (isBefore(source.place(source.elements()[std::size_t(index)]))) at = index;
    const auto isOver = [&](const Source::Element& element) {
        const Source::Span end = element.selfClosed || element.endTag.isEmpty()
                                     ? Source::Span{element.end, element.end}
                                     : Source::Span{element.endTag.end, element.endTag.end};
        const Place place = source.place(end);
        return place.line < line || (place.line == line && column != COLUMN_OF_LINE && place.column <= column);
    };
    while (at > 0 && isOver(source.elements()[std::size_t(at)])) at = source.elements()[std::size_t(at)].parent;
    return at;
}

QString originOf(const HeardAttribute& attribute)
{
    if (!attribute.present) return QStringLiteral("the default, since it is absent");
    return attribute.good ? QStringLiteral("the file") : QStringLiteral("no number, so it is stored as 0");
}

void tellAttributes(const HeardFile& file, int index, Console& console)
{
    const HeardElement& element = file.elements[std::size_t(index)];
    for (const HeardAttribute& attribute : element.attributes)
        console.out.line(QString("  %1 = \"%2\"  (%3)")
                             .arg(attribute.name.isEmpty() ? QStringLiteral("(text)") : attribute.name,
                                  storedValue(file, index, attribute), originOf(attribute)));
    const Source::Element& written = file.source.elements()[std::size_t(index)];
    for (const Source::Attribute& attribute : file.source.attributes(written)) {
        const QString name = file.source.slice(attribute.name).toString();
        if (element.attribute(name.section(':', -1)) == nullptr) console.out.line("  " + name + " is ignored");
    }
}

void tellReference(const ReferenceElement& shown, Console& console)
{
    console.out.heading("Reference");
    for (const QString& sentence : {shown.meaning, shown.count, shown.absence, shown.note})
        if (!sentence.isEmpty()) console.out.line("  " + sentence);
    for (const ReferenceAttribute& attribute : shown.attributes)
        console.out.line(QString("  %1: %2, else \"%3\". %4")
                             .arg(attribute.name, attribute.kind, attribute.readDefault, attribute.meanings.join(' ')));
}

void tellPlace(const HeardFile& file, FileKind kind, int line, int column, Console& console)
{
    const int index = elementAt(file.source, line, column);
    if (index < 0) return console.out.line("No element stands here.");
    const Place place = file.source.place(file.source.elements()[std::size_t(index)]);
    console.out.line(QString("%1:%2:%3: %4").arg(file.path).arg(place.line).arg(place.column).arg(file.pathOf(index)));
    if (!file.elements[std::size_t(index)].found)
        console.out.line("  Nobody reads this element.");
    else
        tellAttributes(file, index, console);
    if (const Element* const element = grammarOf(kind).at(file.pathOf(index)))
        tellReference(referenceOf(*element), console);
}

QString originOf(const Setting& setting)
{
    if (!setting.present) return QStringLiteral("the default, since it is absent");
    if (setting.good) return QStringLiteral("the file");
    return setting.kind == reading::Kind::Text ? QStringLiteral("a list, so it reads as an empty text")
                                               : QStringLiteral("no number, so it reads as 0");
}

/// The section that a line belongs to, without entries that are absent and counted, and those of its entries that
/// nobody reads.
void tellSection(const QByteArray& text, const IniSource& source, const IniSection& section, Console& console)
{
    QStringList read;
    for (const Setting& setting : inSection(settingsOf(text), section.name)) {
        read.append(setting.key);
        if (setting.present || !setting.isCounted())
            console.out.line(QString("  %1 = \"%2\"  (%3)").arg(setting.name(), setting.value, originOf(setting)));
    }
    for (const IniEntry& entry : source.entries)
        if (entry.key.section('/', 0, 0) == section.name && !read.contains(entry.key))
            console.out.line("  " + entry.key.section('/', 1).replace('/', '\\') + " is ignored");
    if (const ReferenceElement shown = referenceOfSection(section.name); !shown.attributes.empty())
        tellReference(shown, console);
}

int tellSettingsAt(const QString& path, int line, Console& console)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return complain(console, path + ": " + file.errorString());
    const QByteArray text = file.readAll();
    const IniSource source = IniSource::read(text);
    const auto behind = std::find_if(source.sections.begin(), source.sections.end(),
                                     [line](const IniSection& section) { return section.place.line > line; });
    if (behind == source.sections.begin()) {
        console.out.line("No section stands here.");
        return Good;
    }
    const IniSection& section = *std::prev(behind);
    console.out.line(
        QString("%1:%2:%3: [%4]").arg(path).arg(section.place.line).arg(section.place.column).arg(section.name));
    tellSection(text, source, section, console);
    return Good;
}

} // namespace

int runEffective(const Options& options, Console& console)
{
    if (const QString why = whyNoRoot(options.subject); !why.isEmpty()) return complain(console, why);
    const std::vector<TakenFile> files = takenFrom(options.subject);
    if (options.formatName == "json")
        console.out.write(writeTakenJson(options.subject, files));
    else
        console.out.write(writeTakenXml(options.subject, files).toUtf8());
    return Good;
}

int runDiff(const Options& options, Console& console)
{
    if (options.paths.size() != 1) return complain(console, "--diff takes two roots");
    for (const QString& root : {options.subject, options.paths.first()})
        if (const QString why = whyNoRoot(root); !why.isEmpty()) return complain(console, why);
    const std::vector<Difference> found = differences(takenFrom(options.subject), takenFrom(options.paths.first()));
    if (options.formatName == "json") {
        QJsonArray all;
        for (const Difference& difference : found) all.append(jsonOf(difference));
        console.out.write(QJsonDocument(QJsonObject{{"differences", all}}).toJson());
    } else {
        for (const Difference& difference : found) console.out.line(textOf(difference));
    }
    return found.empty() ? Good : Failed;
}

int runAt(const Options& options, Console& console)
{
    static const QRegularExpression form("^(.+?):(\\d+)(?::(\\d+))?$");
    const QRegularExpressionMatch match = form.match(options.subject);
    if (!match.hasMatch()) return complain(console, "--at needs FILE:LINE or FILE:LINE:COLUMN");
    const QString path = match.captured(1);
    const std::optional<Source> source = Source::readFile(path);
    if (!source) return complain(console, path + ": " + lcdcommon::whyNoFile(path));
    const std::vector<FileKind> placed = kindsByPlace(path);
    if (placed == std::vector{FileKind::Settings}) return tellSettingsAt(path, match.captured(2).toInt(), console);
    const std::optional<FileKind> kind = placed.size() == 1 ? placed.front() : kindByContent(*source);
    if (!kind) return complain(console, path + ": neither place, name nor content tell what kind of file it is");
    GrammarVocabulary vocabulary;
    vocabulary.setKind(path, *kind);
    const int column = match.captured(3).isEmpty() ? COLUMN_OF_LINE : match.captured(3).toInt();
    Hearing hearing([&](HeardFile& file) { tellPlace(file, *kind, match.captured(2).toInt(), column, console); },
                    &vocabulary);
    hearing.readInstead(path);
    drive(*kind, hearing);
    hearing.finish();
    return Good;
}

} // namespace lcdcheck
