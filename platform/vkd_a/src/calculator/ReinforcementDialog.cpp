#include "calculator/ReinforcementDialog.h"

#include "calculator/areaFields.h"
#include "calculator/BarsPanel.h"
#include "calculator/MinimumPanel.h"
#include "VKD_A_BarDiameterData.h"

#include <vkd_h_units.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Ok.h>
#include <VKD_QT_Widgets.h>

#include <QScreen>
#include <QTabWidget>
#include <QVariant>

#include <cmath>

namespace {
const QSize Frame(16, 40); // estimate; the frame size is unknown until the window is shown

bool isValue(float value)
{
    return value > 0 && std::isfinite(value); // the value for "not set" is negative
}

void addRow(VKD_QT_GridLayout* grid, int row, const QString& text, QWidget* field)
{
    auto label = new VKD_QT_Label(text, field->parentWidget());
    label->setBuddy(field);
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
}
} // namespace

ReinforcementDialog::ReinforcementDialog(QWidget* parent, ZobHandle project, float value,
                                         float barDiameter, bool offersDiameter)
    : VKD_QT_TabDialog(parent, "reinforcementCalculation")
    , m_value(value)
    , m_barDiameter(barDiameter)
    , m_offersDiameter(offersDiameter)
{
    setWindowTitle(tr("Reinforcement Calculation"));
    setProperty("helpTopic", QStringLiteral("MERDAN/CALCULATOR")); // opened by the host's help key
    addTab(new BarsPanel(project, value, barDiameter, this), tr("&Bars and Fabric"));
    addTab(new MinimumPanel(this), tr("&Minimum Reinforcement"));
    static_cast<QBoxLayout*>(layout())->insertWidget(1, makeResult()); // above the buttons
    connectAll();
    showResult();
    // Qt limits a new window to two thirds of the screen size, which would cut off the table.
    resize(sizeHint().boundedTo(screen()->availableSize() - Frame));
}

VKD_QT_GroupBox* ReinforcementDialog::makeResult()
{
    auto box = new VKD_QT_GroupBox(tr("Result"), this, "result");
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum); // leaves room for the table
    m_area = new VKD_QT_Label(box, "area");
    QFont bold = m_area->font();
    bold.setBold(true);
    m_area->setFont(bold);
    m_present = new VKD_QT_Label(box, "present");
    m_note = new VKD_QT_Label(box, "note");
    m_note->setWordWrap(true);
    m_takesDiameter = new VKD_QT_CheckBox(QString(), box, "takesDiameter");
    m_takesDiameter->setVisible(m_offersDiameter);
    auto grid = new VKD_QT_GridLayout(box);
    addRow(grid, 0, tr("Reinforcement:"), m_area);
    addRow(grid, 1, tr("Present value:"), m_present);
    grid->addWidget(m_takesDiameter, 2, 0, 1, 2);
    grid->addWidget(m_note, 3, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    return box;
}

void ReinforcementDialog::connectAll()
{
    for (int i = 0; i < tabWidget()->count(); ++i)
        connect(static_cast<AreaPanel*>(tabWidget()->widget(i)), &AreaPanel::changed, this,
                &ReinforcementDialog::showResult);
    connect(tabWidget(), &QTabWidget::currentChanged, this, &ReinforcementDialog::showResult);
}

AreaPanel* ReinforcementDialog::page() const
{
    return static_cast<AreaPanel*>(tabWidget()->currentWidget());
}

float ReinforcementDialog::area() const
{
    return !page()->isChanged() && isValue(m_value) ? m_value : float(page()->result().area);
}

float ReinforcementDialog::barDiameter() const
{
    const bool isTaken = m_takesDiameter->isEnabled() && m_takesDiameter->isChecked();
    return isTaken ? page()->result().diameter : m_barDiameter;
}

bool ReinforcementDialog::canTakeDiameter(const AreaResult& result) const
{
    return m_offersDiameter && result.fault.isEmpty() && result.diameter > 0 &&
           result.diameter != m_barDiameter;
}

void ReinforcementDialog::showResult()
{
    const AreaResult result = page()->result();
    const bool isPossible = result.fault.isEmpty();
    m_area->setText(isPossible ? areaText(result.area) : QString(QChar(0x2013)));
    m_present->setText(presentText(result));
    m_note->setText(isPossible ? result.note : result.fault);
    const QString diameter = VKD_A_BarDiameterData().getString(result.diameter);
    m_takesDiameter->setEnabled(canTakeDiameter(result));
    m_takesDiameter->setText(canTakeDiameter(result)
                                 ? tr("Use %1 as &the bar diameter, too").arg(diameter)
                                 : tr("Use &the bar diameter, too"));
    buttons()->cmdOk()->setEnabled(isPossible);
}

QString ReinforcementDialog::presentText(const AreaResult& result) const
{
    if (!isValue(m_value))
        return tr("not set");
    const QString text = areaText(double(m_value));
    if (!result.fault.isEmpty())
        return text;
    const double percent = result.area / double(m_value) * 100.0;
    return tr("%1 (chosen: %2 %)").arg(text, vkd_h_getNumberString(percent, 0));
}
