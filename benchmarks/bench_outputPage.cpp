// The time from the constructor of the output page to its first paint event, compared with a bare
// widget that contains a tree.

#include "plotModel.h"
#include "RatioReporter.h"

#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_WidgetGraphicalOutput>

#include <QApplication>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
constexpr QSize Size(900, 640);

/// A project with enough content of each kind to offer about a hundred plots.
class Project
{
public:
    Project()
        : doc(VKD_H_ZOBDoc::create(m_folder.filePath(QStringLiteral("p.zob"))))
    {
        vkd::dbo::storeModel(doc->handle(), plotModel());
    }

private:
    QTemporaryDir m_folder;

public:
    std::unique_ptr<VKD_H_ZOBDoc> doc;
};

void showPage(benchmark::State& state)
{
    const Project project;
    VKD_H_PluginParameter parameter(project.doc.get());
    for (auto _ : state) {
        VKD_P_WidgetGraphicalOutput page(nullptr, VKD_P_GraphicalOutput_Standard, &parameter,
                                         nullptr);
        page.resize(Size);
        page.show();
        benchmark::DoNotOptimize(page.grab());
    }
}

/// Shows a tree whose rows have check boxes and icons, like the rows in the page's tree.
void showBareTree(benchmark::State& state)
{
    constexpr int RowCount = 100;
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    const QIcon icon(picture);
    for (auto _ : state) {
        QWidget widget;
        auto tree = new QTreeWidget;
        (new QVBoxLayout(&widget))->addWidget(tree);
        for (int row = 0; row < RowCount; ++row) {
            auto item = new QTreeWidgetItem({QStringLiteral("Principal stress I")});
            item->setCheckState(0, Qt::Checked);
            item->setIcon(0, icon);
            tree->addTopLevelItem(item);
        }
        widget.resize(Size);
        widget.show();
        benchmark::DoNotOptimize(widget.grab());
    }
}

BENCHMARK(showPage);
BENCHMARK(showBareTree);
} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return runBenchmarks(
        argc, argv,
        {{"showPage", "showBareTree", 1.8, "shows a widget with a tree of as many plots"}});
}
