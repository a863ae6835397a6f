#include "pagefile.h"

#include "page.h"
#include "panel.h"

#include "common/access.h"

#include <QFile>
#include <QSaveFile>

namespace lcdcheck {
namespace {

/// What the components log was told as findings.
void dropMessage(QtMsgType /*type*/, const QMessageLogContext& /*where*/, const QString& /*text*/) {}

/// Reading a folder that is not there would create it.
std::shared_ptr<const Panel> loaded(const QString& root)
{
    auto panel = std::make_shared<Panel>();
    const QtMessageHandler before = qInstallMessageHandler(dropMessage);
    for (const lcdcommon::Folder& folder : lcdcommon::folders()) {
        const QString path = lcdcommon::pathOf(root, folder);
        if (!lcdcommon::whyNoFolder(path).isEmpty()) continue;
        if (folder.catalogue != lcdcommon::Catalogue::Devices)
            panel->read(folder, path);
        else
            for (const QString& device : lcdcommon::deviceFolders(root)) panel->read(folder, device);
    }
    qInstallMessageHandler(before);
    return panel;
}

bool holds(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.size() == bytes.size() && file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

} // namespace

QString writePageFile(const QString& path, const Request& request, const Checked& checked)
{
    const QString root = request.roots.first();
    const std::shared_ptr<const Panel> panel = checked.panel ? checked.panel : loaded(root);
    const QByteArray bytes =
        page(panel->loaded(root), checked.findings, checked.line, {request.language, LCDCHECK_VERSION});
    if (holds(path, bytes)) return {};
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly)) return file.errorString();
    file.write(bytes);
    return file.commit() ? QString() : file.errorString();
}

} // namespace lcdcheck
