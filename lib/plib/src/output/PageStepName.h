#pragma once

#include <QCoreApplication>
#include <QStringList>

class QDataStream;
class QTreeWidgetItem;
struct WidgetGraphicalOutputData;

namespace plib {

/// The name of an undo step of the output page. It refers to widgets by their object names and to
/// plots by their identifiers, so that the name is always shown in the language of the page.
class PageStepName
{
    Q_DECLARE_TR_FUNCTIONS(plib::PageStepName)

public:
    PageStepName() = default;
    /// Creates a name from its parts; see stepText().
    explicit PageStepName(const QStringList& parts);
    /// Returns the name of the choice of an entry in a radio group or in a list.
    static PageStepName ofEntry(const QString& widget, int entry);
    /// Returns the name of checking or unchecking an item of the tree.
    static PageStepName ofItem(QTreeWidgetItem* item);

    bool isNull() const { return m_parts.isEmpty(); }
    QString text(const WidgetGraphicalOutputData& page) const;

    friend QDataStream& operator<<(QDataStream& stream, const PageStepName& name);
    friend QDataStream& operator>>(QDataStream& stream, PageStepName& name);

private:
    enum class Kind : qint32 { Text, Entry, Item };

    PageStepName(Kind kind, const QStringList& parts);
    QString entryText(const WidgetGraphicalOutputData& page) const;
    QString itemText() const;

    Kind m_kind = Kind::Text;
    QStringList m_parts;
};

} // namespace plib
