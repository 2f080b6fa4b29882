// Shows the graphical output of a project in a dialog. OK prints the script: outputHost PROJECT

#include <AnimatorView.h>
#include <vkd_dbo_model.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ProjectDialogPage.h>
#include <VKD_H_TabDialog.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>
#include <VKD_P_WidgetGraphicalOutput>
#include <vkd_qt_translateQt.h>

#include <QApplication>
#include <QVBoxLayout>

#include <cstdio>

int main(int argc, char* argv[])
{
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, QLocale().language() == QLocale::German ? 0 : 1);
    vkd_lib_setvalue(VKD_SETTING_HEAD_LANGUAGE, 1); // the keyword language of the script's header
    QApplication application(argc, argv);
    vkd_qt_translateQt(); // the dialogs also contain Qt's own strings
    const auto project = VKD_H_ZOBDoc::open(QApplication::arguments().value(1));
    if (!project)
        return 1; // the reason is in the log

    VKD_H_PluginParameter parameter(project.get());
    VKD_H_TabDialog dialog;
    auto tab = new QWidget;
    dialog.addTab(tab, project->path()); // before the page, which looks for the dialog above it
    auto view = new AnimatorView(project->handle(), &dialog);
    auto page =
        new VKD_P_WidgetGraphicalOutput(tab, VKD_P_GraphicalOutput_Standard, &parameter, view);
    (new QVBoxLayout(tab))->addWidget(page);

    std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation> rows;
    for (const vkd::dbo::LoadCase& loadCase : vkd::dbo::readLoadCases(project->handle()))
        rows.push_back({loadCase.kind, loadCase.number,
                        QStringLiteral("%1 : %2").arg(loadCase.number).arg(loadCase.title)});
    page->setUsedNumbersAndNames(rows);

    VKD_H_ProjectDialogPage kept(project->handle(), 1);
    // Called even with an empty string: this changes nothing now, but from now on the choice of
    // plots survives a change to the content tags.
    page->readXMLstring(kept.getEntry(QStringLiteral("Output"), QString()));
    if (dialog.exec() == QDialog::Accepted) {
        std::fputs(page->getTORVAL(true).toUtf8().constData(), stdout);
        kept.setEntry(QStringLiteral("Output"), page->writeXMLstring());
        kept.save();
    }
    return project->close().isOk() ? 0 : 1;
}
