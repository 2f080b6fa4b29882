#pragma once

#include "output/savedSettings.h"

#include <vkd_qt_xmlpart.h>

namespace plib {

/// Reads the saved string of an output page: single values by their tags, or all settings. The
/// string may come from another kind of page, so callers check whether it contains a tag before
/// they change the widget for that tag.
class SavedPage
{
public:
    /// `present` contains the current settings. They remain in effect if their tags are missing or
    /// the saved values are invalid.
    SavedPage(const QString& xml, const OutputSettings& present)
        : m_xml(xml)
        , m_settings(present)
    {
        applySavedSettings([this](const char* tag) { return part(tag); }, &m_settings);
    }

    const QString& xml() const { return m_xml; }
    const OutputSettings& settings() const { return m_settings; }
    /// Returns the value of the tagged string with this tag, or a null string if there is none.
    QString part(const char* tag) const { return vkd_qt_readXMLpart(m_xml, 0, QLatin1String(tag)); }
    bool has(const char* tag) const { return !part(tag).isNull(); }

private:
    QString m_xml;
    OutputSettings m_settings;
};

/// Returns a value as a tagged string, which is a part of the saved string.
inline QString savedPart(const char* tag, const QString& value)
{
    return vkd_qt_writeXMLpart(value, QLatin1String(tag));
}

} // namespace plib
