#include "lcdhost_session.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QVariant>

#include <algorithm>
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

} // namespace

Session::Session(QString root, const QString& language) : _root(std::move(root)), _english(language == "en")
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
    QStringList ids{USER_SETTINGS};
    for (const Folder& folder : folders()) ids.append(folder.component);
    for (const QString& id : ids)
        if (_host.component(id.toStdString()) == nullptr) _error = pluginPath + " has no component " + id;
    return _error.isEmpty();
}

bool Session::has(Catalogue catalogue) const { return QFileInfo(pathOf(_root, folderOf(catalogue))).isDir(); }

QStringList Session::takeWarnings() { return std::exchange(warnings(), {}); }

void Session::loadAll()
{
    for (const Folder& folder : folders()) load(folder.catalogue);
}

void Session::load(Catalogue catalogue)
{
    const Folder& folder = folderOf(catalogue);
    const QString path = pathOf(_root, folder);
    if (!has(catalogue)) return note(path, QStringList{"not there"});
    if (catalogue != Catalogue::Devices) return loadFolder(folder, path);
    const QStringList devices = deviceFolders(_root);
    for (const QString& device : devices) loadFolder(folder, device);
    if (devices.isEmpty()) note(path, {"holds no device folder"});
}

void Session::loadFolder(const Folder& folder, const QString& path)
{
    bool good = false;
    const QStringList texts = reports(folder, _host.component(folder.component), path, good);
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
        note(file, texts);
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

    const kpm::ComponentInfo& component = *_host.componentClass(folder.component);
    const std::unique_ptr<void, std::function<void(void*)>> fresh(component.creator(), component.deletor);
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

QString Session::cardName(const Lcd::s_DCSSubcard& cards, std::uint64_t model) const
{
    for (const Lcd::s_Subcard& card : cards.subcards)
        if (std::uint64_t(card.modelId) == model) return inLanguage(card.name.en, card.name.zhCN);
    return {};
}

} // namespace lcdhost
