#pragma once

#include "dialogs/ElidedLabel.h"

#include <QTimer>

struct WidgetGraphicalOutputData;

namespace plib {

struct LineOrigins;

/// The line below an output page with the numbers of plots, pictures, sheets and script lines. They
/// are those of the script that the host has requested last. If a change is not followed by a
/// request, the line counts the script itself. The split page has no script, and hides the line.
class CountsLine : public ElidedLabel
{
    Q_OBJECT

public:
    /// `pageData` must outlive the line.
    CountsLine(WidgetGraphicalOutputData* pageData, QWidget* page);

    /// Counts a script. Call this function when the host has requested it.
    void count(const LineOrigins& origins, const QString& script);
    /// Marks the counts as outdated.
    void change();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void countAgain();

    WidgetGraphicalOutputData& m_data;
    QTimer m_waiting; ///< for a request of the host
    bool m_isOutdated = true;
};

} // namespace plib
