// The command line: what it may hold, and what one asks for.
#ifndef LCDHOST_REQUEST_H
#define LCDHOST_REQUEST_H

#include "lcdhost_commands.h"

namespace lcdhost {

struct Command {
    QString name;
    QString summary;
    QStringList options; ///< Beside those that every command takes.
    Answer (*run)(Session&, const Options&);
};

/// What a command line asks for: a command, a text to be shown, or neither because it is wrong.
struct Request {
    const Command* command = nullptr;
    QString root;
    QString plugin;
    QString language;
    Options options;
    QString shown; ///< The help or the version, where it is asked for.
    QString wrong; ///< Why nothing can be done; empty when something can.
};

/// Reads the words behind the program's name. `options.json` is told also where the rest is wrong.
Request readCommandLine(const QStringList& arguments);

} // namespace lcdhost

#endif
