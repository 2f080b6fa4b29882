#pragma once

#include <QString>

namespace plib {

/// One line of the catalogue, which describes a plot that the output page can offer. The record is
/// a plain value; each item of a tree widget stores its own copy.
struct GraphicalOutputRecord
{
    int prog1 = 0; ///< kinds of pages that offer the plot
    int prog2 = 0;
    int prog3 = 0;
    QString title1; ///< captions of the top level, the second level and the plot
    QString title2;
    QString title3;
    QString contentTag; ///< required model content (see hasContent())
    QString id1;        ///< identifiers of the captions, the same in every language
    QString id2;
    QString id3;
    int number7 = 0; ///< unused
    QString caseWord;
    int ctrl = -1; ///< -1: not bound to load cases, -10: case word `beam` or `dsln`
    int rowClass = 0;
    int rowMark = 1; ///< `isLC` of the plot's rows
    int preselect = 0;
    int viewKind = 0;
    int systemMask = 0;
    QString text11; ///< unused
    QString scriptGerman;
    QString scriptEnglish;
};

/// A caption: its identifier, and its text in the language in which the catalogue was loaded.
struct RecordCaption
{
    QString id;
    QString title;
};

/// Returns the caption of a level: 0 and 1 for captions, otherwise the plot.
inline RecordCaption captionAt(const GraphicalOutputRecord& record, int level)
{
    switch (level) {
    case 0: return {record.id1, record.title1};
    case 1: return {record.id2, record.title2};
    default: return {record.id3, record.title3};
    }
}

/// Values of GraphicalOutputRecord::ctrl on which rules depend.
constexpr int CtrlStandsAlone = -1;
constexpr int CtrlDesign = 8;

} // namespace plib
