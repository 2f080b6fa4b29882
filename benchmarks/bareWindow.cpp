// The minimum work of any desktop program before its window is painted.

#include "EndedByPicture.h"

#include <QMainWindow>
#include <QTreeWidget>

int main(int argc, char* argv[])
{
    const EndedByPicture application(argc, argv, QString());
    QMainWindow window;
    auto tree = new QTreeWidget;
    for (int row = 0; row < 100; ++row)
        tree->addTopLevelItem(new QTreeWidgetItem({QStringLiteral("Principal stress I")}));
    window.setCentralWidget(tree);
    window.resize(1280, 800); // the size of the workbench's window
    window.show();
    return QApplication::exec();
}
