// What the parts of the page share: the loaded configuration by the numbers that name each thing, who uses what, which
// finding belongs where, and the anchors by which all of it is linked.
#ifndef LCDCHECK_PAGE_MODEL_H
#define LCDCHECK_PAGE_MODEL_H

#include "page.h"

#include "common/markup.h"

#include <QStringList>

#include <map>
#include <set>

namespace lcdcheck {

namespace Lcd = LCD::MainConfig;
using lcdcommon::Words;

/// One slot of a chassis.
struct PageSlot {
    const Lcd::s_Slot* slot = nullptr;
    const Lcd::s_SlotAttr* slotClass = nullptr;
    Words className;
    QString anchor; ///< Null for the second slot of one index, which nothing can lead to.
};

/// One screen or layer type, with the file that it came from where that is sure.
template <class Record> struct PageType {
    const Record* record = nullptr;
    QString anchor;
    QString file;
};

struct PageDevice {
    const Lcd::s_Device* device = nullptr;
    QString prefix;                  ///< Of its anchors; empty for the current device.
    std::vector<PageSlot> cardSlots; ///< By index.
    std::vector<PageType<Lcd::s_DCSScreen>> screens;
    std::vector<PageType<Lcd::s_DCSLayer>> layers;

    [[nodiscard]] const PageSlot* slotOf(int index) const;
};

struct PageCard {
    const Lcd::s_Subcard* card = nullptr;
    QString anchor;
};

/// One connector type that some card has.
struct PageConnectorType {
    int type = 0;
    Words name;                  ///< Empty: none is loaded. The panel gives the Chinese one, whatever its language.
    bool known = false;          ///< It stands in the catalogue.
    std::vector<int> interfaces; ///< Interface types, single bits, for which it says anything.
    std::set<int> cards;         ///< Models of the cards that have it.
    QString anchor;
};

/// One resolution, as the matrix lists it.
struct PageResolution {
    int width = 0;
    int height = 0;
    bool interlaced = false;

    friend auto operator<=>(const PageResolution&, const PageResolution&) = default;
    [[nodiscard]] QString anchor() const;
    [[nodiscard]] QString text() const;
};

class PageModel {
public:
    PageModel(const Loaded& loaded, const Findings& findings);

    [[nodiscard]] const Loaded& loaded() const { return _loaded; }
    [[nodiscard]] const Findings& findings() const { return _findings; }
    [[nodiscard]] const std::vector<PageDevice>& devices() const { return _devices; }
    [[nodiscard]] const std::vector<PageCard>& cards() const { return _cards; }
    [[nodiscard]] const std::vector<PageConnectorType>& types() const { return _types; }

    /// The first card of a model; null when the catalogue has none.
    [[nodiscard]] const PageCard* card(std::uint64_t model) const;
    [[nodiscard]] const PageConnectorType* type(int type) const;
    /// The slots that take a card, as device and slot.
    [[nodiscard]] std::vector<std::pair<const PageDevice*, const PageSlot*>> slotsOf(int model) const;
    /// Whether some card that may sit in the slot has a connector at that position.
    [[nodiscard]] bool hasConnector(const PageSlot& slot, int position) const;

    /// The anchor of what a file tells of; of a section where it is no single thing.
    [[nodiscard]] QString subjectOf(const QString& file) const;
    [[nodiscard]] QString subjectOf(const Finding& finding) const;
    /// The numbers of the findings about a thing, from 0.
    [[nodiscard]] std::vector<std::size_t> findingsOf(const QString& anchor) const;
    /// A path, relative to the root where it lies in it.
    [[nodiscard]] QString shownPath(const QString& file) const;
    /// All files of the root that its catalogues can hold.
    [[nodiscard]] QStringList files() const;

private:
    void addDevices();
    void addCards();
    void addTypes();

    const Loaded& _loaded;
    const Findings& _findings;
    std::shared_ptr<Lcd::s_DCSSubcard> _catalogue;
    std::vector<PageDevice> _devices;
    std::vector<PageCard> _cards;
    std::map<std::uint64_t, std::size_t> _cardOf;
    std::vector<PageConnectorType> _types;
    std::map<QString, QString> _subjects; ///< By file: anchors of screens and layers.
    std::map<QString, std::vector<std::size_t>> _findingsOf;
};

/// An interface type in words, as "input"; of several bits all of them.
Words interfaceWords(int type);

} // namespace lcdcheck

#endif
