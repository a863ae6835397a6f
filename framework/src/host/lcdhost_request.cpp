#include "lcdhost_request.h"

#include "common/access.h"
#include "common/build.h"
#include "common/nearest.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace lcdhost {
namespace {

const std::vector<Command>& commands()
{
    static const std::vector<Command> all{
        {"load", "read everything; show the device, its slots and features, and every problem", {"device"}, runLoad},
        {"cards", "show the card catalogue", {}, runCards},
        {"resolutions",
         "show what one connector of a card offers: resolutions, rates, timing",
         {"card", "position", "interface"},
         runResolutions},
        {"screens", "draw the layouts of the screens", {"device", "svg"}, runScreens},
        {"menu", "show the menu tree", {}, runMenu},
        {"settings", "show the factory settings", {"user-settings"}, runSettings},
    };
    return all;
}

QString description()
{
    QString text = "Shows what the configuration of a front panel says, and what is wrong in it.\n\nCommands:\n";
    for (const Command& command : commands()) text += "  " + padded(command.name, 13) + command.summary + '\n';
    text += R"(
ROOT is a folder with one folder for each catalogue. Nothing is ever written there.
  devices/NAME/  one folder for each device, read by name; the first is the current one
                 (files named ...feature..., ...slot..., ...silk..., ...screen..., ...layer...)
  subcards/      MODEL.xml for each card, here or one folder below; read if a slot takes the card
  connectors/    TYPE.xml for each connector type that a card has, and resolutionratio.xml
  menu/          menuconfig.xml
  fnbutton/      fnkeyboardconfig.xml
  keycheck/      ...keyboardchecklist..., ...keyboardknobchecklist..., ...keyboardtbarjoystickchecklist...
  lockarea/      lockareaconfig.xml
  settings/      lcdsetting.ini

Tables are cut to the width of the terminal; a file or a pipe gets them whole.
Exit status: 0 good, 1 problems found, no answer, or output that could not be written, 2 wrong use. A folder or file that
the command needs and that is not there, or can't be opened, is a problem.)";
    return text;
}

/// Seen from the program: beside it in a build tree, in the folder of its plug-ins where it is installed.
QString defaultPlugin()
{
    const QDir here(QCoreApplication::applicationDirPath());
    const QString beside = here.filePath("lcdmainconfigimpl.so");
    const QString installed = QDir::cleanPath(here.filePath(PLUGIN_DIR "/lcdmainconfigimpl.so"));
    return QFileInfo::exists(beside) || !QFileInfo::exists(installed) ? beside : installed;
}

void setUp(QCommandLineParser& parser)
{
    parser.setApplicationDescription(description());
    parser.addOptions({
        {"plugin", "The plug-in (default: lcdmainconfigimpl.so beside this program, else where it is installed).",
         "path", defaultPlugin()},
        {"language", "Language of the names, en or zh_CN (default: en).", "language", "en"},
        {"json", "Write one JSON object: the titles of the tables are its keys, \"problems\" holds what is wrong. "
                 "Where there is "
                 "no answer it has \"error\", with the reason."},
        {"device",
         "load, screens: the device to be shown, by the name of its folder or its own. It is loaded first, since the "
         "panel is told about the first device alone.",
         "name"},
        {"svg", "screens: write a drawing to scale, one SVG document."},
        {"card", "resolutions: model of the card.", "model"},
        {"position", "resolutions: position of the connector on the card.", "number"},
        {"interface", "resolutions: interface types as a bit mask (default: the connector's own type).", "mask"},
        {"user-settings",
         "settings: show the user's settings too. This uses the file "
         "/userdata/log/lcd/ini/lcdsetting.ini, creates it if it is missing, and writes its defaults."},
        {{"h", "help"}, "Show this help."},
        {{"v", "version"}, "Show the version."},
    });
    parser.addPositionalArgument("command", "See above.");
    parser.addPositionalArgument("root", "The configuration root.", "ROOT");
}

/// The complaint with what the word may have been meant to be behind it.
QString withGuess(const QString& complaint, const QString& word, const QStringList& known, const QString& lead = {})
{
    const QString meant = nearest(word, known);
    return meant.isEmpty() ? complaint : complaint + "; did you mean '" + lead + meant + "'?";
}

QString unknownOption(const QCommandLineParser& parser)
{
    QStringList known{"help", "version", "plugin", "language", "json"};
    for (const Command& command : commands()) known += command.options;
    const QString option = parser.unknownOptionNames().value(0);
    QString complaint = parser.errorText();
    if (complaint.endsWith('.')) complaint.chop(1);
    return option.isEmpty() ? complaint : withGuess(complaint, option, known, "--");
}

/// The number that an option gives. Told wrong when it is none, or missing though it must be there.
std::optional<int> numberOf(const QCommandLineParser& parser, const QString& option, bool needed, Request& request)
{
    if (!parser.isSet(option)) {
        if (needed) request.wrong = "--" + option + " is needed";
        return {};
    }
    bool good = false;
    const QString given = parser.value(option);
    const int value = given.startsWith("0x") ? given.mid(2).toInt(&good, 16) : given.toInt(&good);
    if (!good) request.wrong = "--" + option + " takes a number, not '" + given + "'";
    return value;
}

/// The first of the options that only some commands take, and this one does not.
QString strayOption(const QCommandLineParser& parser, const Command& command)
{
    for (const Command& other : commands())
        for (const QString& option : other.options)
            if (parser.isSet(option) && !command.options.contains(option)) return option;
    return {};
}

/// Why the folder is no configuration root; empty when it is one.
QString whyNoRoot(const QString& root)
{
    if (!QFileInfo(root).isDir()) return root + " is no folder";
    const auto isThere = [&root](const Folder& folder) { return QFileInfo::exists(pathOf(root, folder)); };
    if (std::any_of(folders().begin(), folders().end(), isThere)) return {};
    const QString closed = whyNoFolder(root);
    return closed.isEmpty() ? root + " is no configuration root: it has no folder to read" : root + ": " + closed;
}

const Command* commandNamed(const QString& name)
{
    const auto found = std::find_if(commands().begin(), commands().end(),
                                    [&name](const Command& command) { return command.name == name; });
    return found == commands().end() ? nullptr : &*found;
}

/// Why the words that are no options ask for nothing; empty when they do, and then they stand in the request.
QString readWords(const QStringList& words, Request& request)
{
    if (words.isEmpty()) return "no command";
    QStringList known;
    for (const Command& command : commands()) known.append(command.name);
    request.command = commandNamed(words[0]);
    if (request.command == nullptr) return withGuess("unknown command '" + words[0] + "'", words[0], known);
    if (words.size() != 2) return '\'' + words[0] + "' takes one ROOT";
    request.root = words[1];
    return {};
}

void readOptions(const QCommandLineParser& parser, Request& request)
{
    const bool asksCard = request.command->options.contains("card");
    request.plugin = parser.value("plugin");
    request.language = parser.value("language");
    request.options.userSettings = parser.isSet("user-settings");
    request.options.svg = parser.isSet("svg");
    request.options.device = parser.value("device");
    request.options.interfaceMask = numberOf(parser, "interface", false, request);
    request.options.position = numberOf(parser, "position", asksCard, request).value_or(0);
    request.options.card = numberOf(parser, "card", asksCard, request).value_or(0);
}

/// Why the command can't be run as it is asked for; empty when it can.
QString whyNotRun(const QCommandLineParser& parser, const Request& request)
{
    const QString stray = strayOption(parser, *request.command);
    if (!stray.isEmpty()) return "'" + request.command->name + "' takes no --" + stray;
    if (parser.isSet("svg") && parser.isSet("json")) return "--svg and --json do not go together";
    if (!QStringList{"en", "zh_CN"}.contains(parser.value("language"))) return "--language takes en or zh_CN";
    return whyNoRoot(request.root);
}

} // namespace

Request readCommandLine(const QStringList& arguments)
{
    QCommandLineParser parser;
    setUp(parser);
    Request request;
    // The parser gives up at the first word that it does not know.
    request.options.json = arguments.contains("--json");
    const bool understood = parser.parse(arguments);
    if (parser.isSet("help"))
        request.shown = parser.helpText().trimmed();
    else if (parser.isSet("version"))
        request.shown = QStringLiteral("lcdhost ") + build;
    if (!request.shown.isEmpty()) return request;
    request.wrong = understood ? readWords(parser.positionalArguments(), request) : unknownOption(parser);
    if (request.wrong.isEmpty()) request.wrong = whyNotRun(parser, request);
    if (request.wrong.isEmpty()) readOptions(parser, request);
    return request;
}

} // namespace lcdhost
