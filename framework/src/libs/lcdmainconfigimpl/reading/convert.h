// How an attribute's text becomes a field. Every number of every file is converted here and nowhere else. A text that
// is no number of the wanted kind gives 0; the result tells so, and all readers but that of the lock areas ignore it on
// purpose: a bad number in a capability file is no error.
#ifndef LCDMAINCONFIGIMPL_READING_CONVERT_H
#define LCDMAINCONFIGIMPL_READING_CONVERT_H

#include "listener.h"

#include <QString>

#include <cstdint>
#include <string>
#include <type_traits>

namespace LCD::MainConfigImpl::reading {

bool convert(const QString& text, int& field);
bool convert(const QString& text, std::uint64_t& field);
bool convert(const QString& text, float& field);
bool convert(const QString& text, double& field);
bool convert(const QString& text, std::string& field); ///< UTF-8, always true.
bool convert(const QString& text, QString& field);     ///< Always true.

/// The kind of number that the field's type suggests.
template <class Field> constexpr Kind plainKind()
{
    if constexpr (std::is_same_v<Field, int>) return Kind::Int;
    if constexpr (std::is_same_v<Field, std::uint64_t>) return Kind::Unsigned64;
    if constexpr (std::is_same_v<Field, float>) return Kind::Float;
    if constexpr (std::is_same_v<Field, double>) return Kind::Double;
    return Kind::Text;
}

/// What a conversion takes a text for: its own kind, or what the field's type suggests where it has none.
template <class Field, class Convert> constexpr Kind kindOf()
{
    if constexpr (requires { Convert::KIND; })
        return Convert::KIND;
    else
        return plainKind<Field>();
}

/// The conversion that the field's type suggests.
struct Plain {
    template <class Field> bool operator()(const QString& text, Field& field) const { return convert(text, field); }
};

/// Through a 32-bit int, then widened: "2.5" is no int and gives 0; a negative number keeps its sign bits.
struct ThroughInt {
    static constexpr Kind KIND = Kind::Int;
    template <class Field> bool operator()(const QString& text, Field& field) const
    {
        int number = 0;
        const bool good = convert(text, number);
        field = static_cast<Field>(number);
        return good;
    }
};

/// Through single precision, then widened: 2.2 becomes 2.2000000476837158.
struct ThroughFloat {
    static constexpr Kind KIND = Kind::Float;
    bool operator()(const QString& text, double& field) const;
};

/// A signed 64-bit number in an unsigned field.
struct Signed64 {
    static constexpr Kind KIND = Kind::Signed64;
    bool operator()(const QString& text, std::uint64_t& field) const;
};

/// An unsigned 32-bit number of which the low 16 bits are kept.
struct Low16 {
    static constexpr Kind KIND = Kind::Unsigned32;
    bool operator()(const QString& text, std::uint64_t& field) const;
};

/// An unsigned 16-bit number; a larger one is no number.
struct Unsigned16 {
    static constexpr Kind KIND = Kind::Unsigned16;
    bool operator()(const QString& text, int& field) const;
};

/// A number with decimals in hundredths. The product is formed in single precision and truncated toward zero; a number
/// beyond an int's range is none.
struct Hundredths {
    static constexpr Kind KIND = Kind::Hundredths;
    bool operator()(const QString& text, int& field) const;
};

} // namespace LCD::MainConfigImpl::reading

#endif
