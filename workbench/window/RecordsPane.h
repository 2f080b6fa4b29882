#pragma once

#include <VKD_QT_TableWidget.h>

namespace workbench {

/// The design records as they lie in the project, word by word: a row for each word with its name
/// and unit, and a column for each record.
class RecordsPane : public VKD_QT_TableWidget
{
    Q_OBJECT

public:
    explicit RecordsPane(QWidget* parent = nullptr);

    /// Reads the records of the project at this database index anew; below 1 there are none.
    void setProject(int index);

protected:
    void changeEvent(QEvent* event) override;

private:
    void setTexts();
    void fill();

    int m_index = -1;
};

} // namespace workbench
