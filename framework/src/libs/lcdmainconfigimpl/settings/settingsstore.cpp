#include "settingsstore.h"

#include <cstdlib>

#include <QDebug>
#include <QFileInfo>

namespace LCD::MainConfigImpl {

void linuxSync() { [[maybe_unused]] const int ignored = std::system("sync"); }

void SettingsStore::open(const QString& path)
{
    const std::lock_guard lock(_mutex);
    const QString file = QFileInfo(path).absoluteFilePath();
    for (const IniFile::Pointer& opened : _opened)
        if (opened->fileName() == file) {
            // A second QSettings on the file would write what is pending, room or not.
            opened->write();
            _setting = opened.get();
            return;
        }
    _setting = _opened.emplace_back(new IniFile(path, _mutex)).get();
}

bool SettingsStore::isOpenOrWarn() const
{
    if (!_setting) qWarning() << "_setting is nullptr";
    return _setting;
}

int SettingsStore::number(const QString& key, int noStore) const
{
    return read(noStore, [&](const QSettings& setting) { return setting.value(key).toInt(); });
}

QString SettingsStore::text(const QString& key, const char* noStore) const
{
    const std::lock_guard lock(_mutex);
    return textUnlocked(key, noStore);
}

QString SettingsStore::textUnlocked(const QString& key, const char* noStore) const
{
    const QSettings* const setting = _setting;
    return setting ? setting->value(key).toString() : QString(noStore);
}

QStringList SettingsStore::seeded(std::initializer_list<Seed> entries) const
{
    QStringList texts;
    int written = 0;
    {
        const std::lock_guard lock(_mutex);
        IniFile* const setting = _setting;
        for (const Seed& entry : entries) {
            const QString text = setting ? setting->value(entry.key).toString() : QString();
            texts.append(text.isEmpty() ? entry.text : text);
            if (!setting || !text.isEmpty()) continue;
            setting->setValue(entry.key, entry.text);
            ++written;
        }
        if (written > 0) setting->write();
    }
    while (written-- > 0) linuxSync();
    return texts;
}

void SettingsStore::set(const QString& key, const QVariant& value)
{
    if (change([&](QSettings& setting) { setting.setValue(key, value); })) linuxSync();
}

void SettingsStore::setNow(const QString& key, const QVariant& value)
{
    const auto use = [&](IniFile& setting) {
        setting.setValue(key, value);
        setting.write();
    };
    if (change(use)) linuxSync();
}

} // namespace LCD::MainConfigImpl
