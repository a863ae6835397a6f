// A file format as a tree of elements, each with what it fills. From it come a file that has a number of its own in
// every attribute, a file without attributes, either with elements left out, and what a record says of such a file.
#ifndef TESTS_TREE_H
#define TESTS_TREE_H

#include <QHash>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

namespace tree {

/// The fields of records in their order, lists at the end of their record; "-" is an empty text.
template <class... Records> QString show(const Records&... records)
{
    QStringList all;
    const auto add = [&all]<class Record>(const Record& of) {
        if constexpr (std::is_arithmetic_v<Record>) all << QString::number(of);
        if constexpr (std::is_same_v<Record, std::string>) all << (of.empty() ? "-" : QString::fromStdString(of));
        if constexpr (requires { of.attrMode; }) all << show(of.support, of.editable, of.attrMode);
        if constexpr (requires { of.value; }) all << show(of.value);
        if constexpr (requires { of.dataType; }) all << show(of.dataType);
        if constexpr (requires { of.max; }) all << show(of.min, of.max);
        if constexpr (requires { of.coefficient; }) all << show(of.step, of.coefficient);
        if constexpr (requires { of.enums; })
            for (const auto& entry : of.enums) all << show(entry);
    };
    (add(records), ...);
    return all.join(' ');
}

template <class Entry> Entry at(const std::vector<Entry>& list, std::size_t index)
{
    return index < list.size() ? list[index] : Entry();
}

struct Element {
    QChar mark;        ///< What stands before the tag, if its absence costs anything: '!' the file, '~' a message.
    QString tag;       ///< Without the mark.
    QStringList shape; ///< The name of the shape that tells what it fills, if anything, and read defaults for it.
    QString shown = {};
    std::vector<Element> children = {};
};

/// The words are tag and shape; the parts are the records that the element fills, and its children.
template <class... Parts> Element el(const QString& words, const Parts&... parts)
{
    QStringList shape = words.split(' ');
    const QString tag = shape.takeFirst();
    const int mark = tag[0].isLetter() ? 0 : 1;
    Element element{mark ? tag[0] : QChar(), tag.mid(mark), shape};
    [[maybe_unused]] const auto take = [&element]<class Part>(const Part& part) {
        if constexpr (std::is_same_v<Part, Element>)
            element.children.push_back(part);
        else
            element.shown += ' ' + show(part);
    };
    (take(parts), ...);
    return element;
}

/// The fields of all elements that have a shape.
inline QStringList shown(const Element& element, const QString& above = {})
{
    QStringList lines;
    if (!element.shape.isEmpty()) lines << above + element.tag + element.shown;
    for (const Element& child : element.children) lines << shown(child, above + element.tag + '/');
    return lines;
}

/// A file with numbers in the attributes or without attributes.
struct File {
    /// The fields in a file with numbers, by the attributes' names; in one without; and where the element is absent. A
    /// shape with "Enum" comes with two allowed values, "Enum" and "Other".
    const QHash<QString, QStringList>& shapes;
    bool numbers;
    std::function<bool(const QString& path, QChar mark)> keep;
    QString xml = {};
    QStringList lines = {}; ///< As shown() gives them.
    int first = 0;          ///< The number of the element's first attribute.

    File& add(const Element& element, const QString& above = {}, bool kept = true)
    {
        static const QStringList names =
            QString("Support Editable SupportType Value DataType Min Max Step Coefficient Type SupportHomology "
                    "AutoCreate Id TemplateFlag Rows Columns BaseResolutionWidth BaseResolutionHeight CapacityMode "
                    "SpliceMode IncompleteSplicing CustomBuild CustomDelete LimitNum SoftImp en zh_CN ScreenId X Y "
                    "Width Height Row Column SlotIndex ConnectorIndex Valid Enum Other")
                .split(' ');
        const QString path = above + element.tag;
        const QStringList shape = shapes.value(element.shape.value(0), {{}, {}, {}});
        const int before = xml.size();
        kept = kept && keep(path, element.mark);
        first += 100;
        QString attributes, line = ' ' + shape[!kept ? 2 : numbers ? 0 : 1] + ' ';
        for (int i = 1; i < element.shape.size() && line.contains('%'); ++i) line = line.arg(element.shape[i]);
        for (int i = 0; i < names.size(); ++i) {
            if (numbers) attributes += QString(" %1='%2'").arg(names[i]).arg(first + i);
            line.replace(' ' + names[i] + ' ', QString(" %1 ").arg(first + i));
        }
        if (!element.shape.isEmpty()) lines << path + line.chopped(1);
        xml += '<' + element.tag + attributes + '>';
        for (const QString tag : {"Enum", "Other"})
            if (shape[0].contains("Enum"))
                xml += '<' + tag + (numbers ? QString(" Value='%1'/>").arg(first + names.indexOf(tag)) : "/>");
        for (const Element& child : element.children) add(child, path + '/', kept);
        xml = kept ? xml + "</" + element.tag + '>' : xml.left(before);
        return *this;
    }
};

} // namespace tree

#endif
