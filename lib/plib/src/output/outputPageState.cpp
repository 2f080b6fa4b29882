// The part of the output page that writes and reads its state as concatenated tagged strings.

#include "output/PageHistory.h"
#include "output/SavedPage.h"
#include "output/WidgetGraphicalOutputData.h"
#include "tree/GraphicalOutputTreeWidget.h"
#include "VKD_P_WidgetGraphicalOutput.h"

#include <vkd_dbo_camera.h>

namespace savedtag = plib::savedtag;
using plib::savedPart;
using vkd::dbo::DesktopCamera;

QString VKD_P_WidgetGraphicalOutput::writeXMLstring()
{
    QString xml = data->panel->savedParts();
    if (data->animator) {
        Q_EMIT signalBeobXY(AnimatorStoreCamera, 0.0);
        xml +=
            savedPart(savedtag::Camera,
                      vkd::dbo::getAnimatorPerspektive(DesktopCamera, vkd::dbo::PersistentCamera));
    }
    return xml + savedPart(savedtag::Plots, data->tree->selectionText());
}

/// Does not change widgets whose tags are missing.
void VKD_P_WidgetGraphicalOutput::readXMLstring(QString xml)
{
    const plib::PageChange change(data->history.get());
    if (xml.isEmpty())
        return data->tree->applySelection(QString());
    const plib::SavedPage saved(xml, data->panel->settings());
    data->panel->apply(saved);
    if (data->animator) {
        vkd::dbo::setAnimatorPerspektive(DesktopCamera, saved.part(savedtag::Camera));
        Q_EMIT signalBeobXY(AnimatorTakeCamera, 0.0);
    }
    data->tree->applySelection(saved.part(savedtag::Plots));
}
