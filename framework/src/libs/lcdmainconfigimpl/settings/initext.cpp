#include "initext.h"

#include "filedescriptor.h"

#include <algorithm>
#include <atomic>
#include <sys/mman.h>
#include <sys/stat.h>

#include <QDataStream>
#include <QFileInfo>
#include <QStringList>

namespace LCD::MainConfigImpl {

namespace {

bool isBetween(char16_t letter, char16_t first, char16_t last) { return letter >= first && letter <= last; }

QByteArray escapedKey(const QString& key)
{
    QByteArray escaped;
    for (const QChar character : key) {
        const char16_t letter = character.unicode();
        const bool isPlain = isBetween(letter, 'a', 'z') || isBetween(letter, 'A', 'Z') ||
                             isBetween(letter, '0', '9') || letter == '_' || letter == '-' || letter == '.';
        if (letter == '/')
            escaped += '\\';
        else if (isPlain)
            escaped += char(letter);
        else
            escaped += (letter > 0xff ? "%U" : "%") +
                       QByteArray::number(letter, 16).toUpper().rightJustified(letter > 0xff ? 4 : 2, '0');
    }
    return escaped;
}

/// The letter that stands behind a backslash for this one; 0: none does.
char escapeLetter(char16_t letter)
{
    switch (letter) {
    case '\0':
        return '0';
    case '\a':
        return 'a';
    case '\b':
        return 'b';
    case '\f':
        return 'f';
    case '\n':
        return 'n';
    case '\r':
        return 'r';
    case '\t':
        return 't';
    case '\v':
        return 'v';
    case '"':
    case '\\':
        return char(letter);
    default:
        return 0;
    }
}

QByteArray escapedText(const QString& text)
{
    QByteArray escaped;
    bool needsQuotes = text.startsWith(' ') || text.endsWith(' ');
    // A digit behind a hexadecimal number would be read as a part of it.
    bool isBehindNumber = false;
    for (const QChar character : text) {
        const char16_t letter = character.unicode();
        const bool isDigit = isBetween(letter, '0', '9') || isBetween(letter, 'a', 'f') || isBetween(letter, 'A', 'F');
        needsQuotes = needsQuotes || letter == ';' || letter == ',' || letter == '=';
        if (const char behindBackslash = escapeLetter(letter)) {
            escaped += '\\';
            escaped += behindBackslash;
            isBehindNumber = letter == '\0';
        } else if (letter < ' ' || letter >= 0x7f || (isBehindNumber && isDigit)) {
            escaped += "\\x" + QByteArray::number(letter, 16);
            isBehindNumber = true;
        } else {
            escaped += char(letter);
            isBehindNumber = false;
        }
    }
    return needsQuotes ? '"' + escaped + '"' : escaped;
}

/// With its zero bytes.
QString latin1(const QByteArray& bytes) { return QString::fromLatin1(bytes.constData(), bytes.size()); }

QString textOf(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        return "@Invalid()";
    case QMetaType::QByteArray:
        return "@ByteArray(" + latin1(value.toByteArray()) + ')';
    case QMetaType::Int:
    case QMetaType::QString: {
        const QString text = value.toString();
        if (text.contains(QChar(0))) return "@String(" + text + ')';
        return text.startsWith('@') ? '@' + text : text;
    }
    default:
        break;
    }
    const bool isDateTime = value.userType() == QMetaType::QDateTime;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(isDateTime ? QDataStream::Qt_5_6 : QDataStream::Qt_4_0);
    stream << value;
    return (isDateTime ? "@DateTime(" : "@Variant(") + latin1(bytes) + ')';
}

QByteArray escapedValue(const QVariant& value)
{
    const bool isList = value.userType() == QMetaType::QStringList || value.userType() == QMetaType::QVariantList;
    if (!isList) return escapedText(textOf(value));
    const QVariantList list = value.toList();
    if (list.isEmpty()) return "@Invalid()";
    QByteArrayList escaped;
    for (const QVariant& item : list) escaped += escapedText(textOf(item));
    return escaped.join(", ");
}

QByteArray sectionLine(const QString& section)
{
    if (section.isEmpty()) return "[General]\n";
    const QByteArray escaped = escapedKey(section);
    return (escaped.toLower() == "general" ? "[%General" : '[' + escaped) + "]\n";
}

/// QSettings takes a failed read for an empty file.
bool hasEntry(const QByteArray& text)
{
    const QByteArrayList lines = text.split('\n');
    return std::any_of(lines.begin(), lines.end(),
                       [](const QByteArray& line) { return !line.trimmed().startsWith(';') && line.contains('='); });
}

} // namespace

QByteArray iniText(const IniEntries& entries)
{
    // The order of whole keys is not that of sections and their entries.
    QMap<QString, QMap<QString, QByteArray>> sections;
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        const int slash = entry.key().indexOf('/');
        sections[entry.key().left(qMax(0, slash))][entry.key().mid(slash + 1)] = escapedValue(entry.value());
    }
    QByteArray text;
    for (auto section = sections.begin(); section != sections.end(); ++section) {
        text += (text.isEmpty() ? "" : "\n") + sectionLine(section.key());
        for (auto entry = section->begin(); entry != section->end(); ++entry)
            text += escapedKey(entry.key()) + '=' + entry.value() + '\n';
    }
    return text;
}

std::unique_ptr<const QSettings> readIniText(const QByteArray& text)
{
    // QSettings reads what has a name. It also remembers, by name, length and time, what it has read before, so that a
    // time must never come twice.
    static std::atomic<time_t> times = 0;
    const time_t time = ++times;
    const timespec both[2] = {{time, 0}, {time, 0}};
    const FileDescriptor memory(memfd_create("lcdsetting.ini", MFD_CLOEXEC));
    const QString name = QStringLiteral("/proc/self/fd/%1").arg(memory.get());
    if (!memory.write(text) || futimens(memory.get(), both) != 0 || !QFileInfo(name).isReadable()) return nullptr;
    auto settings = std::make_unique<QSettings>(name, QSettings::IniFormat);
    // Each section is read when it is first asked for, and its faults are told then.
    const bool isEmpty = settings->allKeys().isEmpty();
    const bool isUnread = isEmpty && settings->status() == QSettings::NoError && hasEntry(text);
    if (settings->status() == QSettings::AccessError || isUnread) return nullptr;
    return settings;
}

} // namespace LCD::MainConfigImpl
