// The English names of connector types. No operation of the plug-in gives them, so the programs read them themselves.
#ifndef LCDCOMMON_CONNECTORNAMES_H
#define LCDCOMMON_CONNECTORNAMES_H

#include <QString>
#include <QStringList>

#include <map>

namespace lcdcommon {

/// Connector type to name, from "Connectors/Connector", attribute "Type" and element "Name/en". Of several connectors
/// of a type the first counts, as in the plug-in. Files that are no connector files, or that
/// the plug-in finds too large, give nothing.
std::map<int, QString> englishConnectorNames(const QStringList& files);

} // namespace lcdcommon

#endif
