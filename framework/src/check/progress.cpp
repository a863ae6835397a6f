#include "progress.h"

#include "common/text.h"

namespace lcdcheck {
namespace {

constexpr char CLEAR_LINE[] = "\r\033[K";

} // namespace

Progress::Progress(lcdcommon::Page& page)
    : _page(page), _wanted(page.width() != lcdcommon::Page::UNLIMITED && qgetenv("TERM") != "dumb")
{
    _time.start();
}

Progress::~Progress()
{
    if (_shown) _page.write(CLEAR_LINE);
}

void Progress::tell(const QString& file)
{
    constexpr qint64 PAUSE = 100;
    ++_files;
    if (!_wanted || _time.elapsed() < _next) return;
    _next = _time.elapsed() + PAUSE;
    _shown = true;
    const QString text = "checking file " + QString::number(_files) + ": " + lcdcommon::printable(file);
    _page.write(CLEAR_LINE + lcdcommon::cut(text, _page.width() - 1).toUtf8());
}

} // namespace lcdcheck
