#include "convert.h"

namespace LCD::MainConfigImpl::reading {

bool convert(const QString& text, int& field)
{
    bool good = false;
    field = text.toInt(&good, 10);
    return good;
}

bool convert(const QString& text, std::uint64_t& field)
{
    bool good = false;
    field = text.toULongLong(&good, 10);
    return good;
}

bool convert(const QString& text, float& field)
{
    bool good = false;
    field = text.toFloat(&good);
    return good;
}

bool convert(const QString& text, double& field)
{
    bool good = false;
    field = text.toDouble(&good);
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
    bool good = false;
    field = static_cast<std::uint64_t>(text.toLongLong(&good, 10));
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
