#include "calculator/ReinforcementDialog.h"

#include "calculator/BarAreaTable.h"
#include "VKD_A_BarDiameterCombo.h"

#include <VKD_H_LineEdit.h>
#include <VKD_H_UnitLabel.h>
#include <vkd_h_units.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Ok.h>
#include <VKD_QT_Widgets.h>

#include <QScreen>

#include <cmath>

namespace {
constexpr int AreaCode = 1021, BarCode = 1023, DistanceCode = 1024;
constexpr double NotSet = -99999.0;
constexpr double UsualSpacing = 0.15;    // m
constexpr float UsualDiameter = 10.0F;   // mm
constexpr float GreatestDiameter = 1e3F; // mm
constexpr double MillimetresPerMetre = 1000.0;

bool isValue(float value)
{
    return value > 0 && std::isfinite(value); // "not set" is negative
}

QString areaText(double area)
{
    return vkd_h_getDimStringFromVal(area, AreaCode, -1) + VKD_H_UnitLabel::dimString(AreaCode, 0);
}

QString lengthText(double millimetres)
{
    return vkd_h_getNumberString(millimetres, -1) + VKD_H_UnitLabel::dimString(BarCode, 0);
}

/// Creates a field that accepts zero, so that the dialog itself explains why zero is wrong.
VKD_H_LineEdit* makeField(QWidget* parent, int code, const QString& suffix, const char* name,
                          const QString& text)
{
    StructLineEdit description = vkd_h_defaultStructLineEdit(code);
    description.minimum = 0.0;
    description.suffix = suffix;
    return new VKD_H_LineEdit(parent, &description, name, text, QString(), true);
}

void addRow(VKD_QT_GridLayout* grid, int row, int column, const QString& text, QWidget* field)
{
    auto label = new VKD_QT_Label(text, field->parentWidget());
    label->setBuddy(field);
    grid->addWidget(label, row, column);
    grid->addWidget(field, row, column + 1);
}
} // namespace

ReinforcementDialog::ReinforcementDialog(QWidget* parent, ZobHandle project, float value,
                                         float barDiameter)
    : VKD_QT_Dialog(parent, "reinforcementCalculation")
    , m_value(value)
{
    setWindowTitle(tr("Reinforcement Calculation"));
    setProperty("helpTopic", QStringLiteral("MERDAN/CALCULATOR")); // for the host's help key
    auto layout = new VKD_QT_VBoxLayout(this);
    layout->addWidget(makeInput(project));
    layout->addWidget(makeTable(), 1);
    layout->addWidget(makeResult());
    m_buttons = new VKD_QT_Ok(this, 3, "okayandcancelbutton");
    layout->addWidget(m_buttons);
    begin(barDiameter);
    connectAll();
    // Qt limits a new window to two thirds of the screen, which would cut off the table.
    resize(sizeHint().boundedTo(screen()->availableSize()));
}

VKD_QT_GroupBox* ReinforcementDialog::makeInput(ZobHandle project)
{
    auto box = new VKD_QT_GroupBox(tr("Bars"), this, "bars");
    m_diameter = new VKD_A_BarDiameterCombo(box, "diameter");
    m_diameter->setNotSetAllowed(false);
    m_diameter->load(project.index()); // falls back to the common bars
    m_arrangement = new VKD_QT4_ComboBox(box, "arrangement");
    m_arrangement->setAccessibleName(tr("Arrangement"));
    m_arrangement->addEntry(tr("Single bars"), 1);
    m_arrangement->addEntry(tr("Pairs of bars"), 2);
    m_spacing = makeField(box, DistanceCode, QString(), "spacing", tr("Spacing"));
    m_number = makeField(box, -1, QStringLiteral("1/m"), "number", tr("Number of bars"));
    auto grid = new VKD_QT_GridLayout(box);
    addRow(grid, 0, 0, tr("Bar &diameter:"), m_diameter);
    addRow(grid, 0, 2, tr("&Arrangement:"), m_arrangement);
    addRow(grid, 1, 0, tr("&Spacing:"), m_spacing);
    addRow(grid, 1, 2, tr("&Number per metre:"), m_number);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return box;
}

VKD_QT_GroupBox* ReinforcementDialog::makeTable()
{
    auto box =
        new VKD_QT_GroupBox(tr("Areas in cm²/m by diameter and spacing in mm"), this, "areas");
    m_table = new BarAreaTable(m_diameter->bars().diameters(), box, "table");
    auto grid = new VKD_QT_GridLayout(box);
    grid->addWidget(m_table);
    return box;
}

