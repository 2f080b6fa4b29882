#pragma once

#include <QTableView>

namespace workbench {

class RecordTableModel;

/// The design records as they lie in the project, word by word. Names and units of the words stay
/// in sight beside them. Chosen cells can be copied.
class RecordsPane : public QTableView
{
    Q_OBJECT

public:
    explicit RecordsPane(QWidget* parent = nullptr);

    /// Reads the records of the project at this database index anew; below 1 there are none.
    void setProject(int index);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QStyleOptionViewItem viewOptions() const override;

private:
    void setTexts();
    void fitColumns();

    RecordTableModel* m_model;
};

} // namespace workbench
