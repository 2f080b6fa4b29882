#include "catalogue/contentFilter.h"

#include <algorithm>

namespace plib {

namespace {
constexpr int AnySystem = 15;

constexpr struct
{
    const char* tag;
    Content content;
} Tags[] = {
    {"Node", Content::Nodes},         {"Quad", Content::Quads},
    {"Boun", Content::Boundaries},    {"Beam", Content::Beams},
    {"DSLN", Content::DesignLines},   {"Trus", Content::Trusses},
    {"Sir", Content::SectionCuts},    {"Gpt", Content::Points},
    {"Gln", Content::Lines},          {"Gar", Content::Areas},
    {"Axis", Content::Axes},          {"Cabl", Content::Cables},
    {"Spri", Content::Springs},       {"Bric", Content::Bricks},
    {"Qten", Content::QuadTendons},   {"Bten", Content::BeamTendons},
    {"Sect", Content::CrossSections},
};
} // namespace

std::optional<Content> contentOf(const QString& tag)
{
    for (const auto& known : Tags)
        if (tag.compare(QLatin1String(known.tag), Qt::CaseInsensitive) == 0)
            return known.content;
    return std::nullopt;
}

bool hasContent(const QString& tag, const ModelQueries& model)
{
    const auto content = contentOf(tag);
    return !content || model.has(*content);
}

int systemBit(int kind)
{
    switch (kind / 10) { // rounds towards zero, so -9 to 9 are one range
    case 0:
    case 2: return 8;
    // The result is 1 for the kinds 10, 11, 14 and 15.
    case 1: return ((kind - 10) & ~5) == 0 ? 1 : 2;
    case 3: return 4;
    case 4: return 0;
    default: return AnySystem;
    }
}

bool isRecordOffered(const GraphicalOutputRecord& record, int progname, const ModelQueries& model,
                     const std::list<QString>& additional)
{
    if (progname != record.prog1 && progname != record.prog2 && progname != record.prog3)
        return false;
    const int mask = record.systemMask & AnySystem;
    if (mask && !(mask & systemBit(model.kindOfSystem())))
        return false;
    // The comparison is intentionally case-sensitive, unlike in hasContent(), because hosts use the
    // same spelling as the catalogue.
    if (!hasContent(record.contentTag, model) &&
        std::find(additional.begin(), additional.end(), record.contentTag) == additional.end())
        return false;
    return !record.title1.isEmpty() && !record.title2.isEmpty() && !record.title3.isEmpty();
}

bool RememberedAnswers::has(Content content) const
{
    const auto known = m_has.find(content);
    if (known != m_has.end())
        return known->second;
    return m_has.emplace(content, m_model.has(content)).first->second;
}

int RememberedAnswers::kindOfSystem() const
{
    if (!m_kind)
        m_kind = m_model.kindOfSystem();
    return *m_kind;
}

} // namespace plib
