// Opens one file and checks its frame: path, file, well-formedness, root tag and version. Every kind of file goes
// through here; a kind differs in its wording alone.
#ifndef LCDMAINCONFIGIMPL_READING_DOCUMENT_H
#define LCDMAINCONFIGIMPL_READING_DOCUMENT_H

#include "reader.h"

#include <QDomDocument>

namespace LCD::MainConfigImpl::reading {

/// The root tag and the texts of one kind of file. A text that is null is a test that this kind does not make.
struct Frame {
    const char* rootTag;
    const char* emptyPath = nullptr;
    const char* cannotOpen;
    const char* wrongRoot;
    const char* wrongVersion = nullptr;
    const char* noSuchFile = nullptr;
};

/// Files of the device, card and connector catalogues.
inline constexpr Frame DEVICE_FRAME{
    "DCS",
    QT_TRANSLATE_NOOP("reading", "Invalid file path!\n%1"),
    QT_TRANSLATE_NOOP("reading", "Fail to open file [%1]!"),
    QT_TRANSLATE_NOOP("reading", "The file is not a valid configuration file for device."),
    QT_TRANSLATE_NOOP("reading", "The file is not a valid configuration file of version 1.0 for device."),
};

/// Opens and parses the file. `shownPath` is the path that the message for a file that can't be opened names.
bool parseFile(const QString& path, const QString& shownPath, const Frame& frame, const Report& report,
               QDomDocument& document);

/// Checks the root's tag and, where the root has the attribute "version", that it is "1.0".
bool checkRoot(QDomDocument& document, const Frame& frame, const Report& report);

/// The whole opening of a file that is read for itself: the path, then parseFile() and checkRoot().
bool openDocument(const QString& path, const Frame& frame, const Report& report, QDomDocument& document);

/// Opens a file and reads its root element into `record`. False when either failed; what was stored stays.
template <class Record, class... Cells>
bool readDocument(const QString& path, const Frame& frame, const Report& report, Record& record, const Cells&... cells)
{
    QDomDocument document;
    return openDocument(path, frame, report, document) &&
           readElement(document.documentElement(), report, record, cells...);
}

} // namespace LCD::MainConfigImpl::reading

#endif
