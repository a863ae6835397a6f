// The commands of the program. Each reads what it needs, and writes what a person wants to know.
#ifndef LCDHOST_COMMANDS_H
#define LCDHOST_COMMANDS_H

#include "lcdhost_session.h"
#include "lcdhost_text.h"

#include <optional>

namespace lcdhost {

struct Options {
    int card = 0;
    int position = 0;
    std::optional<int> interfaceMask; ///< Without it, the connector's own interface type.
    bool json = false;
    bool svg = false;
    bool userSettings = false;
};

/// Where a command writes: the answer to `out`, what stands in its way to `complaints`.
struct Console {
    Page out{stdout};
    Page complaints{stderr};
};

// False when the question has no answer. Problems of the load are the caller's to tell.
bool runLoad(Session& session, const Options& options, Console& console);
bool runCards(Session& session, const Options& options, Console& console);
bool runResolutions(Session& session, const Options& options, Console& console);
bool runScreens(Session& session, const Options& options, Console& console);
/// The layouts of all screens below one another, as one SVG document.
QByteArray screensDrawing(const Session& session);
bool runMenu(Session& session, const Options& options, Console& console);
bool runSettings(Session& session, const Options& options, Console& console);

/// How many single values the factory settings have.
int countSettings();

} // namespace lcdhost

#endif
