// Tries one input on everything that reads such files. Whatever is wrong ends the process: a crash by itself, and a
// disagreement between two ways that must give the same by abort().
#ifndef FUZZ_TRY_H
#define FUZZ_TRY_H

#include "check/filekind.h"

#include <QByteArray>

#include <optional>

namespace fuzz {

/// An input is one line that names a kind of file, and below it what stands in the file.
struct Input {
    QByteArray name;
    QByteArray content;

    explicit Input(const QByteArray& bytes);
    [[nodiscard]] QByteArray bytes() const { return name + '\n' + content; }
    /// Nothing for the two files of settings and for a name that there is not.
    [[nodiscard]] std::optional<lcdcheck::FileKind> kind() const;
};

inline constexpr char FACTORY_SETTINGS[] = "settings";
inline constexpr char USER_SETTINGS[] = "usersettings";

/// What looks at the whole configuration costs most of the time, and can be left out.
enum class Scope { File, Configuration };

/// Has all readers, queries and the checker try the input. One of no known kind is passed over.
void tryInput(const Input& input, Scope scope = Scope::Configuration);

/// The two ways differ.
[[noreturn]] void disagree(const char* what, const QByteArray& one, const QByteArray& other);

void tryDocument(lcdcheck::FileKind kind, const QByteArray& content, Scope scope);
void trySettings(bool user, const QByteArray& content);

/// The folder of a small configuration, whose file of one kind is exchanged for another one; an empty path stands for
/// the file of settings. In memory, where the system offers that.
class Stage {
public:
    static const QString& root();
    /// The path below the root.
    static QString path(std::optional<lcdcheck::FileKind> kind);
    Stage(const QString& file, const QByteArray& content);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

private:
    QString _file;
    std::optional<QByteArray> _before;
};

} // namespace fuzz

#endif
