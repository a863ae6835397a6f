#include "settingsfile.h"

#include "lcdconfig.h"
#include "quiet.h"
#include "settings/initext.h"

#include <QFile>
#include <QHash>
#include <QTemporaryDir>

#include <cstring>
#include <functional>
#include <limits>
#include <set>

namespace lcdcheck {

using LCD::MainConfig::ILcdConfig;

/// A getter of the factory settings, as the public header has it.
struct SettingGetter {
    const char* name;
    const char* argument; ///< The name of the first one; empty: there is none.
    const char* meaning;
    std::function<void(ILcdConfig&, int)> ask;

    [[nodiscard]] bool countsButtons() const { return std::strcmp(argument, "index") == 0; }
};

namespace {

template <class Result> auto asking(Result (ILcdConfig::*getter)())
{
    return [getter](ILcdConfig& settings, int /*argument*/) { (settings.*getter)(); };
}

template <class Result> auto asking(Result (ILcdConfig::*getter)(int))
{
    return [getter](ILcdConfig& settings, int argument) { (settings.*getter)(argument); };
}

/// A row's further entries are read where its first one is what is asked for, and the search ends where all are.
template <class Result> auto asking(Result (ILcdConfig::*getter)(int, int))
{
    return
        [getter](ILcdConfig& settings, int argument) { (settings.*getter)(argument, std::numeric_limits<int>::min()); };
}

const std::vector<SettingGetter>& getters()
{
    static const std::vector<SettingGetter> all{
#include "getters.inc"
    };
    return all;
}

using Entries = LCD::MainConfigImpl::IniEntries;

Entries entriesOf(const QByteArray& text)
{
    Entries entries;
    if (const auto stored = LCD::MainConfigImpl::readIniText(text))
        for (const QString& key : stored->allKeys()) entries.insert(key, stored->value(key));
    return entries;
}

/// Calls the getters, and hears what they ask for.
class SettingsHearing final : public reading::Listener {
public:
    SettingsHearing(const QByteArray& text, int buttons) : _entries(entriesOf(text)), _buttons(buttons)
    {
        for (const QVariant& value : qAsConst(_entries)) _numbers.insert(value.toInt());
        const QTemporaryDir folder;
        QFile file(folder.filePath("lcdsetting.ini"));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
            qFatal("cannot write to the temporary folder %s", qUtf8Printable(folder.path()));
        const Quiet quiet;
        LCD::MainConfigImpl::LcdConfig settings;
        settings.readConfig(folder.path());
        const reading::Listening listening(*this);
        for (const SettingGetter& getter : getters()) askAll(settings, getter);
    }

    void settingAsked(const QString& asked, const reading::Asked& answer) override
    {
        const QString key = asked.startsWith('/') ? asked.mid(1) : asked;
        if (!_places.contains(key)) {
            _places.insert(key, heard.size());
            const QVariant value = _entries.value(key);
            const QString taken = answer.kind == reading::Kind::Int ? QString::number(value.toInt()) : value.toString();
            heard.push_back({key,
                             answer.kind,
                             answer.readDefault,
                             answer.present,
                             answer.good,
                             answer.present ? taken : answer.readDefault,
                             {}});
        }
        auto& askers = heard[_places.value(key)].getters;
        if (askers.empty() || askers.back() != _getter) askers.push_back(_getter);
    }

    std::vector<Setting> heard;

private:
    /// Once, or for each argument that may be in the file.
    void askAll(ILcdConfig& settings, const SettingGetter& getter)
    {
        _getter = &getter;
        if (getter.countsButtons())
            for (int button = 0; button < _buttons; ++button) getter.ask(settings, button);
        else if (*getter.argument)
            for (const int number : _numbers) getter.ask(settings, number);
        else
            getter.ask(settings, 0);
    }

    const Entries _entries;
    const int _buttons;
    std::set<int> _numbers{0}; ///< What an absent entry reads as, and all that are there.
    const SettingGetter* _getter = nullptr;
    QHash<QString, std::size_t> _places;
};

/// Puts in what was asked for and not found, until nothing new is asked: a row of each array, that is.
std::vector<Setting> grown()
{
    Entries entries;
    while (true) {
        std::vector<Setting> heard = SettingsHearing(LCD::MainConfigImpl::iniText(entries), 1).heard;
        const int known = entries.size();
        for (const Setting& setting : heard)
            if (setting.isSize()) entries.insert(setting.key, 1);
        if (entries.size() == known) return heard;
    }
}

} // namespace

bool Setting::isCounted() const { return getters.front()->countsButtons(); }

QStringList Setting::getterNames() const
{
    QStringList names;
    for (const SettingGetter* const getter : getters) names.append(getter->name);
    return names;
}

QString Setting::meaning() const { return QString::fromUtf8(getters.front()->meaning); }

std::vector<Setting> settingsOf(const QByteArray& text)
{
    constexpr int MOST_BUTTONS = 256;
    return SettingsHearing(text, MOST_BUTTONS).heard;
}

const std::vector<Setting>& possibleSettings()
{
    static const std::vector<Setting> all = grown();
    return all;
}

std::vector<Setting> inSection(std::vector<Setting> settings, const QString& section)
{
    std::erase_if(settings, [&](const Setting& setting) { return setting.section() != section; });
    return settings;
}

QStringList sectionsOf(const std::vector<Setting>& settings)
{
    QStringList sections;
    for (const Setting& setting : settings) sections.append(setting.section());
    sections.removeDuplicates();
    return sections;
}

} // namespace lcdcheck
