// The commands of the program. Each reads what it needs, and answers what one wants to know.
#ifndef LCDHOST_COMMANDS_H
#define LCDHOST_COMMANDS_H

#include "lcdhost_answer.h"
#include "lcdhost_session.h"

#include <optional>

namespace lcdhost {

struct Options {
    int card = 0;
    int position = 0;
    std::optional<int> interfaceMask; ///< Without it, the connector's own interface type.
    bool json = false;
    bool svg = false;
    bool userSettings = false;
    QString device; ///< The device to be shown, by the name of its folder or its own; empty for the first.
};

// Problems of the load are the caller's to tell.
Answer runLoad(Session& session, const Options& options);
Answer runCards(Session& session, const Options& options);
Answer runResolutions(Session& session, const Options& options);
Answer runScreens(Session& session, const Options& options);
Answer runMenu(Session& session, const Options& options);
Answer runSettings(Session& session, const Options& options);

/// The layouts of all screens of the devices below one another, as one SVG document.
QByteArray screensDrawing(const Session& session, const QList<Lcd::s_Device>& devices);

} // namespace lcdhost

#endif
