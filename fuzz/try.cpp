#include "try.h"

#include "check/skeleton.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

/// The flush of the whole system's storage is none of what is tried, and thousands of them would stop the system.
extern "C" int system(const char* /*command*/) { return 0; }

namespace fuzz {

using lcdcheck::FileKind;

Input::Input(const QByteArray& bytes)
{
    const int line = bytes.indexOf('\n');
    name = bytes.left(line < 0 ? 0 : line);
    content = bytes.mid(line + 1);
}

std::optional<FileKind> Input::kind() const
{
    const lcdcheck::FileKindInfo* const info = lcdcheck::fileKindNamed(QString::fromLatin1(name));
    if (info == nullptr) return std::nullopt;
    return info->kind;
}

void tryInput(const Input& input, Scope scope)
{
    if (const auto kind = input.kind())
        tryDocument(*kind, input.content, scope);
    else if (input.name == FACTORY_SETTINGS || input.name == USER_SETTINGS)
        trySettings(input.name == USER_SETTINGS, input.content);
}

void disagree(const char* what, const QByteArray& one, const QByteArray& other)
{
    int same = 0;
    while (same < std::min(one.size(), other.size()) && one[same] == other[same]) ++same;
    const int from = std::max(0, same - 40);
    fprintf(stderr, "%s disagree at byte %d:\n%s\n--- and ---\n%s\n", what, same, one.mid(from, 200).constData(),
            other.mid(from, 200).constData());
    abort();
}

namespace {

void write(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

} // namespace

const QString& Stage::root()
{
    static const QTemporaryDir folder(QFileInfo("/dev/shm").isWritable() ? QStringLiteral("/dev/shm/fuzz-XXXXXX")
                                                                         : QDir::temp().filePath("fuzz-XXXXXX"));
    static const QString path = [] {
        const QString unwritten = lcdcheck::writeSmallRoot(folder.path());
        if (!unwritten.isEmpty()) qFatal("cannot write %s", qUtf8Printable(unwritten));
        return folder.path();
    }();
    return path;
}

QString Stage::path(std::optional<FileKind> kind)
{
    switch (kind.value_or(FileKind::Settings)) {
    case FileKind::Feature:
        return "devices/device/feature.xml";
    case FileKind::Slot:
        return "devices/device/slot.xml";
    case FileKind::Silk:
        return "devices/device/silk.xml";
    case FileKind::Screen:
        return "devices/device/screen.xml";
    case FileKind::Layer:
        return "devices/device/layer.xml";
    case FileKind::Card:
        return "subcards/inputs/1.xml";
    case FileKind::Connector:
        return "connectors/1.xml";
    case FileKind::Resolution:
        return "connectors/resolutionratio.xml";
    case FileKind::Menu:
        return "menu/menuconfig.xml";
    case FileKind::FunctionKeys:
        return "fnbutton/fnkeyboardconfig.xml";
    case FileKind::KeyCheck:
        return "keycheck/keyboardchecklist.xml";
    case FileKind::LockArea:
        return "lockarea/lockareaconfig.xml";
    case FileKind::Settings:
        break;
    }
    return "settings/lcdsetting.ini";
}

Stage::Stage(const QString& file, const QByteArray& content) : _file(root() + '/' + file)
{
    QFile before(_file);
    if (before.open(QIODevice::ReadOnly)) _before = before.readAll();
    write(_file, content);
}

Stage::~Stage()
{
    if (_before)
        write(_file, *_before);
    else
        QFile::remove(_file);
}

} // namespace fuzz
