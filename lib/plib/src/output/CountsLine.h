#pragma once

#include "dialogs/ElidedLabel.h"

#include <QTimer>

struct WidgetGraphicalOutputData;

namespace plib {

struct LineOrigins;

/// The line below an output page that shows the numbers of plots, pictures, sheets and script
/// lines. The numbers refer to the script that the host requested last. If the host does not
/// request the script after a change, this class generates and counts it. A split page has no
/// script, so the line is hidden.
class CountsLine : public ElidedLabel
{
    Q_OBJECT

public:
    /// `pageData` must outlive the line.
    CountsLine(WidgetGraphicalOutputData* pageData, QWidget* page);

    /// Shows the numbers for a script. Must be called when the host has requested the script.
    void count(const LineOrigins& origins, const QString& script);
    /// Marks the counts as outdated.
    void change();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void countAgain();

    WidgetGraphicalOutputData& m_data;
    QTimer m_waiting; ///< time that the host has for requesting the script
    bool m_isOutdated = true;
};

} // namespace plib
