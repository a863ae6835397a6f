// Has the library's readers read one document of one kind, held in memory. They are the components' own, reached as a
// host reaches them; a component that asks for another one finds it with just enough in it.
#ifndef LCDCHECK_DRIVE_H
#define LCDCHECK_DRIVE_H

#include "filekind.h"
#include "reading/listener.h"

namespace lcdcheck {

/// A listener that puts its own document in the place of the file.
class Feeder : public LCD::MainConfigImpl::reading::Listener {
public:
    explicit Feeder(const QDomDocument& document) : fed(document) {}

    bool refused(const QString& path, const LCD::MainConfigImpl::reading::Frame& frame,
                 LCD::MainConfigImpl::reading::Refusal why, const LCD::MainConfigImpl::reading::ParseFailure& failure,
                 QDomDocument& document) override;

    QDomDocument fed;
};

/// Reads what the feeder holds; nobody else may listen meanwhile. What the readers log is dropped. False when they make
/// nothing of it.
bool drive(FileKind kind, Feeder& feeder);

} // namespace lcdcheck

#endif
