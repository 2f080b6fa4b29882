#pragma once

#include "calculator/AreaPanel.h"
#include "vkd_a_barArea.h"

#include <ZobHandle.h>

#include <QVector>

class BarAreaTable;
class BarPicture;
class LayerFields;
class VKD_QT4_ComboBox;
class VKD_QT_CheckBox;
class VKD_QT_GroupBox;
class VKD_QT_Label;

/// The page of the calculator for bars and welded fabric, in one or two layers, with a table of
/// common layouts and a picture. A click in the table sets the bars of the most recently edited
/// layer.
class BarsPanel : public AreaPanel
{
    Q_OBJECT

public:
    /// The initial bars provide `area` in cm²/m; if it is not set, they have a common spacing.
    /// `project` is the project with the bars.
    BarsPanel(ZobHandle project, float area, float barDiameter, QWidget* parent);

    AreaResult result() const override;
    bool isChanged() const override;

private:
    VKD_QT_GroupBox* makeInput(ZobHandle project);
    VKD_QT_GroupBox* makeTable();
    void connectAll();
    void begin(float area, float barDiameter);

    QVector<VkdBarLayout> layers() const;
    QString layerFault(const VkdBarLayout& layer) const;
    QString layerNote(const VkdBarLayout& layer) const;
    QString clearDistances() const;
    double leastClearDistance(const VkdBarLayout& layer) const;
    bool isReadable() const;
    bool isTooTight(const VkdBarLayout& layer) const;
    void edited(LayerFields* layer);
    void takeCell(float diameter, double spacing);
    void showLayers();

    LayerFields* m_first = nullptr;
    LayerFields* m_second = nullptr;
    LayerFields* m_edited = nullptr;
    VKD_QT_CheckBox* m_hasSecond = nullptr;
    VKD_QT4_ComboBox* m_aggregate = nullptr;
    VKD_QT_Label* m_clear = nullptr;
    BarPicture* m_picture = nullptr;
    BarAreaTable* m_table = nullptr;
    QVector<VkdBarLayout> m_begin;
};
