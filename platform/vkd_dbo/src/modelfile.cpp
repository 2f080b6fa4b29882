#include "vkd_dbo_model.h"

#include "faultyKey.h"
#include "JsonPlace.h"
#include "ModelText.h"
#include "NumberSet.h"

#include <vkd_readFile.h>
#include <vkd_zob.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <chrono>
#include <climits>
#include <future>
#include <numeric>
#include <optional>
#include <utility>

namespace vkd {
namespace dbo {

namespace {
constexpr int MostGroup = 999; // far below the packed names of secondary groups

/// The names of item types that a number can refer to. They are translated when an error message is
/// built.
namespace ThingNames {
constexpr char Node[] = QT_TRANSLATE_NOOP("vkd::dbo::ModelFileError", "node");
constexpr char Group[] = QT_TRANSLATE_NOOP("vkd::dbo::ModelFileError", "group");
constexpr char Element[] = QT_TRANSLATE_NOOP("vkd::dbo::ModelFileError", "element");
constexpr char CrossSection[] = QT_TRANSLATE_NOOP("vkd::dbo::ModelFileError", "cross section");
constexpr char Point[] = QT_TRANSLATE_NOOP("vkd::dbo::ModelFileError", "point");
} // namespace ThingNames

/// Reads one model file. Items that are referenced by number are read first, so that an unknown
/// number is reported at the position where it is used. If `text` is not null, the lists of the
/// root are read from it in pieces.
class ModelFileReader
{
public:
    ModelFileReader(JsonPlace root, const ModelText* text, Language language, VkdSteps& steps)
        : m_root(std::move(root))
        , m_text(text)
        , m_language(language)
        , m_steps(steps)
    {
    }
    Model read();

private:
    using Numbers = NumberSet;

    void readSystem();
    void readElements();
    void readGeometry();

    template <typename T, typename ReadOne>
    void each(const char* key, QVector<T>& things, ReadOne readOne);
    template <typename T, typename ReadOne>
    void readAll(const JsonList& places, QVector<T>& things, ReadOne& readOne);
    template <typename T>
    void titled(const char* key, QVector<T>& things, Numbers* numbers, int most = INT_MAX);
    void lineElements(const char* key, QVector<LineElement>& elements, Numbers* numbers);
    void outlines(const char* key, QVector<Outline>& outlines, int least, int most);
    void polylines(const char* key, QVector<Polyline>& lines);
    void readSecondaryGroups();
    void readDesign();

    template <typename Element>
    void numberAndGroup(const JsonList& values, Element& element, Numbers& used) const;
    static int unique(const JsonPlace& place, Numbers& used);
    static int known(const JsonPlace& place, const Numbers& numbers, const char* what);
    static Position position(const JsonList& values, int first);
    template <size_t N>
    void nodes(const JsonList& values, int first, int (&numbers)[N], bool lastMayBeZero);
    static QVector<int> members(const JsonPlace& group, const char* key, const Numbers& numbers);

