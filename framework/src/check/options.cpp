#include "options.h"

#include "filekind.h"

#include "common/access.h"
#include "common/layout.h"
#include "common/nearest.h"
#include "common/text.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace lcdcheck {
namespace {

/// One option of checking. `take` gives why the value is wrong, or an empty text.
struct Option {
    const char* name;
    const char* value; ///< What stands behind it; every one of these options takes a value.
    const char* help;
    QString (*take)(const QString& value, Options& options);
};

/// The place of a name in a list of names; -1 with `wrong` telling what could have been meant.
int indexOf(const QString& value, const QStringList& names, const QString& option, QString& wrong)
{
    const int index = names.indexOf(value);
    if (index < 0) {
        const QString near = suggestion(value, names);
        wrong = QStringLiteral("--%1 knows no '").arg(option) + value + '\'' +
                (near.isEmpty() ? ", only " + names.join(", ") : near);
    }
    return index;
}

QString takeFormat(const QString& value, Options& options)
{
    QStringList names;
    for (const Format& format : formats()) names.append(format.name);
    QString wrong;
    const int index = indexOf(value, names, "format", wrong);
    if (index >= 0) options.format = &formats()[std::size_t(index)];
    return wrong;
}

QString takeIds(const QString& value, QStringList& ids)
{
    for (const QString& part : value.split(',')) {
        const QString id = part.trimmed();
        if (!kindOf(id)) return "no finding is called '" + id + '\'' + suggestion(id, kindIds());
        ids.append(id);
    }
    return {};
}

QString takeOnly(const QString& value, Options& options) { return takeIds(value, options.selection.only); }
QString takeIgnore(const QString& value, Options& options) { return takeIds(value, options.selection.ignore); }

QString takeFailOn(const QString& value, Options& options)
{
    static constexpr std::optional<Severity> severities[] = {Severity::Error, Severity::Warning, Severity::Note, {}};
    QString wrong;
    const int index = indexOf(value, {"error", "warning", "note", "never"}, "fail-on", wrong);
    if (index >= 0) options.failOn = severities[index];
    return wrong;
}

QString takeKind(const QString& value, Options& options)
{
    QString wrong;
    if (indexOf(value, fileKindNames(), "kind", wrong) >= 0) options.request.kind = value;
    return wrong;
}

QString takeLanguage(const QString& value, Options& options)
{
    QString wrong;
    if (indexOf(value, {"en", "zh_CN"}, "language", wrong) >= 0) options.request.language = value;
    return wrong;
}

QString takeHtml(const QString& value, Options& options)
{
    options.html = value;
    return value.isEmpty() ? "--html needs the name of a file" : QString();
}

const std::vector<Option>& checkOptions()
{
    static const std::vector<Option> all{
        {"format", "FORMAT", "How findings are written; see below.", takeFormat},
        {"only", "ID,...", "Tell these findings alone.", takeOnly},
        {"ignore", "ID,...", "Do not tell these findings.", takeIgnore},
        {"fail-on", "SEVERITY", "End with status 1 from error, warning (default) or note on, or never.", takeFailOn},
        {"html", "FILE", "Write a page of the configuration with its findings too.", takeHtml},
        {"kind", "KIND", "What the single files are, where place and name do not tell; see below.", takeKind},
        {"language", "LANGUAGE", "Language of names in messages, en (default) or zh_CN.", takeLanguage},
    };
    return all;
}

QStringList optionNames(const std::vector<Mode>& modes)
{
    QStringList names;
    for (const Mode& mode : modes)
        if (*mode.option) names.append(mode.option);
    for (const Option& option : checkOptions()) names.append(option.name);
    return names;
}

bool isRoot(const QString& path)
{
    const std::vector<lcdcommon::Folder>& all = lcdcommon::folders();
    return std::any_of(all.begin(), all.end(), [&path](const lcdcommon::Folder& folder) {
        return QFileInfo(lcdcommon::pathOf(path, folder)).isDir();
    });
}

/// Sorts a path into roots and files. Gives why there is nothing to check there.
QString takePath(const QString& path, const QStringList& names, Request& request)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink()) {
        const QString option = path.contains('/') ? QString() : suggestion(path, names, "--");
        const QStringList beside = info.dir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        const QString lead = path.left(path.size() - info.fileName().size());
        return path + " is not there" + (option.isEmpty() ? suggestion(info.fileName(), beside, lead) : option);
    }
    if (!info.isDir()) {
        if (!request.files.contains(path)) request.files.append(path);
        return {};
    }
    const QString why = lcdcommon::whyNoFolder(path);
    if (!why.isEmpty()) return path + ": " + why;
    if (!isRoot(path)) return path + " is no configuration root: it has no folder to read";
    const QString root = QDir::cleanPath(path);
    if (!request.roots.contains(root)) request.roots.append(root);
    return {};
}

