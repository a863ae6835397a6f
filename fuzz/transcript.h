// What the panel would see, written down: every value that a query gives, with all fields of all records below it. Two
// loads that give the same transcript are the same to every byte that a host can read.
#ifndef FUZZ_TRANSCRIPT_H
#define FUZZ_TRANSCRIPT_H

#include <QByteArray>
#include <QString>

#include <memory>
#include <string>
#include <type_traits>
#include <typeinfo>

namespace fuzz {

class Transcript {
public:
    [[nodiscard]] const QByteArray& text() const { return _text; }

    void add(const QString& text) { add(text.toUtf8()); }
    void add(const std::string& text) { add(QByteArray::fromStdString(text)); }
    void add(const QByteArray& text) { _text += text + '\n'; }
    template <class Record> void add(const std::shared_ptr<Record>& record)
    {
        if (record) return add(*record);
        _text += "null\n";
    }
    /// Numbers, pairs and lists of anything, and records.
    template <class Value> void add(const Value& value)
    {
        if constexpr (std::is_enum_v<Value> || std::is_integral_v<Value>) {
            _text += QByteArray::number(static_cast<qint64>(value)) + '\n';
        } else if constexpr (std::is_floating_point_v<Value>) {
            _text += QByteArray::number(double(value), 'g', 17) + '\n';
        } else if constexpr (requires { value.begin(); }) {
            _text += "[\n";
            for (const auto& entry : value) add(entry);
            _text += "]\n";
        } else if constexpr (requires { value.first, value.second; }) {
            add(value.first);
            add(value.second);
        } else if constexpr (!requires { value.lock(); }) { // What points upwards was written down above.
            addRecord(typeid(Value), &value);
        }
    }

private:
    void addRecord(const std::type_info& type, const void* record);

    QByteArray _text;
    int _depth = 0;
};

} // namespace fuzz

#endif
