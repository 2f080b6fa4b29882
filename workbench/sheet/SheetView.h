#pragma once

#include "SheetPlan.h"

#include <QAbstractScrollArea>

namespace workbench {

class SheetPainter;

/// One page of a plan on the screen, in the proportions of its paper. Page Up and Page Down move
/// within a page that is larger than the view and then to the next one, as the wheel does; Home and
/// End go to the first and the last page. Only the page that is shown is ever drawn.
class SheetView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    enum Zoom { WholePage = 0, PageWidth = 1, ActualSize = 2 };

    explicit SheetView(QWidget* parent = nullptr);

    /// The painter is not owned. The page stays where the plan has it, else it is the last one.
    void setPlan(const SheetPlan& plan, SheetPainter* painter);
    const SheetPlan& plan() const { return m_plan; }
    int page() const { return m_page; } ///< counted from 0
    /// Shows a page from its top; numbers that the plan lacks are held within it.
    void setPage(int page);
    void setZoom(Zoom zoom);
    /// The sheet in the coordinates of the viewport, pixels; null without a page.
    QRectF sheetRect() const;

Q_SIGNALS:
    void pageChanged(int page);

public Q_SLOTS:
    void pageUp();
    void pageDown();

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void paintSheet(QPainter& painter);
    QSizeF sheetSize() const;
    void fitScrollBars();
    void turnPage(int by);
    void describe();

    SheetPlan m_plan;
    SheetPainter* m_painter = nullptr;
    int m_page = 0;
    Zoom m_zoom = WholePage;
    int m_wheel = 0; // what is left of a notch
};

} // namespace workbench
