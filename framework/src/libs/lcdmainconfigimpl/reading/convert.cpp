#include "convert.h"

namespace LCD::MainConfigImpl::reading {

namespace {

/// Whether the text is one to nine plain digits, as nearly every number of a file is. Then the field has its number
/// without the detours of Qt, which sees to signs, spaces, ranges and the digits of all scripts.
template <class Field> bool takesDigits(const QString& text, Field& field)
{
    if (text.isEmpty() || text.size() > 9) return false;
    int number = 0;
    for (const QChar character : text) {
        const int digit = character.unicode() - '0';
        if (digit < 0 || digit > 9) return false;
        number = number * 10 + digit;
    }
    field = static_cast<Field>(number);
    return true;
}

} // namespace

bool convert(const QString& text, int& field)
{
    bool good = takesDigits(text, field);
    if (!good) field = text.toInt(&good, 10);
    return good;
}

bool convert(const QString& text, std::uint64_t& field)
{
    bool good = takesDigits(text, field);
    if (!good) field = text.toULongLong(&good, 10);
    return good;
}

bool convert(const QString& text, float& field)
{
    bool good = takesDigits(text, field);
    if (!good) field = text.toFloat(&good);
    return good;
}

bool convert(const QString& text, double& field)
{
    bool good = takesDigits(text, field);
    if (!good) field = text.toDouble(&good);
    return good;
}

bool convert(const QString& text, std::string& field)
{
    field = text.toStdString();
    return true;
}

bool convert(const QString& text, QString& field)
{
    field = text;
    return true;
}

bool ThroughFloat::operator()(const QString& text, double& field) const
{
    float number = 0.0F;
    const bool good = convert(text, number);
    field = static_cast<double>(number);
    return good;
}

bool Signed64::operator()(const QString& text, std::uint64_t& field) const
{
    bool good = takesDigits(text, field);
    if (!good) field = static_cast<std::uint64_t>(text.toLongLong(&good, 10));
    return good;
}

bool Low16::operator()(const QString& text, std::uint64_t& field) const
{
    bool good = false;
    field = text.toUInt(&good, 10) & 0xFFFFU;
    return good;
}

bool Unsigned16::operator()(const QString& text, int& field) const
{
    bool good = false;
    field = text.toUShort(&good, 10);
    return good;
}

bool Hundredths::operator()(const QString& text, int& field) const
{
    float number = 0.0F;
    const bool good = convert(text, number);
    const float product = number * 100.0F;
    const bool fits = product > -2147483648.0F && product < 2147483648.0F;
    field = fits ? static_cast<int>(product) : 0;
    return good && fits;
}

} // namespace LCD::MainConfigImpl::reading
