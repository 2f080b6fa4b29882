#pragma once

#include "GraphicalOutputRecord.h"

#include <list>
#include <map>
#include <optional>

namespace plib {

/// The sorts of model content that a plot of the catalogue can need.
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

/// What the filter and the script lines ask of a model.
class ModelQueries
{
public:
    virtual ~ModelQueries() = default;
    virtual bool has(Content content) const = 0;
    /// Spatial 0 to 9, plane 10 to 19, slab 20 to 29, axisymmetric 30 to 39.
    virtual int kindOfSystem() const = 0;
};

/// Asks another model each question once: a catalogue asks the same of it for each of its plots.
/// For the time of one pass, because a change of the model does not show.
class RememberedAnswers : public ModelQueries
{
public:
    /// `model` is not owned and outlives the object.
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

/// The content that a tag of the catalogue names, in any case; nothing for a tag without condition.
std::optional<Content> contentOf(const QString& tag);

/// Whether the model holds what the tag names. A tag that names nothing is always present.
bool hasContent(const QString& tag, const ModelQueries& model);

/// The bit of a record's `systemMask` that stands for this kind of system; 0 if no mask fits it, 15
/// if every one does.
int systemBit(int kind);

/// Whether a tree of this kind of page offers the plot: its program, the kind of system, what the
/// model or `additional` holds, and captions that are not empty. Tags in `additional` are compared
/// with the record's in the very case they have, unlike the tags that the model answers.
bool isRecordOffered(const GraphicalOutputRecord& record, int progname, const ModelQueries& model,
                     const std::list<QString>& additional);

} // namespace plib
