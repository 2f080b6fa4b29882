#pragma once

#include "catalogue/GraphicalOutputRecord.h"

#include <list>
#include <map>
#include <optional>

namespace plib {

/// The kinds of model content that a plot of the catalogue can require.
enum class Content {
    Nodes,
    Quads,
    Boundaries,
    Beams,
    DesignLines,
    Trusses,
    SectionCuts,
    Points,
    Lines,
    Areas,
    Axes,
    Cables,
    Springs,
    Bricks,
    QuadTendons,
    BeamTendons,
    CrossSections
};

/// The interface through which the filter and the script lines query a model. It keeps both
/// independent of the store.
class ModelQueries
{
public:
    virtual ~ModelQueries() = default;
    virtual bool has(Content content) const = 0;
    /// Returns 0 to 9 for spatial, 10 to 19 for plane, 20 to 29 for slab and 30 to 39 for
    /// axisymmetric systems.
    virtual int kindOfSystem() const = 0;
};

/// Caches the answers of another model, because each plot of a catalogue makes the same queries.
/// Use an object for a single pass only: later changes of the model have no effect on it.
class RememberedAnswers : public ModelQueries
{
public:
    /// `model` is not owned and outlives this object.
    explicit RememberedAnswers(const ModelQueries& model)
        : m_model(model)
    {
    }

    bool has(Content content) const override;
    int kindOfSystem() const override;

private:
    const ModelQueries& m_model;
    mutable std::map<Content, bool> m_has;
    mutable std::optional<int> m_kind;
};

/// Returns the content for a tag of the catalogue, in upper or lower case; nothing for an unknown
/// tag, which is no condition.
std::optional<Content> contentOf(const QString& tag);

/// Returns whether the model contains the content of the tag; always true for an unknown tag.
bool hasContent(const QString& tag, const ModelQueries& model);

/// Returns the bit of a record's `systemMask` for this kind of system: 0 if it matches no mask, 15
/// if it matches any.
int systemBit(int kind);

/// Returns whether a tree of this kind of page offers the plot. This depends on the kinds of page
/// and of system, on the content of the model and the tags in `additional`, and on the captions,
/// none of which may be empty. Tags in `additional` are compared case sensitively, unlike those
/// for the content of the model.
bool isRecordOffered(const GraphicalOutputRecord& record, int progname, const ModelQueries& model,
                     const std::list<QString>& additional);

} // namespace plib
