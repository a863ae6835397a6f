// Tries inputs that are kept in files: `replay FILE-OR-FOLDER...`. Or writes the inputs from which fuzzing starts:
// `replay --seeds EXAMPLE FOLDER`.
#include "seeds.h"
#include "try.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace {

QStringList filesAt(const QString& path)
{
    if (!QFileInfo(path).isDir()) return {path};
    QStringList files;
    for (QDirIterator it(path, QDir::Files); it.hasNext();) files.append(it.next());
    files.sort();
    return files;
}

} // namespace

int main(int count, char** arguments)
{
    const QCoreApplication application(count, arguments);
    QStringList paths = application.arguments().mid(1);
    if (paths.size() == 3 && paths.first() == "--seeds") {
        fuzz::writeSeeds(paths[1], paths[2]);
        return 0;
    }
    int tried = 0;
    for (const QString& path : paths)
        for (const QString& name : filesAt(path)) {
            QFile file(name);
            if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qUtf8Printable(name));
            // Flushed, so that the last line before a crash tells the input.
            fprintf(stderr, "%s\n", qUtf8Printable(name));
            fuzz::tryInput(fuzz::Input(file.readAll()));
            ++tried;
        }
    printf("%d inputs tried\n", tried);
    return tried > 0 ? 0 : 1;
}
