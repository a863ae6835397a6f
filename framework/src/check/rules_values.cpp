// The values of a file: numbers that are none, values outside their own range or list.
#include "rules.h"

#include <lcdmainconfig/common.h>

#include <QHash>

#include <algorithm>
#include <cmath>
#include <map>

namespace lcdcheck {

namespace {

const QLatin1String MIN("Min");
const QLatin1String MAX("Max");
const QLatin1String VALUE("Value");

bool isNumber(reading::Kind kind) { return kind != reading::Kind::Text; }

bool hasDecimals(reading::Kind kind)
{
    return kind == reading::Kind::Float || kind == reading::Kind::Double || kind == reading::Kind::Hundredths;
}

QString wanted(reading::Kind kind) { return hasDecimals(kind) ? "a number" : "a whole number"; }

/// What is wrong with a text that is no number of the kind.
QString flaw(const QString& text, reading::Kind kind)
{
    const QString trimmed = text.trimmed();
    bool good = false;
    if (trimmed.isEmpty()) return "is empty";
    if (trimmed.startsWith("0x", Qt::CaseInsensitive) && trimmed.mid(2).toULongLong(&good, 16); good)
        return "is hexadecimal";
    const double number = trimmed.toDouble(&good);
    if (!good || !std::isfinite(number)) return "is no number";
    if (hasDecimals(kind)) return "is too large";
    if (number != std::floor(number)) return "has decimals";
    if (trimmed.contains('.') || trimmed.contains('e', Qt::CaseInsensitive)) return "is not written as a whole number";
    const bool isUnsigned =
        kind == reading::Kind::Unsigned16 || kind == reading::Kind::Unsigned32 || kind == reading::Kind::Unsigned64;
    return isUnsigned && number < 0 ? "is negative" : "is too large";
}

/// What is stored of a text, where that is not the number that the author wrote; empty where it is.
QString storedInstead(const QString& text, const HeardAttribute& asked)
{
    if (!asked.good) return "0";
    if (hasDecimals(asked.kind) && !std::isfinite(text.toDouble())) return text.trimmed();
    constexpr uint LOW_BITS = 0xffff;
    const uint number = text.toUInt();
    if (asked.kind == reading::Kind::Unsigned32 && number > LOW_BITS) return QString::number(number & LOW_BITS);
    return {};
}

/// Whether every text that is a number of the kind is stored as that number.
bool storesAll(reading::Kind kind) { return !hasDecimals(kind) && kind != reading::Kind::Unsigned32; }

/// One attribute of an element as a number, where it is there and is one.
struct Number {
    const Source::Attribute* written = nullptr;
    double value = 0;
    explicit operator bool() const { return written != nullptr; }
};

class Values {
public:
    Values(const HeardFile& file, Findings& findings) : _file(file), _judge(file, findings) {}

    void judgeNumbers(int element);
    void judgeRange(int element);
    /// Judges the list of values below an element.
    void judgeList(int element, const std::vector<int>& entries);
    [[nodiscard]] bool isEntry(int element) const;

private:
    [[nodiscard]] const HeardElement& heard(int element) const { return _file.elements[std::size_t(element)]; }
    [[nodiscard]] Number number(int element, QLatin1String name) const;

    const HeardFile& _file;
    FileJudge _judge;
};

void Values::judgeNumbers(int element)
{
    const Source& source = _file.source;
    for (const HeardAttribute& asked : heard(element).attributes) {
        if (!asked.present || !isNumber(asked.kind) || (asked.good && storesAll(asked.kind))) continue;
        const Source::Attribute* const written = source.attribute(source.elements()[std::size_t(element)], asked.name);
        if (written == nullptr || _file.isFaulty(*written)) continue;
        const QString text = source.value(*written);
        const QString stored = storedInstead(text, asked);
        if (stored.isEmpty()) continue;
        Finding& finding =
            _judge.about("not-a-number", element, *written,
                         QString("%1 wants %2, and %3 %4")
                             .arg(quoted(asked.name), wanted(asked.kind), quoted(text), flaw(text, asked.kind)));
        finding.cost = QString("%1 is stored").arg(stored);
    }
}

Number Values::number(int element, QLatin1String name) const
{
    const HeardAttribute* const asked = heard(element).attribute(name);
    // The limits of a text are those of its length.
    if (asked == nullptr || !asked->present || !asked->good || !isNumber(asked->kind)) return {};
    const Source& source = _file.source;
    const Source::Attribute* const written = source.attribute(source.elements()[std::size_t(element)], asked->name);
    if (written != nullptr && _file.isFaulty(*written)) return {};
    bool good = false;
    const double value = written == nullptr ? 0 : source.value(*written).toDouble(&good);
    return good ? Number{written, value} : Number{};
}

void Values::judgeRange(int element)
{
    const Number min = number(element, MIN);
    const Number max = number(element, MAX);
    const auto show = [](double value) { return QString::number(value, 'g', 12); };
    if (min && max && min.value > max.value) {
        _judge.about("empty-range", element, *min.written,
                     QString("\"Min\" %1 is above \"Max\" %2").arg(show(min.value), show(max.value)));
        return;
    }
    const Number value = min || max ? number(element, VALUE) : Number{};
    if (!value) return;
    if (min && value.value < min.value)
        _judge.about("value-out-of-range", element, *value.written,
                     QString("\"Value\" %1 is below \"Min\" %2").arg(show(value.value), show(min.value)));
    if (max && value.value > max.value)
        _judge.about("value-out-of-range", element, *value.written,
                     QString("\"Value\" %1 is above \"Max\" %2").arg(show(value.value), show(max.value)));
}

/// Whether an element is one allowed value of the element above it: an entry of a list of values.
bool Values::isEntry(int element) const
{
    static const Field named = fieldOf<LCD::MainConfig::s_EnumStringValue>(&LCD::MainConfig::s_EnumStringValue::value);
    const HeardAttribute* const asked = heard(element).attribute(VALUE);
    return asked != nullptr && !heard(element).visits.empty() && (asked->whole || asked->field == named);
}

void Values::judgeList(int element, const std::vector<int>& entries)
{
    QHash<qlonglong, int> lines;
    bool known = true;
    for (const int child : entries) {
        const Number value = number(child, VALUE);
        known = known && value;
        if (!value) continue;
        int& line = lines[qlonglong(value.value)];
        if (line != 0)
            _judge.about("duplicate-value", child, *value.written,
                         QString("%1 is in this list already, on line %2").arg(qlonglong(value.value)).arg(line));
        else
            line = _file.source.place(value.written->name).line;
    }
    if (lines.isEmpty() || !known) return;
    const Number chosen = number(element, VALUE);
    if (!chosen || lines.contains(qlonglong(chosen.value))) return;
    _judge.about("value-not-in-list", element, *chosen.written,
                 QString("\"Value\" %1 is not in the list below it").arg(qlonglong(chosen.value)));
}

} // namespace

void judgeValues(const HeardFile& file, Findings& findings)
{
    if (!file.wasRead) return;
    Values values(file, findings);
    std::map<int, std::vector<int>> entries;
    for (int element = 0; element < int(file.elements.size()); ++element) {
        values.judgeNumbers(element);
        values.judgeRange(element);
        const int parent = file.source.elements()[std::size_t(element)].parent;
        if (parent >= 0 && values.isEntry(element)) entries[parent].push_back(element);
    }
    for (const auto& [element, list] : entries) values.judgeList(element, list);
}

} // namespace lcdcheck
