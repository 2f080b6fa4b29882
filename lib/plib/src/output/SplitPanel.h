#pragma once

#include "output/OutputPanel.h"

namespace plib {

/// The panel of the split page. It contains a list of sheet divisions, but no choice of format,
/// pictures, views or iso areas.
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
