#include "window/presets/presetsAction.h"

#include "window/presets/DesignPresetsDialog.h"

#include <VKD_P_DesignParameter>

#include <QAction>
#include <QTableWidget>

namespace workbench {

namespace {
template <typename Open>
QAction* addAction(QWidget* widget, const Open& open)
{
    auto action = new QAction(PresetsDialog::tr("Pr&esets..."), widget);
    action->setObjectName(QStringLiteral("presets"));
    action->setShortcut(int(Qt::CTRL) | Qt::Key_R);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(action, &QAction::triggered, widget, open);
    widget->addAction(action);
    return action;
}
} // namespace

QAction* addPresetsAction(VKD_P_DesignParameter* page, const OpenProject* project)
{
    QAction* action = addAction(
        page, [page, project] { DesignPresetsDialog(page, project, page->window()).exec(); });
    page->findChild<QTableWidget*>(QStringLiteral("table"))->addAction(action);
    return action;
}

QAction* addPlotPresetsAction(QWidget* widget, const QTreeWidget* tree,
                              const PlotPresetsDialog::ApplyPlots& applyPlots,
                              const QString& projectPath)
{
    return addAction(widget, [=] {
        PlotPresetsDialog(*tree, applyPlots, projectPath, widget->window()).exec();
    });
}

} // namespace workbench
