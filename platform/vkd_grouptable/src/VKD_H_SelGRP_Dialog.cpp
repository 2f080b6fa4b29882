#include "VKD_H_SelGRP_Dialog.h"

#include "pickedGroups.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_qt_icon_named.h>
#include <VKD_QT_Widgets.h>

#include <QGuiApplication>
#include <QScreen>

namespace {
/// Returns the position closest to the given position at which the whole dialog is on the screen.
QPoint onScreen(const QPoint& position, const QSize& size)
{
    const QScreen* screen = QGuiApplication::screenAt(position);
    const QRect room = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const QPoint last = room.bottomRight() - QPoint(size.width(), size.height());
    return {qMax(room.left(), qMin(position.x(), last.x())),
            qMax(room.top(), qMin(position.y(), last.y()))};
}
} // namespace

VKD_H_SelGRP_Dialog::VKD_H_SelGRP_Dialog(bool, int, VKD_H_ZOBDoc* doc, std::vector<int>& checked,
                                         const std::vector<int>& usedElsewhere, QPoint* position,
                                         QWidget* parent, const char* name)
    : VKD_H_GroupDialog(VKD_H_GroupKind::Primary, doc, checked, usedElsewhere, parent, name)
{
    setWindowTitle(tr("Group Selection"));
    auto pick = new VKD_QT_PushButton(tr("&Pick in 3D View"), this, "pick");
    pick->setIcon(vkd::qt::icon(QStringLiteral(":/icon/program/pick")));
    pick->setToolTip(
        tr("Closes this dialog so that you can pick groups in the 3D view, starting with those "
           "that are checked here. The picked groups replace all groups of the row."));
    pick->setEnabled(hasGroups());
    addFootButton(pick);
    connect(pick, &QPushButton::clicked, this, [this, doc] {
        if (doc)
            removePickedGroups(doc->handle()); // the user may pick nothing
        storePickedGroups(ZobHandle(StartOfPicking), presentChoice());
        done(PickOutside);
    });
    if (position)
        move(onScreen(*position, size()));
}

int VKD_H_SelGRP_Dialog::getAniSelectionFromZob(int index, std::vector<int>& groups)
{
    return readPickedGroups(ZobHandle(index), groups) ? 0 : -1;
}

VkdStatus VKD_H_SelGRP_Dialog::putAniSelectionToZob(int index, const std::vector<int>& groups)
{
    return storePickedGroups(ZobHandle(index), groups);
}

VkdStatus VKD_H_SelGRP_Dialog::removeAniSelectionFromZob(int index)
{
    return removePickedGroups(ZobHandle(index));
}
