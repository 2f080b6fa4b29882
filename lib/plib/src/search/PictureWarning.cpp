#include "search/PictureWarning.h"

#include "script/scriptLines.h"
#include "search/treeItems.h"
#include "tree/GraphicalOutputTreeWidgetItem.h"

#include <VKD_QT_MessageBox.h>

#include <QPointer>
#include <QTimer>
#include <QTreeWidget>

#include <utility>

namespace plib {

namespace {
constexpr int ManyPictures = 500;
}

PictureWarning::PictureWarning(QTreeWidget* tree, Check check)
    : QObject(tree)
    , m_tree(tree)
    , m_check(std::move(check))
{
}

/// Asks later, because a dialog must not open while the view processes the click.
bool PictureWarning::holdsBack(QTreeWidgetItem* item, int pictures)
{
    if (m_isConfirmed || pictures <= ManyPictures)
        return false;
    const QPersistentModelIndex index = indexOf(*m_tree, item);
    QTimer::singleShot(0, this, [this, index, pictures] { ask(index, pictures); });
    return true;
}

/// A second click can be waiting while the message box is open. The host can destroy the page in
/// the event loop of the box.
void PictureWarning::ask(const QPersistentModelIndex& index, int pictures)
{
    if (m_isAsking)
        return;
    const QPointer<PictureWarning> self(this);
    m_isAsking = true;
    const int answer = VKD_QT_MessageBox::warning(
        m_tree, tr("Many Pictures"),
        tr("This click adds %1 pictures to the script. Do you want to continue?").arg(pictures),
        QMessageBox::Yes, QMessageBox::No, 0);
    if (!self)
        return;
    m_isAsking = false;
    if (answer != QMessageBox::Yes || !index.isValid()) // the tree may have been rebuilt
        return;
    m_isConfirmed = true;
    m_check(itemOf(*m_tree, index));
}

int newPictures(QTreeWidgetItem* item)
{
    const GraphicalOutputTreeWidgetItem* output = outputItem(item);
    if (!output || item->checkState(0) == Qt::Checked)
        return 0;
    int count = drawsPicture(output) ? 1 : 0;
    for (int i = 0; i < item->childCount(); ++i)
        count += newPictures(item->child(i));
    return count;
}

} // namespace plib
