// The state of the output page as a string of tagged parts.

#include "GraphicalOutputTreeWidget.h"
#include "VKD_P_WidgetGraphicalOutput.h"
#include "WidgetGraphicalOutputData.h"

#include <vkd_dbo_camera.h>
#include <VKD_H_BoxedLineEdit.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <vkd_qt_xmlpart.h>

namespace {
constexpr int DesktopCamera = 0;
constexpr int PersistentForm = 2;
constexpr int EngineeringScale = 0;
constexpr int ScaleToFit = 1;
constexpr int AutoRow = 0;

QString part(const char* tag, const QString& value)
{
    return vkd_qt_writeXMLpart(value, QLatin1String(tag));
}

QString choicePart(const char* tag, const VKD_QT_RadioButtonGroup* group)
{
    return group ? part(tag, QString::number(group->selectedButton())) : QString();
}

/// Null if there is no such part.
QString valueOf(const QString& xml, const char* tag)
{
    return vkd_qt_readXMLpart(xml, 0, QLatin1String(tag), nullptr);
}

/// Whether there was a part for the group. A text that is no number counts as 0.
bool readChoice(const QString& xml, const char* tag, VKD_QT_RadioButtonGroup* group)
{
    const QString value = valueOf(xml, tag);
    if (value.isNull() || !group)
        return false;
    group->setButton(value.toInt());
    return true;
}

/// "0" for a scale that fits, "-" for the row "Auto", else the row. So the list is stored while an
/// engineering scale is chosen, and stays where it is when a page is read that has none.
QString scaleValue(const VKD_QT_RadioButtonGroup* group, const QComboBox* list)
{
    if (group->selectedButton() != EngineeringScale)
        return QStringLiteral("0");
    return list->currentIndex() == AutoRow ? QStringLiteral("-") : list->currentText();
}
} // namespace

QString VKD_P_WidgetGraphicalOutput::writeXMLstring()
{
    QString xml = part("Scale", scaleValue(data->scaleGroup, data->scaleCombo));
    xml += part("Font", data->fontEdit->getText());
    xml += part("Fill", data->fillCheck && data->fillCheck->isChecked() ? QStringLiteral("1")
                                                                        : QStringLiteral("0"));
    xml += choicePart("Format", data->formatGroup);
    xml += choicePart("Part", data->picturesGroup);
    if (data->pageSplitCombo)
        xml += data->pageSplitCombo->writeXMLstring();
    xml += choicePart("View", data->viewGroup);
    if (data->animator) {
        Q_EMIT signalBeobXY(AnimatorStoreCamera, 0.0);
        xml += part("Camera", vkd::dbo::getAnimatorPerspektive(DesktopCamera, PersistentForm));
    }
    return xml + part("List_4", data->tree->selectionText());
}

/// Applies what the string has, in the order of writing. The number of pictures comes behind the
/// format and wins over what the format does to it.
void VKD_P_WidgetGraphicalOutput::readXMLstring(QString xml)
{
    if (xml.isEmpty())
        return data->tree->applySelection(QString());
    readScale(valueOf(xml, "Scale"));
    const QString font = valueOf(xml, "Font");
    if (!font.isNull())
        data->fontEdit->setText(font);
    const QString fill = valueOf(xml, "Fill");
    if (data->fillCheck && !fill.isNull())
        data->fillCheck->setChecked(fill.contains(QLatin1Char('1')));
    if (readChoice(xml, "Format", data->formatGroup))
        slotQuerFormat();
    readChoice(xml, "Part", data->picturesGroup);
    if (data->pageSplitCombo)
        data->pageSplitCombo->readXMLstring(xml);
    readChoice(xml, "View", data->viewGroup);
    if (data->animator) {
        vkd::dbo::setAnimatorPerspektive(DesktopCamera, valueOf(xml, "Camera"));
        Q_EMIT signalBeobXY(AnimatorTakeCamera, 0.0);
    }
    data->tree->applySelection(valueOf(xml, "List_4"));
}

/// Any "-" means the row "Auto". A scale that the list does not have, "0" too, is one that fits.
void VKD_P_WidgetGraphicalOutput::readScale(const QString& value)
{
    if (value.isNull())
        return;
    const int row =
        value.contains(QLatin1Char('-'))
            ? AutoRow
            : data->scaleCombo->findText(value, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (row >= 0)
        data->scaleCombo->setCurrentIndex(row);
    data->scaleGroup->setButton(row >= 0 ? EngineeringScale : ScaleToFit);
}
