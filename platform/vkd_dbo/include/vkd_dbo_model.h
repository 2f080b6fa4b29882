#pragma once

#include "vkd_dbo_export.h"

#include <vkd_progress.h>
#include <vkd_status.h>

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

#include <array>

namespace vkd {
namespace dbo {

using Position = std::array<double, 3>; ///< global x, y, z (upwards) in metres

struct Node
{
    int number = 0;
    Position position{};
};

/// The directions in which a node is held: the bits 1, 2, 4 for x, y, z and 8, 16, 32 for the
/// rotations about them.
struct Boundary
{
    int node = 0;
    int fixed = 0;
};

struct CrossSection
{
    int number = 0;
    QString title;
};

struct Group
{
    int number = 0;
    QString title;
};

/// A named set of elements across the primary groups; the name has one to four letters
/// and digits of ASCII and is no number.
struct SecondaryGroup
{
    QString name;
    QString title;
    QVector<int> quads;
    QVector<int> beams;
};

/// A beam, truss or cable between two nodes.
struct LineElement
{
    int number = 0;
    int group = 0;
    int crossSection = 0;
    int nodes[2]{};
};

struct Spring
{
    int number = 0;
    int group = 0;
    int nodes[2]{};         ///< the second is 0 for a spring to the ground
    double stiffness = 0.0; ///< kN/m
};

struct Quad
{
    int number = 0;
    int group = 0;
    int nodes[4]{};         ///< the fourth is 0 for a triangle
    double thickness = 0.0; ///< metres
};

struct Brick
{
    int number = 0;
    int group = 0;
    int nodes[8]{};
};

/// A structural point.
struct Point
{
    int number = 0;
    Position position{};
};

/// A structural line or area by the numbers of its points.
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

/// `kind` 1 is a load case, 2 a combination of the design.
struct LoadCase
{
    int number = 0;
    QString title;
    int kind = 1;
};

struct SystemInformation
{
    QString title;
    int kindOfSystem = 0; ///< see getKindOfSystem()
};

/// Design parameters of some groups, by the names of their fields; only a model file has them, a
/// project keeps records.
struct DesignValues
{
    QStringList groups; ///< numbers, and names of secondary groups
    QMap<QString, double> values;
};

/// A structural model. Plain data: the reader of model files sees to it that every number that one
/// thing names belongs to another one.
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

/// Reads a model file (JSON, described in share/models/README.md). Titles are taken in the given
/// language, 0 German or 1 English. If the file cannot be read or says something impossible, false
/// comes back and `error` is one line that names the place, or empty if `goOn` answered false.
VKD_DBO_EXPORT bool readModelFile(const QString& path, int language, Model* model, QString* error,
                                  const VkdGoOn& goOn = VkdGoOn());

/// Stores the model in the project at this database index, in place of the one it held; either all
/// of it or nothing. The code of the result is a VkdZobStatus, VKD_ZOB_CANCELLED if `goOn` answered
/// false.
VKD_DBO_EXPORT VkdStatus storeModel(int index, const Model& model, const VkdGoOn& goOn = VkdGoOn());

/// The model of the project, from one state of it; empty where the project holds none. If `goOn`
/// answered false or the store failed, it is that part of the model that was read until then.
/// `mark` becomes that of the model, see modelMark(), or empty if not all of the model was read.
VKD_DBO_EXPORT Model readModel(int index, const VkdGoOn& goOn = VkdGoOn(),
                               QByteArray* mark = nullptr);

/// Some bytes that differ between any two models that were ever stored, and go with a copy of the
/// project; empty where the project holds no model, or where it could not be read.
VKD_DBO_EXPORT QByteArray modelMark(int index);

/// The load cases alone, for those who need no more.
VKD_DBO_EXPORT QVector<LoadCase> readLoadCases(int index);

} // namespace dbo
} // namespace vkd
