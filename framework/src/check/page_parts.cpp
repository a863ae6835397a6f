#include "page_parts.h"

#include <algorithm>
#include <utility>

namespace lcdcheck {

void heading(Sheet& sheet, const QString& anchor, const Words& title, const Words& lead)
{
    {
        const Element line(sheet.out, "h2", {{"id", anchor + "-title"}});
        sheet.out.words(title);
        badge(sheet, anchor);
    }
    sheet.out.leaf("p", {{"class", "lead"}}, lead);
}

void badge(Sheet& sheet, const QString& anchor)
{
    const std::vector<std::size_t> about = sheet.model.findingsOf(anchor);
    if (about.empty()) return;
    Severity worst = Severity::Note;
    for (const std::size_t at : about) worst = std::max(worst, sheet.model.findings()[at].kind->severity);
    static const QString classes[] = {"badge note", "badge warning", "badge error"};
    const Words words =
        about.size() == 1 ? Words{"1 finding", "1 项发现"} : Words{"%1 findings", "%1 项发现"}.with(about.size());
    sheet.out.text(QStringLiteral(" "));
    sheet.out.leaf(
        "a", {{"class", classes[std::size_t(worst)]}, {"href", QString("#finding-%1").arg(about.front() + 1)}}, words);
}

void link(Sheet& sheet, const QString& anchor, const QString& text) { link(sheet, anchor, plain(text)); }

void link(Sheet& sheet, const QString& anchor, const Words& words)
{
    sheet.out.leaf("a", {{"href", '#' + anchor}}, words);
}

void cardLink(Sheet& sheet, std::uint64_t model)
{
    const PageCard* card = sheet.model.card(model);
    if (card != nullptr) return link(sheet, card->anchor, QString::number(model));
    const Element missing(sheet.out, "span", {{"class", "missing"}});
    sheet.out.text(QString::number(qulonglong(model)) + ' ');
    sheet.out.words({"not in the catalogue", "目录中没有"});
}

void typeLink(Sheet& sheet, int type)
{
    const PageConnectorType* known = sheet.model.type(type);
    const QString number = QString::number(type);
    if (known != nullptr && known->known) {
        const Element anchor(sheet.out, "a", {{"href", '#' + known->anchor}});
        sheet.out.text(number + ' ');
        return sheet.out.leaf("bdi", {}, known->name);
    }
    const Element missing(sheet.out, "span", {{"class", "missing"}});
    sheet.out.text(number + ' ');
    sheet.out.words({"no such type", "没有此类型"});
}

List::List(Sheet& sheet, std::size_t count) : _holder(sheet.out, "div", {{"class", "list"}})
{
    constexpr std::size_t SEEN_AT_ONCE = 40;
    if (count <= SEEN_AT_ONCE) return;
    _fold.reset(new Element(sheet.out, "details", {{"class", "more"}}));
    sheet.out.leaf("summary", {}, Words{"all %1", "全部 %1 项"}.with(count));
}

void nothing(Sheet& sheet, const Words& words) { sheet.out.leaf("p", {{"class", "nothing"}}, words); }

QString numbers(const std::vector<int>& list)
{
    QStringList texts;
    for (const int value : list) texts.append(QString::number(value));
    return texts.join(", ");
}

QString range(qint64 min, qint64 max)
{
    return min == max ? QString::number(min) : QString("%1 – %2").arg(min).arg(max);
}

QString scaled(double value, double factor) { return QString::number(value * factor, 'g', 6); }

Words yesNo(bool yes) { return yes ? Words{"yes", "是"} : Words{"no", "否"}; }

void Facts::add(const Words& term, const Words& fact)
{
    add(term, [this, &fact] { _sheet.out.words(fact); });
}

void Facts::add(const Words& term, const std::function<void()>& write)
{
    const Element pair(_sheet.out, "div");
    _sheet.out.leaf("dt", {}, term);
    const Element fact(_sheet.out, "dd");
    write();
}

TableSheet::TableSheet(Sheet& sheet, const Words& caption, const std::vector<Words>& titles)
    : _region(sheet.out, "div",
              {{"class", "scroll"},
               {"role", "region"},
               {"tabindex", 0},
               {"aria-labelledby", QString("id-%1").arg(sheet.ids + 1)}}),
      _table(sheet.out, "table"),
      _sheet(sheet)
{
    sheet.out.leaf("caption", {{"id", sheet.newId()}}, caption);
    const Element head(sheet.out, "thead");
    const Element row(sheet.out, "tr");
    for (const Words& title : titles) sheet.out.leaf("th", {{"scope", "col"}}, title);
}

void TableSheet::row(const QStringList& cells)
{
    const Element line(_sheet.out, "tr");
    for (int at = 0; at < cells.size(); ++at) {
        if (at == 0)
            _sheet.out.leaf("th", {{"scope", "row"}}, cells[at]);
        else
            _sheet.out.leaf("td", {}, cells[at]);
    }
}

Drawing::Caption::Caption(Sheet& sheet, const Words& words) : id(sheet.newId())
{
    sheet.out.leaf("figcaption", {{"id", id}}, words);
}

Drawing::Drawing(Sheet& sheet, Kind kind, double width, double height, const Words& caption,
                 const QString& kindOfDrawing)
    : _figure(sheet.out, "figure"),
      _caption(sheet, caption),
      _region(sheet.out, "div",
              {{"class", "scroll"}, {"role", "region"}, {"tabindex", 0}, {"aria-labelledby", _caption.id}}),
      // Links inside a picture could not be reached.
      _drawing(sheet.out, "svg",
               {{"class", kindOfDrawing},
                {"role", kind == Kind::Picture ? "img" : "group"},
                {"aria-labelledby", _caption.id},
                {"width", width},
                {"height", height},
                {"viewBox", QString("0 0 %1 %2").arg(width, 0, 'f', 1).arg(height, 0, 'f', 1)}})
{}

} // namespace lcdcheck
