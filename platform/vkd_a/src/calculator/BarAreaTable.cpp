#include "calculator/BarAreaTable.h"

#include "calculator/areaFields.h"
#include "vkd_a_barArea.h"
#include "VKD_A_BarDiameterData.h"

#include <vkd_h_units.h>
#include <VKD_QT_SignalBlocker.h>

#include <QHeaderView>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {
constexpr double Spacings[] = {0.05, 0.075, 0.1, 0.125, 0.15, 0.175, 0.2, 0.25, 0.3}; // m
constexpr int CellMargin = 8;                                                         // px
const QLatin1String WidestText("000.00");

template <class List>
int nearest(const List& values, double wanted)
{
    const auto isNearer = [wanted](double a, double b) {
        return std::fabs(a - wanted) < std::fabs(b - wanted);
    };
    return int(std::min_element(std::begin(values), std::end(values), isNearer) -
               std::begin(values));
}

/// Compares lengths in metres with a tolerance far below a millimetre.
bool isSameLength(double a, double b)
{
    return std::fabs(a - b) < 1e-6;
}
} // namespace

BarAreaTable::BarAreaTable(const QVector<float>& diameters, QWidget* parent, const char* name)
    : VKD_QT_TableWidget(diameters.size(), int(std::size(Spacings)), parent, name)
    , m_diameters(diameters)
{
    setAccessibleName(tr("Areas by bar diameter and spacing"));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setSizeAdjustPolicy(AdjustToContents);
    setHeaders();
    for (int row = 0; row < rowCount(); ++row)
        for (int column = 0; column < columnCount(); ++column) {
            auto item = new QTableWidgetItem;
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            setItem(row, column, item);
        }
    connect(this, &QTableWidget::currentCellChanged, this, &BarAreaTable::choose);
    connect(this, &QTableWidget::cellClicked, this, &BarAreaTable::choose);
}

void BarAreaTable::setHeaders()
{
    QStringList columns, rows;
    for (double spacing : Spacings)
        columns << vkd_h_getNumberString(spacing * 1000.0, -1);
    for (float diameter : m_diameters)
        rows << VKD_A_BarDiameterData().getString(diameter);
    setHorizontalHeaderLabels(columns);
    setVerticalHeaderLabels(rows);
    const int width = fontMetrics().horizontalAdvance(WidestText) + CellMargin;
    horizontalHeader()->setMinimumSectionSize(width);
    horizontalHeader()->setDefaultSectionSize(width);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

void BarAreaTable::showLayout(const VkdBarLayout& layout)
{
    const VKD_QT_SignalBlocker blocker(this);
    showAreas(layout.barsPerPlace);
    clearSelection();
    if (layout.spacing <= 0)
        return;
    const int row = nearest(m_diameters, layout.diameter);
    const int column = nearest(Spacings, layout.spacing);
    // The nearest cell becomes the current cell, so that the arrow keys start there. It is selected
    // only if it matches the layout exactly.
    const bool isThere = isSameLength(m_diameters[row], layout.diameter) &&
                         isSameLength(Spacings[column], layout.spacing);
    setCurrentCell(row, column,
                   isThere ? QItemSelectionModel::Select : QItemSelectionModel::NoUpdate);
}

void BarAreaTable::showAreas(int barsPerPlace)
{
    if (barsPerPlace == m_barsPerPlace)
        return;
    m_barsPerPlace = barsPerPlace;
    for (int row = 0; row < rowCount(); ++row)
        for (int column = 0; column < columnCount(); ++column) {
            const VkdBarLayout layout{double(m_diameters[row]), Spacings[column], barsPerPlace};
            const bool isPossible = vkd_a_barFault(layout) == VkdBarFault::None;
            item(row, column)
                ->setText(isPossible
                              ? vkd_h_getDimStringFromVal(vkd_a_barArea(layout), AreaCode, -1)
                              : QString(QChar(0x2013)));
        }
}

void BarAreaTable::choose(int row, int column)
{
    if (row >= 0 && column >= 0)
        Q_EMIT chosen(m_diameters[row], Spacings[column]);
}
