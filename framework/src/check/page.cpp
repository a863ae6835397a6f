#include "page.h"

#include "page_parts.h"

#include <QCryptographicHash>

namespace lcdcheck {
namespace {

/// One part of the page with its entry in the navigation.
struct Part {
    const char* anchor;
    Words title;
    void (*write)(Sheet&);
};

const std::vector<Part>& parts()
{
    static const std::vector<Part> all{
        {"findings", {"Findings", "检查结果"}, writeFindings},
        {"chassis", {"Chassis", "机箱"}, writeChassis},
        {"cards", {"Cards", "板卡"}, writeCards},
        {"connectors", {"Connectors", "接口"}, writeConnectors},
        {"screens", {"Screens", "屏幕"}, writeScreens},
        {"layers", {"Layers", "图层"}, writeLayers},
        {"mosaic", {"Mosaic", "拼接源"}, writeMosaic},
        {"menu", {"Menu", "菜单"}, writeMenu},
        {"keys", {"Keys", "按键"}, writeKeys},
        {"files", {"Files", "文件"}, writeFiles},
    };
    return all;
}

QString hashOf(const char* program)
{
    const QByteArray digest = QCryptographicHash::hash(QByteArray(program), QCryptographicHash::Sha256);
    return "'sha256-" + QString::fromLatin1(digest.toBase64()) + '\'';
}

/// How many there are, for the navigation; -1: not told.
qint64 countOf(const PageModel& model, const QString& anchor)
{
    qint64 screens = 0;
    qint64 layers = 0;
    for (const PageDevice& device : model.devices()) {
        screens += qint64(device.screens.size());
        layers += qint64(device.layers.size());
    }
    if (anchor == "findings") return qint64(model.findings().size());
    if (anchor == "cards") return qint64(model.cards().size());
    if (anchor == "connectors") return qint64(model.types().size());
    if (anchor == "screens") return screens;
    return anchor == "layers" ? layers : -1;
}

Words titleOf(const PageModel& model)
{
    if (model.devices().empty()) return {"Configuration", "配置"};
    const Lcd::s_DeviceFeature& feature = model.devices().front().device->feature;
    const Words name = lcdcommon::named(feature.typeNameEn, feature.typeNameZhCN);
    return name.english.isEmpty() ? plain(QString::fromStdString(feature.name)) : name;
}

void writeHead(Sheet& sheet, const PageOptions& options)
{
    Markup& out = sheet.out;
    const Element head(out, "head");
    out.empty("meta", {{"charset", "utf-8"}});
    out.empty("meta", {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}});
    // Nothing but the page's own script and style runs, whatever else a file may have brought in.
    out.empty("meta",
              {{"http-equiv", "Content-Security-Policy"},
               {"content", "default-src 'none'; base-uri 'none'; form-action 'none'; img-src data:; style-src " +
                               hashOf(pageStyle()) + "; script-src " + hashOf(pageScript())}});
    if (!options.version.isEmpty())
        out.empty("meta", {{"name", "generator"}, {"content", "lcdcheck " + options.version}});
    out.empty("link", {{"rel", "icon"}, {"href", "data:,"}});
    const Words title = titleOf(sheet.model);
    out.leaf("title", {}, options.language == "en" ? title.english : title.chinese);
    out.raw("style", pageStyle());
}

void writeSearch(Sheet& sheet)
{
    Markup& out = sheet.out;
    const Element search(out, "div", {{"class", "search"}, {"role", "search"}, {"aria-labelledby", "search-title"}});
    out.leaf("label", {{"for", "search"}, {"id", "search-title"}},
             Words{"Find a card, type, menu key or file", "查找板卡、类型、菜单键或文件"});
    out.empty("input", {{"type", "search"}, {"id", "search"}, {"autocomplete", "off"}, {"spellcheck", "false"}});
    out.leaf("ul", {{"id", "results"}, {"class", "results"}, {"hidden", ""}}, QString());
    out.leaf("p", {{"id", "status"}, {"class", "status"}, {"role", "status"}}, QString());
}

void writeNavigation(Sheet& sheet)
{
    Markup& out = sheet.out;
    out.open("span", {{"id", "parts-title"}, {"hidden", ""}});
    out.words({"Parts of the page", "页面内容"});
    out.close();
    const Element navigation(out, "nav", {{"aria-labelledby", "parts-title"}});
    const Element list(out, "ul");
    for (const Part& part : parts()) {
        const Element item(out, "li");
        const Element link(out, "a", {{"href", QString("#%1").arg(part.anchor)}});
        {
            const Element name(out, "span");
            out.words(part.title);
        }
        const qint64 count = countOf(sheet.model, part.anchor);
        if (count >= 0) out.leaf("span", {{"class", "count"}}, QString::number(count));
    }
}

void writeSide(Sheet& sheet, const PageOptions& options)
{
    Markup& out = sheet.out;
    const Element side(out, "header", {{"class", "side"}});
    {
        const Element bar(out, "div", {{"class", "bar"}});
        out.leaf("h1", {}, titleOf(sheet.model));
        const Element languages(out, "div", {{"class", "language"}});
        const bool english = options.language == "en";
        out.leaf("button", {{"type", "button"}, {"data-language", "en"}, {"aria-pressed", english ? "true" : "false"}},
                 "English");
        out.leaf("button",
                 {{"type", "button"},
                  {"data-language", "zh"},
                  {"lang", "zh-CN"},
                  {"aria-pressed", english ? "false" : "true"}},
                 QString("中文"));
    }
    out.leaf("p", {{"class", "root"}}, sheet.model.loaded().root);
    writeSearch(sheet);
    writeNavigation(sheet);
}

} // namespace

QByteArray page(const Loaded& loaded, const Findings& findings, const SourceLine& sourceLine,
                const PageOptions& options)
{
    const PageModel model(loaded, findings);
    Sheet sheet{model, sourceLine};
    Markup& out = sheet.out;
    out.doctype();
    {
        const Element html(out, "html", {{"lang", options.language == "en" ? "en" : "zh"}});
        writeHead(sheet, options);
        const Element body(out, "body");
        out.leaf("a", {{"class", "skip"}, {"href", "#content"}}, Words{"To the content", "跳到内容"});
        writeSide(sheet, options);
        {
            const Element content(out, "main", {{"id", "content"}});
            for (const Part& part : parts()) part.write(sheet);
            out.leaf("footer", {},
                     Words{"Names of numbers follow the usual numbering; the number is what the panel gets.",
                           "数值的名称依照惯例；面板得到的是数值。"});
        }
        out.raw("script", pageScript());
    }
    return out.bytes();
}

} // namespace lcdcheck
