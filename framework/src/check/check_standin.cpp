// Holds the place of the check until it is there: syntax alone.
#include "check.h"
#include "source.h"

#include "common/layout.h"

namespace lcdcheck {

Checked check(const Request& request, const std::function<void(const QString& file)>& progress)
{
    Checked checked;
    QStringList files = request.files;
    for (const QString& root : request.roots)
        for (const lcdcommon::Folder& folder : lcdcommon::folders())
            for (const QString& path : folder.catalogue == lcdcommon::Catalogue::Devices
                                           ? lcdcommon::deviceFolders(root)
                                           : QStringList{lcdcommon::pathOf(root, folder)})
                files += lcdcommon::filesOf(folder, path);
    for (const QString& file : files) {
        progress(file);
        ++checked.files;
        const std::optional<Source> source = Source::readFile(file);
        if (!source) continue;
        for (const Source::Fault& fault : source->faults())
            checked.findings.push_back({kindOf("not-well-formed"), file, fault.place, {}, fault.message, {}, {}});
    }
    checked.line = [](const QString& file, int line) {
        const std::optional<Source> source = Source::readFile(file);
        return source ? source->line(line) : QString();
    };
    return checked;
}

} // namespace lcdcheck
