#include "output/CountsLine.h"

#include "catalogue/ZobModelQueries.h"
#include "output/WidgetGraphicalOutputData.h"
#include "script/PlatformScriptEnvironment.h"
#include "script/scriptLines.h"
#include "tree/GraphicalOutputTreeWidget.h"
#include "tree/GraphicalOutputTreeWidgetItem.h"

namespace plib {

namespace {
constexpr int WaitMs = 100;
}

CountsLine::CountsLine(WidgetGraphicalOutputData* pageData, QWidget* page)
    : ElidedLabel(page)
    , m_data(*pageData)
{
    setObjectName(QStringLiteral("scriptCounts"));
    setVisible(m_data.progname != VKD_P_GraphicalOutput_Split);
    m_waiting.setSingleShot(true);
    m_waiting.setInterval(WaitMs);
    connect(&m_waiting, &QTimer::timeout, this, &CountsLine::countAgain);
}

void CountsLine::count(const LineOrigins& origins, const QString& script)
{
    m_isOutdated = false;
    m_waiting.stop();
    const int sheets = sheetCount(origins.pictures, m_data.panel->settings());
    setFullText(origins.pictures == 0 ? tr("No plot is checked, so there is no script.")
                                      : tr("Plots: %1, pictures: %2, sheets: %3, script lines: %4")
                                            .arg(origins.plots)
                                            .arg(origins.pictures)
                                            .arg(sheets)
                                            .arg(script.count(QLatin1Char('\n'))));
}

void CountsLine::change()
{
    m_isOutdated = true;
    if (isVisible())
        m_waiting.start();
}

void CountsLine::showEvent(QShowEvent* event)
{
    ElidedLabel::showEvent(event);
    if (m_isOutdated)
        m_waiting.start();
}

/// A hidden line is counted when it is shown again.
void CountsLine::hideEvent(QHideEvent* event)
{
    ElidedLabel::hideEvent(event);
    m_waiting.stop();
}

void CountsLine::countAgain()
{
    std::vector<QString> lines;
    const ZobModelQueries model(m_data.pluginParameter);
    const LineOrigins origins =
        collectScriptLines(m_data.tree->invisibleRootItem(), lines, Keywords::English,
                           m_data.progname, [&model] { return model.kindOfSystem(); });
    count(origins, outputScript(m_data.panel->settings(), lines, QString(), Keywords::English,
                                PlatformScriptEnvironment(m_data.pluginParameter)));
}

} // namespace plib
