#include "lcdhost_session.h"

#include "common/access.h"
#include "common/connectornames.h"
#include "common/nearest.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QVariant>

#include <algorithm>
#include <functional>
#include <memory>
#include <tuple>

namespace lcdhost {
namespace {

QStringList& warnings()
{
    static QStringList all;
    return all;
}

void keepWarning(QtMsgType type, const QMessageLogContext& /*where*/, const QString& text)
{
    if (type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
    if (type == QtWarningMsg || type == QtCriticalMsg) warnings().append(text);
}

/// One line, without the word that the library puts before a text which it also hands out in another way.
QString plain(QString text)
{
    for (const char* word : {"Error:", "Log:"})
        if (text.startsWith(word)) text.remove(0, int(qstrlen(word)));
    return text.simplified();
}

/// What a component reports of one read: its warnings, and its error text unless that was logged too.
QStringList reports(const Folder& folder, void* component, const QString& path, bool& good)
{
    warnings().clear();
    QString error;
    good = folder.read(component, path, error);
    QStringList texts;
    for (const QString& warning : Session::takeWarnings()) texts.append(plain(warning));
    if (!error.isEmpty() && !texts.contains(plain(error))) texts.append(plain(error));
    if (!good && texts.isEmpty()) texts.append("cannot be read; the library gave no reason");
    return texts;
}

/// An object of a component beside the host's own.
using Fresh = std::unique_ptr<void, std::function<void(void*)>>;

Fresh freshComponent(const kpmhost::Host& host, const Folder& folder)
{
    const kpm::ComponentInfo& component = *host.componentClass(folder.component);
    return {component.creator(), component.deletor};
}

} // namespace

Session::Session(QString root, const QString& language)
    : _root(std::move(root)), _english(language == "en"), _devices(deviceFolders(_root))
{
    QCoreApplication::instance()->setProperty("lcd_locale", QVariant(language));
    qInstallMessageHandler(keepWarning);
}

bool Session::open(const QString& pluginPath)
{
    // With a bare name the loader would look in the system's folders instead of here.
    if (!_host.load(QFileInfo(pluginPath).absoluteFilePath().toStdString())) {
        _error = QString::fromStdString(_host.error());
        return false;
    }
    for (const char* const id : LOAD_ORDER)
        if (_host.component(id) == nullptr) _error = pluginPath + " has no component " + id;
    return _error.isEmpty();
}

bool Session::has(Catalogue catalogue) const { return QFileInfo::exists(pathOf(_root, folderOf(catalogue))); }

QStringList Session::takeWarnings() { return std::exchange(warnings(), {}); }

void Session::loadAll()
{
    for (const Folder& folder : folders()) load(folder.catalogue);
}

bool Session::chooseDevice(const QString& name)
{
    const auto isChosen = [&](const QString& path) { return QFileInfo(path).fileName() == name; };
    const auto isCalled = [&](const QString& path) { return nameOfDevice(path) == name; };
    auto chosen = std::find_if(_devices.begin(), _devices.end(), isChosen);
    if (chosen == _devices.end()) chosen = std::find_if(_devices.begin(), _devices.end(), isCalled);
    if (chosen != _devices.end()) {
        std::rotate(_devices.begin(), chosen, chosen + 1);
        return true;
    }
    QStringList names;
    for (const QString& path : _devices) names += {QFileInfo(path).fileName(), nameOfDevice(path)};
    const QString meant = nearest(name, names);
    _error = "There is no device '" + name + "'.";
    if (!meant.isEmpty()) _error += " Did you mean '" + meant + "'?";
    return false;
}

/// The name that the device's files give it, found with an object of its own.
QString Session::nameOfDevice(const QString& path) const
{
    if (!whyNoFolder(path).isEmpty()) return {};
    const Folder& folder = folderOf(Catalogue::Devices);
    const Fresh fresh = freshComponent(_host, folder);
    bool good = false;
    reports(folder, fresh.get(), path, good);
    const auto& devices = static_cast<Lcd::IDeviceConfig*>(fresh.get())->DeviceConfigs();
    return devices.isEmpty() ? QString() : QString::fromStdString(devices.first().feature.name);
}

/// Why nothing in the folder would be read, because of what was read before; empty when something may be.
QString Session::whyNotAskedFor(Catalogue catalogue) const
{
    if (catalogue == Catalogue::Cards && devices().DeviceConfigs().isEmpty())
        return "no device was loaded, so no card file is read";
    if (catalogue == Catalogue::Connectors && allCards().subcards.empty())
        return "no card was loaded, so no connector file is read";
    return {};
}

void Session::load(Catalogue catalogue)
{
    const Folder& folder = folderOf(catalogue);
    const QString path = pathOf(_root, folder);
    if (!has(catalogue)) return note(path, QStringList{"not there"});
    const QString closed = whyNoFolder(path);
    if (!closed.isEmpty()) return note(path, {closed});
    if (catalogue != Catalogue::Devices) return loadFolder(folder, path);
    for (const QString& device : _devices) loadFolder(folder, device);
    if (_devices.isEmpty()) note(path, {"holds no device folder"});
}

void Session::loadFolder(const Folder& folder, const QString& path)
{
    for (const QString& place : placesOf(folder, path)) {
        const QString closed = whyNoFolder(place);
        if (!closed.isEmpty()) note(place, {closed});
        if (!closed.isEmpty() && place == path) return;
    }
    const QString unasked = whyNotAskedFor(folder.catalogue);
    if (!unasked.isEmpty()) return note(path, {unasked});
    const QString file = folder.file == nullptr ? QString() : QDir(path).filePath(folder.file);
    const QString closed = QFileInfo::exists(file) ? whyNoFile(file) : QString();
    if (!closed.isEmpty()) return note(file, {closed});
    if (folder.file == nullptr && filesOf(folder, path).isEmpty()) note(path, {"holds no *.xml file"});

    read(folder, path);
    if (folder.catalogue == Catalogue::Devices) checkDevice(path);
    if (folder.catalogue == Catalogue::Cards) checkCards(path);
    if (folder.catalogue == Catalogue::Connectors) checkConnectors(path);
    if (folder.catalogue == Catalogue::Settings && isLoaded(Catalogue::Settings)) checkSettings(file);
}

void Session::read(const Folder& folder, const QString& path)
{
    bool good = false;
    const QStringList texts = reports(folder, _host.component(folder.component), path, good);
    _allCards.reset();
    if (good) _loaded.insert(int(folder.catalogue));
    if (texts.isEmpty()) return;
    if (folder.file == nullptr) return diagnose(folder, path, texts);
    const QString file = QDir(path).filePath(folder.file);
    note(QFileInfo::exists(file) ? file : path, texts);
}

/// Finds the files behind the texts of a failed load. Few texts name their file, an error hides the one before it, and
/// some components stop at the first bad file; so each file is read again, alone and by an object of its own. What an
/// empty folder would be blamed for as well is no file's fault.
void Session::diagnose(const Folder& folder, const QString& path, QStringList unexplained)
{
    const QStringList general = reportsOfFile(folder, path, {});
    for (const QString& file : filesOf(folder, path)) {
        QStringList texts = reportsOfFile(folder, path, file);
        for (const QString& text : general) texts.removeOne(text);
        // Of a file that can't be opened the library names the folder, and gives no reason.
        const QString closed = whyNoFile(file);
        note(file, closed.isEmpty() || texts.isEmpty() ? texts : QStringList{closed});
        for (const QString& text : texts) unexplained.removeAll(text);
    }
    note(path, unexplained);
}

QStringList Session::reportsOfFile(const Folder& folder, const QString& path, const QString& file) const
{
    const QTemporaryDir alone;
    const QFileInfo info(file);
    const QString link = alone.filePath(info.fileName());
    if (!alone.isValid() || (!file.isEmpty() && !QFile::link(info.absoluteFilePath(), link))) return {};

    const Fresh fresh = freshComponent(_host, folder);
    bool good = false;
    QStringList texts = reports(folder, fresh.get(), alone.path(), good);
    if (!file.isEmpty()) texts.replaceInStrings(link, file);
    texts.replaceInStrings(alone.path(), path);
    return texts;
}

void Session::note(const QString& where, const QStringList& texts)
{
    for (const QString& text : texts) {
        const auto known = std::find_if(_problems.begin(), _problems.end(), [&](const Problem& problem) {
            return problem.where == where && problem.text == text;
        });
        if (known == _problems.end())
            _problems.push_back({where, text});
        else
            ++known->times;
    }
}

QString Session::inLanguage(const std::string& english, const std::string& chinese) const
{
    const auto& [first, second] = _english ? std::tie(english, chinese) : std::tie(chinese, english);
    return QString::fromStdString(first.empty() ? second : first);
}

const Lcd::s_DCSSubcard& Session::allCards() const
{
    if (!_allCards) _allCards = cards().subcardConfig();
    return *_allCards;
}

QString Session::cardName(std::uint64_t model) const
{
    for (const Lcd::s_Subcard& card : allCards().subcards)
        if (std::uint64_t(card.modelId) == model) return inLanguage(card.name.en, card.name.zhCN);
    return {};
}

bool Session::hasCard(std::uint64_t model) const
{
    const auto& all = allCards().subcards;
    return std::any_of(all.begin(), all.end(),
                       [model](const Lcd::s_Subcard& card) { return std::uint64_t(card.modelId) == model; });
}

bool Session::hasConnectorType(int type) const { return connectors().findEDIDInfo(type) != nullptr; }

QString Session::connectorName(int type) const
{
    const QString chinese = QString::fromStdString(connectors().findConnectorTypeName(type));
    if (!_english || !hasConnectorType(type)) return chinese;
    const Folder& folder = folderOf(Catalogue::Connectors);
    if (_englishNames.empty()) _englishNames = englishConnectorNames(filesOf(folder, pathOf(_root, folder)));
    const auto found = _englishNames.find(type);
    return found == _englishNames.end() || found->second.isEmpty() ? chinese : found->second;
}

} // namespace lcdhost
