#include "dialogs/dlgCrackControl.h"

#include "dialogs/dialogFrame.h"
#include "record/designFields.h"
#include "record/designRecord.h"

#include <StructLineEdit.h>
#include <VKD_H_LineEdit.h>
#include <VKD_H_TwHeaderLineEditItem.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_InfoText.h>

#include <QStyle>

namespace {
using R = tagZOB_QUAD_RIM;

constexpr int CrackWidthCode = 1026;
constexpr int StressCode = 1092;
constexpr int CrackWidthFields = 6; // in Fields, the steel stresses follow

/// These values are in the displayed units, millimetres and N/mm².
const QVector<double> CrackWidths{0.2, 0.3, 0.4};
const QVector<double> Stresses{160, 200, 240, 280, 320, 360, 400, 450};

VKD_H_LineEdit* editOf(const VKD_QT4_ComboBox* combo)
{
    return combo ? qobject_cast<VKD_H_LineEdit*>(combo->lineEdit()) : nullptr;
}
} // namespace

/// A combo box, its object name, the object name of its line edit, the field of the record and its
/// dimension code. All combo boxes for lower crack widths intentionally have the object name
/// "crack".
struct dlgCrackControl::Field
{
    Combo combo;
    const char* name;
    const char* editName;
    plib::RealField field;
    int code;
};

using Crack = dlgCrackControl;
const dlgCrackControl::Field dlgCrackControl::Fields[] = {
    {&Crack::m_pWKO, "m_pWKO", "crackWKO", &R::wko, CrackWidthCode},
    {&Crack::m_pWKOQ, "m_pWKOQ", "crackWKOQ", &R::wkoq, CrackWidthCode},
    {&Crack::m_pWKOI, "m_pWKOI", "crackWKOI", &R::wkoi, CrackWidthCode},
    {&Crack::m_pWKU, "m_pWKU", "crack", &R::wku, CrackWidthCode},
    {&Crack::m_pWKUQ, "m_pWKUQ", "crack", &R::wkuq, CrackWidthCode},
    {&Crack::m_pWKUI, "m_pWKUI", "crack", &R::wkui, CrackWidthCode},
    {&Crack::m_pSIGO, "m_pSIGO", "stressSIGO", &R::sigo, StressCode},
    {&Crack::m_pSIGOQ, "m_pSIGOQ", "stressSIGOQ", &R::sigoq, StressCode},
    {&Crack::m_pSIGOI, "m_pSIGOI", "stressSIGOI", &R::sigoi, StressCode},
    {&Crack::m_pSIGU, "m_pSIGU", "stressSIGU", &R::sigu, StressCode},
    {&Crack::m_pSIGUQ, "m_pSIGUQ", "stressSIGUQ", &R::siguq, StressCode},
    {&Crack::m_pSIGUI, "m_pSIGUI", "stressSIGUI", &R::sigui, StressCode},
};

dlgCrackControl::dlgCrackControl(tagZOB_QUAD_RIM* record, QWidget* parent)
    : VKD_QT_Dialog(parent)
    , type(record->type)
{
    plib::dressDialog(this, tr("Crack Control"), "CRACKCONTROL");
    auto layout = new VKD_QT_VBoxLayout;
    layout->addWidget(new VKD_QT_InfoText(
        true,
        tr("Permissible crack width for crack width control with or without direct calculation. "
           "Crack width control acc. to EN 1992-1-1, table 7.3N requires input for permissible "
           "steel stress."),
        this, "infoCrack"));
    plib::addOkRow(this, layout);
    setLayout(layout);
    build();
    plib::showValues(fields(), *record);
}

void dlgCrackControl::build()
{
    plib::insertBoxes(this, {side(true), side(false)}, plib::TabOrder::ByColumns);
}

void dlgCrackControl::showRecord(const tagZOB_QUAD_RIM& record)
{
    const bool hasThirdLayer = m_pWKOI;
    type = record.type;
    if (hasThirdLayer != (type == plib::ThreeLayers)) {
        plib::removeBoxes(this);
        for (const Field& field : Fields)
            this->*field.combo = nullptr;
        build();
    }
    plib::showValues(fields(), record);
}

plib::DialogFields dlgCrackControl::fields() const
{
    plib::DialogFields existing;
    for (const Field& field : Fields)
        if (VKD_H_LineEdit* edit = editOf(this->*field.combo))
            existing.push_back({field.field, edit, nullptr});
    return existing;
}

VKD_QT_GroupBox* dlgCrackControl::side(bool upper)
{
    auto box = upper ? new VKD_QT_GroupBox(tr("Upper"), this, "upper")
                     : new VKD_QT_GroupBox(tr("Lower"), this, "Lower");
    auto grid = new VKD_QT_GridLayout(box);
    plib::addLabel(grid, 0, 1, tr("Crack width"));
    plib::addLabel(grid, 0, 3, tr("Steel stress"));
    const QString layers[] = {tr("Principal Reinforcement"), tr("Cross Reinforcement"),
                              tr("Third Layer")};
    const int count = type == plib::ThreeLayers ? 3 : 2;
    for (int layer = 0; layer < count; ++layer) {
        const Field& width = Fields[(upper ? 0 : plib::LayersOfASide) + layer];
        const Field& stress = Fields[(upper ? 0 : plib::LayersOfASide) + layer + CrackWidthFields];
        const QString about = layers[layer] + QLatin1String(", ") + box->title();
        VKD_QT_Label* label = plib::addLabel(grid, layer + 1, 0, layers[layer]);
        plib::addField(grid, layer + 1, 1, newCombo(width), about);
        plib::addField(grid, layer + 1, 3, newCombo(stress), about);
        label->setBuddy(this->*width.combo);
    }
    return box;
}

VKD_QT4_ComboBox* dlgCrackControl::newCombo(const Field& field)
{
    const bool isWidth = field.code == CrackWidthCode;
    auto combo = new VKD_QT4_ComboBox(this, field.name);
    StructLineEdit format = VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(field.code);
    auto edit =
        new VKD_H_LineEdit(this, &format, field.editName,
                           isWidth ? tr("Crack width") : tr("Steel stress"), QString(), true);
    // setLineEdit() makes the combo box editable. setEditable() would first create another line
    // edit and the popup list.
    combo->setLineEdit(edit);
    combo->setInsertPolicy(QComboBox::NoInsert); // typed values are not added to the list
    combo->setMinimumWidth(edit->sizeHint().width() +
                           combo->style()->pixelMetric(QStyle::PM_ComboBoxFrameWidth) +
                           combo->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    combo->setAccessibleName(edit->accessibleName());
    for (double value : isWidth ? CrackWidths : Stresses)
        combo->insertItem(combo->count(), QIcon(), QString::number(value, 'f', 2));
    combo->setCurrentIndex(-1); // otherwise the Down key would skip the first entry
    return this->*field.combo = combo;
}

QString dlgCrackControl::note(int type)
{
    return type == plib::TwoLayersOrthogonal
               ? tr("The table shows the crack widths of this type of row, but not its steel "
                    "stresses.")
               : tr("The table shows the steel stresses of this type of row, but not its crack "
                    "widths.");
}

void dlgCrackControl::accept()
{
    QDialog::accept();
}

/// Sets fields without a combo box to "not set".
void dlgCrackControl::writeToRecord(tagZOB_QUAD_RIM* record) const
{
    for (const Field& field : Fields)
        record->*field.field = plib::NotSet;
    plib::writeValues(fields(), record);
}
