#pragma once

#include <QTabWidget>

/// The tabs of a dialog. The wheel turns no page, and the user cannot leave a page while one of its
/// fields is refused; programs can.
class PageTabs : public QTabWidget
{
public:
    explicit PageTabs(QWidget* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool leadsElsewhere(QEvent* event) const;
    bool isHeld();
};