    JsonPlace m_root;
    const ModelText* m_text;
    Language m_language;
    VkdSteps& m_steps;
    Model m_model;
    Numbers m_nodes, m_groups, m_sections, m_points, m_beams, m_quads;
};

int fixedDirections(const JsonPlace& place)
{
    static const QStringList names{QStringLiteral("x"),  QStringLiteral("y"),
                                   QStringLiteral("z"),  QStringLiteral("rx"),
                                   QStringLiteral("ry"), QStringLiteral("rz")};
    int fixed = 0;
    const QStringList words = place.string().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& word : words) {
        const int bit = names.indexOf(word);
        if (bit < 0)
            place.fail(ModelFileError::tr("unknown direction \"%1\"").arg(word));
        fixed |= 1 << bit;
    }
    return fixed;
}

/// Returns whether the text is a valid name: it must fit into the four bytes of a group number and
/// contain a letter, because users type names and numbers into one field.
bool isGroupName(const QString& name)
{
    static const QRegularExpression form(QStringLiteral("\\A(?=.*[A-Za-z])[A-Za-z0-9]{1,4}\\z"));
    return form.match(name).hasMatch();
}

Model ModelFileReader::read()
{
    const auto words = [](std::initializer_list<const char*> list) {
        QStringList result;
        std::transform(list.begin(), list.end(), std::back_inserter(result),
                       [](const char* word) { return QString::fromLatin1(word); });
        return result;
    };
    m_root.checkKeys(
        words({"title", "kindOfSystem", "nodes", "groups"}),
        words({"crossSections", "secondaryGroups", "supports", "beams", "trusses", "cables",
               "springs", "quads", "bricks", "quadTendons", "beamTendons", "points", "lines",
               "areas", "axes", "sectionCuts", "designLines", "loadCases", "designParameters"}));
    readSystem();
    readElements();
    readGeometry();
    readSecondaryGroups();
    readDesign();
    return m_model;
}

template <typename T, typename ReadOne>
void ModelFileReader::each(const char* key, QVector<T>& things, ReadOne readOne)
{
    const QString name = QString::fromLatin1(key);
    if (!m_root.has(name))
        return;
    const JsonPlace list = m_root.at(name);
    const JsonList places = list.list();
    things.reserve(m_text ? m_text->size(name) : places.size());
    readAll(places, things, readOne);
    int first = 0;
    for (int i = 0; m_text && i < m_text->pieceCount(name); ++i) {
        const JsonPlace piece = list.part(m_text->piece(name, i), first);
        const JsonList elements = piece.list();
        readAll(elements, things, readOne);
        first += elements.size();
    }
}

template <typename T, typename ReadOne>
void ModelFileReader::readAll(const JsonList& places, QVector<T>& things, ReadOne& readOne)
{
    for (int i = 0; i < places.size(); ++i) {
        if (!m_steps.next())
            throw ModelFileError{QString()};
        T thing;
        readOne(places[i], thing);
        things.append(thing);
    }
}

template <typename T>
void ModelFileReader::titled(const char* key, QVector<T>& things, Numbers* numbers, int most)
{
    each(key, things, [&](const JsonPlace& place, T& thing) {
        place.checkKeys({QStringLiteral("number"), QStringLiteral("title")}, {});
        const JsonPlace number = place.at(QStringLiteral("number"));
        thing.number = unique(number, *numbers);
        if (thing.number > most)
            number.fail(ModelFileError::tr("a number of %1 or less is required").arg(most));
        thing.title = place.at(QStringLiteral("title")).title(m_language);
    });
}

void ModelFileReader::readSystem()
{
    m_model.system.title = m_root.at(QStringLiteral("title")).title(m_language);
    m_model.system.kindOfSystem = m_root.at(QStringLiteral("kindOfSystem")).integer();
    titled("crossSections", m_model.crossSections, &m_sections);
    titled("groups", m_model.groups, &m_groups, MostGroup);
    each("nodes", m_model.nodes, [this](const JsonPlace& place, Node& node) {
        const auto values = place.list(4, 4);
        node.number = unique(values[0], m_nodes);
        node.position = position(values, 1);
    });
    each("supports", m_model.supports, [this](const JsonPlace& place, Boundary& boundary) {
        const auto values = place.list(2, 2);
        boundary.node = known(values[0], m_nodes, ThingNames::Node);
        boundary.fixed = fixedDirections(values[1]);
    });
    Numbers used;
    each("loadCases", m_model.loadCases, [&](const JsonPlace& place, LoadCase& loadCase) {
        place.checkKeys({QStringLiteral("number"), QStringLiteral("title")},
                        {QStringLiteral("kind")});
        loadCase.number = unique(place.at(QStringLiteral("number")), used);
        loadCase.title = place.at(QStringLiteral("title")).title(m_language);
        if (!place.has(QStringLiteral("kind")))
            return;
        const JsonPlace kind = place.at(QStringLiteral("kind"));
        loadCase.kind = kind.integer();
        if (loadCase.kind != 1 && loadCase.kind != 2)
            kind.fail(ModelFileError::tr("the kind must be 1 or 2"));
    });
}

void ModelFileReader::readElements()
{
    Numbers trusses, cables, springs, bricks;
    lineElements("beams", m_model.beams, &m_beams);
    lineElements("trusses", m_model.trusses, &trusses);
    lineElements("cables", m_model.cables, &cables);
    each("springs", m_model.springs, [&](const JsonPlace& place, Spring& spring) {
        const auto values = place.list(5, 5);
        numberAndGroup(values, spring, springs);
        nodes(values, 2, spring.nodes, true);
        spring.stiffness = values[4].real();
    });
    each("quads", m_model.quads, [&](const JsonPlace& place, Quad& quad) {
        const auto values = place.list(7, 7);
        numberAndGroup(values, quad, m_quads);
        nodes(values, 2, quad.nodes, true);
        quad.thickness = values[6].real();
    });
    each("bricks", m_model.bricks, [&](const JsonPlace& place, Brick& brick) {
        const auto values = place.list(10, 10);
        numberAndGroup(values, brick, bricks);
        nodes(values, 2, brick.nodes, false);
    });
}

void ModelFileReader::readGeometry()
{
    each("points", m_model.points, [this](const JsonPlace& place, Point& point) {
        const auto values = place.list(4, 4);
        point.number = unique(values[0], m_points);
        point.position = position(values, 1);
    });
    outlines("lines", m_model.lines, 3, 3);
    outlines("areas", m_model.areas, 4, 0);
    polylines("axes", m_model.axes);
    polylines("sectionCuts", m_model.sectionCuts);
    polylines("designLines", m_model.designLines);
    polylines("quadTendons", m_model.quadTendons);
    polylines("beamTendons", m_model.beamTendons);
}

void ModelFileReader::lineElements(const char* key, QVector<LineElement>& elements,
                                   Numbers* numbers)
{
    each(key, elements, [&](const JsonPlace& place, LineElement& element) {
        const auto values = place.list(5, 5);
        numberAndGroup(values, element, *numbers);
        element.crossSection = known(values[2], m_sections, ThingNames::CrossSection);
        nodes(values, 3, element.nodes, false);
    });
}

void ModelFileReader::outlines(const char* key, QVector<Outline>& outlines, int least, int most)
{
    Numbers used;
    each(key, outlines, [&](const JsonPlace& place, Outline& outline) {
        const auto values = place.list(least, most);
        outline.number = unique(values[0], used);
        for (int i = 1; i < values.size(); ++i)
            outline.points.append(known(values[i], m_points, ThingNames::Point));
    });
}

void ModelFileReader::polylines(const char* key, QVector<Polyline>& lines)
{
    Numbers used;
    each(key, lines, [&](const JsonPlace& place, Polyline& line) {
        place.checkKeys(
            {QStringLiteral("number"), QStringLiteral("title"), QStringLiteral("points")}, {});
        line.number = unique(place.at(QStringLiteral("number")), used);
        line.title = place.at(QStringLiteral("title")).title(m_language);
        const JsonPlace list = place.at(QStringLiteral("points"));
        const JsonList points = list.list(2);
        for (int i = 0; i < points.size(); ++i) {
            const JsonPlace point = points[i];
            line.points.append(position(point.list(3, 3), 0));
        }
    });
}

void ModelFileReader::readSecondaryGroups()
{
    QSet<QString> used;
    each("secondaryGroups", m_model.secondaryGroups,
         [&](const JsonPlace& place, SecondaryGroup& group) {
             place.checkKeys({QStringLiteral("name"), QStringLiteral("title")},
                             {QStringLiteral("quads"), QStringLiteral("beams")});
             const JsonPlace name = place.at(QStringLiteral("name"));
             group.name = name.string();
             if (!isGroupName(group.name))
                 name.fail(ModelFileError::tr("a name of one to four ASCII letters and digits, not "
                                              "only digits, is required"));
             if (used.contains(group.name))
                 name.fail(ModelFileError::tr("\"%1\" occurs twice").arg(group.name));
             used.insert(group.name);
             group.title = place.at(QStringLiteral("title")).title(m_language);
             group.quads = members(place, "quads", m_quads);
             group.beams = members(place, "beams", m_beams);
         });
}

void ModelFileReader::readDesign()
{
    QSet<QString> known;
    for (const auto& group : qAsConst(m_model.groups))
        known.insert(QString::number(group.number));
    for (const SecondaryGroup& group : qAsConst(m_model.secondaryGroups))
        known.insert(group.name);
    each("designParameters", m_model.designParameters,
         [&](const JsonPlace& place, DesignValues& design) {
             place.checkKeys({QStringLiteral("groups"), QStringLiteral("values")}, {});
             const JsonPlace list = place.at(QStringLiteral("groups"));
             const JsonList groups = list.list(1);
             for (int i = 0; i < groups.size(); ++i) {
                 const JsonPlace group = groups[i];
                 if (!known.remove(group.string()))
                     group.fail(ModelFileError::tr("group %1 does not exist or occurs twice")
                                    .arg(group.string()));
                 design.groups << group.string();
             }
             const JsonPlace values = place.at(QStringLiteral("values"));
             const QStringList names = values.keys();
             for (const QString& name : names)
                 design.values[name] = values.at(name).real();
         });
}

QVector<int> ModelFileReader::members(const JsonPlace& group, const char* key,
                                      const Numbers& numbers)
{
    QVector<int> result;
    const QString name = QString::fromLatin1(key);
    if (!group.has(name))
        return result;
    const JsonPlace list = group.at(name);
    const JsonList places = list.list();
    result.reserve(places.size());
    for (int i = 0; i < places.size(); ++i)
        result.append(known(places[i], numbers, ThingNames::Element));
    return result;
}

/// Reads the first two values, which are common to all elements.
template <typename Element>
void ModelFileReader::numberAndGroup(const JsonList& values, Element& element, Numbers& used) const
{
    element.number = unique(values[0], used);
    element.group = known(values[1], m_groups, ThingNames::Group);
}

int ModelFileReader::unique(const JsonPlace& place, Numbers& used)
{
    const int number = place.positive();
    if (!used.insert(number))
        place.fail(ModelFileError::tr("the number %1 occurs twice").arg(number));
    return number;
}

int ModelFileReader::known(const JsonPlace& place, const Numbers& numbers, const char* what)
{
    const int number = place.integer();
    if (!numbers.contains(number))
        place.fail(
            ModelFileError::tr("%1 %2 does not exist").arg(ModelFileError::tr(what)).arg(number));
    return number;
}

Position ModelFileReader::position(const JsonList& values, int first)
{
    return {values[first].real(), values[first + 1].real(), values[first + 2].real()};
}

template <size_t N>
void ModelFileReader::nodes(const JsonList& values, int first, int (&numbers)[N],
                            bool lastMayBeZero)
{
    for (size_t i = 0; i < N; ++i) {
        const JsonPlace place = values[first + int(i)];
        const bool isNone = lastMayBeZero && i + 1 == N && place.integer() == 0;
        numbers[i] = isNone ? 0 : known(place, m_nodes, ThingNames::Node);
    }
}

/// Converts an offset in bytes to text such as "line 3, column 7".
QString lineAndColumn(const QByteArray& bytes, int offset)
{
    const QByteArray before = bytes.left(offset);
    return ModelFileError::tr("line %1, column %2")
        .arg(before.count('\n') + 1)
        .arg(before.size() - before.lastIndexOf('\n'));
}

int thingsIn(const QJsonObject& root)
{
    return std::accumulate(root.begin(), root.end(), 0, [](int sum, const QJsonValue& list) {
        return sum + list.toArray().size();
    });
}

/// Parses the text. Throws a ModelFileError if it is invalid.
QJsonDocument parsed(const QByteArray& bytes)
{
    const auto fail = [&bytes](int offset, const QString& cause) {
        throw ModelFileError{lineAndColumn(bytes, offset) + QLatin1String(": ") + cause};
    };
    const FaultyKey faulty = findFaultyKey(bytes);
    if (faulty.fault == FaultyKey::TooMany)
        fail(faulty.offset, ModelFileError::tr("an object has more than %1 keys").arg(MostKeys));
    if (faulty.fault == FaultyKey::Repeated) {
        const int end = bytes.indexOf('"', faulty.offset + 1);
        const QByteArray key = bytes.mid(faulty.offset + 1, end - faulty.offset - 1);
        fail(faulty.offset,
             ModelFileError::tr("\"%1\" occurs twice").arg(QString::fromUtf8(key).simplified()));
    }
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &problem);
    if (problem.error != QJsonParseError::NoError)
        fail(problem.offset, problem.errorString());
    return document;
}

/// Does the work on a large file in a separate thread, because it takes a second and cannot be
/// interrupted. Before and during the work, the calling thread calls `goOn`.
template <typename Work>
auto inOtherThread(const VkdGoOn& goOn, const Work& work)
{
    if (!goOn)
        return work();
    bool goesOn = goOn(0);
    if (!goesOn)
        throw ModelFileError{QString()};
    auto result = std::async(std::launch::async, work);
    while (goesOn && result.wait_for(std::chrono::milliseconds(20)) != std::future_status::ready)
        goesOn = goOn(0);
    if (!goesOn) {
        result.wait();
        throw ModelFileError{QString()};
    }
    return result.get();
}

/// Reads the lists in pieces. Returns nothing if the text must be parsed as a whole.
std::optional<Model> readInPieces(const QByteArray& bytes, Language language, const VkdGoOn& goOn)
{
    try {
        const ModelText text = inOtherThread(goOn, [&bytes] { return ModelText(bytes); });
        VkdSteps steps(goOn, text.size());
        return ModelFileReader(JsonPlace(text.root()), &text, language, steps).read();
    } catch (const NotReadableInPieces&) {
        return {};
    }
}

Model readAsWhole(const QByteArray& bytes, Language language, const VkdGoOn& goOn)
{
    const QJsonDocument document = inOtherThread(goOn, [&bytes] { return parsed(bytes); });
    const QJsonValue root =
        document.isObject() ? QJsonValue(document.object()) : QJsonValue(QJsonValue::Null);
    VkdSteps steps(goOn, thingsIn(document.object()));
    return ModelFileReader(JsonPlace(root), nullptr, language, steps).read();
}

VkdStatus failureOf(const QString& path, int code, const QString& cause)
{
    return VkdStatus::failure(code, QStringLiteral("%1: %2").arg(path, cause));
}
} // namespace

VkdStatus readModelFile(const QString& path, Language language, Model* model, const VkdGoOn& goOn)
{
    QByteArray bytes;
    if (const VkdStatus status = vkd_readFile(path, &bytes); !status.isOk())
        return failureOf(path, status.code, status.reason);
    try {
        std::optional<Model> read = readInPieces(bytes, language, goOn);
        *model = read ? std::move(*read) : readAsWhole(bytes, language, goOn);
    } catch (const ModelFileError& wrong) {
        if (wrong.text.isEmpty())
            return failureOf(path, VKD_ZOB_CANCELLED, ModelFileError::tr("it was cancelled"));
        return failureOf(path, VKD_ZOB_DAMAGED, wrong.text);
    }
    return {};
}

} // namespace dbo
} // namespace vkd
