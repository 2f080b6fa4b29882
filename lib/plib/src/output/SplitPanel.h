#pragma once

#include "output/OutputPanel.h"

namespace plib {

/// The panel of the split page: a list of divisions of the sheet. It has no choice of format,
/// pictures, views and iso areas.
class SplitPanel : public OutputPanel
{
    Q_DECLARE_TR_FUNCTIONS(VKD_P_WidgetGraphicalOutput)

public:
    explicit SplitPanel(WidgetGraphicalOutputData& data);

    void build(QWidget* box) override;
    void layOut(QBoxLayout* right) override;
    QList<QWidget*> tabStops() const override;
    OutputSettings settings() const override;
    QString savedParts() const override;
    void apply(const SavedPage& saved) override;

private:
    void buildPageSplit();
};

} // namespace plib
