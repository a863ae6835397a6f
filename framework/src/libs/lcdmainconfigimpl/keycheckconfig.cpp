// The loader of the key-check directory: which file fills which list, and what a bad file costs.
#include "keycheckconfig.h"

#include "reading/cells.h"
#include "reading/directory.h"
#include "reading/document.h"

namespace LCD::MainConfigImpl {

using namespace reading;

namespace {

using Key = QPair<int, QString>;

constexpr Frame KEY_CHECK_FRAME{
    .rootTag = "LCD",
    .cannotOpen = "Fail to open file [%1]!",
    .wrongRoot = "This file is not a valid configuration file.",
    .wrongVersion = "This file is not a valid configuration file of version 1.0 .",
};

// clang-format off
constexpr auto lcdKeys = below("LcdKeys", OnNull::Fail, list(Walk::Any, "", std::identity{},
                                                             cell("Value", &Key::first, "0"),
                                                             cell("Name",  &Key::second)));
// clang-format on

} // namespace

class KeyCheckConfig::Impl {
public:
    /// The list that a file of that name fills; null for a name that fits none.
    QList<Key>* listOf(const QString& fileName)
    {
        const auto named = [&fileName](const char* part) { return fileName.contains(QLatin1String(part)); };
        if (named("keyboardchecklist")) return &keyCheckList;
        if (named("keyboardknobchecklist")) return &knobKeyCheckList;
        if (named("keyboardtbarjoystickchecklist")) return &tbarJoyStickCheckList;
        return nullptr;
    }

    QList<Key> keyCheckList;
    QList<Key> knobKeyCheckList;
    QList<Key> tbarJoyStickCheckList;
};

KeyCheckConfig::KeyCheckConfig() : _impl(std::make_unique<Impl>()) {}

KeyCheckConfig::~KeyCheckConfig() = default;

bool KeyCheckConfig::readConfig(const QString& dir, QString& error)
{
    error.clear();
    QDir directory;
    if (!useDirectory(dir, error, directory)) return false;
    const Report report{.error = error, .invalidNode = "node not matches."};
    for (const QFileInfo& file : xmlEntries(directory)) {
        // The text for a file that can't be opened names the directory, which is meant.
        QDomDocument document;
        if (!parseFile(file.filePath(), dir, KEY_CHECK_FRAME, report, document)) continue;
        if (!checkRoot(document, KEY_CHECK_FRAME, report)) return false;
        QList<Key> dropped;
        QList<Key>* const keys = _impl->listOf(file.fileName());
        if (!readElement(document.documentElement(), report, keys != nullptr ? *keys : dropped, lcdKeys)) return false;
    }
    return true;
}

QList<QPair<int, QString>> KeyCheckConfig::getKeyCheckList() const { return _impl->keyCheckList; }

QList<QPair<int, QString>> KeyCheckConfig::getKnobKeyCheckList() const { return _impl->knobKeyCheckList; }

QList<QPair<int, QString>> KeyCheckConfig::getTbarJoyStickCheckList() const { return _impl->tbarJoyStickCheckList; }

} // namespace LCD::MainConfigImpl
