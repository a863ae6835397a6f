// What the session finds wrong by itself. The library reads what is there and stays silent about what is not: a card
// without a file, a device without slots, an ini file full of something else.
#include "common/access.h"
#include "lcdhost_session.h"
#include "lcdhost_settings.h"
#include "lcdhost_slots.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace lcdhost {
namespace {

/// The files that a component would read for a card or connector type: those named for its number.
QStringList filesNamedFor(const QString& id, const Folder& folder, const QString& path)
{
    QStringList files;
    for (const QString& file : filesOf(folder, path)) {
        const QString name = QFileInfo(file).baseName();
        bool isNumber = false;
        const qlonglong value = name.toLongLong(&isNumber);
        if (isNumber ? QString::number(value) == id : name == id) files.append(file);
    }
    return files;
}

} // namespace

void Session::checkDevice(const QString& path)
{
    const std::pair<const char*, const char*> kinds[] = {{"feature", "so the device has no name and no features"},
                                                         {"slot", "so it takes no card"},
                                                         {"screen", "so it has no screens"},
                                                         {"layer", "so it has no layers"}};
    QStringList names;
    for (const QString& file : filesOf(folderOf(Catalogue::Devices), path)) names.append(QFileInfo(file).fileName());
    if (names.isEmpty()) return;
    for (const auto& [kind, cost] : kinds)
        if (names.filter(kind).isEmpty()) note(path, {QString("no file named ...%1..., %2").arg(kind, cost)});
}

void Session::checkCards(const QString& path)
{
    std::map<std::uint64_t, QString> asked;
    for (const Lcd::s_Device& device : devices().DeviceConfigs())
        for (const ClassSlot& entry : slotsByIndex(device.slots))
            for (const Lcd::s_InlineSubcard& card : entry.slot.subcards)
                asked.try_emplace(card.moduleId,
                                  QString("slot %1 takes card %2").arg(entry.slot.index).arg(card.moduleId));
    if (asked.empty()) note(path, {"no slot takes a card, so no card file is read"});
    for (const auto& [model, askedBy] : asked)
        if (!hasCard(model)) noteGap(Catalogue::Cards, QString::number(model), path, askedBy);
    noteUnread(Catalogue::Cards, path);
}

void Session::checkConnectors(const QString& path)
{
    std::map<int, QString> asked;
    for (const Lcd::s_Subcard& card : allCards().subcards)
        for (const Lcd::s_SubcardConnector& connector : card.connectors.connectors)
            asked.try_emplace(connector.type,
                              QString("card %1 has connector type %2").arg(card.modelId).arg(connector.type));
    for (const auto& [type, askedBy] : asked)
        if (!hasConnectorType(type)) noteGap(Catalogue::Connectors, QString::number(type), path, askedBy);
    noteUnread(Catalogue::Connectors, path);
    if (!QFileInfo::exists(path + "/resolutionratio.xml"))
        note(path, {"no file resolutionratio.xml, so no connector offers a resolution"});
}

/// `askedBy` tells who needs it.
void Session::noteGap(Catalogue catalogue, const QString& id, const QString& path, const QString& askedBy)
{
    const QStringList files = filesNamedFor(id, folderOf(catalogue), path);
    const auto isBad = [this](const QString& file) {
        return std::any_of(_problems.begin(), _problems.end(),
                           [&file](const Problem& problem) { return problem.where == file; });
    };
    Cause cause = Cause::OtherContent;
    if (files.isEmpty()) {
        cause = Cause::NoFile;
        note(path, {"no file " + id + ".xml, though " + askedBy});
    } else if (std::any_of(files.begin(), files.end(), isBad)) {
        cause = Cause::Refused;
    } else if (!isLoaded(catalogue)) {
        cause = Cause::NotRead;
    } else {
        note(files.first(), {"holds something else, though " + askedBy});
    }
    _gaps.push_back({catalogue, id, cause});
}

/// What a bad file has cost beside its own content.
void Session::noteUnread(Catalogue catalogue, const QString& path)
{
    QStringList unread;
    for (const Gap& gap : _gaps)
        if (gap.catalogue == catalogue && gap.cause == Cause::NotRead) unread.append(gap.id);
    if (!unread.isEmpty())
        note(path, {"the loading ended at a bad file, so these were not read: " + unread.join(", ")});
}

void Session::checkSettings(const QString& file)
{
    if (!hasAnySetting(settings())) note(file, {"holds no setting that the panel knows"});
}

void Session::noteEmpty(Catalogue catalogue)
{
    const Folder& folder = folderOf(catalogue);
    const QString path = pathOf(_root, folder);
    const bool isKnown = std::any_of(_problems.begin(), _problems.end(),
                                     [&path](const Problem& problem) { return problem.where.startsWith(path); });
    if (!isKnown) note(folder.file == nullptr ? path : path + '/' + folder.file, {"holds nothing that the panel uses"});
}

} // namespace lcdhost
