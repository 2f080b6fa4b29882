#include "dialogs/dlgReinforcement.h"

#include "dialogs/dialogFrame.h"
#include "fields/BoxExplanation.h"
#include "fields/CommonFields.h"
#include "record/designFields.h"
#include "record/designRecord.h"

#include <StructLineEdit.h>
#include <VKD_A_BarDiameterCombo.h>
#include <vkd_a_ReinforcementCalculation.h>
#include <VKD_H_LineEdit.h>
#include <VKD_H_TwHeaderLineEditItem.h>
#include <vkd_qt_icon_named.h>
#include <VKD_QT_InputField.h>
#include <VKD_QT_MessageBox.h>

#include <algorithm>

namespace {
using R = tagZOB_QUAD_RIM;

constexpr int ReinforcementCode = 1021;
constexpr int CalculationMode = 1; // for both minimum and maximum
/// The calculator changes this property if the user applies its bar diameter.
constexpr char DiameterProperty[] = "barDiameter";

enum Column {
    TextColumn = 0,
    DiameterColumn = 1,
    MinimumColumn = 4,
    MinimumCalculatorColumn = 6,
    MaximumColumn = 8,
    MaximumCalculatorColumn = 10,
};
} // namespace

/// The widgets of one layer and the fields of the record that they show.
struct dlgReinforcement::Layer
{
    Combo diameter;
    const char* diameterName;
    plib::RealField diameterField;
    Edit minimum;
    const char* minimumName;
    plib::RealField minimumField;
    Slot calculateMinimum;
    Edit maximum;
    const char* maximumName;
    plib::RealField maximumField;
    Slot calculateMaximum;
};

using Area = dlgReinforcement;

/// Principal, cross and third layer of the upper side, followed by those of the lower side.
const dlgReinforcement::Layer dlgReinforcement::Layers[] = {
    {&Area::m_pDIO, "m_pDIO", &R::dio, &Area::aso, "aso", &R::aso, &Area::calcO, &Area::amo, "amo",
     &R::amo, &Area::calcMaxO},
    {&Area::m_pDIOQ, "m_pDIOQ", &R::dioq, &Area::asoq, "asoq", &R::asoq, &Area::calcOQ, &Area::amoq,
     "amoq", &R::amoq, &Area::calcMaxOQ},
    {&Area::m_pDIOI, "m_pDIOI", &R::dioi, &Area::asoi, "asoi", &R::asoi, &Area::calcOI, &Area::amoi,
     "amoi", &R::amoi, &Area::calcMaxOI},
    {&Area::m_pDIU, "m_pDIU", &R::diu, &Area::asu, "asu", &R::asu, &Area::calcU, &Area::amu, "amu",
     &R::amu, &Area::calcMaxU},
    {&Area::m_pDIUQ, "m_pDIUQ", &R::diuq, &Area::asuq, "asuq", &R::asuq, &Area::calcUQ, &Area::amuq,
     "amuq", &R::amuq, &Area::calcMaxUQ},
    {&Area::m_pDIUI, "m_pDIUI", &R::diui, &Area::asui, "asui", &R::asui, &Area::calcUI, &Area::amui,
     "amui", &R::amui, &Area::calcMaxUI},
};

dlgReinforcement::dlgReinforcement(int index, tagZOB_QUAD_RIM* record, QWidget* parent)
    : VKD_QT_Dialog(parent)
    , zobIndex(index)
{
    plib::dressDialog(this, tr("Reinforcement"), "REINFORCEMENT");
    auto layout = new VKD_QT_VBoxLayout;
    plib::addOkRow(this, layout);
    setLayout(layout);
    build(record->type);
    showValues(*record);
}

void dlgReinforcement::build(int type)
{
    plib::insertBoxes(this, {side(true, type), side(false, type)}, plib::TabOrder::ByColumns);
}

void dlgReinforcement::showRecord(const tagZOB_QUAD_RIM& record)
{
    const bool hasThirdLayer = m_pDIOI;
    if (hasThirdLayer != (record.type == plib::ThreeLayers)) {
        plib::removeBoxes(this);
        for (const Layer& layer : Layers) {
            this->*layer.diameter = nullptr;
            this->*layer.minimum = this->*layer.maximum = nullptr;
        }
        build(record.type);
    }
    showValues(record);
}

