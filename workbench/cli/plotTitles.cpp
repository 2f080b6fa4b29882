#include "plotTitles.h"

#include <catalogue/Catalogue.h>
#include <vkd_lib_value.h>

namespace workbench {

QVector<PlotTitles> plotTitles(int language)
{
    const int present = vkd_lib_getvalue(VKD_SETTING_LANGUAGE);
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, language); // which captions follow
    plib::Catalogue catalogue;
    plib::loadCatalogue(catalogue, language, [](const QString&, const QString&) {});
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, present);
    QVector<PlotTitles> titles;
    for (const plib::GraphicalOutputRecord& record : catalogue.list)
        titles.append({record.title1, record.title2, record.title3});
    return titles;
}

} // namespace workbench
