#include "window/presets/presetsAction.h"

#include "window/presets/PresetsDialog.h"

#include <VKD_P_DesignParameter>

#include <QAction>
#include <QCoreApplication>
#include <QTableWidget>

namespace workbench {

namespace {
struct ActionText
{
    Q_DECLARE_TR_FUNCTIONS(workbench::PresetsDialog)
};
} // namespace

QAction* addPresetsAction(VKD_P_DesignParameter* page, const OpenProject* project)
{
    auto action = new QAction(ActionText::tr("Pr&esets..."), page);
    action->setObjectName(QStringLiteral("presets"));
    action->setShortcut(int(Qt::CTRL) | Qt::Key_R);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(action, &QAction::triggered, page,
                     [page, project] { PresetsDialog(page, project, page->window()).exec(); });
    page->addAction(action);
    page->findChild<QTableWidget*>(QStringLiteral("table"))->addAction(action);
    return action;
}

} // namespace workbench
