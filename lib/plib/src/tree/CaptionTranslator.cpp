#include "tree/CaptionTranslator.h"

#include "catalogue/captionText.h"
#include "tree/GraphicalOutputTreeWidgetItem.h"
#include "tree/itemRoles.h"

#include <VKD_QT_SignalBlocker.h>

#include <QEvent>
#include <QTreeWidget>

namespace plib {

namespace {
constexpr int CaptionLevels = 3;

void translateBelow(QTreeWidgetItem* parent, int level)
{
    for (int i = 0; level < CaptionLevels && i < parent->childCount(); ++i)
        if (GraphicalOutputTreeWidgetItem* item = outputItem(parent->child(i))) {
            const RecordCaption caption = captionAt(item->record, item->level);
            item->setText(0, captionOfId(caption.id, caption.title));
            translateBelow(item, level + 1);
        }
}
} // namespace

CaptionTranslator::CaptionTranslator(QTreeWidget* tree)
    : QObject(tree)
    , m_tree(tree)
{
    tree->installEventFilter(this);
}

void CaptionTranslator::translate()
{
    if (!m_isActive)
        return;
    const VKD_QT_SignalBlocker silence(m_tree->model());
    translateBelow(m_tree->invisibleRootItem(), 0);
}

bool CaptionTranslator::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_isActive = true;
        translate();
        publishRoles(m_tree);
        m_tree->doItemsLayout(); // the widths of the captions have changed
    }
    return QObject::eventFilter(watched, event);
}

} // namespace plib
