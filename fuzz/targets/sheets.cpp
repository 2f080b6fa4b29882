#include "FuzzTarget.h"

#include "sheet/readSheetPlan.h"

#include <cmath>

/// It must be possible to draw the sheets of any script.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const workbench::SheetPlan plan = workbench::readSheetPlan(fuzz::textOf(bytes, size));
    FUZZ_CHECK(plan.size.width() >= 50 && plan.size.width() <= 2000);
    FUZZ_CHECK(plan.size.height() >= 50 && plan.size.height() <= 2000);
    FUZZ_CHECK(plan.rows >= 1 && plan.rows <= 10 && plan.columns >= 1 && plan.columns <= 10);
    FUZZ_CHECK(std::isfinite(plan.scale) && std::isfinite(plan.textHeight) && plan.textHeight > 0);
    FUZZ_CHECK(plan.pageCount() <= plan.pictures.size());
    FUZZ_CHECK(plan.isEmpty() || plan.endPicture(plan.pageCount() - 1) == plan.pictures.size());
    for (const workbench::SheetPicture& picture : plan.pictures)
        FUZZ_CHECK(picture.view >= 0 && picture.view < plan.views.size());
    for (const workbench::PictureView& view : plan.views)
        FUZZ_CHECK(std::isfinite(view.roll) && std::isfinite(view.eye[0]) &&
                   std::isfinite(view.eye[1]) && std::isfinite(view.eye[2]));
    return 0;
}
