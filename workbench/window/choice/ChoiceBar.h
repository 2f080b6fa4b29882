#pragma once

#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QMenu;
class QToolButton;

namespace workbench {

class ChoiceTable;

/// The line above a table of load cases: a filter for numbers, ranges and words, and buttons that
/// check or uncheck rows. The buttons change only the rows that the filter shows; Return, or the
/// button for it, checks exactly these rows. Each button makes a single change.
class ChoiceBar : public QWidget
{
    Q_OBJECT

public:
    /// `name` is the object name.
    ChoiceBar(QWidget* parent, const char* name);
    /// Sets the table, which must outlive the line. It is created after the line, so that it
    /// follows in the tab order.
    void setTable(ChoiceTable* table);

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
