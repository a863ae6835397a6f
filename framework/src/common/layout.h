// A configuration root: which folder holds which catalogue, which component reads it, and in which order.
#ifndef LCDCOMMON_LAYOUT_H
#define LCDCOMMON_LAYOUT_H

#include <QString>
#include <QStringList>

#include <vector>

namespace lcdcommon {

/// The catalogues of a configuration root, in the order in which they must be read.
enum class Catalogue { Devices, Cards, Connectors, Menu, FunctionKeys, KeyChecks, LockAreas, Settings };

/// A catalogue's place in the root, and how it is read.
struct Folder {
    Catalogue catalogue;
    const char* name;
    const char* component; ///< Id of the component that reads it.
    const char* file;      ///< The one file that is read there; null when there may be many.
    /// Lets the component read `path`: the folder, or for devices the folder of one device. `component` points to the
    /// interface. False when the component had to stop; `error` is then as the component left it.
    bool (*read)(void* component, const QString& path, QString& error);
};

/// All catalogues, in the order in which they must be read; the index is the number of the catalogue.
const std::vector<Folder>& folders();
const Folder& folderOf(Catalogue catalogue);

/// The path of the catalogue's folder in the root, whether it is there or not.
QString pathOf(const QString& root, const Folder& folder);

/// The paths of the device folders of the root, by name; the first one read is the current device.
QStringList deviceFolders(const QString& root);

/// The folders in which a component looks for files when it reads `path`: for cards also those one level below.
QStringList placesOf(const Folder& folder, const QString& path);

/// Every file that a component may read there, by place and name.
QStringList filesOf(const Folder& folder, const QString& path);

} // namespace lcdcommon

#endif
