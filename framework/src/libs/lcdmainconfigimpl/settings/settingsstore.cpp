#include "settingsstore.h"

#include "heardsetting.h"

#include <algorithm>
#include <cstdlib>

#include <QDebug>

namespace LCD::MainConfigImpl {

void linuxSync() { [[maybe_unused]] const int ignored = std::system("sync"); }

int boundedFnButtons(int count)
{
    constexpr int most = 256;
    if (count > most) qWarning() << "Only the first" << most << "of" << count << "function buttons are set";
    return std::min(count, most);
}

void SettingsStore::open(const QString& path)
{
    if (reading::Listener::current() != nullptr) reading::Listener::current()->settingsOpened(path);
    const std::lock_guard lock(_mutex);
    IniFile::Pointer file = IniFile::open(path);
    _setting = file.get();
    const auto isOpen = [&](const IniFile::Pointer& opened) { return opened == file; };
    if (std::none_of(_opened.begin(), _opened.end(), isOpen)) _opened.push_back(std::move(file));
}

IniFile* SettingsStore::setting() const
{
    IniFile* const opened = _setting;
    if (opened) opened->refresh();
    return opened;
}

IniFile* SettingsStore::settingOrWarn() const
{
    IniFile* const opened = setting();
    if (!opened) qWarning() << "_setting is nullptr";
    return opened;
}

int SettingsStore::number(const QString& key, int noStore) const { return numbers({{key, noStore}}).front(); }

std::vector<int> SettingsStore::numbers(std::initializer_list<Number> entries) const
{
    const std::lock_guard lock(_mutex);
    const IniFile* const opened = setting();
    std::vector<int> numbers;
    for (const Number& entry : entries)
        numbers.push_back(opened ? settingNumber(entry.key, opened->value(entry.key, entry.noStore)) : entry.noStore);
    return numbers;
}

QString SettingsStore::text(const QString& key, const char* noStore) const
{
    const std::lock_guard lock(_mutex);
    return textUnlocked(key, noStore);
}

QString SettingsStore::textUnlocked(const QString& key, const char* noStore) const
{
    const IniFile* const opened = setting();
    return opened ? settingText(key, opened->value(key, noStore)) : QString(noStore);
}

QStringList SettingsStore::seeded(std::initializer_list<Seed> entries) const
{
    QStringList texts;
    int written = 0;
    IniFile* opened = nullptr;
    {
        const std::lock_guard lock(_mutex);
        opened = setting();
        for (const Seed& entry : entries) {
            const QString text = opened ? settingText(entry.key, opened->value(entry.key)) : QString();
            texts.append(text.isEmpty() ? entry.text : text);
            // Who does not know the file can't know that the entry is empty.
            if (!opened || !opened->isKnown() || !text.isEmpty()) continue;
            opened->setValue(entry.key, entry.text);
            ++written;
        }
    }
    if (written > 0) opened->write();
    while (written-- > 0) linuxSync();
    return texts;
}

void SettingsStore::set(const QString& key, const QVariant& value)
{
    if (change([&](IniFile& setting) { setting.setValue(key, value); })) linuxSync();
}

void SettingsStore::setAndWrite(const QString& key, const QVariant& value)
{
    if (changeAndWrite([&](IniFile& setting) { setting.setValue(key, value); })) linuxSync();
}

} // namespace LCD::MainConfigImpl
