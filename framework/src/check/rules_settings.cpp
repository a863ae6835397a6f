// The entries of an ini file against what the getters asked for.
#include "rules_settings.h"

#include "common/nearest.h"
#include "rules.h"

#include <QRegularExpression>

#include <set>

namespace lcdcheck {
namespace {

const QRegularExpression& rowOfArray()
{
    static const QRegularExpression row("/[0-9]+/");
    return row;
}

/// The key under which an entry is asked for: rows of an array are all alike.
QString pattern(QString key)
{
    while (key.startsWith('/')) key.remove(0, 1);
    return key.replace(rowOfArray(), "/1/");
}

/// What a getter makes of a whole number that its type can't hold; empty for any other text.
QString storedOf(const IniEntry& entry)
{
    bool isNumber = false;
    const qlonglong number = entry.value.toLongLong(&isNumber);
    return isNumber && number != int(number) ? QString::number(int(number)) : QString();
}

/// Every getter once, and those that take an argument for each one that may be in the file.
void askAll(LCD::MainConfig::ILcdConfig& settings, const std::set<int>& numbers)
{
    settings.getReturnToHomeTime();
    settings.getUserModeSettingValue();
    settings.getDevLockStatusValue();
    settings.getLightOnSupportValue();
    settings.getLanguage();
    settings.getDefaultLanguage();
    settings.getLightBreathSupportValue();
    settings.getLightColorValue();
    settings.getAspectRatioValue();
    settings.getKeySamplingTime();
    settings.getKeySenderIp();
    settings.getUISupportPartition();
    settings.getTitleSupportCenter();
    settings.getHttpPort();
    settings.getWebSocketPort();
    settings.getSupprotMenuHide();
    settings.getPlaySupportConnectorType();
    settings.getInputListNoSupportConnectorType();
    settings.getSupprotLSourceCapacityDisplay();
    settings.getScreenWidth();
    settings.getDeviceRelativePath();
    settings.getCompanyMailDefault();
    settings.getCompanyAddressDefault();
    settings.getSwitchBackGround();
    settings.getSupportAssess();
    settings.getSupportUpgradeWaitDlg();
    settings.getSupportScale();
    settings.getDomesticDevice();
    settings.getSupportUsbKeyboard();
    settings.getOffLightColorValue();
    constexpr int MOST_BUTTONS = 256;
    for (int button = 0; button < MOST_BUTTONS; ++button) settings.getFnSettingValue(button);
    settings.getPgmEditStatus();
    // A row's further entries are read where its first one is what is asked for.
    for (const int number : numbers) {
        settings.getCurrentPgmEditStatus(number);
        settings.isSourceTypeUseGeneralName(number, -1);
    }
}

} // namespace

void HeardSettings::settingAsked(const QString& key, const reading::Asked& asked)
{
    QString& kind = _known[pattern(key)];
    kind = asked.kind == reading::Kind::Int ? "number" : "text";
    if (asked.present && !asked.good) _bad.insert(key.startsWith('/') ? key.mid(1) : key);
}

void HeardSettings::ask(LCD::MainConfig::ILcdConfig& settings, const IniSource& source)
{
    std::set<int> numbers{-1};
    for (const IniEntry& entry : source.entries) numbers.insert(entry.value.toInt());
    const reading::Listening listening(*this);
    askAll(settings, numbers);
}

void HeardSettings::judge(const QString& path, const IniSource& source, Findings& findings) const
{
    const auto add = [&](const char* id, const Place& place, const QString& key, const QString& message) -> Finding& {
        Finding finding;
        finding.kind = kindOf(id);
        finding.file = path;
        finding.place = place;
        finding.element = key;
        finding.message = message;
        findings.push_back(std::move(finding));
        return findings.back();
    };
    for (const Place& fault : source.faults)
        add("not-well-formed", fault, {}, "this line is neither an entry nor a section").cost = "it is ignored";
    if (source.entries.empty() && source.faults.empty())
        add("missing-file", {}, {}, "holds no entry").cost = "every setting reads as 0 or empty";
    QHash<QString, int> lines;
    for (const IniEntry& entry : source.entries) {
        if (const int line = lines.value(entry.key); line != 0)
            add("duplicate-attribute", entry.place, entry.key,
                QString("%1 stands on line %2 already; the last one counts").arg(quoted(entry.key)).arg(line));
        lines.insert(entry.key, entry.place.line);
        const QString stored = storedOf(entry);
        // The rows of an array whose size is no number are not asked for.
        if (const int row = entry.key.indexOf(rowOfArray()); row >= 0 && _bad.contains(entry.key.left(row) + "/size"))
            continue;
        if (!_known.contains(pattern(entry.key))) {
            Finding& finding =
                add("unknown-key", entry.place, entry.key, QString("nobody reads %1").arg(quoted(entry.key)));
            finding.hint = didYouMean(entry.key, _known.keys());
        } else if (_bad.contains(entry.key)) {
            const bool text = _known.value(pattern(entry.key)) == "text";
            Finding& finding = add(
                "not-a-number", entry.place, entry.key,
                text ? QString("%1 is a list, where a text is wanted").arg(entry.value)
                     : QString("%1 wants a whole number, and %2 is none").arg(quoted(entry.key), quoted(entry.value)));
            finding.cost = text ? "an empty text is read" : "0 is read";
            if (text) finding.hint = "put quotes around a text with a comma";
        } else if (_known.value(pattern(entry.key)) == "number" && !stored.isEmpty()) {
            add("not-a-number", entry.place, entry.key,
                QString("%1 wants a whole number, and %2 is too large").arg(quoted(entry.key), quoted(entry.value)))
                .cost = QString("%1 is read").arg(stored);
        }
    }
}

} // namespace lcdcheck