plib::DialogFields dlgReinforcement::fields() const
{
    plib::DialogFields existing;
    for (const Layer& layer : Layers) {
        if (!(this->*layer.diameter))
            continue;
        existing.push_back({layer.diameterField, nullptr, this->*layer.diameter});
        existing.push_back({layer.minimumField, this->*layer.minimum, nullptr});
        existing.push_back({layer.maximumField, this->*layer.maximum, nullptr});
    }
    return existing;
}

VKD_QT_GroupBox* dlgReinforcement::side(bool upper, int type)
{
    auto box = upper ? new VKD_QT_GroupBox(tr("Upper"), this, "upper")
                     : new VKD_QT_GroupBox(tr("Lower"), this, "Lower");
    auto grid = new VKD_QT_GridLayout(box);
    plib::addLabel(grid, 0, DiameterColumn, tr("Diameter"));
    plib::addLabel(grid, 0, MinimumColumn, tr("Min. Reinforcement"));
    // The lower side has a lower-case "max."; the difference is intentional.
    plib::addLabel(grid, 0, MaximumColumn,
                   upper ? tr("Max. Reinforcement") : tr("max. Reinforcement"));
    const Layer* layers = Layers + (upper ? 0 : plib::LayersOfASide);
    addLayer(box, 1, layers[0], tr("Principal Reinforcement"));
    addLayer(box, 2, layers[1], tr("Cross Reinforcement"));
    if (type == plib::ThreeLayers)
        addLayer(box, 3, layers[2], tr("Third Layer"));
    return box;
}

void dlgReinforcement::addLayer(VKD_QT_GroupBox* box, int row, const Layer& layer,
                                const QString& text)
{
    auto grid = static_cast<VKD_QT_GridLayout*>(box->layout());
    auto combo = new VKD_A_BarDiameterCombo(this, layer.diameterName);
    combo->load(zobIndex);
    this->*layer.diameter = combo;
    const QString about = text + QLatin1String(", ") + box->title();
    plib::addLabel(grid, row, TextColumn, text)->setBuddy(combo);
    plib::addField(grid, row, DiameterColumn, combo, about);
    this->*layer.minimum = newEdit(layer.minimumName, tr("Minimum Reinforcement"));
    plib::addField(grid, row, MinimumColumn, this->*layer.minimum, about);
    addCalculator(grid, row, MinimumCalculatorColumn, layer.calculateMinimum, about);
    this->*layer.maximum = newEdit(layer.maximumName, tr("Maximum Reinforcement"));
    plib::addField(grid, row, MaximumColumn, this->*layer.maximum, about);
    addCalculator(grid, row, MaximumCalculatorColumn, layer.calculateMaximum, about);
}

VKD_H_LineEdit* dlgReinforcement::newEdit(const char* name, const QString& text)
{
    StructLineEdit format = VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(ReinforcementCode);
    return new VKD_H_LineEdit(this, &format, name, text, QString(), true);
}

void dlgReinforcement::addCalculator(VKD_QT_GridLayout* grid, int row, int column, Slot slot,
                                     const QString& about)
{
    auto button = new VKD_QT_PushButton(this, "Calc");
    button->setIcon(vkd::qt::icon(QStringLiteral(":/icon/program/calculator")));
    button->setAccessibleName(column == MinimumCalculatorColumn
                                  ? tr("Calculate minimum reinforcement")
                                  : tr("Calculate maximum reinforcement"));
    button->setToolTip(button->accessibleName());
    plib::addField(grid, row, column, button, about);
    connect(button, &QPushButton::clicked, this, slot);
}

void dlgReinforcement::showValues(const tagZOB_QUAD_RIM& record)
{
    plib::showValues(fields(), record);
    // The line edit of the upper third layer intentionally shows the value of the lower third layer
    // at first.
    if (amoi)
        plib::showValue({&R::amoi, amoi, nullptr}, record.amui);
}

/// Sets the fields of a layer without widgets to "not set".
void dlgReinforcement::writeToRecord(tagZOB_QUAD_RIM* record) const
{
    for (const Layer& layer : Layers)
        for (plib::RealField field : {layer.diameterField, layer.minimumField, layer.maximumField})
            record->*field = plib::NotSet;
    plib::writeValues(fields(), record);
}

