#include "fields.h"

#include "heard.h"

#include <lcdmainconfig/connector.h>
#include <lcdmainconfig/device.h>
#include <lcdmainconfig/feature.h>
#include <lcdmainconfig/menu.h>
#include <lcdmainconfig/panel.h>
#include <lcdmainconfig/settings.h>
#include <lcdmainconfig/subcard.h>

#include <typeindex>
#include <unordered_map>

namespace lcdcheck {

namespace {

struct Row {
    std::size_t offset;
    const char* member;
    const char* meaning;
};

struct Record {
    const char* name = nullptr;
    const std::type_info* base = nullptr; ///< Stands at its beginning.
    std::vector<Row> rows;
};

using Table = std::unordered_map<std::type_index, Record>;

/// Adds what the headers say of one record.
template <class Type> class Rows {
public:
    Rows(Table& table, const char* name) : _record(table[typeid(Type)]) { _record.name = name; }

    template <class Base> Rows& basedOn()
    {
        _record.base = &typeid(Base);
        return *this;
    }
    template <class Member, class Owner> Rows& add(Member Owner::*member, const char* name, const char* meaning)
    {
        _record.rows.push_back({static_cast<std::size_t>(fieldOf<Type>(member).offset), name, meaning});
        return *this;
    }

private:
    Record& _record;
};

Table makeTable()
{
    using namespace LCD::MainConfig;
    Table table;
#include "fields.inc"
    return table;
}

} // namespace

FieldInfo infoOf(const FieldPlace& field)
{
    static const Table table = makeTable();
    if (field.record == nullptr) return {};
    const auto found = table.find(*field.record);
    const char* const name = found != table.end() ? found->second.name : nullptr;
    for (auto record = found; record != table.end();) {
        for (const Row& row : record->second.rows)
            if (row.offset == field.offset) return {name, row.member, QString::fromUtf8(row.meaning)};
        record = record->second.base != nullptr ? table.find(*record->second.base) : table.end();
    }
    return {};
}

} // namespace lcdcheck
