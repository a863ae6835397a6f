// The configurations that the benchmarks run on: the example, and generated ones of any number of cards and connectors
// whose files are those of the example with other numbers.
#ifndef LCDBENCH_CONFIG_H
#define LCDBENCH_CONFIG_H

#include "kpmhost.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace lcdbench {

/// The numbers of card files, and of connector files, that are measured.
inline constexpr int SIZES[] = {10, 100, 1000};

/// A folder with "devices", "subcards" and "connectors", one card model and one connector type for each number up to
/// `count`. Made on first use, removed when the process ends.
QString generatedRoot(int count);

/// All "*.xml" files below a folder.
QStringList filesBelow(const QString& folder);

/// A host with the plug-in loaded and nothing read.
std::unique_ptr<kpmhost::Host> freshHost();

/// Drives one catalogue's readConfig; ends the process when it does not succeed without a message.
void readDevices(const kpmhost::Host& host, const QString& root);
void readCards(const kpmhost::Host& host, const QString& root);
void readConnectors(const kpmhost::Host& host, const QString& root);

/// Parses every file into a DOM, and does nothing with it.
void parseOnly(const QStringList& files);

} // namespace lcdbench

#endif
