// Drops what is logged while it lives: what readers say to the panel's log, the checker tells in another way.
#ifndef LCDCHECK_QUIET_H
#define LCDCHECK_QUIET_H

#include <QtGlobal>

namespace lcdcheck {

class Quiet {
public:
    Quiet() : _before(qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {})) {}
    ~Quiet() { qInstallMessageHandler(_before); }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

private:
    QtMessageHandler _before;
};

} // namespace lcdcheck

#endif
