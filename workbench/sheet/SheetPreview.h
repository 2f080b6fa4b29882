#pragma once

#include "sheet/SheetPlan.h"

#include <QWidget>

#include <memory>

class QAction;
class QLabel;
class QSpinBox;
class QToolButton;
class VKD_QT4_ComboBox;

namespace workbench {

class ModelImages;
class SheetPainter;
class SheetView;

/// A preview of the sheets of the current selection, with page navigation and export.
class SheetPreview : public QWidget
{
    Q_OBJECT

public:
    /// The action of the window that exports the sheets has a button.
    explicit SheetPreview(QAction* exportSheets, QWidget* parent = nullptr);
    ~SheetPreview() override;

    /// Shows sheets of the project at this database index, or none below 1, beginning with the
    /// first page. The preview has no plots until setPlan().
    void setProject(int index, const QString& name);
    void setPlan(const SheetPlan& plan);
    const SheetPlan& plan() const;
    /// Returns the painter of the project's sheets; the preview owns it.
    SheetPainter& painter() { return *m_painter; }

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void setTexts();
    void showPage();
    void zoom(int entry);

    std::unique_ptr<ModelImages> m_models;
    std::unique_ptr<SheetPainter> m_painter;
    QToolButton* m_previous;
    QLabel* m_pageLabel;
    QSpinBox* m_page;
    QLabel* m_count;
    QToolButton* m_next;
    VKD_QT4_ComboBox* m_zoom;
    QToolButton* m_export;
    SheetView* m_view;
};

} // namespace workbench
