// The lock-area file's reader, which is the one that checks its numbers, and the look-up of a key's area.
#include "lockareaconfig.h"

#include "lcdmainconfig/panel.h"
#include "reading/cells.h"
#include "reading/document.h"
#include "search.h"

#include <QDebug>

namespace LCD::MainConfigImpl {

using namespace reading;

class LockAreaConfig::Impl {
public:
    std::vector<s_LockArea> areas;
};

namespace {

constexpr Frame LOCK_AREA_FRAME{
    .rootTag = "LCD",
    .emptyPath = "Invalid file path!",
    .cannotOpen = "Fail to open file [%1]!",
    .wrongRoot = "This file is not a valid configuration file.",
    .wrongVersion = "This file is not a valid configuration file of version 1.0 .",
    .noSuchFile = "File does not exist: %1",
};

/// False, with a warning, for a button whose keys are not both numbers. An absent key is the number 0.
bool readButton(const Reader& in, s_LockAreaButton& button)
{
    const bool lcdKeyGood = cell("LCDKey", &s_LockAreaButton::lcdKey, "0")(in, button);
    const bool realKeyGood = cell("RealKey", &s_LockAreaButton::realKey, "0")(in, button);
    if (lcdKeyGood && realKeyGood) return true;
    qWarning().noquote() << QStringLiteral("Failed to parse button attributes: LCDKey=%1, RealKey=%2")
                                .arg(in.text("LCDKey", "0"), in.text("RealKey", "0"));
    return false;
}

void readArea(const Reader& in, s_LockArea& area)
{
    in.read(area, cell("Name", &s_LockArea::name), cell("Id", &s_LockArea::id, "0"));
    in.each(Walk::Descendants, "Button", [&](const Reader& element) {
        s_LockAreaButton button;
        if (readButton(element, button)) area.buttons.push_back(button);
    });
}

} // namespace

LockAreaConfig::LockAreaConfig() : _impl(std::make_unique<Impl>()) {}

LockAreaConfig::~LockAreaConfig() = default;

bool LockAreaConfig::readConfig(const QString& filePath, QString& error)
{
    error.clear();
    const Report report{.error = error, .invalidNode = "%1 node not found."};
    return readDocument(filePath, LOCK_AREA_FRAME, report, _impl->areas,
                        below("LockAreas", OnNull::Fail, list(Walk::Named, "LockArea", std::identity{}, readArea)));
}

int LockAreaConfig::getIdByLCDKey(int lcdKey) const
{
    const auto holdsKey = [lcdKey](const s_LockArea& area) {
        return firstWhere(area.buttons, &s_LockAreaButton::lcdKey, lcdKey) != nullptr;
    };
    const s_LockArea* const area = firstWhere(_impl->areas, holdsKey, true);
    return area != nullptr ? area->id : -1;
}

} // namespace LCD::MainConfigImpl
