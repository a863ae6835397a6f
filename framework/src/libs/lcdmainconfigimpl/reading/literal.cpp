#include "literal.h"

#include <QHash>

namespace LCD::MainConfigImpl::reading {

const QString& Literal::string() const
{
    // One table for each thread, so that readers on several threads need no lock.
    static thread_local QHash<const char*, QString> made;
    QString& text = made[_text];
    if (text.isNull()) text = QString::fromLatin1(_text);
    return text;
}

} // namespace LCD::MainConfigImpl::reading
