#include "vkd_h_groupContents.h"

#include "groups/DialogText.h"

#include <QStringList>

namespace vkd {
namespace h {

namespace {
using dbo::GroupContents;

struct ElementSort
{
    int GroupContents::*count;
    const char* one;
    const char* many;
};

const ElementSort elementSorts[] = {
    {&GroupContents::quads, QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "1 area"),
     QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "%1 areas")},
    {&GroupContents::beams, QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "1 beam"),
     QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "%1 beams")},
    {&GroupContents::trusses, QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "1 truss"),
     QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "%1 trusses")},
    {&GroupContents::cables, QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "1 cable"),
     QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "%1 cables")},
    {&GroupContents::springs, QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "1 spring"),
     QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "%1 springs")},
    {&GroupContents::bricks, QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "1 brick"),
     QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "%1 bricks")},
};
} // namespace

QString groupContentsText(const GroupContents& contents)
{
    QStringList texts;
    for (const ElementSort& sort : elementSorts) {
        const int count = contents.*sort.count;
        if (count == 1)
            texts << DialogText::tr(sort.one);
        else if (count > 1)
            texts << DialogText::tr(sort.many).arg(count);
    }
    return texts.isEmpty() ? DialogText::tr("no elements") : texts.join(QLatin1String(", "));
}

int elementCount(const GroupContents& contents)
{
    int count = 0;
    for (const ElementSort& sort : elementSorts)
        count += contents.*sort.count;
    return count;
}

} // namespace h
} // namespace vkd
