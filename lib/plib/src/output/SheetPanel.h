#pragma once

#include "output/OutputPanel.h"

namespace plib {

/// The panel of all pages except the split page. It contains widgets for the format of the sheet,
/// the number of pictures, the filling of iso areas and, next to the tree, the views.
class SheetPanel : public OutputPanel
{
    Q_DECLARE_TR_FUNCTIONS(VKD_P_WidgetGraphicalOutput)

public:
    explicit SheetPanel(WidgetGraphicalOutputData& data);

    void build(QWidget* box) override;
    void layOut(QBoxLayout* right) override;
    QList<QRadioButton*> viewButtons() const override;
    QList<QRadioButton*> formatButtons() const override;
    QList<QWidget*> tabStops() const override;
    void reset() override;
    void followFormat() override;
    OutputSettings settings() const override;
    QString savedParts() const override;
    void apply(const SavedPage& saved) override;
    int checkedView() const override;
    bool showsFixedView() const override;

private:
    void buildSheet();
    void buildIsoAreas();
    void buildViews(QWidget* box);
};

} // namespace plib
