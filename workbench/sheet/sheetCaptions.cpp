#include "sheet/sheetCaptions.h"

namespace workbench {

namespace {
bool agree(const QVector<SheetPicture>& pictures, const QVector<PlotCaption>& captions)
{
    if (pictures.size() != captions.size())
        return false;
    for (int i = 0; i < pictures.size(); ++i)
        if (captions[i].loadCase != 0 && captions[i].loadCase != pictures[i].loadCase)
            return false;
    return true;
}
} // namespace

void setCaptions(SheetPlan* plan, const QVector<PlotCaption>& captions)
{
    if (!agree(plan->pictures, captions))
        return;
    for (int i = 0; i < captions.size(); ++i) {
        SheetPicture& picture = plan->pictures[i];
        picture.caption = captions[i].plot;
        picture.loadCase = captions[i].loadCase;
    }
}

void setLoadCaseTitles(SheetPlan* plan, const QHash<int, QString>& titles)
{
    for (SheetPicture& picture : plan->pictures)
        if (picture.loadCase != 0)
            picture.loadCaseTitle = titles.value(picture.loadCase);
}

} // namespace workbench
