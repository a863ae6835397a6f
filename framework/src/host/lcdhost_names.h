// The English names of connector types. No operation of the plug-in gives them, so the program reads them itself.
#ifndef LCDHOST_NAMES_H
#define LCDHOST_NAMES_H

#include <QString>
#include <QStringList>

#include <map>

namespace lcdhost {

/// Connector type to name, from "Connectors/Connector", attribute "Type" and element "Name/en". Of several connectors
/// of a type the first counts, as in the plug-in. Files that are no connector files give nothing.
std::map<int, QString> englishConnectorNames(const QStringList& files);

} // namespace lcdhost

#endif
