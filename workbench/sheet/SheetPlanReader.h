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
    /// The effect of earlier statements on the next lines.
    struct State
    {
        bool hasSetup = false;
        bool isEnded = false;
        bool isJoined = false; ///< the next plot is drawn into the previous picture
        int loadCase = 0;

        bool operator==(const State& other) const;
    };

    /// The reader's progress at a line. Contains only the numbers of views and pictures.
    struct Progress
    {
        State state;
        SheetPlan sheet; ///< without views and pictures
        int views = 0;
        int pictures = 0;
        PictureView lastView;
        int secondLoadCase = 0; ///< second load case of the last picture
    };

    void readLine(QStringView line);
    const SheetPlan& plan() const { return m_plan; }

    Progress progress() const;
    /// Continues from an earlier line. The lines before it must be unchanged.
    void resume(const Progress& progress);
    /// Returns whether the lines after `progress` would add the same views and pictures if they
    /// were read now.
    bool continuesLike(const Progress& progress) const;
    /// Appends the views and pictures that `plan` has after `progress`, instead of reading the
    /// lines again. continuesLike() must return true.
    void append(const SheetPlan& plan, const Progress& progress);

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
    State m_state;
};

} // namespace workbench
