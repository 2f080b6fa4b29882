#include "calculator/BarsPanel.h"

#include "calculator/areaFields.h"
#include "calculator/BarAreaTable.h"
#include "calculator/BarPicture.h"
#include "calculator/LayerFields.h"
#include "VKD_A_BarDiameterCombo.h"

#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Widgets.h>

#include <algorithm>
#include <cmath>

namespace {
constexpr double UsualSpacing = 0.15;     // m
constexpr float UsualDiameter = 10.0F;    // mm
constexpr float GreatestDiameter = 1e3F;  // mm
constexpr int Aggregates[] = {8, 16, 32}; // mm
constexpr int UsualAggregate = 16;
constexpr double Tolerance = 1e-6; // mm

bool isSame(const VkdBarLayout& a, const VkdBarLayout& b)
{
    return a.diameter == b.diameter && a.spacing == b.spacing && a.barsPerPlace == b.barsPerPlace;
}
} // namespace

BarsPanel::BarsPanel(ZobHandle project, float area, float barDiameter, QWidget* parent)
    : AreaPanel(parent)
{
    auto layout = new VKD_QT_VBoxLayout(this);
    layout->addWidget(makeInput(project));
    layout->addWidget(makeTable(), 1);
    begin(area, barDiameter);
    connectAll();
}

VKD_QT_GroupBox* BarsPanel::makeInput(ZobHandle project)
{
    auto box = new VKD_QT_GroupBox(tr("Bars and welded fabric"), this, "bars");
    auto grid = new VKD_QT_GridLayout(box);
    m_first = new LayerFields(project, grid, 1, 1, 1);
    m_first->addTitles(grid, 0, 1);
    m_hasSecond = new VKD_QT_CheckBox(tr("Second &layer"), box, "hasSecond");
    m_second = new LayerFields(project, grid, 2, 1, 2);
    m_second->setEnabled(false);
    m_aggregate = new VKD_QT4_ComboBox(box, "aggregate");
    for (int size : Aggregates)
        m_aggregate->addEntry(lengthText(size), size);
    m_aggregate->setCurrentId(UsualAggregate);
    auto aggregate = new VKD_QT_Label(tr("La&rgest aggregate"), box);
    aggregate->setBuddy(m_aggregate);
    m_clear = new VKD_QT_Label(box, "clear");
    m_picture = new BarPicture(box, "picture");
    grid->addWidget(new VKD_QT_Label(tr("First layer"), box), 1, 0);
    grid->addWidget(m_hasSecond, 2, 0);
    grid->addWidget(aggregate, 3, 0);
    grid->addWidget(m_aggregate, 3, 1);
    grid->addWidget(m_clear, 3, 2, 1, LayerFields::Columns - 1);
    grid->addWidget(m_picture, 4, 0, 1, 1 + LayerFields::Columns);
    for (int column = 1; column <= LayerFields::Columns; ++column)
        grid->setColumnStretch(column, 1);
    return box;
}

VKD_QT_GroupBox* BarsPanel::makeTable()
{
    auto box =
        new VKD_QT_GroupBox(tr("Areas in cm²/m by diameter and spacing in mm"), this, "areas");
    m_table = new BarAreaTable(m_first->diameters().bars().diameters(), box, "table");
    auto grid = new VKD_QT_GridLayout(box);
    grid->addWidget(m_table);
    return box;
}

void BarsPanel::connectAll()
{
    for (LayerFields* layer : {m_first, m_second})
        connect(layer, &LayerFields::changed, this, [this, layer] { edited(layer); });
    connect(m_hasSecond, &QCheckBox::toggled, m_second, &LayerFields::setEnabled);
    connect(m_aggregate, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &BarsPanel::showLayers);
    connect(m_table, &BarAreaTable::chosen, this, &BarsPanel::takeCell);
}

