#pragma once

#include <QObject>
#include <QPointer>

#include <set>

class DesignParameter;
class VKD_QT4_ComboBox;

namespace plib {

/// Lets the list of types in a cell change all selected rows, if its row is one of them. If their
/// types differ, the list has no current entry at first, and the rows keep their types until the
/// user chooses one. The object is a child of the page.
class TypeEditor : public QObject
{
    Q_OBJECT

public:
    explicit TypeEditor(DesignParameter* page);

    /// Returns the rows that change their type with this row.
    std::set<int> rowsOf(int row) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void open(VKD_QT4_ComboBox* list);
    void commit(const QWidget* editor);

    DesignParameter* m_page;
    QPointer<VKD_QT4_ComboBox> m_list;
    std::set<int> m_rows; ///< when the list was opened
};

} // namespace plib
