#include "pluginlistdialog.h"

#include <QDir>
#include <QHeaderView>
#include <QStyle>
#include <QTreeWidget>

namespace Viewer::AppCore {

CPluginListDialog::CPluginListDialog(const QList<PluginSystem::CPluginSpec> &specs, QWidget *parent)
    : CListDialog(tr("Plug-ins"), {tr("Name"), tr("Version"), tr("State")}, parent)
{
    setObjectName(QStringLiteral("pluginListDialog"));
    resize(560, 380);
    getTree()->setObjectName(QStringLiteral("pluginTree"));
    getTree()->header()->setStretchLastSection(true);
    for (const PluginSystem::CPluginSpec &spec : specs)
        addEntry(spec);
}

CPluginListDialog::~CPluginListDialog() = default;

void CPluginListDialog::addEntry(const PluginSystem::CPluginSpec &spec)
{
    QString state = tr("Running");
    if (spec.isBuiltIn())
        state = tr("Part of the viewer");
    else if (spec.hasFailed())
        state = tr("Not available");
    QStringList details;
    for (const QString &line : {spec.getDescription(), spec.getVendor(),
                                QDir::toNativeSeparators(spec.getFilePath()), spec.getError()}) {
        if (!line.isEmpty())
            details.append(line);
    }
    QTreeWidgetItem *const item = addRow({spec.getName(), spec.getVersion().toString(), state},
                                         details.join(QLatin1Char('\n')));
    if (spec.hasFailed())
        item->setIcon(0, style()->standardIcon(QStyle::SP_MessageBoxWarning));
}

} // namespace Viewer::AppCore
