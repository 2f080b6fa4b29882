#pragma once

#include "sheet/SheetPlan.h"

#include <QAbstractScrollArea>

namespace workbench {

class SheetPainter;

/// Shows one page of a plan in the proportions of its paper. The keys Page Up and Page Down and
/// the mouse wheel scroll within a page that is larger than the view, and show the next or the
/// previous page at its edges.
/// Home and End show the first and the last page. Only the current page is drawn.
class SheetView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    enum Zoom { WholePage = 0, PageWidth = 1, ActualSize = 2 };

    explicit SheetView(QWidget* parent = nullptr);

    /// Sets the plan; the painter is not owned. Stays on the current page, or shows the last page
    /// if the plan has fewer pages.
    void setPlan(const SheetPlan& plan, SheetPainter* painter);
    const SheetPlan& plan() const { return m_plan; }
    int page() const { return m_page; } ///< counted from 0
    /// Shows a page from its top. A page number out of range is replaced with the nearest valid
    /// page number.
    void setPage(int page);
    void setZoom(Zoom zoom);
    /// Returns the rectangle of the sheet in viewport coordinates (pixels), or a null rectangle if
    /// there is no page.
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
    int m_wheel = 0; // accumulated rotation of less than one notch
};

} // namespace workbench
