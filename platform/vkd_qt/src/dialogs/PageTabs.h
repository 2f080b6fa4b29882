#pragma once

#include <QTabWidget>

/// The tab widget of a dialog. The mouse wheel does not change the page. The user cannot leave a
/// page while one of its fields rejects its text, but setCurrentIndex() still works.
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
