#pragma once

#include "vkd_a_barArea.h"

#include <ZobHandle.h>

#include <QObject>

class QGridLayout;
class QLabel;
class VKD_A_BarDiameterCombo;
class VKD_H_LineEdit;
class VKD_QT4_ComboBox;

/// The fields of one layer of reinforcement, in a row of a grid: bars by diameter and spacing, or a
/// direction of a welded fabric. The user enters either the spacing or the number of bars per
/// metre; the other field follows.
class LayerFields : public QObject
{
    Q_OBJECT

public:
    static constexpr int Columns = 4;

    /// Creates the fields as children of the widget of `grid`, in `row` from `column` on. `number`
    /// distinguishes the layers in object names and in the names for screen readers. `project` is
    /// the project with the bars.
    LayerFields(ZobHandle project, QGridLayout* grid, int row, int column, int number);

    /// Adds the titles of the columns, with mnemonics that lead to these fields.
    void addTitles(QGridLayout* grid, int row, int column);

    VkdBarLayout layout() const;
    /// Shows bars: the present arrangement of bars, or single ones in place of a fabric.
    void showBars(double diameter, double spacing);

    bool isReadable() const;
    void setEnabled(bool isEnabled);
    const VKD_A_BarDiameterCombo& diameters() const { return *m_diameter; }

Q_SIGNALS:
    void changed();

private:
    enum Arrangement { SingleBars = 1, PairsOfBars, FabricAlong, FabricAcross };

    void fillLists(int number);
    void connectAll();
    bool isFabric() const;
    int barsPerPlace() const;
    VkdBarLayout fabric() const;
    void arrange();
    void showSpacing(double spacing);
    void showNumber();
    void takeNumber();

    VKD_QT4_ComboBox* m_arrangement;
    VKD_A_BarDiameterCombo* m_diameter;
    VKD_QT4_ComboBox* m_fabric;
    VKD_H_LineEdit* m_spacing;
    VKD_H_LineEdit* m_number;
    bool m_isEnabled = true;
};
