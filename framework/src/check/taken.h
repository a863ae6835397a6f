// A configuration as the readers take it: what is asked for, with the value that is stored, whether the file says it or
// not. What nobody asks for, and what is lost by a fault, is not in it.
#ifndef LCDCHECK_TAKEN_H
#define LCDCHECK_TAKEN_H

#include "heard.h"

namespace lcdcheck {

struct TakenAttribute {
    QString name; ///< Empty: the text of the element.
    QString value;
};

struct TakenElement {
    QString tag;
    std::vector<TakenAttribute> attributes; ///< In the order of the asking.
    std::vector<TakenElement> children;     ///< In the order of the file.

    /// The value of the attribute; null when none was asked for.
    [[nodiscard]] QString value(const QString& name) const;
};

struct TakenFile {
    QString path; ///< Below the root, with "/".
    TakenElement root;
};

/// The files of a root in the order of the panel's load. Empty where nothing can be read.
std::vector<TakenFile> takenFrom(const QString& root);
/// What is stored of an attribute or a text that was heard.
QString storedValue(const HeardFile& file, int element, const HeardAttribute& attribute);

QString writeTakenXml(const QString& root, const std::vector<TakenFile>& files);
QByteArray writeTakenJson(const QString& root, const std::vector<TakenFile>& files);

} // namespace lcdcheck

#endif
