#include "outputSnapshots.h"

#include "SnapshotAlbum.h"

#include <AnimatorView.h>
#include <vkd_dbo_model.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_WidgetGraphicalOutput>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_TabDialog.h>

#include <QTreeWidget>

namespace workbench {

namespace {
using Rows = std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>;

Rows rowsOfProject(ZobHandle project)
{
    Rows rows;
    for (const vkd::dbo::LoadCase& loadCase : vkd::dbo::readLoadCases(project))
        rows.push_back({loadCase.kind, loadCase.number,
                        QStringLiteral("%1 : %2").arg(loadCase.number).arg(loadCase.title)});
    return rows;
}

void addPage(SnapshotAlbum& album, VKD_H_ZOBDoc* document, const char* name,
             VKD_P_WidgetGraphicalOutput_Progname kind, bool withView)
{
    VKD_H_PluginParameter parameter(document);
    VKD_QT_TabDialog dialog;
    auto animator = withView ? new AnimatorView(document->handle(), &dialog) : nullptr;
    auto tab = new QWidget;
    auto page = new VKD_P_WidgetGraphicalOutput(tab, kind, &parameter, animator);
    (new VKD_QT_VBoxLayout(tab))->addWidget(page);
    page->setUsedNumbersAndNames(rowsOfProject(document->handle()));
    if (kind != VKD_P_GraphicalOutput_Split)
        page->slotDefaultSettings();
    dialog.addTab(tab, page->findChild<QTreeWidget*>()->accessibleName());
    dialog.resize(900, 640);
    dialog.show();
    album.add(QString::fromLatin1(name), &dialog);
}
} // namespace

void addOutputSnapshots(SnapshotAlbum& album, VKD_H_ZOBDoc* document)
{
    addPage(album, document, "output-page", VKD_P_GraphicalOutput_Standard, true);
    addPage(album, document, "output-page-without-view", VKD_P_GraphicalOutput_Standard, false);
    addPage(album, document, "output-page-split", VKD_P_GraphicalOutput_Split, false);
    addPage(album, document, "output-page-prefix", VKD_P_GraphicalOutput_Prefix, true);
}

} // namespace workbench
