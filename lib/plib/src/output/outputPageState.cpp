// The part of the output page that writes and reads its state as a string of tagged parts.

#include "output/savedSettings.h"
#include "output/WidgetGraphicalOutputData.h"
#include "tree/GraphicalOutputTreeWidget.h"
#include "VKD_P_WidgetGraphicalOutput.h"

#include <vkd_dbo_camera.h>
#include <VKD_H_BoxedLineEdit.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <vkd_qt_xmlpart.h>

namespace savedtag = plib::savedtag;

namespace {
constexpr int DesktopCamera = 0;
constexpr int PersistentForm = 2;

QString part(const char* tag, const QString& value)
{
    return vkd_qt_writeXMLpart(value, QLatin1String(tag));
}

QString choicePart(const char* tag, const VKD_QT_RadioButtonGroup* group)
{
    return group ? part(tag, QString::number(group->selectedButton())) : QString();
}

/// Returns "0" for scale to fit, "-" for the row "Auto", otherwise the text of the row. So the row
/// of the list is saved only with an engineering scale; reading "0" does not change it.
QString scaleValue(const VKD_QT_RadioButtonGroup* group, const QComboBox* list)
{
    if (plib::ScaleMode(group->selectedButton()) != plib::ScaleMode::Engineering)
        return QStringLiteral("0");
    return list->currentIndex() == plib::AutoScaleRow ? QStringLiteral("-") : list->currentText();
}
} // namespace

QString VKD_P_WidgetGraphicalOutput::writeXMLstring()
{
    QString xml = part(savedtag::Scale, scaleValue(data->scaleGroup, data->scaleCombo));
    xml += part(savedtag::Font, data->fontEdit->getText());
    xml +=
        part(savedtag::Fill, data->fillCheck && data->fillCheck->isChecked() ? QStringLiteral("1")
                                                                             : QStringLiteral("0"));
    xml += choicePart(savedtag::Format, data->formatGroup);
    xml += choicePart(savedtag::Pictures, data->picturesGroup);
    if (data->pageSplitCombo)
        xml += data->pageSplitCombo->writeXMLstring();
    if (data->viewGroup)
        xml += part(savedtag::View, QString::number(int(settings().viewId)));
    if (data->animator) {
        Q_EMIT signalBeobXY(AnimatorStoreCamera, 0.0);
        xml +=
            part(savedtag::Camera, vkd::dbo::getAnimatorPerspektive(DesktopCamera, PersistentForm));
    }
    return xml + part(savedtag::Plots, data->tree->selectionText());
}

/// Widgets are unchanged if their part is missing.
void VKD_P_WidgetGraphicalOutput::readXMLstring(QString xml)
{
    if (xml.isEmpty())
        return data->tree->applySelection(QString());
    const auto saved = [&xml](const char* tag) {
        return vkd_qt_readXMLpart(xml, 0, QLatin1String(tag), nullptr);
    };
    const auto has = [&saved](const char* tag) { return !saved(tag).isNull(); };
    plib::OutputSettings present = settings();
    plib::applySavedSettings(saved, &present);
    if (has(savedtag::Scale)) {
        data->scaleCombo->setCurrentIndex(present.scaleIndex);
        data->scaleGroup->setButton(int(present.scaleMode));
    }
    if (has(savedtag::Font))
        data->fontEdit->setText(saved(savedtag::Font));
    if (data->fillCheck && has(savedtag::Fill))
        data->fillCheck->setChecked(present.fillAreas);
    if (data->formatGroup && has(savedtag::Format)) {
        data->formatGroup->setButton(int(present.formatId));
        slotQuerFormat();
    }
    if (data->picturesGroup && has(savedtag::Pictures))
        data->picturesGroup->setButton(int(present.picturesId));
    if (data->pageSplitCombo)
        data->pageSplitCombo->readXMLstring(xml);
    if (data->viewGroup && has(savedtag::View)) // moves the camera
        data->viewGroup->setButton(int(present.viewId));
    if (data->animator) {
        vkd::dbo::setAnimatorPerspektive(DesktopCamera, saved(savedtag::Camera));
        Q_EMIT signalBeobXY(AnimatorTakeCamera, 0.0);
    }
    data->tree->applySelection(saved(savedtag::Plots));
}
