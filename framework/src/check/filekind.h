// The kinds of file that a configuration is made of, and what each is called.
#ifndef LCDCHECK_FILEKIND_H
#define LCDCHECK_FILEKIND_H

#include <QString>
#include <QStringList>

#include <span>
#include <vector>

namespace lcdcheck {

enum class FileKind {
    Feature,
    Slot,
    Silk,
    Screen,
    Layer,
    Card,
    Connector,
    Resolution,
    Menu,
    FunctionKeys,
    KeyCheck,
    LockArea,
    Settings, ///< The ini file; all others are XML, and have a grammar.
};

struct FileKindInfo {
    FileKind kind;
    const char* name;    ///< As the command line takes it, for example "fnbutton".
    const char* title;   ///< What a person calls such a file, for example "Function keys".
    const char* place;   ///< Where it stands below the root of a configuration.
    const char* summary; ///< One sentence: what it tells.
    /// Of kinds that share a reader, which tells them apart by the root's first child: the tag of that child.
    const char* content = nullptr;
};

/// All kinds, in the order of a configuration's load.
const std::vector<FileKindInfo>& fileKinds();
/// Those that have a grammar.
std::span<const FileKindInfo> xmlKinds();
/// As the command line takes them.
QStringList fileKindNames();
const FileKindInfo& infoOf(FileKind kind);
/// The kind of that name; null when there is none.
const FileKindInfo* fileKindNamed(const QString& name);

} // namespace lcdcheck

#endif
