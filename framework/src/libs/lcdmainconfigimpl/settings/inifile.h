// QSettings on an ini file, without its two ways to lose a value. It writes late, from its thread's event loop and from
// its destructor, without the lock of those who set values; and it takes a write cut short by a full storage for a good
// one, and so replaces the file with its own head.
#ifndef LCDMAINCONFIGIMPL_SETTINGS_INIFILE_H
#define LCDMAINCONFIGIMPL_SETTINGS_INIFILE_H

#include <memory>
#include <mutex>

#include <QBasicTimer>
#include <QSettings>
#include <QString>

namespace LCD::MainConfigImpl {

class IniFile final : public QSettings {
public:
    /// The mutex is the one under which values are set.
    IniFile(const QString& path, std::mutex& mutex);

    /// Writes what is pending. False: there is no room for it; it stays pending and the file as it is.
    bool write();

    struct Closer {
        void operator()(IniFile* file) const;
    };
    using Pointer = std::unique_ptr<IniFile, Closer>;

protected:
    bool event(QEvent* event) override;

private:
    [[nodiscard]] bool hasRoom() const;

    std::mutex& _mutex;
    QBasicTimer _retry;
};

} // namespace LCD::MainConfigImpl

#endif
