// What the tests share: files in a folder that goes away, and the log lines that a piece of code writes.
#ifndef TESTS_SUPPORT_H
#define TESTS_SUPPORT_H

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QtTest>

/// A temporary folder with files in it.
class Folder {
public:
    /// Writes a file, with the folders on its way, and returns its path.
    QString write(const QString& name, const QString& text) const
    {
        const QString file = path(name);
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly) || out.write(text.toUtf8()) < 0) qFatal("cannot write a test file");
        return file;
    }
    [[nodiscard]] QString path(const QString& name = {}) const
    {
        return name.isEmpty() ? _dir.path() : _dir.filePath(name);
    }

private:
    QTemporaryDir _dir;
};

/// Collects every log line while it lives; one that is no warning begins with its level.
class LogLines {
public:
    LogLines() : _previous(qInstallMessageHandler(&LogLines::take)) { lines().clear(); }
    ~LogLines() { qInstallMessageHandler(_previous); }
    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;

    /// The lines so far; the next call gives the lines after these.
    [[nodiscard]] QStringList taken() const { return std::exchange(lines(), {}); }

private:
    static QStringList& lines()
    {
        static QStringList all;
        return all;
    }
    static void take(QtMsgType type, const QMessageLogContext& /*where*/, const QString& line)
    {
        lines().append((type == QtWarningMsg ? "" : type == QtDebugMsg ? "debug: " : "other: ") + line);
    }

    QtMessageHandler _previous;
};

#endif
