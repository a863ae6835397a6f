// One whole check: the components load a root in the panel's order while the checker listens, and the rules judge what
// was heard, file by file and then all files together.
#include "check.h"

#include "drive.h"
#include "panel.h"
#include "quiet.h"
#include "rules.h"
#include "rules_settings.h"
#include "vocabulary.h"

#include "common/access.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <memory>
#include <set>

namespace lcdcheck {

using lcdcommon::Catalogue;
using lcdcommon::Folder;

namespace Lcd = LCD::MainConfig;

namespace {

/// What the loss of one file of a catalogue costs: the loaders' doing, which no reader tells.
QString costOfFile(Catalogue catalogue)
{
    switch (catalogue) {
    case Catalogue::Devices:
        return "the device does without this file";
    case Catalogue::Cards:
        return "this card file is lost, and no further card is read";
    case Catalogue::Connectors:
        return "this connector file is lost, and no further one is read";
    case Catalogue::Menu:
        return "the menu stays empty";
    case Catalogue::FunctionKeys:
        return "the rest of the function keys is not read";
    case Catalogue::KeyChecks:
        return "this key list is lost, and no further one may be read";
    case Catalogue::LockAreas:
        return "no further lock area is read";
    case Catalogue::Settings:
        return "every setting reads as its default";
    }
    return {};
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::set<Field> comparedFields()
{
    std::set<Field> fields;
    for (const auto& some : {fieldsOfIdentities(), fieldsOfReferences(), fieldsOfLayouts(), fieldsOfResolutions()})
        fields.insert(some.begin(), some.end());
    return fields;
}

/// The check of one root.
class RootCheck {
public:
    RootCheck(QString root, const Vocabulary& vocabulary, Checked& out,
              const std::function<void(const QString&)>& progress)
        : _root(std::move(root)), _vocabulary(vocabulary), _out(out), _progress(progress), _collected(comparedFields())
    {}

    void run();
    /// The components, unless something was mended while they read.
    [[nodiscard]] std::shared_ptr<const Panel> panel() const { return _hearing.hasMended() ? nullptr : _panel; }

private:
    void load(const Folder& folder);
    [[nodiscard]] QString shown(const QString& path) const;
    void heard(HeardFile& file);
    void judge(const HeardFile& file);
    void judgeUnread();
    [[nodiscard]] bool isConsequence(const Folder& folder, const QFileInfo& file);
    void loadUnread(Catalogue catalogue, FileKind kind);
    [[nodiscard]] bool isCut(FileKind kind) const;
    [[nodiscard]] bool knowsCards() const;
    [[nodiscard]] bool lacksCards() const;
    void judgeDevices();
    void judgeStandardResolutions();
    void judgeSettings();
    Finding& add(const char* id, const QString& path, const QString& message);

    QString _root;
    const Vocabulary& _vocabulary;
    Checked& _out;
    const std::function<void(const QString&)>& _progress;
    Collected _collected;
    std::shared_ptr<Panel> _panel = std::make_shared<Panel>();
    Hearing _hearing{[this](HeardFile& file) { heard(file); }, &_vocabulary};
    QSet<QString> _known;               ///< Files that were read, or about which something was said.
    std::set<qlonglong> _typesOfUnread; ///< Connector types of the cards that no slot takes.
    std::set<QString> _explained;       ///< What was missing and is held by a file that nobody reads.
};

Finding& RootCheck::add(const char* id, const QString& path, const QString& message)
{
    Finding finding;
    finding.kind = kindOf(id);
    finding.file = path;
    finding.message = message;
    _out.findings.push_back(std::move(finding));
    return _out.findings.back();
}

void RootCheck::judge(const HeardFile& file)
{
    judgeFrame(file, _out.findings);
    judgeStructure(file, &_vocabulary, _out.findings);
    judgeValues(file, _out.findings);
}

/// The path as the user named the root: some loaders make theirs absolute.
QString RootCheck::shown(const QString& path) const
{
    const QString root = QFileInfo(_root).absoluteFilePath() + '/';
    const QString clean = QDir::cleanPath(path);
    return clean.startsWith(root) ? _root + '/' + clean.mid(root.size()) : clean;
}

void RootCheck::heard(HeardFile& file)
{
    file.path = shown(file.path);
    if (_progress) _progress(file.path);
    ++_out.files;
    judge(file);
    _collected.add(file);
    if (file.wasRead || !file.refusals.empty()) _known.insert(file.path);
}

void RootCheck::load(const Folder& folder)
{
    const QString path = lcdcommon::pathOf(_root, folder);
    _hearing.setCostOfFile(costOfFile(folder.catalogue));
    const QString reason = lcdcommon::whyNoFolder(path);
    if (!reason.isEmpty()) {
        add("cannot-read", path, "cannot be read: " + reason).cost = "nothing of this catalogue is read";
        return;
    }
    if (folder.catalogue != Catalogue::Devices) return _panel->read(folder, path);
    const QStringList devices = lcdcommon::deviceFolders(_root);
    for (const QString& device : devices) _panel->read(folder, device);
    if (devices.isEmpty())
        add("missing-file", path, "holds no device folder").cost = "no card and no connector is read";
}

/// A device needs the file that says what it is, and the one that says which cards it takes.
void RootCheck::judgeDevices()
{
    for (const QString& device : lcdcommon::deviceFolders(_root))
        for (const FileKind kind : {FileKind::Feature, FileKind::Slot}) {
            const QStringList files = lcdcommon::filesOf(lcdcommon::folderOf(Catalogue::Devices), device);
            const bool there = std::any_of(files.begin(), files.end(), [kind](const QString& file) {
                const std::vector<FileKind> kinds = kindsByPlace(file);
                return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
            });
            if (!there) add("missing-file", device, QString("has no %1 file").arg(infoOf(kind).name));
        }
}

/// Connectors have no resolutions of their own: they take theirs from one file.
void RootCheck::judgeStandardResolutions()
{
    const QString path = lcdcommon::pathOf(_root, lcdcommon::folderOf(Catalogue::Connectors)) + "/resolutionratio.xml";
    const bool anyConnector = !_collected.all(fieldOf<Lcd::s_ConnectorCfg>(&Lcd::s_ConnectorCfg::type)).empty();
    if (anyConnector && !QFileInfo::exists(path))
        add("missing-file", path, "no such file").cost = "no connector offers a resolution";
}

void RootCheck::judgeSettings()
{
    const Folder& folder = lcdcommon::folderOf(Catalogue::Settings);
    const QString place = lcdcommon::pathOf(_root, folder);
    const QString path = place + '/' + folder.file;
    if (!QFileInfo(place).isDir()) return;
    if (const QString reason = lcdcommon::whyNoFile(path); !reason.isEmpty()) {
        add(QFileInfo::exists(path) ? "cannot-read" : "missing-file", path, "cannot be read: " + reason).cost =
            costOfFile(Catalogue::Settings);
        return;
    }
    ++_out.files;
    lcdcheck::judgeSettings(path, bytesOf(path), _out.findings);
}

/// Why nobody reads a file of a catalogue.
QString whyUnread(const Folder& folder, const QFileInfo& file, const QString& place)
{
    const bool inPlace = file.path() == place;
    bool isNumber = false;
    file.baseName().toULongLong(&isNumber);
    switch (folder.catalogue) {
    case Catalogue::Devices:
        return QFileInfo(file.path()).path() == place ? "its name tells no kind of file"
                                                      : "files are read in the folders of devices alone";
    case Catalogue::Cards:
        return isNumber ? "no slot takes card " + file.baseName() : "a card file is named for its model's number";
    case Catalogue::Connectors:
        if (!inPlace) return "subfolders are not looked into";
        return isNumber ? "no card has a connector of type " + file.baseName()
                        : "a connector file is named for its type's number";
    case Catalogue::KeyChecks:
        return inPlace ? "its name tells no key list" : "subfolders are not looked into";
    default:
        return QString("only %1 is read here").arg(quoted(folder.file));
    }
}

/// Reads what the panel does not, card and connector files that nothing refers to: their mistakes count all the same.
void RootCheck::loadUnread(Catalogue catalogue, FileKind kind)
{
    const Folder& folder = lcdcommon::folderOf(catalogue);
    Collected collected(fieldsOfReferences());
    for (const QString& path : lcdcommon::filesOf(folder, lcdcommon::pathOf(_root, folder))) {
        if (_known.contains(path) || !lcdcommon::whyNoFile(path).isEmpty()) continue;
        Hearing hearing(
            [&](HeardFile& file) {
                file.cost = costOfFile(catalogue);
                judge(file);
                collected.add(file);
                if (!knowsCards()) _collected.add(file);
            },
            &_vocabulary);
        hearing.readInstead(path);
        drive(kind, hearing);
        hearing.finish();
    }
    for (const Value& type : collected.all(fieldOf<Lcd::s_SubcardConnector>(&Lcd::s_SubcardConnector::type)))
        _typesOfUnread.insert(type.number());
}

/// Whether a file of some kind could not be read to its end.
bool RootCheck::isCut(FileKind kind) const
{
    return std::any_of(_collected.files().begin(), _collected.files().end(), [kind](const CollectedFile& file) {
        return !file.whole && kindsByPlace(file.path) == std::vector{kind};
    });
}

/// Whether the slots tell which cards they take; where they don't, no card is unread for a reason of its own.
bool RootCheck::knowsCards() const
{
    return !isCut(FileKind::Slot) &&
           !_collected.all(fieldOf<Lcd::s_InlineSubcard>(&Lcd::s_InlineSubcard::moduleId)).empty();
}

/// Whether some card is missing or was not read to its end, so that nobody knows which connectors it has.
bool RootCheck::lacksCards() const
{
    return isCut(FileKind::Card) || _collected.all(fieldOf<Lcd::s_Subcard>(&Lcd::s_Subcard::modelId)).empty() ||
           std::any_of(_out.findings.begin(), _out.findings.end(),
                       [](const Finding& finding) { return finding.kind == kindOf("missing-card"); });
}

/// Whether a file is unread because of a mistake that is told already: a number that leads nowhere and was probably
/// meant to lead here, or a card that is unread itself and would have led here.
bool RootCheck::isConsequence(const Folder& folder, const QFileInfo& file)
{
    if (folder.catalogue == Catalogue::Connectors && _typesOfUnread.count(file.baseName().toLongLong()) != 0)
        return true;
    const bool card = folder.catalogue == Catalogue::Cards;
    if (folder.catalogue == Catalogue::Connectors && lacksCards()) return true;
    if (!knowsCards() && (card || folder.catalogue == Catalogue::Connectors)) return true;
    if (!card && folder.catalogue != Catalogue::Connectors) return false;
    const QString id = card ? "missing-card" : "missing-connector-type";
    for (const Finding& finding : _out.findings) {
        const QString place = QString("%1:%2:%3").arg(finding.file).arg(finding.place.line).arg(finding.place.column);
        if (finding.kind->id == id && _explained.insert(place).second) return true;
    }
    return false;
}

void RootCheck::judgeUnread()
{
    for (const Folder& folder : lcdcommon::folders()) {
        if (folder.catalogue == Catalogue::Settings) continue;
        const QString place = lcdcommon::pathOf(_root, folder);
        QDirIterator entries(place, {"*.xml"}, QDir::Files | QDir::System, QDirIterator::Subdirectories);
        QStringList paths;
        while (entries.hasNext()) paths.append(QDir::cleanPath(entries.next()));
        paths.sort();
        for (const QString& path : paths) {
            if (_known.contains(path)) continue;
            if (!isConsequence(folder, QFileInfo(path)))
                add("unread-file", path, "nobody reads this file: " + whyUnread(folder, QFileInfo(path), place));
        }
    }
}

void RootCheck::run()
{
    if (const QString reason = lcdcommon::whyNoFolder(_root); !reason.isEmpty()) {
        add("cannot-read", _root, "cannot be read: " + reason);
        return;
    }
    {
        const Quiet quiet;
        const reading::Listening listening(_hearing);
        for (const Folder& folder : lcdcommon::folders()) load(folder);
        _hearing.finish();
    }
    loadUnread(Catalogue::Cards, FileKind::Card);
    loadUnread(Catalogue::Connectors, FileKind::Connector);
    judgeSettings();
    judgeDevices();
    judgeStandardResolutions();
    judgeIdentities(_collected, _out.findings);
    judgeReferences(_collected, _out.findings);
    judgePositions(_collected, _out.findings);
    judgeLayouts(_collected, _out.findings);
    judgeResolutions(_collected, _panel->loaded(_root), _out.findings);
    judgeUnread();
}

/// The check of one file for itself, of which other files may hold what it refers to.
void checkFile(const QString& path, const QString& kindName, GrammarVocabulary& vocabulary, Checked& out)
{
    const auto add = [&](const QString& message) {
        Finding finding;
        finding.kind = kindOf("cannot-read");
        finding.file = path;
        finding.message = message;
        out.findings.push_back(std::move(finding));
    };
    ++out.files;
    if (const QString reason = lcdcommon::whyNoFile(path); !reason.isEmpty()) return add("cannot be read: " + reason);
    std::optional<FileKind> kind;
    if (const FileKindInfo* const told = fileKindNamed(kindName)) kind = told->kind;
    const std::vector<FileKind> placed = kindsByPlace(path);
    if (!kind && placed.size() == 1) kind = placed.front();
    if (!kind) kind = kindByContent(Source::readFile(path).value_or(Source()));
    if (!kind) return add("neither place, name nor content tell what kind of file it is; --kind does");
    if (*kind == FileKind::Settings) return judgeSettings(path, bytesOf(path), out.findings);
    vocabulary.setKind(path, *kind);
    Collected collected(comparedFields());
    Hearing hearing(
        [&](HeardFile& file) {
            judgeFrame(file, out.findings);
            judgeStructure(file, &vocabulary, out.findings);
            judgeValues(file, out.findings);
            collected.add(file);
        },
        &vocabulary);
    hearing.setCostOfFile("the file is lost");
    hearing.readInstead(path);
    drive(*kind, hearing);
    hearing.finish();
    judgeIdentities(collected, out.findings);
    judgePositions(collected, out.findings);
    judgeLayouts(collected, out.findings);
}

} // namespace

Checked check(const Request& request, const std::function<void(const QString& file)>& progress)
{
    Checked checked;
    GrammarVocabulary vocabulary;
    for (const QString& root : request.roots) {
        RootCheck one(QDir::cleanPath(root), vocabulary, checked, progress);
        one.run();
        if (request.roots.size() == 1) checked.panel = one.panel();
    }
    for (const QString& file : request.files) {
        if (progress) progress(file);
        checkFile(file, request.kind, vocabulary, checked);
    }
    checked.line = [last = QString(), source = Source()](const QString& file, int line) mutable {
        if (file != last) {
            source = Source::readFile(file).value_or(Source());
            last = file;
        }
        return source.line(line);
    };
    return checked;
}

} // namespace lcdcheck
