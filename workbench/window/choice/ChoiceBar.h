#pragma once

#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QMenu;
class QToolButton;

namespace workbench {

class ChoiceTable;

/// The bar above a table of load cases: a filter for numbers, ranges and words, and buttons that
/// check or uncheck rows. All, None and Invert change only the rows that the filter shows. Only
/// These, or Return, checks these rows and unchecks the others; Kind does the same for the rows of
/// one kind. Each button makes a single change.
class ChoiceBar : public QWidget
{
    Q_OBJECT

public:
    /// `name` is the object name.
    ChoiceBar(QWidget* parent, const char* name);
    /// Sets the table, which must outlive the bar. The table must be created after the bar so that
    /// it follows the bar in the tab order.
    void setTable(ChoiceTable* table);
    QString filterText() const;
    void setFilterText(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolButton* newButton(const char* name, const QString& text, const QString& toolTip);
    void layOut();
    void filter();
    void listKinds();
    void choose(const std::function<bool(int row, bool wasChosen)>& isChosen);
    bool isShown(int row) const;

    ChoiceTable* m_table = nullptr;
    QLineEdit* m_filter;
    QLabel* m_count;
    QToolButton* m_only; // the buttons are created in tab order
    QToolButton* m_all;
    QToolButton* m_none;
    QToolButton* m_invert;
    QToolButton* m_kind;
    QMenu* m_kinds;
};

} // namespace workbench
