#include "sheet/SheetPlan.h"

#include <algorithm>

namespace workbench {

bool PictureView::operator==(const PictureView& other) const
{
    return kind == other.kind && std::equal(eye, eye + 3, other.eye) && roll == other.roll;
}

int SheetPlan::pageCount() const
{
    return (pictures.size() + picturesPerPage() - 1) / picturesPerPage();
}

int SheetPlan::endPicture(int page) const
{
    return std::min(firstPicture(page) + picturesPerPage(), pictures.size());
}

} // namespace workbench
