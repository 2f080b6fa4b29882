#pragma once

#include "vkd_a_barArea.h"

#include <QVector>
#include <QWidget>

/// A picture of a metre of plate with the bars of its layers, all to the same scale. The bars of a
/// layer whose clear distance is too small are marked in a colour.
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

    /// Shows the layers, from the surface inwards. A layer with a fault must not be among them.
    void setLayers(const QVector<Layer>& layers);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVector<Layer> m_layers;
};
