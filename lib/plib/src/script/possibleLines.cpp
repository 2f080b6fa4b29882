#include "script/possibleLines.h"

#include "script/outputScript.h"
#include "script/scriptLines.h"

#include <vkd_dbo_camera.h>

#include <QSet>

namespace plib {

namespace {
/// Stands for a model with area elements. The scripts have no program block around the plots.
class AnyModel : public ScriptEnvironment
{
public:
    QString programHead() const override { return {}; }
    QString programEnd(Keywords) const override { return {}; }
    bool hasQuads() const override { return true; }
    QString camera() const override
    {
        return vkd::dbo::getAnimatorPerspektive(vkd::dbo::DesktopCamera, vkd::dbo::ScriptCamera);
    }
};

class LineSet
{
public:
    void add(const QString& text)
    {
        for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            if (!m_known.contains(line)) {
                m_known.insert(line);
                lines.append(line);
            }
    }
    QStringList lines;

private:
    QSet<QString> m_known;
};

bool isInScripts(const GraphicalOutputRecord& record)
{
    for (int program : {record.prog1, record.prog2, record.prog3})
        if (program > 0 && program != VKD_P_GraphicalOutput_Split)
            return true;
    return false;
}

std::vector<QString> plotLines(const std::vector<GraphicalOutputRecord>& catalogue,
                               Keywords keywords)
{
    std::vector<QString> lines;
    ScriptLineWriter writer(lines, keywords, VKD_P_GraphicalOutput_Standard, [] { return 0; });
    for (int viewKind : {3, 2, 0})
        writer.writeView(viewKind);
    const GraphicalOutputRecord* noCaption = nullptr;
    for (const GraphicalOutputRecord& record : catalogue) {
        if (!isInScripts(record))
            continue;
        const QString& text = writer.script(record);
        writer.writeText(text);
        if (record.ctrl != CtrlStandsAlone)
            for (const GraphicalOutputRecord* above : {noCaption, &record}) // writes both units
                writer.writeCase(
                    1, text, [] { return QStringLiteral("1+2:"); }, [above] { return above; });
    }
    return lines;
}

void addPageSetups(LineSet* set, Keywords keywords)
{
    OutputSettings settings;
    chooseScale(AutoScaleRow, &settings);
    for (PageFormat format : {PageFormat::Portrait, PageFormat::Landscape})
        for (PagePictures pictures : {PagePictures::One, PagePictures::Two}) {
            settings.formatId = format;
            settings.picturesId = pictures;
            set->add(sizeStatement(settings, keywords));
        }
    chooseScale(AutoScaleRow + 1, &settings);
    set->add(sizeStatement(settings, keywords));
    set->add(fillDefinitions(true, keywords));
}
} // namespace

QStringList possibleLines(const std::vector<GraphicalOutputRecord>& catalogue, Keywords keywords)
{
    LineSet set;
    const std::vector<QString> lines = plotLines(catalogue, keywords);
    OutputSettings settings;
    for (OutputView view : {OutputView::Standard3D, OutputView::PlaneXY, OutputView::PlaneXZ,
                            OutputView::PlaneYZ, OutputView::UserDefined}) {
        settings.viewId = view;
        set.add(outputScript(settings, lines, QString(), keywords, AnyModel()));
    }
    addPageSetups(&set, keywords);
    return set.lines;
}

} // namespace plib