VKD_QT_GroupBox* ReinforcementDialog::makeResult()
{
    auto box = new VKD_QT_GroupBox(tr("Result"), this, "result");
    m_area = new VKD_QT_Label(box, "area");
    QFont bold = m_area->font();
    bold.setBold(true);
    m_area->setFont(bold);
    m_present = new VKD_QT_Label(box, "present");
    m_note = new VKD_QT_Label(box, "note");
    m_note->setWordWrap(true);
    auto grid = new VKD_QT_GridLayout(box);
    addRow(grid, 0, 0, tr("Reinforcement:"), m_area);
    addRow(grid, 1, 0, tr("Present value:"), m_present);
    grid->addWidget(m_note, 2, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    return box;
}

void ReinforcementDialog::connectAll()
{
    const auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_diameter, indexChanged, this, &ReinforcementDialog::showResult);
    connect(m_arrangement, indexChanged, this, &ReinforcementDialog::showNumber);
    connect(m_spacing, &VKD_H_LineEdit::valueChanged, this, &ReinforcementDialog::showNumber);
    connect(m_number, &VKD_H_LineEdit::valueChanged, this, &ReinforcementDialog::takeNumber);
    // A refused text does not change the value, but it must disable OK.
    for (VKD_H_LineEdit* field : {m_spacing, m_number})
        connect(field, &QLineEdit::textChanged, this, &ReinforcementDialog::showResult);
    connect(m_table, &BarAreaTable::chosen, this, &ReinforcementDialog::takeCell);
    connect(m_buttons->cmdOk(), &QPushButton::clicked, this, &QDialog::accept);
    connect(m_buttons->cmdCancel(), &QPushButton::clicked, this, &QDialog::reject);
}

void ReinforcementDialog::begin(float barDiameter)
{
    const bool isDiameter = barDiameter > 0 && barDiameter <= GreatestDiameter;
    const float diameter = isDiameter ? barDiameter : UsualDiameter;
    m_diameter->setCurrent(diameter);
    showSpacing(isValue(m_value) ? vkd_a_barSpacing(double(m_value), double(diameter), 1)
                                 : UsualSpacing);
    m_begin = layoutOfBars();
}

float ReinforcementDialog::area() const
{
    const VkdBarLayout layout = layoutOfBars();
    const bool isAsBefore = layout.diameter == m_begin.diameter &&
                            layout.spacing == m_begin.spacing &&
                            layout.barsPerPlace == m_begin.barsPerPlace;
    return isAsBefore && isValue(m_value) ? m_value : float(vkd_a_roundedBarArea(layout));
}

VkdBarLayout ReinforcementDialog::layoutOfBars() const
{
    return {double(m_diameter->getCurrent()), m_spacing->getVal(), m_arrangement->getCurrentId()};
}

void ReinforcementDialog::showSpacing(double spacing)
{
    m_spacing->setVal(spacing);
    showNumber();
}

void ReinforcementDialog::showNumber()
{
    const VkdBarLayout layout = layoutOfBars();
    m_number->setVal(layout.spacing > 0 ? layout.barsPerPlace / layout.spacing : NotSet);
    showResult();
}

void ReinforcementDialog::takeNumber()
{
    const double number = m_number->getVal();
    m_spacing->setVal(number > 0 ? m_arrangement->getCurrentId() / number : NotSet);
    showResult();
}

void ReinforcementDialog::takeCell(float diameter, double spacing)
{
    m_diameter->setCurrent(diameter);
    showSpacing(spacing);
}

void ReinforcementDialog::showResult()
{
    const VkdBarLayout layout = layoutOfBars();
    const bool isPossible = vkd_a_barFault(layout) == VkdBarFault::None;
    const bool isReadable = m_spacing->refusal().isEmpty() && m_number->refusal().isEmpty();
    m_table->showLayout(layout);
    m_area->setText(isPossible && isReadable ? areaText(vkd_a_barArea(layout))
                                             : QString(QChar(0x2013)));
    m_present->setText(presentText(layout));
    m_note->setText(isReadable ? faultText(layout) : tr("An entry cannot be read."));
    m_buttons->cmdOk()->setEnabled(isPossible && isReadable);
}

QString ReinforcementDialog::faultText(const VkdBarLayout& layout) const
{
    const double clear = layout.spacing * MillimetresPerMetre - layout.diameter;
    const double least = vkd_a_leastClearDistance(layout);
    switch (vkd_a_barFault(layout)) {
    case VkdBarFault::NoDiameter: return tr("The bar diameter has to be greater than 0.");
    case VkdBarFault::NoSpacing: return tr("The spacing has to be greater than 0.");
    case VkdBarFault::Overlap:
        return tr("The bars overlap: the spacing has to be greater than %1.")
            .arg(lengthText(layout.diameter));
    case VkdBarFault::OutOfRange: return tr("These bars give no usable area.");
    case VkdBarFault::None: break;
    }
    if (clear > least - 1e-6)
        return QString();
    return tr("The clear distance of %1 is below %2 (EN 1992-1-1, 8.2).")
        .arg(lengthText(clear), lengthText(least));
}

QString ReinforcementDialog::presentText(const VkdBarLayout& layout) const
{
    if (!isValue(m_value))
        return tr("not set");
    QString text = areaText(double(m_value));
    if (vkd_a_barFault(layout) != VkdBarFault::None)
        return text;
    const double percent = vkd_a_barArea(layout) / double(m_value) * 100.0;
    return tr("%1 (chosen: %2 %)").arg(text, vkd_h_getNumberString(percent, 0));
}
