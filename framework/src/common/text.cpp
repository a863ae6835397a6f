#include "common/text.h"

#include <QChar>
#include <QVector>

#include <algorithm>
#include <iterator>

namespace lcdcommon {
namespace {

bool isWide(uint character)
{
    // The blocks of East Asian characters, and the pictures that terminals draw as wide as these.
    constexpr std::pair<uint, uint> WIDE[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},  {0x3041, 0xA4CF}, {0xAC00, 0xD7A3},
                                              {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},  {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6},
                                              {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};
    return std::any_of(std::begin(WIDE), std::end(WIDE),
                       [character](auto block) { return character >= block.first && character <= block.second; });
}

bool isMark(uint character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing || category == QChar::Other_Format;
}

int columnsOf(uint character)
{
    if (isMark(character)) return 0;
    return isWide(character) ? 2 : 1;
}

} // namespace

int columnsOf(const QString& text)
{
    int columns = 0;
    for (const uint character : text.toUcs4()) columns += columnsOf(character);
    return columns;
}

QString padded(const QString& text, int width)
{
    return text + QString(std::max(0, width - columnsOf(text)), QChar(' '));
}

QString cut(const QString& text, int width)
{
    if (columnsOf(text) <= width) return text;
    const QVector<uint> characters = text.toUcs4();
    int room = width - 1;
    int kept = 0;
    while ((room -= columnsOf(characters[kept])) >= 0) ++kept;
    return QString::fromUcs4(characters.constData(), kept) + QChar(0x2026);
}

QString printable(QString text)
{
    std::replace_if(
        text.begin(), text.end(), [](QChar character) { return character.category() == QChar::Other_Control; },
        QChar(' '));
    return text;
}

} // namespace lcdcommon
