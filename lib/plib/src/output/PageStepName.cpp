#include "output/PageStepName.h"

#include "catalogue/captionText.h"
#include "history/stepText.h"
#include "output/WidgetGraphicalOutputData.h"
#include "tree/GraphicalOutputTreeWidgetItem.h"
#include "VKD_P_WidgetGraphicalOutput_Role.h"

#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_RadioButtonGroup.h>

#include <QDataStream>
#include <QRadioButton>

namespace plib {

namespace {
using vkd::plib::widgetgraphicaloutput::RowLevel;

/// An entry of a radio group or a list, and the title of the group box that contains it.
struct Entry
{
    QString title;
    QString text; ///< empty if the entry is a picture
};

/// Returns an entry in the current language of the page. The title is empty if the page does not
/// have the widget.
Entry entryOf(const WidgetGraphicalOutputData& page, const QString& widget, int entry)
{
    for (const VKD_QT_RadioButtonGroup* group :
         {page.scaleGroup, page.formatGroup, page.picturesGroup, page.viewGroup})
        if (group && group->objectName() == widget)
            return {group->title(), group->getRadioButton(entry)->text()};
    if (page.scaleCombo->objectName() == widget)
        return {page.scaleGroup->title(), page.scaleCombo->itemText(entry)};
    if (page.pageSplitCombo && page.pageSplitCombo->objectName() == widget)
        return {page.pageSplitBox->title(), page.pageSplitCombo->itemText(entry)};
    return {};
}
} // namespace

PageStepName::PageStepName(const QStringList& parts)
    : m_parts(parts)
{
}

PageStepName::PageStepName(Kind kind, const QStringList& parts)
    : m_kind(kind)
    , m_parts(parts)
{
}

PageStepName PageStepName::ofEntry(const QString& widget, int entry)
{
    return {Kind::Entry, {widget, QString::number(entry)}};
}

/// The name of a row also contains the caption of its plot. The text of a row is the same in every
/// language.
PageStepName PageStepName::ofItem(QTreeWidgetItem* item)
{
    const QString text =
        QString::fromUtf8(item->checkState(0) == Qt::Unchecked
                              ? QT_TRANSLATE_NOOP("plib::PageStepName", "Uncheck \"%1\"")
                              : QT_TRANSLATE_NOOP("plib::PageStepName", "Check \"%1\""));
    const GraphicalOutputTreeWidgetItem* known = outputItem(item);
    if (!known)
        return {Kind::Item, {text, QString(), item->text(0)}};
    const RecordCaption caption = captionAt(known->record, known->level);
    const QStringList parts{text, caption.id, caption.title};
    return {Kind::Item, known->level == RowLevel ? parts + QStringList(item->text(0)) : parts};
}

QString PageStepName::text(const WidgetGraphicalOutputData& page) const
{
    switch (m_kind) {
    case Kind::Text: return stepText(m_parts);
    case Kind::Entry: return entryText(page);
    case Kind::Item: return itemText();
    }
    return QString();
}

QString PageStepName::entryText(const WidgetGraphicalOutputData& page) const
{
    const Entry entry = entryOf(page, m_parts.value(0), m_parts.value(1).toInt());
    return entry.text.isEmpty() ? entry.title : tr("%1 \"%2\"").arg(entry.title, entry.text);
}

QString PageStepName::itemText() const
{
    QStringList captions(captionOfId(m_parts.value(1), m_parts.value(2)));
    captions += m_parts.mid(3);
    return tr(m_parts.value(0).toUtf8().constData()).arg(captions.join(QLatin1String(", ")));
}

QDataStream& operator<<(QDataStream& stream, const PageStepName& name)
{
    return stream << qint32(name.m_kind) << name.m_parts;
}

QDataStream& operator>>(QDataStream& stream, PageStepName& name)
{
    qint32 kind = 0;
    stream >> kind >> name.m_parts;
    name.m_kind = PageStepName::Kind(kind);
    return stream;
}

} // namespace plib
