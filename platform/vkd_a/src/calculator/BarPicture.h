#pragma once

#include "vkd_a_barArea.h"

#include <QVector>
#include <QWidget>

/// A widget that shows one metre of plate with the bars of its layers, all to the same scale. Bars
/// that are too close together are highlighted in colour.
class BarPicture : public QWidget
{
    Q_OBJECT

public:
    struct Layer
    {
        VkdBarLayout bars;
        bool isTooTight;
    };

    BarPicture(QWidget* parent, const char* name);

    /// Shows the layers, listed from the surface inwards. All layers must be valid.
    void setLayers(const QVector<Layer>& layers);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVector<Layer> m_layers;
};
