// The cells that readers put into their rows: the attributes that many elements share, under their names, and the
// words for the rest: attribute cells over any member, lists, children and shapes of several cells.
//
// `Min("100")` reads the attribute "Min", or the text 100 where it is absent, into `min` of whatever record has such a
// member, and does not compile for one that has none. `Min` alone has an empty read default.
#ifndef LCDMAINCONFIGIMPL_READING_CELLS_H
#define LCDMAINCONFIGIMPL_READING_CELLS_H

#include "reader.h"

#include <concepts>
#include <functional>

namespace LCD::MainConfigImpl::reading {

/// One attribute and the field it fills. `Access` gives the field of a record: a member pointer or a function.
template <class Access, class Convert = Plain> struct Attribute {
    Literal name;
    Access access;
    Convert convert{};
    Literal readDefault = "";

    /// The same cell with another read default.
    constexpr Attribute operator()(Literal otherDefault) const { return {name, access, convert, otherDefault}; }

    /// Fills the field. False when the text was no number of the field's kind, which few readers look at.
    template <class Record>
    requires std::invocable<const Access&, Record&>
    bool operator()(const Reader& in, Record& record) const
    {
        return in.field(name, readDefault, std::invoke(access, record), convert, locationOf(record));
    }
};

template <class Access> Attribute(Literal, Access) -> Attribute<Access>;
template <class Access, class Convert> Attribute(Literal, Access, Convert) -> Attribute<Access, Convert>;

// clang-format off
inline constexpr Attribute Support    {"Support",     [](auto& record) -> decltype((record.support))     { return record.support; }};
inline constexpr Attribute Editable   {"Editable",    [](auto& record) -> decltype((record.editable))    { return record.editable; }};
inline constexpr Attribute Value      {"Value",       [](auto& record) -> decltype((record.value))       { return record.value; }};
inline constexpr Attribute DataType   {"DataType",    [](auto& record) -> decltype((record.dataType))    { return record.dataType; }};
inline constexpr Attribute Min        {"Min",         [](auto& record) -> decltype((record.min))         { return record.min; }, ThroughInt{}};
inline constexpr Attribute Max        {"Max",         [](auto& record) -> decltype((record.max))         { return record.max; }, ThroughInt{}};
inline constexpr Attribute Step       {"Step",        [](auto& record) -> decltype((record.step))        { return record.step; }, ThroughInt{}};
inline constexpr Attribute StepDouble {"Step",        [](auto& record) -> decltype((record.step))        { return record.step; }};
inline constexpr Attribute Coefficient{"Coefficient", [](auto& record) -> decltype((record.coefficient)) { return record.coefficient; }};
inline constexpr Attribute Type       {"Type",        [](auto& record) -> decltype((record.type))        { return record.type; }};
inline constexpr Attribute Default    {"Default",     [](auto& record) -> decltype((record.defaultValue)) { return record.defaultValue; }};
inline constexpr Attribute Width      {"Width",       [](auto& record) -> decltype((record.width))       { return record.width; }};
inline constexpr Attribute Height     {"Height",      [](auto& record) -> decltype((record.height))      { return record.height; }};
inline constexpr Attribute RelativePath{"RelativePath", [](auto& record) -> decltype((record.relativePath)) { return record.relativePath; }};
inline constexpr Attribute AbsolutePath{"AbsolutePath", [](auto& record) -> decltype((record.absolutePath)) { return record.absolutePath; }};
// clang-format on

/// An attribute over any member, for the ones that few elements have. Empty read default unless told.
template <class Access, class Convert = Plain>
constexpr Attribute<Access, Convert> cell(Literal name, Access access, Literal readDefault = "", Convert convert = {})
{
    return {name, access, convert, readDefault};
}

/// An attribute that is the whole entry of a list of plain numbers.
constexpr auto entry(Literal name, Literal readDefault = "") { return cell(name, std::identity{}, readDefault); }

/// Several cells as one: the shape of an element that stands in many places.
template <class... Cells> constexpr auto cells(Cells... parts)
{
    return [parts...](const Reader& in, auto& record) { in.read(record, parts...); };
}

/// Cells that fill a record aside, which is stored whole, or not at all when one of them fails. The failure goes on to
/// the reader of the row, unlike that of a staged() row.
template <class... Cells> constexpr auto whole(Cells... parts)
{
    return [parts...]<class Record>(const Reader& in, Record& record) {
        Record aside{};
        in.standsFor(aside, record);
        in.read(aside, parts...);
        if (!in.failed()) record = std::move(aside);
    };
}

/// A list below the element, into a member of its record.
template <class Access, class... Cells> constexpr auto list(Walk walk, Literal tag, Access access, Cells... parts)
{
    return [walk, tag, access, parts...](const Reader& in, auto& record) {
        in.list(walk, tag, std::invoke(access, record), parts...);
    };
}

/// A child of the element, into a member of its record.
template <class Access, class... Cells> constexpr auto child(Literal tag, OnNull onNull, Access access, Cells... parts)
{
    return [tag, onNull, access, parts...](const Reader& in, auto& record) {
        in.element(tag, onNull, std::invoke(access, record), parts...);
    };
}

/// A child of the element whose cells fill the element's own record.
template <class... Cells> constexpr auto below(Literal tag, OnNull onNull, Cells... parts)
{
    return child(tag, onNull, std::identity{}, parts...);
}

/// Cells that fill a member of the record from the element itself.
template <class Access, class... Cells> constexpr auto part(Access access, Cells... parts)
{
    return [access, parts...](const Reader& in, auto& record) { in.read(std::invoke(access, record), parts...); };
}

/// The list of allowed values of a setting: elements whose attribute "Value" goes to `enums` of the record.
constexpr auto enums(Walk walk, Literal readDefault = "", Literal tag = "Enum")
{
    return list(
        walk, tag, [](auto& record) -> decltype((record.enums)) { return record.enums; }, Value(readDefault));
}

/// A text in two languages, each the content of a child element that must be there.
inline constexpr auto languages = [](const Reader& in, auto& name) {
    in.content("zh_CN", OnNull::Fail, name.zhCN);
    in.content("en", OnNull::Fail, name.en);
};

} // namespace LCD::MainConfigImpl::reading

#endif