void BarsPanel::begin(float area, float barDiameter)
{
    const bool isDiameter = barDiameter > 0 && barDiameter <= GreatestDiameter;
    const double diameter = double(isDiameter ? barDiameter : UsualDiameter);
    const bool isArea = area > 0 && std::isfinite(area); // the value for "not set" is negative
    m_first->showBars(diameter,
                      isArea ? vkd_a_barSpacing(double(area), diameter, 1) : UsualSpacing);
    m_second->showBars(diameter, UsualSpacing);
    m_begin = layers();
    edited(m_first);
}

QVector<VkdBarLayout> BarsPanel::layers() const
{
    QVector<VkdBarLayout> layers{m_first->layout()};
    if (m_hasSecond->isChecked())
        layers << m_second->layout();
    return layers;
}

bool BarsPanel::isChanged() const
{
    const QVector<VkdBarLayout> now = layers();
    return !std::equal(now.begin(), now.end(), m_begin.begin(), m_begin.end(), isSame);
}

AreaResult BarsPanel::result() const
{
    AreaResult result;
    double area = 0.0;
    for (const VkdBarLayout& layer : layers()) {
        area += vkd_a_barArea(layer);
        if (result.fault.isEmpty())
            result.fault = layerFault(layer);
        if (result.note.isEmpty())
            result.note = layerNote(layer);
    }
    if (!isReadable())
        result.fault = tr("An entry cannot be read.");
    result.area = vkd_a_roundedArea(area);
    result.diameter = float(m_first->layout().diameter);
    return result;
}

bool BarsPanel::isReadable() const
{
    return m_first->isReadable() && (!m_hasSecond->isChecked() || m_second->isReadable());
}

QString BarsPanel::layerFault(const VkdBarLayout& layer) const
{
    switch (vkd_a_barFault(layer)) {
    case VkdBarFault::NoDiameter: return tr("The bar diameter has to be greater than 0.");
    case VkdBarFault::NoSpacing: return tr("The spacing has to be greater than 0.");
    case VkdBarFault::Overlap:
        return tr("The bars overlap: the spacing has to be greater than %1.")
            .arg(lengthText(layer.diameter * layer.barsPerPlace));
    case VkdBarFault::OutOfRange: return tr("These bars do not result in a valid area.");
    case VkdBarFault::None: break;
    }
    return QString();
}

double BarsPanel::leastClearDistance(const VkdBarLayout& layer) const
{
    const double least = vkd_a_leastClearDistance(layer, m_aggregate->getCurrentId());
    return std::round(least * 10.0) / 10.0; // it is irrational for a bundle
}

bool BarsPanel::isTooTight(const VkdBarLayout& layer) const
{
    return vkd_a_clearDistance(layer) < leastClearDistance(layer) - Tolerance;
}

QString BarsPanel::layerNote(const VkdBarLayout& layer) const
{
    if (!isTooTight(layer))
        return QString();
    return tr("The clear distance of %1 is below %2 (EN 1992-1-1, 8.2).")
        .arg(lengthText(vkd_a_clearDistance(layer)), lengthText(leastClearDistance(layer)));
}

QString BarsPanel::clearDistances() const
{
    QStringList texts;
    for (const VkdBarLayout& layer : layers())
        if (vkd_a_barFault(layer) == VkdBarFault::None)
            texts << tr("%1 (at least %2)")
                         .arg(lengthText(vkd_a_clearDistance(layer)),
                              lengthText(leastClearDistance(layer)));
    return texts.isEmpty() ? QString()
                           : tr("Clear distance: %1").arg(texts.join(QLatin1String(", ")));
}

void BarsPanel::edited(LayerFields* layer)
{
    m_edited = layer;
    showLayers();
}

void BarsPanel::takeCell(float diameter, double spacing)
{
    m_edited->showBars(double(diameter), spacing);
}

void BarsPanel::showLayers()
{
    QVector<BarPicture::Layer> pictured;
    for (const VkdBarLayout& layer : layers())
        if (vkd_a_barFault(layer) == VkdBarFault::None)
            pictured << BarPicture::Layer{layer, isTooTight(layer)};
    m_picture->setLayers(pictured);
    m_clear->setText(clearDistances());
    m_table->showLayout(m_edited->layout());
    Q_EMIT changed();
}
