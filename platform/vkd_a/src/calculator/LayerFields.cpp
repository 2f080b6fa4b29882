#include "calculator/LayerFields.h"

#include "calculator/areaFields.h"
#include "VKD_A_BarDiameterCombo.h"
#include "vkd_a_weldedFabric.h"

#include <VKD_H_LineEdit.h>
#include <vkd_h_units.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Widgets.h>

#include <QGridLayout>

#include <cmath>

namespace {
constexpr double NotSet = -99999.0;

/// Returns the object name of a field. For layers other than the first, it contains the layer
/// number.
QByteArray named(const char* name, int number)
{
    return number == 1 ? QByteArray(name) : name + QByteArray::number(number);
}

QString fabricText(const VkdWeldedFabric& fabric)
{
    const auto direction = [](const VkdBarLayout& layout) {
        return QStringLiteral("Ø%1/%2").arg(layout.diameter).arg(layout.spacing * 1000.0);
    };
    return QStringLiteral("%1  %2 × %3")
        .arg(QLatin1String(fabric.name), direction(fabric.along), direction(fabric.across));
}
} // namespace

LayerFields::LayerFields(ZobHandle project, QGridLayout* grid, int row, int column, int number)
    : QObject(grid->parentWidget())
{
    QWidget* box = grid->parentWidget();
    m_arrangement = new VKD_QT4_ComboBox(box, named("arrangement", number));
    m_diameter = new VKD_A_BarDiameterCombo(box, named("diameter", number));
    m_fabric = new VKD_QT4_ComboBox(box, named("fabric", number));
    m_spacing = newAreaField(box, DistanceCode, QString(), named("spacing", number),
                             tr("Spacing, layer %1").arg(number));
    m_number = newAreaField(box, -1, QStringLiteral("1/m"), named("number", number),
                            tr("Number of bars, layer %1").arg(number));
    m_diameter->setAccessibleName(tr("Bar diameter, layer %1").arg(number));
    m_diameter->setNotSetAllowed(false);
    m_diameter->load(project.index()); // loads the common diameters on failure
    fillLists(number);
    grid->addWidget(m_arrangement, row, column);
    grid->addWidget(m_diameter, row, column + 1);
    grid->addWidget(m_fabric, row, column + 1);
    grid->addWidget(m_spacing, row, column + 2);
    grid->addWidget(m_number, row, column + 3);
    // Otherwise, the dialog would grow when the user chooses fabric.
    grid->setColumnMinimumWidth(column + 1, m_fabric->sizeHint().width());
    connectAll();
    arrange();
}

void LayerFields::fillLists(int number)
{
    m_arrangement->setAccessibleName(tr("Arrangement, layer %1").arg(number));
    m_arrangement->addEntry(tr("Single bars"), SingleBars);
    m_arrangement->addEntry(tr("Pairs of bars"), PairsOfBars);
    m_arrangement->addEntry(tr("Fabric, longitudinal"), FabricAlong);
    m_arrangement->addEntry(tr("Fabric, transverse"), FabricAcross);
    m_fabric->setAccessibleName(tr("Welded fabric, layer %1").arg(number));
    for (const VkdWeldedFabric& fabric : vkd_a_weldedFabrics())
        m_fabric->addItem(fabricText(fabric));
}

void LayerFields::addTitles(QGridLayout* grid, int row, int column)
{
    const auto add = [&](int offset, const QString& text, QWidget* field) {
        auto label = new VKD_QT_Label(text, grid->parentWidget());
        label->setBuddy(field);
        grid->addWidget(label, row, column + offset);
    };
    add(0, tr("&Arrangement"), m_arrangement);
    add(1, tr("Bar &diameter or fabric"), m_diameter);
    add(2, tr("&Spacing"), m_spacing);
    add(3, tr("&Number per metre"), m_number);
}

void LayerFields::connectAll()
{
    const auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_arrangement, indexChanged, this, &LayerFields::arrange);
    connect(m_fabric, indexChanged, this, &LayerFields::arrange);
    connect(m_diameter, indexChanged, this, &LayerFields::changed);
    connect(m_spacing, &VKD_H_LineEdit::valueChanged, this, &LayerFields::showNumber);
    connect(m_number, &VKD_H_LineEdit::valueChanged, this, &LayerFields::takeNumber);
    // Rejected text does not change the value, but must disable OK.
    for (VKD_H_LineEdit* field : {m_spacing, m_number})
        connect(field, &QLineEdit::textChanged, this, &LayerFields::changed);
}

bool LayerFields::isFabric() const
{
    return m_arrangement->getCurrentId() >= FabricAlong;
}

int LayerFields::barsPerPlace() const
{
    return m_arrangement->getCurrentId() == PairsOfBars ? 2 : 1;
}

VkdBarLayout LayerFields::fabric() const
{
    const VkdWeldedFabric& fabric = vkd_a_weldedFabrics()[size_t(m_fabric->currentIndex())];
    return m_arrangement->getCurrentId() == FabricAlong ? fabric.along : fabric.across;
}

VkdBarLayout LayerFields::layout() const
{
    if (isFabric())
        return fabric();
    return {double(m_diameter->getCurrent()), m_spacing->getVal(), barsPerPlace()};
}

void LayerFields::showBars(double diameter, double spacing)
{
    if (isFabric())
        m_arrangement->setCurrentId(SingleBars);
    m_diameter->setCurrent(float(diameter));
    showSpacing(spacing);
}

bool LayerFields::isReadable() const
{
    return m_spacing->refusal().isEmpty() && m_number->refusal().isEmpty();
}

void LayerFields::setEnabled(bool isEnabled)
{
    m_isEnabled = isEnabled;
    arrange();
}

/// Shows the fields for the selected arrangement. The spacing of a fabric cannot be edited.
void LayerFields::arrange()
{
    m_arrangement->setEnabled(m_isEnabled);
    m_diameter->setEnabled(m_isEnabled);
    m_fabric->setEnabled(m_isEnabled);
    m_diameter->setVisible(!isFabric());
    m_fabric->setVisible(isFabric());
    for (VKD_H_LineEdit* field : {m_spacing, m_number})
        field->setEnabled(m_isEnabled && !isFabric());
    if (isFabric())
        m_spacing->setVal(fabric().spacing);
    showNumber();
}

void LayerFields::showSpacing(double spacing)
{
    m_spacing->setVal(spacing);
    showNumber();
}

/// Shows the number of bars rounded to hundredths, because greater precision is not useful.
void LayerFields::showNumber()
{
    const double spacing = m_spacing->getVal();
    m_number->setVal(spacing > 0 ? std::round(barsPerPlace() / spacing * 100.0) / 100.0 : NotSet);
    Q_EMIT changed();
}

void LayerFields::takeNumber()
{
    const double number = m_number->getVal();
    m_spacing->setVal(number > 0 ? barsPerPlace() / number : NotSet);
    Q_EMIT changed();
}