/// Reads words one after the other.
class Reading {
public:
    Reading(const QStringList& arguments, const std::vector<Mode>& modes) : _arguments(arguments), _modes(modes) {}

    CommandLine read()
    {
        for (; _at < _arguments.size() && !_settled; ++_at) readWord(_arguments[_at]);
        if (_settled) return {_line.mode, {}, {}};
        finish();
        return std::move(_line);
    }

private:
    void wrong(const QString& text)
    {
        if (_line.wrong.isEmpty()) _line.wrong = text;
    }

    void readWord(const QString& word)
    {
        if (_onlyPaths || word == "-" || !word.startsWith('-')) {
            _paths.append(word);
        } else if (word == "--") {
            _onlyPaths = true;
        } else if (word.startsWith("--")) {
            const int equals = word.indexOf('=');
            readOption(word.mid(2, equals < 0 ? -1 : equals - 2), equals < 0 ? QString() : word.mid(equals + 1));
        } else {
            readLetter(word);
        }
    }

    void readLetter(const QString& word)
    {
        for (const Mode& mode : _modes)
            if (mode.letter && word == QString('-') + mode.letter) return readMode(mode, {});
        wrong("unknown option '" + word + '\'');
    }

    void readOption(const QString& name, const QString& value)
    {
        for (const Mode& mode : _modes)
            if (*mode.option && name == mode.option) return readMode(mode, value);
        if (name == "format") {
            _line.options.formatName = valueOf(name, value);
            return;
        }
        for (const Option& option : checkOptions()) {
            if (name != option.name) continue;
            _stray = _stray.isEmpty() ? name : _stray;
            const QString given = valueOf(name, value);
            if (!given.isNull()) wrong(option.take(given, _line.options));
            return;
        }
        wrong("unknown option '--" + name + '\'' + suggestion(name, optionNames(_modes), "--"));
    }

    void readMode(const Mode& mode, const QString& value)
    {
        // Those who ask for help get it, whatever else they wrote.
        _settled = !mode.checks && !mode.value && mode.letter;
        if (!_settled && _line.mode && _line.mode != &mode)
            return wrong(QStringLiteral("--%1 and --%2 do not go together").arg(_line.mode->option, mode.option));
        _line.mode = &mode;
        if (mode.value && (*mode.value != '[' || !value.isNull() || isWordNext()))
            _line.options.subject = valueOf(mode.option, value);
        else if (!value.isNull())
            wrong(QStringLiteral("--%1 takes no value").arg(mode.option));
    }

    [[nodiscard]] bool isWordNext() const
    {
        return _at + 1 < _arguments.size() && !_arguments[_at + 1].startsWith('-');
    }

    /// The value behind "=", or the next word; null when there is none.
    QString valueOf(const QString& name, const QString& value)
    {
        if (!value.isNull()) return value;
        if (_at + 1 < _arguments.size()) return _arguments[++_at];
        wrong("--" + name + " needs a value");
        return {};
    }

