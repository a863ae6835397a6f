#include "page_model.h"

#include "common/connectornames.h"
#include "common/layout.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace lcdcheck {
namespace {

using lcdcommon::plain;

/// Interface types are bits of a 16-bit number in every file format.
constexpr int INTERFACE_BITS = 16;
constexpr int HIGHEST_CAPACITY_MODE = 2;

std::vector<PageSlot> slotsByIndex(const Lcd::s_Slots& all, const QString& prefix)
{
    const std::pair<Words, const Lcd::s_SlotAttr*> classes[] = {{{"main control", "主控"}, &all.mainControlCardSlots},
                                                                {{"reserved", "预留"}, &all.reservedCardSlots},
                                                                {{"mixed", "混合"}, &all.mixCardSlots},
                                                                {{"input", "输入"}, &all.inputCardSlots},
                                                                {{"output", "输出"}, &all.outputCardSlots},
                                                                {{"multi-view", "预监"}, &all.mvrCardSlots},
                                                                {{"auxiliary", "辅助"}, &all.auxCardSlots},
                                                                {{"expansion", "扩展"}, &all.expCardSlots}};
    std::vector<PageSlot> found;
    for (const auto& [name, slotClass] : classes)
        for (const Lcd::s_Slot& slot : slotClass->slots) found.push_back({&slot, slotClass, name, {}});
    std::ranges::stable_sort(found, {}, [](const PageSlot& entry) { return entry.slot->index; });
    std::set<int> seen;
    for (PageSlot& entry : found)
        if (seen.insert(entry.slot->index).second) entry.anchor = prefix + QString("slot-%1").arg(entry.slot->index);
    return found;
}

/// The files of a device folder that the device reads as one kind, by name.
QStringList filesOfKind(const QString& folder, const QString& kind)
{
    QStringList files;
    for (const QFileInfo& file : QDir(folder).entryInfoList({"*.xml"}, QDir::Files, QDir::Name))
        if (file.fileName().contains(kind)) files.append(file.filePath());
    return files;
}

/// The records of one kind. A record does not know its file; where there are as many, the order tells.
template <class Records>
auto typesOf(const Records& records, const QStringList& files, const QString& prefix, const QString& name)
{
    std::vector<PageType<std::decay_t<decltype(*records.begin())>>> types;
    const bool sure = records.size() == files.size();
    QStringList anchors;
    for (int at = 0; at < records.size(); ++at) {
        QString anchor = prefix + name + '-' + QString::number(records[at].type);
        if (anchors.contains(anchor)) anchor += QString("-%1").arg(at + 1);
        anchors.append(anchor);
        types.push_back({&records[at], anchor, sure ? files[at] : QString()});
    }
    return types;
}

QString cleaned(const QString& path) { return QDir::cleanPath(path); }

} // namespace

const PageSlot* PageDevice::slotOf(int index) const
{
    const auto found = std::ranges::find(cardSlots, index, [](const PageSlot& entry) { return entry.slot->index; });
    return found == cardSlots.end() ? nullptr : &*found;
}

QString PageResolution::anchor() const
{
    return QString("resolution-%1x%2%3").arg(width).arg(height).arg(interlaced ? "i" : "p");
}

QString PageResolution::text() const { return QString("%1 × %2%3").arg(width).arg(height).arg(interlaced ? " i" : ""); }

PageModel::PageModel(const Loaded& loaded, const Findings& findings) : _loaded(loaded), _findings(findings)
{
    addDevices();
    addCards();
    addTypes();
    for (std::size_t at = 0; at < findings.size(); ++at) _findingsOf[subjectOf(findings[at])].push_back(at);
}

void PageModel::addDevices()
{
    if (_loaded.devices == nullptr) return;
    const QStringList folders = lcdcommon::deviceFolders(_loaded.root);
    const QList<Lcd::s_Device>& devices = _loaded.devices->DeviceConfigs();
    for (int at = 0; at < devices.size(); ++at) {
        PageDevice entry;
        entry.device = &devices[at];
        entry.prefix = at == 0 ? QString() : QString("device%1-").arg(at + 1);
        entry.cardSlots = slotsByIndex(devices[at].slots, entry.prefix);
        const QString folder = folders.size() == devices.size() ? folders[at] : QString();
        entry.screens = typesOf(devices[at].screens, filesOfKind(folder, "screen"), entry.prefix, "screen");
        entry.layers = typesOf(devices[at].layers, filesOfKind(folder, "layer"), entry.prefix, "layer");
        for (const auto& screen : entry.screens) _subjects[cleaned(screen.file)] = screen.anchor;
        for (const auto& layer : entry.layers) _subjects[cleaned(layer.file)] = layer.anchor;
        _devices.push_back(std::move(entry));
    }
    _subjects.erase(QString());
}

void PageModel::addCards()
{
    if (_loaded.cards == nullptr) return;
    _catalogue = _loaded.cards->subcardConfig();
    std::map<int, int> times;
    for (const Lcd::s_Subcard& card : _catalogue->subcards) {
        const int time = ++times[card.modelId];
        QString anchor = QString("card-%1").arg(card.modelId);
        if (time > 1) anchor += QString("-%1").arg(time);
        _cardOf.try_emplace(std::uint64_t(std::int64_t(card.modelId)), _cards.size());
        _cards.push_back({&card, anchor});
    }
}

