// The fields of the records come from the table that the checker's reference has of them.
#include "transcript.h"

#include <lcdmainconfig/connector.h>
#include <lcdmainconfig/device.h>
#include <lcdmainconfig/feature.h>
#include <lcdmainconfig/menu.h>
#include <lcdmainconfig/panel.h>
#include <lcdmainconfig/settings.h>
#include <lcdmainconfig/subcard.h>

#include <functional>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace fuzz {

namespace {

using Field = std::function<void(Transcript& out, const void* record)>;
using Table = std::unordered_map<std::type_index, std::vector<Field>>;

template <class Record> class Rows {
public:
    Rows(Table& table, const char* /*name*/) : _fields(table[typeid(Record)]) {}

    template <class Base> Rows& basedOn()
    {
        return put([](Transcript& out, const Record& record) { out.add(static_cast<const Base&>(record)); });
    }
    template <class Member, class Owner> Rows& add(Member Owner::*member, const char* /*name*/, const char* /*meaning*/)
    {
        return put([member](Transcript& out, const Record& record) { out.add(record.*member); });
    }

private:
    template <class Write> Rows& put(const Write& write)
    {
        _fields.push_back(
            [write](Transcript& out, const void* record) { write(out, *static_cast<const Record*>(record)); });
        return *this;
    }

    std::vector<Field>& _fields;
};

Table makeTable()
{
    using namespace LCD::MainConfig;
    Table table;
#include "check/fields.inc"
    return table;
}

} // namespace

void Transcript::addRecord(const std::type_info& type, const void* record)
{
    static const Table table = makeTable();
    const auto found = table.find(type);
    if (found == table.end()) qFatal("no fields are known of %s", type.name());
    // A menu may be as deep as the parser lets it be, which is more than this recursion should bear.
    if (_depth > 500) return add(QByteArray("deeper"));
    ++_depth;
    for (const Field& field : found->second) field(*this, record);
    --_depth;
}

} // namespace fuzz
