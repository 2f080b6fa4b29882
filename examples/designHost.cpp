// Shows the design parameters of a project in a dialog. OK stores them: designHost PROJECT

#include <VKD_H_Dialog.h>
#include <VKD_H_SelGRP_Dialog.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>
#include <VKD_P_DesignParameter>
#include <VKD_QT_Ok.h>
#include <vkd_qt_translateQt.h>

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char* argv[])
{
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, QLocale().language() == QLocale::German ? 0 : 1);
    QApplication application(argc, argv);
    vkd_qt_translateQt(); // the dialogs also contain Qt's own strings
    const auto project = VKD_H_ZOBDoc::open(QApplication::arguments().value(1));
    if (!project)
        return 1; // the reason is in the log

    VKD_H_Dialog dialog; // the page looks for a dialog of the framework above it
    auto page = new VKD_P_DesignParameter(project.get(), project.get(), &dialog, false, false);
    auto buttons = new VKD_QT_Ok(&dialog, 1 + 2, "buttons");
    auto layout = new QVBoxLayout(&dialog);
    layout->addWidget(page);
    layout->addWidget(buttons);
    QObject::connect(buttons->cmdCancel(), &QPushButton::clicked, &dialog, &QDialog::reject);
    QObject::connect(buttons->cmdOk(), &QPushButton::clicked, [&] {
        if (page->checkVals())
            dialog.accept();
    });

    page->init();
    page->readZob();
    int result = dialog.exec();
    while (result == VKD_H_SelGRP_Dialog::PickOutside) {
        // A real desktop would let the user pick groups in its view. This example has no view and
        // selects the groups in code.
        VKD_H_SelGRP_Dialog::putAniSelectionToZob(project->index(), {1, 2});
        result = dialog.exec(); // shows the same dialog again; the page reads the groups
    }
    if (result == QDialog::Accepted)
        page->writeToZob();
    return project->close().isOk() ? 0 : 1;
}