void PageModel::addTypes()
{
    if (_loaded.connectors == nullptr) return;
    std::map<int, std::set<int>> users;
    for (const PageCard& entry : _cards)
        for (const Lcd::s_SubcardConnector& connector : entry.card->connectors.connectors)
            users[connector.type].insert(entry.card->modelId);
    Lcd::IConnectorConfig& catalogue = *_loaded.connectors;
    const lcdcommon::Folder& folder = lcdcommon::folderOf(lcdcommon::Catalogue::Connectors);
    auto english =
        lcdcommon::englishConnectorNames(lcdcommon::filesOf(folder, lcdcommon::pathOf(_loaded.root, folder)));
    for (const auto& [type, cards] : users) {
        PageConnectorType entry{type, {}, catalogue.findEDIDInfo(type) != nullptr, {}, cards, {}};
        if (entry.known)
            entry.name = lcdcommon::named(english[type].toStdString(), catalogue.findConnectorTypeName(type));
        entry.anchor = QString("type-%1").arg(type);
        // The interface hands out no list of interface types, so each bit is asked for.
        for (int bit = 0; entry.known && bit < INTERFACE_BITS; ++bit) {
            bool says = catalogue.findConnectorTiming(type, 1 << bit).type != 0;
            for (int mode = 0; !says && mode <= HIGHEST_CAPACITY_MODE; ++mode)
                says = catalogue.findConnectorResolutionRatios(mode, type, 1 << bit) != nullptr;
            if (says) entry.interfaces.push_back(1 << bit);
        }
        _types.push_back(std::move(entry));
    }
}

const PageCard* PageModel::card(std::uint64_t model) const
{
    const auto found = _cardOf.find(model);
    return found == _cardOf.end() ? nullptr : &_cards[found->second];
}

const PageConnectorType* PageModel::type(int type) const
{
    const auto found = std::ranges::find(_types, type, &PageConnectorType::type);
    return found == _types.end() ? nullptr : &*found;
}

std::vector<std::pair<const PageDevice*, const PageSlot*>> PageModel::slotsOf(int model) const
{
    std::vector<std::pair<const PageDevice*, const PageSlot*>> found;
    for (const PageDevice& device : _devices)
        for (const PageSlot& slot : device.cardSlots)
            if (std::ranges::any_of(slot.slot->subcards, [model](const Lcd::s_InlineSubcard& card) {
                    return card.moduleId == std::uint64_t(std::int64_t(model));
                }))
                found.emplace_back(&device, &slot);
    return found;
}

bool PageModel::hasConnector(const PageSlot& slot, int position) const
{
    return std::ranges::any_of(slot.slot->subcards, [this, position](const Lcd::s_InlineSubcard& card) {
        return _loaded.cards != nullptr && _loaded.cards->findConnector(int(card.moduleId), position) != nullptr;
    });
}

QString PageModel::subjectOf(const QString& file) const
{
    const auto known = _subjects.find(cleaned(file));
    if (known != _subjects.end()) return known->second;
    const QString path = shownPath(file);
    const QString folder = path.section('/', 0, 0);
    const QString name = QFileInfo(path).completeBaseName();
    if (folder == "devices") {
        if (name.contains("screen")) return "screens";
        if (name.contains("layer")) return "layers";
        return "chassis";
    }
    if (folder == "subcards") {
        const PageCard* found = card(name.toULongLong());
        return found != nullptr ? found->anchor : "cards";
    }
    if (folder == "connectors") {
        const PageConnectorType* found = type(name.toInt());
        return found != nullptr ? found->anchor : "connectors";
    }
    return folder == "menu" ? "menu" : folder == "settings" ? "findings" : "keys";
}

QString PageModel::subjectOf(const Finding& finding) const
{
    // The feature file tells of the whole device; of its parts the page draws one.
    return finding.element.contains("MosaicSource") ? QStringLiteral("mosaic") : subjectOf(finding.file);
}

std::vector<std::size_t> PageModel::findingsOf(const QString& anchor) const
{
    const auto found = _findingsOf.find(anchor);
    return found == _findingsOf.end() ? std::vector<std::size_t>() : found->second;
}

QString PageModel::shownPath(const QString& file) const
{
    const QString root = cleaned(_loaded.root) + '/';
    const QString path = cleaned(file);
    return path.startsWith(root) ? path.mid(root.size()) : path;
}

QStringList PageModel::files() const
{
    QStringList files;
    for (const lcdcommon::Folder& folder : lcdcommon::folders()) {
        const QString path = lcdcommon::pathOf(_loaded.root, folder);
        QStringList places{path};
        if (folder.catalogue == lcdcommon::Catalogue::Devices) places = lcdcommon::deviceFolders(_loaded.root);
        for (const QString& place : places) files += lcdcommon::filesOf(folder, place);
        if (folder.catalogue == lcdcommon::Catalogue::Settings && QFileInfo::exists(path + '/' + folder.file))
            files.append(path + '/' + folder.file);
    }
    return files;
}

Words interfaceWords(int type)
{
    static const std::pair<int, Words> names[] = {
        {1, {"input", "输入"}}, {2, {"output", "输出"}}, {4, {"multi-view", "预监"}}, {8, {"auxiliary", "辅助"}}};
    QStringList english, chinese;
    int rest = type;
    for (const auto& [bit, words] : names) {
        if ((type & bit) == 0) continue;
        english.append(words.english);
        chinese.append(words.chinese);
        rest &= ~bit;
    }
    if (rest != 0 || type == 0) {
        english.append(QString::number(rest));
        chinese.append(QString::number(rest));
    }
    return {english.join(" + "), chinese.join(" + ")};
}

} // namespace lcdcheck
