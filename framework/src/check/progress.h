// A sign of life on a terminal, for checks that take long.
#ifndef LCDCHECK_PROGRESS_H
#define LCDCHECK_PROGRESS_H

#include "common/page.h"

#include <QElapsedTimer>
#include <QString>

namespace lcdcheck {

/// One line that is written over and over, from half a second on; gone with the object. Nothing without a terminal.
class Progress {
public:
    explicit Progress(lcdcommon::Page& page);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Another file is being read.
    void tell(const QString& file);

private:
    lcdcommon::Page& _page;
    QElapsedTimer _time;
    qint64 _next = 500; ///< In milliseconds.
    int _files = 0;
    bool _wanted;
    bool _shown = false;
};

} // namespace lcdcheck

#endif
