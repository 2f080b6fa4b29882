#pragma once

#include "sheet/SheetPlan.h"

#include <ZobHandle.h>

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
    /// The preview has a button for `exportSheets`, the window's action that exports the sheets.
    explicit SheetPreview(QAction* exportSheets, QWidget* parent = nullptr);
    ~SheetPreview() override;

    /// Sets the project, or no project if the handle is null, and shows the first page. The preview
    /// is empty until setPlan() is called.
    void setProject(ZobHandle project, const QString& name);
    void setPlan(const SheetPlan& plan);
    /// Shows the page that contains a picture. Pictures are counted from 0. If the preview is
    /// hidden, it shows the page when it receives the next plan.
    void showPicture(int picture);
    /// Returns the painter of the project's sheets; the preview owns it.
    SheetPainter& painter() { return *m_painter; }

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void setTexts();
    void showPage();
    void turnToPicture();
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
    int m_picture = -1; // picture whose page must still be shown, or -1
};

} // namespace workbench
