#include "common/page.h"

#include "common/text.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace lcdcommon {
namespace {

bool isTerminal(std::FILE* file) { return isatty(fileno(file)) != 0; }

bool wantsColour(std::FILE* file)
{
    return isTerminal(file) && qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
}

int widthOf(std::FILE* file)
{
    constexpr int USUAL = 80;
    constexpr int LEAST = 40;
    if (!isTerminal(file)) return Page::UNLIMITED;
    int columns = qEnvironmentVariableIntValue("COLUMNS");
    winsize size = {};
    if (columns <= 0 && ioctl(fileno(file), TIOCGWINSZ, &size) == 0) columns = size.ws_col;
    return std::max(LEAST, columns > 0 ? columns : USUAL);
}

const char* escape(Style style)
{
    switch (style) {
    case Style::Heading:
        return "\033[1m";
    case Style::Faint:
        return "\033[2m";
    case Style::Good:
        return "\033[32m";
    case Style::Note:
        return "\033[33m";
    case Style::Bad:
        return "\033[31m";
    case Style::Plain:
        break;
    }
    return "";
}

} // namespace

void guardStandardStreams()
{
    // Opened the wrong way round, so that using the stream fails. The lowest free number is given out first.
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) < 0 && open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) < 0) return;
}

Page::Page(std::FILE* file) : _file(file), _coloured(wantsColour(file)), _width(widthOf(file)) {}

void Page::line(const QString& text, Style style) { write(styled(text, style) + '\n'); }

void Page::heading(const QString& text)
{
    if (!_empty) line();
    line(text, Style::Heading);
}

void Page::write(const QByteArray& bytes)
{
    const auto length = std::size_t(bytes.size());
    const bool written = std::fwrite(bytes.constData(), 1, length, _file) == length && std::fflush(_file) == 0;
    if (!written && _lost.isEmpty()) _lost = std::strerror(errno);
    _empty = false;
}

QByteArray Page::styled(const QString& text, Style style) const
{
    const QByteArray bytes = printable(text).toUtf8();
    return _coloured && style != Style::Plain ? escape(style) + bytes + "\033[0m" : bytes;
}

} // namespace lcdcommon
