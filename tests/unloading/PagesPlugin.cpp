// A desktop's plug-in that uses all parts of the library, so that unloadingHost.cpp can unload the
// library.

#include <VKD_H_Dialog.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter>
#include <VKD_P_RadioGroup>
#include <VKD_P_WidgetGraphicalOutput>
#include <VKD_T_Help.h>
#include <vkd_unittests.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <functional>
#include <memory>

namespace {
/// Documents that are not closed before this plug-in is unloaded or the process ends.
QTemporaryDir folder;
std::unique_ptr<VKD_H_ZOBDoc> keptDocument;

/// Shows a whole dialog and returns the texts of its items.
QStringList paint(QWidget& dialog)
{
    dialog.resize(1000, 2000);
    dialog.show();
    QCoreApplication::processEvents();
    QStringList texts;
    for (const QAbstractItemView* view : dialog.findChildren<QAbstractItemView*>()) {
        const QAbstractItemModel& cells = *view->model();
        std::function<void(const QModelIndex&)> walk = [&](const QModelIndex& parent) {
            for (int row = 0; row < cells.rowCount(parent); ++row)
                for (int column = 0; column < cells.columnCount(parent); ++column) {
                    texts << cells.index(row, column, parent).data().toString();
                    walk(cells.index(row, column, parent));
                }
        };
        walk(QModelIndex());
    }
    return texts;
}

QStringList showDesign()
{
    const auto project = VKD_H_ZOBDoc::scratch();
    VKD_H_Dialog dialog;
    VKD_P_DesignParameter page(project.get(), project.get(), &dialog, false, false);
    (new QVBoxLayout(&dialog))->addWidget(&page);
    page.init();
    page.readZob();
    page.showHelp(); // the help window closes with the dialog
    return paint(dialog);
}

QStringList showOutput()
{
    const auto project = VKD_H_ZOBDoc::scratch();
    VKD_H_PluginParameter parameter(project.get());
    VKD_H_Dialog dialog;
    auto page = new VKD_P_WidgetGraphicalOutput(&dialog, VKD_P_GraphicalOutput_Standard, &parameter,
                                                nullptr);
    (new QVBoxLayout(&dialog))->addWidget(page);
    page->setUsedNumbersAndNames({{1, 1, QString::fromLatin1("1 : Own weight")}});
    return paint(dialog) << page->getTORVAL(true) << page->writeXMLstring();
}

QStringList showRadioGroup()
{
    QWidget window;
    VKD_P_RadioGroup group;
    group.initForLF(&window, {VKD_P_RadioGroup::All_A, VKD_P_RadioGroup::All_E});
    group.useWidget(&window);
    window.setLayout(group.layout());
    group.setSelectedId(VKD_P_RadioGroup::All_E);
    return paint(window) << group.writeXML();
}

/// The help stays open, because its host window does not belong to this plug-in.
QStringList showHelp()
{
    const bool shown = VKD_T_Help::show(nullptr, "MERDAN", "PARA");
    return {QString(shown, QLatin1Char('x'))};
}

QStringList openDocument()
{
    keptDocument = VKD_H_ZOBDoc::create(folder.filePath(QStringLiteral("kept.zob")));
    return {keptDocument->path()};
}

QStringList checkItself()
{
    const bool passed = vkd_unittests({QStringLiteral("logpath:") + folder.path()}) == 0;
    return {QString(passed, QLatin1Char('x'))};
}
} // namespace

/// Performs one action and passes its texts to the host. An empty list indicates a failure.
extern "C" Q_DECL_EXPORT void show(const char* what, QStringList* texts)
{
    const std::pair<const char*, QStringList (*)()> all[] = {
        {"design", showDesign}, {"output", showOutput},     {"radio", showRadioGroup},
        {"help", showHelp},     {"document", openDocument}, {"selfcheck", checkItself},
    };
    for (const auto& [name, act] : all)
        if (qstrcmp(name, what) == 0)
            *texts << act();
}

/// Opens a document that the host stores in an object that is older than the store.
extern "C" Q_DECL_EXPORT void openForHost(const char*, std::shared_ptr<void>* holder)
{
    *holder = VKD_H_ZOBDoc::create(folder.filePath(QStringLiteral("host.zob")));
}
