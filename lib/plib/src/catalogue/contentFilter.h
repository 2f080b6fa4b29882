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

/// The interface through which the content filter and the script lines query a model, so that they
/// do not depend on the store.
class ModelQueries
{
public:
    virtual ~ModelQueries() = default;
    virtual bool has(Content content) const = 0;
    /// Returns 0 to 9 for a spatial system, 10 to 19 for a plane system, 20 to 29 for a slab and 30
    /// to 39 for an axisymmetric system.
    virtual int kindOfSystem() const = 0;
};

/// Caches the query results of another model, because the same queries are made for each plot of a
/// catalogue. Use an object for only one pass, because it does not notice later changes to the
/// model.
class RememberedAnswers : public ModelQueries
{
public:
    /// `model` is not owned and must outlive this object.
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

/// Returns the content for a tag of the catalogue (case-insensitive), or nothing for an unknown
/// tag. An unknown tag does not impose a condition.
std::optional<Content> contentOf(const QString& tag);

/// Returns whether the model contains the content of the tag. Always returns true for an unknown
/// tag.
bool hasContent(const QString& tag, const ModelQueries& model);

/// Returns the bits of a record's `systemMask` for this kind of system. Returns 0 if the kind
/// matches no mask, and 15 if it matches every mask.
int systemBit(int kind);

/// Returns whether a tree on this kind of page offers the plot. The result depends on the kind of
/// page, the kind of system, the model content, the tags in `additional` and the captions, which
/// must not be empty. The tags in `additional` are case-sensitive, unlike the tags for the model
/// content.
bool isRecordOffered(const GraphicalOutputRecord& record, int progname, const ModelQueries& model,
                     const std::list<QString>& additional);

} // namespace plib
