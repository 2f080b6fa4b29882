#pragma once

#include "vkd_dbo_export.h"

#include <vkd_language.h>
#include <vkd_progress.h>
#include <vkd_status.h>
#include <ZobHandle.h>

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

#include <array>

namespace vkd {
namespace dbo {

using Position = std::array<double, 3>; ///< global x, y, z (upwards) in metres

/// A node. Elements and supports refer to its number, which is positive.
struct Node
{
    int number = 0;
    Position position{};
};

/// The restrained directions of a node: bits 1, 2 and 4 for x, y and z; bits 8, 16 and 32 for the
/// rotations about these axes.
struct Boundary
{
    int node = 0;
    int fixed = 0;
};

/// The number and title of a cross-section; the model has no dimensions of it.
struct CrossSection
{
    int number = 0;
    QString title;
};

/// A primary group. Each element belongs to one, and refers to its number.
struct Group
{
    int number = 0; ///< 1 to 999 in model files
    QString title;
};

/// A named set of elements, which may belong to any primary groups. The name has one to four ASCII
/// letters and digits, including at least one letter.
struct SecondaryGroup
{
    QString name;
    QString title;
    QVector<int> quads; ///< numbers of the elements
    QVector<int> beams;
};

/// A beam, truss or cable between two nodes.
struct LineElement
{
    int number = 0;
    int group = 0;        ///< number of a primary group
    int crossSection = 0; ///< number of a cross-section
    int nodes[2]{};       ///< numbers of the nodes
};

/// A spring between two nodes, or between a node and the ground.
struct Spring
{
    int number = 0;
    int group = 0;
    int nodes[2]{};         ///< the second node is 0 for a spring to the ground
    double stiffness = 0.0; ///< kN/m
};

/// An area element with three or four nodes.
struct Quad
{
    int number = 0;
    int group = 0;
    int nodes[4]{};         ///< the fourth node is 0 for a triangle
    double thickness = 0.0; ///< metres
};

/// A volume element with eight nodes.
struct Brick
{
    int number = 0;
    int group = 0;
    int nodes[8]{}; ///< the four lower nodes, then the upper nodes in the same order
};

/// A structural point.
struct Point
{
    int number = 0;
    Position position{};
};

/// A structural line or area, defined by the numbers of its points.
struct Outline
{
    int number = 0;
    QVector<int> points;
};

/// An axis, a section cut, a design line or a tendon.
struct Polyline
{
    int number = 0;
    QString title;
    QVector<Position> points;
};

constexpr int PlainLoadCase = 1; ///< kind of a load case that is not a combination

/// A load case (`kind` PlainLoadCase) or a design combination (`kind` 2).
struct LoadCase
{
    int number = 0;
    QString title;
    int kind = PlainLoadCase;
};

/// The title and the kind of the structural system.
struct SystemInformation
{
    QString title;
    int kindOfSystem = 0; ///< see getKindOfSystem()
};

/// Design parameters of some groups, keyed by field name. They occur only in model files; a project
/// stores design records instead.
struct DesignValues
{
    QStringList groups;           ///< group numbers or names of secondary groups
    QMap<QString, double> values; ///< in base units
};

/// A structural model as plain data. The model file reader checks that every referenced item
/// exists.
struct Model
{
    SystemInformation system;
    QVector<Node> nodes;
    QVector<Boundary> supports;
    QVector<CrossSection> crossSections;
    QVector<Group> groups;
    QVector<SecondaryGroup> secondaryGroups;
    QVector<LineElement> beams;
    QVector<LineElement> trusses;
    QVector<LineElement> cables;
    QVector<Spring> springs;
    QVector<Quad> quads;
    QVector<Brick> bricks;
    QVector<Polyline> quadTendons;
    QVector<Polyline> beamTendons;
    QVector<Point> points;
    QVector<Outline> lines;
    QVector<Outline> areas;
    QVector<Polyline> axes;
    QVector<Polyline> sectionCuts;
    QVector<Polyline> designLines;
    QVector<LoadCase> loadCases;
    QVector<DesignValues> designParameters; ///< not stored with the model
};

/// Reads a model file (JSON, described in share/models/README.md), with titles in the given
/// language. The status code is VKD_ZOB_NO_FILE if the file cannot be read, VKD_ZOB_DAMAGED if it
/// is invalid, and VKD_ZOB_CANCELLED if `goOn` returned false. The reason contains the path and the
/// position in the file. `model` is set only on success. `goOn` is called before and during parsing
/// and while the lists are read, but not while the file is loaded from the disk. The parser cannot
/// be interrupted: after cancellation, the call returns only when the parser has finished.
VKD_DBO_EXPORT VkdStatus readModelFile(const QString& path, Language language, Model* model,
                                       const VkdGoOn& goOn = VkdGoOn());

/// Replaces the model of the project atomically. The status code is a VkdZobStatus; it is
/// VKD_ZOB_CANCELLED if `goOn` returned false.
VKD_DBO_EXPORT VkdStatus storeModel(ZobHandle project, const Model& model,
                                    const VkdGoOn& goOn = VkdGoOn());

/// Copies only the system information of a project's model to another store, for pages that work on
/// a copy of some records. If the project has no model or its system information is damaged, the
/// kind of system is 0, as in getKindOfSystem().
VKD_DBO_EXPORT VkdStatus copySystem(ZobHandle from, ZobHandle to);

/// Reads the model of the project in one snapshot. Returns an empty model if the project has none.
/// If `goOn` returned false or the store failed, returns the part read so far. Records that are too
/// short are skipped. If `status` is not null, it receives OK if everything was read,
/// VKD_ZOB_CANCELLED if `goOn` returned false, otherwise the first failure. Sets `mark` to the mark
/// of the model (see modelMark()), or to an empty byte array if the model was not read completely.
VKD_DBO_EXPORT Model readModel(ZobHandle project, const VkdGoOn& goOn = VkdGoOn(),
                               QByteArray* mark = nullptr, VkdStatus* status = nullptr);

/// Returns bytes that identify the stored model. The bytes change each time a model is stored, but
/// are the same in a copy of the project. Returns an empty byte array if the project has no model
/// or cannot be read.
VKD_DBO_EXPORT QByteArray modelMark(ZobHandle project);

/// Reads only the load cases of the model. If `status` is not null, it receives OK if all load
/// cases were read, otherwise the first failure.
VKD_DBO_EXPORT QVector<LoadCase> readLoadCases(ZobHandle project, VkdStatus* status = nullptr);

} // namespace dbo
} // namespace vkd
