// How an entry of an ini file becomes a number or a text. Every look-up of every getter passes through here, and tells
// a listener, where there is one, what was asked for and what was there.
#ifndef LCDMAINCONFIGIMPL_SETTINGS_HEARDSETTING_H
#define LCDMAINCONFIGIMPL_SETTINGS_HEARDSETTING_H

#include "reading/listener.h"

#include <QString>
#include <QVariant>

namespace LCD::MainConfigImpl {

/// Tells of an entry that was asked for; an invalid value is an absent entry.
inline void tellSetting(const QString& key, reading::Kind kind, const QVariant& value, const QString& absent)
{
    if (reading::Listener::current() == nullptr) return;
    bool good = true;
    if (value.isValid() && kind == reading::Kind::Int) value.toInt(&good);
    // A comma outside quotes makes a list, which is no text either.
    if (value.type() == QVariant::StringList) good = false;
    reading::Listener::current()->settingAsked(key, {key, kind, absent, value.isValid(), good, {}, {}});
}

/// The entry as a number; 0 for what is none.
inline int settingNumber(const QString& key, const QVariant& value)
{
    tellSetting(key, reading::Kind::Int, value, QStringLiteral("0"));
    return value.toInt();
}

/// The entry as a text; a list reads as an empty one.
inline QString settingText(const QString& key, const QVariant& value)
{
    tellSetting(key, reading::Kind::Text, value, {});
    return value.toString();
}

} // namespace LCD::MainConfigImpl

#endif
