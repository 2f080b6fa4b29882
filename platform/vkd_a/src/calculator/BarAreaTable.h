#pragma once

#include <VKD_QT_TableWidget.h>

#include <QVector>

struct VkdBarLayout;

/// A table with the areas of all bars of a project at common spacings. The current cell is the cell
/// nearest to a given layout. The user chooses another cell by clicking it or with the arrow keys.
class BarAreaTable : public VKD_QT_TableWidget
{
    Q_OBJECT

public:
    BarAreaTable(const QVector<float>& diameters, QWidget* parent, const char* name);

    /// Shows the areas for the layout's number of bars per place and makes the nearest cell
    /// current. A layout without a positive spacing clears the selection.
    void showLayout(const VkdBarLayout& layout);

Q_SIGNALS:
    /// Emitted when the user has chosen a bar diameter in mm and a spacing in m.
    void chosen(float diameter, double spacing);

private:
    void setHeaders();
    void choose(int row, int column);
    void showAreas(int barsPerPlace);

    QVector<float> m_diameters;
    int m_barsPerPlace = 0;
};
