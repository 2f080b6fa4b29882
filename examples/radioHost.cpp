// Shows the load cases of a project in a dialog, in which the user selects all load cases or checks
// some of them. OK prints their numbers: radioHost PROJECT

#include <QtTableView.h>
#include <vkd_dbo_model.h>
#include <VKD_H_TabDialog.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>
#include <VKD_P_RadioGroup>
#include <vkd_qt_translateQt.h>

#include <QApplication>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <cstdio>

int main(int argc, char* argv[])
{
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, QLocale().language() == QLocale::German ? 0 : 1);
    QApplication application(argc, argv);
    vkd_qt_translateQt(); // the dialogs also contain Qt's own strings
    const auto project = VKD_H_ZOBDoc::open(QApplication::arguments().value(1));
    if (!project)
        return 1; // the reason is in the log

    QStandardItemModel loadCases;
    for (const vkd::dbo::LoadCase& loadCase : vkd::dbo::readLoadCases(project->handle())) {
        auto number = new QStandardItem(QString::number(loadCase.number));
        number->setCheckable(true);
        loadCases.appendRow({number, new QStandardItem(loadCase.title)});
    }

    VKD_H_TabDialog dialog;
    auto tab = new QWidget;
    auto table = new vkd::properties::nextGen::QtTableView(tab);
    table->setObjectName(QStringLiteral("table"));
    table->setModel(&loadCases);
    table->horizontalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    VKD_P_RadioGroup group;
    group.init(tab);
    group.useWidget(table); // editable while "Manually" is checked, otherwise read-only
    auto layout = new QVBoxLayout(tab);
    layout->addLayout(group.layout());
    layout->addWidget(table);
    dialog.addTab(tab, project->path());

    QObject::connect(&group, &VKD_P_RadioGroup::buttonAllChecked, [&] {
        for (int row = 0; row < loadCases.rowCount(); ++row)
            loadCases.item(row)->setCheckState(Qt::Checked);
    });
    group.setSelectedId(VKD_P_RadioGroup::All);
    if (dialog.exec() == QDialog::Accepted)
        for (int row = 0; row < loadCases.rowCount(); ++row)
            if (loadCases.item(row)->checkState() == Qt::Checked)
                std::printf("%s\n", qPrintable(loadCases.item(row)->text()));
    return 0;
}
