#pragma once

#include "sheet/SheetPlan.h"

#include <QVarLengthArray>

namespace workbench {

/// Reads the statements of a script one by one into a plan, in linear time. Every statement after
/// the page setup that does not control the program counts as a picture, so that plots that are
/// added to the catalogue later count as pictures, too.
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
    bool m_isJoined = false; ///< the next plot is drawn into the previous picture
    int m_loadCase = 0;
};

} // namespace workbench
