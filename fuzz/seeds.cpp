#include "seeds.h"

#include "try.h"

#include "check/source.h"
#include "check/vocabulary.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace fuzz {

namespace {

void writeSeed(const QString& folder, const QString& file, const QByteArray& name, const QByteArray& content)
{
    QDir().mkpath(folder);
    QFile out(QDir(folder).filePath(file));
    if (!out.open(QIODevice::WriteOnly) || out.write(name + '\n' + content) < 0)
        qFatal("cannot write %s", qUtf8Printable(out.fileName()));
}

QByteArray read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qUtf8Printable(path));
    return file.readAll();
}

} // namespace

QString grown(const lcdcheck::Element& element, int depth)
{
    QString text = '<' + element.tag;
    for (const lcdcheck::Attribute& attribute : element.body().attributes) {
        if (attribute.uses.empty()) continue;
        const QString value = attribute.uses.front().readDefault;
        text += ' ' + attribute.name + "=\"" + (value.isEmpty() ? "1" : value.toHtmlEscaped()) + '"';
    }
    text += element.content ? ">t" : ">";
    if (depth > 0)
        for (const auto& child : element.body().children)
            if (!child->refused) text += grown(*child, depth - 1);
    return text + "</" + element.tag + '>';
}

void writeSeeds(const QString& example, const QString& folder)
{
    int number = 0;
    for (QDirIterator it(example, {"*.xml"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString path = it.next();
        const auto kinds = lcdcheck::kindsByPlace(path);
        if (kinds.size() != 1) continue;
        const char* const name = lcdcheck::infoOf(kinds.front()).name;
        writeSeed(folder, QString("example%1-%2").arg(++number).arg(name), name, read(path));
    }
    const QByteArray settings = read(QDir(example).filePath("settings/lcdsetting.ini"));
    writeSeed(folder, "settings", FACTORY_SETTINGS, settings);
    writeSeed(folder, "usersettings", USER_SETTINGS, settings);
    for (const lcdcheck::FileKindInfo& info : lcdcheck::xmlKinds())
        writeSeed(folder, QString("grown-%1").arg(info.name), info.name,
                  grown(lcdcheck::grammarOf(info.kind).root(), 20).toUtf8());
}

} // namespace fuzz
