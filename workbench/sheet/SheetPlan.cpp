#include "sheet/SheetPlan.h"

#include <algorithm>
#include <tuple>

namespace workbench {

bool PictureView::operator==(const PictureView& other) const
{
    return kind == other.kind && std::equal(eye, eye + 3, other.eye) && roll == other.roll;
}

bool SheetPlan::hasSameSheet(const SheetPlan& other) const
{
    const auto values = [](const SheetPlan& plan) {
        return std::make_tuple(plan.size.width(), plan.size.height(), plan.hasBorder, plan.rows,
                               plan.columns, plan.scale, plan.textHeight);
    };
    return values(*this) == values(other);
}

int SheetPlan::pageCount() const
{
    return (pictures.size() + picturesPerPage() - 1) / picturesPerPage();
}

int SheetPlan::endPicture(int page) const
{
    return std::min(firstPicture(page) + picturesPerPage(), int(pictures.size()));
}

} // namespace workbench
