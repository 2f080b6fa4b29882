#pragma once

#include "vkd_a_barArea.h"

#include <ZobHandle.h>

#include <QObject>

class QGridLayout;
class QLabel;
class VKD_A_BarDiameterCombo;
class VKD_H_LineEdit;
class VKD_QT4_ComboBox;

/// The fields of one reinforcement layer in a row of a grid. The layer consists of bars with a
/// diameter and a spacing, or of the bars in one direction of a welded fabric. The user enters
/// either the spacing or the number of bars per metre, and the other field is updated.
class LayerFields : public QObject
{
    Q_OBJECT

public:
    static constexpr int Columns = 4;

    /// Creates the fields in `row`, starting at `column`, as children of the widget of `grid`.
    /// `number` distinguishes the layers in object names and accessible names. `project` is the
    /// project with the bars.
    LayerFields(ZobHandle project, QGridLayout* grid, int row, int column, int number);

    /// Adds the column titles, with mnemonics that move the focus to these fields.
    void addTitles(QGridLayout* grid, int row, int column);

    VkdBarLayout layout() const;
    /// Shows bars in the current arrangement, or as single bars if a fabric is currently selected.
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
