#pragma once

#include <QAccessibleWidget>

namespace workbench {

struct LineChange;
class ScriptView;
class TextLines;

/// Makes the view of a script accessible to screen readers, as text that can be read and selected
/// but not edited.
class ScriptViewAccess : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit ScriptViewAccess(ScriptView* view);

    /// Makes Qt create objects of this class for script views.
    static void install();
    /// These functions report a change to the text, or to the cursor or the selection.
    static void tellText(ScriptView* view, const TextLines& before,
                         const QVector<LineChange>& changes);
    static void tellSelection(ScriptView* view);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;

private:
    ScriptView* view() const;
};

} // namespace workbench