/// Marks both fields of the pair and moves the focus to the minimum.
void dlgReinforcement::markPair(plib::RealField minimum)
{
    const auto layer = std::find_if(std::begin(Layers), std::end(Layers),
                                    [&](const Layer& any) { return any.minimumField == minimum; });
    VKD_H_LineEdit* lower = this->*layer->minimum;
    VKD_H_LineEdit* upper = this->*layer->maximum;
    lower->setFocus();
    for (VKD_H_LineEdit* edit : {upper, lower})
        edit->setFault(tr("Min greater than Max is not allowed!"));
    connect(lower, &QLineEdit::textChanged, upper, &VKD_H_LineEdit::clearFault,
            Qt::UniqueConnection);
    connect(upper, &QLineEdit::textChanged, lower, &VKD_H_LineEdit::clearFault,
            Qt::UniqueConnection);
}

bool dlgReinforcement::checkMinMax(float minimum, float maximum)
{
    if (plib::isInOrder(minimum, maximum))
        return true;
    VKD_QT_MessageBox::warning(this, tr("Warning"), tr("Min greater than Max is not allowed!"),
                               QString(), QString(), QString(), 0, -1);
    return false;
}

bool dlgReinforcement::showsFault(const plib::LimitPair& pair, float minimum, float maximum)
{
    if (plib::isInOrder(minimum, maximum))
        return false;
    markPair(pair.minimum);
    return !checkMinMax(minimum, maximum);
}

/// Shows only one message, even if several pairs are invalid. The rows of a dialog for several rows
/// are checked one by one, because the dialog shows only their common values.
bool dlgReinforcement::mayAccept()
{
    if (vkd_qt_leadToRefusedField(this)) // must be first: the field may belong to a pair
        return false;
    if (const auto common = findChild<plib::CommonFields*>()) {
        const std::optional<plib::LimitFault> fault = common->limitFault();
        if (!fault)
            return true;
        const plib::BoxExplanation explanation(this, common->explain(*fault));
        return !showsFault(fault->pair, fault->minimum, fault->maximum);
    }
    tagZOB_QUAD_RIM scratch{};
    writeToRecord(&scratch);
    return std::none_of(plib::LimitPairs.begin(), plib::LimitPairs.end(),
                        [&](const plib::LimitPair& pair) {
                            return showsFault(pair, scratch.*pair.minimum, scratch.*pair.maximum);
                        });
}

void dlgReinforcement::accept()
{
    if (mayAccept())
        QDialog::accept();
}

void dlgReinforcement::calculate(Combo combo, Edit edit)
{
    if (!(this->*combo) || !(this->*edit))
        return;
    auto value = float((this->*edit)->getVal());
    const float diameter = (this->*combo)->getCurrent();
    setProperty(DiameterProperty, diameter);
    vkd_a_ReinforcementCalculation(this, zobIndex, CalculationMode, value, diameter);
    (this->*edit)->setVal(double(value));
    const float chosen = property(DiameterProperty).toFloat();
    if (chosen != diameter)
        (this->*combo)->setCurrent(chosen);
}

void dlgReinforcement::calcO()
{
    calculate(&Area::m_pDIO, &Area::aso);
}

void dlgReinforcement::calcU()
{
    calculate(&Area::m_pDIU, &Area::asu);
}

void dlgReinforcement::calcOQ()
{
    calculate(&Area::m_pDIOQ, &Area::asoq);
}

void dlgReinforcement::calcUQ()
{
    calculate(&Area::m_pDIUQ, &Area::asuq);
}

void dlgReinforcement::calcOI()
{
    calculate(&Area::m_pDIOI, &Area::asoi);
}

void dlgReinforcement::calcUI()
{
    calculate(&Area::m_pDIUI, &Area::asui);
}

void dlgReinforcement::calcMaxO()
{
    calculate(&Area::m_pDIO, &Area::amo);
}

void dlgReinforcement::calcMaxU()
{
    calculate(&Area::m_pDIU, &Area::amu);
}

void dlgReinforcement::calcMaxOQ()
{
    calculate(&Area::m_pDIOQ, &Area::amoq);
}

void dlgReinforcement::calcMaxUQ()
{
    calculate(&Area::m_pDIUQ, &Area::amuq);
}

void dlgReinforcement::calcMaxOI()
{
    calculate(&Area::m_pDIOI, &Area::amoi);
}

void dlgReinforcement::calcMaxUI()
{
    calculate(&Area::m_pDIUI, &Area::amui);
}