    void finish()
    {
        for (const Mode& mode : _modes)
            if (!_line.mode && !*mode.option) _line.mode = &mode;
        if (!_line.wrong.isEmpty()) return;
        if (!_line.mode->checks) return finishOther(*_line.mode);
        if (!_line.options.formatName.isNull()) wrong(takeFormat(_line.options.formatName, _line.options));
        if (_paths.isEmpty()) wrong("nothing to check");
        for (const QString& path : _paths) wrong(takePath(path, optionNames(_modes), _line.options.request));
        if (!_line.options.request.kind.isEmpty() && _line.options.request.files.isEmpty())
            wrong("--kind is for single files");
        if (!_line.options.html.isEmpty() && _line.options.request.roots.size() != 1) wrong("--html is for one root");
    }

    /// Of a mode that does not check.
    void finishOther(const Mode& mode)
    {
        const QStringList known = QString(mode.formats).split(' ', Qt::SkipEmptyParts);
        const QString& format = _line.options.formatName;
        if (known.isEmpty() && !format.isNull()) _stray = "format";
        if (!_stray.isEmpty()) wrong(QStringLiteral("--%1 takes no --").arg(mode.option) + _stray);
        if (!*mode.paths && !_paths.isEmpty())
            wrong(QStringLiteral("--%1 takes no ").arg(mode.option) + _paths.first());
        QString why;
        if (!format.isNull()) indexOf(format, known, "format", why);
        wrong(why);
        _line.options.paths = _paths;
    }

    const QStringList& _arguments;
    const std::vector<Mode>& _modes;
    int _at = 0;
    CommandLine _line;
    QStringList _paths;
    QString _stray; ///< The first option of checking.
    bool _onlyPaths = false;
    bool _settled = false;
};

QString helpRow(const QString& option, const QString& help)
{
    constexpr int WIDTH = 22;
    const bool fits = option.size() < WIDTH;
    return "  " + (fits ? lcdcommon::padded(option, WIDTH) : option + "\n  " + QString(WIDTH, ' ')) + help;
}

} // namespace

QString suggestion(const QString& word, const QStringList& names, const QString& lead)
{
    const QString near = lcdcommon::nearest(word, names);
    return near.isEmpty() ? QString() : ", did you mean '" + lead + near + "'?";
}

QStringList kindIds()
{
    QStringList ids;
    for (const Kind& kind : kinds()) ids.append(kind.id);
    return ids;
}

CommandLine readCommandLine(const QStringList& arguments, const std::vector<Mode>& modes)
{
    CommandLine line = Reading(arguments, modes).read();
    if (line.options.request.language.isEmpty()) line.options.request.language = QStringLiteral("en");
    return line;
}

QStringList helpPage(const std::vector<Mode>& modes)
{
    QStringList lines{"Tells the authors of a front panel's configuration what the panel will make of their files.", "",
                      "Usage:"};
    for (const Mode& mode : modes) {
        QString usage = "lcdcheck";
        if (*mode.option) usage += QStringLiteral(" --") + mode.option;
        if (mode.letter) usage += QStringLiteral(", -") + mode.letter;
        if (mode.value) usage += QStringLiteral(" ") + mode.value;
        if (*mode.paths) usage += QStringLiteral(" ") + mode.paths;
        lines.append("  " + lcdcommon::padded(usage + (mode.checks ? " [options] ROOT|FILE..." : ""), 42) + mode.help);
    }
    lines
        << ""
        << "A ROOT is a configuration folder with devices/, subcards/, connectors/ and so on. Nothing is written there."
        << ""
        << "Options:";
    for (const Option& option : checkOptions())
        lines.append(helpRow(QStringLiteral("--%1 %2").arg(option.name, option.value), option.help));
    lines << ""
          << "Formats:";
    for (const Format& format : formats()) lines.append(helpRow(format.name, format.summary));
    lines
        << ""
        << "Kinds of files: " + fileKindNames().join(", ") + "."
        << ""
        << "A finding is silenced by a comment before its element, or in an ini file before its entry:"
        << "  <!-- lcdcheck: expect ID (reason) -->"
        << "  ; lcdcheck: expect ID (reason)"
        << ""
        << "Exit status: 0 nothing found that reaches --fail-on, 1 something found, or the output could not be written,"
        << "2 wrong use, or nothing to check.";
    return lines;
}

} // namespace lcdcheck
