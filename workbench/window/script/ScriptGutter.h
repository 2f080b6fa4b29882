#pragma once

#include <QWidget>

namespace workbench {

class ScriptView;

/// The margin to the left of a script: line numbers, marks where lines were removed, and the lines
/// of the current plot. A click on a number selects its line.
class ScriptGutter : public QWidget
{
    Q_OBJECT

public:
    explicit ScriptGutter(ScriptView* view);

    /// Returns the width that the line numbers need, in pixels.
    int neededWidth() const;

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    ScriptView* m_view;
};

} // namespace workbench
