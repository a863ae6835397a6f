#include "common/json.h"

#include <QJsonDocument>

namespace lcdcommon {

QByteArray jsonText(const QJsonObject& object)
{
    QString text;
    // Outside texts the line's end is the only control character; inside it is escaped already.
    for (const QChar character : QString::fromUtf8(QJsonDocument(object).toJson()))
        if (character.category() == QChar::Other_Control && character != '\n')
            text += QStringLiteral("\\u%1").arg(uint(character.unicode()), 4, 16, QChar('0'));
        else
            text += character;
    return text.toUtf8();
}

} // namespace lcdcommon
