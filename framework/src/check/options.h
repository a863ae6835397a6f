// The command line: what the program can do (a row for each mode), and the options that say how (a row for each).
#ifndef LCDCHECK_OPTIONS_H
#define LCDCHECK_OPTIONS_H

#include "selection.h"
#include "writers.h"

#include "common/page.h"

#include <optional>

namespace lcdcheck {

enum Status { Good = 0, Failed = 1, WrongUse = 2 };

/// Where the program writes: the answer to `out`, what stands in its way to `complaints`.
struct Console {
    lcdcommon::Page out{stdout};
    lcdcommon::Page complaints{stderr};
};

struct Options {
    QString subject; ///< What stands behind the option of the mode, as the id of `--explain`.
    Request request;
    QStringList paths; ///< The files and folders of a mode that does not check.
    const Format* format = &formats().front();
    QString formatName; ///< The same of a mode that does not check; empty where none is named.
    Selection selection;
    QString html;                                       ///< File for the page of the root; empty: none is written.
    std::optional<Severity> failOn = Severity::Warning; ///< Nothing: never.
};

/// One thing that the program can do.
struct Mode {
    const char* option; ///< The option that asks for it, without "--"; empty: what is done without one.
    char letter;        ///< Its short form; 0 without one.
    const char*
        value;        ///< What stands behind the option, in brackets where it may be left out; null where nothing does.
    const char* help; ///< One line, without a full stop.
    bool checks;      ///< Takes roots and files, and the options of checking.
    int (*run)(const Options& options, Console& console);
    const char* formats = ""; ///< What --format may name in a mode that does not check, the first without it.
    const char* paths = "";   ///< What else such a mode takes, as the help page shows it.
};

/// What a command line asks for; `wrong` tells why it can't be done.
struct CommandLine {
    const Mode* mode = nullptr;
    Options options;
    QString wrong;
};

/// `arguments` without the program's name. "help" and "version" are taken even from a line that is wrong elsewhere.
CommandLine readCommandLine(const QStringList& arguments, const std::vector<Mode>& modes);

/// The help page, from the same tables.
QStringList helpPage(const std::vector<Mode>& modes);

/// ", did you mean ...?" with the nearest of the names before which `lead` is put; empty when none is near.
QString suggestion(const QString& word, const QStringList& names, const QString& lead = {});

/// The ids of all kinds of findings.
QStringList kindIds();

} // namespace lcdcheck

#endif
