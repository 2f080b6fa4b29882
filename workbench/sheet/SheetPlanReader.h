#pragma once

#include "SheetPlan.h"

#include <QVarLengthArray>

namespace workbench {

/// Reads the statements of a script one by one into a plan, in the time that its length takes.
/// Everything behind the page setup that does not steer the program is a picture: so plots that the
/// catalogue gets later are pictures, too.
class SheetPlanReader
{
public:
    void readLine(QStringView line);
    const SheetPlan& plan() const { return m_plan; }

private:
    using Words = QVarLengthArray<QStringView, 16>;

    void readStatement(QStringView statement);
    void readFont(const Words& words);
    void readSetup(const Words& words);
    void readView(const Words& words);
    void readFreeView(const Words& words, int first);
    void setView(const PictureView& view);
    void addPicture(QStringView command);

    SheetPlan m_plan;
    bool m_hasSetup = false;
    bool m_isEnded = false;
    bool m_isJoined = false; ///< the next plot goes into the picture before
    int m_loadCase = 0;
};

} // namespace workbench
