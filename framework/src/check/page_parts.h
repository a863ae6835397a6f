// The parts of the page, one function for each, and what they write alike: links, badges, tables and drawings.
#ifndef LCDCHECK_PAGE_PARTS_H
#define LCDCHECK_PAGE_PARTS_H

#include "page_model.h"

#include "common/layoutdrawing.h"

#include <functional>
#include <memory>
#include <vector>

namespace lcdcheck {

using lcdcommon::Attributes;
using lcdcommon::Element;
using lcdcommon::Markup;
using lcdcommon::Name;
using lcdcommon::plain;

/// The page while it is written.
struct Sheet {
    const PageModel& model;
    const SourceLine& sourceLine;
    Markup out = Markup();
    int ids = 0; ///< How many ids were made.

    QString newId() { return QString("id-%1").arg(++ids); }
};

// --- The parts, in the order of the page

void writeFindings(Sheet& sheet);
void writeChassis(Sheet& sheet);
void writeCards(Sheet& sheet);
void writeConnectors(Sheet& sheet);
void writeScreens(Sheet& sheet);
void writeLayers(Sheet& sheet);
void writeMosaic(Sheet& sheet);
void writeMenu(Sheet& sheet);
void writeKeys(Sheet& sheet);
void writeFiles(Sheet& sheet);

/// What a connector type offers as one interface type, below the matrix of resolutions.
void writeConnectorType(Sheet& sheet, const PageConnectorType& type);
/// The matrix of connector types against resolutions.
void writeMatrix(Sheet& sheet);

// --- Timing, drawn to scale

/// A number of a timing: what it starts with, or 0 where files give none, and its limits.
struct TimingNumber {
    int value = 0;
    int min = 0;
    int max = 0;
};
struct TimingDirection {
    TimingNumber active;
    TimingNumber frontPorch;
    TimingNumber sync;
    TimingNumber total;
};
/// The limits as bars, one scale for each direction, and as a table.
void writeTimingLimits(Sheet& sheet, const TimingDirection& horizontal, const TimingDirection& vertical,
                       const Words& title);
/// One timing as a frame with its blanking, for a screen reader in the caption.
void writeTimingFrame(Sheet& sheet, const TimingDirection& horizontal, const TimingDirection& vertical,
                      const Words& title);

// --- Written alike

/// The script and the style sheet of the page.
const char* pageScript();
const char* pageStyle();

/// The heading of a part, with a line below it.
void heading(Sheet& sheet, const QString& anchor, const Words& title, const Words& lead);
/// How many findings there are about a thing, as a link to the first; nothing where there are none.
void badge(Sheet& sheet, const QString& anchor);
void link(Sheet& sheet, const QString& anchor, const QString& text);
void link(Sheet& sheet, const QString& anchor, const Words& words);
/// The number of a card model, leading to the card, or marked where the catalogue has none.
void cardLink(Sheet& sheet, std::uint64_t model);
void typeLink(Sheet& sheet, int type);
/// Holds a list; one that is too long to be seen at once is folded.
class List {
public:
    List(Sheet& sheet, std::size_t count);

private:
    Element _holder;
    std::unique_ptr<Element> _fold;
};
/// Several of these with free space between.
template <class Entries, class Write> void listOf(Sheet& sheet, const Entries& list, const Write& write)
{
    const List holder(sheet, list.size());
    for (const auto& entry : list) {
        write(entry);
        sheet.out.text(QStringLiteral(" "));
    }
}
/// What stands where there is nothing to show.
void nothing(Sheet& sheet, const Words& words);

/// The list of numbers, with commas.
QString numbers(const std::vector<int>& list);
template <class List> QString enumValues(const List& list)
{
    std::vector<int> values;
    values.reserve(list.size());
    for (const auto& entry : list) values.push_back(entry.value);
    return numbers(values);
}
/// "480 – 1200".
QString range(qint64 min, qint64 max);
/// A factor applied, without a tail of digits: 5994 and 0.01 are "59.94".
QString scaled(double value, double factor);
Words yesNo(bool yes);

/// Terms and what they are, in two columns.
class Facts {
public:
    explicit Facts(Sheet& sheet) : _sheet(sheet), _list(sheet.out, "dl", {{"class", "facts"}}) {}
    void add(const Words& term, const Words& fact);
    void add(const Words& term, const QString& fact) { add(term, plain(fact)); }
    void add(const Words& term, const std::function<void()>& write);

private:
    Sheet& _sheet;
    Element _list;
};

/// A table that scrolls in itself where it is too wide.
class TableSheet {
public:
    TableSheet(Sheet& sheet, const Words& caption, const std::vector<Words>& titles);
    /// A row; the first cell is its title.
    void row(const QStringList& cells);

private:
    Element _region;
    Element _table;
    Sheet& _sheet;
};

/// A drawing below its caption, which names it for a screen reader as well.
class Drawing {
public:
    enum class Kind { Picture, WithLinks };
    Drawing(Sheet& sheet, Kind kind, double width, double height, const Words& caption, const QString& kindOfDrawing);

private:
    struct Caption {
        Caption(Sheet& sheet, const Words& words);
        QString id;
    };
    Element _figure;
    Caption _caption;
    Element _region;
    Element _drawing;
};

} // namespace lcdcheck

#endif
